#include "desktop/test_hook.h"

#include <QApplication>
#include <QLocalSocket>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QTimer>
#include <QVariant>
#include <QWidget>

#include <memory>
#include <utility>

namespace {

QWidget* InFront() {
    if (QWidget* popup = QApplication::activePopupWidget()) {
        return popup;
    }
    if (QWidget* modal = QApplication::activeModalWidget()) {
        return modal;
    }
    return QApplication::activeWindow();
}

QWidget* Named(const QString& name) {
    QWidget* front = InFront();
    if (front == nullptr) {
        return nullptr;
    }
    if (front->objectName() == name) {
        return front;
    }
    for (QWidget* part : front->findChildren<QWidget*>(name)) {
        if (part->isVisible()) {
            return part;
        }
    }
    return nullptr;
}

QString Place(const QWidget& widget, const QRect& part) {
    const QRect there(widget.mapToGlobal(part.topLeft()), part.size());
    return QStringLiteral("%1 %2 %3 %4").arg(there.x()).arg(there.y()).arg(there.width()).arg(there.height());
}

QString Place(const QWidget& widget) {
    return Place(widget, widget.rect());
}

/// The place of an entry of a menu that is open, or of the menu bar.
template <typename Menu> QString EntryOf(const Menu& menu, const QString& name) {
    for (QAction* entry : menu.actions()) {
        if (entry->objectName() == name && entry->isVisible()) {
            return Place(menu, menu.actionGeometry(entry));
        }
    }
    return {};
}

QString Entry(const QString& name) {
    QWidget* front = InFront();
    if (const auto* menu = qobject_cast<QMenu*>(front)) {
        return EntryOf(*menu, name);
    }
    const auto* bar = front == nullptr ? nullptr : front->findChild<QMenuBar*>();
    return bar == nullptr ? QString() : EntryOf(*bar, name);
}

} // namespace

TestHook::TestHook() {
    const QString place = qEnvironmentVariable("QUILLBROOK_TEST_HOOK");
    if (place.isEmpty()) {
        return;
    }
    QObject::connect(&server_, &QLocalServer::newConnection, &server_, [this] { Serve(); });
    if (!server_.listen(place)) {
        qFatal("The test hook cannot listen at %s.", qPrintable(place));
    }
}

void TestHook::Serve() {
    QLocalSocket* asking = server_.nextPendingConnection();
    QObject::connect(asking, &QLocalSocket::disconnected, asking, &QObject::deleteLater);
    // Not in the signal itself: it does not come again while it is dealt with, and what is asked may open a
    // box.
    QObject::connect(
        asking, &QLocalSocket::readyRead, asking,
        [asking] {
            while (asking->canReadLine()) {
                const QString question = QString::fromUtf8(asking->readLine()).trimmed();
                if (question == QLatin1String("settle")) {
                    Settle(asking);
                } else {
                    asking->write(AnswerTo(question).toUtf8() + '\n');
                }
            }
        },
        Qt::QueuedConnection);
}

void TestHook::Settle(QLocalSocket* asking) {
    const auto answered = std::make_shared<bool>(false);
    const auto answer = [asking = QPointer<QLocalSocket>(asking), answered] {
        if (!std::exchange(*answered, true) && asking) {
            asking->write("settled\n");
        }
    };
    // What the hands have done may have opened a box, which has a loop of its own and keeps the call below.
    constexpr int kLong = 300;
    QTimer::singleShot(kLong, asking, answer);
    QApplication::sync();
    answer();
}

QString TestHook::AnswerTo(const QString& question) {
    const QString verb = question.section(u' ', 0, 0);
    const QString name = question.section(u' ', 1);
    if (verb == QLatin1String("focus")) {
        const QWidget* keyboard = QApplication::focusWidget();
        return keyboard == nullptr ? QString() : keyboard->objectName();
    }
    if (verb == QLatin1String("active")) {
        const QWidget* active = QApplication::activeWindow();
        return active == nullptr ? QString() : active->windowTitle();
    }
    if (verb == QLatin1String("windows")) {
        QStringList places;
        for (const QWidget* window : QApplication::topLevelWidgets()) {
            if (window->isVisible()) {
                places.push_back(Place(*window));
            }
        }
        return places.join(u' ');
    }
    const QWidget* widget = Named(name);
    if (widget == nullptr) {
        return verb == QLatin1String("where") ? Entry(name) : QString();
    }
    // An answer is one line.
    return verb == QLatin1String("where") ? Place(*widget)
                                          : widget->property("text").toString().replace(u'\n', u' ');
}
