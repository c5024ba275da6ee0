#include "editing/backup_counter.h"

#include "editing/area_facts.h"
#include "program/program.h"
#include "proposal/backup.h"

namespace modBackup {

void CountTowardsBackup(Program& program, PageId page, int index) {
    constexpr int kKeysBetween = 20;
    int& counter = program.editing.KeyCounter;
    ++counter;
    // While the client's name is typed the file's name is not settled; the counter runs on.
    if (counter < kKeysBetween || (page == PageId::frmP1 && index == modText::kClientName)) {
        return;
    }
    counter = 0;
    modFile::BackupThisFile(program);
}

} // namespace modBackup
