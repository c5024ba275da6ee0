#pragma once

#include <string>
#include <string_view>

struct Program;

/// Where the paper lies in the printer: offsets of what is printed, and their file.
namespace modOffsets {

inline constexpr float kTwipsPerInch = 1440;
/// An offset as typed or read, in inches, and back as plain text. What is no number counts as 0.
[[nodiscard]] float TwipsOf(std::string_view inches);
[[nodiscard]] std::string InchesOf(float twips);

/// A missing file means offsets of 0.
void ReadPrinterOffsets(Program& program);
void SavePrinterOffsets(Program& program);

} // namespace modOffsets
