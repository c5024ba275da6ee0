#include "desktop/key_kinds.h"

#include "desktop/key_codes.h"
#include "program/keys.h"

namespace keykinds {

namespace {

/// Whether a key brings characters that could stand in a line, marks without a shape included.
bool CarriesText(const QKeyEvent& event) {
    if (event.text().isEmpty()) {
        return false;
    }
    const QChar first = event.text().front();
    return first.isPrint() || first.isSurrogate() || first.category() == QChar::Other_Format ||
           first.category() == QChar::Other_PrivateUse;
}

/// Text that a key enters, as against a command.
bool EntersText(const QKeyEvent& event) {
    if (!CarriesText(event)) {
        return false;
    }
    const Qt::KeyboardModifiers held =
        event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    // Ctrl and Alt together are the third level of many keyboards.
    return held == Qt::NoModifier || held == (Qt::ControlModifier | Qt::AltModifier);
}

} // namespace

Kind KindOf(const QKeyEvent& event) {
    if (event.matches(QKeySequence::Copy) || event.matches(QKeySequence::SelectAll)) {
        return Kind::Copy;
    }
    if (event.matches(QKeySequence::Paste)) {
        return Kind::Paste;
    }
    if (EntersText(event)) {
        return Kind::Text;
    }
    const int code = keycodes::CodeOf(event);
    if (code == keys::kBackspace || code == keys::kTab || code == keys::kEnter) {
        return Kind::Control;
    }
    if (code == keys::kDelete || event.matches(QKeySequence::Cut) || event.matches(QKeySequence::Undo) ||
        event.matches(QKeySequence::Redo)) {
        return Kind::Remove;
    }
    // Ctrl+U and Ctrl+K belong to the menu, also while their entries cannot be had. A letter with Alt is a
    // mnemonic that nobody has; a line edit would enter it past the filter.
    return CarriesText(event) || event.matches(QKeySequence::DeleteCompleteLine) ||
                   event.matches(QKeySequence::DeleteEndOfLine)
               ? Kind::Elsewhere
               : Kind::Move;
}

bool ComesBeforeShortcuts(const QKeyEvent& event) {
    // Shift+Delete cuts where the menu's "Delete Contents" is not to be had.
    const bool shiftDelete = event.key() == Qt::Key_Delete && event.modifiers().testFlag(Qt::ShiftModifier);
    return EntersText(event) || event.matches(QKeySequence::Copy) || event.matches(QKeySequence::Paste) ||
           (event.matches(QKeySequence::Cut) && !shiftDelete) || event.matches(QKeySequence::SelectAll);
}

} // namespace keykinds
