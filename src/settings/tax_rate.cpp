#include "base/files.h"
#include "base/numbers.h"
#include "base/paths.h"
#include "base/text.h"
#include "program/errors.h"
#include "program/program.h"
#include "program/windows.h"
#include "settings/frm_tax.h"
#include "settings/settings.h"

#include <algorithm>
#include <cmath>

namespace modSettings {

namespace {

constexpr std::string_view kTaxFile = "SalesTax.txt";
constexpr std::size_t kTaxLength = 5;
constexpr std::string_view kOffsetsFile = "PrinterOffsets.txt";
constexpr std::string_view kXKey = "Printer X Offset:";
constexpr std::string_view kYKey = "Printer Y Offset:";

std::string PathOf(const Program& program, std::string_view name) {
    return paths::Join(program.folders.ProposalsFolder.empty()
                           ? paths::Join(program.folders.InstallFolder, "Proposals/")
                           : program.folders.ProposalsFolder,
                       name);
}

} // namespace

void GetTaxRate(Program& program) {
    Guarded(program, "GetTaxRate", [&] {
        const std::string path = PathOf(program, kTaxFile);
        if (!files::Exists(path)) {
            files::WriteWhole(path, "");
        }
        std::string five = files::ReadUpTo(path, kTaxLength);
        five.resize(kTaxLength, ' ');
        program.totals.TaxRate = numbers::ValSingle(five);
    });
    if (program.totals.TaxRate == 0 &&
        program.platform.questions.MsgBox("The current sales tax rate is 0%. Do you want to change it now?",
                                          Buttons::YesNo, "Sales Tax Rate is 0.0%") == Answer::Yes) {
        modWindows::Show(program, std::make_unique<frmTax>());
    }
}

void SaveTaxRate(Program& program, std::string_view rateText) {
    Guarded(program, "SaveTaxRate", [&] {
        std::string five(rateText.substr(0, kTaxLength));
        five.resize(kTaxLength, ' ');
        program.totals.TaxRate = numbers::ValSingle(five);
        const std::string path = PathOf(program, kTaxFile);
        if (files::Exists(path)) {
            files::Delete(path);
        }
        files::WriteWhole(path, five);
        if (program.totals.HasAmounts() && program.hooks.TakeFreshFigures) {
            program.hooks.TakeFreshFigures(program);
        }
        program.platform.questions.MsgBox("New Sales Tax Rate is " +
                                              numbers::FormatSingle(program.totals.TaxRate, "##.00") + " %",
                                          Buttons::Ok, "");
    });
}

std::string NoNumberMessage(std::string_view typed) {
    return text::Lines({std::string(typed) + " is not a number and was not taken.",
                        "Please type a point before decimals, as in 1.5."});
}

float TwipsOf(std::string_view inches) {
    const float twips = numbers::ValSingle(inches) * kTwipsPerInch;
    return std::isfinite(twips) ? twips : 0;
}

std::string InchesOf(float twips) {
    return numbers::PlainNumber(twips / kTwipsPerInch);
}

void ReadPrinterOffsets(Program& program) {
    program.printing.PrinterOffsetX = 0;
    program.printing.PrinterOffsetY = 0;
    const std::string path = PathOf(program, kOffsetsFile);
    if (!files::Exists(path)) {
        return;
    }
    Guarded(program, "ReadPrinterOffsets", [&] {
        const std::string bytes = files::ReadAll(path);
        const std::size_t x = bytes.find(kXKey);
        const std::size_t y = bytes.find(kYKey);
        if (x != std::string::npos) {
            const std::size_t from = x + kXKey.size();
            const std::size_t to = y == std::string::npos || y < from ? bytes.size() : y;
            program.printing.PrinterOffsetX = TwipsOf(std::string_view(bytes).substr(from, to - from));
        }
        if (y != std::string::npos) {
            program.printing.PrinterOffsetY = TwipsOf(std::string_view(bytes).substr(y + kYKey.size()));
        }
    });
}

void SavePrinterOffsets(Program& program) {
    Guarded(program, "SavePrinterOffsets", [&] {
        std::string bytes(kXKey);
        bytes += InchesOf(program.printing.PrinterOffsetX);
        bytes += kYKey;
        bytes += InchesOf(program.printing.PrinterOffsetY);
        const std::string path = PathOf(program, kOffsetsFile);
        if (files::Exists(path)) {
            files::Delete(path);
        }
        files::WriteWhole(path, bytes);
    });
}

} // namespace modSettings
