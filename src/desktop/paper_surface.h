#pragma once

#include "platform/drawing_surface.h"
#include "platform/text_measure.h"

#include <QImage>
#include <QPainter>

#include <cstddef>
#include <string>
#include <vector>

/// What was drawn on a page, kept so that it can be drawn again: into a file, on a printer or on the screen.
class PaperRecord {
public:
    struct Text {
        QPointF Corner;
        std::string Words;
        TextFont Font;
        bool Underline = false;
        Color Ink = 0;
    };
    struct Rule {
        QLineF Line;
        Color Ink = 0;
        std::size_t Logos = 0; ///< so many lie below it: a border lies over its picture
    };
    struct Image {
        PictureRef Picture;
        QPointF Corner;
        std::optional<PictureSize> Size;
    };
    std::vector<Text> Texts;
    std::vector<Rule> Rules;
    std::vector<Image> Images;

    [[nodiscard]] bool Empty() const { return Texts.empty() && Rules.empty() && Images.empty(); }
    /// Draws all of it. The painter's unit is a twip.
    void Replay(QPainter& painter) const;
};

/// A surface that keeps what is drawn on it.
class PaperSurface : public DrawingSurface {
public:
    explicit PaperSurface(const TextMeasure& measure) : measure_(measure) {}
    PaperRecord Record;

    void Cls() override {
        Record = {};
        logos_ = 0;
    }
    [[nodiscard]] float TextWidth(std::string_view text) const override;
    [[nodiscard]] float TextHeight() const override;
    void Print(std::string_view text) override;
    void Line(float x1, float y1, float x2, float y2) override;
    void PaintPicture(const PictureRef& picture, float x, float y, std::optional<PictureSize> size) override;

private:
    [[nodiscard]] TextFont Now() const { return {Font, FontSize, FontBold, FontItalic}; }
    [[nodiscard]] QPointF OnPaper(float x, float y) const;
    const TextMeasure& measure_;
    std::size_t logos_ = 0;
};

namespace paper {

/// Lengths are twips.
inline constexpr int kTwipsPerInch = 1440;
inline constexpr double kRuleWidth = 15;

/// The mark of a tax-exempt amount, in the square of a side in the painter's units.
void DrawNoTaxMark(QPainter& painter, QPointF corner, double side);

/// A picture file as it is, kept once it was read, also when the file has gone since. Nothing for one that is
/// no picture, is cut short, or has more than a hundred million points.
[[nodiscard]] QImage LogoPicture(const std::string& path);

/// Draws it into that place; one that is made of lines as sharp as the device can. A file takes its points
/// without loss, but for those of a photograph.
void DrawLogo(QPainter& painter, const std::string& path, const QRectF& place);

} // namespace paper
