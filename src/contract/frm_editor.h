#pragma once

#include "contract/contract_text.h"
#include "program/controls.h"
#include "program/window_parts.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// "Contract Language Editor": the wording of the final page as one text, wrapped as it prints.
class frmEditor : public MenuWindow {
public:
    StripLabel framTop; ///< the caption of the frame around the fonts
    StripLabel lblFont{.Caption = "Select Font Below", .ToolTipText = ""};
    StripLabel lblFontSize{.Caption = "Font Size", .ToolTipText = ""};
    ListBox cmbFont;
    ListBox cmbFontSize;
    CheckBox chkItalic{.Caption = "Italic"};
    StripLabel framCharCount{.Caption =
                                 "Quick Editor - Adjust Contract Size and Language/Character and Line Counts",
                             .ToolTipText = ""};
    CommandButton cmdLines{.Caption = "Show Line Count", .ToolTipText = ""};
    CommandButton cmdImport{.Caption = "Import Contract", .ToolTipText = ""};
    StripLabel lblCharCount{.Caption = "Character Count", .ToolTipText = ""};
    StripLabel lblMain{.Caption = "Edit the Contract Language Below (as it is to appear on the Totals Page)",
                       .ToolTipText = ""};
    StripLabel lblNotice; ///< what a search has to say

    ContractText txtCharCount;
    int SelStart = 0; ///< in the text that shows
    int SelLength = 0;
    bool Locked = false;
    Color BackColor = colors::kWhite;
    int Revision = 0; ///< counts the changes of text, font and caret that did not come from the person's hand
    int FocusCalls = 0; ///< counts the times the keyboard was sent to the text

    std::vector<std::string> ContractLines;
    std::int16_t ContractLineCount = 0;
    bool ShowingLineCount = false;
    std::string SavedEditorText;
    bool EditorDirty = false;

    frmEditor();
    [[nodiscard]] std::string_view Name() const override { return "frmEditor"; }
    [[nodiscard]] Modality Mode() const override { return Modality::Modal; }
    void Form_Load(Program& program) override;
    void Form_Cancel(Program& program) override;
    [[nodiscard]] bool MayLeave(Program& program, Leaving leaving) override;
    void KeepUnsaved(Program& program) override;

    /// The text that shows: the person's, or the one with line numbers, which is not wrapped again.
    [[nodiscard]] const ContractText& Shown() const { return ShowingLineCount ? numbered_ : txtCharCount; }

    void cmbFont_Click(Program& program, int index);
    void cmbFontSize_Click(Program& program, int index);
    void chkItalic_Click(Program& program);
    void cmdLines_Click(Program& program);
    void cmdImport_Click(Program& program);
    /// The person has edited; the caret stands at `caret` now.
    void Edited(std::size_t at, std::size_t removed, std::string_view inserted, int caret,
                ContractText::Kind kind);
    /// The caret was moved.
    void Moved(int selStart, int selLength);
    void Undo();
    void Redo();
    void SelectAll();
    enum class Way { Forward, Back };
    /// Marks the next place of the words, without regard to case; goes on at the other end.
    void Find(std::string_view words, Way way);

protected:
    void Run(Program& program, std::string_view name) override;

private:
    void LoadMyControls(Program& program);
    void LoadCharacterEditor(const Program& program);
    void LoadLineNumbers();
    [[nodiscard]] bool UpdateMyContract(Program& program);
    void ReplaceLinefeeds(const Program& program);
    void ParseTextStrings(const Program& program);
    void mnuEditCopy_Click(Program& program);
    [[nodiscard]] bool RefusedWhileCounting(const Program& program) const;
    void TakeFont(const Program& program, const TextFont& font);
    void ReplaceAll(std::string_view text);
    void ShowTitle();
    void ShowPosition();

    ContractText numbered_;
    int placeBefore_ = 0; ///< of the caret, before the line numbers came
};

namespace modContract {

void mnuManageEditor_Click(Program& program);

} // namespace modContract
