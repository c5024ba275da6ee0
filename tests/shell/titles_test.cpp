#include "format/frm_title.h"
#include "program/windows.h"
#include "proposal/lifecycle.h"
#include "proposal/property_file.h"
#include "proposal/proposal_open.h"
#include "proposal/proposal_save.h"
#include "proposal/reset.h"
#include "support/failing_disk.h"
#include "support/person.h"
#include "support/running_program.h"
#include "support/typist.h"

#include <cerrno>
#include <gtest/gtest.h>

namespace {

/// A proposal of Ann's, saved.
struct Titled : RunningProgram {
    Titled() {
        static_cast<void>(modReset::StartNewFile(program));
        Typist typist(program);
        typist.Click(PageId::frmP1, 2);
        typist.Type("Ann");
        Save("File was saved as Ann.hef");
    }
    void Save(const char* told) {
        surroundings.questions.Expect(told);
        ASSERT_EQ(modFile::SaveEventFile(program), modFile::SaveResult::Saved);
    }
    void SaveAsSecond() {
        surroundings.questions.ExpectInput("Saving File As...", "Second");
        surroundings.questions.Expect("File was saved as Second.hef");
        modProposal::SaveEventFileAs(program);
    }
    void OpenAnew(const char* file) {
        static_cast<void>(modReset::StartNewFile(program));
        ASSERT_EQ(modFile::OpenEventFile(program, file), modFile::OpenResult::Opened);
        modFile::ReadFileProperties(program);
    }
    frmTitle& Window() {
        person::Choose(program, CommandId::mnuEditTitles);
        return dynamic_cast<frmTitle&>(*modWindows::Find(program, "frmTitle"));
    }
    std::string Foot(PageId page, std::size_t label) { return program.pages[page].lbl[label].Caption; }
};

TEST(Titles, AGivenOneGoesAlongToACopyUnderAnotherName) {
    Titled run;
    frmTitle& window = run.Window();
    window.txtSubTitle_Change("Ann's Summer Ball");
    window.cmdOK_Click(run.program);
    static_cast<void>(modWindows::Sweep(run.program));
    run.SaveAsSecond();
    EXPECT_EQ(run.Foot(PageId::frmP1, 33), "Ann's Summer Ball");
    run.OpenAnew("Second.hef");
    EXPECT_EQ(run.Foot(PageId::frmP1, 33), "Ann's Summer Ball");
    EXPECT_EQ(run.Foot(PageId::frmP6, 64), "Ann's Summer Ball - Our Copy");
    run.OpenAnew("Ann.hef");
    EXPECT_EQ(run.Foot(PageId::frmP1, 33), "Proposal for Ann") << "which was saved before there was a title";
}

TEST(Titles, OneThatNobodyGaveFollowsTheNameOfACopy) {
    Titled run;
    run.SaveAsSecond();
    EXPECT_EQ(run.Foot(PageId::frmP1, 33), "Proposal for Second");
    run.OpenAnew("Second.hef");
    EXPECT_EQ(run.Foot(PageId::frmP6, 64), "Proposal for Second - Our Copy");
}

TEST(Titles, ThatCannotBeMadeTheDefaultRideWithTheProposal) {
    Titled run;
    const std::string settings = run.folder.Read("UserPreferences.txt");
    frmTitle& window = run.Window();
    window.txtTitle_Change("Ours - ");
    {
        const FailingDisk disk{{FailingDisk::Call::Write, 1, ENOSPC, FailingDisk::kForever}};
        run.surroundings.questions.Expect("UserPreferences.txt");
        window.cmdDefault_Click(run.program);
        EXPECT_GT(disk.Failed(), 0);
    }
    EXPECT_EQ(run.folder.Read("UserPreferences.txt"), settings);
    EXPECT_TRUE(window.TitleChanged) << "it is still to be kept somewhere";
    EXPECT_EQ(run.Foot(PageId::frmP2, 0), "Ours - Page 2");
    EXPECT_TRUE(modFile::PropertiesChanged(run.program));
    window.Form_Cancel(run.program);
    static_cast<void>(modWindows::Sweep(run.program));
    run.Save("File was saved as Ann.hef");
    run.program.settings.PageTitles.clear(); // as at the next start
    run.OpenAnew("Ann.hef");
    EXPECT_EQ(run.Foot(PageId::frmP2, 0), "Ours - Page 2");
}

} // namespace
