#include "pages/row_fields.h"

#include "pages/page_defaults.h"
#include "pages/page_geometry.h"
#include "program/program.h"
#include "support/running_program.h"

#include <gtest/gtest.h>

namespace {

TEST(RowFields, AreMadeHiddenOnTheirRowsWhateverTheFirstOneLooksLike) {
    RunningProgram run;
    modPages::BuildPage(run.program, PageId::frmP2);
    Page& page = run.program.pages[PageId::frmP2];
    for (TextArea* box : {&page.txtQty[0], &page.txtAmt[0]}) {
        box->Visible = true;
        box->Tag.clear();
        box->BackColor = colors::kBlockSelected;
    }
    for (PageLabel* label : {&page.lblAt[0], &page.lblEach[0]}) {
        label->Visible = true;
        label->Tag.clear();
    }
    modPages::EnsureRowFields(run.program, PageId::frmP2);
    ASSERT_EQ(page.lblEach.size(), 33U);
    for (std::size_t row = 0; row < 33; ++row) {
        for (const TextArea* box : {&page.txtQty[row], &page.txtAmt[row]}) {
            EXPECT_FALSE(box->Visible) << row;
            EXPECT_EQ(box->Tag, kHide) << row;
            EXPECT_EQ(box->BackColor, colors::kRestingRowField) << row;
            EXPECT_EQ(box->Top, page.txt[row].Top) << row;
        }
        for (const PageLabel* label : {&page.lblAt[row], &page.lblEach[row]}) {
            EXPECT_FALSE(label->Visible) << row;
            EXPECT_EQ(label->Tag, kHide) << row;
            EXPECT_EQ(label->Top, page.txt[row].Top) << row;
            EXPECT_EQ(label->BackColor, colors::kRestingRowField) << row;
            EXPECT_EQ(label->BackStyle, 1) << row << ": opaque";
        }
    }
}

TEST(RowFields, BoxesAndTheirLabelsComeAndGoTogether) {
    RunningProgram run;
    const Page& page = run.program.pages[PageId::frmP3];
    for (const bool on : {true, false}) {
        modPages::PlaceColumns(run.program, PageId::frmP3, 7,
                               on ? modPages::Columns::On : modPages::Columns::Off);
        EXPECT_EQ(modPages::ColumnsOn(run.program, PageId::frmP3, 7), on);
        for (const TextArea* box : {&page.txtQty[7], &page.txtAmt[7]}) {
            EXPECT_EQ(box->Visible, on);
            EXPECT_EQ(box->Tag, on ? "" : kHide);
        }
        for (const PageLabel* label : {&page.lblAt[7], &page.lblEach[7]}) {
            EXPECT_EQ(label->Visible, on);
            EXPECT_EQ(label->Tag, on ? "" : kHide);
        }
        EXPECT_FALSE(page.lblAt[8].Visible) << "the next row's stay";
    }
}

TEST(RowFields, AFigureOfTheFinalPageIsKeptAsItStandsAndALineWithoutBlanksAroundIt) {
    RunningProgram run;
    run.Area(PageId::frmP6, 4).Text = " 500 ";
    run.Area(PageId::frmP2, 4).Text = " Chairs ";
    EXPECT_EQ(modPages::ComposeLine(run.program, PageId::frmP6, 4), " 500 ");
    EXPECT_EQ(modPages::ComposeLine(run.program, PageId::frmP2, 4), "Chairs");
}

TEST(RowFields, CurrencySignsAndExemptMarksAreHiddenWithTheirTags) {
    RunningProgram run;
    for (const PageId id : kAllPages) {
        Page& page = run.program.pages[id];
        for (PageLabel& label : page.lbl) {
            label.Visible = true;
            label.Tag.clear();
        }
        for (PageImage& image : page.imgNoTax) {
            image.Visible = true;
            image.Tag.clear();
        }
    }
    modPages::HideOptionalFields(run.program);
    for (const PageId id : kAllPages) {
        const Page& page = run.program.pages[id];
        for (const PageLabel& label : page.lbl) {
            const bool hidden = IsLinePage(id) && label.Caption == "$"; // the final page's signs stay
            EXPECT_EQ(label.Visible, !hidden) << page.Name;
            EXPECT_EQ(label.Tag, hidden ? kHide : "") << page.Name;
        }
        for (const PageImage& image : page.imgNoTax) {
            EXPECT_FALSE(image.Visible) << page.Name;
            EXPECT_EQ(image.Tag, kHide) << page.Name;
        }
    }
}

} // namespace
