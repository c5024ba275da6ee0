#include "addresses/address_search.h"

#include "addresses/address_book.h"
#include "addresses/address_record.h"
#include "addresses/address_window.h"
#include "addresses/ask.h"
#include "addresses/book_file.h"
#include "base/ansi.h"
#include "base/text.h"
#include "program/errors.h"
#include "program/program.h"

#include <algorithm>
#include <array>

namespace modAddress {

namespace {

void UpperCase(std::string& bytes) {
    std::array<char, 256> upper{};
    for (std::size_t value = 0; value < upper.size(); ++value) {
        upper[value] = ansi::Upper(static_cast<char>(value));
    }
    for (char& byte : bytes) {
        byte = upper[static_cast<unsigned char>(byte)];
    }
}

/// The indexes of the records that hold the text, each once. A text may run across the join of two fields,
/// never across that of two records.
std::vector<std::int32_t> RecordsWith(std::string_view records, std::string_view wanted) {
    std::vector<std::int32_t> hits;
    for (std::size_t at = records.find(wanted); at != std::string_view::npos;) {
        const std::size_t record = at / kRecordLength;
        const std::size_t next = (record + 1) * kRecordLength;
        const bool within = at + wanted.size() <= next;
        if (within) {
            hits.push_back(static_cast<std::int32_t>(record));
        }
        at = records.find(wanted, within ? next : at + 1);
    }
    return hits;
}

/// Looks the hits up, unless they were looked up in the book as it stands.
void LookUp(Program& program) {
    AddressSearch& search = program.addresses.Search;
    const std::optional<files::Stamp> now = files::StampOf(BookPath(program));
    if (now && search.Book == now) {
        return;
    }
    std::string records = ReadRecords(program);
    UpperCase(records);
    search.Hits = RecordsWith(records, search.Text);
    search.Book = now;
}

void SelectInFields(const Program& program, AddressWindow& window) {
    const std::string& wanted = program.addresses.Search.Text;
    for (std::size_t index = 0; index < window.txt.size(); ++index) {
        AddressField& field = window.txt[index];
        const std::size_t at = text::Upper(field.Text).find(wanted);
        if (at != std::string::npos) {
            field.SelStart = static_cast<int>(at);
            field.SelLength = static_cast<int>(wanted.size());
            window.FocusWanted = static_cast<int>(index);
            return;
        }
    }
}

void GoToNextHit(Program& program, AddressWindow& window) {
    AddressSearch& search = program.addresses.Search;
    const auto hit = std::lower_bound(search.Hits.begin(), search.Hits.end(), search.NextRecord);
    if (hit == search.Hits.end()) {
        Tell(program, "No more occurrances.");
        ClearSearch(program, window);
        return;
    }
    search.NextRecord = *hit + 1;
    program.addresses.CurrentAddressRecord = *hit + 1;
    ShowAddressRecord(program, window);
    MarkCurrentRow(program, window);
    SelectInFields(program, window);
}

/// False when the person gave nothing to look for.
bool AskForText(Program& program, AddressWindow& window) {
    ClearSearch(program, window);
    const std::string answer = program.platform.questions.InputBox("Search for:", "Search", "");
    const std::string wanted = text::Upper(text::Trim(answer));
    if (wanted.empty()) {
        Tell(program, "Search cancelled.");
        return false;
    }
    program.addresses.Search.Text = wanted;
    window[address_menu::Id::mnuEditFindAgain].Enabled = true;
    return true;
}

} // namespace

void FindInAddressBook(Program& program, AddressWindow& window, Search kind) {
    Guarded(program, "FindInAddressBook", [&] {
        if (RecordsInFile(program) == 0) {
            Tell(program, "There's no records to search.");
            return;
        }
        const AddressSearch before = program.addresses.Search;
        if (MayReplaceFields(program, window) == Outcome::Stopped) {
            return;
        }
        if (kind == Search::New) {
            if (!AskForText(program, window)) {
                return;
            }
        } else {
            if (before.Text.empty()) {
                return;
            }
            // A save on the way has ended the search; the records stand where they stood.
            program.addresses.Search = before;
            window[address_menu::Id::mnuEditFindAgain].Enabled = true;
            for (AddressField& field : window.txt) {
                field.SelLength = 0;
            }
        }
        LookUp(program);
        GoToNextHit(program, window);
    });
}

} // namespace modAddress
