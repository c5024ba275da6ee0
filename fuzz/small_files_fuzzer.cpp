#include "quiet_program.h"
#include "settings/frm_tax.h"
#include "settings/printer_offsets.h"
#include "settings/tax_rate.h"
#include "support/scratch_folder.h"

#include <cmath>
#include <cstdint>
#include <memory>
#include <string>

/// Arbitrary bytes as the tax rate and as the printer offsets: what is read is a number, and what is written
/// is read again as it was.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const auto folder = std::make_unique<ScratchFolder>();
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    folder->Write("Proposals/SalesTax.txt", bytes);
    folder->Write("Proposals/PrinterOffsets.txt", bytes);
    QuietMachine machine(folder->Path());
    Program& program = machine.program;
    modTax::ReadTaxRate(program);
    Require(std::isfinite(program.totals.TaxRate));
    modOffsets::ReadPrinterOffsets(program);
    const float x = program.printing.PrinterOffsetX;
    const float y = program.printing.PrinterOffsetY;
    Require(std::isfinite(x) && std::isfinite(y));
    modOffsets::SavePrinterOffsets(program);
    modOffsets::ReadPrinterOffsets(program);
    const auto near = [](float one, float other) {
        return std::fabs(one - other) <= 1e-5F * std::fabs(one) + 1e-3F;
    };
    Require(near(program.printing.PrinterOffsetX, x) && near(program.printing.PrinterOffsetY, y));
    modTax::SaveTaxRate(program, bytes);
    Require(folder->Read("Proposals/SalesTax.txt").size() == 5);
    Require(std::isfinite(program.totals.TaxRate));
    return 0;
}
