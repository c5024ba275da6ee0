#include "output/preview.h"

#include "editing/fresh_figures.h"
#include "money/shown_figures.h"
#include "output/page_count.h"
#include "output/print_page.h"
#include "pages/page_geometry.h"
#include "program/errors.h"
#include "program/program.h"

namespace modPreview {

namespace {

template <typename Fields> void ShowAll(Fields& fields) {
    for (auto& field : fields) {
        field.Visible = field.Tag != kHide;
    }
}

} // namespace

bool PreviewStands(const Program& program) {
    return program.main.cmdPreview.Caption == "Resume Editing";
}

void TogglePreview(Program& program) {
    MainWindow& main = program.main;
    const bool start = !PreviewStands(program);
    if (start) {
        modFigures::TakeFresh(program);
        if (!modTotals::MayShowFigures(program)) {
            return;
        }
    }
    main.cmdPreview.Caption = start ? "Resume Editing" : "Print Preview";
    main[CommandId::mnuFilePrintPreview].Enabled = !start;
    main[CommandId::mnuFileResume].Enabled = start;
    if (!start) {
        ResumeEditing(program, main.PageInFront);
        return;
    }
    program.printing.PrintFormName = geometry::PageName(main.PageInFront);
    Guarded(program, "PrintTheForm", [&] {
        modPrint::PrepareDrawing(program);
        // Headings and page numbers as they will be on paper.
        modPageCount::CountPagesInUse(program);
        modPageCount::SetPageNumbers(program);
        program.pages[main.PageInFront].InkShown = true;
    });
}

void ResumeEditing(Program& program, PageId page) {
    Guarded(program, "ResumeEditing", [&] {
        Page& record = program.pages[page];
        ClearDrawing(record);
        ShowAll(record.txt);
        ShowAll(record.lbl);
        ShowAll(record.imgNoTax);
        ShowAll(record.txtQty);
        ShowAll(record.txtAmt);
        ShowAll(record.lblAt);
        ShowAll(record.lblEach);
        for (PageLine& line : record.lne) {
            line.Visible = true;
        }
        record.pic.Visible =
            record.HasLogo && record.pic.Tag != kHide && record.pic.Picture.From != PictureRef::Source::None;
    });
}

} // namespace modPreview
