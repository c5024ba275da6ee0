#include "desktop/qt_surroundings.h"

#include "base/ansi.h"
#include "base/dates.h"
#include "base/paths.h"
#include "desktop/convert.h"
#include "desktop/keyboard_way.h"
#include "desktop/message_box.h"
#include "desktop/mnemonics.h"
#include "desktop/paper_surface.h"

#include <QApplication>
#include <QClipboard>
#include <QCryptographicHash>
#include <QDateTime>
#include <QDesktopServices>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QFontDatabase>
#include <QFontInfo>
#include <QImageReader>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QSaveFile>
#include <QScreen>
#include <QStandardPaths>
#include <QTimer>
#include <QUrl>

#include <algorithm>
#include <array>

#include <unistd.h>

namespace {

QString Native(std::string_view path) {
    return QString::fromStdString(ansi::ToUtf8(path));
}

QString LinkEntry(const QString& name, QString file) {
    // Characters that mean something between the quotes of an entry's command.
    for (const char* special : {"\\", "\"", "`", "$"}) {
        file.replace(QLatin1String(special), QLatin1Char('\\') + QLatin1String(special));
    }
    file.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
    file.replace(QLatin1Char('%'), QLatin1String("%%"));
    return QStringLiteral("[Desktop Entry]\nType=Application\nName=") + name + QStringLiteral("\nExec=\"") +
           file + QStringLiteral("\"\nTerminal=false\n");
}

QString TitleOf(std::string_view title) {
    return title.empty() ? QStringLiteral("Quillbrook") : convert::ToQString(title);
}

QString ShownText(std::string_view text) {
    QString shown = convert::ToQString(text);
    shown.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    return shown.trimmed();
}

QMessageBox::StandardButtons ButtonsOf(Buttons buttons) {
    switch (buttons) {
    case Buttons::OkCancel:
        return QMessageBox::Ok | QMessageBox::Cancel;
    case Buttons::YesNo:
        return QMessageBox::Yes | QMessageBox::No;
    case Buttons::YesNoCancel:
        return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case Buttons::Ok:
        break;
    }
    return QMessageBox::Ok;
}

QMessageBox::StandardButton ButtonOf(Answer answer) {
    switch (answer) {
    case Answer::Yes:
        return QMessageBox::Yes;
    case Answer::No:
        return QMessageBox::No;
    case Answer::Cancel:
        return QMessageBox::Cancel;
    case Answer::Ok:
        break;
    }
    return QMessageBox::Ok;
}

constexpr int kInputWidth = 420;

/// As wide as the longest line of a text, where that is neither narrow nor wider than a page is read.
int WidthOf(const QLabel& label, const QString& text) {
    constexpr int kWidestToRead = 640;
    constexpr int kBeside = 60; // margins and frame
    const QScreen* screen = QGuiApplication::primaryScreen();
    const int widestHere =
        screen == nullptr ? kWidestToRead : qMin(kWidestToRead, screen->availableSize().width() - kBeside);
    int widest = 0;
    for (const QString& line : text.split(u'\n')) {
        widest = qMax(widest, label.fontMetrics().horizontalAdvance(line));
    }
    return qMin(qMax(kInputWidth - 40, widest), widestHere);
}

/// A lock file that names nobody is left from a crash in the middle of its writing, or from a full disk; the
/// lock itself knows whether somebody still holds it.
bool TakeUnreadable(QLockFile& lock) {
    qint64 process = 0;
    QString host;
    QString program;
    return !lock.getLockInfo(&process, &host, &program) && lock.removeStaleLockFile() && lock.tryLock(0);
}

/// Names for which a face of the same metrics stands in.
constexpr std::string_view kStandIns[] = {"Arial", "Courier New", "Times New Roman"};
constexpr const char* kFaces[] = {"Liberation Sans", "Liberation Mono", "Liberation Serif"};

} // namespace

QWidget* QtQuestions::Below() const {
    return Over != nullptr && Over->isVisible() ? Over : QApplication::activeWindow();
}

OnLeaving<std::function<void()>> QtQuestions::GiveKeyboardBack() {
    // Between two questions no window is active yet: the one before the first counts.
    if (QWidget* active = QApplication::activeWindow()) {
        asking_ = active;
    }
    return OnLeaving<std::function<void()>>([this] {
        if (asking_ != nullptr && asking_->isVisible()) {
            keyboard::SendTo(*asking_);
        }
    });
}

Answer QtQuestions::Ask(std::string_view text, Buttons buttons, std::string_view title,
                        const Manner& manner) {
    if (BeforeAsking) {
        BeforeAsking();
    }
    const OnLeaving back = GiveKeyboardBack();
    MessageBox::Came came = MessageBox::Came::OnRequest;
    if (manner.How == Manner::Came::Unasked) {
        came = typing_.StillTyping() ? MessageBox::Came::AmidTyping : MessageBox::Came::Unasked;
    }
    MessageBox box(buttons == Buttons::Ok ? QMessageBox::Information : QMessageBox::Question, TitleOf(title),
                   ShownText(text), ButtonsOf(buttons), Below(), came);
    if (title == "Program Error") {
        box.setIcon(QMessageBox::Warning);
    }
    if (buttons == Buttons::YesNo) {
        box.setEscapeButton(QMessageBox::No); // closing the box must not be a Yes
    }
    if (!manner.Lost.empty()) {
        box.setInformativeText(ShownText(manner.Lost));
    }
    constexpr std::array kInOrder{QMessageBox::Yes, QMessageBox::No, QMessageBox::Cancel};
    for (std::size_t index = 0; index < manner.Words.size() && index < kInOrder.size(); ++index) {
        if (QAbstractButton* button = box.button(kInOrder[index])) {
            button->setText(convert::ToQString(manner.Words[index]));
            button->setIcon(QIcon());
        }
    }
    if (manner.Default) {
        box.setDefaultButton(ButtonOf(*manner.Default));
    }
    switch (box.exec()) {
    case QMessageBox::Yes:
        return Answer::Yes;
    case QMessageBox::No:
        return Answer::No;
    case QMessageBox::Ok:
        return Answer::Ok;
    default:
        return buttons == Buttons::Ok ? Answer::Ok : Answer::Cancel;
    }
}

std::string QtQuestions::InputBox(std::string_view prompt, std::string_view title, std::string_view initial) {
    if (BeforeAsking) {
        BeforeAsking();
    }
    const OnLeaving back = GiveKeyboardBack();
    QInputDialog dialog(Below());
    dialog.setObjectName(QStringLiteral("InputBox"));
    dialog.setWindowTitle(TitleOf(title));
    dialog.setLabelText(ShownText(prompt));
    dialog.setTextValue(convert::ToQString(initial));
    for (QLabel* label : dialog.findChildren<QLabel*>()) {
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        label->setMinimumWidth(WidthOf(*label, ShownText(prompt)));
    }
    // What cannot be kept is refused where it is typed, not dropped from what was confirmed.
    QObject::connect(
        &dialog, &QInputDialog::textValueChanged, &dialog, [&dialog, prompt](const QString& now) {
            const convert::Incoming incoming = convert::FromPerson(now);
            if (incoming.Refused > 0) {
                dialog.setLabelText(ShownText(prompt) +
                                    QStringLiteral("\n\nA character was not taken: it cannot be kept here."));
                dialog.setTextValue(convert::ToQString(incoming.Text));
            }
        });
    dialog.resize(qMax(kInputWidth, dialog.sizeHint().width()), dialog.sizeHint().height());
    mnemonics::Give(dialog); // the size has made the buttons
    return dialog.exec() == QDialog::Accepted ? convert::ToModel(dialog.textValue()) : std::string();
}

std::vector<std::string> QtScreen::Fonts() const {
    std::vector<std::string> fonts;
    for (const QString& family : QFontDatabase::families()) {
        if (std::optional<std::string> name = ansi::FromUtf8(family.toStdString())) {
            fonts.push_back(std::move(*name));
        }
    }
    for (std::size_t index = 0; index < std::size(kStandIns); ++index) {
        const std::string name(kStandIns[index]);
        if (std::find(fonts.begin(), fonts.end(), name) == fonts.end() &&
            QFontInfo(QFont(convert::ToQString(name))).family() == QLatin1String(kFaces[index])) {
            fonts.push_back(name);
        }
    }
    std::sort(fonts.begin(), fonts.end());
    return fonts;
}

int QtScreen::WidthInPixels() const {
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen == nullptr ? 0 : qRound(screen->size().width() * screen->devicePixelRatio());
}

int QtScreen::HeightInPixels() const {
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen == nullptr ? 0 : qRound(screen->size().height() * screen->devicePixelRatio());
}

float QtScreen::TwipsPerPixel() const {
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen == nullptr ? 15
                             : static_cast<float>(paper::kTwipsPerInch / (screen->logicalDotsPerInchX() *
                                                                          screen->devicePixelRatio()));
}

void QtClipboard::Clear() {
    QGuiApplication::clipboard()->clear();
}

void QtClipboard::SetText(std::string_view text) {
    QGuiApplication::clipboard()->setText(convert::ToQString(text));
}

void QtClipboard::SetTextAndTable(std::string_view text, std::string_view html) {
    QString plain = convert::ToQString(text);
    plain.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    auto data = std::make_unique<QMimeData>();
    data->setText(plain);
    data->setHtml(convert::ToQString(html));
    QGuiApplication::clipboard()->setMimeData(data.release()); // the clipboard owns it from here on
}

void QtClipboard::SetUnicodeText(std::string_view utf8) {
    QGuiApplication::clipboard()->setText(
        QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size())));
}

Clipboard::Taken QtClipboard::Take() const {
    // Line ends stay: what to make of them is the caller's. A copied list may hold millions of characters.
    const QString text = QGuiApplication::clipboard()->text();
    Taken taken;
    taken.Text.resize(static_cast<std::size_t>(text.size()));
    std::size_t kept = 0;
    for (const QChar character : text) {
        constexpr char16_t kLastPlain = 0x7F;
        if (character.unicode() <= kLastPlain) {
            taken.Text[kept++] = static_cast<char>(character.unicode());
        } else if (const auto byte = convert::ToByte(character)) {
            taken.Text[kept++] = *byte;
        } else if (!character.isLowSurrogate()) {
            ++taken.LeftOut;
        }
    }
    taken.Text.resize(kept);
    return taken;
}

void QtShell::Open(std::string_view target) {
    const QString path = Native(target);
    static_cast<void>(
        QDesktopServices::openUrl(QFile::exists(path) ? QUrl::fromLocalFile(path) : QUrl(path)));
}

bool QtShell::CreateLink(std::string_view folder, std::string_view name, std::string_view target) {
    const auto place =
        folder.empty() ? QStandardPaths::ApplicationsLocation : QStandardPaths::DesktopLocation;
    const QDir links(QStandardPaths::writableLocation(place));
    if (!links.mkpath(QStringLiteral("."))) {
        return false;
    }
    // The program's own file has another name and place here than the model gives it.
    const QString file =
        paths::Name(target) == "Quillbrook.exe" ? QCoreApplication::applicationFilePath() : Native(target);
    QSaveFile link(links.filePath(convert::ToQString(name) + QStringLiteral(".desktop")));
    const QByteArray entry = LinkEntry(convert::ToQString(name), file).toUtf8();
    if (!link.open(QIODevice::WriteOnly) || link.write(entry) != entry.size()) {
        return false;
    }
    link.setPermissions(link.permissions() | QFileDevice::ReadOwner | QFileDevice::WriteOwner |
                        QFileDevice::ExeOwner);
    return link.commit();
}

double QtClock::Now() const {
    const QDateTime now = QDateTime::currentDateTime();
    const QDate date = now.date();
    const QTime time = now.time();
    return dates::ToSerial({date.year(), date.month(), date.day(), time.hour(), time.minute(), time.second()})
        .value_or(0);
}

SingleInstance::Result QtSingleInstance::Claim(std::string_view installFolder) {
    // One folder may be reached by several names.
    const QString given = Native(installFolder);
    const QString real = QFileInfo(given).canonicalFilePath();
    const QByteArray key =
        QCryptographicHash::hash((real.isEmpty() ? given : real).toUtf8(), QCryptographicHash::Sha1)
            .toHex()
            .left(16);
    // The folder for temporary files is shared by all users of the machine; the lock there carries the name.
    const QString user = QString::number(::getuid());
    const QStringList places{QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation) +
                                 QStringLiteral("/quillbrook-%1.lock"),
                             QDir::tempPath() + QStringLiteral("/quillbrook-") + user +
                                 QStringLiteral("-%1.lock")};
    for (const QString& place : places) {
        lock_ = std::make_unique<QLockFile>(place.arg(QLatin1String(key)));
        lock_->setStaleLockTime(0); // only a process that is no more makes a lock stale
        if (lock_->tryLock(0)) {
            return Result::Claimed;
        }
        if (lock_->error() == QLockFile::LockFailedError && TakeUnreadable(*lock_)) {
            return Result::Claimed;
        }
        if (lock_->error() == QLockFile::LockFailedError) {
            return Result::Taken;
        }
    }
    return Result::CannotTell;
}

std::optional<PictureSize> QtPictures::Load(std::string_view path) {
    // Unpacked now and kept: one that is cut short or has a false name is refused here, not found out when it
    // is drawn.
    const QSize size = paper::LogoPicture(std::string(path)).size();
    if (size.isEmpty()) {
        return std::nullopt;
    }
    constexpr float kTwipsPerPixel = 15; // pictures count as drawn at 96 dots to the inch
    return PictureSize{static_cast<float>(size.width()) * kTwipsPerPixel,
                       static_cast<float>(size.height()) * kTwipsPerPixel};
}

void QtEventLoop::LetEventsRun() {
    if (Follow) {
        Follow();
    }
    QCoreApplication::processEvents();
}

void QtEventLoop::LetEventsRunFor(int milliseconds) {
    LetEventsRun();
    QEventLoop pause;
    QTimer::singleShot(milliseconds, Qt::PreciseTimer, &pause, &QEventLoop::quit);
    pause.exec();
}

void QtEventLoop::Quit() {
    // Not quit(): that asks every window to close first, and one that stays keeps the program running.
    QCoreApplication::exit(0);
}
