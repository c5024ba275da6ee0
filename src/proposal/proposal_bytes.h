#pragma once

#include <string>

struct Program;

namespace modFile {

/// The proposal on show as the bytes of its file, with what is being typed; changes nothing.
[[nodiscard]] std::string ProposalBytes(const Program& program);

} // namespace modFile
