#include "program/line_printing.h"

#include "support/settled.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <utility>
#include <vector>

namespace {

/// A text and where it stands on the paper, in twips.
struct Placed {
    std::string Text;
    float X = 0;
    float Y = 0;
    bool operator==(const Placed&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Placed& placed) {
    return out << '"' << placed.Text << "\" at " << placed.X << ", " << placed.Y;
}

const Placed kNewPage{"(new page)", 0, 0};

/// Paper of twenty characters and five lines: a character is 100 twips wide, a line 200 high.
struct Small : Settled {
    Small() {
        surroundings.printers.Paper.ScaleWidth = 2200;
        surroundings.printers.Paper.ScaleHeight = 1300;
        sheet.Left = 100;
        sheet.Top = 200;
        sheet.Right = 100;
        sheet.Bottom = 100;
        sheet.TabStop = 1000;
        sheet.Font = {"Courier", 10, true, true};
    }
    modLines::Printed Print(const std::vector<std::string>& lines) {
        return modLines::PrintLines(program, {"Notes", "Jane Roe"}, lines, sheet);
    }
    /// What stands on the paper after these lines.
    std::vector<Placed> OnPaper(const std::vector<std::string>& lines) {
        EXPECT_EQ(Print(lines), modLines::Printed::Done);
        std::vector<Placed> placed;
        for (const DrawCall& call : surroundings.printers.Paper.Documents.back()) {
            if (call.Op == DrawCall::What::Print) {
                placed.push_back({call.Text, call.X, call.Y});
            } else if (call.Op == DrawCall::What::NewPage) {
                placed.push_back(kNewPage);
            }
        }
        return placed;
    }
    modLines::Sheet sheet;
};

using Paper = std::vector<Placed>;

TEST(LinePrinting, LinesFollowEachOtherInTheSheetsFont) {
    Small run;
    RecordingPrinter& printer = run.surroundings.printers.Paper;
    printer.FontSize = 24;
    printer.FontUnderline = true;
    printer.ForeColor = 255;
    EXPECT_EQ(run.OnPaper({"one", "", "three"}),
              (Paper{{"one", 100, 200}, {"", 100, 400}, {"three", 100, 600}}));
    for (const DrawCall& call : printer.Documents.back()) {
        EXPECT_EQ(call.Font, "Courier");
        EXPECT_EQ(call.FontSize, 10.0F);
        EXPECT_TRUE(call.Bold);
        EXPECT_TRUE(call.Italic);
        EXPECT_FALSE(call.Underline);
        EXPECT_EQ(call.ForeColor, colors::kBlack);
    }
}

TEST(LinePrinting, ALineTooLongIsWrappedBehindABlank) {
    Small run;
    const std::string twenty(20, 'a');
    EXPECT_EQ(run.OnPaper({twenty, twenty + "b", "aaaaaaaaaaaaaaa bbbbbbbb"}),
              (Paper{{twenty, 100, 200},
                     {twenty, 100, 400},
                     {"b", 100, 600},
                     {"aaaaaaaaaaaaaaa ", 100, 800},
                     {"bbbbbbbb", 100, 1000}}));
}

TEST(LinePrinting, TheLineThatWouldComeTooLowBeginsANewPage) {
    Small run;
    EXPECT_EQ(run.OnPaper({"1", "2", "3", "4", "5", "6", "7"}), (Paper{{"1", 100, 200},
                                                                       {"2", 100, 400},
                                                                       {"3", 100, 600},
                                                                       {"4", 100, 800},
                                                                       {"5", 100, 1000},
                                                                       kNewPage,
                                                                       {"6", 100, 200},
                                                                       {"7", 100, 400}}));
}

TEST(LinePrinting, ATabGoesToTheNextStopAndFromTheLastOneToTheNextLine) {
    Small run;
    EXPECT_EQ(run.OnPaper({"ab\tcd\tef", "next"}),
              (Paper{{"ab", 100, 200}, {"cd", 1100, 200}, {"ef", 100, 400}, {"next", 100, 600}}));
    EXPECT_EQ(run.OnPaper({"\tab", "0123456789\t"}), // the ten characters end at the first stop
              (Paper{{"ab", 1100, 200}, {"0123456789", 100, 400}, {"", 100, 600}}));
}

TEST(LinePrinting, WordsTooLongForTheRestOfALineStandOnTheNext) {
    Small run;
    EXPECT_EQ(run.OnPaper({"ab\t0123456789\tz"}),
              (Paper{{"ab", 100, 200}, {"0123456789", 1100, 200}, {"z", 100, 400}}));
    EXPECT_EQ(run.OnPaper({"ab\t0123456789a\tz"}),
              (Paper{{"ab", 100, 200}, {"0123456789a", 100, 400}, {"z", 100, 600}}));
}

TEST(LinePrinting, WordsTooLongForAWholeLineAreWrappedWhereTheyBegin) {
    Small run;
    EXPECT_EQ(run.OnPaper({"aaaaaaaaaaaaaaa bbbbbbbb\tz"}),
              (Paper{{"aaaaaaaaaaaaaaa ", 100, 200}, {"bbbbbbbb", 100, 400}, {"z", 1100, 400}}));
}

TEST(LinePrinting, WhatStandsBehindTheLastTabIsWrappedWithinItsColumn) {
    Small run;
    EXPECT_EQ(run.OnPaper({"ab\tcccccccc dddddd", "next"}),
              (Paper{{"ab", 100, 200}, {"cccccccc ", 1100, 200}, {"dddddd", 1100, 400}, {"next", 100, 600}}));
}

TEST(LinePrinting, IsOneCommandOfOneDocumentNamedForWhoseItIs) {
    Small run;
    run.program.document.FilePath = "/srv/Proposals/";
    EXPECT_EQ(run.Print({"one"}), modLines::Printed::Done);
    const RecordingPrinters& printers = run.surroundings.printers;
    ASSERT_EQ(printers.Commands.size(), 1U);
    EXPECT_EQ(printers.Commands[0].SuggestedFile, "/srv/Proposals/Jane Roe, Notes.pdf");
    EXPECT_EQ(printers.Named, (std::vector<std::pair<std::string, int>>{{"Notes", 0}}));
    EXPECT_EQ(printers.Paper.Documents.size(), 1U);
    EXPECT_EQ(printers.Ended, 1);
    EXPECT_FALSE(run.program.printing.CommandRunning);
}

TEST(LinePrinting, WithoutAProposalAndAClientTheDataFolderIsSuggested) {
    Small run;
    run.program.folders.ProposalsFolder = "/srv/data/";
    EXPECT_EQ(modLines::PrintLines(run.program, {"Dates"}, {"one"}, run.sheet), modLines::Printed::Done);
    EXPECT_EQ(run.surroundings.printers.Commands.at(0).SuggestedFile, "/srv/data/Dates.pdf");
}

TEST(LinePrinting, WithoutAPrinterOrAFileNothingIsPrinted) {
    Small noted;
    noted.program.run.NoPrinter = true;
    EXPECT_EQ(noted.Print({"one"}), modLines::Printed::NoPrinter);
    Small none;
    none.surroundings.printers.CurrentDevice.clear();
    EXPECT_EQ(none.Print({"one"}), modLines::Printed::NoPrinter);
    Small refused;
    refused.surroundings.printers.Refuse = true;
    EXPECT_EQ(refused.Print({"one"}), modLines::Printed::Refused);
    Small underWay;
    underWay.program.printing.CommandRunning = true;
    EXPECT_EQ(underWay.Print({"one"}), modLines::Printed::Refused);
    EXPECT_TRUE(underWay.program.printing.CommandRunning);
    for (const Small* run : {&noted, &none, &refused, &underWay}) {
        EXPECT_TRUE(run->surroundings.printers.Paper.Calls.empty());
        EXPECT_TRUE(run->surroundings.printers.Paper.Documents.empty());
        EXPECT_EQ(run->surroundings.printers.Ended, 0);
    }
}

} // namespace
