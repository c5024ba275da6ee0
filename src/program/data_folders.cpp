#include "program/data_folders.h"

#include "base/paths.h"
#include "program/program.h"

namespace modFolders {

std::string OwnFolder(const Program& program) {
    return paths::Join(program.folders.InstallFolder, "Proposals/");
}

std::string DataFolder(const Program& program) {
    return program.folders.ProposalsFolder.empty() ? OwnFolder(program) : program.folders.ProposalsFolder;
}

std::string BackupFolder(const Program& program) {
    return paths::Join(DataFolder(program), "Backup/");
}

} // namespace modFolders
