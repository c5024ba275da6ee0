#include "settings/frm_pref.h"

#include "base/text.h"
#include "program/program.h"
#include "program/windows.h"
#include "settings/settings.h"

#include <string>

void frmPref::Form_Load(Program& program) {
    const SettingsRecords& settings = program.settings;
    Caption = "User Preferences";
    chkShowFUT.Value = !settings.ShowFUT;
    chkShowCalc.Value = !settings.ShowCalc;
    chkMinimizeFUT.Value = settings.MinimizeFUT;
    chkACStart.Value = settings.AutoStartPosition != 0;
    chkACEnable.Value = !settings.AutoCompleteWord;
    // The run may go without the default format; what is shown here is what the next start will do.
    chkLoadDefaultFormat.Value = !text::EqualNoCase(
        text::Trim(modSettings::StoredValue(program, modSettings::Key::LoadDefaultFormat)), "True");
    chkLoadFUT.Value = settings.LoadFUT;
}

void frmPref::cmdSave_Click(Program& program) {
    using modSettings::Key;
    const int start = chkACStart.Value ? program.run.ACStartLen : 0;
    const auto flag = [](bool value) { return std::string(value ? "True" : "False"); };
    if (!modSettings::Store(program, {{Key::ShowFUT, flag(!chkShowFUT.Value)},
                                      {Key::ShowCalc, flag(!chkShowCalc.Value)},
                                      {Key::MinimizeFUT, flag(chkMinimizeFUT.Value)},
                                      {Key::AutoStartPosition, std::to_string(start)},
                                      {Key::AutoCompleteWord, flag(!chkACEnable.Value)},
                                      {Key::LoadDefaultFormat, flag(!chkLoadDefaultFormat.Value)},
                                      {Key::LoadFUT, flag(chkLoadFUT.Value)}})) {
        return;
    }
    SettingsRecords& settings = program.settings;
    settings.ShowFUT = !chkShowFUT.Value;
    settings.ShowCalc = !chkShowCalc.Value;
    settings.MinimizeFUT = chkMinimizeFUT.Value;
    settings.AutoStartPosition = start;
    settings.AutoCompleteWord = !chkACEnable.Value;
    settings.LoadFUT = chkLoadFUT.Value;
    program.platform.questions.MsgBox("These changes will take effect on your next start.", Buttons::Ok, "");
    modWindows::Close(program, *this);
}

void frmPref::cmdExit_Click(Program& program) {
    modWindows::Close(program, *this);
}
