#include "program/windows.h"

#include "program/program.h"

#include <algorithm>

void Window::Form_Cancel(Program& program) {
    modWindows::Close(program, *this);
}

namespace modWindows {

Window& Show(Program& program, std::unique_ptr<Window> window) {
    Window& opened = *window;
    program.windows.Open.push_back(std::move(window));
    opened.Form_Load(program);
    return opened;
}

void Close(Program& program, Window& window) {
    if (window.Closing) {
        return;
    }
    window.Closing = true;
    window.Form_Unload(program);
}

void Sweep(Program& program) {
    std::erase_if(program.windows.Open,
                  [](const std::unique_ptr<Window>& window) { return window->Closing; });
    for (const std::unique_ptr<Window>& window : program.windows.Open) {
        window->Form_Follow(program);
    }
}

Window* Find(Program& program, std::string_view name) {
    for (const std::unique_ptr<Window>& window : program.windows.Open) {
        if (!window->Closing && window->Name() == name) {
            return window.get();
        }
    }
    return nullptr;
}

Window* TopModal(Program& program) {
    const auto& open = program.windows.Open;
    const auto found = std::find_if(open.rbegin(), open.rend(), [](const std::unique_ptr<Window>& window) {
        return !window->Closing && window->Mode() == Modality::Modal;
    });
    return found == open.rend() ? nullptr : found->get();
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
