#include "desktop/contract_edit.h"

#include "base/guard.h"
#include "contract/frm_editor.h"
#include "desktop/contract_layout.h"
#include "desktop/convert.h"
#include "desktop/paper_surface.h"
#include "desktop/person_text.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QScrollBar>
#include <QTextBlock>

#include <algorithm>

namespace {

/// With LF for each line end, as the document counts.
QString Shown(const std::string& text) {
    QString shown = convert::ToQString(text);
    shown.remove(u'\r');
    return shown;
}

} // namespace

ContractEdit::ContractEdit(QWidget* parent, frmEditor& editor) : QTextEdit(parent), editor_(editor) {
    setObjectName(QStringLiteral("txtCharCount"));
    setAcceptRichText(false);
    setLineWrapMode(QTextEdit::NoWrap);
    setTabChangesFocus(true);
    setUndoRedoEnabled(false);
    verticalScrollBar()->setObjectName(QStringLiteral("VScroll1"));
    auto* text = new QTextDocument(this);
    text->setUndoRedoEnabled(false);
    layout_ = new ContractLayout(text);
    layout_->Lines = [this]() -> const std::vector<modWrap::Piece>& { return editor_.Shown().Lines(); };
    text->setDocumentLayout(layout_);
    setDocument(text);
    // The model knows of an edit before its lines are laid out.
    connect(text, &QTextDocument::contentsChange, this, [this] { TakeEdit(); });
    // What follows from it waits until they are.
    connect(this, &QTextEdit::textChanged, this, [this] {
        if (!following_ && Do) {
            Do([] {});
        }
    });
    connect(this, &QTextEdit::cursorPositionChanged, this, [this] { TakeCaret(); });
    connect(this, &QTextEdit::selectionChanged, this, [this] { TakeCaret(); });
}

double ContractEdit::PixelsPerTwip() const {
    return static_cast<double>(logicalDpiX()) / paper::kTwipsPerInch;
}

int ContractEdit::ModelPlace(int place) const {
    return place + document()->findBlock(place).blockNumber();
}

int ContractEdit::DocumentPlace(int place) const {
    const std::string& text = editor_.Shown().Text();
    const auto end = text.begin() + std::clamp(place, 0, static_cast<int>(text.size()));
    return place - static_cast<int>(std::count(text.begin(), end, '\r'));
}

void ContractEdit::TakeEdit() {
    if (following_) {
        return;
    }
    const std::string now = modContract::Incoming(person_text::OfDocument(*document()));
    const std::string& before = editor_.txtCharCount.Text();
    const auto [same, unused] = std::mismatch(before.begin(), before.end(), now.begin(), now.end());
    const auto front = static_cast<std::size_t>(same - before.begin());
    std::size_t back = 0;
    while (back < before.size() - front && back < now.size() - front &&
           before[before.size() - 1 - back] == now[now.size() - 1 - back]) {
        ++back;
    }
    const std::size_t removed = before.size() - front - back;
    const std::string inserted = now.substr(front, now.size() - front - back);
    if (removed == 0 && inserted.empty()) {
        return;
    }
    const bool typed = removed + inserted.size() == 1 || inserted == "\r\n";
    editor_.Edited(front, removed, inserted, static_cast<int>(front + inserted.size()),
                   typed ? ContractText::Kind::Typing : ContractText::Kind::Whole);
}

void ContractEdit::TakeCaret() {
    if (following_) {
        return;
    }
    const QTextCursor cursor = textCursor();
    const int from = ModelPlace(cursor.selectionStart());
    const int to = ModelPlace(cursor.selectionEnd());
    if (Do) {
        Do([this, from, to] { editor_.Moved(from, to - from); });
    }
}

void ContractEdit::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Undo) || event->matches(QKeySequence::Redo)) {
        Do([this, undo = event->matches(QKeySequence::Undo)] { undo ? editor_.Undo() : editor_.Redo(); });
        return;
    }
    const QString text = event->text();
    if (!text.isEmpty() && text.front().unicode() >= u' ' && person_text::Keepable(text, *this) != text) {
        return;
    }
    QTextEdit::keyPressEvent(event);
}

void ContractEdit::inputMethodEvent(QInputMethodEvent* event) {
    QInputMethodEvent kept(event->preeditString(), event->attributes());
    kept.setCommitString(person_text::Keepable(event->commitString(), *this), event->replacementStart(),
                         event->replacementLength());
    QTextEdit::inputMethodEvent(&kept);
}

void ContractEdit::insertFromMimeData(const QMimeData* source) {
    if (source->hasText() && !isReadOnly()) {
        QString kept = person_text::Keepable(source->text(), *this);
        textCursor().insertText(kept.replace(u'\t', u' ')); // as the model takes it
        ensureCursorVisible();
    }
}

QMimeData* ContractEdit::createMimeDataFromSelection() const {
    auto* copied = new QMimeData;
    copied->setText(textCursor().selectedText().replace(QChar::ParagraphSeparator, u'\n'));
    return copied;
}

void ContractEdit::Follow() {
    const ScopedFlag following(following_);
    if (revision_ != editor_.Revision) {
        revision_ = editor_.Revision;
        const ContractText& text = editor_.Shown();
        layout_->LineWidth =
            editor_.ShowingLineCount ? 0 : static_cast<double>(ContractText::kLineWidth) * PixelsPerTwip();
        const QString shown = Shown(text.Text());
        if (document()->toRawText().replace(QChar::ParagraphSeparator, u'\n') != shown) {
            document()->setPlainText(shown);
        }
        layout_->SetFont(text.Font(), PixelsPerTwip());
        QTextCursor cursor(document());
        cursor.setPosition(DocumentPlace(editor_.SelStart));
        setTextCursor(cursor); // the beginning of what is marked comes into view, too
        ensureCursorVisible();
        cursor.setPosition(DocumentPlace(editor_.SelStart + editor_.SelLength), QTextCursor::KeepAnchor);
        setTextCursor(cursor);
        ensureCursorVisible();
    }
    if (isReadOnly() != editor_.Locked) {
        setReadOnly(editor_.Locked);
    }
    const bool red = editor_.BackColor != ::colors::kWhite; // white is the desktop's own
    if (red != (property("red").toBool())) {
        setProperty("red", red);
        QPalette colors;
        if (red) {
            colors.setColor(QPalette::Base, convert::ToQColor(editor_.BackColor));
            colors.setColor(QPalette::Text, Qt::black);
        }
        setPalette(colors);
    }
}
