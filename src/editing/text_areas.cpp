#include "editing/text_areas.h"

#include "base/guard.h"
#include "base/numbers.h"
#include "base/text.h"
#include "editing/columns.h"
#include "editing/double_click.h"
#include "editing/navigation.h"
#include "editing/push.h"
#include "editing/selection.h"
#include "money/totals.h"
#include "pages/fields.h"
#include "pages/page_geometry.h"
#include "pages/page_setup.h"
#include "pages/titles.h"
#include "program/errors.h"
#include "program/program.h"
#include "proposal/file_names.h"
#include "proposal/proposal_file.h"

#include <limits>

namespace modText {

namespace {

constexpr int kClientName = 2;
constexpr int kDepositArea = 4;
constexpr std::string_view kAmountLimit = "020";

FieldRef Field(PageId page, int index) {
    return {page, FieldKind::txt, index};
}

TextArea& Area(Program& program, PageId page, int index) {
    return program.pages[page].txt[static_cast<std::size_t>(index)];
}

std::string_view LimitText(const TextArea& area) {
    return text::Right(area.Tag, 3);
}

/// Amounts are told by the limit, whatever the kind.
bool IsAmountLimit(std::string_view limit) {
    return limit == kAmountLimit;
}

bool IsFinal(PageId page) {
    return page == PageId::frmP6;
}

bool EmptyOrNumeric(const Program& program, std::string_view value) {
    return text::Trim(value).empty() || numbers::IsNumeric(value, program.settings.CurrencySymbol);
}

bool Completing(const Program& program, PageId page) {
    return IsLinePage(page) && program.editing.ACActive[static_cast<std::size_t>(IndexOf(page))];
}

/// The line goes to the store, and what is known of the row's columns to the tables.
void StoreLine(Program& program, PageId page, int index) {
    const auto at = static_cast<std::size_t>(IndexOf(page));
    const auto row = static_cast<std::size_t>(index);
    program.document.CurrentTextBuf[at][row] = modFields::ComposeLine(program, page, index);
    if (!geometry::IsDescription(page, index)) {
        return;
    }
    const bool on = modPages::ColumnsOn(program, page, index);
    TextChangeRecord& baseline = program.format.FormatTextChanges[at][row];
    program.format.PropTextChanges[at][row].QtyBox = on;
    baseline.QtyBox = on;
    baseline.QtyValue = on ? program.pages[page].txtQty[row].Text : std::string();
    baseline.AmtValue = on ? program.pages[page].txtAmt[row].Text : std::string();
}

void TakeEditingState(Program& program, PageId page, int index) {
    const TextArea& area = Area(program, page, index);
    EditingState& editing = program.editing;
    editing.CurrentText = area.Text;
    editing.CurrentKind = geometry::KindOf(area.Tag);
    editing.CurrentLimit = LimitText(area);
    const auto at = static_cast<std::size_t>(IndexOf(page));
    const auto row = static_cast<std::size_t>(index);
    TextChangeRecord& props = program.format.PropTextChanges[at][row];
    props.FontBold = area.FontBold;
    program.format.FormatTextChanges[at][row].FontBold = area.FontBold;
    if (!IsAmountLimit(editing.CurrentLimit)) {
        // The format's own text is taken when a format is saved, not as it is typed.
        props.Text = area.Text;
    }
    editing.CurrentWidth = area.Width;
}

/// The client's name makes the proposal's, as long as it has no file.
void TakeClientName(Program& program) {
    const std::string& name = Area(program, PageId::frmP1, kClientName).Text;
    DocumentState& document = program.document;
    document.FileName = name + ".hef";
    document.BaseName = name;
    document.FootnoteFile = name + ".hxt";
    document.DepositFile = name + ".dep";
    document.ClientCaption = "Proposal for " + name;
    if (!name.empty()) {
        document.TextFileName = name + ".txt";
    }
    modMain::UpdateEventNameLabels(program);
}

void TakeAmount(Program& program, PageId page, int index) {
    if (!EmptyOrNumeric(program, Area(program, page, index).Text)) {
        return;
    }
    static_cast<void>(modTotals::StoreAmount(program, page, index));
    program.main.cmdReCalc.BackColor = colors::kOverLimit;
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
    program.main[CommandId::mnuOptCopyToPersonalAddressBook].Enabled = true;
    program.main[CommandId::mnuOptCopyToBusinessAddressBook].Enabled = true;
    if (IsAmountLimit(editing.CurrentLimit)) {
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
        static_cast<double>(area.Text.size()) > numbers::Val(editing.CurrentLimit)) {
        area.BackColor = colors::kOverLimit;
    }
}

bool ChangesSilent(const Program& program, PageId page) {
    return program.guards.HandlersSilent() || program.editing.MoveInProgress ||
           (program.editing.BlockMode && !program.editing.RefireMode) || Completing(program, page);
}

void ColourArea(Program& program, PageId page, TextArea& area) {
    if (area.BackColor == colors::kBlockSelected) {
        return;
    }
    const Color within = IsFinal(page) ? colors::kResting : colors::kFocused;
    area.BackColor = OverLimit(program, page, area) ? colors::kOverLimit : within;
}

void ShowCursor(Program& program) {
    program.main.lblCurPos.Caption = "Cursor Location = " + std::to_string(program.editing.CursorPos);
}

/// Where the printer would stand after the text left of the cursor.
void ShowTextPosition(Program& program, const TextArea& area) {
    program.main.lblTextPos.Visible = !program.run.NoPrinter;
    if (program.run.NoPrinter) {
        return;
    }
    const float position = program.platform.measure.Width(
        text::Left(area.Text, area.SelStart), {area.FontName, area.FontSize, area.FontBold, area.FontItalic});
    program.main.lblTextPos.Caption = "Printer Text Position = " + numbers::FormatSingle(position, "##.##");
}

void CountTowardsBackup(Program& program, PageId page, int index) {
    constexpr int kKeysBetween = 20;
    int& counter = program.editing.KeyCounter;
    ++counter;
    // While the client's name is typed the file's name is not settled; the counter runs on.
    if (counter < kKeysBetween || (page == PageId::frmP1 && index == kClientName)) {
        return;
    }
    counter = 0;
    modFile::BackupThisFile(program);
}

/// A copied cell or line often brings its line end along.
std::string_view WithoutLineEnds(std::string_view value) {
    constexpr std::string_view kAround = " \t\r\n";
    const std::size_t from = value.find_first_not_of(kAround);
    return from == std::string_view::npos ? std::string_view()
                                          : value.substr(from, value.find_last_not_of(kAround) - from + 1);
}

/// A paste into an amount: all of it, when it is a number.
void PasteNumber(Program& program, PageId page, int index) {
    const std::string clipboard = program.platform.clipboard.GetText();
    const std::string_view line = WithoutLineEnds(clipboard);
    TextArea& area = Area(program, page, index);
    if (area.Locked || !numbers::IsNumeric(line, program.settings.CurrencySymbol)) {
        return;
    }
    std::string value = area.Text;
    modFields::SetCursor(area, area.SelStart, area.SelLength);
    const int start = area.SelStart;
    value.replace(static_cast<std::size_t>(start), static_cast<std::size_t>(area.SelLength), line);
    modFields::TypeText(program, Field(page, index), value, start + static_cast<int>(line.size()), 0);
}

void NoteKey(Program& program, PageId page, int index, int keyCode) {
    const TextArea& area = Area(program, page, index);
    program.editing.CursorPos = area.SelStart;
    ShowCursor(program);
    ShowTextPosition(program, area);
    program.editing.LastKeyChar = std::string(1, static_cast<char>(keyCode));
}

bool IsPaste(int keyCode, int shift) {
    return keyCode == keys::kV && shift == keys::kCtrlState;
}

Taken LinePageKeyDown(Program& program, PageId page, int index, int keyCode, int shift) {
    CountTowardsBackup(program, page, index);
    if (keyCode == keys::kF8 && geometry::IsDescription(page, index)) {
        modColumns::ToggleColumns(program);
        return Taken::Yes;
    }
    if (Area(program, page, index).SelLength == 0) {
        modBlocks::SettleCompletion(program, page);
    }
    const bool completing = Completing(program, page);
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
    if (IsPaste(keyCode, shift) && IsAmountLimit(LimitText(Area(program, page, index)))) {
        if (!program.editing.BlockMode) {
            PasteNumber(program, page, index);
        }
        return Taken::Yes;
    }
    const bool accepted = completing && program.hooks.CompletionKey &&
                          program.hooks.CompletionKey(program, Field(page, index), keyCode, shift);
    return accepted ? Taken::Yes : Taken::No;
}

constexpr std::string_view kKeydownNames[] = {"Page 1 Keydown", "Page 2 Keydown", "Page 3 Keydown",
                                              "Page 4 Keydown", "Page 5 Keydown"};

void ShowAreaNumber(Program& program, PageId page, int index) {
    if (program.editing.RightClickPending) {
        program.editing.RightClickPending = false;
        return;
    }
    program.main.lblTextNum.Caption =
        "Page " + std::to_string(IndexOf(page) + 1) + ", Text Area " + std::to_string(index + 1);
}

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

bool OverLimit(const Program& program, PageId page, const TextArea& area) {
    return modPages::MeasureTextWidth(program, page, area.Text) >= area.Width ||
           static_cast<double>(area.Text.size()) > numbers::Val(LimitText(area));
}

void txt_Change(Program& program, PageId page, int index) {
    if (page == PageId::frmP6_1) {
        return;
    }
    if (IsFinal(page)) {
        modTotals::FinalPageChange(program, index);
        if (!program.guards.HandlersSilent()) {
            ColourArea(program, page, Area(program, page, index));
        }
        return;
    }
    if (!ChangesSilent(program, page)) {
        LinePageChange(program, page, index);
    }
}

Taken txt_KeyDown(Program& program, PageId page, int index, int keyCode, int shift) {
    if (IsFinal(page)) {
        if (IsPaste(keyCode, shift)) {
            PasteNumber(program, page, index);
            return Taken::Yes;
        }
        return Taken::No;
    }
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
    if (IsAmountLimit(LimitText(area)) || IsFinal(page)) {
        const bool editing =
            keyAscii == keys::kBackspace || keyAscii == keys::kTab || keyAscii == keys::kEnter;
        const bool figure =
            (keyAscii >= '0' && keyAscii <= '9') || keyAscii == ',' || keyAscii == '-' || keyAscii == '.';
        if (!editing && !figure) {
            keyAscii = 0;
        }
    }
    if (keyAscii == keys::kEnter || keyAscii == keys::kTab) {
        keyAscii = 0;
        if (IsFinal(page) && index == kDepositArea) {
            modTotals::RewriteDeposit(program);
            modTotals::UpdateRunningTotals(program);
        }
    }
}

void txt_KeyUp(Program& program, PageId page, int index, int keyCode, int shift) {
    TextArea& area = Area(program, page, index);
    EditingState& editing = program.editing;
    if (IsFinal(page)) {
        editing.CursorPos = area.SelStart;
        ShowCursor(program);
        return;
    }
    if (editing.BlockMode) {
        return;
    }
    editing.CursorPos = area.SelStart;
    ShowCursor(program);
    editing.CurrentWidth = area.Width;
    ColourArea(program, page, area);
    ShowTextPosition(program, area);
    if (program.hooks.CompleteWord) {
        program.hooks.CompleteWord(program, Field(page, index), keyCode, shift);
    }
}

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
    if (!IsFinal(page)) {
        // No word is under way in an area that has just been entered.
        editing.Words[static_cast<std::size_t>(IndexOf(page))].InWord = false;
        editing.ACActive[static_cast<std::size_t>(IndexOf(page))] = false;
        editing.CurrentLimit = LimitText(area);
        editing.CurrentWidth = area.Width;
        ColourArea(program, page, area);
    }
    if (editing.BlockMode && program.hooks.UpdateTextMenu) {
        program.hooks.UpdateTextMenu(program);
    }
    ShowAreaNumber(program, page, index);
}

void txt_LostFocus(Program& program, PageId page, int index) {
    EditingState& editing = program.editing;
    TextArea& area = Area(program, page, index);
    editing.LastArea = index;
    if (IsFinal(page)) {
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
        program.editing.ACActive[static_cast<std::size_t>(IndexOf(page))] = false;
        editing.CursorPos = static_cast<int>(area.Text.size()); // it is taken whole and flows nowhere
        txt_Change(program, page, index);
        Area(program, page, index).BackColor = colors::kResting;
    }
    if (IsAmountLimit(LimitText(area))) {
        LeaveAmount(program, page, index);
    }
    if (page == PageId::frmP1) {
        CheckDate(program, index);
    }
}

void txt_MouseDown(Program& program, PageId page, int index, int button, int shift) {
    static_cast<void>(shift);
    EditingState& editing = program.editing;
    TextArea& area = Area(program, page, index);
    if (Completing(program, page)) {
        const int start = area.SelStart;
        const int length = area.SelLength;
        modBlocks::SettleCompletion(program, page);
        modFields::SetCursor(area, start, length);
    }
    editing.CursorPos = area.SelStart;
    ShowCursor(program);
    if (IsFinal(page)) {
        return;
    }
    ShowTextPosition(program, area);
    constexpr int kRightButton = 2;
    if (button != kRightButton) {
        return;
    }
    if (!editing.BlockMode) {
        for (const PageId each : kLinePages) {
            ResetMyTextBoxColors(program, each);
        }
    }
    editing.RightClickPending = true;
    editing.RightClickArea = index;
    // The menu takes the keyboard: the area is left as by any other way, and entered again when the menu
    // goes.
    modFields::DropFocus(program);
    if (program.hooks.UpdateTextMenu) {
        program.hooks.UpdateTextMenu(program);
    }
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

void ResetMyTextBoxColors(Program& program, PageId page) {
    Page& record = program.pages[page];
    const auto colour = [](TextArea& area, bool over, Color resting) {
        if (area.BackColor == colors::kBlockSelected) {
            return;
        }
        area.BackColor = over ? colors::kOverLimit : resting;
        area.ForeColor = over ? colors::kBlack : area.ForeColor;
    };
    for (TextArea& area : record.txt) {
        colour(area, OverLimit(program, page, area), colors::kResting);
    }
    for (auto* boxes : {&record.txtQty, &record.txtAmt}) {
        for (TextArea& box : *boxes) {
            const bool over = box.Visible && modPages::MeasureTextWidth(program, page, box.Text) >= box.Width;
            colour(box, over, colors::kRestingRowField);
        }
    }
}

} // namespace modText
