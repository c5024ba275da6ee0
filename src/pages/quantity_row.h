#pragma once

#include <string>
#include <string_view>

/// A description with quantity and unit price is stored as one line: quantity, description and price between
/// marks.
namespace quantity_row {

inline constexpr char kQuantityMark = '\xA5';
inline constexpr char kPriceMark = '\xA7';

/// What the two boxes hold before a person fills them.
inline constexpr std::string_view kQuantityPlaceholder = "Qty.", kPricePlaceholder = "Amt.";

[[nodiscard]] std::string Compose(std::string_view quantity, std::string_view description,
                                  std::string_view price);

/// A description that is a quantity row, taken apart; nothing when one of the marks is missing.
struct QuantityRow {
    bool IsRow = false;
    std::string Quantity;
    std::string Description;
    std::string Amount;
};
[[nodiscard]] QuantityRow Split(std::string_view text);

} // namespace quantity_row
