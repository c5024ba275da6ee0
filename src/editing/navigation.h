#pragma once

#include "program/page_records.h"

struct Program;

/// Where Enter, Tab and the arrows go, from tables.
namespace modNavigate {

enum class Step { Enter, Up, Down };

/// Moves from a text area as the tables say and applies the scroll test. From a page's last area Enter and
/// Down change to the following page's first area.
void Move(Program& program, PageId page, int index, Step step);

/// Goes back the way Enter and Tab lead, from an area or a box, and applies the scroll test. The first area
/// of a page leads to the last one of the page before.
void MoveBack(Program& program, const FieldRef& field);

/// The keyboard comes into a field: the whole text of an amount, a box or the deposit is marked, so that
/// typing replaces it.
void Arrive(Program& program, const FieldRef& field);

/// After a move that left `fieldTop`: scrolls a window's part when the field left stood at the edge.
enum class Direction { Up, Down };
void ScrollTest(Program& program, PageId page, float fieldTop, Direction direction);

} // namespace modNavigate
