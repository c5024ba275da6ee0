#include "desktop/logo_view.h"

#include "desktop/convert.h"
#include "desktop/page_context.h"
#include "desktop/paper_surface.h"
#include "program/program.h"
#include "shell/input.h"

#include <QMouseEvent>
#include <QPainter>

LogoView::LogoView(PageContext& page, QWidget& paper) : QWidget(&paper), page_(page) {
    setObjectName(QStringLiteral("pic"));
    setAccessibleName(tr("Logo"));
    setCursor(Qt::ArrowCursor);
}

void LogoView::Follow(const PagePicture& record) {
    if (record == shown_) {
        return;
    }
    shown_ = record;
    setToolTip(convert::ToQString(record.ToolTipText));
    setGeometry(page_.OnScreen(static_cast<double>(record.Left), static_cast<double>(record.Top),
                               static_cast<double>(record.Size.Width),
                               static_cast<double>(record.Size.Height)));
    update();
}

QPointF LogoView::OnPaper(const QMouseEvent& event) const {
    return (event.position() + QPointF(geometry().topLeft())) / page_.Scale;
}

void LogoView::Done() {
    if (page_.AfterEvent) {
        page_.AfterEvent();
    }
}

void LogoView::mousePressEvent(QMouseEvent* event) {
    event->accept();
    const QPointF at = OnPaper(*event);
    const bool right = event->button() == Qt::RightButton;
    modInput::LogoMouseDown(page_.program, right ? 2 : 1, static_cast<float>(at.x()) - shown_.Left,
                            static_cast<float>(at.y()) - shown_.Top);
    Done();
    if (right && page_.AskForLogoMenu) {
        page_.AskForLogoMenu(event->globalPosition().toPoint());
    }
}

void LogoView::mouseMoveEvent(QMouseEvent* event) {
    event->accept();
    constexpr int kMostSteps = 4096;
    const QPointF at = OnPaper(*event);
    const PagePicture& record = page_.program.pages[PageId::frmP1].pic;
    for (int step = 0; step < kMostSteps; ++step) {
        if (!modInput::LogoMouseMove(page_.program, static_cast<float>(at.x()) - record.Left,
                                     static_cast<float>(at.y()) - record.Top)) {
            break;
        }
    }
    Follow(record);
}

void LogoView::mouseReleaseEvent(QMouseEvent* event) {
    event->accept();
    modInput::LogoMouseUp(page_.program);
    Done();
}

void LogoView::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        mousePressEvent(event);
        return;
    }
    event->accept();
    modInput::LogoDblClick(page_.program);
    Done();
}

void LogoView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.translate(static_cast<double>(shown_.Left) * page_.Scale - geometry().x(),
                      static_cast<double>(shown_.Top) * page_.Scale - geometry().y());
    painter.scale(page_.Scale, page_.Scale);
    const QRectF place(0, 0, static_cast<double>(shown_.Size.Width), static_cast<double>(shown_.Size.Height));
    paper::DrawLogo(painter, shown_.Picture.Path, place);
    if (shown_.BorderStyle != 0) {
        constexpr double kHalf = paper::kRuleWidth / 2;
        painter.setPen(QPen(Qt::black, paper::kRuleWidth));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(place.adjusted(kHalf, kHalf, -kHalf, -kHalf));
    }
}
