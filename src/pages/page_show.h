#pragma once

#include "program/page_records.h"

struct Program;

namespace modPages {

/// What a page shows: all text areas, all labels and marks whose Tag is not "Hide", its lines, the logo when
/// it is to be seen. In a format session the areas with format text are locked.
void ShowPage(Program& program, PageId page);

} // namespace modPages
