#include "pages/page_fonts.h"
#include "pages/page_geometry.h"
#include "pages/row_fields.h"
#include "pages/titles.h"
#include "support/running_program.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <string>
#include <tuple>

namespace {

using Place = std::tuple<float, float, float>; // left, top, width

Place PlaceOf(const TextArea& area) {
    return {area.Left, area.Top, area.Width};
}

TEST(PageModel, HasTheCountsOfThePages) {
    RunningProgram run;
    for (const PageId page : kAllPages) {
        const Page& record = run.program.pages[page];
        const bool first = page == PageId::frmP1;
        const bool line = IsLinePage(page) && !first;
        EXPECT_EQ(record.txt.size(), first ? 30U : line ? 66U : 6U);
        EXPECT_EQ(record.lbl.size(), first ? 34U : line ? 37U : 65U);
        EXPECT_EQ(record.imgNoTax.size(), first ? 30U : line ? 66U : 1U);
        EXPECT_EQ(record.txtQty.size(), first ? 20U : line ? 33U : 0U);
        EXPECT_EQ(record.txtAmt.size(), record.txtQty.size());
        EXPECT_EQ(record.lblAt.size(), record.txtQty.size());
        EXPECT_EQ(record.lblEach.size(), record.txtQty.size());
        EXPECT_EQ(record.lne.size(), first ? 8U : line ? 0U : 16U);
        EXPECT_EQ(record.HasLogo, first);
    }
    const std::map<PageId, std::string> tags{{PageId::frmP1, "frmP1.29"},
                                             {PageId::frmP2, "frmP2.65"},
                                             {PageId::frmP5, "frmP5.65"},
                                             {PageId::frmP6, "frmP6.5"},
                                             {PageId::frmP6_1, "frmP6_1.5"}};
    for (const auto& [page, tag] : tags) {
        EXPECT_EQ(run.program.pages[page].Tag, tag);
    }
    EXPECT_EQ(run.program.pages[PageId::frmP3].Caption, "Page 3");
    EXPECT_EQ(run.program.pages[PageId::frmP6_1].Caption, "Page 6 Copy");
}

TEST(PageModel, PlacesTheAreasOfTheClientPage) {
    RunningProgram run;
    const auto& txt = run.program.pages[PageId::frmP1].txt;
    EXPECT_EQ(PlaceOf(txt[0]), Place(1080, 4500, 2160));
    EXPECT_EQ(PlaceOf(txt[1]), Place(9000, 4500, 2160));
    const float clientTops[] = {5580, 5940, 6300, 6660, 7020, 7380};
    for (int index = 2; index <= 7; ++index) {
        EXPECT_EQ(PlaceOf(txt[static_cast<std::size_t>(index)]), Place(3780, clientTops[index - 2], 6120));
    }
    EXPECT_EQ(PlaceOf(txt[8]), Place(3780, 8820, 6120));
    EXPECT_EQ(PlaceOf(txt[9]), Place(3780, 9180, 6120));
    const float rowTops[] = {10260, 10620, 10980, 11340, 11700, 12060, 12420, 12780, 13140, 13500};
    for (std::size_t row = 0; row < 10; ++row) {
        EXPECT_EQ(PlaceOf(txt[10 + row]), Place(900, rowTops[row], 8640));
        EXPECT_EQ(PlaceOf(txt[20 + row]), Place(10080, rowTops[row], 1260));
        EXPECT_EQ(txt[10 + row].Tag, row == 9 ? "Stop.120" : "Push.120");
        EXPECT_EQ(txt[20 + row].Tag, "Amount.020");
    }
    EXPECT_EQ(txt[0].Tag, "Date.025");
    EXPECT_EQ(txt[1].Tag, "Date.025");
    for (std::size_t index = 2; index <= 9; ++index) {
        EXPECT_EQ(txt[index].Tag, "Name.060");
    }
    for (const TextArea& area : txt) {
        EXPECT_EQ(area.Height, 255);
    }
}

TEST(PageModel, PlacesTheAreasOfTheLinePages) {
    RunningProgram run;
    for (const PageId page : {PageId::frmP2, PageId::frmP3, PageId::frmP4, PageId::frmP5}) {
        const auto& txt = run.program.pages[page].txt;
        float top = 1800;
        for (std::size_t row = 0; row < 33; ++row, top += 360) {
            EXPECT_EQ(PlaceOf(txt[row]), Place(900, top, 8640));
            EXPECT_EQ(PlaceOf(txt[33 + row]), Place(10080, top, 1260));
            EXPECT_EQ(txt[row].Tag, row == 32 ? "Stop.120" : "Push.120");
            EXPECT_EQ(txt[33 + row].Tag, "Amount.020");
        }
        EXPECT_EQ(txt[32].Top, 13320);
        EXPECT_EQ(txt[65].Top, 13320);
    }
}

TEST(PageModel, PlacesAndLocksTheFigures) {
    RunningProgram run;
    const char* tags[] = {"SubTotal.020", "AllTaxable.020", "Tax.020",
                          "Total.020",    "Deposit.020",    "Balance.020"};
    for (std::size_t index = 0; index < 6; ++index) {
        const float left = index < 3 ? 3240 : 9900;
        const float top = 1440 + 360 * static_cast<float>(index % 3);
        const TextArea& ours = run.program.pages[PageId::frmP6].txt[index];
        const TextArea& copy = run.program.pages[PageId::frmP6_1].txt[index];
        EXPECT_EQ(PlaceOf(ours), Place(left, top, 1260));
        EXPECT_EQ(PlaceOf(copy), Place(left, top, 1260));
        EXPECT_EQ(ours.Tag, tags[index]);
        EXPECT_EQ(copy.Tag, "");
        EXPECT_EQ(ours.Locked, index == 0 || index == 3 || index == 5);
        EXPECT_TRUE(copy.Locked);
    }
}

TEST(PageModel, MarksStandBesideTheirAreasHidden) {
    RunningProgram run;
    for (const PageId page : kLinePages) {
        const Page& record = run.program.pages[page];
        for (std::size_t index = 0; index < record.txt.size(); ++index) {
            if (geometry::IsDescription(page, static_cast<int>(index))) {
                EXPECT_EQ(record.imgNoTax[index].Left, 900 + 8640 + 90);
            }
            EXPECT_EQ(record.imgNoTax[index].Top, record.txt[index].Top);
            EXPECT_EQ(record.imgNoTax[index].Tag, "Hide");
            EXPECT_FALSE(record.imgNoTax[index].Visible);
        }
        EXPECT_EQ(record.imgNoTax.back().Left, 10080 + 1260 + 90);
        EXPECT_EQ(record.imgNoTax.back().Width, 225);
    }
}

TEST(PageModel, RowFieldsStandOnTheirRowWithTheirPlaceholders) {
    RunningProgram run;
    for (const PageId page : {PageId::frmP1, PageId::frmP4}) {
        const Page& record = run.program.pages[page];
        for (std::size_t row = 0; row < record.txtQty.size(); ++row) {
            EXPECT_EQ(PlaceOf(record.txtQty[row]), Place(900, record.txt[row].Top, 540));
            EXPECT_EQ(PlaceOf(record.txtAmt[row]), Place(8145, record.txt[row].Top, 1020));
            EXPECT_EQ(record.lblAt[row].Left, 7710);
            EXPECT_EQ(record.lblEach[row].Left, 9165);
            EXPECT_EQ(record.lblEach[row].Caption, "ea.");
            EXPECT_EQ(record.txtQty[row].Tag, "Hide");
            EXPECT_EQ(record.lblEach[row].Tag, "Hide");
            EXPECT_EQ(record.txtQty[row].BackColor, 0xE0E0E0U);
            EXPECT_FALSE(record.txtAmt[row].Visible);
            // The client page's boxes are emptied, the others' hold their words.
            EXPECT_EQ(record.txtQty[row].Text, page == PageId::frmP1 ? "" : "Qty.");
            EXPECT_EQ(record.txtAmt[row].Text, page == PageId::frmP1 ? "" : "Amt.");
        }
    }
}

TEST(PageModel, TheAtLabelTakesTheSymbolOnEveryPage) {
    RunningProgram run(RunningProgram::Begin::NotStarted);
    run.Setting("Currency Symbol:", "\x80");
    run.Start();
    EXPECT_EQ(run.program.pages[PageId::frmP1].lblAt[15].Caption, "@ \x80");
    EXPECT_EQ(run.program.pages[PageId::frmP2].lblAt[32].Caption, "@ \x80");
}

TEST(PageModel, SaysWhatTheClientPageSays) {
    RunningProgram run;
    const auto& lbl = run.program.pages[PageId::frmP1].lbl;
    const auto expect = [&](std::size_t index, float left, float top, float size, const char* caption) {
        EXPECT_EQ(lbl[index].Left, left) << index;
        EXPECT_EQ(lbl[index].Top, top) << index;
        EXPECT_EQ(lbl[index].FontSize, size) << index;
        EXPECT_EQ(lbl[index].Caption, caption) << index;
        EXPECT_TRUE(lbl[index].FontBold) << index;
        EXPECT_TRUE(lbl[index].FontItalic) << index;
        EXPECT_FALSE(lbl[index].FontUnderline) << index;
        EXPECT_EQ(lbl[index].FontName, "Times New Roman") << index;
    };
    expect(0, 3240, 720, 12, "Acme Events");
    expect(1, 3240, 1080, 9.75F, "1 Main Street");
    expect(2, 3240, 1350, 9.75F, "");
    expect(3, 3240, 1620, 9.75F, "Springfield, IL 62701");
    expect(4, 3240, 1890, 9.75F, "(217) 555-0199");
    expect(5, 3240, 2160, 9.75F, "(217) 555-0198");
    expect(6, 3240, 2430, 9.75F, "http://example.test:8080/a");
    expect(7, 3240, 2700, 9.75F, "office@example.test");
    expect(8, 4365, 3780, 14.25F, "Event Proposal");
    expect(9, 1080, 4140, 9.75F, "Event Date");
    expect(10, 10080, 4140, 9.75F, "Event Time");
    expect(11, 5220, 5040, 9.75F, "Client Information");
    expect(12, 1800, 5580, 9.75F, "Client's Name");
    expect(13, 1800, 5940, 9.75F, "Street Address");
    expect(14, 1800, 6300, 9.75F, "City, State Zip");
    expect(15, 1800, 6660, 9.75F, "Home Phone #");
    expect(16, 1800, 7020, 9.75F, "Work Phone #");
    expect(17, 1800, 7380, 9.75F, "Cell Phone #");
    expect(18, 5760, 8280, 9.75F, "Venue");
    expect(19, 1800, 8820, 9.75F, "Location");
    expect(20, 1800, 9180, 9.75F, "Address");
    expect(31, 900, 15030, 9.75F, "Page 1 of 6");
    // 19 characters of 100 twips, ending at 10080 + 1260.
    expect(32, 11340 - 1900, 15030, 9.75F, "Continued on Page 2");
    for (std::size_t sign = 21; sign <= 30; ++sign) {
        EXPECT_EQ(lbl[sign].Left, 9900);
        EXPECT_EQ(lbl[sign].Top, 10260 + 360 * static_cast<float>(sign - 21));
        EXPECT_EQ(lbl[sign].Caption, "$");
        EXPECT_EQ(lbl[sign].Tag, "Hide");
    }
    EXPECT_EQ(lbl[33].Caption, "Proposal for (Client's Name)");
    EXPECT_EQ(lbl[33].Left, 6120 - 1400) << "28 characters of 100 twips, centred";
}

TEST(PageModel, SaysWhatTheLinePagesSay) {
    RunningProgram run;
    for (int page = 1; page <= 4; ++page) {
        const auto& lbl = run.program.pages[PageAt(page)].lbl;
        const std::string number = std::to_string(page + 1);
        EXPECT_EQ(lbl[0].Left, 3130);
        EXPECT_EQ(lbl[0].Top, 540);
        EXPECT_EQ(lbl[0].FontSize, 15.75F);
        EXPECT_FALSE(lbl[0].FontBold);
        EXPECT_EQ(lbl[0].Caption, "Acme Events - Event Proposal - Page " + number);
        for (std::size_t sign = 1; sign <= 33; ++sign) {
            EXPECT_EQ(lbl[sign].Left, 9900);
            EXPECT_EQ(lbl[sign].Top, 1800 + 360 * static_cast<float>(sign - 1));
            EXPECT_EQ(lbl[sign].Caption, "$");
        }
        EXPECT_EQ(lbl[34].Caption, "Page " + number + " of 6");
        EXPECT_EQ(lbl[35].Caption, "Continued on Page " + std::to_string(page + 2));
        EXPECT_EQ(lbl[35].Left, 9440);
        EXPECT_EQ(lbl[36].Top, 15030);
    }
}

TEST(PageModel, SaysWhatTheFinalPageSays) {
    RunningProgram run;
    for (const PageId page : {PageId::frmP6, PageId::frmP6_1}) {
        const auto& lbl = run.program.pages[page].lbl;
        EXPECT_EQ(lbl[0].Caption, "Acme Events - Event Proposal - Page 7");
        EXPECT_EQ(lbl[0].Left, 3060);
        const char* captions[] = {"Sub-Total", "Taxable Amount",   "Sales Tax",   "$", "$", "$",
                                  "Total",     "Deposit Received", "Balance Due", "$", "$", "$"};
        const float lefts[] = {1080, 3060, 7560, 9720};
        for (std::size_t index = 1; index <= 12; ++index) {
            EXPECT_EQ(lbl[index].Caption, captions[index - 1]);
            EXPECT_EQ(lbl[index].Left, lefts[(index - 1) / 3]);
            EXPECT_EQ(lbl[index].Top, 1440 + 360 * static_cast<float>((index - 1) % 3));
            // Laying the text font over the signs takes their bold away.
            EXPECT_EQ(lbl[index].FontBold, lbl[index].Caption != "$");
            EXPECT_EQ(lbl[index].Tag, "") << "the final page's signs stay";
        }
        EXPECT_EQ(lbl[13].Caption,
                  " Contract Language Line 1 - Edit this Label by right-clicking or by opening the "
                  "Contract Language Editor under Manage.");
        EXPECT_EQ(lbl[47].Caption,
                  " Contract Language Line 35 - Edit this Label by right-clicking or by opening the "
                  "Contract Language Editor under Manage.");
        EXPECT_EQ(lbl[47].ToolTipText, lbl[47].Caption);
        EXPECT_EQ(lbl[13].Top, 2880);
        EXPECT_EQ(lbl[47].Top, 2880 + 34 * 270);
        EXPECT_FALSE(lbl[13].FontBold);
        const std::map<int, std::tuple<float, float, std::string>> block{
            {48, {720, 12960, std::string(44, '_')}},
            {49, {720, 13230, "Client's Signature"}},
            {50, {720, 13860, std::string(44, '_')}},
            {51, {720, 14130, "Representative for Acme Events"}},
            {52, {5850, 12960, std::string(15, '_')}},
            {53, {5850, 13230, "Date"}},
            {54, {5850, 13860, std::string(15, '_')}},
            {55, {5850, 14130, "Date"}},
            {56, {8010, 12690, "Please remit payment to:"}},
            {57, {8010, 13050, "Acme Events"}},
            {58, {8010, 13320, "1 Main Street"}},
            {59, {8010, 13590, ""}},
            {60, {8010, 13590, "Springfield, IL 62701"}},
            {61, {8010, 13860, "(217) 555-0199"}},
            {62, {8010, 14130, "(217) 555-0198"}},
            {63, {900, 15030, "Page 6 of 6"}}};
        for (const auto& [index, label] : block) {
            const PageLabel& record = lbl[static_cast<std::size_t>(index)];
            EXPECT_EQ(std::make_tuple(record.Left, record.Top, record.Caption), label) << index;
            EXPECT_EQ(record.FontBold, index == 63) << index;
        }
    }
    EXPECT_EQ(run.Label(PageId::frmP6, 64).Caption, "Proposal for (Client's Name) - Our Copy");
    EXPECT_EQ(run.Label(PageId::frmP6_1, 64).Caption, "Proposal for (Client's Name) - Client's Copy");
}

TEST(PageModel, BoxesGoTopRightBottomLeft) {
    RunningProgram run;
    const auto& lne = run.program.pages[PageId::frmP1].lne;
    const auto side = [&](std::size_t index) {
        return std::make_tuple(std::min(lne[index].X1, lne[index].X2), std::min(lne[index].Y1, lne[index].Y2),
                               std::max(lne[index].X1, lne[index].X2),
                               std::max(lne[index].Y1, lne[index].Y2));
    };
    EXPECT_EQ(side(0), std::make_tuple(1440.0F, 5400.0F, 10800.0F, 5400.0F));
    EXPECT_EQ(side(1), std::make_tuple(10800.0F, 5400.0F, 10800.0F, 7740.0F));
    EXPECT_EQ(side(2), std::make_tuple(1440.0F, 7740.0F, 10800.0F, 7740.0F));
    EXPECT_EQ(side(3), std::make_tuple(1440.0F, 5400.0F, 1440.0F, 7740.0F));
}

TEST(PageModel, RulesItsBoxes) {
    RunningProgram run;
    const auto spans = [&](PageId page, std::size_t first, float left, float top, float right, float bottom) {
        const auto& lne = run.program.pages[page].lne;
        float x1 = 1e9F;
        float y1 = 1e9F;
        float x2 = 0;
        float y2 = 0;
        for (std::size_t index = first; index < first + 4; ++index) {
            x1 = std::min({x1, lne[index].X1, lne[index].X2});
            x2 = std::max({x2, lne[index].X1, lne[index].X2});
            y1 = std::min({y1, lne[index].Y1, lne[index].Y2});
            y2 = std::max({y2, lne[index].Y1, lne[index].Y2});
        }
        EXPECT_EQ(std::make_tuple(x1, y1, x2, y2), std::make_tuple(left, top, right, bottom));
    };
    spans(PageId::frmP1, 0, 1440, 5400, 10800, 7740);
    spans(PageId::frmP1, 4, 1440, 8640, 10800, 9540);
    for (const PageId page : {PageId::frmP6, PageId::frmP6_1}) {
        spans(page, 0, 720, 1080, 11520, 2700);
        spans(page, 4, 900, 1260, 4860, 2520);
        spans(page, 8, 7380, 1260, 11340, 2520);
        spans(page, 12, 7920, 12960, 11520, 14490);
    }
}

TEST(PageModel, ASecondAddressLineMakesTheRemittanceBoxTaller) {
    RunningProgram run(RunningProgram::Begin::NotStarted);
    run.Setting("Company Address 2:", "Suite 7");
    run.Start();
    const Page& page = run.program.pages[PageId::frmP6];
    EXPECT_EQ(page.lbl[59].Caption, "Suite 7");
    EXPECT_EQ(page.lbl[60].Top, 13860);
    EXPECT_EQ(page.lbl[61].Top, 14130);
    EXPECT_EQ(page.lbl[62].Top, 14400);
    EXPECT_EQ(page.lne[13].Y2, 14760);
    EXPECT_EQ(page.lne[14].Y1, 14760);
}

TEST(PageModel, FontsGoToAreasRowLabelsAndSignsAndBoldComesBack) {
    RunningProgram run;
    Program& program = run.program;
    program.run.DefaultFontName = "Arial";
    program.run.DefaultFontSize = 8;
    program.run.DefaultFontColor = 0x123456;
    program.run.DefaultFontItalic = true;
    program.format.PropTextChanges[PageId::frmP2][3].FontBold = true;
    program.format.PropTextChanges[PageId::frmP6][4].FontBold = true;
    modPages::ApplyPageFonts(program);
    for (const PageId page : kAllPages) {
        EXPECT_EQ(program.pages[page].FontName, "Arial");
        for (const TextArea& area : program.pages[page].txt) {
            EXPECT_EQ(area.FontName, "Arial");
            EXPECT_EQ(area.FontSize, 8);
            EXPECT_EQ(area.ForeColor, 0x123456U);
            EXPECT_TRUE(area.FontItalic);
        }
    }
    EXPECT_TRUE(run.Area(PageId::frmP2, 3).FontBold);
    EXPECT_FALSE(run.Area(PageId::frmP2, 4).FontBold);
    EXPECT_TRUE(run.Area(PageId::frmP6, 4).FontBold);
    EXPECT_TRUE(run.Area(PageId::frmP6_1, 4).FontBold);
    EXPECT_EQ(run.Label(PageId::frmP1, 21).FontName, "Arial");
    EXPECT_EQ(run.Label(PageId::frmP1, 9).FontName, "Times New Roman");
    EXPECT_EQ(program.pages[PageId::frmP3].lblAt[2].FontName, "Arial");
    for (const TextArea* box :
         {&program.pages[PageId::frmP3].txtQty[2], &program.pages[PageId::frmP3].txtAmt[2]}) {
        EXPECT_EQ(box->FontName, "Arial");
        EXPECT_EQ(box->FontSize, 8);
        EXPECT_TRUE(box->FontItalic);
    }
    program.run.DefaultFontSize = 0;
    modPages::ApplyPageFonts(program);
    EXPECT_EQ(run.Area(PageId::frmP1, 0).FontSize, 10);
}

TEST(PageModel, ToolTipsTellOfTheDoubleClick) {
    RunningProgram run;
    EXPECT_EQ(run.Area(PageId::frmP1, 0).ToolTipText,
              "Double-Click to change format to Windows Long Date; i.e., 1/23/08 becomes January 23, 2008.");
    EXPECT_EQ(run.Area(PageId::frmP1, 1).ToolTipText, "Double-Click to change to UPPER CASE.");
    for (const int index : {2, 3, 4, 8, 9}) {
        EXPECT_EQ(run.Area(PageId::frmP1, index).ToolTipText, "Double-Click to change to Proper Case.");
    }
    for (const int index : {5, 6, 7}) {
        EXPECT_EQ(run.Area(PageId::frmP1, index).ToolTipText,
                  "Double-Click to format... i.e.; change from 1234567890 to (123) 456-7890.");
    }
    EXPECT_EQ(run.Area(PageId::frmP1, 10).ToolTipText, "");
}

TEST(PageModel, TitlesAreCentredOnEveryPage) {
    RunningProgram run;
    run.program.document.ClientCaption = "Proposal for Jane Roe"; // 21 characters
    modTitles::UpdateEventNameLabels(run.program);
    EXPECT_EQ(run.Label(PageId::frmP1, 33).Left, 6120 - 1050);
    EXPECT_EQ(run.Label(PageId::frmP5, 36).Caption, "Proposal for Jane Roe");
    EXPECT_EQ(run.Label(PageId::frmP6, 64).Caption, "Proposal for Jane Roe - Our Copy"); // 32 characters
    EXPECT_EQ(run.Label(PageId::frmP6, 64).Left, 6120 - 1600);
    EXPECT_EQ(run.Label(PageId::frmP6_1, 64).Caption, "Proposal for Jane Roe - Client's Copy");
    EXPECT_EQ(run.Main().lblEvent.Caption, "Proposal for Jane Roe");
    modTitles::LayTitles(run.program);
    EXPECT_EQ(run.program.format.PropLabelChanges[PageId::frmP1][33].Caption, "Proposal for Jane Roe");
}

TEST(Geometry, PairsAmountsWithTheirRowsAndSigns) {
    EXPECT_EQ(geometry::AmountOf(PageId::frmP1, 10), 20);
    EXPECT_EQ(geometry::AmountOf(PageId::frmP3, 0), 33);
    EXPECT_EQ(geometry::DescriptionOf(PageId::frmP1, 29), 19);
    EXPECT_EQ(geometry::DescriptionOf(PageId::frmP5, 65), 32);
    EXPECT_EQ(geometry::CurrencyLabelIndex(PageId::frmP1, 20), 21);
    EXPECT_EQ(geometry::CurrencyLabelIndex(PageId::frmP1, 29), 30);
    EXPECT_EQ(geometry::CurrencyLabelIndex(PageId::frmP2, 33), 1);
    EXPECT_EQ(geometry::CurrencyLabelIndex(PageId::frmP2, 65), 33);
    EXPECT_FALSE(geometry::IsAmount(PageId::frmP1, 19));
    EXPECT_TRUE(geometry::IsAmount(PageId::frmP1, 20));
    EXPECT_FALSE(geometry::IsDescription(PageId::frmP1, 9));
    EXPECT_FALSE(geometry::IsDescription(PageId::frmP6, 0));
    EXPECT_FALSE(geometry::IsAmount(PageId::frmP6, 0));
    EXPECT_EQ(geometry::LimitOf("Push.120"), 120);
    EXPECT_EQ(geometry::LimitOf(""), 0);
    EXPECT_EQ(geometry::LimitOf("Push.1/9"), 1) << "what is no digit ends it";
}

TEST(Geometry, TheLimitOfATagIsTheNumberThatBeginsItsLastThreeCharacters) {
    EXPECT_EQ(geometry::LimitOf("Text050"), 50);
    EXPECT_EQ(geometry::LimitOf("Text4a5"), 4);
    EXPECT_EQ(geometry::LimitOf("Text/90"), 0);
    EXPECT_EQ(geometry::LimitOf("Text9:1"), 9);
    EXPECT_EQ(geometry::LimitOf("Text"), 0);
}

} // namespace
