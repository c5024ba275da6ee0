#include "terms/completion.h"
#include "terms/term_line.h"
#include "terms/term_match.h"

#include <gtest/gtest.h>

#include <optional>
#include <random>
#include <string>
#include <string_view>
#include <vector>

// A line of a list, and which line a word is completed to.

namespace {

using modTerms::BuildIndex;
using modTerms::FirstMatch;
using modTerms::FirstMatchByWalk;
using modTerms::SplitTerm;

using Lines = std::vector<std::string_view>;

TEST(TermLine, TheTextStandsBeforeTheBracketAndThePriceInIt) {
    EXPECT_EQ(SplitTerm("Chair Covers [3.50]").Text, "Chair Covers ");
    EXPECT_EQ(SplitTerm("Chair Covers [3.50]").Amount, "3.50");
    EXPECT_EQ(SplitTerm("Arch[1] and [2]").Text, "Arch");
    EXPECT_EQ(SplitTerm("Arch[1] and [2]").Amount, "1");
    EXPECT_EQ(SplitTerm("Arch").Text, "Arch");
    EXPECT_EQ(SplitTerm("Arch").Amount, "");
    EXPECT_EQ(SplitTerm("[5]").Text, "");
    EXPECT_EQ(SplitTerm("[5]").Amount, "5");
    EXPECT_EQ(SplitTerm("]Arch[").Text, "]Arch");
}

TEST(TermLine, ABracketThatNeverClosesEndsTheTextAndGivesNoPrice) {
    EXPECT_EQ(SplitTerm("Arch [3.50").Text, "Arch ");
    EXPECT_EQ(SplitTerm("Arch [3.50").Amount, "");
}

TEST(TermLine, ControlCharactersBecomeBlanksAndNoTextIsLongerThanALine) {
    EXPECT_EQ(modTerms::PlainText(std::string_view("a\tb\0c", 5)), "a b c");
    EXPECT_EQ(modTerms::PlainText(std::string(1U << 20U, 'x')).size(), 4096U);
}

TEST(TermMatch, TheFirstLineThatBeginsWithTheLettersWins) {
    const Lines lines{"table runner", "TABLE", "Table", "table"};
    EXPECT_EQ(FirstMatchByWalk(lines, "Table"), 0U);
    EXPECT_EQ(FirstMatch(lines, BuildIndex(lines), "Table"), 0U);
    EXPECT_EQ(FirstMatch(lines, BuildIndex(lines), "table "), 0U);
    EXPECT_EQ(FirstMatch(lines, BuildIndex(lines), "tables"), std::nullopt);
}

TEST(TermMatch, AWholeTermIsFoundToo) {
    const Lines lines{"Archway", "Arch"};
    EXPECT_EQ(FirstMatchByWalk(lines, "archway"), 0U);
    EXPECT_EQ(FirstMatch(lines, BuildIndex(lines), "archway"), 0U);
}

TEST(TermMatch, PricesAndEmptyTermsMatchNothing) {
    const Lines lines{"[5]", "", "Arch [50]"};
    for (const std::string_view word : {"", "[5", "Arch [", "arch [50]"}) {
        EXPECT_EQ(FirstMatchByWalk(lines, word), std::nullopt) << word;
        EXPECT_EQ(FirstMatch(lines, BuildIndex(lines), word), std::nullopt) << word;
    }
    EXPECT_EQ(FirstMatch(lines, BuildIndex(lines), "arch "), 2U);
}

TEST(TermMatch, TheIndexAnswersAsTheWalkDoes) {
    std::mt19937 random(11);
    const auto below = [&](std::size_t limit) { return random() % limit; };
    const std::string_view letters("aAbB\xE4\xC4 [1]\xFF\0\x80", 13);
    const auto word = [&](std::size_t longest) {
        std::string made(below(longest), ' ');
        for (char& letter : made) {
            letter = letters[below(below(3) == 0 ? letters.size() : 4)];
        }
        return made;
    };
    int hits = 0;
    for (int list = 0; list < 500; ++list) {
        std::vector<std::string> texts(below(list % 10 == 0 ? 2000 : 40));
        for (std::string& text : texts) {
            text = word(14);
        }
        const Lines lines(texts.begin(), texts.end());
        const TermIndex index = BuildIndex(lines);
        for (int each = 0; each < 200; ++each) {
            const std::string typed = word(12);
            const std::optional<std::size_t> walked = FirstMatchByWalk(lines, typed);
            ASSERT_EQ(FirstMatch(lines, index, typed), walked) << "list " << list << ", word " << typed;
            hits += walked.has_value() ? 1 : 0;
        }
    }
    EXPECT_GT(hits, 10000);
    EXPECT_LT(hits, 90000);
}

TEST(TermMatch, ALongListIsIndexedAtTheFirstWord) {
    std::string bytes;
    std::vector<std::string> texts;
    texts.reserve(100);
    for (int line = 0; line < 100; ++line) {
        texts.push_back("term " + std::to_string(line));
    }
    TermsRecords terms;
    terms.Lines.assign(texts.begin(), texts.end());
    EXPECT_EQ(modTerms::FindMatch(terms, "TERM 42"), 42U);
    EXPECT_TRUE(terms.Index.Built);
    EXPECT_EQ(modTerms::FindMatch(terms, "term 1"), 1U);
}

TEST(TermCase, FollowsTheWordLowerThenProperThenUpper) {
    using modTerms::CompletionFor;
    EXPECT_EQ(CompletionFor("Cha", "Chair COVERS"), "Chair COVERS") << "equal letters take the term as it is";
    EXPECT_EQ(CompletionFor("cha", "Chair COVERS"), "chair covers");
    EXPECT_EQ(CompletionFor("Cha", "CHAIR COVERS"), "Chair Covers");
    EXPECT_EQ(CompletionFor("CHA", "Chair Covers"), "CHAIR COVERS");
    EXPECT_EQ(CompletionFor("C", "chair covers"), "Chair Covers") << "one capital letter is proper case";
    EXPECT_EQ(CompletionFor("cHa", "Chair Covers"), std::nullopt);
    EXPECT_EQ(CompletionFor("12", "12 GUESTS"), "12 GUESTS");
}

} // namespace
