#include "contract/frm_editor.h"

#include "base/numbers.h"
#include "base/paths.h"
#include "base/rows.h"
#include "base/text.h"
#include "contract/contract_lines.h"
#include "program/program.h"
#include "program/windows.h"
#include "proposal/rescued.h"

#include <algorithm>
#include <limits>

namespace {

/// Lines that were wrapped already are not wrapped again.
constexpr float kNoEdge = std::numeric_limits<float>::max();

} // namespace

frmEditor::frmEditor() : numbered_(kNoEdge) {
    Caption = "Contract Language Editor";
    Menu = {{"mnuFile", "", "&File", ""},
            {"mnuFileImport", "mnuFile", "Import Contract Language from Clipboard Memory", ""},
            {"mnuFileExportAndExit", "mnuFile", "&Export Contents to Proposal and Exit", ""},
            {"mnuFileExit", "mnuFile", "E&xit", ""},
            {"mnuEdit", "", "&Edit", ""},
            {"mnuEditUndo", "mnuEdit", "&Undo", "Ctrl+Z"},
            {"mnuEditRedo", "mnuEdit", "&Redo", "Ctrl+Shift+Z"},
            {"mnuEditSelectAll", "mnuEdit", "Select &All", "Ctrl+A"},
            {"mnuEditRemoveCRLF", "mnuEdit", "Remove All Double Line Feeds", ""},
            {"mnuEditCopy", "mnuEdit", "Copy Contract to Memory", ""},
            {"mnuHelp", "", "&Help", ""},
            {"mnuHelpContents", "mnuHelp", "Contract Language Editor", ""}};
}

void frmEditor::Form_Load(Program& program) {
    LoadMyControls(program);
    LoadCharacterEditor(program);
}

void frmEditor::LoadMyControls(Program& program) {
    const TextFont font = modContract::FontOfLabels(program);
    cmbFont.Items = program.run.FontList.empty() ? program.platform.screen.Fonts() : program.run.FontList;
    const auto same = std::find_if(cmbFont.Items.begin(), cmbFont.Items.end(), [&](const std::string& name) {
        return text::EqualNoCase(name, font.Name);
    });
    cmbFont.ListIndex = same == cmbFont.Items.end() ? -1 : static_cast<int>(same - cmbFont.Items.begin());
    cmbFont.Placeholder = font.Name;
    cmbFontSize.Items = {"6", "7", "8", "9", "10", "12"};
    const auto size =
        std::find(cmbFontSize.Items.begin(), cmbFontSize.Items.end(), numbers::PlainNumber(font.Size));
    cmbFontSize.ListIndex =
        size == cmbFontSize.Items.end() ? -1 : static_cast<int>(size - cmbFontSize.Items.begin());
    chkItalic.Value = font.Italic;
}

void frmEditor::LoadCharacterEditor(const Program& program) {
    txtCharCount.SetFont(program.platform.measure, modContract::FontOfLabels(program));
    txtCharCount.SetText(modContract::TextOfLabels(program));
    ++Revision;
    ShowTitle();
    ShowPosition();
}

void frmEditor::ShowTitle() {
    const TextFont& font = txtCharCount.Font();
    framTop.Caption = "Manage Fonts Below - Current Font = " + font.Name +
                      ", Font Size = " + numbers::PlainNumber(font.Size);
}

void frmEditor::ShowPosition() {
    lblCharCount.Caption = "Current Position = " + std::to_string(SelStart) + ". Text contains " +
                           std::to_string(Shown().Text().size()) + " characters.";
}

bool frmEditor::RefusedWhileCounting(const Program& program) const {
    if (ShowingLineCount) {
        program.platform.questions.MsgBox("Please click \"Resume Editing\" first.", Buttons::Ok, "");
    }
    return ShowingLineCount;
}

void frmEditor::TakeFont(const Program& program, const TextFont& font) {
    if (font == txtCharCount.Font()) {
        return;
    }
    txtCharCount.SetFont(program.platform.measure, font);
    EditorDirty = true;
    ++Revision;
    ShowTitle();
}

void frmEditor::cmbFont_Click(Program& program, int index) {
    if (RefusedWhileCounting(program) || !HasRow(cmbFont.Items, index)) {
        return;
    }
    cmbFont.ListIndex = index;
    TextFont font = txtCharCount.Font();
    font.Name = cmbFont.Items[static_cast<std::size_t>(index)];
    TakeFont(program, font);
}

void frmEditor::cmbFontSize_Click(Program& program, int index) {
    if (RefusedWhileCounting(program) || !HasRow(cmbFontSize.Items, index)) {
        return;
    }
    cmbFontSize.ListIndex = index;
    TextFont font = txtCharCount.Font();
    font.Size = numbers::ValSingle(cmbFontSize.Items[static_cast<std::size_t>(index)]);
    TakeFont(program, font);
}

void frmEditor::chkItalic_Click(Program& program) {
    if (RefusedWhileCounting(program)) {
        return;
    }
    chkItalic.Value = !chkItalic.Value;
    TextFont font = txtCharCount.Font();
    font.Italic = chkItalic.Value;
    TakeFont(program, font);
}

void frmEditor::cmdLines_Click(Program& program) {
    if (!ShowingLineCount) {
        cmdLines.Caption = "Resume Editing";
        SavedEditorText = txtCharCount.Text();
        numbered_.SetFont(program.platform.measure, txtCharCount.Font());
        LoadLineNumbers();
        placeBefore_ = SelStart;
        SelStart = 0;
        ShowingLineCount = true;
        Locked = true;
    } else {
        // The person's own text has stood behind the numbers all the while, its history with it.
        cmdLines.Caption = "Show Line Count";
        ShowingLineCount = false;
        Locked = false;
        BackColor = colors::kWhite;
        SelStart = placeBefore_;
    }
    SelLength = 0;
    ++Revision;
    ShowPosition();
}

void frmEditor::LoadLineNumbers() {
    numbered_.SetText(modContract::NumberedLines(txtCharCount));
    BackColor = txtCharCount.FilledCount() > modContract::kMostLines ? colors::kOverLimit : colors::kWhite;
}

bool frmEditor::UpdateMyContract(Program& program) {
    std::vector<std::string> lines;
    lines.reserve(static_cast<std::size_t>(txtCharCount.LineCount()));
    for (int line = 0; line < txtCharCount.LineCount(); ++line) {
        lines.push_back(txtCharCount.LineText(line));
    }
    constexpr std::size_t kMost = std::numeric_limits<std::int16_t>::max();
    ContractLines = lines;
    ContractLineCount = static_cast<std::int16_t>(std::min(lines.size(), kMost));
    if (txtCharCount.FilledCount() > modContract::kMostLines) {
        program.platform.questions.MsgBox(
            text::Lines({"You have developed more than 35 lines for the contract language.",
                         "Eliminate unnecessary line feeds or choose a smaller font. Use",
                         "\"Show Line Count\" to keep track of the number of lines."}),
            Buttons::Ok, "");
        ++FocusCalls;
        return false;
    }
    modContract::WriteLabels(program, lines, txtCharCount.Font());
    EditorDirty = false;
    return true;
}

void frmEditor::ReplaceAll(std::string_view text) {
    txtCharCount.Replace(0, txtCharCount.Text().size(), text, ContractText::Kind::Whole);
    SelStart = 0;
    SelLength = 0;
    EditorDirty = true;
    ++Revision;
    ShowPosition();
}

void frmEditor::ReplaceLinefeeds(const Program& program) {
    if (RefusedWhileCounting(program) || ContractLineCount == 0) {
        return;
    }
    ReplaceAll(modContract::WithoutDoubleLineFeeds(txtCharCount.Text()));
}

void frmEditor::ParseTextStrings(const Program& program) {
    if (RefusedWhileCounting(program)) {
        return;
    }
    // Wrapped by itself first; the person's text changes in one step.
    ContractText clipboard;
    clipboard.SetFont(program.platform.measure, txtCharCount.Font());
    clipboard.SetText(program.platform.clipboard.GetText());
    constexpr std::size_t kMost = std::numeric_limits<std::int16_t>::max();
    ContractLines = modContract::JoinLines(clipboard);
    ContractLineCount = static_cast<std::int16_t>(std::min(ContractLines.size(), kMost));
    std::string text;
    for (const std::string& line : ContractLines) {
        text += line;
    }
    ReplaceAll(text);
}

void frmEditor::cmdImport_Click(Program& program) {
    ParseTextStrings(program);
}

void frmEditor::mnuEditCopy_Click(Program& program) {
    if (RefusedWhileCounting(program)) {
        return;
    }
    program.platform.clipboard.SetText(txtCharCount.Text());
}

void frmEditor::Edited(std::size_t at, std::size_t removed, std::string_view inserted, int caret,
                       ContractText::Kind kind) {
    if (Locked) {
        return;
    }
    txtCharCount.Replace(at, removed, inserted, kind);
    EditorDirty = true;
    lblNotice.Caption.clear();
    Moved(caret, 0);
}

void frmEditor::Moved(int selStart, int selLength) {
    const int length = static_cast<int>(Shown().Text().size());
    SelStart = std::clamp(selStart, 0, length);
    SelLength = std::clamp(selLength, 0, length - SelStart);
    ShowPosition();
}

void frmEditor::Undo() {
    const int caret = Locked ? -1 : txtCharCount.Undo();
    if (caret >= 0) {
        EditorDirty = true;
        ++Revision;
        Moved(caret, 0);
    }
}

void frmEditor::Redo() {
    const int caret = Locked ? -1 : txtCharCount.Redo();
    if (caret >= 0) {
        EditorDirty = true;
        ++Revision;
        Moved(caret, 0);
    }
}

void frmEditor::SelectAll() {
    ++Revision;
    Moved(0, static_cast<int>(Shown().Text().size()));
}

void frmEditor::Find(std::string_view words, Way way) {
    lblNotice.Caption.clear();
    if (words.empty()) {
        return;
    }
    const std::string within = text::Upper(Shown().Text());
    const std::string wanted = text::Upper(words);
    const auto from = static_cast<std::size_t>(SelStart);
    std::size_t found = std::string::npos;
    if (way == Way::Forward) {
        found = within.find(wanted, from + (SelLength > 0 ? 1 : 0));
        found = found == std::string::npos ? within.find(wanted) : found;
    } else {
        found = from > 0 ? within.rfind(wanted, from - 1) : std::string::npos;
        found = found == std::string::npos ? within.rfind(wanted) : found;
    }
    if (found == std::string::npos) {
        lblNotice.Caption = "The words do not stand in the contract.";
        return;
    }
    ++Revision;
    Moved(static_cast<int>(found), static_cast<int>(words.size()));
}

void frmEditor::Run(Program& program, std::string_view name) {
    if (name == "mnuFileImport") {
        ParseTextStrings(program);
    } else if (name == "mnuFileExportAndExit") {
        if (!RefusedWhileCounting(program) && UpdateMyContract(program)) {
            modWindows::Close(program, *this);
        }
    } else if (name == "mnuFileExit") {
        Form_Cancel(program);
    } else if (name == "mnuEditUndo") {
        Undo();
    } else if (name == "mnuEditRedo") {
        Redo();
    } else if (name == "mnuEditSelectAll") {
        SelectAll();
    } else if (name == "mnuEditRemoveCRLF") {
        ReplaceLinefeeds(program);
    } else if (name == "mnuEditCopy") {
        mnuEditCopy_Click(program);
    } else if (name == "mnuHelpContents") {
        program.platform.shell.Open(paths::Join(program.folders.InstallFolder, "Help/editor.htm"));
    }
}

bool frmEditor::MayLeave(Program& program, Leaving) {
    return !EditorDirty || program.platform.questions.MsgBox(
                               "The Contract Language has not been exported to the proposal. Exit anyway?",
                               Buttons::YesNo, "Contract Language has been Changed",
                               {.Default = Answer::No,
                                .Lost = "The changes to the contract language will be lost."}) == Answer::Yes;
}

void frmEditor::KeepUnsaved(Program& program) {
    if (EditorDirty) {
        modRescue::KeepOfProposal(program, ".contract.txt", txtCharCount.Text(), modRescue::Back::Told);
    }
}

void frmEditor::Form_Cancel(Program& program) {
    if (MayLeave(program, Leaving::Run)) {
        modWindows::Close(program, *this);
    }
}

namespace modContract {

void mnuManageEditor_Click(Program& program) {
    if (Window* open = modWindows::Find(program, "frmEditor")) {
        modWindows::BringToFront(*open);
        return;
    }
    modWindows::Show(program, std::make_unique<frmEditor>());
}

} // namespace modContract
