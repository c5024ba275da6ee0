#include "proposal/delete_files.h"

#include "base/files.h"
#include "base/paths.h"

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace modFile {

namespace {

std::vector<std::string> NamesOf(std::string_view folder, std::string_view fileName) {
    // By the name that was chosen, not by one put together: names may differ in nothing but their case.
    std::vector<std::string> names{std::string(fileName)};
    for (const std::string_view extension : {".hpf", ".txt", ".hxt", ".dep"}) {
        std::string side = std::string(paths::BaseOf(fileName)) + std::string(extension);
        if (files::ExistsExactly(paths::Join(folder, side))) {
            names.push_back(std::move(side));
        }
    }
    return names;
}

} // namespace

std::string LossOfProposal(std::string_view folder, std::string_view fileName) {
    const std::vector<std::string> names = NamesOf(folder, fileName);
    std::string line = names.front();
    for (std::size_t index = 1; index < names.size(); ++index) {
        line += (index + 1 == names.size() ? " and " : ", ") + names[index];
    }
    return line + " will be deleted.";
}

void DeleteProposalFiles(std::string_view folder, std::string_view fileName) {
    for (const std::string& name : NamesOf(folder, fileName)) {
        files::Delete(paths::Join(folder, name));
    }
}

} // namespace modFile
