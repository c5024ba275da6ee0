#pragma once

#include "program/page_records.h"

#include <optional>
#include <string_view>

struct Program;

/// What brings a term or a figure from outside into a field, and a term's price into its line.
namespace modTerms {

/// Puts a price that is a number into the line's unit price, or into its amount where the line has no
/// columns, as typed and left. Where something stands already it stays, and the status strip says so.
void PlaceAmount(Program& program, const FieldRef& description, std::string_view amount);

/// Whether a line of a list, or a figure, may be let go over a field. Fields of figures take numbers only.
[[nodiscard]] bool TakesDrop(const Program& program, const FieldRef& field, std::string_view dragged);

/// Lets it go there: a text goes behind what a text area holds, a description's price into its line; a number
/// replaces what a field of figures holds, as typed and left. The field gets the focus, the cursor behind its
/// text. False when the field does not take it.
[[nodiscard]] bool txt_DragDrop(Program& program, const FieldRef& field, std::string_view dragged);

/// The field that the cursor is or was in last.
[[nodiscard]] FieldRef LastField(const Program& program);
/// The way for those who cannot drag: into the field that the cursor was in last, which gets the keyboard.
void PutIntoLastField(Program& program, std::string_view dragged);

} // namespace modTerms
