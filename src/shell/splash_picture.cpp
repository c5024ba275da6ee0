#include "shell/splash_picture.h"

#include "platform/text_measure.h"

#include <algorithm>

namespace splash {

namespace {

constexpr float kMargin = 300;
constexpr float kShadowOffset = 30;
constexpr Color kShadow = 0x200A08;
constexpr float kTitleSize = 25;
constexpr float kLineSize = 13;
constexpr float kTitleTop = 2080;
constexpr float kLineTop = 2730;
constexpr std::string_view kCornerWord = "HRWD";
constexpr float kCornerSize = 15;

enum class Weight { Plain, Strong };

TextFont FontOf(const SplashPicture& picture, float size, Weight weight) {
    return {picture.FontName, size, weight == Weight::Strong, false};
}

void PrintShadowed(SplashPicture& picture, const TextMeasure& measure, std::string_view text, float y,
                   float size, Weight weight) {
    const float x = (picture.Width - measure.Width(text, FontOf(picture, size, weight))) / 2;
    const bool bold = weight == Weight::Strong;
    picture.Texts.push_back({std::string(text), x + kShadowOffset, y + kShadowOffset, size, bold, kShadow});
    picture.Texts.push_back({std::string(text), x, y, size, bold, colors::kWhite});
}

/// A colour on the way from one to the other, each part by itself.
Color Between(Color from, Color to, float way) {
    Color mixed = 0;
    constexpr Color kPart = 0xFF;
    for (const unsigned shift : {0U, 8U, 16U}) {
        const auto one = static_cast<float>((from >> shift) & kPart);
        const auto other = static_cast<float>((to >> shift) & kPart);
        mixed |= static_cast<Color>(one + (other - one) * way) << shift;
    }
    return mixed;
}

} // namespace

void PaintBackground(SplashPicture& picture, const TextMeasure& measure) {
    picture.Texts.clear();
    PrintShadowed(picture, measure, "HARROWDENE WORKS", kTitleTop, kTitleSize, Weight::Strong);
    PrintShadowed(picture, measure, "Tools for Trade and Craft", kLineTop, kLineSize, Weight::Plain);
}

void PrintCentred(SplashPicture& picture, const TextMeasure& measure, std::string_view text, float y) {
    constexpr float kSize = 10;
    const float x = (picture.Width - measure.Width(text, FontOf(picture, kSize, Weight::Plain))) / 2;
    picture.Texts.push_back({std::string(text), x, y, kSize, false, colors::kWhite});
}

void PrintCorners(SplashPicture& picture, const TextMeasure& measure, float way) {
    const TextFont font = FontOf(picture, kCornerSize, Weight::Strong);
    const float width = measure.Width(kCornerWord, font);
    const float height = measure.Height(font);
    const float gone = std::clamp(way, 0.0F, 1.0F);
    const float left = kMargin;
    const float top = kMargin;
    const float right = picture.Width - kMargin - width;
    const float bottom = picture.Height - kMargin - height;
    const float centreX = (picture.Width - width) / 2;
    const float centreY = (picture.Height - height) / 2;
    const Color ink = Between(colors::kWhite, picture.BackColor, gone);
    std::vector<SplashText> words;
    for (const float x : {left, right}) {
        for (const float y : {top, bottom}) {
            words.push_back({std::string(kCornerWord), x + (centreX - x) * gone, y + (centreY - y) * gone,
                             kCornerSize, true, ink});
        }
    }
    picture.Texts.insert(picture.Texts.begin(), words.begin(), words.end());
}

} // namespace splash
