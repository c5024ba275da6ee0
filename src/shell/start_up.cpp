#include "shell/start_up.h"

#include "base/files.h"
#include "base/paths.h"
#include "base/text.h"
#include "program/errors.h"
#include "program/program.h"
#include "program/windows.h"
#include "proposal/run_marker.h"
#include "settings/settings.h"
#include "shell/closing.h"
#include "shell/frm_splash.h"

#include <algorithm>
#include <memory>

namespace modStart {

namespace {

constexpr std::string_view kNeededFont = "Times New Roman";

/// The first line alone: nothing else is read before the questions are settled.
bool IsFirstStart(const Program& program) {
    const std::string path = paths::Join(program.folders.InstallFolder, "UserPreferences.txt");
    constexpr std::uintmax_t kLine = 64;
    try {
        const std::vector<std::string> lines = text::SplitLines(files::ReadUpTo(path, kLine));
        const std::string_view key = modSettings::KeyText(modSettings::Key::AppFirstInstance);
        return !lines.empty() &&
               text::EqualNoCase(text::Trim(text::Mid(lines[0], static_cast<int>(key.size()) + 1)), "True");
    } catch (const std::exception&) {
        return false; // a missing file is told of when the settings are read
    }
}

bool FontIsThere(const Program& program) {
    const std::vector<std::string> fonts = program.platform.screen.Fonts();
    return std::any_of(fonts.begin(), fonts.end(),
                       [](const std::string& font) { return text::EqualNoCase(font, kNeededFont); });
}

} // namespace

StartResult Main(Program& program) {
    Questions& questions = program.platform.questions;
    const Manner unasked{.How = Manner::Came::Unasked}; // the person may be typing elsewhere by now
    switch (program.platform.instance.Claim(program.folders.InstallFolder)) {
    case SingleInstance::Result::Claimed:
        break;
    case SingleInstance::Result::Taken:
        questions.MsgBox("Another instance of this application is already running.", Buttons::Ok, "",
                         unasked);
        return StartResult::Ended;
    case SingleInstance::Result::CannotTell:
        questions.MsgBox(
            text::Lines({"The file that keeps this application from running twice could not be made.",
                         "Please make sure that it is not running already."}),
            Buttons::Ok, "", unasked);
        break;
    }
    StartResult result = StartResult::Running;
    const bool whole = Guarded(program, "Main", [&] {
        if (IsFirstStart(program)) {
            questions.MsgBox(
                text::Lines({"Although the program is easy to use, some of the features which will",
                             "help you the most can be confusing to understand. For this reason, it", "",
                             "is HIGHLY RECOMMENDED you explore the Quick Start Tutorial under Help."}),
                Buttons::Ok, "", unasked);
        }
        if (!FontIsThere(program) &&
            questions.MsgBox(text::Lines({"The font \"Times New Roman\" is not installed on this computer.",
                                          "Some features of this software may not work correctly",
                                          "without it. Would you like to try the software anyway?", "",
                                          "Please contact us for instructions to install the font."}),
                             Buttons::YesNo, "Times New Roman font not found.", unasked) != Answer::Yes) {
            result = StartResult::Ended;
            return;
        }
        modRecovery::SetMarker(program);
        auto& splash = static_cast<frmSplash&>(modWindows::Show(program, std::make_unique<frmSplash>()));
        splash.GatherFourCorners(program);
    });
    if (!whole) {
        // What an earlier run left in its marker stays for the next start.
        modClosing::EndRun(program);
        return StartResult::Ended;
    }
    return result;
}

} // namespace modStart
