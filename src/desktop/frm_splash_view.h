#pragma once

#include "desktop/window_views.h"
#include "shell/splash_picture.h"

class frmSplash;

/// The splash on screen: a sheet without a frame that stands in the middle of the screen. The whole of it is
/// one button.
class FrmSplashView : public WindowView {
    Q_OBJECT
public:
    FrmSplashView(Program& program, frmSplash& window, QWidget* over, std::function<void()> afterEvent);
    void Follow() override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void PaintGround(QPainter& painter) const;
    frmSplash& splash_;
    SplashPicture shown_;
};
