#pragma once

#include "core/hooks.h"
#include "core/settings_records.h"
#include "core/window.h"
#include "document/document_records.h"
#include "document/page_records.h"
#include "document/totals_records.h"
#include "editing/editing_records.h"
#include "format/change_records.h"
#include "output/print_records.h"
#include "platform/platform.h"
#include "shell/main_window_records.h"

/// The whole state of one run. Two programs can live in one process.
struct Program {
    explicit Program(Platform& surroundings) : platform(surroundings) {}
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    Platform& platform;
    Hooks hooks;

    SettingsRecords settings;
    Folders folders;
    RunState run;
    PageSet pages;
    DocumentState document;
    GuardFlags guards;
    TotalsRecords totals;
    FormatRecords format;
    EditingState editing;
    PrintRecords printing;
    MainWindow main;
    WindowCollection windows;
};
