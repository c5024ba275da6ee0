#pragma once

#include "desktop/window_views.h"

#include <array>
#include <vector>

class FontListView;
class frmLabelProps;
class frmRGB;
class frmSnap;
class frmTextProps;
class frmTitle;
class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QSlider;
class QToolButton;
struct StripLabel;

/// The windows of the designer.

class FrmLabelPropsView : public WindowView {
    Q_OBJECT
public:
    FrmLabelPropsView(Program& program, frmLabelProps& window, QWidget* over,
                      std::function<void()> afterEvent);
    void Follow() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    frmLabelProps& model_;
    QLineEdit* caption_ = nullptr;
    QLabel* notHere_ = nullptr;
    FontListView* fonts_ = nullptr;
    QLabel* fontName_ = nullptr;
    QLabel* size_ = nullptr;
    std::array<QCheckBox*, 3> checks_{};
};

class FrmTextPropsView : public WindowView {
    Q_OBJECT
public:
    FrmTextPropsView(Program& program, frmTextProps& window, QWidget* over, std::function<void()> afterEvent);
    void Follow() override;

private:
    frmTextProps& model_;
    FontListView* fonts_ = nullptr;
    QLabel* fontName_ = nullptr;
    QLabel* color_ = nullptr;
    QLabel* sample_ = nullptr;
    QCheckBox* italic_ = nullptr;
    std::array<QRadioButton*, 5> sizes_{};
};

class FrmRGBView : public WindowView {
    Q_OBJECT
public:
    FrmRGBView(Program& program, frmRGB& window, QWidget* over, std::function<void()> afterEvent);
    void Follow() override;

private:
    frmRGB& model_;
    std::array<QSlider*, 3> sliders_{};
    std::array<std::array<QLabel*, 2>, 3> parts_{};
    std::array<QLineEdit*, 3> values_{};
    QLabel* swatch_ = nullptr;
};

class FrmSnapView : public WindowView {
    Q_OBJECT
public:
    FrmSnapView(Program& program, frmSnap& window, QWidget* over, std::function<void()> afterEvent);
};

class FrmTitleView : public WindowView {
    Q_OBJECT
public:
    FrmTitleView(Program& program, frmTitle& window, QWidget* over, std::function<void()> afterEvent);
    void Follow() override;

private:
    frmTitle& model_;
    std::array<QLineEdit*, 2> boxes_{};
};
