#pragma once

#include "program/page_records.h"

#include <string>
#include <string_view>

struct Program;

/// The six figures of the final page, by two computations that are compared when a proposal is saved. A
/// figure that is too large for a single stays at the largest one.
namespace modTotals {

/// Sums one line page's amounts, and those without an exempt mark, from the tables.
void CalculateMyTotals(Program& program, PageId page);

/// The running computation: from the page sums to the six figures on frmP6 and frmP6_1, `lblTotal`, and
/// `cmdReCalc` in its standard colour. With hidden totals only the deposit is written, and not over the hands
/// of the person who is typing it.
void UpdateRunningTotals(Program& program);

/// The full computation: every amount field again. Writes the total as plain number text. Does nothing with
/// hidden totals. Reports as "RecalculateAll", with a message of its own.
void RecalculateAll(Program& program);

/// The message of a recalculation: seven lines, the figures of the pass just made.
[[nodiscard]] std::string RecalculationMessage(const Program& program);

/// Whether the two totals differ as "#########.00" shows them.
[[nodiscard]] bool TotalsDiffer(const Program& program);
/// The three lines shown when they do.
[[nodiscard]] std::string DiscrepancyMessage();

/// What an amount or the deposit shows when its text is no number.
inline constexpr std::string_view kNoNumberTip = "This is not a number and counts as nothing.";
/// Whether an amount or the deposit holds a text that is no number.
[[nodiscard]] bool IsNoNumber(const Program& program, const TextArea& area);
/// The tool tip follows whether the text is a number.
void TellNoNumber(const Program& program, TextArea& area);

/// Both computations over all pages, from the tables and from the fields, whatever colour `cmdReCalc` has.
void SumAgain(Program& program);

void cmdReCalc_Click(Program& program);
void mnuToolsRecalculate_Click(Program& program);
void mnuOptHideTotals_Click(Program& program);
void mnuAdminCheckAddition_Click(Program& program);

/// The text of a final page's area has changed: mirrored to the copy, taken as a figure when it is one.
void FinalPageChange(Program& program, int index);
/// Writes the deposit under its pattern, which then counts as if typed.
void RewriteDeposit(Program& program);
/// An area of the final page was left.
void FinalPageLostFocus(Program& program);

/// Recomputes everything from the texts just read from a file; shows the message for a deposit that is no
/// number.
void TotalsAfterReading(Program& program);

} // namespace modTotals
