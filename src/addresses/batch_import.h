#pragma once

class AddressWindow;
struct Program;

/// The import of a copied list: choosing its kind, then one record after the other, each saved or skipped by
/// the person. Nothing is written unseen.
namespace modAddress {

void mnuToolsImportBatch_Click(Program& program, AddressWindow& window);

/// A category label was clicked, a kind of list chosen.
void lblFormat_Click(Program& program, AddressWindow& window, int index);
void optList_Click(Program& program, AddressWindow& window, int index);
void ShowFormatListTypes(Program& program, AddressWindow& window);
void RefreshFormatListTypes(Program& program, AddressWindow& window);

/// Reads the list and shows its first record.
void BeginBatch(Program& program, AddressWindow& window);
void CancelImport(Program& program, AddressWindow& window);

/// Saves the record shown and goes on to the next; stays when nothing was saved.
void SaveBatchRecord(Program& program, AddressWindow& window);
void SkipBatchRecord(Program& program, AddressWindow& window);
void EndBatch(Program& program, AddressWindow& window);

/// Opens the help page and lets the floating windows step aside.
void ShowBatchHelp(Program& program);

} // namespace modAddress
