#include "editing/area_facts.h"

#include "base/numbers.h"
#include "base/text.h"
#include "program/program.h"

namespace modText {

FieldRef Field(PageId page, int index) {
    return {page, FieldKind::txt, index};
}

TextArea& Area(Program& program, PageId page, int index) {
    return program.pages[page].txt[static_cast<std::size_t>(index)];
}

const TextArea& Area(const Program& program, PageId page, int index) {
    return program.pages[page].txt[static_cast<std::size_t>(index)];
}

bool IsAmountLimit(int limit) {
    constexpr int kAmountLimit = 20;
    return limit == kAmountLimit;
}

bool Completing(const Program& program, PageId page) {
    return IsLinePage(page) && program.editing.ACActive[page];
}

} // namespace modText
