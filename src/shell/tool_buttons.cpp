#include "shell/tool_buttons.h"

#include "program/program.h"

#include <array>

namespace modToolButtons {

namespace {

enum Frame : std::size_t { kRaised, kSunken };

/// The frame stands this far outside the button.
constexpr float kOutside = 30;
/// The lines above and below do not follow the button's width.
constexpr float kLevelLength = 300;

std::array<FrameLine*, 4> LinesOf(Program& program, Frame frame) {
    MainWindow& main = program.main;
    return {&main.lneLeft[frame], &main.lneRight[frame], &main.lneTop[frame], &main.lneBottom[frame]};
}

void Hide(Program& program, Frame frame) {
    for (FrameLine* line : LinesOf(program, frame)) {
        line->Visible = false;
    }
}

void Place(Program& program, Frame frame, const ImageButton& button) {
    const float left = button.Left - kOutside;
    const float right = button.Left + button.Width + kOutside;
    const float top = button.Top - kOutside;
    const float bottom = button.Top + button.Height + kOutside;
    MainWindow& main = program.main;
    main.lneLeft[frame] = {left, top, left, bottom, true};
    main.lneRight[frame] = {right, top, right, bottom, true};
    main.lneTop[frame] = {left, top, left + kLevelLength, top, true};
    main.lneBottom[frame] = {left, bottom, left + kLevelLength, bottom, true};
}

} // namespace

void HoverToolButton(Program& program, const ImageButton& button) {
    if (program.main.ToolButtonPressed) {
        return;
    }
    Hide(program, kSunken);
    Place(program, kRaised, button);
}

void PressToolButton(Program& program, const ImageButton& button) {
    Hide(program, kRaised);
    Place(program, kSunken, button);
    program.main.ToolButtonPressed = true;
}

void ReleaseToolButton(Program& program) {
    ClearButtonBorders(program);
    program.main.ToolButtonPressed = false;
}

void LeaveToolButton(Program& program) {
    Hide(program, kRaised);
    program.main.ToolButtonPressed = false;
}

ButtonFrame FrameOf(const Program& program, const ImageButton& button) {
    const MainWindow& main = program.main;
    const auto stands = [&](Frame frame) {
        const FrameLine& left = main.lneLeft[frame];
        return left.Visible && left.X1 == button.Left - kOutside && left.Y1 == button.Top - kOutside;
    };
    return stands(kSunken) ? ButtonFrame::Sunken : stands(kRaised) ? ButtonFrame::Raised : ButtonFrame::None;
}

void LoadPageButtonCursors(Program& program) {
    MainWindow& main = program.main;
    for (ImageButton* image : {&main.imgNew, &main.imgOpen, &main.imgSave, &main.imgSaveAs, &main.imgPrint,
                               &main.imgSearch, &main.imgSpellCheck, &main.imgFootNotes, &main.imgTime}) {
        image->Pointer = main.imgPage[0].Pointer;
    }
    for (ImageButton& image : main.imgPage) {
        image.Pointer = main.imgPage[0].Pointer;
    }
}

void ClearButtonBorders(Program& program) {
    Hide(program, kRaised);
    Hide(program, kSunken);
}

} // namespace modToolButtons
