#pragma once

#include "desktop/window_views.h"

#include <vector>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class frmACStart;
class frmPOffsets;
class frmPref;
class frmPrinters;
class frmTax;
struct CheckBox;

/// The small windows of the settings on screen.

class FrmTaxView : public WindowView {
    Q_OBJECT
public:
    FrmTaxView(Program& program, frmTax& window, QWidget* over, std::function<void()> afterEvent);
};

class FrmPrefView : public WindowView {
    Q_OBJECT
public:
    FrmPrefView(Program& program, frmPref& window, QWidget* over, std::function<void()> afterEvent);
    void Follow() override;

private:
    struct Shown {
        QCheckBox* Widget;
        const CheckBox* Record;
    };
    std::vector<Shown> boxes_;
};

class FrmACStartView : public WindowView {
    Q_OBJECT
public:
    FrmACStartView(Program& program, frmACStart& window, QWidget* over, std::function<void()> afterEvent);
    void Follow() override;

private:
    frmACStart& model_;
    std::vector<QRadioButton*> options_;
    QLineEdit* other_ = nullptr;
};

class FrmPOffsetsView : public WindowView {
    Q_OBJECT
public:
    FrmPOffsetsView(Program& program, frmPOffsets& window, QWidget* over, std::function<void()> afterEvent);
    void Follow() override;

private:
    /// What the person has entered, into the record before a handler runs.
    void Take();
    frmPOffsets& model_;
    QLabel* labelX_ = nullptr;
    QLabel* labelY_ = nullptr;
    QLineEdit* x_ = nullptr;
    QLineEdit* y_ = nullptr;
};

class FrmPrintersView : public WindowView {
    Q_OBJECT
public:
    FrmPrintersView(Program& program, frmPrinters& window, QWidget* over, std::function<void()> afterEvent);
    void Follow() override;

private:
    frmPrinters& model_;
    QComboBox* printers_ = nullptr;
    QPushButton* choose_ = nullptr;
};
