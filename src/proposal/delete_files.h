#pragma once

#include <string_view>

namespace modFile {

/// Deletes a proposal and the files of its base name beside it. Throws files::FileError.
void DeleteProposalFiles(std::string_view folder, std::string_view fileName);

} // namespace modFile
