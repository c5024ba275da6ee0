#include "pages/spoken_names.h"

#include "pages/page_geometry.h"
#include "support/running_program.h"

#include <gtest/gtest.h>

#include <set>

namespace {

std::string Spoken(const RunningProgram& run, PageId page, FieldKind kind, int index) {
    return modPages::SpokenName(run.program, {page, kind, index});
}

} // namespace

TEST(SpokenName, OfAClientsFieldIsTheCaptionBesideIt) {
    const RunningProgram run;
    EXPECT_EQ(Spoken(run, PageId::frmP1, FieldKind::txt, 0), "Event Date");
    EXPECT_EQ(Spoken(run, PageId::frmP1, FieldKind::txt, 2), "Client's Name");
    EXPECT_EQ(Spoken(run, PageId::frmP1, FieldKind::txt, 9), "Address");
}

TEST(SpokenName, FollowsACaptionThatWasChanged) {
    RunningProgram run;
    run.program.pages[PageId::frmP1].lbl[12].Caption = " Host: ";
    EXPECT_EQ(Spoken(run, PageId::frmP1, FieldKind::txt, 2), "Host");
    run.program.pages[PageId::frmP1].lbl[12].Caption.clear();
    EXPECT_EQ(Spoken(run, PageId::frmP1, FieldKind::txt, 2), "Client's Name");
}

TEST(SpokenName, OfARowIsItsLineAndColumn) {
    const RunningProgram run;
    EXPECT_EQ(Spoken(run, PageId::frmP1, FieldKind::txt, 10), "Line 1, description");
    EXPECT_EQ(Spoken(run, PageId::frmP1, FieldKind::txt, 29), "Line 10, amount");
    EXPECT_EQ(Spoken(run, PageId::frmP2, FieldKind::txt, 2), "Line 3, description");
    EXPECT_EQ(Spoken(run, PageId::frmP2, FieldKind::txt, 35), "Line 3, amount");
    EXPECT_EQ(Spoken(run, PageId::frmP2, FieldKind::txtQty, 2), "Line 3, quantity");
    EXPECT_EQ(Spoken(run, PageId::frmP2, FieldKind::txtAmt, 2), "Line 3, unit price");
}

TEST(SpokenName, OfAFigureIsItsCaption) {
    const RunningProgram run;
    EXPECT_EQ(Spoken(run, PageId::frmP6, FieldKind::txt, 4), "Deposit Received");
    EXPECT_EQ(Spoken(run, PageId::frmP6_1, FieldKind::txt, 5), "Balance Due");
}

TEST(SpokenName, IsAnotherForEveryAreaOfAPage) {
    const RunningProgram run;
    for (const PageId page : kAllPages) {
        std::set<std::string> names;
        for (int index = 0; index <= geometry::LastText(page); ++index) {
            const std::string name = Spoken(run, page, FieldKind::txt, index);
            EXPECT_FALSE(name.empty()) << index;
            EXPECT_TRUE(names.insert(name).second) << name;
        }
    }
}
