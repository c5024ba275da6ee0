#pragma once

#include <string_view>

/// What the program says of itself.
namespace version {

inline constexpr std::string_view kTitle = "Quillbrook";
/// Three parts, as in "1.0.0".
[[nodiscard]] std::string_view Number();
inline constexpr std::string_view kComments = "Proposals for events and catering. Build Date: 11/21/2026";
inline constexpr std::string_view kMaker = "Made by Quillbrook Software";
inline constexpr std::string_view kWebLine = "www.quillbrook.example";
/// The maker's site; the pages lie below it.
inline constexpr std::string_view kWebHost = "https://www.quillbrook.example";

} // namespace version
