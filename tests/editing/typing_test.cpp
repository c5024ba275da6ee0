#include "editing/columns.h"
#include "editing/leaving.h"
#include "editing/row_texts.h"
#include "editing/text_menu.h"
#include "editing/typing.h"
#include "editing/word_marking.h"
#include "pages/fields.h"
#include "pages/row_fields.h"
#include "program/keys.h"
#include "support/person.h"
#include "support/running_program.h"
#include "support/typist.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

// Every character is 100 twips wide here: a plain row of 8640 twips overflows at 87 characters, a row with
// columns of 6270 at 63.

namespace {

constexpr PageId kFirst = PageId::frmP1;
constexpr PageId kSecond = PageId::frmP2;

FieldRef Text(PageId page, int index) {
    return {page, FieldKind::txt, index};
}

void PutText(RunningProgram& run, PageId page, int index, const std::string& text) {
    modFields::TypeText(run.program, Text(page, index), text, static_cast<int>(text.size()), 0);
}

TEST(ChangePipeline, StoresTheTrimmedTextAndKeepsTheAreasBlanks) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(kFirst, 3);
    typist.Type("  Elm ");
    EXPECT_EQ(run.TextOf(kFirst, 3), "  Elm ");
    EXPECT_EQ(run.program.document.CurrentTextBuf[PageId::frmP1][3], "Elm");
    EXPECT_EQ(run.program.format.PropTextChanges[PageId::frmP1][3].Text, "  Elm ");
    EXPECT_EQ(run.program.format.FormatTextChanges[PageId::frmP1][3].Text, "")
        << "a format takes texts when it is saved";
    EXPECT_EQ(run.program.editing.CurrentKind, "Name");
    EXPECT_EQ(run.program.editing.CurrentLimit, "060");
    EXPECT_EQ(run.program.editing.CurrentWidth, 6120);
    EXPECT_TRUE(run.Main()[CommandId::mnuOptCopyToBusinessAddressBook].Enabled);
}

TEST(ChangePipeline, TheClientsNameMakesTheFileNameUntilThereIsAFile) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(kFirst, 2);
    typist.Type("Al");
    EXPECT_EQ(run.program.document.FileName, "Al.hef");
    EXPECT_EQ(run.program.document.BaseName, "Al");
    EXPECT_EQ(run.program.document.TextFileName, "Al.txt");
    EXPECT_EQ(run.Label(kFirst, 33).Caption, "Proposal for Al");
    EXPECT_EQ(run.Main().Caption, "Quillbrook - File Name = Al.hef");
    typist.Press(keys::kBackspace);
    typist.Press(keys::kBackspace);
    EXPECT_EQ(run.program.document.FileName, ".hef");
    EXPECT_EQ(run.Main().Caption, "Quillbrook");
    run.program.document.FileExists = true;
    run.program.document.FileName = "Kept.hef";
    typist.Type("X");
    EXPECT_EQ(run.program.document.FileName, "Kept.hef");
}

TEST(ChangePipeline, ATypedAmountFillsTheTablesAndTurnsTheButtonRed) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(kSecond, 40);
    typist.Type("12");
    EXPECT_EQ(run.program.totals.AmountTable[40][PageId::frmP2], 12.0F);
    EXPECT_EQ(run.program.totals.TaxableTable[40][PageId::frmP2], 12.0F);
    EXPECT_EQ(run.Label(kSecond, 8).Tag, "");
    EXPECT_TRUE(run.Label(kSecond, 8).Visible);
    EXPECT_EQ(run.Main().cmdReCalc.BackColor, colors::kOverLimit);
    EXPECT_EQ(run.TextOf(PageId::frmP6, 0), "") << "totals follow on leaving";
    typist.Press(keys::kBackspace);
    typist.Press(keys::kBackspace);
    EXPECT_EQ(run.program.totals.AmountTable[40][PageId::frmP2], 0.0F);
    EXPECT_EQ(run.Label(kSecond, 8).Tag, "Hide");
    EXPECT_FALSE(run.Label(kSecond, 8).Visible);
}

TEST(ChangePipeline, TextThatIsNoNumberCountsAsNothing) {
    for (const char* text : {"-", ",", ".", "1e39", "1-2", "12,50", "1.250,00", "1,2,3"}) {
        RunningProgram run;
        run.program.totals.AmountTable[20][PageId::frmP1] = 7;
        run.Area(kFirst, 20).Text = "7";
        PutText(run, kFirst, 20, text);
        EXPECT_EQ(run.program.totals.AmountTable[20][PageId::frmP1], 0) << text;
        EXPECT_EQ(run.TextOf(kFirst, 20), text);
        EXPECT_FALSE(run.Label(kFirst, 21).Visible);
        EXPECT_EQ(run.Area(kFirst, 20).BackColor, colors::kOverLimit);
        EXPECT_EQ(run.Area(kFirst, 20).ToolTipText, "This is not a number and counts as nothing.");
        PutText(run, kFirst, 20, "8");
        EXPECT_EQ(run.Area(kFirst, 20).ToolTipText, "");
    }
    RunningProgram run;
    PutText(run, kFirst, 20, "1,234");
    EXPECT_EQ(run.program.totals.AmountTable[20][PageId::frmP1], 1234.0F);
    PutText(run, kFirst, 20, "1e-50");
    EXPECT_EQ(run.program.totals.AmountTable[20][PageId::frmP1], 0.0F);
}

TEST(ChangePipeline, AnExemptAmountIsNotTaxable) {
    RunningProgram run;
    modPages::SetNoTaxMark(run.program, kFirst, 20, modPages::Mark::Shown);
    PutText(run, kFirst, 20, "50");
    EXPECT_EQ(run.program.totals.AmountTable[20][PageId::frmP1], 50.0F);
    EXPECT_EQ(run.program.totals.TaxableTable[20][PageId::frmP1], 0.0F);
}

TEST(ChangePipeline, LimitsAreShownAndNeverEnforced) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(kFirst, 0);
    typist.Type(std::string(21, 'x'));
    EXPECT_EQ(run.Area(kFirst, 0).BackColor, colors::kFocused) << "2100 of 2160 twips";
    typist.Type("x");
    EXPECT_EQ(run.Area(kFirst, 0).BackColor, colors::kOverLimit) << "2200 twips";
    typist.Press(keys::kBackspace);
    EXPECT_EQ(run.Area(kFirst, 0).BackColor, colors::kFocused);
    EXPECT_EQ(run.TextOf(kFirst, 0).size(), 21U);
}

TEST(ChangePipeline, IsSilentWhileFilesAreReadAndPagesAreBuilt) {
    RunningProgram run;
    for (bool GuardFlags::*flag : {&GuardFlags::Loading, &GuardFlags::ResetActive, &GuardFlags::Printing,
                                   &GuardFlags::ApplyingFonts}) {
        run.program.guards.*flag = true;
        PutText(run, kFirst, 3, "x");
        run.program.guards.*flag = false;
        EXPECT_EQ(run.program.document.CurrentTextBuf[PageId::frmP1][3], "");
        PutText(run, kFirst, 3, "");
    }
    run.program.editing.MoveInProgress = true;
    PutText(run, kFirst, 3, "x");
    run.program.editing.MoveInProgress = false;
    EXPECT_EQ(run.program.document.CurrentTextBuf[PageId::frmP1][3], "");
    run.program.editing.BlockMode = true;
    PutText(run, kFirst, 4, "x");
    EXPECT_EQ(run.program.document.CurrentTextBuf[PageId::frmP1][4], "");
    run.program.editing.RefireMode = true;
    PutText(run, kFirst, 5, "x");
    EXPECT_EQ(run.program.document.CurrentTextBuf[PageId::frmP1][5], "x");
    run.program.editing.BlockMode = false;
    run.program.editing.RefireMode = false;
    run.program.editing.ACActive[PageId::frmP1] = true;
    PutText(run, kFirst, 6, "x");
    EXPECT_EQ(run.program.document.CurrentTextBuf[PageId::frmP1][6], "");
}

TEST(Push, ABlankAtTheEndOfATooLongLineMovesTheLastWordAndTheCursorFollows) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(kFirst, 10);
    typist.Type(Words(8)); // 80 characters
    typist.Type("jklmnopq");
    EXPECT_EQ(run.TextOf(kFirst, 10).size(), 88U);
    EXPECT_EQ(run.Area(kFirst, 10).BackColor, colors::kOverLimit) << "a word typed past the edge stays whole";
    typist.Type(" ");
    EXPECT_EQ(run.TextOf(kFirst, 10), Words(8).substr(0, 79));
    EXPECT_EQ(run.TextOf(kFirst, 11), "jklmnopq ");
    EXPECT_EQ(run.program.main.Focus, Text(kFirst, 11));
    EXPECT_EQ(run.Area(kFirst, 11).SelStart, 9);
    EXPECT_EQ(run.program.document.CurrentTextBuf[PageId::frmP1][10], Words(8).substr(0, 79));
    EXPECT_EQ(run.program.document.CurrentTextBuf[PageId::frmP1][11], "jklmnopq");
    EXPECT_EQ(run.Area(kFirst, 10).BackColor, colors::kResting);
}

TEST(Push, JoinsTheTailAndTheNextRowWithoutABlankBetween) {
    RunningProgram run;
    PutText(run, kFirst, 11, "next");
    Typist typist(run.program);
    typist.Click(kFirst, 10);
    typist.Type(Words(9)); // the blank that ends the ninth word stands at 90
    EXPECT_EQ(run.TextOf(kFirst, 10), Words(8).substr(0, 79));
    EXPECT_EQ(run.TextOf(kFirst, 11), "abcdefghi next");
}

TEST(Push, ABlankInTheMiddleMovesTextAndLeavesTheCursorOneFurther) {
    RunningProgram run;
    PutText(run, kFirst, 10, Words(8) + "jklmno"); // 86 characters fit: 8600 of 8640
    Typist typist(run.program);
    typist.Click(kFirst, 10);
    typist.PutCursor(5);
    typist.Type(" ");
    // 87 characters overflow; the blanks run out before the width does, so one word more than needed moves.
    EXPECT_EQ(run.TextOf(kFirst, 10), ("abcde fghi " + Words(6)).substr(0, 70));
    EXPECT_EQ(run.TextOf(kFirst, 11), "abcdefghi jklmno");
    EXPECT_EQ(run.program.main.Focus, Text(kFirst, 10));
    EXPECT_EQ(run.Area(kFirst, 10).SelStart, 6);
}

TEST(Push, ALetterInTheMiddleMovesNothing) {
    RunningProgram run;
    PutText(run, kFirst, 10, Words(8) + "jklmno");
    Typist typist(run.program);
    typist.Click(kFirst, 10);
    typist.PutCursor(5);
    typist.Type("x");
    EXPECT_EQ(run.TextOf(kFirst, 10).size(), 87U);
    EXPECT_EQ(run.TextOf(kFirst, 11), "");
    EXPECT_EQ(run.Area(kFirst, 10).BackColor, colors::kOverLimit);
}

TEST(Push, AWordLongerThanTheAreaStaysEvenWhenItsFirstBlankArrives) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(kFirst, 10);
    typist.Type(std::string(90, 'x') + " ");
    EXPECT_EQ(run.TextOf(kFirst, 10).size(), 91U);
    EXPECT_EQ(run.TextOf(kFirst, 11), "");
    EXPECT_EQ(run.Area(kFirst, 10).BackColor, colors::kOverLimit);
    EXPECT_FALSE(run.program.editing.PushNeeded);
}

TEST(Push, CascadesFromRowToRowAndEndsAtTheLastDescription) {
    RunningProgram run;
    const std::string full = Words(8) + "yyyyyy"; // 86 characters
    for (int row = 17; row <= 19; ++row) {
        PutText(run, kFirst, row, full);
    }
    Typist typist(run.program);
    typist.Click(kFirst, 17);
    typist.PutCursor(3);
    typist.Type(" ");
    // Row 17 runs out of blanks before it runs out of width: its last whole word goes along with the rest.
    EXPECT_EQ(run.TextOf(kFirst, 17), ("abc defghi " + Words(6)).substr(0, 70));
    // Row 18 then holds 102 characters; its last blank that fits stands at 86.
    EXPECT_EQ(run.TextOf(kFirst, 18), ("abcdefghi yyyyyy" + Words(7)).substr(0, 85));
    EXPECT_EQ(run.TextOf(kFirst, 19), "abcdefghi yyyyyy" + full);
    EXPECT_EQ(run.TextOf(kFirst, 20), "") << "nothing flows from descriptions into amounts";
    EXPECT_EQ(run.Area(kFirst, 19).BackColor, colors::kOverLimit)
        << "the last row keeps its text and goes red";
}

TEST(Push, ATextThatFitsButIsTooLongIsRedAndNotPushed) {
    RunningProgram run;
    run.Area(kSecond, 0).Width = 20000;
    Typist typist(run.program);
    typist.Click(kSecond, 0);
    typist.Type(std::string(60, 'a') + " " + std::string(59, 'b'));
    EXPECT_EQ(run.Area(kSecond, 0).BackColor, colors::kFocused) << "120 characters";
    typist.Type(" ");
    EXPECT_EQ(run.Area(kSecond, 0).BackColor, colors::kOverLimit);
    EXPECT_EQ(run.TextOf(kSecond, 1), "");
}

struct Way {
    PageId Page;
    int From;
    int Key;
    PageId ToPage;
    int To; ///< -1 stays
};

class Navigation : public testing::TestWithParam<Way> {};

TEST_P(Navigation, GoesWhereTheTableSays) {
    RunningProgram run;
    Typist typist(run.program);
    const Way way = GetParam();
    typist.Click(way.Page, way.From);
    typist.Press(way.Key);
    EXPECT_EQ(run.program.main.Focus, way.To < 0 ? Text(way.Page, way.From) : Text(way.ToPage, way.To));
}

INSTANTIATE_TEST_SUITE_P(
    Table, Navigation,
    testing::Values(Way{kFirst, 0, keys::kEnter, kFirst, 1}, Way{kFirst, 9, keys::kTab, kFirst, 10},
                    Way{kFirst, 10, keys::kEnter, kFirst, 20}, Way{kFirst, 19, keys::kEnter, kFirst, 29},
                    Way{kFirst, 20, keys::kEnter, kFirst, 11}, Way{kFirst, 28, keys::kTab, kFirst, 19},
                    Way{kFirst, 29, keys::kEnter, kSecond, 0}, Way{kFirst, 29, keys::kDown, kSecond, 0},
                    Way{kSecond, 0, keys::kEnter, kSecond, 33}, Way{kSecond, 32, keys::kTab, kSecond, 65},
                    Way{kSecond, 33, keys::kEnter, kSecond, 1}, Way{kSecond, 64, keys::kEnter, kSecond, 32},
                    Way{kSecond, 65, keys::kEnter, PageId::frmP3, 0},
                    Way{PageId::frmP5, 65, keys::kEnter, PageId::frmP6, 0},
                    Way{kFirst, 1, keys::kUp, kFirst, 0}, Way{kFirst, 19, keys::kUp, kFirst, 18},
                    Way{kFirst, 20, keys::kUp, kFirst, 10}, Way{kFirst, 21, keys::kUp, kFirst, 20},
                    Way{kFirst, 29, keys::kUp, kFirst, 28}, Way{kFirst, 0, keys::kUp, kFirst, -1},
                    Way{kSecond, 33, keys::kUp, kSecond, 32}, Way{kSecond, 65, keys::kUp, kSecond, 64},
                    Way{kSecond, 0, keys::kUp, kSecond, -1}, Way{kFirst, 0, keys::kDown, kFirst, 1},
                    Way{kFirst, 19, keys::kDown, kFirst, 20}, Way{kFirst, 28, keys::kDown, kFirst, 29},
                    Way{kSecond, 0, keys::kDown, kSecond, 1}, Way{kSecond, 32, keys::kDown, kSecond, 33},
                    Way{PageId::frmP4, 64, keys::kDown, PageId::frmP4, 65},
                    Way{PageId::frmP6, 1, keys::kEnter, PageId::frmP6, -1},
                    Way{PageId::frmP6, 1, keys::kDown, PageId::frmP6, -1}));

TEST(Walking, ScrollsWhenTheFieldLeftStoodAtTheEdge) {
    RunningProgram run; // 9000 twips of the page show
    Typist typist(run.program);
    typist.Click(kSecond, 18); // top 8280: 8790 is still above 9000
    typist.Press(keys::kDown);
    EXPECT_EQ(run.program.main.VScroll1.Value, 0);
    typist.Press(keys::kDown); // top 8640: 9150 is below; 2 x 9000 reaches 15870
    EXPECT_EQ(run.program.main.VScroll1.Value, 15870 - 9000);
    typist.Click(kSecond, 14); // top 6840, 300 above is over the visible top at 6870
    typist.Press(keys::kUp);
    EXPECT_EQ(run.program.main.VScroll1.Value, 0);
}

TEST(KeyFilter, AmountsTakeFiguresAndEditingKeysOnly) {
    RunningProgram run;
    Typist typist(run.program);
    for (const auto& [page, index] :
         {std::pair{kFirst, 20}, std::pair{kSecond, 65}, std::pair{PageId::frmP6, 4}}) {
        typist.Click(page, index);
        for (int byte = 1; byte < 256; ++byte) {
            const bool passes =
                byte == 8 || (byte >= '0' && byte <= '9') || byte == ',' || byte == '-' || byte == '.';
            EXPECT_EQ(person::KeyPress(run.program, byte), passes ? byte : 0) << byte;
        }
    }
    typist.Click(kFirst, 3);
    for (int byte = 1; byte < 256; ++byte) {
        EXPECT_EQ(person::KeyPress(run.program, byte), byte == 9 || byte == 13 ? 0 : byte);
    }
    run.program.editing.BlockMode = true;
    EXPECT_EQ(person::KeyPress(run.program, 'a'), 0);
}

TEST(Paste, IntoAnAmountIsTakenWholeAndNumeric) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(kFirst, 20);
    run.surroundings.clipboard.Text = "ten";
    typist.Press(keys::kV, keys::kCtrlState);
    EXPECT_EQ(run.TextOf(kFirst, 20), "");
    run.surroundings.clipboard.Text = " 10.5 ";
    typist.Press(keys::kV, keys::kCtrlState);
    EXPECT_EQ(run.TextOf(kFirst, 20), "10.5");
    typist.PutCursor(0, 2);
    run.surroundings.clipboard.Text = "7";
    typist.Press(keys::kV, keys::kCtrlState);
    EXPECT_EQ(run.TextOf(kFirst, 20), "7.5");
}

TEST(Leaving, AnAmountIsWrittenUnderItsPatternAndTotalled) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(kFirst, 20);
    typist.Type("1234.5");
    typist.Click(kFirst, 3);
    EXPECT_EQ(run.TextOf(kFirst, 20), "1,234.50");
    EXPECT_EQ(run.program.document.CurrentTextBuf[PageId::frmP1][20], "1,234.50");
    EXPECT_EQ(run.TextOf(PageId::frmP6, 0), "1,234.50");
    EXPECT_EQ(run.Area(kFirst, 20).BackColor, colors::kResting);
    EXPECT_EQ(run.program.editing.LastArea, 20);
    typist.Click(kFirst, 20);
    typist.PutCursor(0, 8);
    typist.Press(keys::kDelete);
    typist.Click(kFirst, 3);
    EXPECT_EQ(run.TextOf(kFirst, 20), "");
    EXPECT_EQ(run.TextOf(PageId::frmP6, 0), "0.00");
}

TEST(Leaving, TheEventDateWarnsOnceInTheLifeOfThePage) {
    RunningProgram run;
    Typist typist(run.program);
    run.surroundings.questions.ExpectBox(
        {"Text cannot be recognized as a date and will become useless for managing you events.\r\n\r\n"
         "Proper date format examples follow:\r\nJanuary 15, 2008.\r\nJan 15, "
         "2008\r\n1/15/2008\r\n1/15/08\r\n1-15-08\r\n"
         "Do not include date extentions such as \"1rst\", \"2nd\", etc.",
         Buttons::Ok, "Date Format not Recognized"},
        Answer::Ok);
    typist.Click(kFirst, 0);
    typist.Type("abc");
    typist.Click(kFirst, 1);
    typist.Type("abc");
    typist.Click(kFirst, 0);
    typist.Click(kFirst, 1);
    EXPECT_EQ(run.TextOf(kFirst, 0), "abc");
    EXPECT_TRUE(run.program.pages[kFirst].DateWarningShown);
}

TEST(Leaving, ADateAndAnEmptyDateWarnOfNothing) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(kFirst, 0);
    typist.Click(kFirst, 1);
    typist.Click(kFirst, 0);
    typist.Type("1/15/08");
    typist.Click(kFirst, 1);
    EXPECT_FALSE(run.program.pages[kFirst].DateWarningShown);
}

struct Conversion {
    int Area;
    const char* From;
    const char* To;
};

class DoubleClick : public testing::TestWithParam<Conversion> {};

TEST_P(DoubleClick, ConvertsTheArea) {
    RunningProgram run;
    PutText(run, kFirst, GetParam().Area, GetParam().From);
    person::FieldDblClick(run.program, Text(kFirst, GetParam().Area), 0);
    EXPECT_EQ(run.TextOf(kFirst, GetParam().Area), GetParam().To);
    EXPECT_EQ(run.program.document.CurrentTextBuf[PageId::frmP1][static_cast<std::size_t>(GetParam().Area)],
              GetParam().To);
    const bool converted = std::string_view(GetParam().From) != GetParam().To;
    EXPECT_EQ(run.Area(kFirst, GetParam().Area).SelStart,
              converted ? static_cast<int>(run.TextOf(kFirst, GetParam().Area).size()) : 0);
    EXPECT_EQ(run.program.editing.CurrentArea, GetParam().Area);
}

TEST(DoubleClick, MarksTheWordAtItsPlaceWhereNothingIsConverted) {
    RunningProgram run;
    PutText(run, kSecond, 40, "it's 12 pm");
    person::TurnTo(run.program, 1);
    modFields::GiveFocus(run.program, Text(kSecond, 40));
    const auto marked = [&](int position) {
        person::FieldDblClick(run.program, Text(kSecond, 40), position);
        const TextArea& area = run.Area(kSecond, 40);
        return area.Text.substr(static_cast<std::size_t>(area.SelStart),
                                static_cast<std::size_t>(area.SelLength));
    };
    EXPECT_EQ(marked(0), "it's");
    EXPECT_EQ(marked(2), "it's");
    EXPECT_EQ(marked(4), "it's");
    EXPECT_EQ(marked(6), "12");
    EXPECT_EQ(marked(10), "pm");
    EXPECT_EQ(marked(99), "pm"); // behind the text
}

TEST(DoubleClick, MarksNoWordInADescriptionOrBesideAWord) {
    RunningProgram run;
    PutText(run, kSecond, 5, "chair covers");
    person::TurnTo(run.program, 1);
    modFields::GiveFocus(run.program, Text(kSecond, 5));
    person::FieldDblClick(run.program, Text(kSecond, 5), 8);
    EXPECT_EQ(run.Area(kSecond, 5).SelLength, 0);
    EXPECT_EQ(modText::WordAt("a , b", 2).Length, 0);
    EXPECT_EQ(modText::WordAt("a , b", 2).Start, 2);
    EXPECT_EQ(modText::WordAt("\xE9t\xE9", 1).Length, 3); // letters with accents are letters
}

TEST(DoubleClick, TogglesTheColumnsOfADescriptionAndNothingElse) {
    for (const PageId page : kLinePages) {
        RunningProgram run;
        person::TurnTo(run.program, IndexOf(page));
        const int last = page == kFirst ? 29 : 65;
        for (int index = page == kFirst ? 9 : 0; index <= last; ++index) {
            modFields::GiveFocus(run.program, Text(page, index));
            person::FieldDblClick(run.program, Text(page, index), 0);
            const bool line = page == kFirst ? index >= 10 && index <= 19 : index <= 32;
            EXPECT_EQ(run.Area(page, index).Width == 6270, line) << index;
            EXPECT_EQ(run.program.editing.CurrentArea, index);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(
    Table, DoubleClick,
    testing::Values(Conversion{0, "1/23/08", "January 23, 2008"}, Conversion{0, "1/3/08", "January 03, 2008"},
                    Conversion{0, "soon", "soon"}, Conversion{1, "6 pm", "6 PM"},
                    Conversion{2, "jane ROE", "Jane Roe"}, Conversion{3, "12 elm street", "12 Elm Street"},
                    Conversion{4, "springfield", "Springfield"}, Conversion{8, "garden hall", "Garden Hall"},
                    Conversion{9, "main road", "Main Road"}, Conversion{5, "1234567890", "(123) 456-7890"},
                    Conversion{6, "5551234", "555-1234"}, Conversion{6, "11234567890", "11234567890"},
                    Conversion{2, "o'brien-SMITH", "O'brien-smith"},
                    Conversion{8, "the\tgarden (hall)", "The\tGarden (hall)"}, Conversion{0, "", ""},
                    Conversion{7, "call me", "call me"}, Conversion{20, "abc", "abc"}));

TEST(Status, FollowsAPressOfTheMouse) {
    RunningProgram run;
    PutText(run, kSecond, 5, "abcdef");
    person::TurnTo(run.program, 1);
    person::FieldMouseDown(run.program, Text(kSecond, 5), 1, 4, 0);
    EXPECT_EQ(run.program.main.lblCurPos.Caption, "Cursor Location = 4");
    EXPECT_EQ(run.program.main.lblTextPos.Caption, "Printer Text Position = 400.");
    person::FieldMouseDown(run.program, Text(kSecond, 5), 1, 0, 0);
    EXPECT_EQ(run.program.main.lblTextPos.Caption, "Printer Text Position = .");
}

TEST(Focus, NeverRecoloursASelectedArea) {
    RunningProgram run;
    run.program.editing.BlockMode = true;
    run.Area(kFirst, 10).BackColor = colors::kBlockSelected;
    Typist typist(run.program);
    typist.Click(kFirst, 10);
    EXPECT_EQ(run.Area(kFirst, 10).BackColor, colors::kBlockSelected);
    typist.Click(kFirst, 11);
    EXPECT_EQ(run.Area(kFirst, 10).BackColor, colors::kBlockSelected);
    EXPECT_EQ(run.Area(kFirst, 11).BackColor, colors::kFocused);
    EXPECT_EQ(run.program.editing.LastArea, 10);
}

TEST(Status, FollowsTheCursor) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(kSecond, 5);
    EXPECT_EQ(run.program.main.lblTextNum.Caption, "Page 2, Text Area 6");
    typist.Type("abc");
    EXPECT_EQ(run.program.main.lblCurPos.Caption, "Cursor Location = 3");
    EXPECT_EQ(run.program.main.lblTextPos.Caption, "Printer Text Position = 300.");
    run.program.run.NoPrinter = true;
    typist.Type("d");
    EXPECT_FALSE(run.program.main.lblTextPos.Visible);
    EXPECT_EQ(run.program.main.CurrentPage, 1);
    EXPECT_EQ(run.program.editing.CurrentArea, 5);
}

TEST(AutomaticBackup, RunsOnTheTwentiethKeyButNotInTheClientsName) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(kFirst, 2);
    typist.Type(std::string(25, 'a'));
    EXPECT_FALSE(run.folder.Has("Proposals/Backup/" + std::string(25, 'a') + ".hef"));
    EXPECT_EQ(run.program.editing.KeyCounter, 25);
    typist.Click(kFirst, 3);
    typist.Type("x");
    EXPECT_TRUE(run.folder.Has("Proposals/Backup/" + std::string(25, 'a') + ".hef"));
    EXPECT_EQ(run.program.editing.KeyCounter, 0);
    typist.Type(std::string(19, 'x'));
    EXPECT_EQ(run.program.editing.KeyCounter, 19);
    typist.Type("x");
    EXPECT_EQ(run.program.editing.KeyCounter, 0);
}

TEST(AutomaticBackup, KeysInQuantitiesAndPricesCount) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(kFirst, 2);
    typist.Type("Ann");
    typist.Click(kFirst, 12);
    typist.Press(keys::kF8);
    run.program.editing.KeyCounter = 0;
    typist.Click({kFirst, FieldKind::txtQty, 12});
    typist.Type("1234567890");
    typist.Click({kFirst, FieldKind::txtAmt, 12});
    typist.Type("123456789");
    EXPECT_FALSE(run.folder.Has("Proposals/Backup/Ann.hef"));
    typist.Type("0");
    EXPECT_TRUE(run.folder.Has("Proposals/Backup/Ann.hef"));
    EXPECT_EQ(run.program.editing.KeyCounter, 0);
    EXPECT_EQ(run.program.main.Focus, (FieldRef{kFirst, FieldKind::txtAmt, 12}));
}

TEST(Focus, OfTheFinalPageHasNoCyan) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(PageId::frmP6, 4);
    EXPECT_EQ(run.Area(PageId::frmP6, 4).BackColor, colors::kResting);
    typist.Type("1234567890123");
    EXPECT_EQ(run.Area(PageId::frmP6, 4).BackColor, colors::kOverLimit);
    EXPECT_EQ(run.program.main.lblTextNum.Caption, "Page 6, Text Area 5");
    modFields::SetText(run.program, {PageId::frmP6, FieldKind::txt, 4}, "1");
    EXPECT_EQ(run.Area(PageId::frmP6, 4).BackColor, colors::kResting) << "also when the program writes it";
}

TEST(Focus, IsNeverTakenByTheClientsCopy) {
    RunningProgram run;
    person::TurnTo(run.program, 6);
    const auto before = run.program.main.Focus;
    person::FieldMouseDown(run.program, {PageId::frmP6_1, FieldKind::txt, 1}, 1, 0, 0);
    EXPECT_EQ(run.program.main.Focus, before);
    EXPECT_EQ(run.program.main.CurrentPage, 0);
}

TEST(AutomaticBackup, InTheMiddleOfAnAmountSaysNothing) {
    RunningProgram run;
    run.program.document.FileName = "Ann.hef";
    run.program.document.BaseName = "Ann";
    Typist typist(run.program);
    typist.Click(kSecond, 33);
    run.program.editing.KeyCounter = 17;
    typist.Type("123456");
    EXPECT_TRUE(run.folder.Has("Proposals/Backup/Ann.hef"));
    EXPECT_EQ(run.TextOf(kSecond, 33), "123456");
}

TEST(Focus, IsNotTakenByAFieldThatIsHidden) {
    RunningProgram run;
    modFields::GiveFocus(run.program, {kSecond, FieldKind::txtQty, 3});
    EXPECT_EQ(run.program.main.Focus, Text(kFirst, 0));
}

TEST(Columns, TurnARowIntoAPricedLineAndBack) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(kSecond, 4);
    typist.Type("Chairs");
    typist.Press(keys::kF8);
    const FieldRef quantity{kSecond, FieldKind::txtQty, 4};
    EXPECT_EQ(run.program.main.Focus, quantity);
    EXPECT_EQ(run.Area(kSecond, 4).Left, 1440);
    EXPECT_EQ(run.Area(kSecond, 4).Width, 6270);
    const Page& page = run.program.pages[kSecond];
    EXPECT_EQ(page.txtQty[4].Text, "Qty.");
    EXPECT_EQ(page.txtAmt[4].Text, "Amt.");
    EXPECT_TRUE(page.lblAt[4].Visible && page.lblEach[4].Visible);
    EXPECT_EQ(page.lblEach[4].Tag, "");
    typist.Press(keys::kBackspace);
    EXPECT_EQ(page.txtQty[4].Text, "Qty") << "backspace takes a letter of the placeholder";
    run.program.pages[kSecond].txtQty[4].Text = "Qty.";
    typist.Type("3");
    EXPECT_EQ(page.txtQty[4].Text, "3");
    EXPECT_EQ(run.TextOf(kSecond, 37), "") << "the price is still a placeholder";
    typist.Press(keys::kEnter);
    EXPECT_EQ(run.program.main.Focus, Text(kSecond, 4));
    EXPECT_EQ(run.Area(kSecond, 4).SelStart, 0);
    typist.Press(keys::kEnter);
    typist.Type("19.99-");
    EXPECT_EQ(page.txtAmt[4].Text, "19.99") << "no minus";
    EXPECT_EQ(run.TextOf(kSecond, 37), "59.97");
    EXPECT_EQ(run.program.totals.PageSum[PageId::frmP2], 59.97F);
    typist.Press(keys::kEnter);
    EXPECT_EQ(run.program.main.Focus, Text(kSecond, 37));
    EXPECT_EQ(run.program.document.CurrentTextBuf[PageId::frmP2][4], "\xA5"
                                                                     "3\xA5"
                                                                     "Chairs\xA7"
                                                                     "19.99");
    typist.Click(kSecond, 4);
    typist.Press(keys::kF8);
    EXPECT_EQ(run.Area(kSecond, 4).Left, 900);
    EXPECT_EQ(run.Area(kSecond, 4).Width, 8640);
    EXPECT_FALSE(page.txtQty[4].Visible);
    EXPECT_EQ(page.txtQty[4].Tag, "Hide");
    EXPECT_EQ(page.txtQty[4].Text, "");
    EXPECT_EQ(run.TextOf(kSecond, 37), "59.97") << "the amount stays";
    EXPECT_EQ(run.program.document.CurrentTextBuf[PageId::frmP2][4], "Chairs");
}

struct Product {
    const char* Quantity;
    const char* Price;
    const char* Amount;
};

class Products : public testing::TestWithParam<Product> {};

TEST_P(Products, AreSinglesMultipliedInDouble) {
    RunningProgram run;
    modPages::PlaceColumns(run.program, kSecond, 0, modPages::Columns::On);
    modFields::SetText(run.program, {kSecond, FieldKind::txtQty, 0}, GetParam().Quantity);
    modFields::SetText(run.program, {kSecond, FieldKind::txtAmt, 0}, GetParam().Price);
    EXPECT_EQ(run.TextOf(kSecond, 33), GetParam().Amount);
}

// 1.005 as a single is 1.00499999523: a product of 1.00.
INSTANTIATE_TEST_SUITE_P(Table, Products,
                         testing::Values(Product{"3", "19.99", "59.97"}, Product{"0", "5", ".00"},
                                         Product{"1", "0.5", ".50"}, Product{"1", "1.005", "1.00"},
                                         Product{"2", "1,000", "2,000.00"}, Product{"-1", ".5", "-.50"},
                                         Product{"x", "5", ""}, Product{"1e39", "5", ""}));

TEST(Columns, LeavingThePriceWritesItAndTheProduct) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(kSecond, 0);
    typist.Press(keys::kF8);
    typist.Type("2");
    typist.Click({kSecond, FieldKind::txtAmt, 0});
    EXPECT_EQ(run.program.pages[kSecond].txtAmt[0].BackColor, colors::kFocused);
    EXPECT_EQ(run.program.pages[kSecond].txtQty[0].BackColor, colors::kRestingRowField);
    typist.Type("1500");
    typist.Click(kSecond, 0);
    EXPECT_EQ(run.program.pages[kSecond].txtAmt[0].Text, "1,500.00");
    EXPECT_EQ(run.TextOf(kSecond, 33), "3,000.00");
}

TEST(Columns, ArrowsGoToTheSameBoxOfTheNextRowOrItsDescription) {
    RunningProgram run;
    for (const int row : {3, 4}) {
        modPages::PlaceColumns(run.program, kSecond, row, modPages::Columns::On);
    }
    person::TurnTo(run.program, 1);
    Typist typist(run.program);
    typist.Click({kSecond, FieldKind::txtQty, 3});
    typist.Press(keys::kDown);
    EXPECT_EQ(run.program.main.Focus, (FieldRef{kSecond, FieldKind::txtQty, 4}));
    typist.Press(keys::kDown);
    EXPECT_EQ(run.program.main.Focus, Text(kSecond, 5));
    typist.Click({kSecond, FieldKind::txtAmt, 3});
    typist.Press(keys::kUp);
    EXPECT_EQ(run.program.main.Focus, Text(kSecond, 2));
    typist.Click(kSecond, 2);
    typist.Press(keys::kEnter);
    typist.Press(keys::kEnter);
    EXPECT_EQ(run.program.main.Focus, (FieldRef{kSecond, FieldKind::txtQty, 3}))
        << "from an amount to the next row's box";
}

TEST(Columns, AQuantityAloneCountsAsUnsaved) {
    RunningProgram run;
    modPages::PlaceColumns(run.program, kSecond, 0, modPages::Columns::On);
    run.program.document.SavedTextBuf = run.program.document.CurrentTextBuf;
    modFields::SetText(run.program, {kSecond, FieldKind::txtQty, 0}, "5");
    EXPECT_NE(run.program.document.CurrentTextBuf[PageId::frmP2][0],
              run.program.document.SavedTextBuf[PageId::frmP2][0]);
}

TEST(TaxMarks, SetByTheMenuChangeTheTotalAtOnce) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(kSecond, 33);
    typist.Type("100");
    typist.Click(kSecond, 34);
    typist.Click(kSecond, 33);
    modTextMenu::UpdateTextMenu(run.program);
    EXPECT_TRUE(run.program.main[CommandId::mnuEditTextTaxExempt].Enabled);
    modColumns::mnuEditTextTaxExempt_Click(run.program);
    EXPECT_TRUE(run.program.pages[kSecond].imgNoTax[33].Visible);
    EXPECT_EQ(run.program.pages[kSecond].imgNoTax[33].Tag, "");
    EXPECT_TRUE(run.program.format.FormatTextChanges[PageId::frmP2][33].TaxExempt);
    EXPECT_EQ(run.TextOf(PageId::frmP6, 1), "0.00");
    EXPECT_EQ(run.Main().cmdReCalc.BackColor, colors::kOverLimit);
    typist.Click(kSecond, 34);
    EXPECT_EQ(run.TextOf(PageId::frmP6, 1), "0.00");
    typist.Click(kSecond, 33);
    modColumns::mnuEditTextTaxable_Click(run.program);
    EXPECT_EQ(run.TextOf(PageId::frmP6, 1), "100.00");
    typist.Click(kSecond, 0);
    modTextMenu::UpdateTextMenu(run.program);
    EXPECT_FALSE(run.program.main[CommandId::mnuEditTextTaxExempt].Enabled);
}

TEST(Refire, RunsEveryHandlerWithTheRealText) {
    RunningProgram run;
    run.Area(kSecond, 0).Text = "Chairs";
    run.Area(kSecond, 33).Text = "25";
    modText::RefireTextChanges(run.program, kSecond);
    EXPECT_EQ(run.program.document.CurrentTextBuf[PageId::frmP2][0], "Chairs");
    EXPECT_EQ(run.program.totals.PageSum[PageId::frmP2], 25.0F);
    EXPECT_FALSE(run.program.editing.RefireMode);
    run.program.document.FileName.clear();
    modText::RefireTextChanges(run.program, kFirst);
    EXPECT_EQ(run.program.document.FileName, "") << "the detour makes no file name";
}

TEST(Refire, ReachesTheLastBoxesAndTheLastAmount) {
    RunningProgram run;
    modPages::PlaceColumns(run.program, kSecond, 32, modPages::Columns::On);
    run.program.pages[kSecond].txtQty[32].Text = "2";
    run.program.pages[kSecond].txtAmt[32].Text = "5";
    run.Area(PageId::frmP3, 65).Text = "25";
    modText::RefireTextChanges(run.program, kSecond);
    modText::RefireTextChanges(run.program, PageId::frmP3);
    EXPECT_EQ(run.TextOf(kSecond, 65), "10.00") << "two at five each";
    EXPECT_EQ(run.program.totals.PageSum[PageId::frmP3], 25.0F);
}

TEST(Refire, LeavesNoBlankOfAPersonThatALaterTextCouldFlowOnBy) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(kSecond, 0);
    typist.Type("abc ");
    modText::RefireTextChanges(run.program, kSecond);
    const std::string line = "one two " + std::string(90, 'x'); // 9800 of 8640 twips
    modFields::SetText(run.program, {kSecond, FieldKind::txt, 5}, line);
    EXPECT_EQ(run.TextOf(kSecond, 5), line) << "nobody has typed it";
    EXPECT_EQ(run.TextOf(kSecond, 6), "");
}

TEST(Entering, AnAreaFindsNoWordUnderWayAndNoMoveIsDisturbed) {
    RunningProgram run;
    EditingState& editing = run.program.editing;
    editing.ACActive[PageId::frmP2] = true;
    editing.Words[PageId::frmP2].InWord = true;
    editing.EmptiedAmount = FieldRef{PageId::frmP2, FieldKind::txt, 36};
    editing.MoveInProgress = true;
    modText::txt_GotFocus(run.program, PageId::frmP2, 5);
    EXPECT_TRUE(editing.ACActive[PageId::frmP2]) << "a move passes through";
    editing.MoveInProgress = false;
    modText::txt_GotFocus(run.program, PageId::frmP2, 5);
    EXPECT_FALSE(editing.ACActive[PageId::frmP2]);
    EXPECT_FALSE(editing.Words[PageId::frmP2].InWord);
    EXPECT_FALSE(editing.EmptiedAmount);
    EXPECT_EQ(editing.CurrentArea, 5);
    EXPECT_EQ(run.program.main.ActivePage, PageId::frmP2);
    EXPECT_EQ(run.program.main.CurrentPage, 1);
    EXPECT_EQ(editing.CurrentWidth, run.Area(PageId::frmP2, 5).Width);
    EXPECT_EQ(editing.CurrentLimit, "120");
}

} // namespace
