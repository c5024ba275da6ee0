#include "base/numbers.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

namespace {

struct Numeric {
    const char* Text;
    bool Is;
    double Value;
};

class NumericText : public testing::TestWithParam<Numeric> {};

TEST_P(NumericText, IsRecognisedAsAPersonWouldReadIt) {
    const auto value = numbers::ToDouble(GetParam().Text);
    EXPECT_EQ(value.has_value(), GetParam().Is) << GetParam().Text;
    EXPECT_EQ(numbers::IsNumeric(GetParam().Text), GetParam().Is);
    if (value && GetParam().Is) {
        EXPECT_DOUBLE_EQ(*value, GetParam().Value);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Table, NumericText,
    testing::Values(
        Numeric{"1234.5", true, 1234.5}, Numeric{"1,234.50", true, 1234.5}, Numeric{"  12 ", true, 12},
        Numeric{"-5", true, -5}, Numeric{"5-", true, -5}, Numeric{"+7", true, 7}, Numeric{".5", true, 0.5},
        Numeric{"19.", true, 19}, Numeric{"1,2,3", false, 0}, Numeric{"12,50", false, 0},
        Numeric{"1.250,00", false, 0}, Numeric{"1,250", true, 1250}, Numeric{"12,345.60", true, 12345.6},
        Numeric{"123,456,789", true, 123456789}, Numeric{"1234,567", false, 0}, Numeric{"1,2345", false, 0},
        Numeric{"1,234,56", false, 0}, Numeric{"1,,234", false, 0}, Numeric{"1,234,", false, 0},
        Numeric{"1,.5", false, 0}, Numeric{"12,3456.00", false, 0}, Numeric{"-1,250", true, -1250},
        Numeric{"$12,50", false, 0}, Numeric{"(1,250)", true, -1250}, Numeric{"1,250e2", true, 125000},
        Numeric{"$ 1,500.00", true, 1500}, Numeric{"1500 $", true, 1500}, Numeric{"-$5", true, -5},
        Numeric{"$-5", true, -5}, Numeric{"(12.50)", true, -12.5}, Numeric{"1e3", true, 1000},
        Numeric{"1E-2", true, 0.01}, Numeric{"1e+2", true, 100}, Numeric{"1e-50", true, 1e-50},
        Numeric{"1e-400", true, 0}, Numeric{"0", true, 0}, Numeric{"1234567890", true, 1234567890},
        Numeric{"", false, 0}, Numeric{" ", false, 0}, Numeric{"-", false, 0}, Numeric{".", false, 0},
        Numeric{",", false, 0}, Numeric{"$", false, 0}, Numeric{"abc", false, 0}, Numeric{"1.2.3", false, 0},
        Numeric{"1-2", false, 0}, Numeric{"5 5", false, 0}, Numeric{"--5", false, 0},
        Numeric{"-5-", false, 0}, Numeric{"(5", false, 0}, Numeric{"(-5)", false, 0},
        Numeric{"1e39", false, 0}, Numeric{"1e400", false, 0}, Numeric{"inf", false, 0},
        Numeric{"nan", false, 0}, Numeric{"0x10", false, 0}, Numeric{"1e", false, 0}, Numeric{",5", false, 0},
        Numeric{",123", false, 0}, Numeric{"-19.", true, -19}, Numeric{"-19.e2", true, -1900},
        Numeric{"-.5", true, -0.5}, Numeric{"-.", false, 0}, Numeric{"-1,2345", false, 0},
        Numeric{"-1,", false, 0}, Numeric{"1.5,0", false, 0}, Numeric{"$$5", false, 0}));

TEST(NumericText, KnowsTheSymbolOfTheSettings) {
    EXPECT_TRUE(numbers::IsNumeric("\xA3 5", "\xA3"));
    EXPECT_FALSE(numbers::IsNumeric("$5", "\xA3"));
    EXPECT_FALSE(numbers::IsNumeric("$5", ""));
}

struct Shown {
    double Value;
    const char* Pattern;
    const char* Text;
};

class Patterns : public testing::TestWithParam<Shown> {};

TEST_P(Patterns, ShowTheDouble) {
    EXPECT_EQ(numbers::Format(GetParam().Value, GetParam().Pattern), GetParam().Text);
}

INSTANTIATE_TEST_SUITE_P(
    Doubles, Patterns,
    testing::Values(Shown{1234.5, "##,##0.00", "1,234.50"}, Shown{0, "##,##0.00", "0.00"},
                    Shown{0.5, "##,##0.00", "0.50"}, Shown{-1234.5, "##,##0.00", "-1,234.50"},
                    Shown{1234567.891, "##,##0.00", "1,234,567.89"}, Shown{-0.001, "##,##0.00", "0.00"},
                    Shown{-0.0004, "##,##0.00", "0.00"}, Shown{8.25, "0.00\"", "8.25\""},
                    Shown{0.5, "##,###.00", ".50"}, Shown{0, "##,###.00", ".00"},
                    Shown{1234, "##,###.00", "1,234.00"}, Shown{-0.5, "##,###.00", "-.50"},
                    Shown{1234.5, "#########.00", "1234.50"}, Shown{0, "#########.00", ".00"},
                    Shown{1234567890.5, "#########.00", "1234567890.50"}, Shown{8.25, "##.00", "8.25"},
                    Shown{0.5, "##.00", ".50"}, Shown{100, "##.00", "100.00"}, Shown{0.25, "#0.00", "0.25"},
                    Shown{-0.25, "#0.00", "-0.25"}, Shown{12345678.91, "###,##0.00", "12,345,678.91"},
                    Shown{1234.5, "###,##0.00", "1,234.50"}, Shown{0.5, "###,###.00", ".50"},
                    Shown{59.97, "###,###.00", "59.97"}, Shown{0, "##.##", "."},
                    Shown{1200, "##.##", "1200."}, Shown{727.5, "##.##", "727.5"},
                    Shown{727.526, "##.##", "727.53"}, Shown{0.25, "##.##", ".25"},
                    Shown{1234567890, "(###) ###-####", "(123) 456-7890"},
                    Shown{5551234, "(###) ###-####", "() 555-1234"},
                    Shown{11234567890, "(###) ###-####", "(1123) 456-7890"},
                    // Ties round away from zero on the shortest decimal text of the number.
                    Shown{0.825, "##,##0.00", "0.83"}, Shown{1.005, "##,##0.00", "1.01"},
                    Shown{2.675, "##,##0.00", "2.68"}, Shown{103.125, "##,##0.00", "103.13"},
                    Shown{-0.825, "##,##0.00", "-0.83"}, Shown{0.125, "##,##0.00", "0.13"},
                    Shown{9.995, "##,##0.00", "10.00"}, Shown{999.995, "##,##0.00", "1,000.00"},
                    Shown{0.005, "##,##0.00", "0.01"}, Shown{0.004999, "##,##0.00", "0.00"}));

struct ShownSingle {
    float Value;
    const char* Text;
};

class Singles : public testing::TestWithParam<ShownSingle> {};

TEST_P(Singles, RoundOnTheirOwnShortestText) {
    EXPECT_EQ(numbers::FormatSingle(GetParam().Value, "##,##0.00"), GetParam().Text);
}

INSTANTIATE_TEST_SUITE_P(Ties, Singles,
                         testing::Values(ShownSingle{0.825F, "0.83"}, ShownSingle{1.005F, "1.01"},
                                         ShownSingle{2.675F, "2.68"}, ShownSingle{103.125F, "103.13"},
                                         ShownSingle{-2.675F, "-2.68"}, ShownSingle{262144.01F, "262,144.00"},
                                         ShownSingle{16777216.0F, "16,777,216.00"},
                                         ShownSingle{1504.367431640625F, "1,504.37"},
                                         ShownSingle{108.89752197265625F, "108.90"},
                                         ShownSingle{0.0F, "0.00"}));

struct PlainSingle {
    float Value;
    const char* Text;
};

class PlainSingles : public testing::TestWithParam<PlainSingle> {};

TEST_P(PlainSingles, HaveSevenDigitsAtMost) {
    EXPECT_EQ(numbers::PlainNumber(GetParam().Value), GetParam().Text);
}

INSTANTIATE_TEST_SUITE_P(
    Table, PlainSingles,
    testing::Values(PlainSingle{1234.5F, "1234.5"}, PlainSingle{0.5F, "0.5"}, PlainSingle{-0.5F, "-0.5"},
                    PlainSingle{0.0F, "0"}, PlainSingle{1504.367431640625F, "1504.367"},
                    PlainSingle{262144.01F, "262144"}, PlainSingle{16777216.0F, "1.677722E+07"},
                    PlainSingle{10000000.0F, "1E+07"}, PlainSingle{9999999.0F, "9999999"},
                    PlainSingle{0.001F, "0.001"}, PlainSingle{0.00001F, "1E-05"},
                    PlainSingle{-1234567.0F, "-1234567"}, PlainSingle{10.5F, "10.5"}));

TEST(PlainDoubles, HaveFifteenDigitsAtMost) {
    EXPECT_EQ(numbers::PlainNumber(0.1 + 0.2), "0.3");
    EXPECT_EQ(numbers::PlainNumber(123456789012345.0), "123456789012345");
    EXPECT_EQ(numbers::PlainNumber(1e15), "1E+15");
    EXPECT_EQ(numbers::PlainNumber(1.2e15), "1.2E+15");
    EXPECT_EQ(numbers::PlainNumber(1440.0), "1440");
}

TEST(LeadingNumber, IsReadAsFarAsItGoes) {
    EXPECT_EQ(numbers::Val("8.25 "), 8.25);
    EXPECT_EQ(numbers::Val("1.2.3"), 1.2);
    EXPECT_EQ(numbers::Val(" - 5x"), -5);
    EXPECT_EQ(numbers::Val("120"), 120);
    EXPECT_EQ(numbers::Val(""), 0);
    EXPECT_EQ(numbers::Val("."), 0);
    EXPECT_EQ(numbers::Val("abc"), 0);
    EXPECT_EQ(numbers::Val("1,000"), 1);
    EXPECT_EQ(numbers::Val("+5 "), 5);
}

TEST(NumericText, ThatIsMissingNeedsNoMending) {
    EXPECT_FALSE(numbers::IsNoNumber(""));
    EXPECT_FALSE(numbers::IsNoNumber("  "));
    EXPECT_FALSE(numbers::IsNoNumber(" 5"));
    EXPECT_TRUE(numbers::IsNoNumber(" five"));
}

TEST(NumericText, OfAnyBytesNeverGivesWhatIsNotFinite) {
    std::string text;
    unsigned state = 12345;
    for (int round = 0; round < 20000; ++round) {
        text.clear();
        state = state * 1664525U + 1013904223U;
        const unsigned length = state >> 28U;
        for (unsigned at = 0; at < length; ++at) {
            state = state * 1664525U + 1013904223U;
            text += "0123456789.,-+eE$() "[(state >> 16U) % 20U];
        }
        if (const auto value = numbers::ToSingle(text)) {
            ASSERT_LE(*value, std::numeric_limits<float>::max()) << text;
            ASSERT_GE(*value, std::numeric_limits<float>::lowest()) << text;
        }
    }
}

} // namespace
