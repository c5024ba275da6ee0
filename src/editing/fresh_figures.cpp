#include "editing/fresh_figures.h"

#include "editing/selection.h"
#include "editing/settle_field.h"
#include "money/amounts.h"
#include "money/totals.h"
#include "program/program.h"

namespace modFigures {

namespace {

void TakeCompletion(Program& program) {
    if (program.hooks.TakeCompletion) {
        program.hooks.TakeCompletion(program);
    }
    if (program.main.Focus) {
        modBlocks::SettleCompletion(program, program.main.Focus->Page);
    }
}

} // namespace

void SettleTyping(Program& program) {
    modBlocks::FinishMove(program);
    TakeCompletion(program);
    SettleFocused(program);
}

void TakeFresh(Program& program) {
    SettleTyping(program);
    modTotals::MatchTables(program);
    modTotals::SumAgain(program);
}

} // namespace modFigures
