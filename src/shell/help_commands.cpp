#include "shell/help_commands.h"

#include "base/files.h"
#include "base/paths.h"
#include "base/text.h"
#include "base/version.h"
#include "program/errors.h"
#include "program/program.h"
#include "shell/web_pages.h"

#include <string>
#include <string_view>

namespace modHelp {

namespace {

void Tell(const Program& program, std::string_view message) {
    program.platform.questions.MsgBox(message, Buttons::Ok, "");
}

} // namespace

void mnuHelpAbout_Click(Program& program) {
    std::string title(version::kTitle);
    title += " Version ";
    title += version::Number();
    Tell(program, text::Lines({title, version::kMaker, version::kWebLine}));
}

void mnuHelpContents_Click(Program& program) {
    modWeb::OpenHelpPage(program, "index.htm");
}

void mnuHelpTutorial_Click(Program& program) {
    modWeb::OpenHelpPage(program, "tutorial.htm");
}

void mnuHelpFAQ_Click(Program& program) {
    modWeb::OpenWebPage(program, "/quillbrook/faq.htm");
}

void mnuHelpVersion_Click(Program& program) {
    std::string number("Version: ");
    number += version::Number();
    std::string comments("Comments: ");
    comments += version::kComments;
    const std::string words = text::Lines({version::kTitle, number, comments});
    Tell(program, words);
    Guarded(program, "mnuHelpVersion", [&] {
        const std::string path = paths::ResolveDrive("c:\\QBPVersion.txt", program.folders.Drives);
        files::WriteWhole(path, words);
    });
}

} // namespace modHelp
