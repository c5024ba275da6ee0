#pragma once

#include "base/colors.h"

#include <array>
#include <string_view>

/// The colours that label and text windows offer as buttons.
namespace colour_table {

struct Named {
    std::string_view Name;
    Color Value = 0;
};
inline constexpr std::array<Named, 8> kColours{{{"Red", 0x0000FF},
                                                {"Orange", 0x0080FF},
                                                {"Yellow", 0x00FFFF},
                                                {"Green", 0x00FF00},
                                                {"Cyan", 0xFFFF00},
                                                {"Blue", 0xFF0000},
                                                {"Magenta", 0xFF00FF},
                                                {"Black", 0x000000}}};

} // namespace colour_table
