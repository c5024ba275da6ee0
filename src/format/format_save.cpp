#include "format/format_save.h"

#include "base/files.h"
#include "base/guard.h"
#include "base/paths.h"
#include "base/text.h"
#include "editing/columns.h"
#include "format/format_changes.h"
#include "format/format_lines.h"
#include "format/frm_label_props.h"
#include "format/label_looks.h"
#include "format/line_effects.h"
#include "format/logo.h"
#include "format/unkept_values.h"
#include "pages/page_geometry.h"
#include "pages/row_fields.h"
#include "program/data_folders.h"
#include "program/errors.h"
#include "program/program.h"
#include "program/rewriting.h"
#include "program/saved_notice.h"
#include "proposal/file_names.h"
#include "settings/settings.h"

#include <algorithm>
#include <optional>
#include <string>
#include <utility>

namespace modFormat {

namespace {

constexpr std::string_view kExtension = ".fmt";
constexpr int kSubscript = 9; // as the log numbers an index beyond its list

void Tell(const Program& program, std::string_view words) {
    program.platform.questions.MsgBox(words, Buttons::Ok, "");
}

bool Confirmed(const Program& program, std::string_view question, const std::string& lost) {
    return program.platform.questions.MsgBox(question, Buttons::YesNo, "",
                                             {.Default = Answer::No, .Lost = lost}) == Answer::Yes;
}

std::string TargetFolder(const Program& program) {
    return program.format.FormatFolder.empty() ? modFolders::DataFolder(program)
                                               : program.format.FormatFolder;
}

/// The name under which to save: the one that stands, or the person's. Nothing when there is none.
struct Name {
    std::string File;
    bool Asked = false;
};
std::optional<Name> SettleName(Program& program) {
    FormatRecords& format = program.format;
    if (!format.FormatName.empty() && !format.FormatSaveAs) {
        return Name{format.FormatName, false};
    }
    const std::string_view bare =
        format.FormatName.empty() ? std::string_view() : paths::BaseOf(format.FormatName);
    const std::string reply =
        program.platform.questions.InputBox("Please input the File Name below.", "Saving File As...", bare);
    std::string name(text::Trim(reply));
    if (name.size() >= kExtension.size() && text::EqualNoCase(text::Right(name, 4), kExtension)) {
        name.resize(name.size() - kExtension.size());
        name = text::Trim(std::string(name));
    }
    if (name.empty()) {
        Tell(program, "No name entered. File not saved.");
        return std::nullopt;
    }
    if (modNames::IllegalFileName(program, name)) {
        return std::nullopt;
    }
    return Name{name + std::string(kExtension), true};
}

bool HoldsText(const std::string& value, std::string_view placeholder) {
    const std::string_view trimmed = text::Trim(value);
    return !trimmed.empty() && trimmed != placeholder;
}

/// Whether the pages hold something of a client: his lines, or a row's words or figures.
bool HoldsClientData(const Program& program) {
    constexpr std::size_t kFirstClientLine = 2, kLastClientLine = 7;
    const auto& client = program.pages[PageId::frmP1].txt;
    for (std::size_t line = kFirstClientLine; line <= kLastClientLine; ++line) {
        if (HoldsText(client[line].Text, "")) {
            return true;
        }
    }
    for (const PageId page : kLinePages) {
        const Page& record = program.pages[page];
        for (int row = geometry::FirstRow(page); row <= geometry::LastRow(page); ++row) {
            const auto at = static_cast<std::size_t>(row);
            if (HoldsText(record.txt[at].Text, "") ||
                (modPages::ColumnsOn(program, page, row) &&
                 (HoldsText(record.txtQty[at].Text, "Qty.") || HoldsText(record.txtAmt[at].Text, "Amt.")))) {
                return true;
            }
        }
    }
    return false;
}

std::optional<Texts> SettleTexts(const Program& program) {
    if (!HoldsClientData(program)) {
        return Texts::LayoutAndTexts;
    }
    const Answer answer = program.platform.questions.MsgBox(
        "Shall the texts of this proposal become part of the format? New proposals will start with them.",
        Buttons::YesNoCancel, "",
        {.Default = Answer::Yes, .Words = {"Layout Only", "Layout and Texts", "Cancel"}});
    if (answer != Answer::Yes && answer != Answer::No) {
        return std::nullopt;
    }
    return answer == Answer::No ? Texts::LayoutAndTexts : Texts::LayoutOnly;
}

std::string BytesOf(const std::vector<std::string>& lines) {
    std::size_t size = 0;
    for (const std::string& line : lines) {
        size += line.size() + text::kCrLf.size();
    }
    std::string bytes;
    bytes.reserve(size);
    for (const std::string& line : lines) {
        bytes += line;
        bytes += text::kCrLf;
    }
    return bytes;
}

/// What the file holds now is no change any more.
void TakeAsSaved(Program& program) {
    FormatRecords& format = program.format;
    for (auto& page : format.FormatLabelChanges) {
        for (LabelChangeRecord& label : page) {
            label.Saved = label.Changed;
        }
    }
    for (const PageId page : kEditedPages) {
        for (std::size_t index = 0; index < format.FormatTextChanges[page].size(); ++index) {
            TextChangeRecord& area = format.FormatTextChanges[page][index];
            area.QtyChanged = false;
            format.InFile[page][index] = {area.FontBold, area.Text};
        }
    }
    format.FontOfFile = modLineEffects::FontInForce(program);
    format.LogoChanged = false;
    format.Touched = false;
}

void MarkProposalStale(Program& program) {
    const auto& texts = program.document.CurrentTextBuf;
    const bool text = std::any_of(texts.begin(), texts.begin() + kLinePageCount, [](const auto& page) {
        return std::any_of(page.begin(), page.end(),
                           [](const std::string& line) { return !text::Trim(line).empty(); });
    });
    if (program.document.FileExists || text) {
        program.document.SavedStateStale = true;
    }
}

/// The one thing on show that a format does not keep.
std::string WithoutBorder(const Program& program) {
    const PagePicture& logo = program.pages[PageId::frmP1].pic;
    return logo.Visible && logo.BorderStyle != 0 ? " without the logo's border" : "";
}

/// Writes the lines; false when the person refuses or it fails, which is reported.
bool Written(Program& program, const std::string& path, bool agreed) {
    FormatRecords& format = program.format;
    files::Seen seen = agreed ? files::LookAt(path) : format.FormatSeen;
    bool written = false;
    Guarded(program, "SaveFileFormat", [&] {
        written = modRewrite::Rewrite(program, path, BytesOf(format.FormatLines), seen, "This format") ==
                  modRewrite::Rewriting::Done;
    });
    if (written) {
        format.FormatSeen = seen;
        if (!format.LogoPath.empty()) {
            modLogo::KeepShown(program);
        }
        TellSaved(program, "Format" + WithoutBorder(program), path);
    }
    return written;
}

FormatSave SaveSteps(Program& program, const Name& name) {
    FormatRecords& format = program.format;
    modColumns::CollectQtyBoxes(program);
    if (!FormatHasChanges(program)) {
        Tell(program, "No properties have been changed. File Format not saved.");
        return FormatSave::NotSaved;
    }
    const std::string path = paths::Join(TargetFolder(program), name.File);
    if (name.Asked && files::Exists(path)) {
        if (!Confirmed(program, "File already exists. Overwrite?",
                       "What " + name.File + " holds now will be lost.")) {
            return FormatSave::NotSaved;
        }
    }
    const std::optional<Texts> texts = SettleTexts(program);
    if (!texts) {
        return FormatSave::NotSaved;
    }
    std::vector<std::string> linesBefore = format.FormatLines;
    const AfterLast after = AssignFormatPropChanges(program, *texts);
    if (after == AfterLast::NotMade) {
        return FormatSave::NotSaved;
    }
    modUnkept::TellUnkeptFormat(program);
    modDesigner::SaveBaseLabels(program);
    if (!Written(program, path, name.Asked)) {
        format.FormatLines = std::move(linesBefore);
        return FormatSave::NotSaved;
    }
    format.FormatFolder = TargetFolder(program);
    format.FormatName = name.File;
    TakeAsSaved(program);
    if (after == AfterLast::Fails) {
        throw files::FileError(kSubscript, "Subscript out of range");
    }
    if (format.FormatMakeDefault) {
        if (MakeDefault(program)) {
            TellSaved(program, "Default format" + WithoutBorder(program), path);
        }
    }
    format.FormatOpen = true;
    program.document.WindowTitle = "Quillbrook - Format File = " + format.FormatName;
    MarkProposalStale(program);
    return FormatSave::Saved;
}

} // namespace

bool MakeDefault(Program& program) {
    const std::string path = paths::Join(program.format.FormatFolder, program.format.FormatName);
    if (!files::Exists(path)) {
        return false;
    }
    const SettingsRecords before = program.settings;
    using modSettings::Key;
    program.settings.DefaultFormatPath = path;
    program.settings.LoadDefaultFormat = true;
    modSettings::SetLine(program, Key::DefaultFileFormat, path);
    modSettings::SetLine(program, Key::LoadDefaultFormat, "True");
    if (!modSettings::SaveUserPreferences(program)) {
        program.settings = before;
        return false;
    }
    return true;
}

FormatSave SaveFileFormat(Program& program) {
    FormatRecords& format = program.format;
    const OnLeaving clear([&] {
        format.FormatSaveAs = false;
        format.FormatMakeDefault = false;
    });
    modDesigner::CloseLabelWindow(program);
    FormatSave result = FormatSave::NotSaved;
    Guarded(program, "SaveFileFormat", [&] {
        if (const std::optional<Name> name = SettleName(program)) {
            result = SaveSteps(program, *name);
        }
    });
    return result;
}

bool MayLeaveFormat(Program& program) {
    if (!FormatIsUnsaved(program)) {
        return true;
    }
    const Answer answer = program.platform.questions.MsgBox(
        "The format " + program.format.FormatName + " has changes that are not saved.", Buttons::YesNoCancel,
        "", {.Default = Answer::Cancel, .Words = {"Save", "Discard", "Cancel"}});
    if (answer == Answer::Yes) {
        return SaveFileFormat(program) == FormatSave::Saved;
    }
    return answer == Answer::No;
}

} // namespace modFormat
