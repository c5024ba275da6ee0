#include "spelling/words.h"

#include <gtest/gtest.h>

#include <string>

namespace {

std::vector<std::string> Words(std::string_view text) {
    std::vector<std::string> result;
    for (const words::Span& word : words::Find(text)) {
        result.emplace_back(text.substr(word.Start, word.Length));
    }
    return result;
}

using List = std::vector<std::string>;

TEST(Words, AreRunsOfLetters) {
    EXPECT_EQ(Words("White chair-covers, rented"), (List{"White", "chair", "covers", "rented"}));
    EXPECT_EQ(Words("caf\xE9 \xC4rger"), (List{"caf\xE9", "\xC4rger"}));
    EXPECT_EQ(Words(""), List{});
}

TEST(Words, HaveApostrophesInside) {
    EXPECT_EQ(Words("Bride's 'quoted' don\x92t O'"), (List{"Bride's", "quoted", "don\x92t"}));
}

TEST(Words, OfOneLetterArePassedOver) {
    EXPECT_EQ(Words("a b cc d"), List{"cc"});
}

TEST(Words, WithDigitsArePassedOver) {
    EXPECT_EQ(Words("12x A4 1,250.00 $5 3rd row"), List{"row"});
}

TEST(Words, OfAddressesArePassedOver) {
    EXPECT_EQ(Words("mail jane.roe@example.test or http://exmple.test/zzz or www.zzz.zz or zzz.com, now"),
              (List{"mail", "or", "or", "or", "now"}));
    EXPECT_EQ(Words("zzz.comb zzz.community"), (List{"zzz", "comb", "zzz", "community"}));
}

TEST(Words, StandBetweenBlanksTabsAndBlanksThatDoNotBreak) {
    EXPECT_EQ(Words("see\twww.zzz.zz\tor\xA0zzz.com\xA0now"), (List{"see", "or", "now"}));
}

} // namespace
