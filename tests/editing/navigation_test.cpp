#include "editing/navigation.h"
#include "pages/fields.h"
#include "pages/row_fields.h"
#include "program/keys.h"
#include "support/person.h"
#include "support/running_program.h"
#include "support/typist.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

// Every way through the grid, row by row, on every page.

namespace {

enum class Box { None, Quantity, Price };

FieldRef Text(PageId page, int index) {
    return {page, FieldKind::txt, index};
}

/// Where a key leads from an area, written from the grid and not from the program's table.
FieldRef Expected(PageId page, int index, int key) {
    const bool client = page == PageId::frmP1;
    const int last = client ? 29 : 65;
    const int toAmount = client ? 10 : 33;
    const int lastLine = client ? 19 : 32;
    if (key == keys::kUp) {
        const bool wraps = client && index == 20;
        return Text(page, wraps ? 10 : index == 0 ? 0 : index - 1);
    }
    if (index == last) {
        return Text(PageAt(IndexOf(page) + 1), 0);
    }
    if (key == keys::kDown || (client && index < 10)) {
        return Text(page, index + 1);
    }
    return Text(page, index <= lastLine ? index + toAmount : index - toAmount + 1);
}

void Walk(RunningProgram& run, const FieldRef& from, int key, const FieldRef& to) {
    if (run.program.main.PageInFront != from.Page) {
        person::TurnTo(run.program, IndexOf(from.Page));
    }
    modFields::GiveFocus(run.program, from);
    ASSERT_EQ(run.program.main.Focus, from);
    Typist(run.program).Press(key);
    EXPECT_EQ(run.program.main.Focus, to)
        << "page " << IndexOf(from.Page) << " area " << from.Index << " key " << key;
}

TEST(Grid, LeadsFromEveryAreaOfEveryPage) {
    RunningProgram run;
    for (const PageId page : kLinePages) {
        const int last = page == PageId::frmP1 ? 29 : 65;
        for (int index = 0; index <= last; ++index) {
            for (const int key : {keys::kEnter, keys::kTab, keys::kUp, keys::kDown}) {
                Walk(run, Text(page, index), key, Expected(page, index, key));
            }
        }
    }
}

TEST(Grid, LeadsThroughTheBoxesOfEveryRowWithColumns) {
    RunningProgram run;
    for (const PageId page : kLinePages) {
        const int first = page == PageId::frmP1 ? 10 : 0;
        const int last = page == PageId::frmP1 ? 19 : 32;
        const int toAmount = page == PageId::frmP1 ? 10 : 33;
        for (int row = first; row <= last; ++row) {
            modPages::PlaceColumns(run.program, page, row, modPages::Columns::On);
            const FieldRef quantity{page, FieldKind::txtQty, row};
            const FieldRef price{page, FieldKind::txtAmt, row};
            for (const int key : {keys::kEnter, keys::kTab}) {
                Walk(run, quantity, key, Text(page, row));
                EXPECT_EQ(run.Area(page, row).SelStart, 0);
                EXPECT_EQ(run.Area(page, row).SelLength, 0);
                Walk(run, Text(page, row), key, price);
                Walk(run, price, key, Text(page, row + toAmount));
                if (row > first) {
                    Walk(run, Text(page, row + toAmount - 1), key, quantity);
                }
            }
            // Rows beside it have no columns yet above, none below.
            for (const FieldRef& box : {quantity, price}) {
                Walk(run, box, keys::kDown, box.Index == last ? box : Text(page, row + 1));
                Walk(run, box, keys::kUp, row == 0 ? box : Text(page, row - 1));
            }
            modPages::PlaceColumns(run.program, page, row, modPages::Columns::Off);
        }
        for (int row = first; row <= last; ++row) {
            modPages::PlaceColumns(run.program, page, row, modPages::Columns::On);
        }
        for (int row = first; row < last; ++row) {
            for (const FieldKind kind : {FieldKind::txtQty, FieldKind::txtAmt}) {
                Walk(run, {page, kind, row}, keys::kDown, {page, kind, row + 1});
                Walk(run, {page, kind, row + 1}, keys::kUp, {page, kind, row});
            }
        }
    }
}

TEST(Grid, OfTheFinalPageIsWalkedByNoKey) {
    RunningProgram run;
    for (int index = 0; index < 6; ++index) {
        for (const int key : {keys::kEnter, keys::kTab, keys::kUp, keys::kDown}) {
            Walk(run, Text(PageId::frmP6, index), key, Text(PageId::frmP6, index));
        }
    }
}

TEST(Grid, ShiftAndTabGoBackTheWayTabCame) {
    RunningProgram run;
    modPages::PlaceColumns(run.program, PageId::frmP1, 12, modPages::Columns::On);
    modPages::PlaceColumns(run.program, PageId::frmP2, 3, modPages::Columns::On);
    Typist typist(run.program);
    typist.Click(PageId::frmP1, 0);
    std::vector<FieldRef> way;
    while (run.program.main.Focus && run.program.main.Focus->Page != PageId::frmP6 && way.size() < 400) {
        way.push_back(*run.program.main.Focus);
        typist.Press(keys::kTab);
    }
    ASSERT_EQ(way.size(), 30U + 2 + 4 * 66 + 2);
    for (std::size_t at = way.size(); at-- > 0;) {
        typist.Press(keys::kTab, keys::kShiftState);
        EXPECT_EQ(run.program.main.Focus, way[at]) << at;
        EXPECT_EQ(run.program.main.PageInFront, way[at].Page);
    }
    typist.Press(keys::kTab, keys::kShiftState);
    EXPECT_EQ(run.program.main.Focus, Text(PageId::frmP1, 0)) << "nothing is before it";
}

TEST(Grid, AHeldKeyWalksOn) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(PageId::frmP2, 0);
    for (int times = 0; times < 5; ++times) {
        typist.Hold(keys::kDown);
    }
    EXPECT_EQ(run.program.main.Focus, Text(PageId::frmP2, 5));
}

TEST(Grid, AnAreaKeepsItsCursorWhileItHasNoFocus) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(PageId::frmP2, 3);
    typist.Type("chairs");
    typist.PutCursor(2);
    typist.Press(keys::kDown);
    typist.Press(keys::kUp);
    EXPECT_EQ(run.Area(PageId::frmP2, 3).SelStart, 2);
}

TEST(Grid, WalkingKeysLeaveTheLastKeyAlone) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(PageId::frmP2, 3);
    typist.Type(" ");
    EXPECT_EQ(run.program.editing.LastKeyChar, " ");
    typist.Press(keys::kDown);
    typist.Press(keys::kEnter);
    EXPECT_EQ(run.program.editing.LastKeyChar, " ");
    typist.Press(keys::kDelete);
    EXPECT_EQ(run.program.editing.LastKeyChar, ".");
    typist.Press(keys::kRight);
    EXPECT_EQ(run.program.editing.LastKeyChar, "'");
}

// ---- scrolling: 9000 of 15870 twips show; a page down moves half of that, a page up all
// ---------------------

TEST(ScrollTest, TakesTheTopOfTheAreaThatWasLeft) {
    RunningProgram run;
    Typist typist(run.program);
    // Row 18 stands at 8280: 8790 is above 9000. Row 19 at 8640: 9150 is not.
    typist.Click(PageId::frmP2, 18);
    typist.Press(keys::kEnter); // to its amount, on the same line
    EXPECT_EQ(run.program.main.VScroll1.Value, 0);
    typist.Press(keys::kEnter);
    EXPECT_EQ(run.program.main.VScroll1.Value, 0) << "the amount of row 18 was left";
    EXPECT_EQ(run.program.main.Focus, Text(PageId::frmP2, 19));
    typist.Press(keys::kEnter);
    EXPECT_GT(run.program.main.VScroll1.Value, 0) << "from a description to its amount counts as downward";
}

TEST(ScrollTest, MovesTheFirstAreaOfALinePageUp) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(PageId::frmP2, 0);
    typist.Press(keys::kPageDown);
    const int down = run.program.main.VScroll1.Value;
    ASSERT_GT(down, 0);
    typist.Press(keys::kUp); // 1800 - 300 lies above the visible top
    EXPECT_LT(run.program.main.VScroll1.Value, down);
    EXPECT_EQ(run.program.main.Focus, Text(PageId::frmP2, 0));
}

TEST(ScrollTest, IsNotMadeAtTheTopAreaOfTheFirstPageWhichOnlyComesIntoView) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(PageId::frmP1, 0);
    typist.Press(keys::kPageDown);
    const int down = run.program.main.VScroll1.Value;
    ASSERT_GT(down, 0);
    const int top = static_cast<int>(run.Area(PageId::frmP1, 0).Top);
    ASSERT_LT(top, down);
    typist.Press(keys::kUp);
    EXPECT_LT(run.program.main.VScroll1.Value, top);
    EXPECT_GT(run.program.main.VScroll1.Value, top - 600) << "a row above it, no more";
}

TEST(ScrollTest, IsNotMadeAfterAChangeOfPage) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(PageId::frmP2, 65);
    typist.Press(keys::kPageDown);
    typist.Press(keys::kEnter);
    EXPECT_EQ(run.program.main.PageInFront, PageId::frmP3);
    EXPECT_EQ(run.program.main.VScroll1.Value, 0);
}

TEST(ScrollTest, IsMadeForTheBoxesToo) {
    RunningProgram run;
    for (const int row : {19, 20}) {
        modPages::PlaceColumns(run.program, PageId::frmP2, row, modPages::Columns::On);
    }
    Typist typist(run.program);
    person::TurnTo(run.program, 1);
    typist.Click({PageId::frmP2, FieldKind::txtQty, 19});
    typist.Press(keys::kDown);
    EXPECT_GT(run.program.main.VScroll1.Value, 0);
}

TEST(ScrollTest, OfABoxAsksForAPageAsThatOfADescription) {
    RunningProgram run;
    for (const int row : {18, 19, 20}) {
        modPages::PlaceColumns(run.program, PageId::frmP2, row, modPages::Columns::On);
    }
    Typist typist(run.program);
    typist.Click({PageId::frmP2, FieldKind::txtQty, 18});
    std::vector<int> asked;
    run.program.hooks.PageKey = [&](Program&, int key) { asked.push_back(key); };
    typist.Press(keys::kDown);
    EXPECT_EQ(asked, std::vector<int>{}) << "8790 is above the window's foot at 9000";
    typist.Press(keys::kDown);
    EXPECT_EQ(asked, std::vector<int>{keys::kPageDown});
    EXPECT_EQ(run.program.main.Focus, (FieldRef{PageId::frmP2, FieldKind::txtQty, 20}));
}

TEST(ScrollTest, IsMadeOnTheWayBackToo) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(PageId::frmP2, 1);
    typist.Press(keys::kPageDown);
    const int down = run.program.main.VScroll1.Value;
    std::vector<int> asked;
    run.program.hooks.PageKey = [&](Program&, int key) { asked.push_back(key); };
    ASSERT_GT(down, 0);
    typist.Press(keys::kTab, keys::kShiftState); // to the amount of the row above, 1800
    EXPECT_EQ(run.program.main.Focus, Text(PageId::frmP2, 33));
    EXPECT_EQ(asked, std::vector<int>{keys::kPageUp});
}

TEST(ScrollTest, IsMadeAtTheFirstAreaOfALinePageAndNotOfTheClientPage) {
    for (const PageId page : {PageId::frmP1, PageId::frmP2}) {
        RunningProgram run;
        Typist(run.program).Click(page, 0);
        run.program.pages[page].Top = -7000;
        std::vector<int> asked;
        run.program.hooks.PageKey = [&](Program&, int key) { asked.push_back(key); };
        modNavigate::Move(run.program, page, 0, modNavigate::Step::Up);
        EXPECT_EQ(asked, page == PageId::frmP1 ? std::vector<int>{} : std::vector<int>{keys::kPageUp});
    }
}

TEST(ScrollTest, IsNotMadeWhereNothingIsBefore) {
    RunningProgram run;
    Typist(run.program).Click(PageId::frmP1, 0);
    run.program.pages[PageId::frmP1].Top = -7000;
    int asked = 0;
    run.program.hooks.PageKey = [&](Program&, int) { ++asked; };
    modNavigate::MoveBack(run.program, Text(PageId::frmP1, 0));
    EXPECT_EQ(asked, 0);
    EXPECT_EQ(run.program.main.Focus, Text(PageId::frmP1, 0));
}

} // namespace
