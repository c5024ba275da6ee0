#include "output/print.h"

#include "output/frm_dialog.h"
#include "program/keys.h"
#include "program/program.h"
#include "program/windows.h"
#include "support/person.h"
#include "support/running_program.h"
#include "support/typist.h"
#include "terms/term_list.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

namespace {

using Names = std::vector<std::pair<std::string, int>>;

/// A proposal whose highest line stands on a page.
struct Proposal : RunningProgram {
    explicit Proposal(int pagesInUse) {
        program.document.CurrentTextBuf.Each[static_cast<std::size_t>(pagesInUse - 2)][0] = "text";
        surroundings.events.OnYield = [this] {
            if (Window* window = modWindows::Find(program, "frmDialog")) {
                Messages.push_back(dynamic_cast<frmDialog&>(*window).lblMessage.Caption);
                Titles.push_back(window->Caption);
            }
        };
    }
    std::vector<std::string> Messages;
    std::vector<std::string> Titles;
};

Names NamesOf(std::initializer_list<const char*> pages) {
    const std::vector<std::string> order{"frmP1", "frmP2", "frmP3", "frmP4", "frmP5", "frmP6", "frmP6_1"};
    Names names;
    for (const char* page : pages) {
        const auto at = std::find(order.begin(), order.end(), page) - order.begin();
        names.emplace_back(page, static_cast<int>(at));
    }
    return names;
}

TEST(PrintAll, GoesFromTheLastPageToTheFirst) {
    const std::map<int, Names> orders{
        {2, NamesOf({"frmP6_1", "frmP6", "frmP1"})},
        {3, NamesOf({"frmP6_1", "frmP6", "frmP2", "frmP1"})},
        {4, NamesOf({"frmP6_1", "frmP6", "frmP3", "frmP2", "frmP1"})},
        {5, NamesOf({"frmP6_1", "frmP6", "frmP4", "frmP3", "frmP2", "frmP1"})},
        {6, NamesOf({"frmP6_1", "frmP6", "frmP5", "frmP4", "frmP3", "frmP2", "frmP1"})}};
    for (const auto& [used, names] : orders) {
        Proposal run(used);
        modPrint::mnuFilePrintAll_Click(run.program);
        EXPECT_EQ(run.surroundings.printers.Named, names) << used;
        EXPECT_EQ(run.surroundings.printers.Paper.Documents.size(), names.size()) << "a document a page";
        EXPECT_EQ(run.surroundings.printers.Commands.size(), 1U) << "one command";
        EXPECT_EQ(run.surroundings.printers.Ended, 1);
    }
}

TEST(PrintAll, TakesAPageAlongOnWhichAFirstQuantityIsBeingTyped) {
    Proposal run(2);
    Typist typist(run.program);
    person::TurnTo(run.program, 2);
    typist.Click(PageId::frmP3, 0);
    typist.Press(keys::kF8);
    typist.Type("3");
    modPrint::mnuFilePrintAll_Click(run.program);
    EXPECT_EQ(run.surroundings.printers.Named, NamesOf({"frmP6_1", "frmP6", "frmP3", "frmP2", "frmP1"}));
}

TEST(PrintAll, TellsWhichPageItPrints) {
    Proposal run(3);
    modPrint::mnuFilePrintAll_Click(run.program);
    EXPECT_EQ(run.Messages, (std::vector<std::string>{"Printing Page 3 of 3 Copy", "Printing Page 3 of 3",
                                                      "Printing Page 2 of 3", "Printing Page 1 of 3"}));
    EXPECT_EQ(run.Titles.at(0), "Printing");
    EXPECT_EQ(modWindows::Find(run.program, "frmDialog"), nullptr);
    EXPECT_EQ(run.program.printing.PrintFormName, "frmP1");
}

TEST(PrintAll, SaysSoWithoutAPrinter) {
    Proposal run(2);
    run.program.run.NoPrinter = true;
    run.surroundings.questions.ExpectBox({"Printer Error 482. Printer not found.", Buttons::Ok, ""},
                                         Answer::Ok);
    modPrint::mnuFilePrintAll_Click(run.program);
    EXPECT_TRUE(run.surroundings.printers.Commands.empty());
}

TEST(PrintAll, GoesOnAfterACancelAndTheNextRunEndsAtOnce) {
    Proposal run(2);
    run.surroundings.events.OnYield = [&] {
        if (Window* window = modWindows::Find(run.program, "frmDialog");
            window != nullptr && run.surroundings.printers.Named.size() == 1) {
            dynamic_cast<frmDialog&>(*window).cmdCancelPrint_Click(run.program);
        }
    };
    modPrint::mnuFilePrintAll_Click(run.program);
    EXPECT_EQ(run.surroundings.printers.Named.size(), 3U);
    EXPECT_TRUE(run.program.printing.PrintCancelled);
    // Nothing was drawn yet when the person could press the button: every page still comes out whole.
    EXPECT_EQ(run.surroundings.printers.Paper.Documents.size(), 3U);

    modPrint::mnuFilePrintAll_Click(run.program);
    EXPECT_EQ(run.surroundings.printers.Commands.size(), 1U);
    EXPECT_FALSE(run.program.printing.PrintCancelled);

    modPrint::mnuFilePrintAll_Click(run.program);
    EXPECT_EQ(run.surroundings.printers.Commands.size(), 2U);
    EXPECT_EQ(run.surroundings.printers.Named.size(), 6U);
}

TEST(PrintAll, PrintsNothingWhenNoFileIsGivenAndTheNextRunPrints) {
    Proposal run(2);
    run.surroundings.printers.Refuse = true;
    modPrint::mnuFilePrintAll_Click(run.program);
    EXPECT_TRUE(run.surroundings.printers.Named.empty());
    EXPECT_EQ(run.surroundings.printers.Ended, 0);
    run.surroundings.printers.Refuse = false;
    modPrint::mnuFilePrintAll_Click(run.program);
    EXPECT_EQ(run.surroundings.printers.Named.size(), 3U);
}

TEST(PrintAll, SuggestsTheProposalsOwnName) {
    Proposal run(2);
    run.program.document.FilePath = run.folder.Path() + "Proposals/";
    run.program.document.BaseName = "Jane Roe";
    modPrint::mnuFilePrintAll_Click(run.program);
    EXPECT_EQ(run.surroundings.printers.Commands.at(0).SuggestedFile,
              run.folder.Path() + "Proposals/Jane Roe.pdf");
    run.program.document.BaseName.clear();
    modPrint::mnuFilePrintAll_Click(run.program);
    EXPECT_EQ(run.surroundings.printers.Commands.at(1).SuggestedFile,
              run.folder.Path() + "Proposals/Proposal.pdf");
}

TEST(PrintPage, SuggestsANameWithThePageInIt) {
    Proposal run(2);
    run.program.document.FilePath = run.folder.Path() + "Proposals/";
    run.program.document.BaseName = "Jane Roe";
    modPrint::mnuFilePrintPage_Click(run.program, PageId::frmP1);
    modPrint::mnuFilePrintPage_Click(run.program, PageId::frmP6);
    modPrint::mnuFilePrintPage_Click(run.program, PageId::frmP6_1);
    const auto& commands = run.surroundings.printers.Commands;
    EXPECT_EQ(commands.at(0).SuggestedFile, run.folder.Path() + "Proposals/Jane Roe, Page 1.pdf");
    EXPECT_EQ(commands.at(1).SuggestedFile, run.folder.Path() + "Proposals/Jane Roe, Page 6.pdf");
    EXPECT_EQ(commands.at(2).SuggestedFile, run.folder.Path() + "Proposals/Jane Roe, Page 6 Copy.pdf");
}

TEST(PrintAll, LosesOnlyThePageThatFails) {
    Proposal run(2);
    int ended = 0;
    run.surroundings.printers.Paper.OnEndDoc = [&] {
        if (++ended == 2) {
            throw std::runtime_error("jam");
        }
    };
    run.surroundings.questions.Expect("jam");
    modPrint::mnuFilePrintAll_Click(run.program);
    EXPECT_EQ(run.surroundings.printers.Named.size(), 3U);
    EXPECT_EQ(ended, 3);
    EXPECT_EQ(run.surroundings.printers.Ended, 1);
    EXPECT_EQ(modWindows::Find(run.program, "frmDialog"), nullptr);
}

TEST(PrintPage, PrintsThatPageAlone) {
    const std::map<PageId, std::string> messages{
        {PageId::frmP1, "Printing Page 1 of 4"},       {PageId::frmP2, "Printing Page 2 of 4"},
        {PageId::frmP3, "Printing Page 3 of 4"},       {PageId::frmP4, "Printing Page 4 of 4"},
        {PageId::frmP5, "Printing Page 5 of 4"},       {PageId::frmP6, "Printing Page 4 of 4"},
        {PageId::frmP6_1, "Printing Page 4 of 4 Copy"}};
    for (const auto& [page, message] : messages) {
        Proposal run(4);
        modPrint::mnuFilePrintPage_Click(run.program, page);
        EXPECT_EQ(run.Messages, std::vector<std::string>{message});
        EXPECT_EQ(run.surroundings.printers.Named.size(), 1U);
        EXPECT_EQ(run.surroundings.printers.Named.at(0).second, IndexOf(page));
        EXPECT_EQ(run.surroundings.printers.Commands.size(), 1U);
        EXPECT_EQ(run.surroundings.printers.Paper.Documents.size(), 1U);
    }
}

TEST(PrintPage, SaysNothingWithoutAPrinter) {
    for (const PageId page : kAllPages) {
        Proposal run(2);
        run.program.run.NoPrinter = true;
        modPrint::mnuFilePrintPage_Click(run.program, page);
        EXPECT_TRUE(run.surroundings.questions.Shown.empty());
        EXPECT_TRUE(run.surroundings.printers.Commands.empty());
        EXPECT_EQ(run.Label(PageId::frmP1, 31).Caption, "Page 1 of 6") << "not even the numbers change";
    }
}

TEST(PrintPage, DoesNotAskWhetherAnEarlierRunWasCancelled) {
    Proposal run(2);
    run.program.printing.PrintCancelled = true;
    modPrint::mnuFilePrintPage_Click(run.program, PageId::frmP1);
    EXPECT_EQ(run.surroundings.printers.Named.size(), 1U);
    EXPECT_TRUE(run.program.printing.PrintCancelled);
}

TEST(PrintPage, NumbersThePagesFirst) {
    Proposal run(3);
    run.program.document.PagesInUse = 6;
    modPrint::mnuFilePrintPage_Click(run.program, PageId::frmP1);
    EXPECT_EQ(run.program.document.PagesInUse, 3);
    EXPECT_EQ(run.Label(PageId::frmP1, 31).Caption, "Page 1 of 3");
    EXPECT_EQ(run.Label(PageId::frmP6_1, 63).Caption, "Page 3 of 3");
    EXPECT_EQ(run.Main().lblHighestPage.Caption, "Utilizing 3 of 6 Available Pages");
    const auto& document = run.surroundings.printers.Paper.Documents.at(0);
    EXPECT_TRUE(std::any_of(document.begin(), document.end(),
                            [](const DrawCall& call) { return call.Text == "Page 1 of 3"; }));
}

TEST(PrintPage, StandsWholeAndInItsPlaceAfterACancel) {
    Proposal run(2);
    run.program.printing.PrinterOffsetX = 360;
    run.surroundings.events.OnYield = [&] {
        dynamic_cast<frmDialog&>(*modWindows::Find(run.program, "frmDialog"))
            .cmdCancelPrint_Click(run.program);
    };
    modPrint::mnuFilePrintPage_Click(run.program, PageId::frmP1);
    const auto& document = run.surroundings.printers.Paper.Documents.at(0);
    const auto drawn = std::find_if(document.begin(), document.end(),
                                    [](const DrawCall& call) { return call.Op == DrawCall::What::Print; });
    ASSERT_NE(drawn, document.end());
    EXPECT_EQ(drawn->ScaleLeft, 360) << "the offset holds for a page that was begun";
    EXPECT_EQ(modWindows::Find(run.program, "frmDialog"), nullptr);
}

TEST(PrintCommands, ChosenWhileAnotherRunsDoNothing) {
    Proposal run(2);
    run.surroundings.events.OnYield = [&] {
        run.program.run.NoPrinter = false;
        modPrint::mnuFilePrintAll_Click(run.program);
        modPrint::mnuFilePrintPage_Click(run.program, PageId::frmP2);
    };
    modPrint::mnuFilePrintAll_Click(run.program);
    EXPECT_EQ(run.surroundings.printers.Commands.size(), 1U);
    EXPECT_EQ(run.surroundings.printers.Named, NamesOf({"frmP6_1", "frmP6", "frmP1"}));
    EXPECT_EQ(run.surroundings.printers.Ended, 1);
    run.surroundings.events.OnYield = nullptr;
    modPrint::mnuFilePrintPage_Click(run.program, PageId::frmP2);
    EXPECT_EQ(run.surroundings.printers.Commands.size(), 2U) << "and the next one runs";
}

TEST(PrintAll, GoesOnBetweenPagesWithoutAskingForThePrinterAgain) {
    Proposal run(2);
    run.surroundings.events.OnYield = [&] { run.program.run.NoPrinter = true; };
    modPrint::mnuFilePrintAll_Click(run.program);
    EXPECT_EQ(run.surroundings.printers.Named.size(), 3U);
}

TEST(PrintAll, TellsOfAFileThatCannotBeWritten) {
    Proposal run(2);
    run.surroundings.printers.OnEndCommand = [] { throw std::runtime_error("the disk is full"); };
    run.surroundings.questions.Expect("An error occurred in PrintTheForm.");
    modPrint::mnuFilePrintAll_Click(run.program);
    EXPECT_NE(run.surroundings.questions.Shown.back().Text.find("the disk is full"), std::string::npos);
    EXPECT_FALSE(run.program.printing.CommandRunning);
}

TEST(PrintingWindow, SendsWhatWasDrawnWhenThePersonCancels) {
    Proposal run(2);
    auto& window = dynamic_cast<frmDialog&>(modWindows::Show(run.program, std::make_unique<frmDialog>()));
    run.surroundings.printers.Paper.Print("half a page");
    window.cmdCancelPrint_Click(run.program);
    ASSERT_EQ(run.surroundings.printers.Paper.Documents.size(), 1U);
    EXPECT_EQ(run.surroundings.printers.Paper.Documents[0].at(0).Text, "half a page");
    EXPECT_TRUE(window.Closing);
    EXPECT_TRUE(run.program.printing.PrintCancelled);
}

TEST(PrintingWindow, IsModelessAndItsCloseBoxCancels) {
    Proposal run(2);
    auto& window = dynamic_cast<frmDialog&>(modWindows::Show(run.program, std::make_unique<frmDialog>()));
    EXPECT_EQ(window.Mode(), Modality::Modeless);
    EXPECT_EQ(window.cmdCancelPrint.Caption, "Cancel Print");
    window.Form_Cancel(run.program);
    EXPECT_TRUE(window.Closing);
    EXPECT_TRUE(run.program.printing.PrintCancelled);
    EXPECT_TRUE(run.surroundings.printers.Paper.Documents.empty()) << "there was nothing to send";
}

TEST(PrintAll, LeavesAPageOutWhoseOnlyTextWasACompletionThatIsTakenOutAgain) {
    Proposal run(2);
    run.folder.Write("Proposals/Default Terms.fut", "Chair Covers");
    run.program.run.ACEnabled = true;
    run.program.run.ACStartLen = 2;
    modTerms::ReadFrequentlyUsedTerms(run.program);
    Typist typist(run.program);
    person::TurnTo(run.program, 2);
    typist.Click(PageId::frmP3, 0);
    typist.Type("cha");
    ASSERT_EQ(run.TextOf(PageId::frmP3, 0), "chair covers");
    person::Edited(run.program, {PageId::frmP3, FieldKind::txt, 0}, "", 0, 0);
    modPrint::mnuFilePrintAll_Click(run.program);
    EXPECT_EQ(run.surroundings.printers.Named, NamesOf({"frmP6_1", "frmP6", "frmP1"}));
}

} // namespace
