#include "pages/fields.h"
#include "pages/row_fields.h"
#include "support/person.h"
#include "support/running_program.h"
#include "support/typist.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <string_view>

namespace {

constexpr PageId kSecond = PageId::frmP2;

void ExpectFinite(const Program& program, std::string_view after) {
    const TotalsRecords& totals = program.totals;
    for (const auto* table : {&totals.AmountTable, &totals.TaxableTable}) {
        for (const auto& row : *table) {
            for (const float value : row) {
                EXPECT_TRUE(std::isfinite(value)) << after;
            }
        }
    }
    for (const float value : {totals.SubTotal, totals.TaxableTotal, totals.SalesTax, totals.Total,
                              totals.Deposit, totals.Balance, totals.FullTotal, totals.RunningTotal}) {
        EXPECT_TRUE(std::isfinite(value)) << after;
    }
}

struct Figure {
    const char* Text;
    bool Pasted; ///< taken by a paste
    float Value;
    const char* Left; ///< the area once it has been left
};

class BadFigures : public testing::TestWithParam<Figure> {};

TEST_P(BadFigures, AreTakenWholeOrNotAtAll) {
    const Figure figure = GetParam();
    for (const PageId page : {PageId::frmP1, kSecond}) {
        RunningProgram run;
        const int index = page == PageId::frmP1 ? 20 : 33;
        Typist typist(run.program);
        typist.Click(page, index);
        typist.PasteByKey(figure.Text, run.surroundings.clipboard.Text);
        EXPECT_EQ(run.program.totals.AmountTable[static_cast<std::size_t>(index)][page], figure.Value);
        EXPECT_EQ(run.TextOf(page, index).empty(), !figure.Pasted);
        typist.Click(page, page == PageId::frmP1 ? 3 : 0);
        EXPECT_EQ(run.TextOf(page, index), figure.Left);
        ExpectFinite(run.program, figure.Text);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Table, BadFigures,
    testing::Values(Figure{"1e39", false, 0, ""}, Figure{"-1e39", false, 0, ""},
                    Figure{"1e-50", true, 0, "0.00"}, Figure{"-", false, 0, ""}, Figure{",", false, 0, ""},
                    Figure{".", false, 0, ""}, Figure{"1,2,3", false, 0, ""}, Figure{"12,50", false, 0, ""},
                    Figure{"1.250,00", false, 0, ""}, Figure{"12,345.6", true, 12345.6F, "12,345.60"},
                    Figure{"inf", false, 0, ""}, Figure{"nan", false, 0, ""}, Figure{"1e999", false, 0, ""},
                    Figure{"0x10", false, 0, ""}, Figure{"1-2", false, 0, ""}, Figure{"5 5", false, 0, ""},
                    Figure{"10.5\r\n", true, 10.5F, "10.50"}, Figure{"10.5\r\n20", false, 0, ""},
                    Figure{"\t7\t", true, 7, "7.00"},
                    Figure{"3.4e38", true, 3.4e38F,
                           "340,000,000,000,000,000,000,000,000,000,000,000,000.00"}));

TEST(BadFigures, TypedOnesStayAndCountNothing) {
    for (const char* text : {"-", ",", ".", "--", "1-2", "..", "-,", "1.2.3"}) {
        RunningProgram run;
        Typist typist(run.program);
        typist.Click(kSecond, 40);
        typist.Type(text);
        EXPECT_EQ(run.TextOf(kSecond, 40), text);
        typist.Click(kSecond, 41);
        EXPECT_EQ(run.TextOf(kSecond, 40), text) << "neither reported nor cleared";
        ExpectFinite(run.program, text);
    }
}

TEST(BadFigures, ForEverSoManyDigitsThereIsNoInfinity) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(kSecond, 40);
    typist.Type("9");
    const std::string nines(60, '9');
    typist.Type(nines);
    ExpectFinite(run.program, "nines");
    typist.Click(kSecond, 41);
    EXPECT_EQ(run.TextOf(kSecond, 40), "9" + nines) << "too great to be a number here";
    ExpectFinite(run.program, "nines, left");
}

TEST(BadFigures, AProductBeyondASingleReachesNoTable) {
    RunningProgram run;
    modPages::PlaceColumns(run.program, kSecond, 0, modPages::Columns::On);
    modFields::SetText(run.program, {kSecond, FieldKind::txtQty, 0}, "3e38");
    modFields::SetText(run.program, {kSecond, FieldKind::txtAmt, 0}, "3e38");
    EXPECT_EQ(run.program.totals.AmountTable[33][PageId::frmP2], 0.0F);
    ExpectFinite(run.program, "product");
}

TEST(BadFigures, SumsBeyondASingleStayNumbers) {
    RunningProgram run;
    Typist typist(run.program);
    for (const int index : {33, 34, 35}) {
        typist.Click(kSecond, index);
        typist.PasteByKey("3e38", run.surroundings.clipboard.Text);
    }
    typist.Click(kSecond, 0);
    ExpectFinite(run.program, "sums");
}

TEST(BadFigures, TheFinalPageTakesNoneEither) {
    for (const char* text : {"1e39", "-", ",", "inf", "1-2"}) {
        RunningProgram run;
        Typist typist(run.program);
        for (const int index : {1, 2, 4}) {
            const std::string before = run.TextOf(PageId::frmP6, index);
            typist.Click(PageId::frmP6, index);
            typist.PasteByKey(text, run.surroundings.clipboard.Text);
            EXPECT_EQ(run.TextOf(PageId::frmP6, index), before) << text;
        }
        ExpectFinite(run.program, text);
    }
}

TEST(BadText, AMegabyteIsCutToOneLongLineAndThePersonIsTold) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(kSecond, 0);
    const std::string much(1 << 20, 'x');
    typist.PasteByKey(much, run.surroundings.clipboard.Text);
    EXPECT_EQ(run.TextOf(kSecond, 0), much.substr(0, 4096));
    EXPECT_EQ(run.program.main.Notice, "The text was too long for one line; its end was not taken.");
    EXPECT_EQ(run.Area(kSecond, 0).BackColor, colors::kOverLimit);
}

TEST(BadText, AMegabyteOfBlanksFlowsOnWithoutHanging) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(kSecond, 0);
    std::string much;
    while (much.size() < (1U << 20U)) {
        much += "a ";
    }
    typist.PasteByKey(much, run.surroundings.clipboard.Text);
    typist.Press(35);
    typist.Type(" "); // and now all of it moves, row by row
    EXPECT_EQ(run.TextOf(kSecond, 0).size(), 85U);
    std::size_t kept = 0;
    for (int row = 0; row <= 32; ++row) {
        kept += run.TextOf(kSecond, row).size();
    }
    EXPECT_EQ(kept, 4097U - 32U) << "a blank is dropped where a line is split, nothing else";
    EXPECT_EQ(run.TextOf(kSecond, 33), "");
}

TEST(BadText, AMegabyteIntoAnAmountIsNoNumber) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(kSecond, 33);
    typist.PasteByKey(std::string(1 << 20, '1'), run.surroundings.clipboard.Text);
    EXPECT_EQ(run.TextOf(kSecond, 33), "");
    ExpectFinite(run.program, "megabyte");
}

TEST(BadText, CharactersWithoutAByteAreLeftOutAndThePersonIsTold) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(kSecond, 0);
    person::Insert(run.program, {kSecond, FieldKind::txt, 0}, "ab", 1, person::By::Mouse);
    EXPECT_EQ(run.TextOf(kSecond, 0), "ab");
    EXPECT_EQ(run.program.main.Notice, "One character was not taken: it cannot be kept in a proposal.");
    person::Insert(run.program, {kSecond, FieldKind::txt, 0}, "", 7, person::By::Key);
    EXPECT_EQ(run.program.main.Notice, "7 characters were not taken: they cannot be kept in a proposal.");
    typist.Type("c");
    EXPECT_EQ(run.program.main.Notice, "") << "told until the next key";
}

TEST(BadText, TheMarksOfAPricedLineCanBeTyped) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(kSecond, 0);
    typist.Type("\xA5\xA5\xA7");
    EXPECT_EQ(run.TextOf(kSecond, 0), "\xA5\xA5\xA7");
    EXPECT_EQ(run.program.document.CurrentTextBuf[PageId::frmP2][0], "\xA5\xA5\xA7");
}

TEST(Locked, AreasTakeNothing) {
    RunningProgram run;
    run.program.format.FormatOpen = true;
    run.program.format.FormatTextChanges[PageId::frmP2][0].FormatText = true;
    run.program.format.FormatTextChanges[PageId::frmP2][33].FormatText = true;
    Typist typist(run.program);
    for (const FieldRef& field :
         {FieldRef{kSecond, FieldKind::txt, 0}, FieldRef{kSecond, FieldKind::txt, 33},
          FieldRef{PageId::frmP6, FieldKind::txt, 0}, FieldRef{PageId::frmP6, FieldKind::txt, 3},
          FieldRef{PageId::frmP6, FieldKind::txt, 5}}) {
        typist.Click(field);
        const std::string before = modFields::Area(run.program, field).Text;
        typist.Type("5");
        typist.PasteByKey("6", run.surroundings.clipboard.Text);
        typist.PasteByMouse(field, 0, "7");
        typist.Press(keys::kDelete);
        EXPECT_EQ(modFields::Area(run.program, field).Text, before) << field.Index;
    }
    modFields::SetText(run.program, {kSecond, FieldKind::txt, 0}, "by program");
    EXPECT_EQ(run.TextOf(kSecond, 0), "by program");
    run.program.format.FormatOpen = false;
    typist.Click(PageId::frmP1, 0);
    typist.Click(kSecond, 33);
    typist.Type("5");
    EXPECT_EQ(run.TextOf(kSecond, 33), "5") << "without a format nothing is locked";
}

} // namespace
