#include "pages/titles.h"

#include "pages/page_geometry.h"
#include "pages/text_width.h"
#include "program/program.h"

#include <cmath>
#include <utility>

namespace modTitles {

namespace {

float Centred(const Program& program, const PageLabel& label) {
    return geometry::kPageCenter - modPages::LabelWidth(program, label) / 2;
}

/// Where pages are built with their title or their heading.
float BuiltLeft(PageId page, int index) {
    const bool final = !IsLinePage(page);
    if (index == 0) {
        return final ? 3060.0F : 3130.0F;
    }
    return final ? 5310.0F : 4860.0F;
}

constexpr const char* kNobody = "Proposal for (Client's Name)";

std::string TitleOn(PageId page, const std::string& title) {
    return page == PageId::frmP6     ? title + " - Our Copy"
           : page == PageId::frmP6_1 ? title + " - Client's Copy"
                                     : title;
}

enum class Place { Kept, Centred };

void LayLines(Program& program, Place place) {
    std::string& title = program.document.ClientCaption;
    if (title.empty()) {
        title = kNobody;
    }
    for (const PageId page : kAllPages) {
        const int index = geometry::TitleLabel(page);
        PageLabel& label = program.pages[page].lbl[static_cast<std::size_t>(index)];
        SetTitleWords(program, page, index, label, TitleOn(page, title));
        if (place == Place::Centred) {
            label.Left = Centred(program, label);
        }
    }
}

bool PagesAreBuilt(const Program& program) {
    return !program.pages[PageId::frmP1].lbl.empty() && !program.pages[PageId::frmP6_1].lbl.empty();
}

void Record(Program& program, PageId page) {
    const auto index = static_cast<std::size_t>(geometry::TitleLabel(page));
    const PageLabel& label = program.pages[page].lbl[index];
    LabelChangeRecord& kept = program.format.PropLabelChanges[page][index];
    static_cast<LabelLook&>(kept) = {label.Left,      label.Top,        label.Caption,
                                     label.FontName,  label.FontSize,   label.FontBold,
                                     label.ForeColor, label.FontItalic, label.FontUnderline};
    kept.Changed = true;
}

} // namespace

void SetTitleWords(const Program& program, PageId page, int index, PageLabel& label, std::string words) {
    const bool stood = StandsCentred(program, page, index, label);
    if (label.Caption == words && label.Left != BuiltLeft(page, index)) {
        return;
    }
    label.Caption = std::move(words);
    if (stood) {
        Centre(program, label);
    }
}

std::string NobodysTitle(PageId page) {
    return TitleOn(page, kNobody);
}

bool StandsCentred(const Program& program, PageId page, int index, const PageLabel& label) {
    constexpr float kTwip = 1;
    return std::fabs(label.Left - Centred(program, label)) <= kTwip || label.Left == BuiltLeft(page, index);
}

void Centre(const Program& program, PageLabel& label) {
    label.Left = Centred(program, label);
}

void UpdateFooters(Program& program) {
    if (PagesAreBuilt(program)) {
        LayLines(program, Place::Kept);
    }
}

void CentreFooters(Program& program) {
    if (PagesAreBuilt(program)) {
        LayLines(program, Place::Centred);
    }
}

void UpdateEventNameLabels(Program& program) {
    UpdateFooters(program);
    program.document.WindowTitle = "Quillbrook";
    if (program.format.FormatOpen) {
        program.document.WindowTitle += ": Format File = " + program.format.FormatName;
    }
    if (program.document.HasName()) {
        program.document.WindowTitle += " - File Name = " + program.document.FileName;
    }
}

void LayTitles(Program& program) {
    UpdateFooters(program);
    for (const PageId page : kEditedPages) {
        Record(program, page);
    }
}

void SetPageHeading(Program& program, const char* what) {
    program.document.PageHeading = program.settings.PageTitles.empty()
                                       ? program.settings.CompanyName + " - " + what + " - "
                                       : program.settings.PageTitles;
    LayHeading(program);
}

void LayHeading(Program& program) {
    if (!PagesAreBuilt(program)) {
        return;
    }
    constexpr std::string_view kNumber = "Page ";
    for (const PageId page : kAllPages) {
        PageLabel& heading = program.pages[page].lbl[0];
        const std::size_t number = heading.Caption.rfind(kNumber);
        if (page == PageId::frmP1 || number == std::string::npos) {
            continue;
        }
        std::string words = program.document.PageHeading + heading.Caption.substr(number);
        if (words != heading.Caption) {
            SetTitleWords(program, page, 0, heading, std::move(words));
        }
    }
}

} // namespace modTitles
