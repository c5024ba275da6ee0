#pragma once

#include <string>
#include <string_view>

struct Program;

/// Text files that the person wants to look at; the proposal is not touched.
namespace modExport {

/// Reads a file of up to 64 MB and shows it in a window of its own. Reports as "ReadTextFile".
void ReadTextFile(Program& program, const std::string& path);

/// What a text file's bytes say, in UTF-8 with LF for every kind of line end: bytes that are UTF-8, with or
/// without a mark at the front, are taken as such, others as Windows-1252.
[[nodiscard]] std::string DecodeTextFile(std::string_view bytes);

} // namespace modExport
