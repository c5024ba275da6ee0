#include "base/seen.h"

#include "base/files.h"

#include <algorithm>
#include <cstring>
#include <exception>

namespace files {

namespace {

/// Every byte and its place count. Eight at a time: a file is looked at twice at each save.
std::uint64_t SumOf(std::string_view bytes) {
    constexpr std::uint64_t kStart = 14695981039346656037U, kPrime = 0x9E3779B97F4A7C15U;
    constexpr unsigned kHalf = 32;
    std::uint64_t sum = kStart;
    while (!bytes.empty()) {
        std::uint64_t word = 0;
        const std::size_t count = std::min(bytes.size(), sizeof word);
        std::memcpy(&word, bytes.data(), count);
        bytes.remove_prefix(count);
        sum = (sum ^ word) * kPrime;
        sum ^= sum >> kHalf;
    }
    return sum;
}

} // namespace

Seen SeenIn(std::string_view bytes) {
    return {Seen::What::Bytes, bytes.size(), SumOf(bytes)};
}

Seen LookAt(std::string_view path) {
    try {
        return ExistsExactly(path) ? SeenIn(ReadAll(path)) : Seen{Seen::What::NoFile, 0, 0};
    } catch (const std::exception&) {
        return {Seen::What::Unread, 0, 0};
    }
}

bool ChangedSince(std::string_view path, const Seen& seen) {
    const Seen now = LookAt(path);
    return now.Was != Seen::What::NoFile && (now.Was == Seen::What::Unread || now != seen);
}

} // namespace files
