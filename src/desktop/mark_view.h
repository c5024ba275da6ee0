#pragma once

#include "program/page_records.h"

#include <QAbstractButton>

struct PageContext;

/// The mark of a tax-exempt amount; a click makes the amount taxable again.
class MarkView : public QAbstractButton {
    Q_OBJECT
public:
    MarkView(PageContext& page, QWidget& paper, int index);
    void Follow(const PageImage& record);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    PageContext& page_;
    PageImage shown_;
};
