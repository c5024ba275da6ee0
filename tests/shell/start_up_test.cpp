#include "pages/page_geometry.h"
#include "program/windows.h"
#include "shell/closing.h"
#include "shell/start_up.h"
#include "support/running_program.h"
#include "support/typist.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

struct Starting : RunningProgram {
    Starting() : RunningProgram(Begin::NotStarted) {}
    /// The entry routine, and a click on the splash if it came to that.
    modStart::StartResult Main() {
        const modStart::StartResult result = modStart::Main(program);
        if (result == modStart::StartResult::Running) {
            PassSplash(program);
        }
        return result;
    }
};

const ScriptedQuestions::Box kFontQuestion{
    "The font \"Times New Roman\" is not installed on this computer.\r\n"
    "Some features of this software may not work correctly\r\n"
    "without it. Would you like to try the software anyway?\r\n"
    "\r\n"
    "Please contact us for instructions to install the font.",
    Buttons::YesNo, "Times New Roman font not found."};

TEST(StartUp, ASecondInstanceEndsAtItsMessageAndReadsNoFile) {
    Starting run;
    run.Setting("App First Instance:", "True");
    run.folder.Write("Proposals/Old.hwf", "x");
    run.surroundings.instance.Answer = SingleInstance::Result::Taken;
    run.surroundings.questions.ExpectBox(
        {"Another instance of this application is already running.", Buttons::Ok, ""}, Answer::Ok);
    EXPECT_EQ(run.Main(), modStart::StartResult::Ended);
    EXPECT_EQ(run.surroundings.questions.Manners.back().How, Manner::Came::Unasked);
    EXPECT_EQ(run.surroundings.instance.Asked, std::vector<std::string>{run.folder.Path()});
    EXPECT_TRUE(run.program.settings.Lines.empty());
    EXPECT_FALSE(run.program.main.Loaded);
    EXPECT_TRUE(run.folder.Has("Proposals/Old.hwf"));
    EXPECT_FALSE(run.folder.Has("Proposals/Backup"));
}

TEST(StartUp, TheFirstStartRecommendsTheTutorialAndTheSecondDoesNot) {
    Starting run;
    run.Setting("App First Instance:", "True");
    run.surroundings.questions.ExpectBox(
        {"Although the program is easy to use, some of the features which will\r\n"
         "help you the most can be confusing to understand. For this reason, it\r\n"
         "\r\n"
         "is HIGHLY RECOMMENDED you explore the Quick Start Tutorial under Help.",
         Buttons::Ok, ""},
        Answer::Ok);
    EXPECT_EQ(run.Main(), modStart::StartResult::Running);
    EXPECT_EQ(run.surroundings.questions.Manners.back().How, Manner::Came::Unasked);
    RecordingPlatform again;
    Program second(again.platform);
    second.folders = run.program.folders;
    EXPECT_EQ(modStart::Main(second), modStart::StartResult::Running);
    EXPECT_TRUE(again.questions.Shown.empty());
}

TEST(StartUp, TheFontIsFoundWithoutRegardToCase) {
    Starting run;
    run.surroundings.screen.FontNames = {"Arial", "TIMES new roman"};
    EXPECT_EQ(run.Main(), modStart::StartResult::Running);
}

TEST(StartUp, NoAtTheFontQuestionEndsWithNothingReadAndNothingShown) {
    Starting run;
    run.surroundings.screen.FontNames = {"Arial"};
    run.surroundings.questions.ExpectBox(kFontQuestion, Answer::No);
    EXPECT_EQ(run.Main(), modStart::StartResult::Ended);
    EXPECT_EQ(run.surroundings.questions.Manners.back().How, Manner::Came::Unasked);
    EXPECT_FALSE(run.program.main.Loaded);
    EXPECT_TRUE(run.program.settings.Lines.empty());
}

TEST(StartUp, YesAtTheFontQuestionGoesOn) {
    Starting run;
    run.surroundings.screen.FontNames = {"Arial"};
    run.surroundings.questions.ExpectBox(kFontQuestion, Answer::Yes);
    EXPECT_EQ(run.Main(), modStart::StartResult::Running);
    EXPECT_TRUE(run.program.main.Loaded);
}

TEST(StartUp, EndsInAnEmptyProposalWithTheMainButtonsOn) {
    Starting run;
    ASSERT_EQ(run.Main(), modStart::StartResult::Running);
    const MainWindow& main = run.program.main;
    EXPECT_TRUE(main.cmdPreview.Enabled);
    EXPECT_TRUE(main.cmdReCalc.Enabled);
    EXPECT_TRUE(main.cmdTaxRate.Enabled);
    EXPECT_EQ(main.lblDir.Caption, "Current Folder = " + run.folder.Path() + "Proposals/");
    EXPECT_EQ(main.State, WindowState::Maximised);
    EXPECT_EQ(main.PageInFront, PageId::frmP1);
    EXPECT_EQ(main.Focus, (FieldRef{PageId::frmP1, FieldKind::txt, 0}));
    EXPECT_EQ(run.program.totals.TaxRate, 8.25F);
    EXPECT_EQ(run.program.document.PagesInUse, 6);
    EXPECT_EQ(run.program.document.FileFilter, "*.hef");
    EXPECT_EQ(run.program.document.DocumentKind, "Event");
    EXPECT_EQ(run.program.run.FUTFileName, "Default Terms.fut");
    EXPECT_FALSE(run.program.guards.ResetActive);
    EXPECT_FALSE(run.program.guards.KeepPageContent);
    EXPECT_FALSE(run.program.guards.StartingUp);
    for (const CommandId id :
         {CommandId::mnuFileRestoreFromBackup, CommandId::mnuFileDelete, CommandId::mnuEditTextDeselect,
          CommandId::mnuEditTextMoveDown, CommandId::mnuEditTextMoveUp, CommandId::mnuEditTextPaste,
          CommandId::mnuEditTextUndo, CommandId::mnuAdminConvert, CommandId::mnuAdminPrintAll,
          CommandId::mnuAdminRecalc, CommandId::mnuOptCopyToBusinessAddressBook,
          CommandId::mnuOptCopyToPersonalAddressBook}) {
        EXPECT_FALSE(main[id].Enabled) << static_cast<int>(id);
    }
    for (const PageId page : kLinePages) {
        EXPECT_TRUE(run.program.pages[page].RowFieldsMade);
    }
}

TEST(StartUp, TheLabelsPlacesAreNotedAfterTheFirstReset) {
    Starting run;
    ASSERT_EQ(run.Main(), modStart::StartResult::Running);
    for (const PageId page : kEditedPages) {
        for (int index = 0; index <= geometry::LastLabel(page); ++index) {
            const auto at = static_cast<std::size_t>(index);
            const LabelChangeRecord& kept = run.program.format.PropLabelChanges[page][at];
            EXPECT_EQ(kept.Left, run.program.pages[page].lbl[at].Left);
            EXPECT_EQ(kept.Top, run.program.pages[page].lbl[at].Top);
        }
    }
}

TEST(StartUp, RoomsAreCalledInOrderAndTheEventListLast) {
    Starting run;
    run.Setting("Show Calc:", "True");
    std::vector<std::string> calls;
    run.surroundings.questions.Allow(kNoEvents, [&] {
        EXPECT_FALSE(run.program.guards.ResetActive);
        EXPECT_TRUE(run.program.guards.KeepPageContent);
        EXPECT_TRUE(run.program.pages[PageId::frmP5].RowFieldsMade);
        for (const char* name : {"frmFUT", "frmCalc"}) {
            calls.emplace_back(modWindows::Find(run.program, name) != nullptr ? name : "none");
        }
        calls.emplace_back("events");
    });
    ASSERT_EQ(run.Main(), modStart::StartResult::Running);
    EXPECT_EQ(calls, (std::vector<std::string>{"frmFUT", "frmCalc", "events"}));
}

TEST(StartUp, NoFieldsChangeHandlerRunsBeforeTheProposalStands) {
    Starting run;
    int changes = 0;
    run.program.hooks.Change = [&](Program& program, const FieldRef&) {
        changes += program.guards.HandlersSilent() ? 0 : 1;
    };
    ASSERT_EQ(run.Main(), modStart::StartResult::Running);
    EXPECT_EQ(changes, 0);
}

TEST(StartUp, TheScreensWidthDecidesOverTheTermsAndTheCompletion) {
    struct Case {
        int Pixels;
        const char* ShowFUT;
        bool Shown;
        bool Completes;
    };
    for (const Case& one : {Case{1024, "True", true, true}, Case{1023, "True", false, true},
                            Case{1024, "False", false, false}, Case{800, "False", false, true}}) {
        Starting run;
        run.Setting("Show FUT:", one.ShowFUT);
        run.surroundings.screen.Pixels = one.Pixels;
        ASSERT_EQ(run.Main(), modStart::StartResult::Running);
        EXPECT_EQ(modWindows::Find(run.program, "frmFUT") != nullptr, one.Shown) << one.Pixels << one.ShowFUT;
        EXPECT_EQ(run.program.run.ACEnabled, one.Completes) << one.Pixels << one.ShowFUT;
        EXPECT_EQ(run.program.run.ACStartLen, 2);
    }
}

TEST(StartUp, APinnedTermsListStays) {
    Starting run;
    run.Setting("Frequent Terms File:", "Mine.fut");
    run.Setting("Load FUT:", "True");
    ASSERT_EQ(run.Main(), modStart::StartResult::Running);
    EXPECT_EQ(run.program.run.FUTFileName, "Mine.fut");
}

TEST(StartUp, AFontThatIsNotThereGivesWayForTheRunOnly) {
    for (const std::string name : {"", "Nowhere Script", "times new roman"}) {
        Starting run;
        run.Setting("Font Name:", name);
        ASSERT_EQ(run.Main(), modStart::StartResult::Running);
        EXPECT_FALSE(run.program.run.DefaultFontFound) << name;
        EXPECT_EQ(run.program.run.DefaultFontName, "Times New Roman");
        EXPECT_EQ(run.Area(PageId::frmP1, 10).FontName, "Times New Roman");
        EXPECT_NE(run.folder.Read("UserPreferences.txt").find("Font Name:" + name + "\r\n"),
                  std::string::npos);
    }
    Starting run;
    run.Setting("Font Name:", "Arial");
    ASSERT_EQ(run.Main(), modStart::StartResult::Running);
    EXPECT_TRUE(run.program.run.DefaultFontFound);
    EXPECT_EQ(run.Area(PageId::frmP1, 10).FontName, "Arial");
    EXPECT_EQ(run.program.pages[PageId::frmP3].txtQty[5].FontName, "Arial");
    EXPECT_EQ(run.program.pages[PageId::frmP3].lblAt[5].FontName, "Arial");
    EXPECT_EQ(run.program.run.FontList, (std::vector<std::string>{"Arial", "Times New Roman"}));
}

TEST(StartUp, WithoutSettingsItTellsAndStandsBeforeAnEmptyProposal) {
    Starting run;
    std::filesystem::remove(run.folder / "UserPreferences.txt");
    run.surroundings.questions.Expect("An error occurred in GetUserPreferences.");
    EXPECT_EQ(run.Main(), modStart::StartResult::Running);
    EXPECT_TRUE(run.program.main.Loaded);
    EXPECT_EQ(run.program.folders.ProposalsFolder, run.folder / "Proposals/");
    EXPECT_TRUE(run.folder.Has("UserPreferences.txt"));
    EXPECT_EQ(run.program.main.lblDir.Caption, "Current Folder = " + run.folder.Path() + "Proposals/");
    Typist typist(run.program);
    typist.Click(PageId::frmP1, 2);
    typist.Type("Jane");
    EXPECT_EQ(run.TextOf(PageId::frmP1, 2), "Jane");
}

TEST(StartUp, SettingsOfGarbageAreToldOnceAndNeverStopIt) {
    // Every one of these has a line too short for its key.
    for (const std::string& bytes :
         {std::string("x"), std::string(1U << 20U, 'x') + "\r\ny", std::string("\r\n\r\n\r\n"),
          std::string("App First Instance:False\r\nShared"), std::string("\xFF\xFE\x00 garbage\r\n", 13)}) {
        Starting run;
        run.folder.Write("UserPreferences.txt", bytes);
        run.surroundings.questions.Expect("An error occurred in GetUserPreferences.");
        EXPECT_EQ(run.Main(), modStart::StartResult::Running);
        EXPECT_TRUE(run.program.main.Loaded);
        EXPECT_EQ(run.program.folders.ProposalsFolder, run.folder / "Proposals/");
    }
}

TEST(StartUp, ANulByteInTheLogoLineStopsNothing) {
    Starting run;
    run.Setting("Logo File:", std::string("a\0b.jpg", 7));
    ASSERT_EQ(run.Main(), modStart::StartResult::Running);
    EXPECT_TRUE(run.program.main.Loaded);
    for (const PageId page : kAllPages) {
        EXPECT_FALSE(run.program.pages[page].txt.empty());
    }
    Typist typist(run.program);
    typist.Click(PageId::frmP5, 0);
    typist.Type("Last page");
    EXPECT_EQ(run.TextOf(PageId::frmP5, 0), "Last page");
}

TEST(StartUp, ARateOfZeroIsAskedForAtEveryStart) {
    Starting run;
    run.folder.Write("Proposals/SalesTax.txt", ".00  ");
    run.surroundings.questions.Expect("The current sales tax rate is 0%.", Answer::Yes);
    EXPECT_EQ(run.Main(), modStart::StartResult::Running);
    // The window stands open over the finished start; nothing waits for it.
    EXPECT_NE(modWindows::Find(run.program, "frmTax"), nullptr);
    EXPECT_TRUE(run.program.main.Loaded);
}

TEST(StartUp, AFailureBeforeTheSplashTellsWhyAndEnds) {
    Starting run;
    run.folder.Write("Running.txt", "/none/\r\nAnn.hef\r\nAnn.hef\r\n");
    run.surroundings.screen.OnFonts = [] { throw std::runtime_error("no font server"); };
    run.surroundings.questions.Expect("no font server");
    EXPECT_EQ(run.Main(), modStart::StartResult::Ended);
    EXPECT_FALSE(run.program.main.Loaded);
    EXPECT_TRUE(run.program.main.Closing);
    EXPECT_TRUE(run.program.windows.Open.empty());
    EXPECT_TRUE(run.folder.Has("Running.txt")) << "what an earlier run left is still to be offered";
}

TEST(StartUp, AFailureOfTheLoadIsReportedAndToldAndTheRunEnds) {
    Starting run;
    run.program.hooks.GotFocus = [](Program&, const FieldRef&) { throw std::runtime_error("no field"); };
    run.surroundings.questions.Expect("An error occurred in MDIForm_Load.");
    run.surroundings.questions.ExpectBox({"Error encountered during Load Process.", Buttons::Ok, ""},
                                         Answer::Ok);
    ASSERT_EQ(run.Main(), modStart::StartResult::Running);
    EXPECT_FALSE(run.program.main.Loaded);
    EXPECT_TRUE(run.program.main.Closing);
    EXPECT_TRUE(run.surroundings.events.QuitAsked);
    EXPECT_TRUE(run.program.windows.Open.empty());
    EXPECT_FALSE(run.program.guards.StartingUp);
}

TEST(OldFiles, AreRenamedAtTheStart) {
    Starting run;
    run.folder.Write("Proposals/Ann.hwf", "ann");
    run.folder.Write("Proposals/BOB.HWF", "bob");
    run.folder.Write("Proposals/Carl.hwf.bak", "carl");
    ASSERT_EQ(run.Main(), modStart::StartResult::Running);
    EXPECT_EQ(run.folder.Read("Proposals/Ann.hef"), "ann");
    EXPECT_EQ(run.folder.Read("Proposals/BOB.hef"), "bob");
    EXPECT_FALSE(run.folder.Has("Proposals/Ann.hwf"));
    EXPECT_TRUE(run.folder.Has("Proposals/Carl.hwf.bak"));
}

TEST(OldFiles, OneWhoseNameIsTakenStaysAndIsToldOnce) {
    Starting run;
    for (const std::string name : {"Ann", "Bob"}) {
        run.folder.Write("Proposals/" + name + ".hwf", "old");
        run.folder.Write("Proposals/" + name + ".hef", "new");
    }
    run.folder.Write("Proposals/Carl.hwf", "old");
    run.surroundings.questions.Expect("An error occurred in ConvertOldFiles.\r\nError Number: 58");
    ASSERT_EQ(run.Main(), modStart::StartResult::Running);
    EXPECT_EQ(run.folder.Read("Proposals/Ann.hwf"), "old");
    EXPECT_EQ(run.folder.Read("Proposals/Ann.hef"), "new");
    EXPECT_EQ(run.folder.Read("Proposals/Carl.hef"), "old");
}

struct Closing : RunningProgram {
    void Touch() {
        Typist typist(program);
        typist.Click(PageId::frmP1, 2);
        typist.Type("Jane Roe");
    }
};

const ScriptedQuestions::Box kExitQuestion{"The file has been changed. Do you want to save it?",
                                           Buttons::YesNoCancel, "Text has been Changed"};

TEST(Exit, AnUntouchedProposalClosesWithoutAQuestion) {
    Closing run;
    modClosing::mnuFileExit_Click(run.program);
    EXPECT_TRUE(run.surroundings.events.QuitAsked);
    EXPECT_TRUE(run.program.run.ProgramClosing);
}

TEST(Exit, YesSavesAndStaysOpenSoThatThePersonClosesAgain) {
    Closing run;
    run.Touch();
    run.surroundings.questions.ExpectBox(kExitQuestion, Answer::Yes);
    run.surroundings.questions.Expect("File was saved as Jane Roe.hef");
    modClosing::mnuFileExit_Click(run.program);
    EXPECT_TRUE(run.folder.Has("Proposals/Jane Roe.hef"));
    EXPECT_FALSE(run.surroundings.events.QuitAsked);
    modClosing::mnuFileExit_Click(run.program);
    EXPECT_TRUE(run.surroundings.events.QuitAsked);
}

TEST(Exit, NoClosesAndCancelStays) {
    Closing run;
    run.Touch();
    run.surroundings.questions.ExpectBox(kExitQuestion, Answer::Cancel);
    modClosing::mnuFileExit_Click(run.program);
    EXPECT_FALSE(run.surroundings.events.QuitAsked);
    EXPECT_EQ(run.TextOf(PageId::frmP1, 2), "Jane Roe");
    run.surroundings.questions.ExpectBox(kExitQuestion, Answer::No);
    modClosing::mnuFileExit_Click(run.program);
    EXPECT_TRUE(run.surroundings.events.QuitAsked);
    EXPECT_FALSE(run.folder.Has("Proposals/Jane Roe.hef"));
}

TEST(Exit, AChangedPropertyAsksToo) {
    Closing run;
    run.program.format.LabelSavedState[PageId::frmP1][3].Changed = true;
    run.surroundings.questions.ExpectBox(kExitQuestion, Answer::Cancel);
    EXPECT_FALSE(modClosing::MDIForm_QueryUnload(run.program));
}

TEST(Exit, OnceThePersonHasLeftNothingAsksAgain) {
    Closing run;
    run.Touch();
    run.surroundings.questions.ExpectBox(kExitQuestion, Answer::No);
    modClosing::mnuFileExit_Click(run.program);
    EXPECT_TRUE(modClosing::MDIForm_QueryUnload(run.program)) << "the window closes as its run has ended";
}

} // namespace
