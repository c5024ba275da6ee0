#include "format/format_file.h"

#include "editing/columns.h"
#include "format/format_commands.h"
#include "format/format_lines.h"
#include "format/format_save.h"
#include "format/label_designer.h"
#include "format/label_looks.h"
#include "format/property_file.h"
#include "pages/company_block.h"
#include "pages/page_geometry.h"
#include "pages/row_fields.h"
#include "program/keys.h"
#include "program/windows.h"
#include "proposal/lifecycle.h"
#include "proposal/property_file.h"
#include "proposal/proposal_open.h"
#include "proposal/proposal_save.h"
#include "proposal/reset.h"
#include "support/running_program.h"
#include "support/sequences.h"
#include "support/typist.h"

#include <gtest/gtest.h>
#include <random>
#include <utility>

namespace {

struct Laid : RunningProgram {
    /// Lays lines as the file of the open format.
    void Lay(const std::vector<std::string>& lines) {
        std::string bytes;
        for (const std::string& line : lines) {
            bytes += line + "\r\n";
        }
        folder.Write("Proposals/House.fmt", bytes);
        program.format.FormatOpen = true;
        program.format.FormatFolder = folder / "Proposals/";
        program.format.FormatName = "House.fmt";
        static_cast<void>(modReset::StartNewFile(program));
    }
    void Open(const std::string& name) {
        static_cast<void>(modReset::StartNewFile(program));
        program.document.FilePath = folder / "Proposals/";
        ASSERT_EQ(modFile::OpenEventFile(program, name), modFile::OpenResult::Opened);
        modFile::ReadFileProperties(program);
    }
    [[nodiscard]] std::string Figure(int index) { return TextOf(PageId::frmP6, index); }
};

TEST(FormatFile, ABoldStaysInForceForTheTextsAndMarksBehindIt) {
    Laid run;
    run.Lay({"frmP1.txt(8).FontBold=True", "frmP1.txt(9).Text=Hall", "frmP1.txt(20).TaxExempt=True",
             "frmP1.txt(8).FontBold=False", "frmP1.txt(10).Text=Arch"});
    EXPECT_TRUE(run.Area(PageId::frmP1, 8).FontBold) << "a False is ignored";
    EXPECT_TRUE(run.Area(PageId::frmP1, 9).FontBold);
    EXPECT_TRUE(run.Area(PageId::frmP1, 20).FontBold);
    EXPECT_FALSE(run.Area(PageId::frmP1, 10).FontBold);
    EXPECT_EQ(run.TextOf(PageId::frmP1, 9), "Hall");
    EXPECT_EQ(run.program.pages[PageId::frmP1].imgNoTax[20].Tag, "");
    EXPECT_TRUE(run.program.format.PropTextChanges[PageId::frmP1][9].FontBold);
}

TEST(FormatFile, AMarkTouchesAmountsOnly) {
    Laid run;
    run.Lay({"frmP1.txt(10).TaxExempt=True", "frmP2.txt(33).TaxExempt=True"});
    EXPECT_EQ(run.program.pages[PageId::frmP1].imgNoTax[10].Tag, kHide);
    EXPECT_EQ(run.program.pages[PageId::frmP2].imgNoTax[33].Tag, "");
    EXPECT_TRUE(run.program.format.FormatTextChanges[PageId::frmP2][33].TaxExempt);
}

TEST(FormatFile, AnAmountThatItMarksExemptIsSavedAsExempt) {
    Laid run;
    run.program.totals.TaxRate = 0.1F;
    run.Lay({"frmP2.txt(33).TaxExempt=True"});
    Typist typist(run.program);
    typist.Click(PageId::frmP1, 2);
    typist.Type("Jane Roe");
    typist.Click(PageId::frmP2, 33);
    typist.Type("50");
    typist.Click(PageId::frmP2, 0);
    typist.Type("Hall");
    typist.Click(PageId::frmP1, 3);
    EXPECT_EQ(run.Figure(0), "50.00");
    EXPECT_EQ(run.Figure(3), "50.00") << "no tax on it";
    run.surroundings.questions.Expect("File was saved as Jane Roe.hef");
    ASSERT_EQ(modFile::SaveEventFile(run.program), modFile::SaveResult::Saved);
    run.Open("Jane Roe.hef");
    EXPECT_EQ(run.program.pages[PageId::frmP2].imgNoTax[33].Tag, "");
    EXPECT_EQ(run.Figure(3), "50.00");
}

TEST(FormatFile, ARowsProductCountsAtOnceAndNothingIsUnsaved) {
    Laid run;
    run.Lay({"frmP1.txt(2).Text=Jane Roe", "frmP2.txt(0).Text=Chairs",
             "frmP2.txq(0).QtyBox=True .QtyValue=3 .AmtValue=5.50"});
    EXPECT_EQ(run.TextOf(PageId::frmP2, 33), "16.50");
    EXPECT_EQ(run.Figure(0), "16.50");
    EXPECT_EQ(run.Label(PageId::frmP2, 1).Tag, "");
    EXPECT_EQ(run.program.document.FileName, "Jane Roe.hef");
    EXPECT_EQ(run.Label(PageId::frmP1, 33).Caption, "Proposal for Jane Roe");
    EXPECT_FALSE(modProposal::SomethingChanged(run.program));
    EXPECT_FALSE(modFile::PropertiesChanged(run.program));
}

TEST(FormatFile, AClientsNameMakesTheProposalsNamesAsTypingDoes) {
    Laid laid;
    laid.Lay({"frmP1.txt(2).Text= Jane Roe  "});
    Laid typed;
    Typist typist(typed.program);
    typist.Click(PageId::frmP1, 2);
    typist.Type(" Jane Roe  ");
    const DocumentState& one = laid.program.document;
    const DocumentState& other = typed.program.document;
    EXPECT_EQ(one.FileName, "Jane Roe.hef");
    EXPECT_EQ(one.FileName, other.FileName);
    EXPECT_EQ(one.BaseName, other.BaseName);
    EXPECT_EQ(one.DepositFile, other.DepositFile);
    EXPECT_EQ(one.FootnoteFile, other.FootnoteFile);
    EXPECT_EQ(one.TextFileName, other.TextFileName);
    EXPECT_EQ(one.ClientCaption, other.ClientCaption);
    EXPECT_EQ(one.HasClient, other.HasClient);
    EXPECT_EQ(laid.Label(PageId::frmP4, 36), typed.Label(PageId::frmP4, 36));
}

TEST(FormatFile, LabelsOfTheFinalPageReachBothCopiesButForTheTitlesWords) {
    Laid run;
    run.Lay(
        {"frmP6.lbl(49).Left=800 .Top=13000 .Caption=Sign here .FontName=Arial .FontBold=True .FontSize=11 "
         ".ForeColor=255 .FontItalic=False .FontUnderline=True",
         "frmP6.lbl(64).Left=700 .Top=15000 .Caption=Ours .FontName=Arial .FontBold=True .FontSize=11 "
         ".ForeColor=255 .FontItalic=False .FontUnderline=True"});
    for (const PageId page : {PageId::frmP6, PageId::frmP6_1}) {
        EXPECT_EQ(run.Label(page, 49).Caption, "Sign here");
        EXPECT_EQ(run.Label(page, 49).FontUnderline, true);
        EXPECT_EQ(run.Label(page, 64).Left, 700) << "somebody has put it there";
    }
    EXPECT_EQ(run.Label(PageId::frmP6, 64).Caption, "Proposal for (Client's Name) - Our Copy");
    EXPECT_EQ(run.Label(PageId::frmP6_1, 64).Caption, "Proposal for (Client's Name) - Client's Copy");
}

TEST(FormatFile, ALineForTheClientsCopyReachesNeitherCopy) {
    Laid run;
    const PageLabel before = run.Label(PageId::frmP6, 49);
    run.Lay(
        {"frmP6_1.lbl(49).Left=800 .Top=13000 .Caption=Sign here .FontName=Arial .FontBold=True .FontSize=11 "
         ".ForeColor=255 .FontItalic=False .FontUnderline=True"});
    for (const PageId page : {PageId::frmP6, PageId::frmP6_1}) {
        EXPECT_EQ(run.Label(page, 49).Caption, before.Caption);
        EXPECT_EQ(run.Label(page, 49).Left, before.Left);
    }
}

TEST(FormatFile, ASignThatIsNoWordBecomesTheSymbolInForceAndStaysHidden) {
    Laid run;
    run.program.settings.CurrencySymbol = "\x80";
    run.Lay({"frmP1.lbl(21).Left=9800 .Top=10260 .Caption=$ .FontName=Arial .FontBold=False .FontSize=30 "
             ".ForeColor=255 .FontItalic=False .FontUnderline=False",
             "frmP1.lbl(22).Left=9800 .Top=10620 .Caption=EUR .FontName=Arial .FontBold=False .FontSize=9 "
             ".ForeColor=255 .FontItalic=False .FontUnderline=False"});
    EXPECT_EQ(run.Label(PageId::frmP1, 21).Caption, "\x80");
    EXPECT_EQ(run.Label(PageId::frmP1, 21).Tag, kHide);
    EXPECT_EQ(run.Label(PageId::frmP1, 21).FontSize, 10) << "a sign has the areas' font";
    EXPECT_EQ(run.Label(PageId::frmP1, 22).Caption, "EUR");
}

TEST(FormatFile, ABadLineIsPassedOverAndABadValueLeavesTheOneBefore) {
    Laid run;
    const std::string good =
        "frmP1.lbl(9).Left=100 .Top=200 .Caption=A .FontName=Arial .FontBold=True .FontSize=12 "
        ".ForeColor=255 .FontItalic=False .FontUnderline=False";
    const std::string bad =
        "frmP1.lbl(10).Left=x .Top=300 .Caption=B .FontName=Arial .FontBold=True .FontSize=999 .ForeColor=1 "
        ".FontItalic=False .FontUnderline=False";
    run.Lay({good, "frmP9.lbl(9).Left=5", "frmP1.lbl(99).Left=5", "rubbish", bad});
    EXPECT_EQ(run.Label(PageId::frmP1, 10).Left, 100);
    EXPECT_EQ(run.Label(PageId::frmP1, 10).Top, 300);
    EXPECT_EQ(run.Label(PageId::frmP1, 10).FontSize, 12);
}

TEST(FormatFile, ProtectsItsTextsWhenOverwritingIsOff) {
    Laid run;
    run.program.format.OverwriteFormatText = false;
    run.folder.Write("Proposals/Jane Roe.hef", ReadTestData("jane_roe/Jane Roe.hef"));
    run.Lay({"frmP1.txt(9).Text=By the lake", "frmP1.txt(8).Text=Hall"});
    EXPECT_TRUE(run.Area(PageId::frmP1, 9).Locked);
    EXPECT_FALSE(run.Area(PageId::frmP1, 3).Locked);
    run.Open("Jane Roe.hef");
    EXPECT_EQ(run.TextOf(PageId::frmP1, 9), "By the lake") << "the proposal has nothing to put there";
    EXPECT_TRUE(run.Area(PageId::frmP1, 9).Locked);
    EXPECT_EQ(run.TextOf(PageId::frmP1, 8), "Garden Hall");
    EXPECT_FALSE(run.Area(PageId::frmP1, 8).Locked);
}

TEST(FormatFile, AnOpenedProposalIsTheSameUnderAFormatThatFillsEveryRow) {
    const auto rows = [](bool format) {
        Laid run;
        run.folder.Write("Proposals/Jane Roe.hef", ReadTestData("jane_roe/Jane Roe.hef"));
        if (format) {
            std::vector<std::string> lines;
            for (int page = 0; page < 5; ++page) {
                for (int index = 0; index <= geometry::LastText(PageAt(page)); ++index) {
                    for (const char* value : {".txt(%).Text=7", ".txt(%).TaxExempt=True",
                                              ".txq(%).QtyBox=True .QtyValue=2 .AmtValue=3"}) {
                        std::string line = "frmP" + std::to_string(page + 1) + value;
                        line.replace(line.find('%'), 1, std::to_string(index));
                        lines.push_back(std::move(line));
                    }
                }
            }
            run.Lay(lines);
            EXPECT_NE(run.Figure(0), "");
        }
        run.Open("Jane Roe.hef");
        std::vector<std::string> all;
        for (const PageId page : kEditedPages) {
            const Page& record = run.program.pages[page];
            for (std::size_t index = 0; index < record.txt.size(); ++index) {
                all.push_back(record.txt[index].Text);
                if (IsLinePage(page)) {
                    all.push_back(record.imgNoTax[index].Tag);
                    const auto& props = run.program.format.PropTextChanges[page][index];
                    const auto& kept = run.program.format.FormatTextChanges[page][index];
                    for (const TextChangeRecord* table : {&props, &kept}) {
                        all.push_back(table->Text + '|' + table->QtyValue + '|' + table->AmtValue +
                                      (table->QtyBox ? "q" : "") + (table->TaxExempt ? "x" : ""));
                        EXPECT_EQ(table->QtyBox,
                                  geometry::IsDescription(page, static_cast<int>(index)) &&
                                      modPages::ColumnsOn(run.program, page, static_cast<int>(index)))
                            << index;
                    }
                }
            }
            for (std::size_t row = 0; row < record.txtQty.size(); ++row) {
                all.push_back(record.txtQty[row].Tag + record.txtQty[row].Text + record.txtAmt[row].Text);
            }
            for (const PageLabel& label : record.lbl) {
                all.push_back(label.Tag);
            }
        }
        return all;
    };
    EXPECT_EQ(rows(true), rows(false));
}

TEST(FormatFile, AFormatsLogoIsShownOrItsLossIsToldOnce) {
    Laid run;
    const std::string picture = run.folder / "logo.png";
    run.folder.Write("logo.png", "x");
    run.surroundings.pictures.Known[picture] = {1500, 900};
    run.program.settings.LogoVisible = true;
    run.Lay({"frmP1.pic.Picture=logo.png .Left=360 .Top=540"});
    const PagePicture& logo = run.program.pages[PageId::frmP1].pic;
    EXPECT_EQ(logo.Picture.Path, picture) << "a bare name is looked for in the program folder";
    EXPECT_EQ(logo.Left, 360);
    EXPECT_EQ(logo.Top, 540);
    EXPECT_TRUE(logo.Visible);
    EXPECT_TRUE(run.program.format.LogoChanged);
    EXPECT_FALSE(run.program.format.LogoPending);
    run.surroundings.questions.Expect("The logo gone.png could not be shown; the format goes without it.");
    run.Lay({"frmP1.pic.Picture=gone.png .Left=1 .Top=2"});
    EXPECT_FALSE(logo.Visible);
    EXPECT_EQ(logo.Tag, kHide);
    EXPECT_EQ(run.program.format.LogoPath, "gone.png");
    run.Lay({"frmP1.pic.Picture=gone.png .Left=1 .Top=2"});
}

TEST(FormatFile, WithoutALogoLeavesTheSettings) {
    Laid run;
    const std::string picture = run.folder / "ours.png";
    run.folder.Write("ours.png", "x");
    run.surroundings.pictures.Known[picture] = {20000, 900};
    run.program.settings.LogoVisible = true;
    run.program.settings.LogoFile = picture;
    run.program.settings.LogoLeft = 77;
    run.Lay({"frmP1.txt(8).Text=Hall"});
    const PagePicture& logo = run.program.pages[PageId::frmP1].pic;
    EXPECT_TRUE(logo.Visible);
    EXPECT_EQ(logo.Left, 77);
    EXPECT_EQ(logo.Size.Width, 10800) << "a picture too large is scaled into the box";
    EXPECT_FLOAT_EQ(logo.Size.Height, 486);
    EXPECT_EQ(run.program.format.LogoPath, "");
}

TEST(PropertyLines, AFaultEndsTheReadingAndTheFileIsKept) {
    Laid run;
    run.folder.Write("Proposals/Jane Roe.hef", ReadTestData("jane_roe/Jane Roe.hef"));
    run.folder.Write(
        "Proposals/Jane Roe.hpf",
        "frmP1.txt(10).FontBold=True\r\nfrmP1.lbl(9).Left=far\r\nfrmP1.txt(11).FontBold=True\r\n");
    run.surroundings.questions.Expect("The layout of this proposal was read only up to line 1.");
    run.Open("Jane Roe.hef");
    EXPECT_TRUE(run.Area(PageId::frmP1, 10).FontBold);
    EXPECT_FALSE(run.Area(PageId::frmP1, 11).FontBold);
    run.program.format.PropTextChanges[PageId::frmP1][10].Dirty = true;
    run.surroundings.questions.Expect("File was saved as Jane Roe.hef");
    ASSERT_EQ(modFile::SaveEventFile(run.program), modFile::SaveResult::Saved);
    EXPECT_NE(run.folder.Read("Proposals/Jane Roe.hpf.unread").find("Left=far"), std::string::npos);
    EXPECT_EQ(run.folder.Read("Proposals/Jane Roe.hpf").find("Left=far"), std::string::npos);
}

TEST(PropertyLines, WhatAClientWasSentLooksTheSameWithoutTheFormat) {
    Laid run;
    run.Lay({"frmP1.lbl(9).Left=100 .Top=200 .Caption=Day .FontName=Arial .FontBold=True .FontSize=12 "
             ".ForeColor=255 .FontItalic=False .FontUnderline=False",
             "frmP1.txt(10).FontBold=True"});
    Typist typist(run.program);
    typist.Click(PageId::frmP1, 2);
    typist.Type("Jane Roe");
    run.surroundings.questions.Expect("File was saved as Jane Roe.hef");
    ASSERT_EQ(modFile::SaveEventFile(run.program), modFile::SaveResult::Saved);
    run.program.format.FormatOpen = false;
    run.program.format.FormatName.clear();
    run.Open("Jane Roe.hef");
    EXPECT_EQ(run.Label(PageId::frmP1, 9).Caption, "Day");
    EXPECT_EQ(run.Label(PageId::frmP1, 9).Left, 100);
    EXPECT_TRUE(run.Area(PageId::frmP1, 10).FontBold);
    EXPECT_FALSE(modFile::PropertiesChanged(run.program));
    EXPECT_FALSE(modProposal::SomethingChanged(run.program));
}

TEST(PropertyLines, SayThatAnAreaWhichItsFormatMakesBoldIsNot) {
    Laid run;
    run.Lay({"frmP1.txt(10).FontBold=True"});
    run.program.format.PropTextChanges[PageId::frmP1][10].FontBold = false;
    const auto lines = modProperties::PropertyLinesNow(run.program);
    ASSERT_FALSE(lines.empty());
    EXPECT_EQ(lines[0], "frmP1.txt(10).FontBold=False");
    run.program.format.PropertyLines = lines;
    modProperties::ParsePropertyFile(run.program);
    EXPECT_FALSE(run.Area(PageId::frmP1, 10).FontBold);
}

TEST(PropertyLines, SayWhichRowsHaveColumnsAndWhichAreasAreBold) {
    Laid run;
    Typist typist(run.program);
    for (const int row : {4, 32}) { // 32 is the last
        typist.Click(PageId::frmP2, row);
        typist.Press(keys::kF8);
    }
    run.program.format.PropTextChanges[PageId::frmP2][65].FontBold = true; // the last of its page
    const auto lines = modProperties::PropertyLinesNow(run.program);
    ASSERT_GE(lines.size(), 3U);
    const std::vector<std::string> areas(lines.begin(), lines.begin() + 3);
    EXPECT_EQ(areas, (std::vector<std::string>{"frmP2.txt(65).FontBold=True", "frmP2.txq(4).QtyBox=True",
                                               "frmP2.txq(32).QtyBox=True"}));
    for (std::size_t line = 3; line < lines.size(); ++line) {
        EXPECT_EQ(lines[line].find(".tx"), std::string::npos) << lines[line];
    }
}

TEST(PropertyLines, SpeakOfNoFontWithoutAName) {
    Laid run;
    EXPECT_TRUE(modProperties::PropertyLinesNow(run.program).back().starts_with("UDP."));
    run.program.run.DefaultFontName.clear();
    for (const std::string& line : modProperties::PropertyLinesNow(run.program)) {
        EXPECT_FALSE(line.starts_with("UDP.")) << line;
    }
}

TEST(PropertyLines, ValuesThatTheyCannotHoldAreToldByASaveAndNotByABackup) {
    Laid run;
    run.program.format.PropLabelChanges[PageId::frmP1][9].Changed = true;
    run.Label(PageId::frmP1, 9).Caption = "a .FontSize=b";
    run.program.run.DefaultFontName = "a .FontColor=b";
    run.program.document.BackingUp = true;
    modProperties::AssignPropChanges(run.program);
    run.program.document.BackingUp = false;
    run.surroundings.questions.ExpectBox({"The caption \"a .FontSize=b\" cannot be kept in a format.\r\n"
                                          "The font name \"a .FontColor=b\" cannot be kept in a format.",
                                          Buttons::Ok, ""},
                                         Answer::Ok);
    modProperties::AssignPropChanges(run.program);
    run.surroundings.questions.Done();
}

TEST(PropertyLines, BringTitleAndHeadingBack) {
    Laid run;
    run.program.format.PropertyLines = {
        "frmP1.lbl(33).Left=5000 .Top=15030 .Caption=The Roe Wedding .FontName=Arial .FontBold=True "
        ".FontSize=9 "
        ".ForeColor=0 .FontItalic=False .FontUnderline=False",
        "frmP2.lbl(0).Left=3000 .Top=540 .Caption=Ours - Page 2 .FontName=Arial .FontBold=False .FontSize=15 "
        ".ForeColor=0 .FontItalic=False .FontUnderline=False"};
    modProperties::ParsePropertyFile(run.program);
    EXPECT_EQ(run.program.document.ClientCaption, "The Roe Wedding");
    EXPECT_TRUE(run.program.document.TitleGiven);
    EXPECT_EQ(run.program.document.PageHeading, "Ours - ");
    EXPECT_EQ(run.Label(PageId::frmP6_1, 64).Caption, "The Roe Wedding - Client's Copy");
    EXPECT_EQ(run.Label(PageId::frmP1, 33).Left, 5000);
    Typist typist(run.program);
    typist.Click(PageId::frmP1, 2);
    typist.Type("Jane");
    EXPECT_EQ(run.Label(PageId::frmP1, 33).Caption, "The Roe Wedding") << "given words stay";
}

/// A state that a person can bring about, by the tables and pages it leaves.
class States {
public:
    States(Laid& run, unsigned seed) : run_(run), random_(seed) {}

    void Make(int changes) {
        for (int change = 0; change < changes; ++change) {
            One();
        }
    }

private:
    int Below(int bound) { return static_cast<int>(random_() % static_cast<unsigned>(bound)); }
    bool Flip() { return Below(2) == 0; }
    std::string Word() {
        static const std::array<const char*, 7> kWords{"Hall",      "two  blanks", " lead", "a.b",
                                                       "\xC9t\xE9", "$",           "12"};
        return kWords[static_cast<std::size_t>(Below(static_cast<int>(kWords.size())))];
    }
    /// The words of a title are the proposal's, and a lone currency sign is none of a person's captions.
    std::string Caption(PageId page, int label) {
        const std::string word = Word();
        return label == geometry::TitleLabel(page) || word == "$"
                   ? run_.program.pages[page].lbl[static_cast<std::size_t>(label)].Caption
                   : word;
    }
    void One() {
        Program& program = run_.program;
        const PageId page = PageAt(Below(kLinePageCount));
        const auto at = static_cast<std::size_t>(IndexOf(page));
        const int index = Below(geometry::LastText(page) + 1);
        const auto area = static_cast<std::size_t>(index);
        switch (Below(6)) {
        case 0:
            if (!geometry::IsAmount(page, index) && !(page == PageId::frmP1 && index == 2)) {
                program.pages[page].txt[area].Text = Word();
            }
            break;
        case 1: {
            const bool bold = Flip();
            program.pages[page].txt[area].FontBold = bold;
            program.format.PropTextChanges.Each[at][area].FontBold = bold;
            program.format.FormatTextChanges.Each[at][area].FontBold = bold;
            break;
        }
        case 2:
            if (geometry::IsAmount(page, index)) {
                modPages::SetNoTaxMark(program, page, index,
                                       Flip() ? modPages::Mark::Shown : modPages::Mark::Hidden);
            }
            break;
        case 3:
            if (geometry::IsDescription(page, index)) {
                modPages::PlaceColumns(program, page, index,
                                       Flip() ? modPages::Columns::On : modPages::Columns::Off);
                program.pages[page].txtQty[area].Text = Flip() ? "3" : "";
                program.pages[page].txtAmt[area].Text = Flip() ? "1,5" : "Amt.";
            }
            break;
        default: {
            const PageId edited = PageAt(Below(kEditedPageCount));
            const int label = Below(geometry::LastLabel(edited) + 1);
            LabelLook look;
            look.Left = static_cast<float>(Below(24000) - 6000) / static_cast<float>(1 + Below(7));
            look.Top = static_cast<float>(Below(16000)) / 3;
            look.Caption = Caption(edited, label);
            look.FontName = Flip() ? "Arial" : "Times New Roman";
            look.FontSize = static_cast<float>(6 + Below(30)) / 4 + 1;
            look.FontBold = Flip();
            look.ForeColor = static_cast<Color>(random_());
            look.FontItalic = Flip();
            look.FontUnderline = Flip();
            if (modDesigner::IsSignLabel(edited, label)) {
                // A currency sign has the areas' font, whatever was wanted for it.
                LabelLook own =
                    modDesigner::LookOf(program.pages[edited].lbl[static_cast<std::size_t>(label)]);
                own.Left = look.Left;
                own.Top = look.Top;
                look = own;
            }
            modDesigner::LayLabel(program, edited, label, look);
            LabelChangeRecord& record =
                modDesigner::RecordOf(program.format.FormatLabelChanges, edited, label);
            modDesigner::PutLook(record, look);
            record.Changed = true;
        }
        }
    }

    Laid& run_;
    std::mt19937 random_;
};

std::vector<std::string> Written(Program& program) {
    return modFormat::LinesOf(program, modFormat::TablesNow(program, modFormat::Texts::LayoutAndTexts)).Lines;
}

/// From a format that was read: changed, written, read and written again. The first line that differs.
std::string RoundTrip(Laid& run, const std::vector<std::string>& start, unsigned seed, int changes) {
    run.Lay(start);
    States(run, seed).Make(changes);
    const auto first = Written(run.program);
    run.Lay(first);
    const auto second = Written(run.program);
    for (std::size_t at = 0; at < std::max(first.size(), second.size()); ++at) {
        std::string one = at < first.size() ? first[at] : "(nothing)";
        const std::string other = at < second.size() ? second[at] : "(nothing)";
        if (one != other) {
            return one.append("\n").append(other);
        }
    }
    return "";
}

TEST(FormatFile, ComesBackByteForByteFromRandomStates) {
    const unsigned seeds = SequencesAsked(1000, 20000);
    constexpr int kMostChanges = 40;
    constexpr unsigned kStatesInARow = 10;
    Laid run;
    std::vector<std::string> start;
    for (unsigned seed = 1; seed <= seeds; ++seed) {
        if (seed % kStatesInARow == 1) {
            start.clear();
            run.program.format.FormatOpen = false;
            run.program.format.FormatName.clear();
            static_cast<void>(modReset::StartNewFile(run.program));
        }
        int changes = 1 + static_cast<int>(seed % kMostChanges);
        States(run, seed).Make(changes);
        const auto first = Written(run.program);
        run.Lay(first);
        if (Written(run.program) == first) {
            start = first;
            continue;
        }
        std::string difference = RoundTrip(run, start, seed, changes);
        for (std::string smaller = difference; !smaller.empty() && changes > 1;) {
            smaller = RoundTrip(run, start, seed, changes - 1); // the shortest state that still differs
            if (!smaller.empty()) {
                difference = smaller;
                --changes;
            }
        }
        FAIL() << "seed " << seed << ", " << changes << " changes\n" << difference;
    }
}

TEST(PropertyLines, ComeBackByteForByteFromRandomStates) {
    const unsigned seeds = SequencesAsked(500, 20000);
    Laid run;
    for (unsigned seed = 1; seed <= seeds; ++seed) {
        FormatRecords& format = run.program.format;
        format.FormatOpen = false;
        static_cast<void>(modReset::StartNewFile(run.program));
        States(run, seed).Make(static_cast<int>(seed % 40) + 1);
        format.PropLabelChanges = format.FormatLabelChanges;
        modColumns::CollectQtyBoxes(run.program);
        const auto first = modProperties::PropertyLinesNow(run.program);
        static_cast<void>(modReset::StartNewFile(run.program));
        format.PropertyLines = first;
        modProperties::ParsePropertyFile(run.program);
        ASSERT_FALSE(format.PropertyLinesRead) << "seed " << seed;
        ASSERT_EQ(modProperties::PropertyLinesNow(run.program), first) << "seed " << seed;
    }
}

TEST(CompanyLines, ThatAFormatCarriesChangeWithTheSettingsAndAreToSave) {
    Laid run;
    const std::string look = " .FontName=Arial .FontBold=False .FontSize=9 .ForeColor=0 .FontItalic=False "
                             ".FontUnderline=False";
    run.Lay({"frmP1.lbl(0).Left=1 .Top=2 .Caption=" + run.program.settings.CompanyName + look,
             "frmP1.lbl(1).Left=1 .Top=2 .Caption=Round the corner" + look});
    const SettingsRecords before = run.program.settings;
    run.program.settings.CompanyName = "Acme and Daughters";
    run.program.settings.CompanyAddress1 = "2 Main Street";
    run.surroundings.questions.Expect("The open format still carries the old lines on disk; save it.");
    modPages::CompanyInfoChanged(run.program, before);
    EXPECT_EQ(run.Label(PageId::frmP1, 0).Caption, "Acme and Daughters");
    EXPECT_EQ(run.Label(PageId::frmP1, 1).Caption, "Round the corner");
    EXPECT_EQ(run.program.format.FormatLabelChanges.Each[0][0].Caption, "Acme and Daughters");
    EXPECT_FALSE(run.program.format.FormatLabelChanges.Each[0][0].Saved);
}

TEST(PropertyLines, AFaultInALineOfAnyKindEndsTheReading) {
    for (const char* fault :
         {"frmP1.txt(10).FontBold=Perhaps", "frmP1.txq(12).QtyBox=Perhaps .QtyValue=2 .AmtValue=3",
          "frmP1.lbl(9).Left=far", "UDP.FontName=Arial .FontSize=big .FontColor=0 .FontItalic=False"}) {
        Laid run;
        run.folder.Write("Proposals/Jane Roe.hef", ReadTestData("jane_roe/Jane Roe.hef"));
        run.folder.Write("Proposals/Jane Roe.hpf", "frmP1.txt(12).FontBold=True\r\n" + std::string(fault) +
                                                       "\r\nfrmP1.txt(11).FontBold=True\r\n");
        run.surroundings.questions.Expect("The layout of this proposal was read only up to line 1.");
        run.Open("Jane Roe.hef");
        run.surroundings.questions.Done();
        EXPECT_TRUE(run.Area(PageId::frmP1, 12).FontBold) << fault;
        EXPECT_FALSE(run.Area(PageId::frmP1, 11).FontBold) << fault;
    }
}

TEST(PropertyLines, ARowWithColumnsAndNothingInThemChangesNoProposal) {
    Laid run;
    run.folder.Write("Proposals/Jane Roe.hef", ReadTestData("jane_roe/Jane Roe.hef"));
    run.folder.Write("Proposals/Jane Roe.hpf", "frmP5.txq(20).QtyBox=True\r\n");
    run.Open("Jane Roe.hef");
    ASSERT_TRUE(modPages::ColumnsOn(run.program, PageId::frmP5, 20));
    EXPECT_EQ(run.program.document.SavedTextBuf[PageId::frmP5][20],
              run.program.document.CurrentTextBuf[PageId::frmP5][20]);
    EXPECT_FALSE(modProposal::SomethingChanged(run.program));
}

TEST(PropertyLines, ALogoLineIsPassedOver) {
    Laid run;
    run.program.format.PropertyLines = {"frmP1.pic.Picture=/srv/logo.png .Left=1 .Top=2",
                                        "frmP1.txt(11).FontBold=True"};
    modProperties::ParsePropertyFile(run.program);
    EXPECT_FALSE(run.program.format.PropertyLinesRead);
    EXPECT_TRUE(run.Area(PageId::frmP1, 11).FontBold);
    EXPECT_EQ(run.program.format.LogoPath, "");
}

TEST(PropertyLines, AFileReadWholeAfterOneThatWasNotIsNotKeptAsUnread) {
    Laid run;
    run.folder.Write("Proposals/Jane Roe.hef", ReadTestData("jane_roe/Jane Roe.hef"));
    run.folder.Write("Proposals/Jane Roe.hpf", "frmP1.lbl(9).Left=far\r\n");
    run.surroundings.questions.Expect("The layout of this proposal was read only up to line 0.");
    run.Open("Jane Roe.hef");
    EXPECT_EQ(run.program.format.PropertyLinesRead, 0);
    run.folder.Write("Proposals/Jane Roe.hpf", "frmP1.txt(11).FontBold=True\r\n");
    run.Open("Jane Roe.hef");
    EXPECT_FALSE(run.program.format.PropertyLinesRead);
}

TEST(PropertyLines, ReadToTheEndLeaveNoCountOfThoseBeforeAFault) {
    Laid run;
    run.program.format.PropertyLines = {"frmP1.txt(11).FontBold=True", "frmP1.lbl(9).Left=far"};
    run.surroundings.questions.Expect("The layout of this proposal was read only up to line 1.");
    modProperties::ParsePropertyFile(run.program);
    EXPECT_EQ(run.program.format.PropertyLinesRead, 1);
    run.program.format.PropertyLines.pop_back();
    modProperties::ParsePropertyFile(run.program);
    EXPECT_FALSE(run.program.format.PropertyLinesRead);
}

TEST(PropertyLines, AreTheBaseAndTheSavedStateOfTheLabels) {
    Laid run;
    run.program.format.LabelSavedState[PageId::frmP1][9].Changed = true;
    run.program.format.PropertyLines = {
        "frmP1.lbl(9).Left=100 .Top=200 .Caption=Day .FontName=Arial .FontBold=True .FontSize=12 "
        ".ForeColor=255 .FontItalic=False .FontUnderline=True"};
    modProperties::ParsePropertyFile(run.program);
    EXPECT_EQ(run.program.pages[PageId::frmP1].LabelBaseState[9].Caption, "Day");
    const LabelLook look{100, 200, "Day", "Arial", 12, true, 255, false, true};
    EXPECT_EQ(static_cast<const LabelLook&>(run.program.format.LabelSavedState[PageId::frmP1][9]), look);
    EXPECT_FALSE(modFile::PropertiesChanged(run.program)) << "what was just read needs no save";
}

TEST(PropertyLines, TheirFontSettlesSignsAndWhichTextsAreTooLong) {
    Laid run;
    run.surroundings.measure.UnitSize = 10;
    // 90 characters of 100 twips in ten points are wider than the 8640 of a row, in six points they are not.
    run.Area(PageId::frmP2, 3).Text = std::string(90, 'x');
    run.Area(PageId::frmP2, 3).BackColor = colors::kOverLimit;
    run.program.format.PropertyLines = {
        "frmP1.lbl(21).Left=9800 .Top=10260 .Caption=$ .FontName=Arial .FontBold=True .FontSize=30 "
        ".ForeColor=255 .FontItalic=False .FontUnderline=False"};
    modProperties::ParsePropertyFile(run.program);
    EXPECT_EQ(run.Label(PageId::frmP1, 21).FontSize, 10) << "a sign has the areas' font";
    EXPECT_EQ(run.Label(PageId::frmP1, 21).ForeColor, 0U);
    EXPECT_EQ(run.Label(PageId::frmP1, 21).Left, 9800);
    run.program.format.PropertyLines = {"UDP.FontName=Arial .FontSize=6 .FontColor=0 .FontItalic=False"};
    modProperties::ParsePropertyFile(run.program);
    EXPECT_EQ(run.Area(PageId::frmP2, 3).FontSize, 6);
    EXPECT_EQ(run.Area(PageId::frmP2, 3).BackColor, colors::kResting);
}

TEST(PropertyLines, WithoutATitleOfItsOwnEveryPageTakesTheClients) {
    const std::string look = " .FontName=Arial .FontBold=True .FontSize=9 .ForeColor=0 .FontItalic=False "
                             ".FontUnderline=False";
    for (const bool empty : {false, true}) {
        Laid run;
        run.program.document.ClientCaption = "Proposal for Jane Roe";
        run.program.format.PropertyLines = {"frmP3.lbl(36).Left=1000 .Top=15030 .Caption=Proposal for Ann" +
                                            look};
        if (empty) {
            run.program.format.PropertyLines.push_back("frmP1.lbl(33).Left=1000 .Top=15030 .Caption=" + look);
        }
        modProperties::ParsePropertyFile(run.program);
        EXPECT_EQ(run.program.document.ClientCaption, "Proposal for Jane Roe");
        EXPECT_EQ(run.Label(PageId::frmP3, 36).Caption, "Proposal for Jane Roe");
        EXPECT_EQ(run.Label(PageId::frmP3, 36).Left, 1000);
        EXPECT_EQ(run.Label(PageId::frmP1, 33).Caption, "Proposal for Jane Roe");
    }
}

TEST(PropertyLines, AHeadingWithoutItsPageIsNoneForTheOtherPages) {
    Laid run;
    const std::string heading = run.program.document.PageHeading;
    ASSERT_NE(heading, "");
    run.program.format.PropertyLines = {
        "frmP2.lbl(0).Left=3000 .Top=540 .Caption=Something else .FontName=Arial .FontBold=False "
        ".FontSize=15 .ForeColor=0 .FontItalic=False .FontUnderline=False"};
    modProperties::ParsePropertyFile(run.program);
    EXPECT_EQ(run.program.document.PageHeading, heading);
    EXPECT_EQ(run.Label(PageId::frmP2, 0).Caption, "Something else");
}

TEST(PropertyLines, ATitleReadFromThemIsOnNoPageALineOfTheFileThatHadNone) {
    Laid run;
    run.program.format.PropertyLines = {
        "frmP1.lbl(33).Left=5000 .Top=15030 .Caption=The Roe Wedding .FontName=Arial .FontBold=True "
        ".FontSize=9 .ForeColor=0 .FontItalic=False .FontUnderline=False"};
    modProperties::ParsePropertyFile(run.program);
    const LabelChangeTable& table = run.program.format.PropLabelChanges;
    EXPECT_EQ(table[PageId::frmP3][36].Caption, "The Roe Wedding");
    EXPECT_TRUE(table[PageId::frmP1][33].Changed);
    EXPECT_FALSE(table[PageId::frmP3][36].Changed);
}

TEST(FormatFile, AMarkThatSaysNeitherTrueNorFalseExemptsNothing) {
    Laid run;
    run.Lay({"frmP2.txt(33).TaxExempt=maybe", "frmP2.txt(34).TaxExempt=True"});
    EXPECT_EQ(run.program.pages[PageId::frmP2].imgNoTax[33].Tag, kHide);
    EXPECT_EQ(run.program.pages[PageId::frmP2].imgNoTax[34].Tag, "");
}

TEST(FormatFile, SignsAreTheLabelsBesideTheAmounts) {
    Laid run;
    for (const PageId page : kLinePages) {
        std::vector<int> signs;
        for (int index = 0; index <= geometry::LastText(page); ++index) {
            if (geometry::IsAmount(page, index)) {
                signs.push_back(geometry::CurrencyLabelIndex(page, index));
            }
        }
        for (int label = 0; label <= geometry::LastLabel(page); ++label) {
            EXPECT_EQ(modDesigner::IsSignLabel(page, label),
                      std::find(signs.begin(), signs.end(), label) != signs.end())
                << IndexOf(page) << " " << label;
        }
    }
    for (const PageId page : {PageId::frmP6, PageId::frmP6_1}) {
        for (int label = 0; label <= geometry::LastLabel(PageId::frmP6); ++label) {
            EXPECT_EQ(modDesigner::IsSignLabel(page, label),
                      run.Label(page, label).Caption == run.program.settings.CurrencySymbol)
                << label;
        }
    }
}

TEST(FormatFile, AnAccentedLetterIsAWordAndASignOfArithmeticIsNone) {
    Laid run;
    const std::string look = " .FontName=Arial .FontBold=False .FontSize=9 .ForeColor=0 .FontItalic=False "
                             ".FontUnderline=False";
    run.Lay({"frmP1.lbl(21).Left=9800 .Top=10260 .Caption=\xC9" + look,
             "frmP1.lbl(22).Left=9800 .Top=10620 .Caption=\xD7" + look,
             "frmP1.lbl(23).Left=9800 .Top=10980 .Caption=\xF7" + look});
    EXPECT_EQ(run.Label(PageId::frmP1, 21).Caption, "\xC9");
    EXPECT_EQ(run.Label(PageId::frmP1, 22).Caption, "$");
    EXPECT_EQ(run.Label(PageId::frmP1, 23).Caption, "$");
}

TEST(FormatFile, ARowOfAPageWhoseRowsAreNotBuiltYetGetsItsColumns) {
    Laid run;
    Page& page = run.program.pages[PageId::frmP2];
    page.RowFieldsMade = false;
    for (auto* boxes : {&page.txtQty, &page.txtAmt}) {
        boxes->resize(1);
    }
    for (auto* labels : {&page.lblAt, &page.lblEach}) {
        labels->resize(1);
    }
    run.Lay({"frmP2.txq(32).QtyBox=True .QtyValue=2 .AmtValue=3.00"});
    ASSERT_TRUE(modPages::ColumnsOn(run.program, PageId::frmP2, 32));
    EXPECT_EQ(run.program.pages[PageId::frmP2].txtQty[32].Text, "2");
    EXPECT_EQ(run.TextOf(PageId::frmP2, 65), "6.00");
}

TEST(FormatFile, ALogoThatIsTooLargeIsScaledAndTold) {
    Laid run;
    const std::string picture = run.folder / "logo.png";
    run.folder.Write("logo.png", "x");
    run.surroundings.pictures.Known[picture] = {21600, 1440};
    run.program.settings.LogoVisible = true;
    run.Lay({"frmP1.pic.Picture=logo.png .Left=360 .Top=540"});
    EXPECT_TRUE(run.program.main.Notice.starts_with("The picture is 15.0 by 1.0 inches large."))
        << run.program.main.Notice;
}

TEST(FormatFile, ALostLogoLeavesNoOtherOnShow) {
    Laid run;
    const std::string picture = run.folder / "ours.png";
    run.folder.Write("ours.png", "x");
    run.surroundings.pictures.Known[picture] = {1500, 900};
    run.program.settings.LogoVisible = true;
    run.program.settings.LogoFile = picture;
    run.surroundings.questions.Expect("The logo gone.png could not be shown; the format goes without it.");
    run.Lay({"frmP1.pic.Picture=gone.png .Left=1 .Top=2"});
    EXPECT_FALSE(run.program.pages[PageId::frmP1].pic.Visible);
}

TEST(FormatFile, ALogoThatAnEarlierReadingLeftPendingIsNotTheNextFormats) {
    Laid run;
    const std::string picture = run.folder / "theirs.png";
    run.folder.Write("theirs.png", "x");
    run.surroundings.pictures.Known[picture] = {1500, 900};
    run.program.format.LogoPending = true;
    run.program.format.LogoPath = picture;
    run.Lay({"frmP1.txt(8).Text=Hall"}); // no question about a logo that could not be shown
    EXPECT_EQ(run.program.pages[PageId::frmP1].pic.Picture.Path, "");
    EXPECT_FALSE(run.program.format.LogoPending);
}

TEST(FormatFile, EveryLineFillsItsTables) {
    for (const bool overwrite : {false, true}) {
        Laid run;
        run.program.format.OverwriteFormatText = overwrite;
        constexpr const char* kDay =
            "frmP1.lbl(9).Left=1200 .Top=4140 .Caption=Day .FontName=Arial .FontBold=True .FontSize=12 "
            ".ForeColor=255 .FontItalic=False .FontUnderline=True";
        run.Lay({"frmP2.txt(3).Text=Tent", "frmP2.txt(4).FontBold=True", "frmP2.txt(37).TaxExempt=True",
                 "frmP2.txq(5).QtyBox=True .QtyValue=2 .AmtValue=3.00", kDay});
        const FormatRecords& format = run.program.format;
        const auto& areas = format.FormatTextChanges[PageId::frmP2];
        EXPECT_EQ(areas[3].Text, "Tent");
        EXPECT_EQ(areas[3].FormatText, !overwrite);
        EXPECT_EQ(format.InFile[PageId::frmP2][3].Text, "Tent");
        EXPECT_FALSE(areas[3].FontBold);
        EXPECT_TRUE(areas[4].FontBold);
        EXPECT_FALSE(areas[4].Dirty);
        EXPECT_TRUE(format.InFile[PageId::frmP2][4].FontBold);
        EXPECT_TRUE(format.PropTextChanges[PageId::frmP2][4].FontBold);
        EXPECT_TRUE(run.Area(PageId::frmP2, 4).FontBold);
        EXPECT_TRUE(areas[37].TaxExempt);
        EXPECT_TRUE(run.program.pages[PageId::frmP2].imgNoTax[37].Visible);
        EXPECT_TRUE(areas[5].QtyBox);
        EXPECT_FALSE(areas[5].Dirty);
        EXPECT_EQ(areas[5].QtyValue, "2");
        EXPECT_EQ(areas[5].AmtValue, "3.00");
        const LabelLook look{1200, 4140, "Day", "Arial", 12, true, 255, false, true};
        const LabelChangeRecord& label = format.FormatLabelChanges[PageId::frmP1][9];
        EXPECT_EQ(static_cast<const LabelLook&>(label), look);
        EXPECT_TRUE(label.Changed);
        EXPECT_FALSE(label.Saved);
        EXPECT_TRUE(label.FromFormat);
        const LabelChangeRecord& saved = format.LabelSavedState[PageId::frmP1][9];
        EXPECT_EQ(static_cast<const LabelLook&>(saved), look);
        EXPECT_FALSE(saved.Changed);
        EXPECT_FALSE(format.PropLabelChanges[PageId::frmP1][9].Changed);
    }
}

} // namespace
