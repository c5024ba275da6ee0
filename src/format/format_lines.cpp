#include "format/format_lines.h"

#include "base/text.h"
#include "format/assignment_lines.h"
#include "format/label_looks.h"
#include "format/line_effects.h"
#include "pages/page_geometry.h"
#include "pages/row_fields.h"
#include "pages/titles.h"
#include "program/errors.h"
#include "program/program.h"

namespace modFormat {

namespace {

/// Areas of that width hold figures: those of a proposal never get into a format.
constexpr std::string_view kFigureWidth = "020";

void TakeAreas(const Program& program, PageId page, Texts texts, FormatTables& tables) {
    const auto& areas = program.pages[page].txt;
    for (std::size_t index = 0; index < areas.size(); ++index) {
        const TextArea& area = areas[index];
        TextChangeRecord& record = tables.Areas[page][index];
        const bool figure = text::Right(area.Tag, 3) == kFigureWidth;
        if (figure || texts == Texts::LayoutOnly) {
            record.Text = program.format.InFile[page][index].Text;
        } else if (!area.Text.empty()) {
            record.Text = area.Text;
        }
        record.FontBold = area.FontBold;
    }
    for (int row = geometry::FirstRow(page); row <= geometry::LastRow(page); ++row) {
        const auto index = static_cast<std::size_t>(row);
        TextChangeRecord& record = tables.Areas[page][index];
        record.QtyBox = modPages::ColumnsOn(program, page, row);
        const bool values = record.QtyBox && texts == Texts::LayoutAndTexts;
        record.QtyValue = values ? program.pages[page].txtQty[index].Text : std::string();
        record.AmtValue = values ? program.pages[page].txtAmt[index].Text : std::string();
    }
}

void TakeLabels(const Program& program, Texts texts, LabelChangeTable& table) {
    for (const PageId page : kEditedPages) {
        const auto& labels = program.pages[page].lbl;
        for (std::size_t index = 0; index < labels.size(); ++index) {
            if (!table[page][index].Changed) {
                continue;
            }
            const int at = static_cast<int>(index);
            if (texts == Texts::LayoutOnly && at == geometry::TitleLabel(page)) {
                // Each proposal lays its own; whose this one is, is nobody else's to read.
                PageLabel title = labels[index];
                modTitles::SetTitleWords(program, page, at, title, modTitles::NobodysTitle(page));
                modDesigner::PutLook(table[page][index], modDesigner::LookOf(title));
            } else {
                modDesigner::PutLook(table[page][index], modDesigner::LookOf(labels[index]));
            }
        }
    }
}

void AddAreas(const FormatTables& tables, std::vector<std::string>& lines) {
    // For the reader a bold stays in force: what follows one and is not bold has to say so.
    bool inForce = false;
    for (const PageId id : kLinePages) {
        const int page = IndexOf(id);
        for (int index = 0; index <= geometry::LastText(id); ++index) {
            const TextChangeRecord& record = tables.Areas[id][static_cast<std::size_t>(index)];
            if (record.FontBold) {
                lines.push_back(assignment::BoldLine(page, index, true));
                inForce = true;
            } else if (inForce && (!record.Text.empty() || record.TaxExempt)) {
                lines.push_back(assignment::BoldLine(page, index, false));
                inForce = false;
            }
            if (!record.Text.empty()) {
                lines.push_back(assignment::TextLine(page, index, record.Text));
            }
            if (record.TaxExempt) {
                lines.push_back(assignment::ExemptLine(page, index, true));
            }
        }
    }
}

void AddRows(const FormatTables& tables, std::vector<std::string>& lines) {
    for (const PageId page : kLinePages) {
        for (int row = geometry::FirstRow(page); row <= geometry::LastRow(page); ++row) {
            const TextChangeRecord& record = tables.Areas[page][static_cast<std::size_t>(row)];
            if (record.QtyBox) {
                lines.push_back(
                    assignment::RowLine(IndexOf(page), row, true, record.QtyValue, record.AmtValue));
            }
        }
    }
}

void AddLabels(const FormatTables& tables, std::vector<std::string>& lines) {
    for (const PageId page : kEditedPages) {
        for (int index = 0; index <= geometry::LastLabel(page); ++index) {
            const LabelChangeRecord& record = tables.Labels[page][static_cast<std::size_t>(index)];
            if (record.Changed) {
                lines.push_back(assignment::LabelLine(IndexOf(page), index, record));
            }
        }
    }
}

} // namespace

FormatTables TablesNow(const Program& program, Texts texts) {
    FormatTables tables{program.format.FormatTextChanges, program.format.FormatLabelChanges};
    for (const PageId page : kLinePages) {
        TakeAreas(program, page, texts, tables);
    }
    TakeLabels(program, texts, tables.Labels);
    return tables;
}

FormatText LinesOf(const Program& program, const FormatTables& tables) {
    const FormatRecords& format = program.format;
    FormatText made;
    AddAreas(tables, made.Lines);
    AddRows(tables, made.Lines);
    AddLabels(tables, made.Lines);
    if (!format.LogoPath.empty()) {
        made.Lines.push_back(assignment::PictureLine(format.LogoPath, format.LogoLeft, format.LogoTop));
    }
    const AreaFont font = modLineEffects::FontInForce(program);
    const bool fontLine = !font.Name.empty() && font.Size != 0;
    if (fontLine) {
        made.Lines.push_back(assignment::FontLine(font));
    }
    const bool lowered = font.Name.empty() && format.LogoPath.empty();
    made.PastTheEnd = !fontLine && !lowered;
    return made;
}

AfterLast AssignFormatPropChanges(Program& program, Texts texts) {
    AfterLast after = AfterLast::NotMade;
    Guarded(program, "AssignFormatPropChanges", [&] {
        FormatTables tables = TablesNow(program, texts);
        FormatText made = LinesOf(program, tables);
        program.format.FormatTextChanges = std::move(tables.Areas);
        program.format.FormatLabelChanges = std::move(tables.Labels);
        program.format.FormatLines = std::move(made.Lines);
        after = made.PastTheEnd ? AfterLast::Fails : AfterLast::Ends;
    });
    return after;
}

} // namespace modFormat
