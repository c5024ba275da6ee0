#include "format/snap_step.h"

namespace modDesigner {

namespace {

float StepOf(float distance, float snap) {
    if (distance >= snap) {
        return snap;
    }
    return distance <= -snap ? -snap : 0;
}

} // namespace

bool SnapStep(const DragState& drag, float snap, float x, float y, float& left, float& top) {
    if (!(snap > 0)) {
        return false;
    }
    const float across = StepOf(drag.GrabX - x, snap);
    const float down = StepOf(drag.GrabY - y, snap);
    left -= across;
    top -= down;
    return across != 0 || down != 0;
}

} // namespace modDesigner
