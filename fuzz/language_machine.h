#pragma once

#include "base/text.h"
#include "format/assignment_lines.h"
#include "proposal/reset.h"
#include "shell/main_load.h"
#include "shell/wiring.h"
#include "support/recording_platform.h"

#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

/// Answers every box and never complains: a fuzzer has no script.
class QuietQuestions : public Questions {
public:
    Answer Ask(std::string_view, Buttons, std::string_view, const Manner&) override { return Answer::Ok; }
    std::string InputBox(std::string_view, std::string_view, std::string_view) override { return {}; }
};

/// A program without a folder, to lay lines on.
struct LanguageMachine {
    QuietQuestions quiet;
    RecordingPlatform recording;
    Platform platform{.questions = quiet,
                      .measure = recording.measure,
                      .printers = recording.printers,
                      .screen = recording.screen,
                      .clipboard = recording.clipboard,
                      .shell = recording.shell,
                      .clock = recording.clock,
                      .instance = recording.instance,
                      .pictures = recording.pictures,
                      .events = recording.events,
                      .words = recording.words,
                      .dictionaries = recording.dictionaries};
    Program program{platform};

    LanguageMachine() {
        program.folders.InstallFolder = "/nonexistent/quillbrook/";
        program.settings.CurrencySymbol = "$";
        Wire(program);
        modMain::MDIForm_Load(program);
    }
    void Reset() {
        program.format.LogoPath.clear();
        static_cast<void>(modReset::StartNewFile(program));
    }
    /// Whether a value on the pages does not come back from its line as it is.
    [[nodiscard]] bool HoldsUnkeepable() const {
        using assignment::CannotBeKept;
        using assignment::Value;
        for (const Page& page : program.pages.All) {
            for (const PageLabel& label : page.lbl) {
                if (CannotBeKept(Value::Caption, label.Caption) ||
                    CannotBeKept(Value::LabelFont, label.FontName)) {
                    return true;
                }
            }
            for (const TextArea& area : page.txt) {
                if (CannotBeKept(Value::Text, area.Text)) {
                    return true;
                }
            }
            for (std::size_t row = 0; row < page.txtQty.size(); ++row) {
                if (CannotBeKept(Value::Quantity, page.txtQty[row].Text) ||
                    CannotBeKept(Value::Price, page.txtAmt[row].Text)) {
                    return true;
                }
            }
        }
        return CannotBeKept(Value::AreaFontName, program.run.DefaultFontName) ||
               CannotBeKept(Value::Picture, program.format.LogoPath);
    }
};

inline void Require(bool holds) {
    if (!holds) {
        std::abort();
    }
}
