#include "format/label_looks.h"

#include "pages/label_records.h"
#include "pages/page_geometry.h"
#include "pages/titles.h"
#include "program/program.h"

namespace modDesigner {

LabelLook LookOf(const PageLabel& label) {
    return {label.Left,     label.Top,       label.Caption,    label.FontName,     label.FontSize,
            label.FontBold, label.ForeColor, label.FontItalic, label.FontUnderline};
}

void PutLook(PageLabel& label, const LabelLook& look) {
    label.Left = look.Left;
    label.Top = look.Top;
    label.Caption = look.Caption;
    label.FontName = look.FontName;
    label.FontSize = look.FontSize;
    label.FontBold = look.FontBold;
    label.ForeColor = look.ForeColor;
    label.FontItalic = look.FontItalic;
    label.FontUnderline = look.FontUnderline;
}

void PutLook(LabelChangeRecord& record, const LabelLook& look) {
    static_cast<LabelLook&>(record) = look;
}

PageLabel& LabelAt(Program& program, PageId page, int index) {
    return program.pages[page].lbl[static_cast<std::size_t>(index)];
}

const PageLabel& LabelAt(const Program& program, PageId page, int index) {
    return program.pages[page].lbl[static_cast<std::size_t>(index)];
}

LabelChangeRecord& RecordOf(LabelChangeTable& table, PageId page, int index) {
    return table[page][static_cast<std::size_t>(index)];
}

void LayLabel(Program& program, PageId page, int index, const LabelLook& look) {
    PutLook(LabelAt(program, page, index), look);
    if (page == PageId::frmP6) {
        CopyToClientsPage(program, index);
    }
}

void CopyPlaceToClientsPage(Program& program, int index) {
    PageLabel& copy = LabelAt(program, PageId::frmP6_1, index);
    const PageLabel& ours = LabelAt(program, PageId::frmP6, index);
    copy.Left = ours.Left;
    copy.Top = ours.Top;
    if (index == geometry::TitleLabel(PageId::frmP6) &&
        modTitles::StandsCentred(program, PageId::frmP6, index, ours)) {
        modTitles::Centre(program, copy); // its words are longer
    }
}

void CopyToClientsPage(Program& program, int index) {
    PageLabel& copy = LabelAt(program, PageId::frmP6_1, index);
    LabelLook look = LookOf(LabelAt(program, PageId::frmP6, index));
    if (index == geometry::TitleLabel(PageId::frmP6)) {
        look.Caption = copy.Caption;
    }
    PutLook(copy, look);
    CopyPlaceToClientsPage(program, index);
}

bool IsSignLabel(PageId page, int index) {
    constexpr int kFirstOnClientPage = 21, kLastOnClientPage = 30, kLastOnLinePage = 33;
    switch (page) {
    case PageId::frmP1:
        return index >= kFirstOnClientPage && index <= kLastOnClientPage;
    case PageId::frmP6:
    case PageId::frmP6_1:
        return (index >= 4 && index <= 6) || (index >= 10 && index <= 12);
    default:
        return index >= 1 && index <= kLastOnLinePage;
    }
}

void SaveBaseLabels(Program& program) {
    for (const PageId page : kEditedPages) {
        modPages::SaveBaseLabels(program, page);
    }
}

} // namespace modDesigner
