#include "shell/option_commands.h"

#include "base/files.h"
#include "base/text.h"
#include "pages/row_fields.h"
#include "program/data_folders.h"
#include "program/errors.h"
#include "program/program.h"
#include "proposal/backup.h"
#include "proposal/lifecycle.h"
#include "proposal/property_file.h"
#include "settings/default_font.h"
#include "settings/settings.h"

#include <string>
#include <string_view>
#include <vector>

namespace modOptions {

namespace {

void Tell(const Program& program, std::string_view message) {
    program.platform.questions.MsgBox(message, Buttons::Ok, "");
}

/// Turns the check mark over and tells how it stands now.
[[nodiscard]] bool Toggled(Program& program, CommandId id) {
    bool& checked = program.main[id].Checked;
    checked = !checked;
    return checked;
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
    modPages::ShowCurrency(program);
    if (!modSettings::Store(program, {{modSettings::Key::CurrencySymbol, symbol}})) {
        Tell(program, "Error encountered while creating new Currency Symbol.");
        return; // the symbol stands for this run; the file would only give the old one back
    }
    modSettings::GetUserPreferences(program);
    Tell(program, "Changes will be applied in the next \"New\" or \"Open\" session.");
}

void mnuOptSetDefaultFonts_Click(Program& program) {
    modSettings::SaveFontInForce(program);
}

void mnuOptEmptyBackup_Click(Program& program) {
    const std::string folder = modFolders::BackupFolder(program);
    if (program.platform.questions.MsgBox(
            "Are you sure you want to delete all the Backup files?", Buttons::YesNo,
            "Preparing to Delete Backup Files",
            {.Default = Answer::No, .Lost = "The backups in " + folder + " will be deleted."}) !=
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

void mnuOptUnderline_Click(Program& program) {
    program.printing.UnderlineCategories = Toggled(program, CommandId::mnuOptUnderline);
}

void mnuOptEnableOverwriteFmtTextBoxes_Click(Program& program) {
    program.format.OverwriteFormatText = Toggled(program, CommandId::mnuOptEnableOverwriteFmtTextBoxes);
}

} // namespace modOptions
