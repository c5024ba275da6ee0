#include "desktop/text_area_view.h"

#include "base/guard.h"
#include "desktop/convert.h"
#include "desktop/field_names.h"
#include "desktop/key_codes.h"
#include "desktop/key_kinds.h"
#include "desktop/page_context.h"
#include "desktop/paper_text.h"
#include "desktop/term_drag.h"
#include "pages/fields.h"
#include "pages/page_geometry.h"
#include "pages/spoken_names.h"
#include "program/program.h"
#include "shell/input.h"
#include "terms/placing.h"

#include <QApplication>
#include <QClipboard>
#include <QMimeData>
#include <QMouseEvent>

#include <optional>

namespace {

LinePainter::Side SideOf(const FieldRef& field) {
    const bool right = field.Kind == FieldKind::txt && geometry::RightAligned(field.Page, field.Index);
    return right ? LinePainter::Side::Right : LinePainter::Side::Left;
}

} // namespace

TextAreaView::TextAreaView(PageContext& page, QWidget& paper, const FieldRef& field)
    : DrawnLine(page, paper, SideOf(field)), page_(page), field_(field) {
    setObjectName(fieldnames::OfControl(field));
    Rename();
    setFrame(false);
    setTextMargins(0, 0, 0, 0);
    setContextMenuPolicy(Qt::DefaultContextMenu);
    const bool copy = field.Page == PageId::frmP6_1;
    setFocusPolicy(copy ? Qt::NoFocus : Qt::ClickFocus);
    setAttribute(Qt::WA_TransparentForMouseEvents, copy);
    connect(this, &QLineEdit::textEdited, this, [this] { ReportEdit(); });
}

void TextAreaView::Rename() {
    setAccessibleName(convert::ToQString(modPages::SpokenName(page_.program, field_)));
}

std::string TextAreaView::Model() const {
    return convert::ToModel(text());
}
void TextAreaView::Done() {
    if (page_.AfterEvent) {
        page_.AfterEvent();
    }
}

void TextAreaView::PlaceCursor(const TextArea& record) {
    if (Start() == record.SelStart && Length() == record.SelLength) {
        return;
    }
    if (record.SelLength > 0) {
        setSelection(record.SelStart, record.SelLength);
    } else {
        if (hasSelectedText() && cursorPosition() == record.SelStart) {
            setCursorPosition(0); // what is typed from here on is taken back by itself
        }
        deselect();
        setCursorPosition(record.SelStart);
    }
}

void TextAreaView::Follow(const TextArea& record) {
    // The record's cursor is compared with the widget's: it may have moved without the record's knowing.
    const QString wanted = convert::ToQString(record.Text);
    if (text() != wanted && !TakeCompletion(record, wanted)) {
        setText(wanted);
    }
    if (hasFocus()) {
        PlaceCursor(record);
    }
    if (built_ && record == Shown()) {
        return;
    }
    const TextArea& shown = Shown();
    const bool placed =
        !built_ || record.Left != shown.Left || record.Top != shown.Top || record.Width != shown.Width;
    const bool tip = !built_ || record.ToolTipText != shown.ToolTipText;
    Show(record);
    built_ = true;
    if (placed) {
        setGeometry(page_.OnScreen(static_cast<double>(record.Left), static_cast<double>(record.Top),
                                   static_cast<double>(record.Width), static_cast<double>(record.Height)));
        setFont(paper::Face({record.FontName, qMax(1.0F, record.FontSize / 15), false, false}));
    }
    if (tip) {
        setToolTip(convert::ToQString(record.ToolTipText));
    }
    if (isReadOnly() != record.Locked) {
        setReadOnly(record.Locked);
    }
    if (isEnabled() != record.Enabled) {
        setEnabled(record.Enabled);
    }
    KeepCaretInView();
    update();
}

bool TextAreaView::TakeCompletion(const TextArea& record, const QString& wanted) {
    const auto typed = text().size();
    if (!hasFocus() || record.SelLength == 0 || record.SelStart != typed || !wanted.startsWith(text()) ||
        !Composed().isEmpty()) {
        return false;
    }
    const ScopedFlag following(following_);
    // A cursor that has moved ends what one undo takes back: the typed letters stay.
    setCursorPosition(0);
    setCursorPosition(static_cast<int>(typed));
    insert(wanted.mid(typed));
    return text() == wanted;
}

void TextAreaView::ReportEdit() {
    if (following_) {
        return;
    }
    reported_ = true;
    const std::string now = Model();
    if (byKey_) {
        modInput::Edited(page_.program, field_, now, cursorPosition(), 0);
    } else {
        modInput::EditedWithoutKey(page_.program, field_, now, cursorPosition(), 0);
    }
}

bool TextAreaView::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride) {
        // The menu's shortcuts come before a line edit's own; only plain characters are claimed.
        const auto& key = static_cast<const QKeyEvent&>(*event);
        event->setAccepted(keykinds::ComesBeforeShortcuts(key));
        return event->isAccepted();
    }
    return DrawnLine::event(event);
}

void TextAreaView::TakeIn(const QString& incomingText) {
    const convert::Incoming incoming = convert::FromPerson(incomingText);
    const auto taken = modInput::Accept(page_.program, field_, incoming.Text, incoming.Refused);
    if (!taken) {
        return;
    }
    // Also while another window has the keyboard, as it has during a drop.
    const TextArea& record = modFields::Area(page_.program, field_);
    Follow(record);
    PlaceCursor(record);
    reported_ = false;
    insert(convert::ToQString(*taken));
    if (!reported_) {
        ReportEdit();
    }
}

void TextAreaView::TakeRecord() {
    const TextArea& record = modFields::Area(page_.program, field_);
    const QString wanted = convert::ToQString(record.Text);
    if (text() == wanted) {
        return;
    }
    const ScopedFlag following(following_);
    setSelection(0, static_cast<int>(text().size()));
    insert(wanted);
}

void TextAreaView::Character(QKeyEvent* event, char byte) {
    Program& program = page_.program;
    if (modInput::KeyPress(program, static_cast<unsigned char>(byte)) == 0) {
        return;
    }
    // The filter may have emptied a placeholder.
    Follow(modFields::Area(program, field_));
    QLineEdit::keyPressEvent(event);
}

void TextAreaView::keyPressEvent(QKeyEvent* event) {
    Program& program = page_.program;
    RestartCaret();
    event->accept();
    if (modInput::TextMenuOpens(program)) {
        return; // the key that opens the menu arrives while it opens
    }
    if (program.main.Focus != field_) {
        modInput::FieldEntered(program, field_);
    }
    const int code = keycodes::CodeOf(*event);
    if (modInput::KeyDown(program, code, keycodes::ShiftOf(*event), Start(), Length()) == Taken::Yes) {
        if (event->matches(QKeySequence::Paste)) {
            TakeRecord();
        }
        Done();
        return;
    }
    reported_ = false;
    {
        const ScopedFlag typed(byKey_);
        KeyTyped(event, code);
    }
    // After an edit the cursor is where the model has left it.
    if (!reported_ && program.main.Focus == field_) {
        modInput::CursorMoved(program, field_, Start(), Length());
    }
    Done();
}

void TextAreaView::TextTyped(QKeyEvent* event) {
    const std::optional<char> byte = convert::ToByte(event->text().front());
    if (byte && event->text().size() == 1) {
        Character(event, *byte);
        return;
    }
    // More than one character from one key, or one that is more than one unit: as an input method's.
    QInputMethodEvent several;
    several.setCommitString(event->text());
    inputMethodEvent(&several);
}

void TextAreaView::KeyTyped(QKeyEvent* event, int code) {
    using keykinds::Kind;
    switch (keykinds::KindOf(*event)) {
    case Kind::Copy:
        QLineEdit::keyPressEvent(event);
        break;
    case Kind::Paste:
        TakeIn(QGuiApplication::clipboard()->text());
        break;
    case Kind::Text:
        TextTyped(event);
        break;
    case Kind::Control:
        Character(event, static_cast<char>(code));
        break;
    case Kind::Remove:
        if (modInput::MayEdit(page_.program, field_)) {
            QLineEdit::keyPressEvent(event);
        }
        break;
    case Kind::Move:
        QLineEdit::keyPressEvent(event);
        event->accept();
        break;
    case Kind::Elsewhere:
        break;
    }
}

void TextAreaView::keyReleaseEvent(QKeyEvent* event) {
    event->accept();
    if (event->isAutoRepeat()) {
        return;
    }
    Program& program = page_.program;
    // The key may have led to another field, whose cursor this one does not know.
    const bool here = program.main.Focus == field_;
    const TextArea* const there =
        program.main.Focus ? &modFields::Area(program, *program.main.Focus) : nullptr;
    modInput::KeyUp(program, keycodes::CodeOf(*event), keycodes::ShiftOf(*event),
                    here || there == nullptr ? Start() : there->SelStart,
                    here || there == nullptr ? Length() : there->SelLength);
    Done();
}

void TextAreaView::inputMethodEvent(QInputMethodEvent* event) {
    Program& program = page_.program;
    if (!modInput::MayEdit(program, field_)) {
        event->accept(); // composing, too, would take away what is marked
        if (!Composed().isEmpty()) {
            // Begun before the areas were selected; what was not yet entered goes.
            Compose({});
            QInputMethodEvent nothing;
            QLineEdit::inputMethodEvent(&nothing);
            update();
        }
        return;
    }
    QString taken;
    int refused = 0;
    for (const QChar character : event->commitString()) {
        const std::optional<char> byte = convert::ToByte(character);
        if (!byte) {
            refused += character.isLowSurrogate() ? 0 : 1;
        } else if (modInput::KeyPress(program, static_cast<unsigned char>(*byte)) != 0) {
            taken += character;
        }
    }
    if (refused > 0) {
        modInput::TellRefused(program, refused);
    }
    Follow(modFields::Area(program, field_));
    QInputMethodEvent filtered(event->preeditString(), event->attributes());
    filtered.setCommitString(taken, event->replacementStart(), event->replacementLength());
    Compose(event->preeditString());
    QLineEdit::inputMethodEvent(&filtered);
    event->accept();
    update();
    Done();
}

void TextAreaView::mousePressEvent(QMouseEvent* event) {
    const int position = PositionAt(event->position().x());
    const bool extend = event->modifiers().testFlag(Qt::ShiftModifier) && hasFocus();
    const bool right = event->button() == Qt::RightButton;
    int anchor = position;
    if (extend) {
        anchor = Length() > 0 && cursorPosition() == Start() ? Start() + Length()
                 : Length() > 0                              ? Start()
                                                             : cursorPosition();
    }
    const bool inMarked = event->button() == Qt::LeftButton && !extend && hasFocus() && position > Start() &&
                          position < Start() + Length();
    press_.Begin(extend     ? TextAreaPress::Doing::Marking
                 : inMarked ? TextAreaPress::Doing::InMarked
                            : TextAreaPress::Doing::Nothing,
                 anchor, event->position().x());
    int start = qMin(anchor, position);
    int length = qAbs(position - anchor);
    if ((right && hasFocus()) || inMarked) {
        // A marked text stays marked, for the menu's commands or to be dragged.
        start = Start();
        length = Length();
    }
    event->accept();
    RestartCaret();
    modInput::FieldMouseDown(page_.program, field_, right ? 2 : 1, start, length);
    Done();
    if (modInput::TextMenuOpens(page_.program) && page_.AskForMenu) {
        page_.AskForMenu(event->globalPosition().toPoint());
    }
}

void TextAreaView::mouseMoveEvent(QMouseEvent* event) {
    event->accept();
    if (!event->buttons().testFlag(Qt::LeftButton)) {
        return;
    }
    const int position = PositionAt(event->position().x());
    press_.Move(position, event->position().x());
    if (press_.HoldsMarked()) {
        update();
    } else if (press_.Marks()) {
        modInput::CursorMoved(page_.program, field_, qMin(press_.Anchor(), position),
                              qAbs(position - press_.Anchor()));
        Done();
    }
}

void TextAreaView::mouseReleaseEvent(QMouseEvent* event) {
    event->accept();
    if (press_.HoldsMarked()) {
        const std::optional<int> dropAt = press_.DropAt();
        press_.End();
        if (dropAt) {
            modInput::MoveMarked(page_.program, field_, *dropAt);
            TakeRecord();
        } else {
            modInput::CursorMoved(page_.program, field_, PositionAt(event->position().x()), 0);
        }
        Done();
    }
    modInput::FieldMouseUp(page_.program, field_, Start(), Length());
    if (event->button() == Qt::MiddleButton) {
        TakeIn(page_.MarkedText ? page_.MarkedText()
                                : QGuiApplication::clipboard()->text(QClipboard::Selection));
    } else {
        OfferMarkedText();
    }
    Done();
}

void TextAreaView::OfferMarkedText() const {
    if (hasSelectedText() && QGuiApplication::clipboard()->supportsSelection()) {
        QGuiApplication::clipboard()->setText(selectedText(), QClipboard::Selection);
    }
}

void TextAreaView::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        mousePressEvent(event); // pasting twice in a row is no double-click
        return;
    }
    event->accept();
    modInput::FieldDblClick(page_.program, field_, PositionAt(event->position().x()));
    Done();
}

void TextAreaView::TermOver(QDropEvent* event) {
    if (modTerms::TakesDrop(page_.program, field_, page_.program.terms.DraggedTerm)) {
        ShowSign(DragSign::Takes);
        event->acceptProposedAction();
    } else {
        ShowSign(DragSign::Refuses);
        event->setDropAction(Qt::IgnoreAction);
        event->ignore();
    }
}

void TextAreaView::dragEnterEvent(QDragEnterEvent* event) {
    if (!termdrag::Is(event->mimeData())) {
        QLineEdit::dragEnterEvent(event);
        return;
    }
    TermOver(event);
    event->accept(); // the moves that follow answer; only who has taken the entry is told when it ends
}

void TextAreaView::dragMoveEvent(QDragMoveEvent* event) {
    if (!termdrag::Is(event->mimeData())) {
        QLineEdit::dragMoveEvent(event);
    } else {
        TermOver(event);
    }
}

void TextAreaView::dragLeaveEvent(QDragLeaveEvent* event) {
    ShowSign(DragSign::None);
    QLineEdit::dragLeaveEvent(event);
}

void TextAreaView::dropEvent(QDropEvent* event) {
    if (termdrag::Is(event->mimeData())) {
        Program& program = page_.program;
        program.main.Notice.clear();
        ShowSign(DragSign::None);
        if (modTerms::txt_DragDrop(program, field_, program.terms.DraggedTerm)) {
            TakeRecord(); // one undo takes it back
            program.main.BringUp = true;
            event->acceptProposedAction();
        } else {
            event->ignore();
        }
        Done();
        return;
    }
    const int position = PositionAt(event->position().x());
    modInput::FieldMouseDown(page_.program, field_, 1, position, 0);
    Done(); // the widget has the keyboard and the cursor now
    TakeIn(event->mimeData()->text());
    event->acceptProposedAction();
    Done();
}

void TextAreaView::focusInEvent(QFocusEvent* event) {
    const int start = cursorPosition();
    QLineEdit::focusInEvent(event);
    RestartCaret();
    if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason) {
        deselect();
        setCursorPosition(start);
        modInput::FieldEntered(page_.program, field_);
        Done();
    } else if (page_.program.main.Focus == field_ && event->reason() != Qt::MouseFocusReason) {
        // Another window may have moved the cursor, a search for instance.
        PlaceCursor(modFields::Area(page_.program, field_));
    }
    KeepCaretInView();
    update();
}

void TextAreaView::focusOutEvent(QFocusEvent* event) {
    // Leaving is the model's affair; a window that loses the keyboard leaves no field.
    QLineEdit::focusOutEvent(event);
    HideCaret();
    KeepCaretInView();
    update();
}

void TextAreaView::contextMenuEvent(QContextMenuEvent* event) {
    event->accept();
    // By mouse the press has opened it already; this is the keyboard's menu key.
    if (event->reason() == QContextMenuEvent::Keyboard) {
        modInput::FieldMouseDown(page_.program, field_, 2, Start(), Length());
        Done();
        if (modInput::TextMenuOpens(page_.program) && page_.AskForMenu) {
            page_.AskForMenu(mapToGlobal(rect().bottomLeft()));
        }
    }
}
