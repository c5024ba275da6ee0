#include "base/text.h"

#include "base/ansi.h"

#include <algorithm>

namespace text {

std::string_view LTrim(std::string_view value) {
    const std::size_t first = value.find_first_not_of(' ');
    return first == std::string_view::npos ? std::string_view() : value.substr(first);
}

std::string_view RTrim(std::string_view value) {
    // Slots of a proposal are mostly blanks: eight at a time.
    constexpr std::string_view kBlanks = "        ";
    while (value.ends_with(kBlanks)) {
        value.remove_suffix(kBlanks.size());
    }
    return value.substr(0, value.find_last_not_of(' ') + 1);
}

std::string_view Trim(std::string_view value) {
    return LTrim(RTrim(value));
}

std::string_view Left(std::string_view value, int count) {
    return value.substr(0, static_cast<std::size_t>(std::max(count, 0)));
}

std::string_view Right(std::string_view value, int count) {
    const std::size_t wanted = std::min(value.size(), static_cast<std::size_t>(std::max(count, 0)));
    return value.substr(value.size() - wanted);
}

std::string_view Mid(std::string_view value, int position, int count) {
    const std::size_t first = static_cast<std::size_t>(std::max(position, 1) - 1);
    if (first >= value.size()) {
        return {};
    }
    return count < 0 ? value.substr(first) : value.substr(first, static_cast<std::size_t>(count));
}

std::string Upper(std::string_view value) {
    std::string result(value);
    std::transform(result.begin(), result.end(), result.begin(), ansi::Upper);
    return result;
}

std::string Lower(std::string_view value) {
    std::string result(value);
    std::transform(result.begin(), result.end(), result.begin(), ansi::Lower);
    return result;
}

std::string Proper(std::string_view value) {
    std::string result(value);
    bool inWord = false;
    for (char& character : result) {
        character = inWord ? ansi::Lower(character) : ansi::Upper(character);
        inWord = character != ' ' && character != '\t';
    }
    return result;
}

int CompareNoCase(std::string_view one, std::string_view other) {
    const std::size_t both = std::min(one.size(), other.size());
    for (std::size_t at = 0; at < both; ++at) {
        const auto left = static_cast<unsigned char>(ansi::Upper(one[at]));
        const auto right = static_cast<unsigned char>(ansi::Upper(other[at]));
        if (left != right) {
            return left < right ? -1 : 1;
        }
    }
    return one.size() == other.size() ? 0 : one.size() < other.size() ? -1 : 1;
}

bool EqualNoCase(std::string_view one, std::string_view other) {
    return CompareNoCase(one, other) == 0;
}

std::string Lines(std::initializer_list<std::string_view> lines) {
    std::string result;
    bool first = true;
    for (const std::string_view line : lines) {
        if (!first) {
            result += kCrLf;
        }
        first = false;
        result += line;
    }
    return result;
}

std::string FirstTen(std::string_view heading, const std::vector<std::string>& entries) {
    constexpr std::size_t kNamed = 10;
    std::string list(heading);
    for (std::size_t at = 0; at < std::min(entries.size(), kNamed); ++at) {
        list += kCrLf;
        list += entries[at];
    }
    if (entries.size() > kNamed) {
        list += kCrLf;
        list += "and " + std::to_string(entries.size() - kNamed) + " more";
    }
    return list;
}

std::vector<std::string> SplitLines(std::string_view value) {
    std::vector<std::string> lines;
    std::size_t start = 0;
    while (start < value.size()) {
        const std::size_t end = value.find_first_of("\r\n", start);
        if (end == std::string_view::npos) {
            lines.emplace_back(value.substr(start));
            break;
        }
        lines.emplace_back(value.substr(start, end - start));
        start = end + (value.substr(end, 2) == kCrLf ? 2 : 1);
    }
    return lines;
}

} // namespace text
