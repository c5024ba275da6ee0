#pragma once

#include "program/keys.h"
#include "program/page_records.h"

struct Program;

/// What typing does in the text areas of the line pages, frmP1 to frmP5.
namespace modText {

/// A text changed, by the person or by program. Quiet while pages are filled, read, printed or formatted,
/// during a block move, in a block selection that is not refiring, and while a completion stands.
void txt_Change(Program& program, PageId page, int index);
[[nodiscard]] Taken txt_KeyDown(Program& program, PageId page, int index, int keyCode, int shift);
/// `keyAscii` 0 afterwards: the character is cancelled.
void txt_KeyPress(Program& program, PageId page, int index, int& keyAscii);
void txt_KeyUp(Program& program, PageId page, int index, int keyCode, int shift);

/// Runs every change handler of a page once with the real text, by way of "Test".
void RefireTextChanges(Program& program, PageId page);

} // namespace modText
