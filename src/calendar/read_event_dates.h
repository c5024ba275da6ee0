#pragma once

#include "calendar/event_dates.h"

struct Program;

/// The list of events, made anew from the proposals' files.
namespace modCalendar {

/// Sets the flags of `program.calendar`.
void SetView(Program& program, View view);
[[nodiscard]] View ViewOf(const Program& program);

/// Rebuilds the list from the flags, with the busy pointer, and lets events run meanwhile. With no proposal
/// at all it says so and clears the flags. A rebuild that starts within another ends the older one; so does
/// `EndRebuild`: false then. Reports as "ReadEventDates".
[[nodiscard]] bool ReadEventDates(Program& program);
void EndRebuild(Program& program);

/// The rebuild at start-up: nobody sees its list, only that there is no proposal.
void ReadEventDatesAtStart(Program& program);

/// Whether there are moved proposals in the backup folder, as far as it can be looked into.
[[nodiscard]] bool CanRestore(const Program& program);

} // namespace modCalendar
