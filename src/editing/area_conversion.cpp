#include "editing/area_conversion.h"

#include "base/dates.h"
#include "base/rows.h"
#include "base/telephone.h"
#include "base/text.h"
#include "pages/fields.h"
#include "program/program.h"

#include <array>
#include <optional>
#include <string>

namespace modText {

namespace {

enum class Conversion { None, LongDate, UpperCase, ProperCase, Telephone };

constexpr std::array kConversions{Conversion::LongDate,   Conversion::UpperCase,  Conversion::ProperCase,
                                  Conversion::ProperCase, Conversion::ProperCase, Conversion::Telephone,
                                  Conversion::Telephone,  Conversion::Telephone,  Conversion::ProperCase,
                                  Conversion::ProperCase};

int CurrentYear(const Program& program) {
    return dates::ToCalendar(program.platform.clock.Now()).Year;
}

std::optional<std::string> Converted(const Program& program, Conversion conversion,
                                     const std::string& value) {
    switch (conversion) {
    case Conversion::LongDate:
        if (const auto serial = dates::Recognise(value, CurrentYear(program))) {
            return dates::FormatDate(*serial, "mmmm dd, yyyy");
        }
        return std::nullopt;
    case Conversion::UpperCase:
        return text::Upper(value);
    case Conversion::ProperCase:
        return text::Proper(value);
    case Conversion::Telephone:
        return telephone::Formatted(value);
    case Conversion::None:
        break;
    }
    return std::nullopt;
}

} // namespace

void ConvertOnDoubleClick(Program& program, int index) {
    if (!HasRow(kConversions, index)) {
        return;
    }
    const FieldRef field{PageId::frmP1, FieldKind::txt, index};
    TextArea& area = modFields::Area(program, field);
    if (area.Locked) {
        return;
    }
    const std::optional<std::string> value =
        Converted(program, kConversions[static_cast<std::size_t>(index)], area.Text);
    if (!value || *value == area.Text) {
        return;
    }
    modFields::SetText(program, field, *value);
    modFields::SetCursor(area, static_cast<int>(area.Text.size()));
}

} // namespace modText
