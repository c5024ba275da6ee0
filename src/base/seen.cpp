#include "base/seen.h"

#include "base/files.h"

#include <exception>

namespace files {

namespace {

std::uint64_t SumOf(std::string_view bytes) {
    // FNV-1a: every byte and its place count.
    std::uint64_t sum = 14695981039346656037U;
    constexpr std::uint64_t kPrime = 1099511628211U;
    for (const char byte : bytes) {
        sum = (sum ^ static_cast<unsigned char>(byte)) * kPrime;
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
