#pragma once

#include "program/page_records.h"

struct Program;

/// What every page says and where it says it before anybody has typed.
namespace modPages {

/// Makes the fields of one page: arrays, places, Tags. Needs nothing, and nothing in it can fail.
void BuildPage(Program& program, PageId page);

/// Sets one page up at start-up: fields, tool tips, defaults. frmP1 takes its logo from the
/// settings.
void SetUpPage(Program& program, PageId page);

/// Lays the built-in content over a page, as at every reset. Fires nothing.
void ApplyPageDefaults(Program& program, PageId page);

/// Resizes the remittance box of the final page and its copy to the company's address.
void SizeRemittanceBox(Program& program);

} // namespace modPages
