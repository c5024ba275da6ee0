#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Text as the program handles it: bytes of Windows-1252, blanks are 0x20 only.
namespace text {

inline constexpr std::string_view kCrLf = "\r\n";

[[nodiscard]] std::string_view Trim(std::string_view value);
[[nodiscard]] std::string_view LTrim(std::string_view value);
[[nodiscard]] std::string_view RTrim(std::string_view value);
/// The first or last characters, fewer when there are fewer; none for a count below 1.
[[nodiscard]] std::string_view Left(std::string_view value, int count);
[[nodiscard]] std::string_view Right(std::string_view value, int count);
/// From a position counted from 1; empty beyond the end.
[[nodiscard]] std::string_view Mid(std::string_view value, int position, int count = -1);

[[nodiscard]] std::string Upper(std::string_view value);
[[nodiscard]] std::string Lower(std::string_view value);
/// First letter of each word upper, the rest lower. A word begins after a blank or a tab only, so that a name
/// with a hyphen is one word.
[[nodiscard]] std::string Proper(std::string_view value);

/// Order of the upper-cased bytes: below 0, 0, above 0.
[[nodiscard]] int CompareNoCase(std::string_view one, std::string_view other);
[[nodiscard]] bool EqualNoCase(std::string_view one, std::string_view other);

/// Joins lines with CR LF between them.
[[nodiscard]] std::string Lines(std::initializer_list<std::string_view> lines);
/// Under the heading a line each for the first ten of the entries, and how many more there are.
[[nodiscard]] std::string FirstTen(std::string_view heading, const std::vector<std::string>& entries);
/// Takes a text apart at CR LF, LF or CR. A line end at the very end opens no further line.
[[nodiscard]] std::vector<std::string> SplitLines(std::string_view value);

} // namespace text
