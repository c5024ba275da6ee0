#include "editing/navigation.h"

#include "pages/fields.h"
#include "pages/page_geometry.h"
#include "pages/row_fields.h"
#include "program/keys.h"
#include "program/program.h"

#include <optional>
#include <span>

namespace modNavigate {

namespace {

enum class Over { Nothing, Price, Quantity }; ///< a box that is entered instead, where the row has columns

/// Where a range of areas leads: to the area `Step` further, or to the row's box on the way when it shows.
struct Rule {
    int From;
    int To;
    int Step;
    Over Box = Over::Nothing;
    int BoxStep = 0; ///< from the area's index to the box's
};

constexpr Rule kEnterClient[] = {{0, 9, 1}, {10, 19, 10, Over::Price, 0}, {20, 28, -9, Over::Quantity, -9}};
constexpr Rule kEnterLines[] = {{0, 32, 33, Over::Price, 0}, {33, 64, -32, Over::Quantity, -32}};
constexpr Rule kUpClient[] = {{1, 19, -1}, {20, 20, -10}, {21, 29, -1}};
constexpr Rule kUpLines[] = {{1, 65, -1}};
constexpr Rule kDownClient[] = {{0, 28, 1}};
constexpr Rule kDownLines[] = {{0, 64, 1}};

std::span<const Rule> RulesFor(PageId page, Step step) {
    const bool client = page == PageId::frmP1;
    switch (step) {
    case Step::Enter:
        return client ? std::span<const Rule>(kEnterClient) : std::span<const Rule>(kEnterLines);
    case Step::Up:
        return client ? std::span<const Rule>(kUpClient) : std::span<const Rule>(kUpLines);
    case Step::Down:
        break;
    }
    return client ? std::span<const Rule>(kDownClient) : std::span<const Rule>(kDownLines);
}

std::optional<FieldRef> TargetOf(const Program& program, PageId page, int index, Step step) {
    for (const Rule& rule : RulesFor(page, step)) {
        if (index < rule.From || index > rule.To) {
            continue;
        }
        const int row = index + rule.BoxStep;
        if (rule.Box != Over::Nothing && modPages::ColumnsOn(program, page, row)) {
            return FieldRef{page, rule.Box == Over::Price ? FieldKind::txtAmt : FieldKind::txtQty, row};
        }
        return FieldRef{page, FieldKind::txt, index + rule.Step};
    }
    return std::nullopt;
}

void ToPage(Program& program, PageId page, int index) {
    if (program.hooks.UpdatePageButtons) {
        program.hooks.UpdatePageButtons(program, IndexOf(page));
    }
    Arrive(program, {page, FieldKind::txt, index});
}

bool HoldsFigure(const FieldRef& field) {
    constexpr int kDeposit = 4;
    return field.Kind != FieldKind::txt || geometry::IsAmount(field.Page, field.Index) ||
           (field.Page == PageId::frmP6 && field.Index == kDeposit);
}

/// The amount of the row above a description's, or what stands before the first one on its page.
std::optional<FieldRef> BeforeRow(PageId page, int row) {
    if (row > geometry::FirstRow(page)) {
        return FieldRef{page, FieldKind::txt, geometry::AmountOf(page, row - 1)};
    }
    return row > 0 ? std::optional(FieldRef{page, FieldKind::txt, row - 1}) : std::nullopt;
}

std::optional<FieldRef> FieldBefore(const Program& program, const FieldRef& field) {
    const PageId page = field.Page;
    const int index = field.Index;
    if (field.Kind == FieldKind::txtAmt) {
        return FieldRef{page, FieldKind::txt, index};
    }
    if (field.Kind == FieldKind::txtQty) {
        return BeforeRow(page, index);
    }
    if (geometry::IsAmount(page, index)) {
        const int row = geometry::DescriptionOf(page, index);
        const bool columns = modPages::ColumnsOn(program, page, row);
        return FieldRef{page, columns ? FieldKind::txtAmt : FieldKind::txt, row};
    }
    if (geometry::IsDescription(page, index)) {
        return modPages::ColumnsOn(program, page, index) ? FieldRef{page, FieldKind::txtQty, index}
                                                         : BeforeRow(page, index);
    }
    return index > 0 ? std::optional(FieldRef{page, FieldKind::txt, index - 1}) : std::nullopt;
}

} // namespace

void ScrollTest(Program& program, PageId page, float fieldTop, Direction direction) {
    constexpr float kBelow = 510, kAbove = 300;
    const float pageTop = program.pages[page].Top;
    if (!program.hooks.PageKey) {
        return;
    }
    if (direction == Direction::Down && fieldTop + kBelow > program.main.ClientHeight - pageTop) {
        program.hooks.PageKey(program, keys::kPageDown);
    } else if (direction == Direction::Up && fieldTop - kAbove < -pageTop) {
        program.hooks.PageKey(program, keys::kPageUp);
    }
}

void Move(Program& program, PageId page, int index, Step step) {
    if (!IsLinePage(page)) {
        return;
    }
    if (step != Step::Up && index == geometry::LastText(page)) {
        ToPage(program, PageAt(IndexOf(page) + 1), 0);
        return;
    }
    const float top = program.pages[page].txt[static_cast<std::size_t>(index)].Top;
    const std::optional<FieldRef> target = TargetOf(program, page, index, step);
    if (!target) {
        if (step == Step::Up && page != PageId::frmP1) {
            ScrollTest(program, page, top, Direction::Up);
        }
        return;
    }
    Arrive(program, *target);
    ScrollTest(program, page, top, step == Step::Up ? Direction::Up : Direction::Down);
}

void MoveBack(Program& program, const FieldRef& field) {
    const bool first = field.Index == 0 && field.Kind != FieldKind::txtAmt;
    if (field.Page == PageId::frmP6 && !first) {
        return; // Tab does not lead from area to area there
    }
    const std::optional<FieldRef> target =
        IsLinePage(field.Page) ? FieldBefore(program, field) : std::nullopt;
    if (target) {
        const float top = modFields::Area(program, field).Top;
        Arrive(program, *target);
        ScrollTest(program, field.Page, top, Direction::Up);
    } else if (first && IndexOf(field.Page) > 0) {
        const PageId before = PageAt(IndexOf(field.Page) - 1);
        ToPage(program, before, geometry::LastText(before));
    }
}

void Arrive(Program& program, const FieldRef& field) {
    if (program.main.Focus == field) {
        return;
    }
    modFields::GiveFocus(program, field);
    if (program.main.Focus == field && HoldsFigure(field)) {
        TextArea& area = modFields::Area(program, field);
        modFields::SetCursor(area, 0, static_cast<int>(area.Text.size()));
    }
}

} // namespace modNavigate
