#pragma once

#include "program/change_records.h"

#include <string>
#include <vector>

struct Program;

/// The lines of a format file, made from what stands on the pages.
namespace modFormat {

/// Whether the texts of the open proposal become part of the format. `LayoutOnly` keeps those that the format
/// had when it was read, and writes no quantities and prices.
enum class Texts { LayoutOnly, LayoutAndTexts };

/// The format's tables as a save would leave them: bold, exempt marks, columns and labels as they stand on
/// the pages. Changes nothing.
struct FormatTables {
    TextChangeTable Areas;
    LabelChangeTable Labels;
};
[[nodiscard]] FormatTables TablesNow(const Program& program, Texts texts);

/// The lines of such tables with the logo and the font in force.
struct FormatText {
    std::vector<std::string> Lines;
    /// The place of the last line is reckoned one too far: the save fails behind it, once all lines are
    /// written. So it is with a logo, or with a named font of no size, while no font line is there.
    bool PastTheEnd = false;
};
[[nodiscard]] FormatText LinesOf(const Program& program, const FormatTables& tables);

/// Both: the format tables and `FormatLines` are what a save writes. Reports as "AssignFormatPropChanges".
/// What the save will do behind the last line; `NotMade` when there was a fault, and all is as before.
enum class AfterLast { Ends, Fails, NotMade };
[[nodiscard]] AfterLast AssignFormatPropChanges(Program& program, Texts texts = Texts::LayoutAndTexts);

} // namespace modFormat
