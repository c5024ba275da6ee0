#include "base/files.h"
#include "base/seen.h"
#include "support/failing_disk.h"
#include "support/scratch_folder.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <string>

namespace {

TEST(Seen, TheSameBytesAreNoChangeHoweverTheyCame) {
    const ScratchFolder folder;
    folder.Write("a", "12345");
    const files::Seen seen = files::LookAt(folder / "a");
    EXPECT_EQ(seen, files::SeenIn("12345"));
    folder.Write("a", "12345");
    EXPECT_FALSE(files::ChangedSince(folder / "a", seen));
}

TEST(Seen, OtherBytesOfTheSameLengthAreAChange) {
    const ScratchFolder folder;
    folder.Write("a", "12345");
    const files::Seen seen = files::LookAt(folder / "a");
    folder.Write("a", "12354");
    EXPECT_TRUE(files::ChangedSince(folder / "a", seen));
    folder.Write("a", "1234");
    EXPECT_TRUE(files::ChangedSince(folder / "a", seen));
}

TEST(Seen, AFileThatHasComeIsAChangeOneThatHasGoneIsNone) {
    const ScratchFolder folder;
    const files::Seen none = files::LookAt(folder / "a");
    EXPECT_EQ(none.Was, files::Seen::What::NoFile);
    EXPECT_FALSE(files::ChangedSince(folder / "a", none));
    EXPECT_FALSE(files::ChangedSince(folder / "a", files::Seen{}));
    EXPECT_FALSE(files::ChangedSince(folder / "a", files::SeenIn("x")));
    folder.Write("a", "");
    EXPECT_TRUE(files::ChangedSince(folder / "a", none));
    EXPECT_TRUE(files::ChangedSince(folder / "a", files::Seen{}));
}

TEST(Seen, AFileThatCannotBeReadIsAChange) {
    const ScratchFolder folder;
    folder.Write("a", "12345");
    const files::Seen seen = files::SeenIn("12345");
    const FailingDisk disk{{FailingDisk::Call::Read, 1, EIO, FailingDisk::kForever}};
    EXPECT_EQ(files::LookAt(folder / "a").Was, files::Seen::What::Unread);
    EXPECT_TRUE(files::ChangedSince(folder / "a", seen));
    EXPECT_TRUE(files::ChangedSince(folder / "a", files::LookAt(folder / "a")));
}

TEST(Seen, ANameThatDiffersInCaseIsAnotherFile) {
    const ScratchFolder folder;
    folder.Write("JANE.hef", "12345");
    EXPECT_EQ(files::LookAt(folder / "jane.hef").Was, files::Seen::What::NoFile);
    EXPECT_FALSE(files::ChangedSince(folder / "jane.hef", files::SeenIn("other")));
}

} // namespace
