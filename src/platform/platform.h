#pragma once

#include "platform/dictionaries.h"
#include "platform/printers.h"
#include "platform/questions.h"
#include "platform/surroundings.h"
#include "platform/text_measure.h"
#include "platform/word_service.h"

/// All that the model asks of its surroundings. Two programs may stand on two platforms in one process.
struct Platform {
    Questions& questions;
    TextMeasure& measure;
    Printers& printers;
    Screen& screen;
    Clipboard& clipboard;
    Shell& shell;
    Clock& clock;
    SingleInstance& instance;
    Pictures& pictures;
    EventLoop& events;
    WordServices& words;
    Dictionaries& dictionaries;
};
