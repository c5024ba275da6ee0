#include "desktop/frm_dates_view.h"

#include "calendar/frm_dates.h"
#include "desktop/convert.h"
#include "desktop/dialog_parts.h"
#include "desktop/row_table.h"
#include "desktop/window_menu_bar.h"
#include "program/program.h"

#include <QCalendarWidget>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QTextCharFormat>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace {

constexpr int kRoomForMonth = 700;

QDate DayZero() {
    return {1899, 12, 30};
}

void ShowWords(QLabel& label, const StripLabel& record) {
    const QString caption = convert::ToQString(record.Caption);
    if (label.text() != caption) {
        label.setText(caption);
    }
    const QString tip = convert::ToQString(record.ToolTipText);
    if (label.toolTip() != tip) {
        label.setToolTip(tip);
    }
}

} // namespace

FrmDatesView::FrmDatesView(Program& program, frmDates& window, QWidget* over,
                           std::function<void()> afterEvent)
    : WindowView(program, window, over, std::move(afterEvent)), dates_(window) {
    Build();
    FrmDatesView::Follow();
    list_->setFocus();
}

void FrmDatesView::Build() {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(12, 10, 12, 10);
    column->setSpacing(6);
    menu_ = new WindowMenuBar(this, dates_,
                              [this](std::string_view name) { Do([&] { dates_.Choose(program_, name); }); });
    column->setMenuBar(menu_);
    QLabel* heading = dialog::Words(this, "lblHeading", dates_.lblHeading.Caption);
    QFont strong = heading->font();
    strong.setBold(true);
    heading->setFont(strong);
    column->addWidget(heading);

    auto* row = new QHBoxLayout;
    row->setSpacing(12);
    list_ = new RowTable(this, "lstDates", convert::ToQString(dates_.lblHeading.Caption));
    list_->Rows.Columns = 3;
    list_->Rows.Words = [this](int at, int shown) {
        const auto& rows = program_.calendar.Rows;
        if (static_cast<std::size_t>(at) >= rows.size()) {
            return QString(); // the list is being made anew
        }
        const EventRow& event = rows[static_cast<std::size_t>(at)];
        return convert::ToQString(shown == 0 ? event.Weekday : shown == 1 ? event.Date : event.File);
    };
    list_->Rows.Shaded = [this](int at) {
        const auto& rows = program_.calendar.Rows;
        return dates_.ShadedDay && static_cast<std::size_t>(at) < rows.size() &&
               rows[static_cast<std::size_t>(at)].Day == *dates_.ShadedDay;
    };
    list_->Rows.Tip = [this](int at) { return list_->Rows.Words(at, 2); };
    const QFontMetrics metrics(list_->font());
    list_->setColumnWidth(0, metrics.horizontalAdvance(QStringLiteral("Wed")) + 24);
    list_->setColumnWidth(1, metrics.horizontalAdvance(QStringLiteral("May/28/2008")) + 24);
    list_->setMinimumWidth(320);
    row->addWidget(list_, 1);
    month_ = new QCalendarWidget(this);
    month_->setObjectName(QStringLiteral("month"));
    month_->setAccessibleName(tr("Days with events"));
    month_->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    month_->setGridVisible(true);
    month_->setSelectedDate(
        DayZero().addDays(static_cast<qint64>(std::floor(program_.platform.clock.Now()))));
    row->addWidget(month_, 0, Qt::AlignTop);
    column->addLayout(row, 1);

    auto* foot = new QHBoxLayout;
    undated_ = dialog::Words(this, "lblUndated", "");
    undated_->setWordWrap(false);
    notice_ = dialog::Words(this, "lblNotice", "");
    notice_->setWordWrap(false);
    notice_->setAlignment(Qt::AlignRight);
    foot->addWidget(undated_);
    foot->addWidget(notice_, 1);
    column->addLayout(foot);
    resize(760, 460);

    list_->Selected = [this](const std::vector<int>& rows, int current) {
        Do([&] { dates_.lstDates_Click(program_, rows, current); });
    };
    connect(list_, &QAbstractItemView::activated, this,
            [this] { Do([this] { dates_.lstDates_DblClick(program_); }); });
    connect(month_, &QCalendarWidget::clicked, this, [this](QDate date) { Pick(date); });
    connect(month_, &QCalendarWidget::activated, this, [this](QDate date) { Pick(date); });
}

void FrmDatesView::Pick(QDate date) {
    Do([&] { dates_.PickDay(program_, static_cast<int>(DayZero().daysTo(date))); });
}

void FrmDatesView::MarkDays() {
    std::vector<int> days;
    for (const EventRow& event : program_.calendar.Rows) {
        days.push_back(event.Day);
    }
    std::sort(days.begin(), days.end());
    days.erase(std::unique(days.begin(), days.end()), days.end());
    if (days == days_) {
        return;
    }
    days_ = std::move(days);
    month_->setDateTextFormat({}, {});
    QTextCharFormat marked;
    marked.setFontWeight(QFont::Bold);
    marked.setBackground(QColor(120, 160, 220, 110));
    for (const int day : days_) {
        const QDate date = DayZero().addDays(day);
        if (date >= month_->minimumDate() && date <= month_->maximumDate()) {
            month_->setDateTextFormat(date, marked);
        }
    }
}

void FrmDatesView::resizeEvent(QResizeEvent* event) {
    WindowView::resizeEvent(event);
    month_->setVisible(width() >= kRoomForMonth);
}

void FrmDatesView::Follow() {
    WindowView::Follow();
    menu_->Follow(dates_);
    list_->Follow(dates_.lstDates);
    MarkDays();
    ShowWords(*undated_, dates_.lblUndated);
    ShowWords(*notice_, dates_.lblNotice);
    if (shaded_ != dates_.ShadedDay) {
        shaded_ = dates_.ShadedDay;
        list_->Rows.Repaint();
    }
    if (picks_ != dates_.Picks) {
        picks_ = dates_.Picks;
        const QModelIndex current = list_->currentIndex();
        if (current.isValid()) {
            list_->scrollTo(current, QAbstractItemView::PositionAtTop);
        }
    }
}
