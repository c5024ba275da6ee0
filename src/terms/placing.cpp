#include "terms/placing.h"

#include "base/numbers.h"
#include "base/text.h"
#include "editing/columns.h"
#include "editing/standing_completion.h"
#include "money/totals.h"
#include "pages/fields.h"
#include "pages/page_geometry.h"
#include "pages/row_fields.h"
#include "program/program.h"
#include "terms/term_line.h"

#include <string>

namespace modTerms {

namespace {

constexpr int kDepositArea = 4;

bool IsDeposit(const FieldRef& field) {
    return field.Page == PageId::frmP6 && field.Index == kDepositArea;
}

bool TakesFigures(const FieldRef& field) {
    return field.Kind != FieldKind::txt || IsDeposit(field) || geometry::IsAmount(field.Page, field.Index);
}

const TextArea& AreaOf(const Program& program, const FieldRef& field) {
    const Page& page = program.pages[field.Page];
    const auto& areas = field.Kind == FieldKind::txtQty   ? page.txtQty
                        : field.Kind == FieldKind::txtAmt ? page.txtAmt
                                                          : page.txt;
    return areas[static_cast<std::size_t>(field.Index)];
}

/// A figure as if it had been typed there and the field left: tables, sign, pattern, product, sums.
void TypeAndLeave(Program& program, const FieldRef& field, std::string_view figure) {
    modFields::SetText(program, field, figure);
    if (field.Kind != FieldKind::txt) {
        modColumns::SettleBox(program, field);
        modTotals::CalculateMyTotals(program, field.Page);
    } else if (IsDeposit(field)) {
        modTotals::RewriteDeposit(program);
    } else {
        if (const auto number = numbers::ToDouble(figure, program.settings.CurrencySymbol)) {
            modFields::SetText(program, field, numbers::Format(*number, "###,##0.00"));
        }
        modTotals::CalculateMyTotals(program, field.Page);
    }
    modTotals::UpdateRunningTotals(program);
}

void DropText(Program& program, const FieldRef& field, std::string_view dragged) {
    const Term term = SplitTerm(dragged);
    const TextArea& area = modFields::Area(program, field);
    if (term.Text.size() > kMostPlaced) {
        program.main.Notice = "The text was too long for one line; its end was not taken.";
    }
    std::string value = PlainText(term.Text);
    if (!text::Trim(area.Text).empty()) {
        value.insert(0, area.Text + " ");
    }
    // Nobody types: a line that becomes too long goes red and stays.
    program.editing.CursorPos = static_cast<int>(value.size());
    program.editing.LastKeyChar.clear();
    modFields::SetText(program, field, value);
    if (geometry::IsDescription(field.Page, field.Index)) {
        PlaceAmount(program, field, term.Amount);
    }
}

} // namespace

void PlaceAmount(Program& program, const FieldRef& description, std::string_view amount) {
    const std::optional<std::string> figure = NumericAmount(program, amount);
    if (!figure) {
        return;
    }
    const bool columns = modPages::ColumnsOn(program, description.Page, description.Index);
    const FieldRef target = columns ? FieldRef{description.Page, FieldKind::txtAmt, description.Index}
                                    : FieldRef{description.Page, FieldKind::txt,
                                               geometry::AmountOf(description.Page, description.Index)};
    const TextArea& area = modFields::Area(program, target);
    const bool placeholder = columns && area.Text == "Amt.";
    if (!text::Trim(area.Text).empty() && !placeholder) {
        program.main.Notice =
            "The amount " + std::string(text::Trim(area.Text)) + " was kept; the list says " + *figure + ".";
        return;
    }
    if (area.Locked) {
        program.main.Notice = "The amount " + *figure + " was not placed: its area is locked.";
        return;
    }
    TypeAndLeave(program, target, *figure);
}

bool TakesDrop(const Program& program, const FieldRef& field, std::string_view dragged) {
    if (program.editing.BlockMode || field.Page == PageId::frmP6_1 || !modFields::Exists(program, field) ||
        program.pages[field.Page].InkShown) {
        return false;
    }
    const TextArea& area = AreaOf(program, field);
    if (area.Locked || !area.Visible || !area.Enabled) {
        return false;
    }
    if (TakesFigures(field)) {
        return NumericAmount(program, SplitTerm(dragged).Text).has_value();
    }
    // The other figures of the final page are computed.
    return field.Page != PageId::frmP6 && !text::Trim(SplitTerm(dragged).Text).empty();
}

bool txt_DragDrop(Program& program, const FieldRef& field, std::string_view dragged) {
    if (!TakesDrop(program, field, dragged)) {
        return false;
    }
    const std::string text(dragged); // the list may be read again on the way
    modText::SettleCompletion(program, field.Page);
    if (TakesFigures(field)) {
        TypeAndLeave(program, field, *NumericAmount(program, SplitTerm(text).Text));
    } else {
        DropText(program, field, text);
    }
    modFields::GiveFocus(program, field);
    TextArea& area = modFields::Area(program, field);
    modFields::SetCursor(area, static_cast<int>(area.Text.size()));
    program.editing.CursorPos = area.SelStart;
    return true;
}

FieldRef LastField(const Program& program) {
    return program.main.Focus.value_or(
        FieldRef{program.main.ActivePage, FieldKind::txt, program.editing.CurrentArea});
}

void PutIntoLastField(Program& program, std::string_view dragged) {
    program.main.Notice.clear();
    if (txt_DragDrop(program, LastField(program), dragged)) {
        program.main.BringUp = true;
    } else {
        program.main.Notice = "This area does not take it.";
    }
}

} // namespace modTerms
