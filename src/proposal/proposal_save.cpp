#include "proposal/proposal_save.h"

#include "base/files.h"
#include "base/guard.h"
#include "base/paths.h"
#include "base/text.h"
#include "money/totals.h"
#include "pages/fields.h"
#include "pages/titles.h"
#include "program/data_folders.h"
#include "program/errors.h"
#include "program/program.h"
#include "proposal/file_names.h"
#include "proposal/long_texts.h"
#include "proposal/property_file.h"
#include "proposal/slot_widths.h"

#include <string>

namespace modFile {

namespace {

constexpr int kClientName = 2;

void GoToClientName(Program& program) {
    if (program.hooks.UpdatePageButtons) {
        program.hooks.UpdatePageButtons(program, IndexOf(PageId::frmP1));
    }
    modFields::GiveFocus(program, {PageId::frmP1, FieldKind::txt, kClientName});
}

void CompareTotals(Program& program) {
    // A backup comes in the middle of typing and leaves the text under the cursor as it stands.
    if (program.hooks.TakeFreshFigures && !program.document.BackingUp) {
        program.hooks.TakeFreshFigures(program);
    } else {
        modTotals::SumAgain(program);
    }
    if (modTotals::TotalsDiffer(program)) {
        program.totals.TotalsStale = true;
        program.platform.questions.MsgBox(modTotals::DiscrepancyMessage(), Buttons::Ok, "");
    }
}

/// Whether the proposal may be written under its name; asks and tells what there is to ask and tell.
bool NameIsSettled(Program& program) {
    DocumentState& document = program.document;
    if (document.FilePath.empty()) {
        document.FilePath = modFolders::DataFolder(program);
    }
    if (!document.SaveAsActive && modNames::IllegalFileName(program, document.FileName)) {
        GoToClientName(program);
        return false;
    }
    if (document.FileExists && !ClientNameChanged(program)) {
        return true;
    }
    if (!document.FileExists && !document.HasName()) {
        program.platform.questions.MsgBox(
            "Please enter the client's name in the appropriate area and save again.", Buttons::Ok, "");
        GoToClientName(program);
        return false;
    }
    if (FileIsThere(document.FilePath, document.FileName)) {
        modNames::ShowDuplicateFileOptions(program, document.FileName);
        if (document.Cancelled) {
            document.Cancelled = false;
            return false;
        }
    }
    return true;
}

/// The properties, when one has changed.
SaveResult SaveProperties(Program& program) {
    // What a client was sent must print the same when the format is another one.
    const bool firstUnderFormat = program.format.FormatOpen && !program.document.FileExists;
    if (!PropertiesChanged(program) && !firstUnderFormat) {
        return SaveResult::Saved;
    }
    if (program.hooks.AssignPropChanges) {
        program.hooks.AssignPropChanges(program);
    }
    // Where nobody writes new lines, what was read goes back as it came.
    return SavePropertyFile(program);
}

std::string MakeBytes(const Program& program) {
    proposal::Fields fields;
    for (const PageId page : kEditedPages) {
        const auto& texts = program.document.CurrentTextBuf[page];
        fields[page].reserve(texts.size());
        for (std::size_t index = 0; index < texts.size(); ++index) {
            // A mark beside nothing says nothing and would come back as a text.
            const bool marked = IsLinePage(page) && program.format.PropTextChanges[page][index].TaxExempt &&
                                !text::Trim(texts[index]).empty();
            fields[page].push_back({texts[index], marked});
        }
    }
    return proposal::Encode(fields, SlotWidths(program));
}

void WriteFile(Program& program) {
    const DocumentState& document = program.document;
    const std::string bytes = MakeBytes(program);
    const std::string folder = document.BackingUp ? modFolders::BackupFolder(program) : document.FilePath;
    const std::string path = paths::Join(folder, document.FileName);
    if (files::Exists(path)) {
        files::Delete(path);
    }
    files::WriteWhole(path, bytes);
}

void SavingSteps(Program& program, SaveResult& result) {
    DocumentState& document = program.document;
    if (program.hooks.CloseLabelWindow && !document.BackingUp) {
        program.hooks.CloseLabelWindow(program);
    }
    CompareTotals(program);
    if (!NameIsSettled(program)) {
        return;
    }
    if (program.hooks.CollectQtyBoxes) {
        program.hooks.CollectQtyBoxes(program);
    }
    if (!document.BackingUp && !MayCutLongTexts(program)) {
        return;
    }
    // Should a write fail, the properties still count as unsaved.
    const bool properties = PropertiesChanged(program);
    const bool propertiesLost = SaveProperties(program) == SaveResult::NotSaved;
    document.SavedStateStale = properties;
    document.TextFileName = std::string(paths::BaseOf(document.FileName)) + ".txt";
    program.format.EditingFormat = false;
    WriteFile(program);
    document.SavedTextBuf = document.CurrentTextBuf;
    document.FileExists = true;
    document.SavedStateStale = propertiesLost;
    result = SaveResult::Saved;
    modTitles::UpdateEventNameLabels(program);
    if (!document.BackingUp) {
        program.platform.questions.MsgBox("File was saved as " + document.FileName, Buttons::Ok, "");
    }
}

} // namespace

SaveResult SaveEventFile(Program& program) {
    SaveResult result = SaveResult::NotSaved;
    const OnLeaving settle([&] { program.document.BackingUp = false; });
    Guarded(program, "SaveEventFile", [&] { SavingSteps(program, result); });
    return result;
}

void BackupThisFile(Program& program) {
    if (program.document.FileName.size() <= 4) {
        return;
    }
    Guarded(program, "BackupThisFile", [&] {
        // The backup that stands is deleted only where the new one is written: a save that stops at a
        // question must not cost it.
        const std::string path = paths::Join(modFolders::BackupFolder(program), program.document.FileName);
        if (files::Exists(path)) {
            files::ClearAttributes(path);
        }
        program.document.BackingUp = true;
        SaveEventFile(program);
    });
}

bool ClientNameChanged(const Program& program) {
    const auto client = static_cast<std::size_t>(kClientName);
    return program.document.CurrentTextBuf[PageId::frmP1][client] !=
           program.document.SavedTextBuf[PageId::frmP1][client];
}

} // namespace modFile
