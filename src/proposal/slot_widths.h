#pragma once

#include "proposal/proposal_layout.h"

struct Program;

namespace modFile {

/// The slots' widths as the fields' Tags have them now.
[[nodiscard]] proposal::Widths SlotWidths(const Program& program);

} // namespace modFile
