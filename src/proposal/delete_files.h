#pragma once

#include <string>
#include <string_view>

namespace modFile {

/// A proposal and the files of its base name beside it as one line of names.
[[nodiscard]] std::string FilesOfProposal(std::string_view folder, std::string_view fileName);

/// Deletes a proposal and the files of its base name beside it. Throws files::FileError.
void DeleteProposalFiles(std::string_view folder, std::string_view fileName);

} // namespace modFile
