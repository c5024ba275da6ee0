#include "output/text_file.h"

#include "base/ansi.h"
#include "base/files.h"
#include "base/paths.h"
#include "output/frm_text_file.h"
#include "program/errors.h"
#include "program/program.h"
#include "program/windows.h"

namespace modExport {

namespace {

/// Length of the UTF-8 sequence at that place; 0 when there is none, an overlong one or a surrogate included.
std::size_t SequenceAt(std::string_view bytes, std::size_t at) {
    const auto byte = [&](std::size_t offset) {
        return at + offset < bytes.size() ? static_cast<unsigned char>(bytes[at + offset]) : 0U;
    };
    const auto follows = [&](std::size_t offset, unsigned from = 0x80, unsigned to = 0xBF) {
        return byte(offset) >= from && byte(offset) <= to;
    };
    const unsigned lead = byte(0);
    if (lead < 0x80) {
        return 1;
    }
    if (lead >= 0xC2 && lead <= 0xDF) {
        return follows(1) ? 2 : 0;
    }
    if (lead >= 0xE0 && lead <= 0xEF) {
        const unsigned from = lead == 0xE0 ? 0xA0 : 0x80;
        const unsigned to = lead == 0xED ? 0x9F : 0xBF;
        return follows(1, from, to) && follows(2) ? 3 : 0;
    }
    if (lead >= 0xF0 && lead <= 0xF4) {
        const unsigned from = lead == 0xF0 ? 0x90 : 0x80;
        const unsigned to = lead == 0xF4 ? 0x8F : 0xBF;
        return follows(1, from, to) && follows(2) && follows(3) ? 4 : 0;
    }
    return 0;
}

bool IsUtf8(std::string_view bytes) {
    for (std::size_t at = 0; at < bytes.size();) {
        const std::size_t length = SequenceAt(bytes, at);
        if (length == 0) {
            return false;
        }
        at += length;
    }
    return true;
}

std::string WithLineFeeds(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] != '\r') {
            result += text[at];
        } else {
            result += '\n';
            at += at + 1 < text.size() && text[at + 1] == '\n' ? 1 : 0;
        }
    }
    return result;
}

} // namespace

std::string DecodeTextFile(std::string_view bytes) {
    constexpr std::string_view kMark = "\xEF\xBB\xBF";
    if (IsUtf8(bytes)) {
        return WithLineFeeds(bytes.starts_with(kMark) ? bytes.substr(kMark.size()) : bytes);
    }
    return WithLineFeeds(ansi::ToUtf8(bytes));
}

void ReadTextFile(Program& program, const std::string& path) {
    Guarded(program, "ReadTextFile", [&] {
        std::string text = DecodeTextFile(files::ReadAll(path));
        modWindows::Show(program,
                         std::make_unique<frmTextFile>(std::string(paths::Name(path)), std::move(text)));
    });
}

} // namespace modExport
