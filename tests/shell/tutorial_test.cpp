#include "editing/area_mouse.h"
#include "program/keys.h"
#include "shell/command_run.h"
#include "shell/frm_main.h"
#include "support/running_program.h"
#include "support/typist.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>

namespace {

std::string Tutorial() {
    std::ifstream in(QUILLBROOK_SHIPPED_DATA "/Help/tutorial.htm", std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

/// A person with the tutorial open: types only what it tells to type, and finds what it promises.
struct Reader : RunningProgram {
    void Types(const std::string& text) {
        EXPECT_NE(tutorial.find("<code>" + text + "</code>"), std::string::npos) << "not told: " << text;
        typist.Type(text);
    }
    void TypesAndEnter(const std::string& text) {
        Types(text);
        typist.Press(keys::kEnter);
    }
    void DoubleClicks(int index) {
        typist.Click(PageId::frmP1, index);
        modText::txt_DblClick(program, PageId::frmP1, index);
    }
    void Finds(PageId page, int index, const std::string& text) {
        EXPECT_EQ(TextOf(page, index), text);
        EXPECT_NE(tutorial.find(text), std::string::npos) << "not promised: " << text;
    }

    std::string tutorial = Tutorial();
    Typist typist{program};
};

TEST(Tutorial, KeepsItsPromises) {
    Reader run;
    run.typist.Click(PageId::frmP1, 0);
    run.TypesAndEnter("6/19/2027");
    run.TypesAndEnter("6:00 pm");
    run.TypesAndEnter("Jane Roe");
    run.TypesAndEnter("12 Elm Street");
    run.TypesAndEnter("Springfield, IL 62701");
    run.TypesAndEnter("2175550100");
    run.typist.Click(PageId::frmP1, 8);
    run.Types("Garden Hall");
    run.DoubleClicks(0);
    run.DoubleClicks(1);
    run.DoubleClicks(5);
    run.Finds(PageId::frmP1, 0, "June 19, 2027");
    run.Finds(PageId::frmP1, 1, "6:00 PM");
    run.Finds(PageId::frmP1, 5, "(217) 555-0100");
    EXPECT_EQ(run.Main().Caption, "Quillbrook - File Name = Jane Roe.hef");

    run.typist.Click(PageId::frmP1, 10);
    run.TypesAndEnter("Ceremony arch with greenery");
    run.TypesAndEnter("1250");
    run.Finds(PageId::frmP1, 20, "1,250.00");
    run.TypesAndEnter("Rehearsal, one hour");
    run.TypesAndEnter("75.5");
    run.typist.Click(PageId::frmP1, 21);
    commands::Run(run.program, CommandId::mnuEditTextTaxExempt);

    frmMain window(run.program);
    window.imgPage_Click(1);
    run.typist.Click(PageId::frmP2, 0);
    run.typist.Press(keys::kF8);
    run.TypesAndEnter("3");
    run.TypesAndEnter("Chair covers");
    run.TypesAndEnter("19.99");
    run.Finds(PageId::frmP2, 33, "59.97");
    run.typist.Press(keys::kEnter);
    EXPECT_EQ(run.program.main.Focus, (FieldRef{PageId::frmP2, FieldKind::txt, 1}));

    window.imgPage_Click(5);
    run.Finds(PageId::frmP6, 0, "1,385.47");
    run.Finds(PageId::frmP6, 1, "1,309.97");
    run.Finds(PageId::frmP6, 2, "108.07");
    run.Finds(PageId::frmP6, 3, "1,493.54");
    run.typist.Click(PageId::frmP6, 4);
    run.typist.PutCursor(0, static_cast<int>(run.TextOf(PageId::frmP6, 4).size()));
    run.TypesAndEnter("500");
    run.Finds(PageId::frmP6, 5, "993.54");

    run.surroundings.questions.Expect("File was saved as Jane Roe.hef");
    commands::Run(run.program, CommandId::mnuFileSaveEvent);
    run.surroundings.questions.Done();
    EXPECT_NE(run.tutorial.find("File was saved as Jane Roe.hef"), std::string::npos);
}

} // namespace
