#pragma once

#include "base/colors.h"
#include "platform/drawing_surface.h"
#include "platform/text_measure.h"

#include <array>
#include <compare>
#include <string>
#include <vector>

/// The seven page objects, by index. The last is the client's copy of the final page, a mirror that is never
/// edited.
enum class PageId : int { frmP1, frmP2, frmP3, frmP4, frmP5, frmP6, frmP6_1 };

inline constexpr int kPageCount = 7;
inline constexpr int kEditedPageCount = 6;
inline constexpr int kLinePageCount = 5;

inline constexpr std::array<PageId, kPageCount> kAllPages{PageId::frmP1,  PageId::frmP2, PageId::frmP3,
                                                          PageId::frmP4,  PageId::frmP5, PageId::frmP6,
                                                          PageId::frmP6_1};
inline constexpr std::array<PageId, kEditedPageCount> kEditedPages{
    PageId::frmP1, PageId::frmP2, PageId::frmP3, PageId::frmP4, PageId::frmP5, PageId::frmP6};
inline constexpr std::array<PageId, kLinePageCount> kLinePages{PageId::frmP1, PageId::frmP2, PageId::frmP3,
                                                               PageId::frmP4, PageId::frmP5};

[[nodiscard]] constexpr int IndexOf(PageId page) {
    return static_cast<int>(page);
}
[[nodiscard]] constexpr PageId PageAt(int index) {
    return static_cast<PageId>(index);
}
[[nodiscard]] constexpr bool IsLinePage(PageId page) {
    return IndexOf(page) < kLinePageCount;
}

/// The final page with the figures and the contract: ours, which is edited. Nothing flows there.
[[nodiscard]] constexpr bool IsFinalPage(PageId page) {
    return page == PageId::frmP6;
}
/// The final page or the client's copy of it.
[[nodiscard]] constexpr bool IsFinalOrCopy(PageId page) {
    return !IsLinePage(page);
}

/// Control arrays of a page, in the order in which a page's controls are walked for printing.
enum class FieldKind : int { txt, lbl, imgNoTax, txtQty, txtAmt, lblAt, lblEach, lne, pic };

/// A field's address: page, array, index.
struct FieldRef {
    PageId Page = PageId::frmP1;
    FieldKind Kind = FieldKind::txt;
    int Index = 0;
    auto operator<=>(const FieldRef&) const = default;
};

/// The Tag value by which a field stays invisible and out of print.
inline constexpr std::string_view kHide = "Hide";

/// A single-line text field of a page: `txt`, `txtQty` or `txtAmt`. Lengths in twips.
struct TextArea {
    std::string Text;
    std::string Tag;
    std::string ToolTipText;
    float Left = 0;
    float Top = 0;
    float Width = 0;
    float Height = 255;
    Color BackColor = colors::kResting;
    Color ForeColor = colors::kBlack;
    std::string FontName = "Times New Roman";
    float FontSize = 10;
    bool FontBold = false;
    bool FontItalic = false;
    int SelStart = 0;
    int SelLength = 0;
    bool Visible = false;
    bool Enabled = true;
    bool Locked = false;
    bool operator==(const TextArea&) const = default;
};

/// A label sizes itself to its caption.
struct PageLabel {
    std::string Caption;
    std::string Tag;
    std::string ToolTipText;
    float Left = 0;
    float Top = 0;
    std::string FontName = "Times New Roman";
    float FontSize = 9.75F;
    bool FontBold = false;
    bool FontItalic = false;
    bool FontUnderline = false;
    Color ForeColor = colors::kBlack;
    Color BackColor = colors::kButtonFace;
    int BackStyle = 0; ///< 0 transparent, 1 opaque
    bool Visible = false;
    bool operator==(const PageLabel&) const = default;
};

/// The tax-exempt mark.
struct PageImage {
    float Left = 0;
    float Top = 0;
    float Width = 225;
    float Height = 225;
    std::string Tag;
    bool Visible = false;
    bool operator==(const PageImage&) const = default;
};

struct PageLine {
    float X1 = 0;
    float Y1 = 0;
    float X2 = 0;
    float Y2 = 0;
    bool Visible = false;
    bool operator==(const PageLine&) const = default;
};

/// A point of the designer's grid.
struct PagePoint {
    float X = 0;
    float Y = 0;
    bool operator==(const PagePoint&) const = default;
};

/// The logo. `Size` is the one on the page: the picture's own, or less for one too large.
struct PagePicture {
    PictureRef Picture;
    float Left = 0;
    float Top = 0;
    PictureSize Size;
    std::string Tag;
    std::string ToolTipText;
    int BorderStyle = 0;
    bool Visible = false;
    bool operator==(const PagePicture&) const = default;
};

/// The rubber band.
struct PageShape {
    float Left = 0;
    float Top = 0;
    float Width = 0;
    float Height = 0;
    bool Visible = false;
    bool operator==(const PageShape&) const = default;
};

/// What LabelBaseState keeps of a label: its look when a page's defaults were last applied.
struct LabelBase {
    float Left = 0;
    float Top = 0;
    std::string Caption;
    std::string FontName;
    float FontSize = 0;
    bool FontBold = false;
    Color ForeColor = 0;
    bool FontItalic = false;
    bool FontUnderline = false;
    bool operator==(const LabelBase&) const = default;
};

struct Page {
    PageId Id = PageId::frmP1;
    std::string Name;    ///< "frmP1"
    std::string Tag;     ///< "frmP1.29"
    std::string Caption; ///< "Page 1"

    /// Place of the page in the main window; scrolling moves `Top`.
    float Left = 0;
    float Top = 0;
    float Width = 12240;
    float Height = 15840;
    bool Visible = false;

    /// The page's own font, with which unset text is measured.
    std::string FontName = "Times New Roman";
    float FontSize = 10;
    bool FontBold = false;
    bool FontItalic = false;

    std::vector<TextArea> txt;
    std::vector<PageLabel> lbl;
    std::vector<PageImage> imgNoTax;
    std::vector<TextArea> txtQty;
    std::vector<TextArea> txtAmt;
    std::vector<PageLabel> lblAt;
    std::vector<PageLabel> lblEach;
    std::vector<PageLine> lne;
    PagePicture pic;
    PageShape shpSelect;

    bool HasLogo = false;       ///< frmP1 only
    bool RowFieldsMade = false; ///< the row arrays hold all their elements
    std::vector<LabelBase> LabelBaseState;
    bool DateWarningShown = false;
    int InkVersion = 0; ///< goes up when a preview that is up has to be drawn anew

    /// Preview: the page shows as flat ink. The fields keep what they are; the front end hides them
    /// meanwhile.
    bool InkShown = false;
    /// The designer's grid, drawn below the fields.
    std::vector<PageLine> CenterLines;
    std::vector<PagePoint> GridPoints;
};

/// Clears what is drawn on a page: preview and grid.
inline void ClearDrawing(Page& page) {
    page.InkShown = false;
    page.CenterLines.clear();
    page.GridPoints.clear();
}

struct PageSet {
    std::array<Page, kPageCount> All;
    [[nodiscard]] Page& operator[](PageId page) { return All[static_cast<std::size_t>(page)]; }
    [[nodiscard]] const Page& operator[](PageId page) const { return All[static_cast<std::size_t>(page)]; }
};
