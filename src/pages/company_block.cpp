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

/// The open format's own records of those labels; true when one of them had the old words.
bool RewordInFormat(Program& program, PageId page, std::size_t index, const std::string& was,
                    const std::string& is) {
    LabelChangeRecord& record = program.format.FormatLabelChanges[page][index];
    if (was == is || !record.Changed || record.Caption != was) {
        return false;
    }
    record.Caption = is;
    record.Saved = false;
    record.FromFormat = false;
    return true;
}

bool RewordFormat(Program& program, const SettingsRecords& before, const SettingsRecords& now) {
    bool any = false;
    for (std::size_t line = 0; line < kLetterhead.size(); ++line) {
        any =
            RewordInFormat(program, PageId::frmP1, line, before.*kLetterhead[line], now.*kLetterhead[line]) ||
            any;
    }
    const std::string representative = "Representative for ";
    any = RewordInFormat(program, PageId::frmP6, kRepresentative, representative + before.CompanyName,
                         representative + now.CompanyName) ||
          any;
    for (std::size_t line = 0; line < kRemittanceLines; ++line) {
        any = RewordInFormat(program, PageId::frmP6, kRemittance + line, before.*kLetterhead[line],
                             now.*kLetterhead[line]) ||
              any;
    }
    return any;
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
    if (program.format.FormatOpen && RewordFormat(program, before, now)) {
        program.format.Touched = true;
        program.platform.questions.MsgBox("The open format still carries the old lines on disk; save it.",
                                          Buttons::Ok, "");
    }
}

} // namespace modPages
