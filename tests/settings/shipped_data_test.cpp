#include "support/settled.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace {

std::string Shipped(const std::string& name) {
    std::ifstream in(std::string(QUILLBROOK_SHIPPED_DATA) + "/" + name, std::ios::binary);
    if (!in) {
        throw std::runtime_error("not shipped: " + name);
    }
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

/// Every file below data/, with its folder, in order.
std::vector<std::string> ShippedFiles() {
    std::vector<std::string> names;
    const std::filesystem::path root = QUILLBROOK_SHIPPED_DATA;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(root)) {
        if (entry.is_regular_file()) {
            names.push_back(entry.path().lexically_relative(root).generic_string());
        }
    }
    std::ranges::sort(names);
    return names;
}

/// The parts between separators; without a separator, the whole.
std::vector<std::string> Split(std::string_view text, std::string_view separator) {
    std::vector<std::string> parts;
    std::size_t at = 0;
    for (std::size_t end = text.find(separator); end != std::string_view::npos;
         end = text.find(separator, at)) {
        parts.emplace_back(text.substr(at, end - at));
        at = end + separator.size();
    }
    parts.emplace_back(text.substr(at));
    return parts;
}

std::string Upper(std::string text) {
    std::ranges::transform(text, text.begin(), [](unsigned char c) { return std::toupper(c); });
    return text;
}

bool IsWholeNumber(std::string_view text) {
    int value = 0;
    const auto [end, failed] = std::from_chars(text.data(), text.data() + text.size(), value);
    return failed == std::errc() && end == text.data() + text.size();
}

TEST(ShippedData, HasEverythingThatAnInstallationNeeds) {
    const std::vector<std::string> files = ShippedFiles();
    for (const char* name :
         {"Help/batch_address_processing.htm", "Help/editor.htm", "Help/index.htm", "Help/style.css",
          "Help/tutorial.htm", "Proposals/Default Terms.fut", "Proposals/John Doe.hef",
          "Proposals/SalesTax.txt", "Proposals/Wedding Terms.fut", "UserPreferences.txt"}) {
        EXPECT_TRUE(std::ranges::binary_search(files, name)) << name;
    }
}

// One byte a character in Windows-1252, where five bytes are no character; lines end in CR LF.
TEST(ShippedData, TextFilesHoldCharactersAndLineEndsOnly) {
    const std::set<int> none{0x7F, 0x81, 0x8D, 0x8F, 0x90, 0x9D};
    for (const std::string& name : ShippedFiles()) {
        if (!name.ends_with(".txt") && !name.ends_with(".fut")) {
            continue;
        }
        for (const std::string& line : Split(Shipped(name), "\r\n")) {
            for (const char character : line) {
                const int byte = static_cast<std::uint8_t>(character);
                ASSERT_TRUE(byte >= 0x20 && !none.contains(byte)) << name << " holds byte " << byte;
            }
        }
    }
}

// ---- UserPreferences.txt

/// The values by key; every line must be there, in order, ended by CR LF.
std::map<std::string, std::string, std::less<>> ShippedSettings() {
    std::vector<std::string> lines = Split(Shipped("UserPreferences.txt"), "\r\n");
    EXPECT_EQ(lines.back(), "") << "the last line has its line end too";
    lines.pop_back();
    EXPECT_EQ(lines.size(), kSettingKeys.size());
    std::map<std::string, std::string, std::less<>> values;
    for (std::size_t line = 0; line < std::min(lines.size(), kSettingKeys.size()); ++line) {
        const std::string_view key = kSettingKeys[line];
        EXPECT_TRUE(lines[line].starts_with(key)) << lines[line];
        EXPECT_EQ(lines[line].find_first_of("\r\n"), std::string::npos) << lines[line];
        values.emplace(key, lines[line].substr(std::min(key.size(), lines[line].size())));
    }
    return values;
}

TEST(ShippedData, TheSettingsAreThirtyTwoLinesInOrder) {
    EXPECT_EQ(ShippedSettings().size(), 32U);
}

TEST(ShippedData, TheSettingsSpellBooleansOut) {
    auto values = ShippedSettings();
    for (const char* key :
         {"App First Instance:", "Auto Complete Word:", "Show FUT:", "Minimize FUT:", "Show Calc:",
          "Load Default Format:", "Load FUT:", "Font Italic:", "Logo Visible:"}) {
        EXPECT_TRUE(values[key] == "True" || values[key] == "False") << key << values[key];
    }
}

TEST(ShippedData, TheSettingsHoldNumbersWhereNumbersBelong) {
    auto values = ShippedSettings();
    for (const char* key : {"Logo Left:", "Logo Top:", "Auto Start Position:", "Font Size:", "Font Color:"}) {
        EXPECT_TRUE(IsWholeNumber(values[key])) << key << values[key];
    }
    const std::vector<std::string> place = Split(values["FUT Position:"], ":");
    ASSERT_EQ(place.size(), 4U);
    std::size_t part = 0;
    for (const std::string label : {"Left=", "Top=", "Width=", "Height="}) {
        ASSERT_TRUE(place[part].starts_with(label)) << place[part];
        EXPECT_TRUE(IsWholeNumber(place[part].substr(label.size()))) << place[part];
        ++part;
    }
}

TEST(ShippedData, TheSettingsAreThoseOfAFirstStart) {
    auto values = ShippedSettings();
    EXPECT_EQ(values["App First Instance:"], "True");
    EXPECT_EQ(values["Company Name:"], "HARROWDENE WORKS");
    EXPECT_EQ(values["Page Title:"], "Event Proposal");
    EXPECT_EQ(values["Auto Complete Word:"], "True");
    EXPECT_EQ(values["Auto Start Position:"], "2");
    EXPECT_EQ(values["Show FUT:"], "True");
    EXPECT_EQ(values["Currency Symbol:"], "$");
    EXPECT_EQ(values["Font Name:"], "Times New Roman");
    EXPECT_EQ(values["Font Size:"], "10");
    EXPECT_EQ(values["Font Color:"], "0");
    for (const char* key : {"Shared Directory:", "Logo File:", "Default File Format:", "Default Printer:",
                            "Frequent Terms File:", "Page Titles:"}) {
        EXPECT_EQ(values[key], "") << key;
    }
}

TEST(ShippedData, TheTaxRateIsFiveCharacters) {
    EXPECT_EQ(Shipped("Proposals/SalesTax.txt"), "8.25 ");
}

// ---- terms

struct Term {
    std::string Line;
    std::string Text;
    std::string Price;
    /// What is typed of it before a blank or a comma begins something new.
    [[nodiscard]] std::string FirstWord() const { return Text.substr(0, Text.find_first_of(" ,")); }
};

std::vector<Term> ShippedTerms(const std::string& name) {
    std::vector<Term> terms;
    for (const std::string& line : Split(Shipped("Proposals/" + name), "\r\n")) {
        Term term{line, line, ""};
        const std::size_t open = line.find('[');
        if (open != std::string::npos) {
            const std::size_t close = line.find(']', open);
            EXPECT_EQ(close, line.size() - 1) << line << ": one price, at the end";
            term.Text = line.substr(0, open);
            term.Price = line.substr(open + 1, close - open - 1);
            EXPECT_TRUE(term.Text.ends_with(' ')) << line;
            term.Text.pop_back();
        }
        EXPECT_EQ(term.Text.find_first_of("[]\r\n\t"), std::string::npos) << line;
        EXPECT_FALSE(term.Text.empty() || term.Text.starts_with(' ') || term.Text.ends_with(' ')) << line;
        EXPECT_EQ(term.Text.find("  "), std::string::npos) << line;
        terms.push_back(term);
    }
    return terms;
}

class ShippedTermsTest : public testing::TestWithParam<const char*> {};

TEST_P(ShippedTermsTest, AreManyAndSortedWithoutRegardToCase) {
    const std::vector<Term> terms = ShippedTerms(GetParam());
    EXPECT_GE(terms.size(), 60U);
    for (std::size_t index = 1; index < terms.size(); ++index) {
        EXPECT_LT(Upper(terms[index - 1].Line), Upper(terms[index].Line));
    }
}

TEST_P(ShippedTermsTest, HavePricesInDollarsAndCents) {
    std::size_t priced = 0;
    for (const Term& term : ShippedTerms(GetParam())) {
        if (term.Price.empty()) {
            continue;
        }
        ++priced;
        const std::vector<std::string> parts = Split(term.Price, ".");
        ASSERT_EQ(parts.size(), 2U) << term.Line;
        EXPECT_TRUE(IsWholeNumber(parts[0]) && std::stoi(parts[0]) >= 0) << term.Line;
        EXPECT_TRUE(parts[1].size() == 2 && IsWholeNumber(parts[1])) << term.Line;
        EXPECT_GT(std::stod(term.Price), 0) << term.Line;
    }
    EXPECT_GE(priced, 60U);
}

// Of the terms that begin with what is typed the first line wins, and a blank begins a new word.
TEST_P(ShippedTermsTest, AreEachReachedByTypingTheirFirstWord) {
    const std::vector<Term> terms = ShippedTerms(GetParam());
    for (const Term& term : terms) {
        const std::string typed = Upper(term.FirstWord());
        EXPECT_GT(typed.size(), 2U) << term.Line << ": completion begins with the third letter";
        const auto hit = std::ranges::find_if(
            terms, [&](const Term& other) { return Upper(other.Text).starts_with(typed); });
        EXPECT_EQ(hit->Line, term.Line);
    }
}

// A line with columns is 6270 twips wide; the letters of the shipped font are 90 wide on the average and
// never more than twice that.
TEST_P(ShippedTermsTest, FitALineWithColumns) {
    for (const Term& term : ShippedTerms(GetParam())) {
        EXPECT_LE(term.Text.size(), 50U) << term.Line;
    }
}

INSTANTIATE_TEST_SUITE_P(Lists, ShippedTermsTest, testing::Values("Default Terms.fut", "Wedding Terms.fut"),
                         [](const auto& list) {
                             return std::string(list.param).substr(0, std::string(list.param).find(' '));
                         });

// ---- help

std::vector<std::string> HelpPages() {
    std::vector<std::string> pages;
    for (const std::string& name : ShippedFiles()) {
        if (name.starts_with("Help/") && name.ends_with(".htm")) {
            pages.push_back(name.substr(5));
        }
    }
    return pages;
}

struct HelpTag {
    std::string Name; ///< "a", "/a", "!DOCTYPE"
    std::map<std::string, std::string, std::less<>> Attributes;
};

/// The tags of a page in order. Attributes are name="value"; no text holds an angle bracket.
std::vector<HelpTag> Tags(const std::string& html) {
    std::vector<HelpTag> tags;
    for (std::size_t at = html.find('<'); at != std::string::npos; at = html.find('<', at)) {
        const std::size_t end = html.find('>', at);
        EXPECT_NE(end, std::string::npos);
        std::string inside = html.substr(at + 1, std::min(end, html.size()) - at - 1);
        EXPECT_EQ(inside.find('<'), std::string::npos) << inside;
        HelpTag tag;
        const std::size_t name = std::min(inside.find_first_of(" \n"), inside.size());
        tag.Name = inside.substr(0, name);
        std::size_t from = name;
        for (std::size_t sign = inside.find("=\"", from); sign != std::string::npos;
             sign = inside.find("=\"", from)) {
            const std::size_t word = inside.find_first_not_of(" \n", from);
            const std::size_t quote = inside.find('"', sign + 2);
            EXPECT_NE(quote, std::string::npos) << inside;
            tag.Attributes[inside.substr(word, sign - word)] = inside.substr(sign + 2, quote - sign - 2);
            from = std::min(quote, inside.size() - 1) + 1;
        }
        tags.push_back(tag);
        at = std::min(end, html.size() - 1) + 1;
    }
    return tags;
}

std::set<std::string> Ids(const std::string& html) {
    std::set<std::string> ids;
    for (const HelpTag& tag : Tags(html)) {
        const auto id = tag.Attributes.find("id");
        if (id != tag.Attributes.end()) {
            EXPECT_TRUE(ids.insert(id->second).second) << "twice: " << id->second;
        }
    }
    return ids;
}

TEST(ShippedHelp, HasThePagesThatCommandsOpen) {
    EXPECT_EQ(HelpPages(), (std::vector<std::string>{"batch_address_processing.htm", "editor.htm",
                                                     "index.htm", "tutorial.htm"}));
}

TEST(ShippedHelp, IsPlainAscii) {
    for (const std::string& name : ShippedFiles()) {
        if (!name.starts_with("Help/")) {
            continue;
        }
        for (const char character : Shipped(name)) {
            const auto byte = static_cast<std::uint8_t>(character);
            ASSERT_TRUE(byte == '\n' || (byte >= 0x20 && byte < 0x7F)) << name << " holds byte " << int{byte};
        }
    }
}

TEST(ShippedHelp, EveryLinkLeadsSomewhere) {
    for (const std::string& page : HelpPages()) {
        const std::string html = Shipped("Help/" + page);
        bool styled = false;
        for (const HelpTag& tag : Tags(html)) {
            const auto href = tag.Attributes.find("href");
            if (href == tag.Attributes.end()) {
                continue;
            }
            const std::vector<std::string> target = Split(href->second, "#");
            ASSERT_LE(target.size(), 2U) << href->second;
            const std::string file = target[0].empty() ? page : target[0];
            EXPECT_EQ(file.find_first_of(":/\\"), std::string::npos) << page << ": " << href->second;
            const std::string there = Shipped("Help/" + file);
            if (target.size() == 2) {
                EXPECT_TRUE(Ids(there).contains(target[1])) << page << ": " << href->second;
            }
            styled = styled || (tag.Name == "link" && file == "style.css");
        }
        EXPECT_TRUE(styled) << page;
    }
}

TEST(ShippedHelp, TheContentsLeadToEveryPageAndBack) {
    const auto leadsTo = [](const std::string& page, const std::string& target) {
        return std::ranges::any_of(Tags(Shipped("Help/" + page)), [&](const HelpTag& tag) {
            const auto href = tag.Attributes.find("href");
            return tag.Name == "a" && href != tag.Attributes.end() && href->second == target;
        });
    };
    for (const std::string& page : HelpPages()) {
        if (page != "index.htm") {
            EXPECT_TRUE(leadsTo("index.htm", page)) << page;
            EXPECT_TRUE(leadsTo(page, "index.htm")) << page;
        }
    }
    for (const std::string& id : Ids(Shipped("Help/index.htm"))) {
        EXPECT_TRUE(leadsTo("index.htm", "#" + id)) << id;
    }
}

TEST(ShippedHelp, EveryAmpersandIsAnEntity) {
    const std::set<std::string> known{"amp", "lt", "gt", "rarr", "middot"};
    for (const std::string& page : HelpPages()) {
        const std::string html = Shipped("Help/" + page);
        for (std::size_t at = html.find('&'); at != std::string::npos; at = html.find('&', at + 1)) {
            const std::size_t end = html.find(';', at);
            ASSERT_NE(end, std::string::npos) << page;
            EXPECT_TRUE(known.contains(html.substr(at + 1, end - at - 1)))
                << page << ": " << html.substr(at, 12);
        }
    }
}

TEST(ShippedHelp, TagsAreClosedInTheOrderInWhichTheyWereOpened) {
    const std::set<std::string> single{"!DOCTYPE", "meta", "link", "br"};
    for (const std::string& page : HelpPages()) {
        std::vector<std::string> open;
        for (const HelpTag& tag : Tags(Shipped("Help/" + page))) {
            if (single.contains(tag.Name)) {
                continue;
            }
            if (!tag.Name.starts_with('/')) {
                open.push_back(tag.Name);
                continue;
            }
            ASSERT_FALSE(open.empty()) << page << ": " << tag.Name;
            ASSERT_EQ("/" + open.back(), tag.Name) << page;
            open.pop_back();
        }
        EXPECT_TRUE(open.empty()) << page;
    }
}

TEST(ShippedHelp, RunsNothingAndFetchesNothing) {
    for (const std::string& page : HelpPages()) {
        for (const HelpTag& tag : Tags(Shipped("Help/" + page))) {
            EXPECT_FALSE(tag.Name == "script" || tag.Name == "iframe" || tag.Name == "img" ||
                         tag.Name == "object" || tag.Name == "style")
                << page << ": " << tag.Name;
            for (const auto& [name, value] : tag.Attributes) {
                EXPECT_FALSE(name.starts_with("on") || name == "src" || name == "style")
                    << page << ": " << name;
                EXPECT_EQ(value.find("://"), std::string::npos) << page << ": " << value;
            }
        }
    }
    const std::string style = Shipped("Help/style.css");
    EXPECT_EQ(style.find("url("), std::string::npos);
    EXPECT_EQ(style.find("@import"), std::string::npos);
    EXPECT_NE(style.find("prefers-color-scheme: dark"), std::string::npos);
    EXPECT_EQ(std::ranges::count(style, '{'), std::ranges::count(style, '}'));
}

} // namespace
