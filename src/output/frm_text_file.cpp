#include "output/frm_text_file.h"

#include "base/ansi.h"
#include "output/text_print.h"
#include "program/program.h"
#include "program/windows.h"

namespace {

/// In the program's characters; what has no byte shows as a question mark and is counted.
struct Printable {
    std::string Text;
    int Replaced = 0;
};

Printable ToPrint(std::string_view utf8) {
    Printable result;
    for (std::size_t at = 0; at < utf8.size();) {
        std::size_t end = at + 1;
        while (end < utf8.size() && (static_cast<unsigned char>(utf8[end]) & 0xC0U) == 0x80U) {
            ++end;
        }
        const auto bytes = ansi::FromUtf8(utf8.substr(at, end - at));
        result.Text += bytes.value_or("?");
        result.Replaced += bytes ? 0 : 1;
        at = end;
    }
    return result;
}

} // namespace

void frmTextFile::cmdCopy_Click(Program& program, std::string_view selected) {
    program.platform.clipboard.SetUnicodeText(selected.empty() ? std::string_view(Text) : selected);
    program.main.Notice = "Copied.";
}

void frmTextFile::cmdPrint_Click(Program& program) {
    const Printable page = ToPrint(Text);
    if (page.Replaced > 0) {
        const Answer answer = program.platform.questions.MsgBox(
            std::to_string(page.Replaced) +
                " characters of this text cannot be printed; a question mark stands in their place.",
            Buttons::OkCancel, "");
        if (answer != Answer::Ok) {
            return;
        }
    }
    modPrint::PrintText(program, Caption, page.Text);
}

void frmTextFile::cmdClose_Click(Program& program) {
    modWindows::Close(program, *this);
}

void frmTextFile::Form_Cancel(Program& program) {
    modWindows::Close(program, *this);
}
