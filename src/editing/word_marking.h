#pragma once

#include "program/page_records.h"

#include <string_view>

struct Program;

namespace modText {

/// A stretch of a text, in characters.
struct Stretch {
    int Start = 0;
    int Length = 0;
};

/// The word that a position stands in or beside: letters, figures and apostrophes. Without one the stretch is
/// empty and stands at the position.
[[nodiscard]] Stretch WordAt(std::string_view text, int position);

/// What a double-click marks: the word at its place. Descriptions keep their cursor, for there a double-click
/// turns the columns.
void MarkWordAt(Program& program, const FieldRef& field, int position);

} // namespace modText
