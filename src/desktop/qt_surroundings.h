#pragma once

#include "base/guard.h"
#include "desktop/typing_clock.h"
#include "platform/questions.h"
#include "platform/surroundings.h"

#include <QLockFile>
#include <QPointer>
#include <QString>
#include <QWidget>

#include <functional>
#include <memory>

/// The platform's small interfaces on Qt.

class QtQuestions : public Questions {
public:
    std::string InputBox(std::string_view prompt, std::string_view title, std::string_view initial) override;

    /// Boxes stand over this window.
    QWidget* Over = nullptr;
    /// Runs before a box opens: what is on show then is what the records say.
    std::function<void()> BeforeAsking;

protected:
    Answer Ask(std::string_view text, Buttons buttons, std::string_view title, const Manner& manner) override;

private:
    /// The window that had the keyboard has it again when the box has gone, not the one that the box was
    /// above.
    [[nodiscard]] OnLeaving<std::function<void()>> GiveKeyboardBack();
    QPointer<QWidget> asking_;
    TypingClock typing_;
    /// Before the main window shows, a box stands over whatever window does, or in the middle of the screen.
    [[nodiscard]] QWidget* Below() const;
};

class QtScreen : public Screen {
public:
    [[nodiscard]] std::vector<std::string> Fonts() const override;
    [[nodiscard]] int WidthInPixels() const override;
    [[nodiscard]] int HeightInPixels() const override;
    [[nodiscard]] float TwipsPerPixel() const override;
};

class QtClipboard : public Clipboard {
public:
    void Clear() override;
    void SetText(std::string_view text) override;
    void SetTextAndTable(std::string_view text, std::string_view html) override;
    void SetUnicodeText(std::string_view utf8) override;
    [[nodiscard]] Taken Take() const override;
};

class QtShell : public Shell {
public:
    void Open(std::string_view target) override;
    bool CreateLink(std::string_view folder, std::string_view name, std::string_view target) override;
};

class QtClock : public Clock {
public:
    [[nodiscard]] double Now() const override;
};

/// A lock file in the runtime folder, named after the program folder. One left by a process that died is
/// broken.
class QtSingleInstance : public SingleInstance {
public:
    [[nodiscard]] Result Claim(std::string_view installFolder) override;

private:
    std::unique_ptr<QLockFile> lock_;
};

class QtPictures : public Pictures {
public:
    [[nodiscard]] std::optional<PictureSize> Load(std::string_view path) override;
};

class QtEventLoop : public EventLoop {
public:
    void LetEventsRun() override;
    void LetEventsRunFor(int milliseconds) override;
    void Quit() override;
    /// Shows the present state of the records.
    std::function<void()> Follow;
};
