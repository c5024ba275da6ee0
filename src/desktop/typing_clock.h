#pragma once

#include <QElapsedTimer>
#include <QObject>

class QKeyEvent;

/// Knows when a person has last typed a letter or a figure in any window of the program.
class TypingClock : public QObject {
    Q_OBJECT
public:
    TypingClock();
    ~TypingClock() override;

    /// Whether the person was typing a moment ago and so may be typing on.
    [[nodiscard]] bool StillTyping() const;
    /// A letter or figure of a text, not a key that commands.
    [[nodiscard]] static bool IsTyping(const QKeyEvent& key);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QElapsedTimer since_;
};
