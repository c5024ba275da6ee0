#pragma once

struct Program;
struct SplashPicture;

namespace modFonts {

/// Reads the screen's fonts into FontList, letting events run between them. The first time it is told on the
/// splash, if there is one. A font of the settings that is not among them gives way to the one the pages are
/// designed in. Reports as "LoadTheFonts".
void LoadTheFonts(Program& program, SplashPicture* splash = nullptr);

} // namespace modFonts
