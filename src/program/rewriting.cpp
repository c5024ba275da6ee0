#include "program/rewriting.h"

#include "base/files.h"
#include "base/paths.h"
#include "program/program.h"

#include <string>

namespace modRewrite {

bool MayOverwrite(const Program& program, std::string_view path, const files::Seen& seen,
                  std::string_view what) {
    // One that could not be read is no news to the person, and is kept.
    if (seen.Was == files::Seen::What::Unread || !files::ChangedSince(path, seen)) {
        return true;
    }
    return program.platform.questions.MsgBox(
               std::string(what) + " was changed by another program since you opened it. Overwrite it?",
               Buttons::YesNo, "",
               {.Default = Answer::No,
                .Lost = "What the other program wrote into " + std::string(paths::Name(path)) +
                        " will be lost."}) == Answer::Yes;
}

void WriteOver(std::string_view path, std::string_view bytes, files::Seen& seen) {
    if (files::ExistsExactly(path) &&
        (seen.Was == files::Seen::What::Unread || files::LookAt(path).Was == files::Seen::What::Unread)) {
        static_cast<void>(files::KeepUnread(path)); // under which name matters to nobody here
    }
    files::WriteWhole(path, bytes);
    seen = files::SeenIn(bytes);
}

Rewriting Rewrite(const Program& program, std::string_view path, std::string_view bytes, files::Seen& seen,
                  std::string_view what) {
    if (!MayOverwrite(program, path, seen, what)) {
        return Rewriting::Refused;
    }
    WriteOver(path, bytes, seen);
    return Rewriting::Done;
}

} // namespace modRewrite
