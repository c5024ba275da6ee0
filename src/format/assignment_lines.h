#pragma once

#include "program/change_records.h"

#include <optional>
#include <string>
#include <string_view>

/// The lines of format and property files: what one line says, as text and taken apart. One grammar for both
/// files, for writing and for reading; it knows nothing of what a line does to a page.
///
/// There is no quoting. A value that holds the name of a later field is cut there, and so is a label's font
/// name at a full stop; `CannotBeKept` tells such values before they are written.
namespace assignment {

/// What a line is about.
enum class Kind { txt, txq, lbl, pic, UDP };

// Writing. `page` is 0 to 5; numbers come in their shortest decimal form.
[[nodiscard]] std::string BoldLine(int page, int index, bool bold);
[[nodiscard]] std::string TextLine(int page, int index, std::string_view text);
[[nodiscard]] std::string ExemptLine(int page, int index, bool exempt);
/// A row's columns with what its boxes hold, as a format has it.
[[nodiscard]] std::string RowLine(int page, int index, bool columns, std::string_view quantity,
                                  std::string_view price);
/// The columns alone, as a property file has it.
[[nodiscard]] std::string RowLine(int page, int index, bool columns);
[[nodiscard]] std::string LabelLine(int page, int index, const LabelLook& look);
[[nodiscard]] std::string PictureLine(std::string_view path, float left, float top);
[[nodiscard]] std::string FontLine(const AreaFont& font);

/// Whether a value comes back from its line as it went in.
enum class Value { Text, Quantity, Price, Caption, LabelFont, AreaFontName, Picture };
[[nodiscard]] bool CannotBeKept(Value what, std::string_view value);

/// A line taken apart. A field that the line has not is missing; the values are as they stand, not yet
/// numbers or flags, and look into the line.
struct Fields {
    Kind What = Kind::txt;
    int Page = 0;  ///< 0 to 5
    int Index = 0; ///< not for `pic` and `UDP`
    std::optional<std::string_view> FontBold;
    std::optional<std::string_view> Text;
    std::optional<std::string_view> TaxExempt;
    std::optional<std::string_view> QtyBox;
    std::optional<std::string_view> QtyValue;
    std::optional<std::string_view> AmtValue;
    std::optional<std::string_view> Left;
    std::optional<std::string_view> Top;
    std::optional<std::string_view> Caption;
    std::optional<std::string_view> FontName;
    std::optional<std::string_view> FontSize;
    std::optional<std::string_view> ForeColor; ///< the label's, or the font's
    std::optional<std::string_view> FontItalic;
    std::optional<std::string_view> FontUnderline;
    std::optional<std::string_view> Picture;
    /// The line ends behind its colour, as those of older files do.
    bool EndsAtColor = false;
};

/// `Nothing` for a line that is none of the language; `Fault` for one with a page, a kind or an index that
/// there is not.
enum class Outcome { Line, Nothing, Fault };
struct Reading {
    Outcome What = Outcome::Nothing;
    Fields Values;
};
[[nodiscard]] Reading Read(std::string_view line);

// Values as text. Nothing when the text is none of the kind, or beyond what a page can use.
/// A place, at most a million twips either way.
[[nodiscard]] std::optional<float> ToPlace(std::string_view value);
/// 1 to 200 points, or 0.
[[nodiscard]] std::optional<float> ToSize(std::string_view value);
[[nodiscard]] std::optional<Color> ToColor(std::string_view value);
[[nodiscard]] std::optional<bool> ToFlag(std::string_view value);

} // namespace assignment
