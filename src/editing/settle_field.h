#pragma once

struct Program;

namespace modFigures {

/// Settles the amount, box or deposit that has the focus as leaving it settles it: tables, pattern, sign,
/// product. The focus stays, and the cursor before the same character.
void SettleFocused(Program& program);

} // namespace modFigures
