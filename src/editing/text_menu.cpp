#include "editing/text_menu.h"

#include "pages/page_geometry.h"
#include "pages/row_fields.h"
#include "program/program.h"

#include <array>

namespace modTextMenu {

namespace {

using Rule = MenuRule;

constexpr MenuRow kRows[] = {
    {CommandId::mnuEditTextColumns, {Rule::Off, Rule::Line, Rule::Line, Rule::Line}},
    {CommandId::mnuEditTextBold, {Rule::Off, Rule::Off, Rule::UnlessBold, Rule::UnlessBold}},
    {CommandId::mnuEditTextNormal, {Rule::Off, Rule::Off, Rule::IfBold, Rule::IfBold}},
    {CommandId::mnuEditTextSelLCase, {Rule::Off, Rule::On, Rule::Off, Rule::Off}},
    {CommandId::mnuEditTextSelPCase, {Rule::Off, Rule::On, Rule::Off, Rule::Off}},
    {CommandId::mnuEditTextSelUCase, {Rule::Off, Rule::On, Rule::Off, Rule::Off}},
    {CommandId::mnuEditTextAddFUT, {Rule::Off, Rule::Terms, Rule::Off, Rule::Off}},
    {CommandId::mnuEditTextDeleteFUT, {Rule::Off, Rule::Terms, Rule::Off, Rule::Off}},
    {CommandId::mnuEditTextEditFUT, {Rule::Off, Rule::Terms, Rule::Off, Rule::Off}},
    {CommandId::mnuEditTextDelete, {Rule::On, Rule::Off, Rule::Off, Rule::Off}},
    {CommandId::mnuEditTextCopy, {Rule::On, Rule::Off, Rule::Off, Rule::Off}},
    {CommandId::mnuEditTextCut, {Rule::On, Rule::Off, Rule::Off, Rule::Off}},
    {CommandId::mnuEditTextUndo, {Rule::Off, Rule::Off, Rule::Off, Rule::Off}},
    {CommandId::mnuEditTextPaste, {Rule::Off, Rule::Off, Rule::Off, Rule::On}},
    {CommandId::mnuEditTextMoveDown, {Rule::On, Rule::Off, Rule::Off, Rule::Off}},
    {CommandId::mnuEditTextMoveUp, {Rule::On, Rule::Off, Rule::Off, Rule::Off}},
    {CommandId::mnuEditTextTaxExempt, {Rule::Off, Rule::Off, Rule::Amount, Rule::Amount}},
    {CommandId::mnuEditTextTaxable, {Rule::Off, Rule::Off, Rule::Amount, Rule::Amount}},
    {CommandId::mnuEditTextDeselect, {Rule::On, Rule::Off, Rule::Off, Rule::On}},
};

/// Areas that pass for lines with columns. On the client page the test begins one area early.
bool PassesLineRule(PageId page, int index) {
    constexpr int kSlack = 9;
    return geometry::IsDescription(page, index) || (page == PageId::frmP1 && index == kSlack);
}

struct Target {
    PageId Page;
    int Index;
    const TextArea* Area;
};

Target TargetOf(const Program& program) {
    const EditingState& editing = program.editing;
    const PageId page = program.main.ActivePage;
    const int index = editing.RightClickPending ? editing.RightClickArea : editing.CurrentArea;
    const auto& areas = program.pages[page].txt;
    const bool there = index >= 0 && static_cast<std::size_t>(index) < areas.size();
    return {page, index, there ? &areas[static_cast<std::size_t>(index)] : nullptr};
}

MenuState StateOf(Program& program, const Target& target) {
    EditingState& editing = program.editing;
    if (editing.BlockMode) {
        return editing.BlockCopyHeld ? MenuState::EnablePaste : MenuState::BoxesSelected;
    }
    if (target.Area != nullptr && target.Area->SelLength > 0) {
        editing.SavedSelStart = target.Area->SelStart;
        editing.SavedSelLength = target.Area->SelLength;
        return MenuState::OnlyTextSelected;
    }
    return MenuState::NothingSelected;
}

bool Holds(const Program& program, Rule rule, const Target& target) {
    switch (rule) {
    case Rule::On:
        return true;
    case Rule::Line:
        return PassesLineRule(target.Page, target.Index);
    case Rule::UnlessBold:
        return target.Area != nullptr && !target.Area->FontBold;
    case Rule::IfBold:
        return target.Area != nullptr && target.Area->FontBold;
    case Rule::Terms:
        return program.run.FUTShown;
    case Rule::Amount:
        return target.Area != nullptr && geometry::KindOf(target.Area->Tag) == "Amou";
    case Rule::Off:
        break;
    }
    return false;
}

} // namespace

std::span<const MenuRow> TextMenuTable() {
    return kRows;
}

void UpdateTextMenu(Program& program) {
    const Target target = TargetOf(program);
    const auto state = static_cast<std::size_t>(StateOf(program, target));
    for (const MenuRow& row : kRows) {
        program.main[row.Id].Enabled = Holds(program, row.In[state], target);
    }
    const bool on = geometry::IsDescription(target.Page, target.Index) &&
                    modPages::ColumnsOn(program, target.Page, target.Index);
    program.main[CommandId::mnuEditTextColumns].Caption = on ? "Remove Columns" : "Add Columns";
    if (program.editing.UndoAvailable) {
        program.main[CommandId::mnuEditTextUndo].Enabled = true;
    }
}

} // namespace modTextMenu
