#include "pages/spoken_names.h"

#include "base/text.h"
#include "pages/page_geometry.h"
#include "program/program.h"

#include <array>
#include <string_view>

namespace modPages {

namespace {

/// A field that is called by the label beside it, and its name where that label was emptied.
struct Captioned {
    int Field;
    int Label;
    std::string_view Otherwise;
};

constexpr std::array kClientFields{Captioned{0, 9, "Event Date"},       Captioned{1, 10, "Event Time"},
                                   Captioned{2, 12, "Client's Name"},   Captioned{3, 13, "Street Address"},
                                   Captioned{4, 14, "City, State Zip"}, Captioned{5, 15, "Home Phone #"},
                                   Captioned{6, 16, "Work Phone #"},    Captioned{7, 17, "Cell Phone #"},
                                   Captioned{8, 19, "Location"},        Captioned{9, 20, "Address"}};
constexpr std::array kFinalFields{Captioned{0, 1, "Sub-Total"},        Captioned{1, 2, "Taxable Amount"},
                                  Captioned{2, 3, "Sales Tax"},        Captioned{3, 7, "Total"},
                                  Captioned{4, 8, "Deposit Received"}, Captioned{5, 9, "Balance Due"}};

template <std::size_t Size>
std::string Caption(const Page& page, const std::array<Captioned, Size>& fields, int index) {
    for (const Captioned& field : fields) {
        if (field.Field != index) {
            continue;
        }
        const auto label = static_cast<std::size_t>(field.Label);
        std::string name(label < page.lbl.size() ? text::Trim(page.lbl[label].Caption) : std::string_view());
        while (!name.empty() && name.back() == ':') {
            name.pop_back();
        }
        return name.empty() ? std::string(field.Otherwise) : name;
    }
    return {};
}

std::string InLine(PageId page, int row, std::string_view column) {
    return "Line " + std::to_string(row - geometry::FirstRow(page) + 1) + ", " + std::string(column);
}

} // namespace

std::string SpokenName(const Program& program, const FieldRef& field) {
    if (!IsLinePage(field.Page)) {
        return Caption(program.pages[field.Page], kFinalFields, field.Index);
    }
    if (field.Kind == FieldKind::txtQty) {
        return InLine(field.Page, field.Index, "quantity");
    }
    if (field.Kind == FieldKind::txtAmt) {
        return InLine(field.Page, field.Index, "unit price");
    }
    if (geometry::IsDescription(field.Page, field.Index)) {
        return InLine(field.Page, field.Index, "description");
    }
    if (geometry::IsAmount(field.Page, field.Index)) {
        return InLine(field.Page, geometry::DescriptionOf(field.Page, field.Index), "amount");
    }
    return Caption(program.pages[field.Page], kClientFields, field.Index);
}

} // namespace modPages
