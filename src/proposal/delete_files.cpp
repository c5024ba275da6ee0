#include "proposal/delete_files.h"

#include "base/files.h"
#include "base/paths.h"

#include <string>

namespace modFile {

void DeleteProposalFiles(std::string_view folder, std::string_view fileName) {
    // By the name that was chosen, not by one put together: names may differ in nothing but their case.
    files::Delete(paths::Join(folder, fileName));
    const std::string base = paths::Join(folder, paths::BaseOf(fileName));
    for (const std::string_view extension : {".hpf", ".txt", ".hxt", ".dep"}) {
        const std::string side = base + std::string(extension);
        if (files::Exists(side)) {
            files::Delete(side);
        }
    }
}

} // namespace modFile
