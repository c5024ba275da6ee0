#include "proposal/side_files.h"

#include "support/failing_disk.h"
#include "support/running_program.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>

namespace {

struct Beside : RunningProgram {
    Beside() {
        program.document.BaseName = "Ann";
        program.document.FileName = "Ann.hef";
        program.document.FootnoteFile = "Ann.hxt";
        program.document.FilePath = folder / "Proposals/";
        program.document.FileExists = true;
    }
    [[nodiscard]] bool Write(modSideFile::Known& known) {
        return modSideFile::Write(program, known, "Ann.hxt", "new", "Overwrite?", "SaveFootnoteFile");
    }
};

TEST(SideFiles, GoAsideToABackupFolderOnAnotherVolumeToo) {
    Beside run;
    run.folder.Write("Proposals/Ann.hxt", "notes");
    const FailingDisk disk{{FailingDisk::Call::Rename, 1, EXDEV}}; // then it is copied
    modSideFile::MoveAside(run.program, run.folder / "Proposals/Ann.hxt", "Ann.hxt");
    EXPECT_EQ(disk.Failed(), 1);
    EXPECT_EQ(run.folder.Read("Proposals/Backup/Ann.hxt.old"), "notes");
    EXPECT_FALSE(run.folder.Has("Proposals/Ann.hxt"));
}

TEST(SideFiles, OneThatCouldNotBeReadIsNotWritten) {
    Beside run;
    run.folder.MakeFolder("Proposals/Ann.hxt");
    run.surroundings.questions.Expect("OpenFootnoteFile");
    modSideFile::Known known = modSideFile::Read(run.program, "Ann.hxt", "OpenFootnoteFile");
    EXPECT_TRUE(known.There);
    EXPECT_TRUE(known.Locked);
    EXPECT_FALSE(run.Write(known));
}

TEST(SideFiles, ThatLieUnderTheNameOfAProposalWithoutAFileAreAnothers) {
    Beside run;
    run.program.document.FileExists = false;
    run.folder.Write("Proposals/Ann.hxt", "another Ann's");
    const modSideFile::Known known = modSideFile::Read(run.program, "Ann.hxt", "OpenFootnoteFile");
    EXPECT_FALSE(known.There);
    EXPECT_EQ(known.Bytes, "");
}

TEST(SideFiles, OfAReplacedProposalThatCannotBeMovedAwayStillLieThere) {
    Beside run;
    run.folder.Write("Proposals/Ann.hxt", "the old Ann's");
    std::filesystem::remove_all(run.folder / "Proposals/Backup");
    run.folder.Write("Proposals/Backup", "no folder can be made here");
    run.surroundings.questions.Expect("An error occurred in SaveEventFile.");
    modSideFile::LeaveOthersBehind(run.program, modSideFile::OwnLayout::None);
    EXPECT_EQ(run.folder.Read("Proposals/Ann.hxt"), "the old Ann's");
    EXPECT_EQ(run.Main().imgFootNotes.Picture, 1) << "they would be shown";
}

TEST(SideFiles, OfAProposalWithoutANameAreNotWritten) {
    Beside run;
    run.program.document.BaseName.clear();
    modSideFile::Known known;
    EXPECT_FALSE(run.Write(known));
    EXPECT_FALSE(run.folder.Has("Proposals/Ann.hxt"));
}

TEST(SideFiles, ThatWereWrittenAreKnownAndWrittenOverWithoutAQuestion) {
    Beside run;
    modSideFile::Known known = modSideFile::Read(run.program, "Ann.hxt", "OpenFootnoteFile");
    EXPECT_FALSE(known.There);
    EXPECT_TRUE(run.Write(known));
    EXPECT_TRUE(known.There);
    EXPECT_EQ(run.folder.Read("Proposals/Ann.hxt"), "new");
    EXPECT_TRUE(run.Write(known));
    run.folder.Write("Proposals/Ann.hxt", "another's");
    run.surroundings.questions.Expect("Overwrite?", Answer::No);
    EXPECT_FALSE(run.Write(known));
    EXPECT_EQ(run.folder.Read("Proposals/Ann.hxt"), "another's");
}

} // namespace
