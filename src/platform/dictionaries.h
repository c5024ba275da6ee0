#pragma once

#include <string>
#include <string_view>
#include <vector>

/// The spelling dictionaries installed on the machine. Words are in the program's characters.
class Dictionaries {
public:
    virtual ~Dictionaries() = default;
    /// Languages as "en_US", in order; empty when no dictionary is installed.
    [[nodiscard]] virtual std::vector<std::string> Languages() const = 0;
    /// The language of the person's locale, as "de_DE".
    [[nodiscard]] virtual std::string LocaleLanguage() const = 0;
    /// Makes a language the one that is asked, and loads it now if it was not yet. False when it cannot be
    /// read.
    [[nodiscard]] virtual bool Use(std::string_view language) = 0;
    /// Whether the language in use knows the word.
    [[nodiscard]] virtual bool Knows(std::string_view word) const = 0;
    [[nodiscard]] virtual std::vector<std::string> Suggestions(std::string_view word) const = 0;
};
