#pragma once

#include "program/page_records.h"

#include <string_view>

struct Program;

/// Keys in an area that takes figures only: an amount, or a figure of the final page.
namespace modNumberKeys {

/// Whether a character that is typed there is one of a number, or a key that edits.
[[nodiscard]] bool Passes(int keyAscii);

[[nodiscard]] bool IsPaste(int keyCode, int shift);
/// All of what the clipboard holds, when it is a number; otherwise the strip says why nothing came.
void PasteNumber(Program& program, PageId page, int index);
/// In the strip: that a text was not taken because it is no number.
void TellNoNumber(Program& program, std::string_view value);

} // namespace modNumberKeys
