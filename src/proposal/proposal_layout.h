#pragma once

#include "program/per_page.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// The fixed layout of a proposal file: texts to bytes and back. Pure; knows nothing of pages on screen.
namespace proposal {

inline constexpr std::uintmax_t kFileLength = 20630;
/// Offset of the kind byte.
inline constexpr std::size_t kKindOffset = 20628;
inline constexpr char kExemptMark = '\xD8';

/// Slot widths, per edited page and text index, in the order of the file. They come from the fields' Tags.
using Widths = PerEditedPage<std::vector<int>>;

struct Field {
    std::string Text;
    bool TaxExempt = false;
};
using Fields = PerEditedPage<std::vector<Field>>;

/// Amount and description widths for a file of that length.
struct LegacyWidths {
    int Amount = 20;
    int Description = 120;
};
[[nodiscard]] LegacyWidths WidthsForLength(std::uintmax_t length);
/// Whether a file of that length is one that was cut short: shorter than what is written, and of no older
/// layout.
[[nodiscard]] bool IsCutShort(std::uintmax_t length);

/// The file's bytes. Each field goes through a 120-byte buffer, so a marked text of full width loses its last
/// character and 100 spaces follow the last field.
[[nodiscard]] std::string Encode(const Fields& fields, const Widths& widths);

/// The raw slots of a file of any length: bytes beyond the end are blanks, a slot wholly in the file whose
/// bytes are all NUL is blank. Nothing is trimmed. `length` is the whole file's, `bytes` at least what the
/// layout needs.
struct Decoded {
    Decoded() = default;
    Decoded(const Decoded&) = delete;
    Decoded(Decoded&&) = default;
    Decoded& operator=(const Decoded&) = delete;
    Decoded& operator=(Decoded&&) = default;
    std::vector<char> Bytes; ///< what the slots look into, also after a move
    PerEditedPage<std::vector<std::string_view>> Slots;
    bool Wedding = false;
};
[[nodiscard]] Decoded Decode(std::string_view bytes, std::uintmax_t length, const Widths& widths);

} // namespace proposal
