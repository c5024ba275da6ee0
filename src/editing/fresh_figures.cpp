#include "editing/fresh_figures.h"
#include "money/totals.h"
#include "program/program.h"
namespace modFigures {
void TakeFresh(Program& program) {
    for (const PageId page : kLinePages) {
        modTotals::CalculateMyTotals(program, page);
    }
    modTotals::RecalculateAll(program);
    modTotals::UpdateRunningTotals(program);
}
} // namespace modFigures
