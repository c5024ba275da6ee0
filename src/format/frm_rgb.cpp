#include "format/frm_rgb.h"

#include "format/label_commit.h"
#include "program/errors.h"
#include "program/program.h"
#include "program/windows.h"

#include <algorithm>
#include <string>

namespace {

constexpr int kMost = 255;
constexpr int kGreenPlace = 256;
constexpr int kBluePlace = 65536;

bool ForLabel(const Program& program) {
    return program.designer.ColorOwner == "Label";
}

int PartOf(const ColourSlider& slider) {
    return std::min(slider.Value, kMost);
}

std::string Hexadecimal(int value) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    constexpr int kBase = 16;
    return {kDigits[static_cast<std::size_t>(value / kBase)],
            kDigits[static_cast<std::size_t>(value % kBase)]};
}

void ShowPart(const ColourSlider& slider, std::array<StripLabel, 2>& labels) {
    labels[0].Caption = std::to_string(PartOf(slider));
    labels[1].Caption = Hexadecimal(PartOf(slider));
}

} // namespace

void frmRGB::Form_Load(Program& program) {
    Caption = "More Colors";
    const Color colour =
        ForLabel(program) ? program.designer.LabelEdit.ForeColor : program.run.DefaultFontColor;
    for (auto* labels : {&lblR, &lblG, &lblB}) {
        (*labels)[0].Caption = "0";
        (*labels)[1].Caption = "00";
    }
    constexpr Color kPart = 0xFF;
    constexpr unsigned kGreenShift = 8, kBlueShift = 16;
    Red_Change(program, static_cast<int>(colour & kPart));
    Grn_Change(program, static_cast<int>((colour >> kGreenShift) & kPart));
    Blu_Change(program, static_cast<int>((colour >> kBlueShift) & kPart));
}

void frmRGB::Red_Change(Program&, int value) {
    if (value != Red.Value) {
        Red.Value = std::clamp(value, Red.Min, Red.Max);
        ChangeRedValue();
    }
}

void frmRGB::Grn_Change(Program&, int value) {
    if (value != Grn.Value) {
        Grn.Value = std::clamp(value, Grn.Min, Grn.Max);
        ChangeGreenValue();
    }
}

void frmRGB::Blu_Change(Program&, int value) {
    if (value != Blu.Value) {
        Blu.Value = std::clamp(value, Blu.Min, Blu.Max);
        ChangeBlueValue();
    }
}

void frmRGB::ChangeRedValue() {
    ShowPart(Red, lblR);
    ShowColour();
}

void frmRGB::ChangeGreenValue() {
    ShowPart(Grn, lblG);
    ShowColour();
}

void frmRGB::ChangeBlueValue() {
    ShowPart(Blu, lblB);
    ShowColour();
}

void frmRGB::ShowColour() {
    const int red = PartOf(Red);
    const int green = PartOf(Grn);
    const int blue = PartOf(Blu);
    const int value = red + kGreenPlace * green + kBluePlace * blue;
    txtHexValue.Text = "&H" + Hexadecimal(blue) + Hexadecimal(green) + Hexadecimal(red) + "&";
    txtIntValue.Text = std::to_string(value);
    txtHttpValue.Text = "#" + Hexadecimal(red) + Hexadecimal(green) + Hexadecimal(blue);
    lblRGB.BackColor = static_cast<Color>(value);
}

void frmRGB::SetSmallChange(int step) {
    for (ColourSlider* slider : {&Red, &Grn, &Blu}) {
        slider->SmallChange = step;
    }
}

void frmRGB::cmdNormInc_Click(Program&) {
    constexpr int kNormal = 16;
    SetSmallChange(kNormal);
}

void frmRGB::cmdSmInc_Click(Program&) {
    SetSmallChange(1);
}

void frmRGB::cmdOK_Click(Program& program) {
    Guarded(program, "RGB_OK", [&] {
        const Color colour = lblRGB.BackColor;
        if (ForLabel(program)) {
            modDesigner::ApplyToLabels(program, &GroupChanges::ForeColor,
                                       [&](LabelLook& look) { look.ForeColor = colour; });
        } else {
            program.run.DefaultFontColor = colour;
        }
        if (Applied) {
            Applied(program);
        }
    });
    modWindows::Close(program, *this);
}

void frmRGB::cmdCancel_Click(Program& program) {
    modWindows::Close(program, *this);
}

void frmRGB::Form_Cancel(Program& program) {
    modWindows::Close(program, *this);
}

void frmRGB::Form_Unload(Program& program) {
    if (ForLabel(program) && !program.run.ProgramClosing) {
        modDesigner::Commit(program);
        if (Committed) {
            Committed(program);
        }
    }
}
