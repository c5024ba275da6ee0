#include "base/files.h"
#include "base/text.h"
#include "editing/standing_completion.h"
#include "pages/fields.h"
#include "program/keys.h"
#include "program/program.h"
#include "quiet_program.h"
#include "support/typist.h"
#include "terms/completion.h"
#include "terms/placing.h"
#include "terms/term_line.h"
#include "terms/term_list.h"
#include "terms/term_match.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

/// Arbitrary bytes read as a frequent terms list: its lines complete words, go into fields and are written
/// again.

namespace {

void CompleteEveryWord(Program& program) {
    const auto& lines = program.terms.Lines;
    const TermIndex index = modTerms::BuildIndex(lines);
    for (const std::string_view line : lines) {
        const std::string_view term = modTerms::SplitTerm(line).Text;
        for (std::size_t length = 1; length <= 12 && length <= term.size(); ++length) {
            const std::string_view word = term.substr(0, length);
            const auto walked = modTerms::FirstMatchByWalk(lines, word);
            Require(walked.has_value());
            Require(modTerms::FirstMatch(lines, index, word) == walked);
            static_cast<void>(modTerms::CompletionFor(word, modTerms::SplitTerm(lines[*walked]).Text));
        }
    }
}

/// The first terms by the keys of a person: each word is completed, and taken or left.
void TypeTerms(Program& program) {
    constexpr std::size_t kTyped = 12;
    constexpr std::size_t kLetters = 5;
    constexpr std::array kThen{keys::kEnter, keys::kRight, keys::kDown, keys::kBackspace};
    program.editing.KeyCounter = 0; // nothing is saved on the way
    Typist hand(program);
    const std::vector<std::string> terms(
        program.terms.Lines.begin(), program.terms.Lines.begin() + static_cast<std::ptrdiff_t>(std::min(
                                                                       kTyped, program.terms.Lines.size())));
    for (std::size_t each = 0; each < terms.size(); ++each) {
        for (const int index : {0, 33}) {
            modFields::SetText(program, {PageId::frmP2, FieldKind::txt, index}, "");
        }
        hand.Click(PageId::frmP2, 0);
        std::string word(modTerms::PlainText(terms[each]).substr(0, kLetters));
        hand.Type(word);
        const TextArea& area = program.pages[PageId::frmP2].txt[0];
        Require(area.SelStart >= 0 && area.SelStart + area.SelLength <= static_cast<int>(area.Text.size()));
        hand.Press(kThen[each % kThen.size()]);
        program.editing.KeyCounter = 0;
        modText::TakeCompletion(program);
        // Blanks at the ends are not stored.
        Require(text::Trim(program.document.CurrentTextBuf[PageId::frmP2][0]) == text::Trim(area.Text));
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static QuietProgram machine; // one program for the whole run
    Program& program = machine.program;
    program.run.ACEnabled = true;
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    files::WriteWhole(modTerms::PathInUse(program), bytes);
    modTerms::ReadFrequentlyUsedTerms(program);
    Require(program.terms.ReadWhole);
    CompleteEveryWord(program);
    TypeTerms(program);

    const FieldRef line{PageId::frmP2, FieldKind::txt, 0};
    for (const std::string_view each : program.terms.Lines) {
        static_cast<void>(modTerms::txt_DragDrop(program, line, each));
        modFields::SetText(program, line, "");
    }

    // What is rewritten is read again as it was, but for line ends and empty lines at the end.
    const int before = program.terms.TermCount();
    if (modTerms::SaveFrequentlyUsedTerms(program, [](modTerms::LineList& lines) {
            lines.emplace_back("the last one");
        }) == modTerms::Saved::Yes) {
        Require(program.terms.TermCount() == before + 1);
    }
    return 0;
}
