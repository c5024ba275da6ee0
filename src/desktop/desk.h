#pragma once

#include <QRect>
#include <QWidget>

#include <functional>

/// The page area: a calm desk on which the page in front lies, centred, with the scroll bar at its right.
class Desk : public QWidget {
    Q_OBJECT
public:
    explicit Desk(QWidget* parent);

    /// Where the paper lies; its shadow falls on the desk.
    QRect Paper;
    /// Runs when the area's size has changed.
    std::function<void()> Resized;
    /// Runs when a wheel turns over the desk or a page.
    std::function<void(QWheelEvent*)> Wheel;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
};
