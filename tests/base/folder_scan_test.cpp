#include "base/folder_scan.h"

#include "base/files.h"
#include "support/failing_disk.h"
#include "support/scratch_folder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <functional>
#include <ostream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <sys/stat.h>

namespace {

namespace fs = std::filesystem;
using Call = FailingDisk::Call;

/// The number of the failure; 0 when there is none.
int NumberOf(const std::function<void()>& work) {
    try {
        work();
    } catch (const files::FileError& error) {
        return error.Number();
    }
    return 0;
}

std::vector<files::FileHead> HeadsIn(const std::string& folder, std::string_view ending, std::size_t most) {
    std::vector<files::FileHead> heads;
    files::ScanHeads(folder, ending, most, [&](files::FileHead&& head) {
        heads.push_back(std::move(head));
        return true;
    });
    std::sort(heads.begin(), heads.end(),
              [](const files::FileHead& one, const files::FileHead& other) { return one.Name < other.Name; });
    return heads;
}

std::vector<std::string> NamesIn(const std::string& folder, std::string_view ending) {
    const std::vector<files::FileHead> heads = HeadsIn(folder, ending, 0);
    std::vector<std::string> names;
    names.reserve(heads.size());
    for (const files::FileHead& head : heads) {
        names.push_back(head.Name);
    }
    return names;
}

TEST(FolderScan, ALinkToAFileIsAFileAndWhateverElseHasTheEndingIsNone) {
    const ScratchFolder folder;
    folder.Write("real.x", "abc");
    folder.MakeFolder("folder.x");
    ASSERT_EQ(::mkfifo((folder / "pipe.x").c_str(), 0600), 0);
    fs::create_symlink("real.x", folder / "link.x");
    fs::create_symlink("folder.x", folder / "folder link.x");
    fs::create_symlink("none", folder / "dangling.x");
    EXPECT_EQ(NamesIn(folder.Path(), ".x"), (std::vector<std::string>{"link.x", "real.x"}));
}

TEST(FolderScan, NamesThatNoPathOfTheProgramCanHoldAreLeftOut) {
    const ScratchFolder folder;
    folder.Write("good.x", "");
    folder.Write("\xFF.x", "");
    folder.Write("\xD0\x96.x", "");
    folder.Write("Backup\\Ann.x", "");
    EXPECT_EQ(NamesIn(folder.Path(), ".x"), std::vector<std::string>{"good.x"});
}

TEST(FolderScan, NamesAloneOpenNoFile) {
    const ScratchFolder folder;
    folder.Write("a.x", "abc");
    const FailingDisk disk{{Call::OpenIn, 1, EIO, FailingDisk::kForever}};
    const std::vector<files::FileHead> heads = HeadsIn(folder.Path(), ".x", 0);
    ASSERT_EQ(heads.size(), 1U);
    EXPECT_TRUE(heads[0].Readable);
    EXPECT_EQ(disk.CallsOf(Call::OpenIn), 0);
}

TEST(FolderScan, AFileThatCannotBeOpenedIsToldOfWithoutABeginning) {
    const ScratchFolder folder;
    folder.Write("a.x", "abc");
    const FailingDisk disk{{Call::OpenIn, 1, EACCES, FailingDisk::kForever}};
    const std::vector<files::FileHead> heads = HeadsIn(folder.Path(), ".x", 8);
    ASSERT_EQ(heads.size(), 1U);
    EXPECT_FALSE(heads[0].Readable);
    EXPECT_EQ(heads[0].Bytes, "");
}

TEST(FolderScan, AFolderThatCannotBeListedTellsWhy) {
    const ScratchFolder folder;
    folder.Write("file", "");
    const auto scan = [](const std::string& path) {
        return NumberOf([&] { static_cast<void>(HeadsIn(path, ".x", 0)); });
    };
    EXPECT_EQ(scan(folder / "none"), files::kPathNotFound);
    EXPECT_EQ(scan(folder / "file"), files::kPathNotFound);
    const FailingDisk disk{{Call::OpenFolder, 1, EACCES}};
    EXPECT_EQ(scan(folder.Path()), files::kPermissionDenied);
}

TEST(FolderScan, EveryFileOfALargeFolderIsReadOnce) {
    constexpr std::size_t kMany = 1100; // enough for a second thread to help
    const ScratchFolder folder;
    for (std::size_t file = 0; file < kMany; ++file) {
        const std::string name = std::to_string(file) + ".x";
        folder.Write(name, name + " and more");
    }
    const std::vector<files::FileHead> heads = HeadsIn(folder.Path(), ".x", 6);
    ASSERT_EQ(heads.size(), kMany);
    for (std::size_t file = 0; file < kMany; ++file) {
        EXPECT_TRUE(heads[file].Readable);
        EXPECT_EQ(heads[file].Bytes, (heads[file].Name + " and more").substr(0, 6));
        EXPECT_TRUE(file == 0 || heads[file - 1].Name != heads[file].Name);
    }
}

/// What stands in a folder with "from" and perhaps "to" after a move of the one to the other.
struct Moved {
    int Failure;
    std::string From; ///< "-" where there is none
    std::string To;
    bool operator==(const Moved&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Moved& moved) {
    return out << moved.Failure << " from: " << moved.From << " to: " << moved.To;
}

enum class Target { Free, Taken };

Moved Move(Target target) {
    const ScratchFolder folder;
    folder.Write("from", "moved");
    if (target == Target::Taken) {
        folder.Write("to", "there before");
    }
    const int failure = NumberOf([&] { files::MoveNew(folder / "from", folder / "to"); });
    return {failure, folder.Has("from") ? folder.Read("from") : "-",
            folder.Has("to") ? folder.Read("to") : "-"};
}

constexpr int kNone = 0;
const Moved kDone{kNone, "-", "moved"};
const Moved kLeftAlone{files::kAlreadyExists, "moved", "there before"};

TEST(MoveNew, TakesAFreeNameAndNeverOneThatIsTaken) {
    EXPECT_EQ(Move(Target::Free), kDone);
    EXPECT_EQ(Move(Target::Taken), kLeftAlone);
    const ScratchFolder folder;
    EXPECT_EQ(NumberOf([&] { files::MoveNew(folder / "none", folder / "to"); }), files::kNotFound);
    EXPECT_FALSE(folder.Has("to"));
}

TEST(MoveNew, WorksOnAFileSystemWithoutSuchAMove) {
    for (const int unknown : {EINVAL, ENOSYS}) {
        const FailingDisk disk{{Call::Move, 1, unknown, FailingDisk::kForever}};
        EXPECT_EQ(Move(Target::Free), kDone) << unknown;
        EXPECT_EQ(Move(Target::Taken), kLeftAlone) << unknown;
        const ScratchFolder folder;
        EXPECT_EQ(NumberOf([&] { files::MoveNew(folder / "none", folder / "to"); }), files::kNotFound);
    }
}

TEST(MoveNew, WorksOnAFileSystemWhereAFileHasOneNameOnly) {
    for (const int unknown : {EPERM, EOPNOTSUPP, ENOSYS}) {
        const FailingDisk disk{{Call::Move, 1, EINVAL, FailingDisk::kForever},
                               {Call::Link, 1, unknown, FailingDisk::kForever}};
        EXPECT_EQ(Move(Target::Free), kDone) << unknown;
        EXPECT_EQ(Move(Target::Taken), kLeftAlone) << unknown;
    }
}

TEST(MoveNew, AMoveThatFailsLeavesTheFileUnderItsOldNameAlone) {
    const auto stays = [](int failure) { return Moved{failure, "moved", "-"}; };
    {
        const FailingDisk disk{{Call::Move, 1, EACCES}};
        EXPECT_EQ(Move(Target::Free), stays(files::kPermissionDenied));
    }
    {
        const FailingDisk disk{{Call::Move, 1, ENOSPC}};
        EXPECT_EQ(Move(Target::Free), stays(files::kDiskFull));
    }
    {
        const FailingDisk disk{{Call::Move, 1, EINVAL}, {Call::Link, 1, EIO}};
        EXPECT_EQ(Move(Target::Free), stays(files::kDeviceError));
    }
    {
        const FailingDisk disk{{Call::Move, 1, EINVAL}, {Call::Unlink, 1, EACCES}};
        EXPECT_EQ(Move(Target::Free), stays(files::kPermissionDenied));
    }
    {
        const FailingDisk disk{{Call::Move, 1, EINVAL}, {Call::Link, 1, EPERM}, {Call::Open, 1, ENOSPC}};
        EXPECT_EQ(Move(Target::Free), stays(files::kDiskFull));
    }
    {
        const FailingDisk disk{{Call::Move, 1, EINVAL}, {Call::Link, 1, EPERM}, {Call::Rename, 1, EIO}};
        EXPECT_EQ(Move(Target::Free), stays(files::kDeviceError));
    }
}

} // namespace
