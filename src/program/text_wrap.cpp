#include "program/text_wrap.h"

#include <algorithm>
#include <string>

namespace modWrap {

Advances::Advances(const TextMeasure& measure, const TextFont& font) {
    for (int byte = 0; byte < 256; ++byte) {
        const std::string one(1, static_cast<char>(byte));
        advance_[static_cast<std::size_t>(byte)] = static_cast<double>(measure.Width(one, font));
    }
}

std::vector<Piece> WrapParagraph(std::string_view text, const Advances& advances, float width) {
    std::vector<Piece> lines;
    std::size_t start = 0;
    do {
        double used = 0;
        std::size_t brk = start; // behind the last blanks after which the line may end
        std::size_t at = start;
        for (; at < text.size(); ++at) {
            used += advances.Of(text[at]);
            if (text[at] == ' ') {
                continue; // blanks hang over the edge
            }
            if (at > start && text[at - 1] == ' ') {
                brk = at;
            }
            // The sum as a single, as the measure gives it.
            if (static_cast<float>(used) > width) {
                break;
            }
        }
        std::size_t end = at;
        if (at < text.size()) {
            end = brk > start ? brk : std::max(at, start + 1);
        }
        lines.push_back({start, end - start});
        start = end;
    } while (start < text.size());
    return lines;
}

} // namespace modWrap
