#include "editing/area_colours.h"

#include "editing/area_facts.h"
#include "editing/columns.h"
#include "money/totals.h"
#include "pages/fields.h"
#include "pages/page_geometry.h"
#include "pages/text_width.h"
#include "program/program.h"

namespace modAreaColours {

void ColourArea(const Program& program, PageId page, TextArea& area) {
    if (area.BackColor == colors::kBlockSelected) {
        return;
    }
    const Color within = IsFinalPage(page) ? colors::kResting : colors::kFocused;
    area.BackColor = OverLimit(program, page, area) ? colors::kOverLimit : within;
}

bool OverLimit(const Program& program, PageId page, const TextArea& area) {
    return modPages::MeasureTextWidth(program, page, area.Text) >= area.Width ||
           static_cast<int>(area.Text.size()) > geometry::LimitOf(area.Tag) ||
           modTotals::IsNoNumber(program, area);
}

void ColourAfterCommand(Program& program, const FieldRef& field) {
    TextArea& area = modFields::Area(program, field);
    if (area.BackColor == colors::kBlockSelected) {
        return;
    }
    const Color within = program.main.Focus == field ? colors::kFocused : colors::kResting;
    area.BackColor = OverLimit(program, field.Page, area) ? colors::kOverLimit : within;
}

void ResetMyTextBoxColors(Program& program, PageId page) {
    Page& record = program.pages[page];
    const auto colour = [](TextArea& area, bool over, Color resting) {
        if (area.BackColor == colors::kBlockSelected) {
            return;
        }
        area.BackColor = over ? colors::kOverLimit : resting;
        area.ForeColor = over ? colors::kBlack : area.ForeColor;
    };
    for (TextArea& area : record.txt) {
        colour(area, OverLimit(program, page, area), colors::kResting);
    }
    for (const FieldKind kind : {FieldKind::txtQty, FieldKind::txtAmt}) {
        for (TextArea& box : kind == FieldKind::txtQty ? record.txtQty : record.txtAmt) {
            const bool over = box.Visible && modPages::MeasureTextWidth(program, page, box.Text) >= box.Width;
            colour(box, over || modColumns::IsNoNumber(program, kind, box), colors::kRestingRowField);
        }
    }
}

} // namespace modAreaColours
