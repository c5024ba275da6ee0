#include "contract/frm_notes.h"
#include "program/windows.h"
#include "quiet_program.h"

#include <cstdint>
#include <string>

/// Arbitrary bytes as a footnote file: unedited they come back byte for byte; edited, line ends are CR LF.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static QuietProgram machine;
    Program& program = machine.program;
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    machine.Write("Fuzz.hxt", bytes);
    modNotes::mnuFileOpenFootnotes_Click(program);
    auto& window = dynamic_cast<frmNotes&>(*modWindows::Find(program, "frmNotes"));
    window.txtNotes_Change(program, std::string(window.txtNotes));
    Require(window.SaveFootnoteFile(program));
    Require(machine.Read("Fuzz.hxt") == bytes);
    window.txtNotes_Change(program, window.txtNotes + "x");
    for (std::size_t at = 0; at < window.FootnoteText.size(); ++at) {
        const bool lineFeed = window.FootnoteText[at] == '\n';
        Require(!lineFeed || (at > 0 && window.FootnoteText[at - 1] == '\r'));
    }
    window.Choose(program, "mnuFilePrint");
    machine.recording.printers.Paper.Documents.clear();
    modWindows::Close(program, window);
    modWindows::Sweep(program);
    return 0;
}
