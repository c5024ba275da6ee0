#pragma once

#include "program/window.h"

#include <QDialog>
#include <QPointer>

#include <functional>
#include <map>
#include <memory>
#include <utility>
#include <vector>

struct Program;

/// A small window on screen. Made when its model opens, gone when that closes.
class WindowView : public QDialog {
    Q_OBJECT
public:
    WindowView(Program& program, Window& window, QWidget* over, std::function<void()> afterEvent);
    ~WindowView() override;
    /// Sets what differs from the records.
    virtual void Follow();
    /// The model has been closed; it stays as long as something may still arrive for its view.
    void KeepModel(std::unique_ptr<Window> model) { kept_ = std::move(model); }
    /// Shows it for the first time, and takes it from the screen for good.
    virtual void Open() { show(); } // NOLINT(bugprone-virtual-near-miss): not the toolkit's own
    virtual void Leave() { hide(); }
    /// Comes to the front when the model has called for it.
    void AnswerCalls();
    [[nodiscard]] virtual bool HasKeyboard() const { return isActiveWindow(); }

protected:
    /// Runs an event: the call, then what ends every event.
    template <typename Call> void Do(Call call) {
        const std::function<void()> after = afterEvent_;
        call();
        after();
    }
    virtual void TakeKeyboard();
    void reject() override;
    void showEvent(QShowEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    Program& program_;
    Window& window_;

private:
    std::function<void()> afterEvent_;
    int frontCalls_ = 0;
    bool early_; ///< on the screen while the model loads: a box that comes then hands the keyboard elsewhere
    std::unique_ptr<Window> kept_; ///< the model, once it has left the program
};

/// Keeps one view for each open window.
class WindowViews {
public:
    WindowViews(Program& program, QWidget& over, std::function<void()> afterEvent);
    ~WindowViews();
    void Follow();
    /// Models that have left the program go to their views, and with them.
    void TakeClosed(std::vector<std::unique_ptr<Window>> closed);
    [[nodiscard]] bool ModalOpen() const;
    /// Whether a window that stands within the main one has the keyboard.
    [[nodiscard]] bool KeyboardWithin() const;

private:
    Program& program_;
    QWidget& over_;
    std::function<void()> afterEvent_;
    std::map<Window*, std::unique_ptr<WindowView>> views_;
    std::map<const Window*, QPointer<QWidget>> openers_; ///< what had the keyboard when a window came
    /// Hidden, and gone as soon as no event of theirs is on its way.
    std::map<Window*, QPointer<WindowView>> leaving_;
};

/// The view for a window, chosen by its name.
[[nodiscard]] std::unique_ptr<WindowView> MakeWindowView(Program& program, Window& window, QWidget* over,
                                                         const std::function<void()>& afterEvent);
