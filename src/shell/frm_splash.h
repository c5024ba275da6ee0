#pragma once

#include "program/controls.h"
#include "program/window.h"
#include "shell/splash_picture.h"

/// "Splash Screen": stands while the settings and the screen's fonts are read, and leads to the main window.
class frmSplash : public Window {
public:
    SplashPicture Picture;
    ImageButton imgLogo;

    [[nodiscard]] std::string_view Name() const override { return "frmSplash"; }
    [[nodiscard]] Modality Mode() const override { return Modality::Modeless; }
    void Form_Load(Program& program) override;
    void Form_Unload(Program& program) override;
    void Form_Cancel(Program& program) override;

    /// Reads the settings, then lets four words close in on the centre while events run, then loads the
    /// fonts. A click ends the movement at once and is followed when the loading is done.
    void GatherFourCorners(Program& program);

    /// Loads the main window and closes the splash.
    void Form_Click(Program& program);
    /// Enter does what a click does.
    void Form_KeyDown(Program& program, int keyCode);

private:
    void Animate(const Program& program);

    bool gathering_ = false;
    bool clicked_ = false;
    bool leaving_ = false;
};
