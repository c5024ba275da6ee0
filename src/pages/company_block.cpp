#include "pages/company_block.h"

#include "pages/page_defaults.h"
#include "pages/titles.h"
#include "program/program.h"

#include <array>
#include <string>

namespace modPages {

namespace {

using Value = std::string SettingsRecords::*;

constexpr std::array<Value, 8> kLetterhead{
    &SettingsRecords::CompanyName,     &SettingsRecords::CompanyAddress1,
    &SettingsRecords::CompanyAddress2, &SettingsRecords::CompanyCityStateZip,
    &SettingsRecords::CompanyPhone,    &SettingsRecords::CompanyFax,
    &SettingsRecords::CompanyWebsite,  &SettingsRecords::CompanyEmail};
constexpr std::size_t kRemittance = 57; ///< the first of six labels
constexpr std::size_t kRemittanceLines = 6;
constexpr std::size_t kRepresentative = 51;
constexpr float kRow = 270;

void Reword(PageLabel& label, const std::string& was, const std::string& is) {
    if (label.Caption == was) {
        label.Caption = is;
    }
}

void FinalPage(Page& page, const SettingsRecords& before, const SettingsRecords& now) {
    const std::string representative = "Representative for ";
    Reword(page.lbl[kRepresentative], representative + before.CompanyName, representative + now.CompanyName);
    for (std::size_t line = 0; line < kRemittanceLines; ++line) {
        Reword(page.lbl[kRemittance + line], before.*kLetterhead[line], now.*kLetterhead[line]);
    }
    if (before.CompanyAddress2.empty() == now.CompanyAddress2.empty()) {
        return;
    }
    const float down = now.CompanyAddress2.empty() ? -kRow : kRow;
    for (std::size_t label = 60; label <= 62; ++label) {
        page.lbl[label].Top += down;
    }
}

} // namespace

void CompanyInfoChanged(Program& program, const SettingsRecords& before) {
    const SettingsRecords& now = program.settings;
    if (!program.run.AltLetterhead) {
        Page& client = program.pages[PageId::frmP1];
        for (std::size_t line = 0; line < kLetterhead.size(); ++line) {
            Reword(client.lbl[line], before.*kLetterhead[line], now.*kLetterhead[line]);
        }
    }
    for (const PageId page : {PageId::frmP6, PageId::frmP6_1}) {
        FinalPage(program.pages[page], before, now);
    }
    SizeRemittanceBox(program);
    program.document.CompanyBlockPending = true;
    modTitles::SetPageHeading(program, "Contract Proposal");
}

} // namespace modPages
