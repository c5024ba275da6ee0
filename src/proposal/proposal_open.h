#pragma once

#include "base/seen.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

struct Program;

/// Reading a proposal.
namespace modFile {

/// The bytes of a proposal file, at most what the layout needs, and the file's whole length.
struct RawProposal {
    std::string Bytes;
    std::uintmax_t Length = 0;
    files::Seen Seen;
};
/// Reads a file by its whole path. Throws files::FileError.
[[nodiscard]] RawProposal ReadProposal(const Program& program, std::string_view path);
/// Reads a file of `document.FilePath`. Nothing, after a report as "OpenEventFile", when it cannot be read.
/// Changes nothing.
[[nodiscard]] std::optional<RawProposal> LoadProposal(const Program& program, std::string_view fileName);
/// Fills the empty pages and the totals from what was read. Shows the message for a deposit that is no
/// number.
void ShowProposal(Program& program, std::string_view fileName, const RawProposal& raw);

/// Both in one. A file that cannot be read leaves the proposal that stands.
enum class OpenResult { Opened, NotOpened };
[[nodiscard]] OpenResult OpenEventFile(Program& program, std::string_view fileName);

} // namespace modFile
