#include "base/ansi.h"

#include <algorithm>
#include <array>

namespace {

/// Code points of the bytes 80 to 9F.
constexpr std::array<char32_t, 32> kHigh{0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                         0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                         0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                         0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr unsigned char Byte(char character) {
    return static_cast<unsigned char>(character);
}

struct CaseTables {
    std::array<char, 256> Upper{};
    std::array<char, 256> Lower{};
    std::array<bool, 256> Letter{};
};

constexpr void Pair(CaseTables& tables, unsigned upper, unsigned lower) {
    tables.Upper[lower] = static_cast<char>(upper);
    tables.Lower[upper] = static_cast<char>(lower);
    tables.Letter[upper] = true;
    tables.Letter[lower] = true;
}

constexpr CaseTables MakeCaseTables() {
    CaseTables tables;
    for (unsigned byte = 0; byte < 256; ++byte) {
        tables.Upper[byte] = static_cast<char>(byte);
        tables.Lower[byte] = static_cast<char>(byte);
    }
    for (unsigned byte = 'A'; byte <= 'Z'; ++byte) {
        Pair(tables, byte, byte + 32);
    }
    for (unsigned byte = 0xC0; byte <= 0xDE; ++byte) {
        if (byte != 0xD7) { // the multiplication sign, across from the division sign
            Pair(tables, byte, byte + 32);
        }
    }
    Pair(tables, 0x8A, 0x9A);
    Pair(tables, 0x8C, 0x9C);
    Pair(tables, 0x8E, 0x9E);
    Pair(tables, 0x9F, 0xFF);
    // Letters without a partner in the code page.
    for (const unsigned byte : {0x83U, 0xAAU, 0xB5U, 0xBAU, 0xDFU}) {
        tables.Letter[byte] = true;
    }
    return tables;
}

constexpr CaseTables kCase = MakeCaseTables();

/// Reads one character of UTF-8; 0xFFFFFFFF for bytes that are none. No character of the code page has four
/// bytes: such a one counts as none.
char32_t NextCodePoint(std::string_view utf8, std::size_t& at) {
    constexpr char32_t kBad = 0xFFFFFFFF;
    const unsigned char lead = Byte(utf8[at]);
    if (lead < 0x80) {
        ++at;
        return lead;
    }
    const std::size_t more = lead >= 0xE0 ? 2 : lead >= 0xC2 ? 1 : 0;
    if (more == 0 || lead >= 0xF0 || at + more >= utf8.size()) {
        return kBad;
    }
    char32_t value = lead & (0x3FU >> more);
    for (std::size_t step = 1; step <= more; ++step) {
        const unsigned char next = Byte(utf8[at + step]);
        if ((next & 0xC0U) != 0x80U) {
            return kBad;
        }
        value = (value << 6U) | (next & 0x3FU);
    }
    if (more == 2 && value < 0x800) {
        return kBad;
    }
    at += more + 1;
    return value;
}

} // namespace

namespace ansi {

char32_t ToCodePoint(char byte) {
    const unsigned char value = Byte(byte);
    return value >= 0x80 && value < 0xA0 ? kHigh[value - 0x80U] : value;
}

std::optional<char> FromCodePoint(char32_t codePoint) {
    if (codePoint < 0x80 || (codePoint >= 0xA0 && codePoint <= 0xFF)) {
        return static_cast<char>(codePoint);
    }
    for (std::size_t index = 0; index < kHigh.size(); ++index) {
        if (kHigh[index] == codePoint) {
            return static_cast<char>(0x80 + index);
        }
    }
    return std::nullopt;
}

std::string ToUtf8(std::string_view text) {
    std::string utf8;
    utf8.reserve(text.size());
    for (const char byte : text) {
        const char32_t value = ToCodePoint(byte);
        if (value < 0x80) {
            utf8 += static_cast<char>(value);
        } else if (value < 0x800) {
            utf8 += static_cast<char>(0xC0U | (value >> 6U));
            utf8 += static_cast<char>(0x80U | (value & 0x3FU));
        } else {
            utf8 += static_cast<char>(0xE0U | (value >> 12U));
            utf8 += static_cast<char>(0x80U | ((value >> 6U) & 0x3FU));
            utf8 += static_cast<char>(0x80U | (value & 0x3FU));
        }
    }
    return utf8;
}

std::optional<std::string> FromUtf8(std::string_view utf8) {
    constexpr unsigned char kFirstBeyondAscii = 0x80;
    const auto* plain =
        std::find_if(utf8.begin(), utf8.end(), [](char byte) { return Byte(byte) >= kFirstBeyondAscii; });
    std::string text(utf8.begin(), plain); // which is most of it, and often all
    text.reserve(utf8.size());
    for (std::size_t at = text.size(); at < utf8.size();) {
        const std::optional<char> byte = FromCodePoint(NextCodePoint(utf8, at));
        if (!byte) {
            return std::nullopt;
        }
        text += *byte;
    }
    return text;
}

char Upper(char byte) {
    return kCase.Upper[Byte(byte)];
}
char Lower(char byte) {
    return kCase.Lower[Byte(byte)];
}
bool IsLetter(char byte) {
    return kCase.Letter[Byte(byte)];
}
bool IsDigit(char byte) {
    return byte >= '0' && byte <= '9';
}

} // namespace ansi
