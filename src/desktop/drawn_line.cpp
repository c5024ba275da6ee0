#include "desktop/drawn_line.h"

#include "desktop/convert.h"
#include "desktop/page_context.h"
#include "desktop/paper_text.h"

#include <QGuiApplication>
#include <QHelpEvent>
#include <QPainter>
#include <QStyleHints>
#include <QToolTip>

DrawnLine::DrawnLine(const PageContext& page, QWidget& paper, LinePainter::Side side)
    : QLineEdit(&paper), context_(page), line_(page, side) {
    setAttribute(Qt::WA_OpaquePaintEvent);
}

bool DrawnLine::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip && TextWidth() > static_cast<double>(line_.Shown().Width)) {
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), WholeTextTip(), this);
        return true;
    }
    return QLineEdit::event(event);
}

int DrawnLine::Start() const {
    return hasSelectedText() ? selectionStart() : cursorPosition();
}
int DrawnLine::Length() const {
    return hasSelectedText() ? selectionLength() : 0;
}

Keyboard DrawnLine::KeyboardNow() const {
    return hasFocus() ? Keyboard::Here : Keyboard::Away;
}

double DrawnLine::TextWidth() const {
    return line_.TextWidth();
}

double DrawnLine::TextLeft() const {
    return static_cast<double>(line_.Shown().Left) + line_.Origin(KeyboardNow());
}

void DrawnLine::KeepCaretInView() {
    line_.KeepInView(cursorPosition(), KeyboardNow());
}

QPointF DrawnLine::Corner() const {
    const TextArea& area = line_.Shown();
    return {static_cast<double>(area.Left) * context_.Scale - geometry().x(),
            static_cast<double>(area.Top) * context_.Scale - geometry().y()};
}

int DrawnLine::PositionAt(double x) const {
    return line_.PositionAt((x - Corner().x()) / context_.Scale, KeyboardNow());
}

void DrawnLine::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), convert::ToQColor(line_.Shown().BackColor));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::TextAntialiasing);
    LinePainter::Marks marks;
    marks.Composed = composed_;
    marks.Cursor = cursorPosition();
    if (hasFocus() || !isActiveWindow()) {
        marks.Start = Start();
        marks.Length = Length();
    }
    if (hasFocus() && caretOn_ && !isReadOnly()) {
        marks.Caret = cursorPosition();
    }
    marks.DropAt = DropAt();
    painter.save();
    painter.translate(Corner());
    painter.scale(context_.Scale, context_.Scale);
    line_.Paint(painter, marks, KeyboardNow());
    painter.restore();
    if (hasFocus() || sign_ == DragSign::Takes) {
        line_.PaintRing(painter, QRectF(rect()));
    }
    if (sign_ == DragSign::Refuses) {
        LinePainter::PaintRefusal(painter, QRectF(rect()));
    }
}

QVariant DrawnLine::inputMethodQuery(Qt::InputMethodQuery query) const {
    switch (query) {
    case Qt::ImCursorRectangle:
    case Qt::ImAnchorRectangle:
        return CaretBox(cursorPosition());
    case Qt::ImFont: {
        QFont face = paper::Face(line_.Font());
        face.setPixelSize(qMax(1, qRound(face.pixelSize() * context_.Scale)));
        return face;
    }
    default:
        return QLineEdit::inputMethodQuery(query);
    }
}

QRectF DrawnLine::CaretBox(int position) const {
    const QRectF caret = line_.CaretAt(position, KeyboardNow());
    return {Corner() + caret.topLeft() * context_.Scale, caret.size() * context_.Scale};
}

QString DrawnLine::WholeTextTip() const {
    QString tip = QStringLiteral("<p>") + text().toHtmlEscaped() + QStringLiteral("</p>"); // in several lines
    if (!toolTip().isEmpty()) {
        tip += QStringLiteral("<p>") + toolTip().toHtmlEscaped() + QStringLiteral("</p>");
    }
    return tip;
}

void DrawnLine::ShowSign(DragSign sign) {
    if (sign_ != sign) {
        sign_ = sign;
        update();
    }
}

void DrawnLine::HideCaret() {
    blink_.stop();
    caretOn_ = false;
}

void DrawnLine::RestartCaret() {
    caretOn_ = true;
    const int flash = QGuiApplication::styleHints()->cursorFlashTime();
    if (flash > 0) {
        blink_.start(flash / 2, this);
    }
    update();
}

void DrawnLine::timerEvent(QTimerEvent* event) {
    if (event->timerId() == blink_.timerId()) {
        caretOn_ = !caretOn_;
        update();
        return;
    }
    QLineEdit::timerEvent(event);
}
