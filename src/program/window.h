#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

struct Program;

enum class Modality { Modeless, Modal };

/// What a person is about to leave when the windows are asked first: the proposal on show, or the program.
enum class Leaving { Proposal, Run };

/// A small window of the program: its controls are records in the derived class, its handlers are members
/// named `<control>_<event>`. Opening a window returns at once, also for a modal one: everything that follows
/// from it happens in its handlers. While a modal window stands, the front end gives input to it alone.
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
    virtual void Form_Cancel(Program& program);
    /// Runs at the end of every event: brings what shows up to what the rest of the program says.
    virtual void Form_Follow(Program&) {}

    /// Puts the question about unsaved work and saves on Yes; closes nothing. False when the person wants to
    /// stay, or when the save failed.
    [[nodiscard]] virtual bool MayLeave(Program&, Leaving) { return true; }
    /// Whether the window is about the proposal on show and leaves with it.
    [[nodiscard]] virtual bool BelongsToProposal() const { return false; }
    /// The run is being ended from outside and nobody can be asked: unsaved work goes into the backup folder.
    virtual void KeepUnsaved(Program&) {}

    std::string Caption;
    /// Set by the window's own handlers; the window leaves the collection when the event has ended.
    bool Closing = false;
    /// `Form_Load` has ended; before that a message of its own may stand.
    bool Loaded = false;
    /// A floating window that has stepped aside.
    bool Minimised = false;
    /// How often the window was called to the front; the front end follows each call.
    int FrontCalls = 0;
    /// Place on the screen, twips; the front end keeps it true.
    float Left = 0;
    float Top = 0;
    float Width = 0;
    float Height = 0;
};

/// Every open window but the main one, in the order of opening.
struct WindowCollection {
    std::vector<std::unique_ptr<Window>> Open;
};
