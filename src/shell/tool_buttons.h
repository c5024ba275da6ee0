#pragma once

#include "program/controls.h"

struct Program;

/// The frames of the tool strip's image buttons: raised under the pointer, sunken while pressed. The button's
/// record tells its place in the strip.
namespace modToolButtons {

/// The pointer is over a button. Nothing while one is pressed.
void HoverToolButton(Program& program, const ImageButton& button);
void PressToolButton(Program& program, const ImageButton& button);
/// The button was let go: both frames are hidden.
void ReleaseToolButton(Program& program);
/// The pointer is over the strip itself: the raised frame is hidden.
void LeaveToolButton(Program& program);
/// The frame that a button has now.
enum class ButtonFrame { None, Raised, Sunken };
[[nodiscard]] ButtonFrame FrameOf(const Program& program, const ImageButton& button);
/// Gives every image of the window the pointer of the first page button.
void LoadPageButtonCursors(Program& program);
/// Hides both frames.
void ClearButtonBorders(Program& program);

} // namespace modToolButtons
