#include "base/dates.h"
#include "base/files.h"
#include "pages/logo.h"
#include "program/windows.h"
#include "proposal/backup.h"
#include "proposal/frm_file.h"
#include "proposal/lifecycle.h"
#include "proposal/property_file.h"
#include "proposal/proposal_save.h"
#include "support/person.h"
#include "support/running_program.h"
#include "support/typist.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

namespace {

const ScriptedQuestions::Box kDeleteQuestion{"Are you sure you want to delete this file?", Buttons::YesNo,
                                             "Preparing to Delete File."};

struct Choosing : RunningProgram {
    Choosing() {
        folder.Write("Proposals/Jane Roe.hef", ReadTestData("jane_roe/Jane Roe.hef"));
        folder.Write("Proposals/Ann.hef", ReadTestData("jane_roe/Jane Roe.hef"));
        folder.Write("Proposals/notes.txt", "x");
        folder.Write("Proposals/Old.hwf", ReadTestData("jane_roe/Jane Roe.hef"));
        folder.MakeFolder("Proposals/2008");
    }
    frmFile& Show() {
        modProposal::mnuFileOpenEvent_Click(program);
        return dynamic_cast<frmFile&>(*modWindows::Find(program, "frmFile"));
    }
    frmFile& ShowToDelete() {
        program.document.DeleteMode = true;
        return dynamic_cast<frmFile&>(modWindows::Show(program, std::make_unique<frmFile>()));
    }
    static int At(const std::vector<std::string>& items, std::string_view name) {
        const auto found = std::find(items.begin(), items.end(), name);
        return found == items.end() ? -1 : static_cast<int>(found - items.begin());
    }
    void Select(frmFile& window, std::string_view name) {
        window.FileList1_Click(program, At(window.FileList1.Items, name));
    }
    void Enter(frmFile& window, std::string_view name) {
        window.Dir1_Change(program, At(window.Dir1.Items, name));
    }
    [[nodiscard]] std::string Data() const { return folder / "Proposals/"; }
};

TEST(Chooser, OpensOnTheDataFolderWithItsProposals) {
    Choosing run;
    const frmFile& window = run.Show();
    EXPECT_EQ(window.Caption, "Opening Proposal File");
    EXPECT_EQ(window.Mode(), Modality::Modal);
    EXPECT_EQ(window.Folder, run.Data());
    EXPECT_EQ(window.FileList1.Items, (std::vector<std::string>{"Ann.hef", "Jane Roe.hef"}));
    EXPECT_EQ(window.Dir1.Items, (std::vector<std::string>{"..", "2008", "Backup"}));
    EXPECT_EQ(window.Drive1.Items.front(), "/");
    EXPECT_EQ(window.Drive1.Items.at(1), run.folder / "Home/");
    EXPECT_EQ(window.lblHelp.Caption,
              "Double-Click on the Drive or Folder category to find the file you wish to open.");
    EXPECT_EQ(window.cmdOpenBack.Caption, "Return to List");
    EXPECT_EQ(window.chkProp.Caption, "Ignore Associated Properties");
    EXPECT_TRUE(window.chkProp.Visible);
    EXPECT_FALSE(window.picFileOpen);
    EXPECT_FALSE(run.program.document.IgnoreProperties);
}

TEST(Chooser, TakesUpAProposalThatWasKeptWithoutAClientsName) {
    Choosing run;
    Typist typist(run.program);
    typist.Click(PageId::frmP1, 10);
    typist.Type("twelve sandwiches");
    run.folder.Write("Proposals/(no client's name).hxt", "notes");
    modFile::BackupThisFile(run.program);
    run.surroundings.questions.Expect("Some text has been changed.", Answer::No);
    frmFile& window = run.Show();
    run.Enter(window, "Backup");
    run.Select(window, "(no client's name).hef");
    window.cmdOpenOK_Click(run.program);
    const DocumentState& document = run.program.document;
    EXPECT_EQ(run.TextOf(PageId::frmP1, 10), "twelve sandwiches");
    EXPECT_EQ(document.FileName, "");
    EXPECT_FALSE(document.FileExists);
    EXPECT_FALSE(document.FromBackup);
    EXPECT_EQ(document.SavedFile, files::Seen{}) << "it has no file of its own";
    EXPECT_EQ(document.FilePath, run.Data());
    EXPECT_EQ(run.Main().lblDir.Caption, "Current Folder = " + run.Data());
    EXPECT_EQ(run.Main().Caption, "Quillbrook");
    EXPECT_EQ(run.Main().imgFootNotes.Picture, 0) << "another's footnotes lie under that name";
    EXPECT_FALSE(modFile::PropertiesChanged(run.program));
    EXPECT_TRUE(modProposal::SomethingChanged(run.program));
    typist.Click(PageId::frmP1, 2);
    typist.Type("Zed");
    EXPECT_EQ(document.FileName, "Zed.hef");
    run.surroundings.questions.Expect("File was saved as Zed.hef");
    ASSERT_EQ(modFile::SaveEventFile(run.program), modFile::SaveResult::Saved);
    EXPECT_FALSE(run.folder.Has("Proposals/(no client's name).hef"));
    EXPECT_FALSE(run.folder.Has("Proposals/Backup/(no client's name).hef"));
}

TEST(Chooser, NamesOneThatNoFileCouldNameAfterItsClient) {
    Choosing run;
    Typist typist(run.program);
    typist.Click(PageId::frmP1, 2);
    typist.Type("Tom / Lee");
    modFile::BackupThisFile(run.program);
    run.surroundings.questions.Expect("Some text has been changed.", Answer::No);
    frmFile& window = run.Show();
    run.Enter(window, "Backup");
    run.Select(window, "(no client's name).hef");
    window.cmdOpenOK_Click(run.program);
    EXPECT_EQ(run.program.document.FileName, "Tom / Lee.hef");
    EXPECT_EQ(run.program.document.ClientCaption, "Proposal for Tom / Lee");
    EXPECT_EQ(run.Label(PageId::frmP1, 33).Caption, "Proposal for Tom / Lee");
}

TEST(Chooser, TheLayoutKeptWithAProposalWithoutANameIsUnsavedToo) {
    Choosing run;
    run.folder.Write("Proposals/Backup/(no client's name).hef", ReadTestData("jane_roe/Jane Roe.hef"));
    run.folder.Write("Proposals/Backup/(no client's name).hpf", "frmP1.txt(10).FontBold=True\r\n");
    frmFile& window = run.Show();
    run.Enter(window, "Backup");
    run.Select(window, "(no client's name).hef");
    window.cmdOpenOK_Click(run.program);
    EXPECT_TRUE(run.Area(PageId::frmP1, 10).FontBold);
    EXPECT_TRUE(modFile::PropertiesChanged(run.program));
}

TEST(Chooser, ADriveIsEveryVolumeThatIsMounted) {
    Choosing run;
    run.folder.MakeFolder("mnt/Stick");
    run.folder.MakeFolder("mnt/Disk");
    run.folder.Write("mnt/Stick/Far.hef", ReadTestData("jane_roe/Jane Roe.hef"));
    run.program.folders.Drives.MountPlaces = {run.folder / "mnt"};
    frmFile& window = run.Show();
    EXPECT_EQ(window.Drive1.Items,
              (std::vector<std::string>{"/", run.folder / "Home/", run.folder / "mnt/Disk/",
                                        run.folder / "mnt/Stick/"}));
    EXPECT_EQ(window.Drive1.ListIndex, 0) << "the proposals lie on none of them";
    window.Drive1_Change(run.program, 3);
    EXPECT_EQ(window.Folder, run.folder / "mnt/Stick/");
    EXPECT_EQ(window.Drive1.ListIndex, 3);
    EXPECT_EQ(window.FileList1.Items, std::vector<std::string>{"Far.hef"});
}

TEST(Chooser, AFileOfTheSameNameInAnotherFolderIsNotChosen) {
    Choosing run;
    run.folder.Write("Proposals/2008/Ann.hef", ReadTestData("jane_roe/Jane Roe.hef"));
    frmFile& window = run.Show();
    run.Select(window, "Ann.hef");
    run.Enter(window, "2008");
    EXPECT_EQ(window.FileList1.Items, std::vector<std::string>{"Ann.hef"});
    EXPECT_FALSE(window.picFileOpen);
    EXPECT_EQ(window.FileList1.ListIndex, -1);
}

TEST(Chooser, AListOfTermsThatIsChosenStaysInUseWhateverIsOpenedNext) {
    Choosing run;
    run.folder.Write("Proposals/Mine.fut", "Chair covers\r\n");
    int read = 0;
    run.program.hooks.ReadFrequentlyUsedTerms = [&](Program&) { ++read; };
    run.program.document.FileFilter = "*.fut";
    auto& window = dynamic_cast<frmFile&>(modWindows::Show(run.program, std::make_unique<frmFile>()));
    run.Select(window, "Mine.fut");
    window.cmdOpenOK_Click(run.program);
    modWindows::Sweep(run.program);
    EXPECT_EQ(modWindows::Find(run.program, "frmFile"), nullptr);
    EXPECT_EQ(run.program.run.FUTFileName, "Mine.fut");
    EXPECT_EQ(read, 1);
    frmFile& opening = run.Show();
    run.Select(opening, "Ann.hef");
    opening.cmdOpenOK_Click(run.program);
    EXPECT_EQ(run.program.run.FUTFileName, "Mine.fut");
}

struct ChoosingAFormat : Choosing {
    /// Opens a format of those lines from the chooser.
    void OpenFormat(const std::string& name, const std::string& lines) {
        folder.Write("Proposals/" + name, lines);
        program.document.FileFilter = "*.fmt";
        auto& window = dynamic_cast<frmFile&>(modWindows::Show(program, std::make_unique<frmFile>()));
        Select(window, name);
        window.cmdOpenOK_Click(program);
    }
};

TEST(Chooser, AFormatTakesTheWordsOfTheOneBeforeAway) {
    ChoosingAFormat run;
    run.program.format.OverwriteFormatText = false; // a format's texts are protected
    run.OpenFormat("Fixed.fmt", "frmP2.txt(3).Text=Chair covers\r\n");
    modWindows::Sweep(run.program);
    ASSERT_EQ(run.TextOf(PageId::frmP2, 3), "Chair covers");
    person::TurnTo(run.program, 1);
    run.OpenFormat("Other.fmt", "frmP2.txt(4).Text=Lights\r\n");
    EXPECT_EQ(modWindows::Find(run.program, "frmFile"), nullptr);
    EXPECT_EQ(run.TextOf(PageId::frmP2, 3), "");
    EXPECT_EQ(run.TextOf(PageId::frmP2, 4), "Lights");
    EXPECT_EQ(run.program.main.Focus, (FieldRef{PageId::frmP1, FieldKind::txt, 0}));
}

TEST(Chooser, AFormatThatIsRefusedLeavesTheDefaultOneSwitchedOn) {
    ChoosingAFormat run;
    run.program.settings.LoadDefaultFormat = true;
    run.program.format.EditingFormat = true;
    run.surroundings.questions.Expect("Proceeding with this action will end the editing session", Answer::No);
    run.surroundings.questions.Expect("Resume Editing.");
    run.OpenFormat("Mine.fmt", "");
    EXPECT_TRUE(run.program.settings.LoadDefaultFormat);
    EXPECT_FALSE(run.program.format.FormatOpen);
    EXPECT_NE(modWindows::Find(run.program, "frmFile"), nullptr);
}

TEST(Chooser, AnOpenedProposalHasTheKeyboardInItsFirstField) {
    Choosing run;
    frmFile& window = run.Show();
    run.Select(window, "Jane Roe.hef");
    person::TurnTo(run.program, 2);
    window.cmdOpenOK_Click(run.program);
    EXPECT_EQ(run.program.main.Focus, (FieldRef{PageId::frmP1, FieldKind::txt, 0}));
}

TEST(Chooser, ATextThatIsChosenIsHandedOnByItsPathAndTheWindowCloses) {
    Choosing run;
    std::string read;
    run.program.hooks.ReadTextFile = [&](Program&, const std::string& path) { read = path; };
    modProposal::mnuFileOpenTextFile_Click(run.program);
    auto& window = dynamic_cast<frmFile&>(*modWindows::Find(run.program, "frmFile"));
    run.Select(window, "notes.txt");
    window.cmdOpenOK_Click(run.program);
    EXPECT_EQ(read, run.folder / "Proposals/notes.txt");
    EXPECT_EQ(modWindows::Find(run.program, "frmFile"), nullptr);
}

TEST(Chooser, ALogoLargerThanItsMostIsToldWithItsSize) {
    Choosing run;
    run.folder.Write("Proposals/large.png", "x");
    run.folder.Write("Proposals/small.png", "x");
    run.surroundings.pictures.Known[run.folder / "Proposals/large.png"] = {21600, 4320};
    run.surroundings.pictures.Known[run.folder / "Proposals/small.png"] = {10800, 4320};
    for (const char* name : {"large.png", "small.png"}) {
        run.program.document.FileFilter = kPictureFiles;
        auto& window = dynamic_cast<frmFile&>(modWindows::Show(run.program, std::make_unique<frmFile>()));
        run.Select(window, name);
        if (name == std::string("large.png")) {
            run.surroundings.questions.ExpectBox(
                {"The picture is 15.0 by 3.0 inches large. It is shown and printed scaled down to 7.5 by 3.0 "
                 "inches at most.",
                 Buttons::Ok, ""},
                Answer::Ok);
        }
        window.cmdOpenOK_Click(run.program);
        modWindows::Sweep(run.program);
        EXPECT_EQ(modWindows::Find(run.program, "frmFile"), nullptr);
        EXPECT_EQ(run.program.main.Notice, modLogo::kNotInTheProposal);
        EXPECT_EQ(run.program.format.LogoPath, run.folder / ("Proposals/" + std::string(name)));
    }
}

TEST(Chooser, HidesThePropertiesBoxWhileAFormatIsEdited) {
    Choosing run;
    run.program.format.EditingFormat = true;
    EXPECT_FALSE(run.Show().chkProp.Visible);
}

TEST(Chooser, OffersToIgnorePropertiesOnlyWhereThereAreAny) {
    Choosing run;
    run.folder.Write("Proposals/Jane Roe.HPF", "a line\r\n");
    frmFile& window = run.Show();
    run.Select(window, "Ann.hef");
    EXPECT_FALSE(window.chkProp.Visible);
    run.Select(window, "Jane Roe.hef");
    EXPECT_TRUE(window.chkProp.Visible);
    run.Select(window, "Ann.hef");
    window.cmdOpenBack_Click(run.program);
    EXPECT_TRUE(window.chkProp.Visible);
    window.cmdOpenCancel_Click(run.program);
    modWindows::Sweep(run.program);

    run.folder.Write("Proposals/notes.hpf", "not the text's\r\n");
    modProposal::mnuFileOpenTextFile_Click(run.program);
    auto& texts = dynamic_cast<frmFile&>(*modWindows::Find(run.program, "frmFile"));
    EXPECT_FALSE(texts.chkProp.Visible);
    run.Select(texts, "notes.txt");
    EXPECT_FALSE(texts.chkProp.Visible);
    texts.cmdOpenCancel_Click(run.program);
    modWindows::Sweep(run.program);

    frmFile& deleting = run.ShowToDelete();
    run.Select(deleting, "Jane Roe.hef");
    EXPECT_FALSE(deleting.chkProp.Visible) << "they go with their proposal";
}

TEST(Chooser, AClickShowsThePanelAndReturnToListHidesIt) {
    Choosing run;
    frmFile& window = run.Show();
    run.Select(window, "Jane Roe.hef");
    EXPECT_TRUE(window.picFileOpen);
    EXPECT_EQ(window.lblOpenFileName.Caption, "Jane Roe.hef");
    EXPECT_EQ(window.Caption, "Opening Proposal File - Event File");
    run.Select(window, "Ann.hef"); // the kind is told once, however often one chooses
    EXPECT_EQ(window.Caption, "Opening Proposal File - Event File");
    window.cmdOpenBack_Click(run.program);
    EXPECT_EQ(window.Caption, "Opening Proposal File");
    EXPECT_FALSE(window.picFileOpen);
    EXPECT_EQ(window.FileList1.ListIndex, -1);
    window.cmdOpenOK_Click(run.program); // nothing is chosen
    EXPECT_FALSE(window.Closing);
    window.FileList1_Click(run.program, 17);
    window.FileList1_Click(run.program, -1);
    EXPECT_FALSE(window.picFileOpen);
}

TEST(Chooser, OkReadsTheProposalAndCloses) {
    Choosing run;
    frmFile& window = run.Show();
    run.Select(window, "Jane Roe.hef");
    window.cmdOpenOK_Click(run.program);
    EXPECT_TRUE(window.Closing);
    EXPECT_EQ(run.program.document.FileName, "Jane Roe.hef");
    EXPECT_TRUE(run.program.document.FileExists);
    EXPECT_EQ(run.TextOf(PageId::frmP1, 2), "Jane Roe");
    EXPECT_EQ(run.TextOf(PageId::frmP6, 3), "1,504.37");
    EXPECT_EQ(run.Main().lblDir.Caption, "Current Folder = " + run.Data());
    EXPECT_TRUE(run.Main()[CommandId::mnuFileDelete].Enabled);
    EXPECT_FALSE(modProposal::SomethingChanged(run.program));
}

TEST(Chooser, AnOpenedProposalShowsItsFirstPage) {
    Choosing run;
    run.program.hooks.UpdatePageButtons(run.program, IndexOf(PageId::frmP4));
    frmFile& window = run.Show();
    run.Select(window, "Jane Roe.hef");
    window.cmdOpenOK_Click(run.program);
    EXPECT_EQ(run.program.main.PageInFront, PageId::frmP1);
    EXPECT_TRUE(run.program.pages[PageId::frmP1].Visible);
}

TEST(Chooser, AnOldExtensionCountsAsAProposal) {
    Choosing run;
    run.program.document.FileFilter = "*.hwf";
    frmFile& window = run.Show();
    run.Select(window, "Old.hwf");
    EXPECT_EQ(window.Caption, "Opening Proposal File - Event File");
    window.cmdOpenOK_Click(run.program);
    EXPECT_EQ(run.program.document.BaseName, "Old");
    EXPECT_EQ(run.program.document.FileFilter, "*.hef");
}

TEST(Chooser, AFileOfAnotherKindOpensNothing) {
    Choosing run;
    run.program.document.FileFilter = "*.txt";
    frmFile& window = run.Show();
    run.Select(window, "notes.txt");
    EXPECT_EQ(window.lblOpenFileName.Caption, "notes.txt");
    EXPECT_EQ(window.Caption, "Opening Proposal File");
    window.cmdOpenOK_Click(run.program);
    EXPECT_EQ(run.program.document.FileName, "");
}

TEST(Chooser, PropertiesAreReadUnlessTheyAreToBeIgnored) {
    Choosing run;
    run.folder.Write("Proposals/Jane Roe.hpf", "a line\r\n");
    int parsed = 0;
    run.program.hooks.ParsePropertyFile = [&](Program&) { ++parsed; };
    frmFile& reading = run.Show();
    run.Select(reading, "Jane Roe.hef");
    reading.cmdOpenOK_Click(run.program);
    modWindows::Sweep(run.program);
    EXPECT_EQ(parsed, 1);
    frmFile& ignoring = run.Show();
    ignoring.chkProp_Click(run.program);
    EXPECT_TRUE(run.program.document.IgnoreProperties);
    run.Select(ignoring, "Jane Roe.hef");
    ignoring.cmdOpenOK_Click(run.program);
    modWindows::Sweep(run.program);
    EXPECT_EQ(parsed, 1);
    EXPECT_FALSE(run.program.document.IgnoreProperties) << "for the file that was chosen here alone";
    EXPECT_TRUE(run.program.format.PropertyLines.empty());
    static_cast<void>(run.Show());
    EXPECT_FALSE(run.program.document.IgnoreProperties);
}

TEST(Chooser, WalkingFoldersMovesTheWorkingFolderAndCancelPutsItBack) {
    Choosing run;
    frmFile& window = run.Show();
    run.Enter(window, "2008");
    EXPECT_EQ(window.Folder, run.folder / "Proposals/2008/");
    EXPECT_EQ(run.program.document.FilePath, run.folder / "Proposals/2008/");
    EXPECT_TRUE(window.FileList1.Items.empty());
    run.Enter(window, "..");
    run.Enter(window, "..");
    EXPECT_EQ(window.Folder, run.folder.Path());
    window.Dir1_Change(run.program, 99);
    window.Dir1_Change(run.program, -1);
    window.cmdOpenCancel_Click(run.program);
    EXPECT_TRUE(window.Closing);
    EXPECT_EQ(run.program.document.FilePath, run.Data());
}

TEST(Chooser, EscapePutsTheWorkingFolderBackToo) {
    Choosing run;
    frmFile& window = run.Show();
    run.Enter(window, "2008");
    window.Form_Cancel(run.program);
    EXPECT_EQ(run.program.document.FilePath, run.Data());
}

TEST(Chooser, ADriveLeadsToItsRootAndTheRootHasNothingAbove) {
    Choosing run;
    frmFile& window = run.Show();
    window.Drive1_Change(run.program, 1);
    EXPECT_EQ(window.Folder, run.folder / "Home/");
    EXPECT_EQ(window.Drive1.ListIndex, 1);
    window.Drive1_Change(run.program, 0);
    EXPECT_EQ(window.Folder, "/");
    EXPECT_EQ(Choosing::At(window.Dir1.Items, ".."), -1);
    window.Drive1_Change(run.program, 99);
    EXPECT_EQ(window.Folder, "/");
}

TEST(Chooser, AProposalOpenedElsewhereIsSavedThere) {
    Choosing run;
    run.folder.Write("Proposals/2008/Far.hef", ReadTestData("jane_roe/Jane Roe.hef"));
    frmFile& window = run.Show();
    run.Enter(window, "2008");
    run.Select(window, "Far.hef");
    window.cmdOpenOK_Click(run.program);
    EXPECT_EQ(run.program.document.FilePath, run.folder / "Proposals/2008/");
    EXPECT_EQ(run.Main().lblDir.Caption, "Current Folder = " + run.folder.Path() + "Proposals/2008/");
}

TEST(Chooser, OpensFromTheFolderThatItShowsWhateverAnotherOneHasOpenedMeanwhile) {
    Choosing run;
    run.folder.Write("Proposals/2008/Far.hef", ReadTestData("jane_roe/Jane Roe.hef"));
    frmFile& window = run.Show();
    run.Enter(window, "2008");
    auto& other = dynamic_cast<frmFile&>(modWindows::Show(run.program, std::make_unique<frmFile>()));
    run.Select(other, "Jane Roe.hef");
    other.cmdOpenOK_Click(run.program);
    ASSERT_EQ(run.program.document.FilePath, run.Data());
    run.Select(window, "Far.hef");
    window.cmdOpenOK_Click(run.program);
    EXPECT_EQ(run.program.document.FileName, "Far.hef");
    EXPECT_EQ(run.program.document.FilePath, run.folder / "Proposals/2008/");
}

TEST(Chooser, BeginsWithTheLayoutsReadWhateverAnotherOneWasTold) {
    Choosing run;
    run.Show().chkProp_Click(run.program);
    const Window& other = modWindows::Show(run.program, std::make_unique<frmFile>());
    EXPECT_FALSE(dynamic_cast<const frmFile&>(other).chkProp.Value);
    EXPECT_FALSE(run.program.document.IgnoreProperties);
}

TEST(Chooser, AFolderThatVanishedIsToldAndTheListStays) {
    Choosing run;
    frmFile& window = run.Show();
    std::filesystem::remove(run.folder / "Proposals/2008");
    run.surroundings.questions.Expect("An error occurred in frmFile.");
    run.Enter(window, "2008");
    EXPECT_EQ(window.Folder, run.Data());
    EXPECT_EQ(window.FileList1.Items.size(), 2U);
    EXPECT_EQ(run.program.document.FilePath, run.Data());
}

TEST(Chooser, AMissingDataFolderIsToldAndTheWindowStillWorks) {
    Choosing run;
    std::filesystem::remove_all(run.folder / "Proposals");
    run.surroundings.questions.Expect("An error occurred in frmFile.");
    frmFile& window = run.Show();
    EXPECT_TRUE(window.FileList1.Items.empty());
    window.Drive1_Change(run.program, 1);
    EXPECT_EQ(window.Folder, run.folder / "Home/");
}

TEST(Chooser, AFileThatVanishedCostsNothing) {
    Choosing run;
    Typist typist(run.program);
    typist.Click(PageId::frmP1, 2);
    typist.Type("Bob");
    run.surroundings.questions.Expect("Some text has been changed.", Answer::No);
    frmFile& window = run.Show();
    run.Select(window, "Jane Roe.hef");
    std::filesystem::remove(run.folder / "Proposals/Jane Roe.hef");
    run.surroundings.questions.Expect("An error occurred in OpenEventFile.");
    window.cmdOpenOK_Click(run.program);
    EXPECT_FALSE(window.Closing);
    EXPECT_FALSE(window.picFileOpen);
    EXPECT_EQ(window.FileList1.Items, std::vector<std::string>{"Ann.hef"});
    EXPECT_EQ(run.TextOf(PageId::frmP1, 2), "Bob");
    EXPECT_EQ(run.program.document.FileName, "Bob.hef");
    EXPECT_FALSE(run.program.document.FileExists);
}

TEST(Chooser, AFileThatBecameAFolderCostsNothing) {
    Choosing run;
    frmFile& window = run.Show();
    run.Select(window, "Ann.hef");
    std::filesystem::remove(run.folder / "Proposals/Ann.hef");
    run.folder.MakeFolder("Proposals/Ann.hef");
    run.surroundings.questions.Expect("An error occurred in OpenEventFile.");
    window.cmdOpenOK_Click(run.program);
    EXPECT_FALSE(window.Closing);
    EXPECT_EQ(run.program.document.FileName, "");
}

TEST(Chooser, GoingOnWithAFormatKeepsTheWindowAndTheProposal) {
    Choosing run;
    run.program.format.EditingFormat = true;
    frmFile& window = run.Show();
    run.Select(window, "Ann.hef");
    run.surroundings.questions.Expect("Proceeding with this action will end the editing session", Answer::No);
    run.surroundings.questions.Expect("Resume Editing.");
    window.cmdOpenOK_Click(run.program);
    EXPECT_FALSE(window.Closing);
    EXPECT_FALSE(run.program.document.FileExists);
}

TEST(Chooser, HostileFilesOpenAsProposalsOfBlanks) {
    Choosing run;
    run.folder.Write("Proposals/empty.hef", "");
    run.folder.Write("Proposals/huge.hef", "");
    std::filesystem::resize_file(run.folder / "Proposals/huge.hef", std::uintmax_t{1} << 30U);
    run.surroundings.questions.Expect("The file empty.hef is cut short: it has 0 of 20630 bytes.");
    for (const std::string name : {"empty.hef", "huge.hef"}) {
        frmFile& window = run.Show();
        run.Select(window, name);
        window.cmdOpenOK_Click(run.program);
        modWindows::Sweep(run.program);
        EXPECT_EQ(run.program.document.FileName, name);
        EXPECT_EQ(run.TextOf(PageId::frmP1, 2), "");
        EXPECT_FALSE(modProposal::SomethingChanged(run.program)) << name;
    }
}

TEST(Chooser, ListsNamesOfEveryByteAndOpensThem) {
    Choosing run;
    // An e with an acute accent and a euro sign, as the disk holds them and as the program does.
    run.folder.Write("Proposals/Ren\xC3\xA9 \xE2\x82\xAC.hef", ReadTestData("jane_roe/Jane Roe.hef"));
    frmFile& window = run.Show();
    run.Select(window, "Ren\xE9 \x80.hef");
    window.cmdOpenOK_Click(run.program);
    EXPECT_EQ(run.program.document.BaseName, "Ren\xE9 \x80");
    EXPECT_EQ(run.TextOf(PageId::frmP1, 2), "Jane Roe");
}

TEST(Chooser, InDeleteModeSaysSo) {
    Choosing run;
    const frmFile& window = run.ShowToDelete();
    EXPECT_EQ(window.lblHelp.Caption,
              "Double-Click on the Drive or Folder category to find the file you wish to delete.");
    EXPECT_EQ(window.lblPointOpen.Caption, "Delete");
}

TEST(Chooser, InDeleteModeYesDeletesTheFilesAndKeepsTheWindow) {
    Choosing run;
    for (const std::string extension : {".hpf", ".txt", ".hxt", ".dep"}) {
        run.folder.Write("Proposals/Jane Roe" + extension, "x");
    }
    frmFile& window = run.ShowToDelete();
    run.Select(window, "Jane Roe.hef");
    run.surroundings.questions.ExpectBox(kDeleteQuestion, Answer::No);
    window.cmdOpenOK_Click(run.program);
    EXPECT_TRUE(run.folder.Has("Proposals/Jane Roe.hef"));
    run.surroundings.questions.ExpectBox(kDeleteQuestion, Answer::Yes);
    window.cmdOpenOK_Click(run.program);
    for (const std::string extension : {".hef", ".hpf", ".txt", ".hxt", ".dep"}) {
        EXPECT_FALSE(run.folder.Has("Proposals/Jane Roe" + extension)) << extension;
    }
    EXPECT_EQ(window.FileList1.Items, std::vector<std::string>{"Ann.hef"});
    EXPECT_FALSE(window.picFileOpen);
    EXPECT_EQ(window.Caption, "Delete File...");
    EXPECT_FALSE(window.Closing);
    window.cmdOpenCancel_Click(run.program);
    EXPECT_FALSE(run.program.document.DeleteMode);
    EXPECT_EQ(run.program.document.FileFilter, "*.hef");
}

TEST(Chooser, InDeleteModeTheChosenOneOfTwoNamesThatDifferInCaseGoes) {
    Choosing run;
    run.folder.Write("Proposals/kim.HEF", "upper");
    run.folder.Write("Proposals/kim.hef", "lower");
    run.folder.Write("Proposals/Old.hef", "not old");
    frmFile& window = run.ShowToDelete();
    run.Select(window, "kim.HEF");
    run.surroundings.questions.ExpectBox(kDeleteQuestion, Answer::Yes);
    window.cmdOpenOK_Click(run.program);
    EXPECT_FALSE(run.folder.Has("Proposals/kim.HEF"));
    EXPECT_EQ(run.folder.Read("Proposals/kim.hef"), "lower");
    EXPECT_EQ(run.folder.Read("Proposals/Old.hef"), "not old");
}

TEST(Chooser, InDeleteModeAFileThatVanishedIsTold) {
    Choosing run;
    frmFile& window = run.ShowToDelete();
    run.Select(window, "Ann.hef");
    std::filesystem::remove(run.folder / "Proposals/Ann.hef");
    run.surroundings.questions.ExpectBox(kDeleteQuestion, Answer::Yes);
    run.surroundings.questions.ExpectBox({"An Error occurred trying to delete the file.", Buttons::Ok, ""},
                                         Answer::Ok);
    run.surroundings.questions.Expect("An error occurred in frmFile.");
    window.cmdOpenOK_Click(run.program);
    EXPECT_EQ(window.FileList1.Items, std::vector<std::string>{"Jane Roe.hef"});
}

/// Three proposals whose orders by name, date and size are three different ones.
struct Sorting : Choosing {
    Sorting() {
        std::filesystem::remove(folder / "Proposals/Jane Roe.hef");
        constexpr std::size_t kMega = std::size_t{1024} * 1024;
        Make("Ann.hef", 2048, 10);
        Make("bob.hef", 1, 30);
        Make("Carl.hef", 3 * kMega, 20);
    }
    void Make(const std::string& name, std::size_t size, int minutesAgo) const {
        folder.Write("Proposals/" + name, std::string(size, 'x'));
        std::filesystem::last_write_time(folder / ("Proposals/" + name),
                                         std::filesystem::file_time_type::clock::now() -
                                             std::chrono::minutes(minutesAgo));
    }
    using Names = std::vector<std::string>;
};

TEST(ChooserColumns, TellDateAndSizeOfEveryFile) {
    Sorting run;
    const frmFile& window = run.Show();
    EXPECT_EQ(window.FileList1.Items, (Sorting::Names{"Ann.hef", "bob.hef", "Carl.hef"}));
    EXPECT_EQ(window.FileSizes, (Sorting::Names{"2.0 KB", "1 byte", "3.0 MB"}));
    ASSERT_EQ(window.FileDates.size(), 3U);
    for (std::size_t row = 0; row < 3; ++row) {
        const std::string path = run.folder / ("Proposals/" + window.FileList1.Items[row]);
        EXPECT_EQ(window.FileDates[row], dates::GeneralDate(files::ModifiedSerial(path)));
    }
}

TEST(ChooserColumns, SortNewestAndLargestFirstAndTheOtherWayAgain) {
    Sorting run;
    frmFile& window = run.Show();
    window.FileList1_ColumnClick(run.program, FileColumn::Modified);
    EXPECT_EQ(window.FileList1.Items, (Sorting::Names{"Ann.hef", "Carl.hef", "bob.hef"}));
    window.FileList1_ColumnClick(run.program, FileColumn::Modified);
    EXPECT_EQ(window.FileList1.Items, (Sorting::Names{"bob.hef", "Carl.hef", "Ann.hef"}));
    window.FileList1_ColumnClick(run.program, FileColumn::Size);
    EXPECT_EQ(window.FileList1.Items, (Sorting::Names{"Carl.hef", "Ann.hef", "bob.hef"}));
    EXPECT_EQ(window.FileSizes, (Sorting::Names{"3.0 MB", "2.0 KB", "1 byte"}));
    window.FileList1_ColumnClick(run.program, FileColumn::Name);
    EXPECT_EQ(window.FileList1.Items, (Sorting::Names{"Ann.hef", "bob.hef", "Carl.hef"}));
    window.FileList1_ColumnClick(run.program, FileColumn::Name);
    EXPECT_EQ(window.FileList1.Items, (Sorting::Names{"Carl.hef", "bob.hef", "Ann.hef"}));
}

TEST(ChooserColumns, TheChosenFileStaysChosenInAnotherOrder) {
    Sorting run;
    frmFile& window = run.Show();
    run.Select(window, "bob.hef");
    window.FileList1_ColumnClick(run.program, FileColumn::Modified);
    EXPECT_EQ(window.FileList1.ListIndex, 2);
    EXPECT_TRUE(window.picFileOpen);
    EXPECT_EQ(window.lblOpenFileName.Caption, "bob.hef");
}

TEST(ChooserFilter, LeavesOutNamesWithoutItsCharactersInAnyCase) {
    Sorting run;
    frmFile& window = run.Show();
    window.txtFilter_Change(run.program, "B");
    EXPECT_EQ(window.FileList1.Items, Sorting::Names{"bob.hef"});
    EXPECT_EQ(window.FileSizes, Sorting::Names{"1 byte"});
    EXPECT_EQ(window.FileDates,
              Sorting::Names{dates::GeneralDate(files::ModifiedSerial(run.Data() + "bob.hef"))});
    window.txtFilter_Change(run.program, "zz");
    EXPECT_TRUE(window.FileList1.Items.empty());
    window.txtFilter_Change(run.program, "");
    EXPECT_EQ(window.FileList1.Items.size(), 3U);
}

TEST(ChooserFilter, AFileThatNoLongerShowsIsNoLongerChosen) {
    Sorting run;
    frmFile& window = run.Show();
    run.Select(window, "Ann.hef");
    window.txtFilter_Change(run.program, "a"); // Ann and Carl
    EXPECT_TRUE(window.picFileOpen);
    window.txtFilter_Change(run.program, "carl");
    EXPECT_FALSE(window.picFileOpen);
    EXPECT_EQ(window.FileList1.ListIndex, -1);
    window.cmdOpenOK_Click(run.program);
    EXPECT_NE(modWindows::Find(run.program, "frmFile"), nullptr) << "nothing is opened";
}

TEST(ChooserFilter, GoesWithItsFolder) {
    Sorting run;
    frmFile& window = run.Show();
    window.txtFilter_Change(run.program, "bob");
    run.Enter(window, "2008");
    EXPECT_EQ(window.txtFilter.Text, "");
}

TEST(Chooser, RowsThatAreNotThereChooseNothing) {
    Choosing run;
    frmFile& window = run.Show();
    run.Select(window, "Ann.hef");
    const std::string folder = window.Folder;
    for (const std::size_t beyond : {window.Drive1.Items.size(), std::size_t{1000}}) {
        window.Drive1_Change(run.program, static_cast<int>(beyond));
    }
    for (const std::size_t beyond : {window.Dir1.Items.size(), std::size_t{1000}}) {
        window.Dir1_Change(run.program, static_cast<int>(beyond));
    }
    for (const std::size_t beyond : {window.FileList1.Items.size(), std::size_t{1000}}) {
        window.FileList1_Click(run.program, static_cast<int>(beyond));
    }
    window.Drive1_Change(run.program, -1);
    window.Dir1_Change(run.program, -1);
    window.FileList1_Click(run.program, -1);
    EXPECT_EQ(window.Folder, folder);
    EXPECT_EQ(window.FileList1.ListIndex, 0);
    EXPECT_EQ(window.lblOpenFileName.Caption, "Ann.hef");
}

TEST(Chooser, SizesGoOnToTheNextUnitWhenOneOfItIsFull) {
    Choosing run;
    run.folder.Write("Proposals/A.hef", std::string(1023, ' '));
    run.folder.Write("Proposals/B.hef", std::string(1024, ' '));
    run.folder.Write("Proposals/C.hef", std::string(1048576, ' '));
    const frmFile& window = run.Show();
    for (const auto& [name, size] :
         {std::pair("A.hef", "1023 bytes"), std::pair("B.hef", "1.0 KB"), std::pair("C.hef", "1.0 MB")}) {
        EXPECT_EQ(window.FileSizes[static_cast<std::size_t>(Choosing::At(window.FileList1.Items, name))],
                  size);
    }
}

} // namespace
