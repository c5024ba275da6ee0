#include "base/dates.h"
#include "base/files.h"
#include "base/seen.h"
#include "format/frm_label_props.h"
#include "format/label_designer.h"
#include "pages/fields.h"
#include "program/keys.h"
#include "program/windows.h"
#include "proposal/backup.h"
#include "proposal/lifecycle.h"
#include "proposal/proposal_bytes.h"
#include "proposal/proposal_save.h"
#include "proposal/reset.h"
#include "proposal/run_marker.h"
#include "shell/closing.h"
#include "shell/start_up.h"
#include "shell/wiring.h"
#include "support/failing_disk.h"
#include "support/person.h"
#include "support/running_program.h"
#include "support/typist.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>

namespace {

namespace fs = std::filesystem;

/// Runs of the program in one folder, one after another.
struct Runs {
    Runs() : first(std::make_unique<RunningProgram>()) {}

    void Fill(int index, std::string_view text) {
        Typist typist(first->program);
        typist.Click(PageId::frmP1, index);
        typist.Type(text);
    }
    void Save(const std::string& name) {
        first->surroundings.questions.Expect("File was saved as " + name);
        ASSERT_EQ(modFile::SaveEventFile(first->program), modFile::SaveResult::Saved);
    }
    /// The first run is killed: nothing of it but its files is left.
    void StartAgain(const std::string& question, Answer answer) {
        if (!question.empty()) {
            again.questions.Expect(question, answer);
        }
        Start(program, again);
    }
    void Start(Program& one, RecordingPlatform& surroundings,
               const std::function<void()>& whileAsked = {}) const {
        one.folders.InstallFolder = first->folder.Path();
        one.folders.Drives.Home = first->folder / "Home/";
        one.main.ClientHeight = 9000;
        one.main.ClientWidth = 14000;
        Wire(one);
        if (whileAsked) {
            surroundings.questions.Expect(kNoEvents);
            surroundings.questions.Allow(
                "The program did not close properly. The proposal Ann has changes from " +
                    dates::GeneralDate(files::ModifiedSerial(first->folder / "Proposals/Backup/Ann.hef")) +
                    " that were not saved. Bring them back?",
                whileAsked);
        } else {
            surroundings.questions.Allow(kNoEvents);
        }
        ASSERT_EQ(modStart::Main(one), modStart::StartResult::Running);
        PassSplash(one);
    }
    [[nodiscard]] const std::string& Text(int index) const {
        return program.pages[PageId::frmP1].txt[static_cast<std::size_t>(index)].Text;
    }
    [[nodiscard]] bool Has(std::string_view name) const { return first->folder.Has(name); }

    std::unique_ptr<RunningProgram> first;
    RecordingPlatform again;
    Program program{again.platform};
};

TEST(Recovery, ChangesOfASavedProposalComeBackAsUnsavedOnes) {
    Runs runs;
    runs.Fill(2, "Ann");
    runs.Fill(3, "12 Elm Street");
    runs.Save("Ann.hef");
    runs.Fill(10, "twelve sandwiches and a cake");
    modFile::BackupThisFile(runs.first->program);
    runs.StartAgain("The program did not close properly. The proposal Ann has changes from ", Answer::Yes);
    const ScriptedQuestions::Box& box = runs.again.questions.Shown.back();
    EXPECT_TRUE(box.Text.ends_with(" that were not saved. Bring them back?")) << box.Text;
    EXPECT_EQ(box.With, Buttons::YesNo);
    EXPECT_EQ(runs.again.questions.Manners.back().Default, Answer::Yes);
    EXPECT_EQ(runs.again.questions.Manners.back().How, Manner::Came::Unasked);
    EXPECT_EQ(runs.Text(2), "Ann");
    EXPECT_EQ(runs.Text(10), "twelve sandwiches and a cake");
    const DocumentState& document = runs.program.document;
    EXPECT_EQ(document.FileName, "Ann.hef");
    EXPECT_EQ(document.FilePath, runs.first->folder / "Proposals/");
    EXPECT_TRUE(document.FileExists);
    EXPECT_FALSE(document.FromBackup);
    EXPECT_TRUE(modProposal::SomethingChanged(runs.program));
    EXPECT_EQ(document.SavedTextBuf[PageId::frmP1][10], "");
    EXPECT_TRUE(runs.program.main.Loaded);
    EXPECT_EQ(runs.program.main.Focus, (FieldRef{PageId::frmP1, FieldKind::txt, 0}));
    runs.again.questions.Expect("File was saved as Ann.hef");
    EXPECT_EQ(modFile::SaveEventFile(runs.program), modFile::SaveResult::Saved);
    modClosing::MDIForm_Unload(runs.program);
    EXPECT_FALSE(runs.Has("Running.txt")) << "everything is settled";
}

TEST(Recovery, AClientOfOneLetterHasItsChangesBackToo) {
    Runs runs;
    runs.Fill(2, "A");
    runs.Save("A.hef");
    runs.Fill(10, "twelve sandwiches and a cake");
    modFile::BackupThisFile(runs.first->program);
    runs.StartAgain("The program did not close properly. The proposal A has changes from ", Answer::Yes);
    EXPECT_EQ(runs.Text(2), "A");
    EXPECT_EQ(runs.Text(10), "twelve sandwiches and a cake");
}

TEST(Recovery, OfAFileThatWasCutShortMeanwhileKeepsItWhenItIsReplaced) {
    Runs runs;
    runs.Fill(2, "Ann");
    runs.Fill(3, "12 Elm Street");
    runs.Save("Ann.hef");
    runs.Fill(10, "twelve sandwiches and a cake");
    modFile::BackupThisFile(runs.first->program);
    const std::string cut = runs.first->folder.Read("Proposals/Ann.hef").substr(0, 200);
    runs.first->folder.Write("Proposals/Ann.hef", cut);
    runs.again.questions.Expect("The proposal Ann has changes from ", Answer::Yes);
    runs.again.questions.Expect("The file Ann.hef is cut short");
    runs.Start(runs.program, runs.again);
    EXPECT_EQ(runs.Text(10), "twelve sandwiches and a cake");
    runs.again.questions.Expect("File was saved as Ann.hef");
    EXPECT_EQ(modFile::SaveEventFile(runs.program), modFile::SaveResult::Saved);
    EXPECT_EQ(runs.first->folder.Read("Proposals/Ann.hef.unread"), cut);
}

TEST(Recovery, ANewProposalHasNotTheFootnotesThatLieUnderItsName) {
    Runs runs;
    runs.Fill(2, "Ann");
    modFile::BackupThisFile(runs.first->program);
    runs.first->folder.Write("Proposals/Ann.hxt", "another Ann's");
    runs.StartAgain("The proposal Ann has changes from ", Answer::Yes);
    EXPECT_FALSE(runs.program.document.HasNotes);
}

TEST(Recovery, TheLayoutThatStandsIsReplacedWithoutAQuestion) {
    Runs runs;
    runs.Fill(2, "Ann");
    runs.Save("Ann.hef");
    runs.Fill(10, "twelve sandwiches and a cake");
    modFile::BackupThisFile(runs.first->program);
    runs.first->folder.Write("Proposals/Ann.hpf", "frmP1.txt(11).FontBold=True\r\n");
    runs.first->folder.Write("Proposals/Backup/Ann.hpf", "frmP1.txt(12).FontBold=True\r\n");
    runs.StartAgain("The proposal Ann has changes from ", Answer::Yes);
    runs.again.questions.Expect("File was saved as Ann.hef");
    EXPECT_EQ(modFile::SaveEventFile(runs.program), modFile::SaveResult::Saved);
    const std::string layout = runs.first->folder.Read("Proposals/Ann.hpf");
    EXPECT_NE(layout.find("frmP1.txt(12).FontBold=True"), std::string::npos) << layout;
    EXPECT_EQ(layout.find("frmP1.txt(11)"), std::string::npos) << layout;
}

TEST(Recovery, ABackupThatIsThereIsOfferedThoughTheProposalsFolderIsAway) {
    Runs runs;
    runs.first->folder.MakeFolder("Shared");
    runs.first->program.document.FilePath = runs.first->folder / "Shared/";
    runs.Fill(2, "Ann");
    runs.Fill(10, "twelve sandwiches and a cake");
    modFile::BackupThisFile(runs.first->program);
    fs::remove(runs.first->folder / "Shared");
    runs.StartAgain("The proposal Ann has changes from ", Answer::Yes);
    EXPECT_EQ(runs.Text(10), "twelve sandwiches and a cake");
    EXPECT_FALSE(runs.program.document.FileExists);
}

TEST(Recovery, ASaveTellsItsMarkerWhatItWritesBeforeItWrites) {
    Runs runs;
    runs.Fill(2, "Ann");
    runs.Fill(10, "twelve sandwiches and a cake");
    modFile::BackupThisFile(runs.first->program);
    // The save comes as far as its write, where the run ends.
    runs.first->folder.MakeFolder("Proposals/Ann.hef");
    runs.first->surroundings.questions.Expect("An error occurred in SaveEventFile.");
    EXPECT_EQ(modFile::SaveEventFile(runs.first->program), modFile::SaveResult::NotSaved);
    fs::remove(runs.first->folder / "Proposals/Ann.hef");
    runs.first->folder.Write("Proposals/Ann.hef", modFile::ProposalBytes(runs.first->program));
    runs.first->folder.Write("Proposals/Backup/Ann.hef", "older");
    runs.StartAgain("", Answer::No);
    EXPECT_TRUE(runs.again.questions.Shown.empty()) << "it was saved after the backup";
}

TEST(Recovery, AnotherProgramsChangeMeanwhileIsAskedAboutBeforeItIsOverwritten) {
    Runs runs;
    runs.Fill(2, "Ann");
    runs.Fill(3, "12 Elm Street");
    runs.Save("Ann.hef");
    std::string other = runs.first->folder.Read("Proposals/Ann.hef");
    other.replace(other.find("12 Elm"), 6, "14 Oak");
    runs.first->folder.Write("Proposals/Ann.hef", other);
    runs.Fill(10, "twelve sandwiches and a cake");
    modFile::BackupThisFile(runs.first->program);
    runs.StartAgain("The proposal Ann has changes from ", Answer::Yes);
    runs.again.questions.Expect("This proposal was changed by another program since you opened it.",
                                Answer::No);
    EXPECT_EQ(modFile::SaveEventFile(runs.program), modFile::SaveResult::NotSaved);
    EXPECT_EQ(runs.first->folder.Read("Proposals/Ann.hef"), other);
}

TEST(Recovery, AProposalThatWasNeverSavedComesBackAsANewOne) {
    Runs runs;
    runs.Fill(2, "Ann");
    runs.Fill(10, "twelve sandwiches and a cake");
    modFile::BackupThisFile(runs.first->program);
    runs.StartAgain("The proposal Ann has changes from ", Answer::Yes);
    EXPECT_EQ(runs.Text(10), "twelve sandwiches and a cake");
    EXPECT_FALSE(runs.program.document.FileExists);
    EXPECT_FALSE(runs.program.main[CommandId::mnuFileDelete].Enabled);
    EXPECT_EQ(runs.program.document.FileName, "Ann.hef");
    EXPECT_TRUE(modProposal::SomethingChanged(runs.program));
    runs.again.questions.Expect("File was saved as Ann.hef");
    EXPECT_EQ(modFile::SaveEventFile(runs.program), modFile::SaveResult::Saved);
}

TEST(Recovery, ASecondProposalOfAClientComesBackAsANewOne) {
    Runs runs;
    runs.Fill(2, "Ann");
    runs.Fill(3, "12 Elm Street");
    runs.Save("Ann.hef");
    const std::string stored = runs.first->folder.Read("Proposals/Ann.hef");
    static_cast<void>(modReset::StartNewFile(runs.first->program));
    runs.Fill(2, "Ann");
    runs.Fill(10, "twelve sandwiches and a cake");
    modFile::BackupThisFile(runs.first->program);
    runs.StartAgain("The proposal Ann has changes from ", Answer::Yes);
    EXPECT_EQ(runs.Text(10), "twelve sandwiches and a cake");
    EXPECT_FALSE(runs.program.document.FileExists);
    EXPECT_FALSE(runs.program.main[CommandId::mnuFileDelete].Enabled);
    runs.again.questions.Expect("A file with this name (Ann.hef)", Answer::No);
    runs.again.questions.Expect("File not saved.");
    EXPECT_EQ(modFile::SaveEventFile(runs.program), modFile::SaveResult::NotSaved);
    EXPECT_EQ(runs.first->folder.Read("Proposals/Ann.hef"), stored);
}

TEST(Recovery, AShareThatIsAwayAtTheStartHasItAskedLater) {
    Runs runs;
    const ScratchFolder share;
    runs.first->program.document.FilePath = share / "Shared/";
    share.MakeFolder("Shared");
    runs.Fill(2, "Ann");
    runs.Fill(10, "twelve sandwiches and a cake");
    modFile::BackupThisFile(runs.first->program);
    const std::string away = share / "Away";
    fs::rename(share / "Shared", away);
    const std::string backup = runs.first->folder / "Proposals/Backup/Ann (Shared).hef";
    fs::rename(backup, away + "/kept");
    runs.StartAgain("", Answer::No);
    // This run has work of its own, which it ends without.
    Typist typist(runs.program);
    typist.Click(PageId::frmP1, 2);
    typist.Type("Bob");
    modFile::BackupThisFile(runs.program);
    modClosing::MDIForm_Unload(runs.program);
    modRecovery::TellOfBackup(runs.program, "Bob.hef"); // it has ended
    fs::rename(away + "/kept", backup);
    fs::rename(away, share / "Shared");
    RecordingPlatform third;
    Program program(third.platform);
    third.questions.Expect("The proposal Ann has changes from ", Answer::Yes);
    runs.Start(program, third);
    EXPECT_EQ(program.pages[PageId::frmP1].txt[10].Text, "twelve sandwiches and a cake");
}

TEST(Recovery, AProposalWithoutAClientsNameComesBackWithoutOne) {
    Runs runs;
    runs.Fill(10, "twelve sandwiches and a cake");
    modFile::BackupThisFile(runs.first->program);
    runs.StartAgain(
        "The program did not close properly. The proposal without a client's name has changes from ",
        Answer::Yes);
    EXPECT_EQ(runs.Text(10), "twelve sandwiches and a cake");
    const DocumentState& document = runs.program.document;
    EXPECT_EQ(document.FileName, "");
    EXPECT_EQ(document.BaseName, "");
    EXPECT_EQ(document.ClientCaption, "Proposal for (Client's Name)");
    EXPECT_EQ(document.WindowTitle, "Quillbrook");
    EXPECT_FALSE(document.FileExists);
    EXPECT_FALSE(document.HasNotes);
    EXPECT_TRUE(modProposal::SomethingChanged(runs.program));
    Typist typist(runs.program);
    typist.Click(PageId::frmP1, 2);
    typist.Type("Ann");
    EXPECT_EQ(document.ClientCaption, "Proposal for Ann");
    runs.again.questions.Expect("File was saved as Ann.hef");
    EXPECT_EQ(modFile::SaveEventFile(runs.program), modFile::SaveResult::Saved);
    EXPECT_FALSE(runs.Has("Proposals/Backup/(no client's name).hef")) << "it is saved now";
}

TEST(Recovery, AProposalWhoseClientCannotNameAFileComesBackWithThatName) {
    Runs runs;
    runs.Fill(2, "Tom / Lee");
    runs.Fill(10, "twelve sandwiches and a cake");
    modFile::BackupThisFile(runs.first->program);
    runs.StartAgain("The proposal Tom / Lee has changes from ", Answer::Yes);
    EXPECT_EQ(runs.Text(2), "Tom / Lee");
    EXPECT_EQ(runs.Text(10), "twelve sandwiches and a cake");
    EXPECT_EQ(runs.program.document.ClientCaption, "Proposal for Tom / Lee");
    EXPECT_FALSE(runs.program.document.FileExists);
    runs.again.questions.Expect("Action Cancelled. File Name cannot include any of ");
    EXPECT_EQ(modFile::SaveEventFile(runs.program), modFile::SaveResult::NotSaved);
}

TEST(Recovery, AProposalWithoutAClientsNameIsOfferedAgainAfterASecondKill) {
    Runs runs;
    runs.Fill(10, "twelve sandwiches and a cake");
    modFile::BackupThisFile(runs.first->program);
    runs.StartAgain("The proposal without a client's name has changes from ", Answer::Yes);
    Typist typist(runs.program);
    typist.Click(PageId::frmP1, 11);
    typist.Type("and a second cake");
    modFile::BackupThisFile(runs.program);
    EXPECT_FALSE(runs.Has("Proposals/Backup/(no client's name) (2).hef")) << "it is the same proposal";
    RecordingPlatform third;
    Program program(third.platform);
    third.questions.Expect("The proposal without a client's name has changes from ", Answer::Yes);
    runs.Start(program, third);
    EXPECT_EQ(program.pages[PageId::frmP1].txt[11].Text, "and a second cake");
}

TEST(Recovery, AnEndFromOutsideKeepsAProposalWithoutAClientsName) {
    Runs runs;
    runs.Fill(10, "a cake");
    modClosing::Interrupted(runs.first->program);
    runs.StartAgain("The proposal without a client's name has changes from ", Answer::Yes);
    EXPECT_EQ(runs.Text(10), "a cake");
}

TEST(Recovery, AFirstSaveInTheVeryMomentOfTheEndIsNotMentionedAsUnnamed) {
    Runs runs;
    runs.Fill(10, "twelve sandwiches and a cake");
    modFile::BackupThisFile(runs.first->program);
    runs.Fill(2, "Ann");
    runs.Save("Ann.hef");
    const std::string bytes = runs.first->folder.Read("Proposals/Ann.hef");
    // The same once more, but the marker stays as it stood when the bytes were written.
    runs.first->folder.Write("Proposals/Backup/(no client's name).hef", "older");
    Program& program = runs.first->program;
    program.recovery.Told =
        UnsavedWork{runs.first->folder / "before the share moved/", "", "(no client's name).hef", {}, {}};
    modRecovery::TellOfSave(program, bytes);
    runs.StartAgain("", Answer::No);
    EXPECT_TRUE(runs.again.questions.Shown.empty());
}

TEST(Recovery, NoLeavesTheBackupWhereItIsAndAsksOnce) {
    Runs runs;
    runs.Fill(2, "Ann");
    runs.Fill(10, "twelve sandwiches and a cake");
    modFile::BackupThisFile(runs.first->program);
    const std::string backup = runs.first->folder.Read("Proposals/Backup/Ann.hef");
    runs.StartAgain("The proposal Ann has changes from ", Answer::No);
    EXPECT_EQ(runs.Text(2), "");
    EXPECT_EQ(runs.first->folder.Read("Proposals/Backup/Ann.hef"), backup);
    RecordingPlatform third;
    Program program(third.platform);
    runs.Start(program, third);
    EXPECT_TRUE(third.questions.Shown.empty());
}

TEST(Recovery, AnEndFromOutsideOverTheQuestionHasItAskedAgain) {
    Runs runs;
    runs.Fill(2, "Ann");
    runs.Fill(10, "twelve sandwiches and a cake");
    modFile::BackupThisFile(runs.first->program);
    bool asked = false;
    runs.Start(runs.program, runs.again, [&] {
        asked = true;
        modClosing::Interrupted(runs.program);
    });
    ASSERT_TRUE(asked);
    RecordingPlatform third;
    Program program(third.platform);
    third.questions.Expect("The proposal Ann has changes from ", Answer::Yes);
    runs.Start(program, third);
    EXPECT_EQ(program.pages[PageId::frmP1].txt[10].Text, "twelve sandwiches and a cake");
}

TEST(Recovery, ARunThatIsKilledOverTheQuestionHasItAskedAgain) {
    Runs runs;
    runs.Fill(2, "Ann");
    runs.Fill(10, "twelve sandwiches and a cake");
    modFile::BackupThisFile(runs.first->program);
    std::string marker; // all that such a run leaves
    runs.Start(runs.program, runs.again, [&] { marker = runs.first->folder.Read("Running.txt"); });
    runs.first->folder.Write("Running.txt", marker);
    RecordingPlatform third;
    Program program(third.platform);
    third.questions.Expect("The proposal Ann has changes from ", Answer::Yes);
    runs.Start(program, third);
    EXPECT_EQ(program.pages[PageId::frmP1].txt[10].Text, "twelve sandwiches and a cake");
}

TEST(Recovery, AskedAgainWhenTheRunThatBroughtThemBackIsKilledToo) {
    Runs runs;
    runs.Fill(2, "Ann");
    modFile::BackupThisFile(runs.first->program);
    runs.StartAgain("The proposal Ann has changes from ", Answer::Yes);
    RecordingPlatform third;
    Program program(third.platform);
    third.questions.Expect("The proposal Ann has changes from ", Answer::No);
    runs.Start(program, third);
}

TEST(Recovery, ABackupThatEqualsItsProposalIsNotMentioned) {
    Runs runs;
    runs.Fill(2, "Ann");
    runs.Save("Ann.hef");
    modFile::BackupThisFile(runs.first->program);
    runs.StartAgain("", Answer::No);
    EXPECT_TRUE(runs.again.questions.Shown.empty());
    modClosing::MDIForm_Unload(runs.program);
    EXPECT_FALSE(runs.Has("Running.txt"));
}

TEST(Recovery, NothingIsSaidAfterASaveACleanEndOrANewProposal) {
    {
        Runs saved;
        saved.Fill(2, "Ann");
        modFile::BackupThisFile(saved.first->program);
        saved.Save("Ann.hef");
        saved.first->folder.Write("Proposals/Backup/Ann.hef", "some other state");
        saved.StartAgain("", Answer::No);
        EXPECT_TRUE(saved.again.questions.Shown.empty());
    }
    {
        Runs closed;
        closed.Fill(2, "Ann");
        modFile::BackupThisFile(closed.first->program);
        closed.first->surroundings.questions.Expect("The file has been changed.", Answer::No);
        modClosing::mnuFileExit_Click(closed.first->program);
        EXPECT_FALSE(closed.Has("Running.txt"));
        closed.StartAgain("", Answer::No);
        EXPECT_TRUE(closed.again.questions.Shown.empty());
    }
    {
        Runs renewed;
        renewed.Fill(2, "Ann");
        modFile::BackupThisFile(renewed.first->program);
        renewed.first->surroundings.questions.Expect("Some text has been changed.", Answer::No);
        modProposal::mnuFileNew_Click(renewed.first->program);
        renewed.StartAgain("", Answer::No);
        EXPECT_TRUE(renewed.again.questions.Shown.empty());
    }
}

TEST(Recovery, ThePropertyFileComesBackWithTheText) {
    Runs runs;
    runs.Fill(2, "Ann");
    runs.first->program.format.PropertyLines = {"frmP1.lbl(3).Left=900"};
    modFile::BackupThisFile(runs.first->program);
    runs.StartAgain("The proposal Ann has changes from ", Answer::Yes);
    EXPECT_EQ(runs.program.format.PropertyLines, std::vector<std::string>{"frmP1.lbl(3).Left=900"});
    EXPECT_TRUE(modFile::PropertiesChanged(runs.program));
}

TEST(Recovery, AMarkerOfGarbageAndABackupThatHasGoneCostNothing) {
    for (const std::string& marker :
         {std::string("x"), std::string("\0\0\r\n\0", 5), std::string(100000, 'y'),
          std::string("/none/\r\nAnn.hef\r\nAnn.hef\r\n")}) {
        Runs runs;
        runs.first->folder.Write("Running.txt", marker);
        runs.StartAgain("", Answer::No);
        EXPECT_TRUE(runs.again.questions.Shown.empty());
        EXPECT_TRUE(runs.program.main.Loaded);
    }
}

TEST(Recovery, AMarkerThatNamesNoBackupOffersNone) {
    Runs runs;
    runs.first->folder.Write("Proposals/Backup/.hef", "a file without a name");
    runs.first->folder.Write("Running.txt",
                             runs.first->folder / "Proposals/" + "\r\nAnn.hef\r\n.hef\r\n-\r\n-\r\n");
    runs.StartAgain("", Answer::No);
    EXPECT_TRUE(runs.again.questions.Shown.empty());
}

TEST(Recovery, ABackupThatCannotBeReadIsToldAndStays) {
    Runs runs;
    runs.Fill(2, "Ann");
    modFile::BackupThisFile(runs.first->program);
    fs::remove(runs.first->folder / "Proposals/Backup/Ann.hef");
    fs::create_directory(runs.first->folder / "Proposals/Backup/Ann.hef");
    runs.StartAgain("", Answer::No);
    EXPECT_TRUE(runs.program.main.Loaded);
}

TEST(Recovery, ASecondInstanceTouchesNoMarker) {
    Runs runs;
    runs.Fill(2, "Ann");
    modFile::BackupThisFile(runs.first->program);
    const std::string marker = runs.first->folder.Read("Running.txt");
    runs.again.instance.Answer = SingleInstance::Result::Taken;
    runs.again.questions.Expect("Another instance of this application is already running.");
    runs.program.folders.InstallFolder = runs.first->folder.Path();
    EXPECT_EQ(modStart::Main(runs.program), modStart::StartResult::Ended);
    EXPECT_EQ(runs.first->folder.Read("Running.txt"), marker);
}

TEST(Recovery, AProposalThatWasSavedInTheVeryMomentOfTheEndIsNotMentioned) {
    Runs runs;
    runs.Fill(2, "Ann");
    runs.Save("Ann.hef");
    runs.Fill(3, "12 Elm Street");
    modFile::BackupThisFile(runs.first->program);
    runs.Fill(3, ", second floor");
    const std::string before = runs.first->folder.Read("Running.txt");
    // The file is written, and the run ends before anything else is.
    runs.first->surroundings.questions.Expect("File was saved as Ann.hef");
    ASSERT_EQ(modFile::SaveEventFile(runs.first->program), modFile::SaveResult::Saved);
    const std::string saved = runs.first->folder.Read("Proposals/Ann.hef");
    const files::Seen seen = files::SeenIn(saved);
    const auto telling = [&](const std::string& saving) {
        std::string marker = before;
        const std::size_t none = marker.find("\r\n-\r\n");
        EXPECT_NE(none, std::string::npos) << marker;
        return marker.replace(none, 5, "\r\n" + saving + "\r\n");
    };
    runs.first->folder.Write("Running.txt",
                             telling(std::to_string(seen.Length) + " " + std::to_string(seen.Sum)));
    runs.StartAgain("", Answer::No);
    EXPECT_TRUE(runs.again.questions.Shown.empty());
    // Had the save not come through, the backup would be offered.
    runs.first->folder.Write("Running.txt", telling("20630 1"));
    RecordingPlatform third;
    Program program(third.platform);
    third.questions.Expect("The proposal Ann has changes from ", Answer::No);
    runs.Start(program, third);
}

TEST(Recovery, AMarkerThatCannotBeWrittenIsNoneAndIsNotTakenAwayEither) {
    RunningProgram run;
    modRecovery::TakeMarkerAway(run.program);
    EXPECT_FALSE(run.program.recovery.Marked);
    EXPECT_FALSE(run.folder.Has("Running.txt"));
    {
        const FailingDisk disk{{FailingDisk::Call::Open, 1, ENOSPC, FailingDisk::kForever}};
        modRecovery::SetMarker(run.program);
    }
    EXPECT_FALSE(run.program.recovery.Marked);
    modRecovery::SetMarker(run.program);
    EXPECT_TRUE(run.program.recovery.Marked);
    EXPECT_TRUE(run.folder.Has("Running.txt"));
}

TEST(Recovery, ARunThatIsClosingAlreadyKeepsNothingTwice) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(PageId::frmP1, 2);
    typist.Type("Ann");
    run.program.main.Closing = true;
    modClosing::KeepUnsaved(run.program);
    EXPECT_FALSE(run.folder.Has("Proposals/Backup/Ann.hef"));
    run.program.main.Closing = false;
    modClosing::KeepUnsaved(run.program);
    EXPECT_TRUE(run.folder.Has("Proposals/Backup/Ann.hef"));
}

TEST(Recovery, ChangesOfAProposalInAnotherFolderComeBackBesideItsFile) {
    Runs runs;
    runs.Fill(2, "Ann");
    runs.first->folder.MakeFolder("Elsewhere");
    runs.first->program.document.FilePath = runs.first->folder / "Elsewhere/";
    runs.Save("Ann.hef");
    ASSERT_TRUE(runs.Has("Elsewhere/Ann.hef"));
    runs.Fill(10, "twelve sandwiches and a cake");
    modFile::BackupThisFile(runs.first->program);
    runs.StartAgain("The program did not close properly.", Answer::Yes);
    EXPECT_EQ(runs.Text(10), "twelve sandwiches and a cake");
    const DocumentState& document = runs.program.document;
    EXPECT_EQ(document.FilePath, runs.first->folder / "Elsewhere/");
    EXPECT_TRUE(document.FileExists);
    EXPECT_EQ(document.SavedTextBuf[PageId::frmP1][2], "Ann");
    EXPECT_EQ(document.SavedTextBuf[PageId::frmP1][10], "");
    runs.again.questions.Expect("File was saved as Ann.hef");
    EXPECT_EQ(modFile::SaveEventFile(runs.program), modFile::SaveResult::Saved);
    EXPECT_FALSE(runs.Has("Proposals/Ann.hef"));
}

TEST(Recovery, ARunThatHasTakenItsMarkerAwayTellsOfNothingAnyMore) {
    Runs runs;
    runs.Fill(2, "Ann");
    modFile::BackupThisFile(runs.first->program);
    ASSERT_TRUE(runs.first->program.recovery.Told.has_value());
    modRecovery::TakeMarkerAway(runs.first->program);
    EXPECT_FALSE(runs.first->program.recovery.Told.has_value());
    modRecovery::TellOfSave(runs.first->program, "bytes");
    runs.StartAgain("", Answer::No);
    EXPECT_TRUE(runs.again.questions.Shown.empty());
}

TEST(Recovery, AChangeThatWasTakenBackBeforeAnEndFromOutsideIsNotMentioned) {
    Runs runs;
    runs.Fill(2, "Ann");
    runs.Save("Ann.hef");
    runs.Fill(10, "ab");
    modFile::BackupThisFile(runs.first->program);
    Typist typist(runs.first->program);
    typist.Press(keys::kBackspace);
    typist.Press(keys::kBackspace);
    ASSERT_FALSE(modProposal::SomethingChanged(runs.first->program));
    modClosing::Interrupted(runs.first->program);
    runs.StartAgain("", Answer::No);
    EXPECT_TRUE(runs.again.questions.Shown.empty());
}

TEST(Recovery, WordsTypedOnToALabelComeBackAfterAnEndFromOutside) {
    Runs runs;
    Program& program = runs.first->program;
    runs.Fill(2, "Ann");
    runs.Save("Ann.hef");
    modDesigner::lbl_MouseDown(program, PageId::frmP1, 9, modDesigner::kLeftButton, 0, 0);
    modDesigner::lbl_MouseUp(program, PageId::frmP1, 9);
    person::Choose(program, CommandId::mnuEditLabelProps);
    auto& window = dynamic_cast<frmLabelProps&>(*modWindows::Find(program, "frmLabelProps"));
    window.txtCaption_Change(program, "Day of the feast");
    modClosing::Interrupted(program);
    runs.StartAgain("The proposal Ann has changes from ", Answer::Yes);
    EXPECT_EQ(runs.program.pages[PageId::frmP1].lbl[9].Caption, "Day of the feast");
}

} // namespace
