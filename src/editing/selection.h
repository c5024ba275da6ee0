#pragma once

#include "program/keys.h"
#include "program/page_records.h"

struct Program;

/// The block selection: the rubber band that makes it, the reading of it, the memory it fills, and its end.
namespace modBlocks {

/// The mouse on a page's own surface; places in twips from the page's corner, which may lie beyond its edges.
/// A page that shows as ink and the client's copy take no band.
inline constexpr int kLeftButton = 1;
void Form_MouseDown(Program& program, int button, float x, float y);
void Form_MouseMove(Program& program, PageId page, int button, float x, float y);
void Form_MouseUp(Program& program, PageId page, int button, float x, float y);

/// Selects what the page's `shpSelect` wholly contains, edges included, and fills the memory with it. An
/// earlier selection ends; a band that takes nothing ends the mode. Does nothing while `shpSelect` is hidden.
void SelectBandedAreas(Program& program, PageId page);

/// Shift with an arrow in a line: selects the line and its neighbour, description and amount, as a band over
/// them does, and then extends or takes back by a line. A page's first or last row is the end. Taken unless
/// the field is no line's.
enum class Toward { Up, Down };
[[nodiscard]] Taken ExtendByKey(Program& program, const FieldRef& field, Toward toward);

/// First and last description row by page; the final page's range is a figure of the design that no area
/// answers to.
struct RowRange {
    int First;
    int Last;
};
[[nodiscard]] RowRange RowsOf(PageId page);

enum class Selection { None, Runs, Refused };
/// Reads the runs of the active page from the colours: only the first run without a gap counts, on either
/// side. Amounts alone are refused with a message, and the selection ends.
[[nodiscard]] Selection ReadOrRefuseSelection(Program& program);

/// The runs' contents into the memory, in place of what was there; nothing when no run has been read.
void CopyBlockToMemory(Program& program);

/// Selected areas of all pages take their resting colours again and none counts as selected. The mode and the
/// memory stay.
void ClearSelectionColors(Program& program);
/// The status labels and "Clear Selected" in the colour of the mode, or in their own.
enum class ModeSign { Hidden, Shown };
void ShowModeSign(Program& program, ModeSign sign);

/// Ends the selection on all pages and empties the memory; what can be undone stays. Reports as
/// "DeSelectAllControls".
void DeSelectAllControls(Program& program);

/// Ends a move whose key was not let go: its page's handlers run. A failure is told and goes no further.
void FinishMove(Program& program);
/// The message of a move that failed.
void TellMoveFailed(const Program& program);

} // namespace modBlocks
