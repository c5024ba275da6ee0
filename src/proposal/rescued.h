#pragma once

#include <string_view>

struct Program;

/// Texts of the windows beside a proposal that were unsaved when a run was ended from outside. They lie
/// beside the backup, and a list in the program folder names them until a person has heard of them.
namespace modRescue {

/// Keeps a text of the proposal on show, under its base name and this extension. With `Back::Offered` the
/// next start offers to put it beside the proposal again, when that has a file.
enum class Back { Offered, Told };
void KeepOfProposal(Program& program, std::string_view extension, std::string_view bytes, Back back);

/// Keeps a text that belongs to no proposal. Nobody is asked or told; failures go to the log alone. What an
/// earlier run has rescued stays; a text that this run rescues once more takes its own place again.
void Keep(Program& program, std::string_view name, std::string_view bytes);

/// This run ends by the person's own will: what it has rescued meanwhile was asked about since.
void ForgetOwn(Program& program);

/// Once the window stands: tells what earlier runs have rescued and where it lies, and on Yes puts it where
/// it belongs; what stands there is moved aside. Reports as "OfferRescued".
void OfferRescued(Program& program);

} // namespace modRescue
