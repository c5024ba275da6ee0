#pragma once

#include <functional>
#include <string>

struct Program;
struct FieldRef;

/// Calls from a room to rooms above it. The lower room never knows who answers; one wiring unit connects
/// them. An empty hook means that nobody answers.
struct Hooks {
    using Call = std::function<void(Program&)>;
    using FieldCall = std::function<void(Program&, const FieldRef&)>;

    FieldCall Change;    ///< a field's text changed
    FieldCall GotFocus;  ///< a field has taken the focus
    FieldCall LostFocus; ///< a field is about to lose it

    std::function<void(Program&, int)> UpdatePageButtons; ///< change the page, 0 to 6
    FieldCall ShowField;      ///< brings a field into the visible part, its page to the front
    Call CollectQtyBoxes;     ///< bring the stores up to what the row fields show
    Call TakeFreshFigures;    ///< what is being typed is settled and everything summed, before others see it
    Call DeSelectAllControls; ///< end a block selection on all pages
    std::function<void(Program&, int)> PageKey; ///< a page-up (33) or page-down (34) key
    /// The list in use may be another one now; it is read at once where it is needed.
    Call ReadFrequentlyUsedTerms;
    /// A key let go in a text area of a line page: completes the word at the cursor.
    std::function<void(Program&, const FieldRef&, int keyCode, int shift)> CompleteWord;
    /// A key pressed while a completion stands: whether it has accepted it and is used up.
    std::function<bool(Program&, const FieldRef&, int keyCode, int shift)> CompletionKey;
    std::function<void(Program&, const std::string&)> ReadTextFile; ///< shows a text file, by its full path
    Call ShowCalculator; ///< its window, as a new proposal brings it back
    /// The assignment language of format and property files.
    Call OpenFormatFile;
    Call ParsePropertyFile;
    Call AssignPropChanges;
    Call TellOtherPages;
    /// Whether what the open format has not saved may be lost; asks and saves. No answer: it may.
    std::function<bool(Program&)> MayLeaveFormat;
    Call CloseLabelWindow; ///< as OK, on its own page
    Call SetPageNumbers;   ///< headings and page numbers into the labels
};
