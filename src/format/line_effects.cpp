#include "format/line_effects.h"

#include "format/label_looks.h"
#include "pages/page_fonts.h"
#include "pages/row_fields.h"
#include "program/program.h"

#include <algorithm>

namespace modLineEffects {

namespace {

bool HoldsWord(std::string_view caption) {
    return std::any_of(caption.begin(), caption.end(), [](char character) {
        const auto byte = static_cast<unsigned char>(character);
        constexpr unsigned char kFirstAccented = 0xC0;
        constexpr std::string_view kBeforeThose = "\x8A\x8C\x8E\x9A\x9C\x9E\x9F\xAA\xB5\xBA";
        const bool sign = byte == 0xD7 || byte == 0xF7; // the multiplication and the division sign
        return (byte >= '0' && byte <= '9') || (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z') ||
               (byte >= kFirstAccented && !sign) || kBeforeThose.find(character) != std::string_view::npos;
    });
}

} // namespace

LabelLook LayLabelLine(Program& program, PageId page, int index, LabelLook look) {
    if (modDesigner::IsSignLabel(page, index) && !HoldsWord(look.Caption)) {
        look.Caption = program.settings.CurrencySymbol;
    }
    modDesigner::LayLabel(program, page, index, look);
    return look;
}

void LayColumns(Program& program, const assignment::RowAssignment& row) {
    const PageId page = PageAt(row.Page);
    modPages::EnsureRowFields(program, page);
    modPages::PlaceColumns(program, page, row.Index,
                           row.Columns ? modPages::Columns::On : modPages::Columns::Off);
}

void LayRow(Program& program, const assignment::RowAssignment& row) {
    LayColumns(program, row);
    if (row.Columns) {
        Page& record = program.pages[PageAt(row.Page)];
        record.txtQty[static_cast<std::size_t>(row.Index)].Text = row.Quantity;
        record.txtAmt[static_cast<std::size_t>(row.Index)].Text = row.Price;
    }
}

AreaFont FontInForce(const Program& program) {
    const RunState& run = program.run;
    return {run.DefaultFontName, run.DefaultFontSize, run.DefaultFontColor, run.DefaultFontItalic};
}

void LayFont(Program& program, const AreaFont& font) {
    RunState& run = program.run;
    run.DefaultFontName = font.Name;
    run.DefaultFontSize = font.Size;
    run.DefaultFontColor = font.ForeColor;
    run.DefaultFontItalic = font.Italic;
    modPages::ApplyPageFonts(program);
}

LabelLook OwnLook(const Program& program, const assignment::Fields& fields) {
    return modDesigner::LookOf(modDesigner::LabelAt(program, PageAt(fields.Page), fields.Index));
}

} // namespace modLineEffects
