#include "addresses/address_book.h"

#include "addresses/address_fields.h"
#include "addresses/address_record.h"
#include "addresses/address_rows.h"
#include "addresses/address_window.h"
#include "addresses/ask.h"
#include "addresses/book_file.h"
#include "base/guard.h"
#include "base/rows.h"
#include "base/text.h"
#include "program/errors.h"
#include "program/program.h"
#include "program/saved_notice.h"

#include <algorithm>

namespace modAddress {

namespace {

using address_menu::Id;

void EnableRecordCommands(AddressWindow& window, bool enabled) {
    window.cmdSave.Enabled = enabled;
    for (const Id id : {Id::mnuFileSave, Id::mnuFileDelete, Id::mnuFilePrint, Id::mnuOptMergeCeremony,
                        Id::mnuOptCopyNameAddress, Id::mnuOptCopyAll}) {
        window[id].Enabled = enabled;
    }
}

void EnableMerge(AddressWindow& window, bool enabled) {
    for (const Id id :
         {Id::mnuOptMerge, Id::mnuOptMergeExit, Id::mnuOptMergeGroom, Id::mnuOptMergeGroomExit}) {
        window[id].Enabled = enabled;
    }
}

void WantFocus(AddressWindow& window, int field) {
    const AddressField& record = window.txt[static_cast<std::size_t>(field)];
    if (record.Visible && record.Enabled) {
        window.FocusWanted = field;
    }
}

/// The cursor goes back to where the person typed last.
void ReturnToField(const Program& program, AddressWindow& window) {
    const AddressRecords& book = program.addresses;
    AddressField& field = window.txt[static_cast<std::size_t>(book.LastFocusField)];
    field.SelStart = std::clamp(book.LastFocusStart, 0, static_cast<int>(field.Text.size()));
    field.SelLength = 0;
    WantFocus(window, book.LastFocusField);
}

void ShowNewTitle(const Program& program, AddressWindow& window) {
    const AddressRecords& book = program.addresses;
    window.Caption = book.AddressBookLabel +
                     "Beginning New Record: " + std::to_string(book.AddressRecordCount) +
                     (book.AddressRecordCount == 1 ? " Record Exists" : " Records Exist");
}

void ForgetRecord(Program& program) {
    AddressRecords& book = program.addresses;
    book.RecordAsRead.clear();
    book.CurrentAddressRecord = 0;
}

/// A row behind which no record stands any more.
void ShowNothing(Program& program, AddressWindow& window) {
    ForgetRecord(program);
    FillFields(program, window, {});
    ForgetChanges(program, window);
    // What is typed now belongs to no record of the book.
    program.addresses.AddressRecordNew = true;
    EnableRecordCommands(window, false);
    EnableMerge(window, false);
}

/// Somebody else has written the record meanwhile: what stands in the fields stays, as a new record.
void KeepAsNew(Program& program, AddressWindow& window) {
    Tell(program, "This record was changed by another program.");
    ReadAddressList(program, window);
    AddressRecords& book = program.addresses;
    ForgetRecord(program);
    book.AddressRecordNew = true;
    window[Id::mnuFileDelete].Enabled = false;
    ShowNewTitle(program, window);
    book.AddressSaveCancelled = true;
}

bool RefusedAsEmpty(const Program& program, AddressWindow& window, const AddressFields& fields) {
    if (text::Trim(fields[kNameField]).empty()) {
        Tell(program, "Cannot save record... no name given.");
        WantFocus(window, kNameField);
        return true;
    }
    const bool empty = std::all_of(fields.begin(), fields.end(),
                                   [](const std::string& value) { return text::Trim(value).empty(); });
    if (empty) {
        Tell(program, program.addresses.AddressRecordNew
                          ? "Nothing to Save."
                          : text::Lines({"Records cannot be saved with no content. If you want to",
                                         "clear the record, choose \"Delete Record\" from the menu."}));
    }
    return empty;
}

enum class Written { Yes, Changed };

/// The record goes behind the last one when it is new or bears another name; the old one stays then.
Written WriteRecord(Program& program, const std::string& record) {
    AddressRecords& book = program.addresses;
    if (book.AddressRecordNew || book.AddressNameChanged || book.RecordAsRead.empty()) {
        book.CurrentAddressRecord = AddRecord(program, record);
        return Written::Yes;
    }
    const std::optional<std::int32_t> number =
        ReplaceRecord(program, book.CurrentAddressRecord, book.RecordAsRead, record);
    if (!number) {
        return Written::Changed;
    }
    book.CurrentAddressRecord = *number;
    return Written::Yes;
}

void SetNames(Program& program, AddressBook which) {
    AddressRecords& book = program.addresses;
    const BookNames& names = NamesOf(which);
    book.Book = which;
    book.AddressFileName = names.File;
    book.AddressBackupName = names.Backup;
    book.AddressWorkName = names.Work;
    book.AddressBookLabel = names.Label;
}

/// The number of the record that a row stands for; 0 for none. The row's own number holds unless another
/// program has moved the records since the list was made; then the name leads to the record.
std::int32_t RecordOfRow(const Program& program, const AddressWindow& window, int row) {
    const AddressRecords& book = program.addresses;
    const AddressRow& chosen = window.lstNames.Rows[static_cast<std::size_t>(row)];
    const std::size_t nameAt = static_cast<std::size_t>(chosen.Record - 1) * kNameWidth;
    const std::string record = ReadRecord(program, chosen.Record);
    if (!record.empty() && NameIn(record) == std::string_view(book.NamesInFile).substr(nameAt, kNameWidth)) {
        return chosen.Record;
    }
    const std::string wanted = StoredName(book.Book, chosen.Text);
    int left = DuplicateNumber(window.lstNames.Rows, row);
    const std::string names = ReadNames(program);
    std::string_view ahead = names;
    for (std::int32_t number = 1; ahead.size() >= kNameWidth; ++number, ahead.remove_prefix(kNameWidth)) {
        if (ahead.starts_with(wanted) && --left == 0) {
            return number;
        }
    }
    return 0;
}

void RefillAfterDelete(Program& program, AddressWindow& window) {
    AddressRecords& book = program.addresses;
    const int lastRow = book.LastListIndex;
    const std::int32_t count = book.AddressRecordCount;
    ReadAddressList(program, window);
    // An emptied book counts one record until the list is made the next time.
    book.AddressRecordCount = count;
    FillFields(program, window, {});
    ForgetChanges(program, window);
    const int last = static_cast<int>(window.lstNames.Rows.size()) - 1;
    SelectRow(program, window, last > lastRow ? lastRow : lastRow - 1);
    ShowAddressRecord(program, window);
    MarkCurrentRow(program, window);
}

} // namespace

Outcome OpenBook(Program& program, AddressWindow& window, AddressBook book) {
    if (MayReplaceFields(program, window) == Outcome::Stopped) {
        return Outcome::Stopped;
    }
    SetNames(program, book);
    Guarded(program, NamesOf(book).Opening, [&] { MakeBook(program); });
    window[Id::mnuFileOpenBusiness].Enabled = book != AddressBook::Business;
    window[Id::mnuFileOpenClientele].Enabled = book != AddressBook::Personal;
    SetCaptions(program, window);
    ForgetRecord(program);
    ReadAddressList(program, window);
    return Outcome::Done;
}

void ReadAddressList(Program& program, AddressWindow& window) {
    AddressRecords& book = program.addresses;
    NameList& list = window.lstNames;
    list.Rows.clear();
    list.ListIndex = -1;
    book.NamesInFile.clear();
    book.AddressRecordCount = 0;
    book.AddressRecordNew = false;
    book.LastListIndex = -1;
    ClearSearch(program, window);
    Guarded(program, "ReadAddressList", [&] {
        book.NamesInFile = ReadNames(program);
        book.AddressRecordCount = static_cast<std::int32_t>(book.NamesInFile.size() / kNameWidth);
        list.Rows = FillNameList(book.Book, book.NamesInFile);
    });
    ++list.Filled;
    window.Caption = book.AddressBookLabel + window.txt[kNameField].Text;
}

void SelectRow(Program& program, AddressWindow& window, int row) {
    if (!HasRow(window.lstNames.Rows, row)) {
        return;
    }
    window.lstNames.ListIndex = row;
    ActivateCurrentRecord(program, window);
}

void MarkCurrentRow(Program& program, AddressWindow& window) {
    window.lstNames.ListIndex = RowOfRecord(window.lstNames.Rows, program.addresses.CurrentAddressRecord);
    program.addresses.LastListIndex = window.lstNames.ListIndex;
}

void ActivateCurrentRecord(Program& program, AddressWindow& window) {
    AddressRecords& book = program.addresses;
    NameList& list = window.lstNames;
    if (book.RestoringRow) {
        book.RestoringRow = false;
        ReturnToField(program, window);
        return;
    }
    const auto row = static_cast<std::size_t>(list.ListIndex);
    const std::int32_t chosen = list.Rows[row].Record;
    if (MayReplaceFields(program, window) == Outcome::Stopped) {
        const int back = book.AddressRecordNew ? -1 : book.LastListIndex; // a new record has no row
        if (list.ListIndex != back) {
            list.ListIndex = back;
            book.RestoringRow = true;
            ActivateCurrentRecord(program, window);
        }
        return;
    }
    // Saving what was typed has sorted the list anew.
    list.ListIndex = RowOfRecord(list.Rows, chosen);
    if (list.ListIndex < 0) {
        return;
    }
    book.LastListIndex = list.ListIndex;
    std::int32_t number = 0;
    Guarded(program, "ActivateCurrentRecord", [&] { number = RecordOfRow(program, window, list.ListIndex); });
    if (number == 0) {
        ShowNothing(program, window);
        return;
    }
    book.CurrentAddressRecord = number;
    ShowAddressRecord(program, window);
}

void ShowAddressRecord(Program& program, AddressWindow& window) {
    AddressRecords& book = program.addresses;
    book.RecordAsRead.clear();
    Guarded(program, "ShowAddressRecord",
            [&] { book.RecordAsRead = ReadRecord(program, book.CurrentAddressRecord); });
    {
        const ScopedFlag reading(book.ReadingRecord);
        const AddressFields texts = FieldsOf(book.RecordAsRead);
        for (int index = 0; index < kAddressFieldCount; ++index) {
            PutText(program, window, index, texts[static_cast<std::size_t>(index)]);
        }
    }
    ForgetChanges(program, window);
    book.AddressRecordNew = false;
    const std::string& name = window.txt[kNameField].Text;
    window.Caption = book.AddressBookLabel + name + "/Record " + std::to_string(book.CurrentAddressRecord) +
                     " of " + std::to_string(book.AddressRecordCount) + " Displayed";
    EnableRecordCommands(window, true);
    window[Id::mnuFileDelete].Enabled = !book.RecordAsRead.empty();
    if (!name.empty()) {
        EnableMerge(window, true);
    }
}

Outcome SaveAddressRecord(Program& program, AddressWindow& window) {
    AddressRecords& book = program.addresses;
    book.AddressSaveCancelled = true;
    const AddressFields fields = TextsOf(window);
    if (RefusedAsEmpty(program, window, fields)) {
        return Outcome::Stopped;
    }
    if (const std::vector<std::string> captions = TooLong(window);
        !captions.empty() && AskToCut(program, captions) == Consent::Refused) {
        return Outcome::Stopped;
    }
    Written written = Written::Yes;
    if (!Guarded(program, "SaveAddressRecord", [&] { written = WriteRecord(program, RecordOf(fields)); })) {
        return Outcome::Stopped;
    }
    if (written == Written::Changed) {
        KeepAsNew(program, window);
        return Outcome::Stopped;
    }
    book.AddressSaveCancelled = false;
    TellSaved(program, "Address", BookPath(program));
    ReadAddressList(program, window);
    ShowAddressRecord(program, window);
    MarkCurrentRow(program, window);
    return Outcome::Done;
}

Outcome NewAddressRecord(Program& program, AddressWindow& window) {
    if (MayReplaceFields(program, window) == Outcome::Stopped) {
        return Outcome::Stopped;
    }
    AddressRecords& book = program.addresses;
    ForgetRecord(program);
    window.lstNames.ListIndex = -1;
    EnableRecordCommands(window, true);
    book.AddressRecordNew = true;
    window[Id::mnuFileDelete].Enabled = false;
    FillFields(program, window, {});
    ForgetChanges(program, window);
    ShowNewTitle(program, window);
    WantFocus(window, kNameField);
    return Outcome::Done;
}

void DeleteAddressRecord(Program& program, AddressWindow& window) {
    AddressRecords& book = program.addresses;
    const std::string name(text::Trim(NameIn(book.RecordAsRead)));
    if (AskOrNo(program, text::Lines({"Delete this record?", name}), "") == Consent::Refused) {
        ReturnToField(program, window);
        return;
    }
    std::optional<std::int32_t> removed;
    if (!Guarded(program, "DeleteAddressRecord",
                 [&] { removed = RemoveRecord(program, book.CurrentAddressRecord, book.RecordAsRead); })) {
        return;
    }
    if (!removed) {
        KeepAsNew(program, window);
        return;
    }
    book.CurrentAddressRecord = *removed;
    std::int32_t count = 0;
    Guarded(program, "DeleteAddressRecord", [&] { count = RecordsInFile(program); });
    book.AddressRecordCount = std::max(count, 1);
    book.CurrentAddressRecord = std::min(book.CurrentAddressRecord, book.AddressRecordCount);
    RefillAfterDelete(program, window);
}

Outcome ConfirmAddressChange(Program& program, AddressWindow& window) {
    AddressRecords& book = program.addresses;
    switch (program.platform.questions.MsgBox(
        "The current Record has been changed. Do you want to save the changes?", Buttons::YesNoCancel,
        "Record Has Changed",
        {.Default = Answer::Yes, .Lost = "The changes to this record will be lost unless they are saved."})) {
    case Answer::Yes:
        static_cast<void>(SaveAddressRecord(program, window)); // AddressSaveCancelled says what came of it
        break;
    case Answer::No:
        book.AddressSaveCancelled = false;
        ForgetChanges(program, window);
        break;
    default:
        book.AddressSaveCancelled = true;
        break;
    }
    return book.AddressSaveCancelled ? Outcome::Stopped : Outcome::Done;
}

Outcome MayReplaceFields(Program& program, AddressWindow& window) {
    if (!program.addresses.AddressRecordChanged) {
        return Outcome::Done;
    }
    const Outcome outcome = ConfirmAddressChange(program, window);
    program.addresses.AddressSaveCancelled = false;
    return outcome;
}

void ClearSearch(Program& program, AddressWindow& window) {
    program.addresses.Search = {};
    window[Id::mnuEditFindAgain].Enabled = false;
}

} // namespace modAddress
