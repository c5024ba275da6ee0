#include "addresses/address_run.h"
#include "support/failing_disk.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <filesystem>

namespace {

using address_menu::Id;
using Call = FailingDisk::Call;

constexpr std::array kCalls{Call::Open,  Call::Read,  Call::Write,  Call::SetLength,
                            Call::Flush, Call::Close, Call::Rename, Call::GiveMode};

/// A book of three with the middle record on show and its address typed anew.
struct ThreeRecords : AddressRun {
    ThreeRecords() {
        OpenWith(Before());
        Window().lstNames_Click(program, 1);
    }
    [[nodiscard]] static std::string Before() { return Book({"Ann Ash", "Ben Birch", "Cal Cedar"}); }
    [[nodiscard]] bool WasTold(std::string_view words) {
        return std::any_of(surroundings.questions.Shown.begin(), surroundings.questions.Shown.end(),
                           [words](const auto& box) { return box.Text.find(words) != std::string::npos; });
    }
    /// What else lies beside the book.
    [[nodiscard]] std::vector<std::string> LeftOvers() const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(folder / DataName(""))) {
            const std::string name = entry.path().filename().string();
            if (name.ends_with(".tmp")) {
                names.push_back(name);
            }
        }
        return names;
    }
};

/// Plays `act` for every call that it makes of each kind, with that call failing once by each error, then
/// with it and all later ones failing.
template <typename Act> int ForEveryFailure(Act act) {
    int tried = 0;
    for (const Call call : kCalls) {
        for (const int times : {1, FailingDisk::kForever}) {
            constexpr int kMost = 200;
            bool met = true;
            for (int nth = 1; nth <= kMost && met; ++nth) {
                for (const int error : {ENOSPC, EIO, EACCES, EROFS, EDQUOT, EINTR}) {
                    if (times > 1 && error != (call == Call::Write ? ENOSPC : EIO)) {
                        continue;
                    }
                    SCOPED_TRACE("call " + std::to_string(static_cast<int>(call)) + ", the " +
                                 std::to_string(nth) + (times == 1 ? "th" : "th and all later") + ", error " +
                                 std::to_string(error));
                    met = act(FailingDisk::Failure{call, nth, error, times});
                    if (!met) {
                        break;
                    }
                    ++tried;
                }
            }
        }
    }
    return tried;
}

TEST(BookFailures, AChangeStandsWholeOrNotAtAllWhicheverCallFails) {
    const std::string after = AddressRun::Book({"Ann Ash"}) +
                              AddressRun::Record({"Ben Birch", "5 Oak Road"}) +
                              AddressRun::Book({"Cal Cedar"});
    const int tried = ForEveryFailure([&](const FailingDisk::Failure& failure) {
        ThreeRecords run;
        run.Type(1, "5 Oak Road");
        run.surroundings.questions.TakeAll(Answer::Ok);
        bool met = false;
        {
            const FailingDisk disk{failure};
            run.Window().cmdSave_Click(run.program);
            met = disk.Failed() > 0;
        }
        const std::string now = run.ReadBook();
        if (run.WasTold("SaveAddressRecord")) {
            EXPECT_EQ(now, ThreeRecords::Before());
            EXPECT_EQ(run.Text(1), "5 Oak Road");
            EXPECT_TRUE(run.program.addresses.AddressRecordChanged);
            EXPECT_TRUE(run.program.addresses.AddressSaveCancelled);
            run.Window().cmdSave_Click(run.program);
            EXPECT_EQ(run.ReadBook(), after) << "the next save finds nothing in its way";
        } else {
            EXPECT_EQ(now, after);
        }
        return met;
    });
    EXPECT_GT(tried, 10);
}

TEST(BookFailures, ANewRecordIsAddedWholeOrCutOffAgainWhicheverCallFails) {
    for (const std::string& stump : {std::string(), std::string(300, 'x')}) {
        const int tried = ForEveryFailure([&](const FailingDisk::Failure& failure) {
            AddressRun run;
            const std::string before = AddressRun::Book({"Ann Ash"}) + stump;
            const std::string after = AddressRun::Book({"Ann Ash", "Ben Birch"});
            run.OpenWith(before);
            run.Type(0, "Ben Birch");
            run.surroundings.questions.TakeAll(Answer::Ok);
            bool met = false;
            {
                const FailingDisk disk{failure};
                run.Window().cmdSave_Click(run.program);
                met = disk.Failed() > 0;
            }
            const auto& shown = run.surroundings.questions.Shown;
            const bool told = std::any_of(shown.begin(), shown.end(), [](const auto& box) {
                return box.Text.find("SaveAddressRecord") != std::string::npos;
            });
            const std::string now = run.ReadBook();
            if (!stump.empty() && failure.What == Call::Write && failure.Times > 1) {
                // A disk that never takes a byte again: of a stump nothing can be had back.
                EXPECT_TRUE(now.starts_with(AddressRun::Book({"Ann Ash"})));
                return met;
            }
            EXPECT_EQ(now, told ? before : after);
            if (told) {
                EXPECT_EQ(run.Text(0), "Ben Birch");
                EXPECT_TRUE(run.program.addresses.AddressRecordNew);
                run.Window().cmdSave_Click(run.program);
                EXPECT_EQ(run.ReadBook(), after);
            }
            return met;
        });
        EXPECT_GT(tried, 8);
    }
}

TEST(BookFailures, ADeleteTakesTheRecordOutOrNothingWhicheverCallFails) {
    const int tried = ForEveryFailure([&](const FailingDisk::Failure& failure) {
        ThreeRecords run;
        run.surroundings.questions.TakeAll(Answer::Yes);
        bool met = false;
        {
            const FailingDisk disk{failure};
            run.Run(Id::mnuFileDelete);
            met = disk.Failed() > 0;
        }
        const std::string now = run.ReadBook();
        const std::string after = AddressRun::Book({"Ann Ash", "Cal Cedar"});
        EXPECT_TRUE(now == ThreeRecords::Before() || now == after) << "neither the old book nor the new one";
        if (now == ThreeRecords::Before()) {
            EXPECT_TRUE(run.WasTold("DeleteAddressRecord"));
            EXPECT_EQ(run.Text(0), "Ben Birch");
        }
        EXPECT_EQ(run.LeftOvers(), std::vector<std::string>());
        return met;
    });
    EXPECT_GT(tried, 10);
}

TEST(BookFailures, ABookThatCannotBeReadIsToldAndLeftAlone) {
    ThreeRecords run;
    {
        const FailingDisk disk{{Call::Read, 1, EIO, FailingDisk::kForever}};
        run.Run(Id::mnuFileOpenBusiness); // an empty one
        run.Questions().Expect("ReadAddressList");
        run.Run(Id::mnuFileOpenClientele);
    }
    EXPECT_TRUE(run.Window().lstNames.Rows.empty());
    EXPECT_EQ(run.program.addresses.NamesInFile, "");
    EXPECT_EQ(run.program.addresses.AddressRecordCount, 0);
    EXPECT_EQ(run.ReadBook(), ThreeRecords::Before());
}

TEST(BookFailures, AReadOnlyBookKeepsItsBytesAndTheFieldsKeepTheirs) {
    ThreeRecords run;
    std::filesystem::permissions(run.folder / run.DataName(AddressRun::kPersonal),
                                 std::filesystem::perms::owner_read);
    run.Type(1, "5 Oak Road");
    run.Questions().Expect("SaveAddressRecord");
    run.Window().cmdSave_Click(run.program);
    EXPECT_EQ(run.Text(1), "5 Oak Road");
    run.Questions().Expect("Delete this record?", Answer::Yes);
    run.Questions().Expect("DeleteAddressRecord");
    run.Run(Id::mnuFileDelete);
    EXPECT_EQ(run.ReadBook(), ThreeRecords::Before());
    EXPECT_EQ(run.LeftOvers(), std::vector<std::string>());
}

} // namespace
