#pragma once

#include "platform/dictionaries.h"

#include <QString>
#include <QStringList>

#include <map>
#include <memory>

class Hunspell;

/// The Hunspell dictionaries of the machine. One is loaded when it is first used and stays.
class HunspellDictionaries : public Dictionaries {
public:
    HunspellDictionaries();
    ~HunspellDictionaries() override;
    HunspellDictionaries(const HunspellDictionaries&) = delete;
    HunspellDictionaries& operator=(const HunspellDictionaries&) = delete;

    [[nodiscard]] std::vector<std::string> Languages() const override;
    [[nodiscard]] std::string LocaleLanguage() const override;
    [[nodiscard]] bool Use(std::string_view language) override;
    [[nodiscard]] bool Knows(std::string_view word) const override;
    [[nodiscard]] std::vector<std::string> Suggestions(std::string_view word) const override;

    /// Where dictionaries are looked for, the first wins.
    QStringList Folders;

private:
    struct Loaded;
    [[nodiscard]] QString PathOf(const QString& language) const; ///< without extension; empty when none
    std::map<QString, std::unique_ptr<Loaded>> loaded_;
    const Loaded* inUse_ = nullptr;
};
