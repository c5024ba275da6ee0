#include "proposal/slot_widths.h"

#include "pages/page_geometry.h"
#include "program/program.h"

namespace modFile {

proposal::Widths SlotWidths(const Program& program) {
    proposal::Widths widths;
    for (const PageId page : kEditedPages) {
        auto& list = widths[page];
        list.reserve(program.pages[page].txt.size());
        for (const TextArea& area : program.pages[page].txt) {
            list.push_back(geometry::LimitOf(area.Tag));
        }
    }
    return widths;
}

} // namespace modFile
