#pragma once

#include "program/page_records.h"

#include <QWidget>

/// The rubber band of a page, above everything that stands on it. It takes no mouse of its own.
class BandView : public QWidget {
    Q_OBJECT
public:
    explicit BandView(QWidget& paper);
    void Follow(const PageShape& record, double scale);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    PageShape shown_;
};
