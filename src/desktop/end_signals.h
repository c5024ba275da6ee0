#pragma once

#include <QObject>
#include <QSocketNotifier>

#include <functional>
#include <memory>

/// Hears when the system ends the program: SIGTERM, SIGHUP, SIGINT, and the end of the desktop session.
class EndSignals : public QObject {
    Q_OBJECT

public:
    /// Both run in the event loop, also under a box that waits. `atSignal` ends the program; `atSession` only
    /// keeps what must be kept, the session ends the program itself.
    EndSignals(std::function<void()> atSignal, std::function<void()> atSession);
    ~EndSignals() override;

private:
    std::function<void()> atSignal_;
    std::unique_ptr<QSocketNotifier> notifier_;
};
