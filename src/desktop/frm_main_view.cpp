#include "desktop/frm_main_view.h"

#include "base/guard.h"
#include "desktop/activity_watch.h"
#include "desktop/convert.h"
#include "desktop/desk.h"
#include "desktop/elided_label.h"
#include "desktop/icons.h"
#include "desktop/mnemonics.h"
#include "desktop/page_view.h"
#include "desktop/paper_surface.h"
#include "desktop/tool_strip.h"
#include "desktop/window_views.h"
#include "editing/text_menu.h"
#include "output/preview.h"
#include "pages/fields.h"
#include "program/program.h"
#include "program/windows.h"
#include "shell/closing.h"
#include "shell/command_run.h"
#include "shell/frm_main.h"
#include "shell/input.h"
#include "shell/main_controls.h"
#include "shell/page_switch.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QGridLayout>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QShortcut>
#include <QStatusTipEvent>
#include <QTimer>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <algorithm>

namespace {

/// Room between a window's edge and a strip's texts.
constexpr int kStripMargin = 10;
constexpr int kAcrossStep = 24; // pixels

QWidget* MakeStrip(const QString& name, QWidget* parent) {
    auto* strip = new QWidget(parent);
    strip->setObjectName(name);
    auto* row = new QHBoxLayout(strip);
    row->setContentsMargins(kStripMargin, 3, kStripMargin, 3);
    row->setSpacing(14);
    return strip;
}

} // namespace

FrmMainView::FrmMainView(Program& program, const QtTextMeasure& measure)
    : program_(program), measure_(measure) {
    setObjectName(QStringLiteral("frmMain"));
    setWindowIcon(icons::Program());
    setContextMenuPolicy(Qt::NoContextMenu);
    menus_ = std::make_unique<Menus>(
        *menuBar(), *this,
        [this](CommandId id) {
            commands::Run(program_, id);
            AfterEvent();
        },
        [this] {
            modTextMenu::UpdateTextMenu(program_);
            AfterEvent();
        });
    BuildStrips();
    strip_->GiveLetters(mnemonics::LettersOf(*menuBar()));
    BuildKeys();
    since_.start();
    Now = [this] { return since_.elapsed(); };
    new ActivityWatch(this, [this] {
        notices_.Activity(Now());
        FollowNotice();
    });
    windows_ = std::make_unique<WindowViews>(program_, *this, [this] { AfterEvent(); });
    setMinimumSize(640, 400); // fits the smallest screen; the page scrolls
}

FrmMainView::~FrmMainView() = default;

double FrmMainView::PixelsPerTwip() const {
    return static_cast<double>(logicalDpiX()) / paper::kTwipsPerInch;
}

void FrmMainView::BuildStrips() {
    auto* whole = new QWidget(this);
    auto* column = new QVBoxLayout(whole);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);

    strip_ = new ToolStrip(
        program_, [this] { AfterEvent(); }, whole);
    column->addWidget(strip_);

    const auto add = [this](QWidget* strip, const QString& name, const StripLabel& record, int stretch) {
        auto* label = new ElidedLabel(strip);
        label->setObjectName(name);
        static_cast<QHBoxLayout*>(strip->layout())->addWidget(label, stretch);
        labels_.Add(*label, record);
        return label;
    };

    QWidget* info = MakeStrip(QStringLiteral("picInfo"), whole);
    folder_ = add(info, QStringLiteral("lblDir"), program_.main.lblDir, 1);
    folder_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    folder_->installEventFilter(this);
    QLabel* about = add(info, QStringLiteral("lblEvent"), program_.main.lblEvent, 0);
    about->setAlignment(Qt::AlignRight);
    about->setMinimumWidth(1);
    column->addWidget(info);

    auto* middle = new QWidget(whole);
    auto* grid = new QGridLayout(middle);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(0);
    grid->setColumnStretch(0, 1);
    grid->setRowStretch(0, 1);
    desk_ = new Desk(middle);
    desk_->setObjectName(QStringLiteral("desk"));
    grid->addWidget(desk_, 0, 0);
    scroll_ = new QScrollBar(Qt::Vertical, middle);
    scroll_->setObjectName(QStringLiteral("VScroll1"));
    scroll_->setAccessibleName(tr("Scroll the page"));
    grid->addWidget(scroll_, 0, 1);
    across_ = new QScrollBar(Qt::Horizontal, middle);
    across_->setObjectName(QStringLiteral("HScroll1"));
    across_->setAccessibleName(tr("Scroll the page sideways"));
    across_->hide();
    grid->addWidget(across_, 1, 0);
    column->addWidget(middle, 1);

    QWidget* bottom = MakeStrip(QStringLiteral("picBottom"), whole);
    QLabel* total = add(bottom, QStringLiteral("lblTotal"), program_.main.lblTotal, 0);
    const auto addLesser = [&](const QString& name, const StripLabel& record) {
        QLabel* label = add(bottom, name, record, 0);
        label->setMinimumWidth(1); // in a narrow window the figure beside it stays whole
        return label;
    };
    QFont strong = total->font();
    strong.setBold(true);
    total->setFont(strong);
    addLesser(QStringLiteral("lblHighestPage"), program_.main.lblHighestPage);
    notice_ = new ElidedLabel(bottom);
    notice_->setObjectName(QStringLiteral("lblNotice"));
    notice_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    static_cast<QHBoxLayout*>(bottom->layout())->addWidget(notice_, 1);
    area_ = addLesser(QStringLiteral("lblTextNum"), program_.main.lblTextNum);
    area_->installEventFilter(this);
    addLesser(QStringLiteral("lblCurPos"), program_.main.lblCurPos);
    addLesser(QStringLiteral("lblTextPos"), program_.main.lblTextPos);
    column->addWidget(bottom);
    setCentralWidget(whole);

    desk_->Resized = [this] { Resized(); };
    desk_->Wheel = [this](QWheelEvent* event) { TurnWheel(event); };
    scroll_->installEventFilter(this);
    connect(across_, &QScrollBar::valueChanged, this, [this] { Follow(); });
    // Only what a person does to the bar counts; positions set from the record do not come back.
    connect(scroll_, &QScrollBar::actionTriggered, this, [this] {
        modScroll::SetScroll(program_, scroll_->sliderPosition());
        AfterEvent();
    });
}

void FrmMainView::BuildKeys() {
    const auto key = [this](const QKeySequence& keys, std::function<void()> act) {
        auto* shortcut = new QShortcut(keys, this);
        connect(shortcut, &QShortcut::activated, this, [this, act = std::move(act)] {
            act();
            AfterEvent();
        });
        return shortcut;
    };
    key(Qt::Key_F1, [this] { commands::Run(program_, CommandId::mnuHelpContents); });
    key(Qt::Key_F10, [this] { menuBar()->setActiveAction(menuBar()->actions().constFirst()); });
    // The menu's entry of that key is off while a preview is up, so that the key is free to end it.
    const auto resume = [this] { frmMain(program_).cmdPreview_Click(); };
    endPreview_ = {key(Qt::Key_Escape, resume), key(QKeySequence(QStringLiteral("Ctrl+R")), resume)};
}

void FrmMainView::TurnWheel(QWheelEvent* event) {
    event->accept();
    if (qAbs(event->angleDelta().x()) > qAbs(event->angleDelta().y())) {
        QCoreApplication::sendEvent(across_, event);
        return;
    }
    modScroll::Wheel(program_, event->angleDelta().y());
    AfterEvent();
}

void FrmMainView::KeepPlace() {
    const double twips = 1 / PixelsPerTwip();
    const QRect frame = frameGeometry();
    program_.main.Left = static_cast<float>(frame.x() * twips);
    program_.main.Top = static_cast<float>(frame.y() * twips);
    program_.main.Width = static_cast<float>(frame.width() * twips);
    program_.main.Height = static_cast<float>(frame.height() * twips);
}

void FrmMainView::FollowPlace() {
    if (!isVisible() || isMaximized() || isMinimized() || isFullScreen()) {
        return;
    }
    const double scale = PixelsPerTwip();
    const QPoint wanted(qMax(0, qRound(static_cast<double>(program_.main.Left) * scale)),
                        qMax(0, qRound(static_cast<double>(program_.main.Top) * scale)));
    if ((frameGeometry().topLeft() - wanted).manhattanLength() > 1) {
        move(wanted);
    }
}

void FrmMainView::moveEvent(QMoveEvent* event) {
    QMainWindow::moveEvent(event);
    KeepPlace(); // a person has put it there
}

bool FrmMainView::eventFilter(QObject* watched, QEvent* event) {
    if (watched == folder_ && event->type() == QEvent::Enter) {
        frmMain(program_).lblDir_MouseMove();
        AfterEvent();
    } else if (watched == scroll_ && event->type() == QEvent::Wheel) {
        TurnWheel(static_cast<QWheelEvent*>(event)); // the bar's own step is half a window
        return true;
    } else if (watched == area_ && event->type() == QEvent::MouseButtonDblClick) {
        frmMain(program_).lblTextNum_DblClick();
        AfterEvent();
    }
    return QMainWindow::eventFilter(watched, event);
}

void FrmMainView::Resized() {
    const double twips = 1 / PixelsPerTwip();
    KeepPlace();
    program_.main.ClientWidth = static_cast<float>(desk_->width() * twips);
    program_.main.ClientHeight = static_cast<float>(desk_->height() * twips);
    Follow();
    ResizeSoon();
}

void FrmMainView::ResizeSoon() {
    // The model lets events run meanwhile, which must not happen inside of the layout's own work.
    if (!resizePending_) {
        resizePending_ = true;
        QTimer::singleShot(0, this, [this] {
            resizePending_ = false;
            ResizeModel();
        });
    }
}

void FrmMainView::ResizeModel() {
    if (program_.main.Loaded) {
        modScroll::MDIForm_Resize(program_);
        FollowPlace();
        AfterEvent();
    }
}

PageView& FrmMainView::PageOf(PageId page) {
    PageView*& view = pages_[static_cast<std::size_t>(page)];
    if (view == nullptr) {
        view = new PageView(program_, page, measure_, desk_);
        view->Context().AfterEvent = [this] { AfterEvent(); };
        view->Context().AskForMenu = [this](QPoint at) {
            if (QMenu* menu = menus_->Menu(CommandId::mnuEditTextBox)) {
                connect(
                    menu, &QMenu::aboutToHide, this,
                    [this] {
                        modInput::TextMenuClosed(program_);
                        AfterEvent();
                    },
                    Qt::SingleShotConnection);
                menu->popup(at);
            }
        };
    }
    const auto popUp = [this](CommandId id) {
        return [this, id](QPoint at) {
            if (QMenu* menu = menus_->Menu(id)) {
                menu->popup(at);
            }
        };
    };
    view->Context().AskForLabelMenu = popUp(CommandId::mnuEditLabel);
    view->Context().AskForLogoMenu = popUp(CommandId::mnuEditLogo);
    return *view;
}

void FrmMainView::ShowFirst() {
    shown_ = true;
    QSize first(1024, 740);
    if (const QScreen* place = screen()) {
        constexpr QSize kTitleAndBorders(16, 48); // about what they take
        first = first.boundedTo(place->availableSize() - kTitleAndBorders);
    }
    resize(first);
    Resized();
    ResizeModel();
    if (program_.main.State == WindowState::Maximised) {
        showMaximized();
    } else {
        show();
    }
}

void FrmMainView::AfterEvent() {
    windows_->TakeClosed(modWindows::Sweep(program_));
    Follow();
}

void FrmMainView::Follow() {
    modMain::WorkOutControls(program_);
    if (following_) {
        return;
    }
    const ScopedFlag following(following_);
    if (busy_ != program_.main.Busy) {
        busy_ = program_.main.Busy;
        if (busy_) {
            QGuiApplication::setOverrideCursor(Qt::BusyCursor);
        } else {
            QGuiApplication::restoreOverrideCursor();
        }
    }
    const QString title = convert::ToQString(program_.main.Caption);
    if (windowTitle() != title) {
        setWindowTitle(title);
    }
    if (program_.main.Loaded) {
        menus_->Follow(program_);
        strip_->Follow();
        labels_.Follow();
        notices_.Follow(program_, Now());
        FollowNotice();
        FollowPages();
        if (!shown_) {
            ShowFirst();
        }
    }
    for (QShortcut* key : endPreview_) {
        key->setEnabled(modPreview::PreviewStands(program_));
    }
    const bool covered = windows_->ModalOpen();
    windows_->Follow();
    if (covered && !windows_->ModalOpen() && program_.main.Loaded) {
        FollowKeyboard(); // a chooser that has gone may have changed the page beneath it
    }
    if (program_.main.BringUp) {
        program_.main.BringUp = false;
        TakeKeyboard();
    }
}

void FrmMainView::TakeKeyboard() {
    raise();
    activateWindow();
    if (program_.main.Focus && program_.main.Focus->Page == program_.main.PageInFront) {
        PageOf(program_.main.PageInFront).FollowFocus();
    } else {
        desk_->setFocus();
    }
}

void FrmMainView::FollowNotice() {
    ShowNotice(convert::ToQString(notices_.Text()));
}

void FrmMainView::ShowNotice(const QString& notice) {
    if (notice_->text() != notice) {
        notice_->setText(notice);
    }
    // In a narrow window the lesser labels beside it give way: what nobody sees was not told.
    constexpr int kShare = 3;
    notice_->setMinimumWidth(
        notice.isEmpty() ? 0 : std::min(notice_->fontMetrics().horizontalAdvance(notice), width() / kShare));
}

int FrmMainView::PaperLeft(PageId front, int paperWidth) {
    const int room = desk_->width() - paperWidth;
    if (room >= 0) {
        across_->hide();
        return room / 2;
    }
    across_->setRange(0, -room);
    across_->setPageStep(desk_->width());
    across_->setSingleStep(kAcrossStep);
    // A narrow desk shows the side on which the field with the keyboard lies, until a person moves it or the
    // desk gets another width.
    const std::optional<FieldRef>& focus = program_.main.Focus;
    if (across_->isHidden() || focus != sideShownFor_ || desk_->width() != sideShownOn_) {
        across_->show();
        sideShownFor_ = focus;
        sideShownOn_ = desk_->width();
        int right = 0;
        if (focus && focus->Page == front) {
            constexpr int kBeside = 12;
            const TextArea& area = modFields::Area(program_, *focus);
            right = qRound(static_cast<double>(area.Left + area.Width) * PixelsPerTwip()) + kBeside;
        }
        across_->setValue(right - desk_->width());
    }
    return -across_->value();
}

void FrmMainView::FollowPages() {
    const ScrollBarRecord& bar = program_.main.VScroll1;
    if (scroll_->minimum() != bar.Min || scroll_->maximum() != bar.Max) {
        scroll_->setRange(bar.Min, bar.Max);
    }
    scroll_->setPageStep(bar.LargeChange);
    scroll_->setSingleStep(bar.SmallChange);
    if (scroll_->value() != bar.Value) {
        scroll_->setValue(bar.Value);
    }
    const PageId front = program_.main.PageInFront;
    PageView& view = PageOf(front);
    const Page& page = program_.pages[front];
    const double scale = PixelsPerTwip();
    // The paper stays where it is while a mouse button is held: the press would mark text on its way. A hand
    // that changes the room for it, as by a window let go at a side, presses no text.
    const bool held = QGuiApplication::mouseButtons() != Qt::NoButton && !view.isHidden() &&
                      view.width() > desk_->width() && desk_->width() == placedFor_;
    const int x = held ? view.x() : PaperLeft(front, view.width()) + qRound(page.Left * scale);
    placedFor_ = desk_->width();
    const int y = qRound(page.Top * scale);
    if (view.pos() != QPoint(x, y)) {
        view.move(x, y);
    }
    view.Follow();
    for (PageView* other : pages_) {
        if (other != nullptr && other != &view && !other->isHidden()) {
            if (other->isAncestorOf(focusWidget())) {
                desk_->setFocus(); // or the keyboard would fall to the nearest button
            }
            other->hide();
        }
    }
    if (desk_->Paper != view.geometry()) {
        desk_->Paper = view.geometry();
        desk_->update();
    }
    if (view.isHidden()) {
        view.show();
        view.raise();
    }
    if (page.InkShown && view.isAncestorOf(focusWidget())) {
        desk_->setFocus(); // a field that has gone under the ink would hand it to the nearest button
    }
    FollowKeyboard();
}

void FrmMainView::FollowKeyboard() {
    if (windows_->ModalOpen() || windows_->KeyboardWithin()) {
        return;
    }
    const PageId front = program_.main.PageInFront;
    PageOf(front).FollowFocus();
    const QWidget* keyboard = focusWidget();
    if ((!program_.main.Focus || program_.main.Focus->Page != front) &&
        (keyboard == nullptr || !keyboard->isVisible())) {
        desk_->setFocus(); // page keys still scroll
    }
}

void FrmMainView::closeEvent(QCloseEvent* event) {
    if (modClosing::MDIForm_QueryUnload(program_)) {
        modClosing::MDIForm_Unload(program_);
        event->accept();
    } else {
        event->ignore();
    }
    AfterEvent();
}

void FrmMainView::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange) {
        program_.main.State = isMinimized()   ? WindowState::Minimised
                              : isMaximized() ? WindowState::Maximised
                                              : WindowState::Normal;
        ResizeSoon();
    }
}

void FrmMainView::keyPressEvent(QKeyEvent* event) {
    // Page keys work also while no field of the page has the keyboard.
    if (event->key() == Qt::Key_PageUp || event->key() == Qt::Key_PageDown) {
        modScroll::PageKey(program_, event->key() == Qt::Key_PageUp ? 33 : 34);
        AfterEvent();
        return;
    }
    QMainWindow::keyPressEvent(event);
}

bool FrmMainView::event(QEvent* event) {
    if (event->type() == QEvent::StatusTip) {
        // What a menu entry has to say stands where the program's own notices stand.
        const QString tip = static_cast<QStatusTipEvent*>(event)->tip();
        ShowNotice(tip.isEmpty() ? convert::ToQString(notices_.Text()) : tip);
        return true;
    }
    return QMainWindow::event(event);
}
