#include "desktop/band_view.h"

#include <QPainter>

namespace {

const QColor kEdge(0x0B, 0x3D, 0x6E);
const QColor kWash(0x1B, 0x6F, 0xA8, 46);

} // namespace

BandView::BandView(QWidget& paper) : QWidget(&paper) {
    setObjectName(QStringLiteral("shpSelect"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    hide();
}

void BandView::Follow(const PageShape& record, double scale) {
    if (record == shown_) {
        return;
    }
    shown_ = record;
    if (record.Visible) {
        const QRectF place(static_cast<double>(record.Left) * scale, static_cast<double>(record.Top) * scale,
                           static_cast<double>(record.Width) * scale,
                           static_cast<double>(record.Height) * scale);
        // A band without breadth is still a line.
        QRect whole = place.toAlignedRect();
        whole.setWidth(qMax(1, whole.width()));
        whole.setHeight(qMax(1, whole.height()));
        setGeometry(whole);
        raise();
    }
    setVisible(record.Visible);
}

void BandView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(kEdge);
    painter.setBrush(kWash);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}
