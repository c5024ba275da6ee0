#include "editing/settle_field.h"

#include "editing/columns.h"
#include "editing/status_line.h"
#include "money/amounts.h"
#include "money/totals.h"
#include "pages/fields.h"
#include "pages/page_geometry.h"
#include "program/program.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace modFigures {

namespace {

/// Places in a number are told by the characters that stand left of them; a pattern puts in and takes out
/// commas.
std::ptrdiff_t WithoutCommas(std::string_view value, int place) {
    const auto end = value.begin() + std::min<std::ptrdiff_t>(place, std::ssize(value));
    return std::count_if(value.begin(), end, [](char character) { return character != ','; });
}

int PlaceOf(std::string_view value, std::ptrdiff_t withoutCommas) {
    int place = 0;
    for (; withoutCommas > 0 && place < std::ssize(value); ++place) {
        withoutCommas -= value[static_cast<std::size_t>(place)] != ',' ? 1 : 0;
    }
    return place;
}

/// Keeps the cursor of a field before the same character while its text is rewritten.
class KeptCursor {
public:
    explicit KeptCursor(TextArea& area)
        : area_(area), all_(area.SelLength > 0 && area.SelStart == 0 &&
                            area.SelLength == static_cast<int>(area.Text.size())),
          start_(WithoutCommas(area.Text, area.SelStart)),
          end_(WithoutCommas(area.Text, area.SelStart + area.SelLength)) {}
    ~KeptCursor() {
        const int start = all_ ? 0 : PlaceOf(area_.Text, start_);
        const int end = all_ ? static_cast<int>(area_.Text.size()) : PlaceOf(area_.Text, end_);
        modFields::SetCursor(area_, start, end - start);
    }
    KeptCursor(const KeptCursor&) = delete;
    KeptCursor& operator=(const KeptCursor&) = delete;

private:
    TextArea& area_;
    bool all_;
    std::ptrdiff_t start_;
    std::ptrdiff_t end_;
};

void SettleField(Program& program, const FieldRef& field) {
    if (field.Kind != FieldKind::txt) {
        modColumns::SettleBox(program, field);
    } else if (field.Page == PageId::frmP6) {
        modTotals::FinalPageLostFocus(program);
    } else if (geometry::IsAmount(field.Page, field.Index)) {
        modTotals::LeaveAmount(program, field.Page, field.Index);
    }
}

} // namespace

void SettleFocused(Program& program) {
    const auto focus = program.main.Focus;
    if (focus && modFields::Exists(program, *focus)) {
        TextArea& area = modFields::Area(program, *focus);
        {
            const KeptCursor kept(area);
            SettleField(program, *focus);
        }
        modStatus::ShowCaret(program, area);
    }
}

} // namespace modFigures
