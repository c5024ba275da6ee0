#include "shell/desktop_links.h"

#include "base/paths.h"
#include "program/program.h"

#include <string>
#include <string_view>

namespace modLinks {

namespace {

constexpr std::string_view kProgramFile = "Quillbrook.exe";
constexpr std::string_view kUpgradeFile = "Upgrade Manager.exe";

void Tell(const Program& program, std::string_view message) {
    program.platform.questions.MsgBox(message, Buttons::Ok, "");
}

/// On the desktop first, then in the folder of program links itself.
void PlaceLinks(const Program& program, std::string_view target, std::string_view name) {
    const std::string file = paths::Join(program.folders.InstallFolder, target);
    for (const std::string_view folder : {"..\\..\\Desktop", ""}) {
        // A link that cannot be placed goes unmentioned, as with pages that cannot be opened.
        static_cast<void>(program.platform.shell.CreateLink(folder, name, file));
    }
}

} // namespace

void mnuToolsCreateShorcut_Click(Program& program) {
    PlaceLinks(program, kProgramFile, "Quillbrook");
    Tell(program, "A Shortcut has been successfully added to your Desktop.");
}

void mnuToolsCreateShortcutUM_Click(Program& program) {
    PlaceLinks(program, kUpgradeFile, "QLBK Upgrade Manager");
    Tell(program, "A Shortcut has been successfully added to your Desktop named QLBK Upgrade Manager.");
}

void mnuSupportUpgrade_Click(Program& program) {
    PlaceLinks(program, kUpgradeFile, "Quillbrook Upgrade Manager");
    Tell(program, "A Shortcut has been successfully added to your Desktop.");
}

} // namespace modLinks
