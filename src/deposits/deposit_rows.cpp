#include "deposits/deposit_rows.h"

#include "base/dates.h"
#include "base/text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdlib>
#include <limits>

namespace modDeposits {

namespace {

constexpr std::string_view kBlanks = " \t";

bool IsDigit(char character) {
    return character >= '0' && character <= '9';
}

/// The digits before the point, commas taken out; nothing when they stand anywhere but between groups of
/// three.
std::optional<std::string> WholeDigits(std::string_view whole) {
    std::string digits;
    const bool grouped = whole.find(',') != std::string_view::npos;
    std::size_t group = 0;
    bool first = true;
    for (const char character : whole) {
        if (character == ',') {
            if (first ? group < 1 || group > 3 : group != 3) {
                return std::nullopt;
            }
            first = false;
            group = 0;
        } else if (IsDigit(character)) {
            digits += character;
            ++group;
        } else {
            return std::nullopt;
        }
    }
    if (grouped && group != 3) {
        return std::nullopt;
    }
    return digits;
}

/// Digits and at most one point, without a sign.
std::optional<Hundredths> ReadUnsigned(std::string_view text) {
    const std::size_t point = std::min(text.find('.'), text.size());
    const std::optional<std::string> whole = WholeDigits(text.substr(0, point));
    const std::string_view decimals = point < text.size() ? text.substr(point + 1) : std::string_view();
    if (!whole || !std::all_of(decimals.begin(), decimals.end(), IsDigit) ||
        (whole->empty() && decimals.empty())) {
        return std::nullopt;
    }
    const std::size_t zeros = std::min(whole->find_first_not_of('0'), whole->size());
    const std::string_view digits = std::string_view(*whole).substr(zeros);
    constexpr std::size_t kMostDigits = 12;
    if (digits.size() > kMostDigits) {
        return std::nullopt;
    }
    Hundredths value = 0;
    for (const char digit : digits) {
        value = value * 10 + (digit - '0');
    }
    for (std::size_t at = 0; at < 2; ++at) {
        value = value * 10 + (at < decimals.size() ? decimals[at] - '0' : 0);
    }
    return decimals.size() > 2 && decimals[2] >= '5' ? value + 1 : value;
}

Hundredths Added(Hundredths one, Hundredths other) {
    Hundredths sum = 0;
    if (__builtin_add_overflow(one, other, &sum)) {
        return one > 0 ? std::numeric_limits<Hundredths>::max() : std::numeric_limits<Hundredths>::min() + 1;
    }
    return sum;
}

/// Without a currency sign of whatever kind before the first digit or point; a minus sign or bracket there
/// counts.
std::string WithoutCurrency(std::string_view text) {
    std::string kept;
    std::size_t at = 0;
    for (; at < text.size() && !IsDigit(text[at]) && text[at] != '.'; ++at) {
        if (text[at] == '-' || text[at] == '+' || text[at] == '(') {
            kept += text[at];
        }
    }
    return kept + std::string(text.substr(at));
}

} // namespace

std::optional<Hundredths> ReadFigure(std::string_view text) {
    std::string_view rest = text::Trim(text);
    bool negative = false;
    if (rest.starts_with('(') && rest.ends_with(')')) {
        negative = true;
        rest = rest.substr(1, rest.size() - 2);
    } else if (!rest.empty() && (rest.front() == '-' || rest.front() == '+')) {
        negative = rest.front() == '-';
        rest.remove_prefix(1);
    } else if (!rest.empty() && (rest.back() == '-' || rest.back() == '+')) {
        negative = rest.back() == '-';
        rest.remove_suffix(1);
    }
    const std::optional<Hundredths> value = ReadUnsigned(rest);
    return value && negative ? -*value : value;
}

std::string_view DateOf(std::string_view row) {
    return row.substr(0, row.find('\t'));
}

std::string_view AmountTextOf(std::string_view row) {
    const std::size_t last = row.find_last_of(kBlanks);
    return last == std::string_view::npos ? row : row.substr(last + 1);
}

std::optional<Hundredths> AmountOf(std::string_view row) {
    constexpr int kAnyYear = 2000;
    if (row.find('\t') == std::string_view::npos && dates::IsDate(row, kAnyYear)) {
        return std::nullopt; // the year of a date is no amount
    }
    return ReadFigure(WithoutCurrency(AmountTextOf(row)));
}

std::string AmountText(std::string_view typed) {
    const std::optional<Hundredths> figure = ReadFigure(typed);
    return figure ? Shown(*figure) : std::string();
}

bool IsWholeHundredths(std::string_view typed) {
    const std::size_t point = typed.find('.');
    constexpr std::size_t kDecimals = 2;
    if (point == std::string_view::npos || typed.size() - point - 1 <= kDecimals) {
        return true;
    }
    return typed.find_first_of("123456789", point + 1 + kDecimals) == std::string_view::npos;
}

std::string Shown(Hundredths amount) {
    // Below zero the remainders are, too; the smallest value, whose size is none, is never reached.
    const Hundredths size = std::abs(amount);
    std::string digits = std::to_string(size / 100);
    for (std::size_t at = digits.size(); at > 3; at -= 3) {
        digits.insert(at - 3, ",");
    }
    const std::string cents = std::to_string(size % 100);
    return (amount < 0 ? "-" : "") + digits + "." + (cents.size() < 2 ? "0" : "") + cents;
}

std::string MakeRow(std::string_view date, std::string_view currency, std::string_view amount) {
    return std::string(date) + "\t\t" + std::string(currency) + " " + std::string(amount);
}

Sum AddUp(const std::vector<std::string>& rows) {
    Sum sum;
    sum.Amounts.reserve(rows.size());
    for (const std::string& row : rows) {
        const std::optional<Hundredths> amount = AmountOf(row);
        sum.Total = Added(sum.Total, amount.value_or(0));
        sum.Amounts.push_back(ToSingle(amount.value_or(0)));
        sum.Unreadable += amount ? 0 : 1;
    }
    return sum;
}

float ToSingle(Hundredths amount) {
    // By way of the decimal text: an integer and a division would round twice.
    const Hundredths size = std::abs(amount);
    const std::string cents = std::to_string(size % 100);
    const std::string text =
        (amount < 0 ? "-" : "") + std::to_string(size / 100) + "." + (cents.size() < 2 ? "0" : "") + cents;
    float value = 0;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

std::string PlainTotal(float total) {
    if (total == 0) {
        return "0";
    }
    std::array<char, 64> buffer{};
    const auto [end, error] =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), total, std::chars_format::fixed);
    return error == std::errc() ? std::string(buffer.data(), end) : std::string("0");
}

DepositList ParseFile(std::string_view bytes) {
    DepositList list;
    std::vector<std::string> lines = text::SplitLines(bytes);
    if (lines.empty()) {
        return list;
    }
    list.Empty = false;
    list.Name = std::move(lines.front());
    list.Rows.assign(std::make_move_iterator(lines.begin() + 1), std::make_move_iterator(lines.end()));
    return list;
}

std::string MakeFile(std::string_view name, const std::vector<std::string>& rows) {
    std::string bytes(name);
    for (const std::string& row : rows) {
        bytes += text::kCrLf;
        bytes += row;
    }
    if (!rows.empty() && rows.back().empty()) {
        bytes += text::kCrLf; // read again, an empty last row is one only with its own line end
    }
    return bytes;
}

} // namespace modDeposits
