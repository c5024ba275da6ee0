#include "pages/page_marks.h"

#include "pages/page_geometry.h"
#include "program/program.h"

namespace modPages {

void SetCurrencySign(Program& program, PageId page, int amount, Mark mark) {
    // An area can be an amount by its Tag alone; only those of the amount column have a sign beside them.
    if (!geometry::IsAmount(page, amount)) {
        return;
    }
    PageLabel& sign =
        program.pages[page].lbl[static_cast<std::size_t>(geometry::CurrencyLabelIndex(page, amount))];
    sign.Visible = mark == Mark::Shown;
    sign.Tag = mark == Mark::Shown ? "" : kHide;
}

void SetNoTaxMark(Program& program, PageId page, int index, Mark mark) {
    PageImage& image = program.pages[page].imgNoTax[static_cast<std::size_t>(index)];
    image.Visible = mark == Mark::Shown;
    image.Tag = mark == Mark::Shown ? "" : kHide;
}

void HideOptionalFields(Program& program) {
    for (const PageId page : kLinePages) {
        for (PageLabel& label : program.pages[page].lbl) {
            if (label.Caption == program.settings.CurrencySymbol) {
                label.Visible = false;
                label.Tag = kHide;
            }
        }
    }
    for (const PageId page : kAllPages) {
        for (PageImage& image : program.pages[page].imgNoTax) {
            image.Visible = false;
            image.Tag = kHide;
        }
    }
}

} // namespace modPages
