#pragma once

#include "format/label_keys.h"
#include "program/keys.h"
#include "program/page_records.h"

#include <optional>
#include <string>
#include <string_view>

struct Program;

/// What the front end calls for a person's keys and mouse. Order for one key: KeyDown; when it was not taken,
/// KeyPress with the character; when that was not cancelled, Edited with what the widget made of it; KeyUp.
namespace modInput {

/// The page's own keys first, then the focused field's. `selStart` and `selLength` are the widget's before
/// the key.
[[nodiscard]] Taken KeyDown(Program& program, int keyCode, int shift, int selStart, int selLength);
/// Returns the character to enter, 0 when it is cancelled.
[[nodiscard]] int KeyPress(Program& program, int keyAscii);
/// Whether an edit that enters no character (delete, cut, undo) may reach a field.
[[nodiscard]] bool MayEdit(const Program& program, const FieldRef& field);
/// The widget of a field has applied an edit.
void Edited(Program& program, const FieldRef& field, std::string_view text, int selStart, int selLength);
/// The same for an edit that no key made: a paste by mouse, a drop, an input method, undo. No stale key may
/// then move text on into another row.
void EditedWithoutKey(Program& program, const FieldRef& field, std::string_view text, int selStart,
                      int selLength);
/// What a text from outside, pasted or let go over a field, brings into it: nothing where no edit may reach
/// the field, a number whole or not at all in a filtered one, and no more than a line can be anywhere.
/// Empties a placeholder. `refused` characters that have no byte were left out; the person is told.
[[nodiscard]] std::optional<std::string> Accept(Program& program, const FieldRef& field,
                                                std::string_view text, int refused);
/// Such a text replaces the selection.
enum class By { Key, Mouse };
void Insert(Program& program, const FieldRef& field, std::string_view text, int refused, By by);
/// The marked text of a field is dragged to another place in it and stays marked. In a filtered field only a
/// number moves.
void MoveMarked(Program& program, const FieldRef& field, int to);
/// Tells the person that a character was not taken.
void TellRefused(Program& program, int count);
/// A field was reached by other means than the mouse or the page's own keys.
void FieldEntered(Program& program, const FieldRef& field);
/// The cursor or selection moved without an edit.
void CursorMoved(Program& program, const FieldRef& field, int selStart, int selLength);
void KeyUp(Program& program, int keyCode, int shift, int selStart, int selLength);

/// A field was clicked (focus first, then MouseDown), or reached by other means than the model's own.
void FieldMouseDown(Program& program, const FieldRef& field, int button, int selStart, int selLength);
void FieldMouseUp(Program& program, const FieldRef& field, int selStart, int selLength);
/// Twice in a row; `position` is the character position that was meant.
void FieldDblClick(Program& program, const FieldRef& field, int position);
/// The mouse on a page's own surface, 1 for the left button, in twips from the page's corner.
void PageMouseDown(Program& program, int button, float x, float y);
void PageMouseMove(Program& program, PageId page, int button, float x, float y);
void PageMouseUp(Program& program, PageId page, int button, float x, float y);
/// Whether the press just made opens the menu of the text areas: a right one on an area of frmP1 to frmP5.
[[nodiscard]] bool TextMenuOpens(const Program& program);
/// The menu that a right press opens has closed.
void TextMenuClosed(Program& program);
/// The mouse on a label or the logo of a page, twips from its own corner; button 1 left, 2 right.
void LabelMouseDown(Program& program, PageId page, int index, int button, float x, float y);
/// True when the label moved: the pointer is on another place of it now, and the event is to come again.
[[nodiscard]] bool LabelMouseMove(Program& program, PageId page, int index, float x, float y);
void LabelMouseUp(Program& program, PageId page, int index);
void LabelDblClick(Program& program, PageId page, int index);
void LogoMouseDown(Program& program, int button, float x, float y);
[[nodiscard]] bool LogoMouseMove(Program& program, float x, float y);
void LogoMouseUp(Program& program);
void LogoDblClick(Program& program);
/// A key while labels have the keyboard.
modLabelKeys::Menu LabelKeyDown(Program& program, int keyCode, int shift);
void NoTaxMarkClick(Program& program, PageId page, int index);

} // namespace modInput
