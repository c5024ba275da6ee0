#include "program/rewriting.h"

#include "base/file_error.h"
#include "base/files.h"
#include "base/paths.h"
#include "program/program.h"

#include <string>

namespace modRewrite {

namespace {

/// Nothing new came into its place: the file has its own name again, under which the next start looks for it.
void PutBack(std::string_view kept, std::string_view path) {
    try {
        files::Rename(kept, path);
    } catch (const files::FileError&) {
        return; // it stands whole under the other name; the failed write is what is told
    }
}

} // namespace

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
    std::string kept;
    if (files::ExistsExactly(path) &&
        (seen.Was == files::Seen::What::Unread || files::LookAt(path).Was == files::Seen::What::Unread)) {
        kept = files::KeepUnread(path);
    }
    try {
        files::WriteWhole(path, bytes);
    } catch (const files::FileError&) {
        if (!kept.empty()) {
            PutBack(kept, path);
        }
        throw;
    }
    seen = files::SeenIn(bytes);
}

Rewriting Rewrite(const Program& program, std::string_view path, std::string_view bytes, files::Seen& seen,
                  std::string_view what) {
    if (seen.Was != files::Seen::What::Unread && !files::ChangedSince(path, seen)) {
        // Nothing there, or what is known: it has just been read whole.
        files::WriteWhole(path, bytes);
        seen = files::SeenIn(bytes);
        return Rewriting::Done;
    }
    if (!MayOverwrite(program, path, seen, what)) {
        return Rewriting::Refused;
    }
    WriteOver(path, bytes, seen);
    return Rewriting::Done;
}

} // namespace modRewrite
