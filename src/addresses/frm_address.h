#pragma once

#include "addresses/address_window.h"

/// The address window. In its company information use it shows the business's own lines and nothing of the
/// books.
class frmAddress : public AddressWindow {
public:
    [[nodiscard]] std::string_view Name() const override { return "frmAddress"; }
    [[nodiscard]] Modality Mode() const override { return Modality::Modeless; }
    void Form_Load(Program& program) override;
    void Form_Unload(Program& program) override;
    /// Asks about what was typed before it closes; a list that is being chosen is given up.
    void Form_Cancel(Program& program) override;

    /// Leaves the choice of a list; a run goes on; otherwise closes as the close box does.
    void Escape_Pressed(Program& program);
    [[nodiscard]] bool MayLeave(Program& program, Leaving leaving) override;
    /// What was typed goes into a text file, a line a field.
    void KeepUnsaved(Program& program) override;

    /// Runs a menu entry, when it can be chosen.
    void Run(Program& program, address_menu::Id id);
    [[nodiscard]] bool IsAvailable(const Program& program, address_menu::Id id) const;

    void lstNames_Click(Program& program, int row);
    /// Letters lead to the first row that begins with them.
    void lstNames_Typed(Program& program, std::string_view typed);

    /// What the person typed, with the cursor behind it.
    void txt_Change(Program& program, int index, std::string_view text, int selStart);
    void txt_GotFocus(Program& program, int index);
    void txt_KeyUp(Program& program, int index, int selStart);
    /// A double-click, or the context menu's entry.
    void txt_DblClick(Program& program, int index);
    /// Whether the field has a conversion at all.
    [[nodiscard]] bool Converts(const Program& program, int index) const;

    void cmdSave_Click(Program& program);
    void cmdExit_Click(Program& program);
    void lblFormat_Click(Program& program, int index);
    void optList_Click(Program& program, int index);
    void cmdOK_Click(Program& program);
    void cmdRefresh_Click(Program& program);
    void cmdCancel_Click(Program& program);
    void imgExit_Click(Program& program);
    void cmdHelp_Click(Program& program);
    void cmdSaveBatchRecord_Click(Program& program);
    void cmdSkipBatchRecord_Click(Program& program);
    void cmdEndBatch_Click(Program& program);
};
