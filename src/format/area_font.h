#pragma once

#include "program/change_records.h"

struct Program;

namespace modAreaFont {

/// The pages take the font in force, which a person has chosen in place of `before`; without a name it is
/// "Arial", without a size 10. Any difference counts as a changed property of the proposal and of the format.
void ApplyChosenFont(Program& program, const AreaFont& before);

/// The areas that are too long, or are so no longer, in the font in force.
void PaintAreasAnew(Program& program);

} // namespace modAreaFont
