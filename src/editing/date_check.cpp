#include "editing/date_check.h"

#include "base/dates.h"
#include "base/text.h"
#include "program/program.h"

#include <string>

namespace modText {

void CheckDate(Program& program, int index) {
    Page& page = program.pages[PageId::frmP1];
    const std::string& value = page.txt[0].Text;
    const int year = dates::ToCalendar(program.platform.clock.Now()).Year;
    if (index != 0 || value.empty() || page.DateWarningShown || dates::IsDate(value, year)) {
        return;
    }
    program.platform.questions.MsgBox(
        text::Lines({"Text cannot be recognized as a date and will become useless for managing you events.",
                     "", "Proper date format examples follow:", "January 15, 2008.", "Jan 15, 2008",
                     "1/15/2008", "1/15/08", "1-15-08",
                     "Do not include date extentions such as \"1rst\", \"2nd\", etc."}),
        Buttons::Ok, "Date Format not Recognized", {.How = Manner::Came::Unasked});
    page.DateWarningShown = true;
}

} // namespace modText
