#include "editing/selection.h"
#include "editing/text_menu.h"
#include "money/amounts.h"
#include "money/totals.h"
#include "pages/fields.h"
#include "pages/row_fields.h"
#include "program/keys.h"
#include "proposal/lifecycle.h"
#include "proposal/long_texts.h"
#include "proposal/proposal_open.h"
#include "proposal/proposal_save.h"
#include "proposal/reset.h"
#include "shell/command_run.h"
#include "shell/frm_main.h"
#include "shell/input.h"
#include "support/running_program.h"
#include "support/typist.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using Texts = std::vector<std::string>;

constexpr PageId kFirst = PageId::frmP1;
constexpr PageId kSecond = PageId::frmP2;
constexpr PageId kFinal = PageId::frmP6;

Texts Figures(RunningProgram& run, PageId page = kFinal) {
    Texts texts;
    for (const TextArea& area : run.program.pages[page].txt) {
        texts.push_back(area.Text);
    }
    return texts;
}

/// A proposal of Ann's, with a person at its keyboard.
struct Anns : RunningProgram {
    Anns() { modFields::SetText(program, {kFirst, FieldKind::txt, 2}, "Ann"); }
    void Amount(PageId page, int index, std::string_view text) {
        typist.Click(page, index);
        typist.PutCursor(0, static_cast<int>(TextOf(page, index).size()));
        typist.Type(text);
    }
    void Save() {
        surroundings.questions.Expect("File was saved as Ann.hef");
        commands::Run(program, CommandId::mnuFileSaveEvent);
    }
    void Reopen() {
        static_cast<void>(modReset::StartNewFile(program));
        ASSERT_EQ(modFile::OpenEventFile(program, "Ann.hef"), modFile::OpenResult::Opened);
    }
    [[nodiscard]] std::string Slot(std::size_t from) {
        return folder.Read("Proposals/Ann.hef").substr(from, 20);
    }
    [[nodiscard]] bool Marked(PageId page, int index) const {
        return program.pages[page].imgNoTax[static_cast<std::size_t>(index)].Visible;
    }
    Typist typist{program};
};

std::string Filled(std::string text) {
    text.resize(20, ' ');
    return text;
}

// ---- what is no number ------------------------------------------------------------------------------------

TEST(NoNumber, AnIntermediateNumberCountsNoLonger) {
    for (const char* typed : {"-", "100-5", "40-50", "12,50", "1.250,00"}) {
        Anns run;
        run.Amount(kFirst, 20, "100");
        run.typist.Click(kFirst, 21);
        run.Amount(kFirst, 20, typed);
        EXPECT_EQ(run.program.totals.AmountTable[20][PageId::frmP1], 0) << typed;
        EXPECT_FALSE(run.Label(kFirst, 21).Visible);
        run.Amount(kFirst, 21, "60");
        if (typed != std::string("-")) {
            run.surroundings.questions.Expect("Page 1, line 1: " + std::string(typed), Answer::Yes);
        }
        commands::Run(run.program, CommandId::mnuFilePrintAll);
        EXPECT_EQ(Figures(run)[0], "60.00") << typed;
        EXPECT_EQ(run.TextOf(kFirst, 20), typed) << "what a person wrote stays";
        EXPECT_EQ(run.Area(kFirst, 20).BackColor, colors::kOverLimit);
        EXPECT_EQ(run.Area(kFirst, 20).ToolTipText, "This is not a number and counts as nothing.");
        run.Amount(kFirst, 20, "40");
        run.typist.Click(kFirst, 21);
        EXPECT_EQ(run.Area(kFirst, 20).BackColor, colors::kResting);
        EXPECT_EQ(run.Area(kFirst, 20).ToolTipText, "");
        EXPECT_EQ(Figures(run)[0], "100.00");
    }
}

TEST(NoNumber, StandsRedWhereverItWasReadFromAndIsForgottenWithItsProposal) {
    Anns run;
    run.Amount(kSecond, 33, "40-50");
    run.surroundings.questions.Expect("Page 2, line 1: 40-50", Answer::Yes);
    run.Save();
    run.Reopen();
    EXPECT_EQ(run.TextOf(kSecond, 33), "40-50");
    EXPECT_EQ(run.Area(kSecond, 33).BackColor, colors::kOverLimit);
    EXPECT_EQ(run.Area(kSecond, 33).ToolTipText, "This is not a number and counts as nothing.");
    static_cast<void>(modReset::StartNewFile(run.program));
    EXPECT_EQ(run.Area(kSecond, 33).BackColor, colors::kResting);
    EXPECT_EQ(run.Area(kSecond, 33).ToolTipText, "");
}

TEST(NoNumber, AQuantityOfBlanksIsAnEmptyOneAndComesBackAsItWas) {
    Anns run;
    modPages::PlaceColumns(run.program, kSecond, 0, modPages::Columns::On);
    const FieldRef quantity{kSecond, FieldKind::txtQty, 0};
    const TextArea& box = run.program.pages[kSecond].txtQty[0];
    run.typist.Click({kSecond, FieldKind::txtAmt, 0});
    run.typist.Type("20");
    run.typist.Click(quantity);
    run.typist.Type("   ");
    EXPECT_EQ(box.Text, "") << "a blank is no part of a number";
    for (const char* blanks : {"", "   "}) {
        modFields::SetText(run.program, quantity, blanks); // an older proposal can hold them
        run.typist.Click(kSecond, 5);
        EXPECT_EQ(box.BackColor, colors::kRestingRowField);
        EXPECT_EQ(run.TextOf(kSecond, 33), "");
        run.Save();
        run.Reopen();
        EXPECT_EQ(box.Text, blanks);
        EXPECT_EQ(box.BackColor, colors::kRestingRowField);
        EXPECT_EQ(run.TextOf(kSecond, 33), "");
        run.typist.Click(quantity);
        run.typist.Click(kSecond, 5);
        EXPECT_EQ(box.Text, blanks);
        EXPECT_FALSE(modProposal::SomethingChanged(run.program));
    }
}

TEST(NoNumber, ACommaInABoxIsSeenNotDropped) {
    Anns run;
    modPages::PlaceColumns(run.program, kSecond, 0, modPages::Columns::On);
    const FieldRef quantity{kSecond, FieldKind::txtQty, 0};
    const FieldRef price{kSecond, FieldKind::txtAmt, 0};
    const TextArea& box = run.program.pages[kSecond].txtQty[0];
    run.typist.Click(price);
    run.typist.Type("20");
    run.typist.Click(quantity);
    run.typist.Type("1,5");
    EXPECT_EQ(box.Text, "1,5");
    EXPECT_EQ(box.BackColor, colors::kOverLimit);
    EXPECT_EQ(box.ToolTipText, "This is not a number. The amount stays as it is.");
    run.typist.Click(kSecond, 5);
    EXPECT_EQ(box.BackColor, colors::kOverLimit) << "also when it is left";
    EXPECT_NE(run.TextOf(kSecond, 33), "300.00") << "never fifteen";
    run.typist.Click(quantity);
    run.typist.PutCursor(0, 3);
    run.typist.Type("1.5");
    EXPECT_EQ(box.BackColor, colors::kFocused);
    EXPECT_EQ(box.ToolTipText, "");
    EXPECT_EQ(run.TextOf(kSecond, 33), "30.00");
    run.typist.Click(price);
    run.typist.PutCursor(0, 5);
    run.typist.Type("1,250");
    EXPECT_EQ(run.TextOf(kSecond, 33), "1,875.00");
}

// ---- exempt marks -----------------------------------------------------------------------------------------

TEST(ExemptMark, ByTheMenuIsInThePrintedFigures) {
    Anns run;
    run.Amount(kSecond, 33, "100");
    modTextMenu::UpdateTextMenu(run.program);
    commands::Run(run.program, CommandId::mnuEditTextTaxExempt);
    EXPECT_EQ(Figures(run), (Texts{"100.00", "0.00", "0.00", "100.00", "", "100.00"}));
    EXPECT_EQ(Figures(run, PageId::frmP6_1), Figures(run));
    commands::Run(run.program, CommandId::mnuEditTextTaxable);
    EXPECT_EQ(Figures(run)[2], "8.25");
    EXPECT_TRUE(run.program.format.PropTextChanges[PageId::frmP2][33].Dirty);
}

TEST(ExemptMark, GoesWithTheTextThatIsTakenAway) {
    Anns run;
    run.Amount(kSecond, 33, "5");
    modTextMenu::UpdateTextMenu(run.program);
    commands::Run(run.program, CommandId::mnuEditTextTaxExempt);
    run.typist.Click(kSecond, 33);
    run.typist.PutCursor(0, 4);
    run.typist.Press(keys::kDelete);
    EXPECT_TRUE(run.Marked(kSecond, 33)) << "another amount may follow";
    run.typist.Type("7");
    run.typist.Click(kSecond, 0);
    EXPECT_TRUE(run.Marked(kSecond, 33)) << "one text in place of another keeps it";
    run.typist.Click(kSecond, 33);
    run.typist.PutCursor(0, 4);
    run.typist.Press(keys::kDelete);
    run.typist.Click(kSecond, 0);
    EXPECT_FALSE(run.Marked(kSecond, 33));
    EXPECT_FALSE(run.program.format.PropTextChanges[PageId::frmP2][33].TaxExempt);
    EXPECT_FALSE(run.program.format.FormatTextChanges[PageId::frmP2][33].TaxExempt);
    run.Amount(kSecond, 33, "9");
    run.typist.Click(kSecond, 0);
    EXPECT_EQ(Figures(run)[1], "9.00");
}

TEST(ExemptMark, SetOnAnEmptyAreaWaitsForTheAmount) {
    Anns run;
    run.typist.Click(kSecond, 33);
    run.typist.Type("5");
    run.typist.Press(keys::kBackspace);
    run.typist.Click(kSecond, 34);
    run.typist.Click(kSecond, 33);
    modTextMenu::UpdateTextMenu(run.program);
    commands::Run(run.program, CommandId::mnuEditTextTaxExempt);
    run.typist.Click(kSecond, 34);
    EXPECT_TRUE(run.Marked(kSecond, 33));
    run.Amount(kSecond, 33, "5");
    run.typist.Click(kSecond, 34);
    EXPECT_EQ(Figures(run)[0], "5.00");
    EXPECT_EQ(Figures(run)[1], "0.00");
}

TEST(ExemptMark, OfAnEmptyAreaIsNotWrittenAndNotRead) {
    Anns run;
    run.typist.Click(kFirst, 20);
    modTextMenu::UpdateTextMenu(run.program);
    commands::Run(run.program, CommandId::mnuEditTextTaxExempt);
    run.Save();
    EXPECT_EQ(run.Slot(1730), Filled(""));
    std::string bytes = run.folder.Read("Proposals/Ann.hef");
    bytes.replace(1730, 1, "\xD8");
    run.folder.Write("Proposals/Ann.hef", bytes);
    run.Reopen();
    EXPECT_EQ(run.TextOf(kFirst, 20), "");
    EXPECT_FALSE(run.Marked(kFirst, 20));
    EXPECT_FALSE(run.program.format.PropTextChanges[PageId::frmP1][20].TaxExempt);
    EXPECT_EQ(run.program.document.CurrentTextBuf[PageId::frmP1][20], "");
    EXPECT_EQ(run.program.document.SavedTextBuf[PageId::frmP1][20], "");
    run.Save();
    EXPECT_EQ(run.Slot(1730), Filled(""));
}

// ---- the keyboard comes in --------------------------------------------------------------------------------

TEST(Arrival, AtTheDepositMarksItWhole) {
    Anns run;
    run.Amount(kFirst, 20, "100");
    run.Amount(kFinal, 4, "40");
    run.typist.Click(kFirst, 3);
    frmMain(run.program).imgPage_Click(5);
    run.typist.Type("5000");
    EXPECT_EQ(run.TextOf(kFinal, 4), "5000");
    EXPECT_EQ(run.program.totals.Deposit, 5000);
}

TEST(Arrival, ByKeyMarksAmountsAndBoxesButNoDescription) {
    Anns run;
    modFields::SetText(run.program, {kSecond, FieldKind::txt, 0}, "Arch");
    modFields::SetText(run.program, {kSecond, FieldKind::txt, 1}, "Chairs");
    run.Amount(kSecond, 33, "1250");
    modPages::PlaceColumns(run.program, kSecond, 1, modPages::Columns::On);
    modFields::SetText(run.program, {kSecond, FieldKind::txtQty, 1}, "12");
    modFields::SetText(run.program, {kSecond, FieldKind::txtAmt, 1}, "3.50");
    const auto marked = [&] {
        const TextArea& area = modFields::Area(run.program, *run.program.main.Focus);
        return area.SelStart == 0 && area.SelLength == static_cast<int>(area.Text.size());
    };
    run.typist.Click(kSecond, 0);
    run.typist.Press(keys::kEnter);
    EXPECT_EQ(run.program.main.Focus, (FieldRef{kSecond, FieldKind::txt, 33}));
    EXPECT_TRUE(marked());
    run.typist.Press(keys::kTab);
    EXPECT_EQ(run.program.main.Focus, (FieldRef{kSecond, FieldKind::txtQty, 1}));
    EXPECT_TRUE(marked());
    run.typist.Press(keys::kTab);
    EXPECT_EQ(run.program.main.Focus, (FieldRef{kSecond, FieldKind::txt, 1}));
    EXPECT_FALSE(marked());
    run.typist.Press(keys::kTab);
    EXPECT_EQ(run.program.main.Focus, (FieldRef{kSecond, FieldKind::txtAmt, 1}));
    EXPECT_TRUE(marked());
    run.typist.Press(keys::kEnter);
    EXPECT_TRUE(marked());
    run.typist.Press(keys::kUp);
    EXPECT_EQ(run.program.main.Focus, (FieldRef{kSecond, FieldKind::txt, 33}));
    EXPECT_TRUE(marked());
    run.typist.Type("9");
    EXPECT_EQ(run.TextOf(kSecond, 33), "9");
}

TEST(Arrival, ByMouseLeavesTheCursorWhereItWasPressed) {
    Anns run;
    run.Amount(kSecond, 33, "1250");
    run.typist.Click(kSecond, 0);
    run.typist.Click(kSecond, 33);
    EXPECT_EQ(run.Area(kSecond, 33).SelLength, 0);
}

// ---- the deposit ------------------------------------------------------------------------------------------

TEST(Deposit, SurvivesATotalOfZero) {
    Anns run;
    run.Amount(kFinal, 4, "250");
    const Texts figures{"0.00", "0.00", "0.00", "0.00", "250.00", "-250.00"};
    commands::Run(run.program, CommandId::mnuFilePrintAll);
    EXPECT_EQ(Figures(run), figures);
    commands::Run(run.program, CommandId::mnuToolsRecalculate);
    EXPECT_EQ(Figures(run), figures);
    run.Save();
    EXPECT_EQ(run.Slot(20410 + 80), Filled("250.00"));
    EXPECT_EQ(run.Slot(20410 + 100), Filled("-250.00"));
    for (int key = 0; key < 25; ++key) {
        run.typist.Click(kFirst, 3);
        run.typist.Type("x"); // an automatic backup comes on the way
    }
    EXPECT_EQ(run.program.totals.Deposit, 250);
    run.Save();
    run.Reopen();
    EXPECT_EQ(Figures(run), figures);
    EXPECT_EQ(run.program.totals.Deposit, 250);
}

// ---- texts longer than their place ------------------------------------------------------------------------

TEST(LongTexts, AreNamedAndCancelWritesNothing) {
    Anns run;
    for (int index = 0; index < 12; ++index) {
        modFields::SetText(run.program, {kSecond, FieldKind::txt, index}, std::string(121, 'x'));
    }
    run.surroundings.questions.ExpectBox(
        {"These texts are longer than their place in the file and will be cut:\r\n"
         "Page 2, Text Area 1\r\nPage 2, Text Area 2\r\nPage 2, Text Area 3\r\nPage 2, Text Area 4\r\n"
         "Page 2, Text Area 5\r\nPage 2, Text Area 6\r\nPage 2, Text Area 7\r\nPage 2, Text Area 8\r\n"
         "Page 2, Text Area 9\r\nPage 2, Text Area 10\r\nand 2 more",
         Buttons::YesNo, ""},
        Answer::No);
    commands::Run(run.program, CommandId::mnuFileSaveEvent);
    EXPECT_FALSE(run.folder.Has("Proposals/Ann.hef"));
    EXPECT_FALSE(run.program.document.FileExists);
    const Manner& manner = run.surroundings.questions.Manners.back();
    EXPECT_EQ(manner.Default, Answer::No);
    EXPECT_EQ(manner.Words, (Texts{"Save Anyway", "Cancel"}));
    run.surroundings.questions.Expect("These texts are longer than their place in the file", Answer::Yes);
    run.Save();
    EXPECT_EQ(run.folder.Read("Proposals/Ann.hef").substr(1930, 121), std::string(120, 'x') + "x")
        << "the next slot begins there";
    EXPECT_EQ(run.TextOf(kSecond, 0), std::string(121, 'x')) << "on the page it stays whole";
}

TEST(LongTexts, CountTheExemptMark) {
    Anns run;
    modFields::SetText(run.program, {kFirst, FieldKind::txt, 20},
                       "00000000000000000001"); // twenty characters
    EXPECT_TRUE(modFile::LongTexts(run.program).empty());
    modTotals::SetTax(run.program, kFirst, 20, modTotals::Tax::Exempt);
    EXPECT_EQ(modFile::LongTexts(run.program), (Texts{"Page 1, Text Area 21"}));
}

TEST(LongTexts, ANameTooLongForAFileIsTold) {
    Anns run;
    modFields::SetText(run.program, {kFirst, FieldKind::txt, 2}, std::string(240, 'n'));
    run.surroundings.questions.Expect("The name is too long for a file.");
    commands::Run(run.program, CommandId::mnuFileSaveEvent);
    EXPECT_EQ(run.program.main.Focus, (FieldRef{kFirst, FieldKind::txt, 2}));
    EXPECT_FALSE(run.program.document.FileExists);
}

// ---- the currency -----------------------------------------------------------------------------------------

TEST(Currency, ANewSymbolStandsBesideUnitPricesOfAllPagesAtOnce) {
    Anns run;
    modPages::PlaceColumns(run.program, kFirst, 10, modPages::Columns::On);
    modPages::PlaceColumns(run.program, kSecond, 0, modPages::Columns::On);
    run.surroundings.questions.ExpectInput("Changing Currency Designator", "\xA3");
    run.surroundings.questions.Expect("Changes will be applied");
    commands::Run(run.program, CommandId::mnuOptCurrencySymbol);
    for (const PageId page : kLinePages) {
        for (const PageLabel& label : run.program.pages[page].lblAt) {
            EXPECT_EQ(label.Caption, "@ \xA3");
        }
    }
}

TEST(Currency, TheCheckOfAdditionReadsTheOneInForce) {
    Anns run;
    run.program.settings.CurrencySymbol = "\xA3";
    run.surroundings.questions.ExpectInput("", "\xA3"
                                               "10");
    run.surroundings.questions.ExpectBox({"330", Buttons::Ok, ""}, Answer::Ok);
    modTotals::mnuAdminCheckAddition_Click(run.program);
    EXPECT_EQ(run.program.totals.AmountTable[65][PageId::frmP2], 10);
}

// ---- cursor and selection ---------------------------------------------------------------------------------

TEST(CaretLabel, FollowsEveryMoveOfTheCursor) {
    Anns run;
    const std::string& label = run.program.main.lblCurPos.Caption;
    run.typist.Click(kSecond, 0);
    run.typist.Type("Arch");
    EXPECT_EQ(label, "Cursor Location = 4");
    run.typist.PutCursor(2);
    EXPECT_EQ(label, "Cursor Location = 2");
    run.typist.Insert("xyz");
    EXPECT_EQ(label, "Cursor Location = 5");
    run.typist.Press(keys::kEnter);
    EXPECT_EQ(label, "Cursor Location = 0");
    run.typist.Type("12");
    run.typist.Click(kSecond, 0);
    EXPECT_EQ(label, "Cursor Location = 7");
    run.typist.Press(keys::kF8);
    run.typist.Type("33");
    EXPECT_EQ(label, "Cursor Location = 2") << "in a box, too";
}

TEST(SelectionByKey, TakesLinesAsABandDoes) {
    Anns run;
    modFields::SetText(run.program, {kSecond, FieldKind::txt, 3}, "Arch");
    run.typist.Click(kSecond, 36);
    run.typist.Type("75.5");
    run.typist.Press(keys::kDown, keys::kShiftState);
    const auto selected = [&](int row) {
        return run.Area(kSecond, row).BackColor == colors::kBlockSelected &&
               run.Area(kSecond, row + 33).BackColor == colors::kBlockSelected;
    };
    EXPECT_TRUE(run.program.editing.BlockMode);
    EXPECT_TRUE(selected(3) && selected(4));
    EXPECT_FALSE(selected(2) || selected(5));
    EXPECT_EQ(run.TextOf(kSecond, 36), "75.50") << "settled before it is selected";
    EXPECT_EQ(run.program.editing.Block.MemoryLeft.at(0).Text, "Arch");
    EXPECT_EQ(run.program.editing.Block.MemoryRight.at(0).Text, "75.50");
    run.typist.Press(keys::kDown, keys::kShiftState);
    EXPECT_TRUE(selected(5));
    run.typist.Press(keys::kUp, keys::kShiftState);
    EXPECT_FALSE(selected(5));
    run.typist.Press(keys::kUp, keys::kShiftState);
    EXPECT_TRUE(selected(3));
    EXPECT_FALSE(selected(4));
    run.typist.Press(keys::kUp, keys::kShiftState);
    EXPECT_TRUE(selected(2) && selected(3));
    // The plain arrow moves what is selected.
    run.typist.Press(keys::kDown);
    EXPECT_EQ(run.TextOf(kSecond, 4), "Arch");
    EXPECT_EQ(run.TextOf(kSecond, 37), "75.50");
}

TEST(SelectionByKey, EndsWhereTheLinesEnd) {
    Anns run;
    run.typist.Click(kSecond, 0);
    run.typist.Press(keys::kUp, keys::kShiftState);
    EXPECT_EQ(run.program.editing.Block.SelectedCount, 2) << "the first line alone";
    modBlocks::DeSelectAllControls(run.program);
    run.typist.Click(kFirst, 3);
    run.typist.Press(keys::kDown, keys::kShiftState);
    EXPECT_FALSE(run.program.editing.BlockMode) << "the client's data are no lines";
    EXPECT_EQ(run.program.main.Focus, (FieldRef{kFirst, FieldKind::txt, 4}));
}

// ---- the client's copy ------------------------------------------------------------------------------------

TEST(ClientsCopy, FollowsTheFiguresOnEveryWay) {
    Anns run;
    run.Amount(kFirst, 20, "100");
    modTotals::RecalculateAll(run.program);
    EXPECT_EQ(Figures(run, PageId::frmP6_1), Figures(run)) << "full";
    EXPECT_EQ(Figures(run, PageId::frmP6_1)[3], "108.25");
    run.program.totals.PageSum[PageId::frmP1] = 50;
    modTotals::UpdateRunningTotals(run.program);
    EXPECT_EQ(Figures(run, PageId::frmP6_1)[0], "50.00") << "running";
    EXPECT_EQ(Figures(run, PageId::frmP6_1), Figures(run));
    commands::Run(run.program, CommandId::mnuOptHideTotals);
    EXPECT_EQ(Figures(run, PageId::frmP6_1)[0], "") << "hidden";
    run.program.totals.Deposit = 12;
    modTotals::UpdateRunningTotals(run.program);
    EXPECT_EQ(Figures(run, PageId::frmP6_1)[4], "12.00") << "hidden totals, deposit";
    EXPECT_EQ(Figures(run, PageId::frmP6_1), Figures(run));
    commands::Run(run.program, CommandId::mnuOptHideTotals);
    run.Save();
    run.Reopen();
    EXPECT_EQ(Figures(run, PageId::frmP6_1)[0], "100.00") << "read";
    EXPECT_EQ(Figures(run, PageId::frmP6_1), Figures(run));
}

TEST(CheckAddition, EmptiesEveryRowBelowTheFirstBeforeItFillsThem) {
    RunningProgram run;
    for (const int row : {34, 65}) {
        modFields::SetText(run.program, {kSecond, FieldKind::txt, row}, "7");
        modTotals::SetTax(run.program, kSecond, row, modTotals::Tax::Exempt);
    }
    run.surroundings.questions.ExpectInput("", "10");
    run.surroundings.questions.ExpectBox({"330", Buttons::Ok, ""}, Answer::Ok);
    modTotals::mnuAdminCheckAddition_Click(run.program);
    for (const std::size_t row : {34U, 65U}) {
        EXPECT_FALSE(run.program.pages[kSecond].imgNoTax[row].Visible) << "an emptied row loses its mark";
        EXPECT_EQ(run.program.totals.TaxableTable[row][kSecond], 10) << row;
    }
}

} // namespace
