#include "format/property_file.h"

#include "base/files.h"
#include "base/guard.h"
#include "format/area_font.h"
#include "format/label_looks.h"
#include "format/line_effects.h"
#include "format/unkept_values.h"
#include "pages/fields.h"
#include "pages/page_fonts.h"
#include "pages/page_geometry.h"
#include "pages/row_fields.h"
#include "pages/titles.h"
#include "program/errors.h"
#include "program/program.h"

namespace modProperties {

namespace {

using assignment::Fields;
using assignment::Kind;

constexpr int kTypeMismatch = 13;

void AddWeights(const Program& program, std::vector<std::string>& lines) {
    const FormatRecords& format = program.format;
    for (const PageId page : kLinePages) {
        for (int index = 0; index <= geometry::LastText(page); ++index) {
            const auto area = static_cast<std::size_t>(index);
            if (format.PropTextChanges[page][area].FontBold) {
                lines.push_back(assignment::BoldLine(IndexOf(page), index, true));
            } else if (format.FormatOpen && format.InFile[page][area].FontBold) {
                // Under its format the area would be bold again.
                lines.push_back(assignment::BoldLine(IndexOf(page), index, false));
            }
        }
    }
}

void AddRows(const Program& program, std::vector<std::string>& lines) {
    for (const PageId page : kLinePages) {
        const auto& records = program.format.PropTextChanges[page];
        for (int row = geometry::FirstRow(page); row <= geometry::LastRow(page); ++row) {
            if (records[static_cast<std::size_t>(row)].QtyBox) {
                lines.push_back(assignment::RowLine(IndexOf(page), row, true));
            }
        }
    }
}

/// A label's line says what stands on the page, which is what was sent. Those that a format has changed go
/// along: the format may be another one by the time the proposal is opened again.
void AddLabels(const Program& program, std::vector<std::string>& lines) {
    const FormatRecords& format = program.format;
    for (const PageId page : kEditedPages) {
        for (int index = 0; index <= geometry::LastLabel(page); ++index) {
            const auto label = static_cast<std::size_t>(index);
            if (format.PropLabelChanges[page][label].Changed ||
                (format.FormatOpen && format.FormatLabelChanges[page][label].Changed)) {
                lines.push_back(assignment::LabelLine(
                    IndexOf(page), index, modDesigner::LookOf(modDesigner::LabelAt(program, page, index))));
            }
        }
    }
}

[[nodiscard]] bool TakeWeight(Program& program, assignment::WorkingFields& working, const Fields& fields) {
    const auto line = working.TakeArea(fields);
    if (!line) {
        return false;
    }
    if (line->SetsWeight) {
        const auto index = static_cast<std::size_t>(line->Index);
        program.format.PropTextChanges[PageAt(line->Page)][index].FontBold = line->Bold;
    }
    return true;
}

[[nodiscard]] bool TakeRow(Program& program, assignment::WorkingFields& working, const Fields& fields) {
    const PageId page = PageAt(fields.Page);
    const bool before = modPages::ColumnsOn(program, page, fields.Index);
    const auto row = working.TakeRow(fields, before);
    if (!row) {
        return false;
    }
    modLineEffects::LayColumns(program, *row);
    const auto index = static_cast<std::size_t>(row->Index);
    program.format.PropTextChanges[page][index].QtyBox = row->Columns;
    if (row->Columns && !before) {
        // A row may have columns and nothing in them; its proposal is unchanged all the same.
        std::string line = modPages::ComposeLine(program, page, row->Index);
        program.document.SavedTextBuf[page][index] = line;
        program.document.CurrentTextBuf[page][index] = std::move(line);
    }
    return true;
}

[[nodiscard]] bool TakeLabel(Program& program, assignment::WorkingFields& working, const Fields& fields) {
    const auto line = working.TakeLabel(fields, modLineEffects::OwnLook(program, fields));
    if (!line) {
        return false;
    }
    const PageId page = PageAt(fields.Page);
    const LabelLook look = modLineEffects::LayLabelLine(program, page, fields.Index, *line);
    LabelChangeRecord& record = modDesigner::RecordOf(program.format.PropLabelChanges, page, fields.Index);
    modDesigner::PutLook(record, look);
    record.Changed = true;
    LabelChangeRecord& saved = modDesigner::RecordOf(program.format.LabelSavedState, page, fields.Index);
    modDesigner::PutLook(saved, look);
    saved.Changed = false;
    return true;
}

[[nodiscard]] bool TakeFont(Program& program, assignment::WorkingFields& working, const Fields& fields) {
    const auto font = working.TakeFont(fields, modLineEffects::FontInForce(program));
    if (font) {
        modLineEffects::LayFont(program, *font);
    }
    return font.has_value();
}

[[nodiscard]] bool TakePropertyLine(Program& program, assignment::WorkingFields& working,
                                    const Fields& fields) {
    switch (fields.What) {
    case Kind::txt:
        return TakeWeight(program, working, fields);
    case Kind::txq:
        return TakeRow(program, working, fields);
    case Kind::lbl:
        return TakeLabel(program, working, fields);
    case Kind::UDP:
        return TakeFont(program, working, fields);
    case Kind::pic:
        break; // a logo rides in a format only
    }
    return true;
}

void TakeLines(Program& program) {
    FormatRecords& format = program.format;
    assignment::WorkingFields working(assignment::WorkingFields::BadValue::IsFault);
    int read = 0;
    for (const std::string& line : format.PropertyLines) {
        const assignment::Reading reading = assignment::Read(line);
        if (reading.What == assignment::Outcome::Fault ||
            (reading.What == assignment::Outcome::Line &&
             !TakePropertyLine(program, working, reading.Values))) {
            format.PropertyLinesRead = read;
            throw files::FileError(kTypeMismatch, "The layout of this proposal was read only up to line " +
                                                      std::to_string(read) + ".");
        }
        ++read;
    }
}

/// The titles of all pages, and their looks for the next save; what the file had no line for needs none then.
void LayTitlesAsRead(Program& program) {
    const LabelChangeTable before = program.format.PropLabelChanges;
    modTitles::LayTitles(program);
    for (const PageId page : kEditedPages) {
        const auto index = static_cast<std::size_t>(geometry::TitleLabel(page));
        program.format.PropLabelChanges[page][index].Changed = before[page][index].Changed;
    }
}

/// The words that the lines have given title and heading.
void TakeTitles(Program& program) {
    DocumentState& document = program.document;
    const LabelChangeTable& table = program.format.PropLabelChanges;
    const LabelChangeRecord& heading = table[PageId::frmP2][0];
    constexpr std::string_view kPageOfHeading = "Page 2";
    if (heading.Changed && heading.Caption.ends_with(kPageOfHeading)) {
        document.PageHeading = heading.Caption.substr(0, heading.Caption.size() - kPageOfHeading.size());
    }
    const LabelChangeRecord& title =
        table[PageId::frmP1][static_cast<std::size_t>(geometry::TitleLabel(PageId::frmP1))];
    if (title.Changed && !title.Caption.empty()) {
        document.ClientCaption = title.Caption;
        document.TitleGiven = title.Caption != "Proposal for " + document.BaseName;
        LayTitlesAsRead(program);
    } else {
        modTitles::UpdateFooters(program);
    }
}

} // namespace

std::vector<std::string> PropertyLinesNow(const Program& program) {
    std::vector<std::string> lines;
    AddWeights(program, lines);
    AddRows(program, lines);
    AddLabels(program, lines);
    const AreaFont font = modLineEffects::FontInForce(program);
    if (!font.Name.empty() && font.Size != 0) {
        lines.push_back(assignment::FontLine(font));
    }
    return lines;
}

void AssignPropChanges(Program& program) {
    Guarded(program, "AssignPropChanges", [&] {
        program.format.PropertyLines = PropertyLinesNow(program);
        if (!program.document.BackingUp) {
            modUnkept::TellUnkeptProperties(program);
        }
    });
}

void ParsePropertyFile(Program& program) {
    program.format.PropertyLinesRead.reset();
    const ScopedFlag silent(program.guards.Loading);
    Guarded(program, "ParsePropertyFile", [&] { TakeLines(program); });
    modPages::ApplyPageFonts(program);
    modAreaFont::PaintAreasAnew(program);
    TakeTitles(program);
    modDesigner::SaveBaseLabels(program);
}

} // namespace modProperties
