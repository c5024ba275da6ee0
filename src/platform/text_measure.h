#pragma once

#include <string>
#include <string_view>

/// What a text is set in. Names are the program's own ("Times New Roman"); the platform may put a
/// metric-compatible face in their place.
struct TextFont {
    std::string Name = "Times New Roman";
    float Size = 10; ///< points
    bool Bold = false;
    bool Italic = false;
    bool operator==(const TextFont&) const = default;
};

/// The one measure of text for screen and paper, independent of any device's resolution.
class TextMeasure {
public:
    virtual ~TextMeasure() = default;
    /// Width in twips. The sum of the characters' own widths: no kerning, no ligatures.
    [[nodiscard]] virtual float Width(std::string_view text, const TextFont& font) const = 0;
    /// Line height in twips.
    [[nodiscard]] virtual float Height(const TextFont& font) const = 0;
};
