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

bool IsAmountLimit(std::string_view limit) {
    constexpr std::string_view kAmountLimit = "020";
    return limit == kAmountLimit;
}

bool Completing(const Program& program, PageId page) {
    return IsLinePage(page) && program.editing.ACActive[page];
}

} // namespace modText
