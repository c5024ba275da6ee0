#include "desktop/keyboard_way.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QVariant>
#include <QWidget>

namespace keyboard {

namespace {

constexpr char kAwaitedUntil[] = "keyboardAwaitedUntil";
/// Later it has gone where the person wanted it, which may be another program.
constexpr qint64 kLongest = 1000;

} // namespace

void SendTo(QWidget& window) {
    window.activateWindow();
    window.setProperty(kAwaitedUntil, QDeadlineTimer(kLongest).deadline());
}

bool IsOnItsWayTo(const QWidget& window, const QWidget& next) {
    const QVariant until = window.property(kAwaitedUntil);
    const QWidget* active = QApplication::activeWindow();
    return until.isValid() && QDeadlineTimer::current().deadline() < until.toLongLong() &&
           (active == nullptr || active == &next);
}

} // namespace keyboard
