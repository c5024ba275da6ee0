#include "base/numbers.h"

#include "base/text.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>

namespace {

bool IsDigit(char character) {
    return character >= '0' && character <= '9';
}

/// The digits before a point: a comma stands between groups of three and nowhere else.
class Groups {
public:
    /// False when the character cannot stand here; no number is whole with it.
    [[nodiscard]] bool Take(char character) {
        if (character != ',') {
            ++digits_;
            return !comma_ || digits_ <= kSize;
        }
        const bool fits = comma_ ? digits_ == kSize : digits_ > 0 && digits_ <= kSize;
        comma_ = true;
        digits_ = 0;
        return fits;
    }
    /// Whether the number may end here or go on behind a point.
    [[nodiscard]] bool Whole() const { return !comma_ || digits_ == kSize; }

private:
    static constexpr int kSize = 3;
    int digits_ = 0;
    bool comma_ = false;
};

/// Reads a numeric text from left to right; what is left at the end must be nothing.
class Recogniser {
public:
    Recogniser(std::string_view text, std::string_view currency) : rest_(text), currency_(currency) {}

    std::optional<double> Value() {
        Before();
        if (!Digits()) {
            return std::nullopt;
        }
        After();
        if (!rest_.empty() || (bracket_ && !closed_)) {
            return std::nullopt;
        }
        double value = 0;
        const auto [end, error] = std::from_chars(plain_.data(), plain_.data() + plain_.size(), value);
        if (error == std::errc::result_out_of_range) {
            // Far below one is nothing; far above is no number here.
            value = Tiny() ? 0 : std::numeric_limits<double>::infinity();
        } else if (error != std::errc() || end != plain_.data() + plain_.size()) {
            return std::nullopt;
        }
        if (!std::isfinite(value) || !std::isfinite(static_cast<float>(value))) {
            return std::nullopt;
        }
        return negative_ ? -value : value;
    }

private:
    bool Take(char character) {
        if (rest_.empty() || rest_.front() != character) {
            return false;
        }
        rest_.remove_prefix(1);
        return true;
    }

    bool TakeCurrency() {
        if (seenCurrency_ || currency_.empty() || rest_.substr(0, currency_.size()) != currency_) {
            return false;
        }
        rest_.remove_prefix(currency_.size());
        seenCurrency_ = true;
        return true;
    }

    bool TakeSign() {
        if (seenSign_ || bracket_ || rest_.empty() || (rest_.front() != '-' && rest_.front() != '+')) {
            return false;
        }
        negative_ = rest_.front() == '-';
        seenSign_ = true;
        rest_.remove_prefix(1);
        return true;
    }

    void SkipBlanks() {
        while (!rest_.empty() && (rest_.front() == ' ' || rest_.front() == '\t')) {
            rest_.remove_prefix(1);
        }
    }

    void Before() {
        while (true) {
            SkipBlanks();
            if (TakeCurrency() || TakeSign()) {
                continue;
            }
            if (!bracket_ && !seenSign_ && Take('(')) {
                bracket_ = true;
                negative_ = true;
                continue;
            }
            return;
        }
    }

    bool Digits() {
        Groups groups;
        while (!rest_.empty() && (IsDigit(rest_.front()) || rest_.front() == ',') &&
               groups.Take(rest_.front())) {
            if (rest_.front() != ',') {
                plain_ += rest_.front();
            }
            rest_.remove_prefix(1);
        }
        if (!groups.Whole()) {
            return false;
        }
        bool any = !plain_.empty();
        if (Take('.')) {
            plain_ += '.';
            while (!rest_.empty() && IsDigit(rest_.front())) {
                plain_ += rest_.front();
                any = true;
                rest_.remove_prefix(1);
            }
        }
        if (any && !rest_.empty() && (rest_.front() == 'e' || rest_.front() == 'E')) {
            Exponent();
        }
        return any;
    }

    void Exponent() {
        std::string_view ahead = rest_.substr(1);
        std::string exponent = "e";
        if (!ahead.empty() && (ahead.front() == '+' || ahead.front() == '-')) {
            if (ahead.front() == '-') {
                exponent += '-';
            }
            ahead.remove_prefix(1);
        }
        if (ahead.empty() || !IsDigit(ahead.front())) {
            return;
        }
        while (!ahead.empty() && IsDigit(ahead.front())) {
            exponent += ahead.front();
            ahead.remove_prefix(1);
        }
        plain_ += exponent;
        rest_ = ahead;
    }

    void After() {
        while (true) {
            SkipBlanks();
            if (TakeCurrency() || TakeSign()) {
                continue;
            }
            if (bracket_ && !closed_ && Take(')')) {
                closed_ = true;
                continue;
            }
            return;
        }
    }

    [[nodiscard]] bool Tiny() const {
        const std::size_t mark = plain_.find('e');
        if (mark != std::string::npos && plain_.substr(mark, 2) == "e-") {
            return true;
        }
        return plain_.find_first_not_of("0.") == std::string::npos;
    }

    std::string_view rest_;
    std::string_view currency_;
    std::string plain_;
    bool negative_ = false;
    bool bracket_ = false;
    bool closed_ = false;
    bool seenSign_ = false;
    bool seenCurrency_ = false;
};

/// Digits with commas before a point, as nearly all amounts of a file are. Up to fifteen digits the quotient
/// is exact to the last bit. Nothing when the text is anything else: it may still be a number.
std::optional<double> PlainDecimal(std::string_view text) {
    constexpr std::array kPowers{1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
    constexpr std::size_t kExactDigits = kPowers.size() - 1;
    std::int64_t whole = 0;
    std::size_t digits = 0;
    std::size_t decimals = 0;
    bool point = false;
    Groups groups;
    for (const char character : text) {
        if (!point && character != '.' && !groups.Take(character)) {
            return std::nullopt;
        }
        if (IsDigit(character)) {
            if (++digits > kExactDigits) {
                return std::nullopt;
            }
            whole = whole * 10 + (character - '0');
            decimals += point ? 1 : 0;
        } else if (character == '.' && !point && groups.Whole()) {
            point = true;
        } else if (character != ',' || point || digits == 0) {
            return std::nullopt;
        }
    }
    return digits > 0 && groups.Whole() ? std::optional(static_cast<double>(whole) / kPowers[decimals])
                                        : std::nullopt;
}

/// A number as digits and the place of its point: 0.d1d2d3... times ten to the exponent.
struct Decimal {
    bool Negative = false;
    std::string Digits;
    int Exponent = 0;
};

template <typename Number> Decimal Shortest(Number value) {
    std::array<char, 64> buffer{};
    const Number size = std::fabs(value);
    const auto end =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), size, std::chars_format::scientific);
    const std::string_view written(buffer.data(), static_cast<std::size_t>(end.ptr - buffer.data()));
    const std::size_t mark = written.find('e');
    Decimal decimal;
    decimal.Negative = std::signbit(value);
    for (const char character : written.substr(0, mark)) {
        if (character != '.') {
            decimal.Digits += character;
        }
    }
    std::string_view exponent = written.substr(mark + 1);
    if (exponent.front() == '+') {
        exponent.remove_prefix(1);
    }
    std::from_chars(exponent.data(), exponent.data() + exponent.size(), decimal.Exponent);
    decimal.Exponent += 1;
    return decimal;
}

/// Keeps the digits down to a decimal place, rounding half away from zero.
Decimal RoundedTo(Decimal decimal, int places) {
    const int keep = decimal.Exponent + places;
    if (keep < 0) {
        decimal.Digits.clear();
    } else if (static_cast<std::size_t>(keep) < decimal.Digits.size()) {
        const bool up = decimal.Digits[static_cast<std::size_t>(keep)] >= '5';
        decimal.Digits.resize(static_cast<std::size_t>(keep));
        if (up) {
            std::size_t at = decimal.Digits.size();
            while (at > 0 && decimal.Digits[at - 1] == '9') {
                decimal.Digits[--at] = '0';
            }
            if (at > 0) {
                ++decimal.Digits[at - 1];
            } else {
                decimal.Digits.insert(decimal.Digits.begin(), '1');
                ++decimal.Exponent;
            }
        }
    }
    if (decimal.Digits.find_first_not_of('0') == std::string::npos) {
        decimal.Digits.clear();
        decimal.Negative = false;
    }
    return decimal;
}

/// The digit before (place 0, 1, ...) or behind (place -1, -2, ...) the point.
char DigitAt(const Decimal& decimal, int place) {
    const int at = decimal.Exponent - 1 - place;
    return at >= 0 && static_cast<std::size_t>(at) < decimal.Digits.size()
               ? decimal.Digits[static_cast<std::size_t>(at)]
               : '0';
}

bool IsPlaceholder(char character) {
    return character == '#' || character == '0';
}

struct Pattern {
    std::string_view Whole;
    std::string_view Fraction;
    bool HasPoint = false;
    bool Grouped = false;
    int WholeZeros = 0; ///< digits that show in any case
    int Places = 0;     ///< decimals at the most
};

Pattern Analyse(std::string_view pattern) {
    Pattern result;
    const std::size_t point = pattern.find('.');
    result.HasPoint = point != std::string_view::npos;
    result.Whole = pattern.substr(0, point);
    result.Fraction = result.HasPoint ? pattern.substr(point + 1) : std::string_view();
    bool zeroSeen = false;
    for (const char character : result.Whole) {
        result.Grouped = result.Grouped || character == ',';
        zeroSeen = zeroSeen || character == '0';
        if (zeroSeen && IsPlaceholder(character)) {
            ++result.WholeZeros;
        }
    }
    for (const char character : result.Fraction) {
        if (IsPlaceholder(character)) {
            ++result.Places;
        }
    }
    return result;
}

/// The part before the point, filled from the right; digits beyond the placeholders stand before the first
/// one.
std::string WholePart(const Decimal& decimal, const Pattern& pattern) {
    std::string reversed;
    int place = 0;
    int shown = 0;
    const int digits = decimal.Digits.empty() ? 0 : std::max(decimal.Exponent, 0);
    const auto put = [&](char digit) {
        if (pattern.Grouped && shown > 0 && shown % 3 == 0) {
            reversed += ',';
        }
        reversed += digit;
        ++shown;
    };
    const std::size_t first = pattern.Whole.find_first_of("#0");
    for (std::size_t at = pattern.Whole.size(); at-- > 0;) {
        const char character = pattern.Whole[at];
        if (character == ',') {
            continue;
        }
        if (!IsPlaceholder(character)) {
            reversed += character;
            continue;
        }
        if (place < digits || place < pattern.WholeZeros) {
            put(DigitAt(decimal, place));
        }
        ++place;
        if (at == first) {
            for (; place < digits; ++place) {
                put(DigitAt(decimal, place));
            }
        }
    }
    return {reversed.rbegin(), reversed.rend()};
}

std::string FractionPart(const Decimal& decimal, const Pattern& pattern) {
    std::string result;
    int place = -1;
    std::size_t needed = 0;
    for (const char character : pattern.Fraction) {
        if (!IsPlaceholder(character)) {
            result += character;
            needed = result.size();
            continue;
        }
        const char digit = DigitAt(decimal, place--);
        result += digit;
        if (character == '0' || digit != '0') {
            needed = result.size();
        }
    }
    result.resize(needed);
    return result;
}

std::string Show(Decimal decimal, std::string_view patternText) {
    const Pattern pattern = Analyse(patternText);
    decimal = RoundedTo(std::move(decimal), pattern.Places);
    std::string result = decimal.Negative ? "-" : "";
    result += WholePart(decimal, pattern);
    if (pattern.HasPoint) {
        result += '.';
        result += FractionPart(decimal, pattern);
    }
    return result;
}

template <typename Number> std::string Plain(Number value, int digits) {
    if (value == 0 || !std::isfinite(value)) {
        return "0";
    }
    Decimal decimal = Shortest(value);
    decimal = RoundedTo(decimal, digits - decimal.Exponent);
    while (decimal.Digits.size() > 1 && decimal.Digits.back() == '0') {
        decimal.Digits.pop_back();
    }
    std::string result = decimal.Negative ? "-" : "";
    if (decimal.Exponent > digits || decimal.Exponent < -3) {
        result += decimal.Digits.front();
        if (decimal.Digits.size() > 1) {
            result += '.';
            result += decimal.Digits.substr(1);
        }
        const int exponent = decimal.Exponent - 1;
        result += exponent < 0 ? "E-" : "E+";
        const std::string power = std::to_string(std::abs(exponent));
        result += power.size() < 2 ? "0" + power : power;
        return result;
    }
    if (decimal.Exponent <= 0) {
        return result + "0." + std::string(static_cast<std::size_t>(-decimal.Exponent), '0') + decimal.Digits;
    }
    const auto whole = static_cast<std::size_t>(decimal.Exponent);
    if (decimal.Digits.size() <= whole) {
        return result + decimal.Digits + std::string(whole - decimal.Digits.size(), '0');
    }
    return result + decimal.Digits.substr(0, whole) + "." + decimal.Digits.substr(whole);
}

} // namespace

namespace numbers {

std::optional<double> ToDouble(std::string_view text, std::string_view currency) {
    if (const std::optional<double> value = PlainDecimal(text)) {
        return value;
    }
    return Recogniser(text, currency).Value();
}

std::optional<float> ToSingle(std::string_view text, std::string_view currency) {
    const std::optional<double> value = ToDouble(text, currency);
    return value ? std::optional<float>(static_cast<float>(*value)) : std::nullopt;
}

bool IsNumeric(std::string_view text, std::string_view currency) {
    return ToDouble(text, currency).has_value();
}

bool IsNoNumber(std::string_view text, std::string_view currency) {
    return text.find_first_not_of(' ') != std::string_view::npos && !IsNumeric(text, currency);
}

double Val(std::string_view text) {
    std::string plain;
    for (const char character : text) {
        if (character == ' ' || character == '\t') {
            continue;
        }
        const bool sign = (character == '-' || character == '+') && plain.empty();
        if (!IsDigit(character) && !sign && character != '.') {
            break;
        }
        plain += character;
    }
    if (!plain.empty() && plain.front() == '+') {
        plain.erase(0, 1);
    }
    double value = 0;
    const auto result = std::from_chars(plain.data(), plain.data() + plain.size(), value);
    return result.ec == std::errc() ? value : 0;
}

float ValSingle(std::string_view text) {
    const double value = Val(text);
    return std::fabs(value) <= static_cast<double>(std::numeric_limits<float>::max())
               ? static_cast<float>(value)
               : 0;
}

std::string NoNumberMessage(std::string_view typed) {
    return text::Lines({std::string(typed) + " is not a number and was not taken.",
                        "Please type a point before decimals, as in 1.5."});
}

std::string Format(double value, std::string_view pattern) {
    return Show(Shortest(value), pattern);
}

std::string FormatSingle(float value, std::string_view pattern) {
    return Show(Shortest(value), pattern);
}

std::string PlainNumber(float value) {
    return Plain(value, 7);
}

std::string PlainNumber(double value) {
    return Plain(value, 15);
}

} // namespace numbers
