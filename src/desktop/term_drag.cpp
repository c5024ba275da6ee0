#include "desktop/term_drag.h"

#include "desktop/convert.h"
#include "program/program.h"

#include <QDrag>
#include <QMimeData>
#include <QPainter>
#include <QWidget>

namespace termdrag {

namespace {

QString Kind() {
    return QStringLiteral("application/x-quillbrook-term");
}

QPixmap PictureOf(const QString& term, const QWidget& from) {
    constexpr int kMost = 320;
    constexpr int kAround = 5;
    const QFontMetrics metrics = from.fontMetrics();
    const QString shown = metrics.elidedText(term, Qt::ElideRight, kMost);
    const QSize size(metrics.horizontalAdvance(shown) + 2 * kAround, metrics.height() + kAround);
    QPixmap picture(size * from.devicePixelRatioF());
    picture.setDevicePixelRatio(from.devicePixelRatioF());
    picture.fill(QColor(0xFF, 0xFB, 0xE0));
    QPainter painter(&picture);
    painter.setPen(QColor(0x0B, 0x3D, 0x6E));
    painter.drawRect(QRect(QPoint(0, 0), size - QSize(1, 1)));
    painter.setFont(from.font());
    painter.drawText(QRect(QPoint(0, 0), size), Qt::AlignCenter, shown);
    return picture;
}

} // namespace

bool Is(const QMimeData* data) {
    return data != nullptr && data->hasFormat(Kind());
}

Ended Run(Program& program, QWidget* from) {
    if (program.terms.DraggedTerm.empty()) {
        return Ended::Refused;
    }
    auto* data = new QMimeData;
    data->setData(Kind(), QByteArray("1"));
    QDrag drag(from);
    drag.setMimeData(data);
    const QPixmap picture = PictureOf(convert::ToQString(program.terms.DraggedTerm), *from);
    drag.setPixmap(picture);
    drag.setHotSpot(QPoint(-12, picture.height() / 2)); // the picture does not cover where it will go
    const Qt::DropAction action = drag.exec(Qt::CopyAction);
    program.terms.DraggedTerm.clear();
    return action == Qt::CopyAction ? Ended::LetGo : Ended::Refused;
}

} // namespace termdrag
