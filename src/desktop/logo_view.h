#pragma once

#include "program/page_records.h"

#include <QImage>
#include <QWidget>

struct PageContext;

/// The logo, which can be dragged.
class LogoView : public QWidget {
    Q_OBJECT
public:
    LogoView(PageContext& page, QWidget& paper);
    void Follow(const PagePicture& record);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    [[nodiscard]] QPointF OnPaper(const QMouseEvent& event) const;
    void Done();
    PageContext& page_;
    PagePicture shown_;
};
