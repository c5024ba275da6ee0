#include "output/text_export.h"

#include "base/files.h"
#include "base/guard.h"
#include "base/paths.h"
#include "base/text.h"
#include "editing/columns.h"
#include "editing/fresh_figures.h"
#include "money/shown_figures.h"
#include "money/totals.h"
#include "output/page_count.h"
#include "output/proposal_text.h"
#include "pages/fields.h"
#include "program/data_folders.h"
#include "program/errors.h"
#include "program/program.h"
#include "program/saved_notice.h"
#include "proposal/file_names.h"

namespace modExport {

namespace {

constexpr std::string_view kScratchFile = "TempClipboardInfo.txt";

/// Where a save would go.
std::string TargetFolder(const Program& program) {
    const DocumentState& document = program.document;
    return document.FromBackup || document.FilePath.empty() ? modFolders::DataFolder(program)
                                                            : document.FilePath;
}

void GoToClientName(Program& program) {
    constexpr int kClientName = 2;
    if (program.hooks.UpdatePageButtons) {
        program.hooks.UpdatePageButtons(program, IndexOf(PageId::frmP1));
    }
    modFields::GiveFocus(program, {PageId::frmP1, FieldKind::txt, kClientName});
}

/// Adds to what the strip has to tell.
void TellInStrip(Program& program, const std::string& words) {
    std::string& notice = program.main.Notice;
    notice += (notice.empty() ? "" : " ") + words;
}

std::string ScratchPath(const Program& program) {
    return paths::Join(modFolders::DataFolder(program), kScratchFile);
}

/// Deletes the scratch file, if there is one; false when it stays.
bool DropScratchFile(const Program& program) {
    try {
        if (const std::string path = ScratchPath(program); files::ExistsExactly(path)) {
            files::Delete(path);
        }
        return true;
    } catch (const files::FileError&) {
        return false;
    }
}

/// The scratch file holds the text while it goes elsewhere. It is a convenience: a folder that takes none
/// stops nothing.
class ScratchFile {
public:
    ScratchFile(Program& program, std::string_view text) : program_(program) {
        try {
            files::WriteWhole(ScratchPath(program), text);
        } catch (const files::FileError& error) {
            told_ = "The scratch file " + ScratchPath(program) + " could not be written: " + error.what();
        }
    }
    ~ScratchFile() {
        if (!DropScratchFile(program_) && told_.empty()) {
            told_ = "The scratch file " + ScratchPath(program_) + " could not be deleted.";
        }
        if (!told_.empty()) {
            TellInStrip(program_, told_); // beside what the export itself has told
        }
    }
    ScratchFile(const ScratchFile&) = delete;
    ScratchFile& operator=(const ScratchFile&) = delete;

private:
    Program& program_;
    std::string told_;
};

/// Whether the text may go out with the figures as they are.
bool TakeFigures(Program& program) {
    modFigures::TakeFresh(program);
    modColumns::CollectLines(program);
    modPageCount::CountPagesInUse(program);
    if (!program.totals.TotalsHidden && modTotals::TotalsDiffer(program)) {
        program.totals.TotalsStale = true;
        program.platform.questions.MsgBox(modTotals::DiscrepancyMessage(), Buttons::Ok, "");
        return true; // the person knows
    }
    return modTotals::MayShowFigures(program);
}

/// Whether the text may be written under the proposal's name; asks and tells what there is to ask and tell.
bool NameIsSettled(Program& program, const std::string& folder) {
    DocumentState& document = program.document;
    const std::string& name = program.exporting.ExportFileName;
    if (modNames::IllegalFileName(program, name)) {
        GoToClientName(program);
        return false;
    }
    if (name == ".txt") {
        program.platform.questions.MsgBox(
            "Please enter the client's name in the appropriate area and save again.", Buttons::Ok, "");
        GoToClientName(program);
        return false;
    }
    if (files::FileIsThere(folder, name)) {
        modNames::ShowDuplicateFileOptions(program, folder, name);
        if (document.Cancelled) {
            document.Cancelled = false;
            return false;
        }
    }
    return true;
}

void WriteTextFile(Program& program) {
    const std::string folder = TargetFolder(program);
    program.exporting.ExportFileName =
        program.document.TextFileName.empty() ? ".txt" : program.document.TextFileName;
    if (!NameIsSettled(program, folder)) {
        return;
    }
    const std::string path = paths::Join(folder, program.exporting.ExportFileName);
    files::WriteWhole(path, ProposalText(program));
    TellSaved(program, "Text", path);
    program.platform.questions.MsgBox("File was saved as " + path, Buttons::Ok, "");
}

void CopyToClipboard(Program& program) {
    const std::vector<DocumentLine> lines = ProposalLines(program);
    const std::string plain = PlainText(lines);
    const ScratchFile scratch(program, plain);
    program.platform.clipboard.SetTextAndTable(plain, HtmlTable(lines));
    program.platform.questions.MsgBox("Proposal copied to memory.", Buttons::Ok, "");
}

/// A proposal that has no file yet may be called what no file can be called.
std::string DocumentName(std::string_view baseName) {
    constexpr std::size_t kLongest = 200; // room for a number and the extension, in whatever characters
    std::string name(text::Trim(baseName).substr(0, kLongest));
    for (char& character : name) {
        const bool control = static_cast<unsigned char>(character) < ' ';
        character = control || modNames::HasIllegalCharacter({&character, 1}) ? '-' : character;
    }
    name = text::Trim(name);
    return name.empty() || name.front() == '.' ? "Proposal" + name : name;
}

void ExportToDocument(Program& program) {
    const std::vector<DocumentLine> lines = ProposalLines(program);
    const ScratchFile scratch(program, PlainText(lines));
    SaveAsWordDoc(program, lines);
}

} // namespace

std::string NoWordProcessorMessage() {
    return "Cannot find Microsoft Word which is necessary to perform SpellCheck.";
}

void SaveAsWordDoc(Program& program, const std::vector<DocumentLine>& lines) {
    Guarded(program, "SaveAsWordDoc", [&] {
        const std::unique_ptr<WordService> service =
            program.platform.words.ForWriting(DocumentName(program.document.BaseName));
        if (service == nullptr) {
            program.platform.questions.MsgBox(NoWordProcessorMessage(), Buttons::Ok, "");
            return;
        }
        service->AppShow();
        service->FileNew();
        service->Insert(lines);
        const WrittenDocument written = service->Written();
        program.main.Notice = "The proposal was exported to " + written.Path;
        if (!written.Opened) {
            program.platform.questions.MsgBox(
                text::Lines({NoWordProcessorMessage(), "", "The document was written to " + written.Path}),
                Buttons::Ok, "");
        }
    });
}

void SaveFileAsText(Program& program) {
    ExportState& state = program.exporting;
    const OnLeaving settle([&state] {
        state.ExportToClipboard = false;
        state.ExportToWord = false;
    });
    Guarded(program, "SaveFileAsText", [&] {
        // What a run that broke off has left; a file that cannot be deleted is told where it is written.
        static_cast<void>(DropScratchFile(program));
        if (!TakeFigures(program)) {
            return;
        }
        if (state.ExportToClipboard) {
            CopyToClipboard(program);
        } else if (state.ExportToWord) {
            ExportToDocument(program);
        } else {
            WriteTextFile(program);
        }
    });
}

void mnuFileSaveAsText_Click(Program& program) {
    SaveFileAsText(program);
}

void mnuFileCopyProposal_Click(Program& program) {
    program.exporting.ExportToClipboard = true;
    SaveFileAsText(program);
}

void mnuFileSaveToWord_Click(Program& program) {
    program.exporting.ExportToWord = true;
    SaveFileAsText(program);
}

} // namespace modExport
