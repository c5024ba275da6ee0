#pragma once

#include "proposal/property_file.h"

struct Program;

/// Writing a proposal.
namespace modFile {

/// Saves the proposal under its name, with all questions and messages, and asks when another program has
/// changed its file. Reports as "SaveEventFile". When it was not saved, the document is as before.
[[nodiscard]] SaveResult SaveEventFile(Program& program);

/// Whether the client's name differs from its saved text.
[[nodiscard]] bool ClientNameChanged(const Program& program);

/// Gives a proposal without a file one, for what lies beside it must have something to lie beside. False when
/// it was not saved.
[[nodiscard]] bool ProposalHasFile(Program& program);

} // namespace modFile
