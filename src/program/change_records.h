#pragma once

#include "base/colors.h"
#include "program/per_page.h"

#include <array>
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

struct LabelChangeRecord {
    bool Changed = false;
    float Left = 0;
    float Top = 0;
    std::string Caption;
    std::string FontName;
    float FontSize = 0;
    bool FontBold = false;
    Color ForeColor = 0;
    bool FontItalic = false;
    bool FontUnderline = false;
    bool Saved = false;
    bool FromFormat = false;
};

using TextChangeTable = PerEditedPage<std::array<TextChangeRecord, 66>>;
using LabelChangeTable = PerEditedPage<std::array<LabelChangeRecord, 65>>;

struct FormatRecords {
    TextChangeTable PropTextChanges;   ///< the proposal's; other places call it TextProps
    TextChangeTable FormatTextChanges; ///< the format's, "the baseline table" of a text area
    LabelChangeTable PropLabelChanges; ///< the proposal's; other places call it LabelProps
    LabelChangeTable FormatLabelChanges;
    LabelChangeTable LabelSavedState; ///< the last saved state of each label

    [[nodiscard]] TextChangeTable& TextProps() { return PropTextChanges; }
    [[nodiscard]] const TextChangeTable& TextProps() const { return PropTextChanges; }
    [[nodiscard]] LabelChangeTable& LabelProps() { return PropLabelChanges; }
    [[nodiscard]] const LabelChangeTable& LabelProps() const { return PropLabelChanges; }

    std::vector<std::string> PropertyLines;
    std::vector<std::string> FormatLines;

    bool FormatOpen = false;
    bool EditingFormat = false;
    std::string FormatName;
    std::string FormatFolder;
    bool OverwriteFormatText = true;
    float SnapTwips = 180; ///< the designer's step, an eighth of an inch
    bool LogoChanged = false;
    bool LogoPending = false;
};
