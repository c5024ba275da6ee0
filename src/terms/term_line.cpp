#include "terms/term_line.h"

#include "base/numbers.h"
#include "base/text.h"
#include "program/program.h"

#include <algorithm>

namespace modTerms {

Term SplitTerm(std::string_view line) {
    const std::size_t open = line.find('[');
    if (open == std::string_view::npos) {
        return {line, {}};
    }
    const std::size_t close = line.find(']', open);
    return {line.substr(0, open),
            close == std::string_view::npos ? std::string_view() : line.substr(open + 1, close - open - 1)};
}

std::optional<std::string> NumericAmount(const Program& program, std::string_view amount) {
    const std::string_view trimmed = text::Trim(amount);
    if (trimmed.empty() || !numbers::IsNumeric(trimmed, program.settings.CurrencySymbol)) {
        return std::nullopt;
    }
    return std::string(trimmed);
}

std::string PlainText(std::string_view term) {
    constexpr unsigned char kFirstPrinted = 32;
    std::string plain(term.substr(0, kMostPlaced));
    std::replace_if(
        plain.begin(), plain.end(),
        [](char character) { return static_cast<unsigned char>(character) < kFirstPrinted; }, ' ');
    return plain;
}

} // namespace modTerms
