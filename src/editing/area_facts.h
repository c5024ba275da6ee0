#pragma once

#include "program/page_records.h"

struct Program;

/// What the handlers ask of a text area.
namespace modText {

/// The area of frmP1 that makes the proposal's name.
inline constexpr int kClientName = 2;

[[nodiscard]] FieldRef Field(PageId page, int index);
[[nodiscard]] TextArea& Area(Program& program, PageId page, int index);
[[nodiscard]] const TextArea& Area(const Program& program, PageId page, int index);

/// Amounts are told by the limit, whatever the kind.
[[nodiscard]] bool IsAmountLimit(int limit);
/// A suggested completion stands unanswered on the page.
[[nodiscard]] bool Completing(const Program& program, PageId page);

} // namespace modText
