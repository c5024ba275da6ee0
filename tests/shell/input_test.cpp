#include "shell/input.h"

#include "pages/fields.h"
#include "program/keys.h"
#include "program/program.h"
#include "program/windows.h"
#include "shell/page_switch.h"
#include "support/person.h"
#include "support/running_program.h"
#include "support/typist.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

using modInput::KeyDown;

TEST(Keys, PutTheCursorIntoTheRecordFirst) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(PageId::frmP1, 2);
    typist.Type("Jane");
    EXPECT_EQ(KeyDown(run.program, keys::kShift, keys::kShiftState, 1, 2), Taken::No);
    EXPECT_EQ(run.Area(PageId::frmP1, 2).SelStart, 1);
    EXPECT_EQ(run.Area(PageId::frmP1, 2).SelLength, 2);
}

TEST(Keys, PageKeysScrollEveryPageAndDoNotReachTheField) {
    for (int index = 0; index < kEditedPageCount; ++index) {
        RunningProgram run;
        modScroll::UpdatePageButtons(run.program, index);
        modFields::GiveFocus(run.program, {PageAt(index), FieldKind::txt, 0});
        const int before = run.program.editing.KeyCounter;
        EXPECT_EQ(KeyDown(run.program, keys::kPageDown, 0, 0, 0), Taken::Yes);
        EXPECT_GT(run.program.main.VScroll1.Value, 0);
        EXPECT_EQ(run.program.editing.KeyCounter, before);
    }
}

TEST(Keys, PageKeysWorkWithoutAFocus) {
    RunningProgram run;
    modFields::DropFocus(run.program);
    EXPECT_EQ(KeyDown(run.program, keys::kPageDown, 0, 0, 0), Taken::Yes);
    EXPECT_EQ(run.program.main.VScroll1.Value, 6870) << "2 x 9000 reaches 15870";
    EXPECT_EQ(KeyDown(run.program, keys::kEnter, 0, 0, 0), Taken::No);
    EXPECT_EQ(modInput::KeyPress(run.program, 'x'), 0);
}

TEST(Keys, UpAndDownMoveTheBlockWhileAreasAreSelected) {
    RunningProgram run;
    Typist typist(run.program);
    modScroll::UpdatePageButtons(run.program, 1);
    typist.Click(PageId::frmP2, 5);
    typist.Type("Chairs");
    EXPECT_EQ(KeyDown(run.program, keys::kDown, keys::kShiftState, 0, 0), Taken::Yes);
    EXPECT_EQ(KeyDown(run.program, keys::kDown, 0, 0, 0), Taken::Yes);
    EXPECT_EQ(run.TextOf(PageId::frmP2, 5), "");
    EXPECT_EQ(run.TextOf(PageId::frmP2, 6), "Chairs");
    EXPECT_EQ(KeyDown(run.program, keys::kUp, 0, 0, 0), Taken::Yes);
    EXPECT_EQ(run.TextOf(PageId::frmP2, 5), "Chairs");
    EXPECT_EQ(run.TextOf(PageId::frmP2, 6), "");
    EXPECT_EQ(run.program.main.Focus, (FieldRef{PageId::frmP2, FieldKind::txt, 5}));
}

TEST(Keys, ABlockThatAHeldArrowMovesOnAndOnIsStoredOnceWhereItIsLetGo) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(PageId::frmP2, 5);
    typist.Type("Chairs");
    typist.Press(keys::kDown, keys::kShiftState);
    const auto& stored = run.program.document.CurrentTextBuf[PageId::frmP2];
    typist.Hold(keys::kDown);
    typist.Hold(keys::kDown);
    EXPECT_EQ(run.TextOf(PageId::frmP2, 7), "Chairs");
    EXPECT_EQ(stored[5], "Chairs");
    EXPECT_EQ(stored[6], "") << "it only passes by there";
    person::KeyUp(run.program, keys::kDown, 0, 0, 0);
    EXPECT_EQ(stored[5], "");
    EXPECT_EQ(stored[6], "");
    EXPECT_EQ(stored[7], "Chairs");
}

TEST(Input, ABlankOfAnInputMethodBehindALineThatIsTooLongMovesItsLastWordDown) {
    RunningProgram run;
    Typist typist(run.program);
    const FieldRef line{PageId::frmP2, FieldKind::txt, 3}; // 86 characters fit
    const std::string words =
        "champagne champagne champagne champagne champagne champagne champagne champagne";
    typist.Click(line);
    typist.Insert(words + " canapees");
    modInput::CursorMoved(run.program, line, 88, 0);
    typist.Commit(" ");
    EXPECT_EQ(run.TextOf(PageId::frmP2, 3), words);
    EXPECT_EQ(run.TextOf(PageId::frmP2, 4), "canapees ");
}

TEST(Keys, UpAndDownMoveTheFocusOtherwise) {
    RunningProgram run;
    Typist typist(run.program);
    modScroll::UpdatePageButtons(run.program, 1);
    typist.Click(PageId::frmP2, 5);
    typist.Type("Chairs");
    EXPECT_EQ(KeyDown(run.program, keys::kDown, 0, 0, 0), Taken::Yes);
    EXPECT_EQ(run.TextOf(PageId::frmP2, 5), "Chairs");
    EXPECT_EQ(run.program.main.Focus, (FieldRef{PageId::frmP2, FieldKind::txt, 6}));
}

TEST(Keys, TermsKeysAreHeardOnLinePagesOnlyAndReachTheFieldToo) {
    RunningProgram run;
    run.folder.Write("Proposals/Other Terms.fut", "Arch\r\n");
    const std::string list = run.program.run.FUTFileName;
    const auto window = [&] { return modWindows::Find(run.program, "frmFUT"); };
    ASSERT_NE(window(), nullptr);
    modWindows::Close(run.program, *window()); // the settings have shown it
    modScroll::UpdatePageButtons(run.program, 1);
    modFields::GiveFocus(run.program, {PageId::frmP2, FieldKind::txt, 0});
    const int before = run.program.editing.KeyCounter;
    EXPECT_EQ(KeyDown(run.program, keys::kF5, 0, 0, 0), Taken::No);
    ASSERT_NE(window(), nullptr);
    EXPECT_EQ(KeyDown(run.program, keys::kF6, 0, 0, 0), Taken::No);
    EXPECT_NE(run.program.run.FUTFileName, list) << "the next list";
    EXPECT_EQ(run.program.editing.KeyCounter, before + 2);
    modScroll::UpdatePageButtons(run.program, 5);
    modFields::GiveFocus(run.program, {PageId::frmP6, FieldKind::txt, 0});
    modWindows::Close(run.program, *window());
    EXPECT_EQ(KeyDown(run.program, keys::kF5, 0, 0, 0), Taken::No);
    EXPECT_EQ(window(), nullptr);
}

TEST(Keys, ACharacterGoesToTheFieldThatHasTheFocusAfterTheKey) {
    RunningProgram run;
    Typist typist(run.program);
    modScroll::UpdatePageButtons(run.program, 1);
    typist.Click(PageId::frmP2, 33);
    EXPECT_EQ(modInput::KeyPress(run.program, 'x'), 0) << "amounts take no letters";
    EXPECT_EQ(modInput::KeyPress(run.program, '7'), '7');
    typist.Click(PageId::frmP2, 0);
    EXPECT_EQ(modInput::KeyPress(run.program, 'x'), 'x');
}

TEST(Mouse, AClickFocusesAndKeepsTheCursorOfTheWidget) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(PageId::frmP1, 2);
    typist.Type("Jane Roe");
    typist.Click(PageId::frmP1, 3);
    modInput::FieldMouseDown(run.program, {PageId::frmP1, FieldKind::txt, 2}, 1, 4, 0);
    EXPECT_EQ(run.program.main.Focus, (FieldRef{PageId::frmP1, FieldKind::txt, 2}));
    EXPECT_EQ(run.Area(PageId::frmP1, 2).SelStart, 4);
}

TEST(Mouse, TextFromOutsideReplacesTheSelection) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(PageId::frmP1, 2);
    typist.Type("Jane Roe");
    typist.PutCursor(5, 3);
    modInput::Insert(run.program, {PageId::frmP1, FieldKind::txt, 2}, "Doe", 1, modInput::By::Mouse);
    EXPECT_EQ(run.TextOf(PageId::frmP1, 2), "Jane Doe");
    EXPECT_EQ(run.program.main.Notice, "One character was not taken: it cannot be kept in a proposal.");
}

TEST(Mouse, AMarkedTextIsDraggedWithinItsField) {
    RunningProgram run;
    Typist typist(run.program);
    const FieldRef line{PageId::frmP2, FieldKind::txt, 0};
    typist.Click(line);
    typist.Type("abc def ");
    typist.PutCursor(4, 4);
    modInput::MoveMarked(run.program, line, 6);
    EXPECT_EQ(run.TextOf(PageId::frmP2, 0), "abc def ") << "not into itself";
    modInput::MoveMarked(run.program, line, 0);
    EXPECT_EQ(run.TextOf(PageId::frmP2, 0), "def abc ");
    EXPECT_EQ(run.program.document.CurrentTextBuf[PageId::frmP2][0], "def abc");
    EXPECT_EQ(run.Area(PageId::frmP2, 0).SelStart, 0);
    EXPECT_EQ(run.Area(PageId::frmP2, 0).SelLength, 4);
    modInput::MoveMarked(run.program, line, 8);
    EXPECT_EQ(run.TextOf(PageId::frmP2, 0), "abc def ");
    run.program.editing.BlockMode = true;
    modInput::MoveMarked(run.program, line, 0);
    run.program.editing.BlockMode = false;
    EXPECT_EQ(run.TextOf(PageId::frmP2, 0), "abc def ");
    const FieldRef amount{PageId::frmP2, FieldKind::txt, 33};
    typist.Click(amount);
    typist.Type("12-");
    typist.PutCursor(2, 1);
    modInput::MoveMarked(run.program, amount, 0);
    EXPECT_EQ(run.TextOf(PageId::frmP2, 33), "12-") << "a sign alone is no number";
    typist.PutCursor(0, 1);
    modInput::MoveMarked(run.program, amount, 2);
    EXPECT_EQ(run.TextOf(PageId::frmP2, 33), "21-");
    EXPECT_EQ(run.program.totals.AmountTable[33][PageId::frmP2], -21.0F);
}

TEST(Mouse, AnAmountTakesANumberFromOutsideWholeOrNotAtAll) {
    RunningProgram run;
    Typist typist(run.program);
    modScroll::UpdatePageButtons(run.program, 1);
    const FieldRef amount{PageId::frmP2, FieldKind::txt, 33};
    typist.Click(amount);
    modInput::Insert(run.program, amount, "12 chairs", 0, modInput::By::Mouse);
    EXPECT_EQ(run.TextOf(PageId::frmP2, 33), "");
    modInput::Insert(run.program, amount, " 12.50 ", 0, modInput::By::Mouse);
    EXPECT_EQ(run.TextOf(PageId::frmP2, 33), "12.50");
}

TEST(Input, KeysThatAreStillHeldWhenAnotherFieldIsTypedIntoAreForgotten) {
    RunningProgram run;
    Typist typist(run.program);
    const TypedKeys& typed = run.program.editing.Typed;
    const auto hold = [&](int index, char letter, std::string_view text) {
        const FieldRef field{PageId::frmP2, FieldKind::txt, index};
        static_cast<void>(person::KeyDown(run.program, letter - 'a' + 'A', 0, 0, 0));
        static_cast<void>(person::KeyPress(run.program, letter));
        person::Edited(run.program, field, text, static_cast<int>(text.size()), 0);
    };
    typist.Click(PageId::frmP2, 3);
    hold(3, 'a', "a");
    hold(3, 'b', "ab");
    EXPECT_TRUE(typed.Codes.test('A'));
    EXPECT_TRUE(typed.Codes.test('B'));
    typist.Click(PageId::frmP2, 5);
    hold(5, 'c', "c");
    EXPECT_EQ(typed.Field, (FieldRef{PageId::frmP2, FieldKind::txt, 5}));
    EXPECT_TRUE(typed.Codes.test('C'));
    EXPECT_FALSE(typed.Codes.test('A'));
    EXPECT_FALSE(typed.Codes.test('B'));
}

TEST(Input, TheCaretsLabelFollowsWhicheverHandMovesIt) {
    RunningProgram run;
    const FieldRef field{PageId::frmP2, FieldKind::txt, 3};
    Typist typist(run.program);
    typist.Click(field);
    typist.Type("ab cd ef");
    const std::string& told = run.program.main.lblCurPos.Caption;
    const auto at = [](int place) { return "Cursor Location = " + std::to_string(place); };
    EXPECT_EQ(told, at(8));
    person::FieldMouseDown(run.program, field, 1, 2, 0);
    EXPECT_EQ(told, at(2));
    person::FieldMouseUp(run.program, field, 5, 0);
    EXPECT_EQ(told, at(5));
    EXPECT_EQ(run.program.editing.CursorPos, 5) << "typing goes on from there";
    modInput::CursorMoved(run.program, field, 1, 2);
    EXPECT_EQ(told, at(1));
    person::KeyUp(run.program, keys::kLeft, 0, 4, 0);
    EXPECT_EQ(told, at(4));
    person::Edited(run.program, field, "ab cd efg", 9, 0);
    EXPECT_EQ(told, at(9));
    person::EditedWithoutKey(run.program, field, "ab", 2, 0);
    EXPECT_EQ(told, at(2));
    const FieldRef place{PageId::frmP1, FieldKind::txt, 8};
    typist.Click(place);
    typist.Type("Ab Cd");
    EXPECT_EQ(told, at(5));
    const FieldRef deposit{PageId::frmP6, FieldKind::txt, 4};
    typist.Click(deposit);
    typist.Type("125");
    person::KeyUp(run.program, keys::kLeft, 0, 1, 0);
    EXPECT_EQ(told, at(1));
    EXPECT_EQ(run.program.editing.CursorPos, 1);
    typist.Click(place);
    person::FieldDblClick(run.program, place, 4);
    EXPECT_EQ(run.Area(PageId::frmP1, 8).SelLength, 2) << "the word is marked";
    EXPECT_EQ(told, at(3));
}

TEST(Input, LabelsAndLogoGoWithTheMouseUntilItLetsGo) {
    RunningProgram run;
    run.program.format.SnapTwips = 180;
    const PageId page = PageId::frmP1;
    PageLabel& label = run.Label(page, 9);
    const float left = label.Left;
    modInput::LabelMouseDown(run.program, page, 9, 1, 10, 10);
    EXPECT_TRUE(modInput::LabelMouseMove(run.program, page, 9, 190, 10));
    EXPECT_EQ(label.Left, left + 180);
    modInput::LabelMouseUp(run.program, page, 9);
    EXPECT_EQ(run.program.format.PropLabelChanges[page][9].Left, left + 180);
    EXPECT_FALSE(modInput::LabelMouseMove(run.program, page, 9, 910, 10));
    modInput::LabelDblClick(run.program, page, 9);
    EXPECT_EQ(label.BackColor, colors::kFocused);
    PagePicture& logo = run.program.pages[page].pic;
    logo.Left = 720;
    modInput::LogoMouseDown(run.program, 1, 10, 10);
    EXPECT_TRUE(modInput::LogoMouseMove(run.program, 190, 10));
    modInput::LogoMouseUp(run.program);
    EXPECT_EQ(run.program.format.LogoLeft, 900);
    EXPECT_FALSE(modInput::LogoMouseMove(run.program, 910, 10));
    modInput::LogoDblClick(run.program);
    EXPECT_TRUE(logo.ToolTipText.starts_with(" Left = 900, Top = ")) << logo.ToolTipText;
}

TEST(Input, ASelectionByKeyGrowsFromWhereItBeganAndABlockOfAnotherHandFromItsTop) {
    RunningProgram run;
    Typist typist(run.program);
    const auto expectRows = [&](int first, int last) {
        for (int row = 5; row <= 15; ++row) {
            EXPECT_EQ(run.Area(PageId::frmP2, row).BackColor == colors::kBlockSelected,
                      row >= first && row <= last)
                << row;
        }
    };
    typist.Click(PageId::frmP2, 10);
    typist.Press(keys::kUp, keys::kShiftState);
    expectRows(9, 10);
    typist.Press(keys::kUp, keys::kShiftState);
    expectRows(8, 10);
    typist.Press(keys::kDown, keys::kShiftState);
    expectRows(9, 10);
    typist.Press(keys::kDown, keys::kShiftState);
    typist.Press(keys::kDown, keys::kShiftState);
    expectRows(10, 11);
    run.program.editing.Block.KeyAnchor = -1;
    typist.Press(keys::kDown, keys::kShiftState);
    expectRows(10, 12);
}

TEST(Mouse, ATextLetGoBehindTheEndOfAFieldGoesToItsEnd) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(PageId::frmP2, 4);
    typist.Type("ab");
    run.Area(PageId::frmP2, 4).SelStart = 9; // a view that has not followed yet
    run.Area(PageId::frmP2, 4).SelLength = 3;
    person::Insert(run.program, {PageId::frmP2, FieldKind::txt, 4}, "cd", 0, person::By::Mouse);
    EXPECT_EQ(run.TextOf(PageId::frmP2, 4), "abcd");
}

TEST(Mouse, WhateverItDoesNextAMoveWhoseKeyIsStillHeldIsStoredFirst) {
    constexpr PageId kPage = PageId::frmP2;
    const std::vector<std::pair<const char*, std::function<void(Program&)>>> actions{
        {"a field",
         [](Program& p) {
             modInput::FieldMouseDown(p, {kPage, FieldKind::txt, 9}, 1, 0, 0);
         }},
        {"a label", [](Program& p) { modInput::LabelMouseDown(p, kPage, 34, 1, 0, 0); }},
        {"the logo", [](Program& p) { modInput::LogoMouseDown(p, 1, 0, 0); }},
        {"a mark", [](Program& p) { modInput::NoTaxMarkClick(p, kPage, 40); }},
        {"a page's button", [](Program& p) { person::ClickPageButton(p, 0); }},
        {"another key", [](Program& p) { static_cast<void>(person::KeyDown(p, keys::kTab, 0, 0, 0)); }},
        {"a command", [](Program& p) { person::Choose(p, CommandId::mnuOptUnderline); }}};
    for (const auto& [what, act] : actions) {
        RunningProgram run;
        Typist typist(run.program);
        typist.Click(kPage, 3);
        typist.Type("Row");
        typist.Click(kPage, 8);
        const TextArea& row = run.Area(kPage, 3);
        modInput::PageMouseDown(run.program, 1, 800, row.Top - 20);
        modInput::PageMouseMove(run.program, kPage, 1, 9600, row.Top + 275);
        modInput::PageMouseUp(run.program, kPage, 1, 9600, row.Top + 275);
        typist.Hold(keys::kDown);
        ASSERT_TRUE(run.program.editing.MoveInProgress) << what;
        act(run.program);
        EXPECT_FALSE(run.program.editing.MoveInProgress) << what;
        EXPECT_EQ(run.program.document.CurrentTextBuf[kPage][3], "") << what;
        EXPECT_EQ(run.program.document.CurrentTextBuf[kPage][4], "Row") << what;
    }
}

TEST(Input, TheCaretsLabelFollowsTheKeysInAQuantityToo) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(PageId::frmP2, 3);
    typist.Press(keys::kF8);
    typist.Type("125");
    ASSERT_EQ(run.program.main.Focus, (FieldRef{PageId::frmP2, FieldKind::txtQty, 3}));
    EXPECT_EQ(run.program.main.lblCurPos.Caption, "Cursor Location = 3");
    person::KeyUp(run.program, keys::kLeft, 0, 2, 0);
    EXPECT_EQ(run.program.main.lblCurPos.Caption, "Cursor Location = 2");
}

TEST(Input, TheCaretsLabelFollowsTheKeyboardFromBoxToBoxWhileTheKeyIsDown) {
    RunningProgram run;
    Typist typist(run.program);
    for (const int row : {4, 3}) {
        typist.Click(PageId::frmP2, row);
        typist.Press(keys::kF8);
        typist.Type("125");
    }
    const std::string& told = run.program.main.lblCurPos.Caption;
    EXPECT_EQ(told, "Cursor Location = 3");
    typist.Hold(keys::kDown);
    const FieldRef below{PageId::frmP2, FieldKind::txtQty, 4};
    ASSERT_EQ(run.program.main.Focus, below);
    EXPECT_EQ(run.program.pages[PageId::frmP2].txtQty[4].SelStart, 0) << "all of it is marked";
    EXPECT_EQ(told, "Cursor Location = 0");
    modInput::CursorMoved(run.program, below, 2, 0);
    ASSERT_EQ(told, "Cursor Location = 2");
    modInput::FieldEntered(run.program, {PageId::frmP2, FieldKind::txtQty, 3});
    EXPECT_EQ(told, "Cursor Location = 0");
}

TEST(Mouse, AClickOnAFieldEndsTheLabelModeAndEntersThatFieldAlone) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(PageId::frmP1, 2);
    person::Choose(run.program, CommandId::mnuEditLabelMode);
    ASSERT_TRUE(run.program.designer.LabelMode);
    std::vector<FieldRef> entered;
    run.program.hooks.GotFocus = [&, wired = run.program.hooks.GotFocus](Program& program,
                                                                         const FieldRef& field) {
        entered.push_back(field);
        wired(program, field);
    };
    const FieldRef place{PageId::frmP1, FieldKind::txt, 8};
    person::FieldMouseDown(run.program, place, 1, 0, 0);
    EXPECT_FALSE(run.program.designer.LabelMode);
    EXPECT_FALSE(run.program.designer.Framed);
    EXPECT_FALSE(run.program.designer.FocusBefore);
    EXPECT_FALSE(run.Main()[CommandId::mnuEditLabelMode].Checked);
    EXPECT_EQ(run.program.main.Focus, place);
    EXPECT_EQ(entered, std::vector<FieldRef>{place});
}

TEST(Notice, AKeyInTheLabelModeEndsWhatWasToldOfTheLastOne) {
    RunningProgram run;
    person::Choose(run.program, CommandId::mnuEditLabelMode);
    run.program.main.Notice = "Kept only by a format or by Save this Logo as Default.";
    static_cast<void>(modInput::LabelKeyDown(run.program, keys::kTab, 0));
    EXPECT_EQ(run.program.main.Notice, "");
    EXPECT_EQ(run.program.designer.Framed, 1);
}

TEST(Mouse, ABandTakesTheRowsFromWhereItWasBegun) {
    RunningProgram run;
    constexpr PageId kPage = PageId::frmP2;
    person::TurnTo(run.program, 1);
    modInput::PageMouseDown(run.program, 1, 800, run.Area(kPage, 5).Top - 20);
    modInput::PageMouseMove(run.program, kPage, 1, 9600, run.Area(kPage, 7).Top + 275);
    modInput::PageMouseUp(run.program, kPage, 1, 9600, run.Area(kPage, 7).Top + 275);
    for (int row = 0; row <= 9; ++row) {
        EXPECT_EQ(run.Area(kPage, row).BackColor == colors::kBlockSelected, row >= 5 && row <= 7) << row;
    }
}

TEST(Mouse, AClickFromThePriceIntoTheAmountThatItMakesPutsTheCursorWhereItWasPressed) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(PageId::frmP2, 3);
    typist.Press(keys::kF8);
    typist.Type("3");
    typist.Click({PageId::frmP2, FieldKind::txtAmt, 3});
    typist.Type("2");
    const FieldRef amount{PageId::frmP2, FieldKind::txt, 36};
    person::FieldMouseDown(run.program, amount, 1, 2, 0);
    ASSERT_EQ(run.TextOf(PageId::frmP2, 36), "6.00");
    EXPECT_EQ(run.Area(PageId::frmP2, 36).SelStart, 2);
}

TEST(Mouse, TheAreasMenuOpensForAPressThatHasTakenTheFocusAndForNothingElse) {
    RunningProgram run;
    Typist typist(run.program);
    const FieldRef line{PageId::frmP2, FieldKind::txt, 3};
    typist.Click(line);
    EXPECT_FALSE(person::TextMenuOpens(run.program));
    constexpr int kRightButton = 2;
    person::FieldMouseDown(run.program, line, kRightButton, 0, 0);
    EXPECT_TRUE(person::TextMenuOpens(run.program));
    person::TextMenuClosed(run.program);
    EXPECT_FALSE(person::TextMenuOpens(run.program)) << "the area has the keyboard again";
    RunningProgram other;
    person::ClickPageButton(other.program, 6);
    ASSERT_FALSE(other.program.main.Focus);
    EXPECT_FALSE(person::TextMenuOpens(other.program)) << "nothing was pressed";
}

TEST(Mouse, ATextOfTheMostThatALineTakesComesInWhole) {
    RunningProgram run;
    Typist typist(run.program);
    const FieldRef name{PageId::frmP1, FieldKind::txt, 2};
    typist.Click(name);
    const std::string most(4096, 'a');
    EXPECT_EQ(modInput::Accept(run.program, name, most, 0), most);
    EXPECT_EQ(run.program.main.Notice, "");
    EXPECT_EQ(modInput::Accept(run.program, name, most + "b", 0), most);
    EXPECT_EQ(run.program.main.Notice, "The text was too long for one line; its end was not taken.");
}

} // namespace
