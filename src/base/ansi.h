#pragma once

#include <optional>
#include <string>
#include <string_view>

/// The program's characters: one byte each, Windows-1252. The five bytes that the code page leaves open stand
/// for the code points of the same number, so that every byte survives a round trip.
namespace ansi {

[[nodiscard]] char32_t ToCodePoint(char byte);
/// Nothing when the character has no byte.
[[nodiscard]] std::optional<char> FromCodePoint(char32_t codePoint);

[[nodiscard]] std::string ToUtf8(std::string_view text);
/// Nothing when the bytes are no UTF-8 or hold a character without a byte.
[[nodiscard]] std::optional<std::string> FromUtf8(std::string_view utf8);

[[nodiscard]] char Upper(char byte);
[[nodiscard]] char Lower(char byte);
[[nodiscard]] bool IsLetter(char byte);
[[nodiscard]] bool IsDigit(char byte);

} // namespace ansi
