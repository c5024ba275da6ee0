#include "base/record_file.h"

#include "base/file_error.h"
#include "support/failing_disk.h"
#include "support/scratch_folder.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <functional>
#include <optional>
#include <string>

#include <sys/stat.h>

namespace {

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

int Overwrite(const std::string& path, const std::string& expected, const std::string& bytes) {
    return NumberOf([&] { EXPECT_EQ(files::WriteOver(path, 2, expected, bytes), files::InPlace::Written); });
}

int Add(const std::string& path, const std::string& record) {
    return NumberOf([&] { static_cast<void>(files::AppendRecord(path, record)); });
}

TEST(RecordFiles, ARecordIsWrittenOverWhatWasExpectedThereAlone) {
    const ScratchFolder folder;
    folder.Write("a", "11222233");
    EXPECT_EQ(files::WriteOver(folder / "a", 2, "2222", "abcd"), files::InPlace::Written);
    EXPECT_EQ(folder.Read("a"), "11abcd33");
    EXPECT_EQ(files::WriteOver(folder / "a", 2, "2222", "efgh"), files::InPlace::Differs);
    EXPECT_EQ(files::WriteOver(folder / "a", 2, "abcd", "efg"), files::InPlace::Differs);
    EXPECT_EQ(files::WriteOver(folder / "a", 6, "33xx", "efgh"), files::InPlace::Differs);
    EXPECT_EQ(folder.Read("a"), "11abcd33");
    EXPECT_EQ(Overwrite(folder / "none", "2222", "abcd"), files::kNotFound);
    EXPECT_FALSE(folder.Has("none"));
}

TEST(RecordFiles, ARecordIsAddedBehindTheLastWholeOne) {
    const ScratchFolder folder;
    EXPECT_EQ(files::AppendRecord(folder / "a", "one "), 1U);
    EXPECT_EQ(files::AppendRecord(folder / "a", "two "), 2U);
    EXPECT_EQ(folder.Read("a"), "one two ");
    folder.Write("a", "one two st");
    EXPECT_EQ(files::AppendRecord(folder / "a", "four"), 3U);
    EXPECT_EQ(folder.Read("a"), "one two four");
}

TEST(RecordFiles, AReadLeavesNoFileWhereThereIsNone) {
    const ScratchFolder folder;
    EXPECT_EQ(NumberOf([&] { static_cast<void>(files::ReadAt(folder / "none", 0, 4)); }), files::kNotFound);
    EXPECT_FALSE(folder.Has("none"));
}

TEST(RecordFiles, AFileThatIsProtectedFromWritingIsReadAndNotWritten) {
    const ScratchFolder folder;
    folder.Write("a", "11222233");
    ASSERT_EQ(::chmod((folder / "a").c_str(), 0444), 0);
    EXPECT_EQ(files::ReadAt(folder / "a", 2, 4), "2222");
    EXPECT_EQ(Overwrite(folder / "a", "2222", "abcd"), files::kPermissionDenied);
    EXPECT_EQ(Add(folder / "a", "abcd"), files::kPermissionDenied);
    folder.Write("new", "other");
    EXPECT_EQ(NumberOf([&] { files::Replace(folder / "new", folder / "a"); }), files::kPermissionDenied);
    EXPECT_EQ(folder.Read("a"), "11222233");
    EXPECT_EQ(folder.Read("new"), "other");
}

TEST(RecordFiles, AFileThatCannotBeOpenedOrReadTellsWhy) {
    const ScratchFolder folder;
    folder.Write("a", "11222233");
    const auto read = [&] { return NumberOf([&] { static_cast<void>(files::ReadAt(folder / "a", 2, 4)); }); };
    {
        const FailingDisk disk{{Call::Open, 1, EACCES}};
        EXPECT_EQ(read(), files::kPermissionDenied);
    }
    const FailingDisk disk{{Call::Read, 1, EIO}};
    EXPECT_EQ(read(), files::kDeviceError);
}

TEST(RecordFiles, ASignalInTheMiddleOfACallCostsNothing) {
    const ScratchFolder folder;
    folder.Write("a", "11222233");
    for (const Call call : {Call::Read, Call::Write}) {
        const FailingDisk disk{{call, 1, EINTR, 3}};
        EXPECT_EQ(Overwrite(folder / "a", "2222", "abcd"), 0);
        EXPECT_EQ(disk.Failed(), 3);
        EXPECT_EQ(folder.Read("a"), "11abcd33");
        folder.Write("a", "11222233");
    }
}

TEST(RecordFiles, AFileSystemThatKnowsNoFlushHasWrittenAllTheSame) {
    const ScratchFolder folder;
    folder.Write("a", "11222233");
    for (const int unknown : {EINVAL, EROFS}) {
        const FailingDisk disk{{Call::Flush, 1, unknown}};
        EXPECT_EQ(Overwrite(folder / "a", "2222", "2222"), 0);
        EXPECT_EQ(disk.Failed(), 1);
    }
}

TEST(RecordFiles, AWriteThatFailsIsToldOfAndTheOldBytesArePutBack) {
    const ScratchFolder folder;
    folder.Write("a", "11222233");
    for (const Call call : {Call::Write, Call::Flush}) {
        const FailingDisk disk{{call, 1, ENOSPC}};
        EXPECT_EQ(Overwrite(folder / "a", "2222", "abcd"), files::kDiskFull);
        EXPECT_EQ(folder.Read("a"), "11222233");
    }
    const FailingDisk disk{{Call::Write, 1, 0}};
    EXPECT_EQ(Overwrite(folder / "a", "2222", "abcd"), files::kDiskFull)
        << "a disk that takes nothing is full";
    EXPECT_EQ(folder.Read("a"), "11222233");
}

TEST(RecordFiles, WhatCannotBePutBackIsToldOfUnlessTheOldBytesStandThereAnyway) {
    const ScratchFolder folder;
    folder.Write("a", "11222233");
    {
        const FailingDisk disk{{Call::Flush, 1, ENOSPC, FailingDisk::kForever}};
        EXPECT_EQ(Overwrite(folder / "a", "2222", "abcd"), files::kDiskFull);
        EXPECT_EQ(folder.Read("a"), "11222233");
    }
    const FailingDisk disk{{Call::Flush, 1, ENOSPC}, {Call::Write, 2, EIO, FailingDisk::kForever}};
    EXPECT_EQ(Overwrite(folder / "a", "2222", "abcd"), files::kDeviceError);
}

TEST(RecordFiles, ARecordThatCannotBeAddedLeavesTheFileAsItWasToTheLastByte) {
    for (const char* before : {"one two ", "one two st", ""}) {
        for (const Call call : {Call::Write, Call::Flush}) {
            const ScratchFolder folder;
            folder.Write("a", before);
            const FailingDisk disk{{call, 1, ENOSPC}};
            EXPECT_EQ(Add(folder / "a", "four"), files::kDiskFull);
            EXPECT_EQ(folder.Read("a"), before);
        }
    }
    const ScratchFolder folder;
    folder.Write("a", "one ");
    const FailingDisk disk{{Call::Write, 1, ENOSPC}, {Call::SetLength, 1, EIO}};
    EXPECT_EQ(Add(folder / "a", "two "), files::kDeviceError) << "half a record stands behind the last";
}

TEST(RecordFiles, AReplacementThatFailsIsToldOf) {
    const ScratchFolder folder;
    folder.Write("a", "old");
    folder.Write("new", "new");
    const FailingDisk disk{{Call::Rename, 1, EIO}};
    EXPECT_EQ(NumberOf([&] { files::Replace(folder / "new", folder / "a"); }), files::kDeviceError);
    EXPECT_EQ(folder.Read("a"), "old");
    EXPECT_EQ(folder.Read("new"), "new");
}

TEST(RecordFiles, AStampTellsAnotherFileOfTheSameNameFromTheFirst) {
    const ScratchFolder folder;
    EXPECT_EQ(files::StampOf(folder / "a"), std::nullopt);
    folder.Write("a", "12345");
    const std::optional<files::Stamp> first = files::StampOf(folder / "a");
    ASSERT_TRUE(first.has_value());
    EXPECT_EQ(first->Length, 5U);
    EXPECT_EQ(files::StampOf(folder / "a"), first);
    folder.Write("new", "12345");
    files::Replace(folder / "new", folder / "a");
    EXPECT_NE(files::StampOf(folder / "a"), first);
    folder.MakeFolder("folder");
    EXPECT_EQ(files::StampOf(folder / "folder"), std::nullopt);
}

} // namespace
