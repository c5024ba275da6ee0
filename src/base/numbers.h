#pragma once

#include <optional>
#include <string>
#include <string_view>

/// Numbers as text under the rules of en-US, whatever the machine's locale.
namespace numbers {

/// Blanks around, one sign before or after, digits with commas between groups of
/// three before the point, a point, an exponent, the
/// currency sign before or after, brackets for a negative. At least one digit. A value that a single cannot
/// hold is no number.
[[nodiscard]] bool IsNumeric(std::string_view text, std::string_view currency = "$");
/// Neither blank nor a number: what a person has to mend.
[[nodiscard]] bool IsNoNumber(std::string_view text, std::string_view currency = "$");
/// The value, when the text is numeric.
[[nodiscard]] std::optional<double> ToDouble(std::string_view text, std::string_view currency = "$");
[[nodiscard]] std::optional<float> ToSingle(std::string_view text, std::string_view currency = "$");

/// The leading number of a text, 0 when it has none. Blanks are passed over; commas end it.
[[nodiscard]] double Val(std::string_view text);
/// The same as a single; 0 for a number that a single cannot hold.
[[nodiscard]] float ValSingle(std::string_view text);

/// What a person is told of a text in a number box that is no number.
[[nodiscard]] std::string NoNumberMessage(std::string_view typed);

/// A number under a pattern of #, 0, comma, point and literal characters. Rounds half away from zero on the
/// shortest decimal text that gives the number back. A value that shows as zero carries no minus sign.
[[nodiscard]] std::string Format(double value, std::string_view pattern);
[[nodiscard]] std::string FormatSingle(float value, std::string_view pattern);

/// Plain text of a number: up to seven digits of a single, fifteen of a double, no trailing zeros; an
/// exponent from 1e7 and 1e15 on and below 1e-4.
[[nodiscard]] std::string PlainNumber(float value);
[[nodiscard]] std::string PlainNumber(double value);

} // namespace numbers
