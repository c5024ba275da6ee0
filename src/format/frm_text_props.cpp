#include "format/frm_text_props.h"

#include "base/numbers.h"
#include "base/rows.h"
#include "base/text.h"
#include "format/area_font.h"
#include "format/colour_table.h"
#include "format/frm_rgb.h"
#include "format/line_effects.h"
#include "program/program.h"
#include "program/windows.h"
#include "settings/default_font.h"

#include <algorithm>
#include <memory>
#include <string>

namespace {

constexpr std::array<std::string_view, 5> kSizes{"Font Size = 10", "Font Size = 9", "Font Size = 8",
                                                 "Font Size = 7", "Font Size = 6"};

std::string_view SizeIn(std::string_view caption) {
    constexpr std::string_view kBefore = "= ";
    return caption.substr(caption.find(kBefore) + kBefore.size());
}

} // namespace

void frmTextProps::Form_Load(Program& program) {
    Caption = "Common Text Properties";
    before_ = modLineEffects::FontInForce(program);
    lstFont.Items = program.run.FontList;
    for (std::size_t index = 0; index < kSizes.size(); ++index) {
        optFontSize[index].Caption = kSizes[index];
    }
    for (std::size_t index = 0; index < cmdColor.size(); ++index) {
        cmdColor[index].ToolTipText = colour_table::kColours[index].Name;
        cmdColor[index].BackColor = colour_table::kColours[index].Value;
    }
    ShowFont(program);
}

void frmTextProps::CheckDefaultFontSize(const Program& program) {
    const std::string size = numbers::PlainNumber(program.run.DefaultFontSize);
    for (OptionButton& option : optFontSize) {
        option.Value = SizeIn(option.Caption) == size;
    }
}

void frmTextProps::CheckDefaultFontColor(const Program& program) {
    const auto found = std::find_if(
        colour_table::kColours.begin(), colour_table::kColours.end(),
        [&](const colour_table::Named& named) { return named.Value == program.run.DefaultFontColor; });
    if (found != colour_table::kColours.end()) {
        lblFontColor.Caption = "Current Font Color = " + std::string(found->Name);
    }
}

void frmTextProps::ShowFont(const Program& program) {
    const RunState& run = program.run;
    lblFontName.Caption = "Current Font Name = " + run.DefaultFontName;
    const auto found = std::find(lstFont.Items.begin(), lstFont.Items.end(), run.DefaultFontName);
    lstFont.ListIndex = found == lstFont.Items.end() ? -1 : static_cast<int>(found - lstFont.Items.begin());
    chkItalic.Value = run.DefaultFontItalic;
    CheckDefaultFontSize(program);
    CheckDefaultFontColor(program);
    ShowSample(program);
}

void frmTextProps::ShowSample(const Program& program) {
    const RunState& run = program.run;
    txtSample.Text =
        "Sampling Text with " + run.DefaultFontName + ": " + numbers::PlainNumber(run.DefaultFontSize);
    SampleFont = modLineEffects::FontInForce(program);
}

void frmTextProps::lstFont_Click(Program& program, int index) {
    if (HasRow(lstFont.Items, index)) {
        program.run.DefaultFontName = lstFont.Items[static_cast<std::size_t>(index)];
        ShowFont(program);
    }
}

void frmTextProps::optFontSize_Click(Program& program, int index) {
    const std::string& caption = optFontSize[static_cast<std::size_t>(index)].Caption;
    program.run.DefaultFontSize = numbers::ValSingle(SizeIn(caption));
    ShowFont(program);
}

void frmTextProps::cmdColor_Click(Program& program, int index) {
    program.run.DefaultFontColor = cmdColor[static_cast<std::size_t>(index)].BackColor;
    ShowFont(program);
}

void frmTextProps::cmdColors_Click(Program& program) {
    program.designer.ColorOwner = "Text";
    auto window = std::make_unique<frmRGB>();
    window->Applied = [](Program& later) {
        if (auto* opener = dynamic_cast<frmTextProps*>(modWindows::Find(later, "frmTextProps"))) {
            opener->ShowFont(later);
        }
    };
    modWindows::Show(program, std::move(window));
}

void frmTextProps::chkItalic_Click(Program& program) {
    program.run.DefaultFontItalic = !program.run.DefaultFontItalic;
    ShowFont(program);
}

void frmTextProps::Apply(Program& program) {
    modAreaFont::ApplyChosenFont(program, before_);
    before_ = modLineEffects::FontInForce(program);
}

void frmTextProps::cmdOK_Click(Program& program) {
    Apply(program);
    modWindows::Close(program, *this);
}

void frmTextProps::cmdDefault_Click(Program& program) {
    Apply(program);
    modSettings::SaveFontInForce(program);
    ShowFont(program);
}

void frmTextProps::cmdCancel_Click(Program& program) {
    modWindows::Close(program, *this);
}

void frmTextProps::Form_Cancel(Program& program) {
    modWindows::Close(program, *this);
}

void frmTextProps::Form_Unload(Program& program) {
    PutBack(program);
}

void frmTextProps::KeepUnsaved(Program& program) {
    PutBack(program);
    ShowFont(program);
}

void frmTextProps::PutBack(Program& program) {
    RunState& run = program.run;
    run.DefaultFontName = before_.Name;
    run.DefaultFontSize = before_.Size;
    run.DefaultFontColor = before_.ForeColor;
    run.DefaultFontItalic = before_.Italic;
}

namespace modAreaFont {

void mnuEditAllTextFonts_Click(Program& program) {
    modWindows::Show(program, std::make_unique<frmTextProps>());
}

} // namespace modAreaFont
