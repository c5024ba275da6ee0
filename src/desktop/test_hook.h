#pragma once

#include <QLocalServer>
#include <QString>

class QLocalSocket;

/// Answers questions about what is on show, so that a test with real keys and a real mouse finds its way by
/// names. Only builds for tests have it. One line asks, one line answers:
///
/// - `where NAME`: left, top, width and height on the screen, for the widget of that object name in the
///   window in front, or for an entry of a menu that is open
/// - `text NAME`: what it says
/// - `focus`: the object name of the widget with the keyboard
/// - `active`: the title of the window with the keyboard
/// - `windows`: the places of all windows on show, left, top, width and height each
/// - `settle`: "settled" when everything that was under way has been dealt with, or waits behind a box
///
/// The answer to a question that has none is an empty line.
class TestHook {
public:
    /// Listens at the socket that QUILLBROOK_TEST_HOOK names; does nothing without it.
    TestHook();

private:
    void Serve();
    static void Settle(QLocalSocket* asking);
    [[nodiscard]] static QString AnswerTo(const QString& question);
    QLocalServer server_;
};
