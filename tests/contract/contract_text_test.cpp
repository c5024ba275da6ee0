#include "contract/contract_text.h"

#include "contract/contract_lines.h"
#include "support/recording_platform.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <random>
#include <string>
#include <vector>

namespace {

/// The same rule a second time, by trying every end of a line with the measure itself.
std::vector<std::string> PlainWrap(std::string text, const TextMeasure& measure, const TextFont& font,
                                   float width) {
    std::vector<std::string> lines;
    while (true) {
        const std::size_t end = text.find("\r\n");
        std::string rest = text.substr(0, end);
        do {
            std::size_t best = 0;
            std::size_t cut = 0;
            for (std::size_t length = 1; length <= rest.size(); ++length) {
                std::string bare = rest.substr(0, length);
                bare.erase(bare.find_last_not_of(' ') + 1);
                if (measure.Width(bare, font) > width) {
                    continue;
                }
                cut = length;
                const bool whole = length == rest.size();
                if (whole || (rest[length - 1] == ' ' && rest[length] != ' ')) {
                    best = length;
                }
            }
            const std::size_t take = rest.empty() ? 0 : best > 0 ? best : std::max<std::size_t>(cut, 1);
            lines.push_back(rest.substr(0, take));
            rest.erase(0, take);
        } while (!rest.empty());
        if (end == std::string::npos) {
            return lines;
        }
        text.erase(0, end + 2);
    }
}

std::vector<std::string> LinesOf(const ContractText& text) {
    std::vector<std::string> lines;
    lines.reserve(static_cast<std::size_t>(text.LineCount()));
    for (int line = 0; line < text.LineCount(); ++line) {
        lines.push_back(text.LineText(line));
    }
    return lines;
}

using Lines = std::vector<std::string>;

/// Every byte that is marked goes, and with one half of a line end the other; what comes in stands there.
std::string PlainReplace(const std::string& text, std::size_t at, std::size_t removed, std::string_view in) {
    const auto lineEnd = [&](std::size_t place) { return text.compare(place, 2, "\r\n") == 0; };
    std::vector<bool> marked(text.size(), false);
    for (std::size_t place = at; place < text.size() && place < at + removed; ++place) {
        marked[place] = true;
    }
    std::string result;
    std::size_t into = at > 0 && lineEnd(at - 1) ? at - 1 : at;
    for (std::size_t place = 0; place < text.size(); ++place) {
        const bool half =
            (lineEnd(place) && marked[place + 1]) || (place > 0 && lineEnd(place - 1) && marked[place - 1]);
        if (!marked[place] && !half) {
            result += text[place];
        }
    }
    return result.insert(into, in);
}

/// Ten characters of 100 twips to the line.
struct Short {
    FixedMeasure measure;
    ContractText text{1000};
    explicit Short(std::string_view words = "") {
        text.SetFont(measure, {});
        text.SetText(words);
    }
};

TEST(ContractWrap, ALineEndsBehindTheLastBlanksThatFit) {
    EXPECT_EQ(LinesOf(Short("one two three four").text), (Lines{"one two ", "three four"}));
    EXPECT_EQ(LinesOf(Short("0123456789 x").text), (Lines{"0123456789 ", "x"}));
    EXPECT_EQ(LinesOf(Short("0123456789     x").text), (Lines{"0123456789     ", "x"}));
}

TEST(ContractWrap, ALongerWordIsCutWhereItNoLongerFits) {
    EXPECT_EQ(LinesOf(Short("0123456789abc").text), (Lines{"0123456789", "abc"}));
    EXPECT_EQ(LinesOf(Short("ab 0123456789abc").text), (Lines{"ab ", "0123456789", "abc"}));
}

TEST(ContractWrap, EmptyTextsHaveOneLineAndALineEndOpensTheNext) {
    EXPECT_EQ(LinesOf(Short("").text), (Lines{""}));
    EXPECT_EQ(LinesOf(Short("a\r\n").text), (Lines{"a", ""}));
    EXPECT_EQ(LinesOf(Short("a\n\nb\rc").text), (Lines{"a", "", "b", "c"}));
    const Short two("ab\r\ncd");
    EXPECT_EQ(two.text.LineStart(1), 4);
    EXPECT_EQ(two.text.LineLength(0), 2);
    EXPECT_TRUE(two.text.EndsParagraph(0));
    EXPECT_FALSE(two.text.EndsParagraph(1));
}

TEST(ContractWrap, TheRoomIsThatOfTheFinalPage) {
    FixedMeasure measure;
    ContractText text;
    text.SetFont(measure, {});
    text.SetText(std::string(111, 'a')); // 11 100 twips of 11 190
    EXPECT_EQ(text.LineCount(), 1);
    text.SetText(std::string(112, 'a'));
    EXPECT_EQ(text.LineCount(), 2);
}

TEST(ContractWrap, IsTheSameAsThePlainRuleOverRandomTextsFontsAndWidths) {
    std::mt19937 random(7);
    const auto upTo = [&](int most) { return std::uniform_int_distribution<int>(0, most)(random); };
    for (int round = 0; round < 400; ++round) {
        FixedMeasure measure;
        for (float& advance : measure.Advance) {
            advance = static_cast<float>(30 + upTo(200)) + static_cast<float>(upTo(7)) / 8;
        }
        measure.UnitSize = 10;
        measure.BoldFactor = 1.1F;
        const TextFont font{"Arial", static_cast<float>(6 + upTo(6)), upTo(1) == 1, false};
        std::string words;
        for (int at = upTo(160); at > 0; --at) {
            const int kind = upTo(12);
            words += kind < 3 ? " " : kind == 3 ? "\r\n" : std::string(1, static_cast<char>('A' + upTo(60)));
        }
        const auto width = static_cast<float>(400 + upTo(3000));
        ContractText text(width);
        text.SetFont(measure, font);
        text.SetText(words);
        ASSERT_EQ(LinesOf(text), PlainWrap(text.Text(), measure, font, width)) << words;
        // Edited at random, the lines are those of the text as it stands.
        for (int edit = 0; edit < 8; ++edit) {
            const auto size = static_cast<int>(text.Text().size());
            const char* pieces[] = {"x", " ", "\r\n", "some words to put in", "", "\r\n\r\nz"};
            const auto at = static_cast<std::size_t>(upTo(size));
            const auto removed = static_cast<std::size_t>(upTo(20));
            const char* piece = pieces[upTo(5)];
            const std::string expected = PlainReplace(text.Text(), at, removed, piece);
            text.Replace(at, removed, piece, ContractText::Kind::Whole);
            ASSERT_EQ(text.Text(), expected);
            ASSERT_EQ(LinesOf(text), PlainWrap(text.Text(), measure, font, width));
        }
        const std::string now = text.Text();
        while (text.CanUndo()) {
            ASSERT_GE(text.Undo(), 0);
        }
        ASSERT_EQ(text.Text(), modContract::Incoming(words));
        ASSERT_EQ(LinesOf(text), PlainWrap(text.Text(), measure, font, width));
        while (text.CanRedo()) {
            ASSERT_GE(text.Redo(), 0);
        }
        ASSERT_EQ(text.Text(), now);
    }
}

TEST(ContractWrap, ALineEndIsNeverCutInTwo) {
    Short two("ab\r\ncd");
    two.text.Replace(3, 0, "x", ContractText::Kind::Whole);
    EXPECT_EQ(two.text.Text(), "abx\r\ncd");
    two.text.Replace(3, 1, "", ContractText::Kind::Whole);
    EXPECT_EQ(two.text.Text(), "abxcd");
}

TEST(ContractHistory, TypedWordsAreTakenBackWordByWord) {
    Short text;
    std::size_t at = 0;
    for (const char character : std::string("ab cd")) {
        text.text.Replace(at++, 0, std::string(1, character), ContractText::Kind::Typing);
    }
    EXPECT_EQ(text.text.Undo(), 2); // " cd"
    EXPECT_EQ(text.text.Text(), "ab");
    EXPECT_EQ(text.text.Undo(), 0);
    EXPECT_EQ(text.text.Text(), "");
    EXPECT_EQ(text.text.Undo(), -1);
    EXPECT_EQ(text.text.Redo(), 2);
    EXPECT_EQ(text.text.Redo(), 5);
    EXPECT_EQ(text.text.Redo(), -1);
    EXPECT_EQ(text.text.Text(), "ab cd");
}

TEST(ContractHistory, BackspacesAreTakenBackTogetherAndANewEditEndsRedo) {
    Short text("abcd");
    text.text.Replace(3, 1, "", ContractText::Kind::Typing);
    text.text.Replace(2, 1, "", ContractText::Kind::Typing);
    EXPECT_EQ(text.text.Undo(), 4);
    EXPECT_EQ(text.text.Text(), "abcd");
    text.text.Replace(0, 0, "x", ContractText::Kind::Whole);
    EXPECT_FALSE(text.text.CanRedo());
}

TEST(ContractLines, AnImportJoinsLinesWithOneBlankAndFoldsEmptyOnes) {
    const auto joined = [](std::string_view words) {
        std::string all;
        for (const std::string& line : modContract::JoinLines(Short(words).text)) {
            all += line;
        }
        return all;
    };
    EXPECT_EQ(joined("one\r\ntwo"), "one two");
    EXPECT_EQ(joined("one \r\ntwo"), "one two");
    EXPECT_EQ(joined("one\r\n two"), "one two");
    EXPECT_EQ(joined("one\r\n\r\n\r\n\r\ntwo"), "one\r\n\r\ntwo");
    EXPECT_EQ(joined("\r\n\r\none"), "one");
    EXPECT_EQ(joined("one\r\n"), "one\r\n\r\n");
    EXPECT_EQ(joined("one two three four"), "one two three four"); // its own wrapped lines
    EXPECT_EQ(joined("0123456789abc"), "0123456789abc");
    EXPECT_EQ(joined(""), "");
    EXPECT_EQ(modContract::JoinLines(Short("a\r\n\r\nb").text), (Lines{"a\r\n\r\n", "b"}));
}

TEST(ContractLines, EveryRunOfLineEndsBecomesOne) {
    EXPECT_EQ(modContract::WithoutDoubleLineFeeds("a\r\n\r\n\r\nb\r\nc\r\n\r\n"), "a\r\nb\r\nc\r\n");
    EXPECT_EQ(modContract::WithoutDoubleLineFeeds("\r\n\r\na"), "\r\na");
    EXPECT_EQ(modContract::WithoutDoubleLineFeeds(""), "");
}

TEST(ContractLines, WhatComesInHasCrLfAndNoTabsOrNuls) {
    EXPECT_EQ(modContract::Incoming(std::string_view("a\rb\nc\r\nd\te\0f", 12)), "a\r\nb\r\nc\r\nd ef");
}

TEST(ContractHistory, WhatWasUndoneBeforeAnotherEditNeverComesBack) {
    Short text("abcd");
    text.text.Replace(4, 0, "efgh", ContractText::Kind::Whole);
    EXPECT_EQ(text.text.Undo(), 4);
    text.text.Replace(0, 0, "x", ContractText::Kind::Whole);
    EXPECT_EQ(text.text.Undo(), 0);
    EXPECT_EQ(text.text.Text(), "abcd");
    EXPECT_FALSE(text.text.CanUndo());
    EXPECT_EQ(text.text.Redo(), 1);
    EXPECT_EQ(text.text.Text(), "xabcd");
    EXPECT_FALSE(text.text.CanRedo());
}

TEST(ContractHistory, AnotherTextHasNone) {
    for (const bool undone : {false, true}) {
        Short text("abcd");
        text.text.Replace(4, 0, "e", ContractText::Kind::Whole);
        if (undone) {
            EXPECT_EQ(text.text.Undo(), 4);
        }
        text.text.SetText("other");
        EXPECT_FALSE(text.text.CanUndo());
        EXPECT_FALSE(text.text.CanRedo());
    }
}

TEST(ContractHistory, AnEditBehindTheEndStandsAtTheEnd) {
    Short text("ab");
    text.text.Replace(9, 1, "x", ContractText::Kind::Whole);
    EXPECT_EQ(text.text.Text(), "abx");
    EXPECT_EQ(text.text.Undo(), 2);
    EXPECT_EQ(text.text.Text(), "ab");
}

TEST(ContractWrap, LinesOfBlanksAloneAreNotFilled) {
    EXPECT_EQ(Short("").text.FilledCount(), 0);
    EXPECT_EQ(Short("\r\n  \r\n").text.FilledCount(), 0);
    EXPECT_EQ(Short("\r\na\r\n").text.FilledCount(), 2);
}

TEST(ContractHistory, ABackspaceAfterTypingIsAStepOfItsOwn) {
    Short text("ab");
    text.text.Replace(2, 0, "c", ContractText::Kind::Typing);
    text.text.Replace(2, 1, "", ContractText::Kind::Typing);
    EXPECT_EQ(text.text.Undo(), 3);
    EXPECT_EQ(text.text.Text(), "abc");
    EXPECT_EQ(text.text.Undo(), 2);
    EXPECT_EQ(text.text.Text(), "ab");
}

} // namespace
