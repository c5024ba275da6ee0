#pragma once

#include <QAbstractListModel>
#include <QDockWidget>
#include <QListView>
#include <QListWidget>
#include <QMainWindow>

#include <functional>

struct Program;

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
