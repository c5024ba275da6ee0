#pragma once

#include "program/designer_records.h"

namespace modDesigner {

/// One step of a thing in the hand: each axis goes by exactly one snap step towards the pointer, or not at
/// all. `x` and `y` are the pointer's place on the thing, twips from its corner. True when it moved.
[[nodiscard]] bool SnapStep(const DragState& drag, float snap, float x, float y, float& left, float& top);

} // namespace modDesigner
