#pragma once

#include <cstdint>

/// Colours as the files hold them: 0x00BBGGRR.
using Color = std::uint32_t;

namespace colors {

inline constexpr Color kBlack = 0x000000;
inline constexpr Color kWhite = 0xFFFFFF;
/// A text area at rest.
inline constexpr Color kResting = 0xC0C0C0;
/// A quantity or unit price box at rest.
inline constexpr Color kRestingRowField = 0xE0E0E0;
/// A field with the focus and within its limits; also a selected label.
inline constexpr Color kFocused = 0xFFFF00;
/// A field over its width or its character limit; also `cmdReCalc` when the figures may be behind.
inline constexpr Color kOverLimit = 0x0000FF;
/// A field that is part of a block selection.
inline constexpr Color kBlockSelected = 0xFF0000;
/// The standard colour of buttons and unselected labels; the desktop's own palette stands for it.
inline constexpr Color kButtonFace = 0x8000000F;

} // namespace colors
