#include "document/proposal_layout.h"

#include <algorithm>
#include <array>

namespace proposal {

namespace {

constexpr std::size_t kBuffer = 120;
constexpr int kAmountWidth = 20;
constexpr int kDescriptionWidth = 120;

struct LegacyLength {
    std::uintmax_t Length;
    LegacyWidths Widths;
};

constexpr std::array<LegacyLength, 3> kLegacy{{{17880, {10, 120}}, {17770, {20, 100}}, {17170, {10, 100}}}};

/// One slot's bytes. Beyond the end of the file there are blanks; a slot of NULs alone is blank.
std::string Slot(std::string_view bytes, std::size_t at, std::size_t width) {
    std::string slot(at < bytes.size() ? bytes.substr(at, width) : std::string_view());
    if (slot.find_first_not_of('\0') == std::string::npos) {
        slot.assign(slot.size(), ' ');
    }
    slot.resize(width, ' ');
    return slot;
}

} // namespace

LegacyWidths WidthsForLength(std::uintmax_t length) {
    for (const LegacyLength& legacy : kLegacy) {
        if (legacy.Length == length) {
            return legacy.Widths;
        }
    }
    return {};
}

std::string Encode(const Fields& fields, const Widths& widths) {
    std::string bytes;
    bytes.reserve(kFileLength);
    std::size_t position = 0;
    std::size_t end = 0;
    for (std::size_t page = 0; page < fields.size(); ++page) {
        for (std::size_t index = 0; index < fields[page].size(); ++index) {
            const auto width = static_cast<std::size_t>(std::max(widths[page][index], 0));
            const Field& field = fields[page][index];
            std::array<char, kBuffer> buffer;
            buffer.fill(' ');
            std::size_t used = 0;
            if (field.TaxExempt) {
                buffer[used++] = kExemptMark;
            }
            const std::size_t length = std::min({field.Text.size(), width, kBuffer - used});
            std::copy_n(field.Text.begin(), length, buffer.begin() + static_cast<std::ptrdiff_t>(used));
            bytes.resize(std::max(bytes.size(), position + kBuffer), ' ');
            std::copy(buffer.begin(), buffer.end(), bytes.begin() + static_cast<std::ptrdiff_t>(position));
            end = std::max(end, position + kBuffer);
            position += width;
        }
    }
    bytes.resize(end);
    return bytes;
}

Decoded Decode(std::string_view bytes, std::uintmax_t length, const Widths& widths) {
    const LegacyWidths legacy = WidthsForLength(length);
    Decoded decoded;
    std::size_t position = 0;
    for (std::size_t page = 0; page < widths.size(); ++page) {
        for (int width : widths[page]) {
            if (width == kAmountWidth) {
                width = legacy.Amount;
            } else if (width == kDescriptionWidth) {
                width = legacy.Description;
            }
            const auto size = static_cast<std::size_t>(std::max(width, 0));
            decoded.Slots[page].push_back(Slot(bytes, position, size));
            position += size;
        }
    }
    decoded.Wedding = kKindOffset < bytes.size() && bytes[kKindOffset] == '1';
    return decoded;
}

QuantityRow SplitQuantityRow(std::string_view text) {
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

} // namespace proposal
