#pragma once

#include "base/guard.h"
#include "program/per_page.h"

#include <array>
#include <bitset>
#include <memory>
#include <optional>
#include <string>
#include <vector>

/// All that travels with the text of one area of a block: description or amount.
struct AreaContents {
    std::string Text;
    bool Columns = false; ///< a description whose row has quantity and unit price
    std::string Quantity;
    std::string Price;
    bool FontBold = false;
    bool TaxExempt = false;
    bool operator==(const AreaContents&) const = default;
};

/// An area that a delete has emptied, and what stood there.
struct ClearedArea {
    int Index = 0;
    AreaContents Contents;
};

/// The block selection and its memories. Which areas are selected is told by their colours alone; what stands
/// here was read from them.
struct BlockState {
    bool HasRightRun = false; ///< the selection includes a run of amounts
    int SelectedCount = 0;    ///< text areas selected; their quantity and price boxes do not count
    bool ManySelected = false;
    int FirstRow = 0; ///< description range of the page whose selection was read
    int LastRow = 0;
    /// The left run (0) holds descriptions, the right run (1) amounts; -1 is none.
    std::array<int, 2> RunStart{-1, -1};
    std::array<int, 2> RunEnd{-1, -1};
    bool AtTop = false;
    bool AtBottom = false;

    int KeyAnchor = -1; ///< the row from which a selection by key grows; -1 is none

    float BandStartX = 0; ///< twips on the page
    float BandStartY = 0;
    float BandEndX = 0;
    float BandEndY = 0;
    bool BandDragging = false;

    /// Copied areas. A memory with a right run writes amounts, one without leaves them alone.
    std::vector<AreaContents> MemoryLeft;
    std::vector<AreaContents> MemoryRight;
    /// Last index of each memory, from 0; 0 for an empty one, too.
    [[nodiscard]] int MemoryLeftCount() const { return LastIndex(MemoryLeft); }
    [[nodiscard]] int MemoryRightCount() const { return LastIndex(MemoryRight); }

    PageId UndoPage = PageId::frmP1;
    std::vector<ClearedArea> UndoMemory;

    /// A move by key is not finished before the key is let go: handlers are silent as long as it is held
    /// here, and the page then runs them.
    std::unique_ptr<ScopedFlag> Moving;
    std::optional<PageId> MovedPage;

private:
    [[nodiscard]] static int LastIndex(const std::vector<AreaContents>& memory) {
        return memory.empty() ? 0 : static_cast<int>(memory.size()) - 1;
    }
};

/// The word at the cursor, as completion follows it; one a page.
struct WordState {
    int WordStart = 0; ///< where the word begins
    int WordLen = 0;   ///< letters typed in it so far
    bool NewWord = false;
    bool InWord = false;
    std::string TypedWord;
    std::string MatchedTerm;
    std::string MatchedAmount;
};

/// Which keys that are still down have put a character into which field. A key let go elsewhere, or one that
/// only moved the cursor, completes nothing.
struct TypedKeys {
    std::optional<FieldRef> Field;
    std::bitset<256> Codes;
    std::array<int, 256> Behind{}; ///< where the cursor stood behind what each has put
    int KeyDown = 0;               ///< the key being pressed
    bool Character = false;        ///< it has passed the field's filter

    /// A sign may be let go under another code than it was pressed with, when Shift was let go first.
    [[nodiscard]] static std::size_t PlaceOf(int keyCode) {
        constexpr int kFirstDigit = 48, kLastDigit = 57, kSigns = 188, kOther = 192;
        const bool sign = (keyCode >= kFirstDigit && keyCode <= kLastDigit) || keyCode >= kSigns;
        return static_cast<std::size_t>(sign || keyCode < 0 ? kOther : keyCode);
    }
};

/// The amount beside a quantity or unit price as it stood when the person came into the box.
struct BoxVisit {
    FieldRef Box;
    std::string Amount;
};

/// One shared record, not one per page: nested changes of a push read and write it as it stands.
struct EditingState {
    std::string CurrentText;
    std::string CurrentKind;
    std::string CurrentLimit;
    float CurrentWidth = 0;
    int CursorPos = 0;
    std::string LastKeyChar;
    int CurrentArea = 0;
    int LastArea = 0;
    bool BlockMode = false;
    bool RefireMode = false;
    bool MoveInProgress = false;
    int KeyCounter = 0;
    bool PushNeeded = false;
    bool PushStepsCursor = false;
    bool PushFollowsCursor = false;
    bool RightClickPending = false;
    int RightClickArea = 0;
    bool BlockCopyHeld = false; ///< areas are in memory, a paste may act
    bool UndoAvailable = false; ///< a delete or cut can be undone
    int SavedSelStart = 0;      ///< text selection remembered for the case commands
    int SavedSelLength = 0;
    BlockState Block;
    /// The amount whose text the person has taken away and not left yet: another may be typed in its place.
    std::optional<FieldRef> EmptiedAmount;
    std::optional<BoxVisit> Visit;
    /// A suggested completion stands selected in the area; per page frmP1 to frmP5.
    PerLinePage<bool> ACActive;
    PerLinePage<WordState> Words;
    TypedKeys Typed;
};
