#pragma once

#include <cstddef>

/// Whether a list has a row of that number; what nobody chose has the number -1.
template <typename List> [[nodiscard]] constexpr bool HasRow(const List& list, int row) {
    return row >= 0 && static_cast<std::size_t>(row) < list.size();
}
