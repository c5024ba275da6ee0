#pragma once

#include "program/command_ids.h"
#include "program/keys.h"
#include "program/page_records.h"

#include <string_view>

struct Program;

/// The hands of a person, for the tests of every room: commands, pages, keys and mouse, by the same ways as
/// the front end, whichever room answers.
namespace person {

/// Chooses a command of the menus.
void Choose(Program& program, CommandId id);
/// Puts the proposal away without a question, for an empty one.
void StartAnew(Program& program);
/// Brings a page to the front, 0 to 6.
void TurnTo(Program& program, int pageIndex);
/// Clicks a page's button on the tool strip, 0 to 6.
void ClickPageButton(Program& program, int index);
void ClickPreviewButton(Program& program);
void ClickPrintButton(Program& program);
void ClickClearSelected(Program& program);
/// The window has a new size.
void ResizeWindow(Program& program);
/// Clicks the close box; true when the window may close.
[[nodiscard]] bool MayClose(Program& program);

[[nodiscard]] Taken KeyDown(Program& program, int keyCode, int shift, int selStart, int selLength);
[[nodiscard]] int KeyPress(Program& program, int keyAscii);
void KeyUp(Program& program, int keyCode, int shift, int selStart, int selLength);
void Edited(Program& program, const FieldRef& field, std::string_view text, int selStart, int selLength);
void EditedWithoutKey(Program& program, const FieldRef& field, std::string_view text, int selStart,
                      int selLength);
enum class By { Key, Mouse };
void Insert(Program& program, const FieldRef& field, std::string_view text, int refused, By by);

void FieldMouseDown(Program& program, const FieldRef& field, int button, int selStart, int selLength);
void FieldMouseUp(Program& program, const FieldRef& field, int selStart, int selLength);
void FieldDblClick(Program& program, const FieldRef& field, int position);
[[nodiscard]] bool TextMenuOpens(const Program& program);
void TextMenuClosed(Program& program);
void NoTaxMarkClick(Program& program, PageId page, int index);

} // namespace person
