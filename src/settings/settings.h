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
/// "RequestNetworkSharePath", as the log has always had it.
bool SaveUserPreferences(Program& program);

/// Replaces one line in memory, growing the lines when the file was short.
void SetLine(Program& program, Key key, std::string_view value);

/// Asks for the shared drive or folder.
void RequestNetworkSharePath(Program& program);

/// Reads the tax rate; a rate of zero asks whether to change it. Reports as "GetTaxRate".
void GetTaxRate(Program& program);

/// Writes the five characters, takes the figures of the open proposal fresh and tells the new rate. Reports
/// as "SaveTaxRate".
void SaveTaxRate(Program& program, std::string_view rateText);

/// What is said of a text in a number box that is no number.
[[nodiscard]] std::string NoNumberMessage(std::string_view typed);

inline constexpr float kTwipsPerInch = 1440;
/// An offset as typed or read, in inches, and back as plain text. What is no number counts as 0.
[[nodiscard]] float TwipsOf(std::string_view inches);
[[nodiscard]] std::string InchesOf(float twips);

/// A missing file means offsets of 0.
void ReadPrinterOffsets(Program& program);
void SavePrinterOffsets(Program& program);

} // namespace modSettings
