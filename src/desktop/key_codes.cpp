#include "desktop/key_codes.h"

#include "program/keys.h"

namespace keycodes {

namespace {

struct Pair {
    int QtKey;
    int Code;
};

constexpr Pair kPairs[] = {{Qt::Key_Backspace, keys::kBackspace},
                           {Qt::Key_Tab, keys::kTab},
                           {Qt::Key_Backtab, keys::kTab},
                           {Qt::Key_Return, keys::kEnter},
                           {Qt::Key_Enter, keys::kEnter},
                           {Qt::Key_Shift, keys::kShift},
                           {Qt::Key_Control, keys::kCtrl},
                           {Qt::Key_Alt, keys::kAlt},
                           {Qt::Key_CapsLock, keys::kCapsLock},
                           {Qt::Key_Escape, keys::kEscape},
                           {Qt::Key_Space, keys::kBlank},
                           {Qt::Key_PageUp, keys::kPageUp},
                           {Qt::Key_PageDown, keys::kPageDown},
                           {Qt::Key_End, keys::kEnd},
                           {Qt::Key_Home, keys::kHome},
                           {Qt::Key_Left, keys::kLeft},
                           {Qt::Key_Up, keys::kUp},
                           {Qt::Key_Right, keys::kRight},
                           {Qt::Key_Down, keys::kDown},
                           {Qt::Key_Insert, keys::kInsert},
                           {Qt::Key_Delete, keys::kDelete},
                           {Qt::Key_Menu, keys::kMenu},
                           {Qt::Key_Comma, keys::kComma},
                           {Qt::Key_Minus, keys::kMinus},
                           {Qt::Key_Period, keys::kPeriod},
                           {Qt::Key_Slash, keys::kSlash}};

} // namespace

int CodeOf(const QKeyEvent& event) {
    const int key = event.key();
    if (key >= Qt::Key_F1 && key <= Qt::Key_F24) {
        return keys::kF1 + key - Qt::Key_F1;
    }
    if ((key >= Qt::Key_0 && key <= Qt::Key_9) || (key >= Qt::Key_A && key <= Qt::Key_Z)) {
        return key;
    }
    for (const Pair& pair : kPairs) {
        if (pair.QtKey == key) {
            return pair.Code;
        }
    }
    return keys::kOther;
}

int ShiftOf(const QKeyEvent& event) {
    const Qt::KeyboardModifiers held = event.modifiers();
    return (held.testFlag(Qt::ShiftModifier) ? keys::kShiftState : 0) +
           (held.testFlag(Qt::ControlModifier) ? keys::kCtrlState : 0) +
           (held.testFlag(Qt::AltModifier) ? keys::kAltState : 0);
}

} // namespace keycodes
