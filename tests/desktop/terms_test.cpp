#include "calculator/frm_calc.h"
#include "desktop/desktop_run.h"
#include "desktop/frm_calc_view.h"
#include "desktop/frm_fut_view.h"
#include "desktop/mnemonics.h"
#include "desktop/text_area_view.h"
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
#include <QScreen>
#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>
#include <vector>

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

TEST(WindowCompletion, WhatIsTypedBehindItIsTakenBackByItself) {
    TermsDesktop run;
    run.Type(QStringLiteral("cha"));
    run.Press(Qt::Key_Right);
    run.Type(QStringLiteral(" in white"));
    run.Press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(run.Line().text(), QStringLiteral("chair covers"));
    run.Press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(run.Line().text(), QStringLiteral("cha"));
    EXPECT_EQ(run.program.document.CurrentTextBuf[PageId::frmP2][0], "cha");
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
    EXPECT_TRUE(enter.isAccepted()) << "who takes no entry is not told when it ends";
    if (move.isAccepted()) {
        QDropEvent drop(middle, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&view, &drop);
    }
    return move.isAccepted();
}

/// How a field looks with a term over it.
QImage WithTermOver(TermsDesktop& run, const FieldRef& field, const std::string& term) {
    run.program.terms.DraggedTerm = term;
    QMimeData data;
    data.setData(QStringLiteral("application/x-quillbrook-term"), "1");
    TextAreaView& view = run.Field(field);
    QDragEnterEvent enter(view.rect().center(), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&view, &enter);
    QImage seen = view.grab().toImage();
    QDragLeaveEvent leave;
    QApplication::sendEvent(&view, &leave);
    return seen;
}

TEST(WindowDrop, AFieldShowsWhetherItTakesWhatIsOverIt) {
    TermsDesktop run;
    const QImage amount = run.Line(34).grab().toImage();
    const QImage line = run.Line(4).grab().toImage();
    const QImage refused = WithTermOver(run, Text(kSecond, 34), "Chair Covers[3.50]");
    const QImage taken = WithTermOver(run, Text(kSecond, 4), "Chair Covers[3.50]");
    const auto reds = [](const QImage& image) {
        int count = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QColor color = image.pixelColor(x, y);
                count += color.red() > 150 && color.green() < 80 && color.blue() < 80 ? 1 : 0;
            }
        }
        return count;
    };
    EXPECT_EQ(reds(amount), 0);
    EXPECT_GT(reds(refused), 40);
    EXPECT_EQ(reds(taken), 0);
    EXPECT_NE(taken, line);
    EXPECT_EQ(run.Line(34).grab().toImage(), amount) << "the sign goes with what was dragged";
    EXPECT_EQ(run.Line(4).grab().toImage(), line);
    EXPECT_NE(WithTermOver(run, Text(kSecond, 34), "37.5"), refused) << "a figure is welcome there";
}

TEST(WindowDrop, OneUndoTakesItBack) {
    TermsDesktop run;
    run.Click(kSecond, 4);
    run.Type(QStringLiteral("ten"));
    EXPECT_TRUE(DropTerm(run, Text(kSecond, 4), "Chair Covers"));
    EXPECT_EQ(run.Line(4).text(), QStringLiteral("ten Chair Covers"));
    run.Press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(run.Line(4).text(), QStringLiteral("ten"));
    EXPECT_EQ(run.program.document.CurrentTextBuf[PageId::frmP2][4], "ten");
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
    EXPECT_EQ(mnemonics::Plain(toggle->text()), QStringLiteral("Disable Auto Complete"));
    QTest::mouseClick(toggle, Qt::LeftButton);
    EXPECT_EQ(mnemonics::Plain(toggle->text()), QStringLiteral("Enable Auto Complete"));
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

TEST(WindowTerms, HasRoomAtASideOfTheSmallestScreen) {
    TermsDesktop run;
    run.window->resize(1024, 700);
    QApplication::processEvents();
    const int page = run.window->centralWidget()->minimumSizeHint().width();
    EXPECT_LE(page + run.Find<TermsDock>("frmFUT")->minimumSizeHint().width() + 20, 1024)
        << "it could not be let go there";
}

TEST(WindowTerms, BesideItThePageShowsTheFieldWithTheKeyboard) {
    TermsDesktop run;
    run.window->resize(1024, 700);
    run.Click(kSecond, 33);
    auto* dock = run.Find<TermsDock>("frmFUT");
    dock->setFloating(false);
    run.window->addDockWidget(Qt::LeftDockWidgetArea, dock);
    QTest::qWait(500);
    const QWidget* desk = run.Child("desk");
    ASSERT_LT(desk->width(), run.window->PageOf(kSecond).width());
    const QRect amount(run.Line(33).mapTo(desk, QPoint(0, 0)), run.Line(33).size());
    EXPECT_TRUE(desk->rect().contains(amount)) << "it is not cut off by the list that has come beside it";
    dock->setFloating(true);
    QApplication::processEvents();
}

TEST(WindowTerms, ComesLooseAsLargeAsItWas) {
    TermsDesktop run;
    auto* dock = run.Find<TermsDock>("frmFUT");
    dock->resize(300, 350);
    EXPECT_TRUE(QTest::qWaitFor([&] { return run.List().Width == 300 * 15; }));
    dock->setFloating(false);
    run.window->addDockWidget(Qt::RightDockWidgetArea, dock);
    QTest::qWait(500);
    EXPECT_GT(dock->height(), 350);
    EXPECT_EQ(run.List().Width, 300 * 15) << "the place at a side is no place of the floating window";
    dock->setFloating(true);
    QTest::qWait(500);
    EXPECT_EQ(dock->size(), QSize(300, 350));
    EXPECT_EQ(run.List().Height, 350 * 15);
}

TEST(WindowTerms, OpensOnAScreenWhateverPlaceWasSaved) {
    for (const FutPosition& saved : {FutPosition{-90000, 100, 3600, 6000},
                                     FutPosition{100, 900000, 3600, 6000}, FutPosition{0, 0, 0, 0}}) {
        TermsDesktop run;
        run.Find<TermsDock>("frmFUT")->close();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        run.program.settings.FUTPosition = saved;
        commands::Run(run.program, CommandId::mnuOptFUT);
        run.window->AfterEvent();
        auto* dock = run.Find<TermsDock>("frmFUT");
        const QRect seen = dock->screen()->availableGeometry() & dock->geometry();
        EXPECT_GE(seen.width(), 60);
        EXPECT_GE(seen.height(), 60);
    }
}

TEST(WindowTerms, WithoutASavedPlaceItCoversNothingThatCanBeRead) {
    TermsDesktop run;
    run.ChoosePage(0);
    run.Find<TermsDock>("frmFUT")->close();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    run.window->resize(1024, 740);
    run.window->AfterEvent();
    run.program.settings.FUTPosition = {};
    commands::Run(run.program, CommandId::mnuOptFUT);
    run.window->AfterEvent();
    QCoreApplication::processEvents();
    const QRect list = run.Find<TermsDock>("frmFUT")->geometry();
    const auto covered = [&](const QWidget* part) {
        return part->isVisible() && QRect(part->mapToGlobal(QPoint()), part->size()).intersects(list);
    };
    int seen = 0;
    for (const TextAreaView* field : run.window->findChildren<TextAreaView*>()) {
        seen += field->isVisible() ? 1 : 0;
        EXPECT_FALSE(covered(field)) << field->objectName().toStdString();
    }
    EXPECT_GT(seen, 10);
    EXPECT_GE(list.width(), 200);
    EXPECT_GE(list.height(), 200);
}

TEST(WindowTerms, MinimisedItIsAButtonThatBringsTheListBack) {
    TermsDesktop run;
    auto* list = run.Find<TermListView>("lstFUT");
    const int height = run.Find<TermsDock>("frmFUT")->height();
    run.List().Minimised = true;
    run.window->AfterEvent();
    EXPECT_FALSE(list->isVisible());
    EXPECT_LT(run.Find<TermsDock>("frmFUT")->height(), 100);
    auto* restore = run.Find<QPushButton>("cmdRestore");
    EXPECT_TRUE(restore->isVisible());
    QTest::mouseClick(restore, Qt::LeftButton);
    EXPECT_TRUE(list->isVisible());
    EXPECT_FALSE(restore->isVisible());
    EXPECT_EQ(run.Find<TermsDock>("frmFUT")->height(), height);
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

TEST(WindowCalculator, APastedLineIsMadePlainAndKeepsWhatIsNoNumber) {
    DesktopRun run;
    commands::Run(run.program, CommandId::mnuOptCalc);
    run.window->AfterEvent();
    auto* line = run.Find<EquationEdit>("txtE");
    run.clipboard.SetText("+$1,250 % 3");
    QTest::keyClick(line, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(line->text(), QStringLiteral("+$1250%3")) << "no result is put before a pasted line";
    line->clear();
    run.clipboard.SetText("1,250.00\n");
    QTest::keyClick(line, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(line->text(), QStringLiteral("1250.00"));
}

TEST(WindowCalculator, AResultThatAnswersNoLineIsNotTakenAway) {
    DesktopRun run;
    commands::Run(run.program, CommandId::mnuOptCalc);
    run.window->AfterEvent();
    auto* line = run.Find<EquationEdit>("txtE");
    auto* result = run.Find<ResultEdit>("txtR");
    QTest::keyClicks(line, QStringLiteral("6*7="));
    QTest::keyClick(result, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(run.clipboard.GetText(), "42");
    run.clipboard.SetText("mine");
    for (const char* refused : {"25=", "5/0="}) {
        QTest::keyClicks(line, QLatin1String(refused));
        EXPECT_EQ(result->text(), QStringLiteral("42"));
        result->setFocus();
        result->selectAll();
        QTest::keyClick(result, Qt::Key_C, Qt::ControlModifier);
        QTest::keyClick(result, Qt::Key_Insert, Qt::ControlModifier);
        EXPECT_EQ(run.clipboard.GetText(), "mine") << refused;
        EXPECT_EQ(run.Find<QLabel>("lblE")->toolTip(), QStringLiteral("Not calculated"));
    }
}

TEST(WindowCalculator, ThePointOfTheNumberPadIsAPointWhateverItsKeySays) {
    DesktopRun run;
    commands::Run(run.program, CommandId::mnuOptCalc);
    run.window->AfterEvent();
    auto* line = run.Find<EquationEdit>("txtE");
    QTest::keyClick(line, Qt::Key_2, Qt::KeypadModifier);
    QKeyEvent comma(QEvent::KeyPress, Qt::Key_Comma, Qt::KeypadModifier, QStringLiteral(","));
    QApplication::sendEvent(line, &comma);
    QTest::keyClick(line, Qt::Key_5, Qt::KeypadModifier);
    QTest::keyClick(line, Qt::Key_Asterisk, Qt::KeypadModifier);
    QTest::keyClick(line, Qt::Key_4, Qt::KeypadModifier);
    QTest::keyClick(line, Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(run.Find<ResultEdit>("txtR")->text(), QStringLiteral("10"));
}

TEST(WindowSearch, TheWheelOverAnyListTurnsAllThree) {
    DesktopRun run;
    for (int row = 0; row < 33; ++row) {
        modFields::SetText(run.program, Text(kSecond, row), "roses " + std::to_string(row));
    }
    commands::Run(run.program, CommandId::mnuEditFind);
    run.window->AfterEvent();
    auto* phrase = run.Find<QComboBox>("cmbSearch");
    QTest::keyClicks(phrase, QStringLiteral("roses"));
    QTest::keyClick(phrase, Qt::Key_Return);
    QApplication::processEvents();
    std::array<QListWidget*, 3> lists{};
    for (std::size_t list = 0; list < lists.size(); ++list) {
        lists[list] = run.Find<QListWidget>(("lstResults(" + std::to_string(list) + ")").c_str());
    }
    int before = 0;
    for (QListWidget* turned : lists) {
        const QPointF at(turned->viewport()->rect().center());
        QWheelEvent wheel(at, turned->viewport()->mapToGlobal(at), {}, QPoint(0, -120), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(turned->viewport(), &wheel);
        const int now = turned->verticalScrollBar()->value();
        EXPECT_GT(now, before);
        before = now;
        for (const QListWidget* list : lists) {
            EXPECT_EQ(list->verticalScrollBar()->value(), now);
        }
    }
    // The top lines are the same hit in all three.
    for (const QListWidget* list : lists) {
        EXPECT_EQ(list->row(list->itemAt(4, 4)), before);
    }
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
