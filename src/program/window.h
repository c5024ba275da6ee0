#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

struct Program;

enum class Modality { Modeless, Modal };

/// A small window of the program: its controls are records in the derived class, its handlers are members
/// named
/// `<control>_<event>`. Opening a window returns at once, also for a modal one: everything that follows from
/// it happens in its handlers. While a modal window stands, the front end gives input to it alone.
class Window {
public:
    virtual ~Window() = default;

    /// The window's name, as "frmFile"; the front end chooses the view by it.
    [[nodiscard]] virtual std::string_view Name() const = 0;
    [[nodiscard]] virtual Modality Mode() const = 0;

    /// Runs once when the window opens, before it shows.
    virtual void Form_Load(Program&) {}
    /// Runs once when the window closes by any way.
    virtual void Form_Unload(Program&) {}
    /// Escape, or the close box.
    virtual void Form_Cancel(Program& program) = 0;

    std::string Caption;
    /// Set by the window's own handlers; the window leaves the collection when the event has ended.
    bool Closing = false;
    /// A floating window that has stepped aside.
    bool Minimised = false;
    /// Place on the screen, twips; the front end keeps it true.
    float Left = 0;
    float Top = 0;
    float Width = 0;
    float Height = 0;
    /// The window asks for the keyboard; the front end gives it and clears this.
    bool BringUp = false;
};

/// Every open window but the main one, in the order of opening.
struct WindowCollection {
    std::vector<std::unique_ptr<Window>> Open;
};
