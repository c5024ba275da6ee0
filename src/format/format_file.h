#pragma once

struct Program;

/// Reading a format file: from its bytes to the pages.
namespace modFormat {

/// Reads `FormatFolder` + `FormatName` and lays it over the pages, logo and figures included. A file that
/// cannot be read leaves no format open, with the built-in pages in force; that is told once a run. An empty
/// one changes nothing, the main window's caption included. Called by the reset, which has emptied the
/// tables, while a format is open. Reports as "OpenFormatFile".
void OpenFormatFile(Program& program);

/// Applies `FormatLines`. A fault never stops it: a bad line is passed over, and for a value that does not
/// convert the one left by an earlier line of its kind stands in. Never reports.
void ParseFormatFile(Program& program);

} // namespace modFormat
