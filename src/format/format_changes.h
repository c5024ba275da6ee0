#pragma once

struct Program;

/// What the open format, or one that is not saved yet, has gained against its file.
namespace modFormat {

/// Whether there is anything that a format file would keep: a logo, a bold area, a text, columns, a label not
/// saved, a font other than the one read. Copies the proposal's bold into the format's table on its way. Text
/// that was only typed does not count.
[[nodiscard]] bool FormatHasChanges(Program& program);

/// Whether a person has changed the open format since it was read or saved.
[[nodiscard]] bool FormatIsUnsaved(const Program& program);

/// Whether the open format's file holds what a save would write: nothing was changed or typed since.
[[nodiscard]] bool FileIsCurrent(Program& program);

} // namespace modFormat
