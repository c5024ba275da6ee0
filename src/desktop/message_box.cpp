#include "desktop/message_box.h"

#include "desktop/mnemonics.h"
#include "desktop/typing_clock.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QScreen>

namespace {

constexpr qint64 kHalfSecond = 500;
constexpr qint64 kTypingPause = 1500;
/// What icon, margins and frame take beside the text.
constexpr int kBeside = 140;

} // namespace

MessageBox::MessageBox(Icon icon, const QString& title, const QString& text, StandardButtons buttons,
                       QWidget* over, Came came)
    : QMessageBox(icon, title, text, buttons, over), came_(came) {
    setObjectName(QStringLiteral("MsgBox"));
    setTextFormat(Qt::PlainText);
    if (came_ != Came::OnRequest) {
        QApplication::instance()->installEventFilter(this);
    }
}

MessageBox::~MessageBox() {
    QApplication::instance()->removeEventFilter(this);
}

void MessageBox::KeepLines() {
    auto* label = findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
    const QScreen* place = screen();
    if (label == nullptr || place == nullptr) {
        return;
    }
    int widest = 0;
    for (const QString& line : text().split(u'\n')) {
        widest = qMax(widest, label->fontMetrics().horizontalAdvance(line));
    }
    label->setMinimumWidth(qMin(widest + 2, place->availableGeometry().width() - kBeside));
}

void MessageBox::showEvent(QShowEvent* event) {
    KeepLines();
    mnemonics::Give(*this);
    quiet_.start();
    QMessageBox::showEvent(event);
}

bool MessageBox::eventFilter(QObject* watched, QEvent* event) {
    const bool key = event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease ||
                     event->type() == QEvent::ShortcutOverride;
    if (key && quiet_.isValid()) {
        if (quiet_.elapsed() < Pause()) {
            quiet_.start(); // the person goes on typing what the box has come into
            if (event->type() == QEvent::KeyPress && TypingClock::IsTyping(static_cast<QKeyEvent&>(*event))) {
                came_ = Came::AmidTyping;
            }
            return true;
        }
        quiet_.invalidate(); // from here on the keys are meant for the box
    }
    return QMessageBox::eventFilter(watched, event);
}

qint64 MessageBox::Pause() const {
    return came_ == Came::AmidTyping ? kTypingPause : kHalfSecond;
}

void MessageBox::keyPressEvent(QKeyEvent* event) {
    if (TypingClock::IsTyping(*event)) {
        event->accept(); // a word typed on is no answer
        return;
    }
    QMessageBox::keyPressEvent(event);
}
