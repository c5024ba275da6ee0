#pragma once

#include "program/page_records.h"

struct Program;

/// The selection of labels. One is selected when it lies on 0xFFFF00, opaque; there is no other record of it.
namespace modDesigner {

[[nodiscard]] bool IsSelected(const PageLabel& label);
void Select(PageLabel& label);
void Deselect(PageLabel& label);
/// Whether more than one label is selected, on whatever pages.
[[nodiscard]] bool MultipleLabelsSelected(const Program& program);

} // namespace modDesigner
