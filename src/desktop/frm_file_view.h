#pragma once

#include "desktop/window_views.h"
#include "proposal/frm_file.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

/// The file chooser: places and folders at the left, files at the right, the confirm panel below.
class FrmFileView : public WindowView {
    Q_OBJECT
public:
    FrmFileView(Program& program, frmFile& window, QWidget* over, std::function<void()> afterEvent);
    void Follow() override;

private:
    void Build();
    void Connect();
    void FollowList(QListWidget& list, const ListBox& record);

    frmFile& file_;
    QComboBox* drive_ = nullptr;
    QListWidget* folders_ = nullptr;
    QListWidget* files_ = nullptr;
    QLabel* folder_ = nullptr;
    QLabel* name_ = nullptr;
    QLabel* point_ = nullptr;
    QWidget* panel_ = nullptr;
    QPushButton* ok_ = nullptr;
    QPushButton* back_ = nullptr;
    QPushButton* cancel_ = nullptr;
    QCheckBox* ignore_ = nullptr;
};
