#include "desktop/window_run.h"
#include "output/frm_text_file.h"
#include "output/text_file.h"

#include <QApplication>
#include <QClipboard>
#include <QPlainTextEdit>
#include <QPushButton>

#include <filesystem>

namespace {

/// A text file open in its window.
struct TextFileRun : WindowRun {
    explicit TextFileRun(const std::string& bytes) {
        folder.Write("Proposals/Notes.txt", bytes);
        modExport::ReadTextFile(program, folder / "Proposals/Notes.txt");
        window->AfterEvent();
        view = window->findChild<QDialog*>(QStringLiteral("frmTextFile"));
        EXPECT_NE(view, nullptr);
        EXPECT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == view; }));
        text = Part<QPlainTextEdit>("txtText");
    }
    QPlainTextEdit* text = nullptr;
};

TEST(TextFileWindow, ShowsTheFileAndTakesNoKey) {
    TextFileRun run("one\r\ntwo\rthree\n");
    EXPECT_EQ(run.view->windowTitle(), QStringLiteral("Notes.txt"));
    EXPECT_EQ(run.text->toPlainText(), QStringLiteral("one\ntwo\nthree\n"));
    EXPECT_EQ(QApplication::focusWidget(), run.text);
    run.Type(QStringLiteral("x"));
    run.Press(Qt::Key_Delete);
    EXPECT_EQ(run.text->toPlainText(), QStringLiteral("one\ntwo\nthree\n"));
    run.Press(Qt::Key_Escape);
    EXPECT_FALSE(run.Stands("frmTextFile"));
    EXPECT_EQ(run.folder.Read("Proposals/Notes.txt"), "one\r\ntwo\rthree\n");
}

TEST(TextFileWindow, CopiesWhatIsSelectedOrAllOfIt) {
    TextFileRun run("one\xA0two\nthree");
    auto* copy = run.Part<QPushButton>("cmdCopy");
    copy->click();
    EXPECT_EQ(QApplication::clipboard()->text(), QString::fromUtf8("one\u00A0two\nthree"));
    run.text->setFocus();
    run.Press(Qt::Key_Home, Qt::ControlModifier);
    run.Press(Qt::Key_Right, Qt::ControlModifier | Qt::ShiftModifier);
    run.Press(Qt::Key_Down, Qt::ShiftModifier);
    copy->click();
    const QString selected = QApplication::clipboard()->text();
    EXPECT_TRUE(selected.startsWith(QString::fromUtf8("one\u00A0two\n")) ||
                selected.startsWith(QString::fromUtf8("one\u00A0")))
        << selected.toStdString();
    run.Press(Qt::Key_Escape);
}

TEST(TextFileWindow, ALineWithoutAnEndIsShownInPiecesAndCopiedAsOne) {
    const std::string line(10000, 'x');
    TextFileRun run(line + "\nend");
    EXPECT_EQ(run.text->blockCount(), 4);
    run.Press(Qt::Key_A, Qt::ControlModifier);
    run.Part<QPushButton>("cmdCopy")->click();
    EXPECT_EQ(QApplication::clipboard()->text().toStdString(), line + "\nend");
    run.Press(Qt::Key_Escape);
}

TEST(TextFileWindow, PrintsIntoAFile) {
    TextFileRun run("Bring the long ladder\n");
    run.printers.AskForFile = [&](const QString&) {
        return QString::fromStdString(run.folder / "notes.pdf");
    };
    run.Part<QPushButton>("cmdPrint")->click();
    EXPECT_TRUE(PdfText(QString::fromStdString(run.folder / "notes.pdf"), 1)
                    .contains(QLatin1String("Bring the long ladder")));
    run.Press(Qt::Key_Escape);
}

TEST(TextFileWindow, TwoFilesStandSideBySide) {
    TextFileRun run("one");
    run.folder.Write("Proposals/Other.txt", "two");
    modExport::ReadTextFile(run.program, run.folder / "Proposals/Other.txt");
    run.window->AfterEvent();
    EXPECT_EQ(run.window->findChildren<QDialog*>(QStringLiteral("frmTextFile")).size(), 2);
}

TEST(TextFileWindow, AFileOverSixtyFourMegabytesIsToldAndNotShown) {
    WindowRun run;
    run.folder.Write("Proposals/Notes.txt", "");
    std::filesystem::resize_file(run.folder / "Proposals/Notes.txt", (64U << 20U) + 1);
    run.recording.questions.Expect("ReadTextFile");
    modExport::ReadTextFile(run.program, run.folder / "Proposals/Notes.txt");
    EXPECT_FALSE(run.Stands("frmTextFile"));
}

TEST(TextFileWindow, CanBeUsedWithoutAMouse) {
    TextFileRun run("one");
    ExpectReachable(*run.view);
}

} // namespace
