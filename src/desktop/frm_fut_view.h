#pragma once

#include "desktop/window_views.h"

#include <QAbstractListModel>
#include <QDockWidget>
#include <QListView>
#include <QListWidget>
#include <QMainWindow>
#include <QPointer>
#include <QPushButton>
#include <QTimer>

#include <array>
#include <functional>
#include <optional>

class QAction;
class QMainWindow;
class QMenu;
class frmFUT;

/// The lines of the open list as rows, made as they are shown.
class TermRows : public QAbstractListModel {
    Q_OBJECT
public:
    TermRows(const Program& program, QObject* parent) : QAbstractListModel(parent), program_(program) {}
    [[nodiscard]] int rowCount(const QModelIndex& parent) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    /// The lines are others now.
    void Renew();

private:
    const Program& program_;
    int rows_ = 0;
};

/// The terms. A row can be dragged onto a field of a page.
class TermListView : public QListView {
    Q_OBJECT
public:
    explicit TermListView(QWidget* parent) : QListView(parent) {}
    std::function<void()> Dragged;
    std::function<void()> Entered;

protected:
    void startDrag(Qt::DropActions actions) override;
    void keyPressEvent(QKeyEvent* event) override;
};

/// The lists. Arrow keys move, Enter and a click open.
class FileListView : public QListWidget {
    Q_OBJECT
public:
    explicit FileListView(QWidget* parent) : QListWidget(parent) {}
    std::function<void()> Entered;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    /// The keyboard's coming chooses nothing.
    void focusInEvent(QFocusEvent* event) override;
};

/// The frame that floats beside the page or docks at a side of the main window.
class TermsDock : public QDockWidget {
    Q_OBJECT
public:
    explicit TermsDock(QMainWindow* over) : QDockWidget(over) {}
    std::function<void()> Moved;
    std::function<void()> Closed;
    std::function<void()> Escaped;

protected:
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

/// frmFUT on screen. The dialog itself never shows; its frame does.
class FrmFutView : public WindowView {
    Q_OBJECT
public:
    FrmFutView(Program& program, frmFUT& window, QWidget* over, std::function<void()> afterEvent);
    ~FrmFutView() override;
    void Follow() override;
    void Open() override;
    void Leave() override;
    [[nodiscard]] bool HasKeyboard() const override;

protected:
    void TakeKeyboard() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void BuildMenus(QWidget* body);
    void BuildLists();
    void BuildButtons(QWidget* body);
    [[nodiscard]] QRect SavedPlace() const;
    /// Without a saved place it stands where it covers nothing, until a person puts it elsewhere.
    void StandFree();
    void ShowFirst();
    /// The floating window's place and size go into the model.
    void KeepPlace();
    /// It has docked or come loose.
    void KeepSide();
    /// Moved or sized: kept when it rests, for a window on its way to a side is no place of its own.
    void KeepPlaceSoon();
    void FollowMoreLists();
    void FollowButtons();
    [[nodiscard]] double PixelsPerTwip() const;

    frmFUT& model_;
    QPointer<TermsDock> dock_; ///< gone before the view when the main window goes
    QWidget* content_ = nullptr;
    QWidget* body_ = nullptr;
    QPushButton* restore_ = nullptr;
    QMenu* file_ = nullptr;
    TermRows* rows_ = nullptr;
    TermListView* terms_ = nullptr;
    FileListView* lists_ = nullptr;
    std::array<QPushButton*, 4> options_{};
    std::array<QPushButton*, 3> cases_{};
    QAction* default_ = nullptr;
    QTimer resting_;
    int version_ = -1;
    bool waiting_ = false; ///< open, and not shown before the page is
    bool placed_ = false;
    QWidget* desk_ = nullptr;
    std::optional<QRect> free_; ///< where it stands free
    bool following_ = false;
};
