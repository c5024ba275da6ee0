#pragma once

#include <filesystem>
#include <string>
#include <string_view>

/// A folder of its own for one test, gone afterwards. Works with the standard library alone, so that the
/// program's file layer is not tested by itself.
class ScratchFolder {
public:
    ScratchFolder();
    ~ScratchFolder();
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    /// With a trailing separator, as the model holds folders.
    [[nodiscard]] std::string Path() const { return path_.string() + "/"; }
    [[nodiscard]] std::string operator/(std::string_view name) const { return (path_ / name).string(); }
    void Write(std::string_view name, std::string_view bytes) const;
    [[nodiscard]] std::string Read(std::string_view name) const;
    [[nodiscard]] bool Has(std::string_view name) const;
    void MakeFolder(std::string_view name) const;

private:
    std::filesystem::path path_;
};
