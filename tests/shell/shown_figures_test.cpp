#include "money/shown_figures.h"

#include "output/preview.h"
#include "proposal/backup.h"
#include "shell/command_run.h"
#include "support/running_program.h"
#include "support/typist.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

constexpr char kMessage[] = "The amounts are too large to be added to the last digit.\r\n"
                            "These figures are not what the rows add up to:\r\n"
                            "Subtotal = 300,000.30, the rows give 300,000.33\r\n"
                            "Taxable amount = 300,000.30, the rows give 300,000.33\r\n"
                            "Total = 324,750.34, the rows give 324,750.36\r\n"
                            "Balance = 324,750.34, the rows give 324,750.36";

/// Three times 100,000.11: a single holds 300,000.33 as 300,000.3125 at best. Tax at 8.25 %: 24,750.03.
struct LargeAmounts : RunningProgram {
    LargeAmounts() {
        Typist typist(program);
        typist.Click(PageId::frmP1, 2);
        typist.Type("Ann");
        for (const int row : {20, 21, 22}) {
            typist.Click(PageId::frmP1, row);
            typist.Type("100000.11");
        }
    }
    void Asked(Answer answer) { surroundings.questions.ExpectBox({kMessage, Buttons::YesNo, ""}, answer); }
    [[nodiscard]] std::size_t Papers() const { return surroundings.printers.Paper.Documents.size(); }
};

TEST(ShownFigures, ThatAreNotWhatTheRowsGiveAreToldOnceBeforePrinting) {
    LargeAmounts run;
    run.Asked(Answer::No);
    commands::Run(run.program, CommandId::mnuFilePrintAll);
    run.surroundings.questions.Done();
    EXPECT_EQ(run.Papers(), 0U);
    EXPECT_TRUE(run.surroundings.printers.Commands.empty()) << "no name is asked for either";
    const Manner& manner = run.surroundings.questions.Manners.back();
    EXPECT_EQ(manner.Default, Answer::No);
    EXPECT_EQ(manner.Words, (std::vector<std::string>{"Go On", "Cancel"}));

    run.Asked(Answer::Yes);
    commands::Run(run.program, CommandId::mnuFilePrintAll);
    EXPECT_EQ(run.Papers(), 3U);
    run.Asked(Answer::Yes);
    commands::Run(run.program, CommandId::mnuFilePrintPage6);
    EXPECT_EQ(run.Papers(), 4U);
}

TEST(ShownFigures, AreNotAskedAboutForAPageThatHasNone) {
    LargeAmounts run;
    commands::Run(run.program, CommandId::mnuFilePrintPage1);
    EXPECT_EQ(run.Papers(), 1U);
}

TEST(ShownFigures, ThatStrayAreToldBeforeASave) {
    LargeAmounts run;
    run.Asked(Answer::No);
    commands::Run(run.program, CommandId::mnuFileSaveEvent);
    EXPECT_FALSE(run.folder.Has("Proposals/Ann.hef"));
    EXPECT_FALSE(run.program.document.FileExists);
    run.Asked(Answer::Yes);
    run.surroundings.questions.Expect("File was saved as Ann.hef");
    commands::Run(run.program, CommandId::mnuFileSaveEvent);
    EXPECT_EQ(run.folder.Read("Proposals/Ann.hef").substr(20410, 10), "300,000.30");
}

TEST(ShownFigures, ThatStrayAreToldBeforeAPreviewAnExportAndACopy) {
    LargeAmounts run;
    run.Asked(Answer::No);
    commands::Run(run.program, CommandId::mnuFilePrintPreview);
    EXPECT_FALSE(modPreview::PreviewStands(run.program));
    run.Asked(Answer::No);
    commands::Run(run.program, CommandId::mnuFileSaveAsText);
    EXPECT_FALSE(run.folder.Has("Proposals/Ann.txt"));
    run.Asked(Answer::No);
    commands::Run(run.program, CommandId::mnuFileCopyProposal);
    EXPECT_EQ(run.surroundings.clipboard.Text, "");
    run.Asked(Answer::Yes);
    run.surroundings.questions.Expect("Proposal copied to memory.");
    commands::Run(run.program, CommandId::mnuFileCopyProposal);
    EXPECT_NE(run.surroundings.clipboard.Text, "");
}

TEST(ShownFigures, AreNoMatterForTheAutomaticBackup) {
    LargeAmounts run;
    modFile::BackupThisFile(run.program);
    EXPECT_TRUE(run.folder.Has("Proposals/Backup/Ann.hef"));
}

TEST(ShownFigures, ThatAreHiddenDoNotStray) {
    LargeAmounts run;
    commands::Run(run.program, CommandId::mnuOptHideTotals);
    commands::Run(run.program, CommandId::mnuFilePrintAll);
    EXPECT_EQ(run.Papers(), 3U);
}

TEST(ShownFigures, OfAnyUsualSizeDoNotStray) {
    RunningProgram run;
    Typist typist(run.program);
    // A tax just at the middle, one that singles push over it, brackets, a text, an exempt row.
    for (const auto& [row, amount] : std::vector<std::pair<int, std::string>>{
             {20, "100.10"}, {21, "12345.67"}, {22, "-0.50"}, {23, "7"}, {24, "9999.99"}}) {
        typist.Click(PageId::frmP1, row);
        typist.Type(amount);
    }
    for (const char* rate : {"7.00", "8.25", "8.875", "7.7", "0"}) {
        run.program.totals.TaxRate = std::stof(rate);
        commands::Run(run.program, CommandId::mnuFilePrintAll);
        EXPECT_TRUE(modTotals::StrayedFigures(run.program).empty()) << rate;
    }
}

TEST(ShownFigures, AreToldToLeaveOutWhatIsNoNumber) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(PageId::frmP1, 20);
    typist.Type("100");
    typist.Click(PageId::frmP1, 21);
    typist.Type("12,50");
    typist.Click(PageId::frmP1, 22);
    typist.Type("-"); // speaks for itself
    const std::string message = "These are no numbers and count as nothing:\r\nPage 1, line 2: 12,50";
    run.surroundings.questions.ExpectBox({message, Buttons::YesNo, ""}, Answer::No);
    commands::Run(run.program, CommandId::mnuFilePrintAll);
    EXPECT_TRUE(run.surroundings.printers.Paper.Documents.empty());
    run.surroundings.questions.ExpectBox({message, Buttons::YesNo, ""}, Answer::Yes);
    commands::Run(run.program, CommandId::mnuFilePrintAll);
    EXPECT_FALSE(run.surroundings.printers.Paper.Documents.empty());
    EXPECT_EQ(run.TextOf(PageId::frmP6, 0), "100.00");
}

TEST(ShownFigures, AreToldToLeaveOutADepositThatIsNoNumber) {
    for (const char* deposit : {"12,50", "50-60"}) {
        RunningProgram run;
        Typist typist(run.program);
        typist.Click(PageId::frmP1, 2);
        typist.Type("Ann");
        typist.Click(PageId::frmP1, 20);
        typist.Type("100");
        typist.Click(PageId::frmP6, 4);
        typist.Type(deposit);
        const std::string message =
            std::string("These are no numbers and count as nothing:\r\nPage 6, Deposit Received: ") + deposit;
        for (const CommandId command :
             {CommandId::mnuFilePrintPage6, CommandId::mnuFilePrintPreview, CommandId::mnuFileSaveAsText,
              CommandId::mnuFileCopyProposal, CommandId::mnuFileSaveEvent}) {
            run.surroundings.questions.ExpectBox({message, Buttons::YesNo, ""}, Answer::No);
            commands::Run(run.program, command);
        }
        EXPECT_TRUE(run.surroundings.printers.Paper.Documents.empty());
        EXPECT_FALSE(run.folder.Has("Proposals/Ann.hef"));
        run.surroundings.questions.ExpectBox({message, Buttons::YesNo, ""}, Answer::Yes);
        commands::Run(run.program, CommandId::mnuFilePrintPage6);
        EXPECT_EQ(run.surroundings.printers.Paper.Documents.size(), 1U);
        EXPECT_EQ(run.TextOf(PageId::frmP6, 4), deposit);
    }
}

TEST(ShownFigures, NameADepositBehindTheLines) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(PageId::frmP6, 4);
    typist.Type("12,50");
    typist.Click(PageId::frmP1, 20);
    typist.Type("1-2");
    EXPECT_EQ(modTotals::UncountedTexts(run.program),
              (std::vector<std::string>{"Page 1, line 1: 1-2", "Page 6, Deposit Received: 12,50"}));
    typist.Click(PageId::frmP6, 4);
    typist.PutCursor(0, 5);
    typist.Type("-");
    EXPECT_EQ(modTotals::UncountedTexts(run.program), (std::vector<std::string>{"Page 1, line 1: 1-2"}))
        << "a dash tells it itself";
}

TEST(ShownFigures, AgreeWithOneAnotherOnOneSheet) {
    RunningProgram run;
    run.program.totals.TaxRate = 7;
    Typist typist(run.program);
    // Tax 864.195: in singles 12,345.64 and it make 13,209.834.
    typist.Click(PageId::frmP1, 20);
    typist.Type("12345.64");
    typist.Click(PageId::frmP6, 4);
    typist.Type("1000.55");
    commands::Run(run.program, CommandId::mnuFilePrintPage6);
    EXPECT_EQ(run.TextOf(PageId::frmP6, 2), "864.19");
    EXPECT_EQ(run.TextOf(PageId::frmP6, 3), "13,209.83");
    EXPECT_EQ(run.TextOf(PageId::frmP6, 5), "12,209.28");
}

TEST(ShownFigures, OfADepositAreTheDigitsThatWereTyped) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(PageId::frmP1, 20);
    typist.Type("12345.64");
    typist.Click(PageId::frmP6, 4);
    typist.Type("1234567.89");
    typist.Click(PageId::frmP1, 20);
    EXPECT_EQ(run.TextOf(PageId::frmP6, 4), "1,234,567.89") << "a single would make .90 of it";
}

TEST(ShownFigures, OfRowsTooLargeToAddAreTold) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(PageId::frmP1, 20);
    typist.Type("99999999999999");
    run.surroundings.questions.Expect("the rows give more than can be added", Answer::No);
    commands::Run(run.program, CommandId::mnuFilePrintAll);
    EXPECT_EQ(run.surroundings.printers.Paper.Documents.size(), 0U);
}

TEST(ShownFigures, ThatStrayAreToldBelowWhatIsNoNumberWithALineBetween) {
    LargeAmounts run;
    Typist typist(run.program);
    typist.Click(PageId::frmP1, 23);
    typist.Type("12,50");
    run.surroundings.questions.ExpectBox(
        {"These are no numbers and count as nothing:\r\nPage 1, line 4: 12,50\r\n\r\n" +
             std::string(kMessage),
         Buttons::YesNo, ""},
        Answer::No);
    commands::Run(run.program, CommandId::mnuFilePrintAll);
    EXPECT_EQ(run.Papers(), 0U);
}

} // namespace
