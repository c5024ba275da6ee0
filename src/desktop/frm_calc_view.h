#pragma once

#include "desktop/window_views.h"

#include <QLineEdit>

#include <functional>
#include <utility>
#include <vector>

class QLabel;
class QPushButton;
class frmCalc;
struct CommandButton;

/// The equation. Characters pass the model's filter.
class EquationEdit : public QLineEdit {
    Q_OBJECT
public:
    explicit EquationEdit(QWidget* parent) : QLineEdit(parent) {}
    std::function<int(int)> Filter;
    /// The line holds something else; `typed` when a character was typed.
    std::function<void(bool typed)> Changed;
    std::function<void()> Released;
    std::function<void()> Arrived;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
};

/// The result. Keys on it go to the equation; it can be dragged away.
class ResultEdit : public QLineEdit {
    Q_OBJECT
public:
    explicit ResultEdit(QWidget* parent) : QLineEdit(parent) {}
    std::function<void(int)> Typed;
    std::function<void()> Arrived;
    std::function<void()> Dragged;
    /// A result that answers no line is not taken away.
    std::function<bool()> MayCopy;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    QPoint pressed_;
};

class FrmCalcView : public WindowView {
    Q_OBJECT
public:
    FrmCalcView(Program& program, frmCalc& window, QWidget* over, std::function<void()> afterEvent);
    void Follow() override;
    void Open() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QPushButton* Button(const QString& name, const CommandButton& record, std::function<void()> click);
    void BuildLines();
    void BuildKeys();
    void FollowKeyboard();

    frmCalc& model_;
    QLabel* echo_ = nullptr;
    EquationEdit* equation_ = nullptr;
    ResultEdit* result_ = nullptr;
    QPushButton* clear_ = nullptr;
    QPushButton* copy_ = nullptr;
    bool following_ = false;
    /// Open, it is not shown before the page is.
    enum class Stands { Closed, Waiting, Shown };
    Stands stands_ = Stands::Closed;
};
