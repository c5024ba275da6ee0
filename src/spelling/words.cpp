#include "spelling/words.h"

#include "base/ansi.h"
#include "base/text.h"

#include <algorithm>
#include <array>

namespace words {

namespace {

constexpr char kApostrophe = '\'', kCurlyApostrophe = '\x92';

bool IsBlank(char character) {
    return character == ' ' || character == '\t' || character == '\xA0';
}

/// Something between blanks that is an address: a mail address, a link, or a host such as "events.example".
bool IsAddress(std::string_view piece) {
    if (piece.find('@') != std::string_view::npos || piece.find("://") != std::string_view::npos ||
        text::EqualNoCase(piece.substr(0, 4), "www.")) {
        return true;
    }
    constexpr std::array<std::string_view, 8> kEndings{".com", ".net", ".org",  ".edu",
                                                       ".gov", ".biz", ".info", ".html"};
    const std::string lower = text::Lower(piece);
    return std::any_of(kEndings.begin(), kEndings.end(), [&](std::string_view ending) {
        const std::size_t at = lower.find(ending);
        const std::size_t behind = at + ending.size();
        return at != std::string::npos && at > 0 &&
               (behind == lower.size() || !ansi::IsLetter(lower[behind]));
    });
}

void FindInPiece(std::string_view piece, std::size_t offset, std::vector<Span>& found) {
    const auto partOfWord = [](char character) {
        return ansi::IsLetter(character) || ansi::IsDigit(character);
    };
    std::size_t at = 0;
    while (at < piece.size()) {
        if (!partOfWord(piece[at])) {
            ++at;
            continue;
        }
        const std::size_t start = at;
        bool digits = false;
        while (at < piece.size()) {
            const bool inner = (piece[at] == kApostrophe || piece[at] == kCurlyApostrophe) &&
                               at + 1 < piece.size() && ansi::IsLetter(piece[at + 1]);
            if (!partOfWord(piece[at]) && !inner) {
                break;
            }
            digits = digits || ansi::IsDigit(piece[at]);
            ++at;
        }
        if (!digits && at - start > 1) {
            found.push_back({offset + start, at - start});
        }
    }
}

} // namespace

std::vector<Span> Find(std::string_view text) {
    std::vector<Span> found;
    std::size_t at = 0;
    while (at < text.size()) {
        if (IsBlank(text[at])) {
            ++at;
            continue;
        }
        std::size_t end = at;
        while (end < text.size() && !IsBlank(text[end])) {
            ++end;
        }
        const std::string_view piece = text.substr(at, end - at);
        if (!IsAddress(piece)) {
            FindInPiece(piece, at, found);
        }
        at = end;
    }
    return found;
}

} // namespace words
