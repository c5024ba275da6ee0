#include "desktop/frm_text_file_view.h"

#include "desktop/dialog_parts.h"
#include "program/program.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextBlock>
#include <QVBoxLayout>

#include <algorithm>
#include <vector>

namespace {

/// A text as it is shown: a line of a megabyte would be laid out as one, so it stands in pieces.
struct Pieces {
    QString Text;
    std::vector<int> GoOn; ///< numbers of the lines that the file has as one with the line before
};

Pieces InPieces(const std::string& utf8) {
    constexpr qsizetype kLongest = 4000;
    const QString text = QString::fromStdString(utf8);
    Pieces pieces;
    pieces.Text.reserve(text.size());
    qsizetype run = 0;
    int line = 0;
    for (const QChar character : text) {
        if (character == QLatin1Char('\n')) {
            run = 0;
            ++line;
        } else if (++run > kLongest && !character.isLowSurrogate()) {
            pieces.Text += QLatin1Char('\n');
            pieces.GoOn.push_back(++line);
            run = 1;
        }
        pieces.Text += character.isNull() ? QChar(0x2400) : character;
    }
    return pieces;
}

constexpr int kGoesOn = 1;

void Show(QPlainTextEdit& edit, const std::string& utf8) {
    const Pieces pieces = InPieces(utf8);
    edit.setPlainText(pieces.Text);
    for (const int line : pieces.GoOn) {
        edit.document()->findBlockByNumber(line).setUserState(kGoesOn);
    }
}

/// What is selected, with the line ends and the hard blanks that the file has.
QString Selected(const QPlainTextEdit& edit) {
    const int from = edit.textCursor().selectionStart(), to = edit.textCursor().selectionEnd();
    QString selected;
    for (QTextBlock line = edit.document()->findBlock(from); line.isValid() && line.position() <= to;
         line = line.next()) {
        if (line.position() > from && line.userState() != kGoesOn) {
            selected += QLatin1Char('\n');
        }
        const int begin = std::max(0, from - line.position());
        selected += line.text().mid(begin, to - line.position() - begin);
    }
    return selected;
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
    constexpr int kTabStop = 8; // characters: what plain texts are written for
    text->setTabStopDistance(kTabStop * QFontMetricsF(text->font()).horizontalAdvance(QLatin1Char(' ')));
    Show(*text, window.Text);
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
        Do([&] { window.cmdCopy_Click(program_, Selected(*text).toStdString()); });
    });
    connect(print, &QPushButton::clicked, this,
            [this, &window] { Do([&] { window.cmdPrint_Click(program_); }); });
    connect(close, &QPushButton::clicked, this,
            [this, &window] { Do([&] { window.cmdClose_Click(program_); }); });
    text->setFocus();
}
