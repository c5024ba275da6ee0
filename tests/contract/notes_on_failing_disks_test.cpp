#include "contract/frm_notes.h"
#include "program/windows.h"
#include "proposal/proposal_save.h"
#include "support/failing_disk.h"
#include "support/running_program.h"
#include "support/typist.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <filesystem>
#include <string>

namespace {

namespace fs = std::filesystem;
using Call = FailingDisk::Call;

constexpr std::array kErrors{ENOSPC, EIO, EACCES, EROFS};
constexpr std::array kCalls{Call::Open,  Call::Read,  Call::Write,  Call::GiveMode,
                            Call::Flush, Call::Close, Call::Rename, Call::SetLength};

struct Noted : RunningProgram {
    Noted() {
        TypeJaneRoe(*this);
        surroundings.questions.Expect("File was saved as Jane Roe.hef");
        EXPECT_EQ(modFile::SaveEventFile(program), modFile::SaveResult::Saved);
        surroundings.questions.Done();
        folder.Write("Proposals/Jane Roe.hxt", "as it was");
        modNotes::mnuFileOpenFootnotes_Click(program);
    }
    [[nodiscard]] frmNotes& Window() {
        return dynamic_cast<frmNotes&>(*modWindows::Find(program, "frmNotes"));
    }
    [[nodiscard]] std::string File() const { return folder.Read("Proposals/Jane Roe.hxt"); }
    [[nodiscard]] bool Told() const {
        const auto& shown = surroundings.questions.Shown;
        return std::any_of(shown.begin(), shown.end(),
                           [](const ScriptedQuestions::Box& box) { return box.Title == "Program Error"; });
    }
    void ExpectNothingLeftOver() const {
        for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder.Path())) {
            EXPECT_NE(entry.path().extension(), ".tmp") << entry.path();
        }
    }
};

TEST(FootnotesOnFailingDisks, ASaveThatFailsAtAnyStepLeavesTheFileWholeAndTheNotesChanged) {
    Noted run;
    frmNotes& window = run.Window();
    run.surroundings.questions.TakeAll(Answer::Yes);
    int failures = 0;
    for (const Call call : kCalls) {
        for (const int error : kErrors) {
            for (int nth = 1; nth <= 4; ++nth) {
                const std::string before = run.File();
                window.txtNotes_Change(run.program, window.txtNotes + "x");
                const std::string wanted = window.FootnoteText;
                run.surroundings.questions.Shown.clear();
                bool saved = false;
                int failed = 0;
                {
                    const FailingDisk disk{{call, nth, error}};
                    saved = window.SaveFootnoteFile(run.program);
                    failed = disk.Failed();
                }
                const std::string step = std::to_string(static_cast<int>(call)) + " " + std::to_string(nth) +
                                         " " + std::to_string(error);
                EXPECT_EQ(window.FootnoteText, wanted) << step;
                EXPECT_EQ(saved, !run.Told()) << step;
                EXPECT_EQ(window.FootnoteText == window.FootnoteSavedText, saved) << step;
                EXPECT_EQ(run.File(), saved ? wanted : before) << step;
                EXPECT_TRUE(saved || failed > 0) << step;
                failures += saved ? 0 : 1;
            }
        }
    }
    EXPECT_GT(failures, 10); // writing, flushing, closing, renaming and their kin
    run.ExpectNothingLeftOver();
    // The disk is well again: what was typed is saved.
    EXPECT_TRUE(window.SaveFootnoteFile(run.program));
    EXPECT_EQ(run.File(), window.FootnoteText);
}

TEST(FootnotesOnFailingDisks, AFullDiskKeepsTheWindowThatWasToSaveOnClosing) {
    Noted run;
    frmNotes& window = run.Window();
    window.txtNotes_Change(run.program, "new");
    run.surroundings.questions.Expect("The Footnote File has been changed.", Answer::Yes);
    run.surroundings.questions.Expect("An error occurred in SaveFootnoteFile.");
    {
        const FailingDisk disk{{Call::Write, 1, ENOSPC, FailingDisk::kForever}};
        window.Form_Cancel(run.program);
    }
    EXPECT_FALSE(window.Closing);
    EXPECT_EQ(window.txtNotes, "new");
    EXPECT_EQ(run.File(), "as it was");
}

TEST(FootnotesOnFailingDisks, AReadOnlyShareAndAFolderThatIsGoneAreTold) {
    Noted run;
    frmNotes& window = run.Window();
    window.txtNotes_Change(run.program, "new");
    run.surroundings.questions.Expect("An error occurred in SaveFootnoteFile.");
    {
        const FailingDisk disk{{Call::Open, 2, EROFS, FailingDisk::kForever}}; // the first one looks at it
        EXPECT_FALSE(window.SaveFootnoteFile(run.program));
    }
    EXPECT_EQ(run.File(), "as it was");
    fs::rename(run.folder / "Proposals", run.folder / "Gone");
    run.surroundings.questions.Expect("An error occurred in SaveFootnoteFile.");
    EXPECT_FALSE(window.SaveFootnoteFile(run.program));
    fs::rename(run.folder / "Gone", run.folder / "Proposals");
    EXPECT_NE(window.FootnoteText, window.FootnoteSavedText);
    EXPECT_TRUE(window.SaveFootnoteFile(run.program));
    EXPECT_EQ(run.File(), "new");
}

TEST(FootnotesOnFailingDisks, AFileThatCannotBeReadLocksTheWindowAndIsNeverWritten) {
    for (const int error : kErrors) {
        Noted run;
        modWindows::Close(run.program, run.Window());
        modWindows::Sweep(run.program);
        run.surroundings.questions.Expect("An error occurred in OpenFootnoteFile.");
        {
            const FailingDisk disk{{Call::Read, 1, error, FailingDisk::kForever}};
            modNotes::mnuFileOpenFootnotes_Click(run.program);
        }
        frmNotes& window = run.Window();
        EXPECT_TRUE(window.Locked);
        window.txtNotes_Change(run.program, "over it");
        EXPECT_FALSE(window.SaveFootnoteFile(run.program));
        EXPECT_EQ(run.File(), "as it was");
        window.Form_Cancel(run.program); // without a question
        EXPECT_TRUE(window.Closing);
    }
}

} // namespace
