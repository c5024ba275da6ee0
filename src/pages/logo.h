#pragma once

#include <string>

struct Program;

/// The logo on frmP1.
namespace modLogo {

/// Shows or hides the logo with its Tag; the picture comes from the file named by the settings or a format.
void LoadLogo(Program& program);

/// Puts a picture on frmP1 in place of the one that stands, at its place. False when it cannot be shown; then
/// nothing changes.
[[nodiscard]] bool ShowLogo(Program& program, const std::string& path);

} // namespace modLogo
