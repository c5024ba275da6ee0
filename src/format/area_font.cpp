#include "format/area_font.h"

#include "editing/area_colours.h"
#include "format/line_effects.h"
#include "pages/fields.h"
#include "program/program.h"

namespace modAreaFont {

void ApplyChosenFont(Program& program, const AreaFont& before) {
    AreaFont font = modLineEffects::FontInForce(program);
    if (font.Name.empty()) {
        font.Name = "Arial";
    }
    if (font.Size == 0) {
        font.Size = 10;
    }
    modLineEffects::LayFont(program, font);
    PaintAreasAnew(program);
    if (font != before) {
        program.document.SavedStateStale = true;
        program.format.Touched = true;
    }
}

void PaintAreasAnew(Program& program) {
    for (const PageId page : kEditedPages) {
        modAreaColours::ResetMyTextBoxColors(program, page);
    }
    if (!program.main.Focus) {
        return;
    }
    TextArea& area = modFields::Area(program, *program.main.Focus);
    if (program.main.Focus->Kind == FieldKind::txt) {
        modAreaColours::ColourArea(program, program.main.Focus->Page, area);
    } else if (area.BackColor == colors::kRestingRowField && !program.editing.BlockMode) {
        area.BackColor = colors::kFocused;
    }
}

} // namespace modAreaFont
