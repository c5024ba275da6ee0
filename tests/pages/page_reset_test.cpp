#include "pages/page_defaults.h"
#include "pages/page_geometry.h"
#include "pages/row_fields.h"
#include "support/running_program.h"

#include <gtest/gtest.h>

namespace {

void Spoil(PageLabel& label) {
    label.Visible = true;
    label.Tag = "spoilt";
    label.ToolTipText = "Left = 1, Top = 1";
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
        EXPECT_EQ(again.LabelBaseState.empty(), page == PageId::frmP6_1) << again.Name << ": nobody edits it";
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
            if (page == PageId::frmP6) { // the client's copy has no state of its own to go back to
                EXPECT_EQ(record.LabelBaseState[index].FontBold, bold) << " label " << index;
            }
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

void ExpectAt(const Page& page, int index, float left, float top, float size = 9.75F) {
    const PageLabel& label = page.lbl[static_cast<std::size_t>(index)];
    EXPECT_EQ(label.Left, left) << page.Name << " label " << index;
    EXPECT_EQ(label.Top, top) << page.Name << " label " << index;
    EXPECT_EQ(label.FontSize, size) << page.Name << " label " << index;
}

TEST(PageDefaults, PutEveryLabelOfTheLinePagesInItsPlace) {
    RunningProgram run;
    for (const PageId id : {PageId::frmP2, PageId::frmP3, PageId::frmP4, PageId::frmP5}) {
        modPages::ApplyPageDefaults(run.program, id);
        const Page& page = run.program.pages[id];
        ExpectAt(page, 0, 3130, 540, 15.75F);
        for (int sign = 1; sign <= 33; ++sign) {
            ExpectAt(page, sign, 9900, 1440 + 360 * static_cast<float>(sign));
        }
        ExpectAt(page, 34, 900, 15030);
        ExpectAt(page, 35, 11340 - 1900, 15030); // 19 characters of 100 twips
        ExpectAt(page, 36, 4860, 15030);
        for (std::size_t index = 0; index < page.lbl.size(); ++index) {
            EXPECT_EQ(page.lbl[index].FontBold, index != 0) << page.Name << " label " << index;
        }
    }
}

TEST(PageDefaults, PutEveryLabelOfTheFinalPagesInItsPlace) {
    RunningProgram run;
    for (const PageId id : {PageId::frmP6, PageId::frmP6_1}) {
        modPages::ApplyPageDefaults(run.program, id);
        const Page& page = run.program.pages[id];
        ExpectAt(page, 0, 3060, 540, 15.75F);
        for (int row = 0; row < 3; ++row) {
            const float top = 1440 + 360 * static_cast<float>(row);
            ExpectAt(page, 1 + row, 1080, top);
            ExpectAt(page, 4 + row, 3060, top);
            ExpectAt(page, 7 + row, 7560, top);
            ExpectAt(page, 10 + row, 9720, top);
        }
        for (int line = 0; line < 35; ++line) {
            ExpectAt(page, 13 + line, 720, 2880 + 270 * static_cast<float>(line));
        }
        ExpectAt(page, 63, 900, 15030);
        ExpectAt(page, 64, 5310, 15030);
        EXPECT_EQ(page.lbl[64].Caption, id == PageId::frmP6 ? "Proposal for (Client's Name) - Our Copy"
                                                            : "Proposal for (Client's Name) - Client's Copy");
        for (int index = 13; index <= 64; ++index) {
            EXPECT_EQ(page.lbl[static_cast<std::size_t>(index)].FontBold, index >= 63)
                << page.Name << " label " << index;
        }
    }
}

TEST(PageDefaults, PutEveryLabelOfTheClientPagesFootInItsPlace) {
    RunningProgram run;
    modPages::ApplyPageDefaults(run.program, PageId::frmP1);
    const Page& page = run.program.pages[PageId::frmP1];
    ExpectAt(page, 31, 900, 15030);
    ExpectAt(page, 32, 11340 - 1900, 15030);
    ExpectAt(page, 33, 4860, 15030);
}

TEST(PageDefaults, BringTheBoxRoundTheRemittanceAddressToItsSize) {
    RunningProgram run;
    run.program.settings.CompanyAddress2 = "Suite 7";
    for (const PageId page : {PageId::frmP6, PageId::frmP6_1}) {
        modPages::ApplyPageDefaults(run.program, page);
        EXPECT_EQ(run.program.pages[page].lne[14].Y1, 14760);
    }
}

TEST(PageDefaults, APageThatIsSetUpAgainHoldsNothingOfTheOldOne) {
    RunningProgram run;
    for (const PageId id : kAllPages) {
        Page& page = run.program.pages[id];
        Spoil(page);
        page.InkShown = true;
        page.shpSelect.Visible = true;
        for (TextArea& area : page.txt) {
            area.Text = "spoilt";
        }
        for (PageImage& image : page.imgNoTax) {
            image.Tag.clear();
        }
        modPages::SetUpPage(run.program, id);
        EXPECT_FALSE(page.InkShown) << page.Name;
        EXPECT_FALSE(page.shpSelect.Visible) << page.Name;
        for (const TextArea& area : page.txt) {
            EXPECT_EQ(area.Text, "") << page.Name;
        }
        for (const PageImage& image : page.imgNoTax) {
            EXPECT_EQ(image.Tag, kHide) << page.Name;
        }
        for (const auto* labels : {&page.lblAt, &page.lblEach}) {
            ASSERT_EQ(labels->size(), IsLinePage(id) ? 1U : 0U) << page.Name << ": until a row needs more";
            for (const PageLabel& label : *labels) {
                EXPECT_EQ(label.BackColor, colors::kRestingRowField) << page.Name;
                EXPECT_EQ(label.BackStyle, 1) << page.Name;
            }
        }
    }
}

} // namespace
