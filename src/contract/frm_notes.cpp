#include "contract/frm_notes.h"

#include "base/text.h"
#include "program/errors.h"
#include "program/line_printing.h"
#include "program/program.h"
#include "program/windows.h"
#include "proposal/proposal_save.h"
#include "proposal/rescued.h"

#include <vector>

namespace {

/// Line ends of whatever kind as one character.
std::string WithLineFeeds(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == '\r') {
            result += '\n';
            at += at + 1 < text.size() && text[at + 1] == '\n' ? 1 : 0;
        } else {
            result += text[at];
        }
    }
    return result;
}

std::string WithCrLf(std::string_view text) {
    std::string result;
    for (const char character : WithLineFeeds(text)) {
        if (character == '\n') {
            result += text::kCrLf;
        } else {
            result += character;
        }
    }
    return result;
}

} // namespace

frmNotes::frmNotes() {
    Caption = "Footnotes for Event";
    Menu = {{"mnuFile", "", "&File", ""},
            {"mnuFileSave", "mnuFile", "&Save", "Ctrl+S"},
            {"mnuFilePrint", "mnuFile", "&Print", "Ctrl+P"}};
}

void frmNotes::Form_Load(Program& program) {
    OpenFootnoteFile(program);
    Form_Follow(program);
}

std::string frmNotes::FootnoteFile(const Program& program) const {
    return program.document.BaseName + ".hxt";
}

void frmNotes::OpenFootnoteFile(Program& program) {
    program.document.FootnoteFile = program.document.BaseName.empty() ? "" : FootnoteFile(program);
    file_ = modSideFile::Read(program, FootnoteFile(program), "OpenFootnoteFile");
    Locked = file_.Locked;
    FootnoteSavedText = file_.Bytes;
    FootnoteText = FootnoteSavedText;
    txtNotes = WithLineFeeds(FootnoteText);
    ++Revision;
}

void frmNotes::Form_Follow(Program& program) {
    lblEventName.Caption = program.document.BaseName;
    Caption = "Footnotes for Event";
    if (!program.document.BaseName.empty()) {
        Caption += " - " + program.document.BaseName;
    }
    Entry("mnuFileSave").Enabled = !Locked;
}

void frmNotes::txtNotes_Change(Program&, std::string_view text) {
    if (Locked || text == txtNotes) {
        return;
    }
    txtNotes = text;
    // As it was read again, it is what was read: an edit that was undone leaves no changed notes.
    FootnoteText = txtNotes == WithLineFeeds(FootnoteSavedText) ? FootnoteSavedText : WithCrLf(txtNotes);
}

void frmNotes::Run(Program& program, std::string_view name) {
    if (name == "mnuFileSave") {
        static_cast<void>(SaveFootnoteFile(program)); // what came of it has been told
    } else if (name == "mnuFilePrint") {
        mnuFilePrint_Click(program);
    }
}

bool frmNotes::SaveFootnoteFile(Program& program) {
    if (Locked || !modFile::ProposalHasFile(program)) {
        return false;
    }
    if (!modSideFile::Write(
            program, file_, FootnoteFile(program), FootnoteText,
            "These footnotes were changed by another program since you opened them. Overwrite them?",
            "SaveFootnoteFile")) {
        return false;
    }
    FootnoteSavedText = FootnoteText;
    program.document.HasNotes = true; // also for a text of nothing: there is a file now
    return true;
}

bool frmNotes::MayLeave(Program& program, Leaving) {
    if (Locked || FootnoteText == FootnoteSavedText) {
        return true;
    }
    switch (program.platform.questions.MsgBox(
        "The Footnote File has been changed. Do you want to save it?", Buttons::YesNoCancel,
        "Footnotes have been Changed",
        {.Default = Answer::Yes,
         .Lost = "The changes to the footnotes will be lost unless they are saved."})) {
    case Answer::Yes:
        return SaveFootnoteFile(program);
    case Answer::No:
        return true;
    default:
        return false;
    }
}

void frmNotes::Form_Cancel(Program& program) {
    if (MayLeave(program, Leaving::Proposal)) {
        modWindows::Close(program, *this);
    }
}

void frmNotes::KeepUnsaved(Program& program) {
    if (!Locked && FootnoteText != FootnoteSavedText) {
        modRescue::KeepOfProposal(program, ".hxt", FootnoteText, modRescue::Back::Offered);
    }
}

void frmNotes::mnuFilePrint_Click(Program& program) {
    std::vector<std::string> lines{"Notes for " + program.document.BaseName};
    for (std::string& line : text::SplitLines(txtNotes)) {
        lines.push_back(std::move(line));
    }
    constexpr float kSide = 540;
    modLines::Sheet sheet;
    sheet.Left = kSide;
    sheet.Right = kSide;
    Guarded(program, "PrintTheForm", [&] {
        if (modLines::PrintLines(program, {"Footnotes", program.document.BaseName}, lines, sheet) ==
            modLines::Printed::NoPrinter) {
            program.platform.questions.MsgBox("Could not find Printer.", Buttons::Ok, "");
        }
    });
}

namespace modNotes {

void mnuFileOpenFootnotes_Click(Program& program) {
    if (Window* open = modWindows::Find(program, "frmNotes")) {
        modWindows::BringToFront(*open);
        return;
    }
    modWindows::Show(program, std::make_unique<frmNotes>());
}

bool FootnotesShown(const Program& program) {
    return modWindows::Find(program, "frmNotes") != nullptr;
}

} // namespace modNotes
