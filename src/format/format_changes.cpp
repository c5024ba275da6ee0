#include "format/format_changes.h"

#include "format/format_lines.h"
#include "format/line_effects.h"
#include "program/program.h"
#include "proposal/lifecycle.h"

#include <algorithm>

namespace modFormat {

namespace {

template <typename Test> bool AnyArea(const TextChangeTable& table, Test test) {
    for (const PageId page : kLinePages) {
        if (std::any_of(table[page].begin(), table[page].end(), test)) {
            return true;
        }
    }
    return false;
}

template <typename Test> bool AnyLabel(const LabelChangeTable& table, Test test) {
    return std::any_of(table.begin(), table.end(),
                       [&](const auto& page) { return std::any_of(page.begin(), page.end(), test); });
}

} // namespace

bool FormatHasChanges(Program& program) {
    FormatRecords& format = program.format;
    if (format.LogoChanged) {
        return true;
    }
    for (const PageId page : kLinePages) {
        for (std::size_t index = 0; index < format.PropTextChanges[page].size(); ++index) {
            format.FormatTextChanges[page][index].FontBold = format.PropTextChanges[page][index].FontBold;
        }
    }
    const TextChangeTable& areas = format.FormatTextChanges;
    return AnyArea(areas, [](const TextChangeRecord& area) { return area.FontBold; }) ||
           AnyArea(areas, [](const TextChangeRecord& area) { return !area.Text.empty(); }) ||
           AnyArea(areas, [](const TextChangeRecord& area) { return area.QtyChanged; }) ||
           AnyLabel(format.FormatLabelChanges,
                    [](const LabelChangeRecord& label) { return label.Changed && !label.Saved; }) ||
           modLineEffects::FontInForce(program) != format.FontOfFile;
}

bool FormatIsUnsaved(const Program& program) {
    const FormatRecords& format = program.format;
    return format.FormatOpen && (format.Touched || AnyLabel(format.FormatLabelChanges, [](const auto& label) {
                                     return label.Changed && !label.Saved && !label.FromFormat;
                                 }));
}

bool FileIsCurrent(Program& program) {
    if (FormatIsUnsaved(program)) {
        return false;
    }
    return !modProposal::SomethingChanged(program) ||
           LinesOf(program, TablesNow(program, Texts::LayoutAndTexts)).Lines == program.format.FormatLines;
}

} // namespace modFormat
