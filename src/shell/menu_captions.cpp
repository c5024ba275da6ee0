#include "shell/menu_captions.h"

#include "base/ansi.h"
#include "base/text.h"
#include "shell/command_table.h"

#include <algorithm>
#include <vector>

namespace commands {

namespace {

std::string Plain(std::string_view caption) {
    std::string plain(caption);
    std::erase(plain, '&');
    return plain;
}

/// In lower case; 0 for a caption without one.
char MnemonicOf(std::string_view caption) {
    const std::size_t mark = caption.find('&');
    return mark == std::string_view::npos || mark + 1 >= caption.size()
               ? '\0'
               : text::Lower(caption.substr(mark + 1, 1)).front();
}

std::vector<CommandId> TopMenus() {
    // The two that everybody knows by heart choose first.
    std::vector<CommandId> menus{CommandId::mnuFile, CommandId::mnuEdit};
    for (const Entry& entry : Table()) {
        const bool top = entry.What == Kind::Menu && entry.Parent == CommandId::Count;
        if (top && entry.Id != CommandId::mnuFile && entry.Id != CommandId::mnuEdit) {
            menus.push_back(entry.Id);
        }
    }
    return menus;
}

std::string Marked(const std::string& plain, char letter) {
    const std::size_t at = text::Lower(plain).find(letter);
    return at == std::string::npos ? plain : plain.substr(0, at) + "&" + plain.substr(at);
}

} // namespace

std::string WithOneMnemonic(std::string_view caption) {
    const std::size_t mark = caption.find('&');
    if (mark == std::string_view::npos) {
        return std::string(caption);
    }
    return std::string(caption.substr(0, mark + 1)) + Plain(caption.substr(mark + 1));
}

std::string TopMenuCaption(CommandId menu) {
    std::string taken;
    for (const CommandId id : TopMenus()) {
        const std::string_view caption = Find(id).Caption;
        const std::string plain = Plain(caption);
        char letter = MnemonicOf(caption);
        if (letter == '\0' || taken.find(letter) != std::string::npos) {
            const std::string letters = text::Lower(plain);
            const auto free = std::find_if(letters.begin(), letters.end(), [&](char candidate) {
                return ansi::IsLetter(candidate) && taken.find(candidate) == std::string::npos;
            });
            letter = free == letters.end() ? '\0' : *free;
        }
        if (letter != '\0') {
            taken += letter;
        }
        if (id == menu) {
            // Its own mark may stand at another place than the letter's first.
            return letter != '\0' && letter == MnemonicOf(caption) ? WithOneMnemonic(caption)
                   : letter != '\0'                                ? Marked(plain, letter)
                                                                   : plain;
        }
    }
    return Plain(Find(menu).Caption);
}

} // namespace commands
