#include "output/print.h"

#include "base/guard.h"
#include "base/paths.h"
#include "editing/fresh_figures.h"
#include "money/shown_figures.h"
#include "output/cut_texts.h"
#include "output/frm_dialog.h"
#include "output/page_count.h"
#include "output/print_page.h"
#include "pages/page_geometry.h"
#include "program/data_folders.h"
#include "program/errors.h"
#include "program/program.h"
#include "program/windows.h"
#include "proposal/file_names.h"

#include <algorithm>
#include <string>
#include <vector>

namespace modPrint {

namespace {

/// One page alone is another file than the proposal.
PrintCommand CommandFor(const Program& program, const std::vector<PageId>& pages) {
    const DocumentState& document = program.document;
    const std::string folder =
        document.FilePath.empty() ? modFolders::DataFolder(program) : document.FilePath;
    const std::string base = document.BaseName.empty() ? "Proposal" : document.BaseName;
    const std::string part =
        pages.size() == 1 ? ", " + std::string(geometry::PageCaption(pages.front())) : "";
    return {paths::Join(folder, base + part + ".pdf")};
}

std::string MessageFor(const Program& program, PageId page) {
    const std::string used = std::to_string(program.document.PagesInUse);
    const std::string number = IsLinePage(page) ? std::to_string(IndexOf(page) + 1) : used;
    return "Printing Page " + number + " of " + used + (page == PageId::frmP6_1 ? " Copy" : "");
}

void PrintOne(Program& program, const Page& sheet) {
    const PageId page = sheet.Id;
    program.printing.PrintFormName = geometry::PageName(page);
    auto dialog = std::make_unique<frmDialog>();
    dialog->lblMessage.Caption = MessageFor(program, page);
    modWindows::Show(program, std::move(dialog));
    program.platform.printers.NameDocument(geometry::PageName(page), IndexOf(page));
    PrintSheet(program, sheet);
    if (Window* shown = modWindows::Find(program, "frmDialog")) {
        modWindows::Close(program, *shown);
    }
}

/// Whether one of the pages has the figures on it.
bool HaveFigures(const std::vector<PageId>& pages) {
    return std::any_of(pages.begin(), pages.end(), [](PageId page) { return !IsLinePage(page); });
}

/// One command is one job for a printer that makes a file, however many pages it prints.
void PrintPages(Program& program, const std::vector<PageId>& pages) {
    if (program.printing.CommandRunning) {
        return;
    }
    const ScopedFlag running(program.printing.CommandRunning);
    modFigures::TakeFresh(program);
    if (HaveFigures(pages) && !modTotals::MayShowFigures(program)) {
        return;
    }
    if (!MayPrint(program, pages)) {
        return;
    }
    Printers& printers = program.platform.printers;
    if (!printers.BeginCommand(CommandFor(program, pages))) {
        return;
    }
    PrepareDrawing(program);
    modPageCount::CountPagesInUse(program);
    modPageCount::SetPageNumbers(program);
    // All pages of a command are of one moment: the figures are the sum of the rows, whatever is typed
    // meanwhile.
    const PageSet sheets = program.pages;
    for (const PageId page : pages) {
        PrintOne(program, sheets[page]);
    }
    Guarded(program, "PrintTheForm", [&] { printers.EndCommand(); });
}

} // namespace

void mnuFilePrintPage_Click(Program& program, PageId page) {
    if (!program.run.NoPrinter) {
        PrintPages(program, {page});
    }
}

void mnuFilePrintAll_Click(Program& program) {
    if (program.printing.CommandRunning) {
        return;
    }
    if (program.run.NoPrinter) {
        program.platform.questions.MsgBox("Printer Error 482. Printer not found.", Buttons::Ok, "");
        return;
    }
    if (program.printing.PrintCancelled) {
        program.printing.PrintCancelled = false;
        return;
    }
    modFigures::TakeFresh(program); // what is being typed may be the first text of its page
    modPageCount::CountPagesInUse(program);
    std::vector<PageId> pages{PageId::frmP6_1, PageId::frmP6};
    for (int page = program.document.PagesInUse - 1; page >= 1; --page) {
        pages.push_back(PageAt(page - 1));
    }
    PrintPages(program, pages);
}

} // namespace modPrint
