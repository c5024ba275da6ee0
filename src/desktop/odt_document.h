#pragma once

#include "platform/word_service.h"

#include <QByteArray>

#include <vector>

/// A text document in OpenDocument format, on letter pages: titles are headings, main categories bold, a rule
/// is a paragraph's border, tabs meet at one stop so that columns line up.
namespace odt {

/// The whole file's bytes. Throws files::FileError when it cannot be put together.
[[nodiscard]] QByteArray Make(const std::vector<DocumentLine>& lines);

} // namespace odt
