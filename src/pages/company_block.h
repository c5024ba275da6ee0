#pragma once

#include "program/settings_records.h"

struct Program;

namespace modPages {

/// Brings the pages up to new company information: the letterhead of frmP1, the representative's line and the
/// remittance address of the final page and its copy. A label changes only where its words were the old ones,
/// and keeps its place but for the lines below a second address line that comes or goes.
void CompanyInfoChanged(Program& program, const SettingsRecords& before);

} // namespace modPages
