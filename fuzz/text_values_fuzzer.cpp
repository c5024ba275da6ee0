#include "base/dates.h"
#include "base/numbers.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string>

/// Arbitrary text as a date and as a number.

namespace {

void Require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    const auto number = numbers::ToDouble(text, "$");
    if (number) {
        Require(std::isfinite(*number));
        // As it is shown in an amount it is a number again.
        Require(numbers::ToDouble(numbers::Format(*number, "###,##0.00"), "$").has_value());
    }
    if (const auto single = numbers::ToSingle(text, "$")) {
        Require(std::isfinite(*single) && number.has_value());
    }
    static_cast<void>(numbers::Val(text));
    static_cast<void>(numbers::ValSingle(text));
    constexpr int kYear = 2008;
    static_cast<void>(dates::IsDate(text, kYear));
    return 0;
}
