#include "base/files.h"
#include "base/record_file.h"
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
    for (const std::string& name : {ours, alive, foreign, forgotten, std::string("Jane.hef"),
                                    std::string(".quillbrook.tmp"), std::string(".quillbrook.x.tmp")}) {
        folder.Write(name, "x");
    }
    fs::last_write_time(folder / forgotten, fs::file_time_type::clock::now() - std::chrono::hours(48));
    files::RemoveLeftOvers(folder.Path());
    EXPECT_FALSE(folder.Has(ours));
    EXPECT_FALSE(folder.Has(forgotten));
    EXPECT_TRUE(folder.Has(alive));
    EXPECT_TRUE(folder.Has(foreign));
    EXPECT_TRUE(folder.Has("Jane.hef"));
    EXPECT_EQ(EntriesOf(folder), 5U);
    files::RemoveLeftOvers(folder / "none");
}

} // namespace
