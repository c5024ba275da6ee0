#pragma once

#include "program/controls.h"
#include "program/window.h"

#include <string>
#include <string_view>

/// The files that can be a logo.
inline constexpr std::string_view kPictureFiles = "*.jpg;*.jpeg;*.bmp;*.gif;*.png;*.svg";

/// The file chooser that all commands share. It opens, or in delete mode deletes, files of one pattern,
/// `document.FileFilter`. A proposal opens as one by whatever pattern it was found; the other kinds go by the
/// pattern.
class frmFile : public Window {
public:
    ListBox Drive1; ///< places: the root, home, mounted volumes
    ListBox Dir1;   ///< "..", then the subfolders of `Folder`
    ListBox FileList1;
    bool picFileOpen = false; ///< the confirm panel shows
    StripLabel lblOpenFileName;
    StripLabel lblHelp;
    StripLabel lblPointOpen;
    CommandButton cmdOpenOK{.Caption = "OK", .ToolTipText = ""};
    CommandButton cmdOpenBack{.Caption = "Return to List", .ToolTipText = ""};
    CommandButton cmdOpenCancel{.Caption = "Cancel", .ToolTipText = ""};
    CheckBox chkProp{.Caption = "Ignore Associated Properties"};
    std::string Folder; ///< the one whose files are listed

    [[nodiscard]] std::string_view Name() const override { return "frmFile"; }
    [[nodiscard]] Modality Mode() const override { return Modality::Modal; }
    void Form_Load(Program& program) override;
    void Form_Unload(Program& program) override;
    void Form_Cancel(Program& program) override;

    void Drive1_Change(Program& program, int index);
    /// A row of Dir1 was double-clicked.
    void Dir1_Change(Program& program, int index);
    void FileList1_Click(Program& program, int index);
    void chkProp_Click(Program& program);
    void cmdOpenOK_Click(Program& program);
    void cmdOpenBack_Click(Program& program);
    void cmdOpenCancel_Click(Program& program);

private:
    void GoTo(Program& program, std::string_view folder);
    void RefreshList(Program& program);
    void OpenProposal(Program& program);
    /// The working folder is the open proposal's again, then the rest of the choice follows.
    void Finish(Program& program);
    void OpenFormat(Program& program);
    void OpenLogo(Program& program);
    void DeleteSelected(Program& program);

    std::string selected_;
    std::string title_; ///< the caption without the kind of the chosen file
    std::string filePathBefore_;
    bool done_ = false;
};
