#include "program/windows.h"
#include "quiet_program.h"
#include "shell/frm_splash.h"
#include "shell/start_up.h"
#include "support/scratch_folder.h"

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>

/// Arbitrary bytes as the settings file, with the whole start behind it: it is whole, or it does not happen.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const auto folder = std::make_unique<ScratchFolder>();
    // A shared folder that is not there is not made: every question but a plain one is answered with No.
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    folder->Write("UserPreferences.txt", bytes);
    folder->Write("Proposals/SalesTax.txt", "8.25 ");
    QuietMachine machine(folder->Path());
    Program& program = machine.program;
    if (modStart::Main(program) != modStart::StartResult::Running) {
        return 0;
    }
    if (auto* splash = dynamic_cast<frmSplash*>(modWindows::Find(program, "frmSplash"))) {
        splash->Form_Click(program);
        modWindows::Sweep(program);
    }
    if (program.main.Loaded == program.main.Closing) {
        std::abort(); // neither stands nor has ended
    }
    if (program.main.Loaded) {
        for (const PageId page : kAllPages) {
            if (program.pages[page].txt.empty()) {
                std::abort();
            }
        }
    }
    return 0;
}
