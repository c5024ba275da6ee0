#pragma once

#include "program/controls.h"
#include "program/window.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The frequent terms list beside the page, caption the list's name.
class frmFUT : public Window {
public:
    /// The terms; the lines are those of `program.terms`, in file order.
    struct TermList {
        int ListIndex = -1;
        bool Visible = true;
    };
    struct MenuEntry {
        std::string Caption;
        bool Enabled = true;
    };
    enum class Side { None, Left, Right };

    TermList lstFUT;
    ListBox lstMoreFUT{.Items = {}, .Placeholder = {}, .Visible = false};
    std::array<CommandButton, 4> cmdOpt{CommandButton{.Caption = "", .ToolTipText = ""},
                                        CommandButton{.Caption = "Add New Term to List", .ToolTipText = ""},
                                        CommandButton{.Caption = "Edit Selected Term", .ToolTipText = ""},
                                        CommandButton{.Caption = "Remove Selected Term", .ToolTipText = ""}};
    std::array<CommandButton, 3> cmdCase{CommandButton{.Caption = "abc", .ToolTipText = ""},
                                         CommandButton{.Caption = "Abc", .ToolTipText = ""},
                                         CommandButton{.Caption = "ABC", .ToolTipText = ""}};
    MenuEntry mnuFileShowAll{.Caption = "Show All Frequent Terms Files"};
    MenuEntry mnuFileOpenFUT{.Caption = "&Open Another Frequent Terms File"};
    MenuEntry mnuFileNewFUT{.Caption = "Create &New Frequent Terms File"};
    MenuEntry mnuFileDelete{.Caption = "Delete this Frequent Terms List"};
    MenuEntry mnuFileDefaultFUT{.Caption = "Make this the Default Frequent Terms List"};
    MenuEntry mnuWindowSavePosition{.Caption = "Save Window Position and Size"};
    bool StartedMinimised = false; ///< as the settings say, until it is restored for the first time
    Side Docked = Side::None;      ///< at a side of the main window; the front end keeps it true

    /// The list gets no narrower, twips.
    static constexpr float kLeastWidth = 2700;

    [[nodiscard]] std::string_view Name() const override { return "frmFUT"; }
    [[nodiscard]] Modality Mode() const override { return Modality::Modeless; }
    void Form_Load(Program& program) override;
    void Form_Unload(Program& program) override;
    void Form_Cancel(Program& program) override;
    /// Escape: from the lists back to the terms, from the terms back to the page.
    void Form_Escape(Program& program);
    /// The window's background: its place and size.
    void Form_DblClick(Program& program);
    /// Brings caption and selection up to the list in memory.
    void FollowList(const Program& program);

    void cmdOpt_Click(Program& program, int index);
    void cmdCase_Click(Program& program, int index);

    /// A term is chosen in the list, without any other effect.
    void lstFUT_Select(const Program& program, int line);
    /// The term goes into the area that the cursor was in last.
    void lstFUT_Enter(Program& program);
    /// A drag begins: the chosen term is the one under the pointer.
    void lstFUT_MouseMove(Program& program);

    void mnuFileShowAll_Click(Program& program);
    void mnuFileOpenFUT_Click(Program& program) { mnuFileShowAll_Click(program); }
    void mnuFileNewFUT_Click(Program& program);
    void mnuFileDelete_Click(Program& program);
    void mnuFileDefaultFUT_Click(Program& program);
    void mnuWindowSavePosition_Click(Program& program);

    /// An arrow key moves on the list of lists; nothing opens.
    void lstMoreFUT_Move(int row);
    void lstMoreFUT_Click(Program& program);

private:
    [[nodiscard]] std::optional<std::string> Selected(const Program& program) const;
    void ShowTerms();
    void Remove(Program& program);
};

namespace modTerms {

/// Shows the window, or brings it up when it is open.
void mnuOptFUT_Click(Program& program);
/// The same at the start, as the settings have it: minimised where they say so, and the page keeps the
/// keyboard.
void ShowTermsWindow(Program& program);
/// F5 opens the list of lists, F6 the next list.
void TermsKey(Program& program, int keyCode);
/// The list in use may be another one now: memory and window follow.
void ListInUseChanged(Program& program);

} // namespace modTerms
