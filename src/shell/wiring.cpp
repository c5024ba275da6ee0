#include "shell/wiring.h"

#include "calculator/frm_calc.h"
#include "editing/block_moves.h"
#include "editing/columns.h"
#include "editing/final_page.h"
#include "editing/fresh_figures.h"
#include "editing/leaving.h"
#include "editing/selection.h"
#include "editing/typing.h"
#include "format/format_file.h"
#include "format/format_save.h"
#include "format/frm_label_props.h"
#include "format/other_pages.h"
#include "format/property_file.h"
#include "output/page_count.h"
#include "output/text_file.h"
#include "program/program.h"
#include "shell/page_switch.h"
#include "terms/completion.h"
#include "terms/frm_fut.h"

namespace {

/// On the client's copy of the final page nobody types, and nothing follows from its texts.
void AreaChange(Program& program, const FieldRef& field) {
    if (IsLinePage(field.Page)) {
        modText::txt_Change(program, field.Page, field.Index);
    } else if (IsFinalPage(field.Page)) {
        modFinalPage::txt_Change(program, field.Index);
    }
}

void Change(Program& program, const FieldRef& field) {
    switch (field.Kind) {
    case FieldKind::txt:
        AreaChange(program, field);
        break;
    case FieldKind::txtQty:
        modColumns::txtQty_Change(program, field.Page, field.Index);
        break;
    case FieldKind::txtAmt:
        modColumns::txtAmt_Change(program, field.Page, field.Index);
        break;
    default:
        break;
    }
}

void GotFocus(Program& program, const FieldRef& field) {
    if (field.Kind == FieldKind::txt) {
        modText::txt_GotFocus(program, field.Page, field.Index);
    } else {
        modColumns::Box_GotFocus(program, field);
    }
}

void LostFocus(Program& program, const FieldRef& field) {
    if (field.Kind == FieldKind::txt) {
        modText::txt_LostFocus(program, field.Page, field.Index);
    } else {
        modColumns::Box_LostFocus(program, field);
    }
}

/// Brings a field's page to the front and the field into the visible part, a third down where it was outside.
void ShowField(Program& program, const FieldRef& field) {
    if (program.main.PageInFront != field.Page) {
        modScroll::UpdatePageButtons(program, IndexOf(field.Page));
    }
    const Page& page = program.pages[field.Page];
    const TextArea& area = page.txt[static_cast<std::size_t>(field.Index)];
    const float top = page.Top + area.Top;
    if (top < 0 || top + area.Height > program.main.ClientHeight) {
        modScroll::SetScroll(program, static_cast<int>(area.Top - program.main.ClientHeight / 3));
    }
}

} // namespace

void Wire(Program& program) {
    Hooks& hooks = program.hooks;
    hooks.Change = Change;
    hooks.GotFocus = GotFocus;
    hooks.LostFocus = LostFocus;
    hooks.UpdatePageButtons = modScroll::UpdatePageButtons;
    hooks.PageKey = modScroll::PageKey;
    hooks.ShowField = ShowField;
    hooks.DeSelectAllControls = modBlocks::DeSelectAllControls;
    hooks.ReadTextFile = modExport::ReadTextFile;
    hooks.TakeFreshFigures = modFigures::TakeFresh;
    hooks.CollectQtyBoxes = modColumns::CollectQtyBoxes;
    hooks.ReadFrequentlyUsedTerms = modTerms::ListInUseChanged;
    hooks.CompleteWord = modTerms::CompleteWord;
    hooks.CompletionKey = modTerms::CompletionKey;
    hooks.ShowCalculator = modCalculator::ShowCalculator;
    hooks.OpenFormatFile = modFormat::OpenFormatFile;
    hooks.ParsePropertyFile = modProperties::ParsePropertyFile;
    hooks.AssignPropChanges = modProperties::AssignPropChanges;
    hooks.TellOtherPages = modProperties::TellOtherPages;
    hooks.MayLeaveFormat = modFormat::MayLeaveFormat;
    hooks.CloseLabelWindow = modDesigner::CloseLabelWindow;
    hooks.SetPageNumbers = modPageCount::SetPageNumbers;
}
