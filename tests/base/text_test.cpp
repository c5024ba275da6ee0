#include "base/ansi.h"
#include "base/paths.h"
#include "base/text.h"

#include <gtest/gtest.h>

#include <set>

namespace {

TEST(Ansi, EveryByteSurvivesTheWayToUnicodeAndBack) {
    std::set<char32_t> seen;
    for (int value = 0; value < 256; ++value) {
        const char byte = static_cast<char>(value);
        const char32_t codePoint = ansi::ToCodePoint(byte);
        EXPECT_TRUE(seen.insert(codePoint).second) << value;
        EXPECT_EQ(ansi::FromCodePoint(codePoint), byte) << value;
        const std::string one(1, byte);
        EXPECT_EQ(ansi::FromUtf8(ansi::ToUtf8(one)), one) << value;
    }
}

TEST(Ansi, KnowsTheCodePageAndItsOpenBytes) {
    EXPECT_EQ(ansi::ToCodePoint('\x80'), U'\u20AC');
    EXPECT_EQ(ansi::ToCodePoint('\x99'), U'\u2122');
    EXPECT_EQ(ansi::ToCodePoint('\xA5'), U'\u00A5');
    EXPECT_EQ(ansi::ToCodePoint('\xD8'), U'\u00D8');
    for (const int open : {0x81, 0x8D, 0x8F, 0x90, 0x9D}) {
        EXPECT_EQ(ansi::ToCodePoint(static_cast<char>(open)), static_cast<char32_t>(open));
    }
    EXPECT_FALSE(ansi::FromCodePoint(0x80).has_value()) << "the euro has its byte";
    EXPECT_FALSE(ansi::FromCodePoint(U'\u0100').has_value());
    EXPECT_FALSE(ansi::FromCodePoint(U'\U0001F600').has_value());
    EXPECT_EQ(ansi::ToUtf8("\x80 \xE9"), "\xE2\x82\xAC \xC3\xA9");
}

TEST(Ansi, RefusesWhatIsNoUtf8) {
    for (const char* bad : {"\xC3", "\xE2\x82", "\xFF", "\xC0\x80", "\xE0\x81\x81", "\xED\xA0\x80",
                            "\xF0\x9F\x98\x80", "\xF5\x80\x80\x80", "\xF2\x82\xAC", "a\x80"}) {
        EXPECT_FALSE(ansi::FromUtf8(bad).has_value());
    }
    EXPECT_EQ(ansi::FromUtf8(""), "");
}

TEST(Text, TrimsBlanksOnly) {
    EXPECT_EQ(text::Trim("  a b  "), "a b");
    EXPECT_EQ(text::Trim("\ta\t"), "\ta\t");
    EXPECT_EQ(text::LTrim("  a "), "a ");
    EXPECT_EQ(text::RTrim("  a "), "  a");
    EXPECT_EQ(text::RTrim("  a" + std::string(19, ' ')), "  a");
    EXPECT_EQ(text::Trim("   "), "");
}

TEST(Text, CutsWithinItsBounds) {
    EXPECT_EQ(text::Left("abc", 2), "ab");
    EXPECT_EQ(text::Left("abc", 9), "abc");
    EXPECT_EQ(text::Left("abc", -1), "");
    EXPECT_EQ(text::Right("abc", 2), "bc");
    EXPECT_EQ(text::Right("abc", 9), "abc");
    EXPECT_EQ(text::Mid("abc", 2), "bc");
    EXPECT_EQ(text::Mid("abc", 2, 1), "b");
    EXPECT_EQ(text::Mid("abc", 2, 0), "");
    EXPECT_EQ(text::Mid("abc", 1), "abc");
    EXPECT_EQ(text::Mid("abc", 9), "");
}

TEST(Text, ChangesCaseByTheCodePage) {
    EXPECT_EQ(text::Upper("caf\xE9 \xFF \x9A"), "CAF\xC9 \x9F \x8A");
    EXPECT_EQ(text::Lower("CAF\xC9 \x9F \x8A"), "caf\xE9 \xFF \x9A");
    EXPECT_EQ(text::Upper("\xF7\xDF"), "\xF7\xDF") << "the division sign and the sharp s have no capitals";
    EXPECT_EQ(text::Lower("\xD7"), "\xD7");
}

TEST(Text, ProperCaseBeginsWordsAfterBlanksAndTabsOnly) {
    EXPECT_EQ(text::Proper("jane o'brien-SMITH 2nd"), "Jane O'brien-smith 2nd");
    EXPECT_EQ(text::Proper("\xE9lan (THE)\thall"), "\xC9lan (the)\tHall");
}

TEST(Text, ComparesWithoutCase) {
    EXPECT_TRUE(text::EqualNoCase("Jane Roe.HEF", "JANE ROE.hef"));
    EXPECT_LT(text::CompareNoCase("abc", "abd"), 0);
    EXPECT_LT(text::CompareNoCase("ab", "abc"), 0);
    EXPECT_GT(text::CompareNoCase("\xE9", "z"), 0) << "by the byte of the capital letter";
}

TEST(Text, SplitsAtEveryKindOfLineEnd) {
    EXPECT_EQ(text::SplitLines("a\r\nb\nc\rd"), (std::vector<std::string>{"a", "b", "c", "d"}));
    EXPECT_EQ(text::SplitLines("a\r\n"), std::vector<std::string>{"a"});
    EXPECT_EQ(text::SplitLines("a\r\n\r\nb"), (std::vector<std::string>{"a", "", "b"}));
    EXPECT_TRUE(text::SplitLines("").empty());
    EXPECT_EQ(text::Lines({"a", "", "b"}), "a\r\n\r\nb");
}

TEST(Text, NamesTenEntriesAndCountsTheOthers) {
    std::vector<std::string> entries(10, "a");
    entries.back() = "tenth";
    const std::string ten = "Gone:\r\na\r\na\r\na\r\na\r\na\r\na\r\na\r\na\r\na\r\ntenth";
    EXPECT_EQ(text::FirstTen("Gone:", entries), ten);
    entries.emplace_back("eleventh");
    EXPECT_EQ(text::FirstTen("Gone:", entries), ten + "\r\nand 1 more");
    EXPECT_EQ(text::FirstTen("Gone:", {"one"}), "Gone:\r\none");
}

TEST(Paths, SplitAtBothSeparators) {
    EXPECT_EQ(paths::Folder("a\\b/c.hef"), "a\\b/");
    EXPECT_EQ(paths::Name("a/b\\c.hef"), "c.hef");
    EXPECT_EQ(paths::Folder("c.hef"), "");
    EXPECT_EQ(paths::WithSeparator("/a"), "/a/");
    EXPECT_EQ(paths::WithSeparator("c:\\"), "c:\\");
    EXPECT_EQ(paths::Join("/a/", "b"), "/a/b");
    EXPECT_EQ(paths::BaseOf("Jane Roe.hef"), "Jane Roe");
    EXPECT_EQ(paths::BaseOf("abc"), "");
    EXPECT_EQ(paths::ExtensionOf("logo.jpg"), "jpg");
    EXPECT_TRUE(paths::SameFolder("/Home/Ann\\", "/home/ann"));
    EXPECT_FALSE(paths::SameFolder("/home/ann", "/home/anne"));
}

TEST(Paths, AreAbsoluteFromADriveOrASeparatorOn) {
    for (const char* whole : {"/srv", "\\Data", "c:", "C:\\Data"}) {
        EXPECT_TRUE(paths::IsAbsolute(whole)) << whole;
    }
    for (const char* part : {"", "Data", "Data/x", "1:\\", ":"}) {
        EXPECT_FALSE(paths::IsAbsolute(part)) << part;
    }
}

TEST(Paths, DriveLettersStandForFolders) {
    const paths::DriveRoots roots{"/home/ann/", {"/nowhere/one/", "/nowhere/two/"}};
    EXPECT_EQ(paths::ResolveDrive("c:\\", roots), "/home/ann/");
    EXPECT_EQ(paths::ResolveDrive("C:\\Data\\x.txt", roots), "/home/ann/Data/x.txt");
    EXPECT_EQ(paths::ResolveDrive("c:", roots), "/home/ann/");
    EXPECT_EQ(paths::ResolveDrive("c:Data", roots), "/home/ann/Data");
    EXPECT_EQ(paths::ResolveDrive("f:\\", roots), "/nowhere/two/f/");
    EXPECT_EQ(paths::ResolveDrive("/srv/share", roots), "/srv/share");
}

} // namespace
