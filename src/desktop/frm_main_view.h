#pragma once

#include "desktop/menus.h"
#include "desktop/strip_labels.h"
#include "program/page_records.h"
#include "shell/notice_strip.h"

#include <QElapsedTimer>
#include <QLabel>
#include <QMainWindow>
#include <QScrollBar>

#include <array>
#include <functional>
#include <memory>
#include <optional>

class Desk;
class PageView;
class QShortcut;
class QtTextMeasure;
class ToolStrip;
class WindowViews;
struct Program;

/// frmMain on screen. It holds no rule: it shows the records after every event and turns events into calls.
class FrmMainView : public QMainWindow {
    Q_OBJECT
public:
    FrmMainView(Program& program, const QtTextMeasure& measure);
    ~FrmMainView() override;

    /// Sets everything on show that differs from the records.
    void Follow();
    /// Shows the window for the first time; runs by itself when the model has loaded.
    void ShowFirst();
    /// What ends every event: closed windows leave, then everything on show follows.
    void AfterEvent();

    /// The view of a page, built when it is first asked for.
    [[nodiscard]] PageView& PageOf(PageId page);
    [[nodiscard]] Menus& MenuTree() { return *menus_; }
    /// Device-independent pixels to the twip.
    [[nodiscard]] double PixelsPerTwip() const;
    /// Milliseconds since the window was made; a test sets its own clock.
    std::function<qint64()> Now;

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool event(QEvent* event) override;

private:
    void BuildStrips();
    /// Keys that work wherever the keyboard is in the window: help, menu bar, and the ends of a preview.
    void BuildKeys();
    void FollowNotice();
    void ShowNotice(const QString& notice);
    void TurnWheel(QWheelEvent* event);
    void Resized();
    void ResizeSoon();
    void ResizeModel();
    void FollowPages();
    /// The keyboard goes where the model has it, unless a window has it.
    void FollowKeyboard();
    /// A window beside the page hands the keyboard back.
    void TakeKeyboard();
    /// Where the paper stands on the desk.
    [[nodiscard]] int PaperLeft(PageId front, int paperWidth);
    void KeepPlace();
    void FollowPlace();

    Program& program_;
    const QtTextMeasure& measure_;
    std::unique_ptr<Menus> menus_;
    ToolStrip* strip_ = nullptr;
    Desk* desk_ = nullptr;
    QScrollBar* scroll_ = nullptr;
    QScrollBar* across_ = nullptr; ///< shows while the page is wider than the desk
    std::optional<FieldRef> sideShownFor_;
    int sideShownOn_ = 0; ///< the desk's width then
    int placedFor_ = 0;   ///< the desk's width for which the paper was placed last
    StripLabels labels_;
    QLabel* notice_ = nullptr;
    NoticeStrip notices_;
    QElapsedTimer since_;
    std::array<QShortcut*, 2> endPreview_{}; ///< only while one is up
    QLabel* folder_ = nullptr;
    QLabel* area_ = nullptr;
    std::array<PageView*, kPageCount> pages_{};
    std::unique_ptr<WindowViews> windows_;
    bool following_ = false;
    bool shown_ = false;
    bool busy_ = false; ///< the pointer shows it
    bool resizePending_ = false;
};
