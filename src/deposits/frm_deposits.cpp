#include "deposits/frm_deposits.h"

#include "base/dates.h"
#include "base/numbers.h"
#include "base/rows.h"
#include "base/text.h"
#include "deposits/deposit_rows.h"
#include "pages/fields.h"
#include "program/keys.h"
#include "program/line_printing.h"
#include "program/program.h"
#include "program/windows.h"
#include "proposal/proposal_save.h"
#include "proposal/rescued.h"

#include <algorithm>
#include <limits>

namespace {

constexpr std::string_view kDatePattern = "mmm dd, yyyy";
constexpr std::string_view kRowPattern = "##,###,##0.00";
constexpr FieldRef kDepositField{PageId::frmP6, FieldKind::txt, 4};
constexpr Color kAtFault = colors::kOverLimit;

int ThisYear(const Program& program) {
    return dates::ToCalendar(program.platform.clock.Now()).Year;
}

void Tell(const Program& program, std::string_view words) {
    program.platform.questions.MsgBox(words, Buttons::Ok, "");
}

void Settle(EntryBox& box) {
    box.BackColor = colors::kWhite;
    box.ToolTipText.clear();
}

} // namespace

frmDeposits::frmDeposits() {
    Caption = "Deposits Received";
    txtDate.ToolTipText = "Double-Click to change format - example; 1/21/08 becomes Jan 21, 2008";
    Menu = {{"mnuFile", "", "&File", ""},
            {"mnuFileOpen", "mnuFile", "&Open", "Ctrl+O", true, false},
            {"mnuFileSave", "mnuFile", "&Save", "Ctrl+S"},
            {"mnuFilePrint", "mnuFile", "&Print", "Ctrl+P"},
            {"mnuFileExit", "mnuFile", "E&xit", ""},
            {"mnuEdit", "", "&Edit", ""},
            {"mnuEditItem", "mnuEdit", "&Edit Selected Item", "Ctrl+E"},
            {"mnuEditDelete", "mnuEdit", "&Remove Selected from List", "Ctrl+R"},
            {"mnuOpt", "", "Options", ""},
            {"mnuOptFormat", "mnuOpt", "Do Not Apply Date Formatting", ""}};
}

void frmDeposits::Form_Load(Program& program) {
    txtDate_Change(program, dates::FormatDate(program.platform.clock.Now(), kDatePattern));
    txtDate.SelectAll();
    touched_ = false;
    if (program.document.HasName()) {
        txtName.Text = program.document.FileName.substr(0, program.document.FileName.size() - 4);
        txtName.SelectAll();
    }
    Load(program);
    Form_Follow(program);
}

void frmDeposits::Form_Follow(Program& program) {
    Caption = "Deposits Received";
    if (!program.document.BaseName.empty()) {
        Caption += " - " + program.document.BaseName;
    }
    Entry("mnuFileSave").Enabled = !Locked;
    Entry("mnuEditItem").Enabled = !Locked;
    Entry("mnuEditDelete").Enabled = !Locked;
    cmdSave.Enabled = !Locked;
    for (EntryBox* box : {&txtName, &txtDate, &txtAmount}) {
        box->Enabled = !Locked;
    }
}

std::string frmDeposits::DepositFile(const Program& program) const {
    return program.document.BaseName + ".dep";
}

std::string frmDeposits::Signed(const Program& program, std::string_view figure) const {
    return program.settings.CurrencySymbol + " " + std::string(figure);
}

void frmDeposits::Load(const Program& program) {
    file_ = modSideFile::Read(program, DepositFile(program), "SaveDepositInfo");
    Locked = file_.Locked;
    if (Locked || !file_.There) {
        return;
    }
    modDeposits::DepositList list = modDeposits::ParseFile(file_.Bytes);
    if (!list.Empty) {
        txtName.Text = list.Name;
        txtName.SelectAll();
    }
    lst.Clear();
    for (std::string& row : list.Rows) {
        lst.Add(std::move(row));
    }
    fileFollows_ = !lst.Items.empty();
    Recompute(program);
    settled_ = DepositTotal;
    TellUnreadable(program, modDeposits::AddUp(lst.Items).Unreadable);
    // To the last bit, and only here.
    if (DepositTotal != program.totals.Deposit) {
        Tell(program, "This deposit does not match with the one in the proposal.");
    }
}

void frmDeposits::TellUnreadable(const Program& program, int count) {
    if (count == 0) {
        return;
    }
    Tell(program, count == 1
                      ? "The amount of 1 deposit in the list cannot be read. It stays in the list and counts "
                        "as 0.00."
                      : "The amounts of " + std::to_string(count) +
                            " deposits in the list cannot be read. They stay in the list and count as 0.00.");
}

void frmDeposits::Recompute(const Program& program) {
    constexpr std::size_t kMost = std::numeric_limits<std::int16_t>::max();
    modDeposits::Sum sum = modDeposits::AddUp(lst.Items);
    DepositRows = static_cast<std::int16_t>(static_cast<int>(std::min(lst.Items.size(), kMost)) - 1);
    DepositAmounts = std::move(sum.Amounts);
    total_ = sum.Total;
    DepositTotal = modDeposits::ToSingle(total_);
    lblTotal.Caption = "Total Deposit = " + Signed(program, modDeposits::PlainTotal(DepositTotal));
}

void frmDeposits::MoveFocus(Program& program, std::string_view control) {
    if (ActiveControl == control) {
        return;
    }
    const bool leavesDate = ActiveControl == "txtDate";
    ActiveControl = control;
    if (leavesDate) {
        txtDate_LostFocus(program);
    }
}

void frmDeposits::txtName_Change(Program&, std::string_view text) {
    if (txtName.Text != text) {
        txtName.Text = text;
        txtName.SelLength = 0; // what was marked is no more
        DepositChanged = true;
        fileFollows_ = fileFollows_ || file_.There;
    }
}

void frmDeposits::txtDate_Change(Program&, std::string_view text) {
    if (txtDate.Text != text) {
        touched_ = true;
        notAdded_ = notAdded_ || DepositEditing();
        txtDate.SelLength = 0;
    }
    txtDate.Text = text;
    DepositDateText = text;
    txtDate.BackColor = colors::kWhite;
    txtDate.ToolTipText = "Double-Click to change format - example; 1/21/08 becomes Jan 21, 2008";
}

void frmDeposits::txtAmount_Change(Program&, std::string_view text) {
    if (txtAmount.Text != text) {
        touched_ = true;
        notAdded_ = true;
        txtAmount.SelLength = 0;
    }
    txtAmount.Text = text;
    DepositAmountText = modDeposits::AmountText(text);
    Settle(txtAmount);
    SaveIsDefault = true;
}

void frmDeposits::txtDate_Enter(Program& program) {
    MoveFocus(program, "txtAmount");
}

void frmDeposits::txtDate_LostFocus(Program& program) {
    if (!DepositFormatDates) {
        return;
    }
    const std::optional<double> day = dates::Recognise(txtDate.Text, ThisYear(program));
    if (day) {
        const bool touched = touched_;
        const bool notAdded = notAdded_;
        txtDate_Change(program, dates::FormatDate(*day, kDatePattern));
        touched_ = touched; // another writing of the same day
        notAdded_ = notAdded;
        return;
    }
    program.platform.questions.MsgBox(
        text::Lines({"Text entered cannot be recognized as a valid date.", "",
                     "Proper date format examples follow:", "January 15, 2008.", "Jan 15, 2008", "1/15/2008",
                     "1/15/08", "1-15-08", "Do not include date extentions such as \"1rst\", \"2nd\", etc."}),
        Buttons::Ok, "Date Format not Recognized");
}

int frmDeposits::txtAmount_KeyPress(int keyAscii) {
    // A comma dropped from 100,50 would leave 10050: it stays, and one that parts no thousands is told.
    const bool passes = (keyAscii >= '0' && keyAscii <= '9') || keyAscii == '.' || keyAscii == ',' ||
                        keyAscii == keys::kBackspace || keyAscii == keys::kTab || keyAscii == keys::kEnter;
    return passes ? keyAscii : 0;
}

void frmDeposits::txtAmount_Enter(Program& program) {
    if (!txtAmount.Text.empty()) {
        cmdSave_Click(program);
        SaveIsDefault = false;
    }
}

void frmDeposits::Refuse(EntryBox& box, std::string_view control, std::string_view why) {
    box.BackColor = kAtFault;
    box.ToolTipText = why;
    box.SelectAll();
    ActiveControl = control;
}

void frmDeposits::cmdSave_Click(Program& program) {
    static_cast<void>(AddOrReplace(program)); // what is wrong with the row has been told
}

frmDeposits::Added frmDeposits::AddOrReplace(const Program& program) {
    if (Locked || !touched_ || txtAmount.Text.empty()) {
        return Added::No;
    }
    if (!dates::IsDate(txtDate.Text, ThisYear(program))) {
        Refuse(txtDate, "txtDate", "This is no date. Write it as January 15, 2008 or 1/15/2008.");
        return Added::No;
    }
    if (DepositAmountText.empty()) {
        Refuse(txtAmount, "txtAmount",
               "This is no amount. Write it in digits with at most one point, as 1500.50 or 1,500.50.");
        return Added::No;
    }
    if (!modDeposits::IsWholeHundredths(txtAmount.Text)) {
        Refuse(txtAmount, "txtAmount", "An amount has two decimals at most. Write it as 1500.50.");
        return Added::No;
    }
    std::string row =
        modDeposits::MakeRow(DepositDateText, program.settings.CurrencySymbol, DepositAmountText);
    DepositChanged = true;
    touched_ = false;
    notAdded_ = false;
    if (!editedRow_) {
        lst.Add(std::move(row));
        txtAmount.SelectAll(); // the text stays; the next amount replaces it
        Recompute(program);
        return Added::Yes;
    }
    lst.Items[static_cast<std::size_t>(*editedRow_)] = std::move(row);
    editedRow_.reset();
    for (EntryBox* box : {&txtDate, &txtAmount, &txtName}) {
        box->SelLength = 0;
    }
    lst.Selected.assign(lst.Items.size(), false);
    Recompute(program);
    return Added::Yes;
}

void frmDeposits::lst_Click(const std::vector<int>& selected, int current) {
    lst.Selected.assign(lst.Items.size(), false);
    for (const int row : selected) {
        if (HasRow(lst.Selected, row)) {
            lst.Selected[static_cast<std::size_t>(row)] = true;
        }
    }
    lst.ListIndex = current;
}

void frmDeposits::Run(Program& program, std::string_view name) {
    if (name == "mnuFileSave") {
        if (SettlePendingAmount(program)) {
            static_cast<void>(SaveDepositInfo(program)); // what came of it has been told
        }
    } else if (name == "mnuFilePrint") {
        mnuFilePrint_Click(program);
    } else if (name == "mnuFileExit") {
        Form_Cancel(program);
    } else if (name == "mnuEditItem") {
        mnuEditItem_Click(program);
    } else if (name == "mnuEditDelete") {
        mnuEditDelete_Click(program);
    } else if (name == "mnuOptFormat") {
        mnuOptFormat_Click();
    }
}

void frmDeposits::mnuEditItem_Click(Program& program) {
    const int count = lst.SelCount();
    if (count != 1) {
        Tell(program, count == 0 ? "Nothing selected to edit." : "Cannot edit multiple selected items.");
        return;
    }
    const int row = lst.FirstSelected();
    const std::string item = lst.Items[static_cast<std::size_t>(row)];
    editedRow_ = row;
    txtDate_Change(program, modDeposits::DateOf(item));
    txtAmount_Change(program, modDeposits::AmountTextOf(item));
    touched_ = true;
    notAdded_ = false; // the list has it still
    for (EntryBox* box : {&txtDate, &txtAmount, &txtName}) {
        box->SelLength = 0;
    }
    ActiveControl = "txtDate";
    Tell(program,
         "The selected item has been placed in the Date Received and Amount boxes. Edit in these areas and "
         "click \"Save to List\".");
    txtDate.SelectAll(); // behind the message, which may take a mark away with the keyboard
}

void frmDeposits::mnuEditDelete_Click(Program& program) {
    const int count = lst.SelCount();
    if (count != 1) {
        // The same words as for editing.
        Tell(program, count == 0 ? "Nothing selected to remove." : "Cannot edit multiple selected items.");
        return;
    }
    const int row = lst.FirstSelected();
    lst.Items.erase(lst.Items.begin() + row);
    lst.Selected.assign(lst.Items.size(), false);
    lst.ListIndex = -1;
    if (editedRow_ == row) {
        editedRow_.reset();
    } else if (editedRow_ && *editedRow_ > row) {
        --*editedRow_;
    }
    DepositChanged = true;
    Recompute(program);
}

void frmDeposits::mnuOptFormat_Click() {
    MenuEntry& entry = Entry("mnuOptFormat");
    DepositFormatDates = !DepositFormatDates;
    entry.Caption = DepositFormatDates ? "Do Not Apply Date Formatting" : "Apply Date Formatting";
}

bool frmDeposits::SettlePendingAmount(const Program& program) {
    if (Locked || !notAdded_ || txtAmount.Text.empty()) {
        return true;
    }
    switch (program.platform.questions.MsgBox(
        "The amount has not been added to the list. Add it?", Buttons::YesNoCancel, "",
        {.Default = Answer::Yes,
         .Lost = "The amount " + txtAmount.Text + " will be lost unless it is added."})) {
    case Answer::Yes:
        return AddOrReplace(program) == Added::Yes;
    case Answer::No:
        return true;
    default:
        return false;
    }
}

bool frmDeposits::SaveDepositInfo(Program& program) {
    if (Locked || !modFile::ProposalHasFile(program)) {
        return false;
    }
    if (!lst.Items.empty() || fileFollows_) {
        if (!modSideFile::Write(
                program, file_, DepositFile(program), modDeposits::MakeFile(txtName.Text, lst.Items),
                "This deposit list was changed by another program since you opened it. Overwrite it?",
                "SaveDepositInfo")) {
            return false;
        }
        fileFollows_ = !lst.Items.empty();
    }
    if (lst.Items.empty()) {
        Tell(program, "There are no Deposits to save.");
    }
    DepositChanged = false;
    PutTotalIntoProposal(program);
    return true;
}

void frmDeposits::PutTotalIntoProposal(Program& program) {
    const float standing = program.totals.Deposit;
    const float total = DepositTotal;
    const bool ours = settled_ && *settled_ == standing;
    settled_ = total;
    const std::string_view written =
        text::Trim(program.pages[kDepositField.Page].txt[static_cast<std::size_t>(kDepositField.Index)].Text);
    const bool noFigure = !written.empty() && !numbers::IsNumeric(written, program.settings.CurrencySymbol);
    if (noFigure || (standing != 0 && standing != total && !ours)) {
        const std::string question =
            "The deposit in the proposal is " +
            (noFigure ? std::string(written) : numbers::FormatSingle(standing, kRowPattern)) +
            ". Replace it with the list's total, " + modDeposits::Shown(total_) + "?";
        if (program.platform.questions.MsgBox(question, Buttons::YesNo, "", {.Default = Answer::No}) !=
            Answer::Yes) {
            return;
        }
    }
    modFields::SetText(program, kDepositField, modDeposits::PlainTotal(total));
}

bool frmDeposits::MayLeave(Program& program, Leaving) {
    if (!SettlePendingAmount(program)) {
        return false;
    }
    if (!DepositChanged || Locked) {
        return true;
    }
    switch (program.platform.questions.MsgBox(
        "The deposit list has changed. Save changes?", Buttons::YesNoCancel, "Deposit List Modified",
        {.Default = Answer::Yes,
         .Lost = "The changes to the deposit list will be lost unless they are saved."})) {
    case Answer::Yes:
        return SaveDepositInfo(program);
    case Answer::No:
        return true;
    default:
        return false;
    }
}

void frmDeposits::Form_Cancel(Program& program) {
    if (MayLeave(program, Leaving::Proposal)) {
        modWindows::Close(program, *this);
    }
}

void frmDeposits::KeepUnsaved(Program& program) {
    if (Locked) {
        return;
    }
    std::vector<std::string> rows = lst.Items;
    if (notAdded_ && !DepositAmountText.empty()) {
        rows.push_back(
            modDeposits::MakeRow(DepositDateText, program.settings.CurrencySymbol, DepositAmountText));
    }
    if (DepositChanged || rows.size() != lst.Items.size()) {
        modRescue::KeepOfProposal(program, ".dep", modDeposits::MakeFile(txtName.Text, rows),
                                  modRescue::Back::Offered);
    }
}

void frmDeposits::mnuFilePrint_Click(Program& program) {
    if (!SettlePendingAmount(program)) {
        return;
    }
    std::vector<std::string> lines{"Rec'd From:\t\t" + txtName.Text};
    lines.insert(lines.end(), lst.Items.begin(), lst.Items.end());
    lines.emplace_back();
    lines.push_back("Total Deposit:\t\t" + Signed(program, modDeposits::Shown(total_)));
    modLines::Printed printed = modLines::Printed::NoPrinter;
    try {
        printed = modLines::PrintLines(program, {"Deposits Received", program.document.BaseName}, lines, {});
    } catch (const std::exception&) {
        // A printer that fails is none.
    }
    if (printed == modLines::Printed::NoPrinter) {
        Tell(program, "Could not find Printer.");
    }
}

namespace modDeposits {

void mnuManageDeposits_Click(Program& program) {
    if (Window* open = modWindows::Find(program, "frmDeposits")) {
        modWindows::BringToFront(*open);
        return;
    }
    modWindows::Show(program, std::make_unique<frmDeposits>());
}

} // namespace modDeposits
