#pragma once

#include "program/controls.h"
#include "program/window.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// The files that can be a logo.
inline constexpr std::string_view kPictureFiles = "*.jpg;*.jpeg;*.bmp;*.gif;*.png;*.svg";

enum class FileColumn { Name, Modified, Size };

/// The file chooser that all commands share. It opens, or in delete mode deletes, files of one pattern,
/// `document.FileFilter`. A proposal opens as one by whatever pattern it was found; the other kinds go by the
/// pattern.
class frmFile : public Window {
public:
    ListBox Drive1;                     ///< places: the root, home, mounted volumes
    ListBox Dir1;                       ///< "..", then the subfolders of `Folder`
    ListBox FileList1;                  ///< the names on show
    std::vector<std::string> FileDates; ///< of these files, in their order
    std::vector<std::string> FileSizes;
    FileColumn SortedBy = FileColumn::Name;
    bool Backwards = false; ///< newest, largest or last name first
    TextBox txtFilter;      ///< names without these characters are left out
    StripLabel lblFilter{.Caption = "Show names with:", .ToolTipText = ""};
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
    /// A column's head was clicked: the files stand in its order, newest and largest first; again, the other
    /// way round. The chosen file stays chosen.
    void FileList1_ColumnClick(Program& program, FileColumn column);
    /// What no longer shows is no longer chosen.
    void txtFilter_Change(Program& program, std::string_view text);
    void FileList1_Click(Program& program, int index);
    void chkProp_Click(Program& program);
    void cmdOpenOK_Click(Program& program);
    void cmdOpenBack_Click(Program& program);
    void cmdOpenCancel_Click(Program& program);

private:
    void GoTo(Program& program, std::string_view folder);
    void RefreshList(Program& program);
    void LookAtFiles(const Program& program, const std::string& folder);
    /// Puts on show what was found, in the order and as far as it is wanted.
    void ShowFound(Program& program);
    /// The box about properties shows where the answer decides anything.
    void OfferToIgnore(const Program& program);
    void OpenProposal(Program& program);
    /// The working folder is the open proposal's again, then the rest of the choice follows.
    void Finish(Program& program);
    void OpenFormat(Program& program);
    void OpenLogo(Program& program);
    void DeleteSelected(Program& program);

    struct Found {
        std::string Name;
        double Modified = 0; ///< a day serial; 0 where it cannot be told
        std::uintmax_t Size = 0;
    };
    std::vector<Found> found_;
    std::string selected_;
    std::string title_; ///< the caption without the kind of the chosen file
    std::string filePathBefore_;
    bool done_ = false;
};
