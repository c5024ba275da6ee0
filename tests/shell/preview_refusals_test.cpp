#include "shell/preview_refusals.h"

#include "output/preview.h"
#include "program/program.h"
#include "shell/command_run.h"
#include "shell/command_table.h"
#include "shell/page_switch.h"
#include "support/running_program.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace {

const std::set<std::string>& Editing() {
    static const std::set<std::string> kNames{
        "mnuEditTextBox",      "mnuEditTextColumns",    "mnuEditTextBreak0",       "mnuEditTextBold",
        "mnuEditTextNormal",   "mnuEditTextCenter",     "mnuEditTextBreak1",       "mnuEditTextSelLCase",
        "mnuEditTextSelPCase", "mnuEditTextSelUCase",   "mnuEditTextBreak2",       "mnuEditTextAddFUT",
        "mnuEditTextEditFUT",  "mnuEditTextDeleteFUT",  "mnuEditTextBreak3",       "mnuEditTextDelete",
        "mnuEditTextUndo",     "mnuEditTextBreak4",     "mnuEditTextCopy",         "mnuEditTextCut",
        "mnuEditTextPaste",    "mnuEditTextBreak5",     "mnuEditTextMoveDown",     "mnuEditTextMoveUp",
        "mnuEditTextBreak6",   "mnuEditTextTaxExempt",  "mnuEditTextTaxable",      "mnuEditTextBreak7",
        "mnuEditTextDeselect", "mnuEditTextBreak8",     "mnuEditTextProperties",   "mnuEditLabel",
        "mnuEditLabelProps",   "mnuEditLabelSelectAll", "mnuEditLabelDeselectAll", "mnuEditLabelMode",
        "mnuEditLogo",         "mnuEditLogoOpen",       "mnuEditLogoSave",         "mnuEditLogoVisible",
        "mnuEditLogoBorder",   "mnuEditAllTextFonts",   "mnuEditTitles",           "mnuEditCompInfo",
        "mnuEditSpellCheck",   "mnuManageEditor"};
    return kNames;
}

TEST(PreviewRefusals, AreForTheCommandsThatEditAPageAndNoOthers) {
    RunningProgram run;
    modPreview::TogglePreview(run.program);
    std::set<std::string> refused;
    for (const commands::Entry& entry : commands::Table()) {
        if (commands::RefusedInPreview(run.program, entry.Id)) {
            refused.insert(std::string(entry.Name));
        }
    }
    EXPECT_EQ(refused, Editing());
}

TEST(PreviewRefusals, EndWithThePreview) {
    RunningProgram run;
    for (const commands::Entry& entry : commands::Table()) {
        EXPECT_FALSE(commands::RefusedInPreview(run.program, entry.Id)) << entry.Name;
    }
    modPreview::TogglePreview(run.program);
    EXPECT_TRUE(commands::RefusedInPreview(run.program, CommandId::mnuEditTitles));
    modScroll::UpdatePageButtons(run.program, 3);
    EXPECT_FALSE(commands::RefusedInPreview(run.program, CommandId::mnuEditTitles));
}

TEST(PreviewRefusals, SayWhatToDoFirst) {
    RunningProgram run;
    modPreview::TogglePreview(run.program);
    run.surroundings.questions.ExpectBox({"Please click \"Resume Editing\" first.", Buttons::Ok, ""},
                                         Answer::Ok);
    EXPECT_TRUE(commands::RefuseInPreview(run.program, CommandId::mnuManageEditor));
    run.surroundings.questions.Done();
    EXPECT_FALSE(commands::RefuseInPreview(run.program, CommandId::mnuFileSaveEvent));
    EXPECT_FALSE(commands::RefuseInPreview(run.program, CommandId::mnuFilePrintAll));
    EXPECT_FALSE(commands::RefuseInPreview(run.program, CommandId::mnuFileExit));
    EXPECT_FALSE(commands::RefuseInPreview(run.program, CommandId::mnuFileResume));
}

} // namespace
