#pragma once

#include "program/settings_records.h"

#include <initializer_list>
#include <string>
#include <string_view>

struct Program;

/// The settings files.
namespace modSettings {

/// One line of UserPreferences.txt; the index in the enum is the line's number.
enum class Key : int {
    AppFirstInstance,
    SharedDirectory,
    CompanyName,
    CompanyAddress1,
    CompanyAddress2,
    CompanyCityStateZip,
    CompanyPhone,
    CompanyFax,
    CompanyWebsite,
    CompanyEmail,
    PageTitle,
    LogoFile,
    LogoLeft,
    LogoTop,
    AutoCompleteWord,
    AutoStartPosition,
    ShowFUT,
    MinimizeFUT,
    ShowCalc,
    DefaultFileFormat,
    LoadDefaultFormat,
    DefaultPrinter,
    CurrencySymbol,
    FrequentTermsFile,
    LoadFUT,
    PageTitles,
    FUTPosition,
    FontName,
    FontSize,
    FontColor,
    FontItalic,
    LogoVisible,
    Count
};

/// The key's text with its colon.
[[nodiscard]] std::string_view KeyText(Key key);

/// Reads, distributes, sets folders and printer. A file that is not there is told of and made as a new
/// installation has it. Reports as "GetUserPreferences".
void GetUserPreferences(Program& program);

/// Rewrites the file from the lines; false when it was not written: a failure, or another program's change
/// that the person keeps. Reports as "RequestNetworkSharePath": the
/// log knows both writers of the file by one name.
[[nodiscard]] bool SaveUserPreferences(Program& program);

/// Changes lines and rewrites the file. When that was not done the lines are as before.
struct Change {
    Key Of;
    std::string Value;
};
[[nodiscard]] bool Store(Program& program, std::initializer_list<Change> changes);

/// What a line says in the file, whatever the run has made of it since.
[[nodiscard]] std::string StoredValue(const Program& program, Key key);

/// Replaces one line in memory, growing the lines when the file was short. Line ends and NUL are left out.
void SetLine(Program& program, Key key, std::string_view value);

} // namespace modSettings
