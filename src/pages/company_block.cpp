#include "pages/company_block.h"

#include "pages/page_defaults.h"
#include "pages/titles.h"
#include "program/program.h"

#include <array>
#include <string>
#include <vector>

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

constexpr std::size_t kFirstBelow = 60; ///< of the labels below the second address line
constexpr std::size_t kLastBelow = 62;

/// How far the lines below the second address line move, in twips.
float MoveBelow(const SettingsRecords& before, const SettingsRecords& now) {
    if (before.CompanyAddress2.empty() == now.CompanyAddress2.empty()) {
        return 0;
    }
    return now.CompanyAddress2.empty() ? -kRow : kRow;
}

void FinalPage(Page& page, const SettingsRecords& before, const SettingsRecords& now) {
    const std::string representative = "Representative for ";
    Reword(page.lbl[kRepresentative], representative + before.CompanyName, representative + now.CompanyName);
    for (std::size_t line = 0; line < kRemittanceLines; ++line) {
        Reword(page.lbl[kRemittance + line], before.*kLetterhead[line], now.*kLetterhead[line]);
    }
    for (std::size_t label = kFirstBelow; label <= kLastBelow; ++label) {
        page.lbl[label].Top += MoveBelow(before, now);
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

/// The places that the open format has given the lines below the second address line; true when it has one.
bool MoveInFormat(Program& program, float down) {
    bool any = false;
    for (std::size_t label = kFirstBelow; down != 0 && label <= kLastBelow; ++label) {
        LabelChangeRecord& record = program.format.FormatLabelChanges[PageId::frmP6][label];
        if (record.Changed) {
            record.Top += down;
            record.Saved = false;
            record.FromFormat = false;
            any = true;
        }
    }
    return any;
}

bool RewordFormat(Program& program, const SettingsRecords& before, const SettingsRecords& now) {
    bool any = MoveInFormat(program, MoveBelow(before, now));
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

/// Labels that ride with the proposal's properties have changed against its file: that is seen when the
/// proposal is left.
void FollowInProperties(Program& program, PageId page, const std::vector<PageLabel>& before) {
    FormatRecords& format = program.format;
    const auto& labels = program.pages[page].lbl;
    for (std::size_t index = 0; index < labels.size(); ++index) {
        const PageLabel& label = labels[index];
        LabelChangeRecord& record = format.PropLabelChanges[page][index];
        const bool rides =
            record.Changed || (format.FormatOpen && format.FormatLabelChanges[page][index].Changed);
        if (!rides || label == before[index]) {
            continue;
        }
        if (record.Changed) {
            record.Caption = label.Caption;
            record.Top = label.Top;
        }
        if (program.document.FileExists) {
            format.LabelSavedState[page][index].Changed = true;
        }
    }
}

} // namespace

void CompanyInfoChanged(Program& program, const SettingsRecords& before) {
    const SettingsRecords& now = program.settings;
    const std::vector<PageLabel> clientBefore = program.pages[PageId::frmP1].lbl;
    const std::vector<PageLabel> finalBefore = program.pages[PageId::frmP6].lbl;
    if (!program.run.AltLetterhead) {
        Page& client = program.pages[PageId::frmP1];
        for (std::size_t line = 0; line < kLetterhead.size(); ++line) {
            Reword(client.lbl[line], before.*kLetterhead[line], now.*kLetterhead[line]);
        }
    }
    for (const PageId page : {PageId::frmP6, PageId::frmP6_1}) {
        FinalPage(program.pages[page], before, now);
    }
    FollowInProperties(program, PageId::frmP1, clientBefore);
    FollowInProperties(program, PageId::frmP6, finalBefore);
    SizeRemittanceBox(program);
    modTitles::SetPageHeading(program, "Contract Proposal");
    if (program.format.FormatOpen && RewordFormat(program, before, now)) {
        program.format.Touched = true;
        program.platform.questions.MsgBox("The open format still carries the old lines on disk; save it.",
                                          Buttons::Ok, "");
    }
}

} // namespace modPages
