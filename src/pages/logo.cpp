#include "pages/logo.h"

#include "base/files.h"
#include "base/paths.h"
#include "base/text.h"
#include "program/program.h"

#include <optional>

namespace modLogo {

void LoadLogo(Program& program) {
    Page& page = program.pages[PageId::frmP1];
    const std::string& setting = program.settings.LogoFile;
    const auto hide = [&] {
        page.pic.Visible = false;
        page.pic.Picture = {};
    };
    if (setting.empty() || text::EqualNoCase(setting, "events.jpg")) {
        hide();
        return;
    }
    std::string path = paths::ResolveDrive(setting, program.folders.Drives);
    if (!paths::IsAbsolute(path)) {
        path = paths::Join(program.folders.InstallFolder, path);
    }
    const std::optional<PictureSize> size =
        files::Exists(path) ? program.platform.pictures.Load(path) : std::nullopt;
    if (!size) {
        hide();
        return;
    }
    program.run.LogoPath = path;
    page.pic.Picture = {PictureRef::Source::File, path};
    page.pic.Size = *size;
    page.pic.Left = program.settings.LogoLeft;
    page.pic.Top = program.settings.LogoTop;
    page.pic.Visible = program.settings.LogoVisible;
    page.pic.Tag = program.settings.LogoVisible ? "" : kHide;
}

bool ShowLogo(Program& program, const std::string& path) {
    const std::optional<PictureSize> size = program.platform.pictures.Load(path);
    if (!size) {
        return false;
    }
    PagePicture& picture = program.pages[PageId::frmP1].pic;
    program.run.LogoPath = path;
    picture.Picture = {PictureRef::Source::File, path};
    picture.Size = *size;
    picture.Visible = true;
    picture.Tag.clear();
    program.settings.LogoVisible = true;
    return true;
}

} // namespace modLogo
