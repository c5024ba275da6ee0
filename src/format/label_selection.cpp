#include "format/label_selection.h"

#include "program/program.h"

namespace modDesigner {

bool IsSelected(const PageLabel& label) {
    return label.BackColor == colors::kFocused && label.BackStyle == 1;
}

void Select(PageLabel& label) {
    label.BackStyle = 1;
    label.BackColor = colors::kFocused;
}

void Deselect(PageLabel& label) {
    label.BackStyle = 0;
    label.BackColor = colors::kButtonFace;
}

bool MultipleLabelsSelected(const Program& program) {
    int selected = 0;
    for (const PageId page : kEditedPages) {
        for (const PageLabel& label : program.pages[page].lbl) {
            selected += label.BackColor == colors::kFocused ? 1 : 0;
            if (selected > 1) {
                return true;
            }
        }
    }
    return false;
}

} // namespace modDesigner
