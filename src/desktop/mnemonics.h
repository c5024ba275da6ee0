#pragma once

#include <QString>

class QAbstractButton;
class QMainWindow;
class QMenuBar;
class QWidget;

/// Letters that press a button together with Alt, underlined in its caption.
namespace mnemonics {

/// Gives every menu, push button, check box and option of a window a letter of its own: the one that it has,
/// else the first of its words that is free. Letters in `taken`, in lower case, are not given. Signs, as on a
/// calculator's keys, and buttons with a key of their own stay as they are.
void Give(QWidget& window, const QString& taken = {});
/// The letters of a menu bar, in lower case.
[[nodiscard]] QString LettersOf(const QMenuBar& menus);
/// The letters of a main window's menus and of the buttons that stand in it always.
[[nodiscard]] QString LettersOf(const QMainWindow& window);

/// The caption without its mark.
[[nodiscard]] QString Plain(const QString& caption);
/// Sets a button's caption where it is another one; a letter that it was given stays.
void SetCaption(QAbstractButton& button, const QString& caption);

} // namespace mnemonics
