#pragma once

#include "desktop/window_views.h"

#include <QDate>

#include <optional>
#include <vector>

class QCalendarWidget;
class QLabel;
class RowTable;
class WindowMenuBar;
class frmDates;

/// The calendar on screen: the list, and beside it, where there is room, a month whose days with events are
/// marked.
class FrmDatesView : public WindowView {
    Q_OBJECT
public:
    FrmDatesView(Program& program, frmDates& window, QWidget* over, std::function<void()> afterEvent);
    void Follow() override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void Build();
    void Pick(QDate date);
    void MarkDays();
    frmDates& dates_;
    WindowMenuBar* menu_ = nullptr;
    RowTable* list_ = nullptr;
    QCalendarWidget* month_ = nullptr;
    QLabel* undated_ = nullptr;
    QLabel* notice_ = nullptr;
    std::vector<int> days_; ///< with events, as the month shows them
    std::optional<int> shaded_;
    int picks_ = 0;
};
