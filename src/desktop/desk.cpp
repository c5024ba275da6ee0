#include "desktop/desk.h"

#include <QPaintEvent>
#include <QPainter>
#include <QResizeEvent>
#include <QWheelEvent>

namespace {

constexpr QRgb kDeskLight = 0xFFB9C2C9;
constexpr QRgb kDeskDark = 0xFF33393F;

} // namespace

Desk::Desk(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("desk"));
    setFocusPolicy(Qt::NoFocus); // a click beside the fields leaves the keyboard where it is
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void Desk::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    const bool dark = palette().color(QPalette::Window).lightnessF() < 0.5F;
    painter.fillRect(event->rect(), QColor(dark ? kDeskDark : kDeskLight));
    constexpr int kShadow = 7;
    for (int depth = kShadow; depth > 0; --depth) {
        painter.fillRect(Paper.adjusted(-depth, -depth / 2, depth, depth), QColor(0, 0, 0, dark ? 22 : 9));
    }
}

void Desk::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    if (Resized) {
        Resized();
    }
}

void Desk::wheelEvent(QWheelEvent* event) {
    if (Wheel) {
        Wheel(event);
    }
}
