#pragma once

#include "program/program.h"
#include "shell/main_load.h"
#include "shell/wiring.h"
#include "support/recording_platform.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>

/// A program for fuzz targets: every box is answered, nothing is shown, and its folder is the target's own.
class QuietQuestions : public Questions {
public:
    std::string InputBox(std::string_view, std::string_view, std::string_view) override { return {}; }

protected:
    Answer Ask(std::string_view, Buttons buttons, std::string_view, const Manner&) override {
        return buttons == Buttons::Ok ? Answer::Ok : Answer::No;
    }
};

struct QuietProgram {
    std::filesystem::path folder = std::filesystem::temp_directory_path() /
                                   ("quillbrook-fuzz-" + std::to_string(std::random_device{}()));
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

    QuietProgram() {
        std::filesystem::create_directories(folder / "Proposals" / "Backup");
        program.folders.InstallFolder = folder.string() + "/";
        program.settings.CurrencySymbol = "$";
        Wire(program);
        modMain::MDIForm_Load(program);
        program.document.BaseName = "Fuzz";
        program.document.FileName = "Fuzz.hef";
        program.document.FilePath = folder.string() + "/Proposals/";
        program.document.FileExists = true;
    }
    ~QuietProgram() {
        std::error_code ignored;
        std::filesystem::remove_all(folder, ignored);
    }
    void Write(const char* name, const std::string& bytes) const {
        std::ofstream(folder / "Proposals" / name, std::ios::binary) << bytes;
    }
    [[nodiscard]] std::string Read(const char* name) const {
        std::ifstream in(folder / "Proposals" / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    }
};

inline void Require(bool holds) {
    if (!holds) {
        std::abort();
    }
}
