#pragma once

#include "program/page_records.h"

#include <QString>

/// What the fields of the pages are called.
namespace fieldnames {

/// The name of the field's control, as "txt(5)".
[[nodiscard]] QString OfControl(const FieldRef& field);

} // namespace fieldnames
