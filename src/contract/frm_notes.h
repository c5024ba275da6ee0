#pragma once

#include "program/controls.h"
#include "program/window_parts.h"
#include "proposal/side_files.h"

#include <string>
#include <string_view>

/// "Footnotes for Event": the notes of the proposal on show, which print on none of its pages. They lie in a
/// file beside it, byte for byte as they are.
class frmNotes : public MenuWindow {
public:
    StripLabel lblCaption{.Caption = "Footnotes for:", .ToolTipText = ""};
    StripLabel lblEventName;
    /// What txtNotes shows. Its line ends are LF; the file's own stay until the person edits.
    std::string txtNotes;
    int Revision = 0;    ///< counts the texts that did not come from the person's keys
    bool Locked = false; ///< the file could not be read; nothing is edited or saved

    std::string FootnoteText;
    std::string FootnoteSavedText;

    frmNotes();
    [[nodiscard]] std::string_view Name() const override { return "frmNotes"; }
    [[nodiscard]] Modality Mode() const override { return Modality::Modeless; }
    void Form_Load(Program& program) override;
    void Form_Cancel(Program& program) override;
    void Form_Follow(Program& program) override;
    [[nodiscard]] bool MayLeave(Program& program, Leaving leaving) override;
    [[nodiscard]] bool BelongsToProposal() const override { return true; }
    void KeepUnsaved(Program& program) override;

    /// The person has edited; `text` with LF between its lines.
    void txtNotes_Change(Program& program, std::string_view text);
    /// Reports as "SaveFootnoteFile". False when it was not saved.
    [[nodiscard]] bool SaveFootnoteFile(Program& program);

protected:
    void Run(Program& program, std::string_view name) override;

private:
    void OpenFootnoteFile(Program& program);
    void mnuFilePrint_Click(Program& program);
    [[nodiscard]] std::string FootnoteFile(const Program& program) const;

    modSideFile::Known file_;
};

namespace modNotes {

/// Opens the window, or brings the open one to the front as it stands.
void mnuFileOpenFootnotes_Click(Program& program);
[[nodiscard]] bool FootnotesShown(const Program& program);

} // namespace modNotes
