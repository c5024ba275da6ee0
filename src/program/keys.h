#pragma once

/// Key codes and shift states as the handlers take them: one table for the model and for the front end that
/// feeds it.
namespace keys {

inline constexpr int kBackspace = 8, kTab = 9, kEnter = 13, kShift = 16, kCtrl = 17, kAlt = 18,
                     kCapsLock = 20, kEscape = 27, kBlank = 32, kPageUp = 33, kPageDown = 34, kEnd = 35,
                     kHome = 36, kLeft = 37, kUp = 38, kRight = 39, kDown = 40, kInsert = 45, kDelete = 46,
                     kV = 86, kMenu = 93, kF1 = 112, kF5 = 116, kF6 = 117, kF8 = 119, kComma = 188,
                     kMinus = 189, kPeriod = 190, kSlash = 191;
/// What no handler asks for.
inline constexpr int kOther = 192;

inline constexpr int kShiftState = 1, kCtrlState = 2, kAltState = 4;

} // namespace keys

/// Whether a handler has used up a key or character.
enum class Taken { No, Yes };
