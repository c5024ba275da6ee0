#include "editing/row_texts.h"
#include "editing/standing_completion.h"
#include "pages/fields.h"
#include "pages/row_fields.h"
#include "support/person.h"
#include "support/running_program.h"
#include "support/typist.h"

#include <gtest/gtest.h>

#include <string>

// How a line that is too long flows on. Every character is 100 twips wide: a plain row of 8640 twips
// overflows at 87 characters, a row with columns of 6270 at 63.

namespace {

constexpr PageId kFirst = PageId::frmP1;
constexpr PageId kSecond = PageId::frmP2;

FieldRef Area(PageId page, int index) {
    return {page, FieldKind::txt, index};
}

void Put(RunningProgram& run, PageId page, int index, const std::string& text) {
    person::EditedWithoutKey(run.program, Area(page, index), text, static_cast<int>(text.size()), 0);
}

TEST(PushAtTheEnd, AboveAnAlmostFullRowTheCursorStillFollowsToTheNextRow) {
    RunningProgram run;
    Put(run, kFirst, 11, Words(8) + "yyyyyy");  // 86 characters fit
    Put(run, kFirst, 10, Words(8) + "jklmnop"); // 87 do not
    Typist typist(run.program);
    typist.Click(kFirst, 10);
    typist.Type(" ");
    EXPECT_EQ(run.TextOf(kFirst, 10), Words(8).substr(0, 79));
    // "jklmnop " joins 86 characters: 94. The cursor stood at 87, inside that line, and the key was a blank:
    // the row flows on at its last blank that fits, at 78 + 8 = 88 - 10, and its own cursor stays.
    EXPECT_EQ(run.TextOf(kFirst, 11), "jklmnop " + Words(7).substr(0, 69));
    EXPECT_EQ(run.TextOf(kFirst, 12), "abcdefghi yyyyyy");
    EXPECT_EQ(run.program.main.Focus, Area(kFirst, 11)) << "what the row below decided is the row's below";
    EXPECT_EQ(run.Area(kFirst, 11).SelStart, 8);
    EXPECT_EQ(run.program.editing.CursorPos, 8);
    EXPECT_FALSE(run.program.editing.PushNeeded);
}

TEST(PushAtTheEnd, AWordPastTheEdgeWaitsForItsBlank) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(kSecond, 0);
    typist.Type(Words(8) + "jklmnop");
    EXPECT_EQ(run.TextOf(kSecond, 0), Words(8) + "jklmnop");
    EXPECT_EQ(run.Area(kSecond, 0).BackColor, colors::kOverLimit);
    typist.Type("qrst");
    EXPECT_EQ(run.TextOf(kSecond, 0), Words(8) + "jklmnopqrst");
    typist.Type(" ");
    EXPECT_EQ(run.TextOf(kSecond, 1), "jklmnopqrst ");
}

TEST(PushAtTheEnd, MovesOneWordMoreWhenTheBlanksRunOutBeforeTheWidth) {
    RunningProgram run;
    Put(run, kSecond, 0, Words(8) + "jklmno"); // 86 characters fit; the blank that makes 87 does not
    Typist typist(run.program);
    typist.Click(kSecond, 0);
    typist.Type(" ");
    // Left of the last blank 8700 twips do not fit: the walk ends on it, the blank before it splits.
    EXPECT_EQ(run.TextOf(kSecond, 0), Words(8).substr(0, 79));
    EXPECT_EQ(run.TextOf(kSecond, 1), "jklmno ");

    Put(run, kSecond, 5, Words(8) + "jklmno");
    typist.Click(kSecond, 5);
    typist.PutCursor(85);
    typist.Type(" ");
    // "... jklmn o": the blank typed stands at 86, all left of it fits, and no other follows: the one before
    // it splits although the line needed one character less.
    EXPECT_EQ(run.TextOf(kSecond, 5), Words(8).substr(0, 79));
    EXPECT_EQ(run.TextOf(kSecond, 6), "jklmn o");
    EXPECT_EQ(run.program.main.Focus, Area(kSecond, 5));
    EXPECT_EQ(run.Area(kSecond, 5).SelStart, 79)
        << "the place typed at has moved on; the cursor stays at the end";
}

TEST(PushInside, GoesOnIntoRowsWhoseTextIsShorterThanTheCursor) {
    RunningProgram run;
    Put(run, kSecond, 1, Words(6) + "tail"); // 64 characters
    run.Area(kSecond, 1).Width = 6270;       // room for 62
    Put(run, kSecond, 0, Words(8) + "jklmno");
    Typist typist(run.program);
    typist.Click(kSecond, 0);
    typist.PutCursor(80);
    typist.Type(" ");
    // The blank at 81 and the one at 80: all left of it fits, so the one at 80 splits. The tail joins 64
    // characters: 71, below the cursor at 81, so that row decides nothing of its own and flows on.
    EXPECT_EQ(run.TextOf(kSecond, 0), Words(8).substr(0, 79));
    EXPECT_EQ(run.TextOf(kSecond, 1), (" jklmno" + Words(6)).substr(0, 56));
    EXPECT_EQ(run.TextOf(kSecond, 2), "abcdefghi tail");
}

TEST(Push, IntoARowWithColumnsLeavesItsOwnRowCyan) {
    RunningProgram run;
    modPages::PlaceColumns(run.program, kSecond, 1, modPages::Columns::On);
    Put(run, kSecond, 0, Words(8) + "jklmno");
    Typist typist(run.program);
    typist.Click(kSecond, 0);
    typist.PutCursor(3);
    // A held blank: no release has recoloured anything yet.
    EXPECT_EQ(person::KeyDown(run.program, ' ', 0, 3, 0), Taken::No);
    const std::string typed = "abc defghi " + Words(7) + "jklmno";
    person::Edited(run.program, Area(kSecond, 0), typed, 4, 0);
    EXPECT_EQ(run.TextOf(kSecond, 0), typed.substr(0, 70)) << "7000 twips";
    EXPECT_EQ(run.Area(kSecond, 0).BackColor, colors::kFocused)
        << "judged by its own 8640 twips, not by 6270";
}

TEST(Push, MeasuresByTheFirstPagesFontOnEveryPage) {
    RunningProgram run;
    run.surroundings.measure.UnitSize = 10;
    run.program.pages[kSecond].FontSize = 20; // here a line overflows at 44 characters
    Put(run, kSecond, 0, Words(6).substr(0, 59));
    Typist typist(run.program);
    typist.Click(kSecond, 0);
    typist.Type(" ");
    // By the first page's font all 60 fit, the blanks run out, and one word moves. The 49 left are still too
    // long here, so they are split once more in the same way, at 30, before the first word arrives below. By
    // its own font the line would have been split once, at 40.
    EXPECT_EQ(run.TextOf(kSecond, 0), Words(3).substr(0, 29));
    EXPECT_EQ(run.TextOf(kSecond, 1), Words(3).substr(0, 29));
}

TEST(Push, IsMeasuredWithoutBold) {
    RunningProgram run;
    run.surroundings.measure.BoldFactor = 2;
    run.Area(kSecond, 0).FontBold = true;
    Typist typist(run.program);
    typist.Click(kSecond, 0);
    typist.Type(Words(8));
    EXPECT_EQ(run.Area(kSecond, 0).BackColor, colors::kFocused) << "8000 twips of the page's font";
    EXPECT_EQ(run.program.main.lblTextPos.Caption, "Printer Text Position = 16000.")
        << "the printer stands where the area's own font has led it";
}

TEST(Push, TakesPushAreasOnly) {
    struct Case {
        PageId Page;
        int Index;
        int Fits;
    };
    for (const Case& one : {Case{kFirst, 3, 61}, Case{kFirst, 19, 86}, Case{kSecond, 32, 86}}) {
        RunningProgram run;
        Typist typist(run.program);
        typist.Click(one.Page, one.Index);
        const std::string text = Words(9).substr(0, static_cast<std::size_t>(one.Fits) + 1);
        typist.Type(text + " ");
        EXPECT_EQ(run.TextOf(one.Page, one.Index), text + " ") << one.Index;
        EXPECT_EQ(run.TextOf(one.Page, one.Index + 1), "") << one.Index;
        EXPECT_EQ(run.Area(one.Page, one.Index).BackColor, colors::kOverLimit) << one.Index;
    }
}

TEST(Push, TheOverflowBeginsAtEqualWidth) {
    RunningProgram run;
    run.Area(kSecond, 0).Width = 1000;
    Typist typist(run.program);
    typist.Click(kSecond, 0);
    typist.Type("ab cdefgh");
    EXPECT_EQ(run.Area(kSecond, 0).BackColor, colors::kFocused) << "900 of 1000";
    typist.Type(" "); // 1000 of 1000
    EXPECT_EQ(run.TextOf(kSecond, 0), "ab");
    EXPECT_EQ(run.TextOf(kSecond, 1), "cdefgh ");
}

TEST(Push, BackspaceAtTheEndOfATooLongLineMovesNothing) {
    RunningProgram run;
    Put(run, kSecond, 0, Words(9));
    Typist typist(run.program);
    typist.Click(kSecond, 0);
    typist.Press(keys::kBackspace);
    EXPECT_EQ(run.TextOf(kSecond, 0), Words(9).substr(0, 89));
    EXPECT_EQ(run.TextOf(kSecond, 1), "");
}

TEST(Push, AfterOneThatWasGivenUpNothingIsLeftToPush) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(kSecond, 0);
    typist.Type(std::string(90, 'x') + " ");
    EXPECT_FALSE(run.program.editing.PushNeeded);
    typist.Press(keys::kBackspace);
    typist.Press(keys::kBackspace);
    EXPECT_EQ(run.TextOf(kSecond, 0), std::string(89, 'x'));
    EXPECT_EQ(run.TextOf(kSecond, 1), "");
}

TEST(Push, APasteOfSeveralCharactersStaysAndGoesRed) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(kSecond, 0);
    typist.Type("a ");
    typist.PasteByKey(Words(10), run.surroundings.clipboard.Text);
    EXPECT_EQ(run.TextOf(kSecond, 0), "a " + Words(10));
    EXPECT_EQ(run.TextOf(kSecond, 1), "");
    EXPECT_EQ(run.Area(kSecond, 0).BackColor, colors::kOverLimit);
}

TEST(Push, AStaleBlankNeverMovesADroppedText) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(kSecond, 0);
    typist.Type("abc ");
    EXPECT_EQ(run.program.editing.LastKeyChar, " ");
    typist.PasteByMouse(Area(kSecond, 0), 1, Words(9));
    EXPECT_EQ(run.TextOf(kSecond, 0), "a" + Words(9) + "bc ");
    EXPECT_EQ(run.TextOf(kSecond, 1), "");
    EXPECT_EQ(run.program.editing.LastKeyChar, "");
    EXPECT_EQ(run.program.editing.CursorPos, 1) << "where it stood before";
}

TEST(Push, OfALineOnTheLastRowButOneEndsAtTheLast) {
    RunningProgram run;
    Put(run, kSecond, 32, Words(8) + "zzzzzz");
    Put(run, kSecond, 33, "12");
    Typist typist(run.program);
    typist.Click(kSecond, 31);
    typist.Type(Words(9));
    EXPECT_EQ(run.TextOf(kSecond, 32), "abcdefghi " + Words(8) + "zzzzzz");
    EXPECT_EQ(run.TextOf(kSecond, 33), "12");
    EXPECT_EQ(run.program.main.Focus, Area(kSecond, 32));
    EXPECT_EQ(run.Area(kSecond, 32).BackColor, colors::kOverLimit);
}

TEST(Limits, AreThoseOfTheTag) {
    struct Case {
        PageId Page;
        int Index;
        int Limit;
    };
    for (const Case& one :
         {Case{kFirst, 0, 25}, Case{kFirst, 3, 60}, Case{kSecond, 4, 120}, Case{kSecond, 40, 20}}) {
        RunningProgram run;
        run.Area(one.Page, one.Index).Width = 20000;
        Typist typist(run.program);
        typist.Click(one.Page, one.Index);
        typist.Type(std::string(static_cast<std::size_t>(one.Limit), '1'));
        EXPECT_EQ(run.Area(one.Page, one.Index).BackColor, colors::kFocused) << one.Limit;
        typist.Type("1");
        EXPECT_EQ(run.Area(one.Page, one.Index).BackColor, colors::kOverLimit) << one.Limit;
        EXPECT_EQ(run.TextOf(one.Page, one.Index).size(), static_cast<std::size_t>(one.Limit) + 1);
    }
}

TEST(Limits, ATagWithTheAmountsLimitMakesAnAmountWhateverItsKind) {
    RunningProgram run;
    run.Area(kSecond, 5).Tag = "Push.020";
    Typist typist(run.program);
    typist.Click(kSecond, 5);
    typist.Type("1x2");
    EXPECT_EQ(run.TextOf(kSecond, 5), "12");
    EXPECT_EQ(run.program.totals.AmountTable[5][PageId::frmP2], 12.0F);
    typist.Click(kSecond, 6);
    EXPECT_EQ(run.TextOf(kSecond, 5), "12.00");
    run.Area(kFirst, 5).Tag = "Name.020";
    run.Label(kFirst, 6).Visible = true;
    typist.Click(kFirst, 5);
    typist.Type("1");
    typist.Press(keys::kBackspace);
    EXPECT_TRUE(run.Label(kFirst, 6).Visible) << "no sign stands beside it";
}

TEST(Limits, RedTurnsCyanOnReleaseOnly) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(kFirst, 0);
    typist.Type(std::string(22, 'x'));
    EXPECT_EQ(run.Area(kFirst, 0).BackColor, colors::kOverLimit);
    typist.Hold(keys::kBackspace);
    EXPECT_EQ(run.Area(kFirst, 0).BackColor, colors::kOverLimit);
    person::KeyUp(run.program, keys::kBackspace, 0, 21, 0);
    EXPECT_EQ(run.Area(kFirst, 0).BackColor, colors::kFocused);
}

TEST(Limits, LeavingTurnsAnOverfullAreaGreyAndEnteringRed) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(kFirst, 3);
    typist.Type(std::string(62, 'x'));
    typist.Click(kFirst, 4);
    EXPECT_EQ(run.Area(kFirst, 3).BackColor, colors::kResting);
    typist.Click(kFirst, 3);
    EXPECT_EQ(run.Area(kFirst, 3).BackColor, colors::kOverLimit);
}

TEST(Limits, AnAmountTooWideOnceFormattedIsLeftRed) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(kSecond, 33);
    typist.Type("123456789"); // 123,456,789.00 is 14 characters: 1400 of 1260 twips
    typist.Click(kSecond, 0);
    EXPECT_EQ(run.TextOf(kSecond, 33), "123,456,789.00");
    EXPECT_EQ(run.Area(kSecond, 33).BackColor, colors::kOverLimit);
}

TEST(PushAtTheEnd, KnowsNothingOfAnEarlierOneInside) {
    RunningProgram run;
    Typist typist(run.program);
    Put(run, kSecond, 0, "ab cd " + std::string(79, 'x') + "y"); // 86 characters
    typist.Click(kSecond, 0);
    typist.PutCursor(2);
    typist.Type(" "); // inside: the cursor stays in its line, a step on
    ASSERT_EQ(run.program.main.Focus, Area(kSecond, 0));
    ASSERT_NE(run.TextOf(kSecond, 1), "");
    Put(run, kSecond, 10, "ab cd " + std::string(80, 'x'));
    typist.Click(kSecond, 10);
    typist.Type(" ");
    EXPECT_EQ(run.program.main.Focus, Area(kSecond, 11)) << "it has gone on with its word";
    EXPECT_EQ(run.Area(kSecond, 10).SelStart, 0);
}

TEST(Push, EndsItsWalkAtABlankThatReachesTheEdgeToTheTwip) {
    RunningProgram run;
    run.surroundings.measure.Advance.fill(90); // 96 characters are 8640 twips
    Put(run, kSecond, 0, "aaa " + std::string(91, 'b') + " cc");
    Typist typist(run.program);
    typist.Click(kSecond, 0);
    typist.Type(" ");
    EXPECT_EQ(run.TextOf(kSecond, 0), "aaa");
    EXPECT_EQ(run.TextOf(kSecond, 1), std::string(91, 'b') + " cc ");
}

/// A text with blanks that is too long, as a completion in a row whose last key was a blank.
struct LongCompletion : RunningProgram {
    const std::string Line = "one two " + std::string(90, 'x');
    LongCompletion() {
        typist.Click(kSecond, 0);
        typist.Type("one ");
        program.editing.ACActive[kSecond] = true;
        program.editing.CursorPos = 4;
        modFields::TypeText(program, {kSecond, FieldKind::txt, 0}, Line, 4,
                            static_cast<int>(Line.size()) - 4);
    }
    void ExpectWhole() {
        EXPECT_EQ(TextOf(kSecond, 0), Line);
        EXPECT_EQ(TextOf(kSecond, 1), "");
    }
    Typist typist{program};
};

TEST(Push, TakesNothingOutOfACompletionThatIsLeftStanding) {
    LongCompletion run;
    run.typist.Click(kSecond, 9);
    run.ExpectWhole();
}

TEST(Push, TakesNothingOutOfACompletionThatACommandTakes) {
    LongCompletion run;
    modText::TakeCompletion(run.program);
    run.ExpectWhole();
    EXPECT_EQ(run.program.editing.CursorPos, static_cast<int>(run.Line.size()));
    EXPECT_EQ(run.Area(kSecond, 0).SelStart, static_cast<int>(run.Line.size())) << "behind what it has taken";
    EXPECT_EQ(run.Area(kSecond, 0).SelLength, 0);
}

TEST(Completion, ThatIsTakenLeavesACursorThatHasMovedIntoIt) {
    LongCompletion run;
    run.typist.PutCursor(2);
    modText::TakeCompletion(run.program);
    EXPECT_EQ(run.Area(kSecond, 0).SelStart, 2);
}

TEST(Completion, OfOnePageLeavesTheAreaOfAnotherAlone) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(PageId::frmP3, 4);
    typist.Type("chairs");
    typist.PutCursor(0, 3);
    run.program.editing.ACActive[kSecond] = true;
    modText::TakeCompletion(run.program);
    EXPECT_EQ(run.Area(PageId::frmP3, 4).SelStart, 0);
    EXPECT_EQ(run.Area(PageId::frmP3, 4).SelLength, 3);
    EXPECT_FALSE(run.program.editing.ACActive[kSecond]);
    modFields::DropFocus(run.program);
    run.program.editing.ACActive[kSecond] = true;
    modText::TakeCompletion(run.program);
    EXPECT_FALSE(run.program.editing.ACActive[kSecond]) << "with the keyboard nowhere, too";
}

} // namespace
