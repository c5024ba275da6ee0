#include "desktop/elided_label.h"

#include <QHelpEvent>
#include <QPainter>
#include <QRegularExpression>
#include <QStyle>
#include <QToolTip>

namespace {

constexpr QChar kEllipsis(0x2026);

} // namespace

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
}

QString ElidedLabel::Fitting(const QString& text, const QFontMetrics& metrics, int width) {
    static const QRegularExpression kPathBegins(QStringLiteral("(^|[\\s(\"])/(?=[^/\\s])"));
    const QRegularExpressionMatch begin = kPathBegins.match(text);
    if (begin.hasMatch()) {
        const qsizetype first = begin.capturedEnd();
        // A folder's name stands in front of the separator that ends it.
        const qsizetype last = text.lastIndexOf(u'/', -2);
        const QString words = text.left(first);
        const QString name = text.mid(last);
        const int room = width - metrics.horizontalAdvance(words + name);
        if (last > first && room >= metrics.horizontalAdvance(kEllipsis)) {
            return words + metrics.elidedText(text.mid(first, last - first), Qt::ElideMiddle, room) + name;
        }
        if (last >= first) {
            return metrics.elidedText(words + kEllipsis + name, Qt::ElideMiddle, width);
        }
    }
    return metrics.elidedText(text, Qt::ElideRight, width);
}

bool ElidedLabel::Cut() const {
    return fontMetrics().horizontalAdvance(text()) > contentsRect().width();
}

bool ElidedLabel::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip && toolTip().isEmpty() && Cut()) {
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), text(), this);
        return true;
    }
    return QLabel::event(event);
}

void ElidedLabel::paintEvent(QPaintEvent* event) {
    if (!Cut()) {
        QLabel::paintEvent(event);
        return;
    }
    QPainter painter(this);
    const QString shown = Fitting(text(), fontMetrics(), contentsRect().width());
    style()->drawItemText(&painter, contentsRect(), static_cast<int>(alignment()), palette(), isEnabled(),
                          shown, foregroundRole());
}
