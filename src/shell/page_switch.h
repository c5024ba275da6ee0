#pragma once

#include "program/page_records.h"

struct Program;

namespace modScroll {

/// Brings a page to the front, 0 to 6: the single way to change the page. Reports as "UpdatePageButtons".
void UpdatePageButtons(Program& program, int pageIndex);

/// Fits scroll bar and page to the main window: the page at its top, without preview. Reports as
/// "ReAdjustScrollBar".
void ReAdjustScrollBar(Program& program, PageId page);

/// Page Up (33) and Page Down (34); other keys leave the position alone.
void PageKey(Program& program, int keyCode);

/// The person or the program moved the scroll bar.
void SetScroll(Program& program, int value);
void VScroll1_Change(Program& program);

/// Scrolls the page in front until the whole field shows with about a row beside it. A field that shows, one
/// of another page and a page that is only ink leave the position alone.
void BringIntoView(Program& program, const FieldRef& field);

/// The same for the label or logo that the label mode has in its frame.
void BringFrameIntoView(Program& program);

/// Scrolls the page in front until the field stands about a row from the lower edge of what shows, or, near
/// the page's head, from the upper one: a window above it needs most of the screen.
void BringToEdge(Program& program, const FieldRef& field);

/// The mouse wheel, in eighths of a degree as the devices give them (120 a notch, up is more): a notch is
/// three rows of the page.
void Wheel(Program& program, int eighths);

/// The main window has a new size or state. A window that is neither minimised nor maximised is centred on
/// the screen; the information strip follows the width and pending events run, so that it repaints. Fits
/// frmP1, whichever page is in front; that one stays where the person had it, preview and all. The floating
/// windows are minimised with the main window and come back when it is maximised.
void MDIForm_Resize(Program& program);

} // namespace modScroll
