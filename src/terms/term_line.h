#pragma once

#include <optional>
#include <string>
#include <string_view>

struct Program;

/// One line of a frequent terms list.
namespace modTerms {

/// The text before the first "[", a trailing blank included, and what stands between it and the first "]"
/// behind. Without a "]" there is no amount.
struct Term {
    std::string_view Text;
    std::string_view Amount;
};
[[nodiscard]] Term SplitTerm(std::string_view line);

/// The amount without the blanks around it, when it is a number.
[[nodiscard]] std::optional<std::string> NumericAmount(const Program& program, std::string_view amount);

/// No line of a proposal is longer.
inline constexpr std::size_t kMostPlaced = 4096;

/// A term as a line of a proposal can hold it: control characters become blanks, and what is too long for any
/// line is cut.
[[nodiscard]] std::string PlainText(std::string_view term);

} // namespace modTerms
