#pragma once

#include <string>
#include <string_view>

namespace modFile {

/// What a person is told before a proposal is deleted: its file and those of its base name beside it.
[[nodiscard]] std::string LossOfProposal(std::string_view folder, std::string_view fileName);

/// Deletes a proposal and the files of its base name beside it. Throws files::FileError.
void DeleteProposalFiles(std::string_view folder, std::string_view fileName);

} // namespace modFile
