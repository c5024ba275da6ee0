#include "proposal/proposal_bytes.h"

#include "base/text.h"
#include "pages/fields.h"
#include "pages/page_geometry.h"
#include "pages/row_fields.h"
#include "program/program.h"
#include "proposal/slot_widths.h"

#include <cstddef>

namespace modFile {

std::string ProposalBytes(const Program& program) {
    proposal::Fields fields;
    for (const PageId page : kEditedPages) {
        const auto& texts = program.document.CurrentTextBuf[page];
        fields[page].reserve(texts.size());
        for (std::size_t index = 0; index < texts.size(); ++index) {
            const int row = static_cast<int>(index);
            const bool columns = program.pages[page].RowFieldsMade && geometry::IsDescription(page, row);
            // A mark beside nothing says nothing and would come back as a text.
            const bool marked = IsLinePage(page) && program.format.PropTextChanges[page][index].TaxExempt &&
                                !text::Trim(texts[index]).empty();
            fields[page].push_back(
                {columns ? modPages::ComposeLine(program, page, row) : texts[index], marked});
        }
    }
    return proposal::Encode(fields, SlotWidths(program));
}

} // namespace modFile
