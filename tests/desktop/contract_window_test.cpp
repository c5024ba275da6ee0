#include "contract/frm_editor.h"
#include "desktop/contract_edit.h"
#include "desktop/window_run.h"
#include "output/print.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextLayout>

#include <random>

namespace {

struct EditorRun : WindowRun {
    EditorRun() : editor(Open<frmEditor>(CommandId::mnuManageEditor, "frmEditor")) {
        text = Part<ContractEdit>("txtCharCount");
    }
    /// The lines that the widget shows, as it has laid them out.
    [[nodiscard]] std::vector<std::string> ShownLines() const {
        std::vector<std::string> lines;
        for (QTextBlock block = text->document()->begin(); block.isValid(); block = block.next()) {
            for (int line = 0; line < block.layout()->lineCount(); ++line) {
                const QTextLine shown = block.layout()->lineAt(line);
                lines.push_back(
                    block.text().mid(shown.textStart(), shown.textLength()).toLatin1().toStdString());
            }
        }
        return lines;
    }
    [[nodiscard]] std::vector<std::string> ModelLines() const {
        std::vector<std::string> lines;
        lines.reserve(static_cast<std::size_t>(editor.Shown().LineCount()));
        for (int line = 0; line < editor.Shown().LineCount(); ++line) {
            lines.push_back(editor.Shown().LineText(line));
        }
        return lines;
    }
    void Fill(const QString& words) {
        Press(Qt::Key_A, Qt::ControlModifier);
        clipboard.SetText(words.toLatin1().toStdString());
        Press(Qt::Key_V, Qt::ControlModifier);
    }
    void Leave() {
        recording.questions.Expect("has not been exported", Answer::Yes);
        Press(Qt::Key_Escape);
        EXPECT_FALSE(Stands("frmEditor"));
    }
    frmEditor& editor;
    ContractEdit* text = nullptr;
};

const QString kTerms = QStringLiteral(
    "The client agrees to pay the balance in full no later than ten (10) days before the event. Deposits "
    "are not refundable ( see below ) unless the hall cannot be used; \"force majeure\" - fire, flood - "
    "excepted.\nBreakage is charged at cost.\n\nSigned copies are kept by both parties.");

TEST(ContractWindow, ShowsTheVeryLinesOfTheModelThroughRandomEditing) {
    EditorRun run;
    run.Fill(kTerms);
    ASSERT_EQ(run.ShownLines(), run.ModelLines());
    std::mt19937 random(3);
    const auto upTo = [&](int most) { return std::uniform_int_distribution<int>(0, most)(random); };
    const QString keys = QStringLiteral("ab ( ) - \"!;  wW.");
    for (int step = 0; step < 300; ++step) {
        switch (upTo(11)) {
        case 0:
            run.Press(Qt::Key_Return);
            break;
        case 1:
            run.Press(Qt::Key_Backspace);
            break;
        case 2:
            run.Press(Qt::Key_Delete);
            break;
        case 3:
            run.Press(Qt::Key_Z, Qt::ControlModifier);
            break;
        case 4: {
            QTextCursor cursor = run.text->textCursor();
            cursor.setPosition(upTo(run.text->document()->characterCount() - 1));
            cursor.setPosition(upTo(run.text->document()->characterCount() - 1),
                               upTo(5) == 0 ? QTextCursor::KeepAnchor : QTextCursor::MoveAnchor);
            run.text->setTextCursor(cursor);
            break;
        }
        case 5:
            run.clipboard.SetText(
                "pasted words and averyverylongwordthatgoesonandonandonandonandonandonandon, ");
            run.Press(Qt::Key_V, Qt::ControlModifier);
            break;
        default:
            run.Type(keys.mid(upTo(static_cast<int>(keys.size()) - 1), 1));
        }
        ASSERT_EQ(run.ShownLines(), run.ModelLines()) << step;
    }
    for (int size = 0; size < 6; ++size) {
        emit run.Part<QComboBox>("cmbFontSize")->activated(size);
        ASSERT_EQ(run.ShownLines(), run.ModelLines());
    }
    run.Leave();
}

TEST(ContractWindow, UndoRedoPositionAndSelectAllAreThoseOfAnyEditor) {
    EditorRun run;
    run.Fill(QStringLiteral("one two"));
    run.Type(QStringLiteral(" three"));
    EXPECT_EQ(run.editor.txtCharCount.Text(), "one two three");
    EXPECT_EQ(run.Part<QLabel>("lblCharCount")->text(),
              QStringLiteral("Current Position = 13. Text contains 13 characters."));
    run.Press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(run.text->toPlainText(), QStringLiteral("one two"));
    run.Press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(run.text->toPlainText(), QStringLiteral("one two three"));
    run.Press(Qt::Key_Home);
    run.Press(Qt::Key_Delete);
    EXPECT_EQ(run.Part<QLabel>("lblCharCount")->text(),
              QStringLiteral("Current Position = 0. Text contains 12 characters."));
    run.Press(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(run.text->textCursor().selectedText(), QStringLiteral("ne two three"));
    run.Leave();
}

TEST(ContractWindow, FindMarksTheWordsAndEscapeLeavesTheSearchFirst) {
    EditorRun run;
    run.Fill(kTerms);
    run.Press(Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(QApplication::focusWidget(), run.Part<QLineEdit>("txtFind"));
    run.Type(QStringLiteral("BREAKAGE"));
    run.Press(Qt::Key_Return);
    EXPECT_EQ(run.text->textCursor().selectedText(), QStringLiteral("Breakage"));
    run.Press(Qt::Key_Escape);
    EXPECT_TRUE(run.Stands("frmEditor"));
    EXPECT_EQ(QApplication::focusWidget(), run.text);
    run.Leave();
}

TEST(ContractWindow, WhatIsFoundComesIntoViewFromItsFirstLetterOn) {
    EditorRun run;
    run.Fill(QString(60, u'a') + QStringLiteral(" ") + kTerms);
    run.view->resize(420, 400);
    QApplication::processEvents();
    run.text->horizontalScrollBar()->setValue(run.text->horizontalScrollBar()->maximum());
    run.Press(Qt::Key_F, Qt::ControlModifier);
    run.Type(QStringLiteral("agrees"));
    run.Press(Qt::Key_Return);
    const QTextCursor found = run.text->textCursor();
    ASSERT_EQ(found.selectedText(), QStringLiteral("agrees"));
    for (const int place : {found.selectionStart(), found.selectionEnd()}) {
        QTextCursor edge(run.text->document());
        edge.setPosition(place);
        EXPECT_TRUE(run.text->viewport()->rect().contains(run.text->cursorRect(edge).center()));
    }
    run.Press(Qt::Key_Escape);
    run.Leave();
}

TEST(ContractWindow, LineCountsLockTheTextAndAreTheWidgetsLinesToo) {
    EditorRun run;
    run.Fill(kTerms);
    QTest::mouseClick(run.Part<QPushButton>("cmdLines"), Qt::LeftButton);
    EXPECT_TRUE(run.text->isReadOnly());
    EXPECT_EQ(run.ShownLines(), run.ModelLines());
    EXPECT_TRUE(run.text->toPlainText().startsWith(QLatin1String("1 The client")));
    QTest::mouseClick(run.Part<QPushButton>("cmdLines"), Qt::LeftButton);
    EXPECT_FALSE(run.text->isReadOnly());
    EXPECT_EQ(run.text->toPlainText(), kTerms);
    EXPECT_EQ(run.ShownLines(), run.ModelLines());
    run.Leave();
}

TEST(ContractWindow, WhatTheEditorShowsAsALineIsALineOnPaper) {
    EditorRun run;
    run.Fill(kTerms);
    const std::vector<std::string> lines = run.ShownLines();
    run.Choose("mnuFileExportAndExit");
    EXPECT_FALSE(run.Stands("frmEditor"));
    run.printers.AskForFile = [&](const QString&) {
        return QString::fromStdString(run.folder / "final.pdf");
    };
    modPrint::mnuFilePrintPage_Click(run.program, PageId::frmP6);
    const QString printed = PdfText(QString::fromStdString(run.folder / "final.pdf"), 1).simplified();
    std::vector<double> tops;
    for (const std::string& line : lines) {
        const QString words = QString::fromStdString(line).simplified();
        EXPECT_TRUE(printed.contains(words)) << line;
    }
    // First and last word of each line stand on one base line.
    const std::vector<PdfWord> words = PdfWords(QString::fromStdString(run.folder / "final.pdf"), 1);
    const auto top = [&](const QString& wanted) {
        for (const PdfWord& word : words) {
            if (word.Text == wanted) {
                return word.YMin;
            }
        }
        return -1.0;
    };
    EXPECT_GT(top(QStringLiteral("Breakage")), 0);
    EXPECT_NEAR(top(QStringLiteral("Breakage")), top(QStringLiteral("charged")), 0.5);
}

TEST(ContractWindow, ANarrowWindowScrollsSidewaysAndWrapsNoOtherwise) {
    EditorRun run;
    run.Fill(kTerms);
    const std::vector<std::string> before = run.ShownLines();
    run.view->resize(500, 500);
    QApplication::processEvents();
    EXPECT_EQ(run.ShownLines(), before);
    EXPECT_GT(run.text->horizontalScrollBar()->maximum(), 0);
    run.Leave();
}

TEST(ContractWindow, ACharacterWithoutAByteIsNotTaken) {
    EditorRun run;
    run.Fill(QStringLiteral("x"));
    TypeCharacter(run.text, u'\u4e2d');
    run.Type(QStringLiteral("a"));
    EXPECT_EQ(run.editor.txtCharCount.Text(), "xa");
    run.Leave();
}

TEST(ContractWindow, CanBeUsedWithoutAMouse) {
    EditorRun run;
    ExpectReachable(*run.view);
    run.Press(Qt::Key_Escape);
    EXPECT_FALSE(run.Stands("frmEditor"));
}

} // namespace
