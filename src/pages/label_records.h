#pragma once

#include "program/page_records.h"

struct Program;

/// What is kept of the labels as they stand.
namespace modPages {

/// Copies Left and Top of all labels of the six edited pages into the proposal's label table.
void SnapshotLabels(Program& program);

/// Keeps a page's labels, as they stand, in its LabelBaseState; the page is not changed.
void SaveBaseLabels(Program& program, PageId page);

} // namespace modPages
