#include "proposal/lifecycle.h"

#include "base/files.h"
#include "base/guard.h"
#include "base/paths.h"
#include "base/text.h"
#include "money/totals.h"
#include "pages/fields.h"
#include "pages/page_geometry.h"
#include "pages/titles.h"
#include "program/data_folders.h"
#include "program/errors.h"
#include "program/program.h"
#include "program/rewriting.h"
#include "program/saved_notice.h"
#include "program/windows.h"
#include "proposal/delete_files.h"
#include "proposal/file_names.h"
#include "proposal/frm_file.h"
#include "proposal/property_file.h"
#include "proposal/proposal_save.h"
#include "proposal/reset.h"
#include "proposal/side_files.h"

#include <algorithm>
#include <array>

namespace modProposal {

namespace {

void SaveAsSteps(Program& program) {
    DocumentState& document = program.document;
    if (program.totals.HasAmounts()) {
        modTotals::UpdateRunningTotals(program);
    }
    const std::string reply = program.platform.questions.InputBox("Please input the File Name below.",
                                                                  "Saving File As...", document.BaseName);
    const std::string name(text::Trim(reply));
    if (name.empty()) {
        program.platform.questions.MsgBox("No name entered. File not saved.", Buttons::Ok, "");
        return;
    }
    const ScopedFlag active(document.SaveAsActive);
    if (modNames::IllegalFileName(program, name)) {
        return;
    }
    const std::string fileName = name + ".hef";
    const std::string path = paths::Join(modNames::SavingFolder(program), fileName);
    if (files::ExistsExactly(path) &&
        program.platform.questions.MsgBox(
            "A file with the name " + fileName + " already exists. Overwrite?", Buttons::YesNoCancel,
            "Preparing to Overwrite Existing Event File",
            {.Default = Answer::No, .Lost = "The file " + path + " will be replaced."}) != Answer::Yes) {
        program.platform.questions.MsgBox("Action Cancelled. File not saved.", Buttons::Ok, "");
        return;
    }
    const DocumentState before = document;
    modNames::SetBaseName(program, name);
    document.FileName = fileName;
    document.FileExists = true;
    if (!document.TitleGiven) {
        document.ClientCaption = "Proposal for " + document.BaseName;
        modTitles::UpdateFooters(program);
    }
    if (modFile::SaveEventFile(program) == modFile::SaveResult::NotSaved) {
        // The proposal keeps the name under which it is on the disk.
        modNames::SetBaseName(program, before.BaseName);
        document.FootnoteFile = before.FootnoteFile;
        document.DepositFile = before.DepositFile;
        document.FileName = before.FileName;
        document.FileExists = before.FileExists;
        document.ClientCaption = before.ClientCaption;
        modTitles::UpdateFooters(program);
        return;
    }
    if (program.hooks.AssignPropChanges) {
        program.hooks.AssignPropChanges(program);
    }
    if (modFile::SavePropertyFile(program) == modFile::SaveResult::NotSaved) {
        document.SavedStateStale = true; // they are asked about again when the proposal is left
    }
    modSideFile::FollowSaveAs(program, before);
    document.HasNotes = files::FileIsThere(modSideFile::FolderOf(program, document), document.FootnoteFile);
}

} // namespace

bool SomethingChanged(Program& program) {
    if (program.hooks.CollectQtyBoxes) {
        program.hooks.CollectQtyBoxes(program);
    }
    const DocumentState& document = program.document;
    for (const PageId page : kLinePages) {
        if (document.CurrentTextBuf[page] != document.SavedTextBuf[page]) {
            return true;
        }
    }
    const auto& current = document.CurrentTextBuf[PageId::frmP6];
    const auto& saved = document.SavedTextBuf[PageId::frmP6];
    return !std::equal(current.begin(), current.end(), saved.begin(), saved.end(),
                       [](const std::string& one, const std::string& other) {
                           return text::Trim(one) == text::Trim(other);
                       });
}

void AskToSave(Program& program) {
    if (program.hooks.CloseLabelWindow) {
        program.hooks.CloseLabelWindow(program); // what was typed there counts
    }
    if (!SomethingChanged(program) && !modFile::PropertiesChanged(program)) {
        return;
    }
    const Answer answer = program.platform.questions.MsgBox(
        "Some text has been changed. Do you want to save the changes?", Buttons::YesNoCancel,
        "File Properties have been Changed",
        {.Default = Answer::Yes, .Lost = modNames::UnsavedChanges(program)});
    if (answer == Answer::Yes) {
        // A save that could not be done must not cost the text: the command that asked stops.
        program.document.Cancelled = modFile::SaveEventFile(program) == modFile::SaveResult::NotSaved;
    } else if (answer != Answer::No) {
        program.document.Cancelled = true;
    }
}

bool MayGoOn(Program& program) {
    // What lies beside the proposal first: a deposit that is saved there still reaches the proposal's file.
    if (!modWindows::MayLeave(program, Leaving::Proposal)) {
        return false;
    }
    AskToSave(program);
    const bool goOn = !program.document.Cancelled;
    program.document.Cancelled = false;
    return goOn && MayLeaveFormat(program);
}

bool MayLeaveFormat(Program& program) {
    return !program.hooks.MayLeaveFormat || program.hooks.MayLeaveFormat(program);
}

void SaveEventFileAs(Program& program) {
    Guarded(program, "SaveEventFileAs", [&] { SaveAsSteps(program); });
}

void mnuFileNew_Click(Program& program) {
    if (!MayGoOn(program)) {
        return;
    }
    DocumentState& document = program.document;
    document.DocumentKind = "Event";
    if (modReset::StartNewFile(program) == modReset::ResetResult::Refused) {
        return;
    }
    const bool format = program.format.FormatOpen;
    modNames::LeaveBackup(program);
    if (!format) {
        modTitles::SetPageHeading(program, "Contract Proposal");
        Page& page = program.pages[PageId::frmP1];
        page.lbl[9].Caption = "Event Date";
        page.lbl[10].Caption = "Event Time";
        if (!program.run.TermsPinned) {
            program.run.FUTFileName = "Default Terms.fut";
            if (program.hooks.ReadFrequentlyUsedTerms) {
                program.hooks.ReadFrequentlyUsedTerms(program);
            }
        }
        if (program.settings.ShowCalc && program.hooks.ShowCalculator) {
            program.hooks.ShowCalculator(program);
        }
    }
    modFields::GiveFocus(program, {PageId::frmP1, FieldKind::txt, 0});
}

void mnuFileOpenEvent_Click(Program& program) {
    if (!MayGoOn(program)) {
        return;
    }
    auto window = std::make_unique<frmFile>();
    window->Caption = "Opening Proposal File";
    modWindows::Show(program, std::move(window));
}

void mnuFileOpenTextFile_Click(Program& program) {
    program.document.FileFilter = "*.txt";
    auto window = std::make_unique<frmFile>();
    window->Caption = "Opening Text File";
    modWindows::Show(program, std::move(window));
}

void mnuFileSaveEvent_Click(Program& program) {
    static_cast<void>(modFile::SaveEventFile(program)); // it has told what came of it
}

void mnuFileSaveAs_Click(Program& program) {
    SaveEventFileAs(program);
}

void mnuFileDelete_Click(Program& program) {
    Questions& questions = program.platform.questions;
    DocumentState& document = program.document;
    if (!document.FileExists) {
        questions.MsgBox("No such file exists. Select New to start a new proposal (Ctrl + N).", Buttons::Ok,
                         "");
        return;
    }
    if (questions.MsgBox(
            "Are you sure you want to delete this file?", Buttons::YesNo, "Preparing to Delete File.",
            {.Default = Answer::No, .Lost = modFile::LossOfProposal(document.FilePath, document.FileName)}) !=
            Answer::Yes ||
        !MayLeaveFormat(program)) {
        return;
    }
    try {
        modFile::DeleteProposalFiles(document.FilePath, document.FileName);
    } catch (const std::exception& error) {
        questions.MsgBox("An Error occurred trying to delete the file.", Buttons::Ok, "");
        ReportError(program, "mnuFileDelete_Click", error);
        return;
    }
    if (modReset::StartNewFile(program) == modReset::ResetResult::Done) {
        modNames::LeaveBackup(program);
    }
    modFields::GiveFocus(program, {PageId::frmP1, FieldKind::txt, 0});
}

namespace {

bool IsAnother(const std::string& path, const files::Seen& seen) {
    return files::ExistsExactly(path) && files::LookAt(path) != seen;
}

/// A backup may be older than the proposal whose place it takes.
bool MayReplace(const Program& program, const std::string& target, std::string_view bytes) {
    const std::string& name = program.document.FileName;
    const std::string layout = program.document.BaseName + ".hpf";
    const bool otherLayout = files::FileIsThere(program.document.FilePath, layout) &&
                             IsAnother(paths::Join(paths::Folder(target), layout),
                                       files::LookAt(paths::Join(program.document.FilePath, layout)));
    if (!IsAnother(target, files::SeenIn(bytes)) && !otherLayout) {
        return true;
    }
    return program.platform.questions.MsgBox("Replace the proposal " + name + " with this backup copy?",
                                             Buttons::YesNo, "Replacing the Original Proposal",
                                             {.Default = Answer::No,
                                              .Lost = "The file " + target +
                                                      (otherLayout ? " and its layout" : "") +
                                                      " as saved last will be replaced."}) == Answer::Yes;
}

} // namespace

void mnuFileRestoreFromBackup_Click(Program& program) {
    Guarded(program, "mnuFileRestoreFromBackup_Click", [&] {
        DocumentState& document = program.document;
        const std::string folder = modFolders::DataFolder(program);
        const std::string target = paths::Join(folder, document.FileName);
        const std::string bytes = files::ReadAll(paths::Join(document.FilePath, document.FileName));
        if (!MayReplace(program, target, bytes)) {
            return;
        }
        files::Seen seen = files::LookAt(target);
        modRewrite::WriteOver(target, bytes, seen);
        document.SavedFile = seen;
        TellSaved(program, "Backup put back, proposal", target);
        if (!document.TitleGiven) {
            document.ClientCaption = "Proposal for " + document.BaseName;
            modTitles::UpdateFooters(program);
        }
        const std::string layout = document.BaseName + ".hpf";
        if (files::FileIsThere(document.FilePath, layout)) {
            files::Copy(paths::Join(document.FilePath, layout), paths::Join(folder, layout));
            program.format.PropertyPath = paths::Join(folder, layout);
            program.format.PropertySeen = files::LookAt(program.format.PropertyPath);
        }
        document.FilePath = folder;
        document.FolderOnShow = folder;
        document.HasNotes = files::FileIsThere(folder, document.FootnoteFile);
        document.FromBackup = false;
    });
}

} // namespace modProposal
