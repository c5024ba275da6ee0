#include "terms/term_list.h"

#include "base/files.h"
#include "base/paths.h"
#include "base/seen.h"
#include "base/text.h"
#include "program/data_folders.h"
#include "program/errors.h"
#include "program/program.h"
#include "program/saved_notice.h"
#include "terms/term_line.h"

#include <algorithm>
#include <optional>

namespace modTerms {

namespace {

const Manner kHarmlessIsNo{.Default = Answer::No};
constexpr std::string_view kNotRead = "This list could not be read and is left as it is.";
constexpr std::string_view kNothingToSave = "There are no Frequently Used Terms to save.";
constexpr std::string_view kNothingToAdd = "No term has been added to save.";

void Tell(const Program& program, std::string_view message) {
    program.platform.questions.MsgBox(message, Buttons::Ok, "");
}

void Forget(Program& program) {
    TermsRecords& terms = program.terms;
    terms.Lines.clear();
    terms.Bytes.clear();
    terms.Path.clear();
    terms.ReadWhole = false;
    terms.Index = {};
    ++terms.Version;
}

/// What stands between two line feeds may hold returns that end lines by themselves.
void SplitAtReturns(std::string_view piece, bool ended, std::vector<std::string_view>& lines) {
    if (ended && piece.ends_with('\r')) {
        piece.remove_suffix(1);
    }
    for (std::size_t end = piece.find('\r'); end != std::string_view::npos; end = piece.find('\r')) {
        lines.push_back(piece.substr(0, end));
        piece.remove_prefix(end + 1);
    }
    if (ended || !piece.empty()) {
        lines.push_back(piece);
    }
}

/// The lines of a text without copying them: a list of 32,000 is read on every change.
std::vector<std::string_view> LinesOf(std::string_view bytes) {
    std::vector<std::string_view> lines;
    constexpr std::size_t kUsualLength = 24;
    lines.reserve(std::min(bytes.size() / kUsualLength, static_cast<std::size_t>(kMostTerms)) + 1);
    while (!bytes.empty()) {
        const std::size_t end = bytes.find('\n');
        SplitAtReturns(bytes.substr(0, end), end != std::string_view::npos, lines);
        bytes.remove_prefix(end == std::string_view::npos ? bytes.size() : end + 1);
    }
    return lines;
}

std::string Joined(const LineList& lines) {
    std::string bytes;
    for (const std::string& line : lines) {
        bytes += line;
        bytes += text::kCrLf;
    }
    bytes.resize(bytes.size() - text::kCrLf.size());
    return bytes;
}

/// A name that was given in another case is the one on disk: writing takes a name as it stands.
void SettleName(Program& program) {
    const std::string path = PathInUse(program);
    if (files::ExistsExactly(path) || !files::Exists(path)) {
        return;
    }
    for (const std::string& name : files::List(modFolders::DataFolder(program), "*.fut")) {
        if (text::EqualNoCase(name, program.run.FUTFileName)) {
            program.run.FUTFileName = name;
            return;
        }
    }
}

bool Writable(Program& program) {
    EnsureRead(program);
    if (program.terms.ReadWhole) {
        return true;
    }
    Tell(program, kNotRead);
    return false;
}

/// A term is one line.
std::string OneLine(std::string_view text) {
    std::string line(text::Trim(text));
    std::replace_if(
        line.begin(), line.end(), [](char character) { return character == '\r' || character == '\n'; }, ' ');
    return line;
}

bool Holds(const LineList& lines, std::string_view term) {
    return std::any_of(lines.begin(), lines.end(),
                       [&](const std::string& line) { return text::EqualNoCase(text::Trim(line), term); });
}

template <typename Lines> auto Find(Lines& lines, const TermLine& line) {
    const auto row = static_cast<std::size_t>(std::max(line.Row, 0));
    if (row < lines.size() && lines[row] == line.Text) {
        return lines.begin() + static_cast<std::ptrdiff_t>(row);
    }
    return std::find(lines.begin(), lines.end(), line.Text);
}

std::string InCase(std::string_view line, LetterCase to) {
    switch (to) {
    case LetterCase::Lower:
        return text::Lower(line);
    case LetterCase::Proper:
        return text::Proper(line);
    case LetterCase::Upper:
        break;
    }
    return text::Upper(line);
}

std::string_view NameOf(LetterCase to) {
    return to == LetterCase::Lower ? "lower" : to == LetterCase::Proper ? "proper" : "upper";
}

} // namespace

std::string PathInUse(const Program& program) {
    return paths::Join(modFolders::DataFolder(program), program.run.FUTFileName);
}

std::string_view ListName(std::string_view fileName) {
    return paths::BaseOf(fileName);
}

void ReadFrequentlyUsedTerms(Program& program) {
    TermsRecords& terms = program.terms;
    Forget(program);
    terms.Path = PathInUse(program);
    Guarded(program, "ReadFrequentlyUsedTerms", [&] {
        SettleName(program);
        terms.Path = PathInUse(program);
        if (!files::Exists(terms.Path)) {
            files::WriteWhole(terms.Path, "");
        }
        terms.Bytes = files::ReadAll(terms.Path);
        terms.Lines = LinesOf(terms.Bytes);
        terms.ReadWhole = true;
    });
}

void TakeListInUse(Program& program) {
    if (program.run.FUTShown || program.run.ACEnabled) {
        ReadFrequentlyUsedTerms(program);
    } else {
        Forget(program);
    }
}

void EnsureRead(Program& program) {
    if (program.terms.Path != PathInUse(program)) {
        ReadFrequentlyUsedTerms(program);
    }
}

bool TermExists(const Program& program, std::string_view term) {
    const std::string_view wanted = text::Trim(term);
    return std::any_of(program.terms.Lines.begin(), program.terms.Lines.end(),
                       [&](std::string_view line) { return text::EqualNoCase(text::Trim(line), wanted); });
}

Saved SaveFrequentlyUsedTerms(Program& program, const Change& change) {
    if (!Writable(program)) {
        return Saved::No;
    }
    const auto changed = [&] {
        LineList lines(program.terms.Lines.begin(), program.terms.Lines.end());
        change(lines);
        return lines;
    };
    LineList lines = changed();
    Saved saved = Saved::No;
    const bool held = Guarded(program, "SaveFrequentlyUsedTerms", [&] {
        if (lines.empty()) {
            Tell(program, kNothingToSave);
            return;
        }
        if (files::ChangedSince(program.terms.Path, files::SeenIn(program.terms.Bytes)) &&
            program.platform.questions.MsgBox("This list was changed by another program. Overwrite it?",
                                              Buttons::YesNo, "", kHarmlessIsNo) != Answer::Yes) {
            ReadFrequentlyUsedTerms(program);
            if (!program.terms.ReadWhole) {
                return;
            }
            lines = changed();
            if (lines.empty()) {
                Tell(program, kNothingToSave);
                return;
            }
        }
        files::WriteWhole(program.terms.Path, Joined(lines));
        saved = Saved::Yes;
    });
    if (saved == Saved::Yes) {
        ReadFrequentlyUsedTerms(program);
        TellSaved(program, "Terms list", program.terms.Path);
    }
    return held ? saved : Saved::Failed;
}

bool AddTerm(Program& program, std::string_view text) {
    const std::string term = OneLine(text);
    if (term.empty()) {
        Tell(program, kNothingToAdd);
        return false;
    }
    if (!Writable(program)) {
        return false;
    }
    if (program.terms.TermCount() >= kMostTerms) {
        Tell(program, "List is full, term cannot be added.");
        return false;
    }
    if (TermExists(program, term)) {
        Tell(program, "Term already in the list.");
        return false;
    }
    const auto add = [&](LineList& lines) {
        // Another program may have added the very term meanwhile.
        if (!Holds(lines, term)) {
            lines.push_back(term);
        }
    };
    return SaveFrequentlyUsedTerms(program, add) == Saved::Yes;
}

bool RemoveTerm(Program& program, const TermLine& line) {
    const Saved saved = SaveFrequentlyUsedTerms(program, [&](LineList& lines) {
        const auto found = Find(lines, line);
        if (found != lines.end()) {
            lines.erase(found);
        }
    });
    if (saved == Saved::Failed) {
        Tell(program, "Error encountered trying to remove term from list.");
    }
    return saved == Saved::Yes;
}

bool ReplaceTerm(Program& program, const TermLine& line, std::string_view text) {
    const std::string term = OneLine(text);
    if (term.empty()) {
        Tell(program, kNothingToAdd);
        return false;
    }
    EnsureRead(program);
    const auto& lines = program.terms.Lines;
    if (Find(lines, line) == lines.end() && program.terms.ReadWhole) {
        return true;
    }
    const auto replace = [&](LineList& changed) {
        const auto found = Find(changed, line);
        if (found != changed.end()) {
            *found = term;
        } else if (!Holds(changed, term)) {
            changed.push_back(term); // another program has taken the line away; the person's words stay
        }
    };
    return SaveFrequentlyUsedTerms(program, replace) == Saved::Yes;
}

void ChangeCase(Program& program, LetterCase to) {
    if (!Writable(program)) {
        return;
    }
    const int count = program.terms.TermCount();
    if (count == 0) {
        Tell(program, kNothingToSave);
        return;
    }
    const std::string question = "Change all " + std::to_string(count) + " terms of this list to " +
                                 std::string(NameOf(to)) + " case?";
    if (program.platform.questions.MsgBox(question, Buttons::YesNo, "", kHarmlessIsNo) != Answer::Yes) {
        return;
    }
    static_cast<void>(SaveFrequentlyUsedTerms(program, [to](LineList& lines) {
        for (std::string& line : lines) {
            line = InCase(line, to);
        }
    }));
}

} // namespace modTerms
