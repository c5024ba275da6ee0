#include "search/frm_sr.h"

#include "program/program.h"
#include "program/windows.h"
#include "search/find_text.h"

#include <algorithm>

void frmSR::Form_Load(Program& program) {
    Caption = "Search Results";
    lblSearch.Caption = program.search.SearchPhrase;
    const std::vector<std::string>& found = program.search.lstResults;
    for (std::size_t line = 0; line < found.size(); ++line) {
        lstResults[line % lstResults.size()].Items.push_back(found[line]);
    }
    lstResults_Move(0);
    program.search.ResultsOpen = true;
}

void frmSR::Form_Unload(Program& program) {
    program.search.ResultsOpen = false;
}

void frmSR::Form_Cancel(Program& program) {
    modWindows::Close(program, *this);
}

void frmSR::lstResults_Move(int row) {
    const int last = static_cast<int>(lstResults[0].Items.size()) - 1;
    for (ListBox& list : lstResults) {
        list.ListIndex = std::clamp(row, -1, last);
    }
}

void frmSR::lstResults_Click(Program& program, int list, int row) {
    lstResults_Move(row);
    constexpr int kKeys = 1;
    const int chosen = lstResults[kKeys].ListIndex;
    if (list != kKeys && chosen >= 0) {
        modSearch::GoToSearchHit(program, lstResults[kKeys].Items[static_cast<std::size_t>(chosen)]);
    }
}

void frmSR::lstResults_Scroll(int top) {
    TopIndex = std::clamp(top, 0, std::max(0, static_cast<int>(lstResults[0].Items.size()) - 1));
}
