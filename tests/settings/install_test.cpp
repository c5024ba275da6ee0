#include "base/files.h"
#include "settings/install.h"
#include "support/scratch_folder.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace {

struct Machine {
    Machine() {
        folder.MakeFolder("bin");
        folder.Write("shipped/UserPreferences.txt", "shipped");
        folder.Write("shipped/Proposals/Default Terms.fut", "Arch [1]");
        folder.Write("shipped/Help/index.htm", "help");
    }
    [[nodiscard]] std::string Locate() const {
        return install::Locate({folder / "bin/", folder / "user/share/Quillbrook/", folder / "shipped/"});
    }
    ScratchFolder folder;
};

TEST(Install, AProgramWithItsSettingsBesideItIsPortable) {
    const Machine machine;
    machine.folder.Write("bin/userpreferences.TXT", "own");
    EXPECT_EQ(machine.Locate(), machine.folder / "bin/");
    EXPECT_FALSE(machine.folder.Has("user"));
}

TEST(Install, AMissingUserFolderIsFilledWithWhatIsShipped) {
    const Machine machine;
    EXPECT_EQ(machine.Locate(), machine.folder / "user/share/Quillbrook/");
    EXPECT_EQ(machine.folder.Read("user/share/Quillbrook/UserPreferences.txt"), "shipped");
    EXPECT_EQ(machine.folder.Read("user/share/Quillbrook/Proposals/Default Terms.fut"), "Arch [1]");
    EXPECT_EQ(machine.folder.Read("user/share/Quillbrook/Help/index.htm"), "help");
    EXPECT_FALSE(machine.folder.Has("user/share/Quillbrook.unfinished"));
}

TEST(Install, AUserFolderThatIsThereIsTakenAsItIs) {
    const Machine machine;
    machine.folder.MakeFolder("user/share/Quillbrook");
    EXPECT_EQ(machine.Locate(), machine.folder / "user/share/Quillbrook/");
    EXPECT_FALSE(machine.folder.Has("user/share/Quillbrook/UserPreferences.txt"));
}

TEST(Install, AFillingThatBrokeOffIsBegunAgain) {
    const Machine machine;
    machine.folder.Write("user/share/Quillbrook.unfinished/half", "x");
    static_cast<void>(machine.Locate());
    EXPECT_EQ(machine.folder.Read("user/share/Quillbrook/UserPreferences.txt"), "shipped");
    EXPECT_FALSE(machine.folder.Has("user/share/Quillbrook/half"));
}

TEST(Install, WithoutAnythingShippedTheFolderIsEmpty) {
    const Machine machine;
    std::filesystem::remove_all(machine.folder / "shipped");
    EXPECT_EQ(machine.Locate(), machine.folder / "user/share/Quillbrook/");
    EXPECT_TRUE(machine.folder.Has("user/share/Quillbrook"));
}

TEST(Install, AFolderThatCannotBeMadeIsAFailure) {
    const Machine machine;
    machine.folder.Write("user", "a file stands here");
    EXPECT_THROW(static_cast<void>(machine.Locate()), files::FileError);
}

TEST(Install, AUserFolderWhoseNameCannotBeKeptIsAFailureAndNoOtherFolderIsTaken) {
    const Machine machine;
    const install::Places places{machine.folder / "bin/", "", machine.folder / "shipped/"};
    EXPECT_THROW(static_cast<void>(install::Locate(places)), files::FileError);
    machine.folder.Write("bin/UserPreferences.txt", "own");
    EXPECT_EQ(install::Locate(places), machine.folder / "bin/");
}

} // namespace
