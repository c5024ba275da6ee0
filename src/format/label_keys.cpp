#include "format/label_keys.h"

#include "format/label_designer.h"
#include "format/logo.h"
#include "pages/fields.h"
#include "pages/label_mode.h"
#include "pages/page_geometry.h"
#include "program/keys.h"
#include "program/program.h"

#include <optional>
#include <vector>

namespace modLabelKeys {

namespace {

/// What Tab goes over: the labels that show, empty ones too, and the logo last.
std::vector<int> Stops(const Program& program) {
    const Page& page = program.pages[modDesigner::DesignPage(program)];
    std::vector<int> stops;
    for (std::size_t index = 0; index < page.lbl.size(); ++index) {
        if (page.lbl[index].Tag != kHide) {
            stops.push_back(static_cast<int>(index));
        }
    }
    if (page.HasLogo && page.pic.Visible) {
        stops.push_back(kLogoInFrame);
    }
    return stops;
}

void Frame(Program& program, int direction) {
    const std::vector<int> stops = Stops(program);
    DesignerRecords& designer = program.designer;
    if (stops.empty()) {
        designer.Framed.reset();
        return;
    }
    const int count = static_cast<int>(stops.size());
    int at = direction > 0 ? -1 : 0;
    for (int stop = 0; designer.Framed && stop < count; ++stop) {
        if (stops[static_cast<std::size_t>(stop)] == *designer.Framed) {
            at = stop;
        }
    }
    designer.Framed = stops[static_cast<std::size_t>((at + direction + count) % count)];
}

/// Press, perhaps one step, release, as the mouse does it.
void PressLabel(Program& program, int button, float across, float down) {
    const PageId page = modDesigner::DesignPage(program);
    const int index = *program.designer.Framed;
    const float snap = program.format.SnapTwips;
    modDesigner::lbl_MouseDown(program, page, index, button, 0, 0);
    if (across != 0 || down != 0) {
        static_cast<void>(modDesigner::lbl_MouseMove(program, page, index, across * snap, down * snap));
    }
    modDesigner::lbl_MouseUp(program, page, index);
}

void PressLogo(Program& program, int button, float across, float down) {
    const float snap = program.format.SnapTwips;
    modLogo::pic_MouseDown(program, button, 0, 0);
    if (across != 0 || down != 0) {
        static_cast<void>(modLogo::pic_MouseMove(program, across * snap, down * snap));
    }
    modLogo::pic_MouseUp(program);
}

void Press(Program& program, int button, float across = 0, float down = 0) {
    if (*program.designer.Framed == kLogoInFrame) {
        PressLogo(program, button, across, down);
    } else {
        PressLabel(program, button, across, down);
    }
}

void DoubleClick(Program& program) {
    Press(program, modDesigner::kLeftButton);
    if (*program.designer.Framed == kLogoInFrame) {
        modLogo::pic_DblClick(program);
    } else {
        modDesigner::lbl_DblClick(program, modDesigner::DesignPage(program), *program.designer.Framed);
    }
}

} // namespace

void mnuEditLabelMode_Click(Program& program) {
    if (program.designer.LabelMode) {
        Leave(program);
        return;
    }
    program.designer.FocusBefore = program.main.Focus;
    modFields::DropFocus(program);
    program.designer.LabelMode = true;
    program.main[CommandId::mnuEditLabelMode].Checked = true;
    PageChanged(program);
}

void Leave(Program& program) {
    DesignerRecords& designer = program.designer;
    if (!designer.LabelMode) {
        return;
    }
    const std::optional<FieldRef> before = designer.FocusBefore;
    modLabelMode::End(program);
    const bool here = before && before->Page == program.main.PageInFront;
    modFields::GiveFocus(program, here ? *before : FieldRef{program.main.PageInFront, FieldKind::txt, 0});
}

void PageChanged(Program& program) {
    if (!program.designer.LabelMode) {
        return;
    }
    if (program.main.PageInFront == PageId::frmP6_1) {
        Leave(program);
        return;
    }
    program.designer.Framed.reset();
    Frame(program, 1);
}

Menu KeyDown(Program& program, int keyCode, int shift) {
    DesignerRecords& designer = program.designer;
    if (keyCode == keys::kEscape || program.pages[program.main.PageInFront].InkShown) {
        Leave(program); // what a preview shows is not to be moved unseen
        return Menu::None;
    }
    if (keyCode == keys::kTab) {
        Frame(program, (shift & keys::kShiftState) != 0 ? -1 : 1);
        return Menu::None;
    }
    if (!designer.Framed) {
        return Menu::None;
    }
    const bool logo = *designer.Framed == kLogoInFrame;
    switch (keyCode) {
    case keys::kLeft:
        Press(program, modDesigner::kLeftButton, -1, 0);
        break;
    case keys::kRight:
        Press(program, modDesigner::kLeftButton, 1, 0);
        break;
    case keys::kUp:
        Press(program, modDesigner::kLeftButton, 0, -1);
        break;
    case keys::kDown:
        Press(program, modDesigner::kLeftButton, 0, 1);
        break;
    case keys::kBlank:
        DoubleClick(program);
        break;
    case keys::kEnter:
        Press(program, modDesigner::kLeftButton);
        if (!logo) {
            modDesigner::mnuEditLabelProps_Click(program);
        }
        break;
    case keys::kMenu:
        Press(program, modDesigner::kRightButton);
        return logo ? Menu::Logo : Menu::Label;
    default:
        break;
    }
    return Menu::None;
}

} // namespace modLabelKeys
