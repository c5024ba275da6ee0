#include "money/amounts.h"

#include "editing/fresh_figures.h"
#include "editing/text_menu.h"
#include "money/shown_figures.h"
#include "pages/fields.h"
#include "pages/row_fields.h"
#include "program/keys.h"
#include "support/person.h"
#include "support/running_program.h"
#include "support/typist.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// What an amount counts, and what becomes of its exempt mark.

namespace {

using Texts = std::vector<std::string>;

constexpr PageId kSecond = PageId::frmP2;

struct AmountRun : RunningProgram {
    void Fill(const FieldRef& field, std::string_view text) {
        typist.Click(field);
        typist.PutCursor(0, static_cast<int>(modFields::Area(program, field).Text.size()));
        typist.Type(text);
    }
    void Fill(PageId page, int index, std::string_view text) { Fill({page, FieldKind::txt, index}, text); }
    void MakeExempt(PageId page, int index) {
        typist.Click(page, index);
        modTextMenu::UpdateTextMenu(program);
        person::Choose(program, CommandId::mnuEditTextTaxExempt);
    }
    [[nodiscard]] bool Marked(PageId page, int index) const {
        return program.pages[page].imgNoTax[static_cast<std::size_t>(index)].Visible;
    }
    [[nodiscard]] const std::string& SubTotal() { return TextOf(PageId::frmP6, 0); }
    Typist typist{program};
};

TEST(AmountThatIsLeft, CountsAsItStandsAlsoWhenItCameInSilence) {
    AmountRun run;
    run.typist.Click(kSecond, 33);
    run.Area(kSecond, 33).Text = "75.00"; // as it will be written: leaving it changes no letter
    run.typist.Click(kSecond, 0);
    EXPECT_EQ(run.program.totals.AmountTable[33][kSecond], 75.0F);
    EXPECT_EQ(run.SubTotal(), "75.00");
}

TEST(EmptiedAmount, ThatWasNotExemptHasNoPropertyToSave) {
    AmountRun run;
    run.Fill(kSecond, 33, "5");
    run.typist.Press(keys::kBackspace);
    run.typist.Click(kSecond, 0);
    EXPECT_EQ(run.TextOf(kSecond, 33), "");
    EXPECT_FALSE(run.program.format.PropTextChanges[kSecond][33].Dirty);
}

TEST(EmptiedAmount, LosesItsMarkOnceAndTakesANewOneForTheAmountToCome) {
    AmountRun run;
    run.Fill(kSecond, 33, "5");
    run.MakeExempt(kSecond, 33);
    run.typist.PutCursor(1);
    run.typist.Press(keys::kBackspace);
    modFigures::TakeFresh(run.program); // as a print does while the cursor stays
    EXPECT_FALSE(run.Marked(kSecond, 33));
    run.MakeExempt(kSecond, 33);
    run.typist.Click(kSecond, 0);
    EXPECT_TRUE(run.Marked(kSecond, 33)) << "set on an empty area it waits for an amount";
}

TEST(EmptiedAmount, LosesItsMarkAlsoWhenAnotherRowIsFilledBeforeItIsLeft) {
    AmountRun run;
    run.Fill(kSecond, 33, "5");
    run.MakeExempt(kSecond, 33);
    run.typist.PutCursor(1);
    run.typist.Press(keys::kBackspace);
    modFields::SetText(run.program, {kSecond, FieldKind::txt, 34}, "8");
    EXPECT_TRUE(run.Marked(kSecond, 33)) << "the person is still in it";
    run.typist.Click(kSecond, 0);
    EXPECT_FALSE(run.Marked(kSecond, 33));
}

TEST(EmptiedAmount, ThatWasTypedAgainKeepsAMarkThatAnUndoBringsBackBesideNothing) {
    AmountRun run;
    run.MakeExempt(kSecond, 33); // it waits for an amount
    run.typist.Click(kSecond, 0);
    run.typist.Press(keys::kDown, keys::kShiftState);
    person::Choose(run.program, CommandId::mnuEditTextDelete);
    ASSERT_FALSE(run.Marked(kSecond, 33));
    run.Fill(kSecond, 33, "7");
    run.typist.Press(keys::kBackspace);
    run.typist.Type("8");
    run.surroundings.questions.Expect("Text is present where the deleted text goes back.", Answer::Yes);
    person::Choose(run.program, CommandId::mnuEditTextUndo);
    ASSERT_EQ(run.TextOf(kSecond, 33), "");
    ASSERT_TRUE(run.Marked(kSecond, 33));
    run.typist.Click(kSecond, 1);
    EXPECT_TRUE(run.Marked(kSecond, 33)) << "nobody has emptied it";
}

TEST(FreshFigures, CountTheLastAmountOfEveryPage) {
    RunningProgram run;
    run.Area(PageId::frmP1, 29).Text = "1";
    for (const PageId page : {PageId::frmP2, PageId::frmP3, PageId::frmP4, PageId::frmP5}) {
        run.Area(page, 65).Text = "10";
    }
    modTotals::MatchTables(run.program);
    EXPECT_EQ(run.program.totals.AmountTable[29][PageId::frmP1], 1.0F);
    for (const PageId page : {PageId::frmP2, PageId::frmP3, PageId::frmP4, PageId::frmP5}) {
        EXPECT_EQ(run.program.totals.AmountTable[65][page], 10.0F);
    }
}

TEST(FreshFigures, PaintWhatCountsNoLongerButNoSelectedArea) {
    AmountRun run;
    run.Fill(kSecond, 33, "40");
    run.Fill(kSecond, 34, "50");
    run.typist.Click(kSecond, 0);
    run.Area(kSecond, 33).Text = "40-50";
    run.Area(kSecond, 34).Text = "50-60";
    run.Area(kSecond, 34).BackColor = colors::kBlockSelected;
    modFigures::TakeFresh(run.program);
    EXPECT_EQ(run.SubTotal(), "0.00");
    EXPECT_EQ(run.Area(kSecond, 33).BackColor, colors::kOverLimit);
    EXPECT_EQ(run.Area(kSecond, 34).BackColor, colors::kBlockSelected);
}

// ---- texts that look like figures and are none ------------------------------------------------------------

TEST(UncountedTexts, AreFoundInBothBoxesAndTheAmountOfALineAndInTheLastLine) {
    AmountRun run;
    for (const int row : {0, 1}) {
        run.typist.Click(kSecond, row);
        run.typist.Press(keys::kF8); // the boxes come with words of their own in them
    }
    run.Fill({kSecond, FieldKind::txtQty, 1}, "1,5");
    run.Fill({kSecond, FieldKind::txtAmt, 1}, "20,50");
    run.Fill(kSecond, 34, "7-8");
    run.Fill(PageId::frmP1, 29, "1-2");
    run.Fill(PageId::frmP5, 65, "3-4");
    EXPECT_EQ(modTotals::UncountedTexts(run.program),
              (Texts{"Page 1, line 10: 1-2", "Page 2, line 2, quantity: 1,5",
                     "Page 2, line 2, unit price: 20,50", "Page 2, line 2: 7-8", "Page 5, line 33: 3-4"}));
}

/// The first lines of page 2 with an amount that is none.
std::string TenLines() {
    std::string lines = "These are no numbers and count as nothing:";
    for (int line = 1; line <= 10; ++line) {
        lines += "\r\nPage 2, line " + std::to_string(line) + ": 1-2";
    }
    return lines;
}

TEST(UncountedTexts, AreNamedUpToTenAndTheOthersAreNumbered) {
    AmountRun run;
    for (int row = 0; row < 10; ++row) {
        run.Area(kSecond, 33 + row).Text = "1-2";
    }
    modFigures::TakeFresh(run.program);
    run.surroundings.questions.ExpectBox({TenLines(), Buttons::YesNo, ""}, Answer::Yes);
    EXPECT_TRUE(modTotals::MayShowFigures(run.program));
    run.Area(kSecond, 43).Text = "1-2";
    run.Area(kSecond, 44).Text = "1-2";
    run.surroundings.questions.ExpectBox({TenLines() + "\r\nand 2 more", Buttons::YesNo, ""}, Answer::No);
    EXPECT_FALSE(modTotals::MayShowFigures(run.program));
}

TEST(ShownSum, AddsUpToNineMillionMillionAndNoFurther) {
    EXPECT_EQ(modTotals::ShownSum("9,000,000,000,000", "0"), "9,000,000,000,000.00");
    EXPECT_EQ(modTotals::ShownSum("9,000,000,000,000.01", "0"), std::nullopt);
    EXPECT_EQ(modTotals::ShownSum("8,999,999,999,999.99", "0.01"), "9,000,000,000,000.00");
    EXPECT_EQ(modTotals::ShownSum("8,999,999,999,999.99", "0.02"), std::nullopt);
}

} // namespace
