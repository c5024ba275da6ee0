#include "deposits/deposit_rows.h"
#include "deposits/frm_deposits.h"
#include "program/windows.h"
#include "quiet_program.h"

#include <cmath>
#include <cstdint>
#include <string>

/// Arbitrary bytes as a deposit file: listed, added, and written back as they are told.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static QuietProgram machine;
    Program& program = machine.program;
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    machine.Write("Fuzz.dep", bytes);
    modDeposits::mnuManageDeposits_Click(program);
    auto& window = dynamic_cast<frmDeposits&>(*modWindows::Find(program, "frmDeposits"));
    Require(std::isfinite(window.DepositTotal));
    Require(window.DepositAmounts.size() == window.lst.Items.size());
    const modDeposits::DepositList list = modDeposits::ParseFile(bytes);
    Require(window.SaveDepositInfo(program));
    if (!list.Rows.empty()) {
        // Only line ends may differ.
        const modDeposits::DepositList again = modDeposits::ParseFile(machine.Read("Fuzz.dep"));
        Require(again.Name == list.Name && again.Rows == list.Rows);
    }
    modWindows::Close(program, window);
    modWindows::Sweep(program);
    return 0;
}
