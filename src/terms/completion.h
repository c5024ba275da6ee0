#pragma once

#include "program/page_records.h"

#include <optional>
#include <string>
#include <string_view>

struct Program;

/// Word completion in the descriptions of the line pages.
namespace modTerms {

/// A key let go in a text area: follows the word at the cursor, and when the key has put a character into
/// this very area, completes it from the open list.
void CompleteWord(Program& program, const FieldRef& field, int keyCode, int shift);

/// A key pressed while a completion stands: accepts it where the key says so, and places the amount. True
/// when the key is used up.
[[nodiscard]] bool CompletionKey(Program& program, const FieldRef& field, int keyCode, int shift);

/// How a word of this look takes a term that begins with its letters: as it stands in the list when they are
/// equal, otherwise in the case in which the word is typed. Nothing for a word in mixed case. One capital
/// letter counts as proper case.
[[nodiscard]] std::optional<std::string> CompletionFor(std::string_view word, std::string_view term);

} // namespace modTerms
