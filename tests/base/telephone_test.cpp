#include "base/telephone.h"

#include <gtest/gtest.h>

namespace {

TEST(Telephone, FillsThePatternFromTheRightWithTheDigitsAsTheyStand) {
    EXPECT_EQ(telephone::Formatted("2175550100"), "(217) 555-0100");
    EXPECT_EQ(telephone::Formatted("0005550100"), "(000) 555-0100");
    EXPECT_EQ(telephone::Formatted("15550100"), "(1) 555-0100");
}

TEST(Telephone, LeavesTheBracketsOutWithSevenDigitsOrFewer) {
    EXPECT_EQ(telephone::Formatted("5550100"), "555-0100");
    EXPECT_EQ(telephone::Formatted("0000000"), "000-0000");
    EXPECT_EQ(telephone::Formatted("50100"), "5-0100");
    EXPECT_EQ(telephone::Formatted("0100"), "0100");
}

TEST(Telephone, LeavesAnyOtherTextAlone) {
    for (const char* text : {"", "12345678901", "217 5550100", "555-0100", "x", "1e5", "+12175550100"}) {
        EXPECT_EQ(telephone::Formatted(text), std::nullopt) << text;
    }
}

} // namespace
