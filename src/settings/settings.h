#pragma once

#include "program/settings_records.h"

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

/// Reads, distributes, sets folders and printer. Reports as "GetUserPreferences".
void GetUserPreferences(Program& program);

/// Rewrites the file from the lines; false when it could not be written. Reports as
/// "RequestNetworkSharePath": the log knows both writers of the file by one name.
bool SaveUserPreferences(Program& program);

/// Replaces one line in memory, growing the lines when the file was short.
void SetLine(Program& program, Key key, std::string_view value);

} // namespace modSettings
