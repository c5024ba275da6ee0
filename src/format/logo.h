#pragma once

#include <string_view>

struct Program;

/// The logo as the designer's commands and a format have it.
namespace modLogo {

/// What is said of the logo's border, which has a place in no file.
inline constexpr std::string_view kBorderNotKept =
    "No file keeps the logo's border; it stays until Quillbrook ends.";

/// The logo of a format's line: shown at its place, and the format's from now on. A name without a folder is
/// looked for in the program folder and stays as it is when it is not there.
void TakeFormatLogo(Program& program, std::string_view path, float left, float top);
/// A logo that is kept while it shows is to show from now on, whatever the settings said before.
void KeepShown(Program& program);
/// Lays the logo that a format has named. One that cannot be shown is hidden, which is told once a run; its
/// name stays for the next save.
void LayPendingLogo(Program& program);

/// "Select Different Logo": the chooser on pictures.
void mnuEditLogoOpen_Click(Program& program);
/// "Save this Logo as Default": the picture on show and its place into the settings.
void mnuEditLogoSave_Click(Program& program);
void mnuEditLogoVisible_Click(Program& program);
/// Checked is no border; turning the border on shows the logo.
void mnuEditLogoBorder_Click(Program& program);

/// The mouse on the logo, twips from its corner; button 1 left, 2 right. The right one opens the menu of the
/// logo's commands.
void pic_MouseDown(Program& program, int button, float x, float y);
/// True when it moved.
[[nodiscard]] bool pic_MouseMove(Program& program, float x, float y);
void pic_MouseUp(Program& program);
void pic_DblClick(Program& program);

} // namespace modLogo
