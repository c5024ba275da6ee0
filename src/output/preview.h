#pragma once

#include "program/page_records.h"

struct Program;

namespace modPreview {

/// Whether a page is shown as ink.
[[nodiscard]] bool PreviewStands(const Program& program);

/// Starts or ends the preview of the page in front, the client's copy too. The page shows as ink; its fields
/// keep what they are, so that totals and files do not notice. Runs the totals first when `cmdReCalc` is red.
void TogglePreview(Program& program);

/// Ends a preview on a page: the ink goes, every field whose Tag is not "Hide" shows. Reports as
/// "ResumeEditing".
void ResumeEditing(Program& program, PageId page);

} // namespace modPreview
