#include "addresses/address_run.h"

#include <gtest/gtest.h>

namespace {

using address_menu::Id;

TEST(AddressSearch, AnEmptyBookIsToldWithoutAskingForAText) {
    AddressRun run;
    run.Open();
    run.Questions().ExpectBox({"There's no records to search.", Buttons::Ok, ""}, Answer::Ok);
    run.Run(Id::mnuEditFind);
    EXPECT_TRUE(run.Questions().Prompts.empty());
}

TEST(AddressSearch, GoesFromRecordToRecordAndSelectsTheFirstFieldThatHoldsTheText) {
    AddressRun run;
    frmAddress& window =
        run.OpenWith(AddressRun::Record({"Zoe Young", "1 Elm St"}) + AddressRun::Book({"Ann Ash"}) +
                     AddressRun::Record({"Elmer Fir", "2 Elm St, Elm Hill"}));
    EXPECT_FALSE(window.IsAvailable(run.program, Id::mnuEditFindAgain));
    run.Questions().ExpectInput("Search", "  elm ");
    run.Run(Id::mnuEditFind);
    EXPECT_EQ(run.Questions().Prompts.back(), "Search for:");
    EXPECT_EQ(run.Text(0), "Zoe Young");
    EXPECT_EQ(window.FocusWanted, 1);
    EXPECT_EQ(window.txt[1].SelStart, 2);
    EXPECT_EQ(window.txt[1].SelLength, 3);
    EXPECT_EQ(window.lstNames.ListIndex, 2);
    run.Run(Id::mnuEditFindAgain);
    EXPECT_EQ(run.Text(0), "Elmer Fir");
    EXPECT_EQ(window.FocusWanted, 0);
    EXPECT_EQ(window.txt[0].SelStart, 0);
    EXPECT_EQ(window.txt[0].SelLength, 3);
    EXPECT_EQ(window.txt[1].SelLength, 0);
    run.Questions().ExpectBox({"No more occurrances.", Buttons::Ok, ""}, Answer::Ok);
    run.Run(Id::mnuEditFindAgain);
    EXPECT_FALSE(window.IsAvailable(run.program, Id::mnuEditFindAgain));
    EXPECT_EQ(run.Text(0), "Elmer Fir");
}

TEST(AddressSearch, ABlankAnswerCancels) {
    AddressRun run;
    run.OpenWith(AddressRun::Book({"Ann Ash"}));
    run.Questions().ExpectInput("Search", "   ");
    run.Questions().ExpectBox({"Search cancelled.", Buttons::Ok, ""}, Answer::Ok);
    run.Run(Id::mnuEditFind);
    EXPECT_FALSE(run.Window().IsAvailable(run.program, Id::mnuEditFindAgain));
    EXPECT_EQ(run.Text(0), "") << "no record is gone to";
}

TEST(AddressSearch, ABlankAnswerEndsTheOneThatWasUnderWay) {
    AddressRun run;
    frmAddress& window = run.OpenWith(AddressRun::Book({"Ann Ash", "Ben Ash"}));
    run.Questions().ExpectInput("Search", "ash");
    run.Run(Id::mnuEditFind);
    ASSERT_TRUE(window.IsAvailable(run.program, Id::mnuEditFindAgain));
    run.Questions().ExpectInput("Search", "");
    run.Questions().Expect("Search cancelled.");
    run.Run(Id::mnuEditFind);
    EXPECT_FALSE(window.IsAvailable(run.program, Id::mnuEditFindAgain));
}

TEST(AddressSearch, SelectsOneTextAlsoWhereTwoRecordsShareAField) {
    AddressRun run;
    frmAddress& window = run.OpenWith(AddressRun::Record({"Zoe Young", "1 Elm St"}) +
                                      AddressRun::Record({"Elmer Fir", "1 Elm St"}));
    run.Questions().ExpectInput("Search", "elm");
    run.Run(Id::mnuEditFind);
    EXPECT_EQ(window.txt[1].SelLength, 3);
    run.Run(Id::mnuEditFindAgain);
    EXPECT_EQ(run.Text(0), "Elmer Fir");
    EXPECT_EQ(window.txt[0].SelLength, 3);
    EXPECT_EQ(window.txt[1].SelLength, 0);
}

TEST(AddressSearch, WhatItSelectedIsSelectedNoLongerInAnotherRecord) {
    AddressRun run;
    frmAddress& window =
        run.OpenWith(AddressRun::Record({"Ann Ash", "1 Elm St"}) + AddressRun::Book({"Ben Birch"}));
    run.Questions().ExpectInput("Search", "elm");
    run.Run(Id::mnuEditFind);
    EXPECT_EQ(window.txt[1].SelStart, 2);
    window.lstNames_Click(run.program, 1);
    EXPECT_EQ(run.Text(0), "Ben Birch");
    EXPECT_EQ(window.txt[1].SelStart, 0);
    EXPECT_EQ(window.txt[1].SelLength, 0);
}

TEST(AddressSearch, FindsTheLastLettersOfARecordAndTheFirstOfTheNext) {
    AddressRun run;
    const std::string notes = std::string(196, 'n') + "left";
    run.OpenWith(AddressRun::Record({"Ann Ash", "", "", "", "", "", "", "", "", "", notes}) +
                 AddressRun::Book({"ftr"}));
    run.Questions().ExpectInput("Search", "nleft");
    run.Run(Id::mnuEditFind);
    EXPECT_EQ(run.Text(0), "Ann Ash");
    // Two f stand across the join of the records, and two more begin one letter further on.
    run.WriteBook(AddressRun::kPersonal, AddressRun::Record({"Ann Ash", "", "", "", "", "", "", "", "", "",
                                                             std::string(199, 'n') + "f"}) +
                                             AddressRun::Book({"ffion"}));
    run.Questions().ExpectInput("Search", "ff");
    run.Run(Id::mnuEditFind);
    EXPECT_EQ(run.Text(0), "ffion");
}

TEST(AddressSearch, DoesNotLookBehindTheLastWholeRecord) {
    AddressRun run;
    run.OpenWith(AddressRun::Book({"Ann Ash"}) + "Ben Birch" + std::string(200, ' '));
    run.Questions().ExpectInput("Search", "birch");
    run.Questions().Expect("No more occurrances.");
    run.Run(Id::mnuEditFind);
    EXPECT_EQ(run.Text(0), "");
}

TEST(AddressSearch, ATextAcrossTwoFieldsIsAHitThatNoFieldSelects) {
    AddressRun run;
    const std::string city = std::string(35, 'c') + "12345";
    frmAddress& window = run.OpenWith(AddressRun::Record({"Ann Ash", "", "", city, "678"}));
    run.Questions().ExpectInput("Search", "45678");
    run.Run(Id::mnuEditFind);
    EXPECT_EQ(run.Text(0), "Ann Ash");
    for (const AddressField& field : window.txt) {
        EXPECT_EQ(field.SelLength, 0);
    }
}

TEST(AddressSearch, ATextAcrossTwoRecordsIsNone) {
    AddressRun run;
    const std::string notes = std::string(196, 'n') + "left";
    run.OpenWith(AddressRun::Record({"Ann", "", "", "", "", "", "", "", "", "", notes}) +
                 AddressRun::Book({"right leftright"}));
    run.Questions().ExpectInput("Search", "leftright");
    run.Run(Id::mnuEditFind);
    EXPECT_EQ(run.Text(0), "right leftright");
}

TEST(AddressSearch, GoesOnFromWhereItStoodAfterASaveOnTheWay) {
    AddressRun run;
    frmAddress& window = run.OpenWith(AddressRun::Book({"Ann Ash", "Ben Ash", "Cal Ash"}));
    run.Questions().ExpectInput("Search", "ash");
    run.Run(Id::mnuEditFind);
    run.Type(1, "typed");
    run.Questions().Expect("The current Record has been changed.", Answer::Yes);
    run.Run(Id::mnuEditFindAgain);
    EXPECT_EQ(run.Text(0), "Ben Ash");
    EXPECT_TRUE(window.IsAvailable(run.program, Id::mnuEditFindAgain));
    EXPECT_EQ(run.ReadBook(),
              AddressRun::Record({"Ann Ash", "typed"}) + AddressRun::Book({"Ben Ash", "Cal Ash"}));
}

TEST(AddressSearch, ReadsTheBookAgainWhenAnotherProgramHasWrittenIt) {
    AddressRun run;
    run.OpenWith(AddressRun::Book({"Ann Ash", "Ben Birch"}));
    run.Questions().ExpectInput("Search", "ash");
    run.Run(Id::mnuEditFind);
    run.WriteBook(AddressRun::kPersonal, AddressRun::Book({"Ann Ash", "Ben Birch", "Cal Ash"}));
    run.Run(Id::mnuEditFindAgain);
    EXPECT_EQ(run.Text(0), "Cal Ash");
}

TEST(AddressSearch, WhatItSelectedIsGoneWithADeletedRecordAlsoWhereTheNextHasTheSameText) {
    AddressRun run;
    frmAddress& window = run.OpenWith(AddressRun::Record({"Ann Ash", "1 Elm St"}) +
                                      AddressRun::Record({"Ben Birch", "1 Elm St"}));
    run.Questions().ExpectInput("Search", "elm");
    run.Run(Id::mnuEditFind);
    ASSERT_EQ(window.txt[1].SelLength, 3);
    run.Questions().Expect("Delete this record?\r\nAnn Ash", Answer::Yes);
    run.Run(Id::mnuFileDelete);
    EXPECT_EQ(run.Text(0), "Ben Birch");
    EXPECT_EQ(run.Text(1), "1 Elm St");
    EXPECT_EQ(window.txt[1].SelLength, 0) << "the next key would replace a part of it";
}

} // namespace
