#include "base/telephone.h"

#include "base/ansi.h"

#include <algorithm>

namespace telephone {

std::optional<std::string> Formatted(std::string_view digits) {
    constexpr std::size_t kLine = 4;
    constexpr std::size_t kLocal = 7;
    constexpr std::size_t kWhole = 10;
    if (digits.empty() || digits.size() > kWhole ||
        !std::all_of(digits.begin(), digits.end(), ansi::IsDigit)) {
        return std::nullopt;
    }
    if (digits.size() <= kLine) {
        return std::string(digits);
    }
    const std::string line(digits.substr(digits.size() - kLine));
    if (digits.size() <= kLocal) {
        return std::string(digits.substr(0, digits.size() - kLine)) + "-" + line;
    }
    const std::size_t area = digits.size() - kLocal;
    return "(" + std::string(digits.substr(0, area)) + ") " +
           std::string(digits.substr(area, kLocal - kLine)) + "-" + line;
}

} // namespace telephone
