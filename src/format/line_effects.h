#pragma once

#include "format/working_fields.h"
#include "program/page_records.h"

#include <string>

struct Program;

/// What the lines of a format or property file do to the pages, as far as both files agree. Nothing here
/// fires a change handler.
namespace modLineEffects {

/// A label of the edited pages takes the look of its line. A sign beside an amount whose caption in the file
/// is no word or number shows the currency in force. Returns the look as it was laid.
[[nodiscard]] LabelLook LayLabelLine(Program& program, PageId page, int index, LabelLook look);

/// The columns of a row, the boxes with what the line brings when they are on.
void LayRow(Program& program, const assignment::RowAssignment& row);
void LayColumns(Program& program, const assignment::RowAssignment& row);

/// The font of all text areas; it takes hold at once.
void LayFont(Program& program, const AreaFont& font);

/// The font in force.
[[nodiscard]] AreaFont FontInForce(const Program& program);

/// What a label has to know of its page for a line that leaves a field out.
[[nodiscard]] LabelLook OwnLook(const Program& program, const assignment::Fields& fields);

} // namespace modLineEffects
