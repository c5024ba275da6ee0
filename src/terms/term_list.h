#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

struct Program;

/// The open frequent terms list: reading, changing, writing.
namespace modTerms {

using LineList = std::vector<std::string>;

/// At this number of terms a list is full. Longer ones are read, shown and rewritten all the same.
inline constexpr int kMostTerms = 32000;

/// Where the list in use lies.
[[nodiscard]] std::string PathInUse(const Program& program);
/// A list's name, its file's without the extension.
[[nodiscard]] std::string_view ListName(std::string_view fileName);

/// Reads the list in use; a missing one is made empty. What cannot be read leaves the list empty and closed
/// against writing. Reports as "ReadFrequentlyUsedTerms".
void ReadFrequentlyUsedTerms(Program& program);
/// The list in use may be another one now: it is read at once while the window is on screen or words are
/// completed, otherwise memory is emptied.
void TakeListInUse(Program& program);
/// Reads the list in use unless it is the one in memory.
void EnsureRead(Program& program);

/// Whether a line of the list is that term, without regard to case and blanks around; brackets count.
[[nodiscard]] bool TermExists(const Program& program, std::string_view term);

/// Changes the list and writes it to the path it was read from, then rereads. `change` works on a copy of the
/// lines and may be run a second time, on lines that another program has written meanwhile. When nothing was
/// written memory holds what was read. Reports as "SaveFrequentlyUsedTerms".
using Change = std::function<void(LineList&)>;
enum class Saved { Yes, No, Failed };
[[nodiscard]] Saved SaveFrequentlyUsedTerms(Program& program, const Change& change);

/// Adds a term at the end, after the checks and with their messages. False when it was not added.
[[nodiscard]] bool AddTerm(Program& program, std::string_view text);
/// A line of the list by its text; of several equal ones that in `Row`, while it still stands there,
/// otherwise the first.
struct TermLine {
    std::string Text;
    int Row = 0;
};
/// Takes out a line. A failure has a message of its own besides the report.
[[nodiscard]] bool RemoveTerm(Program& program, const TermLine& line);
/// Puts a text in the place of a line; nothing when there is none. False, with a message, for an empty text.
[[nodiscard]] bool ReplaceTerm(Program& program, const TermLine& line, std::string_view text);

enum class LetterCase { Lower, Proper, Upper };
/// Asks, then rewrites all terms.
void ChangeCase(Program& program, LetterCase to);

} // namespace modTerms
