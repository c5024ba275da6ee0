#include "editing/leaving.h"
#include "pages/page_geometry.h"
#include "proposal/backup.h"
#include "proposal/lifecycle.h"
#include "proposal/property_file.h"
#include "proposal/proposal_layout.h"
#include "proposal/proposal_open.h"
#include "proposal/reset.h"
#include "proposal/slot_widths.h"
#include "shell/command_run.h"
#include "support/running_program.h"
#include "support/typist.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

/// The house's format makes the first amount of page 1 exempt, and the second amount of page 2.
struct UnderAnExemptFormat : RunningProgram {
    UnderAnExemptFormat() {
        program.totals.TaxRate = 10;
        folder.Write("Proposals/House.fmt",
                     "frmP1.txt(20).TaxExempt=True\r\nfrmP2.txt(34).TaxExempt=True\r\n");
        program.format.FormatOpen = true;
        program.format.FormatFolder = folder / "Proposals/";
        program.format.FormatName = "House.fmt";
        static_cast<void>(modReset::StartNewFile(program));
    }
    void Fill(PageId page, int index, std::string_view text) {
        Typist typist(program);
        typist.Click(page, index);
        typist.Type(text);
    }
    void Save() {
        surroundings.questions.Expect("File was saved as Ann.hef");
        commands::Run(program, CommandId::mnuFileSaveEvent);
    }
    void Reopen(const std::string& folderOfIt = "Proposals/") {
        static_cast<void>(modReset::StartNewFile(program));
        program.document.FilePath = folder / folderOfIt;
        ASSERT_EQ(modFile::OpenEventFile(program, "Ann.hef"), modFile::OpenResult::Opened);
        modFile::ReadFileProperties(program);
    }
    [[nodiscard]] std::vector<std::string> Figures() {
        std::vector<std::string> figures;
        figures.reserve(6);
        for (int index = 0; index < 6; ++index) {
            figures.push_back(TextOf(PageId::frmP6, index));
        }
        return figures;
    }
    [[nodiscard]] std::string Slot(const std::string& file, PageId page, std::size_t index) {
        const std::string bytes = folder.Read(file);
        const auto decoded = proposal::Decode(bytes, bytes.size(), modFile::SlotWidths(program));
        const std::string slot(decoded.Slots[page][index]);
        return slot.substr(0, slot.find_last_not_of(' ') + 1);
    }
    [[nodiscard]] bool Marked(PageId page, std::size_t index) const {
        return program.pages[page].imgNoTax[index].Visible;
    }
};

// Taxed is 50.00 of 150.00: tax 5.00, total 155.00.
const std::vector<std::string> kFigures{"150.00", "50.00", "5.00", "155.00", "0.00", "155.00"};

TEST(FormatMarks, StandInTheFileAndComeBackWithIt) {
    UnderAnExemptFormat run;
    EXPECT_FALSE(modProposal::SomethingChanged(run.program)) << "nobody has done anything yet";
    run.Fill(PageId::frmP1, 2, "Ann");
    run.Fill(PageId::frmP1, 20, "100");
    run.Fill(PageId::frmP1, 21, "50");
    commands::Run(run.program, CommandId::mnuFilePrintAll);
    EXPECT_EQ(run.Figures(), kFigures);
    run.Save();
    EXPECT_EQ(run.Slot("Proposals/Ann.hef", PageId::frmP1, 20), "\xD8"
                                                                "100.00");
    EXPECT_EQ(run.Slot("Proposals/Ann.hef", PageId::frmP1, 21), "50.00");
    run.Reopen();
    EXPECT_TRUE(run.Marked(PageId::frmP1, 20));
    commands::Run(run.program, CommandId::mnuFilePrintAll);
    EXPECT_EQ(run.Figures(), kFigures);
    EXPECT_FALSE(modProposal::SomethingChanged(run.program));
    EXPECT_FALSE(modFile::PropertiesChanged(run.program));
}

TEST(FormatMarks, StandInTheAutomaticBackup) {
    UnderAnExemptFormat run;
    run.Fill(PageId::frmP1, 2, "Ann");
    run.Fill(PageId::frmP1, 20, "100");
    run.Fill(PageId::frmP1, 21, "50");
    modFile::BackupThisFile(run.program);
    EXPECT_EQ(run.Slot("Proposals/Backup/Ann.hef", PageId::frmP1, 20), "\xD8"
                                                                       "100.00");
    run.Reopen("Proposals/Backup/");
    EXPECT_TRUE(run.Marked(PageId::frmP1, 20));
    commands::Run(run.program, CommandId::mnuFilePrintAll);
    EXPECT_EQ(run.Figures(), kFigures);
}

TEST(FormatMarks, OfAnEmptyAmountWaitForIt) {
    UnderAnExemptFormat run;
    run.Fill(PageId::frmP1, 2, "Ann");
    run.Fill(PageId::frmP1, 21, "50");
    run.Save();
    EXPECT_EQ(run.Slot("Proposals/Ann.hef", PageId::frmP1, 20), "") << "a mark is not written beside nothing";
    EXPECT_TRUE(run.Marked(PageId::frmP1, 20));
    Typist typist(run.program);
    typist.Click(PageId::frmP1, 20); // a visit alone changes nothing
    typist.Click(PageId::frmP1, 21);
    EXPECT_TRUE(run.Marked(PageId::frmP1, 20));
    run.Fill(PageId::frmP1, 20, "100");
    commands::Run(run.program, CommandId::mnuFilePrintAll);
    EXPECT_EQ(run.Figures(), kFigures);
    run.surroundings.questions.Expect("File was saved as Ann.hef");
    commands::Run(run.program, CommandId::mnuFileSaveEvent);
    EXPECT_EQ(run.Slot("Proposals/Ann.hef", PageId::frmP1, 20), "\xD8"
                                                                "100.00");
    run.Reopen();
    commands::Run(run.program, CommandId::mnuFilePrintAll);
    EXPECT_EQ(run.Figures(), kFigures);
}

TEST(FormatMarks, OfTheOtherPagesStandInTheFileToo) {
    UnderAnExemptFormat run;
    run.Fill(PageId::frmP1, 2, "Ann");
    run.Fill(PageId::frmP2, 33, "50");
    run.Fill(PageId::frmP2, 34, "100");
    commands::Run(run.program, CommandId::mnuFilePrintAll);
    EXPECT_EQ(run.Figures(), kFigures);
    run.Save();
    EXPECT_EQ(run.Slot("Proposals/Ann.hef", PageId::frmP2, 34), "\xD8"
                                                                "100.00");
    run.Reopen();
    commands::Run(run.program, CommandId::mnuFilePrintAll);
    EXPECT_EQ(run.Figures(), kFigures);
}

TEST(FormatMarks, CountAmongWhatMustFitIntoTheSlot) {
    UnderAnExemptFormat run;
    run.Fill(PageId::frmP1, 2, "Ann");
    run.Fill(PageId::frmP1, 20, "1,000,000,000,000.00"); // twenty bytes: the mark is one too many
    run.surroundings.questions.Expect("Page 1, Text Area 21", Answer::No);
    run.program.totals.TotalsHidden = true;
    commands::Run(run.program, CommandId::mnuFileSaveEvent);
    EXPECT_FALSE(run.folder.Has("Proposals/Ann.hef"));
}

} // namespace
