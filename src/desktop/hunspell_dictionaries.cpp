#include "desktop/hunspell_dictionaries.h"

#include "base/ansi.h"
#include "desktop/convert.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QStandardPaths>
#include <QStringDecoder>
#include <QStringEncoder>

#include <hunspell.hxx>

#include <algorithm>
#include <optional>
#include <set>
#include <string_view>

namespace {

/// Dictionaries have names of their own for some encodings.
std::string EncodingOf(const std::string& name) {
    constexpr std::string_view kCodePage = "microsoft-cp";
    if (name.starts_with(kCodePage)) {
        return "windows-" + name.substr(kCodePage.size());
    }
    return name.starts_with("TIS620") ? "TIS-620" : name;
}

/// Dictionaries spell with the straight apostrophe.
std::string Straightened(std::string_view word) {
    std::string plain(word);
    std::replace(plain.begin(), plain.end(), '\x92', '\'');
    return plain;
}

} // namespace

struct HunspellDictionaries::Loaded {
    Loaded(const QString& path)
        : Checker(QFile::encodeName(path + QStringLiteral(".aff")).constData(),
                  QFile::encodeName(path + QStringLiteral(".dic")).constData()),
          Encoding(EncodingOf(Checker.get_dict_encoding())) {}

    /// The word in the dictionary's own bytes; nothing when it has no such character.
    [[nodiscard]] std::optional<std::string> Encode(std::string_view word) const {
        const QString text = convert::ToQString(word);
        QStringEncoder encoder(Encoding.c_str());
        if (!encoder.isValid()) {
            return std::nullopt;
        }
        const QByteArray bytes = encoder(text);
        return encoder.hasError() ? std::nullopt : std::optional(bytes.toStdString());
    }

    mutable Hunspell Checker;
    std::string Encoding;
};

HunspellDictionaries::HunspellDictionaries() {
    for (const QString& data : QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation)) {
        Folders += data + QStringLiteral("/hunspell");
        Folders += data + QStringLiteral("/myspell/dicts");
    }
}

HunspellDictionaries::~HunspellDictionaries() = default;

std::vector<std::string> HunspellDictionaries::Languages() const {
    std::set<std::string> found;
    for (const QString& folder : Folders) {
        for (const QFileInfo& file : QDir(folder).entryInfoList({QStringLiteral("*.dic")}, QDir::Files)) {
            const QString name = file.completeBaseName();
            // Hyphenation patterns lie there, too.
            if (!name.startsWith(QLatin1String("hyph_")) &&
                QFile::exists(file.path() + QLatin1Char('/') + name + QStringLiteral(".aff"))) {
                if (const auto known = ansi::FromUtf8(name.toStdString())) {
                    found.insert(*known);
                }
            }
        }
    }
    return {found.begin(), found.end()};
}

std::string HunspellDictionaries::LocaleLanguage() const {
    return QLocale::system().name().toStdString();
}

QString HunspellDictionaries::PathOf(const QString& language) const {
    for (const QString& folder : Folders) {
        QString path = folder + QLatin1Char('/') + language;
        if (QFile::exists(path + QStringLiteral(".dic")) && QFile::exists(path + QStringLiteral(".aff"))) {
            return path;
        }
    }
    return {};
}

bool HunspellDictionaries::Use(std::string_view language) {
    const QString name = convert::ToQString(language);
    const auto known = loaded_.find(name);
    if (known != loaded_.end()) {
        inUse_ = known->second.get();
        return true;
    }
    const QString path = PathOf(name);
    if (path.isEmpty() || !QFile(path + QStringLiteral(".dic")).open(QIODevice::ReadOnly) ||
        !QFile(path + QStringLiteral(".aff")).open(QIODevice::ReadOnly)) {
        return false;
    }
    auto loaded = std::make_unique<Loaded>(path);
    if (!QStringEncoder(loaded->Encoding.c_str()).isValid()) {
        return false; // every word would be unknown
    }
    inUse_ = loaded_.emplace(name, std::move(loaded)).first->second.get();
    return true;
}

bool HunspellDictionaries::Knows(std::string_view word) const {
    if (inUse_ == nullptr) {
        return true;
    }
    const auto bytes = inUse_->Encode(Straightened(word));
    return bytes && inUse_->Checker.spell(*bytes);
}

std::vector<std::string> HunspellDictionaries::Suggestions(std::string_view word) const {
    std::vector<std::string> result;
    const auto bytes = inUse_ == nullptr ? std::nullopt : inUse_->Encode(Straightened(word));
    if (!bytes) {
        return result;
    }
    QStringDecoder decoder(inUse_->Encoding.c_str());
    for (const std::string& suggestion : inUse_->Checker.suggest(*bytes)) {
        const QString text = decoder(QByteArray::fromStdString(suggestion));
        if (const auto known = ansi::FromUtf8(text.toStdString())) {
            result.push_back(*known);
        }
    }
    return result;
}
