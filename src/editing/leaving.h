#pragma once

#include "program/page_records.h"

struct Program;

/// Entering and leaving a text area of frmP1 to frmP6.
namespace modText {

void txt_GotFocus(Program& program, PageId page, int index);
void txt_LostFocus(Program& program, PageId page, int index);

} // namespace modText
