#pragma once

#include "platform/platform.h"
#include "program/calendar_records.h"
#include "program/change_records.h"
#include "program/document_records.h"
#include "program/editing_records.h"
#include "program/hooks.h"
#include "program/main_window_records.h"
#include "program/page_records.h"
#include "program/print_records.h"
#include "program/settings_records.h"
#include "program/totals_records.h"
#include "program/window.h"

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
    CalendarRecords calendar;
    MainWindow main;
    WindowCollection windows;
};
