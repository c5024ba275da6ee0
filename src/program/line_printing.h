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

struct Document {
    std::string_view Name; ///< also the suggested file's
    std::string_view
        Whose{}; ///< in front of the file's name, so that one client's does not replace another's
};

/// Prints the lines as one document. Throws what the printer throws.
[[nodiscard]] Printed PrintLines(Program& program, const Document& document,
                                 const std::vector<std::string>& lines, const Sheet& sheet);

} // namespace modLines
