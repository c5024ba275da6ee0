#pragma once

#include "desktop/window_views.h"

class ContractEdit;
class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QWidget;
class WindowMenuBar;
class frmEditor;

/// The contract editor on screen.
class FrmEditorView : public WindowView {
    Q_OBJECT
public:
    FrmEditorView(Program& program, frmEditor& window, QWidget* over, std::function<void()> afterEvent);
    void Follow() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void reject() override;

private:
    void BuildFonts();
    void BuildText();
    void BuildFind();
    void Connect();
    void OpenFind();
    void CloseFind();
    void FindNext(bool back);
    frmEditor& editor_;
    WindowMenuBar* menu_ = nullptr;
    QGroupBox* fonts_ = nullptr;
    QComboBox* font_ = nullptr;
    QComboBox* size_ = nullptr;
    QCheckBox* italic_ = nullptr;
    QGroupBox* counts_ = nullptr;
    QPushButton* lines_ = nullptr;
    QPushButton* import_ = nullptr;
    QLabel* position_ = nullptr;
    ContractEdit* text_ = nullptr;
    QWidget* find_ = nullptr;
    QLineEdit* words_ = nullptr;
    QLabel* notice_ = nullptr;
    int focusCalls_ = 0;
};
