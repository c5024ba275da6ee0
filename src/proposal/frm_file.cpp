#include "proposal/frm_file.h"
#include "proposal/backup.h"

#include "base/dates.h"
#include "base/file_error.h"
#include "base/files.h"
#include "base/numbers.h"
#include "base/paths.h"
#include "base/rows.h"
#include "base/text.h"
#include "pages/fields.h"
#include "pages/logo.h"
#include "program/data_folders.h"
#include "program/errors.h"
#include "program/program.h"
#include "program/windows.h"
#include "proposal/delete_files.h"
#include "proposal/file_names.h"
#include "proposal/property_file.h"
#include "proposal/proposal_open.h"
#include "proposal/reset.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

constexpr std::string_view kUp = "..";
constexpr std::string_view kFormats = "*.fmt";
constexpr std::string_view kTerms = "*.fut";
constexpr std::string_view kTexts = "*.txt";

/// The folder above, with its separator; the root stays the root.
std::string Above(std::string_view folder) {
    std::string bare(folder);
    while (bare.size() > 1 && paths::IsSeparator(bare.back())) {
        bare.pop_back();
    }
    const std::string_view above = paths::Folder(bare);
    return above.empty() ? std::string(folder) : std::string(above);
}

std::string SizeText(std::uintmax_t size) {
    constexpr double kKilo = 1024;
    const auto bytes = static_cast<double>(size);
    if (bytes < kKilo) {
        return std::to_string(size) + (size == 1 ? " byte" : " bytes");
    }
    const bool mega = bytes >= kKilo * kKilo;
    return numbers::Format(bytes / (mega ? kKilo * kKilo : kKilo), "#,##0.0") + (mega ? " MB" : " KB");
}

bool IsProposalName(std::string_view name) {
    const std::string_view extension = paths::ExtensionOf(name);
    return text::EqualNoCase(extension, "hef") || text::EqualNoCase(extension, "hwf");
}

} // namespace

void frmFile::Form_Load(Program& program) {
    DocumentState& document = program.document;
    const std::string_view what = document.DeleteMode ? "delete." : "open.";
    lblHelp.Caption =
        "Double-Click on the Drive or Folder category to find the file you wish to " + std::string(what);
    lblPointOpen.Caption = document.DeleteMode ? "Delete" : "Open";
    document.IgnoreProperties = false;
    filePathBefore_ = document.FilePath;
    Drive1.Items = {"/", paths::WithSeparator(program.folders.Drives.Home)};
    for (const std::string& place : program.folders.Drives.MountPlaces) {
        for (const std::string& volume : files::Subfolders(place)) {
            Drive1.Items.push_back(paths::WithSeparator(paths::Join(place, volume)));
        }
    }
    GoTo(program, modFolders::DataFolder(program));
}

void frmFile::Form_Unload(Program& program) {
    program.document.FileFilter = "*.hef";
    program.document.DeleteMode = false;
    program.document.IgnoreProperties = false; // a choice for the file that was chosen here
    if (!done_) {
        // A folder that was only looked at must not become the place where the open proposal is saved.
        program.document.FilePath = filePathBefore_;
    }
}

void frmFile::Form_Cancel(Program& program) {
    modWindows::Close(program, *this);
}

void frmFile::GoTo(Program& program, std::string_view folder) {
    const std::string wanted = paths::WithSeparator(folder);
    try {
        LookAtFiles(program, wanted);
    } catch (const std::exception& error) {
        if (Folder.empty()) {
            Folder = wanted; // nothing was listed yet: show where we are, with an empty list
        }
        ReportError(program, "frmFile", error);
        return;
    }
    if (Folder != wanted) {
        txtFilter.Text.clear();
    }
    Folder = wanted;
    cmdOpenBack_Click(program); // nothing of the new list is chosen
    ShowFound(program);
    Dir1.Items = files::Subfolders(wanted);
    if (Folder != "/") {
        Dir1.Items.insert(Dir1.Items.begin(), std::string(kUp));
    }
    Dir1.ListIndex = -1;
    program.document.FilePath = Folder;
    Drive1.ListIndex = 0;
    for (std::size_t index = 1; index < Drive1.Items.size(); ++index) {
        if (Folder.starts_with(Drive1.Items[index])) {
            Drive1.ListIndex = static_cast<int>(index);
        }
    }
}

void frmFile::LookAtFiles(const Program& program, const std::string& folder) {
    const auto look = [&](const std::string& name) -> Found {
        try {
            const std::string path = paths::Join(folder, name);
            return {name, files::ModifiedSerial(path), files::Length(path)};
        } catch (const files::FileError&) {
            return {name}; // gone meanwhile, or closed to us: choosing it tells
        }
    };
    const std::vector<std::string> names = files::List(folder, program.document.FileFilter);
    std::vector<Found> found;
    found.reserve(names.size());
    for (const std::string& name : names) {
        found.push_back(look(name));
    }
    found_ = std::move(found);
}

void frmFile::ShowFound(Program& program) {
    std::vector<Found> shown;
    const std::string part = text::Lower(txtFilter.Text);
    std::copy_if(found_.begin(), found_.end(), std::back_inserter(shown),
                 [&](const Found& file) { return text::Lower(file.Name).find(part) != std::string::npos; });
    // Files of one day or size stand by name.
    if (SortedBy == FileColumn::Modified) {
        std::ranges::stable_sort(shown, {}, &Found::Modified);
    } else if (SortedBy == FileColumn::Size) {
        std::ranges::stable_sort(shown, {}, &Found::Size);
    }
    if (Backwards) {
        std::ranges::reverse(shown);
    }
    FileList1.Items.clear();
    FileDates.clear();
    FileSizes.clear();
    FileList1.ListIndex = -1;
    for (const Found& file : shown) {
        if (file.Name == selected_) {
            FileList1.ListIndex = static_cast<int>(FileList1.Items.size());
        }
        FileList1.Items.push_back(file.Name);
        FileDates.push_back(dates::GeneralDate(file.Modified));
        FileSizes.push_back(SizeText(file.Size));
    }
    if (FileList1.ListIndex < 0) {
        cmdOpenBack_Click(program);
    }
}

void frmFile::FileList1_ColumnClick(Program& program, FileColumn column) {
    Backwards = column == SortedBy ? !Backwards : column != FileColumn::Name;
    SortedBy = column;
    ShowFound(program);
}

void frmFile::txtFilter_Change(Program& program, std::string_view text) {
    txtFilter.Text = text;
    ShowFound(program);
}

void frmFile::RefreshList(Program& program) {
    GoTo(program, std::string(Folder));
}

void frmFile::Drive1_Change(Program& program, int index) {
    if (HasRow(Drive1.Items, index)) {
        GoTo(program, std::string(Drive1.Items[static_cast<std::size_t>(index)]));
    }
}

void frmFile::Dir1_Change(Program& program, int index) {
    if (!HasRow(Dir1.Items, index)) {
        return;
    }
    const std::string chosen = Dir1.Items[static_cast<std::size_t>(index)];
    GoTo(program, chosen == kUp ? Above(Folder) : paths::Join(Folder, chosen));
}

void frmFile::FileList1_Click(Program& program, int index) {
    if (!HasRow(FileList1.Items, index)) {
        return;
    }
    FileList1.ListIndex = index;
    selected_ = FileList1.Items[static_cast<std::size_t>(index)];
    lblOpenFileName.Caption = selected_;
    if (!picFileOpen) {
        title_ = Caption;
    }
    Caption = IsProposalName(selected_) ? title_ + " - Event File" : title_;
    picFileOpen = true;
    OfferToIgnore(program);
}

void frmFile::OfferToIgnore(const Program& program) {
    const DocumentState& document = program.document;
    const auto hasProperties = [&] {
        return IsProposalName(selected_) &&
               files::FileIsThere(Folder, std::string(paths::BaseOf(selected_)) + ".hpf");
    };
    chkProp.Visible = !program.format.EditingFormat && !document.DeleteMode &&
                      (selected_.empty() ? IsProposalName(document.FileFilter) : hasProperties());
}

void frmFile::chkProp_Click(Program& program) {
    chkProp.Value = !chkProp.Value;
    program.document.IgnoreProperties = chkProp.Value;
}

void frmFile::cmdOpenBack_Click(Program& program) {
    if (picFileOpen) {
        Caption = title_;
    }
    picFileOpen = false;
    selected_.clear();
    FileList1.ListIndex = -1;
    OfferToIgnore(program);
}

void frmFile::cmdOpenCancel_Click(Program& program) {
    modWindows::Close(program, *this);
}

void frmFile::cmdOpenOK_Click(Program& program) {
    if (selected_.empty()) {
        return;
    }
    if (program.document.DeleteMode) {
        DeleteSelected(program);
    } else if (IsProposalName(selected_)) {
        OpenProposal(program);
    } else if (program.document.FileFilter == kFormats) {
        OpenFormat(program);
    } else if (program.document.FileFilter == kPictureFiles) {
        OpenLogo(program);
    } else if (program.document.FileFilter == kTerms) {
        program.run.FUTFileName = selected_;
        program.run.TermsPinned = true;
        Finish(program);
        if (program.hooks.ReadFrequentlyUsedTerms) {
            program.hooks.ReadFrequentlyUsedTerms(program);
        }
    } else if (program.document.FileFilter == kTexts) {
        const std::string file = paths::Join(Folder, selected_);
        Finish(program);
        if (program.hooks.ReadTextFile) {
            program.hooks.ReadTextFile(program, file);
        }
    }
}

void frmFile::Finish(Program& program) {
    // Form_Unload puts the working folder back, for nothing of the proposal has moved.
    modWindows::Close(program, *this);
}

void frmFile::OpenFormat(Program& program) {
    FormatRecords& format = program.format;
    const FormatRecords before = format;
    const bool loadDefault = program.settings.LoadDefaultFormat;
    format.FormatTextChanges = {};
    format.FormatLabelChanges = {};
    format.FormatLines.clear();
    format.FormatFolder = Folder;
    format.FormatName = selected_;
    format.FormatOpen = true;
    program.settings.LoadDefaultFormat = false;
    if (modReset::StartNewFile(program) == modReset::ResetResult::Refused) {
        format = before;
        program.settings.LoadDefaultFormat = loadDefault;
        return;
    }
    Finish(program);
    modNames::LeaveBackup(program);
    modFields::GiveFocus(program, {PageId::frmP1, FieldKind::txt, 0});
}

void frmFile::OpenLogo(Program& program) {
    const std::string path = paths::Join(Folder, selected_);
    const std::optional<PictureSize> size = modLogo::ShowLogo(program, path);
    if (!size) {
        program.platform.questions.MsgBox("The file " + selected_ + " is not a picture that can be shown.",
                                          Buttons::Ok, "");
        return;
    }
    const PagePicture& logo = program.pages[PageId::frmP1].pic;
    FormatRecords& format = program.format;
    format.LogoPath = path; // the settings keep theirs until this one is made the default
    format.LogoLeft = logo.Left;
    format.LogoTop = logo.Top;
    format.LogoChanged = true;
    format.Touched = true;
    Finish(program);
    program.main.Notice = modLogo::kNotInTheProposal;
    if (const auto message = modLogo::ScaledMessage(*size)) {
        program.platform.questions.MsgBox(*message, Buttons::Ok, "");
    }
}

void frmFile::OpenProposal(Program& program) {
    DocumentState& document = program.document;
    document.FilePath = Folder;
    const std::string name = selected_;
    // Read first: a file that has gone meanwhile must not cost the proposal that stands.
    const std::optional<modFile::RawProposal> raw = modFile::LoadProposal(program, name);
    if (!raw) {
        RefreshList(program);
        return;
    }
    if (modReset::StartNewFile(program) == modReset::ResetResult::Refused) {
        return;
    }
    const bool backup = paths::SameFolder(document.FilePath, modFolders::BackupFolder(program));
    document.FromBackup = backup;
    modFile::ShowProposal(program, name, *raw);
    document.PropertiesIgnored = document.IgnoreProperties;
    if (!document.IgnoreProperties) {
        modFile::ReadFileProperties(program);
    }
    modFile::TakeUpUnnamed(program, name);
    done_ = true;
    modWindows::Close(program, *this);
    modFields::GiveFocus(program, {PageId::frmP1, FieldKind::txt, 0});
}

void frmFile::DeleteSelected(Program& program) {
    Questions& questions = program.platform.questions;
    if (questions.MsgBox(
            "Are you sure you want to delete this file?", Buttons::YesNo, "Preparing to Delete File.",
            {.Default = Answer::No, .Lost = modFile::LossOfProposal(Folder, selected_)}) != Answer::Yes) {
        return;
    }
    try {
        modFile::DeleteProposalFiles(Folder, selected_);
    } catch (const std::exception& error) {
        questions.MsgBox("An Error occurred trying to delete the file.", Buttons::Ok, "");
        ReportError(program, "frmFile", error);
    }
    RefreshList(program);
    Caption = "Delete File...";
}
