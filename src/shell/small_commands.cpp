#include "shell/small_commands.h"

#include "base/files.h"
#include "base/numbers.h"
#include "base/paths.h"
#include "base/text.h"
#include "base/version.h"
#include "program/data_folders.h"
#include "program/errors.h"
#include "program/program.h"
#include "program/windows.h"
#include "proposal/file_names.h"
#include "settings/settings.h"

#include <string>
#include <string_view>

namespace modMain {

namespace {

void Tell(Program& program, std::string_view message) {
    program.platform.questions.MsgBox(message, Buttons::Ok, "");
}

void Minimise(Program& program, std::string_view name) {
    if (Window* window = modWindows::Find(program, name)) {
        window->Minimised = true;
    }
}

void OpenWebPage(Program& program, std::string_view path) {
    Minimise(program, "frmFUT");
    program.platform.shell.Open(std::string(version::kWebHost) + std::string(path));
}

void OpenHelpPage(Program& program, std::string_view page) {
    Minimise(program, "frmFUT");
    Minimise(program, "frmCalc");
    const std::string help = paths::Join(program.folders.InstallFolder, "Help/");
    program.platform.shell.Open(paths::Join(help, page));
}

/// On the desktop first, then in the folder of program links itself.
void PlaceLinks(Program& program, std::string_view target, std::string_view name) {
    const std::string file = paths::Join(program.folders.InstallFolder, target);
    for (const std::string_view folder : {"..\\..\\Desktop", ""}) {
        // A link that cannot be placed goes unmentioned, as with pages that cannot be opened.
        static_cast<void>(program.platform.shell.CreateLink(folder, name, file));
    }
}

constexpr std::string_view kProgramFile = "Quillbrook.exe";
constexpr std::string_view kUpgradeFile = "Upgrade Manager.exe";

} // namespace

void mnuHelpAbout_Click(Program& program) {
    const std::string title = std::string(version::kTitle) + " Version " + std::string(version::Number());
    Tell(program, text::Lines({title, version::kMaker, version::kWebLine}));
}

void mnuHelpContents_Click(Program& program) {
    OpenHelpPage(program, "index.htm");
}

void mnuHelpTutorial_Click(Program& program) {
    OpenHelpPage(program, "tutorial.htm");
}

void mnuHelpFAQ_Click(Program& program) {
    OpenWebPage(program, "/quillbrook/faq.htm");
}

void mnuHelpVersion_Click(Program& program) {
    const std::string words = text::Lines({version::kTitle, "Version: " + std::string(version::Number()),
                                           "Comments: " + std::string(version::kComments)});
    Tell(program, words);
    Guarded(program, "mnuHelpVersion", [&] {
        const std::string path = paths::ResolveDrive("c:\\QBPVersion.txt", program.folders.Drives);
        if (files::Exists(path)) {
            files::Delete(path); // also one that may only be read
        }
        files::WriteWhole(path, words);
    });
}

void mnuSupportUpdates_Click(Program& program) {
    Tell(program, text::Lines({version::kTitle, "Current Version: " + std::string(version::Number())}));
    OpenWebPage(program, "/quillbrook/updates.htm");
}

void mnuSupportUpgrade_Click(Program& program) {
    PlaceLinks(program, kUpgradeFile, "Quillbrook Upgrade Manager");
    Tell(program, "A Shortcut has been successfully added to your Desktop.");
}

void mnuSupportFree_Click(Program& program) {
    Tell(program, text::Lines({"Telephone: (555) 010-0140", "Monday to Friday, 9:00 AM to 5:00 PM",
                               "support@quillbrook.example"}));
}

void mnuFeedbackReportBug_Click(Program& program) {
    OpenWebPage(program, "/quillbrook/bug_report.htm");
}

void mnuFeedbackSuggestions_Click(Program& program) {
    OpenWebPage(program, "/quillbrook/product_suggestions.htm");
}

void mnuToolsCreateShorcut_Click(Program& program) {
    PlaceLinks(program, kProgramFile, "Quillbrook");
    Tell(program, "A Shortcut has been successfully added to your Desktop.");
}

void mnuToolsCreateShortcutUM_Click(Program& program) {
    PlaceLinks(program, kUpgradeFile, "QLBK Upgrade Manager");
    Tell(program, "A Shortcut has been successfully added to your Desktop named QLBK Upgrade Manager.");
}

void mnuOptCurrencySymbol_Click(Program& program) {
    const std::string symbol = program.platform.questions.InputBox(
        "The current Currency Symbol is " + program.settings.CurrencySymbol +
            ". Please enter the new Currency Symbol in the text area provided and click OK or Cancel to "
            "exit.",
        "Changing Currency Designator", "");
    if (symbol.empty()) {
        return;
    }
    program.settings.CurrencySymbol = symbol;
    modSettings::SetLine(program, modSettings::Key::CurrencySymbol, symbol);
    if (!modSettings::SaveUserPreferences(program)) {
        Tell(program, "Error encountered while creating new Currency Symbol.");
        return; // the symbol stands for this run; the file would only give the old one back
    }
    modSettings::GetUserPreferences(program);
    Tell(program, "Changes will be applied in the next \"New\" or \"Open\" session.");
}

void mnuOptSetDefaultFonts_Click(Program& program) {
    const RunState& run = program.run;
    SettingsRecords& settings = program.settings;
    settings.SavedFontName = run.DefaultFontName;
    settings.SavedFontSize = run.DefaultFontSize;
    settings.SavedFontColor = run.DefaultFontColor;
    settings.SavedFontItalic = run.DefaultFontItalic;
    using modSettings::Key;
    modSettings::SetLine(program, Key::FontName, run.DefaultFontName);
    modSettings::SetLine(program, Key::FontSize, numbers::PlainNumber(run.DefaultFontSize));
    modSettings::SetLine(program, Key::FontColor, std::to_string(run.DefaultFontColor));
    modSettings::SetLine(program, Key::FontItalic, run.DefaultFontItalic ? "True" : "False");
    modSettings::SaveUserPreferences(program);
}

void mnuOptEmptyBackup_Click(Program& program) {
    if (program.platform.questions.MsgBox("Are you sure you want to delete all the Backup files?",
                                          Buttons::YesNo,
                                          "Preparing to Delete Backup Files") != Answer::Yes) {
        return;
    }
    Guarded(program, "mnuOptEmptyBackup", [&] {
        const std::string folder = modFolders::BackupFolder(program);
        const std::vector<std::string> found =
            files::IsFolder(folder) ? files::List(folder, "*.hef") : std::vector<std::string>{};
        for (const std::string& name : found) {
            files::Delete(paths::Join(folder, name));
        }
        Tell(program, found.empty() ? "No Backup Files Found" : "All files have been deleted from Backup");
    });
}

void mnuEditTextCenter_Click(Program& program) {
    Tell(program, "ok");
}

} // namespace modMain
