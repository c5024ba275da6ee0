#pragma once

#include <QKeyEvent>

/// What a key pressed in a text area is for, whatever the area makes of it.
namespace keykinds {

enum class Kind {
    Text,      ///< brings characters for the line
    Copy,      ///< copies or marks what stands there
    Paste,     ///< brings in the clipboard's text
    Control,   ///< Backspace, Tab and Enter, which the filters see as characters
    Remove,    ///< Delete, Cut, Undo and Redo: an edit without a character
    Move,      ///< moves the cursor, or nothing at all
    Elsewhere, ///< belongs to a menu, or is a mnemonic that nobody has
};
[[nodiscard]] Kind KindOf(const QKeyEvent& event);

/// Whether a text area wants a key that a menu's shortcut may claim, too.
[[nodiscard]] bool ComesBeforeShortcuts(const QKeyEvent& event);

} // namespace keykinds
