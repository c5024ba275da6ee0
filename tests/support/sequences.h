#pragma once

#include <cstdlib>

/// How many random sequences a test goes through: as many as QUILLBROOK_SEQUENCES says, else few in a build
/// for the everyday and many in one that is fast.
[[nodiscard]] inline unsigned SequencesAsked([[maybe_unused]] unsigned few, [[maybe_unused]] unsigned many) {
    if (const char* asked = std::getenv("QUILLBROOK_SEQUENCES")) {
        constexpr int kDecimal = 10;
        return static_cast<unsigned>(std::strtoul(asked, nullptr, kDecimal));
    }
#ifdef NDEBUG
    return many;
#else
    return few;
#endif
}
