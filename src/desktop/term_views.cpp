#include "desktop/term_views.h"

#include "desktop/convert.h"
#include "desktop/dialog_parts.h"
#include "program/program.h"
#include "terms/frm_add_fut.h"
#include "terms/frm_edit_fut.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

/// A term is one line of printable characters.
int PrintableOnly(int keyAscii) {
    constexpr int kFirstPrinted = 32;
    return keyAscii >= kFirstPrinted ? keyAscii : 0;
}

QVBoxLayout* ColumnUnder(QDialog* dialog, const QString& words) {
    QVBoxLayout* column = dialog::Column(dialog);
    auto* label = new QLabel(words, dialog);
    label->setWordWrap(true);
    column->addWidget(label);
    return column;
}

} // namespace

FrmAddFutView::FrmAddFutView(Program& program, frmAddFUT& window, QWidget* over,
                             std::function<void()> afterEvent)
    : WindowView(program, window, over, std::move(afterEvent)), model_(window) {
    QVBoxLayout* column = ColumnUnder(this, tr("New term, with its price in square brackets if it has one:"));
    text_ = dialog::FilteredEdit(this, "txtAddFUT", tr("New term"), PrintableOnly);
    text_->setMinimumWidth(380);
    column->addWidget(text_);
    QPushButton* save = dialog::Button(this, "cmdSave", window.cmdSave);
    QPushButton* clear = dialog::Button(this, "cmdClear", window.cmdClear);
    QPushButton* done = dialog::Button(this, "cmdExit", window.cmdExit);
    dialog::Foot(column, {save, clear, done});
    connect(text_, &QLineEdit::textChanged, this,
            [this] { model_.txtAddFUT.Text = convert::ToModel(text_->text()); });
    connect(save, &QPushButton::clicked, this, [this] {
        Do([this] { model_.cmdSave_Click(program_); });
        text_->selectAll(); // what was refused is typed over or changed
        text_->setFocus();
    });
    connect(clear, &QPushButton::clicked, this, [this] { Do([this] { model_.cmdClear_Click(); }); });
    connect(done, &QPushButton::clicked, this, [this] { Do([this] { model_.cmdExit_Click(program_); }); });
    text_->setFocus();
}

void FrmAddFutView::Follow() {
    WindowView::Follow();
    const QString term = convert::ToQString(model_.txtAddFUT.Text);
    if (text_->text() != term) {
        text_->setText(term);
        text_->setFocus();
    }
}

FrmEditFutView::FrmEditFutView(Program& program, frmEditFUT& window, QWidget* over,
                               std::function<void()> afterEvent)
    : WindowView(program, window, over, std::move(afterEvent)) {
    QVBoxLayout* column = ColumnUnder(this, tr("The term, with its price in square brackets if it has one:"));
    QLineEdit* text = dialog::FilteredEdit(this, "txtEditFUT", tr("Term"), PrintableOnly);
    text->setMinimumWidth(380);
    text->setText(convert::ToQString(window.txtEditFUT.Text));
    column->addWidget(text);
    QPushButton* save = dialog::Button(this, "cmdSave", window.cmdSave);
    QPushButton* leave = dialog::Button(this, "cmdExit", window.cmdExit);
    dialog::Foot(column, {save, leave});
    connect(text, &QLineEdit::textChanged, this,
            [text, &window] { window.txtEditFUT.Text = convert::ToModel(text->text()); });
    connect(save, &QPushButton::clicked, this,
            [this, &window] { Do([&] { window.cmdSave_Click(program_); }); });
    connect(leave, &QPushButton::clicked, this,
            [this, &window] { Do([&] { window.cmdExit_Click(program_); }); });
    text->setFocus();
    text->selectAll();
}
