#include "pages/logo.h"

#include "base/files.h"
#include "base/numbers.h"
#include "base/paths.h"
#include "base/text.h"
#include "program/program.h"

#include <algorithm>

namespace modLogo {

namespace {

PagePicture& Logo(Program& program) {
    return program.pages[PageId::frmP1].pic;
}

bool Fits(const PictureSize& size) {
    return size.Width <= kLogoMostWidth && size.Height <= kLogoMostHeight;
}

PictureSize Fitted(const PictureSize& size) {
    if (Fits(size)) {
        return size;
    }
    const float scale = std::min(kLogoMostWidth / size.Width, kLogoMostHeight / size.Height);
    return {size.Width * scale, size.Height * scale};
}

std::optional<PictureSize> TakePicture(Program& program, const std::string& path) {
    std::optional<PictureSize> size =
        files::Exists(path) ? program.platform.pictures.Load(path) : std::nullopt;
    if (size) {
        Logo(program).Picture = {PictureRef::Source::File, path};
        Logo(program).Size = Fitted(*size);
    }
    return size;
}

} // namespace

std::optional<std::string> ScaledMessage(const PictureSize& natural) {
    if (Fits(natural)) {
        return std::nullopt;
    }
    constexpr float kTwipsPerInch = 1440;
    const auto inches = [](float twips) { return numbers::FormatSingle(twips / kTwipsPerInch, "0.0"); };
    return "The picture is " + inches(natural.Width) + " by " + inches(natural.Height) +
           " inches large. It is shown and printed scaled down to " + inches(kLogoMostWidth) + " by " +
           inches(kLogoMostHeight) + " inches at most.";
}

bool IsBare(std::string_view path) {
    return path.find_first_of("\\/:") == std::string_view::npos;
}

std::optional<PictureSize> PutLogo(Program& program, const std::string& path) {
    const std::optional<PictureSize> size = TakePicture(program, path);
    if (size) {
        program.run.LogoChecked = program.settings.LogoVisible;
        SettleLogoVisibility(program);
    }
    return size;
}

void HideLogo(Program& program) {
    Logo(program).Picture = {};
    program.run.LogoChecked = false;
    SettleLogoVisibility(program);
}

void SettleLogoVisibility(Program& program) {
    PagePicture& logo = Logo(program);
    const bool shown = program.run.LogoChecked && logo.Picture.From != PictureRef::Source::None;
    logo.Visible = shown;
    logo.Tag = shown ? "" : kHide;
}

void LoadLogo(Program& program) {
    const SettingsRecords& settings = program.settings;
    // One that is chosen later hangs there, too.
    Logo(program).Left = settings.LogoLeft;
    Logo(program).Top = settings.LogoTop;
    if (settings.LogoFile.empty() || text::EqualNoCase(settings.LogoFile, "events.jpg")) {
        HideLogo(program);
        return;
    }
    const std::string path = IsBare(settings.LogoFile)
                                 ? paths::Join(program.folders.InstallFolder, settings.LogoFile)
                                 : paths::ResolveDrive(settings.LogoFile, program.folders.Drives);
    const std::optional<PictureSize> size = PutLogo(program, path);
    if (!size) {
        HideLogo(program);
        return;
    }
    if (const auto message = ScaledMessage(*size)) {
        program.main.Notice = *message;
    }
}

std::optional<PictureSize> ShowLogo(Program& program, const std::string& path) {
    std::optional<PictureSize> size = TakePicture(program, path);
    if (size) {
        program.run.LogoChecked = true;
        SettleLogoVisibility(program);
    }
    return size;
}

} // namespace modLogo
