#include "desktop/end_signals.h"

#include <QGuiApplication>
#include <QSessionManager>

#include <array>
#include <csignal>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr std::array kSignals{SIGTERM, SIGHUP, SIGINT};

// A handler can be handed nothing: the two ends of the pipe through which it wakes the event loop.
std::array<int, 2> wake{-1, -1};

void Wake(int) {
    const char byte = 1;
    // With a full pipe the loop is awake anyway.
    static_cast<void>(!::write(wake[1], &byte, 1));
}

} // namespace

EndSignals::EndSignals(std::function<void()> atSignal, std::function<void()> atSession)
    : atSignal_(std::move(atSignal)) {
    if (::pipe2(wake.data(), O_CLOEXEC | O_NONBLOCK) == 0) {
        notifier_ = std::make_unique<QSocketNotifier>(wake[0], QSocketNotifier::Read);
        connect(notifier_.get(), &QSocketNotifier::activated, this, [this] {
            char byte = 0;
            while (::read(wake[0], &byte, 1) > 0) {
            }
            atSignal_();
        });
        for (const int number : kSignals) {
            std::signal(number, Wake);
        }
    }
    connect(
        qGuiApp, &QGuiApplication::commitDataRequest, this,
        [atSession = std::move(atSession)](QSessionManager&) { atSession(); }, Qt::DirectConnection);
}

EndSignals::~EndSignals() {
    for (const int number : kSignals) {
        std::signal(number, SIG_DFL);
    }
    notifier_.reset();
    for (int& end : wake) {
        if (end >= 0) {
            ::close(end);
            end = -1;
        }
    }
}
