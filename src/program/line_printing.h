#pragma once

#include "platform/text_measure.h"

#include <string>
#include <string_view>
#include <vector>

struct Program;

/// Printing of plain lists and notes: line after line down the paper, long lines wrapped at a blank, a new
/// page where the next line would come too low.
namespace modLines {

struct Sheet {
    float Left = 720; ///< margins, twips
    float Top = 720;
    float Right = 720;
    float Bottom = 720;
    float TabStop = 1440;
    TextFont Font;
};

enum class Printed {
    Done,
    NoPrinter, ///< nothing was printed; the caller says so
    Refused    ///< the person gave no file, or pages are on their way to the printer
};

/// Prints the lines as one document. `name` is the document's and the suggested file's. Throws what the
/// printer throws.
[[nodiscard]] Printed PrintLines(Program& program, std::string_view name,
                                 const std::vector<std::string>& lines, const Sheet& sheet);

} // namespace modLines
