#include "desktop/logo_view.h"

#include "desktop/page_context.h"
#include "desktop/paper_surface.h"

#include <QPainter>

LogoView::LogoView(PageContext& page, QWidget& paper) : QWidget(&paper), page_(page) {
    setObjectName(QStringLiteral("pic"));
    setAccessibleName(tr("Logo"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void LogoView::Follow(const PagePicture& record) {
    if (record == shown_) {
        return;
    }
    if (record.Picture != shown_.Picture) {
        picture_ = paper::LogoPicture(record.Picture.Path);
    }
    shown_ = record;
    setGeometry(page_.OnScreen(static_cast<double>(record.Left), static_cast<double>(record.Top),
                               static_cast<double>(record.Size.Width),
                               static_cast<double>(record.Size.Height)));
    update();
}

void LogoView::paintEvent(QPaintEvent*) {
    if (picture_.isNull()) {
        return;
    }
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.translate(static_cast<double>(shown_.Left) * page_.Scale - geometry().x(),
                      static_cast<double>(shown_.Top) * page_.Scale - geometry().y());
    painter.scale(page_.Scale, page_.Scale);
    painter.drawImage(
        QRectF(0, 0, static_cast<double>(shown_.Size.Width), static_cast<double>(shown_.Size.Height)),
        picture_);
}
