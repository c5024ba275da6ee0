#pragma once

struct Program;

/// What every command does first that shows the figures to others: saving, printing, preview, export,
/// copying.
namespace modFigures {

/// The amount, box or deposit that is being typed is settled as leaving it settles it - tables, pattern,
/// sign, product - and a standing word completion is taken. The focus stays, and the cursor before the same
/// character.
void SettleTyping(Program& program);

/// Settles what is being typed, then sums the five pages, all fields and the running totals, whatever colour
/// `cmdReCalc` has. What is shown afterwards is the sum of what stands in the fields.
void TakeFresh(Program& program);

} // namespace modFigures
