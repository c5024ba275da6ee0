#include "proposal/old_files.h"

#include "base/files.h"
#include "base/paths.h"
#include "program/data_folders.h"
#include "program/errors.h"
#include "program/program.h"

#include <optional>
#include <string>

namespace modFile {

void ConvertOldFiles(const Program& program) {
    Guarded(program, "ConvertOldFiles", [&] {
        const std::string folder = modFolders::DataFolder(program);
        if (!files::IsFolder(folder)) {
            return;
        }
        // One that stays as it is does not keep the others; the first failure is told at the end.
        std::optional<files::FileError> failure;
        for (const std::string& name : files::List(folder, "*.hwf")) {
            const std::string to = paths::Join(folder, std::string(paths::BaseOf(name)) + ".hef");
            try {
                if (files::Exists(to)) {
                    throw files::FileError(files::kAlreadyExists, "File already exists: " + to);
                }
                files::Rename(paths::Join(folder, name), to);
            } catch (const files::FileError& error) {
                failure = failure.value_or(error);
            }
        }
        if (failure) {
            throw files::FileError(*failure);
        }
    });
}

} // namespace modFile
