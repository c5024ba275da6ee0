#include "desktop/label_view.h"

#include "desktop/convert.h"
#include "desktop/page_context.h"
#include "desktop/paper_text.h"
#include "program/program.h"
#include "shell/input.h"

#include <QMouseEvent>
#include <QPainter>

LabelView::LabelView(PageContext& page, QWidget& paper, FieldKind kind, int index)
    : QLabel(&paper), index_(index), designed_(kind == FieldKind::lbl && page.Id != PageId::frmP6_1),
      page_(page) {
    const char* array = kind == FieldKind::lblAt ? "lblAt" : kind == FieldKind::lblEach ? "lblEach" : "lbl";
    setObjectName(QStringLiteral("%1(%2)").arg(QLatin1String(array)).arg(index));
    setTextFormat(Qt::PlainText);
    setCursor(Qt::ArrowCursor);
}

QPointF LabelView::OnPaper(const QMouseEvent& event) const {
    return (event.position() + QPointF(geometry().topLeft())) / page_.Scale;
}

void LabelView::Done() {
    if (page_.AfterEvent) {
        page_.AfterEvent();
    }
}

void LabelView::mousePressEvent(QMouseEvent* event) {
    if (!designed_) {
        QLabel::mousePressEvent(event);
        return;
    }
    event->accept();
    const QPointF at = OnPaper(*event);
    const bool right = event->button() == Qt::RightButton;
    modInput::LabelMouseDown(page_.program, page_.Id, index_, right ? 2 : 1,
                             static_cast<float>(at.x()) - shown_.Left,
                             static_cast<float>(at.y()) - shown_.Top);
    Done();
    if (right && page_.AskForLabelMenu) {
        page_.AskForLabelMenu(event->globalPosition().toPoint());
    }
}

void LabelView::mouseMoveEvent(QMouseEvent* event) {
    if (!designed_) {
        QLabel::mouseMoveEvent(event);
        return;
    }
    event->accept();
    // One event is one step of the label; it comes again until the label is under the pointer.
    constexpr int kMostSteps = 4096;
    const QPointF at = OnPaper(*event);
    const PageLabel& record = page_.program.pages[page_.Id].lbl[static_cast<std::size_t>(index_)];
    for (int step = 0; step < kMostSteps; ++step) {
        if (!modInput::LabelMouseMove(page_.program, page_.Id, index_,
                                      static_cast<float>(at.x()) - record.Left,
                                      static_cast<float>(at.y()) - record.Top)) {
            break;
        }
    }
    Follow(record); // the rest of the page has not changed
}

void LabelView::mouseReleaseEvent(QMouseEvent* event) {
    if (!designed_) {
        QLabel::mouseReleaseEvent(event);
        return;
    }
    event->accept();
    modInput::LabelMouseUp(page_.program, page_.Id, index_);
    Done();
}

void LabelView::mouseDoubleClickEvent(QMouseEvent* event) {
    if (!designed_ || event->button() != Qt::LeftButton) {
        mousePressEvent(event);
        return;
    }
    event->accept();
    modInput::LabelDblClick(page_.program, page_.Id, index_);
    Done();
}

void LabelView::Follow(const PageLabel& record) {
    if (built_ && record == shown_) {
        return;
    }
    saysOtherwise_ = saysOtherwise_ || !built_ || record.Caption != shown_.Caption;
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
