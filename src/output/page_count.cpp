#include "output/page_count.h"

#include "base/text.h"
#include "pages/page_geometry.h"
#include "pages/row_fields.h"
#include "pages/titles.h"
#include "program/program.h"

#include <algorithm>
#include <string>

namespace modPageCount {

namespace {

/// What a label looks like goes along with the proposal's properties.
void Keep(Program& program, PageId page, int index) {
    if (IndexOf(page) >= kEditedPageCount) {
        return;
    }
    const PageLabel& label = program.pages[page].lbl[static_cast<std::size_t>(index)];
    LabelChangeRecord& kept = program.format.PropLabelChanges[page][static_cast<std::size_t>(index)];
    kept.Changed = true;
    kept.Left = label.Left;
    kept.Top = label.Top;
    kept.Caption = label.Caption;
    kept.FontName = label.FontName;
    kept.FontSize = label.FontSize;
    kept.FontBold = label.FontBold;
    kept.ForeColor = label.ForeColor;
    kept.FontItalic = label.FontItalic;
    kept.FontUnderline = label.FontUnderline;
}

bool HasLine(const Program& program, PageId page) {
    const int last = geometry::LastText(page);
    const auto& lines = program.document.CurrentTextBuf[page];
    const auto end =
        lines.begin() + std::min<std::ptrdiff_t>(last + 1, static_cast<std::ptrdiff_t>(lines.size()));
    return std::any_of(lines.begin(), end, [](const std::string& line) {
        return !text::Trim(line).empty() && !modPages::IsBlankRow(line);
    });
}

} // namespace

void CountPagesInUse(Program& program) {
    for (int page = kLinePageCount; page >= 1; --page) {
        if (HasLine(program, PageAt(page - 1))) {
            program.document.PagesInUse = page + 1;
            return;
        }
    }
}

void SetPageNumbers(Program& program) {
    const int used = program.document.PagesInUse;
    for (const PageId page : kAllPages) {
        const bool final = IsFinalOrCopy(page);
        const int number = final ? used - 1 : IndexOf(page);
        const int index = geometry::PageNumberLabel(page);
        program.pages[page].lbl[static_cast<std::size_t>(index)].Caption =
            std::string(geometry::PageOfText(number)) + std::to_string(used);
        if (page == PageId::frmP1) {
            continue;
        }
        PageLabel& heading = program.pages[page].lbl[0];
        modTitles::SetTitleWords(program, page, 0, heading,
                                 program.document.PageHeading + "Page " +
                                     std::to_string(final ? used : IndexOf(page) + 1));
        Keep(program, page, 0);
    }
    program.document.PagesNumbered = used;
}

void FollowPagesInUse(Program& program) {
    // What is on its way to the printer has the numbers of its moment.
    if (program.document.PagesNumbered == 0 || program.printing.CommandRunning ||
        program.guards.HandlersSilent()) {
        return;
    }
    CountPagesInUse(program);
    if (program.document.PagesInUse != program.document.PagesNumbered) {
        SetPageNumbers(program);
    }
}

} // namespace modPageCount
