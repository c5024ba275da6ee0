#pragma once

struct Program;

namespace modMain {

/// Opens the search dialog where a search may start; its tool button stays pressed meanwhile.
void mnuEditFind_Click(Program& program);

} // namespace modMain
