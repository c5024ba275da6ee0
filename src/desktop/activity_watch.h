#pragma once

#include <QObject>

#include <functional>

/// Hears of everything that a person does in any window of the program: keys, mouse, wheel.
class ActivityWatch : public QObject {
    Q_OBJECT
public:
    ActivityWatch(QObject* parent, std::function<void()> seen);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::function<void()> seen_;
};
