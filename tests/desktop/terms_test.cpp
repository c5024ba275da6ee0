#include "calculator/frm_calc.h"
#include "desktop/desktop_run.h"
#include "desktop/frm_calc_view.h"
#include "desktop/frm_fut_view.h"
#include "pages/fields.h"
#include "program/windows.h"
#include "search/frm_sr.h"
#include "shell/command_run.h"
#include "terms/frm_fut.h"
#include "terms/term_list.h"

#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QInputMethodEvent>
#include <QLabel>
#include <QListWidget>
#include <QMimeData>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>

#include <gtest/gtest.h>

// Frequent terms, completion, search and calculator with the real widgets of the window.

namespace {

constexpr PageId kSecond = PageId::frmP2;

FieldRef Text(PageId page, int index) {
    return {page, FieldKind::txt, index};
}

struct TermsDesktop : DesktopRun {
    TermsDesktop() {
        folder.Write("Proposals/Default Terms.fut", "Chair Covers[3.50]\r\nTable");
        modTerms::ListInUseChanged(program);
        window->AfterEvent();
        ChoosePage(1);
        Click(kSecond, 0);
    }
    [[nodiscard]] TextAreaView& Line(int index = 0) { return Field(Text(kSecond, index)); }
    [[nodiscard]] frmFUT& List() { return *static_cast<frmFUT*>(modWindows::Find(program, "frmFUT")); }
};

TEST(TermsWindow, AListWithNothingCurrentIsCopiedAsNothing) {
    TermsDesktop run;
    run.folder.Write("Proposals/Default Terms.fut", "");
    modTerms::ListInUseChanged(run.program);
    commands::Run(run.program, CommandId::mnuOptFUT);
    run.window->AfterEvent();
    auto* list = run.Find<QListView>("lstFUT");
    ASSERT_NE(list, nullptr);
    QTest::keyClick(list, Qt::Key_C, Qt::ControlModifier); // the toolkit asks for the words of no row
    EXPECT_FALSE(list->model()->data(QModelIndex(), Qt::DisplayRole).isValid());
}

TEST(WindowCompletion, ShowsWhatWasNotTypedAsSelected) {
    TermsDesktop run;
    run.Type(QStringLiteral("cha"));
    EXPECT_EQ(run.Line().text(), QStringLiteral("chair covers"));
    EXPECT_EQ(run.Line().selectedText(), QStringLiteral("ir covers"));
    run.Type(QStringLiteral("i"));
    EXPECT_EQ(run.Line().selectedText(), QStringLiteral("r covers"));
    run.Press(Qt::Key_Return);
    EXPECT_EQ(run.Line().text(), QStringLiteral("chair covers"));
    EXPECT_FALSE(run.Line().hasSelectedText());
    EXPECT_EQ(run.Line(33).text(), QStringLiteral("3.50"));
    EXPECT_EQ(QApplication::focusWidget(), &run.Line());
}

TEST(WindowCompletion, AScreenReaderHearsTheTextWithItsSelection) {
    TermsDesktop run;
    run.Type(QStringLiteral("cha"));
    QAccessibleInterface* line = QAccessible::queryAccessibleInterface(&run.Line());
    ASSERT_NE(line, nullptr);
    EXPECT_EQ(line->text(QAccessible::Value), QStringLiteral("chair covers"));
    ASSERT_NE(line->textInterface(), nullptr);
    ASSERT_EQ(line->textInterface()->selectionCount(), 1);
    int from = 0;
    int to = 0;
    line->textInterface()->selection(0, &from, &to);
    EXPECT_EQ(from, 3);
    EXPECT_EQ(to, 12);
}

TEST(WindowCompletion, RightAndShiftWithTheBlankTakeIt) {
    TermsDesktop run;
    run.Type(QStringLiteral("cha"));
    run.Press(Qt::Key_Right);
    EXPECT_EQ(run.Line().text(), QStringLiteral("chair covers"));
    EXPECT_EQ(run.Line().cursorPosition(), 12);
    EXPECT_EQ(run.Line(33).text(), QString());
    run.Click(kSecond, 1);
    run.Type(QStringLiteral("cha"));
    QTest::keyPress(&run.Line(1), Qt::Key_Space, Qt::ShiftModifier);
    QTest::keyRelease(&run.Line(1), Qt::Key_Space, Qt::ShiftModifier);
    EXPECT_EQ(run.Line(1).text(), QStringLiteral("chair covers "));
}

TEST(WindowCompletion, OneUndoTakesItBackToTheTypedWord) {
    TermsDesktop run;
    run.Type(QStringLiteral("cha"));
    run.Press(Qt::Key_Right);
    run.Press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(run.Line().text(), QStringLiteral("cha"));
    EXPECT_EQ(run.program.document.CurrentTextBuf[PageId::frmP2][0], "cha");
    run.Press(Qt::Key_Shift);
    EXPECT_EQ(run.Line().text(), QStringLiteral("cha")) << "it comes back with a typed key only";
    run.Type(QStringLiteral("i"));
    EXPECT_EQ(run.Line().text(), QStringLiteral("chair covers"));
    run.Press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(run.Line().text(), QStringLiteral("chai")) << "also while it still stands";
    run.Click(kSecond, 1);
    EXPECT_EQ(run.program.document.CurrentTextBuf[PageId::frmP2][0], "chai");
}

TEST(WindowCompletion, NothingCompletesWhileAnInputMethodComposes) {
    TermsDesktop run;
    run.Type(QStringLiteral("x "));
    QInputMethodEvent composing(QStringLiteral("cha"), {});
    QApplication::sendEvent(&run.Line(), &composing);
    QTest::keyRelease(&run.Line(), Qt::Key_A);
    EXPECT_EQ(run.Line().text(), QStringLiteral("x "));
    QInputMethodEvent done;
    done.setCommitString(QStringLiteral("cha"));
    QApplication::sendEvent(&run.Line(), &done);
    QTest::keyRelease(&run.Line(), Qt::Key_A);
    EXPECT_EQ(run.Line().text(), QStringLiteral("x cha"));
}

/// A term let go over a field as the toolkit's drag does it; whether the field would take it.
bool DropTerm(TermsDesktop& run, const FieldRef& field, const std::string& term) {
    run.program.terms.DraggedTerm = term;
    QMimeData data;
    data.setData(QStringLiteral("application/x-quillbrook-term"), "1");
    TextAreaView& view = run.Field(field);
    const QPoint middle = view.rect().center();
    QDragEnterEvent enter(middle, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&view, &enter);
    QDragMoveEvent move(middle, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&view, &move);
    EXPECT_EQ(enter.isAccepted(), move.isAccepted());
    if (enter.isAccepted()) {
        QDropEvent drop(middle, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&view, &drop);
    }
    return enter.isAccepted();
}

TEST(WindowDrop, ATermGoesIntoADescriptionAndNotIntoAnAmount) {
    TermsDesktop run;
    EXPECT_FALSE(DropTerm(run, Text(kSecond, 33), "Chair Covers[3.50]"));
    EXPECT_TRUE(DropTerm(run, Text(kSecond, 4), "Chair Covers[3.50]"));
    EXPECT_EQ(run.Line(4).text(), QStringLiteral("Chair Covers"));
    EXPECT_EQ(run.Line(37).text(), QStringLiteral("3.50"));
    EXPECT_EQ(QApplication::focusWidget(), &run.Line(4));
    EXPECT_EQ(run.Line(4).cursorPosition(), 12);
    EXPECT_TRUE(DropTerm(run, Text(kSecond, 33), "37.5"));
    EXPECT_EQ(run.Line(33).text(), QStringLiteral("37.50"));
}

TEST(WindowTerms, TheListShowsItsLinesAndNeedsNoItemForEach) {
    TermsDesktop run;
    auto* list = run.Find<TermListView>("lstFUT");
    ASSERT_NE(list, nullptr);
    ASSERT_EQ(list->model()->rowCount(), 2);
    EXPECT_EQ(list->model()->index(0, 0).data().toString(), QStringLiteral("Chair Covers[3.50]"));
    ASSERT_TRUE(modTerms::AddTerm(run.program, "Arch"));
    run.window->AfterEvent();
    EXPECT_EQ(list->model()->rowCount(), 3);
    EXPECT_EQ(list->model()->index(2, 0).data().toString(), QStringLiteral("Arch"));
    EXPECT_EQ(run.Find<QDockWidget>("frmFUT")->windowTitle(), QStringLiteral("Default Terms"));
}

TEST(WindowTerms, ArrowsAndEnterWorkTheList) {
    TermsDesktop run;
    auto* list = run.Find<TermListView>("lstFUT");
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Down);
    EXPECT_EQ(run.List().lstFUT.ListIndex, 0);
    QTest::keyClick(list, Qt::Key_Return);
    EXPECT_EQ(run.Line().text(), QStringLiteral("Chair Covers"));
    EXPECT_EQ(run.Line(33).text(), QStringLiteral("3.50"));
    EXPECT_FALSE(run.program.main.BringUp) << "the window has taken the keyboard";
}

TEST(WindowTerms, TheButtonsAndTheListOfListsFollow) {
    TermsDesktop run;
    auto* toggle = run.Find<QPushButton>("cmdOpt(0)");
    EXPECT_EQ(toggle->text(), QStringLiteral("Disable Auto Complete"));
    QTest::mouseClick(toggle, Qt::LeftButton);
    EXPECT_EQ(toggle->text(), QStringLiteral("Enable Auto Complete"));
    EXPECT_FALSE(run.program.run.ACEnabled);
    run.Click(kSecond, 0);
    run.Press(Qt::Key_F5);
    auto* lists = run.Find<QListWidget>("lstMoreFUT");
    EXPECT_TRUE(lists->isVisible());
    EXPECT_FALSE(run.Find<TermListView>("lstFUT")->isVisible());
    EXPECT_FALSE(run.Find<QPushButton>("cmdOpt(1)")->isEnabled());
    ASSERT_EQ(lists->count(), 2);
    lists->setFocus();
    QTest::keyClick(lists, Qt::Key_Down);
    QTest::keyClick(lists, Qt::Key_Down);
    EXPECT_EQ(run.List().lstMoreFUT.ListIndex, 1);
    EXPECT_EQ(run.List().Caption, "Default Terms");
    QTest::keyClick(lists, Qt::Key_Return);
    EXPECT_EQ(run.List().Caption, "Wedding Terms");
    EXPECT_TRUE(run.Find<TermListView>("lstFUT")->isVisible());
}

TEST(WindowTerms, DockedAtASideItTakesItsRoomFromThePageAndComesLoose) {
    TermsDesktop run;
    auto* dock = run.Find<TermsDock>("frmFUT");
    const int before = run.Child("desk")->width();
    EXPECT_TRUE(dock->isFloating());
    EXPECT_EQ(run.List().Docked, frmFUT::Side::None);
    dock->setFloating(false);
    run.window->addDockWidget(Qt::LeftDockWidgetArea, dock);
    QApplication::processEvents();
    EXPECT_EQ(run.List().Docked, frmFUT::Side::Left);
    EXPECT_LT(run.Child("desk")->width(), before);
    // The keyboard stays in the list while it is used within the main window.
    auto* list = run.Find<TermListView>("lstFUT");
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Down);
    EXPECT_TRUE(list->hasFocus());
    run.Click(kSecond, 0);
    EXPECT_EQ(QApplication::focusWidget(), &run.Line());
    dock->setFloating(true);
    QApplication::processEvents();
    EXPECT_EQ(run.List().Docked, frmFUT::Side::None);
    EXPECT_EQ(run.Child("desk")->width(), before);
}

TEST(WindowTerms, ClosingTheFrameClosesTheWindow) {
    TermsDesktop run;
    run.Find<TermsDock>("frmFUT")->close();
    EXPECT_EQ(modWindows::Find(run.program, "frmFUT"), nullptr);
    EXPECT_FALSE(run.program.run.FUTShown);
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(run.Find<TermsDock>("frmFUT"), nullptr);
}

TEST(WindowCalculator, TakesKeysOfBothPadsAndShowsTheResult) {
    DesktopRun run;
    commands::Run(run.program, CommandId::mnuOptCalc);
    run.window->AfterEvent();
    auto* line = run.Find<EquationEdit>("txtE");
    ASSERT_NE(line, nullptr);
    EXPECT_EQ(run.Find<FrmCalcView>("frmCalc")->windowTitle(), QStringLiteral("  Calculator"));
    QTest::keyClick(line, Qt::Key_1, Qt::KeypadModifier);
    QTest::keyClicks(line, QStringLiteral("2.5q%x3"));
    EXPECT_EQ(line->text(), QStringLiteral("12.5*3"));
    QTest::keyClick(line, Qt::Key_Enter, Qt::KeypadModifier);
    auto* result = run.Find<ResultEdit>("txtR");
    EXPECT_EQ(result->text(), QStringLiteral("37.5"));
    EXPECT_EQ(line->text(), QString());
    EXPECT_EQ(run.Find<QLabel>("lblE")->text(), QStringLiteral("12.5*3=37.5"));
    // Keys typed on the result begin the next equation.
    QTest::keyClick(result, Qt::Key_Plus);
    EXPECT_EQ(line->text(), QStringLiteral("37.5+"));
    QTest::keyClicks(line, QStringLiteral("2="));
    EXPECT_EQ(result->text(), QStringLiteral("39.5"));
}

TEST(WindowCalculator, EnterOnAButtonEvaluatesAndTheRightButtonClears) {
    DesktopRun run;
    commands::Run(run.program, CommandId::mnuOptCalc);
    run.window->AfterEvent();
    auto* line = run.Find<EquationEdit>("txtE");
    for (const char* name : {"cmd(6)", "cmdOp(0)", "cmd(7)"}) {
        QTest::mouseClick(run.Find<QPushButton>(name), Qt::LeftButton);
    }
    EXPECT_EQ(line->text(), QStringLiteral("6*7"));
    QTest::keyClick(run.Find<QPushButton>("cmd(1)"), Qt::Key_Return);
    EXPECT_EQ(run.Find<ResultEdit>("txtR")->text(), QStringLiteral("42"));
    EXPECT_TRUE(run.Find<QPushButton>("cmdCopy")->isEnabled());
    QTest::mouseClick(run.Find<QPushButton>("cmdCopy"), Qt::LeftButton);
    EXPECT_EQ(run.clipboard.GetText(), "42");
    QTest::mouseClick(run.Find<QPushButton>("cmdClear"), Qt::RightButton);
    EXPECT_EQ(run.Find<ResultEdit>("txtR")->text(), QString());
    EXPECT_EQ(run.Find<QLabel>("lblE")->text(), QStringLiteral("Equation"));
    EXPECT_FALSE(run.Find<QPushButton>("cmdCopy")->isEnabled());
}

TEST(WindowCalculator, APastedLineKeepsOnlyWhatCouldBeTyped) {
    DesktopRun run;
    commands::Run(run.program, CommandId::mnuOptCalc);
    run.window->AfterEvent();
    auto* line = run.Find<EquationEdit>("txtE");
    run.clipboard.SetText("+$1,250 % 3");
    QTest::keyClick(line, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(line->text(), QStringLiteral("+12503")) << "no result is put before a pasted line";
}

TEST(WindowSearch, FindsJumpsAndKeepsTheResultsInStep) {
    DesktopRun run;
    for (int row = 0; row < 33; ++row) {
        modFields::SetText(run.program, Text(kSecond, row), "line " + std::to_string(row) + " of roses");
    }
    commands::Run(run.program, CommandId::mnuEditFind);
    run.window->AfterEvent();
    auto* phrase = run.Find<QComboBox>("cmbSearch");
    ASSERT_NE(phrase, nullptr);
    QTest::keyClicks(phrase, QStringLiteral("ROSES"));
    EXPECT_EQ(run.program.search.SearchPhrase, "ROSES");
    QTest::keyClick(phrase, Qt::Key_Return);
    EXPECT_EQ(modWindows::Find(run.program, "frmSearch"), nullptr);
    std::array<QListWidget*, 3> lists{};
    for (std::size_t list = 0; list < lists.size(); ++list) {
        lists[list] = run.Find<QListWidget>(("lstResults(" + std::to_string(list) + ")").c_str());
        ASSERT_NE(lists[list], nullptr);
        EXPECT_EQ(lists[list]->count(), 33);
    }
    QApplication::processEvents();
    lists[2]->verticalScrollBar()->setValue(7);
    EXPECT_EQ(lists[0]->verticalScrollBar()->value(), 7);
    EXPECT_EQ(lists[1]->verticalScrollBar()->value(), 7);
    lists[0]->setFocus();
    QTest::keyClick(lists[0], Qt::Key_End);
    EXPECT_EQ(lists[2]->currentRow(), 32);
    EXPECT_EQ(lists[2]->verticalScrollBar()->value(), lists[0]->verticalScrollBar()->value());
    QTest::keyClick(lists[0], Qt::Key_Return);
    EXPECT_EQ(run.program.main.Focus, Text(kSecond, 32));
    EXPECT_TRUE(QTest::qWaitFor([&] { return run.Field(Text(kSecond, 32)).hasSelectedText(); }));
    EXPECT_EQ(run.Field(Text(kSecond, 32)).selectedText(), QStringLiteral("roses"));
}

} // namespace
