#include "addresses/batch_import.h"

#include "addresses/address_book.h"
#include "addresses/address_fields.h"
#include "addresses/address_record.h"
#include "addresses/address_window.h"
#include "addresses/ask.h"
#include "addresses/batch_text.h"
#include "addresses/csv_list.h"
#include "base/paths.h"
#include "base/text.h"
#include "program/program.h"
#include "program/windows.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace modAddress {

namespace {

using address_menu::Id;

constexpr int kLinesType = 0;
constexpr int kCommasType = 1;
constexpr int kTabsType = 2;
constexpr int kCsvType = 3;

struct Category {
    std::string_view Personal;
    std::string_view Business;
    int Field;
};
// Event date and notes are never imported.
constexpr std::array<Category, kBatchCategoryCount> kCategories{
    {{"Name", "Company Name", 0},
     {"Address 1", "Address 1", 1},
     {"Address 2", "Address 2", 2},
     {"City, State Zip", "City, State Zip", 3},
     {"Home Phone", "Company Phone", 4},
     {"Work Phone", "Company Fax", 5},
     {"Cell Phone", "Cell Phone", 6},
     {"Other Contact Person", "Contact Person", 8},
     {"Email Address", "Email Address", 9}}};

struct ListType {
    std::string_view Caption;
    std::string_view Tip;
};
constexpr std::array<ListType, AddressWindow::kListTypeCount> kListTypes{
    {{"Fields Separated by Carriage Returns",
      "Fields separated by Carriage Returns, Records separated by Double Carriage Returns."},
     {"Fields Separated by Commas", "Fields separated by Commas, Records separated by Carriage Returns."},
     {"Fields Separated by Tabs", "Fields separated by Tabs, Records separated by Carriage Returns."},
     {"Microsoft CSV Address Book", ""}}};

BatchRecords& Batch(Program& program) {
    return program.addresses.Batch;
}

batch_text::Between Between(const BatchRecords& batch) {
    return batch.ListType == kLinesType ? batch_text::Between::EmptyLines : batch_text::Between::Lines;
}

enum class Use { Allowed, Refused };

/// What leads to another record or out of the window: list, menus, exit.
void EnableLoadMenuOptions(AddressWindow& window, Use use = Use::Allowed) {
    const bool enabled = use == Use::Allowed;
    window.lstNames.Enabled = enabled;
    window.cmdExit.Enabled = enabled;
    for (const Id menu : {Id::mnuFile, Id::mnuEdit, Id::mnuOptions, Id::mnuTools}) {
        window[menu].Enabled = enabled;
    }
}

/// What a changed text needs: the fields and their save.
void EnableTextChangeMenuOptions(AddressWindow& window, Use use = Use::Allowed) {
    const bool enabled = use == Use::Allowed;
    for (AddressField& field : window.txt) {
        field.Enabled = enabled;
    }
    window.cmdSave.Enabled = enabled;
}

/// While a list is chosen the rest of the window stands still.
void DisableAllMenuOptions(AddressWindow& window) {
    EnableLoadMenuOptions(window, Use::Refused);
    EnableTextChangeMenuOptions(window, Use::Refused);
}

void EnableAllMenuOptions(AddressWindow& window) {
    EnableLoadMenuOptions(window);
    EnableTextChangeMenuOptions(window);
}

void RefreshLabelCaptions(const Program& program, AddressWindow& window) {
    const bool personal = program.addresses.Book == AddressBook::Personal;
    for (std::size_t index = 0; index < kCategories.size(); ++index) {
        window.lblFormat[index].Caption =
            personal ? kCategories[index].Personal : kCategories[index].Business;
    }
    for (std::size_t index = 0; index < kListTypes.size(); ++index) {
        window.optList[index].Caption = kListTypes[index].Caption;
        window.optListTip[index] = kListTypes[index].Tip;
    }
}

void TakeCategories(Program& program, const AddressWindow& window) {
    BatchRecords& batch = Batch(program);
    batch.BatchSelectedLast = -1;
    for (std::size_t index = 0; index < window.lblFormat.size(); ++index) {
        batch.BatchCategorySelected[index] = window.lblFormat[index].BackColor == colors::kFocused;
        batch.BatchSelectedLast += batch.BatchCategorySelected[index] ? 1 : 0;
    }
}

std::string SampleOf(const Program& program, const AddressWindow& window) {
    const BatchRecords& batch = program.addresses.Batch;
    if (batch.BatchImportCsv) {
        return "First Name,Last Name,Middle Name,Name,Nickname,E-mail Address,etc.";
    }
    constexpr std::array<std::string_view, 3> kBetween{text::kCrLf, ",", "\t"};
    std::string record;
    for (std::size_t index = 0; index < window.lblFormat.size(); ++index) {
        if (batch.BatchCategorySelected[index]) {
            record += record.empty() ? "" : kBetween[static_cast<std::size_t>(batch.ListType)];
            record += window.lblFormat[index].Caption;
        }
    }
    const std::string between = batch.ListType == kLinesType ? "\r\n\r\n" : "\r\n";
    return record + between + record;
}

/// The run is over, in whatever way; the fields are free for a new record.
void LeaveRun(Program& program, AddressWindow& window) {
    window.picBatchProcess = false;
    window.lblBatch.Caption.clear();
    window.lstNames.Enabled = true;
    Batch(program) = {};
    ForgetChanges(program, window);
    static_cast<void>(NewAddressRecord(program, window));
}

bool IsBad(const BatchRecords& batch, std::int32_t record) {
    return std::binary_search(batch.BadRecords.begin(), batch.BadRecords.end(), record);
}

/// Numbers from 1 behind the heading: the first twenty, and how many more there are.
std::string BadRecordNumbers(const std::vector<std::int32_t>& records) {
    constexpr std::size_t kShown = 20;
    std::string numbers;
    for (std::size_t index = 0; index < std::min(records.size(), kShown); ++index) {
        numbers += index == 0 ? "" : ", ";
        numbers += std::to_string(records[index] + 1);
    }
    if (records.size() > kShown) {
        numbers += " and " + std::to_string(records.size() - kShown) + " more";
    }
    return numbers;
}

enum class Parsed { Yes, No };

void TakeRecords(BatchRecords& batch, batch_text::Records records) {
    batch.RecordAt = std::move(records.At);
    batch.BatchRecordLast = static_cast<std::int32_t>(batch.RecordAt.size()) - 2;
}

/// What of the clipboard a book can keep; the rest is told before a record is shown.
std::string CopiedList(const Program& program) {
    Clipboard::Taken taken = program.platform.clipboard.Take();
    if (taken.LeftOut > 0 && !taken.Text.empty()) {
        Tell(program,
             std::to_string(taken.LeftOut) +
                 (taken.LeftOut == 1 ? " character of this list cannot" : " characters of this list cannot") +
                 " be kept in an address book and will be left out. Please look at each record.");
    }
    return std::move(taken.Text);
}

/// What stands in the run panel while the person is asked about the rows that cannot be read.
std::string WhatWasFound(const BatchRecords& batch) {
    const std::size_t count = static_cast<std::size_t>(batch.BatchRecordLast) + 1;
    return std::to_string(count - batch.BadRecords.size()) + " of " + std::to_string(count) + " can be read";
}

Parsed ParseCsvAddressList(Program& program, AddressWindow& window) {
    BatchRecords& batch = Batch(program);
    batch.List = CopiedList(program);
    if (batch.List.empty()) {
        Tell(program, "There's nothing in memory to batch process.");
        return Parsed::No;
    }
    const batch_text::FirstLine heading = batch_text::FirstLineOf(batch.List);
    if (!heading.Ended) {
        Tell(program, "Error. No carriage returns found.");
        return Parsed::No;
    }
    const modCSV::Columns columns = modCSV::ReadHeading(heading.Line);
    if (!columns.Any()) {
        Tell(program, "Error. The first line holds none of the column names of an address book.");
        return Parsed::No;
    }
    batch.CsvColumnPresent = columns.CsvColumnPresent;
    batch.CsvColumnAt = columns.CsvColumnAt;
    batch_text::Records records =
        batch_text::FindRecords(batch.List, heading.Next, batch_text::Between::Lines);
    batch.BadRecords = std::move(records.OddQuotes);
    TakeRecords(batch, std::move(records));
    if (batch.BadRecords.empty()) {
        return Parsed::Yes;
    }
    window.lblBatch.Caption = WhatWasFound(batch);
    const Answer answer = program.platform.questions.MsgBox(
        text::Lines({"The following records cound not be parsed...", BadRecordNumbers(batch.BadRecords),
                     "and will be excluded from the Batch Import Process for the",
                     "following reason: The record(s) contain an odd number of quotation",
                     "symbols. Do you wish to import the rest of the records anyway?"}),
        Buttons::YesNo, "Bad data in some records.", {.Default = Answer::No});
    return answer == Answer::Yes ? Parsed::Yes : Parsed::No;
}

Parsed ParseBatchData(Program& program) {
    BatchRecords& batch = Batch(program);
    batch.List = CopiedList(program);
    if (batch.List.empty()) {
        Tell(program, "There's nothing in the Clipboard Memory.");
        return Parsed::No;
    }
    TakeRecords(batch, batch_text::FindRecords(batch.List, 0, Between(batch)));
    return Parsed::Yes;
}

/// The record's texts by category, as the heading-row layout gives them.
modCSV::Categories CsvRecord(const Program& program, std::int32_t index) {
    const BatchRecords& batch = program.addresses.Batch;
    const modCSV::Columns columns{batch.CsvColumnPresent, batch.CsvColumnAt};
    const std::string_view row =
        batch_text::RecordAt(batch.List, batch.RecordAt, index, batch_text::Between::Lines);
    return modCSV::CategoriesOf(program.addresses.Book, columns,
                                modCSV::ArrangeRow(columns, modCSV::CutRow(row)));
}

/// The fields go, in order, to the selected categories.
modCSV::Categories SimpleRecord(const Program& program, std::int32_t index) {
    constexpr std::array<char, 3> kSeparators{'\n', ',', '\t'};
    const BatchRecords& batch = program.addresses.Batch;
    const std::string_view record = batch_text::RecordAt(batch.List, batch.RecordAt, index, Between(batch));
    const std::vector<std::string_view> pieces =
        batch_text::Cut(record, kSeparators[static_cast<std::size_t>(batch.ListType)],
                        static_cast<std::size_t>(batch.BatchSelectedLast) + 1);
    modCSV::Categories values;
    std::size_t next = 0;
    for (std::size_t category = 0; category < values.size() && next < pieces.size(); ++category) {
        if (batch.BatchCategorySelected[category]) {
            values[category] = text::Trim(pieces[next++]);
        }
    }
    return values;
}

void FinishBatch(Program& program, AddressWindow& window) {
    Tell(program, "Batch Process Finished.");
    LeaveRun(program, window);
}

void FillFromBatch(Program& program, AddressWindow& window) {
    AddressRecords& book = program.addresses;
    const modCSV::Categories values = book.Batch.BatchImportCsv
                                          ? CsvRecord(program, book.Batch.BatchPosition)
                                          : SimpleRecord(program, book.Batch.BatchPosition);
    AddressFields texts;
    for (std::size_t index = 0; index < values.size(); ++index) {
        texts[static_cast<std::size_t>(kCategories[index].Field)] = values[index];
    }
    FillFields(program, window, texts);
    ForgetChanges(program, window);
    book.AddressRecordNew = true;
    book.RecordAsRead.clear();
    window.lstNames.ListIndex = -1;
    const std::string record = "Record " + std::to_string(book.Batch.BatchPosition + 1) + " of " +
                               std::to_string(book.Batch.BatchRecordLast + 1);
    window.lblBatch.Caption = record;
    window.Caption = "Importing " + record + "/" + std::string(NamesOf(book.Book).Target) + " Address Book";
    window.FocusWanted = kNameField;
}

/// Shows the record of the position, past those that cannot be read.
void ShowBatchResults(Program& program, AddressWindow& window) {
    BatchRecords& batch = Batch(program);
    if (batch.BatchPosition > batch.BatchRecordLast) {
        Tell(program, "No more records to save.");
        EndBatch(program, window);
        return;
    }
    while (IsBad(batch, batch.BatchPosition)) {
        FillFields(program, window, {});
        Tell(program, "Bad Record skipped over.");
        if (batch.BatchPosition >= batch.BatchRecordLast) {
            FinishBatch(program, window);
            return;
        }
        ++batch.BatchPosition;
    }
    FillFromBatch(program, window);
}

void GoOn(Program& program, AddressWindow& window) {
    BatchRecords& batch = Batch(program);
    ++batch.BatchPosition;
    if (batch.BatchPosition > batch.BatchRecordLast) {
        FinishBatch(program, window);
    } else {
        ShowBatchResults(program, window);
    }
}

/// The book that the records go into: the one on show, or the other when the person says so.
std::optional<AddressBook> AskForTarget(const Program& program) {
    Questions& questions = program.platform.questions;
    const AddressBook shown = program.addresses.Book;
    switch (questions.MsgBox("This will save the Batch Records into the " +
                                 std::string(NamesOf(shown).Target) + " Address Book. Continue?",
                             Buttons::YesNoCancel, "Importing Batch Records")) {
    case Answer::Yes:
        return shown;
    case Answer::No:
        break;
    default:
        return std::nullopt;
    }
    const AddressBook other = OtherBook(shown);
    const Answer answer =
        questions.MsgBox("Import the Records into the " + std::string(NamesOf(other).Target) +
                             " Address Book instead? Click Cancel to exit.",
                         Buttons::YesNoCancel, "Importing Batch Records");
    return answer == Answer::Yes ? std::optional(other) : std::nullopt;
}

} // namespace

void mnuToolsImportBatch_Click(Program& program, AddressWindow& window) {
    if (MayReplaceFields(program, window) == Outcome::Stopped) {
        return;
    }
    const std::optional<AddressBook> target = AskForTarget(program);
    if (!target) {
        return;
    }
    if (*target != program.addresses.Book && OpenBook(program, window, *target) == Outcome::Stopped) {
        return;
    }
    Batch(program) = {};
    Batch(program).CaptionBefore = window.Caption;
    window.lblMain.Caption =
        "Select the appropriate categories from the list below on the left, then click the type of Batch "
        "Record List that was copied to memory (a sample of the list format types is displayed in the Sample "
        "List Area). Your Batch List must be in similar order as shown... Name first, Email last (if used). "
        "Finally, click Begin Batch Process Now to begin the process. You can quit at any time by pressing "
        "End Batch Process.";
    window.Caption =
        "Beginning Batch Import/" + std::string(NamesOf(program.addresses.Book).Target) + " Address Book";
    RefreshLabelCaptions(program, window);
    DisableAllMenuOptions(window);
    for (StripLabel& category : window.lblFormat) {
        category.BackColor = colors::kFocused;
    }
    TakeCategories(program, window);
    window.FocusWanted.reset();
    window.picImport = true;
    optList_Click(program, window, kLinesType);
}

void lblFormat_Click(Program& program, AddressWindow& window, int index) {
    if (index == 0) {
        Tell(program, "Name cannot be de-selected.");
        return;
    }
    Color& color = window.lblFormat[static_cast<std::size_t>(index)].BackColor;
    color = color == colors::kFocused ? colors::kResting : colors::kFocused;
    RefreshFormatListTypes(program, window);
}

void optList_Click(Program& program, AddressWindow& window, int index) {
    for (std::size_t at = 0; at < window.optList.size(); ++at) {
        window.optList[at].Value = static_cast<int>(at) == index;
    }
    Batch(program).ListType = index;
    Batch(program).BatchImportCsv = index == kCsvType;
    ShowFormatListTypes(program, window);
}

void ShowFormatListTypes(Program& program, AddressWindow& window) {
    if (Batch(program).BatchSelectedLast < 0) {
        Tell(program, "No categories selected.");
        return;
    }
    window.txtSample.Text = SampleOf(program, window);
}

void RefreshFormatListTypes(Program& program, AddressWindow& window) {
    TakeCategories(program, window);
    ShowFormatListTypes(program, window);
}

void BeginBatch(Program& program, AddressWindow& window) {
    EnableAllMenuOptions(window);
    window.picImport = false;
    window.picBatchProcess = true;
    BatchRecords& batch = Batch(program);
    batch.BatchRunning = true;
    window.lstNames.Enabled = false;
    window.lblBatch.Caption = "Reading the copied list";
    const Parsed parsed =
        batch.BatchImportCsv ? ParseCsvAddressList(program, window) : ParseBatchData(program);
    if (parsed == Parsed::No) {
        EndBatch(program, window);
        return;
    }
    ShowBatchResults(program, window);
}

void CancelImport(Program& program, AddressWindow& window) {
    EnableAllMenuOptions(window);
    window.picImport = false;
    window.Caption = Batch(program).CaptionBefore;
    optList_Click(program, window, kLinesType);
}

void SaveBatchRecord(Program& program, AddressWindow& window) {
    program.addresses.AddressRecordNew = true;
    if (SaveAddressRecord(program, window) == Outcome::Done) {
        GoOn(program, window);
    }
}

void SkipBatchRecord(Program& program, AddressWindow& window) {
    ForgetChanges(program, window);
    GoOn(program, window);
}

void EndBatch(Program& program, AddressWindow& window) {
    LeaveRun(program, window);
    Batch(program).BatchStopped = true; // until the next run begins
}

void ShowBatchHelp(Program& program) {
    for (const std::string_view name : {"frmFUT", "frmCalc"}) {
        if (Window* floating = modWindows::Find(program, name)) {
            floating->Minimised = true;
        }
    }
    program.platform.shell.Open(
        paths::Join(program.folders.InstallFolder, "Help/batch_address_processing.htm"));
}

} // namespace modAddress
