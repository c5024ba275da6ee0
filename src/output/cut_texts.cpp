#include "output/cut_texts.h"

#include "base/text.h"
#include "pages/page_geometry.h"
#include "pages/row_fields.h"
#include "pages/spoken_names.h"
#include "pages/text_width.h"
#include "program/program.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace modPrint {

namespace {

/// What a text takes of its line, from left to right.
struct Span {
    float Left = 0;
    float Right = 0;
    float Top = 0;
};

/// Fields whose tops are nearer than half a row stand in one line.
constexpr float kHalfRow = 180;
/// Letters touch before they cover one another.
constexpr float kTouch = 15;

bool CoverOneAnother(const Span& one, const Span& other) {
    return std::fabs(one.Top - other.Top) < kHalfRow && one.Left + kTouch < other.Right &&
           other.Left + kTouch < one.Right;
}

class Sheet {
public:
    Sheet(const Program& program, PageId page) : program_(program), page_(program.pages[page]) { Collect(); }

    [[nodiscard]] std::vector<FieldRef> Lost() const {
        std::vector<FieldRef> lost;
        for (std::size_t at = 0; at < areas_.size(); ++at) {
            if (areas_[at].TooLong && (BeyondTheEdge(areas_[at].Place) || Covers(at))) {
                lost.push_back(areas_[at].Field);
            }
        }
        return lost;
    }

private:
    struct Area {
        FieldRef Field;
        Span Place;
        bool TooLong = false;
    };

    void Collect() {
        const PageId id = page_.Id;
        for (const FieldKind kind : {FieldKind::txt, FieldKind::txtQty, FieldKind::txtAmt}) {
            const std::vector<TextArea>& areas = kind == FieldKind::txt      ? page_.txt
                                                 : kind == FieldKind::txtQty ? page_.txtQty
                                                                             : page_.txtAmt;
            for (std::size_t index = 0; index < areas.size(); ++index) {
                const int at = static_cast<int>(index);
                Take({id, kind, at}, areas[index], kind == FieldKind::txt && geometry::RightAligned(id, at));
            }
        }
        for (const PageLabel& label : page_.lbl) {
            Take(label);
        }
        for (const auto* signs : {&page_.lblAt, &page_.lblEach}) {
            for (std::size_t row = 0; row < signs->size(); ++row) {
                if (!modPages::IsBlankRow(page_, static_cast<int>(row))) {
                    Take((*signs)[row]);
                }
            }
        }
    }
    void Take(const FieldRef& field, const TextArea& area, bool right) {
        const std::string_view shown = text::RTrim(area.Text);
        if (area.Tag == kHide || shown.empty()) {
            return;
        }
        const float width = program_.platform.measure.Width(
            shown, {area.FontName, area.FontSize, area.FontBold, area.FontItalic});
        const float left = right ? area.Left + area.Width - width : area.Left;
        areas_.push_back({field, {left, left + width, area.Top}, width > area.Width});
    }
    void Take(const PageLabel& label) {
        if (label.Tag != kHide && !label.Caption.empty()) {
            labels_.push_back({label.Left, label.Left + modPages::LabelWidth(program_, label), label.Top});
        }
    }
    [[nodiscard]] bool BeyondTheEdge(const Span& place) const {
        return place.Left < 0 || place.Right > program_.pages[PageId::frmP1].Width;
    }
    [[nodiscard]] bool Covers(std::size_t at) const {
        const Span& place = areas_[at].Place;
        for (std::size_t other = 0; other < areas_.size(); ++other) {
            if (other != at && CoverOneAnother(place, areas_[other].Place)) {
                return true;
            }
        }
        return std::any_of(labels_.begin(), labels_.end(),
                           [&](const Span& label) { return CoverOneAnother(place, label); });
    }

    const Program& program_;
    const Page& page_;
    std::vector<Area> areas_;
    std::vector<Span> labels_;
};

} // namespace

std::vector<std::string> TextsLostOnPaper(const Program& program, const std::vector<PageId>& pages) {
    std::vector<std::string> places;
    for (const PageId page : kAllPages) {
        const bool printed = std::find(pages.begin(), pages.end(), page) != pages.end();
        const bool again =
            page == PageId::frmP6_1 && std::find(pages.begin(), pages.end(), PageId::frmP6) != pages.end();
        if (!printed || again) {
            continue; // the copy has the texts of the final page
        }
        for (const FieldRef& field : Sheet(program, page).Lost()) {
            places.push_back(std::string(geometry::PageCaption(page)) + ", " +
                             modPages::SpokenName(program, field));
        }
    }
    return places;
}

bool MayPrint(Program& program, const std::vector<PageId>& pages) {
    const std::vector<std::string> places = TextsLostOnPaper(program, pages);
    if (places.empty()) {
        return true;
    }
    const std::string message = text::FirstTen(
        "These texts are longer than their place and cannot be read as a whole on paper:", places);
    return program.platform.questions.MsgBox(message, Buttons::YesNo, "",
                                             {.Default = Answer::No, .Words = {"Print Anyway", "Cancel"}}) ==
           Answer::Yes;
}

} // namespace modPrint
