#include "format/logo.h"

#include "base/files.h"
#include "base/numbers.h"
#include "base/paths.h"
#include "format/snap_step.h"
#include "pages/logo.h"
#include "program/program.h"
#include "program/windows.h"
#include "proposal/frm_file.h"
#include "settings/settings.h"

#include <memory>
#include <string>

namespace modLogo {

namespace {

constexpr int kRightButton = 2;

PagePicture& Logo(Program& program) {
    return program.pages[PageId::frmP1].pic;
}

/// The logo's place and picture become the format's.
void BelongToFormat(Program& program) {
    FormatRecords& format = program.format;
    if (format.LogoPath.empty()) {
        format.LogoPath = program.settings.LogoFile;
    }
    format.LogoChanged = true;
    format.Touched = true;
}

/// Where the page's picture comes from, as settings and formats name it.
std::string PictureOnShow(Program& program) {
    const FormatRecords& format = program.format;
    const std::string& path = Logo(program).Picture.Path;
    if (path.empty() || path == format.LogoPath) {
        return path.empty() ? program.settings.LogoFile : path;
    }
    const std::string& setting = program.settings.LogoFile;
    const bool ofSetting =
        !setting.empty() &&
        path == (modLogo::IsBare(setting) ? paths::Join(program.folders.InstallFolder, setting)
                                          : paths::ResolveDrive(setting, program.folders.Drives));
    return ofSetting ? setting : path;
}

void SaveVisibility(Program& program) {
    // What came of it was told; on the screen the choice holds either way.
    static_cast<void>(modSettings::Store(
        program, {{modSettings::Key::LogoVisible, program.settings.LogoVisible ? "True" : "False"}}));
}

} // namespace

void KeepShown(Program& program) {
    if (Logo(program).Visible && !program.settings.LogoVisible) {
        program.settings.LogoVisible = true;
        SaveVisibility(program);
    }
}

void TakeFormatLogo(Program& program, std::string_view path, float left, float top) {
    FormatRecords& format = program.format;
    format.LogoPath = path;
    if (modLogo::IsBare(path)) {
        std::string here = paths::Join(program.folders.InstallFolder, path);
        if (!path.empty() && files::Exists(here)) {
            format.LogoPath = std::move(here);
        }
    }
    format.LogoLeft = left;
    format.LogoTop = top;
    format.LogoPending = true;
    format.LogoChanged = true;
}

void LayPendingLogo(Program& program) {
    FormatRecords& format = program.format;
    if (!format.LogoPending) {
        return;
    }
    format.LogoPending = false;
    const auto size =
        modLogo::IsBare(format.LogoPath)
            ? std::nullopt
            : modLogo::PutLogo(program, paths::ResolveDrive(format.LogoPath, program.folders.Drives));
    if (!size) {
        modLogo::HideLogo(program);
        if (!format.LogoLossTold) {
            format.LogoLossTold = true;
            program.platform.questions.MsgBox("The logo " + format.LogoPath +
                                                  " could not be shown; the format goes without it.",
                                              Buttons::Ok, "");
        }
        return;
    }
    Logo(program).Left = format.LogoLeft;
    Logo(program).Top = format.LogoTop;
    if (const auto message = modLogo::ScaledMessage(*size)) {
        program.main.Notice = *message;
    }
}

void mnuEditLogoOpen_Click(Program& program) {
    program.document.FileFilter = kPictureFiles;
    auto window = std::make_unique<frmFile>();
    window->Caption = "Opening Graphic File";
    modWindows::Show(program, std::move(window));
}

void mnuEditLogoSave_Click(Program& program) {
    using modSettings::Key;
    SettingsRecords& settings = program.settings;
    FormatRecords& format = program.format;
    const PagePicture& logo = Logo(program);
    settings.LogoFile = PictureOnShow(program);
    if (format.FormatOpen && format.LogoPath.empty() && !settings.LogoFile.empty()) {
        format.LogoPath = settings.LogoFile;
        format.LogoLeft = logo.Left;
        format.LogoTop = logo.Top;
        format.LogoChanged = true;
        format.Touched = true;
    }
    settings.LogoLeft = logo.Left;
    settings.LogoTop = logo.Top;
    // What came of it was told; the logo stands where it is either way.
    static_cast<void>(modSettings::Store(program, {{Key::LogoFile, settings.LogoFile},
                                                   {Key::LogoLeft, numbers::PlainNumber(logo.Left)},
                                                   {Key::LogoTop, numbers::PlainNumber(logo.Top)}}));
    KeepShown(program);
    if (logo.BorderStyle != 0) {
        program.main.Notice = kBorderNotKept;
    }
}

void mnuEditLogoVisible_Click(Program& program) {
    program.settings.LogoVisible = !program.run.LogoChecked;
    program.run.LogoChecked = program.settings.LogoVisible;
    modLogo::SettleLogoVisibility(program);
    SaveVisibility(program);
    if (program.settings.LogoVisible && Logo(program).Picture.From == PictureRef::Source::None) {
        program.main.Notice = "There is no logo to show; choose one with Select Different Logo.";
    }
}

void mnuEditLogoBorder_Click(Program& program) {
    CommandState& entry = program.main[CommandId::mnuEditLogoBorder];
    entry.Checked = !entry.Checked;
    Logo(program).BorderStyle = entry.Checked ? 0 : 1;
    if (!entry.Checked) {
        program.settings.LogoVisible = true;
        program.run.LogoChecked = true;
        modLogo::SettleLogoVisibility(program);
    }
    SaveVisibility(program);
    if (!entry.Checked) {
        program.main.Notice = kBorderNotKept;
    }
}

void pic_MouseDown(Program& program, int button, float x, float y) {
    if (button != kRightButton) {
        program.designer.LogoDrag = {true, x, y, false};
    }
}

bool pic_MouseMove(Program& program, float x, float y) {
    DragState& drag = program.designer.LogoDrag;
    PagePicture& logo = Logo(program);
    return drag.Dragging && modDesigner::SnapStep(drag, program.format.SnapTwips, x, y, logo.Left, logo.Top);
}

void pic_MouseUp(Program& program) {
    program.designer.LogoDrag.Dragging = false;
    program.format.LogoLeft = Logo(program).Left;
    program.format.LogoTop = Logo(program).Top;
    BelongToFormat(program);
    program.main.Notice = modLogo::kNotInTheProposal;
}

void pic_DblClick(Program& program) {
    PagePicture& logo = Logo(program);
    logo.ToolTipText =
        " Left = " + numbers::PlainNumber(logo.Left) + ", Top = " + numbers::PlainNumber(logo.Top);
}

} // namespace modLogo
