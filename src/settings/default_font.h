#pragma once

struct Program;

namespace modSettings {

/// Makes the font in force the one of the settings, and saves them.
void SaveFontInForce(Program& program);

} // namespace modSettings
