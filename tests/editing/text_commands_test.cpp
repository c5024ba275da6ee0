#include "editing/area_conversion.h"
#include "editing/area_mouse.h"
#include "editing/block_actions.h"
#include "editing/text_commands.h"
#include "editing/text_menu.h"

#include <map>
#include <string_view>

namespace {

constexpr PageId kFirst = BlockRun::kFirst;
constexpr PageId kSecond = BlockRun::kSecond;
using modTextMenu::MenuRule;

struct Line {
    CommandId Id;
    std::string_view Boxes, Text, Nothing, Paste;
};

constexpr Line kTable[] = {{CommandId::mnuEditTextColumns, "off", "line rule", "line rule", "line rule"},
                           {CommandId::mnuEditTextBold, "off", "off", "unless bold", "unless bold"},
                           {CommandId::mnuEditTextNormal, "off", "off", "if bold", "if bold"},
                           {CommandId::mnuEditTextSelLCase, "off", "on", "off", "off"},
                           {CommandId::mnuEditTextSelPCase, "off", "on", "off", "off"},
                           {CommandId::mnuEditTextSelUCase, "off", "on", "off", "off"},
                           {CommandId::mnuEditTextAddFUT, "off", "terms", "off", "off"},
                           {CommandId::mnuEditTextDeleteFUT, "off", "terms", "off", "off"},
                           {CommandId::mnuEditTextEditFUT, "off", "terms", "off", "off"},
                           {CommandId::mnuEditTextDelete, "on", "off", "off", "off"},
                           {CommandId::mnuEditTextCopy, "on", "off", "off", "off"},
                           {CommandId::mnuEditTextCut, "on", "off", "off", "off"},
                           {CommandId::mnuEditTextUndo, "off", "off", "off", "off"},
                           {CommandId::mnuEditTextPaste, "off", "off", "off", "on"},
                           {CommandId::mnuEditTextMoveDown, "on", "off", "off", "off"},
                           {CommandId::mnuEditTextMoveUp, "on", "off", "off", "off"},
                           {CommandId::mnuEditTextTaxExempt, "off", "off", "amount", "amount"},
                           {CommandId::mnuEditTextTaxable, "off", "off", "amount", "amount"},
                           {CommandId::mnuEditTextDeselect, "on", "off", "off", "on"}};

MenuRule RuleOf(std::string_view word) {
    static const std::map<std::string_view, MenuRule> rules{
        {"off", MenuRule::Off},        {"on", MenuRule::On},
        {"line rule", MenuRule::Line}, {"unless bold", MenuRule::UnlessBold},
        {"if bold", MenuRule::IfBold}, {"terms", MenuRule::Terms},
        {"amount", MenuRule::Amount}};
    return rules.at(word);
}

TEST(TextMenu, FollowsThisTable) {
    const auto table = modTextMenu::TextMenuTable();
    ASSERT_EQ(table.size(), std::size(kTable));
    for (std::size_t row = 0; row < table.size(); ++row) {
        const Line& line = kTable[row];
        EXPECT_EQ(table[row].Id, line.Id);
        EXPECT_EQ(table[row].In, (std::array{RuleOf(line.Boxes), RuleOf(line.Text), RuleOf(line.Nothing),
                                             RuleOf(line.Paste)}))
            << row;
    }
}

/// What a rule says of an area, from what a person sees of it.
bool Says(MenuRule rule, BlockRun& run, PageId page, int index) {
    switch (rule) {
    case MenuRule::On:
        return true;
    case MenuRule::Line:
        return page == kFirst ? index >= 9 && index <= 19 : page != PageId::frmP6 && index <= 32;
    case MenuRule::UnlessBold:
        return !run.Area(page, index).FontBold;
    case MenuRule::IfBold:
        return run.Area(page, index).FontBold;
    case MenuRule::Terms:
        return run.program.run.FUTShown;
    case MenuRule::Amount:
        return run.Area(page, index).Tag == "Amount.020";
    case MenuRule::Off:
        break;
    }
    return false;
}

void ExpectStates(BlockRun& run, modTextMenu::MenuState state, PageId page, int index) {
    modTextMenu::UpdateTextMenu(run.program);
    for (const modTextMenu::MenuRow& row : modTextMenu::TextMenuTable()) {
        EXPECT_EQ(run.Enabled(row.Id), Says(row.In[static_cast<std::size_t>(state)], run, page, index))
            << "entry " << static_cast<int>(row.Id) << " of " << IndexOf(page) << "/" << index;
    }
}

TEST(TextMenu, IsInEveryStateOnEveryAreaAsTheTableSays) {
    BlockRun run;
    run.Area(kFirst, 12).FontBold = true;
    run.Area(kSecond, 33).FontBold = true;
    const auto everyArea = [&](modTextMenu::MenuState state, int selLength) {
        for (const PageId page : kEditedPages) {
            run.program.main.ActivePage = page;
            for (int index = 0; index < static_cast<int>(run.program.pages[page].txt.size()); ++index) {
                run.program.editing.CurrentArea = index;
                run.Area(page, index).SelLength = selLength;
                ExpectStates(run, state, page, index);
            }
        }
    };
    everyArea(modTextMenu::MenuState::NothingSelected, 0);
    everyArea(modTextMenu::MenuState::OnlyTextSelected, 3);
    run.program.run.FUTShown = true;
    everyArea(modTextMenu::MenuState::OnlyTextSelected, 3);
    run.program.editing.BlockMode = true;
    everyArea(modTextMenu::MenuState::BoxesSelected, 3);
    run.program.editing.BlockCopyHeld = true;
    everyArea(modTextMenu::MenuState::EnablePaste, 3);
    run.program.editing.BlockMode = false;
    run.program.editing.BlockCopyHeld = false;
}

TEST(TextMenu, CaptionTellsWhatTheColumnsCommandWouldDo) {
    BlockRun run;
    run.PutRow(kSecond, 5, "1", "Row", "x");
    Typist typist(run.program);
    const auto captionAt = [&](PageId page, int index) {
        typist.Click(page, index);
        modTextMenu::UpdateTextMenu(run.program);
        return run.program.main[CommandId::mnuEditTextColumns].Caption;
    };
    EXPECT_EQ(captionAt(kSecond, 5), "Remove Columns");
    EXPECT_EQ(captionAt(kSecond, 6), "Add Columns");
    EXPECT_EQ(captionAt(kFirst, 9), "Add Columns");
    EXPECT_TRUE(run.Enabled(CommandId::mnuEditTextColumns)) << "the test begins one area early";
    EXPECT_EQ(captionAt(kFirst, 8), "Add Columns");
    EXPECT_FALSE(run.Enabled(CommandId::mnuEditTextColumns));
}

TEST(TextMenu, IsFreshAfterTheStart) {
    BlockRun run;
    for (const CommandId id :
         {CommandId::mnuEditTextCopy, CommandId::mnuEditTextCut, CommandId::mnuEditTextDelete,
          CommandId::mnuEditTextPaste, CommandId::mnuEditTextUndo, CommandId::mnuEditTextDeselect}) {
        EXPECT_FALSE(run.Enabled(id));
    }
}

TEST(TextMenu, FocusInTheModeRefreshesIt) {
    BlockRun run;
    Typist(run.program).Click(kSecond, 20);
    run.Band(kSecond, 0, 1);
    run.Choose(CommandId::mnuEditTextCopy);
    EXPECT_FALSE(run.Enabled(CommandId::mnuEditTextTaxExempt));
    Typist(run.program).Click(kSecond, 40);
    EXPECT_TRUE(run.Enabled(CommandId::mnuEditTextTaxExempt)) << "an amount has the focus";
}

TEST(Bold, IsAnAreasAndBothTables) {
    BlockRun run;
    Typist typist(run.program);
    typist.Click(kSecond, 4);
    typist.Type("Linen");
    int changes = 0;
    const auto change = run.program.hooks.Change;
    run.program.hooks.Change = [&](Program& program, const FieldRef& field) {
        ++changes;
        change(program, field);
    };
    run.Choose(CommandId::mnuEditTextBold);
    EXPECT_TRUE(run.Area(kSecond, 4).FontBold);
    EXPECT_TRUE(run.program.format.PropTextChanges[PageId::frmP2][4].FontBold);
    EXPECT_TRUE(run.program.format.FormatTextChanges[PageId::frmP2][4].FontBold);
    EXPECT_TRUE(run.program.format.PropTextChanges[PageId::frmP2][4].Dirty);
    EXPECT_FALSE(run.program.format.PropTextChanges[PageId::frmP2][5].Dirty);
    EXPECT_EQ(changes, 0);
    EXPECT_EQ(run.program.main.Focus, BlockRun::Text(kSecond, 4));
    run.program.format.PropTextChanges[PageId::frmP2][4].Dirty = false;
    run.Choose(CommandId::mnuEditTextBold); // bold already: the entry is closed
    EXPECT_FALSE(run.program.format.PropTextChanges[PageId::frmP2][4].Dirty);
    run.Choose(CommandId::mnuEditTextNormal);
    EXPECT_FALSE(run.Area(kSecond, 4).FontBold);
    EXPECT_FALSE(run.program.format.PropTextChanges[PageId::frmP2][4].FontBold);
    EXPECT_FALSE(run.program.format.FormatTextChanges[PageId::frmP2][4].FontBold);
    EXPECT_TRUE(run.program.format.PropTextChanges[PageId::frmP2][4].Dirty);
}

TEST(Bold, OnTheFinalPageTheCopyFollows) {
    BlockRun run;
    Typist(run.program).Click(PageId::frmP6, 4);
    run.Choose(CommandId::mnuEditTextBold);
    EXPECT_TRUE(run.Area(PageId::frmP6, 4).FontBold);
    EXPECT_TRUE(run.Area(PageId::frmP6_1, 4).FontBold);
    EXPECT_TRUE(run.program.format.PropTextChanges[PageId::frmP6][4].FontBold);
    run.Choose(CommandId::mnuEditTextNormal);
    EXPECT_FALSE(run.Area(PageId::frmP6_1, 4).FontBold);
}

TEST(Bold, BesideAHeldCopyActsOnTheFocusedArea) {
    BlockRun run;
    run.Put(kSecond, 0, "Row");
    run.Band(kSecond, 0, 0);
    run.Choose(CommandId::mnuEditTextCopy);
    Typist(run.program).Click(kSecond, 6);
    run.Choose(CommandId::mnuEditTextBold);
    EXPECT_TRUE(run.Area(kSecond, 6).FontBold);
    EXPECT_FALSE(run.Area(kSecond, 0).FontBold);
}

TEST(Bold, ReturnsTheFocusAndTheMenusTargetIsTheAreaClicked) {
    BlockRun run;
    Typist typist(run.program);
    typist.Click(kSecond, 4);
    modText::txt_MouseDown(run.program, kSecond, 9, 2);
    modFields::DropFocus(run.program);
    run.Choose(CommandId::mnuEditTextBold);
    EXPECT_TRUE(run.Area(kSecond, 9).FontBold);
    EXPECT_EQ(run.program.main.Focus, BlockRun::Text(kSecond, 9));
}

struct Case {
    CommandId Id;
    const char* Before;
    int Start;
    int Length;
    const char* After;
};

class CaseCommands : public testing::TestWithParam<Case> {};

TEST_P(CaseCommands, ChangeTheSelectedTextAndSelectItAgain) {
    const Case one = GetParam();
    BlockRun run;
    Typist typist(run.program);
    typist.Click(kSecond, 4);
    typist.Type(one.Before);
    typist.PutCursor(one.Start, one.Length);
    run.Choose(one.Id);
    EXPECT_EQ(run.TextOf(kSecond, 4), one.After);
    EXPECT_EQ(run.Stored(kSecond, 4), one.After) << "the store follows";
    EXPECT_EQ(run.Area(kSecond, 4).SelStart, one.Start);
    EXPECT_EQ(run.Area(kSecond, 4).SelLength, one.Length);
    EXPECT_EQ(run.program.editing.SavedSelStart, one.Start);
    EXPECT_EQ(run.program.editing.SavedSelLength, one.Length);
    EXPECT_EQ(run.program.main.Focus, BlockRun::Text(kSecond, 4));
}

INSTANTIATE_TEST_SUITE_P(
    Table, CaseCommands,
    testing::Values(Case{CommandId::mnuEditTextSelUCase, "chair covers", 0, 5, "CHAIR covers"},
                    Case{CommandId::mnuEditTextSelUCase, "chair covers", 6, 6, "chair COVERS"},
                    Case{CommandId::mnuEditTextSelLCase, "CHAIR COVERS", 2, 6, "CHair coVERS"},
                    Case{CommandId::mnuEditTextSelPCase, "o'brien-SMITH hall", 0, 18, "O'brien-smith Hall"},
                    Case{CommandId::mnuEditTextSelPCase, "red linen", 1, 8, "rEd Linen"},
                    Case{CommandId::mnuEditTextSelUCase, "caf\xE9 \x9A\xFF\xDF", 0, 8,
                         "CAF\xC9 \x8A\x9F\xDF"}));

TEST(CaseCommandsOnly, ActOnSelectedTextAndOnNothingElse) {
    BlockRun run;
    Typist typist(run.program);
    typist.Click(kSecond, 4);
    typist.Type("linen");
    run.program.editing.SavedSelLength = 5; // from an earlier selection
    run.Choose(CommandId::mnuEditTextSelUCase);
    EXPECT_EQ(run.TextOf(kSecond, 4), "linen");
}

TEST(CaseCommandsOnly, LeaveProtectedTextAlone) {
    BlockRun run;
    Typist typist(run.program);
    typist.Click(kSecond, 4);
    typist.Type("linen");
    typist.PutCursor(0, 5);
    run.Area(kSecond, 4).Locked = true;
    run.Choose(CommandId::mnuEditTextSelUCase);
    EXPECT_EQ(run.TextOf(kSecond, 4), "linen");
}

TEST(CaseCommandsOnly, MoveNothingOutOfALineThatIsTooLong) {
    BlockRun run;
    const std::string words = std::string(60, 'x') + " " + std::string(26, 'y') + " "; // 8800 twips
    run.Put(kSecond, 4, words);
    Typist typist(run.program);
    typist.Click(kSecond, 4);
    typist.PutCursor(0, 3);
    run.program.editing.LastKeyChar = " ";
    run.Choose(CommandId::mnuEditTextSelUCase);
    EXPECT_EQ(run.TextOf(kSecond, 4), "XXX" + words.substr(3));
    EXPECT_EQ(run.TextOf(kSecond, 5), "");
    EXPECT_EQ(run.Area(kSecond, 4).BackColor, colors::kOverLimit);
}

TEST(Conversions, StopBehindTheClientsLines) {
    RunningProgram run;
    const int areas = static_cast<int>(run.program.pages[PageId::frmP1].txt.size());
    for (int index = 10; index < areas; ++index) {
        modFields::SetText(run.program, {PageId::frmP1, FieldKind::txt, index}, "plain words");
        modText::ConvertOnDoubleClick(run.program, index);
        EXPECT_EQ(run.TextOf(PageId::frmP1, index), "plain words") << index;
    }
    modText::ConvertOnDoubleClick(run.program, -1);
    modFields::SetText(run.program, {PageId::frmP1, FieldKind::txt, 9}, "plain words");
    modText::ConvertOnDoubleClick(run.program, 9);
    EXPECT_EQ(run.TextOf(PageId::frmP1, 9), "Plain Words");
}

} // namespace
