#pragma once

#include "program/page_records.h"

struct Program;

/// What the colour of a text area says: too long, held by the keyboard, at rest.
namespace modAreaColours {

/// Red over a limit; otherwise the colour of the field that is typed in. A selected area stays blue.
void ColourArea(const Program& program, PageId page, TextArea& area);
/// After a text was changed from elsewhere, as by a command: red over a limit, otherwise the colour of the
/// keyboard's field, or of one at rest. A selected area stays blue.
void ColourAfterCommand(Program& program, const FieldRef& field);
/// Red for every area of a page over a limit, grey for the rest; blue areas stay.
void ResetMyTextBoxColors(Program& program, PageId page);
/// Whether a text is over its area's width or character limit.
[[nodiscard]] bool OverLimit(const Program& program, PageId page, const TextArea& area);

} // namespace modAreaColours
