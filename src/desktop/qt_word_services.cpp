#include "desktop/qt_word_services.h"

#include "base/ansi.h"
#include "base/file_error.h"
#include "base/safe_write.h"
#include "desktop/convert.h"
#include "desktop/odt_document.h"

#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QUrl>

#include <string_view>

namespace {

const QString kOdt = QStringLiteral("application/vnd.oasis.opendocument.text");

/// A path that the program's characters cannot spell is told as an address that leads there.
std::string Spelled(const QString& path) {
    return ansi::FromUtf8(path.toStdString()).value_or(QUrl::fromLocalFile(path).toEncoded().toStdString());
}

class OdtService : public WordService {
public:
    explicit OdtService(QString name) : name_(std::move(name)) {}

    void AppShow() override { show_ = true; }
    void FileNew() override { written_ = {}; }
    void Insert(const std::vector<DocumentLine>& lines) override {
        QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
        if (folder.isEmpty() || !QDir(folder).exists()) {
            folder = QDir::homePath();
        }
        const QString path = desktop::WriteUnderFreeName(folder, name_, odt::Make(lines));
        written_.Path = Spelled(path);
        written_.Opened =
            show_ && desktop::HasProgramFor(kOdt) && QDesktopServices::openUrl(QUrl::fromLocalFile(path));
    }
    void ToolsSpelling(std::function<void(SpellingEnd)> done) override { done(SpellingEnd::Complete); }
    void EditSelectAll() override {}
    [[nodiscard]] std::string Selection() const override { return {}; }
    void FileClose(int) override {}
    void AppClose() override {}
    [[nodiscard]] WrittenDocument Written() const override { return written_; }

private:
    QString name_;
    bool show_ = false;
    WrittenDocument written_;
};

QStringList ApplicationFolders() {
    return QStandardPaths::standardLocations(QStandardPaths::ApplicationsLocation) +
           QStandardPaths::standardLocations(QStandardPaths::GenericConfigLocation);
}

} // namespace

namespace desktop {

QString WriteUnderFreeName(const QString& folder, const QString& name, const QByteArray& bytes) {
    safe_write::RemoveLeftOvers(folder.toStdString());
    constexpr int kMostNames = 10000;
    for (int number = 1; number < kMostNames; ++number) {
        const QString suffix = number == 1 ? QString() : QStringLiteral(" (%1)").arg(number);
        QString path = folder + QLatin1Char('/') + name + suffix + QStringLiteral(".odt");
        const std::string_view document(bytes.constData(), static_cast<std::size_t>(bytes.size()));
        if (!QFile::exists(path) &&
            safe_write::MakeNew(path.toStdString(), document, Spelled(path)) == safe_write::Made::Yes) {
            return path;
        }
    }
    throw files::FileError(files::kPathAccess, Spelled(folder) + ": too many documents of that name");
}

bool HasProgramFor(const QString& mimeType) {
    for (const QString& folder : ApplicationFolders()) {
        for (const char* list : {"mimeapps.list", "mimeinfo.cache", "defaults.list"}) {
            QFile file(folder + QLatin1Char('/') + QLatin1String(list));
            if (!file.open(QIODevice::ReadOnly)) {
                continue;
            }
            const QByteArray wanted = mimeType.toLatin1() + '=';
            bool taken =
                false; // what a person took away from a kind of document stands in a section of its own
            for (const QByteArray& line : file.readAll().split('\n')) {
                taken = line.startsWith('[') ? line.startsWith("[Removed Associations]") : taken;
                if (!taken && line.startsWith(wanted) && line.trimmed().size() > wanted.size()) {
                    return true;
                }
            }
        }
    }
    return false;
}

} // namespace desktop

std::unique_ptr<WordService> QtWordServices::ForWriting(std::string_view name) {
    return std::make_unique<OdtService>(convert::ToQString(name));
}

std::unique_ptr<WordService> QtWordServices::ForSpelling() {
    return MakeSpelling ? MakeSpelling() : nullptr;
}
