#pragma once

#include "program/change_records.h"
#include "program/page_records.h"

struct Program;

/// A label's look between page and tables.
namespace modDesigner {

[[nodiscard]] LabelLook LookOf(const PageLabel& label);
/// Gives the label its look; selection, Tag and visibility stay.
void PutLook(PageLabel& label, const LabelLook& look);
/// The same for a record: its marks stay.
void PutLook(LabelChangeRecord& record, const LabelLook& look);

[[nodiscard]] PageLabel& LabelAt(Program& program, PageId page, int index);
[[nodiscard]] const PageLabel& LabelAt(const Program& program, PageId page, int index);
[[nodiscard]] LabelChangeRecord& RecordOf(LabelChangeTable& table, PageId page, int index);

/// Gives a label of the six edited pages its look; one of the final page gives it to the client's copy, too,
/// but for the words of the title, which are the copy's own.
void LayLabel(Program& program, PageId page, int index, const LabelLook& look);

/// The client's copy of the final page takes a label's place; a title that stands centred is centred by the
/// copy's own words.
void CopyPlaceToClientsPage(Program& program, int index);

/// The client's copy of the final page takes a label as it stands on the final page.
void CopyToClientsPage(Program& program, int index);

/// Whether a label is one that stands beside an amount with the currency sign.
[[nodiscard]] bool IsSignLabel(PageId page, int index);

/// Copies all labels of the edited pages into their base states.
void SaveBaseLabels(Program& program);

} // namespace modDesigner
