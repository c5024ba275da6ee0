#include "format/format_file.h"

#include "base/files.h"
#include "base/guard.h"
#include "base/paths.h"
#include "base/text.h"
#include "editing/columns.h"
#include "format/area_font.h"
#include "format/format_figures.h"
#include "format/label_looks.h"
#include "format/line_effects.h"
#include "format/logo.h"
#include "pages/page_fonts.h"
#include "pages/page_geometry.h"
#include "pages/row_fields.h"
#include "program/errors.h"
#include "program/program.h"

namespace modFormat {

namespace {

using assignment::Fields;
using assignment::Kind;

void TakeArea(Program& program, const assignment::AreaAssignment& line) {
    TextArea& area = program.pages[PageAt(line.Page)].txt[static_cast<std::size_t>(line.Index)];
    TextChangeRecord& record =
        program.format.FormatTextChanges[PageAt(line.Page)][static_cast<std::size_t>(line.Index)];
    AreaInFormat& kept = program.format.InFile[PageAt(line.Page)][static_cast<std::size_t>(line.Index)];
    const bool marks = line.TaxExempt && geometry::IsAmount(PageAt(line.Page), line.Index);
    if (line.Bold && (line.SetsWeight || line.Text || marks)) {
        record.FontBold = true;
        kept.FontBold = true;
    }
    if (!IsLinePage(PageAt(line.Page))) {
        return; // the final page's figures are reckoned, not laid
    }
    if (line.Text) {
        area.Text = *line.Text;
        record.Text = *line.Text;
        kept.Text = *line.Text;
        record.FormatText = !program.format.OverwriteFormatText;
    }
    if (marks) {
        modPages::SetNoTaxMark(program, PageAt(line.Page), line.Index, modPages::Mark::Shown);
        record.TaxExempt = true;
        // The proposal's file takes its mark from here.
        program.format.PropTextChanges[PageAt(line.Page)][static_cast<std::size_t>(line.Index)].TaxExempt =
            true;
    }
}

void TakeLabel(Program& program, const Fields& fields, const LabelLook& line) {
    const PageId page = PageAt(fields.Page);
    auto& builtIn = program.format.BuiltIn[page][static_cast<std::size_t>(fields.Index)];
    if (!builtIn) {
        builtIn = modLineEffects::OwnLook(program, fields);
    }
    const LabelLook look = modLineEffects::LayLabelLine(program, page, fields.Index, line);
    LabelChangeRecord& record = modDesigner::RecordOf(program.format.FormatLabelChanges, page, fields.Index);
    modDesigner::PutLook(record, look);
    record.Changed = true;
    record.FromFormat = true;
    modDesigner::PutLook(modDesigner::RecordOf(program.format.LabelSavedState, page, fields.Index), look);
}

void TakeLine(Program& program, assignment::WorkingFields& working, const Fields& fields) {
    switch (fields.What) {
    case Kind::txt:
        if (const auto area = working.TakeArea(fields)) {
            TakeArea(program, *area);
        }
        break;
    case Kind::txq: {
        const bool now = modPages::ColumnsOn(program, PageAt(fields.Page), fields.Index);
        if (const auto row = working.TakeRow(fields, now)) {
            modLineEffects::LayRow(program, *row);
        }
        break;
    }
    case Kind::lbl:
        if (const auto look = working.TakeLabel(fields, modLineEffects::OwnLook(program, fields))) {
            TakeLabel(program, fields, *look);
        }
        break;
    case Kind::pic: {
        const PagePicture& logo = program.pages[PageId::frmP1].pic;
        if (const auto picture = working.TakePicture(fields, logo.Left, logo.Top)) {
            modLogo::TakeFormatLogo(program, picture->Path, picture->Left, picture->Top);
        }
        break;
    }
    case Kind::UDP:
        if (const auto font = working.TakeFont(fields, modLineEffects::FontInForce(program))) {
            modLineEffects::LayFont(program, *font);
        }
        break;
    }
}

/// The proposal's table takes the bold too: a change of font lays it from there.
void LayBold(Program& program) {
    for (const PageId page : kEditedPages) {
        auto& areas = program.pages[page].txt;
        for (std::size_t index = 0; index < areas.size(); ++index) {
            if (program.format.FormatTextChanges[page][index].FontBold) {
                areas[index].FontBold = true;
                program.format.PropTextChanges[page][index].FontBold = true;
            }
        }
    }
}

void Refuse(Program& program, const std::exception& error) {
    FormatRecords& format = program.format;
    const std::string message = "The format " + format.FormatName + " in " + format.FormatFolder +
                                " could not be read; new proposals start without it.";
    WriteErrorLog(program, message + std::string(text::kCrLf) + error.what() + std::string(text::kCrLf));
    format.FormatOpen = false;
    format.FormatName.clear();
    if (!format.RefusalTold) {
        format.RefusalTold = true;
        program.platform.questions.MsgBox(message, Buttons::Ok, "");
    }
}

void LayLines(Program& program) {
    program.document.WindowTitle = "Quillbrook - Format File = " + program.format.FormatName;
    ParseFormatFile(program);
    LayBold(program);
    modLogo::LayPendingLogo(program);
    TakeFormatFigures(program);
}

} // namespace

void ParseFormatFile(Program& program) {
    {
        const ScopedFlag silent(program.guards.Loading);
        assignment::WorkingFields working(assignment::WorkingFields::BadValue::LeavesWorkingValue);
        for (const std::string& line : program.format.FormatLines) {
            const assignment::Reading reading = assignment::Read(line);
            if (reading.What == assignment::Outcome::Line) {
                TakeLine(program, working, reading.Values);
            }
        }
        // A sign beside an amount has the areas' font, whatever its line said.
        modPages::ApplyPageFonts(program);
        modAreaFont::PaintAreasAnew(program);
    }
    modDesigner::SaveBaseLabels(program);
}

void OpenFormatFile(Program& program) {
    FormatRecords& format = program.format;
    std::string bytes;
    try {
        bytes = files::ReadAll(paths::Join(format.FormatFolder, format.FormatName));
    } catch (const std::exception& error) {
        Refuse(program, error);
        return;
    }
    format.FormatSeen = files::SeenIn(bytes);
    Guarded(program, "OpenFormatFile", [&] {
        format.FormatLines = text::SplitLines(bytes);
        if (!format.FormatLines.empty()) {
            LayLines(program);
        }
    });
    format.FontOfFile = modLineEffects::FontInForce(program);
}

} // namespace modFormat
