#pragma once

#include <string_view>

struct Program;

namespace modMain {

enum class ResetResult { Done, Refused };

/// The reset: an empty proposal on all pages. Refused when the person goes on editing a format. Reports as
/// "StartNewFile".
ResetResult StartNewFile(Program& program);

/// Deletes a proposal and the files of its base name beside it. Throws files::FileError.
void DeleteProposalFiles(std::string_view folder, std::string_view fileName);

} // namespace modMain
