#pragma once

struct Program;

namespace modMain {

/// The main window's controls as the records have them: title, client's line, folder, running subtotal, pages
/// in use, the red of `cmdReCalc`, the footnotes' picture, and the commands that stand and fall with the
/// proposal; and page numbers once they were laid. The rooms below change records only; whoever is about to
/// show or ask a control calls this first. Nothing before the pages are built.
void WorkOutControls(Program& program);

} // namespace modMain
