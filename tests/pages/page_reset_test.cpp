#include "pages/page_defaults.h"
#include "pages/page_geometry.h"
#include "pages/row_fields.h"
#include "support/running_program.h"

#include <gtest/gtest.h>

namespace {

void Spoil(PageLabel& label) {
    label.Visible = true;
    label.Tag = "spoilt";
    label.FontName = "Courier New";
    label.FontSize = 30;
    label.FontBold = !label.FontBold;
    label.FontItalic = false;
    label.FontUnderline = true;
    label.ForeColor = 0xABCDEF;
    label.BackColor = 0xFEDCBA;
    label.BackStyle = 1;
}

/// Everything that formats, selections and the person change on a page.
void Spoil(Page& page) {
    for (PageLabel& label : page.lbl) {
        Spoil(label);
    }
    for (TextArea& area : page.txt) {
        area.FontBold = true;
        area.Visible = true;
    }
    for (int row = geometry::FirstRow(page.Id); row <= geometry::LastRow(page.Id); ++row) {
        page.txt[static_cast<std::size_t>(row)].Left = 5;
        page.txt[static_cast<std::size_t>(row)].Width = 6;
    }
    for (auto* boxes : {&page.txtQty, &page.txtAmt}) {
        for (TextArea& box : *boxes) {
            box.Text = "spoilt";
            box.Visible = true;
            box.Tag = "spoilt";
            box.BackColor = colors::kBlockSelected;
            box.ForeColor = colors::kWhite;
        }
    }
    for (auto* labels : {&page.lblAt, &page.lblEach}) {
        for (PageLabel& label : *labels) {
            label.Visible = true;
            label.Tag = "spoilt";
        }
    }
}

TEST(PageDefaults, BringBackEveryFieldOfEveryPage) {
    RunningProgram run;
    for (const PageId page : kAllPages) {
        if (IsLinePage(page)) {
            modPages::EnsureRowFields(run.program, page);
        }
        modPages::ApplyPageDefaults(run.program, page);
        const Page designed = run.program.pages[page];
        Spoil(run.program.pages[page]);
        modPages::ApplyPageDefaults(run.program, page);
        const Page& again = run.program.pages[page];
        for (std::size_t index = 0; index < designed.lbl.size(); ++index) {
            EXPECT_EQ(again.lbl[index], designed.lbl[index]) << again.Name << " label " << index;
        }
        for (const TextArea& area : again.txt) {
            EXPECT_FALSE(area.Visible) << again.Name << ": shown once everything stands";
            EXPECT_FALSE(area.FontBold) << again.Name;
        }
        for (std::size_t index = 0; index < designed.txt.size(); ++index) {
            EXPECT_EQ(again.txt[index], designed.txt[index]) << again.Name << " area " << index;
        }
        EXPECT_EQ(again.txtQty, designed.txtQty) << again.Name;
        EXPECT_EQ(again.txtAmt, designed.txtAmt) << again.Name;
        EXPECT_EQ(again.lblAt, designed.lblAt) << again.Name;
        EXPECT_EQ(again.lblEach, designed.lblEach) << again.Name;
        EXPECT_EQ(again.LabelBaseState, designed.LabelBaseState) << again.Name;
    }
}

TEST(PageDefaults, GiveEveryLabelTheSameLookButForSizeAndWeight) {
    RunningProgram run;
    for (const PageId page : kAllPages) {
        Spoil(run.program.pages[page]);
        modPages::ApplyPageDefaults(run.program, page);
        for (const PageLabel& label : run.program.pages[page].lbl) {
            EXPECT_FALSE(label.Visible) << label.Caption;
            EXPECT_EQ(label.Tag, "") << label.Caption;
            EXPECT_EQ(label.FontName, "Times New Roman") << label.Caption;
            EXPECT_TRUE(label.FontItalic) << label.Caption;
            EXPECT_FALSE(label.FontUnderline) << label.Caption;
            EXPECT_EQ(label.ForeColor, colors::kBlack) << label.Caption;
            EXPECT_EQ(label.BackColor, colors::kButtonFace) << label.Caption;
            EXPECT_EQ(label.BackStyle, 0) << label.Caption;
        }
    }
}

TEST(PageDefaults, TheHeadingsOfTheFiguresAndTheirSignsAreBoldOnTheFinalPages) {
    RunningProgram run;
    for (const PageId page : {PageId::frmP6, PageId::frmP6_1}) {
        modPages::ApplyPageDefaults(run.program, page);
        const Page& record = run.program.pages[page];
        for (std::size_t index = 0; index <= 13; ++index) {
            const bool bold = index >= 1 && index <= 12;
            EXPECT_EQ(record.lbl[index].FontBold, bold) << record.Name << " label " << index;
            EXPECT_EQ(record.LabelBaseState[index].FontBold, bold) << record.Name << " label " << index;
        }
    }
}

TEST(PageDefaults, RowsBeginWithoutTheirColumns) {
    RunningProgram run;
    for (const PageId page : kLinePages) {
        modPages::EnsureRowFields(run.program, page);
        Spoil(run.program.pages[page]);
        modPages::ApplyPageDefaults(run.program, page);
        const Page& record = run.program.pages[page];
        for (const auto* boxes : {&record.txtQty, &record.txtAmt}) {
            for (const TextArea& box : *boxes) {
                EXPECT_FALSE(box.Visible);
                EXPECT_EQ(box.Tag, kHide);
                EXPECT_EQ(box.BackColor, colors::kRestingRowField);
                EXPECT_EQ(box.ForeColor, colors::kBlack);
            }
        }
        for (const auto* labels : {&record.lblAt, &record.lblEach}) {
            for (const PageLabel& label : *labels) {
                EXPECT_FALSE(label.Visible);
                EXPECT_EQ(label.Tag, kHide);
            }
        }
        for (const PageLabel& label : record.lbl) {
            EXPECT_FALSE(label.Visible) << "shown once everything stands";
            EXPECT_FALSE(label.FontUnderline);
            EXPECT_TRUE(label.FontItalic);
            EXPECT_EQ(label.ForeColor, colors::kBlack);
            EXPECT_EQ(label.BackStyle, 0);
        }
    }
}

} // namespace
