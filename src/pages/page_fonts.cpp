#include "pages/page_fonts.h"

#include "base/guard.h"
#include "program/program.h"

namespace modPages {

void ApplyPageFonts(Program& program) {
    const ScopedFlag silent(program.guards.ApplyingFonts);
    const RunState& run = program.run;
    const float size = run.DefaultFontSize == 0 ? 10 : run.DefaultFontSize;
    const auto layFont = [&](auto& field) {
        field.FontBold = false;
        field.FontName = run.DefaultFontName;
        field.FontSize = size;
        field.FontItalic = run.DefaultFontItalic;
    };
    const auto layField = [&](auto& field) {
        layFont(field);
        field.ForeColor = run.DefaultFontColor;
    };
    for (const PageId page : kAllPages) {
        Page& record = program.pages[page];
        layFont(record);
        for (auto* areas : {&record.txt, &record.txtQty, &record.txtAmt}) {
            for (TextArea& area : *areas) {
                layField(area);
            }
        }
        for (auto* labels : {&record.lblAt, &record.lblEach}) {
            for (PageLabel& label : *labels) {
                layField(label);
            }
        }
        for (PageLabel& label : record.lbl) {
            if (label.Caption == program.settings.CurrencySymbol) {
                layField(label);
            }
        }
    }
    for (const PageId page : kEditedPages) {
        Page& record = program.pages[page];
        for (std::size_t index = 0; index < record.txt.size(); ++index) {
            if (program.format.PropTextChanges[page][index].FontBold) {
                record.txt[index].FontBold = true;
                if (page == PageId::frmP6) {
                    program.pages[PageId::frmP6_1].txt[index].FontBold = true;
                }
            }
        }
    }
}

} // namespace modPages
