#pragma once

struct Program;

/// Bringing back what an end that was not clean has left in a backup.
namespace modRecovery {

/// Once the window stands: asks about what was found, and on Yes shows the backup's text as unsaved changes
/// of its proposal, or of a new one. A backup that equals its proposal is not mentioned. Reports as
/// "OpenEventFile".
void OfferWhatWasFound(Program& program);

} // namespace modRecovery
