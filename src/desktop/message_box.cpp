#include "desktop/message_box.h"

#include <QEvent>
#include <QKeyEvent>
#include <QWidget>

MessageBox::MessageBox(Icon icon, const QString& title, const QString& text, StandardButtons buttons,
                       QWidget* below, Came came)
    : QMessageBox(icon, title, text, buttons, below), came_(came) {
    setObjectName(QStringLiteral("MsgBox"));
    setTextFormat(Qt::PlainText);
}

bool MessageBox::Deaf() const {
    constexpr qint64 kMilliseconds = 500;
    return came_ == Came::Unasked && (!shown_.isValid() || shown_.elapsed() < kMilliseconds);
}

void MessageBox::showEvent(QShowEvent* event) {
    QMessageBox::showEvent(event);
    shown_.start();
    if (came_ == Came::Unasked) {
        installEventFilter(this);
        for (QWidget* child : findChildren<QWidget*>()) {
            child->installEventFilter(this);
        }
    }
}

bool MessageBox::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
        if (Deaf()) {
            return true; // it was meant for what the box came over
        }
        break;
    default:
        break;
    }
    return QMessageBox::eventFilter(watched, event);
}

void MessageBox::keyPressEvent(QKeyEvent* event) {
    const bool plain = (event->modifiers() & (Qt::AltModifier | Qt::ControlModifier | Qt::MetaModifier)) == 0;
    if (plain && !event->text().isEmpty() && event->text().at(0).isPrint()) {
        event->accept(); // a letter is no answer
        return;
    }
    QMessageBox::keyPressEvent(event);
}
