#include "shell/option_commands.h"

#include "base/files.h"
#include "base/numbers.h"
#include "base/text.h"
#include "program/data_folders.h"
#include "program/errors.h"
#include "program/program.h"
#include "proposal/backup.h"
#include "proposal/lifecycle.h"
#include "proposal/property_file.h"
#include "settings/settings.h"

#include <string>
#include <string_view>
#include <vector>

namespace modOptions {

namespace {

void Tell(Program& program, std::string_view message) {
    program.platform.questions.MsgBox(message, Buttons::Ok, "");
}

} // namespace

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
    if (!modSettings::Store(program, {{modSettings::Key::CurrencySymbol, symbol}})) {
        Tell(program, "Error encountered while creating new Currency Symbol.");
        return; // the symbol stands for this run; the file would only give the old one back
    }
    modSettings::GetUserPreferences(program);
    Tell(program, "Changes will be applied in the next \"New\" or \"Open\" session.");
}

void mnuOptSetDefaultFonts_Click(Program& program) {
    const RunState& run = program.run;
    SettingsRecords& settings = program.settings;
    using modSettings::Key;
    if (!modSettings::Store(program, {{Key::FontName, run.DefaultFontName},
                                      {Key::FontSize, numbers::PlainNumber(run.DefaultFontSize)},
                                      {Key::FontColor, std::to_string(run.DefaultFontColor)},
                                      {Key::FontItalic, run.DefaultFontItalic ? "True" : "False"}})) {
        return;
    }
    settings.SavedFontName = run.DefaultFontName;
    settings.SavedFontSize = run.DefaultFontSize;
    settings.SavedFontColor = run.DefaultFontColor;
    settings.SavedFontItalic = run.DefaultFontItalic;
}

void mnuOptEmptyBackup_Click(Program& program) {
    const std::string folder = modFolders::BackupFolder(program);
    if (program.platform.questions.MsgBox("Are you sure you want to delete all the Backup files?",
                                          Buttons::YesNo, "Preparing to Delete Backup Files",
                                          {.Default = Answer::No, .Lost = "All backups in " + folder}) !=
        Answer::Yes) {
        return;
    }
    Guarded(program, "mnuOptEmptyBackup", [&] {
        std::vector<std::string> found =
            files::IsFolder(folder) ? files::List(folder, "*.hef") : std::vector<std::string>{};
        // What is typed and not saved stands in this one alone.
        const bool unsaved = modProposal::SomethingChanged(program) || modFile::PropertiesChanged(program);
        const std::string kept = unsaved ? modFile::BackupNameOf(program) : std::string();
        const bool keeps = std::erase(found, kept) > 0;
        for (const std::string& name : found) {
            modFile::DeleteBackup(program, name);
        }
        std::string told =
            found.empty() ? "No Backup Files Found" : "All files have been deleted from Backup";
        if (keeps) {
            told += std::string(text::kCrLf) +
                    "The backup of the proposal on show was kept: it has unsaved changes.";
        }
        Tell(program, told);
    });
}

} // namespace modOptions
