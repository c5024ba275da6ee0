#pragma once

#include "program/page_records.h"

struct Program;

namespace modText {

/// A completion that stands unanswered in the focused area of a page is taken for what the area holds, as
/// leaving the area takes it: nothing that follows may run into silent handlers. It flows nowhere; a cursor
/// that still marks it goes behind it.
void SettleCompletion(Program& program, PageId page);

/// The same on every page. What others are to see takes it first.
void TakeCompletion(Program& program);

} // namespace modText
