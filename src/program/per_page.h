#pragma once

#include "program/page_records.h"

#include <array>
#include <cstddef>

/// One thing a page, found by the page: for all seven, the six that are edited, or the five with lines.
template <typename T, int Count> struct PerPage {
    std::array<T, static_cast<std::size_t>(Count)> Each{};

    [[nodiscard]] T& operator[](PageId page) { return Each[static_cast<std::size_t>(page)]; }
    [[nodiscard]] const T& operator[](PageId page) const { return Each[static_cast<std::size_t>(page)]; }
    [[nodiscard]] constexpr std::size_t size() const { return Each.size(); }
    [[nodiscard]] auto begin() { return Each.begin(); }
    [[nodiscard]] auto end() { return Each.end(); }
    [[nodiscard]] auto begin() const { return Each.begin(); }
    [[nodiscard]] auto end() const { return Each.end(); }
    bool operator==(const PerPage&) const = default;
};

template <typename T> using PerEditedPage = PerPage<T, kEditedPageCount>;
template <typename T> using PerLinePage = PerPage<T, kLinePageCount>;
