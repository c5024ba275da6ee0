#include "desktop/desktop_run.h"
#include "desktop/end_signals.h"
#include "desktop/frm_file_view.h"
#include "desktop/mnemonics.h"
#include "desktop/qt_surroundings.h"
#include "desktop/window_run.h"
#include "program/windows.h"
#include "shell/closing.h"
#include "shell/command_run.h"

#include <QAction>
#include <QCheckBox>
#include <QDialog>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollBar>
#include <QSessionManager>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>

#include <gtest/gtest.h>

#include <filesystem>
#include <set>

namespace {

constexpr int kNotch = 120;

/// As a wheel's turn comes: to the widget under the pointer, then to those behind until one takes it.
void TurnWheel(QWidget* over, int eighths) {
    for (QWidget* at = over; at != nullptr; at = at->parentWidget()) {
        const QPointF middle = at->rect().center();
        QWheelEvent turn(middle, at->mapToGlobal(middle), {}, QPoint(0, eighths), Qt::NoButton,
                         Qt::NoModifier, Qt::NoScrollPhase, false);
        turn.ignore();
        QApplication::sendEvent(at, &turn);
        if (turn.isAccepted()) {
            return;
        }
    }
}

/// A field's height within the desk.
bool InSight(DesktopRun& run, const FieldRef& field) {
    const QWidget& shown = run.Field(field);
    const QWidget* desk = run.Child("desk");
    const int top = shown.mapTo(desk, QPoint(0, 0)).y();
    return top >= 0 && top + shown.height() <= desk->height();
}

TEST(SmallWindow, ThatClosesBehindAnAnsweredBoxHandsTheKeyboardBack) {
    WindowRun run;
    run.Open<Window>(CommandId::mnuOptSalesTax, "frmTax");
    QtQuestions questions;
    questions.Over = run.window.get();
    QTimer::singleShot(0, run.window.get(), [] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        box->button(QMessageBox::Ok)->click();
    });
    static_cast<void>(questions.MsgBox("New Sales Tax Rate is 7.", Buttons::Ok, ""));
    // In the same event as the answer: the keyboard is still on its way to the window.
    modWindows::Close(run.program, *modWindows::Find(run.program, "frmTax"));
    run.window->AfterEvent();
    EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == run.window.get(); }, 500));
}

TEST(Preview, LeavesTheKeyboardWithTheDeskUntilItEnds) {
    WindowRun run;
    const FieldRef field{PageId::frmP1, FieldKind::txt, 3};
    run.Click(field);
    run.Command(CommandId::mnuFilePrintPreview);
    EXPECT_EQ(run.window->focusWidget(), run.Child("desk"));
    run.Command(CommandId::mnuFileResume);
    EXPECT_EQ(run.window->focusWidget(), &run.Field(field));
}

} // namespace

TEST(WindowInView, TypingComesBackToAFieldThatWasScrolledAway) {
    DesktopRun run;
    const FieldRef name{PageId::frmP1, FieldKind::txt, 2};
    run.Click(name);
    run.Find<QScrollBar>("VScroll1")->triggerAction(QAbstractSlider::SliderToMaximum);
    ASSERT_FALSE(InSight(run, name));
    run.Type(QStringLiteral("Ann"));
    EXPECT_TRUE(InSight(run, name));
    EXPECT_EQ(run.Field(name).text(), QStringLiteral("Ann"));
}

TEST(WindowInView, EnterWalksDownThePageInSight) {
    DesktopRun run;
    run.window->resize(900, 420);
    QTest::qWait(20);
    run.ChoosePage(1);
    for (int step = 0; step < 66; ++step) {
        ASSERT_TRUE(run.program.main.Focus);
        ASSERT_TRUE(InSight(run, *run.program.main.Focus)) << step;
        run.Press(Qt::Key_Return);
    }
    EXPECT_EQ(run.program.main.PageInFront, PageId::frmP3);
}

TEST(WindowWheel, ANotchIsThreeRowsOverPageFieldAndBar) {
    DesktopRun run;
    run.ChoosePage(1);
    const auto& areas = run.program.pages[PageId::frmP2].txt;
    const int three = static_cast<int>(3 * (areas[1].Top - areas[0].Top));
    auto* bar = run.Find<QScrollBar>("VScroll1");
    int wanted = 0;
    for (QWidget* over :
         {run.Child("desk"), static_cast<QWidget*>(&run.Field({PageId::frmP2, FieldKind::txt, 3})),
          static_cast<QWidget*>(bar)}) {
        TurnWheel(over, -kNotch);
        wanted += three;
        EXPECT_EQ(bar->value(), wanted) << over->objectName().toStdString();
    }
    TurnWheel(bar, kNotch);
    EXPECT_EQ(bar->value(), wanted - three);
}

TEST(WindowKeys, F1OpensTheHelp) {
    DesktopRun run;
    run.Click(PageId::frmP1, 2);
    run.Press(Qt::Key_F1);
    ASSERT_EQ(run.recording.shell.Opened.size(), 1U);
    EXPECT_TRUE(run.recording.shell.Opened[0].ends_with("Help/index.htm"));
}

TEST(WindowKeys, F10OpensTheMenuBar) {
    DesktopRun run;
    run.Click(PageId::frmP1, 2);
    run.Press(Qt::Key_F10);
    auto* file = run.Find<QMenu>("mnuFile");
    ASSERT_NE(file, nullptr);
    EXPECT_TRUE(QTest::qWaitFor([&] { return file->isVisible(); }));
    QTest::keyClick(file, Qt::Key_Right);
    EXPECT_TRUE(QTest::qWaitFor([&] { return run.Find<QMenu>("mnuFileFormat")->isVisible(); }));
    QTest::keyClick(run.Find<QMenu>("mnuFileFormat"), Qt::Key_Escape);
    QTest::keyClick(run.window->menuBar(), Qt::Key_Escape);
    EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::activePopupWidget() == nullptr; }));
}

TEST(WindowKeys, EscapeAndItsOwnKeyEndAPreview) {
    DesktopRun run;
    run.Click(PageId::frmP1, 2);
    for (const auto& [key, held] : {std::pair{Qt::Key_Escape, Qt::KeyboardModifiers(Qt::NoModifier)},
                                    std::pair{Qt::Key_R, Qt::KeyboardModifiers(Qt::ControlModifier)}}) {
        run.Press(Qt::Key_R, Qt::ControlModifier);
        ASSERT_TRUE(run.program.pages[PageId::frmP1].InkShown);
        QTest::keyClick(run.window.get(), key, held);
        EXPECT_FALSE(run.program.pages[PageId::frmP1].InkShown) << key;
        EXPECT_EQ(run.program.main.Focus, (FieldRef{PageId::frmP1, FieldKind::txt, 2}));
    }
}

TEST(WindowPreview, OfTheClientsCopyShowsItsInk) {
    DesktopRun run;
    run.ChoosePage(6);
    QTest::mouseClick(run.Child("cmdPreview"), Qt::LeftButton);
    EXPECT_TRUE(run.program.pages[PageId::frmP6_1].InkShown);
    run.ExpectWindowFollows();
    QTest::mouseClick(run.Child("cmdPreview"), Qt::LeftButton);
    EXPECT_FALSE(run.program.pages[PageId::frmP6_1].InkShown);
}

TEST(WindowPreview, TheButtonBesideItsOwnDoesNotMove) {
    DesktopRun run;
    const QPoint before = run.Child("cmdReCalc")->pos();
    QTest::mouseClick(run.Child("cmdPreview"), Qt::LeftButton);
    QTest::qWait(20);
    EXPECT_EQ(mnemonics::Plain(run.Find<QPushButton>("cmdPreview")->text()),
              QStringLiteral("Resume Editing"));
    EXPECT_EQ(run.Child("cmdReCalc")->pos(), before);
    QTest::mouseClick(run.Child("cmdPreview"), Qt::LeftButton);
}

TEST(WindowNotice, StaysForFiveSecondsOfTyping) {
    DesktopRun run;
    qint64 now = 0;
    run.window->Now = [&] { return now; };
    run.Click(PageId::frmP1, 2);
    const auto* line = run.Find<QLabel>("lblNotice");
    run.program.main.Notice = "No backup was written.";
    run.window->AfterEvent();
    for (int second = 1; second <= 4; ++second) {
        now += 1000;
        run.Type(QStringLiteral("a"));
        EXPECT_EQ(line->text(), QStringLiteral("No backup was written.")) << second;
    }
    now += 1000;
    run.Type(QStringLiteral("a"));
    EXPECT_EQ(line->text(), QString());
}

TEST(WindowNotice, IsSeenInANarrowWindowToo) {
    DesktopRun run;
    run.window->resize(640, 500);
    run.program.main.Notice = "Kept only by a format or by Save this Logo as Default.";
    run.window->AfterEvent();
    const auto* line = run.Find<QLabel>("lblNotice");
    EXPECT_TRUE(QTest::qWaitFor([&] { return line->width() >= 200; })) << line->width();
    const auto* total = run.Find<QLabel>("lblTotal");
    EXPECT_GE(total->width(), total->fontMetrics().horizontalAdvance(total->text()));
    EXPECT_LE(run.window->width(), 640);
}

TEST(SessionEnd, WritesTheBackupOfWhatIsUnsaved) {
    DesktopRun run;
    const EndSignals endings([] {}, [&] { modClosing::KeepUnsaved(run.program); });
    run.Click(PageId::frmP1, 2);
    run.Type(QStringLiteral("Ann"));
    ASSERT_FALSE(run.folder.Has("Proposals/Backup/Ann.hef"));
    // The session's manager asks every program through this signal before it ends.
    auto* manager = qGuiApp->findChild<QSessionManager*>();
    ASSERT_NE(manager, nullptr);
    QMetaObject::invokeMethod(qGuiApp, "commitDataRequest", Qt::DirectConnection,
                              Q_ARG(QSessionManager&, *manager));
    EXPECT_EQ(run.folder.Read("Proposals/Backup/Ann.hef").size(), 20630U);
    EXPECT_FALSE(run.folder.Has("Proposals/Ann.hef"));
    EXPECT_FALSE(run.program.main.Closing) << "the session may yet go on";
}

TEST(Mnemonics, EveryButtonOfAWindowHasALetterOfItsOwn) {
    for (const CommandId id :
         {CommandId::mnuFileOpenEvent, CommandId::mnuOptPrinter, CommandId::mnuOptACStart,
          CommandId::mnuOptSalesTax, CommandId::mnuOptUserPref, CommandId::mnuToolsPrinterOffsets,
          CommandId::mnuEditAllTextFonts, CommandId::mnuEditTitles, CommandId::mnuToolsSnap,
          CommandId::mnuEditFind, CommandId::mnuManageEditor}) {
        DesktopRun run;
        commands::Run(run.program, id);
        run.window->AfterEvent();
        ASSERT_FALSE(run.program.windows.Open.empty()) << static_cast<int>(id);
        const Window& model = *run.program.windows.Open.back();
        const auto* view = run.window->findChild<QDialog*>(QLatin1String(model.Name().data()));
        ASSERT_NE(view, nullptr);
        std::set<QString> letters;
        for (const QPushButton* button : view->findChildren<QPushButton*>()) {
            const QString caption = mnemonics::Plain(button->text());
            if (caption.size() < 2 || !caption.contains(QRegularExpression(QStringLiteral("[A-Za-z]")))) {
                continue; // a figure or a sign
            }
            const QString key = button->shortcut().toString();
            EXPECT_NE(key, QString()) << button->text().toStdString();
            EXPECT_TRUE(letters.insert(key).second) << button->text().toStdString();
        }
        EXPECT_FALSE(letters.empty()) << model.Name();
        modWindows::UnloadAll(run.program);
        run.window->AfterEvent();
    }
}

TEST(Mnemonics, KeepTheLetterTheyHaveAndLeaveTheMenusTheirs) {
    QDialog dialog;
    QPushButton second(QStringLiteral("Save &As"), &dialog);
    QPushButton first(QStringLiteral("Save"), &dialog);
    QPushButton sign(QStringLiteral("+"), &dialog);
    QCheckBox again(QStringLiteral("Ask &again"), &dialog);
    QPushButton help(QStringLiteral("Help"), &dialog);
    help.setShortcut(QKeySequence(Qt::Key_F1));
    mnemonics::Give(dialog, QStringLiteral("s"));
    EXPECT_EQ(second.text(), QStringLiteral("Save &As"));
    EXPECT_EQ(first.text(), QStringLiteral("Sa&ve")) << "s is taken, a is given";
    EXPECT_EQ(sign.text(), QStringLiteral("+"));
    EXPECT_EQ(again.text(), QStringLiteral("As&k again"));
    EXPECT_EQ(help.shortcut(), QKeySequence(Qt::Key_F1));
}

TEST(ChooserOnScreen, LettersTypedInOneGoGatherToTheBeginningOfAName) {
    DesktopRun run;
    for (const char* name : {"AA Adams", "AB Brown", "Abel", "Bob"}) {
        run.folder.Write(std::string("Proposals/") + name + ".hef", std::string(20630, ' '));
    }
    run.Press(Qt::Key_O, Qt::ControlModifier);
    auto* view = run.window->findChild<FrmFileView*>(QStringLiteral("frmFile"));
    ASSERT_NE(view, nullptr);
    ASSERT_TRUE(QTest::qWaitForWindowActive(view));
    auto* files = view->findChild<FileTable*>(QStringLiteral("FileList1"));
    const auto chosen = [&](const char* letters) {
        QTest::keyClicks(files, QLatin1String(letters));
        const QString name = files->currentItem() == nullptr ? QString() : files->currentItem()->text(0);
        QTest::qWait(QApplication::keyboardInputInterval() + 20); // the next letter begins anew
        return name;
    };
    EXPECT_EQ(chosen("aa"), QStringLiteral("AA Adams.hef"));
    EXPECT_EQ(chosen("abe"), QStringLiteral("Abel.hef"));
    EXPECT_EQ(chosen("a"), QStringLiteral("AA Adams.hef")) << "the next one with it, and around";
    EXPECT_EQ(chosen("bb"), QStringLiteral("Bob.hef")) << "no name begins so: the next one with b";
    QTest::keyClick(view, Qt::Key_Escape);
}

TEST(MainStrip, GivesEveryCommandButtonALetterThatNoMenuHas) {
    DesktopRun run;
    const QString menus = mnemonics::LettersOf(*run.window->menuBar());
    QString letters;
    for (const char* name : {"cmdPreview", "cmdReCalc", "cmdTaxRate", "cmdClearMem"}) {
        const QString caption = run.Find<QPushButton>(name)->text();
        const qsizetype mark = caption.indexOf(u'&');
        ASSERT_GE(mark, 0) << name;
        const QChar letter = caption.at(mark + 1).toLower();
        EXPECT_FALSE(menus.contains(letter)) << name;
        EXPECT_FALSE(letters.contains(letter)) << name;
        letters += letter;
    }
    QTest::mouseClick(run.Child("cmdPreview"), Qt::LeftButton);
    EXPECT_TRUE(run.Find<QPushButton>("cmdPreview")->text().contains(u'&')) << "Resume Editing, too";
    QTest::mouseClick(run.Child("cmdPreview"), Qt::LeftButton);
}

TEST(ChooserColumnsOnScreen, AreSortedByTheirHeadsAndTakeTypedLetters) {
    DesktopRun run;
    run.folder.Write("Proposals/Ann.hef", std::string(3000, 'x'));
    run.folder.Write("Proposals/Bob.hef", std::string(9000, 'x'));
    run.folder.Write("Proposals/Carl.hef", std::string(6000, 'x'));
    run.Press(Qt::Key_O, Qt::ControlModifier);
    auto* view = run.window->findChild<FrmFileView*>(QStringLiteral("frmFile"));
    ASSERT_NE(view, nullptr);
    ASSERT_TRUE(QTest::qWaitForWindowActive(view));
    auto* files = view->findChild<FileTable*>(QStringLiteral("FileList1"));
    ASSERT_EQ(files->topLevelItemCount(), 3);
    EXPECT_EQ(files->topLevelItem(1)->text(2), QStringLiteral("8.8 KB"));
    const QHeaderView* head = files->header();
    const QPoint size(head->sectionViewportPosition(2) + 10, head->height() / 2);
    QTest::mouseClick(head->viewport(), Qt::LeftButton, Qt::NoModifier, size);
    EXPECT_EQ(files->topLevelItem(0)->text(0), QStringLiteral("Bob.hef"));
    EXPECT_EQ(files->topLevelItem(2)->text(0), QStringLiteral("Ann.hef"));
    EXPECT_EQ(head->sortIndicatorSection(), 2);
    QTest::keyClick(files, Qt::Key_C);
    EXPECT_EQ(view->findChild<QLabel*>(QStringLiteral("lblOpenFileName"))->text(),
              QStringLiteral("Carl.hef"));
    QTest::keyClicks(view->findChild<QLineEdit*>(QStringLiteral("txtFilter")), QStringLiteral("an"));
    ASSERT_EQ(files->topLevelItemCount(), 1);
    EXPECT_EQ(files->topLevelItem(0)->text(0), QStringLiteral("Ann.hef"));
    QTest::keyClick(view, Qt::Key_Escape);
}
