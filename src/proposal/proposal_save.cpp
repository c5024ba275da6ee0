#include "proposal/proposal_save.h"

#include "base/files.h"
#include "base/paths.h"
#include "money/shown_figures.h"
#include "money/totals.h"
#include "pages/fields.h"
#include "pages/titles.h"
#include "program/data_folders.h"
#include "program/errors.h"
#include "program/program.h"
#include "program/rewriting.h"
#include "program/saved_notice.h"
#include "proposal/backup.h"
#include "proposal/file_names.h"
#include "proposal/long_texts.h"
#include "proposal/property_file.h"
#include "proposal/proposal_bytes.h"
#include "proposal/run_marker.h"
#include "proposal/side_files.h"

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

/// Whether the proposal may be saved with the figures as they are.
bool MaySaveFigures(Program& program) {
    if (program.hooks.TakeFreshFigures) {
        program.hooks.TakeFreshFigures(program);
    } else {
        modTotals::SumAgain(program);
    }
    if (modTotals::TotalsDiffer(program)) {
        program.totals.TotalsStale = true;
        program.platform.questions.MsgBox(modTotals::DiscrepancyMessage(), Buttons::Ok, "");
        return true; // the person knows
    }
    return modTotals::MayShowFigures(program);
}

bool Refused(Program& program) {
    const bool refused = program.document.Cancelled;
    program.document.Cancelled = false;
    return refused;
}

/// Whether the proposal may be written under its name; asks and tells what there is to ask and tell.
bool NameIsSettled(Program& program) {
    DocumentState& document = program.document;
    if (!document.SaveAsActive && modNames::IllegalFileName(program, document.FileName)) {
        GoToClientName(program);
        return false;
    }
    if (!document.FileExists && !document.HasName()) {
        program.platform.questions.MsgBox(
            "Please enter the client's name in the appropriate area and save again.", Buttons::Ok, "");
        GoToClientName(program);
        return false;
    }
    const std::string path = paths::Join(document.FilePath, document.FileName);
    if (!files::ExistsExactly(path)) {
        return true;
    }
    if (document.FileExists && !document.SaveAsActive && files::ChangedSince(path, document.SavedFile)) {
        return modRewrite::MayOverwrite(program, path, document.SavedFile, "This proposal");
    }
    if (!document.FileExists || ClientNameChanged(program)) {
        modNames::ShowDuplicateFileOptions(program, document.FileName);
        return !Refused(program);
    }
    return true;
}

/// The properties, when one has changed.
SaveResult SaveProperties(Program& program) {
    if (!PropertiesWanted(program)) {
        return SaveResult::Saved;
    }
    if (program.hooks.AssignPropChanges) {
        program.hooks.AssignPropChanges(program);
    }
    // Where nobody writes new lines, what was read goes back as it came.
    return SavePropertyFile(program);
}

/// Where a proposal is written: never among the backups, and one from there as a proposal that has no file
/// yet. Puts back what it found unless the save was done.
class Place {
public:
    explicit Place(Program& program)
        : program_(program), folder_(program.document.FilePath), exists_(program.document.FileExists) {
        DocumentState& document = program.document;
        document.FilePath = modNames::SavingFolder(program);
        if (document.FilePath != folder_) {
            document.FileExists = document.FileExists && document.SaveAsActive;
        }
    }
    ~Place() {
        if (!taken_) {
            program_.document.FilePath = folder_;
            program_.document.FileExists = exists_;
        }
    }
    Place(const Place&) = delete;
    Place& operator=(const Place&) = delete;

    void Take() {
        taken_ = true;
        program_.document.FileExists = true;
        program_.document.FromBackup = false;
        program_.document.FolderOnShow = program_.document.FilePath;
    }

private:
    Program& program_;
    std::string folder_;
    bool exists_;
    bool taken_ = false;
};

void SavingSteps(Program& program, SaveResult& result) {
    DocumentState& document = program.document;
    if (program.hooks.CloseLabelWindow) {
        program.hooks.CloseLabelWindow(program);
    }
    if (!MaySaveFigures(program)) {
        return;
    }
    const bool first = !document.FileExists && !document.FromBackup;
    Place place(program);
    if (!NameIsSettled(program)) {
        return;
    }
    if (program.hooks.CollectQtyBoxes) {
        program.hooks.CollectQtyBoxes(program);
    }
    if (!MayCutLongTexts(program)) {
        return;
    }
    const std::string path = paths::Join(document.FilePath, document.FileName);
    const bool replacesAnother = first && files::ExistsExactly(path);
    // Should a write fail, the properties still count as unsaved.
    const bool properties = PropertiesChanged(program);
    const bool ownLayout = PropertiesWanted(program);
    const std::string before = program.main.Notice;
    const bool propertiesLost = SaveProperties(program) == SaveResult::NotSaved;
    const std::string ofProperties = program.main.Notice == before ? "" : program.main.Notice;
    document.SavedStateStale = properties;
    const std::string bytes = ProposalBytes(program);
    modRecovery::TellOfSave(program, bytes);
    modRewrite::WriteOver(path, bytes, document.SavedFile);
    document.TextFileName = std::string(paths::BaseOf(document.FileName)) + ".txt";
    program.format.EditingFormat = false;
    document.SavedTextBuf = document.CurrentTextBuf;
    document.SavedStateStale = propertiesLost;
    place.Take();
    result = SaveResult::Saved;
    if (replacesAnother) {
        modSideFile::LeaveOthersBehind(program, ownLayout ? modSideFile::OwnLayout::Written
                                                          : modSideFile::OwnLayout::None);
    }
    if (!propertiesLost) {
        modRecovery::NothingUnsaved(program);
        DropOwnBackup(program);
    }
    modTitles::UpdateEventNameLabels(program);
    TellSaved(program, "Proposal", path);
    if (!ofProperties.empty()) {
        program.main.Notice += ". " + ofProperties;
    }
    program.platform.questions.MsgBox("File was saved as " + document.FileName, Buttons::Ok, "");
}

} // namespace

SaveResult SaveEventFile(Program& program) {
    SaveResult result = SaveResult::NotSaved;
    Guarded(program, "SaveEventFile", [&] { SavingSteps(program, result); });
    return result;
}

bool ProposalHasFile(Program& program) {
    return program.document.FileExists || SaveEventFile(program) == SaveResult::Saved;
}

bool ClientNameChanged(const Program& program) {
    const auto client = static_cast<std::size_t>(kClientName);
    return program.document.CurrentTextBuf[PageId::frmP1][client] !=
           program.document.SavedTextBuf[PageId::frmP1][client];
}

} // namespace modFile
