#include "editing/final_page.h"

#include "editing/area_colours.h"
#include "editing/area_facts.h"
#include "editing/navigation.h"
#include "editing/number_keys.h"
#include "editing/status_line.h"
#include "money/totals.h"
#include "program/program.h"

namespace modFinalPage {

namespace {

constexpr PageId kPage = PageId::frmP6;
constexpr int kDepositArea = 4;

} // namespace

void txt_Change(Program& program, int index) {
    modTotals::FinalPageChange(program, index);
    if (!program.guards.HandlersSilent()) {
        modAreaColours::ColourArea(program, kPage, modText::Area(program, kPage, index));
    }
}

Taken txt_KeyDown(Program& program, int index, int keyCode, int shift) {
    if (modNumberKeys::IsPaste(keyCode, shift)) {
        modNumberKeys::PasteNumber(program, kPage, index);
        return Taken::Yes;
    }
    if (keyCode == keys::kTab && shift == keys::kShiftState) {
        modNavigate::MoveBack(program, modText::Field(kPage, index));
        return Taken::Yes;
    }
    return Taken::No;
}

void txt_KeyPress(Program& program, int index, int& keyAscii) {
    const bool locked = program.editing.BlockMode || modText::Area(program, kPage, index).Locked;
    if (locked || !modNumberKeys::Passes(keyAscii)) {
        keyAscii = 0;
        return;
    }
    if (keyAscii == keys::kEnter || keyAscii == keys::kTab) {
        keyAscii = 0;
        if (index == kDepositArea) {
            modTotals::RewriteDeposit(program);
            modTotals::UpdateRunningTotals(program);
        }
    }
}

void txt_KeyUp(Program& program, int index) {
    program.editing.CursorPos = modText::Area(program, kPage, index).SelStart;
    modStatus::ShowCursor(program);
}

} // namespace modFinalPage
