#pragma once

#include "program/page_records.h"

#include <string_view>

struct Program;

namespace modPages {

/// A label's width in twips: it sizes itself to its caption.
[[nodiscard]] float LabelWidth(const Program& program, const PageLabel& label);

/// Width in twips of a text in the page's own font, never bold.
[[nodiscard]] float MeasureTextWidth(const Program& program, PageId page, std::string_view text);

} // namespace modPages
