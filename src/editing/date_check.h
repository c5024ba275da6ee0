#pragma once

struct Program;

namespace modText {

/// On leaving the event date of frmP1: warns once in the life of the page of a text that is no date.
void CheckDate(Program& program, int index);

} // namespace modText
