#include "pages/quantity_row.h"

namespace quantity_row {

std::string Compose(std::string_view quantity, std::string_view description, std::string_view price) {
    std::string line(1, kQuantityMark);
    line += quantity;
    line += kQuantityMark;
    line += description;
    line += kPriceMark;
    line += price;
    return line;
}

QuantityRow Split(std::string_view text) {
    QuantityRow row;
    if (text.empty() || text.front() != kQuantityMark) {
        return row;
    }
    const std::size_t second = text.find(kQuantityMark, 1);
    if (second == std::string_view::npos) {
        return row;
    }
    const std::size_t price = text.find(kPriceMark, second + 1);
    if (price == std::string_view::npos) {
        return row;
    }
    row.IsRow = true;
    row.Quantity = text.substr(1, second - 1);
    row.Description = text.substr(second + 1, price - second - 1);
    row.Amount = text.substr(price + 1);
    return row;
}

} // namespace quantity_row
