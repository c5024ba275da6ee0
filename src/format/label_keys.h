#pragma once

struct Program;

/// The designer without a mouse. In the label mode the keys go over the labels of the page in front: Tab and
/// Shift+Tab show a frame round the next or the last one, and what the other keys do is what the mouse does.
namespace modLabelKeys {

/// Ctrl+L: enters or leaves the mode.
void mnuEditLabelMode_Click(Program& program);
void Leave(Program& program);

/// A key in the label mode. `Menu` says which menu opens at the framed thing.
enum class Menu { None, Label, Logo };
Menu KeyDown(Program& program, int keyCode, int shift);

/// The page in front has changed: the frame goes to its first label.
void PageChanged(Program& program);

} // namespace modLabelKeys
