#pragma once

#include "desktop/window_views.h"

#include <string>

class EntryEdit;
class QLabel;
class QPushButton;
class RowTable;
class WindowMenuBar;
class frmDeposits;

/// The deposits of the proposal on screen.
class FrmDepositsView : public WindowView {
    Q_OBJECT
public:
    FrmDepositsView(Program& program, frmDeposits& window, QWidget* over, std::function<void()> afterEvent);
    void Follow() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Build();
    void Connect();
    frmDeposits& deposits_;
    WindowMenuBar* menu_ = nullptr;
    EntryEdit* name_ = nullptr;
    EntryEdit* date_ = nullptr;
    EntryEdit* amount_ = nullptr;
    QPushButton* save_ = nullptr;
    RowTable* list_ = nullptr;
    QLabel* total_ = nullptr;
    std::string active_; ///< the control that the model last sent the keyboard to
};
