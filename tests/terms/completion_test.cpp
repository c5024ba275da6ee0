#include "terms/completion.h"

#include "editing/selection.h"
#include "pages/fields.h"
#include "program/keys.h"
#include "support/person.h"
#include "support/typist.h"
#include "terms/open_list.h"

#include <gtest/gtest.h>

#include <array>
#include <random>
#include <string>

// Completion while typing, by the keys of a person.

namespace {

constexpr PageId kPage = PageId::frmP2;
constexpr auto kStore = static_cast<std::size_t>(1);

struct Typing : TermsRun {
    explicit Typing(std::string_view lines, std::string_view startLength = "2")
        : TermsRun(lines, startLength) {
        hand.Click(kPage, 0);
    }
    [[nodiscard]] const std::string& Text(int index = 0) { return TextOf(kPage, index); }
    [[nodiscard]] std::string Selected(int index = 0) {
        const TextArea& area = Area(kPage, index);
        return area.Text.substr(static_cast<std::size_t>(area.SelStart),
                                static_cast<std::size_t>(area.SelLength));
    }
    [[nodiscard]] bool Active() const { return program.editing.ACActive.Each[kStore]; }
    [[nodiscard]] const std::string& Stored(std::size_t index = 0) const {
        return program.document.CurrentTextBuf.Each[kStore][index];
    }
    void ExpectTaken(std::string_view text) {
        EXPECT_EQ(Text(), text);
        EXPECT_EQ(Stored(), text);
        EXPECT_EQ(Selected(), "");
        EXPECT_EQ(Area(kPage, 0).SelStart, static_cast<int>(text.size()));
        EXPECT_FALSE(Active());
    }
    Typist hand{program};
};

TEST(Completion, BeginsWhenTheWordIsLongerThanTheStartLength) {
    Typing run("Chair Covers [3.50]");
    run.hand.Type("ch");
    EXPECT_EQ(run.Text(), "ch");
    EXPECT_FALSE(run.Active());
    run.hand.Type("a");
    EXPECT_EQ(run.Text(), "chair covers ") << "the blank before the bracket belongs to the term";
    EXPECT_EQ(run.Selected(), "ir covers ");
    EXPECT_TRUE(run.Active());
    EXPECT_EQ(run.Stored(), "cha") << "it is not stored before it is taken";
    EXPECT_EQ(run.program.editing.Words[kPage].MatchedTerm, "Chair Covers ");
    EXPECT_EQ(run.program.editing.Words[kPage].MatchedAmount, "3.50");
}

TEST(Completion, WithAStartLengthOfNoneTheFirstLetterDoes) {
    Typing run("Arch", "0");
    run.hand.Type("a");
    EXPECT_EQ(run.Text(), "arch");
}

TEST(Completion, EnterTakesItWithItsPriceAndStaysInTheLine) {
    Typing run("Chair Covers[3.50]");
    run.hand.Type("chair");
    run.hand.Press(keys::kEnter);
    run.ExpectTaken("chair covers");
    EXPECT_EQ(run.Text(33), "3.50");
    EXPECT_EQ(run.program.main.Focus, (FieldRef{kPage, FieldKind::txt, 0}));
    EXPECT_EQ(run.program.totals.AmountTable[33][PageId::frmP2], 3.5F);
    EXPECT_EQ(run.program.totals.SubTotal, 3.5F) << "typed and left at once";
    EXPECT_EQ(run.TextOf(PageId::frmP6, 0), "3.50");
    EXPECT_EQ(run.Main().cmdReCalc.BackColor, colors::kButtonFace);
    run.hand.Press(keys::kEnter);
    EXPECT_EQ(run.program.main.Focus, (FieldRef{kPage, FieldKind::txt, 33})) << "the next Enter moves on";
}

TEST(Completion, TheKeysThatTakeItDifferInThePriceAlone) {
    struct Way {
        int Key;
        int Shift;
        bool Price;
    };
    for (const Way& way : {Way{keys::kRight, 0, false}, Way{keys::kInsert, 0, false},
                           Way{keys::kRight, keys::kShiftState, true},
                           Way{keys::kEnter, keys::kShiftState, true}, Way{keys::kEnter, 0, true}}) {
        Typing run("Chair Covers[3.5]");
        run.hand.Type("cha");
        run.hand.Press(way.Key, way.Shift);
        run.ExpectTaken("chair covers");
        EXPECT_EQ(run.Text(33), way.Price ? "3.50" : "") << way.Key << " " << way.Shift;
    }
}

TEST(Completion, ShiftAndTheBlankTakeItAndTypeTheBlank) {
    Typing run("Chair Covers[3.5]");
    run.hand.Type("cha");
    const auto& area = run.Area(kPage, 0);
    ASSERT_EQ(person::KeyDown(run.program, keys::kBlank, keys::kShiftState, area.SelStart, area.SelLength),
              Taken::No);
    EXPECT_EQ(run.Text(), "chair covers");
    EXPECT_EQ(person::KeyPress(run.program, keys::kBlank), keys::kBlank);
    person::Edited(run.program, *run.program.main.Focus, run.Text() + " ", 13, 0);
    person::KeyUp(run.program, keys::kBlank, keys::kShiftState, 13, 0);
    EXPECT_EQ(run.Text(), "chair covers ");
    EXPECT_EQ(run.Stored(), "chair covers");
    EXPECT_EQ(run.Text(33), "");
}

TEST(Completion, ABlankAloneOvertypesItAndBeginsAWord) {
    Typing run("Chair Covers\r\nWhite");
    run.hand.Type("cha ");
    EXPECT_EQ(run.Text(), "cha ");
    run.hand.Type("whi");
    EXPECT_EQ(run.Text(), "cha white");
    EXPECT_EQ(run.Selected(), "te");
    run.hand.Press(keys::kRight);
    run.ExpectTaken("cha white");
}

TEST(Completion, TypingOnFollowsTheTermAndLeavesItWhereItDiffers) {
    Typing run("Chair Covers\r\nChapel");
    run.hand.Type("chair");
    EXPECT_EQ(run.Selected(), " covers");
    run.hand.Type("s");
    EXPECT_EQ(run.Text(), "chairs");
    EXPECT_EQ(run.Selected(), "");
    run.hand.Type("x");
    EXPECT_EQ(run.Stored(), "chairsx");
    EXPECT_FALSE(run.Active());
    Typing other("Chair Covers\r\nChapel");
    other.hand.Type("chap");
    EXPECT_EQ(other.Text(), "chapel");
}

TEST(Completion, TakesTheCaseInWhichTheWordIsTyped) {
    const auto typed = [](std::string_view word) {
        Typing run("Chair COVERS");
        run.hand.Type(word);
        return run.Text();
    };
    EXPECT_EQ(typed("Cha"), "Chair COVERS");
    EXPECT_EQ(typed("cha"), "chair covers");
    EXPECT_EQ(typed("CHA"), "CHAIR COVERS");
}

TEST(Completion, AWordInMixedCaseShowsNothingAndTheNextKeyClears) {
    Typing run("Chair Covers");
    run.hand.Type("cHa");
    EXPECT_EQ(run.Text(), "cHa");
    EXPECT_TRUE(run.Active());
    EXPECT_EQ(run.Selected(), "");
    run.hand.Type("x");
    EXPECT_FALSE(run.Active());
    EXPECT_EQ(run.Stored(), "cHax");
    run.hand.Press(keys::kEnter);
    EXPECT_EQ(run.program.main.Focus, (FieldRef{kPage, FieldKind::txt, 33})) << "Enter is Enter again";
}

TEST(Completion, OfTwoLinesThatBeginAlikeTheEarlierWins) {
    Typing run("TABLE, round\r\ntable, long");
    run.hand.Type("tab");
    EXPECT_EQ(run.Text(), "table, round") << "an exact hit later in the list does not beat it";
}

TEST(Completion, IsOfDescriptionsAlone) {
    Typing run("Chair Covers");
    run.hand.Click(PageId::frmP1, 3);
    run.hand.Type("chair");
    EXPECT_EQ(run.TextOf(PageId::frmP1, 3), "chair");
    run.hand.Click(PageId::frmP1, 10);
    run.hand.Type("chair");
    EXPECT_EQ(run.TextOf(PageId::frmP1, 10), "chair covers");
    Typing final("500 chairs", "0");
    final.hand.Click(PageId::frmP6, 4);
    final.hand.Type("5");
    EXPECT_EQ(final.TextOf(PageId::frmP6, 4), "5");
}

TEST(Completion, IsNotForASwitchedOffOne) {
    Typing run("Chair Covers");
    run.program.run.ACEnabled = false;
    run.hand.Type("chair");
    EXPECT_EQ(run.Text(), "chair");
}

TEST(Completion, TabDoesNothingWhileOneStands) {
    Typing run("Chair Covers[3.5]");
    run.hand.Type("cha");
    run.hand.Press(keys::kTab);
    EXPECT_EQ(run.Selected(), "ir covers");
    EXPECT_EQ(run.program.main.Focus, (FieldRef{kPage, FieldKind::txt, 0}));
}

TEST(Completion, APriceGoesIntoTheUnitPriceOfALineWithColumns) {
    Typing run("Chair Covers[3.5]");
    run.hand.Press(keys::kF8);
    run.hand.Type("4");
    run.hand.Press(keys::kEnter);
    run.hand.Type("cha");
    EXPECT_EQ(run.program.pages[kPage].txtAmt[0].Text, "Amt.");
    run.hand.Press(keys::kEnter);
    EXPECT_EQ(run.program.pages[kPage].txtAmt[0].Text, "3.50");
    EXPECT_EQ(run.Text(33), "14.00");
    EXPECT_EQ(run.program.totals.SubTotal, 14.0F);
}

TEST(Completion, APriceIsPlacedOnlyWhereNothingStands) {
    Typing run("Chair Covers[3.50]");
    run.hand.Click(kPage, 33);
    run.hand.Type("450");
    run.hand.Click(kPage, 0);
    run.hand.Type("cha");
    run.hand.Press(keys::kEnter);
    EXPECT_EQ(run.Text(), "chair covers") << "the text is taken all the same";
    EXPECT_EQ(run.Text(33), "450.00");
    EXPECT_EQ(run.program.main.Notice, "The amount 450.00 was kept; the list says 3.50.");
}

TEST(Completion, ABracketThatHoldsNoNumberPlacesNothing) {
    for (const char* line : {"Chair Covers[ask]", "Chair Covers[]", "Chair Covers[3.50", "Chair Covers[ ]"}) {
        Typing run(line);
        run.hand.Type("cha");
        run.hand.Press(keys::kEnter);
        EXPECT_EQ(run.Text(), "chair covers");
        EXPECT_EQ(run.Text(33), "") << line;
    }
    Typing run("Chair Covers[ 3.50 ]");
    run.hand.Type("cha");
    run.hand.Press(keys::kEnter);
    EXPECT_EQ(run.Text(33), "3.50") << "blanks around the number do not count";
}

TEST(Completion, LeavingTheAreaTakesTheTextAndNoAmount) {
    Typing run("Chair Covers[3.5]");
    run.hand.Type("cha");
    run.hand.Press(keys::kDown);
    EXPECT_EQ(run.Text(), "chair covers");
    EXPECT_EQ(run.Stored(), "chair covers");
    EXPECT_EQ(run.Text(33), "");
    EXPECT_FALSE(run.Active());
}

TEST(Completion, TakenWholeItNeverFlowsIntoTheNextLine) {
    Typing run(std::string(60, 'a') + " " + std::string(60, 'b') + " ");
    run.hand.Type("aaa");
    run.hand.Press(keys::kRight);
    EXPECT_EQ(run.Text().size(), 122U);
    EXPECT_EQ(run.Text(1), "");
    EXPECT_EQ(run.Area(kPage, 0).BackColor, colors::kOverLimit);
    Typing left(std::string(60, 'a') + " " + std::string(60, 'b') + " ");
    left.hand.Type("aaa");
    left.hand.Press(keys::kDown);
    EXPECT_EQ(left.Text(1), "");
}

TEST(Completion, AKeyThatPutsNoCharacterCompletesNothing) {
    // The same text stands at the cursor's left all the while, one letter longer than it needs to be.
    for (const int key : {keys::kEnter, keys::kTab, keys::kDown, keys::kRight, keys::kInsert, 35, 36, 27, 17,
                          18, 20, 112, keys::kF6, keys::kPageDown, 65, keys::kV}) {
        for (const int shift : {0, keys::kShiftState, keys::kCtrlState, keys::kAltState}) {
            Typing run("Chair Covers");
            run.program.run.ACEnabled = false;
            run.hand.Type("cha");
            run.hand.Click(kPage, 1);
            run.hand.Type("cha");
            run.program.run.ACEnabled = true;
            run.hand.Press(key, shift);
            run.hand.Press(key, shift);
            EXPECT_EQ(run.Text(0), "cha") << key << " " << shift;
            EXPECT_EQ(run.Text(1), "cha") << key << " " << shift;
        }
    }
}

TEST(Completion, NoKeysWithoutACharacterEverChangeATextThroughIt) {
    std::mt19937 random(3);
    constexpr std::array kKeys{keys::kEnter,
                               keys::kTab,
                               keys::kRight,
                               keys::kLeft,
                               keys::kUp,
                               keys::kDown,
                               keys::kInsert,
                               keys::kShift,
                               17,
                               18,
                               20,
                               27,
                               35,
                               36,
                               112,
                               keys::kPageDown};
    constexpr std::array kHeld{0, 0, 0, keys::kShiftState, keys::kCtrlState, keys::kAltState};
    Typing run("Chair Covers[3.5]\r\nTable [9]", "0");
    run.program.run.ACEnabled = false;
    for (int index = 0; index < 6; ++index) {
        run.hand.Click(kPage, index);
        run.hand.Type(index % 2 == 0 ? "cha" : "x tab");
    }
    run.program.run.ACEnabled = true;
    for (int step = 0; step < 5000; ++step) {
        if (random() % 8 == 0) {
            run.hand.Click(kPage, static_cast<int>(random() % 6));
        }
        const int key = kKeys[random() % kKeys.size()];
        const bool moves = key == keys::kUp || key == keys::kDown; // with Ctrl they move the lines themselves
        run.hand.Press(key, moves ? 0 : kHeld[random() % kHeld.size()]);
        for (int index = 0; index < 6; ++index) {
            ASSERT_EQ(run.Text(index), index % 2 == 0 ? "cha" : "x tab") << "step " << step;
            ASSERT_EQ(run.Text(33 + index), "") << "step " << step;
        }
    }
}

TEST(Completion, InBoldFitsWhatBoldMeasuresAndIsTakenAsElsewhere) {
    Typing run("Chair Covers[3.5]");
    person::Choose(run.program, CommandId::mnuEditTextBold);
    run.hand.Type("cha");
    EXPECT_EQ(run.Selected(), "ir covers");
    person::Choose(run.program, CommandId::mnuEditTextNormal);
    person::Choose(run.program, CommandId::mnuEditTextBold);
    EXPECT_EQ(run.Text(), "chair covers");
    run.hand.Press(keys::kRight);
    run.ExpectTaken("chair covers");
    EXPECT_TRUE(run.Area(kPage, 0).FontBold);
}

TEST(Completion, TypingOverOneAtTheEndOfAFullLinePushesAsTypingDoes) {
    Typing run("zebra crossing");
    std::string line;
    while (line.size() < 80) {
        line += "word ";
    }
    run.hand.Type(line + "zeb");
    ASSERT_EQ(run.Selected(), "ra crossing");
    run.hand.Type(" and then some");
    EXPECT_EQ(run.Text() + " " + run.Text(1), line + "zeb and then some") << "no letter of the offer remains";
}

TEST(Completion, PastedOverItIsGoneAndThePasteIsStored) {
    Typing run("Chair Covers[3.5]");
    run.hand.Type("cha");
    run.hand.PasteByKey("mber music", run.surroundings.clipboard.Text);
    EXPECT_EQ(run.Text(), "chamber music");
    run.hand.Press(keys::kDown);
    EXPECT_EQ(run.Stored(), "chamber music");
    EXPECT_EQ(run.Text(33), "");
}

TEST(Completion, PrintingPreviewExportAndCopyTakeItFirst) {
    for (const CommandId command : {CommandId::mnuFilePrintPreview, CommandId::mnuFilePrintAll,
                                    CommandId::mnuFileCopyProposal, CommandId::mnuFileSaveAsText}) {
        Typing run("Chair Covers[3.5]");
        run.hand.Click(PageId::frmP1, 2);
        run.hand.Type("Jane Roe");
        run.hand.Click(kPage, 0);
        run.hand.Type("cha");
        run.surroundings.questions.TakeAll(Answer::Yes);
        person::Choose(run.program, command);
        EXPECT_EQ(run.Stored(), "chair covers") << static_cast<int>(command);
        EXPECT_EQ(run.Text(33), "") << static_cast<int>(command);
        EXPECT_FALSE(run.Active()) << static_cast<int>(command);
    }
}

TEST(Completion, ClosingAsksAboutOneThatStandsOverASavedText) {
    Typing run("Chair Covers[3.5]");
    run.hand.Click(PageId::frmP1, 2);
    run.hand.Type("Jane Roe");
    run.program.run.ACEnabled = false;
    run.hand.Click(kPage, 0);
    run.hand.Type("chai");
    run.surroundings.questions.Expect("File was saved");
    person::Choose(run.program, CommandId::mnuFileSaveEvent);
    run.program.run.ACEnabled = true;
    run.hand.Press(keys::kBackspace);
    run.hand.Press(keys::kBackspace);
    run.hand.Press(keys::kBackspace);
    run.hand.Press(keys::kBackspace);
    run.hand.Type("chai");
    ASSERT_EQ(run.Text(), "chair covers");
    run.surroundings.questions.Expect("The file has been changed. Do you want to save it?", Answer::Cancel);
    EXPECT_FALSE(person::MayClose(run.program)) << "what is on the screen is not what is on the disk";
}

TEST(Completion, ArrivingAtAWordCompletesNothingAndAWordBegunElsewhereIsOver) {
    Typing run("Chair Covers");
    run.program.run.ACEnabled = false;
    run.hand.Type("xx cha");
    run.program.run.ACEnabled = true;
    run.hand.Click(kPage, 1);
    run.hand.Type("ab ");
    run.hand.Click(kPage, 0);
    run.hand.Type("i");
    EXPECT_EQ(run.Text(), "xx chai") << "a word begins at a typed blank or at the line's start";
    run.hand.Type(" cha");
    EXPECT_EQ(run.Text(), "xx chai chair covers");
}

TEST(Completion, AWordAtTheBeginningOfALineIsCompletedWhereverTheLastOneBegan) {
    Typing run("Chair Covers");
    run.hand.Type("ten tents");
    run.hand.Click(kPage, 1);
    run.hand.Type("cha");
    EXPECT_EQ(run.Text(1), "chair covers");
}

TEST(Completion, IsTakenByInsertWhateverIsHeldWithIt) {
    for (const int held : {0, keys::kCtrlState, keys::kAltState}) {
        Typing run("Chair Covers[3.5]");
        run.hand.Type("cha");
        run.hand.Press(keys::kInsert, held);
        run.ExpectTaken("chair covers");
        EXPECT_EQ(run.Text(33), "") << held;
    }
}

TEST(Completion, AKeyLetGoTwiceCompletesOnce) {
    Typing run("Chair Covers");
    run.hand.Type("cha");
    run.hand.Press(keys::kDelete);
    ASSERT_EQ(run.Text(), "cha");
    person::KeyUp(run.program, 'A', 0, 3, 0);
    EXPECT_EQ(run.Text(), "cha");
}

TEST(Completion, WhereNoneStandsItsKeysAreTheLinesOwn) {
    Typing run("Chair Covers[3.5]");
    const FieldRef field{kPage, FieldKind::txt, 0};
    run.hand.Type("xyz");
    EXPECT_FALSE(modTerms::CompletionKey(run.program, field, keys::kEnter, 0));
    run.program.editing.ACActive[kPage] = true;
    run.program.run.ACEnabled = false;
    EXPECT_FALSE(modTerms::CompletionKey(run.program, field, keys::kEnter, 0));
    EXPECT_EQ(run.Text(33), "");
}

TEST(Completion, PastesDropsAndInputMethodsCompleteNothing) {
    Typing run("Chair Covers");
    run.hand.Type("x ");
    run.hand.Commit("cha");
    EXPECT_EQ(run.Text(), "x cha");
    run.hand.PasteByKey("i", run.surroundings.clipboard.Text);
    EXPECT_EQ(run.Text(), "x chai");
    run.hand.Press(keys::kShift);
    EXPECT_EQ(run.Text(), "x chai");
    run.hand.Type("r");
    EXPECT_EQ(run.Text(), "x chair covers");
}

TEST(Completion, AKeyLetGoInAnotherAreaCompletesNothingThere) {
    Typing run("Chair Covers");
    run.program.run.ACEnabled = false;
    run.hand.Type("cha");
    run.program.run.ACEnabled = true;
    run.hand.Click(kPage, 1);
    run.hand.Hold(keys::kShift);
    EXPECT_EQ(person::KeyDown(run.program, 'A', 0, 0, 0), Taken::No);
    EXPECT_EQ(person::KeyPress(run.program, 'a'), 'a');
    person::Edited(run.program, {kPage, FieldKind::txt, 1}, "a", 1, 0);
    modFields::GiveFocus(run.program, {kPage, FieldKind::txt, 0});
    person::KeyUp(run.program, 'A', 0, 3, 0);
    EXPECT_EQ(run.Text(), "cha");
}

TEST(Completion, ALetterOfAnotherAreaIsForgottenOnceOneIsTypedHere) {
    Typing run("Chair Covers");
    const auto hold = [&](char letter, int index) {
        const FieldRef field{kPage, FieldKind::txt, index};
        const int at = run.Area(kPage, index).SelStart;
        EXPECT_EQ(person::KeyDown(run.program, letter - 32, 0, at, 0), Taken::No);
        EXPECT_EQ(person::KeyPress(run.program, letter), letter);
        const std::string text = run.Text(index) + letter;
        person::Edited(run.program, field, text, static_cast<int>(text.size()), 0);
    };
    hold('x', 0);
    run.hand.Click(kPage, 1);
    run.hand.Type("c");
    hold('h', 1);
    hold('a', 1);
    person::KeyUp(run.program, 'X', 0, 3, 0);
    EXPECT_EQ(run.Text(1), "cha") << "the key let go put its letter elsewhere";
    person::KeyUp(run.program, 'A', 0, 3, 0);
    EXPECT_EQ(run.Text(1), "chair covers");
}

TEST(Completion, LettersTypedInQuickSuccessionCompleteAtTheFirstRelease) {
    Typing run("Chair Covers");
    run.hand.Type("c");
    const auto down = [&](char letter) {
        const TextArea& area = run.Area(kPage, 0);
        EXPECT_EQ(person::KeyDown(run.program, letter - 32, 0, area.SelStart, 0), Taken::No);
        EXPECT_EQ(person::KeyPress(run.program, letter), letter);
        const std::string text = run.Text() + letter;
        person::Edited(run.program, {kPage, FieldKind::txt, 0}, text, static_cast<int>(text.size()), 0);
    };
    down('h');
    down('a');
    person::KeyUp(run.program, 'H', 0, 3, 0);
    EXPECT_EQ(run.Text(), "chair covers");
    person::KeyUp(run.program, 'A', 0, 3, 9);
    EXPECT_EQ(run.Selected(), "ir covers");
}

/// Letters whose keys are let go after the next one is pressed.
struct QuickHand {
    Typing& Run;
    void Down(char letter) const {
        const TextArea& area = Run.Area(kPage, 0);
        EXPECT_EQ(person::KeyDown(Run.program, KeyOf(letter), 0, area.SelStart, area.SelLength), Taken::No);
        EXPECT_EQ(person::KeyPress(Run.program, letter), letter);
        std::string text = Run.Text();
        text.replace(static_cast<std::size_t>(area.SelStart), static_cast<std::size_t>(area.SelLength), 1,
                     letter);
        person::Edited(Run.program, {kPage, FieldKind::txt, 0}, text, area.SelStart + 1, 0);
    }
    void Up(char letter) const {
        const TextArea& area = Run.Area(kPage, 0);
        person::KeyUp(Run.program, KeyOf(letter), 0, area.SelStart, area.SelLength);
    }
    static int KeyOf(char letter) { return letter == ' ' ? keys::kBlank : letter - 32; }
};

TEST(Completion, AWordBeginsWithALetterWhoseKeyIsLetGoLate) {
    for (const std::string_view order : {"ch", "hc"}) {
        Typing run("Chair Covers");
        const QuickHand hand{run};
        hand.Down('c');
        hand.Down('h');
        hand.Up(order[0]);
        hand.Up(order[1]);
        run.hand.Type("a");
        EXPECT_EQ(run.Text(), "chair covers") << order;
        EXPECT_EQ(run.Selected(), "ir covers") << order;
    }
}

TEST(Completion, AWordBeginsBehindABlankWhoseKeyIsLetGoLate) {
    for (const std::string_view order : {" c", "c "}) {
        Typing run("Hair pins\r\nChair Covers");
        run.hand.Type("ten");
        const QuickHand hand{run};
        hand.Down(' ');
        hand.Down('c');
        hand.Up(order[0]);
        hand.Up(order[1]);
        run.hand.Type("hai");
        EXPECT_EQ(run.Text(), "ten chair covers") << order;
    }
}

TEST(Completion, AKeyLetGoLateDoesNotGoBackToAnEarlierWord) {
    Typing run("Chair Covers\r\nA chapel");
    const QuickHand hand{run};
    hand.Down('a');
    hand.Down(' ');
    hand.Up(' ');
    hand.Up('a');
    run.hand.Type("cha");
    EXPECT_EQ(run.Text(), "a chair covers");
}

TEST(Completion, DeleteAndBackspaceTakeItAwayAndDoNotBringItBack) {
    for (const int key : {keys::kDelete, keys::kBackspace}) {
        Typing run("Chair Covers");
        run.hand.Type("cha");
        run.hand.Press(key);
        EXPECT_EQ(run.Text(), "cha");
        EXPECT_EQ(run.Selected(), "");
        run.hand.Press(keys::kDown);
        EXPECT_EQ(run.Stored(), "cha");
    }
}

TEST(Completion, IsTakenByAClickAndByABand) {
    Typing run("Chair Covers");
    run.hand.Type("cha");
    run.hand.Drag({kPage, FieldKind::txt, 0}, 2, 2);
    EXPECT_EQ(run.Text(), "chair covers");
    EXPECT_EQ(run.Stored(), "chair covers");
    EXPECT_EQ(run.Area(kPage, 0).SelStart, 2);
    EXPECT_FALSE(run.Active());
}

TEST(Completion, HomeLeavesTheTextStored) {
    Typing run("Chair Covers");
    run.hand.Type("cha");
    run.hand.Press(36);
    run.hand.Press(keys::kRight);
    EXPECT_EQ(run.Stored(), "chair covers");
}

TEST(Completion, SearchTakesItFirst) {
    Typing run("Chair Covers[3.5]");
    run.hand.Type("cha");
    person::Choose(run.program, CommandId::mnuEditFind);
    run.ExpectTaken("chair covers");
    EXPECT_EQ(run.Text(33), "");
}

TEST(Completion, ASaveTakesTheTextAndNoAmount) {
    Typing run("Chair Covers[3.5]");
    run.hand.Click(PageId::frmP1, 2);
    run.hand.Type("Jane Roe");
    run.hand.Click(kPage, 0);
    run.hand.Type("cha");
    run.surroundings.questions.TakeAll();
    person::Choose(run.program, CommandId::mnuFileSaveEvent);
    EXPECT_NE(run.folder.Read("Proposals/Jane Roe.hef").find("chair covers"), std::string::npos);
    run.ExpectTaken("chair covers");
    EXPECT_EQ(run.Text(33), "");
}

TEST(Completion, TheBackupWritesWhatShowsAndLeavesItStanding) {
    Typing run("Chair Covers[3.5]");
    run.hand.Click(PageId::frmP1, 2);
    run.hand.Type("Jane Roe");
    run.hand.Click(kPage, 0);
    run.hand.Type("cha");
    run.program.editing.KeyCounter = 19;
    run.surroundings.questions.TakeAll();
    run.hand.Press(27); // a key that changes nothing
    EXPECT_EQ(run.program.editing.KeyCounter, 0);
    EXPECT_NE(run.folder.Read("Proposals/Backup/Jane Roe.hef").find("chair covers"), std::string::npos);
    EXPECT_EQ(run.Selected(), "ir covers");
    EXPECT_TRUE(run.Active());
    run.hand.Press(keys::kEnter);
    EXPECT_EQ(run.Text(33), "3.50");
}

TEST(Completion, TermsWithControlCharactersComeAsBlanks) {
    Typing run("Chair\tCovers");
    run.hand.Type("cha");
    EXPECT_EQ(run.Text(), "chair covers");
}

TEST(Completion, ReadsTheListThatIsInUseNow) {
    Typing run("Chair Covers");
    run.folder.Write("Proposals/Barn.fut", "Charcoal");
    run.program.run.FUTFileName = "Barn.fut";
    run.hand.Type("cha");
    EXPECT_EQ(run.Text(), "charcoal");
}

/// Lists of a hundred are looked up in another way than short ones.
std::string HundredTerms(std::string_view word) {
    std::string lines;
    for (int number = 100; number < 200; ++number) {
        lines += std::string(word) + " " + std::to_string(number) + "\r\n";
    }
    return lines;
}

TEST(Completion, AfterAChangeOfListTheWordsOfTheOldOneAreForgotten) {
    Typing run(HundredTerms("Apples"));
    run.hand.Type("app");
    EXPECT_EQ(run.Text(), "apples 100");
    run.folder.Write("Proposals/Barn.fut", HundredTerms("Bananas"));
    run.program.run.FUTFileName = "Barn.fut";
    run.hand.Click(kPage, 1);
    run.hand.Type("ban");
    EXPECT_EQ(run.Text(1), "bananas 100");
    run.hand.Click(kPage, 2);
    run.hand.Type("app");
    EXPECT_EQ(run.Text(2), "app");
}

TEST(Completion, AKeyThatWasLetGoElsewhereAndIsPressedAgainForACommandShowsNothing) {
    Typing run("Chair Covers");
    const FieldRef line{kPage, FieldKind::txt, 0};
    run.hand.Type("ch");
    static_cast<void>(person::KeyDown(run.program, 'A', 0, 2, 0));
    EXPECT_EQ(person::KeyPress(run.program, 'a'), 'a');
    person::Edited(run.program, line, "cha", 3, 0);
    static_cast<void>(person::KeyDown(run.program, 'A', keys::kCtrlState, 3, 0));
    person::KeyUp(run.program, 'A', 0, 3, 0); // the control key was let go first
    EXPECT_EQ(run.Text(), "cha");
    EXPECT_FALSE(run.Active());
}

TEST(Completion, APasteByKeyShowsNothingAfterACharacterThatFoundNoRoomEither) {
    Typing run("Chair Covers");
    const FieldRef line{kPage, FieldKind::txt, 0};
    run.hand.Type("ch");
    static_cast<void>(person::KeyDown(run.program, 'X', 0, 2, 0));
    EXPECT_EQ(person::KeyPress(run.program, 'x'), 'x');
    person::KeyUp(run.program, 'X', 0, 2, 0);
    static_cast<void>(person::KeyDown(run.program, keys::kV, keys::kCtrlState, 2, 0));
    person::Edited(run.program, line, "cha", 3, 0);
    person::KeyUp(run.program, keys::kV, 0, 3, 0); // the control key was let go first
    EXPECT_EQ(run.Text(), "cha");
    EXPECT_FALSE(run.Active());
}

TEST(Completion, OvertypedByAWordThatNoTermBeginsWithHasNoPriceLeftToPlace) {
    Typing run("Chair Covers[3.5]");
    run.hand.Type("cha");
    ASSERT_TRUE(run.Active());
    run.hand.Type("x");
    ASSERT_EQ(run.Text(), "chax");
    static_cast<void>(modTerms::CompletionKey(run.program, {kPage, FieldKind::txt, 0}, keys::kEnter, 0));
    EXPECT_EQ(run.Text(33), "");
}

} // namespace
