#pragma once

struct Program;

namespace modReset {

enum class ResetResult { Done, Refused };

/// The reset: an empty proposal on all pages. Refused when the person goes on editing a format. Reports as
/// "StartNewFile".
[[nodiscard]] ResetResult StartNewFile(Program& program);

} // namespace modReset
