#include "proposal/long_texts.h"

#include "base/text.h"
#include "program/program.h"
#include "proposal/slot_widths.h"

#include <algorithm>
#include <cstddef>

namespace modFile {

std::vector<std::string> LongTexts(const Program& program) {
    const proposal::Widths widths = SlotWidths(program);
    std::vector<std::string> places;
    for (const PageId page : kEditedPages) {
        const auto& texts = program.document.CurrentTextBuf[page];
        const std::size_t count = std::min(texts.size(), widths[page].size());
        for (std::size_t index = 0; index < count; ++index) {
            const bool marked = IsLinePage(page) && program.format.PropTextChanges[page][index].TaxExempt &&
                                !text::Trim(texts[index]).empty();
            const std::size_t room = static_cast<std::size_t>(std::max(widths[page][index], 0));
            if (text::RTrim(texts[index]).size() + (marked ? 1U : 0U) > room) {
                places.push_back("Page " + std::to_string(IndexOf(page) + 1) + ", Text Area " +
                                 std::to_string(index + 1));
            }
        }
    }
    return places;
}

bool MayCutLongTexts(const Program& program) {
    const std::vector<std::string> places = LongTexts(program);
    if (places.empty()) {
        return true;
    }
    const std::string message =
        text::FirstTen("These texts are longer than their place in the file and will be cut:", places);
    return program.platform.questions.MsgBox(message, Buttons::YesNo, "",
                                             {.Default = Answer::No, .Words = {"Save Anyway", "Cancel"}}) ==
           Answer::Yes;
}

} // namespace modFile
