#include "base/dates.h"
#include "output/page_count.h"
#include "pages/fields.h"
#include "program/windows.h"
#include "proposal/frm_file.h"
#include "proposal/lifecycle.h"
#include "proposal/property_file.h"
#include "proposal/proposal_save.h"
#include "support/running_program.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace {

constexpr const char* kSample = "John Doe.hef";

std::string Shipped(const std::string& name) {
    std::ifstream in(std::string(QUILLBROOK_SHIPPED_DATA) + "/Proposals/" + name, std::ios::binary);
    EXPECT_TRUE(in) << name;
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

/// A program with the shipped tax rate and the shipped sample in its folder, the sample opened by hand. Every
/// question but those a test expects fails it.
struct Sample : RunningProgram {
    Sample() : RunningProgram(Begin::NotStarted) {
        folder.Write("Proposals/SalesTax.txt", Shipped("SalesTax.txt"));
        folder.Write(std::string("Proposals/") + kSample, Shipped(kSample));
        Start();
        modProposal::mnuFileOpenEvent_Click(program);
        auto& chooser = dynamic_cast<frmFile&>(*modWindows::Find(program, "frmFile"));
        EXPECT_EQ(chooser.FileList1.Items, std::vector<std::string>{kSample});
        chooser.FileList1_Click(program, 0);
        chooser.cmdOpenOK_Click(program);
        modWindows::Sweep(program);
    }

    [[nodiscard]] std::vector<int> ExemptAreas(PageId page) const {
        std::vector<int> found;
        const auto& records = program.format.PropTextChanges[page];
        const auto& marks = program.pages[page].imgNoTax;
        for (std::size_t index = 0; index < marks.size(); ++index) {
            EXPECT_EQ(marks[index].Visible, records[index].TaxExempt) << index;
            if (marks[index].Visible) {
                found.push_back(static_cast<int>(index));
            }
        }
        return found;
    }
    [[nodiscard]] std::vector<int> QuantityRows(PageId page) const {
        std::vector<int> found;
        const auto& boxes = program.pages[page].txtQty;
        for (std::size_t index = 0; index < boxes.size(); ++index) {
            if (boxes[index].Visible) {
                found.push_back(static_cast<int>(index));
            }
        }
        return found;
    }
    [[nodiscard]] std::vector<std::string> FinalPage(PageId page) {
        std::vector<std::string> texts;
        for (const TextArea& area : program.pages[page].txt) {
            texts.push_back(area.Text);
        }
        return texts;
    }
};

/// Whether a field would stand red. The test's measure gives every character 100 twips; the letters of the
/// shipped font at 10 points have 90 on the average, so there is room to spare.
bool OverItsLimit(const Program& program, const TextArea& area) {
    return program.platform.measure.Width(area.Text, {}) >= area.Width;
}

TEST(SampleProposal, HasTheLengthOfAProposalFile) {
    EXPECT_EQ(Shipped(kSample).size(), 20630U);
}

TEST(SampleProposal, BeginsWithADateThatTheCalendarRecognises) {
    const std::string field = Shipped(kSample).substr(0, 25);
    EXPECT_EQ(field, "September 18, 2027       ");
    // 46388 is New Year's Day of 2027; 260 days later.
    EXPECT_EQ(dates::Recognise(field, 2026), 46648.0);
}

TEST(SampleProposal, OpensWithoutAWordAndUnchanged) {
    Sample run;
    EXPECT_TRUE(run.surroundings.questions.Shown.empty());
    EXPECT_FALSE(run.folder.Has("Error.log"));
    EXPECT_EQ(run.program.document.FileName, kSample);
    EXPECT_EQ(run.program.document.DocumentKind, "Event");
    EXPECT_FALSE(modProposal::SomethingChanged(run.program));
    EXPECT_FALSE(modFile::PropertiesChanged(run.program));
}

TEST(SampleProposal, TheClientPageIsFilled) {
    Sample run;
    EXPECT_EQ(run.TextOf(PageId::frmP1, 2), "John Doe");
    for (int index = 0; index < 10; ++index) {
        EXPECT_NE(run.TextOf(PageId::frmP1, index), "") << index;
    }
}

// By hand, amounts in the order of the rows, exempt ones in brackets:
// page 1: (1450.00) (150.00) 385.00 390.00 75.00 (675.00) 185.00            3310.00, taxable  1035.00
// page 2: 1170.00 4312.00 128.00 570.00 2100.00 330.00                      8610.00
//         690.00 55.00                                                       745.00
//         180.00 44.00 351.50 900.00 165.00 900.00                          2540.50
//         165.00 375.00 105.00 88.00 910.00 240.00 135.00 35.00             2053.00
//                                                                         13948.50, all taxable
// page 3: (950.00) 420.00 570.00 450.00 1950.00 595.00                      4935.00
//         (1680.00) (384.00) (245.00)                                       2309.00
//         325.00 225.00 780.00 -250.00                                      1080.00
//                                                                          8324.00, taxable  5065.00
// subtotal 25582.50, taxable 20048.50, tax at 8.25 % 1654.00125, total 27236.50125, deposit 5000.00
std::vector<std::string> Figures() {
    return {"25,582.50", "20,048.50", "1,654.00", "27,236.50", "5,000.00", "22,236.50"};
}

TEST(SampleProposal, AddsUp) {
    Sample run;
    EXPECT_EQ(run.FinalPage(PageId::frmP6), Figures());
    EXPECT_EQ(run.FinalPage(PageId::frmP6_1), Figures());
    EXPECT_EQ(run.program.totals.PageSum, (PerLinePage<float>{{3310.0F, 13948.5F, 8324.0F, 0, 0}}));
    EXPECT_EQ(run.program.totals.PageTaxable, (PerLinePage<float>{{1035.0F, 13948.5F, 5065.0F, 0, 0}}));
}

TEST(SampleProposal, TheFiguresInTheFileAreThoseThatComeOut) {
    const std::string bytes = Shipped(kSample);
    std::size_t offset = 20410;
    for (std::string slot : Figures()) {
        slot.resize(20, ' ');
        EXPECT_EQ(bytes.substr(offset, 20), slot);
        offset += 20;
    }
}

TEST(SampleProposal, ServicesAreTaxExempt) {
    Sample run;
    EXPECT_EQ(run.ExemptAreas(PageId::frmP1), (std::vector<int>{21, 22, 28}));
    EXPECT_EQ(run.ExemptAreas(PageId::frmP2), std::vector<int>{});
    EXPECT_EQ(run.ExemptAreas(PageId::frmP3), (std::vector<int>{34, 42, 43, 44}));
}

TEST(SampleProposal, CountedThingsStandInQuantityRows) {
    Sample run;
    EXPECT_EQ(run.QuantityRows(PageId::frmP1), std::vector<int>{16});
    EXPECT_EQ(run.QuantityRows(PageId::frmP2),
              (std::vector<int>{1, 2, 3, 5, 6, 7, 14, 15, 16, 17, 18, 19, 23, 24, 25, 26, 28}));
    EXPECT_EQ(run.QuantityRows(PageId::frmP3), (std::vector<int>{2, 3, 9, 10, 15}));
    const Page& page = run.program.pages[PageId::frmP2];
    EXPECT_EQ(page.txtQty[16].Text, "19");
    EXPECT_EQ(page.txt[16].Text, "Table linens, floor length, ivory");
    EXPECT_EQ(page.txtAmt[16].Text, "18.50");
    EXPECT_EQ(page.txt[49].Text, "351.50");
}

TEST(SampleProposal, EveryQuantityTimesItsPriceIsTheAmount) {
    Sample run;
    for (const PageId page : {PageId::frmP1, PageId::frmP2, PageId::frmP3}) {
        const int toAmount = page == PageId::frmP1 ? 10 : 33;
        for (const int row : run.QuantityRows(page)) {
            const auto at = static_cast<std::size_t>(row);
            const std::string before = run.TextOf(page, row + toAmount);
            const std::string price = run.program.pages[page].txtAmt[at].Text;
            modFields::SetText(run.program, {page, FieldKind::txtAmt, row}, "");
            modFields::SetText(run.program, {page, FieldKind::txt, row + toAmount}, "");
            modFields::SetText(run.program, {page, FieldKind::txtAmt, row}, price);
            EXPECT_EQ(run.TextOf(page, row + toAmount), before) << IndexOf(page) << " " << row;
        }
    }
}

TEST(SampleProposal, NothingStandsOverItsLimit) {
    Sample run;
    for (const PageId page : kLinePages) {
        const Page& fields = run.program.pages[page];
        for (const TextArea& area : fields.txt) {
            EXPECT_FALSE(OverItsLimit(run.program, area)) << area.Text;
            EXPECT_LE(area.Text.size(), std::stoul(area.Tag.substr(area.Tag.size() - 3))) << area.Text;
        }
        for (const int row : run.QuantityRows(page)) {
            const auto at = static_cast<std::size_t>(row);
            EXPECT_FALSE(OverItsLimit(run.program, fields.txtQty[at])) << fields.txtQty[at].Text;
            EXPECT_FALSE(OverItsLimit(run.program, fields.txtAmt[at])) << fields.txtAmt[at].Text;
        }
    }
}

TEST(SampleProposal, FillsThreePagesAndPrintsFour) {
    Sample run;
    modPageCount::CountPagesInUse(run.program);
    modPageCount::SetPageNumbers(run.program);
    EXPECT_EQ(run.program.document.PagesInUse, 4);
    EXPECT_EQ(run.Label(PageId::frmP3, 34).Caption, "Page 3 of 4");
    EXPECT_EQ(run.Label(PageId::frmP6, 63).Caption, "Page 4 of 4");
}

TEST(SampleProposal, SavedAgainItIsTheSameToTheLastByte) {
    Sample run;
    run.surroundings.questions.Expect("File was saved as John Doe.hef");
    ASSERT_EQ(modFile::SaveEventFile(run.program), modFile::SaveResult::Saved);
    EXPECT_TRUE(run.folder.Read(std::string("Proposals/") + kSample) == Shipped(kSample));
    EXPECT_FALSE(run.folder.Has("Proposals/John Doe.hpf"));
}

} // namespace
