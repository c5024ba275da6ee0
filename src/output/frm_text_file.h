#pragma once

#include "program/controls.h"
#include "program/window.h"

#include <string>

/// Shows the text of a file, titled with its name. Nothing can be changed in it.
class frmTextFile : public Window {
public:
    explicit frmTextFile(std::string name, std::string text) : Text(std::move(text)) {
        Caption = std::move(name);
    }

    std::string Text; ///< UTF-8, lines end in LF
    CommandButton cmdCopy{.Caption = "&Copy", .ToolTipText = "Copies what is selected, or all of it"};
    CommandButton cmdPrint{.Caption = "&Print", .ToolTipText = ""};
    CommandButton cmdClose{.Caption = "Close", .ToolTipText = ""};

    [[nodiscard]] std::string_view Name() const override { return "frmTextFile"; }
    [[nodiscard]] Modality Mode() const override { return Modality::Modeless; }
    void Form_Cancel(Program& program) override;

    /// `selected` is what is marked in the text, empty for all of it; UTF-8.
    void cmdCopy_Click(Program& program, std::string_view selected);
    /// One print command. Tells when the text has characters that the printed page cannot have. Reports as
    /// "PrintTextFile".
    void cmdPrint_Click(Program& program);
    void cmdClose_Click(Program& program);
};
