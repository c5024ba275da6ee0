#include "desktop/mark_view.h"

#include "desktop/convert.h"
#include "desktop/page_context.h"
#include "desktop/paper_surface.h"
#include "pages/spoken_names.h"
#include "shell/input.h"

#include <QPainter>

MarkView::MarkView(PageContext& page, QWidget& paper, int index) : QAbstractButton(&paper), page_(page) {
    setObjectName(QStringLiteral("imgNoTax(%1)").arg(index));
    setAccessibleName(
        tr("%1, tax exempt")
            .arg(convert::ToQString(modPages::SpokenName(page.program, {page.Id, FieldKind::txt, index}))));
    setToolTip(tr("This amount is tax exempt. Click to make it taxable."));
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::NoFocus);
    connect(this, &QAbstractButton::clicked, this, [this, index] {
        modInput::NoTaxMarkClick(page_.program, page_.Id, index);
        if (page_.AfterEvent) {
            page_.AfterEvent();
        }
    });
}

void MarkView::Follow(const PageImage& record) {
    if (!(record == shown_)) {
        shown_ = record;
        setGeometry(page_.OnScreen(static_cast<double>(record.Left), static_cast<double>(record.Top),
                                   static_cast<double>(record.Width), static_cast<double>(record.Height)));
    }
}

void MarkView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paper::DrawNoTaxMark(painter, {0, 0}, qMin(width(), height()));
}
