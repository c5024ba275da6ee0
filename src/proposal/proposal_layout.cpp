#include "proposal/proposal_layout.h"

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

/// Makes a slot of NULs alone blank; what is filled up with blanks beyond the end of the file is no part of
/// it.
void BlankNuls(std::vector<char>& bytes, std::size_t at, std::size_t width, std::size_t end) {
    if (at >= end) {
        return;
    }
    const auto first = bytes.begin() + static_cast<std::ptrdiff_t>(at);
    const auto last = bytes.begin() + static_cast<std::ptrdiff_t>(std::min(at + width, end));
    if (std::all_of(first, last, [](char byte) { return byte == '\0'; })) {
        std::fill(first, last, ' ');
    }
}

std::size_t WidthIn(const LegacyWidths& file, int width) {
    const int read = width == kAmountWidth        ? file.Amount
                     : width == kDescriptionWidth ? file.Description
                                                  : width;
    return static_cast<std::size_t>(std::max(read, 0));
}

std::size_t TotalWidth(const LegacyWidths& file, const Widths& widths) {
    std::size_t total = 0;
    for (const auto& page : widths) {
        for (const int width : page) {
            total += WidthIn(file, width);
        }
    }
    return total;
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
    for (const PageId page : kEditedPages) {
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
            position += width;
        }
    }
    return bytes;
}

bool IsCutShort(std::uintmax_t length) {
    return length < kFileLength &&
           std::none_of(kLegacy.begin(), kLegacy.end(),
                        [length](const LegacyLength& legacy) { return legacy.Length == length; });
}

Decoded Decode(std::string_view bytes, std::uintmax_t length, const Widths& widths) {
    const LegacyWidths file = WidthsForLength(length);
    Decoded decoded;
    decoded.Wedding = kKindOffset < bytes.size() && bytes[kKindOffset] == '1';
    const std::size_t total = TotalWidth(file, widths);
    const std::size_t end = std::min(bytes.size(), total);
    decoded.Bytes.reserve(total);
    decoded.Bytes.assign(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(end));
    decoded.Bytes.resize(total, ' ');
    std::size_t position = 0;
    for (const PageId page : kEditedPages) {
        decoded.Slots[page].reserve(widths[page].size());
        for (const int width : widths[page]) {
            const std::size_t size = WidthIn(file, width);
            BlankNuls(decoded.Bytes, position, size, end);
            decoded.Slots[page].emplace_back(decoded.Bytes.data() + position, size);
            position += size;
        }
    }
    return decoded;
}

} // namespace proposal
