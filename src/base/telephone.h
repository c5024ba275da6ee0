#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace telephone {

/// A text of one to ten digits under the pattern "(###) ###-####", filled from the right with the digits as
/// they stand, leading zeros included. Up to seven digits have no area code and no brackets, up to four no
/// dash. Nothing for any other text.
[[nodiscard]] std::optional<std::string> Formatted(std::string_view digits);

} // namespace telephone
