#pragma once

struct Program;

namespace modPages {

/// Puts the font in force on all text areas, row labels and currency signs of all pages; bold comes back from
/// the text tables. Fires nothing.
void ApplyPageFonts(Program& program);

} // namespace modPages
