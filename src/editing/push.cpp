#include "editing/push.h"

#include "base/guard.h"
#include "pages/fields.h"
#include "pages/text_width.h"
#include "program/program.h"

#include <optional>
#include <string>

namespace modText {

namespace {

/// The position of the blank at which a line is split, counted from 1; 0 when nothing moves.
int SplitPosition(const Program& program) {
    const EditingState& editing = program.editing;
    const std::string& line = editing.CurrentText;
    int passed = 0;   // the blank before the one last measured
    int measured = 0; // the blank up to which the text was last measured and found to fit
    const auto fits = [&] {
        const std::string_view left = std::string_view(line).substr(0, static_cast<std::size_t>(measured));
        // Lines on every page are split by the first page's font.
        return modPages::MeasureTextWidth(program, PageId::frmP1, left) < editing.CurrentWidth;
    };
    while (fits()) {
        const std::size_t next = line.find(' ', static_cast<std::size_t>(measured));
        if (next == std::string::npos) {
            break; // out of blanks before out of width: the blank before the last one, a word more than
                   // needed
        }
        passed = measured;
        measured = static_cast<int>(next) + 1;
    }
    return passed;
}

} // namespace

void CheckForPush(Program& program) {
    EditingState& editing = program.editing;
    const int length = static_cast<int>(editing.CurrentText.size());
    if (editing.CursorPos == length - 1) {
        editing.PushFollowsCursor = true;
        editing.PushStepsCursor = false;
        editing.PushNeeded = editing.CurrentText.back() == ' ';
    } else if (editing.CursorPos < length) {
        editing.PushFollowsCursor = false;
        const bool blank = editing.LastKeyChar == " ";
        if (blank) {
            editing.PushStepsCursor = true;
        }
        editing.PushNeeded = blank;
    }
}

void PushTheText(Program& program, PageId page, int index) {
    EditingState& editing = program.editing;
    // Whatever happens, nothing is left to push afterwards.
    const OnLeaving settle([&] { editing.PushNeeded = false; });
    // The nested changes decide for their own rows; this row keeps what was decided for it.
    const bool follows = editing.PushFollowsCursor;
    const bool steps = editing.PushStepsCursor;
    const int split = SplitPosition(program);
    if (split == 0) {
        return;
    }
    const FieldRef here{page, FieldKind::txt, index};
    const FieldRef below{page, FieldKind::txt, index + 1};
    const std::string line = editing.CurrentText;
    const std::string head = line.substr(0, static_cast<std::size_t>(split - 1));
    const std::string tail = line.substr(static_cast<std::size_t>(split));
    modFields::SetText(program, here, head);
    if (steps) {
        editing.CursorPos += 1;
        modFields::SetCursor(modFields::Area(program, here), editing.CursorPos);
    }
    modFields::SetText(program, below, tail + modFields::Area(program, below).Text);
    if (follows) {
        modFields::GiveFocus(program, below);
        editing.CursorPos = static_cast<int>(tail.size());
        modFields::SetCursor(modFields::Area(program, below), editing.CursorPos);
    }
}

void ForgetKey(Program& program) {
    program.editing.LastKeyChar.clear();
    program.editing.CursorPos = 0;
}

} // namespace modText
