#include "desktop/key_codes.h"

namespace keycodes {

namespace {

struct Pair {
    int QtKey;
    int Code;
};

constexpr Pair kPairs[] = {
    {Qt::Key_Backspace, 8}, {Qt::Key_Tab, 9},     {Qt::Key_Backtab, 9},  {Qt::Key_Return, 13},
    {Qt::Key_Enter, 13},    {Qt::Key_Shift, 16},  {Qt::Key_Control, 17}, {Qt::Key_Alt, 18},
    {Qt::Key_CapsLock, 20}, {Qt::Key_Escape, 27}, {Qt::Key_Space, 32},   {Qt::Key_PageUp, 33},
    {Qt::Key_PageDown, 34}, {Qt::Key_End, 35},    {Qt::Key_Home, 36},    {Qt::Key_Left, 37},
    {Qt::Key_Up, 38},       {Qt::Key_Right, 39},  {Qt::Key_Down, 40},    {Qt::Key_Insert, 45},
    {Qt::Key_Delete, 46},   {Qt::Key_Comma, 188}, {Qt::Key_Minus, 189},  {Qt::Key_Period, 190},
    {Qt::Key_Slash, 191}};

} // namespace

int CodeOf(const QKeyEvent& event) {
    const int key = event.key();
    if (key >= Qt::Key_F1 && key <= Qt::Key_F24) {
        constexpr int kF1 = 112;
        return kF1 + key - Qt::Key_F1;
    }
    if ((key >= Qt::Key_0 && key <= Qt::Key_9) || (key >= Qt::Key_A && key <= Qt::Key_Z)) {
        return key;
    }
    for (const Pair& pair : kPairs) {
        if (pair.QtKey == key) {
            return pair.Code;
        }
    }
    constexpr int kOther = 192;
    return kOther;
}

int ShiftOf(const QKeyEvent& event) {
    const Qt::KeyboardModifiers held = event.modifiers();
    return (held.testFlag(Qt::ShiftModifier) ? 1 : 0) + (held.testFlag(Qt::ControlModifier) ? 2 : 0) +
           (held.testFlag(Qt::AltModifier) ? 4 : 0);
}

} // namespace keycodes
