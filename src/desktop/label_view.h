#pragma once

#include "program/page_records.h"

#include <QLabel>

struct PageContext;

/// A label, drawn in paper units.
class LabelView : public QLabel {
    Q_OBJECT
public:
    LabelView(PageContext& page, QWidget& paper, FieldKind kind, int index);
    void Follow(const PageLabel& record);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    PageContext& page_;
    PageLabel shown_;
    bool built_ = false;
};
