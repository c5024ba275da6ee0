#include "editing/leaving.h"

#include "base/numbers.h"
#include "editing/area_colours.h"
#include "editing/area_facts.h"
#include "editing/date_check.h"
#include "editing/status_line.h"
#include "editing/typing.h"
#include "money/totals.h"
#include "pages/fields.h"
#include "pages/page_geometry.h"
#include "pages/row_fields.h"
#include "program/program.h"

#include <string>

namespace modText {

namespace {

void LeaveAmount(Program& program, PageId page, int index) {
    const std::string value = Area(program, page, index).Text;
    if (!EmptyOrNumeric(program, value)) {
        return;
    }
    static_cast<void>(modTotals::StoreAmount(program, page, index));
    if (const auto number = numbers::ToDouble(value, program.settings.CurrencySymbol)) {
        modFields::SetText(program, Field(page, index), numbers::Format(*number, "###,##0.00"));
    }
    modTotals::CalculateMyTotals(program, page);
    modTotals::UpdateRunningTotals(program);
}

} // namespace

void txt_GotFocus(Program& program, PageId page, int index) {
    EditingState& editing = program.editing;
    if (editing.MoveInProgress) {
        return;
    }
    modPages::EnsureRowFields(program, page);
    TextArea& area = Area(program, page, index);
    program.main.ActivePage = page;
    program.main.CurrentPage = IndexOf(page);
    editing.CurrentArea = index;
    if (!IsFinalPage(page)) {
        editing.CurrentLimit = geometry::LimitText(area.Tag);
        editing.CurrentWidth = area.Width;
        modAreaColours::ColourArea(program, page, area);
    }
    if (editing.BlockMode && program.hooks.UpdateTextMenu) {
        program.hooks.UpdateTextMenu(program);
    }
    modStatus::ShowAreaNumber(program, page, index);
}

void txt_LostFocus(Program& program, PageId page, int index) {
    EditingState& editing = program.editing;
    TextArea& area = Area(program, page, index);
    editing.LastArea = index;
    if (IsFinalPage(page)) {
        modTotals::FinalPageLostFocus(program, index);
        return;
    }
    if (area.BackColor != colors::kBlockSelected || !editing.BlockMode) {
        area.BackColor = colors::kResting;
    }
    if (editing.BlockMode) {
        return;
    }
    // A completion that was neither taken nor overtyped stands on the screen; what stands there is stored.
    if (Completing(program, page)) {
        program.editing.ACActive[page] = false;
        txt_Change(program, page, index);
        Area(program, page, index).BackColor = colors::kResting;
    }
    if (IsAmountLimit(geometry::LimitText(area.Tag))) {
        LeaveAmount(program, page, index);
    }
    if (page == PageId::frmP1) {
        CheckDate(program, index);
    }
}

} // namespace modText
