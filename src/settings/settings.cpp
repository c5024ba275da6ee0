#include "settings/settings.h"

#include "base/files.h"
#include "base/guard.h"
#include "base/numbers.h"
#include "base/paths.h"
#include "base/text.h"
#include "program/data_folders.h"
#include "program/errors.h"
#include "program/program.h"
#include "program/rewriting.h"
#include "program/saved_notice.h"
#include "settings/printer_offsets.h"

#include <array>
#include <cmath>

namespace modSettings {

namespace {

constexpr std::string_view kFileName = "UserPreferences.txt";
constexpr std::string_view kBackup = "Backup";
constexpr std::string_view kProposals = "Proposals";

constexpr std::array<std::string_view, static_cast<std::size_t>(Key::Count)> kKeys{"App First Instance:",
                                                                                   "Shared Directory:",
                                                                                   "Company Name:",
                                                                                   "Company Address 1:",
                                                                                   "Company Address 2:",
                                                                                   "Company City, State Zip:",
                                                                                   "Company Phone:",
                                                                                   "Company Fax:",
                                                                                   "Company Website:",
                                                                                   "Company Email:",
                                                                                   "Page Title:",
                                                                                   "Logo File:",
                                                                                   "Logo Left:",
                                                                                   "Logo Top:",
                                                                                   "Auto Complete Word:",
                                                                                   "Auto Start Position:",
                                                                                   "Show FUT:",
                                                                                   "Minimize FUT:",
                                                                                   "Show Calc:",
                                                                                   "Default File Format:",
                                                                                   "Load Default Format:",
                                                                                   "Default Printer:",
                                                                                   "Currency Symbol:",
                                                                                   "Frequent Terms File:",
                                                                                   "Load FUT:",
                                                                                   "Page Titles:",
                                                                                   "FUT Position:",
                                                                                   "Font Name:",
                                                                                   "Font Size:",
                                                                                   "Font Color:",
                                                                                   "Font Italic:",
                                                                                   "Logo Visible:"};

/// What a new installation starts with.
constexpr std::array<std::string_view, kKeys.size()> kFirstValues{"True",
                                                                  "",
                                                                  "HARROWDENE WORKS",
                                                                  "",
                                                                  "",
                                                                  "",
                                                                  "",
                                                                  "",
                                                                  "",
                                                                  "",
                                                                  "Event Proposal",
                                                                  "",
                                                                  "1080",
                                                                  "540",
                                                                  "True",
                                                                  "2",
                                                                  "True",
                                                                  "False",
                                                                  "False",
                                                                  "",
                                                                  "False",
                                                                  "",
                                                                  "$",
                                                                  "",
                                                                  "False",
                                                                  "",
                                                                  "Left=0:Top=0:Width=0:Height=0",
                                                                  "Times New Roman",
                                                                  "10",
                                                                  "0",
                                                                  "False",
                                                                  "False"};

/// Lines are told by their place: the key is counted off, never looked for. `shorter` notes a line that has
/// not even the room of its key.
std::string ValueOf(const SettingsRecords& settings, Key key, bool& shorter) {
    const auto at = static_cast<std::size_t>(key);
    if (at >= settings.Lines.size()) {
        return {};
    }
    const std::string& line = settings.Lines[at];
    const std::size_t length = KeyText(key).size();
    if (line.size() < length) {
        shorter = true;
        return {};
    }
    return line.substr(length);
}

bool ToBoolean(std::string_view value) {
    return text::EqualNoCase(text::Trim(value), "True");
}

int ToInteger(std::string_view value) {
    constexpr double kMost = 1e9;
    const double number = numbers::Val(value);
    return std::fabs(number) <= kMost ? static_cast<int>(number) : 0;
}

float PartOf(std::string_view value, std::string_view label) {
    const std::size_t at = value.find(label);
    if (at == std::string_view::npos) {
        return 0;
    }
    const std::size_t from = at + label.size();
    return numbers::ValSingle(value.substr(from, value.find(':', from) - from));
}

void Distribute(Program& program) {
    SettingsRecords& settings = program.settings;
    bool shorter = false;
    const auto textOf = [&](Key key) { return ValueOf(settings, key, shorter); };
    const auto flag = [&](Key key) { return ToBoolean(textOf(key)); };
    const auto number = [&](Key key) { return numbers::ValSingle(textOf(key)); };
    settings.AppFirstInstance = flag(Key::AppFirstInstance);
    settings.SharedDirectory = textOf(Key::SharedDirectory);
    settings.CompanyName = textOf(Key::CompanyName);
    settings.CompanyAddress1 = textOf(Key::CompanyAddress1);
    settings.CompanyAddress2 = textOf(Key::CompanyAddress2);
    settings.CompanyCityStateZip = textOf(Key::CompanyCityStateZip);
    settings.CompanyPhone = textOf(Key::CompanyPhone);
    settings.CompanyFax = textOf(Key::CompanyFax);
    settings.CompanyWebsite = textOf(Key::CompanyWebsite);
    settings.CompanyEmail = textOf(Key::CompanyEmail);
    settings.PageTitle = textOf(Key::PageTitle);
    settings.AutoCompleteWord = flag(Key::AutoCompleteWord);
    settings.AutoStartPosition = ToInteger(textOf(Key::AutoStartPosition));
    settings.ShowFUT = flag(Key::ShowFUT);
    settings.MinimizeFUT = flag(Key::MinimizeFUT);
    settings.ShowCalc = flag(Key::ShowCalc);
    settings.DefaultFormatPath = textOf(Key::DefaultFileFormat);
    if (!settings.PrefsRead) {
        // The run's own from then on.
        settings.LoadDefaultFormat = flag(Key::LoadDefaultFormat);
        settings.LogoFile = textOf(Key::LogoFile);
        settings.LogoLeft = number(Key::LogoLeft);
        settings.LogoTop = number(Key::LogoTop);
        settings.LogoVisible = flag(Key::LogoVisible);
    }
    settings.DefaultPrinter = textOf(Key::DefaultPrinter);
    settings.CurrencySymbol = textOf(Key::CurrencySymbol);
    settings.FrequentTermsFile = textOf(Key::FrequentTermsFile);
    settings.LoadFUT = flag(Key::LoadFUT);
    settings.PageTitles = textOf(Key::PageTitles);
    const std::string place = textOf(Key::FUTPosition);
    settings.FUTPosition = {PartOf(place, "Left="), PartOf(place, "Top="), PartOf(place, "Width="),
                            PartOf(place, "Height=")};
    settings.SavedFontName = textOf(Key::FontName);
    settings.SavedFontSize = number(Key::FontSize);
    settings.SavedFontColor = static_cast<Color>(ToInteger(textOf(Key::FontColor)));
    settings.SavedFontItalic = flag(Key::FontItalic);
    if (shorter) {
        ReportError(
            program, "GetUserPreferences",
            files::FileError(files::kPathAccess, "A line of UserPreferences.txt is too short for its key"));
    }
}

/// The settings that are in force from now on.
void PutInForce(Program& program) {
    const SettingsRecords& settings = program.settings;
    RunState& run = program.run;
    if (!settings.PrefsRead) {
        // Read again in mid-run, for another printer or currency, the settings leave alone what the open
        // proposal, its format and the person have in force.
        run.DefaultFontName = settings.SavedFontName;
        run.DefaultFontSize = settings.SavedFontSize;
        run.DefaultFontColor = settings.SavedFontColor;
        run.DefaultFontItalic = settings.SavedFontItalic;
        if (!settings.PageTitles.empty()) {
            program.document.PageHeading = settings.PageTitles;
        }
        run.TermsPinned = !settings.FrequentTermsFile.empty() && settings.LoadFUT;
        if (run.TermsPinned) {
            run.FUTFileName = settings.FrequentTermsFile;
        }
    }
    Printers& printers = program.platform.printers;
    run.NoPrinter = printers.Names().empty();
    if (!settings.DefaultPrinter.empty()) {
        // One that is gone leaves the system's own in its place, which the printer window shows.
        static_cast<void>(printers.MakeCurrent(settings.DefaultPrinter));
    }
}

/// Copies the shared data of an installation into a new shared folder; what it does not hold is left out.
void FillSharedFolder(const Program& program, const std::string& folder) {
    struct Item {
        std::string_view From;
        std::string_view To;
    };
    // Wanted: the tax file gets a name that nothing reads, so that a new shared folder asks for its own rate.
    constexpr std::array<Item, 3> kItems{{{"Default Terms.fut", "Default Terms.fut"},
                                          {"Wedding Terms.fut", "Wedding Terms.fut"},
                                          {"SalesTax.txt", "SaleTax.txt"}}};
    for (const Item& item : kItems) {
        const std::string from = paths::Join(modFolders::OwnFolder(program), item.From);
        if (files::Exists(from)) {
            files::Copy(from, paths::Join(folder, item.To));
        }
    }
}

std::string ChooseFolder(Program& program) {
    Folders& folders = program.folders;
    if (program.settings.SharedDirectory.empty()) {
        return modFolders::OwnFolder(program);
    }
    folders.SharedFolder =
        paths::WithSeparator(paths::ResolveDrive(program.settings.SharedDirectory, folders.Drives));
    std::string shared = paths::WithSeparator(paths::Join(folders.SharedFolder, kProposals));
    if (files::FolderExists(folders.SharedFolder, kProposals)) {
        return shared;
    }
    Questions& questions = program.platform.questions;
    const Answer answer =
        questions.MsgBox(text::Lines({"Could not find the folder \"Proposals\" on the shared",
                                      "network drive. This is the network folder where all the Proposal",
                                      "files normally reside. Would you like to create the folder now?"}),
                         Buttons::YesNo, "Proposals Folder Not Found", {.How = Manner::Came::Unasked});
    if (answer != Answer::Yes) {
        return modFolders::OwnFolder(program);
    }
    try {
        files::MakeFolder(shared);
        questions.MsgBox("Proposals Folder Successfully Created.", Buttons::Ok, "");
        FillSharedFolder(program, shared);
    } catch (const std::exception& error) {
        ReportError(program, "GetUserPreferences", error);
        return files::IsFolder(shared) ? shared : modFolders::OwnFolder(program);
    }
    return shared;
}

void SettleFolders(Program& program) {
    Folders& folders = program.folders;
    folders.ProposalsFolder = ChooseFolder(program);
    const bool noDocument = !program.document.FileExists && program.document.FileName.empty();
    if (noDocument || program.document.FilePath.empty()) {
        program.document.FilePath = folders.ProposalsFolder;
    }
}

/// The folder of the proposals and the one of their backups. Without them the program goes on with what it
/// has, so that the person can name another folder.
void EnsureFolders(const Program& program) {
    const std::string& folder = program.folders.ProposalsFolder;
    try {
        if (!files::IsFolder(folder)) {
            files::MakeFolder(folder);
        }
        if (!files::FolderExists(folder, kBackup)) {
            files::MakeFolder(paths::Join(folder, kBackup));
        }
    } catch (const std::exception& error) {
        program.platform.questions.MsgBox("Error encountered during Events Folder check.", Buttons::Ok, "",
                                          {.How = Manner::Came::Unasked});
        ReportError(program, "GetUserPreferences", error);
    }
}

/// What runs that broke off have left in the middle of writing.
void RemoveLeftOvers(const Program& program) {
    for (const std::string& folder : {program.folders.InstallFolder, modFolders::OwnFolder(program),
                                      program.folders.ProposalsFolder, modFolders::BackupFolder(program)}) {
        files::RemoveLeftOvers(folder);
    }
    if (const auto& work = program.recovery.Found) {
        files::RemoveLeftOvers(work->Folder); // a proposal may be of any folder
    }
}

std::string PathOf(const Program& program) {
    return paths::Join(program.folders.InstallFolder, kFileName);
}

std::string BytesOf(const std::vector<std::string>& lines) {
    std::string bytes;
    for (const std::string& line : lines) {
        bytes += line;
        bytes += text::kCrLf;
    }
    return bytes;
}

/// An installation that has lost its settings gets new ones, and the person is told.
void MakeSettings(const Program& program) {
    ReportError(program, "GetUserPreferences",
                files::FileError(files::kNotFound, "File not found: " + PathOf(program)));
    std::vector<std::string> lines;
    for (std::size_t at = 0; at < kKeys.size(); ++at) {
        lines.push_back(std::string(kKeys[at]) + std::string(kFirstValues[at]));
    }
    files::WriteWhole(PathOf(program), BytesOf(lines));
}

void ReadLines(Program& program) {
    SettingsRecords& settings = program.settings;
    const std::string path = PathOf(program);
    settings.SettingsFile = {files::Seen::What::Unread, 0, 0};
    if (!files::Exists(path) && !files::IsFolder(path)) {
        settings.SettingsFile = {};
        MakeSettings(program);
    }
    const std::string bytes = files::ReadAll(path);
    settings.SettingsFile = files::SeenIn(bytes);
    settings.Lines = text::SplitLines(bytes);
}

} // namespace

std::string_view KeyText(Key key) {
    return kKeys[static_cast<std::size_t>(key)];
}

void GetUserPreferences(Program& program) {
    SettingsRecords& settings = program.settings;
    const ScopedFlag reading(settings.ReadingPrefs);
    Guarded(program, "GetUserPreferences", [&] {
        ReadLines(program);
        Distribute(program);
        if (settings.AppFirstInstance) {
            SetLine(program, Key::AppFirstInstance, "False");
        }
        PutInForce(program);
        SettleFolders(program);
        if (settings.AppFirstInstance) {
            static_cast<void>(SaveUserPreferences(program)); // told; the next start counts as the first again
        }
        EnsureFolders(program);
        if (!settings.PrefsRead) {
            RemoveLeftOvers(program);
        }
        modOffsets::ReadPrinterOffsets(program);
        settings.PrefsRead = true;
        if (program.hooks.ReadFrequentlyUsedTerms) {
            program.hooks.ReadFrequentlyUsedTerms(program); // the folder may be another one
        }
    });
}

bool SaveUserPreferences(Program& program) {
    bool written = false;
    Guarded(program, "RequestNetworkSharePath", [&] {
        SettingsRecords& settings = program.settings;
        written =
            modRewrite::Rewrite(program, PathOf(program), BytesOf(settings.Lines), settings.SettingsFile,
                                "This settings file") == modRewrite::Rewriting::Done;
    });
    if (written) {
        TellSaved(program, "Settings", PathOf(program));
    }
    return written;
}

bool Store(Program& program, std::initializer_list<Change> changes) {
    const std::vector<std::string> before = program.settings.Lines;
    for (const Change& change : changes) {
        SetLine(program, change.Of, change.Value);
    }
    if (!SaveUserPreferences(program)) {
        program.settings.Lines = before;
        return false;
    }
    return true;
}

std::string StoredValue(const Program& program, Key key) {
    bool shorter = false;
    return ValueOf(program.settings, key, shorter);
}

void SetLine(Program& program, Key key, std::string_view value) {
    std::vector<std::string>& lines = program.settings.Lines;
    const auto at = static_cast<std::size_t>(key);
    while (lines.size() <= at) {
        lines.emplace_back(kKeys[lines.size()]);
    }
    std::string line = std::string(KeyText(key)) + std::string(value);
    // A line is told by its place: one that fell in two would shift all that follow.
    std::erase_if(line,
                  [](char character) { return character == '\r' || character == '\n' || character == '\0'; });
    lines[at] = std::move(line);
}

} // namespace modSettings
