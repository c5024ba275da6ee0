#pragma once

#include "document/page_records.h"

#include <array>
#include <string>

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
    /// A suggested completion stands selected in the area; per page frmP1 to frmP5.
    std::array<bool, kLinePageCount> ACActive{};
};
