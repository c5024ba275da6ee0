#include "desktop/label_view.h"

#include "desktop/convert.h"
#include "desktop/page_context.h"
#include "desktop/paper_text.h"

#include <QPainter>

LabelView::LabelView(PageContext& page, QWidget& paper, FieldKind kind, int index)
    : QLabel(&paper), page_(page) {
    const char* array = kind == FieldKind::lblAt ? "lblAt" : kind == FieldKind::lblEach ? "lblEach" : "lbl";
    setObjectName(QStringLiteral("%1(%2)").arg(QLatin1String(array)).arg(index));
    setTextFormat(Qt::PlainText);
}

void LabelView::Follow(const PageLabel& record) {
    if (built_ && record == shown_) {
        return;
    }
    shown_ = record;
    built_ = true;
    setText(convert::ToQString(record.Caption));
    setToolTip(convert::ToQString(record.ToolTipText));
    const TextFont font{record.FontName, record.FontSize, record.FontBold, record.FontItalic};
    setGeometry(page_.OnScreen(static_cast<double>(record.Left), static_cast<double>(record.Top),
                               static_cast<double>(page_.measure.Width(record.Caption, font)) + 30,
                               static_cast<double>(page_.measure.Height(font))));
    update();
}

void LabelView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (shown_.BackStyle == 1) {
        painter.fillRect(rect(), convert::ToQColor(shown_.BackColor));
    }
    painter.setRenderHint(QPainter::TextAntialiasing);
    painter.translate(static_cast<double>(shown_.Left) * page_.Scale - geometry().x(),
                      static_cast<double>(shown_.Top) * page_.Scale - geometry().y());
    painter.scale(page_.Scale, page_.Scale);
    painter.setPen(convert::ToQColor(shown_.ForeColor));
    paper::Draw(painter, {0, 0}, shown_.Caption,
                {shown_.FontName, shown_.FontSize, shown_.FontBold, shown_.FontItalic}, shown_.FontUnderline);
}
