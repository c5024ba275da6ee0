#include "pages/page_show.h"

#include "pages/logo.h"
#include "program/program.h"

namespace modPages {

void ShowPage(Program& program, PageId page) {
    Page& record = program.pages[page];
    const bool edited = IndexOf(page) < kEditedPageCount;
    for (std::size_t index = 0; index < record.txt.size(); ++index) {
        TextArea& area = record.txt[index];
        area.Visible = true;
        area.Enabled = true;
        if (IsLinePage(page)) {
            area.Locked =
                program.format.FormatOpen && program.format.FormatTextChanges[page][index].FormatText;
        }
        if (edited && program.format.FormatOpen) {
            if (program.format.PropTextChanges[page][index].FontBold) {
                area.FontBold = true;
            }
        }
    }
    for (PageLabel& label : record.lbl) {
        label.Visible = label.Tag != kHide;
    }
    for (PageLine& line : record.lne) {
        line.Visible = true;
    }
    if (record.HasLogo) {
        modLogo::SettleLogoVisibility(program);
    }
}

} // namespace modPages
