#include "desktop/activity_watch.h"

#include <QCoreApplication>
#include <QEvent>

#include <utility>

ActivityWatch::ActivityWatch(QObject* parent, std::function<void()> seen)
    : QObject(parent), seen_(std::move(seen)) {
    QCoreApplication::instance()->installEventFilter(this);
}

bool ActivityWatch::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::MouseButtonPress:
    case QEvent::MouseMove:
    case QEvent::Wheel:
        if (watched->isWidgetType()) {
            seen_();
        }
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}
