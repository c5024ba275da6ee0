#include "calendar/frm_dates.h"
#include "desktop/row_table.h"
#include "desktop/window_run.h"

#include <QCalendarWidget>
#include <QLabel>
#include <QTextCharFormat>

namespace {

struct CalendarRun : WindowRun {
    CalendarRun() {
        Proposal("Ann.hef", "1/22/2008");
        Proposal("Bob.hef", "1/22/2008");
        Proposal("Cid.hef", "2/14/2008");
        Proposal("Old.hef", "3/4/150");
        dates = &Open<frmDates>(CommandId::mnuViewEventDates, "frmDates");
    }
    void Proposal(const std::string& name, const std::string& date) const {
        folder.Write("Proposals/" + name, date + std::string(20630 - date.size(), ' '));
    }
    frmDates* dates = nullptr;
};

TEST(CalendarWindow, ColumnsHoldWeekdayDateAndFile) {
    CalendarRun run;
    auto* list = run.Part<RowTable>("lstDates");
    ASSERT_EQ(list->Rows.rowCount(), 4);
    EXPECT_EQ(list->Rows.Words(1, 0), QStringLiteral("Tue"));
    EXPECT_EQ(list->Rows.Words(1, 1), QStringLiteral("Jan/22/2008"));
    EXPECT_EQ(list->Rows.Words(1, 2), QStringLiteral("Ann.hef"));
    EXPECT_EQ(run.dates->lstDates.Items[1], "Jan/22/2008\tAnn.hef");
    EXPECT_EQ(run.Part<QLabel>("lblUndated")->text(),
              QStringLiteral("1 proposal has no date that can be read."));
    EXPECT_EQ(run.Part<QLabel>("lblUndated")->toolTip(), QStringLiteral("Jane Roe.hef"));
}

TEST(CalendarWindow, ANameThatIsCutOffStandsInTheTip) {
    CalendarRun run;
    const auto* list = run.Part<RowTable>("lstDates");
    EXPECT_EQ(list->Rows.data(list->Rows.index(1, 2), Qt::ToolTipRole).toString(), QStringLiteral("Ann.hef"));
}

TEST(CalendarWindow, TheMonthMarksTheDaysWithEventsThatItCanShow) {
    CalendarRun run;
    auto* month = run.Part<QCalendarWidget>("month");
    EXPECT_TRUE(month->isVisible());
    EXPECT_EQ(month->selectedDate(), QDate(2008, 1, 21));
    const auto marks = month->dateTextFormat();
    EXPECT_TRUE(marks.contains(QDate(2008, 1, 22)));
    EXPECT_TRUE(marks.contains(QDate(2008, 2, 14)));
    EXPECT_EQ(marks.contains(QDate(150, 3, 4)), QDate(150, 3, 4) >= month->minimumDate());
}

TEST(CalendarWindow, APickedDayShadesItsRowsAndSelectsNone) {
    CalendarRun run;
    auto* list = run.Part<RowTable>("lstDates");
    emit run.Part<QCalendarWidget>("month")->clicked(QDate(2008, 1, 22));
    EXPECT_EQ(list->currentIndex().row(), 1);
    EXPECT_FALSE(list->selectionModel()->hasSelection());
    EXPECT_TRUE(list->Rows.data(list->Rows.index(1, 0), Qt::BackgroundRole).isValid());
    EXPECT_TRUE(list->Rows.data(list->Rows.index(2, 0), Qt::BackgroundRole).isValid());
    EXPECT_FALSE(list->Rows.data(list->Rows.index(3, 0), Qt::BackgroundRole).isValid());
}

TEST(CalendarWindow, ANarrowWindowHasTheListAlone) {
    CalendarRun run;
    run.view->resize(500, 400);
    EXPECT_FALSE(run.Part<QCalendarWidget>("month")->isVisible());
    EXPECT_TRUE(run.Part<RowTable>("lstDates")->isVisible());
}

TEST(CalendarWindow, DeletesAndRestoresByKeys) {
    CalendarRun run;
    auto* list = run.Part<RowTable>("lstDates");
    EXPECT_EQ(QApplication::focusWidget(), list);
    EXPECT_FALSE(run.Part<QAction>("mnuOptDelete")->isEnabled());
    run.Press(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(run.dates->lstDates.SelCount(), 4);
    EXPECT_FALSE(run.Part<QAction>("mnuFileOpen")->isEnabled());
    run.Press(Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(run.Part<QLabel>("lblNotice")->text(), QStringLiteral("4 proposals moved to Backup"));
    EXPECT_EQ(list->Rows.rowCount(), 0);
    EXPECT_TRUE(run.folder.Has("Proposals/Backup/Ann.hef.old"));
    run.Press(Qt::Key_R, Qt::ControlModifier);
    EXPECT_EQ(list->Rows.rowCount(), 4);
    EXPECT_TRUE(run.folder.Has("Proposals/Ann.hef"));
    run.Press(Qt::Key_Escape);
    EXPECT_FALSE(run.Stands("frmDates"));
}

TEST(CalendarWindow, EnterOpensTheSelectedProposal) {
    CalendarRun run;
    auto* list = run.Part<RowTable>("lstDates");
    list->setCurrentIndex(list->Rows.index(1, 0));
    EXPECT_TRUE(run.Part<QAction>("mnuFileOpen")->isEnabled());
    run.Press(Qt::Key_Return);
    EXPECT_EQ(run.program.document.FileName, "Ann.hef");
    EXPECT_TRUE(run.Stands("frmDates"));
}

TEST(CalendarWindow, CanBeUsedWithoutAMouse) {
    CalendarRun run;
    ExpectReachable(*run.view);
}

} // namespace
