#pragma once

#include "program/page_records.h"

#include <string>
#include <vector>

struct Program;

namespace modPrint {

/// The texts of these pages that paper does not show as a person reads them: longer than their place, and so
/// either cut at the sheet's edge or printed over something else that stands in their line. One that only
/// reaches beyond its place into empty paper is none. "Page 1, Street Address", in the order of the pages.
[[nodiscard]] std::vector<std::string> TextsLostOnPaper(const Program& program,
                                                        const std::vector<PageId>& pages);

/// Whether these pages may be printed; where a text is lost on paper the person is told which and asked.
[[nodiscard]] bool MayPrint(Program& program, const std::vector<PageId>& pages);

} // namespace modPrint
