#include "support/scratch_folder.h"

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace fs = std::filesystem;

ScratchFolder::ScratchFolder() {
    std::string pattern = (fs::temp_directory_path() / "quillbrook-test-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) {
        throw std::runtime_error("no scratch folder");
    }
    path_ = pattern;
}

ScratchFolder::~ScratchFolder() {
    std::error_code ignored;
    for (auto at = fs::recursive_directory_iterator(path_, ignored); at != fs::recursive_directory_iterator();
         at.increment(ignored)) {
        if (at->is_directory(ignored) && !at->is_symlink(ignored)) {
            fs::permissions(at->path(), fs::perms::owner_all, fs::perm_options::add, ignored);
        }
    }
    fs::remove_all(path_, ignored);
}

void ScratchFolder::Write(std::string_view name, std::string_view bytes) const {
    fs::create_directories((path_ / name).parent_path());
    std::ofstream out(path_ / name, std::ios::binary | std::ios::trunc);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (!out.flush()) {
        throw std::runtime_error("cannot write " + std::string(name));
    }
}

std::string ScratchFolder::Read(std::string_view name) const {
    std::ifstream in(path_ / name, std::ios::binary);
    if (!in) {
        throw std::runtime_error("cannot read " + std::string(name));
    }
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

bool ScratchFolder::Has(std::string_view name) const {
    return fs::exists(path_ / name);
}

void ScratchFolder::MakeFolder(std::string_view name) const {
    fs::create_directories(path_ / name);
}
