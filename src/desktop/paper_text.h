#pragma once

#include "platform/text_measure.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>

#include <array>
#include <map>
#include <string_view>
#include <tuple>

/// Text in twips, the same on screen and on paper. One unit of the painter is one twip wherever it is drawn.
namespace paper {

inline constexpr float kTwipsPerPoint = 20;

/// The face in which a text is set: no hinting, no kerning, no shaping, so that widths are the sums of the
/// characters' own and are the same at every resolution. Its size is in twips.
[[nodiscard]] QFont Face(const TextFont& font);

/// Draws with the upper left corner of the line at a point. The painter's unit is a twip.
void Draw(QPainter& painter, QPointF corner, std::string_view text, const TextFont& font,
          bool underline = false);

/// The width of one character of a line.
[[nodiscard]] double AdvanceOf(const QFontMetricsF& metrics, char byte);

/// From the top of a line to its base line.
[[nodiscard]] double Ascent(const TextFont& font);

} // namespace paper

/// Widths from a table of 256 advances for each font.
class QtTextMeasure : public TextMeasure {
public:
    [[nodiscard]] float Width(std::string_view text, const TextFont& font) const override;
    [[nodiscard]] float Height(const TextFont& font) const override;

    /// The place of a caret in a text, and the character position nearest to a place.
    [[nodiscard]] double XOf(std::string_view text, int position, const TextFont& font) const;
    [[nodiscard]] int PositionAt(std::string_view text, double x, const TextFont& font) const;

private:
    struct Table {
        std::array<float, 256> Advance{};
        float Height = 0;
    };
    struct Less {
        bool operator()(const TextFont& one, const TextFont& other) const {
            return std::tie(one.Name, one.Size, one.Bold, one.Italic) <
                   std::tie(other.Name, other.Size, other.Bold, other.Italic);
        }
    };
    [[nodiscard]] const Table& TableFor(const TextFont& font) const;
    mutable std::map<TextFont, Table, Less> tables_;
    mutable const Table* last_ = nullptr;
    mutable TextFont lastFont_;
};
