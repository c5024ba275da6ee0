#include "terms/term_match.h"

#include "base/ansi.h"
#include "terms/term_line.h"

#include <algorithm>
#include <array>
#include <limits>

namespace modTerms {

namespace {

using UpperTable = std::array<unsigned char, 256>;

const UpperTable& Uppers() {
    static const UpperTable table = [] {
        UpperTable made{};
        for (std::size_t byte = 0; byte < made.size(); ++byte) {
            made[byte] = static_cast<unsigned char>(ansi::Upper(static_cast<char>(byte)));
        }
        return made;
    }();
    return table;
}

unsigned char Folded(char character) {
    return Uppers()[static_cast<unsigned char>(character)];
}

constexpr std::size_t kKeyLetters = 8;

/// The first letters as one number, so that most comparisons touch no text.
std::uint64_t StartOf(std::string_view text) {
    std::uint64_t start = 0;
    for (std::size_t at = 0; at < kKeyLetters; ++at) {
        start = start << 8U | (at < text.size() ? Folded(text[at]) : 0U);
    }
    return start;
}

/// Below 0, 0 or above 0 by the upper-cased letters.
int Compare(std::string_view one, std::string_view other) {
    const std::size_t both = std::min(one.size(), other.size());
    for (std::size_t at = 0; at < both; ++at) {
        const int difference = static_cast<int>(Folded(one[at])) - static_cast<int>(Folded(other[at]));
        if (difference != 0) {
            return difference;
        }
    }
    return one.size() == other.size() ? 0 : one.size() < other.size() ? -1 : 1;
}

bool BeginsWith(std::string_view term, std::string_view word) {
    return term.size() >= word.size() && Compare(term.substr(0, word.size()), word) == 0;
}

constexpr std::uint32_t kNone = std::numeric_limits<std::uint32_t>::max();

/// The least number of a run of leaves, from the tree of pairs above them.
std::uint32_t Least(const std::vector<std::uint32_t>& tree, std::size_t from, std::size_t to) {
    std::uint32_t least = kNone;
    const std::size_t leaves = tree.size() / 2;
    for (from += leaves, to += leaves; from < to; from /= 2, to /= 2) {
        if (from % 2 == 1) {
            least = std::min(least, tree[from++]);
        }
        if (to % 2 == 1) {
            least = std::min(least, tree[--to]);
        }
    }
    return least;
}

} // namespace

std::optional<std::size_t> FirstMatchByWalk(const std::vector<std::string_view>& lines,
                                            std::string_view word) {
    if (word.empty()) {
        return std::nullopt;
    }
    for (std::size_t line = 0; line < lines.size(); ++line) {
        if (BeginsWith(SplitTerm(lines[line]).Text, word)) {
            return line;
        }
    }
    return std::nullopt;
}

TermIndex BuildIndex(const std::vector<std::string_view>& lines) {
    struct Entry {
        std::uint64_t Start;
        std::uint32_t Line;
    };
    std::vector<Entry> entries(lines.size());
    for (std::size_t line = 0; line < lines.size(); ++line) {
        entries[line] = {StartOf(SplitTerm(lines[line]).Text), static_cast<std::uint32_t>(line)};
    }
    std::sort(entries.begin(), entries.end(), [&](const Entry& one, const Entry& other) {
        if (one.Start != other.Start) {
            return one.Start < other.Start;
        }
        const int order = Compare(SplitTerm(lines[one.Line]).Text, SplitTerm(lines[other.Line]).Text);
        return order != 0 ? order < 0 : one.Line < other.Line;
    });
    TermIndex index;
    index.Lines.resize(entries.size());
    index.Starts.resize(entries.size());
    index.Firsts.assign(2 * entries.size(), kNone);
    for (std::size_t at = 0; at < entries.size(); ++at) {
        index.Lines[at] = entries[at].Line;
        index.Starts[at] = entries[at].Start;
        index.Firsts[entries.size() + at] = entries[at].Line;
    }
    for (std::size_t at = entries.size(); at-- > 1;) {
        index.Firsts[at] = std::min(index.Firsts[2 * at], index.Firsts[2 * at + 1]);
    }
    index.Built = true;
    return index;
}

std::optional<std::size_t> FirstMatch(const std::vector<std::string_view>& lines, const TermIndex& index,
                                      std::string_view word) {
    if (word.empty()) {
        return std::nullopt;
    }
    const std::uint64_t lowest = StartOf(word);
    const std::size_t missing = kKeyLetters - std::min(word.size(), kKeyLetters);
    const std::uint64_t highest =
        missing == 0 ? lowest : lowest | (std::numeric_limits<std::uint64_t>::max() >> (8 * (8 - missing)));
    auto from = std::lower_bound(index.Starts.begin(), index.Starts.end(), lowest);
    auto to = std::upper_bound(from, index.Starts.end(), highest);
    if (word.size() >= kKeyLetters || word.find('\0') != std::string_view::npos) {
        // Those that begin with the same eight letters are told apart by the rest of them.
        const auto first = index.Lines.begin();
        const auto rank = [&](std::uint32_t line) {
            const std::string_view term = SplitTerm(lines[line]).Text;
            return Compare(term.substr(0, std::min(term.size(), word.size())), word);
        };
        const auto low =
            std::partition_point(first + (from - index.Starts.begin()), first + (to - index.Starts.begin()),
                                 [&](std::uint32_t line) { return rank(line) < 0; });
        const auto high = std::partition_point(low, first + (to - index.Starts.begin()),
                                               [&](std::uint32_t line) { return rank(line) == 0; });
        from = index.Starts.begin() + (low - first);
        to = index.Starts.begin() + (high - first);
    }
    const std::uint32_t least = Least(index.Firsts, static_cast<std::size_t>(from - index.Starts.begin()),
                                      static_cast<std::size_t>(to - index.Starts.begin()));
    return least == kNone ? std::nullopt : std::optional<std::size_t>(least);
}

std::optional<std::size_t> FindMatch(TermsRecords& terms, std::string_view word) {
    constexpr std::size_t kWorthIt = 64;
    if (terms.Lines.size() < kWorthIt) {
        return FirstMatchByWalk(terms.Lines, word);
    }
    if (!terms.Index.Built) {
        terms.Index = BuildIndex(terms.Lines);
    }
    return FirstMatch(terms.Lines, terms.Index, word);
}

} // namespace modTerms
