#pragma once

#include <optional>
#include <string>
#include <string_view>

/// The calculator's equation line: one operation between two numbers.
namespace modCalculator {

/// Whether a text ends as a percentage would: "10%=".
[[nodiscard]] bool IsPercentage(std::string_view equation);
/// Whether a text begins with a digit, or a full stop and a digit, and has a further digit right before the
/// "=" at its end.
[[nodiscard]] bool IsEquation(std::string_view equation);

struct Parts {
    std::string_view Left;
    char Operator = 0;
    std::string_view Right;
};
/// Splits a text without its "=" at the first "*", else the first "/", else "+", else "-".
[[nodiscard]] std::optional<Parts> Split(std::string_view sum);

/// An optional minus, digits, at most one point; nothing else.
[[nodiscard]] std::optional<double> Operand(std::string_view text);
/// Nothing when an operand is none, for a division by zero, and for a result too large for a number.
[[nodiscard]] std::optional<double> Evaluate(const Parts& parts);

[[nodiscard]] bool IsOperator(char character);

/// A line from outside, as it can stand among typed ones: without blanks, an x as the sign of multiplication,
/// numbers without the commas between their thousands. Everything else stays, to be refused with the line.
[[nodiscard]] std::string PlainLine(std::string_view pasted);

} // namespace modCalculator
