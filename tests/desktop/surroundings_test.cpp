#include "desktop/qt_platform.h"
#include "desktop/qt_surroundings.h"
#include "program/program.h"
#include "support/recording_platform.h"
#include "support/scratch_folder.h"

#include <QByteArray>
#include <QClipboard>
#include <QDir>
#include <QGuiApplication>
#include <QMimeData>

#include <gtest/gtest.h>

#include <filesystem>

namespace {

/// A value of the environment for as long as this stands.
class Environment {
public:
    Environment(const char* name, const QByteArray& value) : name_(name), before_(qgetenv(name)) {
        qputenv(name, value);
    }
    ~Environment() { before_.isEmpty() ? qunsetenv(name_) : qputenv(name_, before_); }
    Environment(const Environment&) = delete;
    Environment& operator=(const Environment&) = delete;

private:
    const char* name_;
    QByteArray before_;
};

/// A runtime folder of its own for lock files.
struct Locks {
    Locks() { std::filesystem::permissions(folder / "", std::filesystem::perms::owner_all); }
    ScratchFolder folder;
    Environment runtime{"XDG_RUNTIME_DIR", QByteArray::fromStdString(folder / "")};
    [[nodiscard]] std::string Only() const {
        const QStringList found =
            QDir(QString::fromStdString(folder / "")).entryList({QStringLiteral("*.lock")});
        EXPECT_EQ(found.size(), 1);
        return found.value(0).toStdString();
    }
};

TEST(Instance, ASecondClaimIsRefusedWhileTheFirstStands) {
    const Locks locks;
    QtSingleInstance first;
    EXPECT_EQ(first.Claim("/opt/one/"), SingleInstance::Result::Claimed);
    QtSingleInstance second;
    EXPECT_EQ(second.Claim("/opt/one/"), SingleInstance::Result::Taken);
    QtSingleInstance other;
    EXPECT_EQ(other.Claim("/opt/other/"), SingleInstance::Result::Claimed);
}

TEST(Instance, AFolderReachedByTwoNamesIsOne) {
    const Locks locks;
    const ScratchFolder data;
    data.MakeFolder("real");
    std::filesystem::create_symlink(data / "real", data / "link");
    QtSingleInstance first;
    EXPECT_EQ(first.Claim(data / "real/"), SingleInstance::Result::Claimed);
    QtSingleInstance second;
    EXPECT_EQ(second.Claim(data / "link/"), SingleInstance::Result::Taken);
}

TEST(Instance, ALockFileThatNamesNobodyKeepsNobodyOut) {
    for (const char* left : {"", "7", "torn\n"}) {
        const Locks locks;
        std::string name;
        {
            QtSingleInstance first;
            ASSERT_EQ(first.Claim("/opt/one/"), SingleInstance::Result::Claimed);
            name = locks.Only();
        }
        locks.folder.Write(name, left);
        QtSingleInstance again;
        EXPECT_EQ(again.Claim("/opt/one/"), SingleInstance::Result::Claimed) << left;
        QtSingleInstance second;
        EXPECT_EQ(second.Claim("/opt/one/"), SingleInstance::Result::Taken) << left;
    }
}

TEST(Folders, AHomeWhoseNameCannotBeKeptIsNotTakenForTheRoot) {
    const ScratchFolder folder;
    const QByteArray home = QByteArray::fromStdString(folder / "") + "\xC5\x81ukasz";
    ASSERT_TRUE(QDir().mkpath(QString::fromUtf8(home)));
    const Environment homeIs("HOME", home);
    const Environment dataIs("XDG_DATA_HOME", home + "/data");
    RecordingPlatform surroundings;
    Program program(surroundings.platform);
    EXPECT_THROW(desktop::SetFolders(program), std::exception);
    EXPECT_EQ(program.folders.InstallFolder, "");
}

TEST(Clipboard, HoldsNothingOfWhatWasCopiedBefore) {
    const QClipboard& shared = *QGuiApplication::clipboard();
    QtClipboard clipboard;
    clipboard.SetTextAndTable("one", "<table></table>");
    ASSERT_TRUE(shared.mimeData()->hasHtml());
    clipboard.SetText("two");
    EXPECT_EQ(clipboard.GetText(), "two");
    EXPECT_FALSE(shared.mimeData()->hasHtml()) << "a program that takes tables gets the text, too";
    clipboard.SetTextAndTable("three", "<table></table>");
    clipboard.SetUnicodeText("four");
    EXPECT_EQ(clipboard.GetText(), "four");
    EXPECT_FALSE(shared.mimeData()->hasHtml());
    clipboard.SetTextAndTable("five", "<table></table>");
    EXPECT_EQ(clipboard.GetText(), "five");
}

} // namespace
