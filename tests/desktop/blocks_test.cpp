#include "desktop/desktop_run.h"
#include "pages/fields.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QMenu>
#include <QTest>
#include <QWindow>

#include <gtest/gtest.h>

namespace {

constexpr PageId kSecond = PageId::frmP2;

FieldRef Text(int index) {
    return {kSecond, FieldKind::txt, index};
}

/// The program with page 2 in front and a person at its mouse.
class BlockDesk : public DesktopRun {
public:
    BlockDesk() { ChoosePage(1); }

    [[nodiscard]] const Page& Second() const { return program.pages[kSecond]; }
    [[nodiscard]] const TextArea& Area(int index) const {
        return Second().txt[static_cast<std::size_t>(index)];
    }
    [[nodiscard]] bool Blue(int index) const { return Area(index).BackColor == colors::kBlockSelected; }
    [[nodiscard]] QWidget& Shape() { return *window->PageOf(kSecond).findChild<QWidget*>("shpSelect"); }

    /// A place on the page, in twips, as the window system would tell of it.
    [[nodiscard]] QPoint At(double x, double y) {
        const double scale = window->PixelsPerTwip();
        return window->PageOf(kSecond).mapTo(window.get(), QPointF(x * scale, y * scale).toPoint());
    }
    void MousePress(double x, double y) {
        QTest::mousePress(window->windowHandle(), Qt::LeftButton, Qt::NoModifier, At(x, y));
    }
    void MouseMove(double x, double y) { QTest::mouseMove(window->windowHandle(), At(x, y)); }
    void MouseRelease(double x, double y) {
        QTest::mouseRelease(window->windowHandle(), Qt::LeftButton, Qt::NoModifier, At(x, y));
    }
    void Drag(double x1, double y1, double x2, double y2) {
        MousePress(x1, y1);
        MouseMove((x1 + x2) / 2, (y1 + y2) / 2);
        MouseMove(x2, y2);
        MouseRelease(x2, y2);
    }
    /// A band around rows and their amounts: rows stand 360 twips apart from 1800 on.
    void Band(int first, int last) { Drag(600, 1800 + 360 * first - 60, 11600, 1800 + 360 * last + 320); }

    void Fill(int index, const char* text) {
        Click(kSecond, index);
        Type(QLatin1String(text));
    }
    [[nodiscard]] QString Shown(int index) { return Field(Text(index)).text(); }
    [[nodiscard]] QAction* Action(CommandId id) { return window->MenuTree().Action(id); }
};

TEST(BandOnScreen, IsDrawnAboveEverythingAndSelectsWhatItContains) {
    BlockDesk run;
    run.Fill(0, "Chairs");
    EXPECT_FALSE(run.Shape().isVisible());
    run.MousePress(600, 1700);
    EXPECT_FALSE(run.Shape().isVisible());
    run.MouseMove(6000, 2000);
    run.MouseMove(11600, 2500);
    ASSERT_TRUE(run.Shape().isVisible());
    const double scale = run.window->PixelsPerTwip();
    EXPECT_NEAR(run.Shape().x(), 600 * scale, 1);
    EXPECT_NEAR(run.Shape().y(), 1700 * scale, 1);
    EXPECT_NEAR(run.Shape().width(), 11000 * scale, 2);
    EXPECT_NEAR(run.Shape().height(), 800 * scale, 2);
    EXPECT_EQ(run.window->PageOf(kSecond).children().last(), &run.Shape());
    run.MouseRelease(11600, 2500);
    EXPECT_FALSE(run.Shape().isVisible());
    EXPECT_TRUE(run.Blue(0) && run.Blue(1) && run.Blue(33) && run.Blue(34));
    EXPECT_FALSE(run.Blue(2));
    EXPECT_EQ(QApplication::focusWidget(), &run.Field(Text(0))) << "the keyboard stays in its field";
}

TEST(BandOnScreen, StartsFromAnyCornerAndReachesBeyondThePage) {
    BlockDesk run;
    run.Drag(11600, 2500, 600, 1700);
    EXPECT_TRUE(run.Blue(0) && run.Blue(1));
    run.Press(Qt::Key_D, Qt::ControlModifier);
    EXPECT_FALSE(run.Blue(0));
    run.Drag(11600, 1700, -400, 2500); // let go on the desk, left of the paper
    EXPECT_TRUE(run.Blue(0) && run.Blue(1));
    run.Press(Qt::Key_D, Qt::ControlModifier);
    run.Drag(-400, 2500, 11600, 1700); // begun there
    EXPECT_TRUE(run.Blue(0) && run.Blue(1));
    EXPECT_EQ(QApplication::focusWidget(), &run.Field(Text(0)));
}

TEST(BandOnScreen, MayBeginOnTheWordsOfARow) {
    BlockDesk run;
    run.Click(kSecond, 3);
    run.Press(Qt::Key_F8);
    run.Click(kSecond, 20);
    const PageLabel& each = run.Second().lblEach[3];
    ASSERT_TRUE(each.Visible);
    const double x = static_cast<double>(each.Left) + 40;
    const double y = static_cast<double>(each.Top) + 120;
    const QWidget* under = run.window->childAt(run.At(x, y));
    ASSERT_NE(under, nullptr);
    ASSERT_EQ(under->objectName(), QStringLiteral("lblEach(3)"));
    run.MousePress(x, y);
    run.MouseMove(600, 1700);
    EXPECT_TRUE(run.Second().shpSelect.Visible);
    run.MouseRelease(600, 1700);
    EXPECT_FALSE(run.Second().shpSelect.Visible);
}

TEST(BandOnScreen, ACaptionIsTakenInTheHandInstead) {
    BlockDesk run;
    run.Fill(36, "12");
    run.Click(kSecond, 20);
    const PageLabel& sign = run.Second().lbl[4];
    ASSERT_TRUE(sign.Visible) << "the currency sign of row 3";
    const double x = static_cast<double>(sign.Left) + 40;
    const double y = static_cast<double>(sign.Top) + 120;
    run.MousePress(x, y);
    EXPECT_EQ(run.program.designer.CurrentLabel, 4);
    run.MouseRelease(x, y);
    EXPECT_FALSE(run.Blue(3));
}

TEST(BandOnScreen, AClickOnThePaperSelectsAndDropsNothing) {
    BlockDesk run;
    run.MousePress(300, 300);
    run.MouseRelease(300, 300);
    EXPECT_FALSE(run.program.editing.BlockMode);
    run.Band(0, 1);
    run.MousePress(300, 300);
    run.MouseRelease(300, 300);
    EXPECT_TRUE(run.Blue(0));
    EXPECT_TRUE(run.program.editing.BlockMode);
}

TEST(BandOnScreen, DoesNotBeginInAField) {
    BlockDesk run;
    run.Fill(5, "Chairs and tables");
    run.Drag(1200, 3700, 6000, 5000);
    EXPECT_FALSE(run.program.editing.BlockMode);
    EXPECT_GT(run.Area(5).SelLength, 0) << "text is marked instead";
}

TEST(BandOnScreen, ShowsBlueAreasWithLettersThatCanBeRead) {
    BlockDesk run;
    run.Fill(0, "WWWW");
    run.Click(kSecond, 20);
    run.Band(0, 0);
    const QImage picture = run.Field(Text(0)).grab().toImage();
    int blue = 0;
    int white = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QColor color = picture.pixelColor(x, y);
            blue += color == QColor(0, 0, 255) ? 1 : 0;
            white += color.red() > 180 && color.green() > 180 ? 1 : 0;
        }
    }
    EXPECT_GT(blue, picture.width() * picture.height() / 2);
    EXPECT_GT(white, 20);
}

TEST(BlocksOnScreen, AreCopiedAndPastedByKeys) {
    BlockDesk run;
    run.Click(kSecond, 0);
    run.Press(Qt::Key_F8);
    run.Type(QStringLiteral("3"));
    run.Press(Qt::Key_Return);
    run.Type(QStringLiteral("Chair covers"));
    run.Press(Qt::Key_Return);
    run.Type(QStringLiteral("19.99"));
    run.Press(Qt::Key_Return);
    run.Fill(1, "Linen");
    run.Fill(34, "40");
    run.Click(kSecond, 20);
    run.Band(0, 1);
    run.Press(Qt::Key_F2);
    EXPECT_TRUE(run.program.editing.BlockCopyHeld);
    run.Click(kSecond, 6);
    run.Press(Qt::Key_F4);
    EXPECT_EQ(run.Shown(6), QStringLiteral("Chair covers"));
    EXPECT_EQ(run.Field({kSecond, FieldKind::txtQty, 6}).text(), QStringLiteral("3"));
    EXPECT_TRUE(run.Field({kSecond, FieldKind::txtAmt, 6}).isVisible());
    EXPECT_EQ(run.Shown(7), QStringLiteral("Linen"));
    EXPECT_EQ(run.Shown(39), QStringLiteral("59.97"));
    EXPECT_EQ(run.Shown(40), QStringLiteral("40.00"));
    EXPECT_EQ(run.Find<QLabel>("lblTotal")->text(), QStringLiteral("Running Sub-Total = $ 199.94"));
    run.ExpectWindowFollows();
    QTest::mouseClick(run.Child("cmdClearMem"), Qt::LeftButton);
    EXPECT_FALSE(run.program.editing.BlockMode);
    EXPECT_FALSE(run.Blue(0));
}

TEST(BlocksOnScreen, AreCutAndGivenBack) {
    BlockDesk run;
    run.Fill(0, "Chairs");
    run.Fill(33, "12");
    run.Click(kSecond, 20);
    run.Band(0, 0);
    run.Press(Qt::Key_F3);
    EXPECT_EQ(run.Shown(0), QString());
    EXPECT_EQ(run.Shown(33), QString());
    EXPECT_EQ(run.Find<QLabel>("lblTotal")->text(), QStringLiteral("Running Sub-Total = $ 0.00"));
    run.Press(Qt::Key_U, Qt::ControlModifier);
    EXPECT_EQ(run.Shown(0), QStringLiteral("Chairs"));
    EXPECT_EQ(run.Shown(33), QStringLiteral("12.00"));
    run.ExpectWindowFollows();
}

TEST(BlocksOnScreen, AreDeletedByShiftDelWhichCutsTextOtherwise) {
    BlockDesk run;
    run.Fill(0, "Chairs");
    run.Press(Qt::Key_A, Qt::ControlModifier);
    run.Press(Qt::Key_Delete, Qt::ShiftModifier);
    EXPECT_EQ(run.Shown(0), QString()) << "marked text is cut";
    EXPECT_FALSE(run.program.editing.UndoAvailable);
    run.Type(QStringLiteral("Tables"));
    run.Click(kSecond, 20);
    run.Band(0, 0);
    run.Press(Qt::Key_Delete, Qt::ShiftModifier);
    EXPECT_EQ(run.Shown(0), QString());
    EXPECT_TRUE(run.program.editing.UndoAvailable);
    EXPECT_FALSE(run.program.editing.BlockMode);
    run.Press(Qt::Key_U, Qt::ControlModifier);
    EXPECT_EQ(run.Shown(0), QStringLiteral("Tables"));
}

TEST(BlocksOnScreen, MoveByTheArrowKeys) {
    BlockDesk run;
    run.Fill(3, "Chairs");
    run.Fill(36, "12");
    run.Click(kSecond, 20);
    run.Band(3, 3);
    run.Press(Qt::Key_Down);
    run.Press(Qt::Key_Down);
    run.Press(Qt::Key_Up);
    EXPECT_EQ(run.Shown(4), QStringLiteral("Chairs"));
    EXPECT_EQ(run.Shown(37), QStringLiteral("12.00"));
    EXPECT_EQ(run.Shown(3), QString());
    EXPECT_TRUE(run.Blue(4) && run.Blue(37));
    EXPECT_EQ(run.program.document.CurrentTextBuf[PageId::frmP2][4], "Chairs");
    EXPECT_EQ(run.program.document.CurrentTextBuf[PageId::frmP2][3], "");
    EXPECT_EQ(QApplication::focusWidget(), &run.Field(Text(20)));
    run.recording.questions.ExpectBox(
        {"Cannot move contents down. Text exists in destination.", Buttons::Ok, ""}, Answer::Ok);
    run.Press(Qt::Key_D, Qt::ControlModifier);
    run.Fill(5, "There");
    run.Band(4, 4);
    run.Press(Qt::Key_Down);
    EXPECT_EQ(run.Shown(4), QStringLiteral("Chairs"));
}

TEST(BlocksOnScreen, MoveWhileTheArrowIsHeldAndAreStoredWhenItIsLetGo) {
    BlockDesk run;
    run.Fill(3, "Chairs");
    run.Click(kSecond, 20);
    run.Band(3, 3);
    QWidget* keyboard = QApplication::focusWidget();
    QTest::keyPress(keyboard, Qt::Key_Down);
    for (int repeat = 0; repeat < 3; ++repeat) {
        QKeyEvent release(QEvent::KeyRelease, Qt::Key_Down, Qt::NoModifier, QString(), true);
        QApplication::sendEvent(keyboard, &release);
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier, QString(), true);
        QApplication::sendEvent(keyboard, &press);
    }
    EXPECT_EQ(run.Shown(7), QStringLiteral("Chairs"));
    EXPECT_EQ(run.program.document.CurrentTextBuf[PageId::frmP2][7], "");
    QTest::keyRelease(keyboard, Qt::Key_Down);
    EXPECT_EQ(run.program.document.CurrentTextBuf[PageId::frmP2][7], "Chairs");
}

TEST(BlocksOnScreen, TypingIsDeadUntilTheSelectionIsCleared) {
    BlockDesk run;
    run.Fill(0, "Chairs");
    run.Band(0, 0);
    run.Click(kSecond, 5);
    run.Type(QStringLiteral("x"));
    run.Press(Qt::Key_Backspace);
    run.Press(Qt::Key_V, Qt::ControlModifier);
    run.Click(kSecond, 0);
    run.Press(Qt::Key_Delete);
    run.Press(Qt::Key_X, Qt::ControlModifier);
    run.Press(Qt::Key_Home);
    run.Press(Qt::Key_End, Qt::ShiftModifier);
    QKeyEvent withAlt(QEvent::KeyPress, Qt::Key_Q, Qt::AltModifier, QStringLiteral("q"));
    QApplication::sendEvent(&run.Field(Text(0)), &withAlt);
    QInputMethodEvent composing(QStringLiteral("o"), {});
    QApplication::sendEvent(&run.Field(Text(0)), &composing);
    EXPECT_EQ(run.Shown(5), QString());
    EXPECT_EQ(run.Shown(0), QStringLiteral("Chairs"));
    run.Press(Qt::Key_D, Qt::ControlModifier);
    run.Click(kSecond, 5);
    run.Type(QStringLiteral("x"));
    EXPECT_EQ(run.Shown(5), QStringLiteral("x"));
}

TEST(BlocksOnScreen, ASelectionEndsWhatIsBeingComposed) {
    BlockDesk run;
    run.Fill(5, "x");
    const auto inked = [&run] {
        const QImage picture = run.Field(Text(5)).grab().toImage();
        int dark = 0;
        for (int x = qRound(30 * picture.devicePixelRatio()); x < picture.width() / 2; ++x) {
            dark += picture.pixelColor(x, picture.height() / 2).green() < 90 ? 1 : 0;
        }
        return dark;
    };
    QInputMethodEvent composing(QStringLiteral("mmmmmmmm"), {});
    QApplication::sendEvent(&run.Field(Text(5)), &composing);
    EXPECT_GT(inked(), 0);
    run.Band(0, 1);
    QInputMethodEvent committed;
    committed.setCommitString(QStringLiteral("o"));
    QApplication::sendEvent(&run.Field(Text(5)), &committed);
    EXPECT_EQ(run.Shown(5), QStringLiteral("x"));
    EXPECT_EQ(inked(), 0) << "nothing half composed is left";
}

TEST(BlocksOnScreen, TheStripsWearTheColourOfTheMode) {
    BlockDesk run;
    run.Band(0, 1);
    for (const char* name : {"lblEvent", "lblCurPos", "lblTextNum", "lblDir", "lblTotal"}) {
        const QLabel* label = run.Find<QLabel>(name);
        EXPECT_EQ(label->palette().color(QPalette::Window), QColor(0, 0, 255)) << name;
        EXPECT_EQ(label->palette().color(QPalette::WindowText), QColor(Qt::white)) << name;
    }
    EXPECT_EQ(run.Child("cmdClearMem")->palette().color(QPalette::Button), QColor(0, 0, 255));
    run.Press(Qt::Key_D, Qt::ControlModifier);
    EXPECT_FALSE(run.Find<QLabel>("lblDir")->autoFillBackground());
    EXPECT_NE(run.Child("cmdClearMem")->palette().color(QPalette::Button), QColor(0, 0, 255));
}

TEST(MenuOnScreen, ShowsTheStatesOfTheSelection) {
    BlockDesk run;
    const auto states = [&] {
        emit run.window->MenuTree().Menu(CommandId::mnuEditTextBox)->aboutToShow();
        QString on;
        for (const auto& [id, letter] :
             {std::pair{CommandId::mnuEditTextCopy, 'C'}, std::pair{CommandId::mnuEditTextCut, 'X'},
              std::pair{CommandId::mnuEditTextDelete, 'D'}, std::pair{CommandId::mnuEditTextUndo, 'U'},
              std::pair{CommandId::mnuEditTextPaste, 'V'}, std::pair{CommandId::mnuEditTextMoveUp, 'M'},
              std::pair{CommandId::mnuEditTextMoveDown, 'm'}, std::pair{CommandId::mnuEditTextDeselect, 'S'},
              std::pair{CommandId::mnuEditTextBold, 'B'}, std::pair{CommandId::mnuEditTextNormal, 'N'},
              std::pair{CommandId::mnuEditTextSelLCase, 'l'}, std::pair{CommandId::mnuEditTextSelPCase, 'p'},
              std::pair{CommandId::mnuEditTextSelUCase, 'u'}}) {
            if (run.Action(id)->isEnabled()) {
                on += QLatin1Char(letter);
            }
        }
        return on;
    };
    EXPECT_EQ(states(), QStringLiteral("B"));
    run.Fill(0, "Chairs");
    run.Press(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(states(), QStringLiteral("lpu"));
    run.Band(0, 1);
    EXPECT_EQ(states(), QStringLiteral("CXDMmS"));
    run.Press(Qt::Key_F2);
    EXPECT_EQ(states(), QStringLiteral("VSB"));
    run.Press(Qt::Key_D, Qt::ControlModifier);
    run.Band(0, 1);
    run.Press(Qt::Key_Delete, Qt::ShiftModifier);
    EXPECT_EQ(states(), QStringLiteral("UB"));
}

TEST(MenuOnScreen, MakesTextBoldAndChangesItsCase) {
    BlockDesk run;
    run.Fill(0, "chair covers");
    run.Press(Qt::Key_A, Qt::ControlModifier);
    emit run.window->MenuTree().Menu(CommandId::mnuEditTextBox)->aboutToShow();
    run.Action(CommandId::mnuEditTextSelPCase)->trigger();
    EXPECT_EQ(run.Shown(0), QStringLiteral("Chair Covers"));
    EXPECT_EQ(run.Field(Text(0)).selectedText(), QStringLiteral("Chair Covers"));
    run.Press(Qt::Key_End);
    const double before = run.Field(Text(0)).TextWidth();
    emit run.window->MenuTree().Menu(CommandId::mnuEditTextBox)->aboutToShow();
    run.Action(CommandId::mnuEditTextBold)->trigger();
    EXPECT_GT(run.Field(Text(0)).TextWidth(), before);
    EXPECT_EQ(QApplication::focusWidget(), &run.Field(Text(0)));
}

} // namespace
