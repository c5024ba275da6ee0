#include "editing/typing.h"
#include "program/keys.h"
#include "support/running_program.h"
#include "support/typist.h"

#include <gtest/gtest.h>

#include <string>

// What one key does to an area and what the strip then tells of it.

namespace {

constexpr PageId kSecond = PageId::frmP2;

TEST(LettingGo, OfAKeyTellsWhereTheCursorStandsAndTheWidthOfItsOwnArea) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(kSecond, 0);
    typist.Type("abc");
    run.Area(kSecond, 0).SelStart = 2;
    run.program.editing.CurrentWidth = 6270; // of a row below, into which a line has flowed
    modText::txt_KeyUp(run.program, kSecond, 0, keys::kLeft, 0);
    EXPECT_EQ(run.program.editing.CursorPos, 2);
    EXPECT_EQ(run.program.main.lblCurPos.Caption, "Cursor Location = 2");
    EXPECT_EQ(run.program.editing.CurrentWidth, 8640);
}

TEST(PressingAKey, TellsWhereTheCursorStandsBeforeItActs) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(kSecond, 0);
    typist.Type("abcd");
    run.Area(kSecond, 0).SelStart = 2;
    EXPECT_EQ(modText::txt_KeyDown(run.program, kSecond, 0, 'E', 0), Taken::No);
    EXPECT_EQ(run.program.editing.CursorPos, 2);
    EXPECT_EQ(run.program.main.lblCurPos.Caption, "Cursor Location = 2");
    EXPECT_EQ(run.program.main.lblTextPos.Caption, "Printer Text Position = 200.");
}

TEST(Paste, IntoAnAmountGoesToItsEndWhenTheCursorStandsBeyondIt) {
    RunningProgram run;
    Typist(run.program).Click(kSecond, 33);
    run.Area(kSecond, 33).Text = "12";
    run.Area(kSecond, 33).SelStart = 7; // a longer text stood here
    run.surroundings.clipboard.Text = "34";
    EXPECT_EQ(modText::txt_KeyDown(run.program, kSecond, 33, keys::kV, keys::kCtrlState), Taken::Yes);
    EXPECT_EQ(run.TextOf(kSecond, 33), "1234");
    EXPECT_EQ(run.Area(kSecond, 33).SelStart, 4);
}

TEST(Paste, OfWhatIsNoNumberIsNamedByItsFirstThirtyCharactersAndItsFirstLine) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(kSecond, 33);
    typist.PasteByKey(std::string(30, 'x'), run.surroundings.clipboard.Text);
    EXPECT_EQ(run.program.main.Notice, "\"" + std::string(30, 'x') + "\" was not taken: it is no number.");
    typist.PasteByKey(std::string(31, 'y'), run.surroundings.clipboard.Text);
    EXPECT_EQ(run.program.main.Notice, "\"" + std::string(30, 'y') + "...\" was not taken: it is no number.");
    typist.PasteByKey("chairs\r\n5", run.surroundings.clipboard.Text);
    EXPECT_EQ(run.program.main.Notice, "\"chairs...\" was not taken: it is no number.");
}

} // namespace
