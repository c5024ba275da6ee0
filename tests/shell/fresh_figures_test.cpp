#include "editing/fresh_figures.h"

#include "editing/selection.h"
#include "money/totals.h"
#include "output/preview.h"
#include "output/print.h"
#include "pages/fields.h"
#include "pages/row_fields.h"
#include "program/keys.h"
#include "proposal/proposal_save.h"
#include "shell/command_run.h"
#include "shell/input.h"
#include "support/running_program.h"
#include "support/typist.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using Texts = std::vector<std::string>;

Texts Figures(RunningProgram& run, PageId page = PageId::frmP6) {
    Texts texts;
    for (const TextArea& area : run.program.pages[page].txt) {
        texts.push_back(area.Text);
    }
    return texts;
}

/// 1,250.00 left and 75.5 still under the cursor.
struct HalfTyped : RunningProgram {
    HalfTyped() {
        Typist typist(program);
        typist.Click(PageId::frmP1, 20);
        typist.Type("1250");
        typist.Click(PageId::frmP1, 21);
        typist.Type("75.5");
    }
    /// Tax on 1325.50 at 8.25 %: 109.35375.
    const Texts Whole{"1,325.50", "1,325.50", "109.35", "1,434.85", "0.00", "1,434.85"};
};

bool Printed(RunningProgram& run, const std::string& text) {
    for (const auto& document : run.surroundings.printers.Paper.Documents) {
        for (const DrawCall& call : document) {
            if (call.Op == DrawCall::What::Print && call.Text == text) {
                return true;
            }
        }
    }
    return false;
}

void DrawBand(RunningProgram& run, PageId page, float from, float to) {
    modInput::PageMouseDown(run.program, 1, 100, from);
    modInput::PageMouseMove(run.program, page, 1, 12000, to);
    modInput::PageMouseUp(run.program, page, 1, 12000, to);
}

TEST(FreshFigures, PrintingCountsTheAmountUnderTheCursor) {
    HalfTyped run;
    commands::Run(run.program, CommandId::mnuFilePrintAll);
    EXPECT_EQ(Figures(run), run.Whole);
    EXPECT_EQ(Figures(run, PageId::frmP6_1), run.Whole);
    EXPECT_TRUE(Printed(run, "75.50"));
    EXPECT_TRUE(Printed(run, "1,434.85"));
    EXPECT_FALSE(Printed(run, "75.5"));
}

TEST(FreshFigures, OnePageAloneCountsItToo) {
    HalfTyped run;
    commands::Run(run.program, CommandId::mnuFilePrintPage6_1);
    EXPECT_TRUE(Printed(run, "1,434.85"));
}

TEST(FreshFigures, APreviewCountsIt) {
    HalfTyped run;
    commands::Run(run.program, CommandId::mnuFilePrintPreview);
    EXPECT_EQ(Figures(run), run.Whole);
    EXPECT_EQ(run.TextOf(PageId::frmP1, 21), "75.50");
}

TEST(FreshFigures, WhatIsTypedWhilePagesAreUnderWayIsOnNoneOfThem) {
    HalfTyped run;
    Typist typist(run.program);
    bool typed = false;
    run.surroundings.events.OnYield = [&] {
        if (run.program.printing.CommandRunning && !typed) {
            typed = true;
            typist.Type("9");
        }
    };
    commands::Run(run.program, CommandId::mnuFilePrintAll);
    EXPECT_TRUE(typed);
    EXPECT_TRUE(Printed(run, "75.50"));
    EXPECT_TRUE(Printed(run, "1,434.85"));
    EXPECT_EQ(run.TextOf(PageId::frmP1, 21), "75.590") << "it is in the proposal";
    commands::Run(run.program, CommandId::mnuFilePrintAll);
    EXPECT_TRUE(Printed(run, "75.59"));
}

TEST(FreshFigures, FocusAndCursorStay) {
    HalfTyped run;
    const FieldRef field{PageId::frmP1, FieldKind::txt, 21};
    modFigures::TakeFresh(run.program);
    EXPECT_EQ(run.program.main.Focus, field);
    EXPECT_EQ(run.Area(PageId::frmP1, 21).SelStart, 4);
    EXPECT_EQ(run.Area(PageId::frmP1, 21).SelLength, 0);
    EXPECT_EQ(run.Area(PageId::frmP1, 21).BackColor, colors::kFocused);

    Typist typist(run.program);
    typist.Click(PageId::frmP1, 22);
    typist.Type("1250");
    modFigures::TakeFresh(run.program);
    EXPECT_EQ(run.TextOf(PageId::frmP1, 22), "1,250.00");
    EXPECT_EQ(run.Area(PageId::frmP1, 22).SelStart, 5) << "still behind the 0 of 1250";
    typist.PutCursor(0, 8);
    run.Area(PageId::frmP1, 22).Text = "1250.000";
    modFigures::TakeFresh(run.program);
    EXPECT_EQ(run.Area(PageId::frmP1, 22).SelStart, 0);
    EXPECT_EQ(run.Area(PageId::frmP1, 22).SelLength, 8) << "all of it stays marked";
}

TEST(FreshFigures, TheStripTellsWhereTheCursorIsThen) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(PageId::frmP1, 20);
    typist.Type("1250");
    EXPECT_EQ(run.program.main.lblCurPos.Caption, "Cursor Location = 4");
    modFigures::TakeFresh(run.program);
    ASSERT_EQ(run.TextOf(PageId::frmP1, 20), "1,250.00");
    EXPECT_EQ(run.program.main.lblCurPos.Caption, "Cursor Location = 5");
}

TEST(FreshFigures, TheOnlyAmountOfAProposalIsOnItsContract) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(PageId::frmP2, 33);
    typist.Type("400");
    commands::Run(run.program, CommandId::mnuFilePrintAll);
    EXPECT_EQ(Figures(run), (Texts{"400.00", "400.00", "33.00", "433.00", "0.00", "433.00"}));
    EXPECT_TRUE(Printed(run, "433.00"));
}

TEST(FreshFigures, AnAmountBeforeABandCounts) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(PageId::frmP2, 33);
    typist.Type("75.5");
    DrawBand(run, PageId::frmP2, 4000, 5500);
    ASSERT_TRUE(run.program.editing.BlockMode);
    typist.Click(PageId::frmP2, 0);
    commands::Run(run.program, CommandId::mnuFilePrintAll);
    // Tax on 75.50: 6.22875.
    EXPECT_EQ(Figures(run), (Texts{"75.50", "75.50", "6.23", "81.73", "0.00", "81.73"}));
    EXPECT_TRUE(Printed(run, "75.50"));
    EXPECT_EQ(run.program.document.CurrentTextBuf[PageId::frmP2][33], "75.50")
        << "the file has what the page shows";
}

TEST(FreshFigures, ASaveInsideAnAmountSaysNothingOfADiscrepancy) {
    HalfTyped run;
    run.program.document.FileName = "X.hef";
    run.program.document.BaseName = "X";
    run.surroundings.questions.Expect("File was saved as X.hef");
    commands::Run(run.program, CommandId::mnuFileSaveEvent);
    const std::string bytes = run.folder.Read("Proposals/X.hef");
    EXPECT_EQ(bytes.substr(20410, 8), "1,325.50");
    EXPECT_EQ(bytes.substr(20410 + 60, 8), "1,434.85");
    EXPECT_EQ(run.program.main.Focus, (FieldRef{PageId::frmP1, FieldKind::txt, 21}));
}

TEST(FreshFigures, ARecalculationBeforePrintingLeavesNoBareTotal) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(PageId::frmP1, 20);
    typist.Type("6000");
    commands::Run(run.program, CommandId::mnuToolsRecalculate);
    // 6000 and 495 of tax.
    EXPECT_EQ(Figures(run)[3], "6495");
    commands::Run(run.program, CommandId::mnuFilePrintPage6);
    EXPECT_TRUE(Printed(run, "6,495.00"));
    EXPECT_FALSE(Printed(run, "6495"));
}

TEST(FreshFigures, ABoxUnderTheCursorMakesItsProduct) {
    RunningProgram run;
    run.program.editing.CurrentArea = 10;
    run.program.main.CurrentPage = 0;
    Typist typist(run.program);
    typist.Click(PageId::frmP1, 10);
    typist.Press(keys::kF8);
    typist.Type("3");
    typist.Press(keys::kEnter);
    typist.Press(keys::kEnter);
    ASSERT_EQ(run.program.main.Focus, (FieldRef{PageId::frmP1, FieldKind::txtAmt, 10}));
    typist.Type("19.9");
    modFigures::TakeFresh(run.program);
    EXPECT_EQ(run.program.pages[PageId::frmP1].txtAmt[10].Text, "19.90");
    EXPECT_EQ(run.TextOf(PageId::frmP1, 20), "59.70");
    EXPECT_EQ(run.program.main.Focus, (FieldRef{PageId::frmP1, FieldKind::txtAmt, 10}));
    EXPECT_EQ(run.program.pages[PageId::frmP1].txtAmt[10].SelStart, 4);
    EXPECT_EQ(Figures(run)[0], "59.70");
}

TEST(FreshFigures, ADepositUnderTheCursorIsOnTheContract) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(PageId::frmP1, 20);
    typist.Type("100");
    typist.Click(PageId::frmP6, 4);
    typist.Type("12.5");
    commands::Run(run.program, CommandId::mnuFilePrintPage6);
    EXPECT_TRUE(Printed(run, "12.50"));
    EXPECT_TRUE(Printed(run, "95.75"));
    EXPECT_EQ(run.Area(PageId::frmP6, 4).SelStart, 4);
}

TEST(FreshFigures, AStandingCompletionIsTaken) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(PageId::frmP2, 0);
    typist.Type("flow");
    run.program.editing.ACActive[PageId::frmP2] = true;
    modFields::TypeText(run.program, {PageId::frmP2, FieldKind::txt, 0}, "flowers", 4, 3);
    EXPECT_EQ(run.program.document.CurrentTextBuf[PageId::frmP2][0], "flow");
    modFigures::TakeFresh(run.program);
    EXPECT_FALSE(run.program.editing.ACActive[PageId::frmP2]);
    EXPECT_EQ(run.program.document.CurrentTextBuf[PageId::frmP2][0], "flowers");
}

TEST(FreshFigures, MatchTheFieldsWhateverColourTheButtonHas) {
    RunningProgram run;
    run.Area(PageId::frmP3, 40).Text = "250";
    run.program.totals.TotalsStale = false;
    modFigures::TakeFresh(run.program);
    EXPECT_EQ(Figures(run)[0], "250.00");
    EXPECT_EQ(run.program.totals.AmountTable[40][PageId::frmP3], 250);
    EXPECT_EQ(run.program.totals.PageSum[PageId::frmP3], 250);
}

TEST(FreshFigures, HiddenTotalsStayHidden) {
    HalfTyped run;
    commands::Run(run.program, CommandId::mnuOptHideTotals);
    commands::Run(run.program, CommandId::mnuFilePrintAll);
    EXPECT_EQ(Figures(run)[0], "");
    EXPECT_EQ(Figures(run)[3], "");
    EXPECT_EQ(run.TextOf(PageId::frmP1, 21), "75.50");
}

} // namespace
