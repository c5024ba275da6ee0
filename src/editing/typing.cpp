#include "editing/typing.h"

#include "base/guard.h"
#include "base/numbers.h"
#include "base/text.h"
#include "editing/area_colours.h"
#include "editing/area_facts.h"
#include "editing/backup_counter.h"
#include "editing/columns.h"
#include "editing/navigation.h"
#include "editing/number_keys.h"
#include "editing/push.h"
#include "editing/standing_completion.h"
#include "editing/status_line.h"
#include "money/amounts.h"
#include "money/totals.h"
#include "pages/fields.h"
#include "pages/page_geometry.h"
#include "pages/row_fields.h"
#include "pages/text_width.h"
#include "pages/titles.h"
#include "program/errors.h"
#include "program/program.h"
#include "proposal/file_names.h"

#include <limits>
#include <string>
#include <string_view>

namespace modText {

namespace {

/// The line goes to the store, and what is known of the row's columns to the tables.
void StoreLine(Program& program, PageId page, int index) {
    const auto row = static_cast<std::size_t>(index);
    program.document.CurrentTextBuf[page][row] = modPages::ComposeLine(program, page, index);
    if (!geometry::IsDescription(page, index)) {
        return;
    }
    const bool on = modPages::ColumnsOn(program, page, index);
    TextChangeRecord& baseline = program.format.FormatTextChanges[page][row];
    program.format.PropTextChanges[page][row].QtyBox = on;
    baseline.QtyBox = on;
    baseline.QtyValue = on ? program.pages[page].txtQty[row].Text : std::string();
    baseline.AmtValue = on ? program.pages[page].txtAmt[row].Text : std::string();
}

void TakeEditingState(Program& program, PageId page, int index) {
    const TextArea& area = Area(program, page, index);
    EditingState& editing = program.editing;
    editing.CurrentText = area.Text;
    editing.CurrentKind = geometry::KindOf(area.Tag);
    editing.CurrentLimit = geometry::LimitText(area.Tag);
    const auto row = static_cast<std::size_t>(index);
    TextChangeRecord& props = program.format.PropTextChanges[page][row];
    props.FontBold = area.FontBold;
    program.format.FormatTextChanges[page][row].FontBold = area.FontBold;
    if (!IsAmountLimit(geometry::LimitOf(editing.CurrentLimit))) {
        // The format's own text is taken when a format is saved, not as it is typed.
        props.Text = area.Text;
    }
    if (area.Text.empty()) {
        // A text that a person has taken out leaves the format with the next save of it.
        program.format.FormatTextChanges[page][row].Text.clear();
        program.format.InFile[page][row].Text.clear();
    }
    editing.CurrentWidth = area.Width;
}

/// The client's name makes the proposal's, as long as it has no file.
void TakeClientName(Program& program) {
    modNames::NameAfterClient(program, Area(program, PageId::frmP1, kClientName).Text);
    modTitles::UpdateEventNameLabels(program);
}

void TakeAmount(Program& program, PageId page, int index) {
    modTotals::StoreAmount(program, page, index);
    if (!program.editing.RefireMode) {
        modTotals::NoteEmptied(program, page, index);
    }
    program.totals.TotalsStale = true;
    if (program.editing.RefireMode) {
        modTotals::CalculateMyTotals(program, page);
    }
}

void LinePageChange(Program& program, PageId page, int index) {
    StoreLine(program, page, index);
    TakeEditingState(program, page, index);
    EditingState& editing = program.editing;
    if (page == PageId::frmP1 && index == kClientName && !program.document.FileExists &&
        !editing.RefireMode) {
        TakeClientName(program);
    }
    program.document.HasClient = true;
    if (IsAmountLimit(geometry::LimitOf(editing.CurrentLimit))) {
        TakeAmount(program, page, index);
    }
    if (modPages::MeasureTextWidth(program, page, editing.CurrentText) >= editing.CurrentWidth &&
        editing.CurrentKind == "Push") {
        CheckForPush(program);
        if (editing.PushNeeded) {
            PushTheText(program, page, index);
        }
    }
    if (editing.BlockMode) {
        return;
    }
    // The area's own text and width, but the limit is whatever the innermost change left.
    TextArea& area = Area(program, page, index);
    if (modPages::MeasureTextWidth(program, page, area.Text) >= area.Width ||
        static_cast<int>(area.Text.size()) > geometry::LimitOf(editing.CurrentLimit) ||
        modTotals::IsNoNumber(program, area)) {
        area.BackColor = colors::kOverLimit;
    }
}

bool ChangesSilent(const Program& program, PageId page) {
    return program.guards.HandlersSilent() || program.editing.MoveInProgress ||
           (program.editing.BlockMode && !program.editing.RefireMode) || Completing(program, page);
}

void NoteKey(Program& program, PageId page, int index, int keyCode) {
    const TextArea& area = Area(program, page, index);
    program.editing.CursorPos = area.SelStart;
    modStatus::ShowCursor(program);
    modStatus::ShowTextPosition(program, area);
    program.editing.LastKeyChar = std::string(1, static_cast<char>(keyCode));
}

Taken LinePageKeyDown(Program& program, PageId page, int index, int keyCode, int shift) {
    modBackup::CountTowardsBackup(program, page, index);
    if (keyCode == keys::kF8 && geometry::IsDescription(page, index)) {
        modColumns::ToggleColumns(program);
        return Taken::Yes;
    }
    if (Area(program, page, index).SelLength == 0) {
        SettleCompletion(program, page);
    }
    const bool completing = Completing(program, page);
    if (!completing && keyCode == keys::kTab && shift == keys::kShiftState) {
        modNavigate::MoveBack(program, Field(page, index));
        return Taken::Yes;
    }
    if (!completing && (keyCode == keys::kEnter || keyCode == keys::kTab)) {
        modNavigate::Move(program, page, index, modNavigate::Step::Enter);
        return Taken::Yes;
    }
    if (keyCode == keys::kDown || keyCode == keys::kUp) {
        if (!program.editing.BlockMode) {
            modNavigate::Move(program, page, index,
                              keyCode == keys::kDown ? modNavigate::Step::Down : modNavigate::Step::Up);
        }
        return Taken::Yes;
    }
    NoteKey(program, page, index, keyCode);
    if (modNumberKeys::IsPaste(keyCode, shift) &&
        IsAmountLimit(geometry::LimitOf(Area(program, page, index).Tag))) {
        if (!program.editing.BlockMode) {
            modNumberKeys::PasteNumber(program, page, index);
        }
        return Taken::Yes;
    }
    const bool accepted = completing && program.hooks.CompletionKey &&
                          program.hooks.CompletionKey(program, Field(page, index), keyCode, shift);
    return accepted ? Taken::Yes : Taken::No;
}

constexpr std::string_view kKeydownNames[] = {"Page 1 Keydown", "Page 2 Keydown", "Page 3 Keydown",
                                              "Page 4 Keydown", "Page 5 Keydown"};

} // namespace

void txt_Change(Program& program, PageId page, int index) {
    if (!ChangesSilent(program, page)) {
        LinePageChange(program, page, index);
    }
}

Taken txt_KeyDown(Program& program, PageId page, int index, int keyCode, int shift) {
    Taken taken = Taken::No;
    Guarded(program, kKeydownNames[IndexOf(page)],
            [&] { taken = LinePageKeyDown(program, page, index, keyCode, shift); });
    return taken;
}

void txt_KeyPress(Program& program, PageId page, int index, int& keyAscii) {
    const TextArea& area = Area(program, page, index);
    if (program.editing.BlockMode || area.Locked) {
        keyAscii = 0;
        return;
    }
    const bool figures = IsAmountLimit(geometry::LimitOf(area.Tag));
    if (keyAscii == keys::kEnter || keyAscii == keys::kTab || (figures && !modNumberKeys::Passes(keyAscii))) {
        keyAscii = 0;
    }
}

void txt_KeyUp(Program& program, PageId page, int index, int keyCode, int shift) {
    TextArea& area = Area(program, page, index);
    EditingState& editing = program.editing;
    if (editing.BlockMode) {
        return;
    }
    editing.CursorPos = area.SelStart;
    modStatus::ShowCursor(program);
    editing.CurrentWidth = area.Width;
    modAreaColours::ColourArea(program, page, area);
    modStatus::ShowTextPosition(program, area);
    if (program.hooks.CompleteWord) {
        program.hooks.CompleteWord(program, Field(page, index), keyCode, shift);
    }
}

void RefireTextChanges(Program& program, PageId page) {
    if (!IsLinePage(page)) {
        return;
    }
    EditingState& editing = program.editing;
    const ScopedFlag refiring(editing.RefireMode);
    // Nobody is typing: whatever key came last, a line that is too long goes red and stays.
    const int cursor = editing.CursorPos;
    const OnLeaving putBack([&] { editing.CursorPos = cursor; });
    editing.CursorPos = std::numeric_limits<int>::max();
    editing.LastKeyChar.clear();
    const auto refire = [&](const FieldRef& field) {
        const std::string value = modFields::Area(program, field).Text;
        modFields::SetText(program, field, "Test");
        modFields::SetText(program, field, value);
    };
    for (int index = 0; index <= geometry::LastText(page); ++index) {
        refire(Field(page, index));
    }
    for (const FieldKind kind : {FieldKind::txtQty, FieldKind::txtAmt}) {
        for (int row = geometry::FirstRow(page); row <= geometry::LastRow(page); ++row) {
            refire({page, kind, row});
        }
    }
}

} // namespace modText
