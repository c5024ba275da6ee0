#pragma once

#include "program/page_records.h"

struct Program;

/// Which labels are selected. A label is when it lies on 0xFFFF00, opaque; there is no other record of it.
namespace modDesigner {

[[nodiscard]] bool IsSelected(const PageLabel& label);
void Select(PageLabel& label);
void Deselect(PageLabel& label);
/// Whether more than one label is selected, on whatever pages.
[[nodiscard]] bool MultipleLabelsSelected(const Program& program);

/// The page whose labels the commands act on: the one in front, but for the client's copy.
[[nodiscard]] PageId DesignPage(const Program& program);

} // namespace modDesigner
