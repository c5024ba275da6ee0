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

void ToFollowingPage(Program& program, PageId page) {
    const PageId next = PageAt(IndexOf(page) + 1);
    if (program.hooks.UpdatePageButtons) {
        program.hooks.UpdatePageButtons(program, IndexOf(next));
    }
    modFields::GiveFocus(program, {next, FieldKind::txt, 0});
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
        ToFollowingPage(program, page);
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
    modFields::GiveFocus(program, *target);
    ScrollTest(program, page, top, step == Step::Up ? Direction::Up : Direction::Down);
}

} // namespace modNavigate
