#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

/// The words of a text that a dictionary can be asked about.
namespace words {

struct Span {
    std::size_t Start = 0;
    std::size_t Length = 0;
    bool operator==(const Span&) const = default;
};

/// Runs of letters, with apostrophes inside. Passed over: words of one letter, what has a digit in it
/// (amounts included), and web and mail addresses.
[[nodiscard]] std::vector<Span> Find(std::string_view text);

} // namespace words
