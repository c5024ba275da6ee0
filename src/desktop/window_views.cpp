#include "desktop/window_views.h"

#include "desktop/convert.h"
#include "desktop/keyboard_way.h"
#include "desktop/mnemonics.h"
#include "desktop/paper_surface.h"
#include "program/program.h"

#include <QApplication>
#include <QEvent>
#include <QMainWindow>
#include <QMenuBar>
#include <QScreen>

#include <algorithm>

namespace {

/// About what a title bar and borders take.
constexpr QSize kFrame(16, 48);

} // namespace

WindowView::WindowView(Program& program, Window& window, QWidget* over, std::function<void()> afterEvent)
    : QDialog(over), program_(program), window_(window), afterEvent_(std::move(afterEvent)),
      early_(!window.Loaded) {
    setObjectName(QString::fromLatin1(window.Name().data(), static_cast<qsizetype>(window.Name().size())));
    setModal(window.Mode() == Modality::Modal);
}

WindowView::~WindowView() {
    // What its parts still have to say while they go is heard by nobody.
    for (QObject* part : findChildren<QObject*>()) {
        part->disconnect(this);
        part->removeEventFilter(this);
    }
}

void WindowView::Follow() {
    const QString caption = convert::ToQString(window_.Caption);
    if (windowTitle() != caption) {
        setWindowTitle(caption);
    }
    if (isVisible() && isMinimized() != window_.Minimised) {
        window_.Minimised ? showMinimized() : showNormal();
    }
}

void WindowView::AnswerCalls() {
    if (early_ && window_.Loaded) {
        early_ = false;
        TakeKeyboard();
    }
    if (frontCalls_ != window_.FrontCalls) {
        frontCalls_ = window_.FrontCalls;
        TakeKeyboard();
    }
}

void WindowView::showEvent(QShowEvent* event) {
    const bool framed = !windowFlags().testFlag(Qt::FramelessWindowHint);
    if (const QScreen* place = screen(); framed && place != nullptr) {
        const QSize room = place->availableSize() - kFrame;
        setMaximumSize(maximumSize().boundedTo(room));
        resize(size().boundedTo(room));
    }
    QDialog::showEvent(event);
}

void WindowView::moveEvent(QMoveEvent* event) {
    QDialog::moveEvent(event);
    const float twips = static_cast<float>(paper::kTwipsPerInch) / static_cast<float>(logicalDpiX());
    window_.Left = static_cast<float>(x()) * twips;
    window_.Top = static_cast<float>(y()) * twips;
}

void WindowView::resizeEvent(QResizeEvent* event) {
    QDialog::resizeEvent(event);
    const float twips = static_cast<float>(paper::kTwipsPerInch) / static_cast<float>(logicalDpiX());
    window_.Width = static_cast<float>(width()) * twips;
    window_.Height = static_cast<float>(height()) * twips;
}

void WindowView::TakeKeyboard() {
    raise();
    activateWindow();
}

void WindowView::changeEvent(QEvent* event) {
    QDialog::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange) {
        window_.Minimised = isMinimized(); // a person may do it, too
    }
}

void WindowView::reject() {
    Do([this] { window_.Form_Cancel(program_); });
}

WindowViews::WindowViews(Program& program, QWidget& over, std::function<void()> afterEvent)
    : program_(program), over_(over), afterEvent_(std::move(afterEvent)) {}

WindowViews::~WindowViews() = default;

bool WindowViews::ModalOpen() const {
    return std::any_of(views_.begin(), views_.end(),
                       [](const auto& entry) { return entry.second->isModal(); });
}

void WindowViews::TakeClosed(std::vector<std::unique_ptr<Window>> closed) {
    for (std::unique_ptr<Window>& model : closed) {
        const auto shown = views_.find(model.get());
        const auto leaving = leaving_.find(model.get());
        WindowView* view = shown != views_.end()       ? shown->second.get()
                           : leaving != leaving_.end() ? leaving->second.data()
                                                       : nullptr;
        if (view != nullptr) {
            view->KeepModel(std::move(model));
        }
    }
    std::erase_if(leaving_, [](const auto& entry) { return entry.second.isNull(); });
}

bool WindowViews::KeyboardWithin() const {
    return over_.isActiveWindow() && std::any_of(views_.begin(), views_.end(), [](const auto& entry) {
               return entry.second->HasKeyboard();
           });
}

void WindowViews::Follow() {
    const auto& open = program_.windows.Open;
    for (auto at = views_.begin(); at != views_.end();) {
        const bool stands = std::any_of(open.begin(), open.end(), [&](const std::unique_ptr<Window>& window) {
            return window.get() == at->first && !window->Closing;
        });
        if (stands) {
            ++at;
            continue;
        }
        // Its own button may still be on the stack.
        WindowView* view = at->second.release();
        leaving_[at->first] = view;
        const QPointer<QWidget> opener = openers_[at->first];
        openers_.erase(at->first);
        at = views_.erase(at);
        // The keyboard goes back to where the window was opened from, also where no window manager sees to
        // it. Behind a box that was answered in the same moment it is still on its way here.
        QWidget& back = opener != nullptr && opener->isVisible() ? *opener : over_;
        const bool active = view->HasKeyboard() || keyboard::IsOnItsWayTo(*view, back);
        view->Leave();
        view->deleteLater();
        if (active) {
            keyboard::SendTo(back);
        }
    }
    for (const std::unique_ptr<Window>& window : open) {
        if (window->Closing) {
            continue;
        }
        auto& view = views_[window.get()];
        const bool fresh = view == nullptr;
        if (fresh) {
            openers_[window.get()] = QApplication::activeWindow();
            view = MakeWindowView(program_, *window, &over_, afterEvent_);
        }
        view->Follow();
        // A window that stands beside the page, or within the main window, leaves the menu bar its letters;
        // one with menus of its own has the keyboard to itself.
        const auto* main = qobject_cast<QMainWindow*>(&over_);
        const bool byItself = view->isModal() || main == nullptr ||
                              (view->windowType() == Qt::Dialog && view->findChild<QMenuBar*>() != nullptr);
        mnemonics::Give(*view, byItself ? QString() : mnemonics::LettersOf(*main));
        if (fresh) {
            view->Open();
        }
        view->AnswerCalls();
    }
}
