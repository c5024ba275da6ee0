#include "search/frm_search.h"

#include "editing/standing_completion.h"
#include "pages/page_geometry.h"
#include "program/errors.h"
#include "program/program.h"
#include "program/windows.h"
#include "search/find_text.h"
#include "search/frm_sr.h"

#include <algorithm>
#include <memory>

void frmSearch::Form_Load(Program& program) {
    Caption = "Searching for...";
    SearchRecords& search = program.search;
    search.SearchAllPages = true;
    UpDateRecentSearches(program);
    if (!search.RecentSearches.empty()) {
        cmbSearch.Text = search.RecentSearches.back();
        cmbSearch.SelLength = static_cast<int>(cmbSearch.Text.size());
    }
    search.SearchPhrase = cmbSearch.Text;
}

void frmSearch::Form_Unload(Program& program) {
    if (Closed) {
        Closed(program);
    }
}

void frmSearch::Form_Cancel(Program& program) {
    cmdCancel_Click(program);
}

void frmSearch::UpDateRecentSearches(const Program& program) {
    Guarded(program, "UpDateRecentSearches", [&] { cmbSearch.Items = program.search.RecentSearches; });
}

void frmSearch::cmbSearch_Change(Program& program, std::string_view text) {
    cmbSearch.Text = text;
    program.search.SearchPhrase = text;
}

void frmSearch::optSearch_Click(Program& program, int index) {
    optSearch[0].Value = index == 0;
    optSearch[1].Value = index == 1;
    program.search.SearchAllPages = index == 0;
}

void frmSearch::SearchForPhrase(Program& program, PageId page, int index) {
    const std::string& text = program.pages[page].txt[static_cast<std::size_t>(index)].Text;
    const std::optional<std::size_t> hit = modSearch::FindPhrase(text, program.search.SearchPhrase);
    if (!hit) {
        return;
    }
    std::vector<std::string>& results = program.search.lstResults;
    results.push_back(std::string(geometry::PageTitle(IndexOf(page))) + " - Text Area " +
                      std::to_string(index + 1));
    results.push_back(modSearch::HitKey(page, index));
    results.push_back(modSearch::Context(text, *hit));
    ++HitCount;
}

void frmSearch::SearchPage(Program& program, PageId page) {
    for (int index = 0; index <= geometry::LastText(page); ++index) {
        SearchForPhrase(program, page, index);
    }
}

void frmSearch::SearchPages(Program& program) {
    program.search.lstResults.clear();
    HitCount = 0;
    if (program.search.SearchAllPages) {
        for (const PageId page : kEditedPages) {
            SearchPage(program, page);
        }
    } else {
        SearchPage(program, program.main.ActivePage);
    }
}

void frmSearch::cmdOK_Click(Program& program) {
    SearchRecords& search = program.search;
    SearchPages(program);
    auto& recent = search.RecentSearches;
    if (HitCount > 0 && std::find(recent.begin(), recent.end(), search.SearchPhrase) == recent.end()) {
        recent.push_back(search.SearchPhrase);
    }
    if (HitCount > 1) {
        modWindows::BringToFront(modWindows::Show(program, std::make_unique<frmSR>()));
    } else if (HitCount == 1) {
        modSearch::GoToSearchHit(program, search.lstResults[1]);
    } else {
        program.platform.questions.MsgBox("Your search for " + search.SearchPhrase + " was not found.",
                                          Buttons::Ok, "Not found.");
    }
    modWindows::Close(program, *this);
}

void frmSearch::cmdCancel_Click(Program& program) {
    program.search.SearchPhrase.clear();
    program.search.SearchAllPages = false;
    modWindows::Close(program, *this);
}

namespace modSearch {

bool MayStart(Program& program) {
    // The client's copy leaves the active page as it was; only its name tells.
    if (program.main.ActivePageName == geometry::PageName(PageId::frmP6_1)) {
        program.platform.questions.MsgBox("Search is not possible on this Page.", Buttons::Ok, "");
        return false;
    }
    if (program.search.ResultsOpen) {
        if (program.platform.questions.MsgBox("This will clear the current search results. Continue.",
                                              Buttons::YesNo, "Starting New Search",
                                              {.Default = Answer::No,
                                               .Lost = "The list of places found for \"" +
                                                       program.search.SearchPhrase + "\" will be lost."}) !=
            Answer::Yes) {
            return false;
        }
        if (Window* results = modWindows::Find(program, "frmSR")) {
            modWindows::Close(program, *results);
        }
    }
    modText::SettleCompletion(program, program.main.ActivePage);
    return true;
}

} // namespace modSearch
