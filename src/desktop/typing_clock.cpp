#include "desktop/typing_clock.h"

#include <QApplication>
#include <QKeyEvent>

namespace {

/// Whoever looks for each letter needs no longer from one to the next.
constexpr qint64 kLongestGap = 2000;

} // namespace

TypingClock::TypingClock() {
    QApplication::instance()->installEventFilter(this);
}

TypingClock::~TypingClock() {
    if (QApplication::instance() != nullptr) {
        QApplication::instance()->removeEventFilter(this);
    }
}

bool TypingClock::StillTyping() const {
    return since_.isValid() && since_.elapsed() < kLongestGap;
}

bool TypingClock::IsTyping(const QKeyEvent& key) {
    const Qt::KeyboardModifiers held = key.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
    return held == Qt::NoModifier && !key.text().isEmpty() && key.text().front().isLetterOrNumber();
}

bool TypingClock::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress && IsTyping(static_cast<QKeyEvent&>(*event))) {
        since_.start();
    }
    return QObject::eventFilter(watched, event);
}
