#pragma once

#include "program/page_records.h"

struct Program;

/// The mouse on the text areas of frmP1 to frmP6.
namespace modText {

/// The right button (2) repaints the pages, leaves the area as any way of leaving does, and brings the text
/// menu up to date; the front end opens it then.
void txt_MouseDown(Program& program, PageId page, int index, int button);
/// The text menu is gone, by a command or without one: the area that was pressed has the focus again.
void TextMenuClosed(Program& program);
void txt_MouseUp(Program& program, PageId page, int index);
void txt_DblClick(Program& program, PageId page, int index);

} // namespace modText
