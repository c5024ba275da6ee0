#pragma once

#include <QWidget>

/// The frame round the label or logo that the keyboard is on in the label mode. It takes no mouse of its own.
class FrameView : public QWidget {
    Q_OBJECT
public:
    explicit FrameView(QWidget& paper);
    /// Round that place of the paper; an empty one hides it.
    void Follow(const QRect& place);

protected:
    void paintEvent(QPaintEvent* event) override;
};
