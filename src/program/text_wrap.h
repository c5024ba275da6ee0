#pragma once

#include "platform/text_measure.h"

#include <array>
#include <string_view>
#include <vector>

/// How a text breaks into lines of a given width, on screen and on paper alike.
namespace modWrap {

/// The widths of the characters in one font, twips.
class Advances {
public:
    Advances() = default;
    Advances(const TextMeasure& measure, const TextFont& font);
    [[nodiscard]] double Of(char character) const { return advance_[static_cast<unsigned char>(character)]; }

private:
    std::array<double, 256> advance_{};
};

/// A line's place within its text.
struct Piece {
    std::size_t Start = 0;
    std::size_t Length = 0;
    bool operator==(const Piece&) const = default;
};

/// Breaks a text without line ends. A line fits when its width without the blanks at its end is at most
/// `width`; it ends behind the last blanks that fit, and they stay at its end. A longer word is cut where it
/// no longer fits. An empty text is one empty line.
[[nodiscard]] std::vector<Piece> WrapParagraph(std::string_view text, const Advances& advances, float width);

} // namespace modWrap
