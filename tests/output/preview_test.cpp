#include "output/preview.h"

#include "pages/fields.h"
#include "pages/row_fields.h"
#include "program/program.h"
#include "support/person.h"
#include "support/running_program.h"
#include "support/typist.h"

#include <gtest/gtest.h>

namespace {

TEST(Preview, FlipsTheCaptionAndTheTwoEntriesAreOpposite) {
    RunningProgram run;
    MainWindow& main = run.program.main;
    EXPECT_TRUE(main[CommandId::mnuFilePrintPreview].Enabled);
    EXPECT_FALSE(main[CommandId::mnuFileResume].Enabled);
    person::Choose(run.program, CommandId::mnuFilePrintPreview);
    EXPECT_EQ(main.cmdPreview.Caption, "Resume Editing");
    EXPECT_FALSE(main[CommandId::mnuFilePrintPreview].Enabled);
    EXPECT_TRUE(main[CommandId::mnuFileResume].Enabled);
    EXPECT_TRUE(run.program.pages[PageId::frmP1].InkShown);
    EXPECT_EQ(run.program.printing.PrintFormName, "frmP1");
    person::Choose(run.program, CommandId::mnuFileResume);
    EXPECT_EQ(main.cmdPreview.Caption, "Print Preview");
    EXPECT_TRUE(main[CommandId::mnuFilePrintPreview].Enabled);
    EXPECT_FALSE(main[CommandId::mnuFileResume].Enabled);
    EXPECT_FALSE(run.program.pages[PageId::frmP1].InkShown);
}

TEST(Preview, ChangesNothingOfTheProposal) {
    RunningProgram run;
    TypeJaneRoe(run);
    person::TurnTo(run.program, 1);
    run.program.pages[PageId::frmP2].imgNoTax[33].Tag.clear();
    run.program.pages[PageId::frmP2].imgNoTax[33].Visible = true;
    person::ClickPreviewButton(run.program); // the figures follow the mark
    person::ClickPreviewButton(run.program);
    ASSERT_TRUE(run.program.pages[PageId::frmP2].imgNoTax[33].Visible);
    const Page before = run.program.pages[PageId::frmP2];
    const float total = run.program.totals.Total;
    person::ClickPreviewButton(run.program);
    person::ClickPreviewButton(run.program);
    const Page& after = run.program.pages[PageId::frmP2];
    EXPECT_EQ(after.txt, before.txt);
    EXPECT_EQ(after.lbl, before.lbl);
    EXPECT_EQ(after.imgNoTax, before.imgNoTax);
    EXPECT_EQ(after.txtQty, before.txtQty);
    EXPECT_EQ(after.txtAmt, before.txtAmt);
    EXPECT_EQ(after.lblAt, before.lblAt);
    EXPECT_EQ(after.lblEach, before.lblEach);
    EXPECT_EQ(after.lne, before.lne);
    EXPECT_EQ(after.pic, before.pic);
    EXPECT_EQ(run.program.totals.Total, total);
}

TEST(Preview, ResumingShowsWhatIsNotTaggedHide) {
    RunningProgram run;
    run.Label(PageId::frmP1, 9).Visible = false;
    run.Label(PageId::frmP1, 10).Visible = true;
    run.Label(PageId::frmP1, 10).Tag = kHide;
    modPreview::TogglePreview(run.program);
    modPreview::TogglePreview(run.program);
    EXPECT_TRUE(run.Label(PageId::frmP1, 9).Visible);
    EXPECT_FALSE(run.Label(PageId::frmP1, 10).Visible);
}

TEST(Preview, EndsWhenAPageIsChosen) {
    for (int from = 0; from < kEditedPageCount; ++from) {
        for (int to = 0; to < kPageCount; ++to) {
            RunningProgram run;
            person::TurnTo(run.program, from);
            modPreview::TogglePreview(run.program);
            ASSERT_TRUE(run.program.pages[PageAt(from)].InkShown);
            person::TurnTo(run.program, to);
            EXPECT_EQ(run.program.main.cmdPreview.Caption, "Print Preview");
            EXPECT_FALSE(run.program.pages[PageAt(from)].InkShown);
            EXPECT_FALSE(run.program.pages[PageAt(to)].InkShown);
            EXPECT_TRUE(run.program.main[CommandId::mnuFilePrintPreview].Enabled);
            EXPECT_FALSE(run.program.main[CommandId::mnuFileResume].Enabled);
        }
    }
}

TEST(Preview, OfTheClientsCopyShowsThatPagesPaper) {
    RunningProgram run;
    person::TurnTo(run.program, 2);
    person::TurnTo(run.program, 6);
    const int drawn = run.program.pages[PageId::frmP6_1].InkVersion;
    modPreview::TogglePreview(run.program);
    EXPECT_TRUE(run.program.pages[PageId::frmP6_1].InkShown);
    EXPECT_GT(run.program.pages[PageId::frmP6_1].InkVersion, drawn);
    EXPECT_FALSE(run.program.pages[PageId::frmP3].InkShown);
    EXPECT_EQ(run.program.printing.PrintFormName, "frmP6_1");
    modPreview::TogglePreview(run.program);
    EXPECT_FALSE(run.program.pages[PageId::frmP6_1].InkShown);
    modPreview::TogglePreview(run.program);
    person::TurnTo(run.program, 0);
    EXPECT_FALSE(run.program.pages[PageId::frmP6_1].InkShown);
    EXPECT_EQ(run.program.main.cmdPreview.Caption, "Print Preview");
}

TEST(Preview, NumbersThePagesThatAreInUseNow) {
    RunningProgram run;
    modFields::SetText(run.program, {PageId::frmP3, FieldKind::txt, 0}, "Tent");
    modPreview::TogglePreview(run.program);
    EXPECT_EQ(run.Label(PageId::frmP1, 31).Caption, "Page 1 of 4");
    EXPECT_EQ(run.Label(PageId::frmP6, 63).Caption, "Page 4 of 4");
}

TEST(Preview, ResumingShowsTheBoxesOfThePageAgain) {
    RunningProgram run;
    for (const PageId id : {PageId::frmP1, PageId::frmP6, PageId::frmP6_1}) {
        Page& page = run.program.pages[id];
        ASSERT_FALSE(page.lne.empty());
        for (PageLine& line : page.lne) {
            line.Visible = false;
        }
        modPreview::ResumeEditing(run.program, id);
        for (const PageLine& line : page.lne) {
            EXPECT_TRUE(line.Visible);
        }
    }
}

TEST(Preview, StaysWhenTheWindowChangesItsSize) {
    RunningProgram run;
    modPreview::TogglePreview(run.program);
    run.program.main.ClientHeight = 7000;
    person::ResizeWindow(run.program);
    EXPECT_TRUE(run.program.pages[PageId::frmP1].InkShown);
}

TEST(Preview, TakesNoCharacters) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(PageId::frmP1, 2);
    modPreview::TogglePreview(run.program);
    typist.Type("Jane");
    EXPECT_EQ(run.TextOf(PageId::frmP1, 2), "");
    modPreview::TogglePreview(run.program);
    typist.Type("Jane");
    EXPECT_EQ(run.TextOf(PageId::frmP1, 2), "Jane");
}

TEST(Preview, RefusesTheCommandsThatEditThePage) {
    RunningProgram run;
    Typist typist(run.program);
    person::TurnTo(run.program, 1);
    typist.Click(PageId::frmP2, 0);
    modPreview::TogglePreview(run.program);
    run.surroundings.questions.ExpectBox({"Please click \"Resume Editing\" first.", Buttons::Ok, ""},
                                         Answer::Ok);
    person::Choose(run.program, CommandId::mnuEditTextColumns);
    run.surroundings.questions.Done();
    EXPECT_EQ(run.Area(PageId::frmP2, 0).Width, 8640);
    person::Choose(run.program, CommandId::mnuFilePrintPage2);
    EXPECT_EQ(run.surroundings.printers.Named.size(), 1U) << "printing goes on";
}

TEST(Preview, IsDrawnAnewWhenAPageIsPrintedMeanwhile) {
    RunningProgram run;
    run.program.document.CurrentTextBuf[PageId::frmP1][2] = "Jane";
    modPreview::TogglePreview(run.program);
    const int drawn = run.program.pages[PageId::frmP1].InkVersion;
    run.surroundings.events.OnYield = [&] {
        EXPECT_EQ(run.Label(PageId::frmP1, 31).Caption, "Page 1 of 2");
        EXPECT_GT(run.program.pages[PageId::frmP1].InkVersion, drawn) << "with the new numbers";
    };
    person::Choose(run.program, CommandId::mnuFilePrintPage6);
    EXPECT_GT(run.program.pages[PageId::frmP1].InkVersion, drawn);
    EXPECT_TRUE(run.program.pages[PageId::frmP1].InkShown) << "and it stays";
    EXPECT_EQ(run.program.main.cmdPreview.Caption, "Resume Editing");
}

TEST(Preview, BringsTheTotalsUpToDateWhenTheButtonIsRed) {
    RunningProgram run;
    Typist typist(run.program);
    person::TurnTo(run.program, 1);
    typist.Click(PageId::frmP2, 33);
    typist.Type("20");
    typist.Click(PageId::frmP2, 0);
    run.Area(PageId::frmP6, 0).Text = "stale";
    run.program.totals.TotalsStale = true;
    modPreview::TogglePreview(run.program);
    EXPECT_EQ(run.TextOf(PageId::frmP6, 0), "20.00");
}

TEST(Preview, ResumingShowsEveryKindOfControlThatIsNotTaggedHide) {
    RunningProgram run;
    Page& page = run.program.pages[PageId::frmP2];
    modPages::EnsureRowFields(run.program, PageId::frmP2);
    const auto each = [&](const auto& visit) {
        for (auto* fields : {&page.txt, &page.txtQty, &page.txtAmt}) {
            for (TextArea& field : *fields) {
                visit(field);
            }
        }
        for (auto* labels : {&page.lbl, &page.lblAt, &page.lblEach}) {
            for (PageLabel& label : *labels) {
                visit(label);
            }
        }
        for (auto& mark : page.imgNoTax) {
            visit(mark);
        }
    };
    int odd = 0;
    each([&](auto& control) {
        control.Tag = ++odd % 2 == 0 ? "" : std::string(kHide);
        control.Visible = odd % 2 != 0;
    });
    modPreview::ResumeEditing(run.program, PageId::frmP2);
    each([&](const auto& control) { EXPECT_EQ(control.Visible, control.Tag != kHide); });
}

} // namespace
