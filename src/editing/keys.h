#pragma once

/// Key codes and shift states as the handlers take them.
namespace keys {
inline constexpr int kBackspace = 8, kTab = 9, kEnter = 13, kShift = 16, kBlank = 32, kPageUp = 33,
                     kPageDown = 34;
inline constexpr int kLeft = 37, kUp = 38, kRight = 39, kDown = 40, kInsert = 45, kDelete = 46, kV = 86;
inline constexpr int kF5 = 116, kF6 = 117, kF8 = 119;
inline constexpr int kShiftState = 1, kCtrlState = 2, kAltState = 4;
} // namespace keys

/// Whether a handler has used up a key or character.
enum class Taken { No, Yes };
