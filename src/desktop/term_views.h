#pragma once

#include "desktop/window_views.h"

class QLineEdit;
class frmAddFUT;
class frmEditFUT;

/// The small windows in which a term is added or changed.

class FrmAddFutView : public WindowView {
    Q_OBJECT
public:
    FrmAddFutView(Program& program, frmAddFUT& window, QWidget* over, std::function<void()> afterEvent);
    void Follow() override;

private:
    frmAddFUT& model_;
    QLineEdit* text_ = nullptr;
};

class FrmEditFutView : public WindowView {
    Q_OBJECT
public:
    FrmEditFutView(Program& program, frmEditFUT& window, QWidget* over, std::function<void()> afterEvent);
};
