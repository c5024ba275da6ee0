#pragma once

#include "program/program.h"
#include "shell/main_load.h"
#include "shell/wiring.h"
#include "support/answered_by.h"
#include "support/recording_platform.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>

/// Answers every box and never complains: a fuzzer has no script. Only plain boxes are acknowledged; nothing
/// else is agreed to.
class QuietQuestions : public Questions {
public:
    std::string InputBox(std::string_view, std::string_view, std::string_view) override { return {}; }

protected:
    Answer Ask(std::string_view, Buttons buttons, std::string_view, const Manner&) override {
        return buttons == Buttons::Ok ? Answer::Ok : Answer::No;
    }
};

/// A program for fuzz targets on a platform that records everything, before its start.
struct QuietMachine {
    QuietQuestions quiet;
    RecordingPlatform recording;
    Platform platform{AnsweredBy(quiet, recording)};
    Program program{platform};

    explicit QuietMachine(const std::string& folder) {
        program.folders.InstallFolder = folder;
        program.folders.Drives.Home = folder;
        program.main.ClientHeight = 9000;
        program.main.ClientWidth = 14000;
        Wire(program);
    }
};

/// One that has started, with a proposal in a folder of its own that goes with it.
struct QuietProgram : QuietMachine {
    QuietProgram() : QuietMachine(NewFolder()), proposals_(program.folders.InstallFolder + "Proposals/") {
        std::filesystem::create_directories(proposals_ + "Backup");
        program.settings.CurrencySymbol = "$";
        modMain::MDIForm_Load(program);
        program.document.BaseName = "Fuzz";
        program.document.FileName = "Fuzz.hef";
        program.document.FilePath = proposals_;
        program.document.FileExists = true;
    }
    ~QuietProgram() {
        std::error_code ignored;
        std::filesystem::remove_all(program.folders.InstallFolder, ignored);
    }
    QuietProgram(const QuietProgram&) = delete;
    QuietProgram& operator=(const QuietProgram&) = delete;

    void Write(const char* name, const std::string& bytes) const {
        std::ofstream(proposals_ + name, std::ios::binary) << bytes;
    }
    [[nodiscard]] std::string Read(const char* name) const {
        std::ifstream in(proposals_ + name, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    }

private:
    static std::string NewFolder() {
        const std::string name = "quillbrook-fuzz-" + std::to_string(std::random_device{}());
        return (std::filesystem::temp_directory_path() / name).string() + "/";
    }
    std::string proposals_;
};

inline void Require(bool holds, int line = __builtin_LINE()) {
    if (!holds) {
        std::fprintf(stderr, "what line %d requires does not hold\n", line);
        std::abort();
    }
}
