#include "pages/page_show.h"

#include "program/program.h"
#include "support/running_program.h"

#include <gtest/gtest.h>

namespace {

TEST(PageShow, EveryAreaAndRuleShowsAndOfTheLabelsThoseThatAreNotHidden) {
    RunningProgram run;
    for (const PageId id : kAllPages) {
        Page& page = run.program.pages[id];
        for (TextArea& area : page.txt) {
            area.Visible = false;
            area.Enabled = false;
        }
        for (PageLine& line : page.lne) {
            line.Visible = false;
        }
        for (std::size_t index = 0; index < page.lbl.size(); ++index) {
            page.lbl[index].Tag = index % 2 == 0 ? "" : kHide;
            page.lbl[index].Visible = index % 2 != 0;
        }
        modPages::ShowPage(run.program, id);
        for (const TextArea& area : page.txt) {
            EXPECT_TRUE(area.Visible) << page.Name;
            EXPECT_TRUE(area.Enabled) << page.Name;
        }
        for (const PageLine& line : page.lne) {
            EXPECT_TRUE(line.Visible) << page.Name;
        }
        for (std::size_t index = 0; index < page.lbl.size(); ++index) {
            EXPECT_EQ(page.lbl[index].Visible, index % 2 == 0) << page.Name << " label " << index;
        }
    }
}

TEST(PageShow, WhatTheProposalHasInBoldIsBoldWhileAFormatIsOpen) {
    RunningProgram run;
    run.program.format.PropTextChanges[PageId::frmP2][5].FontBold = true;
    run.program.format.PropTextChanges[PageId::frmP6][4].FontBold = true;
    const auto show = [&] {
        for (const PageId page : kAllPages) {
            modPages::ShowPage(run.program, page);
        }
    };
    show();
    EXPECT_FALSE(run.Area(PageId::frmP2, 5).FontBold);
    run.program.format.FormatOpen = true;
    show();
    EXPECT_TRUE(run.Area(PageId::frmP2, 5).FontBold);
    EXPECT_FALSE(run.Area(PageId::frmP2, 6).FontBold);
    EXPECT_TRUE(run.Area(PageId::frmP6, 4).FontBold);
    for (const TextArea& area : run.program.pages[PageId::frmP6_1].txt) {
        EXPECT_FALSE(area.FontBold) << "the client's copy follows when the fonts are laid";
    }
}

TEST(PageShow, TheLogoIsSeenWhenItIsCheckedAndThereIsOne) {
    RunningProgram run;
    PagePicture& logo = run.program.pages[PageId::frmP1].pic;
    logo.Picture = {PictureRef::Source::File, "/srv/logo.png"};
    for (const bool checked : {true, false}) {
        run.program.run.LogoChecked = checked;
        modPages::ShowPage(run.program, PageId::frmP1);
        EXPECT_EQ(logo.Visible, checked);
    }
}

} // namespace
