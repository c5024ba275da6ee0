#include "base/files.h"
#include "base/folder_scan.h"
#include "base/record_file.h"
#include "base/safe_write.h"
#include "support/failing_disk.h"
#include "support/scratch_folder.h"

#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <filesystem>
#include <optional>
#include <string>

#include <sys/stat.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

constexpr std::array<int, 6> kErrors{ENOSPC, EIO, EACCES, EROFS, EDQUOT, EINTR};
using Call = FailingDisk::Call;
constexpr std::array<Call, 7> kWriting{Call::Open,  Call::Write, Call::GiveMode, Call::SetLength,
                                       Call::Flush, Call::Close, Call::Rename};

bool Written(const std::string& path, const std::string& bytes) {
    try {
        files::WriteWhole(path, bytes);
    } catch (const files::FileError&) {
        return false;
    }
    return true;
}

std::size_t EntriesOf(const ScratchFolder& folder) {
    std::size_t count = 0;
    for ([[maybe_unused]] const fs::directory_entry& entry : fs::directory_iterator(folder.Path())) {
        ++count;
    }
    return count;
}

std::string Temporary(const std::string& host, int process) {
    return ".quillbrook." + host + "." + std::to_string(process) + ".0.tmp";
}

std::string ThisHost() {
    std::array<char, 65> name{};
    EXPECT_EQ(::gethostname(name.data(), 64), 0);
    std::string host(name.data());
    for (char& character : host) {
        character = character == '.' ? '-' : character;
    }
    return host;
}

TEST(SafeWrite, WhateverCallFailsTheOldBytesOrTheNewOnesStandWholeAndAFailureIsTold) {
    const std::string before(3000, 'o');
    for (const std::string& after : {std::string(5000, 'n'), std::string(100, 'n')}) {
        for (const Call call : kWriting) {
            for (const int error : kErrors) {
                for (int nth = 1; nth <= 3; ++nth) {
                    const ScratchFolder folder;
                    folder.Write("a.hef", before);
                    bool told = false;
                    {
                        const FailingDisk disk{{call, nth, error}};
                        told = !Written(folder / "a.hef", after);
                    }
                    const std::string now = folder.Read("a.hef");
                    EXPECT_EQ(now, told ? before : after)
                        << static_cast<int>(call) << " " << nth << " " << error;
                    EXPECT_EQ(EntriesOf(folder), 1U);
                }
            }
        }
    }
}

TEST(SafeWrite, AFolderThatTakesNoNewFileHasItsFileWrittenInPlaceAndPutBackWhenThatFails) {
    const std::string before = std::string(3000, 'o') + "end";
    for (const std::string& after : {std::string(5000, 'n'), std::string(100, 'n')}) {
        for (const Call call : kWriting) {
            for (const int error : kErrors) {
                for (int nth = 1; nth <= 4; ++nth) {
                    if (call == Call::Open && nth == 1) {
                        continue; // that one is the folder's refusal
                    }
                    const ScratchFolder folder;
                    folder.Write("a.hef", before);
                    bool told = false;
                    {
                        const FailingDisk disk{{Call::Open, 1, EACCES}, {call, nth, error}};
                        told = !Written(folder / "a.hef", after);
                    }
                    // A close after the flush may be told of although the new bytes are on the disk.
                    const std::string now = folder.Read("a.hef");
                    if (!told || call == Call::Close) {
                        EXPECT_EQ(now, after) << static_cast<int>(call) << " " << nth << " " << error;
                    } else {
                        EXPECT_EQ(now, before) << static_cast<int>(call) << " " << nth << " " << error;
                    }
                    EXPECT_EQ(EntriesOf(folder), 1U);
                }
            }
        }
    }
}

TEST(SafeWrite, AFirstWriteThatFailsLeavesNoEmptyFile) {
    for (const Call call : {Call::Open, Call::Write, Call::Flush, Call::Close, Call::Rename}) {
        const ScratchFolder folder;
        const FailingDisk disk{{call, 1, ENOSPC}};
        EXPECT_FALSE(Written(folder / "new.hef", "text"));
        EXPECT_EQ(EntriesOf(folder), 0U);
    }
}

TEST(SafeWrite, AWriteThatTakesNothingHasFailed) {
    const ScratchFolder folder;
    folder.Write("a", "old");
    const FailingDisk disk{{Call::Write, 1, 0, FailingDisk::kForever}};
    EXPECT_FALSE(Written(folder / "a", "new"));
    EXPECT_EQ(folder.Read("a"), "old");
}

TEST(SafeWrite, ASignalInTheMiddleOfACallCostsNothing) {
    for (const Call call : {Call::Open, Call::Write, Call::GiveMode, Call::Flush}) {
        const ScratchFolder folder;
        folder.Write("a", "old");
        FailingDisk disk{{call, 1, EINTR, 3}};
        EXPECT_TRUE(Written(folder / "a", "new"));
        EXPECT_EQ(disk.Failed(), 3);
        EXPECT_EQ(folder.Read("a"), "new");
    }
}

TEST(SafeWrite, TheOldOnesRightsAreGivenWithTheOwnersRightToWrite) {
    const ScratchFolder folder;
    folder.Write("a", "old");
    ASSERT_EQ(::chmod((folder / "a").c_str(), 0640), 0);
    files::WriteWhole(folder / "a", "new");
    struct stat about {};
    ASSERT_EQ(::stat((folder / "a").c_str(), &about), 0);
    EXPECT_EQ(about.st_mode & 0777U, 0640U);
    ASSERT_EQ(::chmod((folder / "a").c_str(), 0440), 0);
    EXPECT_THROW(files::WriteWhole(folder / "a", "no", files::ReadOnly::Refuse), files::FileError);
    EXPECT_EQ(folder.Read("a"), "new");
    files::WriteWhole(folder / "a", "newer");
    ASSERT_EQ(::stat((folder / "a").c_str(), &about), 0);
    EXPECT_EQ(about.st_mode & 0777U, 0640U);
    EXPECT_EQ(folder.Read("a"), "newer");
}

TEST(SafeWrite, ASymbolicLinkStaysAndItsTargetTakesTheBytes) {
    const ScratchFolder folder;
    folder.Write("share/real.hef", "old");
    fs::create_symlink("share/real.hef", folder / "link.hef");
    fs::create_symlink("link.hef", folder / "again.hef");
    files::WriteWhole(folder / "again.hef", "new");
    EXPECT_TRUE(fs::is_symlink(folder / "link.hef"));
    EXPECT_TRUE(fs::is_symlink(folder / "again.hef"));
    EXPECT_EQ(folder.Read("share/real.hef"), "new");
    fs::create_symlink("share/later.hef", folder / "to come.hef");
    files::WriteWhole(folder / "to come.hef", "first");
    EXPECT_EQ(folder.Read("share/later.hef"), "first");
    folder.Write("work", "by another file");
    files::Replace(folder / "work", folder / "again.hef");
    EXPECT_TRUE(fs::is_symlink(folder / "again.hef"));
    EXPECT_EQ(folder.Read("share/real.hef"), "by another file");
    fs::create_symlink("circle", folder / "circle");
    EXPECT_FALSE(Written(folder / "circle", "x"));
}

TEST(SafeWrite, AnAppendThatFailsLeavesTheFileAsLongAsItWas) {
    const ScratchFolder folder;
    folder.Write("log", "one");
    {
        const FailingDisk disk{{Call::Write, 1, ENOSPC}};
        EXPECT_THROW(files::Append(folder / "log", "two"), files::FileError);
    }
    EXPECT_EQ(folder.Read("log"), "one");
}

TEST(SafeWrite, WhatRunsThatAreNoMoreLeftGoesAndNothingElse) {
    const ScratchFolder folder;
    constexpr int kNobody = 0x3fffff00; // above the numbers that processes get
    const std::string ours = Temporary(ThisHost(), kNobody);
    const std::string alive = Temporary(ThisHost(), ::getppid());
    const std::string foreign = Temporary("another-machine", kNobody);
    const std::string forgotten = Temporary("a-third", kNobody);
    const std::string noNumber = ".quillbrook." + ThisHost() + ".x.0.tmp";
    const std::string noHost = ".quillbrook.x.tmp";
    const std::string somebodysCopy = ours + "~";
    const std::string oursToo = Temporary(ThisHost(), kNobody + 1);
    for (const std::string& name :
         {ours, alive, foreign, forgotten, noNumber, noHost, somebodysCopy, Temporary(ThisHost(), 0),
          std::string("Jane.hef"), std::string(".quillbrook.tmp"), oursToo}) {
        folder.Write(name, "x");
    }
    const auto lastWritten = [&](const std::string& name, std::chrono::minutes ago) {
        fs::last_write_time(folder / name, fs::file_time_type::clock::now() - ago);
    };
    constexpr std::chrono::minutes kDay = std::chrono::hours(24);
    lastWritten(forgotten, kDay + std::chrono::minutes(10));
    lastWritten(foreign, kDay - std::chrono::minutes(10));
    lastWritten(noHost, kDay + kDay);
    files::RemoveLeftOvers(folder.Path());
    EXPECT_FALSE(folder.Has(ours));
    EXPECT_FALSE(folder.Has(oursToo));
    EXPECT_FALSE(folder.Has(forgotten));
    EXPECT_TRUE(folder.Has(alive));
    EXPECT_TRUE(folder.Has(foreign));
    EXPECT_TRUE(folder.Has("Jane.hef"));
    EXPECT_TRUE(folder.Has(somebodysCopy));
    EXPECT_EQ(EntriesOf(folder), 8U);
    files::RemoveLeftOvers(folder / "none");
}

TEST(SafeWrite, AFileWrittenInPlaceGetsItsOwnersRightToWrite) {
    const ScratchFolder folder;
    folder.Write("a", "old");
    ASSERT_EQ(::chmod((folder / "a").c_str(), 0440), 0);
    const FailingDisk disk{{Call::Open, 1, EACCES}};
    files::WriteWhole(folder / "a", "new");
    EXPECT_EQ(folder.Read("a"), "new");
    struct stat about {};
    ASSERT_EQ(::stat((folder / "a").c_str(), &about), 0);
    EXPECT_EQ(about.st_mode & 0777U, 0640U);
}

TEST(SafeWrite, WhatIsPutBackInPlaceStandsOnTheDiskBeforeTheFailureIsTold) {
    const ScratchFolder folder;
    folder.Write("a", "old");
    const FailingDisk disk{{Call::Open, 1, EACCES}, {Call::Write, 1, EIO}};
    EXPECT_FALSE(Written(folder / "a", "new"));
    EXPECT_EQ(folder.Read("a"), "old");
    EXPECT_EQ(disk.CallsOf(Call::Flush), 2) << "before the first old byte is touched, and behind the last";
}

TEST(SafeWrite, WhatIsWrittenInPlaceStandsOnTheDiskBeforeItCountsAsSaved) {
    const ScratchFolder folder;
    folder.Write("a", "old");
    const FailingDisk disk{{Call::Open, 1, EACCES}};
    EXPECT_TRUE(Written(folder / "a", "newer"));
    EXPECT_EQ(disk.CallsOf(Call::Flush), 2) << "before the first old byte is touched, and behind the last";
}

TEST(SafeWrite, ADiskThatTakesEveryNameForATakenOneIsAskedAHundredTimesAndNotForEver) {
    const ScratchFolder folder;
    const FailingDisk disk{{Call::Open, 1, EEXIST, FailingDisk::kForever}};
    EXPECT_FALSE(Written(folder / "a", "new"));
    EXPECT_EQ(disk.CallsOf(Call::Open), 100);
}

TEST(SafeWrite, ASaveThatWentWellDeletesNothing) {
    const ScratchFolder folder;
    folder.Write("a", "old");
    const FailingDisk disk{};
    EXPECT_TRUE(Written(folder / "a", "new"));
    EXPECT_EQ(disk.CallsOf(Call::Unlink), 0);
}

TEST(SafeWrite, APipeIsNeverReplaced) {
    const ScratchFolder folder;
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    EXPECT_FALSE(Written(folder / "pipe", "text"));
    EXPECT_TRUE(fs::is_fifo(folder / "pipe"));
}

/// Makes "new" in a folder: how it went, and what stands there afterwards.
enum class Ended { Made, NameTaken, Told };

Ended Make(const ScratchFolder& folder) {
    try {
        return safe_write::MakeNew(folder / "new", "text", "new") == safe_write::Made::Yes ? Ended::Made
                                                                                           : Ended::NameTaken;
    } catch (const files::FileError&) {
        return Ended::Told;
    }
}

TEST(MakeNew, MakesAFileWhereNothingHasItsName) {
    const ScratchFolder folder;
    EXPECT_EQ(Make(folder), Ended::Made);
    EXPECT_EQ(folder.Read("new"), "text");
    EXPECT_EQ(EntriesOf(folder), 1U);
    folder.Write("new", "there before");
    EXPECT_EQ(Make(folder), Ended::NameTaken);
    EXPECT_EQ(folder.Read("new"), "there before");
    EXPECT_EQ(EntriesOf(folder), 1U);
}

TEST(MakeNew, WorksOnAFileSystemWhereAFileHasOneNameOnly) {
    for (const int unknown : {EPERM, EOPNOTSUPP, ENOSYS}) {
        const FailingDisk disk{{Call::Link, 1, unknown, FailingDisk::kForever}};
        const ScratchFolder folder;
        EXPECT_EQ(Make(folder), Ended::Made) << unknown;
        EXPECT_EQ(folder.Read("new"), "text");
        EXPECT_EQ(EntriesOf(folder), 1U);
        folder.Write("new", "there before");
        EXPECT_EQ(Make(folder), Ended::NameTaken) << unknown;
        EXPECT_EQ(folder.Read("new"), "there before");
        EXPECT_EQ(EntriesOf(folder), 1U);
    }
}

TEST(MakeNew, WhateverCallFailsIsToldOfAndLeavesNothing) {
    for (const Call call : {Call::Open, Call::Write, Call::Flush, Call::Close, Call::Link}) {
        const ScratchFolder folder;
        const FailingDisk disk{{call, 1, EIO}};
        EXPECT_EQ(Make(folder), Ended::Told) << static_cast<int>(call);
        EXPECT_EQ(EntriesOf(folder), 0U) << static_cast<int>(call);
    }
    const ScratchFolder folder;
    const FailingDisk disk{{Call::Link, 1, EPERM}, {Call::Rename, 1, EIO}};
    EXPECT_EQ(Make(folder), Ended::Told);
    EXPECT_EQ(EntriesOf(folder), 0U);
}

/// Every way in which the program opens a file.
void OpenInEveryWay(const ScratchFolder& folder) {
    files::WriteWhole(folder / "a", "text");
    files::WriteWhole(folder / "a", "other text");
    EXPECT_EQ(files::ReadAll(folder / "a"), "other text");
    files::Append(folder / "a", "!");
    EXPECT_EQ(files::AppendRecord(folder / "records", "one"), 1U);
    EXPECT_EQ(files::WriteOver(folder / "records", 0, "one", "two"), files::InPlace::Written);
    EXPECT_EQ(files::ReadAt(folder / "records", 0, 3), "two");
    files::ScanHeads(folder.Path(), "a", 5, [](files::FileHead&& head) {
        EXPECT_EQ(head.Bytes, "other");
        return true;
    });
    EXPECT_EQ(safe_write::MakeNew(folder / "made", "text", "made"), safe_write::Made::Yes);
    files::MoveNew(folder / "made", folder / "moved");
    EXPECT_EQ(folder.Read("moved"), "text");
    EXPECT_EQ(folder.Read("a"), "other text!");
}

void ExpectEveryOpenedFileToBeClosedOnce() {
    const ScratchFolder folder;
    const FailingDisk disk{{Call::Move, 1, EINVAL, FailingDisk::kForever},
                           {Call::Link, 1, EPERM, FailingDisk::kForever}};
    OpenInEveryWay(folder);
    const int opened = disk.CallsOf(Call::Open) + disk.CallsOf(Call::OpenIn);
    EXPECT_GE(opened, 12);
    EXPECT_EQ(disk.CallsOf(Call::Close), opened);
}

TEST(Files, OnceOpenedAreClosedOnce) {
    ExpectEveryOpenedFileToBeClosedOnce();
}

/// While it lives, the system's first number for files is free, as when the program is started without an
/// input.
class NoInput {
public:
    NoInput() : kept_(::dup(STDIN_FILENO)) { ::close(STDIN_FILENO); }
    ~NoInput() {
        if (kept_ >= 0) {
            ::dup2(kept_, STDIN_FILENO);
            ::close(kept_);
        }
    }
    NoInput(const NoInput&) = delete;
    NoInput& operator=(const NoInput&) = delete;

private:
    int kept_;
};

TEST(Files, AreFilesToAProgramWithoutAnInputToo) {
    const NoInput noInput;
    ExpectEveryOpenedFileToBeClosedOnce();
}

} // namespace
