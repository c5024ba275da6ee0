#pragma once

#include <QKeyEvent>

/// The model's key codes and shift state for Qt's keys.
namespace keycodes {

[[nodiscard]] int CodeOf(const QKeyEvent& event);
/// 1 Shift, 2 Ctrl, 4 Alt.
[[nodiscard]] int ShiftOf(const QKeyEvent& event);

} // namespace keycodes
