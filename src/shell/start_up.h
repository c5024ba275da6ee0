#pragma once

struct Program;

namespace modStart {

enum class StartResult { Running, Ended };

/// The entry routine: second instance, first start, fonts, then the splash. `Running` returns with the splash
/// up; a click on it brings the main window.
[[nodiscard]] StartResult Main(Program& program);

} // namespace modStart
