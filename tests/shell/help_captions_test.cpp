#include "shell/command_table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <string>

namespace {

/// The shipped help pages in one; a line end counts as a blank.
std::string HelpText() {
    std::string text;
    const std::filesystem::path help = std::string(QUILLBROOK_SHIPPED_DATA) + "/Help";
    for (const auto& entry : std::filesystem::directory_iterator(help)) {
        if (entry.path().extension() == ".htm") {
            std::ifstream in(entry.path(), std::ios::binary);
            text.append(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
        }
    }
    std::ranges::replace(text, '\n', ' ');
    return text;
}

std::string WithoutAccessKeys(std::string_view caption) {
    std::string text(caption);
    std::erase(text, '&');
    return text;
}

/// First groups of all matches.
std::set<std::string> Matches(const std::string& text, const std::string& pattern) {
    std::set<std::string> found;
    const std::regex search(pattern);
    for (std::sregex_iterator at(text.begin(), text.end(), search); at != std::sregex_iterator(); ++at) {
        found.insert((*at)[1].str() + ((*at).size() > 2 ? " = " + (*at)[2].str() : ""));
    }
    return found;
}

TEST(HelpCaptions, EveryMenuEntryTheHelpNamesIsThereUnderThatName) {
    std::set<std::string> captions;
    for (const commands::Entry& entry : commands::Table()) {
        if (entry.Visible) {
            captions.insert(WithoutAccessKeys(entry.Caption));
        }
    }
    const std::set<std::string> named = Matches(HelpText(), "<span class=\"menu\">([^<]*)</span>");
    EXPECT_GE(named.size(), 60U);
    for (const std::string& caption : named) {
        EXPECT_TRUE(captions.contains(caption)) << caption;
    }
}

TEST(HelpCaptions, TheKeyTablesAreTheShortcutsOfTheMenus) {
    std::set<std::string> shortcuts;
    for (const commands::Entry& entry : commands::Table()) {
        if (entry.Visible && !entry.Shortcut.empty()) {
            shortcuts.insert(std::string(entry.Shortcut) + " = " + WithoutAccessKeys(entry.Caption));
        }
    }
    const std::set<std::string> told =
        Matches(HelpText(), "<tr><td><kbd>([^<]*)</kbd></td><td><span class=\"menu\">([^<]*)</span>");
    EXPECT_EQ(told, shortcuts);
}

} // namespace
