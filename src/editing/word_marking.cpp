#include "editing/word_marking.h"

#include "base/ansi.h"
#include "pages/fields.h"
#include "pages/page_geometry.h"
#include "program/program.h"

#include <algorithm>

namespace modText {

namespace {

/// Figures that are raised, or parts of one, belong to their word like others.
constexpr std::string_view kOtherFigures = "\xB2\xB3\xB9\xBC\xBD\xBE";

bool InWord(char byte) {
    return ansi::IsLetter(byte) || ansi::IsDigit(byte) || byte == '\'' ||
           kOtherFigures.find(byte) != std::string_view::npos;
}

} // namespace

Stretch WordAt(std::string_view text, int position) {
    const auto at = static_cast<std::size_t>(std::clamp(position, 0, static_cast<int>(text.size())));
    std::size_t from = at;
    std::size_t to = at;
    while (from > 0 && InWord(text[from - 1])) {
        --from;
    }
    while (to < text.size() && InWord(text[to])) {
        ++to;
    }
    return {static_cast<int>(from), static_cast<int>(to - from)};
}

void MarkWordAt(Program& program, const FieldRef& field, int position) {
    if (field.Kind == FieldKind::txt && geometry::IsDescription(field.Page, field.Index)) {
        return;
    }
    TextArea& area = modFields::Area(program, field);
    const Stretch word = WordAt(area.Text, position);
    modFields::SetCursor(area, word.Start, word.Length);
}

} // namespace modText
