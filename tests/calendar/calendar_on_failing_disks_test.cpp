#include "calendar/frm_dates.h"
#include "calendar/read_event_dates.h"
#include "program/windows.h"
#include "support/failing_disk.h"
#include "support/running_program.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <filesystem>
#include <initializer_list>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;
using Call = FailingDisk::Call;
using Failure = FailingDisk::Failure;

constexpr std::array kErrors{ENOSPC, EIO, EACCES, EROFS, EDQUOT, EINTR};
constexpr std::array kNames{"Ann.hef", "Bob.hef", "Cid.hef"};

std::string BytesOf(const std::string& name) {
    return "1/21/2008                " + name + std::string(100, '.');
}

struct Dated : RunningProgram {
    Dated() {
        for (const char* name : kNames) {
            folder.Write("Proposals/" + std::string(name), BytesOf(name));
        }
    }
    frmDates& Open() {
        modCalendar::mnuViewEventDates_Click(program);
        return Window();
    }
    [[nodiscard]] frmDates& Window() {
        return dynamic_cast<frmDates&>(*modWindows::Find(program, "frmDates"));
    }
    void SelectAll(frmDates& window) {
        std::vector<int> all;
        for (std::size_t row = 0; row < window.lstDates.Items.size(); ++row) {
            all.push_back(static_cast<int>(row));
        }
        window.lstDates_Click(program, all, 0);
    }
    [[nodiscard]] bool Told() const {
        const auto& shown = surroundings.questions.Shown;
        return std::any_of(shown.begin(), shown.end(),
                           [](const ScriptedQuestions::Box& box) { return box.Title == "Program Error"; });
    }
    /// Each proposal is there once, whole, under the one name or the other. How many are in the backups.
    int ExpectEachOnce(const std::string& step) const {
        int moved = 0;
        for (const char* name : kNames) {
            const std::string here = "Proposals/" + std::string(name);
            const std::string there = "Proposals/Backup/" + std::string(name) + ".old";
            EXPECT_NE(folder.Has(here), folder.Has(there)) << name << " " << step;
            const bool away = folder.Has(there);
            EXPECT_EQ(folder.Read(away ? there : here), BytesOf(name)) << step;
            moved += away ? 1 : 0;
        }
        return moved;
    }
};

/// On a file system that moves in one call, on one that makes second names, and on one that does neither.
std::vector<std::vector<Failure>> FileSystems() {
    const int forever = FailingDisk::kForever;
    return {{},
            {{Call::Move, 1, EINVAL, forever}},
            {{Call::Move, 1, EINVAL, forever}, {Call::Link, 1, EPERM, forever}}};
}

/// One more failure on top of what such a file system does not do.
class OneFailure {
public:
    OneFailure(const std::vector<Failure>& system, const Failure& failure)
        : disk_(system.empty()       ? FailingDisk({failure})
                : system.size() == 1 ? FailingDisk({failure, system[0]})
                                     : FailingDisk({failure, system[0], system[1]})) {}

private:
    FailingDisk disk_;
};

TEST(CalendarOnFailingDisks, WhateverStepOfAMoveFailsEachProposalIsThereOnceAndItIsTold) {
    for (std::size_t system = 0; system < 3; ++system) {
        for (const Call call : {Call::Move, Call::Link, Call::Unlink, Call::Open, Call::Close, Call::Rename,
                                Call::OpenFolder, Call::ListFolder}) {
            for (const int error : kErrors) {
                for (int nth = 1; nth <= 3; ++nth) {
                    const std::string step = std::to_string(system) + " " +
                                             std::to_string(static_cast<int>(call)) + " " +
                                             std::to_string(error) + " " + std::to_string(nth);
                    Dated run;
                    frmDates& window = run.Open();
                    run.surroundings.questions.TakeAll(Answer::Ok);
                    run.SelectAll(window);
                    {
                        const OneFailure disk(FileSystems()[system], {call, nth, error});
                        window.Choose(run.program, "mnuOptDelete");
                    }
                    const int away = run.ExpectEachOnce(step);
                    EXPECT_TRUE(away == 3 || run.Told()) << step;
                    run.surroundings.questions.Shown.clear();
                    {
                        const OneFailure disk(FileSystems()[system], {call, nth, error});
                        window.Choose(run.program, "mnuOptUndoDelete");
                    }
                    const int still = run.ExpectEachOnce(step);
                    EXPECT_TRUE(still == 0 || run.Told() || away == 0) << step;
                }
            }
        }
    }
}

TEST(CalendarOnFailingDisks, OnAFileSystemWithoutSecondNamesNothingIsWrittenOverEither) {
    Dated run;
    frmDates& window = run.Open();
    run.SelectAll(window);
    run.folder.Write("Proposals/Backup/Bob.hef.old", "an older Bob");
    run.surroundings.questions.Expect("These files could not be moved:\r\nBob.hef - File already exists");
    {
        const FailingDisk disk{{Call::Move, 1, EINVAL, FailingDisk::kForever},
                               {Call::Link, 1, EPERM, FailingDisk::kForever}};
        window.Choose(run.program, "mnuOptDelete");
    }
    EXPECT_EQ(window.lblNotice.Caption, "2 proposals moved to Backup");
    EXPECT_EQ(run.folder.Read("Proposals/Bob.hef"), BytesOf("Bob.hef"));
    EXPECT_EQ(run.folder.Read("Proposals/Backup/Bob.hef.old"), "an older Bob");
    EXPECT_EQ(run.folder.Read("Proposals/Backup/Ann.hef.old"), BytesOf("Ann.hef"));
}

TEST(CalendarOnFailingDisks, AReadOnlyShareKeepsEveryProposalAndIsToldOnce) {
    Dated run;
    frmDates& window = run.Open();
    run.SelectAll(window);
    run.surroundings.questions.Expect("These files could not be moved:");
    {
        const FailingDisk disk{{Call::Move, 1, EROFS, FailingDisk::kForever}};
        window.Choose(run.program, "mnuOptDelete");
    }
    EXPECT_EQ(run.ExpectEachOnce(""), 0);
    EXPECT_EQ(window.lblNotice.Caption, "0 proposals moved to Backup");
    EXPECT_EQ(window.lstDates.Items.size(), 3U);
}

TEST(CalendarOnFailingDisks, AFolderThatBreaksOffIsToldAndHalfOfItIsNotShownAsTheWhole) {
    for (int nth = 1; nth <= 4; ++nth) {
        Dated run;
        run.folder.Write("Proposals/Words.hef", "in spring" + std::string(60, ' '));
        frmDates& window = run.Open();
        ASSERT_EQ(window.lstDates.Items.size(), 3U);
        run.surroundings.questions.Expect("An error occurred in ReadEventDates.");
        {
            const FailingDisk disk{{Call::ListFolder, nth, EIO}};
            window.Choose(run.program, "mnuViewEventDates");
        }
        EXPECT_TRUE(window.lstDates.Items.empty());
        EXPECT_EQ(window.lblUndated.Caption, "");
        EXPECT_EQ(window.lblUndated.ToolTipText, "");
        const CalendarRecords& calendar = run.program.calendar;
        EXPECT_TRUE(calendar.EventFiles.empty());
        EXPECT_TRUE(calendar.EventDateText.empty());
        EXPECT_TRUE(calendar.EventSerial.empty());
        EXPECT_FALSE(run.program.main.Busy);
        EXPECT_TRUE(window.Entry("mnuFilePrint").Enabled);
        window.Choose(run.program, "mnuViewEventDates");
        EXPECT_EQ(window.lstDates.Items.size(), 3U);
    }
}

TEST(CalendarOnFailingDisks, ThatListNothingHaveTheirEmptyWindowShownAfterTheMessage) {
    Dated run;
    run.surroundings.questions.Expect("An error occurred in ReadEventDates.");
    {
        const FailingDisk disk{{Call::ListFolder, 1, EIO}};
        modCalendar::mnuViewEventDates_Click(run.program);
    }
    ASSERT_NE(modWindows::Find(run.program, "frmDates"), nullptr);
    EXPECT_TRUE(run.Window().lstDates.Items.empty());
}

TEST(CalendarOnFailingDisks, WhatLiesInABackupThatCannotBeListedMayBeRestored) {
    Dated run;
    run.folder.MakeFolder("Proposals/Backup");
    EXPECT_FALSE(modCalendar::CanRestore(run.program));
    const FailingDisk disk{{Call::OpenFolder, 1, EACCES, FailingDisk::kForever},
                           {Call::ListFolder, 1, EACCES, FailingDisk::kForever}};
    EXPECT_TRUE(modCalendar::CanRestore(run.program)) << "the command tells what is wrong with it";
}

TEST(CalendarOnFailingDisks, AFolderThatIsGoneIsToldAndItsReturnIsSeen) {
    Dated run;
    frmDates& window = run.Open();
    run.SelectAll(window);
    fs::rename(run.folder / "Proposals", run.folder / "Gone");
    run.surroundings.questions.Expect("An error occurred in mnuOptDelete_Click.");
    run.surroundings.questions.Expect("No Events Found");
    window.Choose(run.program, "mnuOptDelete");
    EXPECT_EQ(window.lblNotice.Caption, "0 proposals moved to Backup");
    fs::rename(run.folder / "Gone", run.folder / "Proposals");
    window.Choose(run.program, "mnuViewEventDates");
    EXPECT_EQ(window.lstDates.Items.size(), 3U);
    EXPECT_EQ(run.ExpectEachOnce(""), 0);
}

TEST(CalendarOnFailingDisks, AFileThatCannotBeReadCountsAmongTheUndatedAndTheOthersAreListed) {
    for (const Call call : {Call::OpenIn, Call::Read}) {
        for (const int error : kErrors) {
            Dated run;
            const int lost = error == EINTR ? 0 : 1; // what a signal breaks off is done again
            {
                const FailingDisk disk{{call, 2, error}};
                EXPECT_EQ(static_cast<int>(run.Open().lstDates.Items.size()), 3 - lost);
            }
            EXPECT_EQ(run.program.calendar.Undated, lost);
        }
    }
}

} // namespace
