#pragma once

#include "program/page_records.h"

struct Program;

/// Labels in the hand: press, drag by snap steps, release, and the commands of a group.
namespace modDesigner {

inline constexpr int kLeftButton = 1;
inline constexpr int kRightButton = 2;

/// The mouse on a label, `x` and `y` in twips from its own corner. The client's copy of the final page has
/// none of this.
void lbl_MouseDown(Program& program, PageId page, int index, int button, float x, float y);
/// One snap step on each axis, or none; no edge of the page stops a label. True when it moved: the front end
/// repeats an event until it did not, so that the label is under the pointer.
[[nodiscard]] bool lbl_MouseMove(Program& program, PageId page, int index, float x, float y);
/// What differs from the proposal's table has moved. An untouched table holds 0, so a mere click brings a
/// label into the tables; that is wanted.
void lbl_MouseUp(Program& program, PageId page, int index);
/// Selects the label, or takes it out of the selection.
void lbl_DblClick(Program& program, PageId page, int index);

/// The pressed label's look into `LabelEdit` and its saved state.
void SaveLabelState(Program& program);

/// The page whose labels the commands act on: the one in front, but for the client's copy.
[[nodiscard]] PageId DesignPage(const Program& program);

/// Takes what all labels of the page agree on into `LabelEdit`, and selects them all but the currency signs.
void LoadSelectedLabels(Program& program);
void mnuEditLabelSelectAll_Click(Program& program);
void mnuEditLabelDeselectAll_Click(Program& program);
void mnuEditLabelProps_Click(Program& program);

} // namespace modDesigner
