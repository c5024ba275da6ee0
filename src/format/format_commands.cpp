#include "format/format_commands.h"

#include "base/files.h"
#include "base/paths.h"
#include "base/text.h"
#include "format/format_changes.h"
#include "format/format_save.h"
#include "format/frm_label_props.h"
#include "pages/fields.h"
#include "program/errors.h"
#include "program/program.h"
#include "program/windows.h"
#include "proposal/file_names.h"
#include "proposal/frm_file.h"
#include "proposal/lifecycle.h"
#include "proposal/property_file.h"
#include "proposal/reset.h"
#include "settings/settings.h"

#include <memory>

namespace modFormat {

namespace {

void ClearFormat(Program& program) {
    const FormatRecords before = program.format;
    const bool loadDefault = program.settings.LoadDefaultFormat;
    program.settings.LoadDefaultFormat = false;
    program.format.FormatName.clear();
    program.format.FormatOpen = false;
    program.format.FormatTextChanges = {}; // what it protected goes with the other texts
    program.format.FormatLabelChanges = {};
    program.format.FormatLines.clear();
    program.format.LogoPath.clear();
    if (modReset::StartNewFile(program) == modReset::ResetResult::Refused) {
        program.format = before;
        program.settings.LoadDefaultFormat = loadDefault;
        return;
    }
    modNames::LeaveBackup(program);
    modFields::GiveFocus(program, {PageId::frmP1, FieldKind::txt, 0});
}

bool IsDefault(const Program& program) {
    const std::string path = paths::Join(program.format.FormatFolder, program.format.FormatName);
    return text::EqualNoCase(paths::ResolveDrive(program.settings.DefaultFormatPath, program.folders.Drives),
                             path);
}

/// The format that new proposals began with is gone; without this each of them would ask for it.
void ForgetDefault(Program& program) {
    using modSettings::Key;
    program.settings.DefaultFormatPath.clear();
    program.settings.LoadDefaultFormat = false;
    modSettings::SetLine(program, Key::DefaultFileFormat, "");
    modSettings::SetLine(program, Key::LoadDefaultFormat, "False");
    if (modSettings::SaveUserPreferences(program)) {
        program.platform.questions.MsgBox(
            "This was the default format. New proposals start without a format from now on.", Buttons::Ok,
            "");
    }
}

} // namespace

void mnuFileFormatNew_Click(Program& program) {
    modDesigner::CloseLabelWindow(program);
    const bool asks = FormatHasChanges(program) || modProposal::SomethingChanged(program) ||
                      modFile::PropertiesChanged(program);
    if (asks && program.platform.questions.MsgBox(
                    text::Lines({"This action will clear all current data if",
                                 "the data hasn't already been saved. Continue?"}),
                    Buttons::YesNo, "Beginning New File Format",
                    {.Default = Answer::No, .Lost = modNames::UnsavedChanges(program)}) != Answer::Yes) {
        return;
    }
    if (modWindows::MayLeave(program, Leaving::Proposal) && MayLeaveFormat(program)) {
        ClearFormat(program);
    }
}

void mnuFileFormatOpen_Click(Program& program) {
    if (!modProposal::MayGoOn(program)) {
        return;
    }
    program.document.FileFilter = "*.fmt";
    auto window = std::make_unique<frmFile>();
    window->Caption = "Opening Format File";
    modWindows::Show(program, std::move(window));
}

void mnuFileFormatSave_Click(Program& program) {
    static_cast<void>(SaveFileFormat(program)); // what came of it has been told
}

void mnuFileFormatSaveAs_Click(Program& program) {
    program.format.FormatSaveAs = true;
    static_cast<void>(SaveFileFormat(program)); // what came of it has been told
}

void mnuFileFormatDelete_Click(Program& program) {
    Questions& questions = program.platform.questions;
    if (!program.format.FormatOpen) {
        questions.MsgBox("There's no Format File open.", Buttons::Ok, "");
        return;
    }
    if (!modProposal::MayGoOn(program)) {
        return;
    }
    const Answer answer =
        questions.MsgBox(text::Lines({"Are you sure you want to delete the shown Format?",
                                      program.format.FormatName + " in " + program.format.FormatFolder}),
                         Buttons::YesNo, "Deleting Format FIle", {.Default = Answer::No});
    if (answer != Answer::Yes) {
        return;
    }
    const bool wasDefault = IsDefault(program);
    const bool deleted = Guarded(program, "mnuFileFormatDelete_Click", [&] {
        files::Delete(paths::Join(program.format.FormatFolder, program.format.FormatName));
    });
    if (!deleted) {
        return;
    }
    if (wasDefault) {
        ForgetDefault(program);
    }
    ClearFormat(program);
}

void mnuFileFormatDefault_Click(Program& program) {
    const FormatRecords& format = program.format;
    modDesigner::CloseLabelWindow(program);
    const bool onDisk = format.FormatOpen &&
                        files::Exists(paths::Join(format.FormatFolder, format.FormatName)) &&
                        FileIsCurrent(program);
    if (onDisk) {
        static_cast<void>(MakeDefault(program)); // what came of it has been told
        return;
    }
    program.format.FormatMakeDefault = true;
    static_cast<void>(SaveFileFormat(program)); // what came of it has been told
}

} // namespace modFormat
