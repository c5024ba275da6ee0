#include "desktop/field_views.h"

#include "base/ansi.h"
#include "desktop/convert.h"
#include "desktop/key_codes.h"
#include "desktop/page_context.h"
#include "desktop/paper_surface.h"
#include "desktop/paper_text.h"
#include "pages/fields.h"
#include "pages/page_geometry.h"
#include "program/program.h"
#include "shell/input.h"

#include <QApplication>
#include <QClipboard>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleHints>

#include <algorithm>
#include <cmath>

namespace {

constexpr double kCaretWidth = 22; // twips, 1.1 point
constexpr double kRingWidth = 1.5; // pixels

QRect OnScreen(double left, double top, double width, double height, double scale) {
    const int x = static_cast<int>(std::floor(left * scale));
    const int y = static_cast<int>(std::floor(top * scale));
    return {x, y, static_cast<int>(std::ceil((left + width) * scale)) - x,
            static_cast<int>(std::ceil((top + height) * scale)) - y};
}

QString FieldName(const FieldRef& field) {
    const char* array = field.Kind == FieldKind::txtQty   ? "txtQty"
                        : field.Kind == FieldKind::txtAmt ? "txtAmt"
                                                          : "txt";
    return QStringLiteral("%1(%2)").arg(QLatin1String(array)).arg(field.Index);
}

QString SpokenName(const FieldRef& field) {
    const int page = qMin(IndexOf(field.Page), kEditedPageCount - 1) + 1;
    const QString what = field.Kind == FieldKind::txtQty   ? QObject::tr("Quantity")
                         : field.Kind == FieldKind::txtAmt ? QObject::tr("Unit Price")
                                                           : QObject::tr("Text Area");
    return QObject::tr("Page %1, %2 %3").arg(page).arg(what).arg(field.Index + 1);
}

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

TextAreaView::TextAreaView(PageContext& page, QWidget& paper, const FieldRef& field)
    : QLineEdit(&paper), page_(page), field_(field) {
    setObjectName(FieldName(field));
    setAccessibleName(SpokenName(field));
    setFrame(false);
    setTextMargins(0, 0, 0, 0);
    setContextMenuPolicy(Qt::DefaultContextMenu);
    const bool copy = field.Page == PageId::frmP6_1;
    setFocusPolicy(copy ? Qt::NoFocus : Qt::ClickFocus);
    setAttribute(Qt::WA_TransparentForMouseEvents, copy);
    setAttribute(Qt::WA_OpaquePaintEvent);
    connect(this, &QLineEdit::textEdited, this, [this] { ReportEdit(); });
}

TextFont TextAreaView::FontNow() const {
    return {shown_.FontName, shown_.FontSize, shown_.FontBold, shown_.FontItalic};
}

std::string TextAreaView::Model() const {
    return convert::ToModel(text());
}
int TextAreaView::Start() const {
    return hasSelectedText() ? selectionStart() : cursorPosition();
}
int TextAreaView::Length() const {
    return hasSelectedText() ? selectionLength() : 0;
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
        deselect();
        setCursorPosition(record.SelStart);
    }
}

void TextAreaView::Follow(const TextArea& record) {
    // The record's cursor is compared with the widget's: it may have moved without the record's knowing.
    const QString wanted = convert::ToQString(record.Text);
    if (text() != wanted) {
        setText(wanted);
    }
    if (hasFocus()) {
        PlaceCursor(record);
    }
    if (built_ && record == shown_) {
        return;
    }
    const bool placed =
        !built_ || record.Left != shown_.Left || record.Top != shown_.Top || record.Width != shown_.Width;
    const bool tip = !built_ || record.ToolTipText != shown_.ToolTipText;
    shown_ = record;
    built_ = true;
    if (placed) {
        setGeometry(OnScreen(static_cast<double>(record.Left), static_cast<double>(record.Top),
                             static_cast<double>(record.Width), static_cast<double>(record.Height),
                             page_.Scale));
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

double TextAreaView::TextWidth() const {
    return static_cast<double>(page_.measure.Width(shown_.Text, FontNow()));
}

double TextAreaView::Origin() const {
    const bool right = field_.Kind == FieldKind::txt && geometry::RightAligned(field_.Page, field_.Index);
    // While figures are typed the caret stands behind the last of them, not on it.
    const double caret = hasFocus() && !isReadOnly() ? CaretRoom() : 0;
    const double room = static_cast<double>(shown_.Width) - TextWidth() - caret;
    return right && room > 0 ? room : -scroll_;
}

double TextAreaView::TextLeft() const {
    return static_cast<double>(shown_.Left) + Origin();
}

void TextAreaView::KeepCaretInView() {
    const double width = static_cast<double>(shown_.Width);
    if (TextWidth() + CaretRoom() <= width) {
        scroll_ = 0;
        return;
    }
    const double caret = page_.measure.XOf(shown_.Text, cursorPosition(), FontNow());
    if (!hasFocus()) {
        scroll_ = 0;
    } else if (caret < scroll_) {
        scroll_ = caret;
    } else if (caret + CaretRoom() > scroll_ + width) {
        scroll_ = caret + CaretRoom() - width;
    }
}

int TextAreaView::PositionAt(double x) const {
    const double left = static_cast<double>(shown_.Left) * page_.Scale - geometry().x();
    const double twips = (x - left) / page_.Scale - Origin();
    return page_.measure.PositionAt(shown_.Text, twips, FontNow());
}

void TextAreaView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), convert::ToQColor(shown_.BackColor));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::TextAntialiasing);
    painter.save();
    // The widget stands on whole pixels, the text where the paper has it.
    painter.translate(static_cast<double>(shown_.Left) * page_.Scale - geometry().x(),
                      static_cast<double>(shown_.Top) * page_.Scale - geometry().y());
    painter.scale(page_.Scale, page_.Scale);
    const TextFont font = FontNow();
    const QtTextMeasure& measure = page_.measure;
    const std::string words = Model();
    const double origin = Origin();
    const QColor ink = convert::ToQColor(shown_.ForeColor);
    painter.setPen(ink);
    if (preedit_.isEmpty()) {
        paper::Draw(painter, {origin, 0}, words, font);
    } else {
        const QFont face = paper::Face(font);
        const QString whole = text().left(cursorPosition()) + preedit_ + text().mid(cursorPosition());
        painter.setFont(face);
        painter.drawText(QPointF(origin, paper::Ascent(font)), whole);
    }
    const double height = static_cast<double>(shown_.Height);
    if (Length() > 0 && (hasFocus() || !isActiveWindow())) {
        const double from = origin + measure.XOf(words, Start(), font);
        const double to = origin + measure.XOf(words, Start() + Length(), font);
        const QRectF marked(from, 0, to - from, height);
        painter.fillRect(marked, QColor(0x0B, 0x3D, 0x6E));
        painter.setClipRect(marked);
        painter.setPen(Qt::white);
        paper::Draw(painter, {origin, 0}, words, font);
        painter.setClipping(false);
    } else if (hasFocus() && caretOn_ && !isReadOnly()) {
        const double x = CaretAt(origin + measure.XOf(words, cursorPosition(), font));
        painter.fillRect(QRectF(x, 8, kCaretWidth, height - 16), ink);
    }
    if (dragging_) {
        const double x = CaretAt(origin + measure.XOf(words, dropAt_, font));
        painter.fillRect(QRectF(x, 8, kCaretWidth, height - 16), ink);
    }
    painter.restore();
    if (hasFocus()) {
        DrawRing(painter);
    }
}

double TextAreaView::RingInside() const {
    // In a selected area the ring is white and stands off the edge, or it would pass for the paper around.
    return shown_.BackColor == colors::kBlockSelected ? 2 : kRingWidth / 2;
}

double TextAreaView::CaretRoom() const {
    return kCaretWidth + (RingInside() + kRingWidth / 2 + 1) / page_.Scale;
}

double TextAreaView::CaretAt(double x) const {
    // Text begins and ends at the very edge of its area, where the ring is.
    const double first = CaretRoom() - kCaretWidth;
    return std::clamp(x, first, qMax(first, static_cast<double>(shown_.Width) - CaretRoom()));
}

void TextAreaView::DrawRing(QPainter& painter) const {
    // Colour alone must not tell where the keyboard is.
    const bool selected = shown_.BackColor == colors::kBlockSelected;
    const double inside = RingInside();
    painter.setPen(QPen(selected ? QColor(Qt::white) : QColor(0x0B, 0x3D, 0x6E), kRingWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(QRectF(rect()).adjusted(inside, inside, -inside, -inside));
}

void TextAreaView::ReportEdit() {
    if (silent_) {
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
        // Shift+Delete cuts where the menu's "Delete Contents" is not to be had.
        const bool shiftDelete = key.key() == Qt::Key_Delete && key.modifiers().testFlag(Qt::ShiftModifier);
        if (EntersText(key) || key.matches(QKeySequence::Copy) || key.matches(QKeySequence::Paste) ||
            (key.matches(QKeySequence::Cut) && !shiftDelete) || key.matches(QKeySequence::SelectAll)) {
            event->accept();
        } else {
            event->ignore();
        }
        return event->isAccepted();
    }
    return QLineEdit::event(event);
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
    silent_ = true;
    setSelection(0, static_cast<int>(text().size()));
    insert(wanted);
    silent_ = false;
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
    byKey_ = true;
    reported_ = false;
    KeyTyped(event, code);
    byKey_ = false;
    // After an edit the cursor is where the model has left it.
    if (!reported_ && program.main.Focus == field_) {
        modInput::CursorMoved(program, field_, Start(), Length());
    }
    Done();
}

void TextAreaView::KeyTyped(QKeyEvent* event, int code) {
    Program& program = page_.program;
    if (event->matches(QKeySequence::Copy) || event->matches(QKeySequence::SelectAll)) {
        QLineEdit::keyPressEvent(event);
    } else if (event->matches(QKeySequence::Paste)) {
        TakeIn(QGuiApplication::clipboard()->text());
    } else if (EntersText(*event)) {
        const std::optional<char> byte = convert::ToByte(event->text().front());
        if (byte && event->text().size() == 1) {
            Character(event, *byte);
        } else {
            // More than one character from one key, or one that is more than one unit: as an input method's.
            QInputMethodEvent several;
            several.setCommitString(event->text());
            inputMethodEvent(&several);
        }
    } else if (code == 8 || code == 9 || code == 13) {
        Character(event, static_cast<char>(code));
    } else if (code == 46 || event->matches(QKeySequence::Cut) || event->matches(QKeySequence::Undo) ||
               event->matches(QKeySequence::Redo)) {
        if (modInput::MayEdit(program, field_)) {
            QLineEdit::keyPressEvent(event);
        }
    } else if (!CarriesText(*event) && !event->matches(QKeySequence::DeleteCompleteLine) &&
               !event->matches(QKeySequence::DeleteEndOfLine)) {
        // Ctrl+U and Ctrl+K belong to the menu, also while their entries cannot be had. A letter with Alt is
        // a mnemonic that nobody has; a line edit would enter it past the filter.
        QLineEdit::keyPressEvent(event);
        event->accept();
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
        if (!preedit_.isEmpty()) {
            // Begun before the areas were selected; what was not yet entered goes.
            preedit_.clear();
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
    preedit_ = event->preeditString();
    QLineEdit::inputMethodEvent(&filtered);
    event->accept();
    update();
    Done();
}

void TextAreaView::mousePressEvent(QMouseEvent* event) {
    const int position = PositionAt(event->position().x());
    const bool extend = event->modifiers().testFlag(Qt::ShiftModifier) && hasFocus();
    const bool right = event->button() == Qt::RightButton;
    if (!extend) {
        anchor_ = position;
    } else if (Length() > 0) {
        anchor_ = cursorPosition() == Start() ? Start() + Length() : Start();
    } else {
        anchor_ = cursorPosition();
    }
    pressedAt_ = event->position().x();
    marking_ = extend;
    int start = qMin(anchor_, position);
    int length = qAbs(position - anchor_);
    pressedInMarked_ = event->button() == Qt::LeftButton && !extend && hasFocus() && position > Start() &&
                       position < Start() + Length();
    if ((right && hasFocus()) || pressedInMarked_) {
        // A marked text stays marked, for the menu's commands or to be dragged.
        start = Start();
        length = Length();
    }
    event->accept();
    RestartCaret();
    modInput::FieldMouseDown(page_.program, field_, right ? 2 : 1, 0, start, length);
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
    const int moved = qAbs(qRound(event->position().x() - pressedAt_));
    if (pressedInMarked_) {
        dragging_ = dragging_ || moved >= QGuiApplication::styleHints()->startDragDistance();
        dropAt_ = position;
        update();
        return;
    }
    // A clicking hand is never quite still, and a figure makes room for the caret as its field is entered.
    constexpr int kStill = 4;
    marking_ = marking_ || moved >= kStill;
    if (!marking_) {
        return;
    }
    modInput::CursorMoved(page_.program, field_, qMin(anchor_, position), qAbs(position - anchor_));
    Done();
}

void TextAreaView::mouseReleaseEvent(QMouseEvent* event) {
    event->accept();
    if (pressedInMarked_) {
        pressedInMarked_ = false;
        if (dragging_) {
            dragging_ = false;
            modInput::MoveMarked(page_.program, field_, dropAt_);
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

void TextAreaView::SelectWordAt(int position) {
    const QString all = text();
    const auto inWord = [&](int at) { return all.at(at).isLetterOrNumber() || all.at(at) == u'\''; };
    int from = qMin(position, static_cast<int>(all.size()));
    int to = from;
    while (from > 0 && inWord(from - 1)) {
        --from;
    }
    while (to < all.size() && inWord(to)) {
        ++to;
    }
    modInput::CursorMoved(page_.program, field_, from, to - from);
}

void TextAreaView::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        mousePressEvent(event); // pasting twice in a row is no double-click
        return;
    }
    event->accept();
    Program& program = page_.program;
    const QString before = text();
    const auto focus = program.main.Focus;
    modInput::FieldDblClick(program, field_);
    if (program.main.Focus == focus && modFields::Area(program, field_).Text == convert::ToModel(before) &&
        (field_.Kind != FieldKind::txt || !geometry::IsDescription(field_.Page, field_.Index))) {
        SelectWordAt(PositionAt(event->position().x()));
    }
    Done();
}

void TextAreaView::dropEvent(QDropEvent* event) {
    const int position = PositionAt(event->position().x());
    modInput::FieldMouseDown(page_.program, field_, 1, 0, position, 0);
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
    }
    KeepCaretInView();
    update();
}

void TextAreaView::focusOutEvent(QFocusEvent* event) {
    // Leaving is the model's affair; a window that loses the keyboard leaves no field.
    QLineEdit::focusOutEvent(event);
    blink_.stop();
    caretOn_ = false;
    KeepCaretInView();
    update();
}

void TextAreaView::RestartCaret() {
    caretOn_ = true;
    const int flash = QGuiApplication::styleHints()->cursorFlashTime();
    if (flash > 0) {
        blink_.start(flash / 2, this);
    }
    update();
}

void TextAreaView::timerEvent(QTimerEvent* event) {
    if (event->timerId() == blink_.timerId()) {
        caretOn_ = !caretOn_;
        update();
        return;
    }
    QLineEdit::timerEvent(event);
}

void TextAreaView::contextMenuEvent(QContextMenuEvent* event) {
    event->accept();
    // By mouse the press has opened it already; this is the keyboard's menu key.
    if (event->reason() == QContextMenuEvent::Keyboard) {
        modInput::FieldMouseDown(page_.program, field_, 2, 0, Start(), Length());
        Done();
        if (modInput::TextMenuOpens(page_.program) && page_.AskForMenu) {
            page_.AskForMenu(mapToGlobal(rect().bottomLeft()));
        }
    }
}

LabelView::LabelView(PageContext& page, QWidget& paper, FieldKind kind, int index)
    : QLabel(&paper), page_(page) {
    const char* array = kind == FieldKind::lblAt ? "lblAt" : kind == FieldKind::lblEach ? "lblEach" : "lbl";
    setObjectName(QStringLiteral("%1(%2)").arg(QLatin1String(array)).arg(index));
    setTextFormat(Qt::PlainText);
}

void LabelView::Follow(const PageLabel& record) {
    if (built_ && record == shown_) {
        return;
    }
    shown_ = record;
    built_ = true;
    setText(convert::ToQString(record.Caption));
    setToolTip(convert::ToQString(record.ToolTipText));
    const TextFont font{record.FontName, record.FontSize, record.FontBold, record.FontItalic};
    setGeometry(OnScreen(static_cast<double>(record.Left), static_cast<double>(record.Top),
                         static_cast<double>(page_.measure.Width(record.Caption, font)) + 30,
                         static_cast<double>(page_.measure.Height(font)), page_.Scale));
    update();
}

void LabelView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (shown_.BackStyle == 1) {
        painter.fillRect(rect(), convert::ToQColor(shown_.BackColor));
    }
    painter.setRenderHint(QPainter::TextAntialiasing);
    painter.translate(static_cast<double>(shown_.Left) * page_.Scale - geometry().x(),
                      static_cast<double>(shown_.Top) * page_.Scale - geometry().y());
    painter.scale(page_.Scale, page_.Scale);
    painter.setPen(convert::ToQColor(shown_.ForeColor));
    paper::Draw(painter, {0, 0}, shown_.Caption,
                {shown_.FontName, shown_.FontSize, shown_.FontBold, shown_.FontItalic}, shown_.FontUnderline);
}

LogoView::LogoView(PageContext& page, QWidget& paper) : QWidget(&paper), page_(page) {
    setObjectName(QStringLiteral("pic"));
    setAccessibleName(tr("Logo"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void LogoView::Follow(const PagePicture& record) {
    if (record == shown_) {
        return;
    }
    if (record.Picture != shown_.Picture) {
        picture_ = paper::LogoPicture(record.Picture.Path);
    }
    shown_ = record;
    setGeometry(OnScreen(static_cast<double>(record.Left), static_cast<double>(record.Top),
                         static_cast<double>(record.Size.Width), static_cast<double>(record.Size.Height),
                         page_.Scale));
    update();
}

void LogoView::paintEvent(QPaintEvent*) {
    if (picture_.isNull()) {
        return;
    }
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.translate(static_cast<double>(shown_.Left) * page_.Scale - geometry().x(),
                      static_cast<double>(shown_.Top) * page_.Scale - geometry().y());
    painter.scale(page_.Scale, page_.Scale);
    painter.drawImage(
        QRectF(0, 0, static_cast<double>(shown_.Size.Width), static_cast<double>(shown_.Size.Height)),
        picture_);
}

MarkView::MarkView(PageContext& page, QWidget& paper, int index) : QAbstractButton(&paper), page_(page) {
    setObjectName(QStringLiteral("imgNoTax(%1)").arg(index));
    setAccessibleName(tr("Tax exempt: %1").arg(SpokenName({page.Id, FieldKind::txt, index})));
    setToolTip(tr("This amount is tax exempt. Click to make it taxable."));
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::NoFocus);
    connect(this, &QAbstractButton::clicked, this, [this, index] {
        modInput::NoTaxMarkClick(page_.program, page_.Id, index);
        if (page_.AfterEvent) {
            page_.AfterEvent();
        }
    });
}

void MarkView::Follow(const PageImage& record) {
    if (!(record == shown_)) {
        shown_ = record;
        setGeometry(OnScreen(static_cast<double>(record.Left), static_cast<double>(record.Top),
                             static_cast<double>(record.Width), static_cast<double>(record.Height),
                             page_.Scale));
    }
}

void MarkView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paper::DrawNoTaxMark(painter, {0, 0}, qMin(width(), height()));
}
