#include "settings/tax_rate.h"

#include "base/files.h"
#include "base/numbers.h"
#include "base/paths.h"
#include "program/data_folders.h"
#include "program/errors.h"
#include "program/program.h"
#include "program/rewriting.h"
#include "program/saved_notice.h"

#include <string>

namespace modTax {

namespace {

constexpr std::string_view kTaxFile = "SalesTax.txt";
constexpr std::size_t kTaxLength = 5;

std::string PathOf(const Program& program) {
    return paths::Join(modFolders::DataFolder(program), kTaxFile);
}

} // namespace

void ReadTaxRate(Program& program) {
    Guarded(program, "GetTaxRate", [&] {
        const std::string path = PathOf(program);
        program.settings.TaxFile = {files::Seen::What::Unread, 0, 0};
        if (!files::Exists(path)) {
            files::WriteWhole(path, "");
        }
        const std::string five = files::ReadUpTo(path, kTaxLength);
        program.settings.TaxFile = files::LookAt(path);
        program.totals.TaxRate = numbers::ValSingle(five);
    });
}

void SaveTaxRate(Program& program, std::string_view rateText) {
    Guarded(program, "SaveTaxRate", [&] {
        std::string five(rateText.substr(0, kTaxLength));
        five.resize(kTaxLength, ' ');
        if (modRewrite::Rewrite(program, PathOf(program), five, program.settings.TaxFile, "This tax rate") !=
            modRewrite::Rewriting::Done) {
            return;
        }
        program.totals.TaxRate = numbers::ValSingle(five);
        if (program.totals.HasAmounts() && program.hooks.TakeFreshFigures) {
            program.hooks.TakeFreshFigures(program);
        }
        TellSaved(program, "Tax rate", PathOf(program));
        program.platform.questions.MsgBox("New Sales Tax Rate is " +
                                              numbers::FormatSingle(program.totals.TaxRate, "##.00") + " %",
                                          Buttons::Ok, "");
    });
}

} // namespace modTax
