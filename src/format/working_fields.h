#pragma once

#include "format/assignment_lines.h"

#include <optional>
#include <string>

namespace assignment {

/// What a line comes to, with its values converted.
struct AreaAssignment {
    int Page = 0;
    int Index = 0;
    bool SetsWeight = false; ///< a FontBold line
    bool Bold = false;       ///< its value; of another line, a True that an earlier one has left in force
    std::optional<std::string> Text;
    bool TaxExempt = false;
};
struct RowAssignment {
    int Page = 0;
    int Index = 0;
    bool Columns = false;
    std::string Quantity;
    std::string Price;
};
struct PictureAssignment {
    std::string Path;
    float Left = 0;
    float Top = 0;
};

/// The working values of one reading of a file. There is one set for each kind of line: what a line leaves
/// behind acts on later lines of its own kind only. Each `Take` gives nothing for a line with a fault.
class WorkingFields {
public:
    /// What becomes of a value that does not convert: the one left by an earlier line stands in for it, or
    /// the line has a fault.
    enum class BadValue { LeavesWorkingValue, IsFault };
    explicit WorkingFields(BadValue bad) : bad_(bad) {}

    [[nodiscard]] std::optional<AreaAssignment> TakeArea(const Fields& fields);
    /// `columnsNow`: whether the row has its columns, for a line that does not say.
    [[nodiscard]] std::optional<RowAssignment> TakeRow(const Fields& fields, bool columnsNow);
    /// `own`: the label as it is, for the fields that the line has not.
    [[nodiscard]] std::optional<LabelLook> TakeLabel(const Fields& fields, const LabelLook& own);
    [[nodiscard]] std::optional<PictureAssignment> TakePicture(const Fields& fields, float ownLeft,
                                                               float ownTop);
    [[nodiscard]] std::optional<AreaFont> TakeFont(const Fields& fields, const AreaFont& own);

private:
    /// Puts the converted value, or what stands in for it, into `value`; false for a fault.
    template <typename T, typename Convert>
    [[nodiscard]] bool Settle(const std::optional<std::string_view>& field, Convert convert, T& working,
                              T& value) const {
        if (!field) {
            return true;
        }
        if (const std::optional<T> converted = convert(*field)) {
            working = *converted;
        } else if (bad_ == BadValue::IsFault) {
            return false;
        }
        value = working;
        return true;
    }

    BadValue bad_;
    bool areaBold_ = false;
    bool areaExempt_ = false;
    bool rowColumns_ = false;
    LabelLook label_;
    float pictureLeft_ = 0;
    float pictureTop_ = 0;
    AreaFont font_;
};

} // namespace assignment
