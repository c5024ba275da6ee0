#pragma once

#include "editing/keys.h"
#include "program/page_records.h"

struct Program;

/// What typing, clicking and leaving do in the text areas of frmP1 to frmP6.
namespace modText {

/// A text changed, by the person or by program. Quiet while pages are filled, read, printed or formatted,
/// during a block move, in a block selection that is not refiring, and while a completion stands.
void txt_Change(Program& program, PageId page, int index);
[[nodiscard]] Taken txt_KeyDown(Program& program, PageId page, int index, int keyCode, int shift);
/// `keyAscii` 0 afterwards: the character is cancelled.
void txt_KeyPress(Program& program, PageId page, int index, int& keyAscii);
void txt_KeyUp(Program& program, PageId page, int index, int keyCode, int shift);
void txt_GotFocus(Program& program, PageId page, int index);
void txt_LostFocus(Program& program, PageId page, int index);
/// The right button (2) repaints the pages, leaves the area as any way of leaving does, and brings the text
/// menu up to date; the front end opens it then.
void txt_MouseDown(Program& program, PageId page, int index, int button, int shift);
/// The text menu is gone, by a command or without one: the area that was pressed has the focus again.
void TextMenuClosed(Program& program);
void txt_MouseUp(Program& program, PageId page, int index);
void txt_DblClick(Program& program, PageId page, int index);

/// Runs every change handler of a page once with the real text, by way of "Test".
void RefireTextChanges(Program& program, PageId page);
/// Red for every area of a page over a limit, grey for the rest; blue areas stay.
void ResetMyTextBoxColors(Program& program, PageId page);
/// Whether a text stands red: over its area's width or character limit, or an amount that is no number.
[[nodiscard]] bool OverLimit(const Program& program, PageId page, const TextArea& area);

} // namespace modText
