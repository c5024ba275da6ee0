#include "search/find_text.h"
#include "search/frm_search.h"
#include "search/frm_sr.h"

#include "pages/fields.h"
#include "program/windows.h"
#include "support/person.h"
#include "support/running_program.h"
#include "support/typist.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

// Looking for a phrase, by the dialog and by the results.

namespace {

constexpr PageId kSecond = PageId::frmP2;

FieldRef Text(PageId page, int index) {
    return {page, FieldKind::txt, index};
}

struct SearchRun : RunningProgram {
    SearchRun() { program.run.ACEnabled = false; }
    void Put(PageId page, int index, std::string_view text) {
        modFields::SetText(program, Text(page, index), text);
    }
    frmSearch* Open() {
        modWindows::Sweep(program);
        person::Choose(program, CommandId::mnuEditFind);
        return static_cast<frmSearch*>(modWindows::Find(program, "frmSearch"));
    }
    void Search(std::string_view phrase, int option = 0) {
        frmSearch* dialog = Open();
        ASSERT_NE(dialog, nullptr);
        dialog->cmbSearch_Change(program, phrase);
        dialog->optSearch_Click(program, option);
        dialog->cmdOK_Click(program);
        modWindows::Sweep(program);
    }
    [[nodiscard]] frmSR* Results() { return static_cast<frmSR*>(modWindows::Find(program, "frmSR")); }
};

TEST(Phrase, IsFoundWhateverItsCase) {
    EXPECT_EQ(modSearch::FindPhrase("Round TABLE", "table"), 6U);
    EXPECT_EQ(modSearch::FindPhrase("CAF\xC9", "caf\xE9"), 0U);
    EXPECT_EQ(modSearch::FindPhrase("table table", "TABLE"), 0U);
    EXPECT_EQ(modSearch::FindPhrase("table", "tables"), std::nullopt);
    EXPECT_EQ(modSearch::FindPhrase("table", ""), std::nullopt);
}

TEST(Phrase, StandsInAContextOfFortyCharactersFromTheLastBlank) {
    EXPECT_EQ(modSearch::Context("three round tables", 6), "round tables");
    EXPECT_EQ(modSearch::Context("three xround tables", 7), "xround tables");
    const std::string longest(50, 'a');
    EXPECT_EQ(modSearch::Context(longest, 0), std::string(40, 'a'));
    EXPECT_EQ(modSearch::Context("x " + longest, 2 + 45), std::string(40, 'a'));
    EXPECT_EQ(modSearch::Context("in one", 1), "in one");
}

TEST(HitKey, NamesPageAndAreaAndNothingElseIsOne) {
    EXPECT_EQ(modSearch::HitKey(kSecond, 13), "frmP2:13");
    EXPECT_EQ(modSearch::FieldOfKey("frmP2:13"), Text(kSecond, 13));
    EXPECT_EQ(modSearch::FieldOfKey("frmP2:0"), Text(kSecond, 0));
    EXPECT_EQ(modSearch::FieldOfKey("frmP2:65"), Text(kSecond, 65)) << "the last of its page";
    for (const char* bad : {"", "frmP2", "frmP7:1", "frmP2:", "frmP2:x", "frmP2:66", "frmP6:6", "frmP2:-1",
                            "frmP2:99999999999", "frmP6_1:1"}) {
        EXPECT_EQ(modSearch::FieldOfKey(bad), std::nullopt) << bad;
    }
}

TEST(Search, SeveralHitsOpenTheResultsInPageOrder) {
    SearchRun run;
    run.Put(PageId::frmP5, 65, "an odd figure");
    run.Put(kSecond, 13, "Two ODD chairs");
    run.Put(PageId::frmP1, 0, "odd day");
    run.Search("odd");
    frmSR* results = run.Results();
    ASSERT_NE(results, nullptr);
    EXPECT_TRUE(run.program.search.ResultsOpen);
    EXPECT_EQ(results->Caption, "Search Results");
    EXPECT_EQ(results->lblSearch.Caption, "odd");
    EXPECT_EQ(
        results->lstResults[0].Items,
        (std::vector<std::string>{"Page 1 - Text Area 1", "Page 2 - Text Area 14", "Page 5 - Text Area 66"}));
    EXPECT_EQ(results->lstResults[1].Items, (std::vector<std::string>{"frmP1:0", "frmP2:13", "frmP5:65"}));
    EXPECT_EQ(results->lstResults[2].Items,
              (std::vector<std::string>{"odd day", "ODD chairs", "odd figure"}));
    EXPECT_EQ(run.program.search.lstResults.size(), 9U) << "three lines a hit";
}

TEST(Search, ThePhraseTwiceInAnAreaIsOneHitAndTheFirstIsSelected) {
    SearchRun run;
    run.Put(kSecond, 13, "table by table");
    run.Search("TABLE");
    EXPECT_EQ(run.Results(), nullptr) << "exactly one hit opens no window";
    EXPECT_EQ(run.program.main.PageInFront, kSecond);
    EXPECT_EQ(run.program.main.Focus, Text(kSecond, 13));
    EXPECT_EQ(run.Area(kSecond, 13).SelStart, 0);
    EXPECT_EQ(run.Area(kSecond, 13).SelLength, 5);
    EXPECT_EQ(run.program.editing.CursorPos, 0);
}

TEST(Search, AHitBelowTheWindowScrollsByOnePageKey) {
    SearchRun run;
    run.Put(kSecond, 32, "the last table");
    ASSERT_GT(run.Area(kSecond, 32).Top, run.program.main.ClientHeight);
    run.Search("table");
    EXPECT_EQ(run.program.main.VScroll1.Value, 15870 - 9000) << "half a window more would pass the foot";
    run.Put(kSecond, 2, "a chair");
    run.Search("chair");
    EXPECT_EQ(run.program.main.VScroll1.Value, 0);
}

TEST(Search, ThisPageOnlyLooksAtTheOneInFront) {
    SearchRun run;
    run.Put(kSecond, 1, "table");
    run.Put(PageId::frmP3, 2, "table");
    person::TurnTo(run.program, 2);
    run.Search("table", 1);
    EXPECT_EQ(run.program.main.Focus, Text(PageId::frmP3, 2));
}

TEST(Search, TheFinalPageIsPageSix) {
    SearchRun run;
    run.Put(PageId::frmP6, 4, "77.00");
    run.Put(kSecond, 1, "77.00");
    run.Search("77.00");
    ASSERT_NE(run.Results(), nullptr);
    EXPECT_EQ(run.Results()->lstResults[0].Items.back().substr(0, 19), "Page 6 - Text Area ");
}

TEST(Search, WithoutAHitSaysSoAndAnEmptyPhraseHasNone) {
    SearchRun run;
    run.surroundings.questions.ExpectBox({"Your search for zzz was not found.", Buttons::Ok, "Not found."},
                                         Answer::Ok);
    run.Search("zzz");
    run.surroundings.questions.ExpectBox({"Your search for  was not found.", Buttons::Ok, "Not found."},
                                         Answer::Ok);
    run.Search("");
    EXPECT_TRUE(run.program.search.RecentSearches.empty());
}

TEST(Search, PhrasesThatWereFoundAreOfferedAgain) {
    SearchRun run;
    run.Put(kSecond, 1, "table and chair");
    frmSearch* first = run.Open();
    EXPECT_EQ(first->cmbSearch.Text, "");
    EXPECT_EQ(run.program.search.SearchPhrase, "");
    EXPECT_TRUE(run.program.search.SearchAllPages);
    first->cmdCancel_Click(run.program);
    EXPECT_FALSE(run.program.search.SearchAllPages);
    run.Search("table");
    run.Search("Table");
    run.Search("table");
    run.Search("chair");
    frmSearch* again = run.Open();
    EXPECT_EQ(again->cmbSearch.Items, (std::vector<std::string>{"table", "Table", "chair"}));
    EXPECT_EQ(again->cmbSearch.Text, "chair");
    EXPECT_EQ(again->cmbSearch.SelLength, 5) << "selected, to be typed over";
    EXPECT_EQ(run.program.search.SearchPhrase, "chair");
    again->Form_Cancel(run.program);
    EXPECT_EQ(run.program.search.SearchPhrase, "");
}

TEST(Search, PhrasesAreKeptInNoFile) {
    SearchRun run;
    run.Put(kSecond, 1, "seldomword");
    run.Search("seldomword");
    ASSERT_EQ(run.program.search.RecentSearches.size(), 1U);
    run.Put(kSecond, 1, "");
    run.surroundings.questions.TakeAll(Answer::No);
    ASSERT_TRUE(person::MayClose(run.program));
    for (const auto& entry : std::filesystem::recursive_directory_iterator(run.folder.Path())) {
        if (entry.is_regular_file()) {
            const std::string name = std::filesystem::relative(entry.path(), run.folder.Path()).string();
            EXPECT_EQ(run.folder.Read(name).find("seldomword"), std::string::npos) << name;
        }
    }
    const SearchRun again;
    EXPECT_TRUE(again.program.search.RecentSearches.empty());
}

TEST(Search, IsNotPossibleOnTheClientsCopy) {
    SearchRun run;
    person::TurnTo(run.program, 6);
    run.surroundings.questions.ExpectBox({"Search is not possible on this Page.", Buttons::Ok, ""},
                                         Answer::Ok);
    EXPECT_EQ(run.Open(), nullptr);
    person::TurnTo(run.program, 5);
    EXPECT_NE(run.Open(), nullptr);
}

TEST(Search, ASecondOneWhileResultsStandIsConfirmedFirst) {
    SearchRun run;
    run.Put(kSecond, 1, "table");
    run.Put(kSecond, 2, "table");
    run.Search("table");
    const ScriptedQuestions::Box question{"This will clear the current search results. Continue.",
                                          Buttons::YesNo, "Starting New Search"};
    run.surroundings.questions.ExpectBox(question, Answer::No);
    EXPECT_EQ(run.Open(), nullptr);
    EXPECT_NE(run.Results(), nullptr);
    run.surroundings.questions.ExpectBox(question, Answer::Yes);
    EXPECT_NE(run.Open(), nullptr);
    EXPECT_EQ(run.Results(), nullptr);
    EXPECT_FALSE(run.program.search.ResultsOpen);
}

TEST(Search, TheToolButtonStaysPressedWhileTheDialogStands) {
    SearchRun run;
    frmSearch* dialog = run.Open();
    EXPECT_TRUE(run.program.main.ToolButtonPressed);
    dialog->cmdCancel_Click(run.program);
    EXPECT_FALSE(run.program.main.ToolButtonPressed);
}

TEST(Results, StayInStepAndLeadToTheirHit) {
    SearchRun run;
    run.Put(kSecond, 1, "a table");
    run.Put(PageId::frmP3, 2, "the table");
    run.Search("table");
    frmSR* results = run.Results();
    results->lstResults_Click(run.program, 1, 1);
    EXPECT_EQ(run.program.main.PageInFront, PageId::frmP1) << "the keys lead nowhere";
    for (const ListBox& list : results->lstResults) {
        EXPECT_EQ(list.ListIndex, 1);
    }
    results->lstResults_Click(run.program, 2, 1);
    EXPECT_EQ(run.program.main.Focus, Text(PageId::frmP3, 2));
    EXPECT_EQ(run.Area(PageId::frmP3, 2).SelStart, 4);
    results->lstResults_Click(run.program, 0, 0);
    EXPECT_EQ(run.program.main.Focus, Text(kSecond, 1));
    EXPECT_EQ(results->lstResults[2].ListIndex, 0);
    results->lstResults_Scroll(1);
    EXPECT_EQ(results->TopIndex, 1);
    results->lstResults_Scroll(99);
    EXPECT_EQ(results->TopIndex, 1);
}

TEST(Results, APhraseThatIsGoneGivesThePageAndAWord) {
    SearchRun run;
    run.Put(kSecond, 1, "a table");
    run.Put(PageId::frmP3, 2, "the table");
    run.Search("table");
    run.Put(PageId::frmP3, 2, "nothing");
    run.surroundings.questions.ExpectBox(
        {"Error encountered while highlighting search phrase.", Buttons::Ok, ""}, Answer::Ok);
    run.Results()->lstResults_Click(run.program, 0, 1);
    EXPECT_EQ(run.program.main.Focus, Text(PageId::frmP3, 2));
    EXPECT_EQ(run.Area(PageId::frmP3, 2).SelLength, 0);
}

TEST(Results, CloseWithTheProposalTheyBelongTo) {
    SearchRun run;
    run.Put(kSecond, 1, "a table");
    run.Put(kSecond, 2, "a table");
    run.Search("table");
    run.surroundings.questions.TakeAll(Answer::No);
    person::Choose(run.program, CommandId::mnuFileNew);
    EXPECT_EQ(run.Results(), nullptr);
    EXPECT_FALSE(run.program.search.ResultsOpen);
}

TEST(Results, AreChosenInAllListsTogetherAndNoneBeyondThem) {
    SearchRun run;
    run.Put(kSecond, 3, "a chair");
    run.Put(kSecond, 4, "two chairs");
    run.Put(kSecond, 5, "chairs again");
    run.Search("chair");
    frmSR* results = run.Results();
    ASSERT_NE(results, nullptr);
    EXPECT_TRUE(run.program.search.ResultsOpen);
    const auto expectRow = [&](int row) {
        for (const ListBox& list : results->lstResults) {
            EXPECT_EQ(list.Items.size(), 3U);
            EXPECT_EQ(list.ListIndex, row);
        }
    };
    expectRow(0);
    results->lstResults_Move(2);
    expectRow(2);
    results->lstResults_Move(3);
    expectRow(2);
    results->lstResults_Move(-7);
    expectRow(-1);
    results->lstResults_Scroll(1);
    EXPECT_EQ(results->TopIndex, 1);
    results->lstResults_Scroll(9);
    EXPECT_EQ(results->TopIndex, 2);
    results->lstResults_Scroll(-1);
    EXPECT_EQ(results->TopIndex, 0);
    results->Form_Cancel(run.program);
    modWindows::Sweep(run.program);
    EXPECT_FALSE(run.program.search.ResultsOpen);
}

TEST(Search, ThePhraseThatStandsInTheBoxIsSearchedForAsItStands) {
    SearchRun run;
    run.Put(kSecond, 1, "table and chair");
    run.Search("chair");
    run.Open()->cmdCancel_Click(run.program);
    frmSearch* again = run.Open();
    ASSERT_EQ(again->cmbSearch.Text, "chair");
    again->cmdOK_Click(run.program);
    EXPECT_EQ(run.program.main.Focus, Text(kSecond, 1));
    EXPECT_EQ(run.Area(kSecond, 1).SelStart, 10);
    EXPECT_EQ(run.Area(kSecond, 1).SelLength, 5);
}

TEST(Search, OneOfTheTwoRangesIsChosenAndTheBoxHoldsWhatWasTyped) {
    SearchRun run;
    frmSearch* dialog = run.Open();
    ASSERT_NE(dialog, nullptr);
    dialog->cmbSearch_Change(run.program, "chair");
    EXPECT_EQ(dialog->cmbSearch.Text, "chair");
    for (const int range : {1, 0}) {
        dialog->optSearch_Click(run.program, range);
        EXPECT_EQ(dialog->optSearch[0].Value, range == 0);
        EXPECT_EQ(dialog->optSearch[1].Value, range == 1);
        EXPECT_EQ(run.program.search.SearchAllPages, range == 0);
    }
}

TEST(Hit, StandsOnItsPageBeforeItsAreaTakesTheKeyboard) {
    SearchRun run;
    run.Put(kSecond, 13, "round table");
    bool pageStood = false;
    run.surroundings.events.OnYield = [&] {
        pageStood = pageStood ||
                    (run.program.main.PageInFront == kSecond && run.program.main.Focus != Text(kSecond, 13));
    };
    run.program.main.BringUp = false;
    run.Search("table");
    EXPECT_TRUE(pageStood) << "the person sees the page come up";
    EXPECT_EQ(run.program.main.Focus, Text(kSecond, 13));
    EXPECT_TRUE(run.program.main.BringUp) << "before the window of the results";
    EXPECT_EQ(run.program.editing.CursorPos, 6) << "where the phrase begins";
}

TEST(Hit, ScrollsOnlyWhenItsAreaBeginsBelowTheWindow) {
    SearchRun run;
    const float top = run.Area(kSecond, 20).Top;
    for (const float beyond : {0.0F, 1.0F}) {
        run.program.main.ClientHeight = top + run.program.pages[kSecond].Top - beyond;
        int keys = 0;
        run.program.hooks.PageKey = [&](Program&, int) { ++keys; };
        run.Put(kSecond, 20, "table");
        run.Search("table");
        EXPECT_EQ(keys, beyond > 0 ? 1 : 0);
    }
}

} // namespace
