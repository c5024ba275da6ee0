#pragma once

#include "platform/drawing_surface.h"

#include <optional>
#include <string>
#include <string_view>

struct Program;

/// The logo of frmP1: the picture on show, its place, and whether it is seen.
namespace modLogo {

/// What is said when a person chooses or moves the logo.
inline constexpr std::string_view kNotInTheProposal =
    "Kept only by a format or by Save this Logo as Default.";

/// No logo is shown larger; a larger picture is scaled into this box, on paper too.
inline constexpr float kLogoMostWidth = 10800;
inline constexpr float kLogoMostHeight = 4320;

/// A picture by its size, whether it had to be scaled, in the words of a message; nothing when it fits.
[[nodiscard]] std::optional<std::string> ScaledMessage(const PictureSize& natural);

/// A name without a separator and a drive is looked for in the program folder.
[[nodiscard]] bool IsBare(std::string_view path);

/// Puts a picture in place of the one that stands, at its place. Its natural size, or nothing when it cannot
/// be shown; then nothing changes.
[[nodiscard]] std::optional<PictureSize> PutLogo(Program& program, const std::string& path);

/// Takes the picture away.
void HideLogo(Program& program);

/// The logo is seen and printed when there is a picture and the setting says so.
void SettleLogoVisibility(Program& program);

/// The logo of the settings, at its place; hidden when there is none.
void LoadLogo(Program& program);

/// A picture that a person has chosen: put in place of the one that stands, and seen in this document
/// whatever the settings say. Its natural size, or nothing when it cannot be shown; then nothing changes.
[[nodiscard]] std::optional<PictureSize> ShowLogo(Program& program, const std::string& path);

} // namespace modLogo
