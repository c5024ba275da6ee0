#include "shell/support_commands.h"

#include "base/text.h"
#include "base/version.h"
#include "program/program.h"
#include "shell/web_pages.h"

#include <string>
#include <string_view>

namespace modSupport {

namespace {

void Tell(const Program& program, std::string_view message) {
    program.platform.questions.MsgBox(message, Buttons::Ok, "");
}

} // namespace

void mnuSupportUpdates_Click(Program& program) {
    Tell(program, text::Lines({version::kTitle, "Current Version: " + std::string(version::Number())}));
    modWeb::OpenWebPage(program, "/quillbrook/updates.htm");
}

void mnuSupportFree_Click(Program& program) {
    Tell(program, text::Lines({"Telephone: (555) 010-0140", "Monday to Friday, 9:00 AM to 5:00 PM",
                               "support@quillbrook.example"}));
}

void mnuFeedbackReportBug_Click(Program& program) {
    modWeb::OpenWebPage(program, "/quillbrook/bug_report.htm");
}

void mnuFeedbackSuggestions_Click(Program& program) {
    modWeb::OpenWebPage(program, "/quillbrook/product_suggestions.htm");
}

} // namespace modSupport
