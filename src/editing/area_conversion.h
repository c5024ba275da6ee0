#pragma once

struct Program;

namespace modText {

/// The conversion that a double-click makes of an area of frmP1: long date, upper case, proper case or
/// telephone number. Other areas and texts that cannot be converted stay as they are.
void ConvertOnDoubleClick(Program& program, int index);

} // namespace modText
