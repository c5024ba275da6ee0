#include "desktop/frame_view.h"

#include <QPainter>

FrameView::FrameView(QWidget& paper) : QWidget(&paper) {
    setObjectName(QStringLiteral("LabelFrame"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    hide();
}

void FrameView::Follow(const QRect& place) {
    constexpr int kAround = 4;
    constexpr int kLeast = 14;
    if (!place.isValid()) {
        hide();
        return;
    }
    QRect frame = place.adjusted(-kAround, -kAround, kAround, kAround);
    frame.setWidth(qMax(frame.width(), kLeast)); // an empty label has no width of its own
    frame.setHeight(qMax(frame.height(), kLeast));
    if (frame != geometry()) {
        setGeometry(frame);
    }
    raise();
    show();
}

void FrameView::paintEvent(QPaintEvent*) {
    // Dark on light and light on dark: it is seen on any logo.
    QPainter painter(this);
    const QRect edge = rect().adjusted(1, 1, -2, -2);
    painter.setPen(QPen(Qt::white, 2));
    painter.drawRect(edge);
    painter.setPen(QPen(QColor(0x0B, 0x3D, 0x6E), 2, Qt::DashLine));
    painter.drawRect(edge);
}
