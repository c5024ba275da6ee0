#include "pages/company_block.h"

#include "pages/page_defaults.h"
#include "pages/titles.h"
#include "program/program.h"

#include <array>
#include <string>
#include <string_view>

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

/// Changes words and places on the pages, and what the proposal and the open format keep of them.
class Rewriter {
public:
    Rewriter(Program& program, const SettingsRecords& before) : program_(program), before_(before) {}

    void Reword(PageId page, std::size_t label, std::string_view lead, Value value) {
        const std::string was = std::string(lead) + before_.*value;
        const std::string is = std::string(lead) + program_.settings.*value;
        if (was == is) {
            return;
        }
        PageLabel& shown = program_.pages[page].lbl[label];
        if (shown.Caption == was) {
            shown.Caption = is;
        }
        if (page == PageId::frmP6_1) {
            return; // rides on the final page in the records
        }
        LabelChangeRecord& kept = Kept(program_.format.PropLabelChanges, page, label);
        if (kept.Changed && kept.Caption == was) {
            kept.Caption = is;
        }
        FormatRecords& format = program_.format;
        LabelChangeRecord& inFormat = Kept(format.FormatLabelChanges, page, label);
        if (format.FormatOpen && inFormat.Changed && inFormat.Caption == was) {
            inFormat.Caption = is;
            inFormat.Saved = false;
            format.Touched = true;
            formatAhead_ = true;
        }
    }

    void FinalPage(PageId page) {
        Reword(page, kRepresentative, "Representative for ", &SettingsRecords::CompanyName);
        for (std::size_t line = 0; line < kRemittanceLines; ++line) {
            Reword(page, kRemittance + line, "", kLetterhead[line]);
        }
        const bool has = !program_.settings.CompanyAddress2.empty();
        if (has == !before_.CompanyAddress2.empty()) {
            return;
        }
        for (std::size_t label = 60; label <= 62; ++label) {
            program_.pages[page].lbl[label].Top += has ? kRow : -kRow;
        }
    }

    [[nodiscard]] bool FormatAhead() const { return formatAhead_; }

private:
    static LabelChangeRecord& Kept(LabelChangeTable& table, PageId page, std::size_t label) {
        return table[static_cast<std::size_t>(IndexOf(page))][label];
    }

    Program& program_;
    const SettingsRecords& before_;
    bool formatAhead_ = false;
};

} // namespace

OpenFormat CompanyInfoChanged(Program& program, const SettingsRecords& before) {
    Rewriter rewriter(program, before);
    if (!program.run.AltLetterhead) {
        for (std::size_t line = 0; line < kLetterhead.size(); ++line) {
            rewriter.Reword(PageId::frmP1, line, "", kLetterhead[line]);
        }
    }
    for (const PageId page : {PageId::frmP6, PageId::frmP6_1}) {
        rewriter.FinalPage(page);
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
