#pragma once

#include "support/recording_platform.h"

/// Surroundings that record everything; the boxes are answered by `questions`, without a script.
[[nodiscard]] inline Platform AnsweredBy(Questions& questions, RecordingPlatform& recording) {
    return {.questions = questions,
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
}
