#include "pages/company_block.h"

#include "program/program.h"
#include "support/running_program.h"

#include <gtest/gtest.h>

namespace {

/// A business whose lines change after the pages have been laid.
struct Company : RunningProgram {
    void Change(std::string SettingsRecords::*line, std::string_view words) {
        const SettingsRecords before = program.settings;
        program.settings.*line = words;
        modPages::CompanyInfoChanged(program, before);
    }
    LabelChangeRecord& Own(std::size_t label) {
        return program.format.PropLabelChanges[PageId::frmP6][label];
    }
};

TEST(CompanyBlock, TheWebsiteIsNoLineOfTheRemittanceAddress) {
    Company run;
    run.program.settings.CompanyWebsite = "Page 6 of 6"; // as the label below that address says
    run.Change(&SettingsRecords::CompanyWebsite, "acme.example");
    EXPECT_EQ(run.Label(PageId::frmP6, 63).Caption, "Page 6 of 6");
    EXPECT_EQ(run.Label(PageId::frmP6_1, 63).Caption, "Page 6 of 6");
    run.program.format.FormatOpen = true;
    LabelChangeRecord& foot = run.program.format.FormatLabelChanges[PageId::frmP6][63];
    foot.Changed = true;
    foot.Caption = "acme.example";
    run.Change(&SettingsRecords::CompanyWebsite, "events.example");
    EXPECT_EQ(foot.Caption, "acme.example");
    EXPECT_FALSE(run.program.format.Touched);
}

TEST(CompanyBlock, LinesThatTheProposalHasPlacedFollowASecondAddressAndCountAsChanged) {
    Company run;
    run.program.document.FileExists = true;
    run.Own(61).Changed = true;
    run.Change(&SettingsRecords::CompanyAddress2, "Suite 2");
    EXPECT_EQ(run.Own(61).Top, 13860 + 270);
    EXPECT_EQ(run.Own(61).Caption, "(217) 555-0199");
    EXPECT_TRUE(run.program.format.LabelSavedState[PageId::frmP6][61].Changed);
    EXPECT_FALSE(run.program.format.LabelSavedState[PageId::frmP6][62].Changed) << "it has none of its own";
}

TEST(CompanyBlock, TheBoxRoundTheRemittanceAddressGrowsWithASecondAddressAndShrinksAgain) {
    Company run;
    const auto foot = [&](PageId page) { return run.program.pages[page].lne[14].Y1; };
    run.Change(&SettingsRecords::CompanyAddress2, "Suite 2");
    EXPECT_EQ(foot(PageId::frmP6), 14760);
    EXPECT_EQ(foot(PageId::frmP6_1), 14760);
    run.Change(&SettingsRecords::CompanyAddress2, "");
    EXPECT_EQ(foot(PageId::frmP6), 14490);
    EXPECT_EQ(foot(PageId::frmP6_1), 14490);
}

} // namespace
