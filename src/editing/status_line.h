#pragma once

#include "program/page_records.h"

struct Program;

/// The three lines of the information strip that follow the person's cursor.
namespace modStatus {

void ShowCursor(Program& program);
/// The same of an area's own cursor.
void ShowCaret(Program& program, const TextArea& area);

/// Where the printer would stand after the text left of the cursor. Hidden without a printer.
void ShowTextPosition(Program& program, const TextArea& area);

/// "Page n, Text Area n". The return from the text menu leaves what was shown.
void ShowAreaNumber(Program& program, PageId page, int index);

} // namespace modStatus
