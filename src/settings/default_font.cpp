#include "settings/default_font.h"

#include "base/numbers.h"
#include "program/program.h"
#include "settings/settings.h"

#include <algorithm>
#include <string>

namespace modSettings {

void SaveFontInForce(Program& program) {
    RunState& run = program.run;
    SettingsRecords& settings = program.settings;
    if (!Store(program, {{Key::FontName, run.DefaultFontName},
                         {Key::FontSize, numbers::PlainNumber(run.DefaultFontSize)},
                         {Key::FontColor, std::to_string(run.DefaultFontColor)},
                         {Key::FontItalic, run.DefaultFontItalic ? "True" : "False"}})) {
        return;
    }
    settings.SavedFontName = run.DefaultFontName;
    settings.SavedFontSize = run.DefaultFontSize;
    settings.SavedFontColor = run.DefaultFontColor;
    settings.SavedFontItalic = run.DefaultFontItalic;
    run.DefaultFontFound =
        std::find(run.FontList.begin(), run.FontList.end(), run.DefaultFontName) != run.FontList.end();
}

} // namespace modSettings
