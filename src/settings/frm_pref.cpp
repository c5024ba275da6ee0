#include "settings/frm_pref.h"

#include "base/text.h"
#include "program/program.h"
#include "program/windows.h"
#include "settings/settings.h"

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
    SettingsRecords& settings = program.settings;
    settings.ShowFUT = !chkShowFUT.Value;
    settings.ShowCalc = !chkShowCalc.Value;
    settings.MinimizeFUT = chkMinimizeFUT.Value;
    settings.AutoStartPosition = chkACStart.Value ? program.run.ACStartLen : 0;
    settings.AutoCompleteWord = !chkACEnable.Value;
    settings.LoadFUT = chkLoadFUT.Value;
    const auto flag = [&](Key key, bool value) {
        modSettings::SetLine(program, key, value ? "True" : "False");
    };
    flag(Key::ShowFUT, settings.ShowFUT);
    flag(Key::ShowCalc, settings.ShowCalc);
    flag(Key::MinimizeFUT, settings.MinimizeFUT);
    modSettings::SetLine(program, Key::AutoStartPosition, std::to_string(settings.AutoStartPosition));
    flag(Key::AutoCompleteWord, settings.AutoCompleteWord);
    flag(Key::LoadDefaultFormat, !chkLoadDefaultFormat.Value);
    flag(Key::LoadFUT, settings.LoadFUT);
    if (!modSettings::SaveUserPreferences(program)) {
        return;
    }
    program.platform.questions.MsgBox("These changes will take effect on your next start.", Buttons::Ok, "");
    modWindows::Close(program, *this);
}

void frmPref::cmdExit_Click(Program& program) {
    modWindows::Close(program, *this);
}

void frmPref::Form_Cancel(Program& program) {
    modWindows::Close(program, *this);
}
