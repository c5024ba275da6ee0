#pragma once

#include "program/page_records.h"

struct Program;

/// The flow of an overflowing line into the next area.
namespace modText {

/// Decides from the current text and the cursor before the key whether text moves on, and where the cursor
/// ends.
void CheckForPush(Program& program);

/// Moves the tail of an area's line to the front of the next area; both changes run their handlers, so that
/// the flow goes on from area to area. A line without a place to split stays as it is, silently.
void PushTheText(Program& program, PageId page, int index);

/// Before a program's own writing: no key has been pressed, so that a text too long for its area stays and
/// goes red instead of flowing on.
void ForgetKey(Program& program);

} // namespace modText
