#pragma once

#include "program/program.h"
#include "shell/wiring.h"
#include "support/recording_platform.h"

#include <string>
#include <string_view>

/// Answers every box and never complains: a fuzzer has no script.
class QuietQuestions : public Questions {
public:
    std::string InputBox(std::string_view, std::string_view, std::string_view) override { return {}; }

protected:
    Answer Ask(std::string_view, Buttons buttons, std::string_view, const Manner&) override {
        return buttons == Buttons::Ok ? Answer::Ok : Answer::No;
    }
};

/// A program on a platform that records everything, in the given folder.
struct QuietMachine {
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
    explicit QuietMachine(const std::string& folder) {
        program.folders.InstallFolder = folder;
        program.folders.Drives.Home = folder;
        program.main.ClientHeight = 9000;
        program.main.ClientWidth = 14000;
        Wire(program);
    }
};
