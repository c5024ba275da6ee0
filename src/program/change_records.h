#pragma once

#include "base/colors.h"
#include "base/seen.h"
#include "program/per_page.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

/// What is known of one text area beyond its text.
struct TextChangeRecord {
    bool Dirty = false; ///< changed since the property file was last written; also called Changed
    bool FontBold = false;
    std::string Text;
    bool FormatText = false; ///< the text came from a format and is protected; also called TextFixed
    bool TaxExempt = false;
    bool QtyBox = false;
    std::string QtyValue;
    std::string AmtValue;
    bool QtyChanged = false; ///< the columns' line has still to be written
};

/// All of a label that a person can change.
struct LabelLook {
    float Left = 0; ///< twips
    float Top = 0;
    std::string Caption;
    std::string FontName;
    float FontSize = 0; ///< points
    bool FontBold = false;
    Color ForeColor = 0;
    bool FontItalic = false;
    bool FontUnderline = false;
    bool operator==(const LabelLook&) const = default;
};

/// What is known of one label. Of a format's record the look is the one that the format gave it.
struct LabelChangeRecord : LabelLook {
    bool Changed = false;    ///< differs from the built-in page
    bool Saved = false;      ///< the look is in the format file already
    bool FromFormat = false; ///< last set by reading a format
    bool operator==(const LabelChangeRecord&) const = default;
};

/// The one font of all text areas.
struct AreaFont {
    std::string Name;
    float Size = 0; ///< points
    Color ForeColor = 0;
    bool Italic = false;
    bool operator==(const AreaFont&) const = default;
};

/// What the open format's file holds of one text area.
struct AreaInFormat {
    bool FontBold = false;
    std::string Text; ///< of its Text line; empty without one
};

using TextChangeTable = PerEditedPage<std::array<TextChangeRecord, 66>>;
using AreasInFormat = PerEditedPage<std::array<AreaInFormat, 66>>;
using LabelChangeTable = PerEditedPage<std::array<LabelChangeRecord, 65>>;
using LabelsCovered = PerEditedPage<std::array<std::optional<LabelLook>, 65>>;

struct FormatRecords {
    TextChangeTable PropTextChanges;   ///< the proposal's; other places call it TextProps
    TextChangeTable FormatTextChanges; ///< the format's, "the baseline table" of a text area
    LabelChangeTable PropLabelChanges; ///< the proposal's; other places call it LabelProps
    LabelChangeTable FormatLabelChanges;
    LabelChangeTable LabelSavedState; ///< the last saved state of each label

    [[nodiscard]] TextChangeTable& TextProps() { return PropTextChanges; }
    [[nodiscard]] const TextChangeTable& TextProps() const { return PropTextChanges; }
    [[nodiscard]] LabelChangeTable& LabelProps() { return PropLabelChanges; }

    std::vector<std::string> PropertyLines;
    std::vector<std::string> FormatLines;

    bool FormatOpen = false;
    bool EditingFormat = false;
    bool FormatSaveAs = false;      ///< the save that begins asks for a name
    bool FormatMakeDefault = false; ///< new proposals are to begin with what is saved
    std::string FormatName;         ///< with its extension; empty while no format is open
    std::string FormatFolder;
    bool OverwriteFormatText = true; ///< off: the texts of a format that is read are protected
    AreasInFormat InFile;            ///< as read or saved last
    LabelsCovered BuiltIn; ///< the labels that a line of the format has changed, as they stood before it
    AreaFont FontOfFile;   ///< the font in force when the format was read or saved last
    /// A person has changed, since the format was read or saved last, what a save of it would keep.
    bool Touched = false;
    files::Seen FormatSeen;    ///< the file, as read or saved last
    bool RefusalTold = false;  ///< that a format could not be read; told once a run
    bool LogoLossTold = false; ///< that the logo of a format could not be shown; likewise

    std::string PropertyPath; ///< the property file read or written last, and what it held
    files::Seen PropertySeen;
    /// Its lines that were taken before a fault ended the reading; none when it was read whole.
    std::optional<int> PropertyLinesRead;

    float SnapTwips = 180; ///< the designer's step, an eighth of an inch
    /// The logo that goes with the format, or that a person has chosen for this document; without one the
    /// settings' is shown.
    std::string LogoPath;
    float LogoLeft = 0; ///< twips; the settings have a pair of their own
    float LogoTop = 0;
    bool LogoChanged = false;
    bool LogoPending = false; ///< a format has named a logo that is still to be placed
};
