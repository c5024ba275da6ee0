#pragma once

#include "base/record_file.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// The address books and the import of lists into them.

enum class AddressBook { Personal, Business };

inline constexpr int kAddressFieldCount = 11;
inline constexpr int kBatchCategoryCount = 9;
inline constexpr int kCsvColumnCount = 29;

/// Find and Find Again. The records that hold the text are looked up once; the record that the person is
/// taken to next is the first of them from `NextRecord` on.
struct AddressSearch {
    std::string Text; ///< upper-cased; empty when no search is under way
    std::int32_t NextRecord = 0;
    std::vector<std::int32_t> Hits; ///< record indexes from 0, ascending
    /// The file in which the hits were looked up; none when it is to be read again.
    std::optional<files::Stamp> Book;
};

/// A list on its way from the clipboard into a book.
struct BatchRecords {
    std::array<bool, kBatchCategoryCount> BatchCategorySelected{};
    int BatchSelectedLast = -1; ///< selected categories minus 1
    int ListType = 0;
    bool BatchImportCsv = false;
    std::int32_t BatchRecordLast = -1; ///< the highest record index
    std::int32_t BatchPosition = 0;
    bool BatchRunning = false;
    bool BatchStopped = false;
    std::string CaptionBefore; ///< the window's, until the list is chosen

    std::string List;                     ///< as it was copied
    std::vector<std::uint32_t> RecordAt;  ///< where each record begins in it; one more for the end
    std::vector<std::int32_t> BadRecords; ///< ascending indexes of the records that cannot be read
    std::array<bool, kCsvColumnCount> CsvColumnPresent{};
    std::array<int, kCsvColumnCount> CsvColumnAt{};
};

struct AddressRecords {
    AddressBook Book = AddressBook::Personal;
    std::string AddressFileName;
    std::string AddressBackupName; ///< recorded only; no command reads or writes such a file
    std::string AddressWorkName;
    std::string AddressBookLabel;
    std::int32_t AddressRecordLength = 520;
    std::int32_t AddressRecordCount = 0;
    std::int32_t CurrentAddressRecord = 0; ///< from 1
    std::string RecordAsRead;              ///< the bytes of the current record; empty for none
    std::string NamesInFile; ///< the name fields in file order, as the list was filled from them
    bool AddressRecordNew = false;
    bool AddressNameChanged = false;
    bool AddressRecordChanged = false;
    std::array<bool, kAddressFieldCount> AddressFieldChanged{};
    std::array<std::string, kAddressFieldCount> UnchangedText;
    int LastFocusField = 0;
    int LastFocusStart = 0;
    int LastListIndex = 0;
    bool AddressSaveCancelled = false;
    bool FillingFields = false; ///< the fields are filled by the program; nothing counts as typed
    bool ReadingRecord = false; ///< a record is being put into the fields
    bool RestoringRow = false;  ///< the selection goes back to where it was
    bool CompanyInfoMode = false;
    AddressSearch Search;
    BatchRecords Batch;
};
