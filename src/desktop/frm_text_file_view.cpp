#include "desktop/frm_text_file_view.h"

#include "desktop/dialog_parts.h"
#include "program/program.h"

#include <QFontDatabase>
#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextDocumentFragment>
#include <QVBoxLayout>

namespace {

/// A line of a megabyte would be laid out as one: it is shown in pieces.
QString InPieces(const std::string& utf8) {
    constexpr qsizetype kLongest = 4000;
    const QString text = QString::fromStdString(utf8);
    QString shown;
    shown.reserve(text.size());
    qsizetype run = 0;
    for (const QChar character : text) {
        if (character == QLatin1Char('\n')) {
            run = 0;
        } else if (++run > kLongest) {
            shown += QLatin1Char('\n');
            run = 1;
        }
        shown += character.isNull() ? QChar(0x2400) : character;
    }
    return shown;
}

} // namespace

FrmTextFileView::FrmTextFileView(Program& program, frmTextFile& window, QWidget* over,
                                 std::function<void()> afterEvent)
    : WindowView(program, window, over, std::move(afterEvent)) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(14, 12, 14, 12);
    auto* text = new QPlainTextEdit(this);
    text->setObjectName(QStringLiteral("txtText"));
    text->setAccessibleName(tr("Text of the file"));
    text->setReadOnly(true);
    text->setLineWrapMode(QPlainTextEdit::NoWrap);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    text->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    text->setTabChangesFocus(true);
    text->setPlainText(InPieces(window.Text));
    column->addWidget(text, 1);
    auto* row = new QHBoxLayout;
    row->setSpacing(8);
    row->addStretch(1);
    QPushButton* copy = dialog::Button(this, "cmdCopy", window.cmdCopy);
    QPushButton* print = dialog::Button(this, "cmdPrint", window.cmdPrint);
    QPushButton* close = dialog::Button(this, "cmdClose", window.cmdClose);
    for (QPushButton* button : {copy, print, close}) {
        row->addWidget(button);
    }
    close->setDefault(true);
    column->addLayout(row);
    resize(720, 560);
    connect(copy, &QPushButton::clicked, this, [this, text, &window] {
        const QString selected = text->textCursor().selection().toPlainText();
        Do([&] { window.cmdCopy_Click(program_, selected.toStdString()); });
    });
    connect(print, &QPushButton::clicked, this,
            [this, &window] { Do([&] { window.cmdPrint_Click(program_); }); });
    connect(close, &QPushButton::clicked, this,
            [this, &window] { Do([&] { window.cmdClose_Click(program_); }); });
    text->setFocus();
}
