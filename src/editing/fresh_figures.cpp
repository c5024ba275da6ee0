#include "editing/fresh_figures.h"

#include "editing/selection.h"
#include "editing/settle_field.h"
#include "editing/standing_completion.h"
#include "money/amounts.h"
#include "money/totals.h"
#include "program/program.h"

namespace modFigures {

void SettleTyping(Program& program) {
    modBlocks::FinishMove(program);
    modText::TakeCompletion(program);
    SettleFocused(program);
}

void TakeFresh(Program& program) {
    if (program.pages[PageId::frmP6].txt.empty()) {
        return; // pages that are not built have no figures
    }
    SettleTyping(program);
    modTotals::MatchTables(program);
    modTotals::SumAgain(program);
}

} // namespace modFigures
