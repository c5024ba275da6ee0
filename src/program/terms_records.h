#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// The lines of a list in the order of their letters without regard to case, and which of any run of them
/// stands first in the file. Empty until a word is first looked for.
struct TermIndex {
    std::vector<std::uint32_t> Lines;  ///< line numbers by letters
    std::vector<std::uint64_t> Starts; ///< the first eight letters of each, upper-cased
    std::vector<std::uint32_t> Firsts; ///< a tree of least line numbers over `Lines`
    bool Built = false;
};

/// The open frequent terms list. Its lines belong to the full path they were read from and are never written
/// to another.
struct TermsRecords {
    TermsRecords() = default;
    TermsRecords(const TermsRecords&) = delete; // the lines look into the bytes
    TermsRecords& operator=(const TermsRecords&) = delete;

    std::string Path;                    ///< empty while no list is in memory
    std::string Bytes;                   ///< the file as it was read
    std::vector<std::string_view> Lines; ///< `Terms`, in file order
    bool ReadWhole = false;              ///< one that could not be read is never written
    int Version = 0;                     ///< goes up whenever the lines change
    TermIndex Index;
    /// The term or calculator result under the pointer; empty when nothing is dragged.
    std::string DraggedTerm;

    [[nodiscard]] int TermCount() const { return static_cast<int>(Lines.size()); }
};
