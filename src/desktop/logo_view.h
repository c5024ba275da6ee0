#pragma once

#include "program/page_records.h"

#include <QImage>
#include <QWidget>

struct PageContext;

/// The logo in its natural size. Clicks go to the paper under it.
class LogoView : public QWidget {
    Q_OBJECT
public:
    LogoView(PageContext& page, QWidget& paper);
    void Follow(const PagePicture& record);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    PageContext& page_;
    PagePicture shown_;
    QImage picture_;
};
