#include "deposits/frm_deposits.h"
#include "desktop/entry_edit.h"
#include "desktop/row_table.h"
#include "desktop/window_run.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <QToolTip>

namespace {

struct DepositsRun : WindowRun {
    DepositsRun() : deposits(Open<frmDeposits>(CommandId::mnuManageDeposits, "frmDeposits")) {}
    frmDeposits& deposits;
};

TEST(DepositsWindow, TakesADepositByKeysAloneAndTheTotalsFollowInTheWindowBehind) {
    DepositsRun run;
    EXPECT_EQ(QApplication::focusWidget(), run.Part<EntryEdit>("txtName"));
    EXPECT_EQ(run.Part<EntryEdit>("txtName")->selectedText(), QStringLiteral("Jane Roe"));
    run.Press(Qt::Key_Tab);
    EXPECT_EQ(run.Part<EntryEdit>("txtDate")->selectedText(), QStringLiteral("Jan 21, 2008"));
    run.Type(QStringLiteral("1/5/08"));
    run.Press(Qt::Key_Return);
    EXPECT_EQ(run.Part<EntryEdit>("txtDate")->text(), QStringLiteral("Jan 05, 2008"));
    EXPECT_EQ(QApplication::focusWidget(), run.Part<EntryEdit>("txtAmount"));
    run.Type(QStringLiteral("-15a00.5"));
    EXPECT_EQ(run.Part<EntryEdit>("txtAmount")->text(), QStringLiteral("1500.5"));
    EXPECT_TRUE(run.Part<QPushButton>("cmdSave")->isDefault());
    run.Press(Qt::Key_Return);
    EXPECT_FALSE(run.Part<QPushButton>("cmdSave")->isDefault());
    run.Press(Qt::Key_Return); // a second Enter adds nothing
    auto* list = run.Part<RowTable>("lst");
    ASSERT_EQ(list->Rows.rowCount(), 1);
    EXPECT_EQ(list->Rows.Words(0, 0), QStringLiteral("Jan 05, 2008"));
    EXPECT_EQ(list->Rows.Words(0, 1), QStringLiteral("$ 1,500.50"));
    EXPECT_EQ(run.Part<QLabel>("lblTotal")->text(), QStringLiteral("Total Deposit = $ 1500.5"));
    run.Press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(run.folder.Read("Proposals/Jane Roe.dep"), "Jane Roe\r\nJan 05, 2008\t\t$ 1,500.50");
    EXPECT_EQ(run.program.totals.Balance, -1500.5F);
    EXPECT_EQ(run.program.pages[PageId::frmP6].txt[4].Text, "1500.5");
    run.Press(Qt::Key_Escape);
    EXPECT_FALSE(run.Stands("frmDeposits"));
}

TEST(DepositsWindow, ASignThatTheAmountDoesNotTakeIsTold) {
    DepositsRun run;
    auto* amount = run.Part<EntryEdit>("txtAmount");
    amount->setFocus();
    QToolTip::hideText();
    run.Type(QStringLiteral("-50.25"));
    EXPECT_EQ(amount->text(), QStringLiteral("50.25"));
    EXPECT_TRUE(QToolTip::text().contains(QStringLiteral("\u201C-\u201D was not taken")));
    amount->clear();
    QToolTip::hideText();
    QApplication::clipboard()->setText(QStringLiteral("(50.25)"));
    amount->paste();
    EXPECT_EQ(amount->text(), QStringLiteral("50.25"));
    EXPECT_TRUE(QToolTip::text().contains(QStringLiteral("\u201C()\u201D was not taken")));
    run.recording.questions.Expect("Add it?", Answer::No);
    run.Press(Qt::Key_Escape);
}

TEST(DepositsWindow, ABoxAtFaultTurnsRedAndHasTheKeyboard) {
    DepositsRun run;
    auto* amount = run.Part<EntryEdit>("txtAmount");
    amount->setFocus();
    run.Type(QStringLiteral("1.2.3"));
    run.Press(Qt::Key_Return);
    EXPECT_EQ(amount->palette().color(QPalette::Base), QColor(Qt::red));
    EXPECT_FALSE(amount->toolTip().isEmpty());
    EXPECT_EQ(QApplication::focusWidget(), amount);
    run.Type(QStringLiteral("5"));
    EXPECT_NE(amount->palette().color(QPalette::Base), QColor(Qt::red));
    run.recording.questions.Expect("Add it?", Answer::No);
    run.Press(Qt::Key_Escape);
}

TEST(DepositsWindow, ARowIsTakenChangedAndRemoved) {
    DepositsRun run;
    run.Part<EntryEdit>("txtAmount")->setFocus();
    for (const char* amount : {"100", "200"}) { // the second replaces the first
        run.Type(QLatin1String(amount));
        run.Press(Qt::Key_Return);
    }
    auto* list = run.Part<RowTable>("lst");
    list->setFocus();
    list->setCurrentIndex(list->Rows.index(0, 0));
    EXPECT_EQ(run.deposits.lst.FirstSelected(), 0);
    run.recording.questions.Expect("has been placed");
    run.Press(Qt::Key_E, Qt::ControlModifier);
    EXPECT_EQ(run.Part<EntryEdit>("txtAmount")->text(), QStringLiteral("100.00"));
    EXPECT_EQ(QApplication::focusWidget(), run.Part<EntryEdit>("txtDate"));
    run.Press(Qt::Key_Return);
    run.Type(QStringLiteral("150"));
    run.Press(Qt::Key_Return);
    EXPECT_EQ(list->Rows.Words(0, 1), QStringLiteral("$ 150.00"));
    list->setCurrentIndex({});
    list->setCurrentIndex(list->Rows.index(1, 0));
    run.Press(Qt::Key_R, Qt::ControlModifier);
    EXPECT_EQ(list->Rows.rowCount(), 1);
    run.recording.questions.Expect("Save changes?", Answer::No);
    run.Press(Qt::Key_Escape);
}

TEST(DepositsWindow, WhoseOpeningTellsSomethingHasTheKeyboardAfterwards) {
    WindowRun run;
    run.folder.Write("Proposals/Jane Roe.dep", "Jane Roe\r\nJan 05, 2008\t\t$ 100.00");
    run.recording.questions.Allow("This deposit does not match with the one in the proposal.", [&] {
        run.window->Follow(); // as before every question
        QMessageBox box(run.window.get());
        QTimer::singleShot(0, &box, &QMessageBox::accept);
        box.exec();
        run.window->activateWindow(); // where the window manager leaves the keyboard
        EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == run.window.get(); }));
    });
    run.Open<frmDeposits>(CommandId::mnuManageDeposits, "frmDeposits");
    run.recording.questions.Allow({});
    EXPECT_EQ(QApplication::focusWidget(), run.Part<EntryEdit>("txtName"));
    const std::string before = run.program.pages[PageId::frmP1].txt[0].Text;
    run.Press(Qt::Key_End);
    run.Type(QStringLiteral("x"));
    EXPECT_EQ(run.Part<EntryEdit>("txtName")->text(), QStringLiteral("Jane Roex"));
    EXPECT_EQ(run.program.pages[PageId::frmP1].txt[0].Text, before);
}

TEST(DepositsWindow, CanBeUsedWithoutAMouse) {
    DepositsRun run;
    ExpectReachable(*run.view);
}

} // namespace
