#include "desktop/address_field_view.h"

#include "addresses/address_window.h"
#include "base/guard.h"
#include "base/text.h"
#include "desktop/convert.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QToolTip>

#include <algorithm>
#include <memory>

namespace {

/// The ground in the record's colour, the letters dark on it under every theme.
void Colour(QWidget& widget, const AddressField& record) {
    QPalette palette = widget.palette();
    const QColor ground = convert::ToQColor(record.BackColor);
    if (palette.color(QPalette::Active, QPalette::Base) == ground) {
        return;
    }
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
        palette.setColor(group, QPalette::Base, ground);
        palette.setColor(group, QPalette::Text, Qt::black);
    }
    widget.setPalette(palette);
}

void FollowStates(QWidget& widget, const AddressField& record) {
    Colour(widget, record);
    const QString tip = convert::ToQString(record.ToolTipText);
    if (widget.toolTip() != tip) {
        widget.setToolTip(tip);
        widget.setAccessibleDescription(tip);
    }
    if (widget.isEnabled() != record.Enabled) {
        widget.setEnabled(record.Enabled);
    }
    if (widget.isHidden() == record.Visible) {
        widget.setVisible(record.Visible);
    }
}

void TellRefused(QWidget& widget) {
    QToolTip::showText(widget.mapToGlobal(QPoint(8, widget.height())),
                       QObject::tr("A character was not taken: it cannot be kept here."), &widget);
}

/// The notes as the screen has them: one character a line end.
QString ScreenText(std::string_view value) {
    QString shown;
    for (std::size_t at = 0; at < value.size(); ++at) {
        if (value.substr(at, 2) == text::kCrLf) {
            continue;
        }
        shown += value[at] == '\r' ? QStringLiteral("\n") : convert::ToQString(value.substr(at, 1));
    }
    return shown;
}

} // namespace

AddressLineView::AddressLineView(QWidget* parent, int index, const AddressFieldCalls& calls)
    : QLineEdit(parent), index_(index), calls_(calls) {
    setObjectName(QStringLiteral("txt(%1)").arg(index));
    connect(this, &QLineEdit::textEdited, this, [this] { Report(); });
}

void AddressLineView::Report() {
    if (following_) {
        return;
    }
    const convert::Incoming incoming = convert::FromPerson(text());
    const int cursor = std::min(cursorPosition(), static_cast<int>(incoming.Text.size()));
    calls_.Edited(index_, incoming.Text, cursor);
    if (incoming.Refused > 0) {
        TellRefused(*this);
    }
}

void AddressLineView::Follow(const AddressField& record) {
    record_ = &record;
    const ScopedFlag following(following_);
    if (const QString wanted = convert::ToQString(record.Text); text() != wanted) {
        const int cursor = cursorPosition();
        setText(wanted);
        setCursorPosition(hasFocus() ? std::min(cursor, static_cast<int>(wanted.size())) : 0);
    }
    FollowStates(*this, record);
}

void AddressLineView::TakeFocus(const AddressField& record) {
    setFocus(Qt::OtherFocusReason);
    if (record.SelLength > 0) {
        setSelection(record.SelStart, record.SelLength);
    } else {
        deselect();
        setCursorPosition(record.SelStart);
    }
}

void AddressLineView::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const bool down = event->key() == Qt::Key_Down;
    const bool up = event->key() == Qt::Key_Up;
    const auto held = event->modifiers() & ~Qt::KeypadModifier;
    if ((enter || down || up) && held == Qt::NoModifier && calls_.Moves(index_, enter, !up)) {
        event->accept();
        return;
    }
    QLineEdit::keyPressEvent(event);
}

void AddressLineView::keyReleaseEvent(QKeyEvent* event) {
    QLineEdit::keyReleaseEvent(event);
    if (!event->isAutoRepeat()) {
        calls_.KeyUp(index_, cursorPosition());
    }
}

void AddressLineView::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    calls_.Focused(index_);
}

void AddressLineView::mouseDoubleClickEvent(QMouseEvent* event) {
    QLineEdit::mouseDoubleClickEvent(event);
    calls_.Convert(index_);
}

void AddressLineView::contextMenuEvent(QContextMenuEvent* event) {
    const std::unique_ptr<QMenu> menu(createStandardContextMenu());
    menu->setObjectName(QStringLiteral("FieldMenu"));
    if (calls_.Converts(index_)) {
        menu->addSeparator();
        QAction* convert = menu->addAction(tr("Change &Format"));
        convert->setObjectName(QStringLiteral("ChangeFormat"));
        connect(convert, &QAction::triggered, this, [this] { calls_.Convert(index_); });
    }
    menu->exec(event->globalPos());
}

void AddressLineView::TakeConversion() {
    if (record_ == nullptr) {
        return;
    }
    const QString wanted = convert::ToQString(record_->Text);
    if (text() != wanted) {
        // Put in as an edit, so that one undo takes it back.
        const ScopedFlag following(following_);
        selectAll();
        insert(wanted);
    }
}

AddressNotesView::AddressNotesView(QWidget* parent, int index, const AddressFieldCalls& calls)
    : QPlainTextEdit(parent), index_(index), calls_(calls) {
    setObjectName(QStringLiteral("txt(%1)").arg(index));
    setTabChangesFocus(true);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    connect(this, &QPlainTextEdit::textChanged, this, [this] { Report(); });
}

void AddressNotesView::Report() {
    if (following_) {
        return;
    }
    std::string lines;
    int refused = 0;
    bool first = true;
    for (const QString& line : toPlainText().split(u'\n')) {
        const convert::Incoming incoming = convert::FromPerson(line);
        lines += first ? "" : text::kCrLf;
        lines += incoming.Text;
        refused += incoming.Refused;
        first = false;
    }
    calls_.Edited(index_, lines, ModelCursor());
    if (refused > 0) {
        TellRefused(*this);
    }
}

int AddressNotesView::ModelCursor() const {
    // A line end is two characters in the record.
    const int position = textCursor().position();
    return position + static_cast<int>(toPlainText().left(position).count(u'\n'));
}

void AddressNotesView::Follow(const AddressField& record) {
    const ScopedFlag following(following_);
    if (const QString wanted = ScreenText(record.Text); toPlainText() != wanted) {
        setPlainText(wanted);
    }
    FollowStates(*this, record);
}

void AddressNotesView::TakeFocus(const AddressField& record) {
    setFocus(Qt::OtherFocusReason);
    const std::string_view value(record.Text);
    const auto place = [value](int at) {
        return static_cast<int>(ScreenText(value.substr(0, static_cast<std::size_t>(at))).size());
    };
    QTextCursor cursor = textCursor();
    cursor.setPosition(place(record.SelStart));
    cursor.setPosition(place(record.SelStart + record.SelLength), QTextCursor::KeepAnchor);
    setTextCursor(cursor);
}

void AddressNotesView::keyReleaseEvent(QKeyEvent* event) {
    QPlainTextEdit::keyReleaseEvent(event);
    if (!event->isAutoRepeat()) {
        calls_.KeyUp(index_, ModelCursor());
    }
}

void AddressNotesView::focusInEvent(QFocusEvent* event) {
    QPlainTextEdit::focusInEvent(event);
    calls_.Focused(index_);
}
