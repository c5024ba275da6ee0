#pragma once

#include "program/page_records.h"

struct Program;

namespace modPrint {

/// Prints all pages in use, last to first, the client's copy before ours. Without a printer: "Printer Error
/// 482. Printer not found." After a Cancel of an earlier run the next one ends at once, and the one after it
/// prints. A print command that is chosen while another one runs does nothing.
void mnuFilePrintAll_Click(Program& program);

/// Prints one page. Without a printer it does nothing and says nothing.
void mnuFilePrintPage_Click(Program& program, PageId page);

} // namespace modPrint
