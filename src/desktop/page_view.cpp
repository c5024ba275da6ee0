#include "desktop/page_view.h"

#include "desktop/band_view.h"
#include "desktop/convert.h"
#include "desktop/frame_view.h"
#include "desktop/key_codes.h"
#include "desktop/label_view.h"
#include "desktop/logo_view.h"
#include "desktop/mark_view.h"
#include "desktop/paper_surface.h"
#include "desktop/paper_text.h"
#include "desktop/text_area_view.h"
#include "output/print_page.h"
#include "pages/page_geometry.h"
#include "program/program.h"
#include "shell/input.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>

#include <cmath>
#include <utility>

namespace {

template <typename View> void ShowAs(View& view, bool visible) {
    if (view.isHidden() == visible) {
        view.setVisible(visible);
    }
}

} // namespace

PageView::PageView(Program& program, PageId page, const QtTextMeasure& measure, QWidget* parent)
    : QWidget(parent), context_{program, measure,
                                page,    static_cast<double>(parent->logicalDpiX()) / paper::kTwipsPerInch,
                                {},      {},
                                {},      {},
                                {}},
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
    band_ = new BandView(*this);
    frame_ = new FrameView(*this);
    parent->installEventFilter(this);
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
        renamed_ = view->SaysOtherwise() || renamed_;
        ShowAs(*view, visible);
    }
}

void PageView::RenameFields() {
    for (const auto* views : {&txt_, &txtQty_, &txtAmt_}) {
        for (TextAreaView* view : *views) {
            if (view != nullptr) {
                view->Rename();
            }
        }
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
    if (record.lne != lines_ || record.CenterLines != centre_ || record.GridPoints != grid_) {
        lines_ = record.lne;
        centre_ = record.CenterLines;
        grid_ = record.GridPoints;
        update();
    }
}

void PageView::FollowLogo() {
    const Page& record = program_.pages[id_];
    const bool visible = record.HasLogo && record.pic.Visible && !ink_;
    if (logo_ == nullptr) {
        if (!visible) {
            return;
        }
        logo_ = new LogoView(context_, *this);
    }
    logo_->Follow(record.pic);
    ShowAs(*logo_, visible);
    logo_->raise(); // it lies over the labels, on the paper too
}

void PageView::Follow() {
    const Page& record = program_.pages[id_];
    if (record.InkShown != ink_ || (ink_ && record.InkVersion != inkVersion_)) {
        ink_ = record.InkShown;
        inkVersion_ = record.InkVersion;
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
    if (std::exchange(renamed_, false)) {
        RenameFields();
    }
    FollowMarks();
    FollowLogo();
    band_->Follow(record.shpSelect, context_.Scale);
    FollowFrame();
}

void PageView::FollowFrame() {
    const DesignerRecords& designer = program_.designer;
    if (!designer.LabelMode || !designer.Framed || program_.main.PageInFront != id_ || ink_) {
        frame_->Follow({});
        return;
    }
    const Page& record = program_.pages[id_];
    if (*designer.Framed == kLogoInFrame) {
        frame_->Follow(context_.OnScreen(
            static_cast<double>(record.pic.Left), static_cast<double>(record.pic.Top),
            static_cast<double>(record.pic.Size.Width), static_cast<double>(record.pic.Size.Height)));
        return;
    }
    const PageLabel& label = record.lbl[static_cast<std::size_t>(*designer.Framed)];
    const TextFont font{label.FontName, label.FontSize, label.FontBold, label.FontItalic};
    frame_->Follow(context_.OnScreen(static_cast<double>(label.Left), static_cast<double>(label.Top),
                                     static_cast<double>(context_.measure.Width(label.Caption, font)),
                                     static_cast<double>(context_.measure.Height(font))));
}

void PageView::keyPressEvent(QKeyEvent* event) {
    if (!program_.designer.LabelMode) {
        QWidget::keyPressEvent(event);
        return;
    }
    event->accept();
    const bool page = event->key() == Qt::Key_PageUp || event->key() == Qt::Key_PageDown;
    if (page) {
        event->ignore(); // the window scrolls
        return;
    }
    const modLabelKeys::Menu menu =
        modInput::LabelKeyDown(program_, keycodes::CodeOf(*event), keycodes::ShiftOf(*event));
    Done();
    const QPoint at = mapToGlobal(frame_->geometry().bottomLeft());
    if (menu == modLabelKeys::Menu::Label && context_.AskForLabelMenu) {
        context_.AskForLabelMenu(at);
    } else if (menu == modLabelKeys::Menu::Logo && context_.AskForLogoMenu) {
        context_.AskForLogoMenu(at);
    }
}

bool PageView::focusNextPrevChild(bool next) {
    return !program_.designer.LabelMode && QWidget::focusNextPrevChild(next);
}

float PageView::Twips(double pixels) const {
    return static_cast<float>(pixels / context_.Scale);
}

void PageView::Done() {
    if (context_.AfterEvent) {
        context_.AfterEvent();
    }
}

void PageView::FollowFocus() {
    if (program_.designer.LabelMode && program_.main.PageInFront == id_) {
        if (!hasFocus()) {
            setFocus(Qt::OtherFocusReason);
        }
        return;
    }
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

void PageView::DrawGrid(QPainter& painter) const {
    constexpr QColor kGrid(0xC8, 0xC8, 0xC8);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    // One pixel of the device each, whatever its scale: a point between two of them would be a smear.
    const QTransform toDevice = painter.transform();
    const double ratio = devicePixelRatioF();
    painter.resetTransform();
    painter.scale(1 / ratio, 1 / ratio);
    painter.setPen(QPen(kGrid, 0));
    QPolygonF points;
    points.reserve(static_cast<qsizetype>(grid_.size()));
    for (const PagePoint& point : grid_) {
        const QPointF at =
            toDevice.map(QPointF(static_cast<double>(point.X), static_cast<double>(point.Y))) * ratio;
        points.push_back(QPointF(std::floor(at.x()), std::floor(at.y())));
    }
    painter.drawPoints(points);
    painter.setTransform(toDevice);
    painter.setPen(QPen(kGrid, paper::kRuleWidth));
    for (const PageLine& line : centre_) {
        painter.drawLine(QPointF(static_cast<double>(line.X1), static_cast<double>(line.Y1)),
                         QPointF(static_cast<double>(line.X2), static_cast<double>(line.Y2)));
    }
    painter.restore();
}

void PageView::DrawFixed(QPainter& painter) const {
    DrawGrid(painter);
    painter.setPen(QPen(Qt::black, paper::kRuleWidth));
    for (const PageLine& line : lines_) {
        if (line.Visible) {
            painter.drawLine(QPointF(static_cast<double>(line.X1), static_cast<double>(line.Y1)),
                             QPointF(static_cast<double>(line.X2), static_cast<double>(line.Y2)));
        }
    }
}

void PageView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    event->accept();
    modInput::PageMouseDown(program_, 1, Twips(event->position().x()), Twips(event->position().y()));
    Done();
}

void PageView::mouseMoveEvent(QMouseEvent* event) {
    event->accept();
    const int button = event->buttons().testFlag(Qt::LeftButton) ? 1 : 0;
    modInput::PageMouseMove(program_, id_, button, Twips(event->position().x()),
                            Twips(event->position().y()));
    Done();
}

void PageView::mouseReleaseEvent(QMouseEvent* event) {
    event->accept();
    const int button = event->button() == Qt::LeftButton ? 1 : 0;
    modInput::PageMouseUp(program_, id_, button, Twips(event->position().x()), Twips(event->position().y()));
    Done();
}

bool PageView::eventFilter(QObject* watched, QEvent* event) {
    using Handler = void (PageView::*)(QMouseEvent*);
    const Handler handler = event->type() == QEvent::MouseButtonPress     ? &PageView::mousePressEvent
                            : event->type() == QEvent::MouseMove          ? &PageView::mouseMoveEvent
                            : event->type() == QEvent::MouseButtonRelease ? &PageView::mouseReleaseEvent
                                                                          : nullptr;
    if (handler == nullptr || watched != parent() || !isVisible()) {
        return QWidget::eventFilter(watched, event);
    }
    const auto& mouse = static_cast<const QMouseEvent&>(*event);
    QMouseEvent here(mouse.type(), mapFromParent(mouse.position()), mouse.globalPosition(), mouse.button(),
                     mouse.buttons(), mouse.modifiers());
    (this->*handler)(&here);
    return here.isAccepted();
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
