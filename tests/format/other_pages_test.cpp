#include "format/other_pages.h"

#include "format/assignment_lines.h"
#include "format/label_looks.h"
#include "proposal/lifecycle.h"
#include "proposal/property_file.h"
#include "proposal/proposal_open.h"
#include "proposal/proposal_save.h"
#include "proposal/reset.h"
#include "support/running_program.h"
#include "support/typist.h"

#include <gtest/gtest.h>

namespace {

constexpr std::string_view kLook =
    " .FontName=Times New Roman .FontBold=False .FontSize=8 .ForeColor=0 .FontItalic=False "
    ".FontUnderline=False\r\n";

std::string LabelLine(const std::string& label, const std::string& caption) {
    return label + ".Left=900 .Top=9000 .Caption=" + caption + std::string(kLook);
}

struct Proposals : RunningProgram {
    Proposals() { Reset(); }
    void Reset() { static_cast<void>(modReset::StartNewFile(program)); }
    void Under(const std::string& format) {
        folder.Write("Proposals/House.fmt", format);
        program.format.FormatOpen = true;
        program.format.FormatFolder = folder / "Proposals/";
        program.format.FormatName = "House.fmt";
        Reset();
    }
    void UnderNone() {
        program.format.FormatOpen = false;
        program.format.FormatName.clear();
        Reset();
    }
    void WriteOne() {
        Typist typist(program);
        typist.Click(PageId::frmP1, 2);
        typist.Type("Jane Roe");
        surroundings.questions.Expect("File was saved as Jane Roe.hef");
        ASSERT_EQ(modFile::SaveEventFile(program), modFile::SaveResult::Saved);
    }
    void OpenIt() {
        Reset();
        program.main.Notice.clear();
        program.document.FilePath = folder / "Proposals/";
        ASSERT_EQ(modFile::OpenEventFile(program, "Jane Roe.hef"), modFile::OpenResult::Opened);
        modFile::ReadFileProperties(program);
    }
};

const std::string kWords = LabelLine("frmP1.lbl(9)", "Day") + LabelLine("frmP6.lbl(13)", "Paid by noon.") +
                           LabelLine("frmP6.lbl(47)", "The end.") + LabelLine("frmP6.lbl(48)", "Signed");

TEST(OtherPages, WordsThatALaterFormatGivesAnOldProposalAreTold) {
    Proposals run;
    run.WriteOne();
    run.Under(kWords);
    run.surroundings.questions.Expect(
        "The format House.fmt rewords 4 captions of Jane Roe.hef, 2 of them in the contract.\r\n"
        "Its own layout says nothing of these; they may not read as when it was saved.\r\n"
        "To have it without the format, choose Clear Current Format and open it again.");
    run.OpenIt();
    EXPECT_EQ(run.Label(PageId::frmP6, 13).Caption, "Paid by noon.");
    EXPECT_FALSE(modFile::PropertiesChanged(run.program));
    EXPECT_FALSE(modProposal::SomethingChanged(run.program));
    run.UnderNone();
    const std::string builtIn = run.Label(PageId::frmP6, 13).Caption;
    run.OpenIt();
    EXPECT_EQ(run.Label(PageId::frmP6, 13).Caption, builtIn) << "and the way that was named leads there";
}

TEST(OtherPages, OnlyWhatTheProposalsOwnLayoutDoesNotSayIsTold) {
    Proposals run;
    run.Under(LabelLine("frmP1.lbl(9)", "Day"));
    run.WriteOne();
    run.OpenIt();
    EXPECT_EQ(run.program.main.Notice, "") << "nothing is other than it was saved";
    run.Under(LabelLine("frmP1.lbl(9)", "Date") + LabelLine("frmP1.lbl(10)", "Hour"));
    run.surroundings.questions.Expect(
        "The format House.fmt rewords 1 caption of Jane Roe.hef.\r\n"
        "Its own layout says nothing of these; they may not read as when it was saved.\r\n"
        "To have it without the format, choose Clear Current Format and open it again.");
    run.OpenIt();
    EXPECT_EQ(run.Label(PageId::frmP1, 9).Caption, "Day");
    EXPECT_EQ(run.Label(PageId::frmP1, 10).Caption, "Hour");
}

TEST(OtherPages, AnotherPlaceIsToldInTheStripAndTitlesAreTheProposalsOwn) {
    Proposals run;
    run.WriteOne();
    const std::string words = run.Label(PageId::frmP1, 9).Caption;
    run.Under(LabelLine("frmP1.lbl(9)", words));
    run.OpenIt();
    EXPECT_EQ(run.program.main.Notice, "Labels stand as in House.fmt, perhaps not as they were saved.");
    run.Under(LabelLine("frmP1.lbl(33)", "Proposal for Nobody") + LabelLine("frmP3.lbl(0)", "Page 9"));
    run.OpenIt();
    EXPECT_EQ(run.program.main.Notice, "");
}

TEST(OtherPages, ALineThatLaysALabelAsItWasTellsNothing) {
    Proposals run;
    run.WriteOne();
    const std::string own = assignment::LabelLine(0, 9, modDesigner::LookOf(run.Label(PageId::frmP1, 9)));
    run.Under(LabelLine("frmP1.lbl(9)", "Day") + own + "\r\n");
    run.OpenIt();
    EXPECT_EQ(run.program.main.Notice, "");
}

} // namespace
