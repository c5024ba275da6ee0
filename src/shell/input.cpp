#include "shell/input.h"

#include "base/numbers.h"
#include "base/text.h"
#include "editing/area_mouse.h"
#include "editing/block_moves.h"
#include "editing/columns.h"
#include "editing/final_page.h"
#include "editing/navigation.h"
#include "editing/number_keys.h"
#include "editing/selection.h"
#include "editing/typing.h"
#include "editing/word_marking.h"
#include "format/label_designer.h"
#include "format/logo.h"
#include "money/amounts.h"
#include "pages/fields.h"
#include "pages/page_geometry.h"
#include "program/program.h"
#include "program/saved_notice.h"
#include "shell/page_switch.h"
#include "terms/frm_fut.h"

#include <algorithm>
#include <optional>

namespace modInput {

namespace {

/// No line of a proposal is longer; what a paste brings beyond it would only slow every key.
constexpr std::size_t kMostInserted = 4096;

bool IsText(const FieldRef& field) {
    return field.Kind == FieldKind::txt;
}

/// Fields that take figures only.
bool IsFiltered(const FieldRef& field) {
    return !IsText(field) || IsFinalPage(field.Page) || geometry::IsAmount(field.Page, field.Index);
}

/// The field that takes keys; none while its page is only shown as ink.
std::optional<FieldRef> TypingField(const Program& program) {
    const std::optional<FieldRef>& focus = program.main.Focus;
    return focus && program.pages[focus->Page].InkShown ? std::nullopt : focus;
}

/// The page's own keys come before the field's.
Taken Form_KeyDown(Program& program, int keyCode, int shift) {
    if (keyCode != keys::kUp && keyCode != keys::kDown) {
        modBlocks::FinishMove(program); // another key while the arrow is still held, or was let go elsewhere
    }
    if (keyCode == keys::kPageUp || keyCode == keys::kPageDown) {
        modScroll::PageKey(program, keyCode);
        return Taken::Yes;
    }
    const std::optional<FieldRef> field = TypingField(program);
    if (!field || !IsLinePage(field->Page)) {
        return Taken::No;
    }
    if (shift == keys::kShiftState && (keyCode == keys::kUp || keyCode == keys::kDown) &&
        modBlocks::ExtendByKey(program, *field,
                               keyCode == keys::kUp ? modBlocks::Toward::Up : modBlocks::Toward::Down) ==
            Taken::Yes) {
        return Taken::Yes;
    }
    if (program.editing.BlockMode && (keyCode == keys::kUp || keyCode == keys::kDown)) {
        // The block moves; the focus stays where it is.
        modBlocks::MoveBlockByKey(program, keyCode);
        return Taken::Yes;
    }
    if (keyCode == keys::kF5 || keyCode == keys::kF6) {
        modTerms::TermsKey(program, keyCode);
    }
    return Taken::No;
}

/// Which keys put characters into which field: completion asks when they are let go.
void NoteKeyDown(Program& program, int keyCode) {
    TypedKeys& typed = program.editing.Typed;
    typed.KeyDown = keyCode;
    typed.Character = false;
    typed.Codes.reset(TypedKeys::PlaceOf(keyCode));
}

void NoteTyped(Program& program, const FieldRef& field, int cursor) {
    TypedKeys& typed = program.editing.Typed;
    if (!typed.Character) {
        return;
    }
    if (typed.Field != field) {
        typed.Codes.reset();
        typed.Field = field;
    }
    const std::size_t place = TypedKeys::PlaceOf(typed.KeyDown);
    typed.Codes.set(place);
    typed.Behind[place] = cursor;
}

void PutCursor(Program& program, const FieldRef& field, int selStart, int selLength) {
    modFields::SetCursor(modFields::Area(program, field), selStart, selLength);
}

/// The caret's label follows every move of the cursor, by whatever key or hand.
void ShowCaret(Program& program) {
    if (program.main.Focus) {
        program.main.lblCurPos.Caption =
            "Cursor Location = " + std::to_string(modFields::Area(program, *program.main.Focus).SelStart);
    }
}

/// A key that moves the cursor or the focus shows where it went.
void ShowTypingField(Program& program) {
    if (const std::optional<FieldRef> focus = TypingField(program)) {
        modScroll::BringIntoView(program, *focus);
    }
}

bool MovesTheCursor(int keyCode) {
    return keyCode == keys::kLeft || keyCode == keys::kRight || keyCode == keys::kHome ||
           keyCode == keys::kEnd;
}

Taken FieldKeyDown(Program& program, const FieldRef& field, int keyCode, int shift) {
    if (!IsText(field)) {
        return modColumns::Box_KeyDown(program, field, keyCode, shift);
    }
    return IsFinalPage(field.Page) ? modFinalPage::txt_KeyDown(program, field.Index, keyCode, shift)
                                   : modText::txt_KeyDown(program, field.Page, field.Index, keyCode, shift);
}

void FieldKeyPress(Program& program, const FieldRef& field, int& keyAscii) {
    if (!IsText(field)) {
        modColumns::Box_KeyPress(program, field, keyAscii);
    } else if (IsFinalPage(field.Page)) {
        modFinalPage::txt_KeyPress(program, field.Index, keyAscii);
    } else {
        modText::txt_KeyPress(program, field.Page, field.Index, keyAscii);
    }
}

/// A key that a box for figures does not take is told: (30) would stand as 30 otherwise, and 1e3 as 13.
void TellFiltered(Program& program, const FieldRef& field, int keyAscii) {
    if (keyAscii <= keys::kBlank || !IsFiltered(field) || !MayEdit(program, field)) {
        return;
    }
    if (IsText(field) && (keyAscii == '(' || keyAscii == ')')) {
        program.main.Notice = "Brackets were not taken and make no minus: type -100 for a negative amount.";
        return;
    }
    program.main.Notice = "\"" + std::string(1, static_cast<char>(keyAscii)) + "\" was not taken: " +
                          (IsText(field) ? "an amount takes digits, comma, point and minus."
                                         : "quantity and unit price take digits, comma and point.");
}

void FieldKeyUp(Program& program, const FieldRef& field, int keyCode, int shift) {
    if (!IsText(field)) {
        return; // nothing follows a key let go in a row's box
    }
    if (IsFinalPage(field.Page)) {
        modFinalPage::txt_KeyUp(program, field.Index);
    } else {
        modText::txt_KeyUp(program, field.Page, field.Index, keyCode, shift);
    }
}

} // namespace

Taken KeyDown(Program& program, int keyCode, int shift, int selStart, int selLength) {
    BeginTelling(program);
    NoteKeyDown(program, keyCode);
    if (program.main.Focus) {
        PutCursor(program, *program.main.Focus, selStart, selLength);
    }
    if (Form_KeyDown(program, keyCode, shift) == Taken::Yes) {
        return Taken::Yes;
    }
    const std::optional<FieldRef> focus = TypingField(program);
    if (!focus) {
        return Taken::No;
    }
    const Taken taken = FieldKeyDown(program, *focus, keyCode, shift);
    if (taken == Taken::Yes) {
        ShowCaret(program);
    }
    if (taken == Taken::Yes || MovesTheCursor(keyCode)) {
        ShowTypingField(program);
    }
    return taken;
}

int KeyPress(Program& program, int keyAscii) {
    const std::optional<FieldRef> focus = TypingField(program);
    if (!focus) {
        return 0;
    }
    const FieldRef field = *focus;
    int kept = keyAscii;
    FieldKeyPress(program, field, kept);
    if (kept == 0) {
        TellFiltered(program, field, keyAscii);
    }
    program.editing.Typed.Character = kept >= keys::kBlank;
    return kept;
}

bool MayEdit(const Program& program, const FieldRef& field) {
    return !program.editing.BlockMode && !modFields::Area(program, field).Locked;
}

void Edited(Program& program, const FieldRef& field, std::string_view text, int selStart, int selLength) {
    NoteTyped(program, field, selStart);
    modFields::TypeText(program, field, text, selStart, selLength);
    ShowCaret(program);
    ShowTypingField(program);
}

void EditedWithoutKey(Program& program, const FieldRef& field, std::string_view text, int selStart,
                      int selLength) {
    if (IsText(field)) {
        program.editing.CursorPos = modFields::Area(program, field).SelStart;
        program.editing.LastKeyChar.clear();
    }
    modFields::TypeText(program, field, text, selStart, selLength);
    ShowCaret(program);
    ShowTypingField(program);
}

void TellRefused(Program& program, int count) {
    program.main.Notice =
        count == 1 ? "One character was not taken: it cannot be kept in a proposal."
                   : std::to_string(count) + " characters were not taken: they cannot be kept in a proposal.";
}

std::optional<std::string> Accept(Program& program, const FieldRef& field, std::string_view text,
                                  int refused) {
    if (refused > 0) {
        TellRefused(program, refused);
    }
    if (text.empty() || !MayEdit(program, field)) {
        return std::nullopt;
    }
    std::string taken(text);
    if (IsFiltered(field)) {
        taken = text::Trim(text);
        if (!numbers::IsNumeric(taken, program.settings.CurrencySymbol)) {
            if (refused == 0 && !taken.empty()) {
                modNumberKeys::TellNoNumber(program, taken);
            }
            return std::nullopt;
        }
    } else if (taken.size() > kMostInserted) {
        program.main.Notice = "The text was too long for one line; its end was not taken.";
        taken.resize(kMostInserted);
    }
    if (!IsText(field)) {
        modColumns::ClearPlaceholder(program, field);
    }
    return taken;
}

void Insert(Program& program, const FieldRef& field, std::string_view text, int refused, By by) {
    const std::optional<std::string> taken = Accept(program, field, text, refused);
    if (!taken) {
        return;
    }
    TextArea& area = modFields::Area(program, field);
    std::string value = area.Text;
    modFields::SetCursor(area, area.SelStart, area.SelLength);
    const int start = area.SelStart;
    value.replace(static_cast<std::size_t>(start), static_cast<std::size_t>(area.SelLength), *taken);
    const int end = start + static_cast<int>(taken->size());
    if (by == By::Key) {
        Edited(program, field, value, end, 0);
    } else {
        EditedWithoutKey(program, field, value, end, 0);
    }
}

void MoveMarked(Program& program, const FieldRef& field, int to) {
    const TextArea& area = modFields::Area(program, field);
    const int start = area.SelStart;
    const int length = area.SelLength;
    if (length == 0 || (to >= start && to <= start + length) || !MayEdit(program, field)) {
        return;
    }
    std::string value = area.Text;
    const std::string moved = value.substr(static_cast<std::size_t>(start), static_cast<std::size_t>(length));
    if (IsFiltered(field) && !numbers::IsNumeric(moved, program.settings.CurrencySymbol)) {
        return;
    }
    value.erase(static_cast<std::size_t>(start), static_cast<std::size_t>(length));
    const int at = std::clamp(to > start ? to - length : to, 0, static_cast<int>(value.size()));
    value.insert(static_cast<std::size_t>(at), moved);
    EditedWithoutKey(program, field, value, at, length);
}

void FieldEntered(Program& program, const FieldRef& field) {
    modNavigate::Arrive(program, field);
    ShowCaret(program);
    ShowTypingField(program);
}

void CursorMoved(Program& program, const FieldRef& field, int selStart, int selLength) {
    PutCursor(program, field, selStart, selLength);
    ShowCaret(program);
}

void KeyUp(Program& program, int keyCode, int shift, int selStart, int selLength) {
    if (const std::optional<FieldRef> focus = TypingField(program)) {
        const FieldRef field = *focus;
        PutCursor(program, field, selStart, selLength);
        FieldKeyUp(program, field, keyCode, shift);
    }
    modBlocks::Form_KeyUp(program);
    ShowCaret(program);
}

void FieldMouseDown(Program& program, const FieldRef& field, int button, int selStart, int selLength) {
    if (field.Page == PageId::frmP6_1) {
        return;
    }
    modBlocks::FinishMove(program);
    if (program.designer.LabelMode) {
        program.designer.FocusBefore = field;
        modLabelKeys::Leave(program);
    }
    modFields::GiveFocus(program, field);
    PutCursor(program, field, selStart, selLength); // leaving another field may have written into this one
    if (IsText(field)) {
        modText::txt_MouseDown(program, field.Page, field.Index, button);
    }
    ShowCaret(program);
}

void FieldMouseUp(Program& program, const FieldRef& field, int selStart, int selLength) {
    PutCursor(program, field, selStart, selLength);
    if (IsText(field)) {
        modText::txt_MouseUp(program, field.Page, field.Index);
    }
    ShowCaret(program);
}

void FieldDblClick(Program& program, const FieldRef& field, int position) {
    const std::optional<FieldRef> focus = program.main.Focus;
    const std::string before = modFields::Area(program, field).Text;
    if (IsText(field)) {
        modText::txt_DblClick(program, field.Page, field.Index);
    }
    if (program.main.Focus == focus && modFields::Area(program, field).Text == before) {
        modText::MarkWordAt(program, field, position);
    }
    ShowCaret(program);
}

void PageMouseDown(Program& program, int button, float x, float y) {
    modBlocks::Form_MouseDown(program, button, x, y);
}

void PageMouseMove(Program& program, PageId page, int button, float x, float y) {
    modBlocks::Form_MouseMove(program, page, button, x, y);
}

void PageMouseUp(Program& program, PageId page, int button, float x, float y) {
    modBlocks::Form_MouseUp(program, page, button, x, y);
}

bool TextMenuOpens(const Program& program) {
    // The press has taken the focus from the area for as long as the menu is up.
    return program.editing.RightClickPending && !program.main.Focus;
}

void TextMenuClosed(Program& program) {
    modText::TextMenuClosed(program);
}

void LabelMouseDown(Program& program, PageId page, int index, int button, float x, float y) {
    modBlocks::FinishMove(program);
    modDesigner::lbl_MouseDown(program, page, index, button, x, y);
}

bool LabelMouseMove(Program& program, PageId page, int index, float x, float y) {
    return modDesigner::lbl_MouseMove(program, page, index, x, y);
}

void LabelMouseUp(Program& program, PageId page, int index) {
    modDesigner::lbl_MouseUp(program, page, index);
}

void LabelDblClick(Program& program, PageId page, int index) {
    modDesigner::lbl_DblClick(program, page, index);
}

void LogoMouseDown(Program& program, int button, float x, float y) {
    modBlocks::FinishMove(program);
    modLogo::pic_MouseDown(program, button, x, y);
}

bool LogoMouseMove(Program& program, float x, float y) {
    return modLogo::pic_MouseMove(program, x, y);
}

void LogoMouseUp(Program& program) {
    modLogo::pic_MouseUp(program);
}

void LogoDblClick(Program& program) {
    modLogo::pic_DblClick(program);
}

modLabelKeys::Menu LabelKeyDown(Program& program, int keyCode, int shift) {
    BeginTelling(program);
    const modLabelKeys::Menu menu = modLabelKeys::KeyDown(program, keyCode, shift);
    modScroll::BringFrameIntoView(program);
    return menu;
}

void NoTaxMarkClick(Program& program, PageId page, int index) {
    modBlocks::FinishMove(program);
    modTotals::imgNoTax_Click(program, page, index);
}

} // namespace modInput
