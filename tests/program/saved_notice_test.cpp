#include "program/saved_notice.h"

#include "support/settled.h"

#include <gtest/gtest.h>

namespace {

TEST(SavedNotice, NamesWhatWasSavedAndWhereUntilSomethingElseIsTold) {
    Settled run;
    const MainWindow& main = run.program.main;
    TellSaved(run.program, "Settings", "/srv/UserPreferences.txt");
    EXPECT_EQ(main.Notice, "Settings saved: /srv/UserPreferences.txt");
    BeginTelling(run.program);
    EXPECT_EQ(main.Notice, "");
}

TEST(SavedNotice, ASecondSaveIsTellingAnewThoughItsWordsAreTheSame) {
    Settled run;
    TellSaved(run.program, "Settings", "/srv/UserPreferences.txt");
    const int first = run.program.main.NoticeRound;
    TellSaved(run.program, "Settings", "/srv/UserPreferences.txt");
    EXPECT_NE(run.program.main.NoticeRound, first);
}

} // namespace
