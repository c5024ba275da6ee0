#include "terms/completion.h"

#include "base/text.h"
#include "editing/standing_completion.h"
#include "pages/fields.h"
#include "pages/page_geometry.h"
#include "program/keys.h"
#include "program/program.h"
#include "terms/placing.h"
#include "terms/term_line.h"
#include "terms/term_list.h"
#include "terms/term_match.h"

#include <algorithm>

namespace modTerms {

namespace {

WordState& WordOf(Program& program, PageId page) {
    return program.editing.Words[page];
}

bool& Active(Program& program, PageId page) {
    return program.editing.ACActive[page];
}

bool Excluded(int keyCode) {
    return keyCode == keys::kDelete || keyCode == keys::kBackspace || keyCode == keys::kLeft ||
           keyCode == keys::kShift || keyCode == keys::kUp;
}

/// Where the cursor stood behind the character that the key just let go has put into this area; nothing when
/// it has put none. It counts once.
std::optional<int> TypedUpTo(Program& program, const FieldRef& field, int keyCode, int shift) {
    TypedKeys& typed = program.editing.Typed;
    const std::size_t code = TypedKeys::PlaceOf(keyCode);
    const bool put = typed.Field == field && typed.Codes.test(code);
    typed.Codes.reset(code);
    if (!put || (shift & (keys::kCtrlState | keys::kAltState)) != 0) {
        return std::nullopt;
    }
    return typed.Behind[code];
}

/// In quick typing the next letters are there before a key is let go: a word begins where that key's own
/// character begins it, unless a later one has begun already.
void FollowWord(Program& program, const FieldRef& field, int keyCode, std::optional<int> typedUpTo) {
    WordState& word = WordOf(program, field.Page);
    const int cursor = program.editing.CursorPos;
    const int behind = std::min(typedUpTo.value_or(cursor), cursor);
    const bool late = word.InWord && behind < word.WordStart && word.WordStart <= cursor;
    if (cursor == 1 || (behind == 1 && !late)) {
        word.NewWord = true;
        word.WordStart = 0;
    } else if (keyCode == keys::kBlank && !late) {
        word.NewWord = true;
        word.WordStart = behind;
    }
    if (word.NewWord) {
        word.NewWord = false;
        word.InWord = true;
    }
}

/// Puts the completion into the area, with what was not typed selected.
void Show(Program& program, const FieldRef& field, std::size_t line) {
    WordState& word = WordOf(program, field.Page);
    TextArea& area = modFields::Area(program, field);
    const Term term = SplitTerm(program.terms.Lines[line]);
    word.MatchedTerm = term.Text;
    word.MatchedAmount = term.Amount;
    Active(program, field.Page) = true;
    if (const std::optional<std::string> completed = CompletionFor(word.TypedWord, PlainText(term.Text))) {
        const std::string head(text::Left(area.Text, word.WordStart));
        modFields::SetText(program, field, head + *completed);
    }
    modFields::SetCursor(area, word.WordStart + word.WordLen, static_cast<int>(area.Text.size()));
}

void Complete(Program& program, const FieldRef& field) {
    WordState& word = WordOf(program, field.Page);
    const TextArea& area = modFields::Area(program, field);
    if (!word.InWord || !geometry::IsDescription(field.Page, field.Index)) {
        return;
    }
    word.WordLen = program.editing.CursorPos - word.WordStart;
    if (word.WordLen < 1) {
        return;
    }
    word.TypedWord = text::Mid(area.Text, word.WordStart + 1, word.WordLen);
    if (word.WordLen <= program.run.ACStartLen) {
        return;
    }
    EnsureRead(program);
    word.MatchedAmount.clear();
    if (const std::optional<std::size_t> line = FindMatch(program.terms, word.TypedWord)) {
        Show(program, field, *line);
    }
}

enum class Price { Left, Placed };

std::optional<Price> AcceptedBy(int keyCode, int shift) {
    const bool held = shift == keys::kShiftState;
    if (shift != 0 && !held) {
        return std::nullopt;
    }
    switch (keyCode) {
    case keys::kBlank:
        return held ? std::optional(Price::Left) : std::nullopt;
    case keys::kInsert:
        return held ? std::nullopt : std::optional(Price::Left);
    case keys::kRight:
        return held ? Price::Placed : Price::Left;
    case keys::kEnter:
        return Price::Placed;
    default:
        return std::nullopt;
    }
}

} // namespace

std::optional<std::string> CompletionFor(std::string_view word, std::string_view term) {
    if (term.substr(0, word.size()) == word) {
        return std::string(term);
    }
    if (text::Lower(word) == word) {
        return text::Lower(term);
    }
    if (text::Proper(word) == word) {
        return text::Proper(term);
    }
    if (text::Upper(word) == word) {
        return text::Upper(term);
    }
    return std::nullopt;
}

void CompleteWord(Program& program, const FieldRef& field, int keyCode, int shift) {
    const std::optional<int> typedUpTo = TypedUpTo(program, field, keyCode, shift);
    const TextArea& area = modFields::Area(program, field);
    const bool atEnd = area.SelStart == static_cast<int>(area.Text.size());
    if (!program.run.ACEnabled || Excluded(keyCode) || (!atEnd && area.SelLength == 0)) {
        return;
    }
    if (Active(program, field.Page) && (keyCode == keys::kInsert || keyCode == keys::kRight)) {
        modText::SettleCompletion(program, field.Page);
    }
    FollowWord(program, field, keyCode, typedUpTo);
    if (typedUpTo && area.SelLength == 0 && area.SelStart == static_cast<int>(area.Text.size())) {
        Complete(program, field);
    }
}

bool CompletionKey(Program& program, const FieldRef& field, int keyCode, int shift) {
    if (!program.run.ACEnabled || !Active(program, field.Page)) {
        return false;
    }
    const std::optional<Price> price = AcceptedBy(keyCode, shift);
    if (!price) {
        return false;
    }
    modText::SettleCompletion(program, field.Page);
    if (*price == Price::Placed) {
        WordState& word = WordOf(program, field.Page);
        PlaceAmount(program, field, word.MatchedAmount);
        word.MatchedAmount.clear();
    }
    return keyCode != keys::kBlank; // the blank is typed all the same
}

} // namespace modTerms
