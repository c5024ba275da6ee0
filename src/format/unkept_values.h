#pragma once

struct Program;

namespace modUnkept {

/// Tells, in one box, which of the values that are about to be written do not come back from the file as they
/// are: a text or caption that holds the name of a field, a label's font with a full stop. Nothing is told
/// when there are none.
void TellUnkeptFormat(const Program& program);
void TellUnkeptProperties(const Program& program);

} // namespace modUnkept
