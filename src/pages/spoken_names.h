#pragma once

#include "program/page_records.h"

#include <string>

struct Program;

namespace modPages {

/// What a person would call a field, and so what a screen reader says: the caption beside it as it stands on
/// the page ("Client's Name", "Deposit Received"), or its line and column ("Line 3, unit price"). Lines count
/// from 1 on each page.
[[nodiscard]] std::string SpokenName(const Program& program, const FieldRef& field);

} // namespace modPages
