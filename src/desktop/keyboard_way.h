#pragma once

class QWidget;

/// A window manager hands over the keyboard some time after it was asked to. A window may be gone by then.
namespace keyboard {

/// Asks for the keyboard for a window of the program.
void SendTo(QWidget& window);

/// Whether it was sent there a moment ago and has not arrived: no window of the program has it, or only
/// `next`, which would have it if the window went.
[[nodiscard]] bool IsOnItsWayTo(const QWidget& window, const QWidget& next);

} // namespace keyboard
