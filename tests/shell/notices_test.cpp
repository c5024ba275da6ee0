#include "shell/notice_strip.h"

#include "output/print.h"
#include "program/keys.h"
#include "program/saved_notice.h"
#include "proposal/proposal_save.h"
#include "settings/printer_offsets.h"
#include "settings/tax_rate.h"
#include "support/person.h"
#include "support/running_program.h"
#include "support/typist.h"
#include "terms/list_files.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace {

TEST(Notice, StaysUntilItHasBeenOnShowForFiveSecondsOfActivity) {
    RunningProgram run;
    NoticeStrip strip;
    run.program.main.Notice = "One character was not taken.";
    strip.Follow(run.program, 1000);
    EXPECT_EQ(strip.Text(), "One character was not taken.");
    run.program.main.Notice.clear(); // the next key
    for (std::int64_t second = 2; second <= 5; ++second) {
        strip.Activity(second * 1000);
        strip.Follow(run.program, second * 1000);
        EXPECT_NE(strip.Text(), "") << second;
    }
    strip.Activity(5999);
    EXPECT_NE(strip.Text(), "");
    strip.Activity(6000);
    EXPECT_EQ(strip.Text(), "");
}

TEST(Notice, TellsOfAKeyThatAnAmountDoesNotTake) {
    RunningProgram run;
    Typist typist(run.program);
    const std::string takes = "\" was not taken: an amount takes digits, comma, point and minus.";
    typist.Click(PageId::frmP1, 20);
    const std::string brackets =
        "Brackets were not taken and make no minus: type -100 for a negative amount.";
    typist.Type("(");
    EXPECT_EQ(run.program.main.Notice, brackets);
    typist.Type("30)");
    EXPECT_EQ(run.TextOf(PageId::frmP1, 20), "30");
    EXPECT_EQ(run.program.main.Notice, brackets);
    typist.Click(PageId::frmP1, 21);
    typist.Type("1e");
    EXPECT_EQ(run.program.main.Notice, "\"e" + takes);
    typist.Type("3");
    EXPECT_EQ(run.program.main.Notice, "") << "the strip keeps it on show";
    typist.Click(PageId::frmP6, 4);
    typist.Type("(");
    EXPECT_EQ(run.program.main.Notice, brackets);
    typist.Click(PageId::frmP1, 2);
    typist.Type("(e");
    EXPECT_EQ(run.program.main.Notice, "") << "a name takes every character";
}

TEST(Notice, TellsOfAKeyThatQuantityAndUnitPriceDoNotTake) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(PageId::frmP2, 0);
    typist.Press(keys::kF8);
    typist.Type("2-");
    EXPECT_EQ(run.program.pages[PageId::frmP2].txtQty[0].Text, "2");
    EXPECT_EQ(run.program.main.Notice,
              "\"-\" was not taken: quantity and unit price take digits, comma and point.");
}

TEST(Notice, TellsOfAPasteThatIsNoNumber) {
    RunningProgram run;
    Typist typist(run.program);
    std::string& clipboard = run.surroundings.clipboard.Text;
    const std::vector<FieldRef> figures{{PageId::frmP1, FieldKind::txt, 20},
                                        {PageId::frmP6, FieldKind::txt, 4}};
    for (const FieldRef& figure : figures) {
        typist.Click(figure);
        typist.PasteByKey("12,50\n", clipboard);
        EXPECT_EQ(run.program.main.Notice, "\"12,50\" was not taken: it is no number.");
        typist.PasteByKey("12.50", clipboard);
        EXPECT_EQ(run.program.main.Notice, "");
        typist.PasteByMouse(figure, 0, "ten");
        EXPECT_EQ(run.program.main.Notice, "\"ten\" was not taken: it is no number.");
        typist.PasteByKey("", clipboard);
        EXPECT_EQ(run.program.main.Notice, "") << "there was nothing to take";
        typist.PasteByKey("Chairs, tables and a tent for two hundred guests\nLamps", clipboard);
        EXPECT_EQ(run.program.main.Notice,
                  "\"Chairs, tables and a tent for ...\" was not taken: it is no number.");
    }
    typist.Click(PageId::frmP2, 0);
    typist.Press(keys::kF8);
    typist.PasteByKey("20,50", clipboard);
    EXPECT_EQ(run.program.main.Notice, "\"20,50\" was not taken: it is no number.");
}

TEST(Notice, WaitsForAPersonWhoIsAway) {
    RunningProgram run;
    NoticeStrip strip;
    run.program.main.Notice = "No backup was written.";
    strip.Follow(run.program, 0);
    strip.Activity(3'600'000); // an hour at lunch counts as a second
    EXPECT_EQ(strip.Text(), "No backup was written.");
    for (int key = 1; key <= 3; ++key) {
        strip.Activity(3'600'000 + key * 1000);
        EXPECT_NE(strip.Text(), "");
    }
    strip.Activity(3'604'000);
    EXPECT_EQ(strip.Text(), "");
}

TEST(Notice, AnotherOneTakesItsPlaceAndGivesItBackForTheRestOfItsTime) {
    RunningProgram run;
    NoticeStrip strip;
    run.program.main.Notice = "first";
    strip.Follow(run.program, 0);
    strip.Activity(900);
    strip.Activity(1800);
    run.program.main.Notice = "second";
    strip.Follow(run.program, 4000);
    EXPECT_EQ(strip.Text(), "second");
    for (int at = 5000; at < 9000; at += 1000) {
        strip.Activity(at);
    }
    EXPECT_EQ(strip.Text(), "second");
    strip.Activity(9000);
    EXPECT_EQ(strip.Text(), "first") << "which was on show for 1.8 seconds only";
    for (int at = 10'000; at <= 12'000; at += 1000) {
        strip.Activity(at);
        EXPECT_EQ(strip.Text(), "first");
    }
    strip.Activity(12'199);
    EXPECT_EQ(strip.Text(), "first");
    strip.Activity(12'200);
    EXPECT_EQ(strip.Text(), "");
}

/// What a person reads one after the other when all this is told in one moment.
std::vector<std::string> ReadWhenTold(const std::vector<std::string>& notices) {
    RunningProgram run;
    NoticeStrip strip;
    for (const std::string& told : notices) {
        BeginTelling(run.program);
        run.program.main.Notice = told;
        strip.Follow(run.program, 0);
    }
    std::vector<std::string> read;
    for (int at = 0; !strip.Text().empty();) {
        read.push_back(strip.Text());
        for (int key = 1; key <= 5; ++key) {
            at += 1000;
            strip.Activity(at);
        }
    }
    return read;
}

TEST(Notice, TheSameWordsStandThereOnce) {
    EXPECT_EQ(ReadWhenTold({"first", "second", "first", "third", "first"}),
              (std::vector<std::string>{"first", "third", "second"}))
        << "the latest first";
}

TEST(Notice, ARefusalOrASaveMakesTheOneBeforeOld) {
    const std::string noBackup = "No backup was written.";
    const std::string refusal = "\"Z\" was not taken: quantity and unit price take digits, comma and point.";
    const std::string lastRefusal =
        "\"h\" was not taken: quantity and unit price take digits, comma and point.";
    const std::string save = "Proposal saved: /home/ann/Jane Roe.hef";
    const std::string lastSave = "Deposit list saved: /home/ann/Jane Roe.dep";
    EXPECT_EQ(ReadWhenTold({noBackup, save, refusal, lastRefusal, lastSave}),
              (std::vector<std::string>{lastSave, lastRefusal, noBackup}));
}

TEST(Notice, TheSameWordsAfterAKeyAreToldAgain) {
    RunningProgram run;
    NoticeStrip strip;
    for (const int start : {0, 100'000}) {
        run.program.main.Notice = "again";
        strip.Follow(run.program, start);
        EXPECT_EQ(strip.Text(), "again");
        run.program.main.Notice.clear();
        strip.Follow(run.program, start);
        for (int key = 1; key <= 5; ++key) {
            strip.Activity(start + key * 1000);
        }
        EXPECT_EQ(strip.Text(), "");
    }
}

TEST(SavedNotice, TellsWhatWasSavedAndWhere) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(PageId::frmP1, 2);
    typist.Type("Ann");
    run.surroundings.questions.Expect("File was saved as Ann.hef");
    person::Choose(run.program, CommandId::mnuFileSaveEvent);
    EXPECT_EQ(run.program.main.Notice, "Proposal saved: " + run.folder / "Proposals/Ann.hef");
    run.surroundings.questions.Expect("New Sales Tax Rate is 7.00 %");
    modTax::SaveTaxRate(run.program, "7.00");
    EXPECT_EQ(run.program.main.Notice, "Tax rate saved: " + run.folder / "Proposals/SalesTax.txt");
    modOffsets::SavePrinterOffsets(run.program);
    EXPECT_EQ(run.program.main.Notice,
              "Printer offsets saved: " + run.folder / "Proposals/PrinterOffsets.txt");
    person::Choose(run.program, CommandId::mnuOptSetDefaultFonts);
    EXPECT_EQ(run.program.main.Notice, "Settings saved: " + run.folder / "UserPreferences.txt");
    run.surroundings.questions.ExpectInput("Starting New Frequent Terms File", "Barn");
    modTerms::CreateNewFUTFile(run.program);
    EXPECT_EQ(run.program.main.Notice, "Terms list saved: " + run.folder / "Proposals/Barn.fut");
    run.surroundings.questions.Expect("File was saved as ");
    person::Choose(run.program, CommandId::mnuFileSaveAsText);
    EXPECT_EQ(run.program.main.Notice, "Text saved: " + run.folder / "Proposals/Ann.txt");
}

TEST(SavedNotice, OfTheSameSaveIsGivenAgain) {
    RunningProgram run;
    NoticeStrip strip;
    const std::string saved = "Settings saved: " + run.folder / "UserPreferences.txt";
    std::int64_t now = 0;
    for (int time = 0; time < 2; ++time) {
        person::Choose(run.program, CommandId::mnuOptSetDefaultFonts); // by mouse, no key between
        strip.Follow(run.program, now);
        EXPECT_EQ(strip.Text(), saved) << time;
        for (int second = 1; second <= 5; ++second) {
            now += 1000;
            strip.Activity(now);
            strip.Follow(run.program, now);
        }
        EXPECT_EQ(strip.Text(), "") << time;
    }
}

TEST(Notice, OfTheSameKeyIsGivenAgain) {
    RunningProgram run;
    Typist typist(run.program);
    NoticeStrip strip;
    typist.Click(PageId::frmP1, 20);
    for (const std::int64_t start : {0, 100'000}) {
        typist.Type("e");
        strip.Follow(run.program, start);
        EXPECT_NE(strip.Text(), "") << start;
        for (std::int64_t second = 1; second <= 5; ++second) {
            strip.Activity(start + second * 1000); // the mouse
        }
        EXPECT_EQ(strip.Text(), "");
    }
}

TEST(SavedNotice, IsNotGivenForASaveThatFailed) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(PageId::frmP1, 2);
    typist.Type("Ann");
    run.folder.MakeFolder("Proposals/Ann.hef");
    run.surroundings.questions.Expect("An error occurred in SaveEventFile.");
    person::Choose(run.program, CommandId::mnuFileSaveEvent);
    EXPECT_EQ(run.program.main.Notice.find("saved"), std::string::npos);
}

TEST(Notice, TellsNothingOfAKeyWhereNoKeyIsTaken) {
    RunningProgram run;
    Typist typist(run.program);
    const FieldRef amount{PageId::frmP2, FieldKind::txt, 36};
    typist.Click(amount);
    typist.Press(keys::kDown, keys::kShiftState);
    ASSERT_TRUE(run.program.editing.BlockMode);
    ASSERT_EQ(run.program.main.Focus, amount);
    typist.Type("x");
    EXPECT_EQ(run.program.main.Notice, "") << "the amounts are selected";
    const FieldRef total{PageId::frmP6, FieldKind::txt, 0};
    typist.Click(total);
    ASSERT_TRUE(run.Area(PageId::frmP6, 0).Locked);
    typist.Type("x");
    EXPECT_EQ(run.program.main.Notice, "") << "the total is worked out";
}

TEST(Notice, OfATextFromOutsideTellsWhatWasNotTakenAndNothingOfAWholeOne) {
    RunningProgram run;
    const FieldRef amount{PageId::frmP1, FieldKind::txt, 20};
    const FieldRef name{PageId::frmP1, FieldKind::txt, 2};
    const auto told = [&](const FieldRef& field, std::string_view text, int refused) {
        run.program.main.Notice.clear();
        person::Insert(run.program, field, text, refused, person::By::Mouse);
        return run.program.main.Notice;
    };
    EXPECT_EQ(told(name, "Ann", 0), "");
    EXPECT_EQ(told(amount, "12.50", 0), "");
    EXPECT_EQ(told(amount, "  ", 0), "") << "blanks say nothing";
    EXPECT_EQ(told(amount, "ten", 0), "\"ten\" was not taken: it is no number.");
    EXPECT_EQ(told(amount, "ten", 2), "2 characters were not taken: they cannot be kept in a proposal.");
}

TEST(Notice, ItsReadingTimeBeginsWhenItIsShown) {
    RunningProgram run;
    NoticeStrip strip;
    run.program.main.Notice = "One character was not taken.";
    strip.Follow(run.program, 100'000);
    for (const std::int64_t now : {100'900, 101'800, 102'700, 103'600, 104'500, 104'999}) {
        strip.Activity(now);
        EXPECT_NE(strip.Text(), "") << now;
    }
    strip.Activity(105'000);
    EXPECT_EQ(strip.Text(), "");
}

} // namespace
