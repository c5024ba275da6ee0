#include "pages/page_geometry.h"

#include "base/text.h"

#include <array>

namespace {

/// The numbers by which a page's arrays are told apart.
struct Layout {
    std::string_view Name;
    std::string_view Caption;
    int LastText;
    int LastLabel;
    int FirstRow;
    int LastRow;
    int FirstAmount;
    int CurrencyStep; ///< from an amount's index to its sign's label
    int PageNumber;
    int Continued;
    int Title;
};

constexpr std::array<Layout, kPageCount> kLayouts{
    {{"frmP1", "Page 1", 29, 33, 10, 19, 20, 1, 31, 32, 33},
     {"frmP2", "Page 2", 65, 36, 0, 32, 33, -32, 34, 35, 36},
     {"frmP3", "Page 3", 65, 36, 0, 32, 33, -32, 34, 35, 36},
     {"frmP4", "Page 4", 65, 36, 0, 32, 33, -32, 34, 35, 36},
     {"frmP5", "Page 5", 65, 36, 0, 32, 33, -32, 34, 35, 36},
     {"frmP6", "Page 6", 5, 64, 0, -1, 6, 0, 63, -1, 64},
     {"frmP6_1", "Page 6 Copy", 5, 64, 0, -1, 6, 0, 63, -1, 64}}};

constexpr std::array<std::string_view, kPageCount> kPageOfText{
    "Page 1 of ", "Page 2 of ", "Page 3 of ", "Page 4 of ", "Page 5 of ", "Page 6 of ", "Page 7 of "};
constexpr std::array<std::string_view, kEditedPageCount> kPageTitle{"Page 1", "Page 2", "Page 3",
                                                                    "Page 4", "Page 5", "Page 6"};

const Layout& Of(PageId page) {
    return kLayouts[static_cast<std::size_t>(page)];
}

} // namespace

namespace geometry {

int LastText(PageId page) {
    return Of(page).LastText;
}
int LastLabel(PageId page) {
    return Of(page).LastLabel;
}
int FirstRow(PageId page) {
    return Of(page).FirstRow;
}
int LastRow(PageId page) {
    return Of(page).LastRow;
}

bool IsDescription(PageId page, int index) {
    return index >= Of(page).FirstRow && index <= Of(page).LastRow;
}

bool IsAmount(PageId page, int index) {
    return index >= Of(page).FirstAmount && index <= Of(page).LastText;
}

int AmountOf(PageId page, int description) {
    return description + Of(page).FirstAmount - Of(page).FirstRow;
}

int DescriptionOf(PageId page, int amount) {
    return amount - Of(page).FirstAmount + Of(page).FirstRow;
}

int CurrencyLabelIndex(PageId page, int amount) {
    return amount + Of(page).CurrencyStep;
}

int PageNumberLabel(PageId page) {
    return Of(page).PageNumber;
}
int TitleLabel(PageId page) {
    return Of(page).Title;
}
int ContinuedLabel(PageId page) {
    return Of(page).Continued;
}
std::string_view PageName(PageId page) {
    return Of(page).Name;
}
std::string_view PageCaption(PageId page) {
    return Of(page).Caption;
}
std::string_view PageOfText(int index) {
    return kPageOfText[static_cast<std::size_t>(index)];
}
std::string_view PageTitle(int index) {
    return kPageTitle[static_cast<std::size_t>(index)];
}

bool RightAligned(PageId page, int index) {
    if (page == PageId::frmP1) {
        return index == 1 || IsAmount(page, index);
    }
    return IsFinalOrCopy(page) || IsAmount(page, index);
}

std::string_view KindOf(std::string_view tag) {
    return text::Left(tag, 4);
}

std::string_view LimitText(std::string_view tag) {
    return text::Right(tag, 3);
}

int LimitOf(std::string_view tag) {
    int limit = 0;
    for (const char character : LimitText(tag)) {
        if (character < '0' || character > '9') {
            break;
        }
        limit = limit * 10 + (character - '0');
    }
    return limit;
}

} // namespace geometry
