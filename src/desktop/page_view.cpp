#include "desktop/page_view.h"

#include "core/ansi.h"
#include "core/program.h"
#include "desktop/convert.h"
#include "desktop/field_views.h"
#include "desktop/paper_text.h"
#include "document/page_geometry.h"
#include "output/print_page.h"

#include <QPaintEvent>
#include <QPainter>

namespace {

constexpr double kTwipsPerInch = 1440;
constexpr double kRuleWidth = 15;

template <typename View> void ShowAs(View& view, bool visible) {
    if (view.isHidden() == visible) {
        view.setVisible(visible);
    }
}

} // namespace

PageView::PageView(Program& program, PageId page, const QtTextMeasure& measure, QWidget* parent)
    : QWidget(parent), context_{program, measure, page, parent->logicalDpiX() / kTwipsPerInch, {}, {}, {}},
      program_(program), id_(page) {
    setObjectName(QString::fromLatin1(geometry::PageName(page).data(),
                                      static_cast<qsizetype>(geometry::PageName(page).size())));
    setAccessibleName(QString::fromLatin1(geometry::PageCaption(page).data(),
                                          static_cast<qsizetype>(geometry::PageCaption(page).size())));
    // Paper stays paper, whatever the desktop's colours are.
    QPalette paper;
    paper.setColor(QPalette::Window, Qt::white);
    paper.setColor(QPalette::WindowText, Qt::black);
    setPalette(paper);
    setAttribute(Qt::WA_OpaquePaintEvent);
    const Page& record = program.pages[page];
    setFixedSize(qRound(static_cast<double>(record.Width) * context_.Scale),
                 qRound(static_cast<double>(record.Height) * context_.Scale));
    hide();
}

PageView::~PageView() = default;

TextAreaView* PageView::Field(const FieldRef& field) const {
    const auto& views = field.Kind == FieldKind::txtQty   ? txtQty_
                        : field.Kind == FieldKind::txtAmt ? txtAmt_
                                                          : txt_;
    const auto at = static_cast<std::size_t>(field.Index);
    return at < views.size() ? views[at] : nullptr;
}

void PageView::FollowAreas(FieldKind kind, std::vector<TextAreaView*>& views,
                           const std::vector<TextArea>& records) {
    views.resize(records.size(), nullptr);
    for (std::size_t index = 0; index < records.size(); ++index) {
        const bool visible = records[index].Visible && !ink_;
        TextAreaView*& view = views[index];
        if (view == nullptr) {
            if (!visible) {
                continue;
            }
            view = new TextAreaView(context_, *this, {id_, kind, static_cast<int>(index)});
        }
        view->Follow(records[index]);
        ShowAs(*view, visible);
    }
}

void PageView::FollowLabels(FieldKind kind, std::vector<LabelView*>& views,
                            const std::vector<PageLabel>& records) {
    views.resize(records.size(), nullptr);
    for (std::size_t index = 0; index < records.size(); ++index) {
        const bool visible = records[index].Visible && !ink_;
        LabelView*& view = views[index];
        if (view == nullptr) {
            if (!visible) {
                continue;
            }
            view = new LabelView(context_, *this, kind, static_cast<int>(index));
            view->lower();
        }
        view->Follow(records[index]);
        ShowAs(*view, visible);
    }
}

void PageView::FollowMarks() {
    const auto& records = program_.pages[id_].imgNoTax;
    marks_.resize(records.size(), nullptr);
    for (std::size_t index = 0; index < records.size(); ++index) {
        const bool visible = records[index].Visible && !ink_;
        MarkView*& view = marks_[index];
        if (view == nullptr) {
            if (!visible) {
                continue;
            }
            view = new MarkView(context_, *this, static_cast<int>(index));
        }
        view->Follow(records[index]);
        ShowAs(*view, visible);
    }
}

void PageView::FollowPaper() {
    const Page& record = program_.pages[id_];
    if (record.lne != lines_) {
        lines_ = record.lne;
        update();
    }
    if (!(record.pic == picture_)) {
        if (record.pic.Picture.Path != picture_.Picture.Path) {
            logo_ = QImage(QString::fromStdString(ansi::ToUtf8(record.pic.Picture.Path)));
        }
        picture_ = record.pic;
        update();
    }
}

void PageView::Follow() {
    const Page& record = program_.pages[id_];
    if (record.InkShown != ink_) {
        ink_ = record.InkShown;
        preview_ = {};
        if (ink_) {
            PaperSurface surface(context_.measure);
            modPrint::DrawPage(program_, surface, id_);
            preview_ = std::move(surface.Record);
        }
        update();
    }
    FollowPaper();
    FollowLabels(FieldKind::lbl, lbl_, record.lbl);
    FollowAreas(FieldKind::txt, txt_, record.txt);
    FollowAreas(FieldKind::txtQty, txtQty_, record.txtQty);
    FollowAreas(FieldKind::txtAmt, txtAmt_, record.txtAmt);
    FollowLabels(FieldKind::lblAt, lblAt_, record.lblAt);
    FollowLabels(FieldKind::lblEach, lblEach_, record.lblEach);
    FollowMarks();
}

void PageView::FollowFocus() {
    if (!program_.main.Focus || program_.main.Focus->Page != id_) {
        return;
    }
    TextAreaView* field = Field(*program_.main.Focus);
    if (field != nullptr && !field->hasFocus() && !field->isHidden()) {
        field->setFocus(Qt::OtherFocusReason);
        // Line edits mark their text when the keyboard comes to them; the record knows better.
        const Page& record = program_.pages[id_];
        const auto& areas = field->Field().Kind == FieldKind::txtQty   ? record.txtQty
                            : field->Field().Kind == FieldKind::txtAmt ? record.txtAmt
                                                                       : record.txt;
        field->Follow(areas[static_cast<std::size_t>(field->Field().Index)]);
    }
}

void PageView::DrawFixed(QPainter& painter) const {
    painter.setPen(QPen(Qt::black, kRuleWidth));
    for (const PageLine& line : lines_) {
        if (line.Visible) {
            painter.drawLine(QPointF(static_cast<double>(line.X1), static_cast<double>(line.Y1)),
                             QPointF(static_cast<double>(line.X2), static_cast<double>(line.Y2)));
        }
    }
    if (picture_.Visible && !logo_.isNull()) {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(QRectF(static_cast<double>(picture_.Left), static_cast<double>(picture_.Top),
                                 static_cast<double>(picture_.Size.Width),
                                 static_cast<double>(picture_.Size.Height)),
                          logo_);
    }
}

void PageView::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.fillRect(event->rect(), Qt::white);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(context_.Scale, context_.Scale);
    if (ink_) {
        preview_.Replay(painter);
    } else {
        DrawFixed(painter);
    }
}
