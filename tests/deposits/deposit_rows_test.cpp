#include "deposits/deposit_rows.h"

#include "base/numbers.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace {

using namespace modDeposits;

TEST(DepositRows, AFigureIsReadExactly) {
    EXPECT_EQ(ReadFigure("1,500.00"), 150000);
    EXPECT_EQ(ReadFigure("1500"), 150000);
    EXPECT_EQ(ReadFigure(".5"), 50);
    EXPECT_EQ(ReadFigure("5."), 500);
    EXPECT_EQ(ReadFigure("0.005"), 1);
    EXPECT_EQ(ReadFigure("0.0049"), 0);
    EXPECT_EQ(ReadFigure("-12.34"), -1234);
    EXPECT_EQ(ReadFigure("(12.34)"), -1234);
    EXPECT_FALSE(ReadFigure("(12.34")) << "a bracket that is never closed";
    EXPECT_FALSE(ReadFigure("12.34)"));
    EXPECT_EQ(ReadFigure("999,999,999,999.99"), 99999999999999);
    EXPECT_EQ(ReadFigure("000000000000000001"), 100);
}

TEST(DepositRows, WhatIsNoFigureIsNone) {
    for (const char* text : {"", ".", "1.2.3", "1,50", "1,5000", ",500", "1500,", "1,,500", "12a", "1e5",
                             "--5", "-", "1000000000000", "()", "five"}) {
        EXPECT_EQ(ReadFigure(text), std::nullopt) << text;
    }
}

TEST(DepositRows, ARowHasADateTwoTabsTheSignABlankAndTheAmount) {
    EXPECT_EQ(MakeRow("Jan 21, 2008", "$", "1,500.00"), "Jan 21, 2008\t\t$ 1,500.00");
    EXPECT_EQ(DateOf("Jan 21, 2008\t\t$ 1,500.00"), "Jan 21, 2008");
    EXPECT_EQ(AmountTextOf("Jan 21, 2008\t\t$ 1,500.00"), "1,500.00");
}

TEST(DepositRows, TheAmountIsReadWhateverSignStandsBeforeIt) {
    EXPECT_EQ(AmountOf("Jan 21, 2008\t\t$ 1,500.00"), 150000);
    EXPECT_EQ(AmountOf("x\t\t\x80"
                       "1,500.00"),
              150000);
    EXPECT_EQ(AmountOf("x\t\tUSD1500.00"), 150000);
    EXPECT_EQ(AmountOf("x\t\xA3.50"), 50);
    EXPECT_EQ(AmountOf("x\t\t-$5.00"), -500);
    EXPECT_EQ(AmountOf("x\t\t$(5.00)"), -500);
    EXPECT_EQ(AmountOf("1/21/08 75"), 7500);
}

TEST(DepositRows, ARowWithoutAnAmountCannotBeRead) {
    for (const char* row :
         {"", "\t\t", "Jan 21, 2008\t\t$ ", "Jan 21, 2008", "x\t\tnothing", "x\t\t$ 1,50.00"}) {
        EXPECT_EQ(AmountOf(row), std::nullopt) << row;
    }
}

TEST(DepositRows, TypedFiguresAreWrittenUnderThePattern) {
    EXPECT_EQ(AmountText("1500.5"), "1,500.50");
    EXPECT_EQ(AmountText("0"), "0.00");
    EXPECT_EQ(AmountText("0.825"), "0.83");
    EXPECT_EQ(AmountText("1234567.891"), "1,234,567.89");
    EXPECT_EQ(AmountText("1.2.3"), "");
    EXPECT_EQ(Shown(-123456), "-1,234.56");
    EXPECT_EQ(Shown(5), "0.05");
}

TEST(DepositRows, TheTotalIsTheShortestTextThatGivesTheSingleBack) {
    EXPECT_EQ(PlainTotal(ToSingle(150050)), "1500.5");
    EXPECT_EQ(PlainTotal(ToSingle(10000055)), "100000.55");
    EXPECT_EQ(PlainTotal(0), "0");
    EXPECT_EQ(PlainTotal(ToSingle(1)), "0.01");
    EXPECT_EQ(PlainTotal(ToSingle(2000000000)), "20000000"); // no exponent
    EXPECT_EQ(PlainTotal(ToSingle(-50)), "-0.5");
}

TEST(DepositRows, SumsAreThoseOfExactDecimals) {
    // Ten cents ten times are a dollar.
    EXPECT_EQ(AddUp(std::vector<std::string>(10, "x\t\t$ 0.10")).Total, 100);
    std::mt19937 random(20080121);
    for (int round = 0; round < 300; ++round) {
        std::vector<std::string> rows;
        std::string exact = "0"; // hundredths, added digit by digit
        const int count = std::uniform_int_distribution<int>(0, 60)(random);
        for (int row = 0; row < count; ++row) {
            const long long whole =
                std::uniform_int_distribution<long long>(0, round % 2 == 0 ? 9999 : 99999999)(random);
            const int cents = std::uniform_int_distribution<int>(0, 99)(random);
            const std::string hundredths =
                std::to_string(whole) + (cents < 10 ? "0" : "") + std::to_string(cents);
            rows.push_back(MakeRow(
                "Jan 21, 2008", "$",
                AmountText(std::to_string(whole) + "." + (cents < 10 ? "0" : "") + std::to_string(cents))));
            std::string sum;
            int carry = 0;
            for (std::size_t at = 0; at < std::max(exact.size(), hundredths.size()) || carry > 0; ++at) {
                const int one = at < exact.size() ? exact[exact.size() - 1 - at] - '0' : 0;
                const int other = at < hundredths.size() ? hundredths[hundredths.size() - 1 - at] - '0' : 0;
                sum.insert(sum.begin(), static_cast<char>('0' + (one + other + carry) % 10));
                carry = (one + other + carry) / 10;
            }
            const std::size_t digit = std::min(sum.find_first_not_of('0'), sum.size() - 1);
            exact = sum.substr(digit);
        }
        const Sum sum = AddUp(rows);
        EXPECT_EQ(std::to_string(sum.Total), exact);
        EXPECT_EQ(sum.Unreadable, 0);
        const float total = ToSingle(sum.Total);
        // The text and what the proposal reads from it are one figure.
        EXPECT_EQ(numbers::ToSingle(PlainTotal(total)), total) << PlainTotal(total);
    }
}

TEST(DepositRows, TheFileEndsWithoutALineEnd) {
    EXPECT_EQ(MakeFile("Jane Roe", {"a", "b"}), "Jane Roe\r\na\r\nb");
    EXPECT_EQ(MakeFile("Jane Roe", {}), "Jane Roe");
    const DepositList list = ParseFile("Jane Roe\r\na\nb\r\n");
    EXPECT_EQ(list.Name, "Jane Roe");
    EXPECT_EQ(list.Rows, (std::vector<std::string>{"a", "b"}));
    EXPECT_TRUE(ParseFile("").Empty);
}

TEST(DepositRows, AnEmptyLastRowIsKeptByTheFile) {
    const DepositList list = ParseFile("Jane Roe\r\n\n");
    EXPECT_EQ(list.Rows, (std::vector<std::string>{""}));
    EXPECT_EQ(ParseFile(MakeFile(list.Name, list.Rows)).Rows, list.Rows);
    EXPECT_EQ(MakeFile("Jane Roe", {"", "a", ""}), "Jane Roe\r\n\r\na\r\n\r\n");
}

TEST(Figures, InBracketsAreBelowNought) {
    EXPECT_EQ(modDeposits::ReadFigure("(5)"), -500);
    EXPECT_EQ(modDeposits::ReadFigure("(5.25)"), -525);
    for (const char* none : {"()", "(", ")", "(5", "5)", "((5))"}) {
        EXPECT_EQ(modDeposits::ReadFigure(none), std::nullopt) << none;
    }
}

TEST(Figures, MayHaveTheirSignOnEitherSide) {
    EXPECT_EQ(modDeposits::ReadFigure("-5"), -500);
    EXPECT_EQ(modDeposits::ReadFigure("5-"), -500);
    EXPECT_EQ(modDeposits::ReadFigure("+5.25"), 525);
    EXPECT_EQ(modDeposits::ReadFigure("5.25+"), 525);
    for (const char* none : {"-", "+", "--5", "-5-", "5--", "5-5"}) {
        EXPECT_EQ(modDeposits::ReadFigure(none), std::nullopt) << none;
    }
}

TEST(Figures, HaveCommasBetweenGroupsOfThreeAlone) {
    EXPECT_EQ(modDeposits::ReadFigure("1,250,000"), 125000000);
    EXPECT_EQ(modDeposits::ReadFigure("12,250.5"), 1225050);
    for (const char* none : {"1,25,000", "1,2500", "1250,000", ",250", "1,250,00", "1,2,500"}) {
        EXPECT_EQ(modDeposits::ReadFigure(none), std::nullopt) << none;
    }
}

TEST(DepositRows, ATotalBeyondWhatCanBeAddedStaysAtTheEndOfIt) {
    // 2^63 - 1 hundredths are the most; 92,234 of these rows would be more.
    const std::size_t rows = 92'235;
    EXPECT_EQ(Shown(AddUp(std::vector<std::string>(rows, "\t999999999999.99")).Total),
              "92,233,720,368,547,758.07");
    EXPECT_EQ(Shown(AddUp(std::vector<std::string>(rows, "\t-999999999999.99")).Total),
              "-92,233,720,368,547,758.07");
}

} // namespace
