#pragma once

#include "program/window.h"

#include <memory>
#include <string_view>
#include <vector>

struct Program;

/// The small windows that are open.
namespace modWindows {

/// Opens a window: runs Form_Load and puts it last in the collection.
Window& Show(Program& program, std::unique_ptr<Window> window);

/// Closes a window: runs Form_Unload and marks it; `Sweep` takes it out.
void Close(Program& program, Window& window);

/// Takes closed windows out of the collection. Called by the front end and the tests when an event has ended,
/// never while a handler of the window may still be running. Whoever still shows one of them keeps it; the
/// others may let them go.
std::vector<std::unique_ptr<Window>> Sweep(Program& program);

/// The open window of that name, or null.
[[nodiscard]] Window* Find(Program& program, std::string_view name);
[[nodiscard]] const Window* Find(const Program& program, std::string_view name);

/// The modal window that takes all input, or null.
[[nodiscard]] Window* TopModal(Program& program);
[[nodiscard]] const Window* TopModal(const Program& program);

/// An open window comes to the front as it stands.
void BringToFront(Window& window);

/// Asks every window that what is left concerns, the last opened first; ends at the first that must stay.
[[nodiscard]] bool MayLeave(Program& program, Leaving leaving);

/// Closes, without a question, the windows that are about the proposal on show.
void CloseProposalWindows(Program& program);

/// Unsaved work of every window into the backup folder.
void KeepUnsaved(Program& program);

/// Closes all windows from the last to the first.
void UnloadAll(Program& program);

} // namespace modWindows
