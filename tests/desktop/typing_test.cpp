#include "desktop/convert.h"
#include "desktop/desktop_run.h"
#include "pages/fields.h"
#include "shell/input.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QMenu>
#include <QMimeData>
#include <QTest>

#include <gtest/gtest.h>

// What typing does, with the real fields of the window.

namespace {

constexpr PageId kFirst = PageId::frmP1;
constexpr PageId kSecond = PageId::frmP2;
constexpr PageId kFinal = PageId::frmP6;

FieldRef Text(PageId page, int index) {
    return {page, FieldKind::txt, index};
}

/// The focused field shows its record, cursor and selection included.
void ExpectCursorFollows(DesktopRun& run) {
    ASSERT_TRUE(run.program.main.Focus);
    const TextArea& record = modFields::Area(run.program, *run.program.main.Focus);
    TextAreaView& view = run.Field(*run.program.main.Focus);
    EXPECT_EQ(convert::ToModel(view.text()), record.Text);
    EXPECT_EQ(view.hasSelectedText() ? view.selectionStart() : view.cursorPosition(), record.SelStart);
    EXPECT_EQ(view.selectedText().size(), record.SelLength);
}

const std::string& TextOf(DesktopRun& run, const FieldRef& field) {
    return modFields::Area(run.program, field).Text;
}

void Drop(DesktopRun& run, const FieldRef& field, const QString& text) {
    QMimeData data;
    data.setText(text);
    TextAreaView& view = run.Field(field);
    QDragEnterEvent enter(view.rect().center(), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&view, &enter);
    QDropEvent event(QPointF(view.width() - 3, view.height() / 2.0), Qt::CopyAction, &data, Qt::LeftButton,
                     Qt::NoModifier);
    QApplication::sendEvent(&view, &event);
}

void Commit(const QString& text, const QString& preedit = QString()) {
    QInputMethodEvent event(preedit, {});
    event.setCommitString(text);
    QApplication::sendEvent(QApplication::focusWidget(), &event);
}

TEST(WindowPush, ABlankAtTheEndTakesTheLastWordAndTheKeyboardAlong) {
    DesktopRun run;
    run.ChoosePage(1);
    run.Click(kSecond, 0);
    QString typed;
    while (run.program.main.Focus == Text(kSecond, 0)) {
        ASSERT_LT(typed.size(), 400);
        run.Type(QStringLiteral("mmmmmmmmm "));
        typed += QStringLiteral("mmmmmmmmm ");
    }
    EXPECT_EQ(run.program.main.Focus, Text(kSecond, 1));
    EXPECT_EQ(TextOf(run, Text(kSecond, 0)) + " " + TextOf(run, Text(kSecond, 1)), typed.toStdString());
    EXPECT_EQ(TextOf(run, Text(kSecond, 1)), "mmmmmmmmm ");
    EXPECT_EQ(QApplication::focusWidget(), &run.Field(Text(kSecond, 1)));
    ExpectCursorFollows(run);
    run.Type(QStringLiteral("on"));
    EXPECT_EQ(TextOf(run, Text(kSecond, 1)), "mmmmmmmmm on");
    run.ExpectWindowFollows();
}

TEST(WindowPush, ABlankInTheMiddleLeavesTheCursorInItsPlace) {
    DesktopRun run;
    run.ChoosePage(1);
    run.Click(kSecond, 0);
    run.Type(QStringLiteral("mmmmmmmmm mmmmmmmmm mmmmmmmmm mmmmmmmmm mmmmmmmmm"));
    while (run.program.pages[kSecond].txt[0].BackColor != colors::kOverLimit) {
        run.Type(QStringLiteral("i"));
    }
    run.Press(Qt::Key_Home);
    run.Press(Qt::Key_Right);
    run.Type(QStringLiteral(" "));
    EXPECT_EQ(run.program.main.Focus, Text(kSecond, 0));
    EXPECT_EQ(run.program.pages[kSecond].txt[0].SelStart, 2);
    EXPECT_EQ(TextOf(run, Text(kSecond, 0)).substr(0, 4), "m mm");
    EXPECT_NE(TextOf(run, Text(kSecond, 1)), "");
    ExpectCursorFollows(run);
}

TEST(WindowColumns, TheColumnsKeyTogglesOnceEachTime) {
    DesktopRun run;
    run.ChoosePage(1);
    run.Click(kSecond, 2);
    run.Press(Qt::Key_F8);
    EXPECT_TRUE(run.program.pages[kSecond].txtQty[2].Visible);
    EXPECT_EQ(QApplication::focusWidget(), &run.Field({kSecond, FieldKind::txtQty, 2}));
    ExpectCursorFollows(run);
    run.Press(Qt::Key_F8);
    EXPECT_FALSE(run.program.pages[kSecond].txtQty[2].Visible);
    EXPECT_EQ(QApplication::focusWidget(), &run.Field(Text(kSecond, 2)));
    QTest::mouseDClick(&run.Field(Text(kSecond, 2)), Qt::LeftButton);
    EXPECT_TRUE(run.program.pages[kSecond].txtQty[2].Visible);
    run.Press(Qt::Key_Backspace);
    EXPECT_EQ(TextOf(run, {kSecond, FieldKind::txtQty, 2}), "Qty");
}

TEST(WindowColumns, ABoxTakesFiguresByKeyPasteAndInputMethodAlone) {
    DesktopRun run;
    const FieldRef box{kSecond, FieldKind::txtQty, 2};
    run.ChoosePage(1);
    run.Click(kSecond, 2);
    run.Press(Qt::Key_F8);
    QGuiApplication::clipboard()->setText(QStringLiteral("two"));
    run.Press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(TextOf(run, box), "Qty.");
    Commit(QStringLiteral("a1-2"));
    EXPECT_EQ(TextOf(run, box), "12");
    QGuiApplication::clipboard()->setText(QStringLiteral("5"));
    run.Press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(TextOf(run, box), "125");
    Drop(run, box, QStringLiteral("x"));
    EXPECT_EQ(TextOf(run, box), "125");
    ExpectCursorFollows(run);
}

TEST(WindowPaste, IntoAnAmountIsTakenWholeAndNumeric) {
    DesktopRun run;
    run.ChoosePage(1);
    run.Click(kSecond, 33);
    QGuiApplication::clipboard()->setText(QStringLiteral("ten"));
    run.Press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(TextOf(run, Text(kSecond, 33)), "");
    QGuiApplication::clipboard()->setText(QStringLiteral(" 10.5\r\n"));
    run.Press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(TextOf(run, Text(kSecond, 33)), "10.5");
    ExpectCursorFollows(run);
    run.Press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(TextOf(run, Text(kSecond, 33)), "");
    EXPECT_EQ(run.program.totals.AmountTable[33][PageId::frmP2], 0.0F);
    run.Press(Qt::Key_V, Qt::ShiftModifier);
    EXPECT_EQ(TextOf(run, Text(kSecond, 33)), "") << "a letter";
    run.Press(Qt::Key_Insert, Qt::ShiftModifier);
    EXPECT_EQ(TextOf(run, Text(kSecond, 33)), "10.5");
}

TEST(WindowPaste, OfLinesBecomesOneLineAndWhatHasNoByteIsTold) {
    DesktopRun run;
    run.ChoosePage(1);
    run.Click(kSecond, 0);
    QGuiApplication::clipboard()->setText(QStringLiteral("one\r\ntwo\nthr") + QChar(u'\0') +
                                          QStringLiteral("ee"));
    run.Press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(TextOf(run, Text(kSecond, 0)), "one two three");
    EXPECT_EQ(run.program.main.Notice, "One character was not taken: it cannot be kept in a proposal.");
    run.Press(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(run.program.main.Notice, "");
    QGuiApplication::clipboard()->setText(QStringLiteral("one\r\ntwo\nthree\u2603"));
    run.Press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(TextOf(run, Text(kSecond, 0)), "one two three");
    EXPECT_EQ(run.program.main.Notice, "One character was not taken: it cannot be kept in a proposal.");
    ExpectCursorFollows(run);
    run.Press(Qt::Key_Z, Qt::ControlModifier);
    run.Press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(TextOf(run, Text(kSecond, 0)), "") << "pastes can be undone";
    EXPECT_EQ(run.program.document.CurrentTextBuf[PageId::frmP2][0], "");
}

TEST(WindowPaste, TwiceByTheMiddleButtonTogglesNoColumns) {
    DesktopRun run;
    run.window->PageOf(kSecond).Context().MarkedText = [] { return QStringLiteral("ab"); };
    run.ChoosePage(1);
    TextAreaView& line = run.Field(Text(kSecond, 0));
    const QPoint place(0, line.height() / 2);
    QTest::mouseClick(&line, Qt::MiddleButton, Qt::NoModifier, place);
    QTest::mouseDClick(&line, Qt::MiddleButton, Qt::NoModifier, place);
    EXPECT_FALSE(run.program.pages[kSecond].txtQty[0].Visible);
    EXPECT_EQ(run.program.main.Focus, Text(kSecond, 0));
}

TEST(WindowPaste, OfAMegabyteHangsNothing) {
    DesktopRun run;
    run.ChoosePage(1);
    run.Click(kSecond, 0);
    QGuiApplication::clipboard()->setText(QString(1 << 20, u'x'));
    run.Press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(TextOf(run, Text(kSecond, 0)).size(), 4096U);
    ExpectCursorFollows(run);
}

TEST(WindowPaste, ByTheMiddleButtonGoesInWhereItIsPressed) {
    DesktopRun run;
    run.window->PageOf(kSecond).Context().MarkedText = [] { return QStringLiteral("12 "); };
    run.ChoosePage(1);
    run.Click(kSecond, 0);
    run.Type(QStringLiteral("abc "));
    TextAreaView& line = run.Field(Text(kSecond, 0));
    QTest::mouseClick(&line, Qt::MiddleButton, Qt::NoModifier, QPoint(0, line.height() / 2));
    EXPECT_EQ(TextOf(run, Text(kSecond, 0)), "12 abc ");
    EXPECT_EQ(run.program.document.CurrentTextBuf[PageId::frmP2][0], "12 abc");
    ExpectCursorFollows(run);
    TextAreaView& amount = run.Field(Text(kSecond, 33));
    QTest::mouseClick(&amount, Qt::MiddleButton, Qt::NoModifier, QPoint(2, 4));
    EXPECT_EQ(TextOf(run, Text(kSecond, 33)), "12");
    run.window->PageOf(kSecond).Context().MarkedText = [] { return QStringLiteral("x"); };
    QTest::mouseClick(&amount, Qt::MiddleButton, Qt::NoModifier, QPoint(2, 4));
    EXPECT_EQ(TextOf(run, Text(kSecond, 33)), "12");
}

TEST(WindowDrop, PassesTheSameFilterAndPipeline) {
    DesktopRun run;
    run.ChoosePage(1);
    run.Click(kSecond, 0);
    run.Type(QStringLiteral("chairs "));
    Drop(run, Text(kSecond, 0), QStringLiteral("and\ntables"));
    EXPECT_EQ(TextOf(run, Text(kSecond, 0)), "chairs and tables");
    EXPECT_EQ(run.program.editing.LastKeyChar, "") << "no stale blank moves it on";
    ExpectCursorFollows(run);
    Drop(run, Text(kSecond, 33), QStringLiteral("some"));
    EXPECT_EQ(TextOf(run, Text(kSecond, 33)), "");
    EXPECT_EQ(run.program.main.Focus, Text(kSecond, 33));
    Drop(run, Text(kSecond, 33), QStringLiteral("1,250"));
    EXPECT_EQ(TextOf(run, Text(kSecond, 33)), "1,250");
    EXPECT_EQ(run.program.totals.AmountTable[33][PageId::frmP2], 1250.0F);
    run.ChoosePage(5);
    Drop(run, Text(kFinal, 3), QStringLiteral("5"));
    EXPECT_NE(TextOf(run, Text(kFinal, 3)), "5") << "the total is not typed";
}

TEST(WindowDrag, MovesTheMarkedTextWithinItsArea) {
    DesktopRun run;
    run.ChoosePage(1);
    run.Click(kSecond, 0);
    run.Type(QStringLiteral("tables chairs"));
    TextAreaView& view = run.Field(Text(kSecond, 0));
    run.Press(Qt::Key_Home);
    for (int times = 0; times < 7; ++times) {
        run.Press(Qt::Key_Right, Qt::ShiftModifier);
    }
    ASSERT_EQ(view.selectedText(), QStringLiteral("tables "));
    const int y = view.height() / 2;
    const int inMarked = static_cast<int>(run.measure.Width("tab", {"Times New Roman", 10, false, false}) *
                                          static_cast<float>(view.width()) / 8640);
    QTest::mousePress(&view, Qt::LeftButton, Qt::NoModifier, QPoint(inMarked, y));
    QMouseEvent move(QEvent::MouseMove, QPointF(view.width() - 3, y),
                     view.mapToGlobal(QPointF(view.width() - 3, y)), Qt::LeftButton, Qt::LeftButton,
                     Qt::NoModifier);
    QApplication::sendEvent(&view, &move);
    EXPECT_EQ(TextOf(run, Text(kSecond, 0)), "tables chairs") << "not before it is let go";
    QTest::mouseRelease(&view, Qt::LeftButton, Qt::NoModifier, QPoint(view.width() - 3, y));
    EXPECT_EQ(TextOf(run, Text(kSecond, 0)), "chairstables ");
    EXPECT_EQ(run.program.document.CurrentTextBuf[PageId::frmP2][0], "chairstables");
    EXPECT_EQ(view.selectedText(), QStringLiteral("tables "));
    ExpectCursorFollows(run);
    run.Press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(TextOf(run, Text(kSecond, 0)), "tables chairs");
    // A click in a marked text unmarks it.
    run.Press(Qt::Key_A, Qt::ControlModifier);
    QTest::mouseClick(&view, Qt::LeftButton, Qt::NoModifier, QPoint(inMarked, y));
    EXPECT_FALSE(view.hasSelectedText());
    EXPECT_EQ(view.cursorPosition(), 3);
    ExpectCursorFollows(run);
}

TEST(WindowDrag, WithShiftMarksFromWhereTheCursorStands) {
    DesktopRun run;
    run.ChoosePage(1);
    run.Click(kSecond, 0);
    run.Type(QStringLiteral("tables chairs"));
    run.Press(Qt::Key_Home);
    run.Press(Qt::Key_Right);
    TextAreaView& view = run.Field(Text(kSecond, 0));
    QTest::mouseClick(&view, Qt::LeftButton, Qt::ShiftModifier, QPoint(view.width() - 3, view.height() / 2));
    EXPECT_EQ(view.selectedText(), QStringLiteral("ables chairs"));
    QTest::mouseClick(&view, Qt::LeftButton, Qt::ShiftModifier, QPoint(0, view.height() / 2));
    EXPECT_EQ(view.selectedText(), QStringLiteral("t"));
    ExpectCursorFollows(run);
}

TEST(WindowUndo, OfTypingGoesThroughThePipeline) {
    DesktopRun run;
    run.Click(kFirst, 3);
    run.Type(QStringLiteral("Elm"));
    run.Press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(TextOf(run, Text(kFirst, 3)), "");
    EXPECT_EQ(run.program.document.CurrentTextBuf[PageId::frmP1][3], "");
    run.Press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(TextOf(run, Text(kFirst, 3)), "Elm");
    EXPECT_EQ(run.program.document.CurrentTextBuf[PageId::frmP1][3], "Elm");
    run.Press(Qt::Key_A, Qt::ControlModifier);
    run.Press(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(TextOf(run, Text(kFirst, 3)), "");
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("Elm"));
    ExpectCursorFollows(run);
}

TEST(WindowInputMethod, CommitsThroughTheFilter) {
    DesktopRun run;
    run.Click(kFirst, 3);
    Commit(QString(), QStringLiteral("´"));
    EXPECT_EQ(TextOf(run, Text(kFirst, 3)), "") << "nothing is entered yet";
    Commit(QStringLiteral("\u00E9"));
    EXPECT_EQ(TextOf(run, Text(kFirst, 3)), "\xE9");
    EXPECT_EQ(run.program.document.CurrentTextBuf[PageId::frmP1][3], "\xE9");
    Commit(QStringLiteral("a\u2603b"));
    EXPECT_EQ(TextOf(run, Text(kFirst, 3)), "\xE9"
                                            "ab");
    EXPECT_EQ(run.program.main.Notice, "One character was not taken: it cannot be kept in a proposal.");
    run.ChoosePage(1);
    run.Click(kSecond, 33);
    Commit(QStringLiteral("12x"));
    EXPECT_EQ(TextOf(run, Text(kSecond, 33)), "12");
    run.program.editing.BlockMode = true;
    Commit(QStringLiteral("3"));
    run.program.editing.BlockMode = false;
    EXPECT_EQ(TextOf(run, Text(kSecond, 33)), "12");
    ExpectCursorFollows(run);
}

TEST(WindowKeys, WithACharacterThatHasNoByteEnterNothingAndTell) {
    DesktopRun run;
    run.Click(kFirst, 3);
    for (const char* text : {"\xE2\x98\x83", "\xF0\x9F\x98\x80"}) {
        run.program.main.Notice.clear();
        QKeyEvent event(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, QString::fromUtf8(text));
        QApplication::sendEvent(QApplication::focusWidget(), &event);
        EXPECT_EQ(TextOf(run, Text(kFirst, 3)), "");
        EXPECT_EQ(run.Field(Text(kFirst, 3)).text(), QString());
        EXPECT_EQ(run.program.main.Notice, "One character was not taken: it cannot be kept in a proposal.");
    }
    QKeyEvent euro(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, QStringLiteral("\u20AC"));
    QApplication::sendEvent(QApplication::focusWidget(), &euro);
    EXPECT_EQ(TextOf(run, Text(kFirst, 3)), "\x80");
    QKeyEvent two(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, QStringLiteral("ab"));
    QApplication::sendEvent(QApplication::focusWidget(), &two);
    EXPECT_EQ(TextOf(run, Text(kFirst, 3)), "\x80"
                                            "ab");
    ExpectCursorFollows(run);
}

TEST(WindowDoubleClick, ConvertsAndLeavesTheCursorAtTheEnd) {
    DesktopRun run;
    run.Click(kFirst, 1);
    run.Type(QStringLiteral("6 pm"));
    QTest::mouseDClick(&run.Field(Text(kFirst, 1)), Qt::LeftButton, Qt::NoModifier, QPoint(2, 4));
    EXPECT_EQ(TextOf(run, Text(kFirst, 1)), "6 PM");
    EXPECT_EQ(run.program.pages[kFirst].txt[1].SelStart, 4);
    ExpectCursorFollows(run);
    QTest::mouseDClick(&run.Field(Text(kFirst, 1)), Qt::LeftButton, Qt::NoModifier, QPoint(2, 4));
    EXPECT_EQ(run.Field(Text(kFirst, 1)).selectedText(), QStringLiteral("6"))
        << "with nothing to convert the word is marked";
    run.Click(kFirst, 5);
    run.Type(QStringLiteral("1234567890"));
    QTest::mouseDClick(&run.Field(Text(kFirst, 5)), Qt::LeftButton);
    EXPECT_EQ(TextOf(run, Text(kFirst, 5)), "(123) 456-7890");
}

TEST(WindowKeys, OfTheMenuAreNotTheFields) {
    DesktopRun run;
    run.Click(kFirst, 3);
    run.Type(QStringLiteral("Elm Street"));
    TextAreaView& view = run.Field(Text(kFirst, 3));
    const auto claims = [&view](int key, Qt::KeyboardModifiers modifiers) {
        QKeyEvent event(QEvent::ShortcutOverride, key, modifiers);
        event.ignore();
        QApplication::sendEvent(&view, &event);
        return event.isAccepted();
    };
    EXPECT_FALSE(claims(Qt::Key_U, Qt::ControlModifier));
    EXPECT_FALSE(claims(Qt::Key_D, Qt::ControlModifier));
    EXPECT_FALSE(claims(Qt::Key_E, Qt::ControlModifier));
    EXPECT_FALSE(claims(Qt::Key_K, Qt::ControlModifier));
    EXPECT_FALSE(claims(Qt::Key_Delete, Qt::ShiftModifier));
    EXPECT_TRUE(claims(Qt::Key_X, Qt::ControlModifier));
    // Their entries are not to be had now: the line stays, and Shift+Delete cuts as everywhere.
    run.Press(Qt::Key_U, Qt::ControlModifier);
    run.Press(Qt::Key_K, Qt::ControlModifier);
    EXPECT_EQ(TextOf(run, Text(kFirst, 3)), "Elm Street");
    run.Press(Qt::Key_Home);
    run.Press(Qt::Key_Right, Qt::ShiftModifier);
    run.Press(Qt::Key_Delete, Qt::ShiftModifier);
    EXPECT_EQ(TextOf(run, Text(kFirst, 3)), "lm Street");
    ExpectCursorFollows(run);
}

TEST(WindowKeys, OfThePageScrollItAndLeaveTheFieldAlone) {
    DesktopRun run;
    run.ChoosePage(1);
    run.Click(kSecond, 0);
    run.Type(QStringLiteral("abc"));
    const int counted = run.program.editing.KeyCounter;
    run.Press(Qt::Key_PageDown);
    EXPECT_GT(run.program.main.VScroll1.Value, 0);
    EXPECT_EQ(run.program.main.Focus, Text(kSecond, 0));
    run.Press(Qt::Key_PageUp);
    EXPECT_EQ(run.program.main.VScroll1.Value, 0);
    EXPECT_EQ(run.program.editing.KeyCounter, counted);
    EXPECT_EQ(TextOf(run, Text(kSecond, 0)), "abc");
    EXPECT_EQ(run.program.pages[kSecond].txt[0].SelStart, 3);
}

TEST(WindowKeys, InAnAmountCopyAndMarkButEnterNoLetter) {
    DesktopRun run;
    run.ChoosePage(1);
    run.Click(kSecond, 33);
    run.Type(QStringLiteral("1a2,-.b"));
    EXPECT_EQ(TextOf(run, Text(kSecond, 33)), "12,-.");
    run.Press(Qt::Key_A, Qt::ControlModifier);
    run.Press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("12,-."));
    ExpectCursorFollows(run);
    EXPECT_EQ(run.Field(Text(kSecond, 33)).selectedText().size(), 5);
    run.Press(Qt::Key_Home);
    EXPECT_EQ(run.Field(Text(kSecond, 33)).cursorPosition(), 0);
    run.Press(Qt::Key_End, Qt::ShiftModifier);
    EXPECT_EQ(run.Field(Text(kSecond, 33)).selectedText(), QStringLiteral("12,-."));
    ExpectCursorFollows(run);
}

/// Letters that a key brings together with Alt or the system's own key, and marks without a shape.
void ExpectNoWayPastTheFilter(DesktopRun& run, const FieldRef& field) {
    const std::string before = TextOf(run, field);
    TextAreaView& view = run.Field(field);
    for (const Qt::KeyboardModifier held : {Qt::AltModifier, Qt::MetaModifier}) {
        QTest::keyClick(&view, Qt::Key_Q, held);
        QKeyEvent letter(QEvent::KeyPress, Qt::Key_Q, held, QStringLiteral("q"));
        QApplication::sendEvent(&view, &letter);
    }
    QKeyEvent softHyphen(QEvent::KeyPress, Qt::Key_hyphen, Qt::NoModifier, QString(QChar(0xAD)));
    QApplication::sendEvent(&view, &softHyphen);
    EXPECT_EQ(TextOf(run, field), before);
    EXPECT_EQ(convert::ToModel(view.text()), before);
}

TEST(WindowKeys, WithAltEnterNoLetterPastTheFilter) {
    DesktopRun run;
    run.ChoosePage(1);
    run.Click(kSecond, 33);
    run.Type(QStringLiteral("12"));
    ExpectNoWayPastTheFilter(run, Text(kSecond, 33));
    run.Click(kSecond, 0);
    run.Press(Qt::Key_F8);
    run.Type(QStringLiteral("3"));
    ExpectNoWayPastTheFilter(run, {kSecond, FieldKind::txtQty, 0});
    run.Click(kSecond, 1);
    QTest::keyClick(&run.Field(Text(kSecond, 1)), Qt::Key_Q, Qt::AltModifier);
    EXPECT_EQ(TextOf(run, Text(kSecond, 1)), "");
}

/// Whether a black stroke, as only the caret is in an empty field, stands free at half height.
bool ShowsCaret(TextAreaView& view) {
    const QImage picture = view.grab().toImage();
    for (int x = 0; x < picture.width(); ++x) {
        const QColor color = picture.pixelColor(x, picture.height() / 2);
        if (color.red() < 40 && color.green() < 90 && color.blue() < 90) {
            return true;
        }
    }
    return false;
}

TEST(WindowFocus, ShowsItsCaretBesideItsRing) {
    DesktopRun run;
    run.ChoosePage(1);
    for (const int index : {0, 33}) {
        run.Click(kSecond, index);
        run.Press(Qt::Key_End);
        ASSERT_TRUE(run.Field(Text(kSecond, index)).hasFocus());
        EXPECT_TRUE(ShowsCaret(run.Field(Text(kSecond, index)))) << index;
    }
}

TEST(WindowFocus, LeavesAFigureFreeOfTheCaret) {
    DesktopRun run;
    run.ChoosePage(1);
    run.Click(kSecond, 33);
    run.Type(QStringLiteral("8"));
    TextAreaView& view = run.Field(Text(kSecond, 33));
    const QImage picture = view.grab().toImage();
    // From the left: the figure's ink, then a gap, then the caret's.
    const auto inked = [&](int x) {
        for (int y = 4; y < picture.height() - 4; ++y) {
            if (picture.pixelColor(x, y).green() < 90) {
                return true;
            }
        }
        return false;
    };
    int strokes = 0;
    const int last = static_cast<int>(picture.width() - 2 * picture.devicePixelRatio());
    for (int x = picture.width() / 2; x < last; ++x) {
        strokes += inked(x) && !inked(x - 1) ? 1 : 0;
    }
    EXPECT_EQ(strokes, 2);
}

TEST(WindowFocus, ByAHandThatIsNotQuiteStillMarksNothing) {
    DesktopRun run;
    run.ChoosePage(1);
    run.Click(kSecond, 33);
    run.Type(QStringLiteral("123456"));
    run.Click(kSecond, 0);
    TextAreaView& view = run.Field(Text(kSecond, 33));
    const int y = view.height() / 2;
    for (int x = view.width() - 30; x < view.width() - 20; ++x) {
        run.Click(kSecond, 0);
        QTest::mousePress(&view, Qt::LeftButton, Qt::NoModifier, QPoint(x, y));
        QMouseEvent shaken(QEvent::MouseMove, QPointF(x + 1, y), view.mapToGlobal(QPointF(x + 1, y)),
                           Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&view, &shaken);
        QTest::mouseRelease(&view, Qt::LeftButton, Qt::NoModifier, QPoint(x + 1, y));
        EXPECT_EQ(view.selectedText(), QString()) << x;
    }
}

TEST(WindowKeys, AFigureThatTheProgramRewritesHasItsCursorWhereTheProgramPutIt) {
    DesktopRun run;
    run.ChoosePage(5);
    run.Click(kFinal, 1);
    run.Type(QStringLiteral("5"));
    EXPECT_EQ(TextOf(run, Text(kFinal, 1)), "0.00") << "the taxable amount is worked out at once";
    EXPECT_EQ(run.program.pages[kFinal].txt[1].SelStart, 0);
    ExpectCursorFollows(run);
}

TEST(WindowFocus, IsKeptWhenTheKeyboardGoesElsewhere) {
    DesktopRun run;
    run.ChoosePage(1);
    run.Click(kSecond, 33);
    run.Type(QStringLiteral("12.5"));
    for (const Qt::FocusReason reason :
         {Qt::ActiveWindowFocusReason, Qt::PopupFocusReason, Qt::MenuBarFocusReason}) {
        QFocusEvent away(QEvent::FocusOut, reason);
        QApplication::sendEvent(&run.Field(Text(kSecond, 33)), &away);
        EXPECT_EQ(TextOf(run, Text(kSecond, 33)), "12.5");
        QFocusEvent back(QEvent::FocusIn, reason);
        QApplication::sendEvent(&run.Field(Text(kSecond, 33)), &back);
        EXPECT_EQ(run.program.main.Focus, Text(kSecond, 33));
    }
    // The paper between the fields, and the buttons above it, take no keyboard.
    QTest::mouseClick(&run.window->PageOf(kSecond), Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
    EXPECT_EQ(run.program.main.Focus, Text(kSecond, 33));
    EXPECT_EQ(QApplication::focusWidget(), &run.Field(Text(kSecond, 33)));
    QTest::mouseClick(run.Child("cmdClearMem"), Qt::LeftButton);
    EXPECT_EQ(run.program.main.Focus, Text(kSecond, 33));
    EXPECT_EQ(QApplication::focusWidget(), &run.Field(Text(kSecond, 33)));
    run.Type(QStringLiteral("6"));
    run.Press(Qt::Key_Backspace);
    EXPECT_EQ(TextOf(run, Text(kSecond, 33)), "12.5");
    run.Click(kSecond, 0);
    EXPECT_EQ(TextOf(run, Text(kSecond, 33)), "12.50");
}

TEST(WindowMenu, OpensOnARightPressAndGivesTheKeyboardBack) {
    DesktopRun run;
    run.ChoosePage(1);
    run.Click(kSecond, 3);
    run.Type(QStringLiteral("chairs"));
    QMenu* menu = run.window->MenuTree().Menu(CommandId::mnuEditTextBox);
    TextAreaView& amount = run.Field(Text(kSecond, 36));
    QTest::mouseClick(&amount, Qt::RightButton);
    EXPECT_TRUE(menu->isVisible());
    EXPECT_EQ(run.program.editing.RightClickArea, 36);
    EXPECT_TRUE(run.window->MenuTree().Action(CommandId::mnuEditTextTaxExempt)->isEnabled());
    EXPECT_FALSE(run.window->MenuTree().Action(CommandId::mnuEditTextColumns)->isEnabled());
    QTest::keyClick(menu, Qt::Key_Escape);
    EXPECT_FALSE(menu->isVisible());
    EXPECT_EQ(run.program.main.Focus, Text(kSecond, 36));
    EXPECT_EQ(run.program.pages[kSecond].txt[36].BackColor, colors::kFocused);
    run.Type(QStringLiteral("7"));
    EXPECT_EQ(TextOf(run, Text(kSecond, 36)), "7");
    QTest::mouseClick(&amount, Qt::RightButton);
    EXPECT_EQ(TextOf(run, Text(kSecond, 36)), "7.00") << "the menu leaves the amount as any way does";
    run.window->MenuTree().Action(CommandId::mnuEditTextTaxExempt)->trigger();
    menu->close();
    EXPECT_TRUE(run.program.pages[kSecond].imgNoTax[36].Visible);
    EXPECT_EQ(run.program.main.Focus, Text(kSecond, 36));
}

TEST(WindowMenu, OpensOnTheMenuKeyAndIsWalkedByKeys) {
    DesktopRun run;
    run.ChoosePage(1);
    run.Click(kSecond, 36);
    run.Type(QStringLiteral("75.5"));
    QMenu* menu = run.window->MenuTree().Menu(CommandId::mnuEditTextBox);
    TextAreaView& amount = run.Field(Text(kSecond, 36));
    // On a display the key itself is still under way then, and arrives as pending events are let run.
    QApplication::postEvent(&amount, new QKeyEvent(QEvent::KeyPress, Qt::Key_Menu, Qt::NoModifier));
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(2, 2), amount.mapToGlobal(QPoint(2, 2)));
    QApplication::sendEvent(&amount, &event);
    ASSERT_TRUE(menu->isVisible());
    QTest::keyClick(menu, Qt::Key_Up);
    QTest::keyClick(menu, Qt::Key_Up);
    ASSERT_NE(menu->activeAction(), nullptr);
    EXPECT_EQ(menu->activeAction()->objectName(), QStringLiteral("mnuEditTextTaxExempt"));
    QTest::keyClick(menu, Qt::Key_Return);
    EXPECT_FALSE(menu->isVisible());
    EXPECT_EQ(TextOf(run, Text(kSecond, 36)), "75.50");
    EXPECT_TRUE(run.program.pages[kSecond].imgNoTax[36].Visible);
    EXPECT_EQ(run.program.main.Focus, Text(kSecond, 36));
}

TEST(WindowMenu, KeepsWhatIsMarked) {
    DesktopRun run;
    run.ChoosePage(1);
    run.Click(kSecond, 3);
    run.Type(QStringLiteral("chairs"));
    run.Press(Qt::Key_A, Qt::ControlModifier);
    QTest::mouseClick(&run.Field(Text(kSecond, 3)), Qt::RightButton);
    EXPECT_EQ(run.program.editing.SavedSelLength, 6);
    run.window->MenuTree().Menu(CommandId::mnuEditTextBox)->close();
    EXPECT_EQ(run.Field(Text(kSecond, 3)).selectedText(), QStringLiteral("chairs"));
}

TEST(WindowMenu, DoesNotOpenOnTheFinalPageAndInTheBoxes) {
    DesktopRun run;
    QMenu* menu = run.window->MenuTree().Menu(CommandId::mnuEditTextBox);
    run.ChoosePage(1);
    run.Click(kSecond, 3);
    run.Press(Qt::Key_F8);
    QTest::mouseClick(&run.Field({kSecond, FieldKind::txtQty, 3}), Qt::RightButton);
    EXPECT_FALSE(menu->isVisible());
    run.ChoosePage(5);
    QTest::mouseClick(&run.Field(Text(kFinal, 4)), Qt::RightButton);
    EXPECT_FALSE(menu->isVisible());
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

} // namespace
