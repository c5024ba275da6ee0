#include "shell/web_pages.h"

#include "base/paths.h"
#include "base/version.h"
#include "program/program.h"
#include "program/windows.h"

#include <string>

namespace modWeb {

namespace {

void Minimise(Program& program, std::string_view name) {
    if (Window* window = modWindows::Find(program, name)) {
        window->Minimised = true;
    }
}

} // namespace

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

} // namespace modWeb
