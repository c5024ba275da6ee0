#include "program/windows.h"
#include "settings/frm_acstart.h"
#include "settings/frm_pref.h"
#include "settings/settings.h"
#include "support/settled.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace {

frmPref& OpenPref(Program& program) {
    return dynamic_cast<frmPref&>(modWindows::Show(program, std::make_unique<frmPref>()));
}

const ScriptedQuestions::Box kNextStart{"These changes will take effect on your next start.", Buttons::Ok,
                                        ""};

TEST(FrmPref, HasItsSevenCaptions) {
    Settled run;
    const frmPref& window = OpenPref(run.program);
    EXPECT_EQ(window.Caption, "User Preferences");
    EXPECT_EQ(window.chkShowFUT.Caption, "Do Not Show Frequently Used Terms List at Start Up");
    EXPECT_EQ(window.chkShowCalc.Caption, "Do Not Show Calculator at Start Up");
    EXPECT_EQ(window.chkMinimizeFUT.Caption, "Load Frequently Used Terms at Minimized State");
    EXPECT_EQ(window.chkACStart.Caption, "Remember Current Auto Word Complete Start Position");
    EXPECT_EQ(window.chkACEnable.Caption, "Disable Automatic Word Complete at Start Up");
    EXPECT_EQ(window.chkLoadDefaultFormat.Caption, "Do Not Load Default File Format for New Proposals");
    EXPECT_EQ(window.chkLoadFUT.Caption, "Always Load the Default Frequent Terms List at Start Up");
    EXPECT_EQ(window.cmdSave.Caption, "Save and Exit");
    EXPECT_EQ(window.cmdExit.Caption, "Exit without Saving");
}

TEST(FrmPref, BoxesThatSayNotAreTheOppositeOfTheirSettings) {
    Settled all;
    all.folder.Write(
        "UserPreferences.txt",
        SettingsFile(
            {{14, "True"}, {15, "2"}, {16, "True"}, {17, "True"}, {18, "True"}, {20, "True"}, {24, "True"}}));
    modSettings::GetUserPreferences(all.program);
    const frmPref& window = OpenPref(all.program);
    EXPECT_FALSE(window.chkShowFUT.Value);
    EXPECT_FALSE(window.chkShowCalc.Value);
    EXPECT_TRUE(window.chkMinimizeFUT.Value);
    EXPECT_TRUE(window.chkACStart.Value);
    EXPECT_FALSE(window.chkACEnable.Value);
    EXPECT_FALSE(window.chkLoadDefaultFormat.Value);
    EXPECT_TRUE(window.chkLoadFUT.Value);

    Settled none;
    none.folder.Write("UserPreferences.txt", SettingsFile({}));
    modSettings::GetUserPreferences(none.program);
    const frmPref& bare = OpenPref(none.program);
    EXPECT_TRUE(bare.chkShowFUT.Value);
    EXPECT_TRUE(bare.chkShowCalc.Value);
    EXPECT_FALSE(bare.chkMinimizeFUT.Value);
    EXPECT_FALSE(bare.chkACStart.Value);
    EXPECT_TRUE(bare.chkACEnable.Value);
    EXPECT_TRUE(bare.chkLoadDefaultFormat.Value);
    EXPECT_FALSE(bare.chkLoadFUT.Value);
}

TEST(FrmPref, SavingReplacesSevenLinesAndNothingElse) {
    Settled run;
    run.folder.Write("UserPreferences.txt", SettingsFile({{2, "Acme"}, {16, "True"}}));
    modSettings::GetUserPreferences(run.program);
    run.program.run.ACStartLen = 4;
    frmPref& window = OpenPref(run.program);
    window.chkShowFUT.Value = true;
    window.chkShowCalc.Value = false;
    window.chkMinimizeFUT.Value = true;
    window.chkACStart.Value = true;
    window.chkACEnable.Value = false;
    window.chkLoadDefaultFormat.Value = false;
    window.chkLoadFUT.Value = true;
    run.surroundings.questions.ExpectBox(kNextStart, Answer::Ok);
    window.cmdSave_Click(run.program);
    EXPECT_EQ(run.folder.Read("UserPreferences.txt"), SettingsFile({{2, "Acme"},
                                                                    {14, "True"},
                                                                    {15, "4"},
                                                                    {16, "False"},
                                                                    {17, "True"},
                                                                    {18, "True"},
                                                                    {20, "True"},
                                                                    {24, "True"}}));
    const SettingsRecords& settings = run.program.settings;
    EXPECT_FALSE(settings.ShowFUT);
    EXPECT_TRUE(settings.ShowCalc);
    EXPECT_TRUE(settings.MinimizeFUT);
    EXPECT_EQ(settings.AutoStartPosition, 4);
    EXPECT_TRUE(settings.AutoCompleteWord);
    EXPECT_TRUE(settings.LoadFUT);
    // The run itself goes on as it was.
    EXPECT_EQ(run.program.run.ACStartLen, 4);
    EXPECT_FALSE(run.program.run.ACEnabled);
    EXPECT_TRUE(window.Closing);
}

TEST(FrmPref, AStartPositionThatIsNotRememberedIsZero) {
    Settled run;
    run.folder.Write("UserPreferences.txt", SettingsFile({{15, "3"}}));
    modSettings::GetUserPreferences(run.program);
    run.program.run.ACStartLen = 3;
    frmPref& window = OpenPref(run.program);
    window.chkACStart.Value = false;
    run.surroundings.questions.ExpectBox(kNextStart, Answer::Ok);
    window.cmdSave_Click(run.program);
    EXPECT_NE(run.folder.Read("UserPreferences.txt").find("Auto Start Position:0\r\n"), std::string::npos);
    EXPECT_EQ(run.program.run.ACStartLen, 3);
}

TEST(FrmPref, StaysOpenWithoutItsMessageWhenTheFileCannotBeWritten) {
    Settled run;
    run.folder.Write("UserPreferences.txt", SettingsFile({}));
    modSettings::GetUserPreferences(run.program);
    frmPref& window = OpenPref(run.program);
    std::filesystem::remove(run.folder / "UserPreferences.txt");
    run.folder.MakeFolder("UserPreferences.txt");
    run.ExpectReport("RequestNetworkSharePath");
    window.cmdSave_Click(run.program);
    EXPECT_FALSE(window.Closing);
}

TEST(FrmPref, LeavingWithoutSavingChangesNothing) {
    Settled run;
    run.folder.Write("UserPreferences.txt", SettingsFile({}));
    modSettings::GetUserPreferences(run.program);
    frmPref& window = OpenPref(run.program);
    window.chkLoadFUT.Value = true;
    window.cmdExit_Click(run.program);
    OpenPref(run.program).Form_Cancel(run.program);
    modWindows::Sweep(run.program);
    EXPECT_TRUE(run.program.windows.Open.empty());
    EXPECT_FALSE(run.program.settings.LoadFUT);
    EXPECT_EQ(run.folder.Read("UserPreferences.txt"), SettingsFile({}));
}

frmACStart& OpenStart(Program& program) {
    return dynamic_cast<frmACStart&>(modWindows::Show(program, std::make_unique<frmACStart>()));
}

int Chosen(const frmACStart& window) {
    for (std::size_t index = 0; index < window.optACStart.size(); ++index) {
        if (window.optACStart[index].Value) {
            return static_cast<int>(index);
        }
    }
    return -1;
}

TEST(FrmACStart, SelectsThePositionOrShowsItAsText) {
    Settled run;
    for (int position = 0; position <= 5; ++position) {
        run.program.run.ACStartLen = position;
        const frmACStart& window = OpenStart(run.program);
        EXPECT_EQ(Chosen(window), position);
        EXPECT_EQ(window.optACStart[static_cast<std::size_t>(position)].Caption, std::to_string(position));
        EXPECT_EQ(window.txtACStart.Text, "");
    }
    run.program.run.ACStartLen = 6;
    const frmACStart& beyond = OpenStart(run.program);
    EXPECT_EQ(beyond.Caption, "Auto Complete Start Position");
    EXPECT_EQ(beyond.lblACStart.Caption, "Enter other value");
    EXPECT_EQ(Chosen(beyond), -1);
    EXPECT_EQ(beyond.txtACStart.Text, "6");
}

TEST(FrmACStart, LetsDigitsBackspaceTabAndEnterPass) {
    for (int key = 0; key < 256; ++key) {
        const bool passes = (key >= 48 && key <= 57) || key == 8 || key == 9 || key == 13;
        EXPECT_EQ(frmACStart::txtACStart_KeyPress(key), passes ? key : 0) << key;
    }
}

TEST(FrmACStart, TakesTheOptionAndATextBeforeIt) {
    Settled run;
    frmACStart& option = OpenStart(run.program);
    option.optACStart_Click(run.program, 3);
    option.cmdOK_Click(run.program);
    EXPECT_EQ(run.program.run.ACStartLen, 3);
    EXPECT_TRUE(option.Closing);
    frmACStart& text = OpenStart(run.program);
    text.txtACStart.Text = "12";
    text.cmdOK_Click(run.program);
    EXPECT_EQ(run.program.run.ACStartLen, 12);
    // What was pasted keeps within what the settings can hold.
    frmACStart& pasted = OpenStart(run.program);
    pasted.txtACStart.Text = "-5";
    pasted.cmdOK_Click(run.program);
    EXPECT_EQ(run.program.run.ACStartLen, 0);
    frmACStart& huge = OpenStart(run.program);
    huge.txtACStart.Text = std::string(30, '9');
    huge.cmdOK_Click(run.program);
    EXPECT_EQ(run.program.run.ACStartLen, 1000000000);
}

TEST(FrmACStart, WithoutAnyChoiceOrByCancelThePositionStays) {
    Settled run;
    run.program.run.ACStartLen = 9;
    frmACStart& emptied = OpenStart(run.program);
    emptied.txtACStart.Text.clear();
    emptied.cmdOK_Click(run.program);
    EXPECT_EQ(run.program.run.ACStartLen, 9);
    frmACStart& cancelled = OpenStart(run.program);
    cancelled.optACStart_Click(run.program, 1);
    cancelled.cmdCancel_Click(run.program);
    EXPECT_EQ(run.program.run.ACStartLen, 9);
    OpenStart(run.program).Form_Cancel(run.program);
    modWindows::Sweep(run.program);
    EXPECT_TRUE(run.program.windows.Open.empty());
}

} // namespace
