#pragma once

#include "program/page_records.h"

#include <QLabel>

struct PageContext;

/// A label, drawn in paper units. The captions of a page can be dragged, selected and edited; those of the
/// rows and of the client's copy let the mouse through.
class LabelView : public QLabel {
    Q_OBJECT
public:
    LabelView(PageContext& page, QWidget& paper, FieldKind kind, int index);
    /// Returns whether the label says something else now.
    enum class Caption { Same, Changed };
    [[nodiscard]] Caption Follow(const PageLabel& record);

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
};
