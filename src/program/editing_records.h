#pragma once

#include "program/page_records.h"
#include "program/per_page.h"

#include <array>
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

    /// A move by key is not finished before the key is let go; the page that then runs its handlers.
    std::optional<PageId> MovedPage;

private:
    [[nodiscard]] static int LastIndex(const std::vector<AreaContents>& memory) {
        return memory.empty() ? 0 : static_cast<int>(memory.size()) - 1;
    }
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
    /// A suggested completion stands selected in the area; per page frmP1 to frmP5.
    PerLinePage<bool> ACActive;
};
