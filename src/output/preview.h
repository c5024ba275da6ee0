#pragma once

struct Program;

namespace modPrint {

/// Starts or ends the preview of the active page. Nothing of the proposal changes: the fields of the page
/// keep what they are, the page shows as ink. Runs the totals first when `cmdReCalc` is red.
void TogglePreview(Program& program);

} // namespace modPrint
