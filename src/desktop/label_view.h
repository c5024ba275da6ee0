#pragma once

#include "program/page_records.h"

#include <QLabel>

#include <utility>

struct PageContext;

/// A label, drawn in paper units. The captions of a page can be dragged, selected and edited; those of the
/// rows and of the client's copy let the mouse through.
class LabelView : public QLabel {
    Q_OBJECT
public:
    LabelView(PageContext& page, QWidget& paper, FieldKind kind, int index);
    void Follow(const PageLabel& record);
    /// Whether the label says something else since this was asked last.
    [[nodiscard]] bool SaysOtherwise() { return std::exchange(saysOtherwise_, false); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    /// The pointer on the paper, twips.
    [[nodiscard]] QPointF OnPaper(const QMouseEvent& event) const;
    void Done();
    int index_;
    bool designed_;
    PageContext& page_;
    PageLabel shown_;
    bool built_ = false;
    bool saysOtherwise_ = false;
};
