#include "desktop/message_box.h"

#include "desktop/mnemonics.h"
#include "desktop/typing_clock.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLayout>
#include <QScreen>

namespace {

constexpr qint64 kHalfSecond = 500;
constexpr qint64 kTypingPause = 1500;
/// What icon, margins and frame take beside the text.
constexpr int kBeside = 140;

int WidestLine(const QLabel& label) {
    int widest = 0;
    for (const QString& line : label.text().split(u'\n')) {
        widest = qMax(widest, label.fontMetrics().horizontalAdvance(line));
    }
    return widest;
}

/// A path may be longer than a line: it gets places where it may break, behind its separators, or anywhere
/// where that is not enough.
void BreakWords(QLabel& label, int room) {
    constexpr QChar kMayBreak(0x200B);
    const QFontMetrics metrics = label.fontMetrics();
    QString shown;
    QString word;
    QString piece;
    const auto endWord = [&] {
        if (metrics.horizontalAdvance(word) <= room) {
            shown += word;
        } else {
            for (const QChar character : word) {
                piece += character;
                const bool separator = QStringLiteral("/\\-_.,").contains(character);
                if (separator || metrics.horizontalAdvance(piece) > room / 2) {
                    shown += piece + kMayBreak;
                    piece.clear();
                }
            }
            shown += piece;
            piece.clear();
        }
        word.clear();
    };
    for (const QChar character : label.text()) {
        if (character == u' ' || character == u'\n' || character == kMayBreak) {
            endWord();
            shown += character;
        } else {
            word += character;
        }
    }
    endWord();
    if (shown != label.text()) {
        label.setText(shown);
    }
}

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

void MessageBox::KeepLines(const QSize& room) {
    auto* label = findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
    if (label == nullptr) {
        return;
    }
    const int most = room.width() - kBeside;
    int widest = WidestLine(*label);
    if (auto* more = findChild<QLabel*>(QStringLiteral("qt_msgbox_informativelabel"))) {
        widest = qMax(widest, WidestLine(*more));
        BreakWords(*more, most);
    }
    BreakWords(*label, most);
    label->setMinimumWidth(qMin(widest + 2, most));
}

void MessageBox::FitInto(const QSize& room) {
    room_ = room;
    KeepLines(room);
    layout()->activate();
    Fit();
}

void MessageBox::Fit() {
    if (!room_.isValid() || layout() == nullptr) {
        return;
    }
    if (auto* label = findChild<QLabel*>(QStringLiteral("qt_msgbox_label"))) {
        label->setWordWrap(true); // its width is that of the widest line, as far as the room goes
    }
    const int width = qMin(layout()->totalMinimumSize().width(), room_.width());
    const int height = layout()->hasHeightForWidth() ? layout()->totalHeightForWidth(width)
                                                     : layout()->totalMinimumSize().height();
    setFixedSize(width, qMin(height, room_.height()));
}

bool MessageBox::event(QEvent* event) {
    const bool done = QMessageBox::event(event);
    if (event->type() == QEvent::LayoutRequest) {
        Fit(); // the base class has just sized it anew
    }
    return done;
}

void MessageBox::showEvent(QShowEvent* event) {
    constexpr QSize kFrame(16, 48); // about what a title bar and borders take
    const QScreen* place = screen();
    if (place != nullptr) {
        KeepLines(place->availableSize() - kFrame);
    }
    mnemonics::Give(*this);
    quiet_.start();
    QMessageBox::showEvent(event);
    if (place != nullptr) {
        const int before = width();
        FitInto(place->availableSize() - kFrame);
        const QRect screenRoom = place->availableGeometry();
        const int left = x() - (width() - before) / 2;
        move(qBound(screenRoom.left(), left,
                    qMax(screenRoom.left(), screenRoom.right() - width() - kFrame.width())),
             y());
    }
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
