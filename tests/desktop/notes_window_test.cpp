#include "contract/frm_notes.h"
#include "desktop/frm_notes_view.h"
#include "desktop/window_run.h"

#include <QAbstractButton>
#include <QLabel>
#include <QMimeData>

namespace {

struct NotesRun : WindowRun {
    NotesRun() : notes(Open<frmNotes>(CommandId::mnuFileOpenFootnotes, "frmNotes")) {}
    frmNotes& notes;
};

TEST(NotesWindow, TakesNotesAndSavesThemByCtrlS) {
    NotesRun run;
    auto* text = run.Part<NoteEdit>("txtNotes");
    EXPECT_EQ(QApplication::focusWidget(), text);
    EXPECT_EQ(run.Part<QLabel>("lblEventName")->text(), QStringLiteral("Jane Roe"));
    run.Type(QStringLiteral("Call twice"));
    run.Press(Qt::Key_Return);
    run.Type(QStringLiteral("now"));
    run.Press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(run.folder.Read("Proposals/Jane Roe.hxt"), "Call twice\r\nnow");
    EXPECT_EQ(run.program.main.imgFootNotes.Picture, 1);
    run.Press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_NE(run.notes.FootnoteText, run.notes.FootnoteSavedText);
    run.Press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(run.notes.FootnoteText, run.notes.FootnoteSavedText);
    run.Press(Qt::Key_Escape);
    EXPECT_FALSE(run.Stands("frmNotes"));
}

TEST(NotesWindow, EveryByteOfAFileComesBackAsItWas) {
    WindowRun run;
    std::string bytes;
    for (int byte = 1; byte < 256; ++byte) {
        bytes += static_cast<char>(byte);
    }
    run.folder.Write("Proposals/Jane Roe.hxt", bytes);
    auto& notes = run.Open<frmNotes>(CommandId::mnuFileOpenFootnotes, "frmNotes");
    run.Press(Qt::Key_End, Qt::ControlModifier);
    run.Type(QStringLiteral("x"));
    std::string expected = bytes + "x";
    expected.replace(expected.find('\n'), 1, "\r\n");
    expected.replace(expected.find("\x0C\r") + 1, 1, "\r\n");
    EXPECT_EQ(notes.FootnoteText, expected);
    run.Press(Qt::Key_Backspace);
    EXPECT_EQ(notes.FootnoteText, bytes);
    run.Press(Qt::Key_Escape);
}

TEST(NotesWindow, ACharacterWithoutAByteIsNotTaken) {
    NotesRun run;
    auto* text = run.Part<NoteEdit>("txtNotes");
    run.Type(QStringLiteral("a"));
    TypeCharacter(text, u'\u4e2d');
    run.Type(QStringLiteral("b"));
    EXPECT_EQ(run.notes.txtNotes, "ab");
    EXPECT_EQ(text->toPlainText(), QStringLiteral("ab"));
    run.recording.questions.Expect("The Footnote File has been changed.", Answer::No);
    run.Press(Qt::Key_Escape);
}

TEST(NotesWindow, PrintsIntoAFile) {
    NotesRun run;
    run.Type(QStringLiteral("Bring the long ladder"));
    run.printers.AskForFile = [&](const QString&) {
        return QString::fromStdString(run.folder / "notes.pdf");
    };
    run.Press(Qt::Key_P, Qt::ControlModifier);
    const QString printed = PdfText(QString::fromStdString(run.folder / "notes.pdf"), 1);
    EXPECT_TRUE(printed.contains(QLatin1String("Notes for Jane Roe")));
    EXPECT_TRUE(printed.contains(QLatin1String("Bring the long ladder")));
    run.recording.questions.Expect("The Footnote File has been changed.", Answer::No);
    run.Press(Qt::Key_Escape);
}

TEST(NotesWindow, CanBeUsedWithoutAMouse) {
    NotesRun run;
    ExpectReachable(*run.view);
}

} // namespace
