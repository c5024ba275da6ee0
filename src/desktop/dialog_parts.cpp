#include "desktop/dialog_parts.h"

#include "desktop/convert.h"

#include <QDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>

namespace dialog {

QLabel* Words(QDialog* dialog, const char* name, const std::string& caption) {
    auto* label = new QLabel(convert::ToQString(caption), dialog);
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

QPushButton* Button(QDialog* dialog, const char* name, const CommandButton& record) {
    auto* button = new QPushButton(convert::ToQString(record.Caption), dialog);
    button->setObjectName(QLatin1String(name));
    button->setAutoDefault(false);
    return button;
}

FilteredEdit::FilteredEdit(QDialog* parent, const char* name, const QString& spoken, int (*filter)(int))
    : QLineEdit(parent), filter_(filter) {
    setObjectName(QLatin1String(name));
    setAccessibleName(spoken);
    connect(this, &QLineEdit::textEdited, this, [this](const QString& now) { Refilter(now); });
}

void FilteredEdit::keyPressEvent(QKeyEvent* event) {
    const QString entered = event->text();
    const auto modifiers = event->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
    if (entered.size() == 1 && entered.front().isPrint() && modifiers == Qt::NoModifier) {
        const auto byte = convert::ToByte(entered.front());
        if (!byte || filter_(static_cast<unsigned char>(*byte)) == 0) {
            return;
        }
    }
    QLineEdit::keyPressEvent(event);
}

void FilteredEdit::Refilter(const QString& now) {
    QString kept;
    for (const QChar character : now) {
        const auto byte = convert::ToByte(character);
        if (byte && filter_(static_cast<unsigned char>(*byte)) != 0) {
            kept += character;
        }
    }
    if (kept != now) {
        setText(kept);
    }
}

} // namespace dialog
