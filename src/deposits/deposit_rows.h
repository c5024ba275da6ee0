#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The rows of a deposit list, "Jan 21, 2008", two tabs, "$ 1,500.00", and what they add up to.
namespace modDeposits {

/// Money in hundredths, exact.
using Hundredths = std::int64_t;

/// A number as people write money: a sign or brackets, digits with commas in groups of three or none, a
/// point. More than two decimals round half away from zero. Nothing for anything else, and above twelve
/// digits.
[[nodiscard]] std::optional<Hundredths> ReadFigure(std::string_view text);

/// The date of a row: all before its first tab.
[[nodiscard]] std::string_view DateOf(std::string_view row);
/// The amount's text: all behind the last blank or tab.
[[nodiscard]] std::string_view AmountTextOf(std::string_view row);
/// The amount of a row, whatever currency sign stands before its first digit or point. Nothing when it cannot
/// be read, nor when the row is a date and no more.
[[nodiscard]] std::optional<Hundredths> AmountOf(std::string_view row);

/// "##,###,##0.00" of a figure as it was typed; empty when it is no figure.
[[nodiscard]] std::string AmountText(std::string_view typed);
/// False when a figure has more decimals than an amount is kept with.
[[nodiscard]] bool IsWholeHundredths(std::string_view typed);
[[nodiscard]] std::string Shown(Hundredths amount);

[[nodiscard]] std::string MakeRow(std::string_view date, std::string_view currency, std::string_view amount);

struct Sum {
    Hundredths Total = 0;
    std::vector<float> Amounts; ///< one a row, 0 for one that cannot be read
    int Unreadable = 0;
};
[[nodiscard]] Sum AddUp(const std::vector<std::string>& rows);

/// Turned into a single once.
[[nodiscard]] float ToSingle(Hundredths amount);
/// The shortest decimal text that gives the single back, without grouping and exponent.
[[nodiscard]] std::string PlainTotal(float total);

/// The file: the client's name, then the rows; lines end in CR LF, the last in nothing.
struct DepositList {
    std::string Name;
    std::vector<std::string> Rows;
    bool Empty = true; ///< there was not even a first line
};
[[nodiscard]] DepositList ParseFile(std::string_view bytes);
[[nodiscard]] std::string MakeFile(std::string_view name, const std::vector<std::string>& rows);

} // namespace modDeposits
