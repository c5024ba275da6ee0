#pragma once

#include "base/colors.h"

#include <optional>
#include <string>
#include <string_view>

struct PictureSize {
    float Width = 0;
    float Height = 0;
    bool operator==(const PictureSize&) const = default;
};

/// A picture as the pages hold it: the exempt mark is the program's own drawing, a logo is a file.
struct PictureRef {
    enum class Source { None, NoTaxMark, File };
    Source From = Source::None;
    std::string Path; ///< for File
    bool operator==(const PictureRef&) const = default;
};

/// What a page is drawn on: a printer, the page itself, or a recorder. All lengths are twips, from the
/// paper's (or the page's) upper left corner, less the scale origin: a ScaleLeft of 360 makes x = 360 the
/// left edge. Font and colour settings apply to what is printed after them.
class DrawingSurface {
public:
    virtual ~DrawingSurface() = default;

    float ScaleLeft = 0;
    float ScaleTop = 0;
    float ScaleWidth = 12240;
    float ScaleHeight = 15840;
    float CurrentX = 0;
    float CurrentY = 0;
    std::string Font = "Times New Roman";
    float FontSize = 10;
    bool FontBold = false;
    bool FontItalic = false;
    bool FontUnderline = false;
    Color ForeColor = colors::kBlack;

    /// Clears the drawn layer; a printer ignores it.
    virtual void Cls() = 0;
    [[nodiscard]] virtual float TextWidth(std::string_view text) const = 0;
    [[nodiscard]] virtual float TextHeight() const = 0;
    /// Draws at CurrentX, CurrentY and moves to x = 0 of the next line.
    virtual void Print(std::string_view text) = 0;
    virtual void Line(float x1, float y1, float x2, float y2) = 0;
    /// Without a size the picture keeps its natural one.
    virtual void PaintPicture(const PictureRef& picture, float x, float y,
                              std::optional<PictureSize> size = std::nullopt) = 0;
};
