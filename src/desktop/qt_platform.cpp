#include "desktop/qt_platform.h"

#include "core/ansi.h"
#include "core/install.h"
#include "core/program.h"

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>

namespace desktop {

namespace {

std::string Folder(const QString& path) {
    const auto known = ansi::FromUtf8(QDir::cleanPath(path).toStdString());
    return known ? *known + "/" : std::string("/");
}

/// What an installation ships: beside the installed program, or in the source tree it was built from.
QString Shipped() {
    const QString installed = QCoreApplication::applicationDirPath() + QStringLiteral("/../share/quillbrook");
    return QDir(installed).exists() ? installed : QStringLiteral(QUILLBROOK_DATA_DIR);
}

} // namespace

void SetFolders(Program& program) {
    Folders& folders = program.folders;
    const QString user = QString::fromLocal8Bit(qgetenv("USER"));
    folders.Drives.Home = Folder(QDir::homePath());
    folders.Drives.MountPlaces = {Folder(QStringLiteral("/media/") + user), Folder(QStringLiteral("/mnt")),
                                  Folder(QStringLiteral("/run/media/") + user)};
    const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    folders.InstallFolder =
        install::Locate({Folder(QCoreApplication::applicationDirPath()),
                         Folder(data + QStringLiteral("/Quillbrook")), Folder(Shipped())});
}

} // namespace desktop
