#pragma once

struct Program;

/// The frequent terms commands of the text menu, on the selected text of the area at hand.
namespace modTerms {

/// Adds the selection, lower-cased.
void AddTermFromArea(Program& program);
/// Opens the window to change the line that the selection is.
void mnuEditTextEditFUT_Click(Program& program);
/// Takes out the line that is exactly the selection, bracket and all.
void mnuEditTextDeleteFUT_Click(Program& program);

} // namespace modTerms
