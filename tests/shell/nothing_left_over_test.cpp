#include "pages/page_geometry.h"
#include "program/keys.h"
#include "program/windows.h"
#include "proposal/proposal_open.h"
#include "proposal/reset.h"
#include "shell/command_run.h"
#include "shell/frm_main.h"
#include "shell/input.h"
#include "support/running_program.h"
#include "support/sequences.h"
#include "support/typist.h"
#include "support/whole_state.h"

#include <gtest/gtest.h>

#include <array>
#include <random>
#include <sstream>
#include <string>
#include <vector>

// Whatever a person did to one proposal, the next begins as if it had been the first of the run.

namespace {

using Id = CommandId;

/// Commands that act on the proposal on show, and none that is meant to outlast it.
constexpr std::array kOnTheProposal{Id::mnuFilePrintPreview,
                                    Id::mnuFileResume,
                                    Id::mnuFilePrintAll,
                                    Id::mnuEditTitles,
                                    Id::mnuEditFind,
                                    Id::mnuEditTextColumns,
                                    Id::mnuEditTextBold,
                                    Id::mnuEditTextNormal,
                                    Id::mnuEditTextCenter,
                                    Id::mnuEditTextSelLCase,
                                    Id::mnuEditTextSelPCase,
                                    Id::mnuEditTextSelUCase,
                                    Id::mnuEditTextDelete,
                                    Id::mnuEditTextUndo,
                                    Id::mnuEditTextCut,
                                    Id::mnuEditTextMoveDown,
                                    Id::mnuEditTextMoveUp,
                                    Id::mnuEditTextTaxExempt,
                                    Id::mnuEditTextTaxable,
                                    Id::mnuEditTextDeselect,
                                    Id::mnuEditTextProperties,
                                    Id::mnuEditLabelProps,
                                    Id::mnuEditLabelSelectAll,
                                    Id::mnuEditLabelDeselectAll,
                                    Id::mnuEditLabelMode,
                                    Id::mnuToolsSnap,
                                    Id::mnuToolsDrawCenterLines,
                                    Id::mnuToolsClearCenterLines,
                                    Id::mnuToolsRecalculate,
                                    Id::mnuToolsAdminShowAllLabels,
                                    Id::mnuManageDeposits,
                                    Id::mnuManageEditor,
                                    Id::mnuFileOpenFootnotes};

class Hands {
public:
    Hands(RunningProgram& run, std::uint32_t seed) : run_(run), program_(run.program), random_(seed) {}

    void Play(int steps) {
        run_.surroundings.questions.TakeAll(Answer::Yes);
        for (int step = 0; step < steps; ++step) {
            Step();
        }
        CloseWindows();
        run_.surroundings.questions.TakeAll(Answer::No);
    }
    [[nodiscard]] std::string Story() const { return story_.str(); }

private:
    int Number(int below) { return static_cast<int>(random_() % static_cast<unsigned>(below)); }
    void Tell(const std::string& what) { story_ << "\n  " << what; }

    void Click(PageId page, int index) {
        if (program_.pages[page].txt[static_cast<std::size_t>(index)].Visible) {
            Tell("click " + std::string(geometry::PageName(page)) + ".txt(" + std::to_string(index) + ")");
            typist_.Click(page, index);
        }
    }
    void Type(const std::string& text) {
        if (program_.main.Focus && !program_.pages[program_.main.Focus->Page].InkShown) {
            Tell("type " + text);
            typist_.Type(text);
        }
    }
    void CloseWindows() {
        while (!program_.windows.Open.empty()) {
            program_.windows.Open.back()->Form_Cancel(program_);
            static_cast<void>(modWindows::Sweep(program_));
        }
    }
    void MoveALabel() {
        const PageId page = program_.main.PageInFront;
        const int last = static_cast<int>(program_.pages[page].lbl.size()) - 1;
        if (page == PageId::frmP6_1 || last < 0) {
            return;
        }
        const int index = Number(last);
        if (!program_.pages[page].lbl[static_cast<std::size_t>(index)].Visible) {
            return;
        }
        Tell("move " + std::string(geometry::PageName(page)) + ".lbl(" + std::to_string(index) + ")");
        modInput::LabelMouseDown(program_, page, index, 1, 10, 10);
        static_cast<void>(modInput::LabelMouseMove(program_, page, index, 400, 400));
        modInput::LabelMouseUp(program_, page, index);
        if (Number(2) == 0) {
            Tell("double-click it");
            modInput::LabelDblClick(program_, page, index);
        }
    }
    void Band() {
        const PageId page = program_.main.PageInFront;
        if (IsLinePage(page)) {
            Tell("band");
            modInput::PageMouseDown(program_, 1, 100, 3000);
            modInput::PageMouseMove(program_, page, 1, 12200, 5000);
            modInput::PageMouseUp(program_, page, 1, 12200, 5000);
        }
    }
    void Step() {
        static constexpr std::array<const char*, 6> kTexts{"100", "-2.50", "Linen", "12,50", "x", "3 chairs"};
        const PageId page = PageAt(Number(kEditedPageCount));
        const int what = Number(20);
        if (what < 6) {
            Click(page, Number(static_cast<int>(program_.pages[page].txt.size())));
            Type(kTexts[static_cast<std::size_t>(Number(6))]);
        } else if (what < 8) {
            Tell("page " + std::to_string(IndexOf(page)));
            frmMain(program_).imgPage_Click(Number(kPageCount));
        } else if (what < 9) {
            Band();
        } else if (what < 11) {
            MoveALabel();
        } else if (what < 12) {
            if (program_.main.Focus) {
                Tell("F8");
                typist_.Press(keys::kF8);
            }
        } else {
            const Id id =
                kOnTheProposal[static_cast<std::size_t>(Number(static_cast<int>(kOnTheProposal.size())))];
            Tell("command " + program_.main[id].Caption);
            commands::Run(program_, id);
            CloseWindows();
        }
    }

    RunningProgram& run_;
    Program& program_;
    std::mt19937 random_;
    Typist typist_{run_.program};
    std::ostringstream story_;
};

/// Of each kind of line one.
constexpr std::string_view kHouse =
    "frmP1.txt(8).FontBold=True\r\nfrmP1.txt(8).Text=By the lake\r\nfrmP1.txt(20).Text=75.00\r\n"
    "frmP1.txt(20).TaxExempt=True\r\nfrmP2.txq(0).QtyBox=True .QtyValue=2 .AmtValue=1,000.00\r\n"
    "frmP1.lbl(9).Left=1200 .Top=4140 .Caption=Day .FontName=Arial .FontBold=True .FontSize=12 "
    ".ForeColor=255 "
    ".FontItalic=False .FontUnderline=True\r\n"
    "frmP2.lbl(34).Left=1000 .Top=300 .Caption=Leaf .FontName=Arial .FontBold=True .FontSize=8 .ForeColor=0 "
    ".FontItalic=False .FontUnderline=False\r\n"
    "UDP.FontName=Arial .FontSize=9 .FontColor=16711680 .FontItalic=True\r\n";

/// Each is worth many of the small ones that the number asked for is meant for.
unsigned Sequences() {
    return SequencesAsked(600, 10000) / 50;
}

enum class Pages { BuiltIn, OfAFormat };

struct Laid : RunningProgram {
    explicit Laid(Pages pages) {
        surroundings.questions.TakeAll(Answer::No);
        if (pages == Pages::OfAFormat) {
            folder.Write("Proposals/House.fmt", std::string(kHouse));
            program.settings.DefaultFormatPath = folder / "Proposals/House.fmt";
            program.settings.LoadDefaultFormat = true;
        }
        folder.Write("Proposals/Jane Roe.hef", ReadTestData("jane_roe/Jane Roe.hef"));
        commands::Run(program, Id::mnuFileNew);
        static_cast<void>(modWindows::Sweep(program));
    }
    [[nodiscard]] modFile::OpenResult Open() {
        static_cast<void>(modReset::StartNewFile(program));
        const modFile::OpenResult opened = modFile::OpenEventFile(program, "Jane Roe.hef");
        Typist(program).Click(PageId::frmP1, 10);
        return opened;
    }
};

class NothingLeftOver : public testing::TestWithParam<Pages> {};

TEST_P(NothingLeftOver, ANewProposalAfterAnythingIsANewProposal) {
    Laid run(GetParam());
    const WholeState fresh = StateOf(run.program);
    ASSERT_EQ(run.program.format.FormatOpen, GetParam() == Pages::OfAFormat);
    const unsigned sequences = Sequences();
    for (std::uint32_t seed = 0; seed < sequences; ++seed) {
        Hands hands(run, seed);
        hands.Play(12);
        commands::Run(run.program, Id::mnuFileNew);
        ASSERT_EQ(Differences(fresh, StateOf(run.program)), "") << "seed " << seed << hands.Story();
    }
}

TEST_P(NothingLeftOver, AProposalOpenedAfterAnythingIsWhatItWasWhenOpenedFirst) {
    Laid run(GetParam());
    ASSERT_EQ(run.Open(), modFile::OpenResult::Opened);
    const WholeState fresh = StateOf(run.program);
    ASSERT_NE(run.program.totals.SubTotal, 0.0F);
    const unsigned sequences = Sequences();
    for (std::uint32_t seed = 0; seed < sequences; ++seed) {
        Hands hands(run, 1000 + seed);
        hands.Play(12);
        ASSERT_EQ(run.Open(), modFile::OpenResult::Opened);
        ASSERT_EQ(Differences(fresh, StateOf(run.program)), "") << "seed " << seed << hands.Story();
    }
}

INSTANTIATE_TEST_SUITE_P(On, NothingLeftOver, testing::Values(Pages::BuiltIn, Pages::OfAFormat),
                         [](const testing::TestParamInfo<Pages>& shown) {
                             return shown.param == Pages::BuiltIn ? "BuiltInPages" : "PagesOfAFormat";
                         });

} // namespace
