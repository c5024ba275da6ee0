#pragma once

#include "desktop/window_views.h"
#include "proposal/frm_file.h"

#include <QCheckBox>
#include <QComboBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QString>
#include <QTreeWidget>

/// Files in rows of name, date and size. A click on a column's head sorts by it. The keyboard's coming
/// chooses nothing; the first arrow key does.
class FileTable : public QTreeWidget {
    Q_OBJECT
public:
    FileTable(QWidget* parent, const char* name, const QString& spoken);
    [[nodiscard]] int CurrentRow() const { return indexOfTopLevelItem(currentItem()); }
    void Choose(int row);
    /// Letters typed in one go gather to the beginning of a name.
    void keyboardSearch(const QString& typed) override;

protected:
    void focusInEvent(QFocusEvent* event) override;

private:
    [[nodiscard]] QTreeWidgetItem* Beginning(const QString& letters, int from) const;
    QElapsedTimer sinceLetter_;
    QString letters_;
};

/// The file chooser: places and folders at the left, files at the right, the confirm panel below.
class FrmFileView : public WindowView {
    Q_OBJECT
public:
    FrmFileView(Program& program, frmFile& window, QWidget* over, std::function<void()> afterEvent);
    void Follow() override;

private:
    void Build();
    void Connect();
    void ConnectFiles();
    void FollowFolders();
    void FollowFiles();

    frmFile& file_;
    bool following_ = false;
    QComboBox* drive_ = nullptr;
    QListWidget* folders_ = nullptr;
    FileTable* files_ = nullptr;
    QLineEdit* filter_ = nullptr;
    QLabel* folder_ = nullptr;
    QLabel* name_ = nullptr;
    QLabel* point_ = nullptr;
    QWidget* panel_ = nullptr;
    QPushButton* ok_ = nullptr;
    QPushButton* back_ = nullptr;
    QPushButton* cancel_ = nullptr;
    QCheckBox* ignore_ = nullptr;
};
