#pragma once

#include <string_view>

struct Program;
struct UnsavedWork;

/// A file in the program folder that stands as long as a run lasts and says which proposal has changes in its
/// backup alone. One that a start finds was left by a run that was killed, crashed or lost its power.
namespace modRecovery {

/// At the start: takes what an earlier run left, and sets this run's marker. Never fails.
void SetMarker(Program& program);
/// At the clean end.
void TakeMarkerAway(Program& program);

/// The backup stands: the marker names it.
void TellOfBackup(Program& program, std::string_view backupName);
/// Before a save writes these bytes: should the run end between the write and what follows, the next start
/// knows that the proposal is saved.
void TellOfSave(Program& program, std::string_view bytes);
/// The same for a backup that was brought back. All three throw files::FileError.
void Restate(Program& program, const UnsavedWork& work);
/// The proposal on show has nothing that is in its backup alone: it was saved, or has been left.
void NothingUnsaved(Program& program);

} // namespace modRecovery
