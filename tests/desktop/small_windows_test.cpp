#include "desktop/desktop_run.h"
#include "desktop/window_views.h"
#include "program/windows.h"

#include <QCoreApplication>
#include <QDialog>
#include <QMoveEvent>
#include <QPointer>

#include <gtest/gtest.h>

namespace {

/// A small window that tells when it is gone.
class Probe : public Window {
public:
    explicit Probe(bool& gone) : gone_(gone) { Caption = "Printing"; }
    ~Probe() override { gone_ = true; }
    [[nodiscard]] std::string_view Name() const override { return "probe"; }
    [[nodiscard]] Modality Mode() const override { return Modality::Modeless; }
    void Form_Cancel(Program& program) override { modWindows::Close(program, *this); }

private:
    bool& gone_;
};

struct ProbeRun : DesktopRun {
    ProbeRun() {
        modWindows::Show(program, std::make_unique<Probe>(gone));
        window->AfterEvent();
        view = window->findChild<QDialog*>(QStringLiteral("probe"));
        EXPECT_NE(view, nullptr);
    }
    void CloseModel() { modWindows::Close(program, *modWindows::Find(program, "probe")); }
    /// As the window manager does it, at any time.
    void MoveView() const {
        QMoveEvent moved(QPoint(10, 10), QPoint(0, 0));
        QCoreApplication::sendEvent(view, &moved);
    }
    void LetViewGo() const { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

    bool gone = false;
    QPointer<QDialog> view;
};

} // namespace

TEST(SmallWindow, StandsUntilItsViewIsGone) {
    ProbeRun run;
    run.CloseModel();
    run.window->AfterEvent();
    ASSERT_FALSE(run.view.isNull());
    EXPECT_TRUE(run.view->isHidden());
    EXPECT_FALSE(run.gone);
    run.MoveView();
    run.LetViewGo();
    EXPECT_TRUE(run.view.isNull());
    EXPECT_TRUE(run.gone);
}

TEST(SmallWindow, ThatClosesWhileEventsRunStandsUntilItsViewIsGone) {
    ProbeRun run;
    run.CloseModel();
    run.window->Follow(); // within the event that goes on
    run.MoveView();
    EXPECT_FALSE(run.gone);
    run.window->AfterEvent();
    run.MoveView();
    EXPECT_FALSE(run.gone);
    run.LetViewGo();
    EXPECT_TRUE(run.view.isNull());
    EXPECT_TRUE(run.gone);
}

TEST(SmallWindow, WhoseViewIsGoneAlreadyGoesWithTheEvent) {
    ProbeRun run;
    run.CloseModel();
    run.window->Follow();
    run.LetViewGo();
    EXPECT_TRUE(run.view.isNull());
    EXPECT_FALSE(run.gone);
    run.window->AfterEvent();
    EXPECT_TRUE(run.gone);
}
