#pragma once

#include <string>
#include <vector>

/// What was searched for, and where it was found.
struct SearchRecords {
    std::string SearchPhrase;
    bool SearchAllPages = false;
    std::vector<std::string> RecentSearches; ///< since the start, in order of first use
    bool ResultsOpen = false;
    /// Three consecutive lines a hit: place for people, "frmP2:13", text around the hit. Also called the main
    /// window's hidden list.
    std::vector<std::string> lstResults;

    [[nodiscard]] int RecentSearchCount() const { return static_cast<int>(RecentSearches.size()); }
};
