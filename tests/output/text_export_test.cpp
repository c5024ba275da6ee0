#include "output/text_export.h"

#include "base/files.h"
#include "output/proposal_text.h"
#include "pages/row_fields.h"
#include "program/keys.h"
#include "program/program.h"
#include "support/running_program.h"
#include "support/typist.h"

#include <gtest/gtest.h>

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
        EXPECT_EQ(run.Exported(), General(kEmptyGeneral, "Proposal for Jane Roe") +
                                      Repeat("\r\n", 10 + 33 * (more - 1)) + Text({"Lights"}) +
                                      Repeat("\r\n", 32) + Totals(Zero()) + Contract() + kLine35 +
                                      kSignatures)
            << more;
    }
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

TEST(TextExport, AnExportTakesTheAmountThatIsBeingTyped) {
    JustNamed run;
    run.Fill(PageId::frmP1, 20, "75.5");
    EXPECT_NE(run.Exported().find("Subtotal:\t\t$ 75.50\r\n"), std::string::npos);
    EXPECT_NE(
        run.surroundings.clipboard.Text.find("\r\nSubtotal:\t\t$ 75.50\r\nTaxable Amount:\t\t$ 75.50\r\n"),
        std::string::npos);
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

TEST(DocumentExport, ADocumentThatCannotBeWrittenIsReported) {
    JustNamed run;
    run.surroundings.words.Word.OnInsert = [] { throw files::FileError(files::kDiskFull, "Disk full"); };
    run.surroundings.questions.Expect("SaveAsWordDoc");
    modExport::mnuFileSaveToWord_Click(run.program);
    EXPECT_FALSE(run.program.exporting.ExportToWord);
}

} // namespace
