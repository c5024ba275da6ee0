#include "shell/load_fonts.h"

#include "program/errors.h"
#include "program/program.h"
#include "shell/splash_picture.h"

namespace modFonts {

void LoadTheFonts(Program& program, SplashPicture* splash) {
    Guarded(program, "LoadTheFonts", [&] {
        RunState& run = program.run;
        run.FontList.clear();
        for (const std::string& font : program.platform.screen.Fonts()) {
            program.platform.events.LetEventsRun();
            run.FontList.push_back(font);
            run.DefaultFontFound = run.DefaultFontFound || font == program.settings.SavedFontName;
        }
        if (!run.DefaultFontFound) {
            run.DefaultFontName = "Times New Roman";
        }
        if (!run.FontsLoaded && splash != nullptr) {
            constexpr float kLine = 3360;
            splash::PaintBackground(*splash, program.platform.measure);
            splash::PrintCentred(*splash, program.platform.measure,
                                 "Fonts Loaded...Click Anywhere to Continue.", kLine);
        }
        run.FontsLoaded = true;
    });
}

} // namespace modFonts
