#pragma once

#include "platform/drawing_surface.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

class Screen {
public:
    virtual ~Screen() = default;
    /// Installed families and the names for which a metric-compatible stand-in exists.
    [[nodiscard]] virtual std::vector<std::string> Fonts() const = 0;
    [[nodiscard]] virtual int WidthInPixels() const = 0;
    [[nodiscard]] virtual int HeightInPixels() const = 0;
    [[nodiscard]] virtual float TwipsPerPixel() const = 0;
};

/// Clipboard text in the program's own characters. What is set takes the place of all that was there.
class Clipboard {
public:
    virtual ~Clipboard() = default;
    virtual void Clear() = 0;
    virtual void SetText(std::string_view text) = 0;
    /// Plain text whose line ends become the system's own, and beside it an HTML table for programs that take
    /// one.
    virtual void SetTextAndTable(std::string_view text, std::string_view html) = 0;
    /// Any text, in UTF-8: what was read from elsewhere and is handed on as it came.
    virtual void SetUnicodeText(std::string_view utf8) = 0;
    /// What has a byte, with the line ends that it came with; nothing when the clipboard holds no text.
    struct Taken {
        std::string Text;
        std::size_t LeftOut = 0; ///< characters that have none
    };
    [[nodiscard]] virtual Taken Take() const = 0;
    [[nodiscard]] std::string GetText() const { return Take().Text; }
};

/// Opening documents and pages in other programs, and links on the desktop.
class Shell {
public:
    virtual ~Shell() = default;
    /// The result of the system's own action is not reported.
    virtual void Open(std::string_view target) = 0;
    /// `folder` is seen from the system's folder of program links: empty is that folder itself,
    /// "..\..\Desktop" the desktop. False when the link could not be made.
    [[nodiscard]] virtual bool CreateLink(std::string_view folder, std::string_view name,
                                          std::string_view target) = 0;
};

class Clock {
public:
    virtual ~Clock() = default;
    /// Local time as a day serial, counted from 30 December 1899.
    [[nodiscard]] virtual double Now() const = 0;
};

class SingleInstance {
public:
    virtual ~SingleInstance() = default;
    /// Another instance counts when it runs for the same user and program folder. `CannotTell` when no lock
    /// could be made; the run goes on then.
    enum class Result { Claimed, Taken, CannotTell };
    [[nodiscard]] virtual Result Claim(std::string_view installFolder) = 0;
};

class Pictures {
public:
    virtual ~Pictures() = default;
    /// Natural size in twips, or nothing when the file is no picture that can be shown.
    [[nodiscard]] virtual std::optional<PictureSize> Load(std::string_view path) = 0;
};

/// The event loop, as far as the model needs it.
class EventLoop {
public:
    virtual ~EventLoop() = default;
    /// Shows the present state of the records and lets pending events run.
    virtual void LetEventsRun() = 0;
    /// The same for that long; an animation takes its pace from it.
    virtual void LetEventsRunFor(int milliseconds) = 0;
    /// The program is to end; the main window has closed.
    virtual void Quit() = 0;
};
