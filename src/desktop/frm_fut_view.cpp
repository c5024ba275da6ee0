#include "desktop/frm_fut_view.h"

#include "base/guard.h"
#include "desktop/convert.h"
#include "desktop/free_place.h"
#include "desktop/mnemonics.h"
#include "desktop/paper_surface.h"
#include "desktop/term_drag.h"
#include "program/program.h"
#include "terms/frm_fut.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QScreen>
#include <QVBoxLayout>

#include <algorithm>

FrmFutView::FrmFutView(Program& program, frmFUT& window, QWidget* over, std::function<void()> afterEvent)
    : WindowView(program, window, over, std::move(afterEvent)), model_(window),
      dock_(new TermsDock(qobject_cast<QMainWindow*>(over))) {
    desk_ = over->findChild<QWidget*>(QStringLiteral("desk"));
    if (desk_ == nullptr) {
        desk_ = over;
    }
    dock_->setObjectName(objectName());
    setObjectName(QString());
    dock_->setAllowedAreas(Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea);
    dock_->setAttribute(Qt::WA_ShowWithoutActivating);
    dock_->Moved = [this] { KeepPlaceSoon(); };
    dock_->Closed = [this] { Do([this] { model_.Form_Cancel(program_); }); };
    dock_->Escaped = [this] { Do([this] { model_.Form_Escape(program_); }); };

    content_ = new QWidget(dock_);
    auto* column = new QVBoxLayout(content_);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    restore_ = new QPushButton(tr("Show the List"), content_);
    restore_->setObjectName(QStringLiteral("cmdRestore"));
    connect(restore_, &QPushButton::clicked, this, [this] { Do([this] { model_.Minimised = false; }); });
    column->addWidget(restore_);
    body_ = new QWidget(content_);
    column->addWidget(body_, 1);

    auto* rows = new QVBoxLayout(body_);
    rows->setContentsMargins(8, 4, 8, 8);
    rows->setSpacing(6);
    BuildMenus(body_);
    BuildLists();
    rows->addWidget(terms_, 1);
    rows->addWidget(lists_, 1);
    BuildButtons(body_);
    body_->setMinimumWidth(Pixels(frmFUT::kLeastWidth));
    body_->installEventFilter(this);
    dock_->setWidget(content_);
    if (auto* main = qobject_cast<QMainWindow*>(over)) {
        main->addDockWidget(Qt::RightDockWidgetArea, dock_);
    }
    dock_->setFloating(true);
    dock_->hide();
    connect(dock_, &QDockWidget::topLevelChanged, this, [this] { KeepSide(); });
    connect(dock_, &QDockWidget::dockLocationChanged, this, [this] { KeepSide(); });
    constexpr int kRest = 400; // longer than the way to a side takes
    resting_.setSingleShot(true);
    resting_.setInterval(kRest);
    connect(&resting_, &QTimer::timeout, this, [this] { KeepPlace(); });
}

FrmFutView::~FrmFutView() {
    stands_ = Stands::Unplaced; // what follows is no place of the person's
    if (dock_ != nullptr) {
        for (QObject* part : dock_->findChildren<QObject*>()) {
            part->disconnect(this);
            part->removeEventFilter(this);
        }
        dock_->disconnect(this);
        dock_->removeEventFilter(this);
        delete dock_;
    }
}

double FrmFutView::PixelsPerTwip() const {
    return static_cast<double>(logicalDpiX()) / paper::kTwipsPerInch;
}

int FrmFutView::Pixels(float twips) const {
    return qRound(static_cast<double>(twips) * PixelsPerTwip());
}

float FrmFutView::Twips(int pixels) const {
    return static_cast<float>(pixels / PixelsPerTwip());
}

void FrmFutView::TakePlace(const QRect& place) {
    model_.Left = Twips(place.x());
    model_.Top = Twips(place.y());
    model_.Width = Twips(place.width());
    model_.Height = Twips(place.height());
}

void FrmFutView::BuildMenus(QWidget* body) {
    auto* bar = new QMenuBar(body);
    bar->setNativeMenuBar(false);
    body->layout()->setMenuBar(bar);
    // Without mnemonics: docked, they would be the main window's.
    file_ = bar->addMenu(tr("File"));
    QMenu* window = bar->addMenu(tr("Window"));
    const auto add = [this](QMenu* menu, const char* name, const frmFUT::MenuEntry& entry,
                            void (frmFUT::*run)(Program&)) {
        QAction* action = menu->addAction(convert::ToQString(entry.Caption));
        action->setObjectName(QLatin1String(name));
        connect(action, &QAction::triggered, this, [this, run] {
            KeepPlace();
            Do([this, run] { (model_.*run)(program_); });
        });
        return action;
    };
    add(file_, "mnuFileShowAll", model_.mnuFileShowAll, &frmFUT::mnuFileShowAll_Click);
    add(file_, "mnuFileOpenFUT", model_.mnuFileOpenFUT, &frmFUT::mnuFileOpenFUT_Click);
    add(file_, "mnuFileNewFUT", model_.mnuFileNewFUT, &frmFUT::mnuFileNewFUT_Click);
    add(file_, "mnuFileDeleteFUT", model_.mnuFileDelete, &frmFUT::mnuFileDelete_Click);
    default_ = add(file_, "mnuFileDefaultFUT", model_.mnuFileDefaultFUT, &frmFUT::mnuFileDefaultFUT_Click);
    add(window, "mnuWindowSavePosition", model_.mnuWindowSavePosition, &frmFUT::mnuWindowSavePosition_Click);
}

void FrmFutView::BuildLists() {
    rows_ = new TermRows(program_, this);
    terms_ = new TermListView(body_);
    terms_->setObjectName(QStringLiteral("lstFUT"));
    terms_->setAccessibleName(tr("Frequent terms"));
    terms_->setModel(rows_);
    terms_->setUniformItemSizes(true);
    terms_->setDragEnabled(true);
    terms_->setDragDropMode(QAbstractItemView::DragOnly);
    terms_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    terms_->setToolTip(tr("Drag a term onto the page, or press Enter to put it where the cursor was last."));
    connect(terms_->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& now) {
                if (!following_) {
                    Do([&] { model_.lstFUT_Select(program_, now.isValid() ? now.row() : -1); });
                }
            });
    terms_->Entered = [this] { Do([this] { model_.lstFUT_Enter(program_); }); };
    terms_->Dragged = [this] {
        model_.lstFUT_MouseMove(program_);
        termdrag::Run(program_, terms_);
        Do([] {});
    };

    lists_ = new FileListView(body_);
    lists_->setObjectName(QStringLiteral("lstMoreFUT"));
    lists_->setAccessibleName(tr("Frequent terms files"));
    lists_->setUniformItemSizes(true);
    lists_->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(lists_, &QListWidget::currentRowChanged, this, [this](int row) {
        if (!following_) {
            Do([&] { model_.lstMoreFUT_Move(row); });
        }
    });
    const auto open = [this] { Do([this] { model_.lstMoreFUT_Click(program_); }); };
    lists_->Entered = open;
    connect(lists_, &QListWidget::itemClicked, this, [open] {
        if (QApplication::mouseButtons() == Qt::NoButton) {
            open();
        }
    });
    // A click opens; the right button chooses a list for the menu's commands.
    connect(lists_, &QListWidget::customContextMenuRequested, this,
            [this](QPoint at) { file_->popup(lists_->viewport()->mapToGlobal(at)); });
    lists_->viewport()->installEventFilter(this);
}

void FrmFutView::BuildButtons(QWidget* body) {
    auto* panel = new QWidget(body);
    panel->setObjectName(QStringLiteral("picOpt"));
    auto* column = new QVBoxLayout(panel);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(4);
    for (std::size_t index = 0; index < options_.size(); ++index) {
        options_[index] = new QPushButton(panel);
        options_[index]->setObjectName(QStringLiteral("cmdOpt(%1)").arg(index));
        column->addWidget(options_[index]);
        connect(options_[index], &QPushButton::clicked, this, [this, index] {
            Do([this, index] { model_.cmdOpt_Click(program_, static_cast<int>(index)); });
        });
    }
    auto* row = new QHBoxLayout;
    row->setSpacing(4);
    const std::array<QString, 3> spoken{tr("All terms to lower case"), tr("All terms to proper case"),
                                        tr("All terms to upper case")};
    for (std::size_t index = 0; index < cases_.size(); ++index) {
        cases_[index] = new QPushButton(panel);
        cases_[index]->setObjectName(QStringLiteral("cmdCase(%1)").arg(index));
        cases_[index]->setAccessibleName(spoken[index]);
        cases_[index]->setToolTip(spoken[index]);
        cases_[index]->setMinimumWidth(1);
        row->addWidget(cases_[index]);
        connect(cases_[index], &QPushButton::clicked, this, [this, index] {
            Do([this, index] { model_.cmdCase_Click(program_, static_cast<int>(index)); });
        });
    }
    column->addLayout(row);
    body->layout()->addWidget(panel);
}

bool FrmFutView::eventFilter(QObject* watched, QEvent* event) {
    if (watched == body_ && event->type() == QEvent::MouseButtonDblClick) {
        KeepPlace();
        Do([this] { model_.Form_DblClick(program_); });
        return true;
    }
    if (watched == lists_->viewport() && event->type() == QEvent::MouseButtonRelease &&
        static_cast<QMouseEvent*>(event)->button() != Qt::LeftButton) {
        return true; // the right button chooses and opens nothing
    }
    if (watched == desk_ && event->type() == QEvent::Resize) {
        QTimer::singleShot(0, this, [this] { StandFree(); }); // when the page lies where it will
    }
    return WindowView::eventFilter(watched, event);
}

void FrmFutView::Open() {
    stands_ = Stands::Waiting;
    Follow();
}

void FrmFutView::Leave() {
    stands_ = Stands::Unplaced;
    dock_->hide();
}

bool FrmFutView::HasKeyboard() const {
    const QWidget* keyboard = QApplication::focusWidget();
    return keyboard != nullptr && dock_->isAncestorOf(keyboard);
}

void FrmFutView::TakeKeyboard() {
    dock_->show();
    dock_->raise();
    dock_->activateWindow();
    (model_.lstMoreFUT.Visible ? static_cast<QWidget*>(lists_) : terms_)->setFocus();
}

/// The saved place counts when a good part of the window would lie on a screen. One without a size is none
/// yet.
QRect FrmFutView::SavedPlace() const {
    const QRect saved(Pixels(model_.Left), Pixels(model_.Top), Pixels(model_.Width), Pixels(model_.Height));
    constexpr int kReachable = 60;
    const QRect title(saved.topLeft(), QSize(saved.width(), kReachable / 2));
    const QList<QScreen*> screens = QGuiApplication::screens();
    const bool onScreen = std::any_of(screens.begin(), screens.end(), [&](const QScreen* each) {
        const QRect seen = each->availableGeometry() & title;
        return seen.width() >= kReachable && seen.height() >= kReachable / 3;
    });
    return onScreen && saved.height() >= kReachable ? saved : QRect();
}

void FrmFutView::StandFree() {
    constexpr int kBesides = 8; // a desktop may shift a window by its frame
    if (!free_ || !dock_->isFloating() || model_.Minimised ||
        (dock_->geometry().topLeft() - free_->topLeft()).manhattanLength() > kBesides) {
        return;
    }
    const QRect place = FreePlace(*desk_);
    free_ = place;
    dock_->setGeometry(place);
    KeepPlace();
}

void FrmFutView::KeepPlaceSoon() {
    if (stands_ == Stands::Placed) {
        resting_.start();
    }
}

void FrmFutView::KeepSide() {
    if (stands_ != Stands::Placed) {
        return;
    }
    const frmFUT::Side before = model_.Docked;
    auto* main = qobject_cast<QMainWindow*>(dock_->parentWidget());
    const Qt::DockWidgetArea area =
        dock_->isFloating() || main == nullptr ? Qt::NoDockWidgetArea : main->dockWidgetArea(dock_);
    model_.Docked = area == Qt::LeftDockWidgetArea    ? frmFUT::Side::Left
                    : area == Qt::RightDockWidgetArea ? frmFUT::Side::Right
                                                      : frmFUT::Side::None;
    if (model_.Docked == frmFUT::Side::None && before != frmFUT::Side::None && !model_.Minimised) {
        // As large as it was: at a side it has the main window's height.
        dock_->resize(Pixels(model_.Width), Pixels(model_.Height));
    }
}

void FrmFutView::KeepPlace() {
    resting_.stop();
    if (stands_ != Stands::Placed || !dock_->isFloating() || model_.Docked != frmFUT::Side::None ||
        model_.Minimised) {
        return; // the place is that of the floating window
    }
    TakePlace({dock_->pos(), dock_->size()});
}

void FrmFutView::FollowMoreLists() {
    QStringList names;
    for (const std::string& name : model_.lstMoreFUT.Items) {
        names.push_back(convert::ToQString(name));
    }
    QStringList shown;
    for (int row = 0; row < lists_->count(); ++row) {
        shown.push_back(lists_->item(row)->text());
    }
    if (shown != names) {
        lists_->clear();
        lists_->addItems(names);
    }
    if (lists_->currentRow() != model_.lstMoreFUT.ListIndex) {
        lists_->setCurrentRow(model_.lstMoreFUT.ListIndex);
    }
}

void FrmFutView::FollowButtons() {
    for (std::size_t index = 0; index < options_.size(); ++index) {
        mnemonics::SetCaption(*options_[index], convert::ToQString(model_.cmdOpt[index].Caption));
        options_[index]->setEnabled(model_.cmdOpt[index].Enabled);
    }
    for (std::size_t index = 0; index < cases_.size(); ++index) {
        mnemonics::SetCaption(*cases_[index], convert::ToQString(model_.cmdCase[index].Caption));
        cases_[index]->setEnabled(model_.cmdCase[index].Enabled);
    }
    default_->setEnabled(model_.mnuFileDefaultFUT.Enabled);
    const auto* main = qobject_cast<const QMainWindow*>(parentWidget());
    mnemonics::Give(*content_, main == nullptr ? QString() : mnemonics::LettersOf(*main));
}

void FrmFutView::Follow() {
    const ScopedFlag following(following_);
    const QString caption = convert::ToQString(model_.Caption);
    if (dock_->windowTitle() != caption) {
        dock_->setWindowTitle(caption);
    }
    if (version_ != program_.terms.Version) {
        version_ = program_.terms.Version;
        rows_->Renew();
    }
    if (terms_->currentIndex().row() != model_.lstFUT.ListIndex) {
        terms_->setCurrentIndex(rows_->index(model_.lstFUT.ListIndex, 0));
    }
    FollowMoreLists();
    FollowButtons();
    const bool hadKeyboard = terms_->hasFocus() || lists_->hasFocus();
    terms_->setVisible(model_.lstFUT.Visible);
    lists_->setVisible(model_.lstMoreFUT.Visible);
    if (hadKeyboard) {
        (model_.lstMoreFUT.Visible ? static_cast<QWidget*>(lists_) : terms_)->setFocus();
    }
    if (body_->isHidden() != model_.Minimised) {
        if (stands_ == Stands::Placed && model_.Minimised && dock_->isFloating()) {
            // It comes back as high as it is, which its parts may have made higher than its place.
            model_.Height = Twips(dock_->height());
        }
        body_->setVisible(!model_.Minimised);
        restore_->setVisible(model_.Minimised);
        if (dock_->isFloating()) {
            const int least = dock_->minimumSizeHint().height();
            const int whole = qMax(least, Pixels(model_.Height));
            dock_->resize(dock_->width(), model_.Minimised ? least : whole);
        }
    }
    restore_->setVisible(model_.Minimised);
    if (stands_ == Stands::Waiting && program_.main.Loaded && parentWidget()->isVisible()) {
        stands_ = Stands::Unplaced; // the page has come first
        ShowFirst();
    }
}

void FrmFutView::ShowFirst() {
    const QRect saved = SavedPlace();
    const QRect place = saved.isNull() ? FreePlace(*desk_) : saved;
    dock_->show();
    dock_->setGeometry(place); // a dock that shows for the first time takes a place of its own
    stands_ = Stands::Placed;
    // The whole window's place, which it gets back when it is restored.
    TakePlace(place);
    if (model_.Minimised) {
        dock_->resize(place.width(), dock_->minimumSizeHint().height());
    }
    if (saved.isNull()) {
        free_ = place;
        desk_->installEventFilter(this);
        QTimer::singleShot(0, this, [this] { StandFree(); });
    }
}
