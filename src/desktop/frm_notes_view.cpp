#include "desktop/frm_notes_view.h"

#include "base/guard.h"
#include "contract/frm_notes.h"
#include "desktop/convert.h"
#include "desktop/dialog_parts.h"
#include "desktop/person_text.h"
#include "desktop/window_menu_bar.h"
#include "program/program.h"

#include <QHBoxLayout>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QMimeData>
#include <QVBoxLayout>

NoteEdit::NoteEdit(QWidget* parent) : QPlainTextEdit(parent) {
    setObjectName(QStringLiteral("txtNotes"));
    setTabChangesFocus(true);
}

void NoteEdit::keyPressEvent(QKeyEvent* event) {
    const QString text = event->text();
    if (!text.isEmpty() && text.front().unicode() >= u' ' && person_text::Keepable(text, *this) != text) {
        return;
    }
    QPlainTextEdit::keyPressEvent(event);
}

void NoteEdit::inputMethodEvent(QInputMethodEvent* event) {
    QInputMethodEvent kept(event->preeditString(), event->attributes());
    kept.setCommitString(person_text::Keepable(event->commitString(), *this), event->replacementStart(),
                         event->replacementLength());
    QPlainTextEdit::inputMethodEvent(&kept);
}

void NoteEdit::insertFromMimeData(const QMimeData* source) {
    if (source->hasText()) {
        insertPlainText(person_text::Keepable(source->text(), *this));
        ensureCursorVisible();
    }
}

FrmNotesView::FrmNotesView(Program& program, frmNotes& window, QWidget* over,
                           std::function<void()> afterEvent)
    : WindowView(program, window, over, std::move(afterEvent)), notes_(window) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(7, 6, 7, 7);
    column->setSpacing(5);
    menu_ = new WindowMenuBar(this, notes_,
                              [this](std::string_view name) { Do([&] { notes_.Choose(program_, name); }); });
    column->setMenuBar(menu_);
    auto* row = new QHBoxLayout;
    QLabel* caption = dialog::Words(this, "lblCaption", notes_.lblCaption.Caption);
    caption->setWordWrap(false);
    row->addWidget(caption);
    name_ = new QLabel(this);
    name_->setObjectName(QStringLiteral("lblEventName"));
    name_->setTextFormat(Qt::PlainText);
    QFont strong = name_->font();
    strong.setBold(true);
    name_->setFont(strong);
    row->addWidget(name_, 1);
    column->addLayout(row);
    text_ = new NoteEdit(this);
    text_->setAccessibleName(tr("Footnotes"));
    column->addWidget(text_, 1);
    resize(560, 420);
    connect(text_, &QPlainTextEdit::textChanged, this, [this] {
        if (!following_) {
            Do([this] { notes_.txtNotes_Change(program_, person_text::OfDocument(*text_->document())); });
        }
    });
    FrmNotesView::Follow();
    text_->setFocus();
}

void FrmNotesView::Follow() {
    WindowView::Follow();
    menu_->Follow(notes_);
    const QString name = convert::ToQString(notes_.lblEventName.Caption);
    if (name_->text() != name) {
        name_->setText(name);
    }
    if (revision_ != notes_.Revision) {
        const ScopedFlag following(following_);
        revision_ = notes_.Revision;
        text_->setPlainText(convert::ToQString(notes_.txtNotes));
    }
    if (text_->isReadOnly() != notes_.Locked) {
        text_->setReadOnly(notes_.Locked);
    }
}
