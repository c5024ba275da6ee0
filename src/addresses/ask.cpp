#include "addresses/ask.h"

#include "base/text.h"
#include "program/program.h"

namespace modAddress {

void Tell(const Program& program, std::string_view message) {
    program.platform.questions.MsgBox(message, Buttons::Ok, "");
}

Consent AskOrNo(const Program& program, std::string_view question, std::string_view title) {
    const Answer answer =
        program.platform.questions.MsgBox(question, Buttons::YesNo, title, {.Default = Answer::No});
    return answer == Answer::Yes ? Consent::Given : Consent::Refused;
}

Consent AskToCut(const Program& program, const std::vector<std::string>& captions) {
    std::string words = "These texts are longer than their place in the file and will be cut:";
    for (const std::string& caption : captions) {
        words += text::kCrLf;
        words += caption;
    }
    const Answer answer = program.platform.questions.MsgBox(
        words, Buttons::YesNo, "", {.Default = Answer::No, .Words = {"Save Anyway", "Cancel"}});
    return answer == Answer::Yes ? Consent::Given : Consent::Refused;
}

} // namespace modAddress
