#pragma once

#include <string>

/// Words of nine letters and a blank: "abcdefghi " as often as asked for.
[[nodiscard]] inline std::string Words(int count) {
    std::string text;
    for (int word = 0; word < count; ++word) {
        text += "abcdefghi ";
    }
    return text;
}
