#include "format/other_pages.h"

#include "base/text.h"
#include "format/label_looks.h"
#include "pages/page_geometry.h"
#include "program/program.h"

#include <string>

namespace modProperties {

namespace {

struct Differences {
    int Words = 0;
    int Contract = 0; ///< lines of the contract among them
    bool Looks = false;
};

/// Titles and headings are laid by every proposal for itself.
bool IsLaidAnew(PageId page, int index) {
    return index == geometry::TitleLabel(page) || (index == 0 && page != PageId::frmP1);
}

bool IsContractLine(PageId page, int index) {
    constexpr int kFirst = 13, kLast = 47;
    return page == PageId::frmP6 && index >= kFirst && index <= kLast;
}

Differences FromBuiltInPages(const Program& program) {
    const FormatRecords& format = program.format;
    Differences differences;
    for (const PageId page : kEditedPages) {
        for (int index = 0; index <= geometry::LastLabel(page); ++index) {
            const auto at = static_cast<std::size_t>(index);
            const std::optional<LabelLook>& builtIn = format.BuiltIn[page][at];
            if (!builtIn || format.PropLabelChanges[page][at].Changed || IsLaidAnew(page, index)) {
                continue;
            }
            const LabelLook now = modDesigner::LookOf(modDesigner::LabelAt(program, page, index));
            if (now.Caption != builtIn->Caption) {
                ++differences.Words;
                differences.Contract += IsContractLine(page, index) ? 1 : 0;
            } else if (now != *builtIn) {
                differences.Looks = true;
            }
        }
    }
    return differences;
}

std::string Counted(int count, std::string_view one, std::string_view more) {
    return std::to_string(count) + std::string(count == 1 ? one : more);
}

} // namespace

void TellOtherPages(Program& program) {
    const FormatRecords& format = program.format;
    const Differences differences = FromBuiltInPages(program);
    if (differences.Words > 0) {
        std::string first = "The format " + format.FormatName + " rewords " +
                            Counted(differences.Words, " caption", " captions") + " of " +
                            program.document.FileName;
        if (differences.Contract > 0) {
            first += ", " + std::to_string(differences.Contract) + " of them in the contract";
        }
        program.platform.questions.MsgBox(
            text::Lines({first + ".",
                         "Its own layout says nothing of these; they may not read as when it was saved.",
                         "To have it without the format, choose Clear Current Format and open it again."}),
            Buttons::Ok, "");
    } else if (differences.Looks) {
        program.main.Notice = "Labels stand as in " + format.FormatName + ", perhaps not as they were saved.";
    }
}

} // namespace modProperties
