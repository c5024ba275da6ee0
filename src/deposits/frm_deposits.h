#pragma once

#include "program/controls.h"
#include "program/window_parts.h"
#include "proposal/side_files.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// "Deposits Received": the list of deposits of the proposal on show, in a file beside it. Saving puts the
/// total into the proposal's Deposit.
class frmDeposits : public MenuWindow {
public:
    StripLabel lblName{.Caption = "Received from...", .ToolTipText = ""};
    StripLabel lblDate{.Caption = "Date Received", .ToolTipText = ""};
    StripLabel lblAmount{.Caption = "Amount", .ToolTipText = ""};
    EntryBox txtName;
    EntryBox txtDate;
    EntryBox txtAmount;
    CommandButton cmdSave{.Caption = "Add to List", .ToolTipText = ""};
    bool SaveIsDefault = false; ///< Enter anywhere presses cmdSave
    SelectList lst;
    StripLabel lblTotal{.Caption = "Deposit Total =", .ToolTipText = ""};
    std::string ActiveControl = "txtName"; ///< the one with the keyboard
    bool Locked = false;                   ///< the file could not be read; nothing is changed or saved

    std::int16_t DepositRows = -1; ///< highest row index
    std::vector<float> DepositAmounts;
    float DepositTotal = 0;
    bool DepositChanged = false; ///< the list differs from the file
    bool DepositEditing = false; ///< cmdSave replaces the row that was taken
    bool DepositFormatDates = true;
    std::string DepositDateText;
    std::string DepositAmountText;

    frmDeposits();
    [[nodiscard]] std::string_view Name() const override { return "frmDeposits"; }
    [[nodiscard]] Modality Mode() const override { return Modality::Modeless; }
    void Form_Load(Program& program) override;
    void Form_Cancel(Program& program) override;
    void Form_Follow(Program& program) override;
    [[nodiscard]] bool MayLeave(Program& program, Leaving leaving) override;
    [[nodiscard]] bool BelongsToProposal() const override { return true; }
    void KeepUnsaved(Program& program) override;

    /// The keyboard goes from control to control; leaving the date rewrites it.
    void MoveFocus(Program& program, std::string_view control);
    void txtName_Change(Program& program, std::string_view text);
    void txtDate_Change(Program& program, std::string_view text);
    void txtAmount_Change(Program& program, std::string_view text);
    /// Enter in the date.
    void txtDate_Enter(Program& program);
    /// Digits, point, comma, backspace, tab and Enter pass; 0 for anything else.
    [[nodiscard]] static int txtAmount_KeyPress(int keyAscii);
    /// Enter in the amount.
    void txtAmount_Enter(Program& program);
    void cmdSave_Click(Program& program);
    void lst_Click(const std::vector<int>& selected, int current);

    /// Writes the list and puts its total into the proposal. False when it was not saved. Reports as
    /// "SaveDepositInfo".
    [[nodiscard]] bool SaveDepositInfo(Program& program);

protected:
    void Run(Program& program, std::string_view name) override;

private:
    enum class Added { Yes, No };
    [[nodiscard]] Added AddOrReplace(Program& program);
    /// An amount that was typed and not added: Add it? False on Cancel, or when it could not be added.
    [[nodiscard]] bool SettlePendingAmount(Program& program);
    [[nodiscard]] std::string DepositFile(const Program& program) const;
    [[nodiscard]] std::string Signed(const Program& program, std::string_view figure) const;
    void Load(Program& program);
    void TellUnreadable(Program& program, int count);
    void Recompute(Program& program);
    void PutTotalIntoProposal(Program& program);
    void Refuse(EntryBox& box, std::string_view control, std::string_view why);
    void txtDate_LostFocus(Program& program);
    void mnuFilePrint_Click(Program& program);
    void mnuEditItem_Click(Program& program);
    void mnuEditDelete_Click(Program& program);
    void mnuOptFormat_Click();

    modSideFile::Known file_;
    std::int64_t total_ = 0;       ///< hundredths
    std::optional<float> settled_; ///< the total that was last loaded or saved here
    bool fileFollows_ = false;     ///< or its name changed: the file is written though the list is empty
    std::optional<int> editedRow_; ///< the row that mnuEditItem took
    bool touched_ = false;         ///< a field was touched since the last add
    bool notAdded_ = false;        ///< an amount was typed, or the row that was taken changed, since then
};

namespace modDeposits {

/// Opens the window, or brings the open one to the front as it stands.
void mnuManageDeposits_Click(Program& program);

} // namespace modDeposits
