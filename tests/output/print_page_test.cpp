#include "output/print_page.h"

#include "pages/row_fields.h"
#include "program/program.h"
#include "support/person.h"
#include "support/recording_platform.h"
#include "support/running_program.h"
#include "support/typist.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <map>
#include <set>

namespace {

using What = DrawCall::What;

/// Pages of a few fields only, so that every call can be foreseen.
struct BarePages {
    RecordingPlatform surroundings;
    Program program{surroundings.platform};

    BarePages() {
        for (const PageId page : kAllPages) {
            program.pages[page].Id = page;
        }
        program.pages[PageId::frmP1].txt.push_back(Hidden());
    }
    static TextArea Hidden() {
        TextArea area;
        area.Tag = kHide;
        return area;
    }
    static TextArea At(float left, float top, std::string text) {
        TextArea area;
        area.Left = left;
        area.Top = top;
        area.Width = 1260;
        area.Text = std::move(text);
        return area;
    }
    RecordingPrinter& Paper() { return surroundings.printers.Paper; }
    const std::vector<DrawCall>& Draw(PageId page) {
        modPrint::DrawPage(program, Paper(), page);
        return Paper().Calls;
    }
};

bool Printed(RunningProgram& run, std::string_view text) {
    const auto& documents = run.surroundings.printers.Paper.Documents;
    return !documents.empty() &&
           std::any_of(documents.back().begin(), documents.back().end(),
                       [&](const DrawCall& call) { return call.Op == What::Print && call.Text == text; });
}

TEST(DrawPage, TakesTheFieldsInTheOrderOfTheirArraysAndTheLogoLast) {
    BarePages bare;
    Page& page = bare.program.pages[PageId::frmP1];
    page.txt = {BarePages::At(100, 200, "area 0"), BarePages::At(100, 300, "")};
    page.lbl.resize(2);
    page.lbl[0].Caption = "label 0";
    page.lbl[0].Left = 10;
    page.lbl[0].Top = 20;
    page.lbl[1].Caption = "label 1";
    page.imgNoTax.resize(1);
    page.imgNoTax[0].Left = 9540;
    page.imgNoTax[0].Top = 10260;
    page.txtQty = {BarePages::At(900, 10260, "2")};
    page.txtAmt = {BarePages::At(8000, 10260, "3.50")};
    page.lblAt.resize(1);
    page.lblAt[0].Caption = "@";
    page.lblEach.resize(1);
    page.lblEach[0].Caption = "ea.";
    page.lblEach[0].ForeColor = 0x0000FF;
    page.lne = {{1, 2, 3, 4, false}};
    page.HasLogo = true;
    page.pic.Picture = {PictureRef::Source::File, "logo.bmp"};
    page.pic.Left = 1440;
    page.pic.Top = 720;
    page.shpSelect.Visible = true;

    const auto& calls = bare.Draw(PageId::frmP1);
    const std::vector<std::pair<What, std::string>> expected{{What::Print, "area 0"},
                                                             {What::Print, ""},
                                                             {What::Print, "label 0"},
                                                             {What::Print, "label 1"},
                                                             {What::PaintPicture, "no tax mark"},
                                                             {What::Print, "2"},
                                                             {What::Print, "3.50"},
                                                             {What::Print, "@"},
                                                             {What::Print, "ea."},
                                                             {What::Line, ""},
                                                             {What::PaintPicture, "logo.bmp"}};
    ASSERT_EQ(calls.size(), expected.size());
    for (std::size_t at = 0; at < expected.size(); ++at) {
        EXPECT_EQ(calls[at].Op, expected[at].first) << at;
        EXPECT_EQ(calls[at].Text, expected[at].second) << at;
    }
    EXPECT_EQ(calls[0].X, 100);
    EXPECT_EQ(calls[0].Y, 200);
    EXPECT_EQ(calls[2].X, 10);
    EXPECT_EQ(calls[2].Y, 20);
    EXPECT_EQ(calls[4].X, 9540);
    EXPECT_EQ(calls[4].Y, 10260);
    EXPECT_EQ(calls[4].Size, (PictureSize{225, 225}));
    EXPECT_EQ(calls[9].X, 1);
    EXPECT_EQ(calls[9].Y, 2);
    EXPECT_EQ(calls[9].X2, 3);
    EXPECT_EQ(calls[9].Y2, 4);
    EXPECT_EQ(calls[8].ForeColor, 0x0000FFU);
    EXPECT_EQ(calls[9].ForeColor, colors::kBlack) << "a box does not take the colour of a label";
    EXPECT_EQ(calls[10].X, 1440);
    EXPECT_EQ(calls[10].Y, 720);
    EXPECT_EQ(calls[10].Size, bare.program.pages[PageId::frmP1].pic.Size) << "as large as on the page";
}

/// The rule is 15 twips wide; its middle runs half of that within the picture.
TEST(DrawPage, ALogoWithABorderHasItWithinItsFourSides) {
    BarePages bare;
    Page& page = bare.program.pages[PageId::frmP1];
    page.txt.clear();
    page.HasLogo = true;
    page.pic.Picture = {PictureRef::Source::File, "logo.bmp"};
    page.pic.Left = 1440;
    page.pic.Top = 720;
    page.pic.Size = {3000, 1500};
    page.pic.BorderStyle = 1;
    bare.Paper().ScaleLeft = 100;
    bare.Paper().ScaleTop = 10;
    const auto& calls = bare.Draw(PageId::frmP1);
    ASSERT_EQ(calls.size(), 5U);
    EXPECT_EQ(calls[0].Op, What::PaintPicture);
    EXPECT_EQ(calls[0].X, 1540);
    EXPECT_EQ(calls[0].Y, 730);
    // Each by its ends, from the left and from above.
    std::set<std::array<float, 4>> sides;
    for (std::size_t side = 1; side < calls.size(); ++side) {
        EXPECT_EQ(calls[side].Op, What::Line);
        sides.insert({calls[side].X, calls[side].Y, calls[side].X2, calls[side].Y2});
    }
    EXPECT_EQ(sides, (std::set<std::array<float, 4>>{{1547.5F, 737.5F, 4532.5F, 737.5F},
                                                     {4532.5F, 737.5F, 4532.5F, 2222.5F},
                                                     {1547.5F, 2222.5F, 4532.5F, 2222.5F},
                                                     {1547.5F, 737.5F, 1547.5F, 2222.5F}}));
}

TEST(DrawPage, ALogoThatIsHiddenOrHasNoPictureIsNotDrawnAndNeitherIsOneOfAPageWithoutLogo) {
    const auto pictures = [](void (*change)(Page&)) {
        BarePages bare;
        Page& page = bare.program.pages[PageId::frmP1];
        page.HasLogo = true;
        page.pic.Picture = {PictureRef::Source::File, "logo.bmp"};
        page.pic.Size = {1000, 500};
        change(page);
        const std::vector<DrawCall>& calls = bare.Draw(PageId::frmP1);
        return std::count_if(calls.begin(), calls.end(),
                             [](const DrawCall& call) { return call.Op == What::PaintPicture; });
    };
    EXPECT_EQ(pictures([](Page&) {}), 1);
    EXPECT_EQ(pictures([](Page& page) { page.pic.Tag = kHide; }), 0);
    EXPECT_EQ(pictures([](Page& page) { page.pic.Picture = {}; }), 0);
    EXPECT_EQ(pictures([](Page& page) { page.HasLogo = false; }), 0);
}

TEST(DrawPage, GoesByTheTagAndNotByVisibility) {
    BarePages bare;
    Page& page = bare.program.pages[PageId::frmP2];
    page.txt = {BarePages::At(0, 0, "hidden, prints"), BarePages::Hidden(),
                BarePages::At(0, 0, "shown, tagged")};
    page.txt[0].Visible = false;
    page.txt[2].Visible = true;
    page.txt[2].Tag = kHide;
    page.lbl.resize(2);
    page.lbl[0].Caption = "label, prints";
    page.lbl[1].Caption = "label, tagged";
    page.lbl[1].Tag = kHide;
    page.lbl[1].Visible = true;
    page.imgNoTax.resize(1);
    page.imgNoTax[0].Tag = kHide;
    const auto& calls = bare.Draw(PageId::frmP2);
    ASSERT_EQ(calls.size(), 2U);
    EXPECT_EQ(calls[0].Text, "hidden, prints");
    EXPECT_EQ(calls[1].Text, "label, prints");
}

TEST(DrawPage, PrintsAreasInTheDefaultColourAndLabelsInTheirOwn) {
    BarePages bare;
    bare.program.run.DefaultFontColor = 0x123456;
    Page& page = bare.program.pages[PageId::frmP2];
    page.txt = {BarePages::At(0, 0, "area")};
    page.txt[0].ForeColor = 0x0000FF;
    page.txt[0].FontName = "Arial";
    page.txt[0].FontSize = 12;
    page.txt[0].FontItalic = true;
    page.lbl.resize(1);
    page.lbl[0].Caption = "label";
    page.lbl[0].ForeColor = 0x0000FF;
    page.lbl[0].FontBold = true;
    page.lbl[0].FontName = "Courier New";
    page.lbl[0].FontItalic = false;
    page.lbl[0].FontUnderline = true;
    page.txtQty = {BarePages::At(0, 0, "quantity")};
    page.txtQty[0].FontBold = true;
    page.txtAmt = {BarePages::At(0, 0, "price")};
    page.lblEach.resize(1);
    page.lblEach[0].FontItalic = true;
    const auto& calls = bare.Draw(PageId::frmP2);
    ASSERT_EQ(calls.size(), 5U);
    EXPECT_EQ(calls[0].ForeColor, 0x123456U);
    EXPECT_EQ(calls[0].Font, "Arial");
    EXPECT_EQ(calls[0].FontSize, 12);
    EXPECT_TRUE(calls[0].Italic);
    EXPECT_FALSE(calls[0].Bold);
    EXPECT_EQ(calls[1].ForeColor, 0x0000FFU);
    EXPECT_EQ(calls[1].Font, "Courier New");
    EXPECT_EQ(calls[1].FontSize, 9.75F);
    EXPECT_TRUE(calls[1].Bold);
    EXPECT_FALSE(calls[1].Italic) << "the area's italics end with the area";
    EXPECT_TRUE(calls[1].Underline);
    EXPECT_FALSE(calls[2].Underline) << "the label's underline ends with the label";
    EXPECT_EQ(calls[2].ForeColor, 0x123456U);
    EXPECT_TRUE(calls[2].Bold);
    EXPECT_FALSE(calls[3].Bold) << "nor is the price bold after its quantity";
    EXPECT_TRUE(calls[4].Italic);
}

/// Each of twelve characters measures 100, so a right-aligned text begins 1200 left of its field's right
/// edge.
TEST(DrawPage, AlignsToTheRightByPageAndIndexOnly) {
    const std::map<PageId, std::set<int>> right{{PageId::frmP1, {1, 20, 21, 22, 23, 24, 25, 26, 27, 28, 29}},
                                                {PageId::frmP2, {33, 65}},
                                                {PageId::frmP3, {33, 65}},
                                                {PageId::frmP4, {33, 65}},
                                                {PageId::frmP5, {33, 65}},
                                                {PageId::frmP6, {0, 1, 2, 3, 4, 5}},
                                                {PageId::frmP6_1, {0, 1, 2, 3, 4, 5}}};
    const std::map<PageId, std::vector<int>> tried{
        {PageId::frmP1, {0, 1, 2, 9, 10, 19, 20, 21, 22, 23, 24, 25, 26, 27, 28, 29}},
        {PageId::frmP2, {0, 1, 32, 33, 65}},
        {PageId::frmP3, {0, 32, 33, 65}},
        {PageId::frmP4, {0, 32, 33, 65}},
        {PageId::frmP5, {0, 32, 33, 65}},
        {PageId::frmP6, {0, 1, 2, 3, 4, 5}},
        {PageId::frmP6_1, {0, 1, 2, 3, 4, 5}}};
    for (const auto& [page, indices] : tried) {
        for (const int index : indices) {
            BarePages bare;
            bare.program.printing.PrintFormName = "frmP6"; // the page counts, not the name
            auto& areas = bare.program.pages[page].txt;
            areas.assign(static_cast<std::size_t>(index) + 1, BarePages::Hidden());
            areas.back() = BarePages::At(5000, 0, "twelve chars");
            const auto& calls = bare.Draw(page);
            ASSERT_EQ(calls.size(), 1U);
            const float expected = right.at(page).contains(index) ? 5000.0F + 1260 - 1200 : 5000.0F;
            EXPECT_EQ(calls[0].X, expected) << IndexOf(page) << " txt " << index;
        }
    }
}

TEST(DrawPage, PrintsRowFieldsFromTheirLeft) {
    BarePages bare;
    Page& page = bare.program.pages[PageId::frmP6];
    page.txtQty = {BarePages::At(300, 0, "12")};
    page.txtAmt = {BarePages::At(700, 0, "3.50")};
    const auto& calls = bare.Draw(PageId::frmP6);
    ASSERT_EQ(calls.size(), 2U);
    EXPECT_EQ(calls[0].X, 300);
    EXPECT_EQ(calls[1].X, 700);
}

TEST(DrawPage, ARowWithColumnsAndNothingInItPrintsNoSigns) {
    RunningProgram run;
    Page& page = run.program.pages[PageId::frmP2];
    modPages::PlaceColumns(run.program, PageId::frmP2, 3, modPages::Columns::On);
    page.txtQty[3].Text = "";
    page.txtAmt[3].Text = "";
    const auto signs = [&] {
        auto& calls = run.surroundings.printers.Paper.Calls;
        calls.clear();
        modPrint::DrawPage(run.program, run.surroundings.printers.Paper, PageId::frmP2);
        return std::count_if(calls.begin(), calls.end(), [](const DrawCall& call) {
            return call.Op == What::Print && (call.Text == "@ $" || call.Text == "ea.");
        });
    };
    EXPECT_EQ(signs(), 0);
    for (TextArea* field : {&page.txtQty[3], &page.txt[3], &page.txtAmt[3], &page.txt[36]}) {
        field->Text = "1";
        EXPECT_EQ(signs(), 2);
        field->Text = "";
    }
}

TEST(DrawPage, UnderlinesBoldRowsOfFullWidthAlsoWithoutText) {
    BarePages bare;
    bare.program.printing.UnderlineCategories = true;
    Page& page = bare.program.pages[PageId::frmP3];
    for (int row = 0; row < 4; ++row) {
        TextArea area = BarePages::At(900, 1800.0F + 360.0F * static_cast<float>(row), "Food");
        area.Width = 8640;
        area.Height = 255;
        area.FontBold = true;
        page.txt.push_back(area);
    }
    page.txt[1].Text.clear();
    page.txt[2].Width = 6270; // a row with columns
    page.txt[3].FontBold = false;
    const auto& calls = bare.Draw(PageId::frmP3);
    ASSERT_EQ(calls.size(), 6U);
    EXPECT_EQ(calls[1].Op, What::Line);
    EXPECT_EQ(calls[1].X, 720);
    EXPECT_EQ(calls[1].Y, 2055);
    EXPECT_EQ(calls[1].X2, 11520);
    EXPECT_EQ(calls[1].Y2, 2055);
    EXPECT_EQ(calls[2].Text, "");
    EXPECT_EQ(calls[3].Op, What::Line);
    EXPECT_EQ(calls[3].Y, 2415);
    EXPECT_EQ(calls[4].Op, What::Print);
    EXPECT_EQ(calls[5].Op, What::Print);
}

TEST(DrawPage, DrawsNoCategoryLinesUnlessAskedTo) {
    BarePages bare;
    TextArea area = BarePages::At(900, 1800, "Food");
    area.Width = 8640;
    area.FontBold = true;
    bare.program.pages[PageId::frmP2].txt = {area};
    EXPECT_EQ(bare.Draw(PageId::frmP2).size(), 1U);
}

TEST(PrintTheForm, MakesOneDocumentOfAPageAndPutsThePrintersFontBack) {
    BarePages bare;
    bare.program.pages[PageId::frmP1].txt[0].FontName = "Arial";
    bare.program.pages[PageId::frmP1].txt[0].FontSize = 11;
    Page& page = bare.program.pages[PageId::frmP2];
    page.lbl.resize(1);
    page.lbl[0].Caption = "label";
    page.lbl[0].FontBold = page.lbl[0].FontItalic = page.lbl[0].FontUnderline = true;
    page.lbl[0].FontName = "Arial";
    bare.Paper().Font = "Courier New";
    bare.Paper().FontSize = 7;
    modPrint::PrintTheForm(bare.program, PageId::frmP2);
    ASSERT_EQ(bare.Paper().Documents.size(), 1U);
    const auto& calls = bare.Paper().Documents[0];
    ASSERT_EQ(calls.size(), 2U);
    EXPECT_EQ(calls[0].Op, What::Print);
    EXPECT_EQ(calls[1].Op, What::EndDoc);
    EXPECT_EQ(calls[1].Font, "Courier New") << "the label's font ends with the page";
    EXPECT_EQ(calls[1].FontSize, 7);
    EXPECT_EQ(bare.surroundings.events.Yields, 1);
    EXPECT_EQ(bare.Paper().Font, "Arial");
    EXPECT_EQ(bare.Paper().FontSize, 11);
    EXPECT_FALSE(bare.Paper().FontBold);
    EXPECT_FALSE(bare.Paper().FontItalic);
    EXPECT_FALSE(bare.Paper().FontUnderline);
}

TEST(PrintTheForm, KeepsHandlersSilentWhileItDrawsAndNoLonger) {
    BarePages bare;
    bool silent = false;
    bare.program.pages[PageId::frmP2].txt = {BarePages::At(0, 0, "first")};
    bare.Paper().OnEndDoc = [&] { silent = bare.program.guards.HandlersSilent(); };
    modPrint::PrintTheForm(bare.program, PageId::frmP2);
    EXPECT_TRUE(silent);
    EXPECT_FALSE(bare.program.guards.HandlersSilent());
}

TEST(PrintTheForm, GivesOffsetsToTheScaleOriginAndLeavesTheLogoUnmoved) {
    BarePages bare;
    bare.program.printing.PrinterOffsetX = 360;
    bare.program.printing.PrinterOffsetY = -144;
    Page& page = bare.program.pages[PageId::frmP1];
    page.txt = {BarePages::At(1080, 4500, "x")};
    page.HasLogo = true;
    page.pic.Picture = {PictureRef::Source::File, "logo.bmp"};
    page.pic.Left = 1440;
    page.pic.Top = 720;
    modPrint::PrintTheForm(bare.program, PageId::frmP1);
    const auto calls = bare.Paper().Documents.at(0);
    EXPECT_EQ(calls[0].ScaleLeft, 360);
    EXPECT_EQ(calls[0].ScaleTop, -144);
    EXPECT_EQ(calls[0].X, 1080);
    EXPECT_EQ(calls[1].X, 1800);
    EXPECT_EQ(calls[1].Y, 576);

    bare.program.printing.PrinterOffsetX = 0;
    bare.program.printing.PrinterOffsetY = 0;
    modPrint::PrintTheForm(bare.program, PageId::frmP1);
    EXPECT_EQ(bare.Paper().Documents.at(1)[0].ScaleLeft, 0);
    EXPECT_EQ(bare.Paper().Documents.at(1)[0].ScaleTop, 0);
}

TEST(PrintTheForm, LeavesTheScaleOriginAloneWithoutOffsets) {
    BarePages bare;
    bare.Paper().ScaleLeft = 77;
    bare.Paper().ScaleTop = 88;
    bare.program.printing.PrinterOffsetY = 144;
    bare.program.pages[PageId::frmP1].txt = {BarePages::At(1080, 4500, "x")};
    modPrint::PrintTheForm(bare.program, PageId::frmP1);
    EXPECT_EQ(bare.Paper().Documents.at(0)[0].ScaleLeft, 77);
    EXPECT_EQ(bare.Paper().Documents.at(0)[0].ScaleTop, 144);
}

TEST(PrintTheForm, TakesThePaperFromTheFirstPageAndBeginsInItsCorner) {
    BarePages bare;
    bare.program.pages[PageId::frmP1].Width = 12240;
    bare.program.pages[PageId::frmP1].Height = 15840;
    RecordingPrinter& paper = bare.Paper();
    paper.CurrentX = paper.CurrentY = paper.ScaleWidth = paper.ScaleHeight = 5;
    bool looked = false;
    bare.surroundings.events.OnYield = [&] {
        looked = true;
        EXPECT_EQ(paper.CurrentX, 0);
        EXPECT_EQ(paper.CurrentY, 0);
        EXPECT_EQ(paper.ScaleWidth, 12240);
        EXPECT_EQ(paper.ScaleHeight, 15840);
    };
    modPrint::PrintTheForm(bare.program, PageId::frmP2);
    EXPECT_TRUE(looked);
}

TEST(PrintTheForm, AfterAPrinterThatFailedTheNextPageIsADocumentOfItsOwn) {
    BarePages bare;
    bare.program.pages[PageId::frmP2].txt = {BarePages::At(0, 0, "first")};
    bare.program.pages[PageId::frmP3].txt = {BarePages::At(0, 0, "second")};
    bare.Paper().OnEndDoc = [] { throw std::runtime_error("jam"); };
    bare.surroundings.questions.Expect("jam");
    modPrint::PrintTheForm(bare.program, PageId::frmP2);
    bare.Paper().OnEndDoc = nullptr;
    modPrint::PrintTheForm(bare.program, PageId::frmP3);
    ASSERT_EQ(bare.Paper().Documents.size(), 1U);
    ASSERT_EQ(bare.Paper().Documents[0].size(), 2U);
    EXPECT_EQ(bare.Paper().Documents[0][0].Text, "second");
}

TEST(PrintTheForm, ReportsAPrinterThatFailsAndIsQuietAgain) {
    RunningProgram run;
    run.surroundings.printers.Paper.OnEndDoc = [] { throw std::runtime_error("out of paper"); };
    run.surroundings.questions.Expect("out of paper");
    modPrint::PrintTheForm(run.program, PageId::frmP2);
    EXPECT_NE(run.surroundings.questions.Shown.back().Text.find("PrintTheForm"), std::string::npos);
    EXPECT_FALSE(run.program.guards.Printing);
}

TEST(PrintTheForm, WhatIsTypedWhileEventsRunReachesTheProposal) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(PageId::frmP1, 8);
    run.surroundings.events.OnYield = [&] {
        run.surroundings.events.OnYield = nullptr;
        typist.Type("Hall");
    };
    modPrint::PrintTheForm(run.program, PageId::frmP1);
    EXPECT_EQ(run.TextOf(PageId::frmP1, 8), "Hall");
    EXPECT_EQ(run.program.document.CurrentTextBuf[PageId::frmP1][8], "Hall");
}

/// A thousand at 8.25 % makes 1082.5; the running figures write it with a comma and two decimals.
TEST(PrintTheForm, BringsTheTotalsUpToDateFirstWhenTheButtonIsRed) {
    RunningProgram run;
    Typist typist(run.program);
    person::TurnTo(run.program, 1);
    typist.Click(PageId::frmP2, 33);
    typist.Type("1000");
    typist.Click(PageId::frmP2, 0);
    run.Area(PageId::frmP6, 3).Text = "stale";
    run.program.totals.TotalsStale = true;
    modPrint::PrintTheForm(run.program, PageId::frmP6);
    EXPECT_EQ(run.TextOf(PageId::frmP6, 3), "1,082.50");
    EXPECT_EQ(run.Main().cmdReCalc.BackColor, colors::kButtonFace);
    EXPECT_TRUE(Printed(run, "1,082.50"));
    EXPECT_FALSE(Printed(run, "stale"));
}

/// The table of the menu: each entry prints its own page and no other.
TEST(PrintEntries, PrintTheirOwnPage) {
    const std::vector<std::pair<CommandId, std::string>> entries{
        {CommandId::mnuFilePrintPage1, "frmP1"},    {CommandId::mnuFilePrintPage2, "frmP2"},
        {CommandId::mnuFilePrintPage3, "frmP3"},    {CommandId::mnuFilePrintPage4, "frmP4"},
        {CommandId::mnuFilePrintPage5, "frmP5"},    {CommandId::mnuFilePrintPage6, "frmP6"},
        {CommandId::mnuFilePrintPage6_1, "frmP6_1"}};
    for (const auto& [entry, page] : entries) {
        RunningProgram run;
        person::Choose(run.program, entry);
        ASSERT_EQ(run.surroundings.printers.Named.size(), 1U);
        EXPECT_EQ(run.surroundings.printers.Named[0].first, page);
        EXPECT_EQ(run.program.printing.PrintFormName, page);
    }
}

TEST(PrintEntries, TheToolButtonPrintsAllPages) {
    RunningProgram run;
    run.program.document.CurrentTextBuf[PageId::frmP1][2] = "Jane";
    person::ClickPrintButton(run.program);
    EXPECT_EQ(run.surroundings.printers.Named.size(), 3U);
}

TEST(PrintEntries, TheCopiesOfTheFinalPageDifferInTheirSubtitle) {
    RunningProgram run;
    const auto captions = [&](CommandId entry) {
        person::Choose(run.program, entry);
        std::vector<std::string> texts;
        for (const DrawCall& call : run.surroundings.printers.Paper.Documents.back()) {
            texts.push_back(call.Text);
        }
        return texts;
    };
    const auto ours = captions(CommandId::mnuFilePrintPage6);
    const auto theirs = captions(CommandId::mnuFilePrintPage6_1);
    ASSERT_EQ(ours.size(), theirs.size());
    std::vector<std::pair<std::string, std::string>> different;
    for (std::size_t at = 0; at < ours.size(); ++at) {
        if (ours[at] != theirs[at]) {
            different.emplace_back(ours[at], theirs[at]);
        }
    }
    EXPECT_EQ(different, (std::vector<std::pair<std::string, std::string>>{
                             {"Proposal for (Client's Name) - Our Copy",
                              "Proposal for (Client's Name) - Client's Copy"}}));
}

TEST(PrintTheForm, UnderlinesCategoriesWhenTheOptionIsChecked) {
    RunningProgram run;
    run.Area(PageId::frmP2, 0).FontBold = true;
    const auto lines = [&] {
        modPrint::PrintTheForm(run.program, PageId::frmP2);
        const auto& calls = run.surroundings.printers.Paper.Documents.back();
        return std::count_if(calls.begin(), calls.end(),
                             [](const DrawCall& call) { return call.Op == What::Line; });
    };
    EXPECT_EQ(lines(), 0);
    person::Choose(run.program, CommandId::mnuOptUnderline);
    EXPECT_EQ(lines(), 1);
    person::Choose(run.program, CommandId::mnuOptUnderline);
    EXPECT_EQ(lines(), 0);
}

TEST(PrintTheForm, TakesTheTotalsFreshWhateverColourTheButtonHas) {
    RunningProgram run;
    run.Area(PageId::frmP6, 3).Text = "12.00";
    run.Area(PageId::frmP2, 33).Text = "100";
    modPrint::PrintTheForm(run.program, PageId::frmP6);
    EXPECT_FALSE(Printed(run, "12.00"));
    EXPECT_TRUE(Printed(run, "108.25"));
}

TEST(PrintTheForm, PrintsHiddenTotalsAsNothing) {
    RunningProgram run;
    Typist typist(run.program);
    person::TurnTo(run.program, 1);
    typist.Click(PageId::frmP2, 33);
    typist.Type("1000");
    typist.Click(PageId::frmP2, 0);
    person::Choose(run.program, CommandId::mnuOptHideTotals);
    modPrint::PrintTheForm(run.program, PageId::frmP6_1);
    EXPECT_FALSE(Printed(run, "1,000.00"));
    EXPECT_FALSE(Printed(run, "1,082.50"));
}

} // namespace
