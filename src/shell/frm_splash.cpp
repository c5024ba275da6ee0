#include "shell/frm_splash.h"

#include "base/guard.h"
#include "program/keys.h"
#include "program/program.h"
#include "program/windows.h"
#include "settings/settings.h"
#include "shell/load_fonts.h"
#include "shell/main_load.h"

namespace {

constexpr float kMessageTop = 4020;
constexpr std::string_view kWait = "Please wait while fonts continue to load.";

/// The animation's pace: so many loops of so many milliseconds.
constexpr int kLoops = 100;
constexpr int kLoopTime = 8;

/// The background's three parts; only the blue one moves.
constexpr Color kRed = 18;
constexpr Color kGreen = 52;
constexpr Color kFirstBlue = 60;
constexpr Color kBlueStep = 15;
constexpr Color kLastBlue = 239;

Color Background(Color blue) {
    return kRed | (kGreen << 8U) | (blue << 16U);
}

} // namespace

void frmSplash::Form_Load(Program& program) {
    Caption = "Splash Screen";
    Picture.FontName = "Arial";
    Picture.BackColor = Background(kFirstBlue);
    program.run.SplashShown = true;
    splash::PaintBackground(Picture, program.platform.measure);
}

void frmSplash::Form_Unload(Program& program) {
    program.run.SplashShown = false;
}

void frmSplash::Animate(const Program& program) {
    const TextMeasure& measure = program.platform.measure;
    constexpr int kSteps = (kLastBlue - kFirstBlue) / kBlueStep + 1;
    Color blue = kFirstBlue;
    for (int loop = 0; loop < kLoops && !clicked_; ++loop) {
        // The colour is stepped as often as it takes to pass the last blue at the end of the loops.
        if (blue <= kLastBlue &&
            loop * kSteps / kLoops >= static_cast<int>((blue - kFirstBlue) / kBlueStep)) {
            blue += kBlueStep;
            Picture.BackColor = Background(blue);
        }
        splash::PaintBackground(Picture, measure);
        splash::PrintCorners(Picture, measure, static_cast<float>(loop) / kLoops);
        splash::PrintCentred(Picture, measure, kWait, kMessageTop);
        program.platform.events.LetEventsRunFor(kLoopTime);
    }
    splash::PaintBackground(Picture, measure);
    splash::PrintCentred(Picture, measure, kWait, kMessageTop);
}

void frmSplash::GatherFourCorners(Program& program) {
    {
        const ScopedFlag gathering(gathering_);
        program.platform.events.LetEventsRun(); // the splash shows before anything takes time
        modSettings::GetUserPreferences(program);
        Animate(program);
        modFonts::LoadTheFonts(program, &Picture);
        splash::PrintCentred(Picture, program.platform.measure, "Click anywhere to exit this screen.",
                             kMessageTop);
        program.platform.events.LetEventsRun();
    }
    if (clicked_) {
        Form_Click(program);
    }
}

void frmSplash::Form_Click(Program& program) {
    if (gathering_) {
        clicked_ = true;
        return;
    }
    if (leaving_) {
        return; // a question of the load may stand over the splash
    }
    leaving_ = true;
    modMain::MDIForm_Load(program);
    modWindows::Close(program, *this);
}

void frmSplash::Form_KeyDown(Program& program, int keyCode) {
    if (keyCode == keys::kEnter) {
        Form_Click(program);
    }
}

void frmSplash::Form_Cancel(Program& program) {
    Form_Click(program); // without the splash there would be no way on
}
