#pragma once

#include "base/seen.h"

#include <optional>
#include <string>
#include <vector>

/// A proposal whose changes stand in a backup alone.
struct UnsavedWork {
    std::string Folder; ///< of the proposal
    std::string FileName;
    std::string Backup; ///< the backup's name in the folder of the backups
    /// What the last save was about to write. A proposal that holds it is saved, and newer than the backup.
    files::Seen Saving{};
    /// What the proposal's file held when the run last read or wrote it. Should it hold other bytes by the
    /// time the backup is brought back, another program has changed it, and the next save asks.
    files::Seen Known{};
    bool operator==(const UnsavedWork&) const = default;
};

/// A text of a window that was unsaved when a run was ended from outside.
struct RescuedText {
    std::string Kept;   ///< where it lies
    std::string Target; ///< where it belongs; empty where a person must find that out
    std::string Name;   ///< what it was to be called, before a number came behind it
};

struct RecoveryRecords {
    bool Marked = false;              ///< the marker of this run stands
    std::optional<UnsavedWork> Told;  ///< what the marker tells the next start
    std::optional<UnsavedWork> Found; ///< what an end that was not clean has left
    std::vector<RescuedText> Rescued; ///< by this run, should it go on after all
};
