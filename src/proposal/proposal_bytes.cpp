#include "proposal/proposal_bytes.h"

#include "base/text.h"
#include "pages/fields.h"
#include "pages/page_geometry.h"
#include "pages/row_fields.h"
#include "program/program.h"
#include "proposal/slot_widths.h"

#include <cstddef>

namespace modFile {

namespace {

/// The text as it stands, a row's columns composed.
std::string TextNow(const Program& program, PageId page, std::size_t index) {
    const int row = static_cast<int>(index);
    return program.pages[page].RowFieldsMade && geometry::IsDescription(page, row)
               ? modPages::ComposeLine(program, page, row)
               : program.document.CurrentTextBuf[page][index];
}

} // namespace

bool TextsChanged(const Program& program) {
    for (const PageId page : kEditedPages) {
        const auto& saved = program.document.SavedTextBuf[page];
        for (std::size_t index = 0; index < program.document.CurrentTextBuf[page].size(); ++index) {
            if (index >= saved.size() ||
                text::Trim(TextNow(program, page, index)) != text::Trim(saved[index])) {
                return true;
            }
        }
    }
    return false;
}

std::string ProposalBytes(const Program& program) {
    proposal::Fields fields;
    for (const PageId page : kEditedPages) {
        const auto& texts = program.document.CurrentTextBuf[page];
        fields[page].reserve(texts.size());
        for (std::size_t index = 0; index < texts.size(); ++index) {
            // A mark beside nothing says nothing and would come back as a text.
            const bool marked = IsLinePage(page) && program.format.PropTextChanges[page][index].TaxExempt &&
                                !text::Trim(texts[index]).empty();
            fields[page].push_back({TextNow(program, page, index), marked});
        }
    }
    return proposal::Encode(fields, SlotWidths(program));
}

} // namespace modFile
