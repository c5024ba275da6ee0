#pragma once

#include "base/colors.h"

#include <string>
#include <string_view>
#include <vector>

class TextMeasure;

/// One text on the splash; place in twips from its upper left corner.
struct SplashText {
    std::string Text;
    float X = 0;
    float Y = 0;
    float FontSize = 10;
    bool Bold = false;
    Color ForeColor = colors::kWhite;
    bool operator==(const SplashText&) const = default;
};

/// What is drawn on the splash. Later texts lie over earlier ones.
struct SplashPicture {
    float Width = 7800;
    float Height = 4560;
    std::string FontName = "Arial";
    Color BackColor = colors::kBlack;
    std::vector<SplashText> Texts;
    bool operator==(const SplashPicture&) const = default;
};

namespace splash {

/// Clears the picture and paints the maker's name and line, each over its shadow.
void PaintBackground(SplashPicture& picture, const TextMeasure& measure);

/// Prints a text in white, 10 point, centred at that height.
void PrintCentred(SplashPicture& picture, const TextMeasure& measure, std::string_view text, float y);

/// Prints the four corner words. `way` is how far they have come from the corners (0) to the centre (1); they
/// fade on it and pass below what stands there.
void PrintCorners(SplashPicture& picture, const TextMeasure& measure, float way);

} // namespace splash
