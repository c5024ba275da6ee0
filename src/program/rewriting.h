#pragma once

#include "base/seen.h"

#include <string_view>

struct Program;

/// The one way to overwrite a file that the program has read: a proposal, the settings, a terms list ...
namespace modRewrite {

/// Whether the file may be overwritten. Yes when it is as it was seen, and when it is not there; otherwise
/// the person is asked: `what` ("This proposal", "The layout of this proposal") "was changed by another
/// program since you opened it. Overwrite it?", No unless it is chosen.
[[nodiscard]] bool MayOverwrite(const Program& program, std::string_view path, const files::Seen& seen,
                                std::string_view what);

/// Writes the new bytes in one step, without a question, and takes them into `seen`. A file that could not be
/// read whole is kept as ".unread" first. Throws files::FileError; `seen` stays then.
void WriteOver(std::string_view path, std::string_view bytes, files::Seen& seen);

enum class Rewriting { Done, Refused };
/// Both in one. `seen` stays when the person refuses.
[[nodiscard]] Rewriting Rewrite(const Program& program, std::string_view path, std::string_view bytes,
                                files::Seen& seen, std::string_view what);

} // namespace modRewrite
