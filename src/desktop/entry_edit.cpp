#include "desktop/entry_edit.h"

#include "desktop/convert.h"
#include "desktop/person_text.h"

#include <QKeyEvent>

EntryEdit::EntryEdit(QWidget* parent, const char* name, const QString& spoken) : QLineEdit(parent) {
    setObjectName(QLatin1String(name));
    setAccessibleName(spoken);
    connect(this, &QLineEdit::textEdited, this, [this](const QString& now) { Report(now); });
}

void EntryEdit::Report(const QString& now) {
    QString kept;
    QString left;
    for (const QChar character : person_text::Keepable(now, *this)) {
        const auto byte = convert::ToByte(character);
        if (byte && (TextFilter == nullptr || TextFilter(static_cast<unsigned char>(*byte)) != 0)) {
            kept += character;
        } else {
            left += character;
        }
    }
    if (!left.isEmpty()) {
        person_text::TellNoPlace(left, *this);
    }
    if (kept != now) {
        const int cursor = cursorPosition();
        setText(kept);
        setCursorPosition(cursor - static_cast<int>(now.size() - kept.size()));
    }
    if (Edited) {
        Edited(convert::ToModel(text()));
    }
}

void EntryEdit::keyPressEvent(QKeyEvent* event) {
    if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && Entered) {
        Entered();
        event->accept();
        return;
    }
    const QString typed = event->text();
    const auto modifiers = event->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
    if (KeyFilter != nullptr && typed.size() == 1 && typed.front().isPrint() && modifiers == Qt::NoModifier) {
        const auto byte = convert::ToByte(typed.front());
        if (!byte || KeyFilter(static_cast<unsigned char>(*byte)) == 0) {
            person_text::TellNoPlace(typed, *this);
            return;
        }
    }
    QLineEdit::keyPressEvent(event);
}

void EntryEdit::Follow(const EntryBox& record) {
    if (shown_ && *shown_ == record && text() == convert::ToQString(record.Text)) {
        return;
    }
    const bool marked =
        !shown_ || shown_->SelStart != record.SelStart || shown_->SelLength != record.SelLength;
    const bool replaced = text() != convert::ToQString(record.Text);
    if (replaced) {
        setText(convert::ToQString(record.Text));
    }
    if (marked || (replaced && record.SelLength > 0)) {
        if (record.SelLength > 0) {
            setSelection(record.SelStart, record.SelLength);
        } else {
            deselect();
        }
    }
    if (!shown_ || shown_->BackColor != record.BackColor) {
        QPalette colors;
        if (record.BackColor != ::colors::kWhite) { // white is the desktop's own
            colors.setColor(QPalette::Base, convert::ToQColor(record.BackColor));
            colors.setColor(QPalette::Text, Qt::white);
        }
        setPalette(colors);
    }
    const QString tip = convert::ToQString(record.ToolTipText);
    if (toolTip() != tip) {
        setToolTip(tip);
    }
    if (isEnabled() != record.Enabled) {
        setEnabled(record.Enabled);
    }
    shown_ = record;
}
