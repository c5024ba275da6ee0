#include "pages/titles.h"

#include "pages/page_geometry.h"
#include "pages/text_width.h"
#include "program/program.h"

namespace modTitles {

namespace {

enum class Record { No, Yes };

void LayLines(Program& program, Record record) {
    std::string& title = program.document.ClientCaption;
    if (title.empty()) {
        title = "Proposal for (Client's Name)";
    }
    for (const PageId page : kAllPages) {
        const int index = geometry::TitleLabel(page);
        PageLabel& label = program.pages[page].lbl[static_cast<std::size_t>(index)];
        label.Caption = title;
        if (page == PageId::frmP6) {
            label.Caption += " - Our Copy";
        } else if (page == PageId::frmP6_1) {
            label.Caption += " - Client's Copy";
        }
        label.Left = geometry::kPageCenter - modPages::LabelWidth(program, label) / 2;
        if (record == Record::Yes && page != PageId::frmP6_1) {
            LabelChangeRecord& kept = program.format.PropLabelChanges[page][static_cast<std::size_t>(index)];
            kept.Left = label.Left;
            kept.Top = label.Top;
            kept.Caption = label.Caption;
        }
    }
}

} // namespace

void UpdateFooters(Program& program) {
    if (program.pages[PageId::frmP1].lbl.empty()) {
        return; // the pages are not built yet
    }
    LayLines(program, Record::No);
}

void UpdateEventNameLabels(Program& program) {
    UpdateFooters(program);
}

void LayTitles(Program& program) {
    LayLines(program, Record::Yes);
}

void SetPageHeading(Program& program, const char* what) {
    program.document.PageHeading = program.settings.PageTitles.empty()
                                       ? program.settings.CompanyName + " - " + what + " - "
                                       : program.settings.PageTitles;
}

} // namespace modTitles
