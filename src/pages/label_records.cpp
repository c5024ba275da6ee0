#include "pages/label_records.h"

#include "program/program.h"

namespace modPages {

namespace {

LabelBase StateOf(const PageLabel& label) {
    return {label.Left,     label.Top,       label.Caption,    label.FontName,     label.FontSize,
            label.FontBold, label.ForeColor, label.FontItalic, label.FontUnderline};
}

} // namespace

void SnapshotLabels(Program& program) {
    for (const PageId page : kEditedPages) {
        const Page& record = program.pages[page];
        for (std::size_t index = 0; index < record.lbl.size(); ++index) {
            LabelChangeRecord& kept = program.format.PropLabelChanges[page][index];
            kept.Left = record.lbl[index].Left;
            kept.Top = record.lbl[index].Top;
        }
    }
}

void SaveBaseLabels(Program& program, PageId page) {
    Page& record = program.pages[page];
    record.LabelBaseState.clear();
    for (const PageLabel& label : record.lbl) {
        record.LabelBaseState.push_back(StateOf(label));
    }
}

} // namespace modPages
