#pragma once

#include "platform/platform.h"
#include "program/address_records.h"
#include "program/calendar_records.h"
#include "program/change_records.h"
#include "program/designer_records.h"
#include "program/document_records.h"
#include "program/editing_records.h"
#include "program/export_records.h"
#include "program/hooks.h"
#include "program/main_window_records.h"
#include "program/page_records.h"
#include "program/print_records.h"
#include "program/recovery_records.h"
#include "program/search_records.h"
#include "program/settings_records.h"
#include "program/spelling_records.h"
#include "program/terms_records.h"
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
    RecoveryRecords recovery;
    GuardFlags guards;
    TotalsRecords totals;
    FormatRecords format;
    DesignerRecords designer;
    EditingState editing;
    PrintRecords printing;
    ExportState exporting;
    SpellingState spelling;
    TermsRecords terms;
    SearchRecords search;
    CalendarRecords calendar;
    AddressRecords addresses;
    MainWindow main;
    WindowCollection windows;
};
