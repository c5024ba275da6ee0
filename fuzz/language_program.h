#pragma once

#include "base/text.h"
#include "format/assignment_lines.h"
#include "proposal/reset.h"
#include "quiet_program.h"

#include <string>
#include <vector>

/// One program to lay lines on, input after input.
struct LanguageProgram : QuietProgram {
    void Reset() {
        program.format.LogoPath.clear();
        Require(modReset::StartNewFile(program) == modReset::ResetResult::Done);
    }
    /// Whether a value on the pages does not come back from its line as it is.
    [[nodiscard]] bool HoldsUnkeepable() const {
        using assignment::CannotBeKept;
        using assignment::Value;
        for (const Page& page : program.pages.All) {
            for (const PageLabel& label : page.lbl) {
                if (CannotBeKept(Value::Caption, label.Caption) ||
                    CannotBeKept(Value::LabelFont, label.FontName)) {
                    return true;
                }
            }
            for (const TextArea& area : page.txt) {
                if (CannotBeKept(Value::Text, area.Text)) {
                    return true;
                }
            }
            for (std::size_t row = 0; row < page.txtQty.size(); ++row) {
                if (CannotBeKept(Value::Quantity, page.txtQty[row].Text) ||
                    CannotBeKept(Value::Price, page.txtAmt[row].Text)) {
                    return true;
                }
            }
        }
        return CannotBeKept(Value::AreaFontName, program.run.DefaultFontName) ||
               CannotBeKept(Value::Picture, program.format.LogoPath);
    }
};
