#include "proposal/proposal_open.h"

#include "base/files.h"
#include "base/guard.h"
#include "base/numbers.h"
#include "base/paths.h"
#include "base/text.h"
#include "money/totals.h"
#include "pages/logo.h"
#include "pages/page_geometry.h"
#include "pages/row_fields.h"
#include "pages/titles.h"
#include "program/data_folders.h"
#include "program/errors.h"
#include "program/program.h"
#include "proposal/file_names.h"
#include "proposal/property_file.h"
#include "proposal/side_files.h"
#include "proposal/slot_widths.h"

#include <algorithm>

namespace modFile {

namespace {

std::uintmax_t BytesNeeded(const proposal::Widths& widths) {
    std::uintmax_t needed = 0;
    for (const auto& page : widths) {
        for (const int width : page) {
            needed += static_cast<std::uintmax_t>(std::max(width, 0));
        }
    }
    return std::max<std::uintmax_t>(needed, proposal::kFileLength);
}

/// What both tables say of an area once it was read.
template <typename Change> void InBothTables(Program& program, PageId page, int index, Change change) {
    for (TextChangeTable* table : {&program.format.PropTextChanges, &program.format.FormatTextChanges}) {
        change((*table)[page][static_cast<std::size_t>(index)]);
    }
}

void TakeQuantityRow(Program& program, PageId page, int index, const modPages::QuantityRow& row) {
    modPages::EnsureRowFields(program, page);
    Page& record = program.pages[page];
    const auto at = static_cast<std::size_t>(index);
    record.txtQty[at].Text = row.Quantity;
    record.txtAmt[at].Text = row.Amount;
    record.txt[at].Text = row.Description;
    modPages::PlaceColumns(program, page, index, modPages::Columns::On);
    InBothTables(program, page, index, [&](TextChangeRecord& kept) {
        kept.Text = row.Description;
        kept.QtyBox = true;
        kept.QtyValue = row.Quantity;
        kept.AmtValue = row.Amount;
    });
}

/// Columns that a format has laid are none of this proposal's.
void TakePlainRow(Program& program, PageId page, int index) {
    Page& record = program.pages[page];
    const auto at = static_cast<std::size_t>(index);
    if (record.RowFieldsMade) {
        const bool client = page == PageId::frmP1;
        modPages::PlaceColumns(program, page, index, modPages::Columns::Off);
        record.txtQty[at].Text = client ? "" : "Qty.";
        record.txtAmt[at].Text = client ? "" : "Amt.";
    }
    InBothTables(program, page, index, [](TextChangeRecord& kept) {
        kept.QtyBox = false;
        kept.QtyValue.clear();
        kept.AmtValue.clear();
    });
}

void TakeText(Program& program, PageId page, int index, std::string_view slot) {
    const auto at = static_cast<std::size_t>(index);
    const std::string_view value = text::RTrim(slot);
    TextChangeRecord& format = program.format.FormatTextChanges[page][at];
    if (format.FormatText && value.empty()) {
        return; // protected, and the proposal has nothing to put in its place
    }
    format.FormatText = false;
    program.document.SavedTextBuf[page][at] = value;
    program.document.CurrentTextBuf[page][at] = value;
    const modPages::QuantityRow row = modPages::SplitLine(value);
    const bool description = geometry::IsDescription(page, index);
    if (row.IsRow && description) {
        TakeQuantityRow(program, page, index, row);
        return;
    }
    program.pages[page].txt[at].Text = value;
    InBothTables(program, page, index, [&](TextChangeRecord& kept) { kept.Text = value; });
    if (description) {
        TakePlainRow(program, page, index);
    }
}

void TakeAmount(Program& program, PageId page, int index) {
    const auto at = static_cast<std::size_t>(index);
    std::string& current = program.document.CurrentTextBuf[page][at];
    program.totals.AmountTable[at][page] = 0;
    program.totals.TaxableTable[at][page] = 0;
    modPages::SetNoTaxMark(program, page, index, modPages::Mark::Hidden);
    modPages::SetCurrencySign(program, page, index, modPages::Mark::Hidden);
    InBothTables(program, page, index, [](TextChangeRecord& kept) { kept.TaxExempt = false; });
    if (text::Trim(current).empty()) {
        return;
    }
    TextArea& area = program.pages[page].txt[at];
    const bool marked = current.front() == proposal::kExemptMark;
    if (marked) {
        current.erase(0, 1);
    }
    const std::string bare(text::Trim(current));
    if (bare.empty()) {
        // A mark beside nothing: an empty amount.
        program.document.SavedTextBuf[page][at].clear();
        area.Text.clear();
        return;
    }
    const std::optional<float> value = numbers::ToSingle(bare, program.settings.CurrencySymbol);
    if (!value) {
        modTotals::TellNoNumber(program, area);
        area.BackColor = colors::kOverLimit;
        return;
    }
    if (marked) {
        InBothTables(program, page, index, [](TextChangeRecord& kept) { kept.TaxExempt = true; });
        program.document.SavedTextBuf[page][at] = current;
        area.Text = bare;
        modPages::SetNoTaxMark(program, page, index, modPages::Mark::Shown);
    }
    program.totals.AmountTable[at][page] = *value;
    program.totals.TaxableTable[at][page] = marked ? 0 : *value;
    modPages::SetCurrencySign(program, page, index, modPages::Mark::Shown);
}

void TakeFields(Program& program, const proposal::Decoded& decoded) {
    for (const PageId page : kLinePages) {
        const auto& slots = decoded.Slots[page];
        for (int index = 0; index <= geometry::LastText(page); ++index) {
            TakeText(program, page, index, slots[static_cast<std::size_t>(index)]);
            if (geometry::IsAmount(page, index)) {
                TakeAmount(program, page, index);
            }
        }
    }
    for (std::size_t index = 0; index < decoded.Slots[PageId::frmP6].size(); ++index) {
        const std::string_view value = text::Trim(decoded.Slots[PageId::frmP6][index]);
        program.document.CurrentTextBuf[PageId::frmP6][index] = value;
    }
}

void TakeKind(Program& program) {
    const bool wedding = program.document.DocumentKind == "Wedding";
    if (!program.run.TermsPinned) {
        program.run.FUTFileName = wedding ? "Wedding Terms.fut" : "Default Terms.fut";
    }
    if (program.settings.PageTitles.empty()) {
        modTitles::SetPageHeading(program, wedding ? "Wedding Proposal" : "Event Proposal");
    }
}

void SettleLogo(Program& program) {
    if (program.document.FileName == "John Doe.hef") {
        // The sample stands for any business; ours has no place on it, and is back with the next proposal.
        program.run.LogoChecked = false;
    }
    modLogo::SettleLogoVisibility(program);
}

/// What is missing of a file shows as blank and counts as nothing, a deposit too: the person must know, and
/// the file itself is kept by the save that replaces it.
void TellCutShort(Program& program, const RawProposal& raw) {
    if (!proposal::IsCutShort(raw.Length)) {
        return;
    }
    const std::string name = program.document.FileName;
    program.document.SavedFile = {files::Seen::What::Unread, 0, 0};
    program.platform.questions.MsgBox(
        text::Lines({"The file " + name + " is cut short: it has " + std::to_string(raw.Length) + " of " +
                         std::to_string(proposal::kFileLength) + " bytes.",
                     "What is missing shows as blank, and amounts and the deposit among it as 0.00.",
                     "The first save keeps the file as it is now under the name " + name + ".unread."}),
        Buttons::Ok, "");
}

} // namespace

RawProposal ReadProposal(const Program& program, std::string_view path) {
    files::Head head = files::ReadHead(path, BytesNeeded(SlotWidths(program)));
    const bool whole = head.Bytes.size() == head.Length;
    RawProposal raw;
    raw.Seen = whole ? files::SeenIn(head.Bytes) : files::LookAt(path);
    raw.Bytes = std::move(head.Bytes);
    raw.Length = head.Length;
    return raw;
}

std::optional<RawProposal> LoadProposal(const Program& program, std::string_view fileName) {
    RawProposal raw;
    const bool done = Guarded(program, "OpenEventFile", [&] {
        raw = ReadProposal(program, paths::Join(program.document.FilePath, fileName));
    });
    return done ? std::optional(std::move(raw)) : std::nullopt;
}

void ShowProposal(Program& program, std::string_view fileName, const RawProposal& raw) {
    DocumentState& document = program.document;
    document.FileName = fileName;
    document.SavedFile = raw.Seen;
    document.FolderOnShow = document.FilePath;
    {
        const ScopedFlag loading(program.guards.Loading);
        const proposal::Decoded decoded = proposal::Decode(raw.Bytes, raw.Length, SlotWidths(program));
        TakeFields(program, decoded);
        document.DocumentKind = decoded.Wedding ? "Wedding" : "Event";
        document.FileExists = true;
        modTotals::TotalsAfterReading(program);
    }
    modNames::SetBaseName(program, paths::BaseOf(fileName));
    document.ClientCaption = "Proposal for " + document.BaseName;
    TakeKind(program);
    document.HasNotes = files::FileIsThere(modSideFile::FolderOf(program, document), document.FootnoteFile);
    if (program.hooks.ReadFrequentlyUsedTerms) {
        program.hooks.ReadFrequentlyUsedTerms(program);
    }
    SettleLogo(program);
    modTitles::UpdateEventNameLabels(program);
    if (program.hooks.UpdatePageButtons) {
        program.hooks.UpdatePageButtons(program, IndexOf(PageId::frmP1));
    }
    document.HasClient = true;
    TellCutShort(program, raw);
}

OpenResult OpenEventFile(Program& program, std::string_view fileName) {
    const std::optional<RawProposal> raw = LoadProposal(program, fileName);
    if (!raw) {
        return OpenResult::NotOpened;
    }
    ShowProposal(program, fileName, *raw);
    return OpenResult::Opened;
}

} // namespace modFile
