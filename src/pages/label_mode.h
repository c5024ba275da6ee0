#pragma once

struct Program;

namespace modLabelMode {

/// Ends the mode in which the keys go to the labels: no frame, no check mark. Gives the keyboard to no field.
void End(Program& program);

} // namespace modLabelMode
