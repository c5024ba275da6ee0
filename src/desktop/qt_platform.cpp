#include "desktop/qt_platform.h"

#include "base/ansi.h"
#include "base/paths.h"
#include "program/program.h"
#include "settings/install.h"

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>

namespace desktop {

namespace {

/// Empty when the name has characters that the program cannot spell: never another folder in its stead.
std::string Known(const QString& path) {
    return paths::WithSeparator(ansi::FromUtf8(QDir::cleanPath(path).toStdString()).value_or(""));
}

/// A folder that is only looked into.
std::string Folder(const QString& path) {
    const std::string known = Known(path);
    return known.empty() ? "/" : known;
}

/// What an installation ships: beside the folder of the installed program, or in its own.
QString Shipped() {
    const QString beside = QCoreApplication::applicationDirPath() + QStringLiteral("/../share/quillbrook");
    return QDir(beside).exists()
               ? beside
               : QCoreApplication::applicationDirPath() + QStringLiteral("/share/quillbrook");
}

} // namespace

void SetFolders(Program& program) {
    Folders& folders = program.folders;
    const QString user = QString::fromLocal8Bit(qgetenv("USER"));
    folders.Drives.MountPlaces = {Folder(QStringLiteral("/media/") + user), Folder(QStringLiteral("/mnt")),
                                  Folder(QStringLiteral("/run/media/") + user)};
    const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    folders.InstallFolder = install::Locate({Folder(QCoreApplication::applicationDirPath()),
                                             Known(data + QStringLiteral("/Quillbrook")), Folder(Shipped())});
    const std::string home = Known(QDir::homePath());
    folders.Drives.Home = home.empty() ? folders.InstallFolder : home;
}

} // namespace desktop
