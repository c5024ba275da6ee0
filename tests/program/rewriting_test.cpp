#include "program/rewriting.h"

#include "base/files.h"
#include "support/failing_disk.h"
#include "support/settled.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace {

using modRewrite::Rewriting;
constexpr const char* kQuestion =
    "This terms list was changed by another program since you opened it. Overwrite it?";

Rewriting WriteOver(Settled& run, files::Seen& seen) {
    return modRewrite::Rewrite(run.program, run.folder / "list", "new", seen, "This terms list");
}

TEST(Rewriting, AFileThatIsAsItWasSeenIsOverwrittenWithoutAQuestion) {
    Settled run;
    run.folder.Write("list", "old");
    files::Seen seen = files::SeenIn("old");
    EXPECT_EQ(WriteOver(run, seen), Rewriting::Done);
    EXPECT_EQ(run.folder.Read("list"), "new");
    EXPECT_EQ(seen, files::SeenIn("new"));
    EXPECT_EQ(WriteOver(run, seen), Rewriting::Done);
}

TEST(Rewriting, SomebodyElsesChangeIsAskedAboutAndNoKeepsIt) {
    Settled run;
    run.folder.Write("list", "other");
    files::Seen seen = files::SeenIn("old");
    run.surroundings.questions.ExpectBox({kQuestion, Buttons::YesNo, ""}, Answer::No);
    EXPECT_EQ(WriteOver(run, seen), Rewriting::Refused);
    EXPECT_EQ(run.surroundings.questions.Manners.back().Default, Answer::No);
    EXPECT_EQ(run.folder.Read("list"), "other");
    EXPECT_EQ(seen, files::SeenIn("old"));
    run.surroundings.questions.ExpectBox({kQuestion, Buttons::YesNo, ""}, Answer::Yes);
    EXPECT_EQ(WriteOver(run, seen), Rewriting::Done);
    EXPECT_EQ(run.folder.Read("list"), "new");
}

TEST(Rewriting, AFileThatCouldNotBeReadIsKept) {
    Settled run;
    run.folder.Write("list", "never read");
    files::Seen seen{files::Seen::What::Unread, 0, 0};
    EXPECT_EQ(WriteOver(run, seen), Rewriting::Done);
    EXPECT_EQ(run.folder.Read("list"), "new");
    EXPECT_EQ(run.folder.Read("list.unread"), "never read");
}

TEST(Rewriting, AFailedWriteLeavesTheFileAndWhatIsKnownOfIt) {
    Settled run;
    run.folder.Write("list", "old");
    files::Seen seen = files::SeenIn("old");
    const FailingDisk disk{{FailingDisk::Call::Flush, 1, EIO}};
    EXPECT_THROW(static_cast<void>(WriteOver(run, seen)), files::FileError);
    EXPECT_EQ(run.folder.Read("list"), "old");
    EXPECT_EQ(seen, files::SeenIn("old"));
}

TEST(Rewriting, AFileThatCouldNotBeReadHasItsNameAgainWhenNothingNewComesInItsPlace) {
    for (const FailingDisk::Call call : {FailingDisk::Call::Write, FailingDisk::Call::Flush}) {
        for (const int error : {ENOSPC, EIO, EDQUOT}) {
            Settled run;
            run.folder.Write("list", "never read");
            files::Seen seen{files::Seen::What::Unread, 0, 0};
            {
                const FailingDisk disk{{call, 1, error, FailingDisk::kForever}};
                EXPECT_THROW(static_cast<void>(WriteOver(run, seen)), files::FileError);
            }
            EXPECT_EQ(run.folder.Read("list"), "never read");
            EXPECT_FALSE(run.folder.Has("list.unread"));
            EXPECT_EQ(WriteOver(run, seen), Rewriting::Done);
            EXPECT_EQ(run.folder.Read("list"), "new");
            EXPECT_EQ(run.folder.Read("list.unread"), "never read");
        }
    }
}

} // namespace
