#include "editing/area_mouse.h"

#include "editing/area_colours.h"
#include "editing/area_conversion.h"
#include "editing/area_facts.h"
#include "editing/columns.h"
#include "editing/standing_completion.h"
#include "editing/status_line.h"
#include "editing/text_menu.h"
#include "pages/fields.h"
#include "pages/page_geometry.h"
#include "program/program.h"

namespace modText {

void txt_MouseDown(Program& program, PageId page, int index, int button) {
    EditingState& editing = program.editing;
    TextArea& area = Area(program, page, index);
    if (Completing(program, page)) {
        const int start = area.SelStart;
        const int length = area.SelLength;
        SettleCompletion(program, page);
        modFields::SetCursor(area, start, length);
    }
    editing.CursorPos = area.SelStart;
    if (IsFinalPage(page)) {
        return;
    }
    modStatus::ShowTextPosition(program, area);
    constexpr int kRightButton = 2;
    if (button != kRightButton) {
        return;
    }
    if (!editing.BlockMode) {
        for (const PageId each : kLinePages) {
            modAreaColours::ResetMyTextBoxColors(program, each);
        }
    }
    editing.RightClickPending = true;
    editing.RightClickArea = index;
    // The menu takes the keyboard: the area is left as by any other way, and entered again when the menu
    // goes.
    modFields::DropFocus(program);
    modTextMenu::UpdateTextMenu(program);
    program.platform.events.LetEventsRun();
    editing.CurrentArea = index;
}

void TextMenuClosed(Program& program) {
    if (!program.editing.RightClickPending || program.main.Focus) {
        return;
    }
    modFields::GiveFocus(program, Field(program.main.ActivePage, program.editing.RightClickArea));
}

void txt_MouseUp(Program& program, PageId page, int index) {
    program.editing.CursorPos = Area(program, page, index).SelStart;
}

void txt_DblClick(Program& program, PageId page, int index) {
    program.editing.CurrentArea = index;
    if (program.editing.BlockMode) {
        return; // selected areas are not edited
    }
    if (geometry::IsDescription(page, index)) {
        modColumns::ToggleColumns(program);
    } else if (page == PageId::frmP1) {
        ConvertOnDoubleClick(program, index);
    }
}

} // namespace modText
