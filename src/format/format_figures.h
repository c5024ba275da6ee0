#pragma once

struct Program;

namespace modFormat {

/// What a format has laid counts as if it had been typed and saved: the products of its rows, its amounts in
/// tables, signs and totals, the stored line of every area, and the client's name as the proposal's. A
/// proposal begun with a format has nothing unsaved.
void TakeFormatFigures(Program& program);

} // namespace modFormat
