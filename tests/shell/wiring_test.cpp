#include "output/frm_text_file.h"
#include "pages/fields.h"
#include "program/program.h"
#include "program/windows.h"
#include "proposal/frm_file.h"
#include "shell/page_switch.h"
#include "support/person.h"
#include "support/running_program.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string_view>

namespace {

void ChooseFile(RunningProgram& run, std::string_view filter, std::string_view name) {
    run.program.document.FileFilter = filter;
    auto& chooser = dynamic_cast<frmFile&>(modWindows::Show(run.program, std::make_unique<frmFile>()));
    const auto& items = chooser.FileList1.Items;
    const auto at = std::find(items.begin(), items.end(), name);
    ASSERT_NE(at, items.end());
    chooser.FileList1_Click(run.program, static_cast<int>(at - items.begin()));
    chooser.cmdOpenOK_Click(run.program);
    modWindows::Sweep(run.program);
}

TEST(Rooms, ATextFileThatIsChosenIsShownInItsWindow) {
    RunningProgram run;
    run.folder.Write("Proposals/notes.txt", "words");
    ChooseFile(run, "*.txt", "notes.txt");
    EXPECT_NE(modWindows::Find(run.program, "frmTextFile"), nullptr);
}

TEST(Rooms, AListOfTermsThatIsChosenIsTheOneInUse) {
    RunningProgram run;
    run.folder.Write("Proposals/Garden.fut", "Rose arch [45]");
    ChooseFile(run, "*.fut", "Garden.fut");
    ASSERT_EQ(run.program.terms.Lines.size(), 1U);
    EXPECT_EQ(run.program.terms.Lines.front(), "Rose arch [45]");
}

TEST(Rooms, ANewProposalBringsTheCalculatorBackWhereTheSettingsWantIt) {
    RunningProgram run;
    ASSERT_EQ(modWindows::Find(run.program, "frmCalc"), nullptr);
    person::Choose(run.program, CommandId::mnuFileNew);
    EXPECT_EQ(modWindows::Find(run.program, "frmCalc"), nullptr);
    run.program.settings.ShowCalc = true;
    person::Choose(run.program, CommandId::mnuFileNew);
    EXPECT_NE(modWindows::Find(run.program, "frmCalc"), nullptr);
}

TEST(Rooms, AFieldThatIsToBeShownComesAThirdDownUnlessItShowsAlready) {
    RunningProgram run;
    run.program.main.ClientHeight = 6000;
    person::ResizeWindow(run.program);
    const auto shown = [&](int index, int scrolled) {
        person::TurnTo(run.program, 1);
        modScroll::SetScroll(run.program, scrolled);
        run.program.hooks.ShowField(run.program, {PageId::frmP2, FieldKind::txt, index});
        return run.program.main.VScroll1.Value;
    };
    // Row 20 stands at 9000, 255 high.
    ASSERT_EQ(run.Area(PageId::frmP2, 20).Top, 9000);
    EXPECT_EQ(shown(20, 0), 9000 - 2000);
    EXPECT_EQ(shown(20, 9000), 9000) << "at the very top";
    EXPECT_EQ(shown(20, 9001), 9000 - 2000);
    EXPECT_EQ(shown(20, 9255 - 6000), 9255 - 6000) << "at the very foot";
    EXPECT_EQ(shown(20, 9254 - 6000), 9000 - 2000);
    person::TurnTo(run.program, 0);
    run.program.hooks.ShowField(run.program, {PageId::frmP2, FieldKind::txt, 0});
    EXPECT_EQ(run.program.main.PageInFront, PageId::frmP2);
}

} // namespace
