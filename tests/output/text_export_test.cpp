#include "output/text_export.h"

#include "base/files.h"
#include "money/amounts.h"
#include "money/totals.h"
#include "output/proposal_text.h"
#include "pages/fields.h"
#include "pages/row_fields.h"
#include "program/keys.h"
#include "program/program.h"
#include "support/failing_disk.h"
#include "support/person.h"
#include "support/running_program.h"
#include "support/typist.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>

namespace {

const std::string kRule(90, '-');
const std::string kHalfRule(45, '-');

std::string Repeat(std::string_view line, int count) {
    std::string result;
    for (int at = 0; at < count; ++at) {
        result += line;
    }
    return result;
}

/// Lines as a person would write them down, with the file's own line ends.
std::string Text(std::initializer_list<std::string> lines) {
    std::string result;
    for (const std::string& line : lines) {
        result += line + "\r\n";
    }
    return result;
}

std::string General(const std::string& client, const std::string& title) {
    return Text({"Acme Events - " + title, "", "General Information", kRule}) + client;
}

const std::string kEmptyGeneral =
    Text({"Event Date:\t\t", "Event Time:\t\t", "Client's Name:\t\tJane Roe", "Street Address:\t\t",
          "City, State Zip:\t\t", "Home Phone #:\t\t", "Work Phone #:\t\t", "Cell Phone #:\t\t", kRule, "",
          "Venue", kRule, "Location:\t\t", "Address:\t\t", kRule, "", "Proposal Specifics", kRule, ""});

std::string Totals(const std::array<std::string, 6>& figures) {
    return Text({"", "Grand Totals", kRule, "Subtotal:\t\t$ " + figures[0],
                 "Taxable Amount:\t\t$ " + figures[1], "Sales Tax:\t\t$ " + figures[2],
                 "Total:\t\t\t$ " + figures[3], "Deposit Received:\t$ " + figures[4],
                 "Balance Due:\t\t$ " + figures[5]});
}

std::string Contract(int from = 1, int to = 34) {
    std::string result;
    for (int line = from; line <= to; ++line) {
        result += " Contract Language Line " + std::to_string(line) +
                  " - Edit this Label by right-clicking or by opening the Contract Language Editor under "
                  "Manage.\r\n";
    }
    return result;
}

const std::string kLine35 = Contract(35, 35);
const std::string kSignatures = Text({"",
                                      "",
                                      "____________________________________________",
                                      "Client's Signature",
                                      "",
                                      "",
                                      "_______________",
                                      "Date",
                                      "",
                                      "",
                                      "____________________________________________",
                                      "Representative for Acme Events",
                                      "",
                                      "",
                                      "_______________",
                                      "Date",
                                      "",
                                      "",
                                      "Please remit payment to:",
                                      "Acme Events",
                                      "1 Main Street",
                                      "Springfield, IL 62701",
                                      "(217) 555-0199",
                                      "(217) 555-0198"});

/// A proposal for Jane Roe that has nothing but her name.
struct JustNamed : RunningProgram {
    JustNamed() {
        typist.Click(PageId::frmP1, 2);
        typist.Type("Jane Roe");
    }
    [[nodiscard]] std::string Exported() {
        surroundings.questions.Expect("Proposal copied to memory.");
        modExport::mnuFileCopyProposal_Click(program);
        return surroundings.clipboard.Text;
    }
    void Fill(PageId page, int index, std::string_view text) {
        typist.Click(page, index);
        typist.Type(text);
    }
    Typist typist{program};
};

std::array<std::string, 6> Zero() {
    return {"0.00", "0.00", "0.00", "0.00", "0.00", "0.00"};
}

TEST(TextExport, WritesJaneRoesProposalLineByLine) {
    RunningProgram run;
    TypeJaneRoe(run);
    run.surroundings.questions.Expect("File was saved as " + (run.folder / "Proposals/Jane Roe.txt"));
    modExport::mnuFileSaveAsText_Click(run.program);
    const std::string expected =
        General(Text({"Event Date:\t\tJanuary 21, 2008",
                      "Event Time:\t\t6:00 PM",
                      "Client's Name:\t\tJane Roe",
                      "Street Address:\t\t12 Elm Street",
                      "City, State Zip:\t\tSpringfield, IL 62701",
                      "Home Phone #:\t\t(217) 555-0100",
                      "Work Phone #:\t\t",
                      "Cell Phone #:\t\t",
                      kRule,
                      "",
                      "Venue",
                      kRule,
                      "Location:\t\tGarden Hall",
                      "Address:\t\t",
                      kRule,
                      "",
                      "Proposal Specifics",
                      kRule,
                      "",
                      "Ceremony arch",
                      "Subtotal:\t\t$ 1,250.00",
                      "",
                      "Aisle runner",
                      "Subtotal:\t\t$ 75.50",
                      ""}),
                "Proposal for Jane Roe") +
        Repeat("\r\n", 8) +
        Text({"Desc:\t\t\tChair covers", "Qty:\t\t\t3", "Amt Each:\t\t$ 19.99", "Subtotal:\t\t$ 59.97", ""}) +
        Repeat("\r\n", 32 + 33 + 33 + 32) + Text({"Last line", "Subtotal:\t\t$ 10.00", ""}) +
        Totals({"1,395.47", "1,319.97", "108.90", "1,504.37", "500.00", "1,004.37"}) + Contract() + kLine35 +
        kSignatures;
    EXPECT_EQ(run.folder.Read("Proposals/Jane Roe.txt"), expected);
    EXPECT_FALSE(files::Exists(run.folder / "Proposals/TempClipboardInfo.txt"));
}

TEST(TextExport, WithTwoPagesInUseOnlyPageOnesItemsGo) {
    JustNamed run;
    run.Fill(PageId::frmP1, 19, "Lights");
    EXPECT_EQ(run.Exported(), General(kEmptyGeneral, "Proposal for Jane Roe") + Repeat("\r\n", 9) +
                                  Text({"Lights"}) + Totals(Zero()) + Contract() + kLine35 + kSignatures);
}

TEST(TextExport, EveryPageInUseBringsItsRows) {
    const std::array pages{PageId::frmP2, PageId::frmP3, PageId::frmP4, PageId::frmP5};
    int more = 0;
    for (const PageId page : pages) {
        ++more;
        JustNamed run;
        run.Fill(page, 0, "Lights");
        std::string wanted = General(kEmptyGeneral, "Proposal for Jane Roe");
        for (const std::string& part :
             {Repeat("\r\n", 10 + 33 * (more - 1)), Text({"Lights"}), Repeat("\r\n", 32), Totals(Zero()),
              Contract(), std::string(kLine35), std::string(kSignatures)}) {
            wanted += part;
        }
        EXPECT_EQ(run.Exported(), wanted) << more;
    }
}

TEST(TextExport, APageWithNothingButAQuantityIsInUse) {
    JustNamed run;
    run.Fill(PageId::frmP2, 0, "Lights");
    const std::string without = run.Exported();
    person::TurnTo(run.program, 3);
    run.typist.Click(PageId::frmP4, 0);
    run.typist.Press(keys::kF8);
    run.typist.Type("3");
    const std::string with = run.Exported();
    // Both pages more of 33 lines each.
    EXPECT_EQ(std::count(with.begin(), with.end(), '\n') - std::count(without.begin(), without.end(), '\n'),
              66);
}

TEST(TextExport, ABoldRowIsAMainCategoryWithARuleOfHalfLength) {
    JustNamed run;
    run.Fill(PageId::frmP1, 10, "Ceremony");
    run.Area(PageId::frmP1, 10).FontBold = true;
    const std::string text = run.Exported();
    EXPECT_NE(text.find(kRule + "\r\n\r\nCeremony\r\n" + kHalfRule + "\r\n\r\n"), std::string::npos);
}

TEST(TextExport, ARowWhoseQuantityWasNeverFilledIsAPlainRow) {
    JustNamed run;
    run.typist.Click(PageId::frmP2, 0);
    run.typist.Press(keys::kF8);
    run.Fill(PageId::frmP2, 0, "Chairs");
    ASSERT_TRUE(modPages::ColumnsOn(run.program, PageId::frmP2, 0));
    run.program.pages[PageId::frmP2].txtQty[0].Text = "Qty.";
    const std::string text = run.Exported();
    EXPECT_NE(text.find("\r\nChairs\r\n"), std::string::npos);
    EXPECT_EQ(text.find("Desc:"), std::string::npos);
    EXPECT_EQ(text.find("Amt Each:"), std::string::npos);
}

TEST(TextExport, ARowWithAnEmptiedQuantityStaysAPricedRow) {
    JustNamed run;
    run.typist.Click(PageId::frmP2, 0);
    run.typist.Press(keys::kF8);
    run.Fill(PageId::frmP2, 0, "Chairs");
    run.program.pages[PageId::frmP2].txtQty[0].Text.clear();
    run.program.pages[PageId::frmP2].txtAmt[0].Text = "4.50";
    EXPECT_NE(run.Exported().find("Desc:\t\t\tChairs\r\nQty:\t\t\t\r\nAmt Each:\t\t$ 4.50\r\n"),
              std::string::npos);
}

TEST(TextExport, AnAmountThatStandsAloneIsWrittenAsASubtotal) {
    JustNamed run;
    run.Fill(PageId::frmP1, 20, "45");
    run.Fill(PageId::frmP1, 10, "");
    EXPECT_NE(run.Exported().find(kRule + "\r\n\r\n\r\nSubtotal:\t\t$ 45.00\r\n\r\n"), std::string::npos);
}

TEST(TextExport, AnEmptyContractKeepsTheEmptyLinesBehindItsLastLine) {
    JustNamed run;
    for (int label = 13; label <= 47; ++label) {
        run.Label(PageId::frmP6, label).Caption.clear();
    }
    const std::string text = run.Exported();
    EXPECT_TRUE(text.ends_with(Totals(Zero()) + "\r\n" + kSignatures));
}

TEST(TextExport, HiddenTotalsLeaveTheirFiguresOut) {
    RunningProgram run;
    TypeJaneRoe(run);
    run.program.totals.TotalsHidden = true;
    run.surroundings.questions.Expect("Proposal copied to memory.");
    modExport::mnuFileCopyProposal_Click(run.program);
    EXPECT_NE(run.surroundings.clipboard.Text.find(Totals({"", "", "", "", "500.00", ""})),
              std::string::npos);
}

TEST(TextExport, WithoutAClientTheNameIsAskedForAndNothingIsWritten) {
    RunningProgram run;
    run.surroundings.questions.Expect(
        "Please enter the client's name in the appropriate area and save again.");
    modExport::mnuFileSaveAsText_Click(run.program);
    EXPECT_EQ(run.program.main.Focus, (FieldRef{PageId::frmP1, FieldKind::txt, 2}));
    EXPECT_FALSE(files::Exists(run.folder / "Proposals/.txt"));
}

TEST(TextExport, UnderANameThatNoFileCanHaveNothingIsWrittenAndTheNameIsAskedFor) {
    RunningProgram run;
    Typist typist(run.program);
    typist.Click(PageId::frmP1, 2);
    typist.Type("Tom / Lee");
    person::TurnTo(run.program, 2);
    run.surroundings.questions.Expect("Action Cancelled. File Name cannot include any of ");
    modExport::mnuFileSaveAsText_Click(run.program);
    EXPECT_EQ(run.program.main.PageInFront, PageId::frmP1);
    EXPECT_EQ(run.program.main.Focus, (FieldRef{PageId::frmP1, FieldKind::txt, 2}));
    EXPECT_FALSE(run.folder.Has("Error.log")) << "no write was tried";
}

TEST(TextExport, ATextThatIsThereIsReplacedOnlyAfterAYes) {
    JustNamed run;
    run.folder.Write("Proposals/Jane Roe.txt", "mine");
    run.surroundings.questions.Expect("already exists", Answer::No);
    run.surroundings.questions.Expect("File not saved.");
    modExport::mnuFileSaveAsText_Click(run.program);
    EXPECT_EQ(run.folder.Read("Proposals/Jane Roe.txt"), "mine");
    EXPECT_FALSE(run.program.document.Cancelled);
    run.surroundings.questions.Expect("already exists", Answer::Yes);
    run.surroundings.questions.Expect("File was saved as ");
    modExport::mnuFileSaveAsText_Click(run.program);
    EXPECT_TRUE(
        run.folder.Read("Proposals/Jane Roe.txt").starts_with("Acme Events - Proposal for Jane Roe\r\n"));
}

TEST(TextExport, TheClipboardTakesATableBesideTheText) {
    JustNamed run;
    run.Fill(PageId::frmP1, 10, "Arch & <arbour>");
    run.Fill(PageId::frmP1, 20, "45");
    static_cast<void>(run.Exported());
    const std::string& html = run.surroundings.clipboard.Html;
    EXPECT_NE(html.find("<tr><td>Client's Name:</td><td>Jane Roe</td></tr>"), std::string::npos);
    EXPECT_NE(html.find("<tr><td colspan=\"2\">Arch &amp; &lt;arbour&gt;</td></tr>"), std::string::npos);
    EXPECT_NE(html.find("<tr><td>Subtotal:</td><td align=\"right\">$ 45.00</td></tr>"), std::string::npos);
    EXPECT_NE(html.find("<tr><td colspan=\"2\"><hr></td></tr>"), std::string::npos);
}

TEST(TextExport, AScratchFileThatCannotBeWrittenStopsNothing) {
    JustNamed run;
    run.folder.MakeFolder("Proposals/TempClipboardInfo.txt");
    EXPECT_TRUE(run.Exported().starts_with("Acme Events - Proposal for Jane Roe\r\n"));
    EXPECT_NE(run.program.main.Notice.find("TempClipboardInfo.txt could not be written"), std::string::npos);
}

TEST(TextExport, AScratchFileThatCannotBeDeletedIsTold) {
    JustNamed run;
    const FailingDisk disk{{FailingDisk::Call::Unlink, 1, EACCES, FailingDisk::kForever}};
    EXPECT_TRUE(run.Exported().starts_with("Acme Events - Proposal for Jane Roe\r\n"));
    EXPECT_EQ(run.program.main.Notice, "The scratch file " +
                                           (run.folder / "Proposals/TempClipboardInfo.txt") +
                                           " could not be deleted.");
}

TEST(TextExport, AnExportTakesTheAmountThatIsBeingTyped) {
    JustNamed run;
    run.Fill(PageId::frmP1, 20, "75.5");
    EXPECT_NE(run.Exported().find("Subtotal:\t\t$ 75.50\r\n"), std::string::npos);
    EXPECT_NE(
        run.surroundings.clipboard.Text.find("\r\nSubtotal:\t\t$ 75.50\r\nTaxable Amount:\t\t$ 75.50\r\n"),
        std::string::npos);
}

/// A proposal with a row of every kind on each page, typed by hand.
struct EveryKindOfRow : JustNamed {
    explicit EveryKindOfRow(int pagesInUse) {
        Rows(PageId::frmP1, 10, 20);
        const std::array more{PageId::frmP2, PageId::frmP3, PageId::frmP4, PageId::frmP5};
        for (int page = 0; page < pagesInUse - 2; ++page) {
            person::TurnTo(program, page + 1);
            Rows(more[static_cast<std::size_t>(page)], 0, 33);
            Fill(more[static_cast<std::size_t>(page)], 32, "Last");
            Fill(more[static_cast<std::size_t>(page)], 65, "10");
        }
        person::TurnTo(program, 0);
        typist.Click(PageId::frmP1, 7);
    }
    void Rows(PageId page, int row, int amount) {
        Fill(page, row, "Chairs");
        Fill(page, row + 1, "Ceremony");
        person::Choose(program, CommandId::mnuEditTextBold);
        typist.Click(page, row + 2);
        typist.Press(keys::kF8);
        typist.Type("3");
        typist.Press(keys::kEnter);
        typist.Type("Covers");
        typist.Press(keys::kEnter);
        typist.Type("19.99");
        typist.Press(keys::kEnter);
        Fill(page, amount + 3, "45");
        Fill(page, row + 5, "Runner");
        Fill(page, amount + 5, "75.5");
        person::Choose(program, CommandId::mnuEditTextTaxExempt);
        Fill(page, row + 6, "Dinner");
        person::Choose(program, CommandId::mnuEditTextBold);
        Fill(page, amount + 6, "100");
    }
    void EmptyContract() {
        for (int label = 13; label <= 47; ++label) {
            Label(PageId::frmP6, label).Caption.clear();
        }
    }
};

/// What those rows are in the text, the rows below them on the page left empty.
const std::string kEveryKind =
    "Chairs\r\n"
    "Ceremony\r\n---------------------------------------------\r\n"
    "Desc:\t\t\tCovers\r\nQty:\t\t\t3\r\nAmt Each:\t\t$ 19.99\r\nSubtotal:\t\t$ 59.97\r\n\r\n"
    "\r\nSubtotal:\t\t$ 45.00\r\n\r\n"
    "\r\n"
    "Runner\r\nSubtotal:\t\t$ 75.50\r\n\r\n"
    "Dinner\r\n---------------------------------------------\r\nSubtotal:\t\t$ 100.00\r\n\r\n";

struct ByHand {
    int PagesInUse;
    std::array<std::string, 6> Figures;
};

// A page's rows come to 280.47, of which 75.50 are exempt; from the second page on ten more, taxable. The tax
// is 8.25 of a hundred.
const std::array kByHand{ByHand{2, {"280.47", "204.97", "16.91", "297.38", "0.00", "297.38"}},
                         ByHand{3, {"570.94", "419.94", "34.65", "605.59", "0.00", "605.59"}},
                         ByHand{4, {"861.41", "634.91", "52.38", "913.79", "0.00", "913.79"}},
                         ByHand{5, {"1,151.88", "849.88", "70.12", "1,222.00", "0.00", "1,222.00"}},
                         ByHand{6, {"1,442.35", "1,064.85", "87.85", "1,530.20", "0.00", "1,530.20"}}};

std::string Expected(const ByHand& proposal, const std::string& contract) {
    std::string text = General(kEmptyGeneral, "Proposal for Jane Roe") + kEveryKind + Repeat("\r\n", 3);
    for (int page = 2; page < proposal.PagesInUse; ++page) {
        text += kEveryKind + Repeat("\r\n", 25) + "Last\r\nSubtotal:\t\t$ 10.00\r\n\r\n";
    }
    return text + Totals(proposal.Figures) + contract + kSignatures;
}

TEST(TextExport, EveryKindOfRowOnEveryNumberOfPagesIsWhatIsWrittenByHand) {
    for (const ByHand& proposal : kByHand) {
        EveryKindOfRow run(proposal.PagesInUse);
        run.surroundings.questions.Expect("File was saved as ");
        modExport::mnuFileSaveAsText_Click(run.program);
        ASSERT_EQ(run.program.document.PagesInUse, proposal.PagesInUse);
        EXPECT_EQ(run.folder.Read("Proposals/Jane Roe.txt"), Expected(proposal, Contract() + kLine35))
            << proposal.PagesInUse;
        EXPECT_EQ(run.Exported(), Expected(proposal, Contract() + kLine35)) << proposal.PagesInUse;
    }
}

TEST(TextExport, WithAnEmptyContractTheRestStandsAsItIs) {
    for (const ByHand& proposal : kByHand) {
        EveryKindOfRow run(proposal.PagesInUse);
        run.EmptyContract();
        EXPECT_EQ(run.Exported(), Expected(proposal, "\r\n")) << proposal.PagesInUse;
    }
}

/// What lies in the folder of proposals.
std::vector<std::string> FilesOf(const JustNamed& run) {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(run.folder / "Proposals")) {
        names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

using Call = FailingDisk::Call;
constexpr std::array kSteps{FailingDisk::Failure{Call::Open, 1, ENOSPC, FailingDisk::kForever},
                            FailingDisk::Failure{Call::Open, 1, EACCES, FailingDisk::kForever},
                            FailingDisk::Failure{Call::Write, 1, ENOSPC, FailingDisk::kForever},
                            FailingDisk::Failure{Call::Flush, 1, EIO, FailingDisk::kForever},
                            FailingDisk::Failure{Call::Close, 1, EIO, FailingDisk::kForever},
                            FailingDisk::Failure{Call::Rename, 1, EIO, FailingDisk::kForever}};

TEST(TextExport, WhateverStepFailsIsToldAndNoHalfTextStaysUnderTheName) {
    for (const FailingDisk::Failure& step : kSteps) {
        JustNamed run;
        const std::vector<std::string> before = FilesOf(run);
        {
            const FailingDisk disk{step};
            run.surroundings.questions.Expect("SaveFileAsText");
            modExport::mnuFileSaveAsText_Click(run.program);
            EXPECT_GT(disk.Failed(), 0);
        }
        run.surroundings.questions.Done();
        EXPECT_EQ(FilesOf(run), before) << static_cast<int>(step.What);
    }
}

TEST(TextExport, WhateverStepFailsTheTextThatWasThereStandsWhole) {
    for (const FailingDisk::Failure& step : kSteps) {
        JustNamed run;
        run.folder.Write("Proposals/Jane Roe.txt", "mine");
        const std::vector<std::string> before = FilesOf(run);
        {
            const FailingDisk disk{step};
            run.surroundings.questions.Expect("already exists", Answer::Yes);
            run.surroundings.questions.Expect("SaveFileAsText");
            modExport::mnuFileSaveAsText_Click(run.program);
        }
        run.surroundings.questions.Done();
        EXPECT_EQ(run.folder.Read("Proposals/Jane Roe.txt"), "mine") << static_cast<int>(step.What);
        EXPECT_EQ(FilesOf(run), before) << static_cast<int>(step.What);
    }
}

TEST(TextExport, AFullDiskStopsNeitherClipboardNorDocument) {
    JustNamed run;
    const FailingDisk disk{{Call::Write, 1, ENOSPC, FailingDisk::kForever}};
    EXPECT_TRUE(run.Exported().starts_with("Acme Events - Proposal for Jane Roe\r\n"));
    modExport::mnuFileSaveToWord_Click(run.program);
    EXPECT_EQ(run.surroundings.words.Word.Inserted.size(), 1U);
    const std::string& notice = run.program.main.Notice;
    EXPECT_TRUE(notice.starts_with("The proposal was exported to /home/user/Documents/Jane Roe.odt"))
        << notice;
    EXPECT_NE(notice.find("TempClipboardInfo.txt could not be written"), std::string::npos) << notice;
}

TEST(TextExport, AReadOnlyTextIsReplacedAfterTheYes) {
    JustNamed run;
    run.folder.Write("Proposals/Jane Roe.txt", "mine");
    std::filesystem::permissions(run.folder / "Proposals/Jane Roe.txt", std::filesystem::perms::owner_read);
    run.surroundings.questions.Expect("already exists", Answer::Yes);
    run.surroundings.questions.Expect("File was saved as ");
    modExport::mnuFileSaveAsText_Click(run.program);
    EXPECT_TRUE(
        run.folder.Read("Proposals/Jane Roe.txt").starts_with("Acme Events - Proposal for Jane Roe\r\n"));
}

TEST(TextExport, AFolderThatIsGoneIsTold) {
    JustNamed run;
    std::filesystem::remove_all(run.folder / "Proposals");
    run.surroundings.questions.Expect("SaveFileAsText");
    modExport::mnuFileSaveAsText_Click(run.program);
    EXPECT_FALSE(std::filesystem::exists(run.folder / "Proposals"));
    EXPECT_TRUE(run.Exported().starts_with("Acme Events - Proposal for Jane Roe\r\n"));
}

TEST(TextExport, AScratchFileOfAnEarlierRunGoes) {
    JustNamed run;
    run.folder.Write("Proposals/TempClipboardInfo.txt", "old");
    run.surroundings.questions.Expect("File was saved as ");
    modExport::mnuFileSaveAsText_Click(run.program);
    EXPECT_FALSE(files::Exists(run.folder / "Proposals/TempClipboardInfo.txt"));
}

TEST(TextExport, TotalsThatDifferAreToldAndTheExportGoesOn) {
    JustNamed run;
    // Added field by field 16777216 + 1 + 1 stays 16777216 in singles, added by page it is 16777218.
    for (const auto& [page, index, text] :
         {std::tuple{PageId::frmP1, 20, "16777216"}, {PageId::frmP2, 33, "1"}, {PageId::frmP2, 34, "1"}}) {
        modFields::SetText(run.program, {page, FieldKind::txt, index}, text);
        modTotals::SetTax(run.program, page, index, modTotals::Tax::Exempt);
    }
    run.surroundings.questions.ExpectBox(
        {"A descrepancy has occurred in calculating the totals. Please verify\r\nthe total amounts manually "
         "or press \"Recalculate\" to continue the\r\ncalculation without true verification. We apologize "
         "for the inconvenience.",
         Buttons::Ok, ""},
        Answer::Ok);
    EXPECT_TRUE(run.Exported().starts_with("Acme Events - Proposal for Jane Roe\r\n"));
    EXPECT_EQ(run.Main().cmdReCalc.BackColor, colors::kOverLimit);
}

TEST(DocumentExport, APersonsNameThatNoFileCanHaveIsMendedForTheDocument) {
    JustNamed run;
    run.program.document.BaseName = "Roe / Doe: June";
    modExport::mnuFileSaveToWord_Click(run.program);
    EXPECT_EQ(run.surroundings.words.Word.Name, "Roe - Doe- June");
    run.program.document.BaseName = "";
    modExport::mnuFileSaveToWord_Click(run.program);
    EXPECT_EQ(run.surroundings.words.Word.Name, "Proposal");
}

TEST(DocumentExport, ALongNameIsCutAndEndsInNoBlank) {
    JustNamed run;
    run.program.document.BaseName = std::string(199, 'x') + " and others";
    modExport::mnuFileSaveToWord_Click(run.program);
    EXPECT_EQ(run.surroundings.words.Word.Name, std::string(199, 'x'));
}

TEST(DocumentExport, HandsTheLinesToANewDocumentAndTellsItsPath) {
    JustNamed run;
    modExport::mnuFileSaveToWord_Click(run.program);
    const auto& word = run.surroundings.words.Word;
    EXPECT_EQ(word.Verbs, (std::vector<std::string>{"AppShow", "FileNew", "Insert"}));
    EXPECT_EQ(word.Name, "Jane Roe");
    ASSERT_EQ(word.Inserted.size(), 1U);
    EXPECT_EQ(word.Inserted[0].front(),
              (DocumentLine{LineKind::Title, "Acme Events - Proposal for Jane Roe"}));
    EXPECT_EQ(run.program.main.Notice, "The proposal was exported to /home/user/Documents/Jane Roe.odt");
    EXPECT_FALSE(run.program.exporting.ExportToWord);
}

TEST(DocumentExport, WithoutAProgramForDocumentsTheMessageNamesThePath) {
    JustNamed run;
    run.surroundings.words.Word.Document.Opened = false;
    run.surroundings.questions.Expect("Cannot find Microsoft Word which is necessary to perform "
                                      "SpellCheck.\r\n\r\nThe document was written to "
                                      "/home/user/Documents/Jane Roe.odt");
    modExport::mnuFileSaveToWord_Click(run.program);
}

TEST(DocumentExport, WhereNoDocumentCanBeMadeAtAllItIsSaid) {
    JustNamed run;
    run.surroundings.words.Installed = false;
    run.surroundings.questions.ExpectBox(
        {"Cannot find Microsoft Word which is necessary to perform SpellCheck.", Buttons::Ok, ""},
        Answer::Ok);
    modExport::mnuFileSaveToWord_Click(run.program);
    EXPECT_TRUE(run.surroundings.words.Word.Verbs.empty());
}

TEST(DocumentExport, ADocumentThatCannotBeWrittenIsReported) {
    JustNamed run;
    run.surroundings.words.Word.OnInsert = [] { throw files::FileError(files::kDiskFull, "Disk full"); };
    run.surroundings.questions.Expect("SaveAsWordDoc");
    modExport::mnuFileSaveToWord_Click(run.program);
    EXPECT_FALSE(run.program.exporting.ExportToWord);
}

TEST(HtmlExport, KeepsTitlesBoldRulesAsRulesAndFiguresInAColumnOfTheirOwn) {
    EXPECT_EQ(modExport::HtmlTable({{LineKind::Title, "Grand & Totals"},
                                    {LineKind::Rule, kRule},
                                    {LineKind::MainCategory, "<Food>"},
                                    {LineKind::Row, "Desc:\t\t\tChairs"},
                                    {LineKind::Figure, "Total:\t\t\t$ 5.00"},
                                    {LineKind::Row, "alone"},
                                    {LineKind::Row, ""}}),
              "<table>\n"
              "<tr><td colspan=\"2\"><b>Grand &amp; Totals</b></td></tr>\n"
              "<tr><td colspan=\"2\"><hr></td></tr>\n"
              "<tr><td colspan=\"2\"><b>&lt;Food&gt;</b></td></tr>\n"
              "<tr><td>Desc:</td><td>Chairs</td></tr>\n"
              "<tr><td>Total:</td><td align=\"right\">$ 5.00</td></tr>\n"
              "<tr><td colspan=\"2\">alone</td></tr>\n"
              "<tr><td colspan=\"2\">&nbsp;</td></tr>\n"
              "</table>\n");
}

} // namespace
