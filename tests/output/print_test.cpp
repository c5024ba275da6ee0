#include "core/windows.h"
#include "document/fields.h"
#include "document/page_setup.h"
#include "output/frm_dialog.h"
#include "output/page_count.h"
#include "output/preview.h"
#include "output/print.h"
#include "output/print_page.h"
#include "support/running_program.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

std::vector<DrawCall> Drawn(RunningProgram& run, PageId page) {
    run.surroundings.printers.Paper.Documents.clear();
    modPrint::PrintTheForm(run.program, page);
    EXPECT_EQ(run.surroundings.printers.Paper.Documents.size(), 1U);
    return run.surroundings.printers.Paper.Documents.at(0);
}

const DrawCall* Find(const std::vector<DrawCall>& calls, std::string_view text) {
    for (const DrawCall& call : calls) {
        if (call.Op == DrawCall::What::Print && call.Text == text) {
            return &call;
        }
    }
    return nullptr;
}

void PutLine(RunningProgram& run, int page, int index, const char* text) {
    run.program.document.CurrentTextBuf[static_cast<std::size_t>(page)][static_cast<std::size_t>(index)] =
        text;
}

TEST(PrintTheForm, DrawsFieldsAtTheirLeftAndTopAndAmountsToTheRight) {
    RunningProgram run;
    run.Area(PageId::frmP1, 10).Text = "Ceremony arch";
    run.Area(PageId::frmP1, 20).Text = "1,250.00";
    run.Area(PageId::frmP1, 1).Text = "6:00 PM";
    const auto calls = Drawn(run, PageId::frmP1);
    const DrawCall* line = Find(calls, "Ceremony arch");
    ASSERT_NE(line, nullptr);
    EXPECT_EQ(line->X, 900);
    EXPECT_EQ(line->Y, 10260);
    EXPECT_EQ(line->Font, "Times New Roman");
    EXPECT_EQ(line->FontSize, 10);
    EXPECT_EQ(Find(calls, "1,250.00")->X, 10080 + 1260 - 800);
    EXPECT_EQ(Find(calls, "6:00 PM")->X, 9000 + 2160 - 700);
    const DrawCall* label = Find(calls, "Event Date");
    EXPECT_EQ(label->X, 1080);
    EXPECT_EQ(label->Y, 4140);
    EXPECT_TRUE(label->Bold && label->Italic);
    EXPECT_EQ(calls.back().Op, DrawCall::What::EndDoc);
}

TEST(PrintTheForm, TheTagDecidesNotWhetherAFieldShows) {
    RunningProgram run;
    PageLabel& label = run.Label(PageId::frmP1, 9);
    label.Visible = false;
    EXPECT_NE(Find(Drawn(run, PageId::frmP1), "Event Date"), nullptr);
    label.Visible = true;
    label.Tag = "Hide";
    EXPECT_EQ(Find(Drawn(run, PageId::frmP1), "Event Date"), nullptr);
    EXPECT_EQ(Find(Drawn(run, PageId::frmP2), "Qty."), nullptr);
    EXPECT_EQ(Find(Drawn(run, PageId::frmP2), "$"), nullptr);
    modPages::PlaceColumns(run.program, PageId::frmP2, 0, modPages::Columns::On);
    const auto calls = Drawn(run, PageId::frmP2);
    EXPECT_EQ(Find(calls, "Qty.")->X, 900);
    EXPECT_EQ(Find(calls, "Amt.")->X, 8145) << "boxes print from their left";
    EXPECT_EQ(Find(calls, "ea.")->X, 9165);
}

TEST(PrintTheForm, TakesTheDefaultTextColourAndTheLabelsOwn) {
    RunningProgram run;
    run.Area(PageId::frmP2, 0).Text = "Line";
    run.Area(PageId::frmP2, 0).ForeColor = 0xFF;
    run.program.run.DefaultFontColor = 0x123456;
    run.Label(PageId::frmP2, 0).ForeColor = 0x0080FF;
    const auto calls = Drawn(run, PageId::frmP2);
    EXPECT_EQ(Find(calls, "Line")->ForeColor, 0x123456U);
    EXPECT_EQ(Find(calls, run.Label(PageId::frmP2, 0).Caption)->ForeColor, 0x0080FFU);
}

TEST(PrintTheForm, UnderlinesBoldRowsOfFullWidthAlsoEmptyOnes) {
    RunningProgram run;
    run.program.printing.UnderlineCategories = true;
    run.Area(PageId::frmP2, 1).FontBold = true;
    run.Area(PageId::frmP2, 2).FontBold = true;
    run.Area(PageId::frmP2, 2).Width = 6270;
    int lines = 0;
    for (const DrawCall& call : Drawn(run, PageId::frmP2)) {
        if (call.Op == DrawCall::What::Line) {
            ++lines;
            EXPECT_EQ(call.X, 720);
            EXPECT_EQ(call.X2, 11520);
            EXPECT_EQ(call.Y, 1800 + 360 + 255);
            EXPECT_EQ(call.Y2, call.Y);
        }
    }
    EXPECT_EQ(lines, 1);
}

TEST(PrintTheForm, OffsetsMoveTheOriginAndZeroLeavesItAlone) {
    RunningProgram run;
    run.program.printing.PrinterOffsetX = 360;
    run.program.pages[PageId::frmP1].pic.Picture = {PictureRef::Source::File, "logo.png"};
    run.program.pages[PageId::frmP1].pic.Left = 1080;
    run.program.pages[PageId::frmP1].pic.Top = 540;
    run.program.pages[PageId::frmP1].pic.Tag.clear();
    const auto calls = Drawn(run, PageId::frmP1);
    EXPECT_EQ(calls.front().ScaleLeft, 360);
    EXPECT_EQ(calls.front().ScaleTop, 0);
    for (const DrawCall& call : calls) {
        if (call.Op == DrawCall::What::PaintPicture) {
            EXPECT_EQ(call.X, 1080 + 360) << "the logo is the one field the offset does not move";
            EXPECT_EQ(call.Y, 540);
        }
    }
}

TEST(PrintTheForm, RunsTheTotalsFirstWhenTheButtonIsRed) {
    RunningProgram run;
    run.Area(PageId::frmP1, 20).Text = "1504.367";
    run.program.totals.AmountTable[20][0] = 1504.367F;
    run.program.totals.PageSum[0] = 1504.367F;
    run.program.main.cmdReCalc.BackColor = colors::kOverLimit;
    const auto calls = Drawn(run, PageId::frmP6);
    EXPECT_NE(Find(calls, "1,504.37"), nullptr) << "with its comma, as after the running totals";
    EXPECT_EQ(run.program.main.cmdReCalc.BackColor, colors::kButtonFace);
}

TEST(PrintTheForm, PutsThePrintersFontBack) {
    RunningProgram run;
    Drawn(run, PageId::frmP6);
    const RecordingPrinter& paper = run.surroundings.printers.Paper;
    EXPECT_EQ(paper.Font, "Times New Roman");
    EXPECT_EQ(paper.FontSize, 10);
    EXPECT_FALSE(paper.FontBold || paper.FontItalic || paper.FontUnderline);
    EXPECT_FALSE(run.program.guards.Printing);
}

TEST(PrintTheForm, AFailingPrinterIsReported) {
    RunningProgram run;
    run.surroundings.printers.Paper.OnEndDoc = [] { throw std::runtime_error("out of paper"); };
    run.surroundings.questions.Expect("An error occurred in PrintTheForm.");
    modPrint::PrintTheForm(run.program, PageId::frmP1);
    EXPECT_FALSE(run.program.guards.Printing);
}

TEST(PagesInUse, AreTheHighestPageWithALineAndOneMore) {
    RunningProgram run;
    modPrint::CountPagesInUse(run.program);
    EXPECT_EQ(run.program.document.PagesInUse, 6) << "no line anywhere: as it was";
    PutLine(run, 0, 29, "x");
    modPrint::CountPagesInUse(run.program);
    EXPECT_EQ(run.program.document.PagesInUse, 2);
    PutLine(run, 2, 65, "x");
    modPrint::CountPagesInUse(run.program);
    EXPECT_EQ(run.program.document.PagesInUse, 4);
    PutLine(run, 4, 0, "  ");
    modPrint::CountPagesInUse(run.program);
    EXPECT_EQ(run.program.document.PagesInUse, 4);
    PutLine(run, 4, 0, "x");
    modPrint::CountPagesInUse(run.program);
    EXPECT_EQ(run.program.document.PagesInUse, 6);
}

TEST(PageNumbers, CountThePagesInUseTheFinalPageLast) {
    RunningProgram run;
    run.program.document.PagesInUse = 4;
    modPrint::SetPageNumbers(run.program);
    EXPECT_EQ(run.Label(PageId::frmP1, 31).Caption, "Page 1 of 4");
    EXPECT_EQ(run.Label(PageId::frmP2, 34).Caption, "Page 2 of 4");
    EXPECT_EQ(run.Label(PageId::frmP5, 34).Caption, "Page 5 of 4") << "never printed";
    EXPECT_EQ(run.Label(PageId::frmP6, 63).Caption, "Page 4 of 4");
    EXPECT_EQ(run.Label(PageId::frmP6_1, 63).Caption, "Page 4 of 4");
    EXPECT_EQ(run.Label(PageId::frmP1, 32).Caption, "Continued on Page 2");
    EXPECT_EQ(run.Label(PageId::frmP3, 0).Caption, "Acme Events - Event Proposal - Page 3");
    EXPECT_EQ(run.Label(PageId::frmP6, 0).Caption, "Acme Events - Event Proposal - Page 4"); // 37 characters
    EXPECT_EQ(run.Label(PageId::frmP6, 0).Left, 6120 - 1850);
    EXPECT_TRUE(run.program.format.PropLabelChanges[5][0].Changed);
    EXPECT_EQ(run.program.format.PropLabelChanges[0][31].Caption, "Page 1 of 4");
    EXPECT_EQ(run.program.main.lblHighestPage.Caption, "Utilizing 4 of 6 Available Pages");
}

struct Order {
    int Page; ///< the highest line page with a line
    std::vector<std::string> Names;
};

class PrintAll : public testing::TestWithParam<Order> {};

TEST_P(PrintAll, GoesFromTheLastPageToTheFirst) {
    RunningProgram run;
    PutLine(run, GetParam().Page, 0, "x");
    modPrint::mnuFilePrintAll_Click(run.program);
    std::vector<std::string> names;
    for (const auto& [name, order] : run.surroundings.printers.Named) {
        names.push_back(name);
    }
    EXPECT_EQ(names, GetParam().Names);
    EXPECT_EQ(run.surroundings.printers.Paper.Documents.size(), names.size())
        << "each page a document of its own";
    EXPECT_EQ(run.surroundings.printers.Commands.size(), 1U);
    EXPECT_EQ(run.surroundings.printers.Ended, 1);
    EXPECT_EQ(modWindows::Find(run.program, "frmDialog"), nullptr);
}

INSTANTIATE_TEST_SUITE_P(
    Table, PrintAll,
    testing::Values(Order{0, {"frmP6_1", "frmP6", "frmP1"}}, Order{1, {"frmP6_1", "frmP6", "frmP2", "frmP1"}},
                    Order{2, {"frmP6_1", "frmP6", "frmP3", "frmP2", "frmP1"}},
                    Order{3, {"frmP6_1", "frmP6", "frmP4", "frmP3", "frmP2", "frmP1"}},
                    Order{4, {"frmP6_1", "frmP6", "frmP5", "frmP4", "frmP3", "frmP2", "frmP1"}}));

TEST(PrintCommands, TellOfTheirPageWhileTheyRun) {
    RunningProgram run;
    PutLine(run, 0, 10, "x");
    std::vector<std::string> messages;
    run.surroundings.events.OnYield = [&] {
        if (auto* dialog = dynamic_cast<frmDialog*>(modWindows::Find(run.program, "frmDialog"))) {
            messages.push_back(dialog->Caption + ": " + dialog->lblMessage.Caption);
        }
    };
    modPrint::mnuFilePrintAll_Click(run.program);
    EXPECT_EQ(messages,
              (std::vector<std::string>{"Printing: Printing Page 2 of 2 Copy",
                                        "Printing: Printing Page 2 of 2", "Printing: Printing Page 1 of 2"}));
}

TEST(PrintCommands, WithoutAPrinterOnePageSaysNothingAndAllPagesSaySo) {
    RunningProgram run;
    run.program.run.NoPrinter = true;
    modPrint::mnuFilePrintPage_Click(run.program, PageId::frmP1);
    EXPECT_TRUE(run.surroundings.questions.Shown.empty());
    run.surroundings.questions.ExpectBox({"Printer Error 482. Printer not found.", Buttons::Ok, ""},
                                         Answer::Ok);
    modPrint::mnuFilePrintAll_Click(run.program);
    EXPECT_TRUE(run.surroundings.printers.Paper.Documents.empty());
}

TEST(PrintCommands, ACancelSendsWhatWasDrawnAndTheRunGoesOnTheNextOneEndsAtOnce) {
    RunningProgram run;
    PutLine(run, 0, 10, "x");
    bool pressed = false;
    run.surroundings.events.OnYield = [&] {
        auto* dialog = dynamic_cast<frmDialog*>(modWindows::Find(run.program, "frmDialog"));
        if (dialog != nullptr && !pressed) {
            pressed = true;
            dialog->cmdCancelPrint_Click(run.program);
        }
    };
    modPrint::mnuFilePrintAll_Click(run.program);
    EXPECT_TRUE(run.program.printing.PrintCancelled);
    EXPECT_EQ(run.surroundings.printers.Named.size(), 3U);
    modPrint::mnuFilePrintAll_Click(run.program);
    EXPECT_FALSE(run.program.printing.PrintCancelled);
    EXPECT_EQ(run.surroundings.printers.Named.size(), 3U);
    modPrint::mnuFilePrintAll_Click(run.program);
    EXPECT_EQ(run.surroundings.printers.Named.size(), 6U);
}

TEST(PrintCommands, AFileThatIsNotGivenEndsTheCommand) {
    RunningProgram run;
    run.surroundings.printers.Refuse = true;
    run.program.document.BaseName = "Ann";
    modPrint::mnuFilePrintPage_Click(run.program, PageId::frmP1);
    EXPECT_EQ(run.surroundings.printers.Commands.at(0).SuggestedFile, run.folder / "Proposals/Ann.pdf");
    EXPECT_TRUE(run.surroundings.printers.Paper.Documents.empty());
}

TEST(Preview, ChangesNothingOfTheProposal) {
    RunningProgram run;
    const auto before = run.program.pages[PageId::frmP1].txt;
    modPrint::TogglePreview(run.program);
    EXPECT_TRUE(run.program.pages[PageId::frmP1].InkShown);
    EXPECT_EQ(run.program.main.cmdPreview.Caption, "Resume Editing");
    EXPECT_FALSE(run.program.main[CommandId::mnuFilePrintPreview].Enabled);
    EXPECT_TRUE(run.program.main[CommandId::mnuFileResume].Enabled);
    EXPECT_EQ(run.program.pages[PageId::frmP1].txt, before);
    modPrint::TogglePreview(run.program);
    EXPECT_FALSE(run.program.pages[PageId::frmP1].InkShown);
    EXPECT_TRUE(run.program.main[CommandId::mnuFilePrintPreview].Enabled);
    EXPECT_FALSE(run.program.main[CommandId::mnuFileResume].Enabled);
}

} // namespace
