#include "program/windows.h"

#include "program/program.h"

#include <algorithm>
#include <iterator>
#include <utility>

void Window::Form_Cancel(Program& program) {
    modWindows::Close(program, *this);
}

namespace modWindows {

namespace {

Window* Named(const WindowCollection& windows, std::string_view name) {
    for (const std::unique_ptr<Window>& window : windows.Open) {
        if (!window->Closing && window->Name() == name) {
            return window.get();
        }
    }
    return nullptr;
}

Window* LastModal(const WindowCollection& windows) {
    const auto& open = windows.Open;
    const auto found = std::find_if(open.rbegin(), open.rend(), [](const std::unique_ptr<Window>& window) {
        return !window->Closing && window->Mode() == Modality::Modal;
    });
    return found == open.rend() ? nullptr : found->get();
}

} // namespace

Window& Show(Program& program, std::unique_ptr<Window> window) {
    Window& opened = *window;
    program.windows.Open.push_back(std::move(window));
    opened.Form_Load(program);
    opened.Loaded = true;
    return opened;
}

void Close(Program& program, Window& window) {
    if (window.Closing) {
        return;
    }
    window.Closing = true;
    window.Form_Unload(program);
}

std::vector<std::unique_ptr<Window>> Sweep(Program& program) {
    std::vector<std::unique_ptr<Window>>& open = program.windows.Open;
    const auto closed = std::stable_partition(
        open.begin(), open.end(), [](const std::unique_ptr<Window>& window) { return !window->Closing; });
    std::vector<std::unique_ptr<Window>> swept(std::make_move_iterator(closed),
                                               std::make_move_iterator(open.end()));
    open.erase(closed, open.end());
    for (const std::unique_ptr<Window>& window : open) {
        window->Form_Follow(program);
    }
    return swept;
}

Window* Find(Program& program, std::string_view name) {
    return Named(program.windows, name);
}

const Window* Find(const Program& program, std::string_view name) {
    return Named(program.windows, name);
}

Window* TopModal(Program& program) {
    return LastModal(program.windows);
}

const Window* TopModal(const Program& program) {
    return LastModal(program.windows);
}

void BringToFront(Window& window) {
    window.Minimised = false;
    ++window.FrontCalls;
}

bool MayLeave(Program& program, Leaving leaving) {
    // By index: a save within may open a window of its own.
    for (std::size_t index = program.windows.Open.size(); index-- > 0;) {
        Window& window = *program.windows.Open[index];
        const bool concerned = leaving == Leaving::Run || window.BelongsToProposal();
        if (!window.Closing && concerned && !window.MayLeave(program, leaving)) {
            return false;
        }
    }
    return true;
}

void CloseProposalWindows(Program& program) {
    for (std::size_t index = program.windows.Open.size(); index-- > 0;) {
        if (program.windows.Open[index]->BelongsToProposal()) {
            Close(program, *program.windows.Open[index]);
        }
    }
}

void KeepUnsaved(Program& program) {
    for (const std::unique_ptr<Window>& window : program.windows.Open) {
        if (!window->Closing) {
            window->KeepUnsaved(program);
        }
    }
}

void UnloadAll(Program& program) {
    for (std::size_t index = program.windows.Open.size(); index-- > 0;) {
        Close(program, *program.windows.Open[index]);
    }
}

} // namespace modWindows
