#pragma once

class AddressWindow;
struct Program;

/// From a record into the first page of the proposal, from there into a book, and to the clipboard.
namespace modAddress {

enum class Merged { Yes, No };

/// The record shown goes into the client's lines of frmP1 as if it were typed. What stands there is asked
/// about first.
[[nodiscard]] Merged MergeClient(Program& program, AddressWindow& window);
/// Name and first address line go into the venue's lines.
[[nodiscard]] Merged MergeVenue(Program& program, AddressWindow& window);

/// Fills the fields from the client's lines of frmP1; they count as typed.
void FillFromProposal(Program& program, AddressWindow& window);

enum class CopyWhat { All, NameAndAddress };
void CopyRecord(const Program& program, const AddressWindow& window, CopyWhat what);

/// One page: the book, then a line a field. Reports as "mnuFilePrint".
void PrintRecord(const Program& program, const AddressWindow& window);

} // namespace modAddress
