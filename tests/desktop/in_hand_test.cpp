#include "desktop/desktop_run.h"
#include "desktop/dialog_parts.h"
#include "desktop/elided_label.h"
#include "desktop/message_box.h"
#include "desktop/qt_surroundings.h"
#include "pages/fields.h"
#include "program/windows.h"
#include "shell/command_run.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTest>
#include <QTimer>
#include <QToolTip>

#include <gtest/gtest.h>

namespace {

using Came = MessageBox::Came;

struct Box {
    explicit Box(Came came, const QString& text = QStringLiteral("Delete it?"))
        : box(QMessageBox::Question, QStringLiteral("Quillbrook"), text, QMessageBox::Yes | QMessageBox::No,
              nullptr, came) {
        box.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&box));
    }
    MessageBox box;
};

int TakeFigures(int keyAscii) {
    return keyAscii >= '0' && keyAscii <= '9' ? keyAscii : 0;
}

} // namespace

TEST(MessageBox, IsNotAnsweredByAPlainLetter) {
    Box run(Came::OnRequest);
    QTest::keyClick(&run.box, Qt::Key_Y);
    QTest::keyClick(&run.box, Qt::Key_N, Qt::ShiftModifier);
    QTest::qWait(150); // a pressed button is animated
    EXPECT_TRUE(run.box.isVisible());
    QTest::keyClick(&run.box, Qt::Key_Escape);
    EXPECT_FALSE(run.box.isVisible());
}

TEST(MessageBox, ThatNobodyAskedForTakesNoKeyInItsFirstHalfSecond) {
    Box run(Came::Unasked);
    auto* yes = run.box.button(QMessageBox::Yes);
    yes->setFocus();
    QTest::keyClick(yes, Qt::Key_Space);
    QTest::keyClick(&run.box, Qt::Key_Return);
    QTest::keyClick(&run.box, Qt::Key_Escape);
    EXPECT_TRUE(run.box.isVisible());
    QTest::qWait(550);
    QTest::keyClick(&run.box, Qt::Key_Escape);
    EXPECT_FALSE(run.box.isVisible());
}

TEST(MessageBox, ThatNobodyAskedForIsNotAnsweredByRunningTyping) {
    Box run(Came::Unasked);
    auto* yes = run.box.button(QMessageBox::Yes);
    yes->setFocus();
    for (int key = 0; key < 6; ++key) { // beyond the first half second
        QTest::qWait(100);
        QTest::keyClick(yes, Qt::Key_Space);
    }
    QTest::qWait(150); // a pressed button is animated
    EXPECT_TRUE(run.box.isVisible());
    QTest::qWait(400);
    QTest::keyClick(&run.box, Qt::Key_Escape);
    EXPECT_FALSE(run.box.isVisible());
}

TEST(MessageBox, ThatNobodyAskedForIsNotAnsweredBySlowTypingEither) {
    QtQuestions questions;
    QLineEdit line;
    line.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&line));
    QTest::keyClicks(&line, QStringLiteral("twelve"));
    int keys = 0;
    QTimer typist;
    QObject::connect(&typist, &QTimer::timeout, &typist, [&] {
        auto* box = qobject_cast<MessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr) << "pressed by key " << keys;
        ++keys;
        if (keys < 3) { // a blank, and Enter to the next line
            QTest::keyClick(box->button(QMessageBox::No), keys == 1 ? Qt::Key_Space : Qt::Key_Return);
        } else {
            box->button(QMessageBox::No)->click();
        }
    });
    typist.start(600);
    EXPECT_EQ(questions.MsgBox("Delete it?", Buttons::YesNo, "",
                               {.Default = Answer::No, .How = Manner::Came::Unasked}),
              Answer::No);
    EXPECT_EQ(keys, 3);
}

TEST(MessageBox, IsAsWideAsItsLinesAndNoWiderThanTheScreen) {
    const QString line(
        QStringLiteral("Text cannot be recognized as a date and will become useless for managing "
                       "your events of this year."));
    const Box kept(Came::OnRequest, line + QStringLiteral("\nJanuary 15, 2008."));
    const auto* label = kept.box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
    const int needed = label->fontMetrics().horizontalAdvance(line);
    ASSERT_LT(needed + 160, label->screen()->availableGeometry().width()) << "the line fits on this screen";
    EXPECT_GE(label->width(), needed);
    const Box cut(Came::OnRequest, line.repeated(9));
    EXPECT_LE(cut.box.frameGeometry().width(), cut.box.screen()->availableGeometry().width());
}

/// Whether all of a label's text has room in it.
bool ShowsAll(const QLabel& label) {
    return label.heightForWidth(label.width()) <= label.height() &&
           label.minimumSizeHint().width() <= label.width();
}

TEST(MessageBox, ShowsEveryWordOnScreensOfAnyWidth) {
    const QString question(
        QStringLiteral("The program did not close properly. The proposal Margaretha Wilhelmina "
                       "Featherstonehaugh-Cholmondeley has "
                       "changes from 11/22/2026 7:29:36 AM that were not saved. Bring them back?"));
    const QString path = QStringLiteral("/home/somebody/") + QStringLiteral("EventsOfTheYear").repeated(9);
    for (const QSize screen : {QSize(1280, 1024), QSize(1024, 768), QSize(640, 512)}) {
        const QSize room = screen - QSize(16, 48);
        for (const QString& text : {question, path, question + u'\n' + path}) {
            Box run(Came::OnRequest, text);
            run.box.setInformativeText(path);
            run.box.FitInto(room);
            QCoreApplication::processEvents();
            EXPECT_LE(run.box.width(), room.width());
            EXPECT_LE(run.box.height(), room.height());
            for (const char* name : {"qt_msgbox_label", "qt_msgbox_informativelabel"}) {
                const auto* label = run.box.findChild<QLabel*>(QLatin1String(name));
                ASSERT_NE(label, nullptr);
                EXPECT_TRUE(ShowsAll(*label)) << name << " of " << screen.width();
                EXPECT_TRUE(run.box.rect().contains(label->geometry())) << name << " of " << screen.width();
            }
        }
    }
}

TEST(MessageBox, IsWiderThanTheToolkitsOwnLimitWhereTheScreenHasRoom) {
    const QString line(QStringLiteral("The proposal has changes that were not saved, and they can be brought "
                                      "back as they stood when the program ended. Bring them back?"));
    Box run(Came::OnRequest, line);
    const auto* label = run.box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
    const int needed = label->fontMetrics().horizontalAdvance(line);
    run.box.FitInto(QSize(needed + 200, 600));
    QCoreApplication::processEvents();
    EXPECT_GE(label->width(), needed);
    EXPECT_LT(label->height(), 2 * label->fontMetrics().lineSpacing()) << "one line";
}

TEST(FilteredEdit, TakesWhatTheModelTakesAndTellsTheRest) {
    QDialog dialog;
    QLineEdit* edit = dialog::FilteredEdit(&dialog, "box", QStringLiteral("Box"), TakeFigures);
    dialog.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
    edit->setFocus();
    QTest::keyClicks(edit, QStringLiteral("1,5"));
    EXPECT_EQ(edit->text(), QStringLiteral("15"));
    EXPECT_TRUE(QToolTip::text().contains(QStringLiteral("was not taken")))
        << "the comma is told, not dropped";
    edit->setCursorPosition(1);
    edit->insert(QStringLiteral("a2b3"));
    EXPECT_EQ(edit->text(), QStringLiteral("1235"));
    EXPECT_EQ(edit->cursorPosition(), 3);
}

TEST(CutText, IsToldAsAWholeUnderThePointer) {
    DesktopRun run;
    const FieldRef street{PageId::frmP1, FieldKind::txt, 3};
    const std::string text = "12 <Elm> Street, " + std::string(60, 'm');
    modFields::SetText(run.program, street, text);
    run.window->AfterEvent();
    QLineEdit& field = run.Field(street);
    const auto tip = [&] {
        QHelpEvent help(QEvent::ToolTip, QPoint(5, 5), field.mapToGlobal(QPoint(5, 5)));
        QCoreApplication::sendEvent(&field, &help);
        return QToolTip::text();
    };
    EXPECT_TRUE(tip().contains(QStringLiteral("12 &lt;Elm&gt; Street, mmm"))) << tip().toStdString();
    modFields::SetText(run.program, street, "12 Elm Street");
    run.window->AfterEvent();
    QToolTip::hideText();
    EXPECT_FALSE(tip().contains(QStringLiteral("Elm")));
}

TEST(ElidedLabel, KeepsItsTextWhereItIsCut) {
    ElidedLabel label(nullptr);
    label.setText(QStringLiteral("Current Folder = /a/long/way/to/the/proposals/of/the/office"));
    label.resize(80, 20);
    EXPECT_EQ(label.text(), QStringLiteral("Current Folder = /a/long/way/to/the/proposals/of/the/office"));
    const QImage picture = label.grab().toImage();
    EXPECT_FALSE(picture.isNull());
}

TEST(Windows, FitASmallScreenThatShowsEverythingTwiceAsLarge) {
    // 1280 x 1024 at 200 %, less the title and a task bar.
    constexpr int kWidth = 640;
    constexpr int kHeight = 460;
    for (const CommandId id :
         {CommandId::mnuFileOpenEvent, CommandId::mnuFileOpenFootnotes, CommandId::mnuFileOpenAddressBook,
          CommandId::mnuEditCompInfo, CommandId::mnuEditTitles, CommandId::mnuEditFind,
          CommandId::mnuEditAllTextFonts, CommandId::mnuViewEventDates, CommandId::mnuManageDeposits,
          CommandId::mnuManageEditor, CommandId::mnuOptCalc, CommandId::mnuOptPrinter,
          CommandId::mnuOptACStart, CommandId::mnuOptSalesTax, CommandId::mnuOptUserPref,
          CommandId::mnuToolsSnap, CommandId::mnuToolsPrinterOffsets}) {
        DesktopRun run;
        run.folder.Write("Proposals/Ann.hef", "1/21/2008" + std::string(20621, ' '));
        commands::Run(run.program, id);
        run.window->AfterEvent();
        ASSERT_FALSE(run.program.windows.Open.empty()) << static_cast<int>(id);
        const std::string name(run.program.windows.Open.back()->Name());
        const auto* view = run.window->findChild<QWidget*>(QString::fromStdString(name));
        ASSERT_NE(view, nullptr) << name;
        const QSize least = view->minimumSizeHint().expandedTo(view->minimumSize());
        EXPECT_LE(least.width(), kWidth) << name;
        EXPECT_LE(least.height(), kHeight) << name;
        const QRect screen = view->screen()->availableGeometry();
        EXPECT_LE(view->width(), screen.width()) << name;
        EXPECT_LE(view->height(), screen.height()) << name;
        modWindows::UnloadAll(run.program);
        run.window->AfterEvent();
    }
}

TEST(WidePage, IsScrolledSideways) {
    DesktopRun run;
    auto* bar = run.Find<QScrollBar>("HScroll1");
    ASSERT_NE(bar, nullptr);
    EXPECT_FALSE(bar->isVisible()) << "the page fits";
    run.window->resize(640, 600);
    QTest::qWait(20);
    ASSERT_TRUE(bar->isVisible());
    const QWidget& page = run.window->PageOf(PageId::frmP1);
    run.Click(PageId::frmP1, 0);
    EXPECT_EQ(page.x(), -bar->value());
    bar->setValue(bar->maximum());
    EXPECT_EQ(page.x() + page.width(), run.Child("desk")->width()) << "its right edge shows";
    run.Click(PageId::frmP1, 2);
    EXPECT_EQ(page.x(), -bar->value());
    run.window->resize(1024, 768);
    QTest::qWait(20);
    EXPECT_FALSE(bar->isVisible());
}

TEST(InputMethod, IsToldTheCaretsTruePlace) {
    DesktopRun run;
    run.Click(PageId::frmP1, 20); // ends at the right edge
    run.Type(QStringLiteral("1250"));
    TextAreaView& amount = run.Field({PageId::frmP1, FieldKind::txt, 20});
    const QRectF caret = amount.inputMethodQuery(Qt::ImCursorRectangle).toRectF();
    EXPECT_GT(caret.x(), amount.width() - 10);
    EXPECT_LE(caret.right(), amount.width());
    run.Press(Qt::Key_Home);
    const QRectF home = amount.inputMethodQuery(Qt::ImCursorRectangle).toRectF();
    const double width = amount.TextWidth() * run.window->PixelsPerTwip();
    EXPECT_NEAR(caret.x() - home.x(), width, 2);
    const auto face = amount.inputMethodQuery(Qt::ImFont).value<QFont>();
    const double points = static_cast<double>(run.program.pages[PageId::frmP1].txt[20].FontSize);
    EXPECT_NEAR(face.pixelSize(), points * 20 * run.window->PixelsPerTwip(), 1);
}

TEST(ScreenReader, HearsTheCaptionBesideAField) {
    DesktopRun run;
    EXPECT_EQ(run.Field({PageId::frmP1, FieldKind::txt, 2}).accessibleName(),
              QStringLiteral("Client's Name"));
    run.program.pages[PageId::frmP1].lbl[12].Caption = "Host";
    run.window->AfterEvent();
    EXPECT_EQ(run.Field({PageId::frmP1, FieldKind::txt, 2}).accessibleName(), QStringLiteral("Host"));
}
