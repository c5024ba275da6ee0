#include "output/preview.h"

#include "core/program.h"
#include "document/page_geometry.h"
#include "document/totals.h"

namespace modPrint {

void TogglePreview(Program& program) {
    MainWindow& main = program.main;
    const bool start = main.cmdPreview.Caption == "Print Preview";
    main.cmdPreview.Caption = start ? "Resume Editing" : "Print Preview";
    main[CommandId::mnuFilePrintPreview].Enabled = !start;
    main[CommandId::mnuFileResume].Enabled = start;
    Page& page = program.pages[main.ActivePage];
    if (start) {
        program.printing.PrintFormName = geometry::PageName(main.ActivePage);
        if (main.cmdReCalc.BackColor == colors::kOverLimit) {
            modTotals::RecalculateAll(program);
            modTotals::UpdateRunningTotals(program);
        }
    }
    page.InkShown = start;
}

} // namespace modPrint
