#include "editing/leaving.h"

#include "editing/area_colours.h"
#include "editing/area_facts.h"
#include "editing/date_check.h"
#include "editing/status_line.h"
#include "editing/text_menu.h"
#include "editing/typing.h"
#include "money/amounts.h"
#include "money/totals.h"
#include "pages/page_geometry.h"
#include "pages/row_fields.h"
#include "program/program.h"

namespace modText {

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
    editing.EmptiedAmount.reset();
    if (!IsFinalPage(page)) {
        // No word is under way in an area that has just been entered.
        editing.Words[page].InWord = false;
        editing.ACActive[page] = false;
        editing.CurrentLimit = geometry::LimitText(area.Tag);
        editing.CurrentWidth = area.Width;
        modAreaColours::ColourArea(program, page, area);
    }
    if (editing.BlockMode) {
        modTextMenu::UpdateTextMenu(program);
    }
    modStatus::ShowAreaNumber(program, page, index);
}

void txt_LostFocus(Program& program, PageId page, int index) {
    EditingState& editing = program.editing;
    TextArea& area = Area(program, page, index);
    editing.LastArea = index;
    if (IsFinalPage(page)) {
        modTotals::FinalPageLostFocus(program);
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
        editing.CursorPos = static_cast<int>(area.Text.size()); // it is taken whole and flows nowhere
        txt_Change(program, page, index);
        Area(program, page, index).BackColor = colors::kResting;
    }
    if (IsAmountLimit(geometry::LimitOf(area.Tag))) {
        modTotals::LeaveAmount(program, page, index);
        if (modTotals::IsNoNumber(program, area)) {
            area.BackColor = colors::kOverLimit; // what counts as nothing is seen wherever the person is
        }
    }
    if (page == PageId::frmP1) {
        CheckDate(program, index);
    }
}

} // namespace modText
