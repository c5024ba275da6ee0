#include "program/windows.h"
#include "proposal/frm_file.h"
#include "proposal/lifecycle.h"
#include "proposal/proposal_save.h"
#include "support/running_program.h"
#include "support/typist.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

namespace {

/// People keep proposals on other disks and link to them.
struct Linked : RunningProgram {
    Linked() {
        folder.Write("Disk/Jane Roe.hef", ReadTestData("jane_roe/Jane Roe.hef"));
        Link("Disk/Jane Roe.hef", "Proposals/Jane Roe.hef");
    }
    void Link(const std::string& target, const std::string& link) const {
        std::filesystem::create_symlink(folder / target, folder / link);
    }
    [[nodiscard]] bool IsLink(const std::string& name) const {
        return std::filesystem::is_symlink(folder / name);
    }
    frmFile& Show() {
        modProposal::mnuFileOpenEvent_Click(program);
        return dynamic_cast<frmFile&>(*modWindows::Find(program, "frmFile"));
    }
    static int At(const std::vector<std::string>& items, std::string_view name) {
        const auto found = std::find(items.begin(), items.end(), name);
        return found == items.end() ? -1 : static_cast<int>(found - items.begin());
    }
    void Open(std::string_view name) {
        frmFile& window = Show();
        window.FileList1_Click(program, At(window.FileList1.Items, name));
        window.cmdOpenOK_Click(program);
        modWindows::Sweep(program);
    }
};

TEST(Links, ALinkedProposalIsListedAndOpens) {
    Linked run;
    run.Open("Jane Roe.hef");
    EXPECT_EQ(run.TextOf(PageId::frmP1, 2), "Jane Roe");
    EXPECT_EQ(run.program.document.FilePath, run.folder / "Proposals/");
}

TEST(Links, SavingFollowsTheLinkToItsTarget) {
    Linked run;
    run.Open("Jane Roe.hef");
    Typist typist(run.program);
    typist.Click(PageId::frmP1, 9);
    typist.Type("Second floor");
    run.surroundings.questions.Expect("File was saved as Jane Roe.hef");
    EXPECT_EQ(modFile::SaveEventFile(run.program), modFile::SaveResult::Saved);
    EXPECT_TRUE(run.IsLink("Proposals/Jane Roe.hef"));
    EXPECT_NE(run.folder.Read("Disk/Jane Roe.hef").find("Second floor"), std::string::npos);
}

TEST(Links, DeletingALinkedProposalTakesTheLinkAndNotTheFile) {
    Linked run;
    run.Open("Jane Roe.hef");
    run.surroundings.questions.Expect("Are you sure you want to delete this file?", Answer::Yes);
    modProposal::mnuFileDelete_Click(run.program);
    EXPECT_FALSE(run.IsLink("Proposals/Jane Roe.hef"));
    EXPECT_TRUE(run.folder.Has("Disk/Jane Roe.hef"));
    EXPECT_EQ(run.program.document.FileName, "");
}

TEST(Links, ALinkToNowhereCostsNothing) {
    Linked run;
    run.Link("Disk/Gone.hef", "Proposals/Gone.hef");
    frmFile& window = run.Show();
    const int gone = Linked::At(window.FileList1.Items, "Gone.hef");
    if (gone >= 0) {
        window.FileList1_Click(run.program, gone);
        run.surroundings.questions.Expect("An error occurred in OpenEventFile.");
        window.cmdOpenOK_Click(run.program);
        EXPECT_FALSE(window.Closing);
    }
    EXPECT_EQ(run.program.document.FileName, "");
}

TEST(Links, FoldersBehindLinksAreEnteredAndRoundTripsEnd) {
    Linked run;
    run.Link("Disk", "Proposals/Other");
    run.Link("Proposals", "Proposals/Loop");
    run.Link("Nowhere", "Proposals/Lost");
    frmFile& window = run.Show();
    window.Dir1_Change(run.program, Linked::At(window.Dir1.Items, "Other"));
    EXPECT_EQ(window.Folder, run.folder / "Proposals/Other/");
    EXPECT_EQ(window.FileList1.Items, std::vector<std::string>{"Jane Roe.hef"});
    window.Dir1_Change(run.program, 0);
    EXPECT_EQ(window.Folder, run.folder / "Proposals/");
    window.Dir1_Change(run.program, Linked::At(window.Dir1.Items, "Loop"));
    EXPECT_EQ(window.FileList1.Items, std::vector<std::string>{"Jane Roe.hef"});
    EXPECT_EQ(Linked::At(window.Dir1.Items, "Lost"), -1);
}

TEST(Links, ADataFolderBehindALinkIsTheDataFolder) {
    RunningProgram run(RunningProgram::Begin::NotStarted);
    std::filesystem::rename(run.folder / "Proposals", run.folder / "Share");
    std::filesystem::create_symlink(run.folder / "Share", run.folder / "Proposals");
    run.Start();
    EXPECT_EQ(run.program.folders.ProposalsFolder, run.folder / "Proposals/");
    EXPECT_TRUE(run.folder.Has("Share/Backup"));
    EXPECT_EQ(run.program.totals.TaxRate, 8.25F);
}

} // namespace
