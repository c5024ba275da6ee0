#pragma once

#include "base/colors.h"
#include "base/paths.h"
#include "base/seen.h"

#include <string>
#include <vector>

struct FutPosition {
    float Left = 0;
    float Top = 0;
    float Width = 0;
    float Height = 0;
    bool operator==(const FutPosition&) const = default;
};

/// The values of UserPreferences.txt, one member a line, and the lines themselves.
struct SettingsRecords {
    std::vector<std::string> Lines; ///< as read or changed; the file is rewritten from them
    /// What the files held when they were read or written last.
    files::Seen SettingsFile;
    files::Seen TaxFile;
    files::Seen OffsetsFile;
    bool PrefsRead = false;
    bool ReadingPrefs = false;

    bool AppFirstInstance = false;
    std::string SharedDirectory;
    std::string CompanyName;
    std::string CompanyAddress1;
    std::string CompanyAddress2;
    std::string CompanyCityStateZip;
    std::string CompanyPhone;
    std::string CompanyFax;
    std::string CompanyWebsite;
    std::string CompanyEmail;
    std::string PageTitle; ///< title on frmP1
    std::string LogoFile;
    float LogoLeft = 0;
    float LogoTop = 0;
    bool AutoCompleteWord = false;
    int AutoStartPosition = 0;
    bool ShowFUT = false;
    bool MinimizeFUT = false;
    bool ShowCalc = false;
    std::string DefaultFormatPath;
    bool LoadDefaultFormat = false;
    std::string DefaultPrinter;
    std::string CurrencySymbol;
    std::string FrequentTermsFile;
    bool LoadFUT = false;
    std::string PageTitles; ///< overrides the header prefix when not empty
    FutPosition FUTPosition;
    std::string SavedFontName;
    float SavedFontSize = 0;
    Color SavedFontColor = 0;
    bool SavedFontItalic = false;
    bool LogoVisible = false;
};

/// Folders end in a separator. `ProposalsFolder` is empty until the settings were read.
struct Folders {
    std::string InstallFolder;
    std::string ProposalsFolder;
    std::string SharedFolder;
    paths::DriveRoots Drives; ///< what drive letters stand for; the front end fills it
};

/// What the settings put in force for the run.
struct RunState {
    bool FontsLoaded = false;
    bool DefaultFontFound = false;
    bool SplashShown = false;
    bool ProgramClosing = false;
    bool NoPrinter = false;
    std::vector<std::string> FontList;
    /// The font in force for all text areas: the settings', a format's or a property file's.
    std::string DefaultFontName = "Times New Roman";
    float DefaultFontSize = 10;
    Color DefaultFontColor = 0;
    bool DefaultFontItalic = false;
    bool LogoChecked = false;   ///< the check mark of "Show Logo"
    bool AltLetterhead = false; ///< once on it stays on for the run
    /// The terms list in use; pinned, by the settings or because the person opened it, means that a
    /// document's kind does not change it.
    std::string FUTFileName;
    bool TermsPinned = false;
    bool FUTShown = false;
    bool ACEnabled = false;
    int ACStartLen = 0;
    bool CalcShown = false;
};
