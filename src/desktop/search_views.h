#pragma once

#include "desktop/window_views.h"

#include <QListWidget>

#include <array>

class QComboBox;
class QRadioButton;
class frmSR;
class frmSearch;

class FrmSearchView : public WindowView {
    Q_OBJECT
public:
    FrmSearchView(Program& program, frmSearch& window, QWidget* over, std::function<void()> afterEvent);
    void Follow() override;

private:
    frmSearch& model_;
    QComboBox* phrase_ = nullptr;
    std::array<QRadioButton*, 2> options_{};
};

class FrmSRView : public WindowView {
    Q_OBJECT
public:
    FrmSRView(Program& program, frmSR& window, QWidget* over, std::function<void()> afterEvent);
    void Follow() override;

protected:
    /// At the foot of the main window, where it covers few of the hits that it leads to.
    void showEvent(QShowEvent* event) override;

private:
    void Fill();
    frmSR& model_;
    std::array<QListWidget*, 3> lists_{};
    bool following_ = false;
    bool placed_ = false;
};
