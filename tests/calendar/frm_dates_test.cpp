#include "calendar/frm_dates.h"

#include "calendar/read_event_dates.h"
#include "program/windows.h"
#include "proposal/proposal_save.h"
#include "support/running_program.h"
#include "support/typist.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

/// A program whose folder has some proposals; the clock stands at 6 PM on 21 January 2008.
struct Dated : RunningProgram {
    void Proposal(const std::string& name, const std::string& date) {
        std::string bytes = date + std::string(25 - date.size(), ' ') + std::string(100, ' ');
        folder.Write("Proposals/" + name, bytes);
    }
    frmDates& Open(void (*command)(Program&) = modCalendar::mnuViewEventDates_Click) {
        command(program);
        auto* window = dynamic_cast<frmDates*>(modWindows::Find(program, "frmDates"));
        EXPECT_NE(window, nullptr);
        return *window;
    }
    void Select(frmDates& window, const std::vector<int>& rows) {
        window.lstDates_Click(program, rows, rows.empty() ? -1 : rows.back());
    }
    using Items = std::vector<std::string>;
};

TEST(Calendar, ListsByDateAndThenByFileNameWithoutRegardToCase) {
    Dated run;
    run.Proposal("zoe.hef", "1/21/2008");
    run.Proposal("Adam.hef", "January 21, 2008");
    run.Proposal("beth.HEF", "1-21-08");
    run.Proposal("Early.hef", "12/31/2007");
    run.Proposal("Late.hef", "2/1/2008");
    EXPECT_EQ(run.Open().lstDates.Items,
              (Dated::Items{"Dec/31/2007\tEarly.hef", "Jan/21/2008\tAdam.hef", "Jan/21/2008\tbeth.HEF",
                            "Jan/21/2008\tzoe.hef", "Feb/01/2008\tLate.hef"}));
    EXPECT_EQ(run.program.calendar.Rows[0].Weekday, "Mon");
    EXPECT_FALSE(run.program.main.Busy);
}

TEST(Calendar, BelowFiveDigitsTheOrderIsThatOfTheBrokenKey) {
    Dated run;
    run.Proposal("A.hef", "5/17/1927"); // 9999
    run.Proposal("B.hef", "5/18/1927"); // 10000
    EXPECT_EQ(run.Open().lstDates.Items, (Dated::Items{"May/18/1927\tB.hef", "May/17/1927\tA.hef"}));
    EXPECT_EQ(run.program.calendar.EventSerial.size(), 2U);
}

TEST(Calendar, RowsOfEveryYearAreWhole) {
    Dated run;
    run.Proposal("First.hef", "1/1/100");
    run.Proposal("Last.hef", "12/31/9999");
    EXPECT_EQ(run.Open().lstDates.Items, (Dated::Items{"Jan/01/0100\tFirst.hef", "Dec/31/9999\tLast.hef"}));
}

TEST(Calendar, WhatHasNoDateIsCountedAndNotListed) {
    Dated run;
    run.Proposal("Dated.hef", "1/21/2008");
    run.Proposal("Blank.hef", "");
    run.Proposal("Words.hef", "in spring");
    run.Proposal("Yearless.hef", "January 21");
    run.folder.Write("Proposals/Short.hef", "1/21/2008");
    run.folder.Write("Proposals/Empty.hef", "");
    run.folder.MakeFolder("Proposals/Folder.hef");
    fs::create_symlink("nowhere", run.folder / "Proposals/Broken.hef");
    frmDates& window = run.Open();
    EXPECT_EQ(window.lstDates.Items, (Dated::Items{"Jan/21/2008\tDated.hef"}));
    EXPECT_EQ(window.lblUndated.Caption, "5 proposals have no date that can be read.");
    EXPECT_EQ(window.lblUndated.ToolTipText,
              "Blank.hef\r\nEmpty.hef\r\nShort.hef\r\nWords.hef\r\nYearless.hef");
}

TEST(Calendar, TheTipNamesTenOfTheUndated) {
    Dated run;
    for (int number = 10; number < 22; ++number) {
        run.Proposal("U" + std::to_string(number) + ".hef", "");
    }
    const std::string tip = run.Open().lblUndated.ToolTipText;
    EXPECT_NE(tip.find("U19.hef\r\n..."), std::string::npos);
    EXPECT_EQ(tip.find("U20.hef"), std::string::npos);
}

TEST(Calendar, ALinkToAProposalIsAProposal) {
    Dated run;
    run.folder.Write("Home/There.hef", "1/21/2008" + std::string(60, ' '));
    fs::create_symlink(run.folder / "Home/There.hef", run.folder / "Proposals/Link.hef");
    EXPECT_EQ(run.Open().lstDates.Items, (Dated::Items{"Jan/21/2008\tLink.hef"}));
}

TEST(Calendar, TheViewsListWhatTheyAreNamedFor) {
    Dated run;
    run.Proposal("Yesterday.hef", "1/20/2008");
    run.Proposal("Today.hef", "1/21/2008");
    run.Proposal("Tenth.hef", "1/31/2008");
    run.Proposal("Eleventh.hef", "2/1/2008");
    EXPECT_EQ(run.Open(modCalendar::mnuViewExpiredEvents_Click).lstDates.Items,
              (Dated::Items{"Jan/20/2008\tYesterday.hef", "Jan/21/2008\tToday.hef"}));
    EXPECT_TRUE(run.program.calendar.EventListExpired);
    frmDates& window = run.Open(modCalendar::mnuViewNewEvents_Click);
    EXPECT_EQ(window.lstDates.Items, (Dated::Items{"Jan/21/2008\tToday.hef", "Jan/31/2008\tTenth.hef"}));
    EXPECT_FALSE(run.program.calendar.EventListExpired);
    EXPECT_TRUE(run.program.calendar.EventListNew);
    EXPECT_EQ(window.FrontCalls, 1);
    window.Choose(run.program, "mnuViewEventDates");
    EXPECT_EQ(window.lstDates.Items.size(), 4U);
    EXPECT_FALSE(run.program.calendar.EventListNew);
}

TEST(Calendar, WithNoProposalTheMessageComesWithTheNormalPointerAndClearsTheFlags) {
    Dated run;
    run.surroundings.questions.ExpectBox({"No Events Found", Buttons::Ok, ""}, Answer::Ok);
    EXPECT_TRUE(run.Open(modCalendar::mnuViewNewEvents_Click).lstDates.Items.empty());
    EXPECT_FALSE(run.program.calendar.EventListNew);
    EXPECT_FALSE(run.program.main.Busy);
}

TEST(Calendar, AFolderOfUndatedProposalsIsNotEmpty) {
    Dated run;
    run.Proposal("Blank.hef", "");
    EXPECT_TRUE(run.Open(modCalendar::mnuViewNewEvents_Click).lstDates.Items.empty());
    EXPECT_TRUE(run.program.calendar.EventListNew);
}

TEST(Calendar, AtTheStartOnlyAnEmptyFolderIsToldOf) {
    Dated run;
    run.program.calendar.EventListNew = true;
    run.surroundings.questions.ExpectBox({"No Events Found", Buttons::Ok, ""}, Answer::Ok);
    modCalendar::ReadEventDatesAtStart(run.program);
    EXPECT_EQ(run.surroundings.questions.Manners.back().How, Manner::Came::Unasked);
    EXPECT_FALSE(run.program.calendar.EventListNew);
    run.surroundings.questions.Done();
    run.Proposal("One.hef", "1/1/2008");
    run.program.calendar.EventListExpired = true;
    modCalendar::ReadEventDatesAtStart(run.program);
    EXPECT_FALSE(run.program.calendar.EventListExpired);
}

TEST(Calendar, OneSelectedRowOpensAnyNumberIsDeleted) {
    Dated run;
    run.Proposal("A.hef", "1/21/2008");
    run.Proposal("B.hef", "1/22/2008");
    frmDates& window = run.Open();
    EXPECT_FALSE(window.Entry("mnuFileOpen").Enabled);
    EXPECT_FALSE(window.Entry("mnuOptDelete").Enabled);
    run.Select(window, {0});
    EXPECT_TRUE(window.Entry("mnuFileOpen").Enabled);
    EXPECT_TRUE(window.Entry("mnuOptDelete").Enabled);
    run.Select(window, {0, 1});
    EXPECT_FALSE(window.Entry("mnuFileOpen").Enabled);
    EXPECT_TRUE(window.Entry("mnuOptDelete").Enabled);
    run.Select(window, {1});
    EXPECT_EQ(window.lstDates.Selected, (std::vector<bool>{false, true})) << "what is no longer selected";
    window.Choose(run.program, "mnuOptDelete");
    EXPECT_EQ(window.lstDates.Items, (Dated::Items{"Jan/21/2008\tA.hef"}));
}

TEST(Calendar, DeletedProposalsLieInBackupAndComeBackAllOfThem) {
    Dated run;
    run.Proposal("A.hef", "1/21/2008");
    run.Proposal("B.hef", "1/22/2008");
    run.Proposal("C.hef", "1/23/2008");
    run.folder.Write("Proposals/A.hxt", "notes");
    fs::remove_all(run.folder / "Proposals/Backup");
    frmDates& window = run.Open();
    EXPECT_FALSE(window.Entry("mnuOptUndoDelete").Enabled);
    run.Select(window, {0, 1});
    window.Choose(run.program, "mnuOptDelete");
    EXPECT_EQ(window.lblNotice.Caption, "2 proposals moved to Backup");
    EXPECT_EQ(window.lstDates.Items, (Dated::Items{"Jan/23/2008\tC.hef"}));
    EXPECT_TRUE(run.folder.Has("Proposals/Backup/A.hef.old"));
    EXPECT_TRUE(run.folder.Has("Proposals/A.hxt"));
    EXPECT_TRUE(window.Entry("mnuOptUndoDelete").Enabled);
    run.Select(window, {0});
    window.Choose(run.program, "mnuViewEventDates");
    EXPECT_EQ(window.lblNotice.Caption, "");
    run.Select(window, {0});
    run.surroundings.questions.ExpectBox({"No Events Found", Buttons::Ok, ""}, Answer::Ok);
    window.Choose(run.program, "mnuOptDelete");
    EXPECT_TRUE(window.Entry("mnuOptUndoDelete").Enabled); // also where nothing was found
    run.folder.Write("Proposals/Backup/Notes.txt.old", "not a proposal");
    window.Choose(run.program, "mnuOptUndoDelete");
    EXPECT_EQ(window.lstDates.Items.size(), 3U);
    EXPECT_EQ(window.lblNotice.Caption, "3 proposals restored");
    EXPECT_TRUE(run.folder.Has("Proposals/Backup/Notes.txt.old"));
    EXPECT_FALSE(run.folder.Has("Proposals/Backup/A.hef.old"));
    EXPECT_FALSE(window.Entry("mnuOptUndoDelete").Enabled);
}

TEST(Calendar, MovingNeverWritesOverAnythingAndTheOthersGoOn) {
    Dated run;
    run.Proposal("A.hef", "1/21/2008");
    run.Proposal("B.hef", "1/22/2008");
    run.folder.Write("Proposals/Backup/a.HEF.old", "older"); // one name, whatever its case
    frmDates& window = run.Open();
    run.Select(window, {0, 1});
    run.surroundings.questions.Expect("A.hef - File already exists");
    window.Choose(run.program, "mnuOptDelete");
    EXPECT_EQ(window.lblNotice.Caption, "1 proposal moved to Backup");
    EXPECT_EQ(run.folder.Read("Proposals/Backup/a.HEF.old"), "older");
    EXPECT_TRUE(run.folder.Has("Proposals/A.hef"));
    EXPECT_TRUE(run.folder.Has("Proposals/Backup/B.hef.old"));
    run.surroundings.questions.Expect("a.HEF.old - File already exists");
    window.Choose(run.program, "mnuOptUndoDelete");
    EXPECT_TRUE(run.folder.Has("Proposals/B.hef"));
    EXPECT_EQ(run.folder.Read("Proposals/Backup/a.HEF.old"), "older");
}

TEST(Calendar, TenFilesThatCannotBeMovedAreNamedAndTheRestCounted) {
    Dated run;
    std::vector<int> rows;
    for (int number = 10; number < 22; ++number) {
        const std::string name = "U" + std::to_string(number) + ".hef";
        run.Proposal(name, "1/21/2008");
        run.folder.Write("Proposals/Backup/" + name + ".old", "older");
        rows.push_back(number - 10);
    }
    frmDates& window = run.Open();
    run.Select(window, rows);
    run.surroundings.questions.Expect("and 2 more.");
    window.Choose(run.program, "mnuOptDelete");
    const std::string told = run.surroundings.questions.Shown.back().Text;
    EXPECT_NE(told.find("U19.hef"), std::string::npos);
    EXPECT_EQ(told.find("U20.hef"), std::string::npos);
}

TEST(Calendar, WithoutMovedFilesThereIsNothingToRestore) {
    Dated run;
    run.Proposal("A.hef", "1/21/2008");
    frmDates& window = run.Open();
    run.program.calendar.CanRestore = true; // somebody has emptied the folder meanwhile
    window.Form_Follow(run.program);
    run.surroundings.questions.ExpectBox({"Nothing to restore.", Buttons::Ok, ""}, Answer::Ok);
    window.Choose(run.program, "mnuOptUndoDelete");
    EXPECT_FALSE(window.Entry("mnuOptUndoDelete").Enabled);
}

void SaveJaneRoe(Dated& run) {
    TypeJaneRoe(run);
    run.surroundings.questions.Expect("File was saved as Jane Roe.hef");
    ASSERT_EQ(modFile::SaveEventFile(run.program), modFile::SaveResult::Saved);
}

TEST(Calendar, TheProposalOnShowHasNoFileAnyMoreWhenItIsMoved) {
    Dated run;
    SaveJaneRoe(run);
    run.Proposal("Other.hef", "1/22/2008");
    frmDates& window = run.Open();
    run.Select(window, {0});
    window.Choose(run.program, "mnuOptDelete");
    EXPECT_FALSE(run.program.document.FileExists);
    EXPECT_FALSE(run.Main()[CommandId::mnuFileDelete].Enabled);
    EXPECT_EQ(run.TextOf(PageId::frmP1, 2), "Jane Roe");
    run.Select(window, {0});
    run.surroundings.questions.Expect("Do you want to save the changes?", Answer::Cancel);
    window.Choose(run.program, "mnuFileOpen");
    EXPECT_EQ(run.TextOf(PageId::frmP1, 2), "Jane Roe");
}

TEST(Calendar, OpensTheSelectedProposalFromTheDataFolder) {
    Dated run;
    SaveJaneRoe(run);
    static_cast<void>(modCalendar::OpenProposal);
    run.program.document.FromBackup = true;
    run.program.document.FilePath = run.folder / "Elsewhere/";
    frmDates& window = run.Open();
    run.Select(window, {0});
    window.Choose(run.program, "mnuFileOpen");
    EXPECT_EQ(run.program.document.FileName, "Jane Roe.hef");
    EXPECT_EQ(run.program.document.FilePath, run.folder / "Proposals/");
    EXPECT_FALSE(run.program.document.FromBackup);
    EXPECT_FALSE(run.Main()[CommandId::mnuFileRestoreFromBackup].Enabled);
    EXPECT_EQ(run.TextOf(PageId::frmP6, 4), "500.00");
}

TEST(Calendar, AProposalThatCannotBeReadLeavesTheOneOnShow) {
    Dated run;
    SaveJaneRoe(run);
    run.Proposal("Gone.hef", "1/1/2008");
    frmDates& window = run.Open();
    fs::remove(run.folder / "Proposals/Gone.hef");
    run.Select(window, {0});
    run.surroundings.questions.Expect("OpenEventFile");
    window.Choose(run.program, "mnuFileOpen");
    EXPECT_EQ(run.program.document.FileName, "Jane Roe.hef");
    EXPECT_TRUE(run.program.document.FileExists);
    EXPECT_EQ(run.TextOf(PageId::frmP1, 2), "Jane Roe");
}

TEST(Calendar, AnExistingChangeIsAskedForFirst) {
    Dated run;
    SaveJaneRoe(run);
    Typist(run.program).Click(PageId::frmP1, 3);
    Typist(run.program).Type("x");
    frmDates& window = run.Open();
    run.Select(window, {0});
    run.surroundings.questions.Expect("Do you want to save the changes?", Answer::Cancel);
    window.Choose(run.program, "mnuFileOpen");
    EXPECT_FALSE(run.program.document.Cancelled);
    EXPECT_TRUE(run.TextOf(PageId::frmP1, 3).ends_with("x") || run.TextOf(PageId::frmP1, 3).starts_with("x"));
}

TEST(Calendar, APickedDayIsShadedAndCurrentAndSelectsNothing) {
    Dated run;
    run.Proposal("A.hef", "1/21/2008");
    run.Proposal("B.hef", "1/22/2008");
    run.Proposal("C.hef", "1/22/2008");
    frmDates& window = run.Open();
    window.PickDay(run.program, 39469);
    EXPECT_EQ(window.ShadedDay, 39469);
    EXPECT_EQ(window.lstDates.ListIndex, 1);
    EXPECT_EQ(window.lstDates.SelCount(), 0);
    EXPECT_EQ(window.Picks, 1);
    // A day without events shades nothing, and nothing is scrolled.
    window.PickDay(run.program, 1);
    EXPECT_EQ(window.ShadedDay, 1);
    EXPECT_EQ(window.lstDates.ListIndex, 1);
    EXPECT_EQ(window.Picks, 1);
}

std::vector<std::string> Printed(Dated& run) {
    std::vector<std::string> lines;
    for (const auto& document : run.surroundings.printers.Paper.Documents) {
        for (const DrawCall& call : document) {
            if (call.Op == DrawCall::What::Print) {
                lines.push_back(call.Text);
            }
        }
    }
    return lines;
}

TEST(Calendar, PrintsTheListAsShownUnderTheHeadingOfItsView) {
    Dated run;
    run.Proposal("A.hef", "1/21/2008");
    run.Proposal("B.hef", "1/20/2008");
    run.Open(modCalendar::mnuViewNewEvents_Click).Choose(run.program, "mnuFilePrint");
    EXPECT_EQ(Printed(run),
              (Dated::Items{"Events occuring within 10 days of January 21, 2008 are displayed below.",
                            "Jan/21/2008", "A.hef"}));
    const DrawCall& first = run.surroundings.printers.Paper.Documents[0][0];
    EXPECT_EQ(first.X, 720);
    EXPECT_EQ(first.Y, 720);
    run.surroundings.printers.Paper.Documents.clear();
    run.Open(modCalendar::mnuViewExpiredEvents_Click).Choose(run.program, "mnuFilePrint");
    EXPECT_EQ(Printed(run)[0], "Expired Events are displayed below.");
    run.surroundings.printers.Paper.Documents.clear();
    run.Open().Choose(run.program, "mnuFilePrint");
    EXPECT_EQ(Printed(run)[0], "All Events are displayed below.");
}

TEST(Calendar, ALongListGoesOnOverTheNextPages) {
    Dated run;
    for (int number = 100; number < 300; ++number) {
        run.Proposal("U" + std::to_string(number) + ".hef", "1/21/2008");
    }
    run.Open().Choose(run.program, "mnuFilePrint");
    const auto& calls = run.surroundings.printers.Paper.Documents.at(0);
    int pages = 1;
    for (const DrawCall& call : calls) {
        pages += call.Op == DrawCall::What::NewPage ? 1 : 0;
        EXPECT_LE(call.Y, 15840 - 720);
    }
    EXPECT_EQ(pages, 3); // 201 lines of 200 twips, 72 a page
    EXPECT_EQ(Printed(run).size(), 401U);
}

TEST(Calendar, AnEmptyListAndAMissingPrinterAreTold) {
    Dated run;
    run.Proposal("Blank.hef", "");
    run.surroundings.questions.ExpectBox({"No Events to Print.", Buttons::Ok, ""}, Answer::Ok);
    run.Open().Choose(run.program, "mnuFilePrint");
    run.Proposal("A.hef", "1/21/2008");
    run.surroundings.printers.CurrentDevice.clear();
    run.surroundings.questions.ExpectBox({"Could not find Printer.", Buttons::Ok, ""}, Answer::Ok);
    run.Open().Choose(run.program, "mnuFilePrint");
}

TEST(Calendar, ARebuildShowsTheBusyPointerAndAnsweringWindowsWithTheirCommandsOff) {
    Dated run;
    run.Proposal("A.hef", "1/21/2008");
    frmDates& window = run.Open();
    bool busy = false;
    run.surroundings.events.OnYield = [&] {
        busy = run.program.main.Busy;
        EXPECT_TRUE(window.lstDates.Items.empty());
        EXPECT_FALSE(window.Entry("mnuFilePrint").Enabled);
        run.surroundings.events.OnYield = nullptr;
    };
    window.Choose(run.program, "mnuViewEventDates");
    EXPECT_TRUE(busy);
    EXPECT_TRUE(window.Entry("mnuFilePrint").Enabled);
    EXPECT_EQ(window.lstDates.Items.size(), 1U);
}

TEST(Calendar, ANewViewCommandStartsOver) {
    Dated run;
    run.Proposal("Old.hef", "1/1/2008");
    run.Proposal("Today.hef", "1/21/2008");
    run.surroundings.events.OnYield = [&] {
        run.surroundings.events.OnYield = nullptr;
        modCalendar::mnuViewNewEvents_Click(run.program);
    };
    frmDates& window = run.Open();
    EXPECT_EQ(window.lstDates.Items, (Dated::Items{"Jan/21/2008\tToday.hef"}));
    EXPECT_EQ(std::count_if(run.program.windows.Open.begin(), run.program.windows.Open.end(),
                            [](const auto& open) { return open->Name() == "frmDates"; }),
              1);
    EXPECT_EQ(run.program.calendar.Running, 0);
    EXPECT_TRUE(window.Entry("mnuFilePrint").Enabled);
}

TEST(Calendar, ClosingTheWindowEndsTheRebuild) {
    Dated run;
    run.Proposal("A.hef", "1/21/2008");
    frmDates& window = run.Open();
    run.surroundings.events.OnYield = [&] {
        run.surroundings.events.OnYield = nullptr;
        window.Form_Cancel(run.program);
        modWindows::Sweep(run.program);
    };
    modCalendar::mnuViewEventDates_Click(run.program);
    EXPECT_EQ(modWindows::Find(run.program, "frmDates"), nullptr);
    EXPECT_TRUE(run.program.calendar.Rows.empty());
    EXPECT_FALSE(run.program.main.Busy);
}

TEST(Calendar, WhatIsSelectedAnewTakesThePlaceOfWhatWas) {
    Dated run;
    run.Proposal("A.hef", "1/21/2008");
    run.Proposal("B.hef", "1/22/2008");
    frmDates& window = run.Open();
    run.Select(window, {0, 1});
    EXPECT_EQ(window.lstDates.SelCount(), 2);
    run.Select(window, {1});
    EXPECT_EQ(window.lstDates.SelCount(), 1);
    EXPECT_EQ(window.lstDates.FirstSelected(), 1);
    EXPECT_TRUE(window.Entry("mnuFileOpen").Enabled);
    run.Select(window, {-1, 2});
    EXPECT_EQ(window.lstDates.SelCount(), 0) << "there are no such rows";
}

TEST(Calendar, TheMenuChangesTheViewAndTakesTheLastNoticeAway) {
    Dated run;
    run.Proposal("Yesterday.hef", "1/20/2008");
    run.Proposal("Tenth.hef", "1/31/2008");
    run.Proposal("Eleventh.hef", "2/1/2008");
    frmDates& window = run.Open();
    window.Choose(run.program, "mnuViewExpiredEvents");
    EXPECT_EQ(window.lstDates.Items, (Dated::Items{"Jan/20/2008\tYesterday.hef"}));
    window.Choose(run.program, "mnuViewNewEvents");
    EXPECT_EQ(window.lstDates.Items, (Dated::Items{"Jan/31/2008\tTenth.hef"}));
    run.Select(window, {0});
    window.Choose(run.program, "mnuOptDelete");
    ASSERT_EQ(window.lblNotice.Caption, "1 proposal moved to Backup");
    window.Choose(run.program, "mnuViewEventDates");
    run.Select(window, {0});
    window.Choose(run.program, "mnuOptDelete");
    ASSERT_EQ(window.lblNotice.Caption, "1 proposal moved to Backup");
    window.Choose(run.program, "mnuFilePrint");
    EXPECT_EQ(window.lblNotice.Caption, "");
}

TEST(Calendar, ADayPickedInTheMonthIsForgottenWithTheRowsItWasPickedAmong) {
    Dated run;
    run.Proposal("A.hef", "1/21/2008");
    frmDates& window = run.Open();
    window.PickDay(run.program, 39468);
    window.Choose(run.program, "mnuViewNewEvents");
    EXPECT_EQ(window.ShadedDay, std::nullopt);
}

TEST(Calendar, EveryProposalThatWasFoundHasItsRowAndNothingWithoutADate) {
    Dated run;
    run.Proposal("Words.hef", "in spring");
    run.Proposal("Dated.hef", "1/21/2008");
    run.Open();
    std::vector<std::string> found = run.program.calendar.EventFiles;
    std::sort(found.begin(), found.end());
    EXPECT_EQ(found, (Dated::Items{"", "Jan/21/2008\tDated.hef"}));
    std::vector<std::string> heads = run.program.calendar.EventDateText;
    std::sort(heads.begin(), heads.end());
    EXPECT_EQ(heads, (Dated::Items{"1/21/2008" + std::string(16, ' '), "in spring" + std::string(16, ' ')}));
}

TEST(Calendar, ARestartedListForgetsWhatHadNoDate) {
    Dated run;
    run.Proposal("Words.hef", "in spring");
    run.Proposal("Dated.hef", "1/21/2008");
    frmDates& window = run.Open();
    ASSERT_EQ(run.program.calendar.Undated, 1);
    ASSERT_NE(window.lblUndated.ToolTipText, "");
    run.Proposal("Words.hef", "1/22/2008");
    window.Choose(run.program, "mnuViewEventDates");
    EXPECT_EQ(run.program.calendar.Undated, 0);
    EXPECT_TRUE(run.program.calendar.UndatedNames.empty());
    EXPECT_EQ(window.lblUndated.ToolTipText, "");
}

TEST(Calendar, OfSeveralThatLieInBackupAlreadyNoneIsWrittenOver) {
    Dated run;
    for (const std::string name : {"A.hef", "B.hef", "C.hef"}) {
        run.Proposal(name, "1/21/2008");
        run.folder.Write("Proposals/Backup/" + name + ".old", "older " + name);
    }
    frmDates& window = run.Open();
    run.Select(window, {0, 1, 2});
    run.surroundings.questions.Expect("C.hef - File already exists");
    window.Choose(run.program, "mnuOptDelete");
    for (const std::string name : {"A.hef", "B.hef", "C.hef"}) {
        EXPECT_TRUE(run.folder.Has("Proposals/" + name));
        EXPECT_EQ(run.folder.Read("Proposals/Backup/" + name + ".old"), "older " + name);
    }
}

TEST(Calendar, AProposalThatCannotBeReadLeavesTheNewOneWithoutAFile) {
    Dated run;
    run.Proposal("Gone.hef", "1/1/2008");
    frmDates& window = run.Open();
    fs::remove(run.folder / "Proposals/Gone.hef");
    run.program.document.FilePath = run.folder / "Elsewhere/";
    ASSERT_FALSE(run.program.document.FileExists);
    run.Select(window, {0});
    run.surroundings.questions.Expect("OpenEventFile");
    window.Choose(run.program, "mnuFileOpen");
    EXPECT_FALSE(run.program.document.FileExists);
    EXPECT_EQ(run.program.document.FilePath, run.folder / "Elsewhere/");
}

TEST(Calendar, AProposalOpenedInPlaceOfANewOneComesFromTheDataFolder) {
    Dated run;
    run.Proposal("Ann.hef", "1/21/2008");
    frmDates& window = run.Open();
    ASSERT_FALSE(run.program.document.FileExists);
    run.program.document.FilePath = run.folder / "Elsewhere/";
    run.program.main.Focus.reset();
    run.Select(window, {0});
    run.surroundings.questions.Expect("The file Ann.hef is cut short");
    window.Choose(run.program, "mnuFileOpen");
    EXPECT_EQ(run.program.document.FileName, "Ann.hef");
    EXPECT_EQ(run.program.document.FilePath, run.folder / "Proposals/");
    EXPECT_EQ(run.program.main.Focus, (FieldRef{PageId::frmP1, FieldKind::txt, 0}));
}

TEST(Calendar, TheRowWithTheKeyboardIsTheCurrentOne) {
    Dated run;
    run.Proposal("A.hef", "1/21/2008");
    run.Proposal("B.hef", "1/22/2008");
    frmDates& window = run.Open();
    window.lstDates_Click(run.program, {0, 1}, 1);
    EXPECT_EQ(window.lstDates.ListIndex, 1);
    window.lstDates_Click(run.program, {0}, 0);
    EXPECT_EQ(window.lstDates.ListIndex, 0);
}

TEST(Calendar, AViewCommandOfTheMainWindowTakesTheLastNoticeAway) {
    Dated run;
    run.Proposal("A.hef", "1/21/2008");
    run.Proposal("B.hef", "1/22/2008");
    frmDates& window = run.Open();
    run.Select(window, {0});
    window.Choose(run.program, "mnuOptDelete");
    ASSERT_EQ(window.lblNotice.Caption, "1 proposal moved to Backup");
    modCalendar::mnuViewEventDates_Click(run.program);
    EXPECT_EQ(window.lblNotice.Caption, "");
}

TEST(Calendar, ARebuildThatIsEndedBeforeTheWindowStandsBringsNone) {
    Dated run;
    run.Proposal("A.hef", "1/21/2008");
    run.surroundings.events.OnYield = [&] { modCalendar::EndRebuild(run.program); };
    modCalendar::mnuViewEventDates_Click(run.program);
    EXPECT_EQ(modWindows::Find(run.program, "frmDates"), nullptr);
    run.surroundings.events.OnYield = [&] { run.program.run.ProgramClosing = true; };
    modCalendar::mnuViewEventDates_Click(run.program);
    EXPECT_EQ(modWindows::Find(run.program, "frmDates"), nullptr);
}

TEST(Calendar, ANameInOtherLettersIsTakenWhicheverFileOfBackupHasIt) {
    Dated run;
    const Dated::Items names{"A.hef", "B.hef", "C.hef"};
    for (const std::string& name : names) {
        run.Proposal(name, "1/21/2008");
    }
    for (const std::string name : {"a.HEF.old", "b.HEF.old", "c.HEF.old"}) {
        run.folder.Write("Proposals/Backup/" + name, "older");
    }
    frmDates& window = run.Open();
    run.Select(window, {0, 1, 2});
    run.surroundings.questions.Expect("C.hef - File already exists");
    window.Choose(run.program, "mnuOptDelete");
    EXPECT_EQ(window.lblNotice.Caption, "0 proposals moved to Backup");
    EXPECT_EQ(run.surroundings.questions.Shown.back().Text.find("more."), std::string::npos)
        << "all three are named";
    for (const std::string& name : names) {
        EXPECT_TRUE(run.folder.Has("Proposals/" + name)) << name;
    }
}

TEST(Calendar, OfTwoMovedAwayWhoseNamesDifferInCaseAloneOneComesBack) {
    Dated run;
    run.folder.Write("Proposals/Backup/Ann.hef.old", "1/21/2008" + std::string(60, ' '));
    run.folder.Write("Proposals/Backup/ANN.hef.old", "1/22/2008" + std::string(60, ' '));
    run.Proposal("Other.hef", "1/23/2008");
    frmDates& window = run.Open();
    run.surroundings.questions.Expect("File already exists");
    window.Choose(run.program, "mnuOptUndoDelete");
    EXPECT_EQ(window.lblNotice.Caption, "1 proposal restored");
    EXPECT_NE(run.folder.Has("Proposals/Ann.hef"), run.folder.Has("Proposals/ANN.hef"));
    EXPECT_NE(run.folder.Has("Proposals/Backup/Ann.hef.old"), run.folder.Has("Proposals/Backup/ANN.hef.old"));
}

TEST(Calendar, AProposalOfAnotherFolderKeepsItsFileWhenOneOfItsNameIsMoved) {
    Dated run;
    SaveJaneRoe(run);
    run.program.document.FilePath = run.folder / "Elsewhere/";
    frmDates& window = run.Open();
    run.Select(window, {0});
    run.surroundings.questions.Expect("No Events Found");
    window.Choose(run.program, "mnuOptDelete");
    EXPECT_TRUE(run.folder.Has("Proposals/Backup/Jane Roe.hef.old"));
    EXPECT_TRUE(run.program.document.FileExists);
    EXPECT_FALSE(run.program.document.SavedStateStale);
}

TEST(Calendar, AFolderWithoutAnyFileIsToldOf) {
    Dated run;
    fs::remove_all(run.folder / "Proposals");
    fs::create_directory(run.folder / "Proposals");
    run.surroundings.questions.ExpectBox({"No Events Found", Buttons::Ok, ""}, Answer::Ok);
    frmDates& window = run.Open();
    EXPECT_FALSE(modCalendar::CanRestore(run.program)) << "there is no backup folder";
    EXPECT_FALSE(window.Entry("mnuOptUndoDelete").Enabled);
}

TEST(Calendar, EventsRunNowAndThenAndNotAtEveryFile) {
    Dated run;
    constexpr int kFiles = 200;
    for (int number = 0; number < kFiles; ++number) {
        run.Proposal("U" + std::to_string(number) + ".hef", "1/21/2008");
    }
    const int before = run.surroundings.events.Yields;
    run.Open();
    EXPECT_GE(run.surroundings.events.Yields, before + 1);
    EXPECT_LT(run.surroundings.events.Yields, before + kFiles / 2);
}

TEST(Calendar, AnOpenedProposalComesWithItsLayoutAndItsFile) {
    Dated run;
    SaveJaneRoe(run);
    const std::string line = "UDP.FontName=Arial .FontSize=9 .FontColor=0 .FontItalic=True";
    run.folder.Write("Proposals/Jane Roe.hpf", line + "\r\n");
    frmDates& window = run.Open();
    run.program.document.PropertiesIgnored = true;
    run.Select(window, {0});
    window.Choose(run.program, "mnuFileOpen");
    EXPECT_TRUE(run.program.document.FileExists);
    EXPECT_FALSE(run.program.document.PropertiesIgnored);
    EXPECT_EQ(run.Area(PageId::frmP2, 1).FontName, "Arial");
    EXPECT_TRUE(run.Area(PageId::frmP2, 1).FontItalic);
}

} // namespace
