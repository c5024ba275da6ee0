#pragma once

#include "program/page_records.h"

#include <string_view>

struct Program;

/// The one way in which a field's text changes and the one way in which the focus moves.
namespace modFields {

/// The text field at that address; only for `txt`, `txtQty` and `txtAmt` that exist.
[[nodiscard]] TextArea& Area(Program& program, const FieldRef& field);
[[nodiscard]] const TextArea& Area(const Program& program, const FieldRef& field);
[[nodiscard]] bool Exists(const Program& program, const FieldRef& field);

/// Puts a text into a field. When it differs from the old one: cursor to 0, nothing selected, then the page's
/// change handler, nested, before this returns. Equal text fires nothing.
void SetText(Program& program, const FieldRef& field, std::string_view text);

/// The person's own edit: text and cursor as the widget left them, then the change handler if the text
/// differs.
void TypeText(Program& program, const FieldRef& field, std::string_view text, int selStart, int selLength);

/// Moves the focus: the old field's LostFocus runs to its end, then the new one's GotFocus. A field that has
/// the focus already, is not visible or not enabled: nothing happens.
void GiveFocus(Program& program, const FieldRef& field);

/// Takes the focus from the field that has it, with its LostFocus.
void DropFocus(Program& program);

/// Cursor and selection are kept within the text.
void SetCursor(TextArea& area, int selStart, int selLength = 0);

} // namespace modFields
