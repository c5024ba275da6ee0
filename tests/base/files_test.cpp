#include "base/files.h"

#include "base/folder_scan.h"
#include "base/record_file.h"
#include "base/rows.h"
#include "support/failing_disk.h"
#include "support/scratch_folder.h"
#include "support/small_disk.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <ctime>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

int NumberOf(const std::function<void()>& work) {
    try {
        work();
    } catch (const files::FileError& error) {
        return error.Number();
    }
    return 0;
}

TEST(Files, ReadNoMoreThanWasAskedFor) {
    const ScratchFolder folder;
    folder.Write("a", "0123456789");
    EXPECT_EQ(files::ReadUpTo(folder / "a", 4), "0123");
    EXPECT_EQ(files::ReadUpTo(folder / "a", 100), "0123456789");
    const files::Head head = files::ReadHead(folder / "a", 4);
    EXPECT_EQ(head.Bytes, "0123");
    EXPECT_EQ(head.Length, 10U) << "of the whole file";
    EXPECT_EQ(files::Length(folder / "a"), 10U);
    EXPECT_THROW(static_cast<void>(files::ReadAll(folder / "a", 9)), files::FileError);
    EXPECT_EQ(files::ReadAll(folder / "a", 10), "0123456789");
}

TEST(Files, WhatIsNoRegularFileIsRefusedAndNeverWaitedFor) {
    const ScratchFolder folder;
    folder.MakeFolder("folder");
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    EXPECT_EQ(NumberOf([&] { static_cast<void>(files::ReadAll(folder / "folder")); }), files::kPathAccess);
    EXPECT_EQ(NumberOf([&] { static_cast<void>(files::ReadAll(folder / "pipe")); }), files::kPathAccess);
    EXPECT_EQ(NumberOf([&] { static_cast<void>(files::ReadAll("/dev/zero")); }), files::kPathAccess);
    EXPECT_EQ(NumberOf([&] { static_cast<void>(files::ReadAll(folder / "none")); }), files::kNotFound);
    EXPECT_EQ(NumberOf([&] { files::WriteWhole(folder / "folder", "x"); }), files::kPathAccess);
    EXPECT_EQ(NumberOf([&] { static_cast<void>(files::Length(folder / "folder")); }), files::kPathAccess);
    EXPECT_FALSE(files::Exists(folder / "folder"));
    EXPECT_TRUE(files::IsFolder(folder / "folder"));
}

TEST(Files, AReadThatBreaksOffIsTold) {
    const ScratchFolder folder;
    // Its first page is nobody's: it opens as any file and then cannot be read.
    std::filesystem::create_symlink("/proc/self/mem", folder / "broken");
    EXPECT_THROW(static_cast<void>(files::ReadAll(folder / "broken")), files::FileError);
    EXPECT_THROW(static_cast<void>(files::ReadUpTo(folder / "broken", 5)), files::FileError);
    EXPECT_THROW(static_cast<void>(files::ReadHead(folder / "broken", 5)), files::FileError);
}

TEST(Files, NamesAreFoundWithoutRegardToCaseAnExactOneFirst) {
    const ScratchFolder folder;
    folder.Write("Backup/Jane.HEF", "upper");
    EXPECT_EQ(files::ReadAll(folder / "BACKUP/jane.hef"), "upper");
    EXPECT_EQ(files::ReadAll(folder / "backup\\jane.hef"), "upper");
    folder.Write("Backup/jane.hef", "lower");
    EXPECT_EQ(files::ReadAll(folder / "backup/jane.hef"), "lower");
    EXPECT_EQ(files::ReadAll(folder / "backup/Jane.HEF"), "upper");
    EXPECT_TRUE(files::FileIsThere(folder.Path(), "backup/JANE.hef"));
    EXPECT_TRUE(files::FolderExists(folder.Path(), "BACKUP"));
    EXPECT_FALSE(files::FolderExists(folder.Path(), "Jane.HEF"));
    EXPECT_FALSE(files::FileIsThere(folder.Path(), ""));
}

TEST(Files, NamesHoldEveryCharacterOfTheProgram) {
    const ScratchFolder folder;
    const std::string name = "\xD8rsted \x80 \xE9.hef";
    files::WriteWhole(folder.Path() + name, "x");
    EXPECT_TRUE(folder.Has("\xC3\x98rsted \xE2\x82\xAC \xC3\xA9.hef"));
    EXPECT_EQ(files::List(folder.Path(), "*.hef"), std::vector<std::string>{name});
}

TEST(Files, ListsByPatternsInOrderAndLeavesOutFolders) {
    const ScratchFolder folder;
    for (const char* name : {"b.hef", "A.HEF", "C.hef", "c.txt", "logo.jpg", "x.bmp"}) {
        folder.Write(name, "");
    }
    folder.MakeFolder("d.hef");
    EXPECT_EQ(files::List(folder.Path(), "*.hef"), (std::vector<std::string>{"A.HEF", "b.hef", "C.hef"}));
    EXPECT_EQ(files::List(folder.Path(), "*.jpg;*.bmp"), (std::vector<std::string>{"logo.jpg", "x.bmp"}));
    EXPECT_EQ(NumberOf([&] { static_cast<void>(files::List(folder / "none", "*")); }), files::kPathNotFound);
    EXPECT_EQ(NumberOf([&] { static_cast<void>(files::List(folder / "c.txt", "*")); }), files::kPathNotFound);
}

TEST(Files, AReadOnlyFileIsDeletedAfterItsAttributeWasCleared) {
    const ScratchFolder folder;
    folder.Write("a", "x");
    ASSERT_EQ(::chmod((folder / "a").c_str(), 0444), 0);
    files::ClearAttributes(folder / "a");
    struct stat about {};
    ASSERT_EQ(::stat((folder / "a").c_str(), &about), 0);
    EXPECT_NE(about.st_mode & S_IWUSR, 0U);
    files::Delete(folder / "a");
    EXPECT_FALSE(folder.Has("a"));
    folder.MakeFolder("b");
    EXPECT_EQ(NumberOf([&] { files::Delete(folder / "b"); }), files::kPathAccess);
    EXPECT_EQ(NumberOf([&] { files::ClearAttributes(folder / "c"); }), files::kNotFound);
}

TEST(Files, AFullDiskIsToldOf) {
    const ScratchFolder folder;
    const SmallDisk disk(1000);
    EXPECT_EQ(NumberOf([&] { files::WriteWhole(folder / "a", std::string(5000, 'x')); }), files::kDiskFull);
}

TEST(Files, AppendAndRenameAndCopy) {
    const ScratchFolder folder;
    files::Append(folder / "log", "one");
    files::Append(folder / "LOG", "two");
    EXPECT_EQ(folder.Read("log"), "onetwo");
    files::Copy(folder / "log", folder / "copy");
    EXPECT_EQ(folder.Read("copy"), "onetwo");
    EXPECT_EQ(NumberOf([&] { files::Rename(folder / "copy", folder / "log"); }), files::kAlreadyExists);
    files::Rename(folder / "copy", folder / "moved");
    folder.MakeFolder("folder");
    EXPECT_EQ(NumberOf([&] { files::Rename(folder / "folder", folder / "folder/within"); }),
              files::kDeviceError);
    EXPECT_TRUE(folder.Has("moved"));
    EXPECT_EQ(NumberOf([&] { files::WriteWhole(folder / "none/a", ""); }), files::kPathNotFound);
    EXPECT_NE(NumberOf([&] { files::WriteWhole(folder.Path() + "a/b?" + std::string(300, 'x'), ""); }), 0);
}

TEST(Files, WhatDeletesTakesTheExactNameOnly) {
    const ScratchFolder folder;
    folder.Write("Jane.hef", "x");
    EXPECT_EQ(NumberOf([&] { files::Delete(folder / "jane.hef"); }), files::kNotFound);
    EXPECT_TRUE(folder.Has("Jane.hef"));
    EXPECT_TRUE(files::Exists(folder / "jane.hef"));
    EXPECT_FALSE(files::ExistsExactly(folder / "jane.hef"));
    EXPECT_TRUE(files::ExistsExactly(folder / "Jane.hef"));
    files::WriteWhole(folder / "jane.hef", "y");
    EXPECT_EQ(folder.Read("Jane.hef"), "x");
    EXPECT_EQ(folder.Read("jane.hef"), "y");
}

TEST(Files, NamesWithABackslashAreNotListed) {
    const ScratchFolder folder;
    folder.Write("Backup\\Jane.hef", "x");
    folder.Write("Jane.hef", "x");
    folder.MakeFolder("a\\b");
    EXPECT_EQ(files::List(folder.Path(), "*.hef"), std::vector<std::string>{"Jane.hef"});
    EXPECT_TRUE(files::Subfolders(folder.Path()).empty());
}

TEST(Files, PredicatesNeverThrow) {
    const std::string hostile("a\0b", 3);
    EXPECT_FALSE(files::Exists(hostile));
    EXPECT_FALSE(files::ExistsExactly(hostile));
    EXPECT_FALSE(files::IsFolder(hostile));
    EXPECT_FALSE(files::IsFolder("/" + hostile + "/"));
    EXPECT_FALSE(files::FileIsThere("/tmp", hostile));
    EXPECT_FALSE(files::FolderExists(hostile, "x"));
    EXPECT_FALSE(files::Exists(""));
    EXPECT_FALSE(files::ExistsExactly("/none/of/these"));
    EXPECT_FALSE(files::Exists("/tmp/" + std::string(5000, 'x')));
}

TEST(Files, ANameThatNoFileCanHaveIsRefusedAndNoneIsWrittenInItsPlace) {
    const ScratchFolder folder;
    EXPECT_EQ(NumberOf([&] { files::WriteWhole(folder.Path() + std::string("a\0b", 3), "x"); }),
              files::kBadName);
    EXPECT_FALSE(folder.Has("a"));
    EXPECT_EQ(NumberOf([&] { files::WriteWhole(folder.Path(), "x"); }), files::kBadName);
    EXPECT_EQ(NumberOf([&] { files::MakeFolder("/"); }), files::kBadName);
}

/// While it lives, the process has this time zone.
class TimeZone {
public:
    explicit TimeZone(const char* zone) {
        if (const char* before = std::getenv("TZ")) {
            before_ = before;
        }
        ::setenv("TZ", zone, 1);
        ::tzset();
    }
    ~TimeZone() {
        if (before_) {
            ::setenv("TZ", before_->c_str(), 1);
        } else {
            ::unsetenv("TZ");
        }
        ::tzset();
    }
    TimeZone(const TimeZone&) = delete;
    TimeZone& operator=(const TimeZone&) = delete;

private:
    std::optional<std::string> before_;
};

TEST(Files, AreModifiedAtATimeOfTheWallsClock) {
    const ScratchFolder folder;
    folder.Write("a", "x");
    constexpr std::time_t kMoment =
        1200938400; // 6 in the evening of 21 January 2008, day 39468, at Greenwich
    const std::array<timespec, 2> times{{{kMoment, 0}, {kMoment, 0}}};
    ASSERT_EQ(::utimensat(AT_FDCWD, (folder / "a").c_str(), times.data(), 0), 0);
    {
        const TimeZone greenwich("GMT0");
        EXPECT_DOUBLE_EQ(files::ModifiedSerial(folder / "a"), 39468.75);
    }
    const TimeZone sixHoursWest("CST6");
    EXPECT_DOUBLE_EQ(files::ModifiedSerial(folder / "a"), 39468.5);
}

TEST(Files, WhatCouldNotBeReadIsKeptBesideItAndEarlierOnesToo) {
    const ScratchFolder folder;
    folder.Write("a.txt", "first");
    EXPECT_EQ(files::KeepUnread(folder / "a.txt"), folder / "a.txt.unread");
    folder.Write("a.txt", "second");
    EXPECT_EQ(files::KeepUnread(folder / "a.txt"), folder / "a.txt.unread2");
    EXPECT_FALSE(folder.Has("a.txt"));
    EXPECT_EQ(folder.Read("a.txt.unread"), "first");
    EXPECT_EQ(folder.Read("a.txt.unread2"), "second");
}

std::vector<std::string> NamesEndingIn(const ScratchFolder& folder, std::string_view ending) {
    std::vector<std::string> names;
    files::ScanHeads(folder.Path(), ending, 0, [&](files::FileHead&& head) {
        names.push_back(head.Name);
        return true;
    });
    std::sort(names.begin(), names.end());
    return names;
}

TEST(FolderScan, FindsAnEndingInAnyCaseAndANameThatIsNothingElse) {
    const ScratchFolder folder;
    for (const char* name : {".az", "b.AZ", "c.aZ", "z", "d.a", "e.azz", "f.@[", "g.AZ2"}) {
        folder.Write(name, "");
    }
    EXPECT_EQ(NamesEndingIn(folder, ".az"), (std::vector<std::string>{".az", "b.AZ", "c.aZ"}));
    EXPECT_EQ(NamesEndingIn(folder, ".`{"), std::vector<std::string>{}) << "only letters have a case";
}

TEST(FolderScan, ReadsTheBeginningOfEachFileAndTellsWhatCannotBeRead) {
    const ScratchFolder folder;
    folder.Write("short.x", "abc");
    folder.Write("long.x", "0123456789");
    std::map<std::string, files::FileHead> heads;
    const auto take = [&](files::FileHead&& head) {
        heads[head.Name] = head;
        return true;
    };
    files::ScanHeads(folder.Path(), ".x", 5, take);
    ASSERT_EQ(heads.size(), 2U);
    EXPECT_EQ(heads["short.x"].Bytes, "abc");
    EXPECT_TRUE(heads["short.x"].Readable) << "it is merely short";
    EXPECT_EQ(heads["long.x"].Bytes, "01234");
    EXPECT_TRUE(heads["long.x"].Readable);
    const FailingDisk disk{{FailingDisk::Call::Read, 1, EIO, FailingDisk::kForever}};
    files::ScanHeads(folder.Path(), ".x", 5, take);
    EXPECT_FALSE(heads["short.x"].Readable);
    EXPECT_FALSE(heads["long.x"].Readable);
}

TEST(RecordFiles, WhatIsNoRegularFileIsRefused) {
    const ScratchFolder folder;
    folder.MakeFolder("folder");
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    for (const char* name : {"folder", "pipe"}) {
        EXPECT_EQ(NumberOf([&] { static_cast<void>(files::ReadAt(folder / name, 0, 4)); }),
                  files::kPathAccess)
            << name;
    }
    EXPECT_EQ(NumberOf([&] { static_cast<void>(files::AppendRecord(folder / "pipe", "abcd")); }),
              files::kPathAccess);
    EXPECT_EQ(NumberOf([&] { static_cast<void>(files::ReadAt(folder / "none", 0, 4)); }), files::kNotFound);
}

TEST(Rows, OfAListBeginAtNoughtAndEndBeforeItsSize) {
    const std::vector<int> two{7, 8};
    EXPECT_FALSE(HasRow(two, -1));
    EXPECT_TRUE(HasRow(two, 0));
    EXPECT_TRUE(HasRow(two, 1));
    EXPECT_FALSE(HasRow(two, 2));
    EXPECT_FALSE(HasRow(std::vector<int>{}, 0));
}

TEST(RecordFiles, AFileThatIsCutShortMeanwhileGivesWhatIsLeft) {
    const ScratchFolder folder;
    folder.Write("a", "0123456789");
    const files::RecordReader reader(folder / "a");
    EXPECT_EQ(reader.Length(), 10U);
    std::string bytes = "what stood here before";
    reader.Read(2, 4, bytes);
    EXPECT_EQ(bytes, "2345");
    reader.Read(8, 4, bytes);
    EXPECT_EQ(bytes, "89");
    reader.Read(10, 4, bytes);
    EXPECT_EQ(bytes, "");
    ASSERT_EQ(::truncate((folder / "a").c_str(), 3), 0);
    reader.Read(0, 10, bytes);
    EXPECT_EQ(bytes, "012");
}

TEST(Folders, OneThatCannotBeMadeTellsWhy) {
    const ScratchFolder folder;
    folder.MakeFolder("there");
    folder.Write("file", "x");
    EXPECT_EQ(NumberOf([&] { files::MakeFolder(folder / "there"); }), files::kAlreadyExists);
    EXPECT_EQ(NumberOf([&] { files::MakeFolder(folder / "none/new"); }), files::kPathNotFound);
    EXPECT_EQ(NumberOf([&] { files::MakeFolder(folder / std::string(300, 'n')); }), files::kBadName);
    files::MakeFolder(folder / "made/");
    EXPECT_TRUE(files::IsFolder(folder / "made"));
}

TEST(FolderScan, EndedAtAnyMomentOfListingOrReadingVisitsNothing) {
    const ScratchFolder folder;
    for (int file = 10; file < 30; ++file) {
        folder.Write(std::to_string(file) + ".x", "abc");
    }
    int asked = 0;
    int end = 0; // at which question; 0 is never
    int visited = 0;
    const auto scan = [&] {
        asked = visited = 0;
        files::ScanHeads(
            folder.Path(), ".x", 2,
            [&](files::FileHead&&) {
                ++visited;
                return true;
            },
            [&] { return ++asked != end; });
    };
    scan();
    EXPECT_EQ(visited, 20);
    const int questions = asked;
    EXPECT_GT(questions, 20) << "while they are read, too";
    for (end = 1; end <= questions; ++end) {
        scan();
        EXPECT_EQ(visited, 0) << end;
        EXPECT_EQ(asked, end);
    }
}

} // namespace
