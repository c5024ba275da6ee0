#pragma once

#include "program/controls.h"
#include "program/window.h"

#include <array>
#include <string_view>

/// "Search Results": the hits in three lists that stay in step.
class frmSR : public Window {
public:
    StripLabel lblTop{.Caption = "Searched for...", .ToolTipText = ""};
    StripLabel lblSearch;
    /// Place, key and context of each hit.
    std::array<ListBox, 3> lstResults;
    int TopIndex = 0; ///< of all three lists

    [[nodiscard]] std::string_view Name() const override { return "frmSR"; }
    [[nodiscard]] Modality Mode() const override { return Modality::Modeless; }
    void Form_Load(Program& program) override;
    void Form_Unload(Program& program) override;
    void Form_Cancel(Program& program) override;

    /// A row is chosen in one of the lists, and with it in the others; the place and the context lead to the
    /// hit.
    void lstResults_Click(Program& program, int list, int row);
    /// An arrow key chooses a row and leads nowhere.
    void lstResults_Move(int row);
    /// One of the lists is scrolled, and the others with it.
    void lstResults_Scroll(int top);
};
