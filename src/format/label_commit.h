#pragma once

#include "program/designer_records.h"

#include <functional>

struct Program;

/// How what was changed in the label window takes hold: at once on the page, and for good in the tables.
namespace modDesigner {

/// One field of a look that a group can share.
using LookChange = std::function<void(LabelLook&)>;

/// The group's fields that the window has changed; the others stay the label's own.
[[nodiscard]] LabelLook WithGroupFields(const LabelLook& own, const LabelLook& edit,
                                        const GroupChanges& changed);

/// The current label, or every selected label of its page but the currency signs, takes the field from
/// `LabelEdit`; for a group `changed` is noted.
void ApplyToLabels(Program& program, bool GroupChanges::*changed, const LookChange& change);

/// The three ends of the window.
void CommitLabelProps(Program& program, int index);
void CommitSelectedLabels(Program& program);
void RestoreLabel(Program& program);
/// The first two: what stands counts, for the one label or for the group.
void Commit(Program& program);

} // namespace modDesigner
