#pragma once

#include "program/page_records.h"

struct Program;

namespace modBackup {

/// A key went down in a text area of a line page: every twentieth one saves a backup, but none while the
/// client's name is typed.
void CountTowardsBackup(Program& program, PageId page, int index);

} // namespace modBackup
