#include "desktop/mnemonics.h"

#include <QAction>
#include <QCheckBox>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>

namespace mnemonics {

namespace {

constexpr QChar kMark = u'&';
/// Shorter captions are signs, as those of a calculator's keys.
constexpr qsizetype kShortestWord = 2;

/// Where a caption's mark stands; two of them are a sign of their own.
qsizetype MarkIn(const QString& caption) {
    for (qsizetype at = 0; at + 1 < caption.size(); ++at) {
        if (caption.at(at) != kMark) {
            continue;
        }
        if (caption.at(at + 1) != kMark) {
            return at;
        }
        ++at;
    }
    return -1;
}

bool IsFree(QChar letter, const QString& taken) {
    return letter.isLetter() && letter.unicode() < 128 && !taken.contains(letter.toLower());
}

/// The first letter of a word before one within a word.
qsizetype PlaceFor(const QString& caption, const QString& taken) {
    for (const bool head : {true, false}) {
        for (qsizetype at = 0; at < caption.size(); ++at) {
            const bool begins = at == 0 || caption.at(at - 1).isSpace();
            if ((begins || !head) && IsFree(caption.at(at), taken)) {
                return at;
            }
        }
    }
    return -1;
}

QString Lettered(const QString& caption, QString& taken) {
    const qsizetype mark = MarkIn(caption);
    if (mark >= 0 && IsFree(caption.at(mark + 1), taken)) {
        taken += caption.at(mark + 1).toLower();
        return caption;
    }
    QString plain = Plain(caption);
    const qsizetype at = plain.size() < kShortestWord ? -1 : PlaceFor(plain, taken);
    if (at >= 0) {
        taken += plain.at(at).toLower();
        plain.insert(at, kMark);
    }
    return plain;
}

void Note(const QString& caption, QString& taken) {
    if (const qsizetype mark = MarkIn(caption); mark >= 0) {
        taken += caption.at(mark + 1).toLower();
    }
}

/// A caption would take the place of the button's own key.
bool HasItsOwnKey(const QAbstractButton& button) {
    return !button.shortcut().isEmpty() && button.shortcut() != QKeySequence::mnemonic(button.text());
}

template <typename Kind> void GiveTo(Kind& part, QString& taken) {
    const QString caption = Lettered(part.text(), taken);
    if (part.text() != caption) {
        part.setText(caption);
    }
}

bool IsWorded(const QAbstractButton& button) {
    return (qobject_cast<const QPushButton*>(&button) != nullptr ||
            qobject_cast<const QCheckBox*>(&button) != nullptr ||
            qobject_cast<const QRadioButton*>(&button) != nullptr) &&
           !HasItsOwnKey(button);
}

} // namespace

QString Plain(const QString& caption) {
    const qsizetype mark = MarkIn(caption);
    return mark < 0 ? caption : QString(caption).remove(mark, 1);
}

void SetCaption(QAbstractButton& button, const QString& caption) {
    if (Plain(button.text()) != Plain(caption)) {
        button.setText(caption);
    }
}

QString LettersOf(const QMenuBar& menus) {
    QString letters;
    for (const QAction* menu : menus.actions()) {
        Note(menu->text(), letters);
    }
    return letters;
}

QString LettersOf(const QMainWindow& window) {
    QString letters;
    if (const auto* menus = qobject_cast<const QMenuBar*>(window.menuWidget())) {
        letters = LettersOf(*menus);
    }
    if (const auto* strip = window.findChild<const QWidget*>(QStringLiteral("picTop"))) {
        for (const QPushButton* button : strip->findChildren<QPushButton*>()) {
            Note(button->text(), letters);
        }
    }
    return letters;
}

void Give(QWidget& window, const QString& taken) {
    QString given = taken;
    for (const QMenuBar* menus : window.findChildren<QMenuBar*>()) {
        for (QAction* menu : menus->actions()) {
            GiveTo(*menu, given);
        }
    }
    for (const QLabel* label : window.findChildren<QLabel*>()) {
        if (label->buddy() != nullptr) {
            Note(label->text(), given);
        }
    }
    for (QAbstractButton* button : window.findChildren<QAbstractButton*>()) {
        if (IsWorded(*button)) {
            GiveTo(*button, given);
        }
    }
}

} // namespace mnemonics
