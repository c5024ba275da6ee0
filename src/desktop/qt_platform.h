#pragma once

#include "desktop/hunspell_dictionaries.h"
#include "desktop/paper_text.h"
#include "desktop/qt_printers.h"
#include "desktop/qt_surroundings.h"
#include "desktop/qt_word_services.h"
#include "platform/platform.h"

struct Program;

/// The platform on Qt, in one piece.
struct QtPlatform {
    QtQuestions questions;
    QtTextMeasure measure;
    QtPrinters printers{measure};
    QtScreen screen;
    QtClipboard clipboard;
    QtShell shell;
    QtClock clock;
    QtSingleInstance instance;
    QtPictures pictures;
    QtEventLoop events;
    QtWordServices words;
    HunspellDictionaries dictionaries;
    Platform platform{.questions = questions,
                      .measure = measure,
                      .printers = printers,
                      .screen = screen,
                      .clipboard = clipboard,
                      .shell = shell,
                      .clock = clock,
                      .instance = instance,
                      .pictures = pictures,
                      .events = events,
                      .words = words,
                      .dictionaries = dictionaries};
};

namespace desktop {

/// Puts the folders of this machine and user into a program.
void SetFolders(Program& program);

} // namespace desktop
