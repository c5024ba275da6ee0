#pragma once

#include "program/keys.h"

struct Program;

/// What typing does in the areas of the final page. Nothing flows there: an area is a figure or a word of its
/// own.
namespace modFinalPage {

/// A text changed, by the person or by program: the figures follow.
void txt_Change(Program& program, int index);
[[nodiscard]] Taken txt_KeyDown(Program& program, int index, int keyCode, int shift);
/// `keyAscii` 0 afterwards: the character is cancelled.
void txt_KeyPress(Program& program, int index, int& keyAscii);
void txt_KeyUp(Program& program, int index);

} // namespace modFinalPage
