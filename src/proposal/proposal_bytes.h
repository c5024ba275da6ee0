#pragma once

#include <string>

struct Program;

namespace modFile {

/// The proposal on show as the bytes of its file, with what is being typed; changes nothing.
[[nodiscard]] std::string ProposalBytes(const Program& program);

/// Whether a text as it stands now differs, blanks at its ends aside, from its saved form. Gathers nothing
/// and leaves the proposal as it is.
[[nodiscard]] bool TextsChanged(const Program& program);

} // namespace modFile
