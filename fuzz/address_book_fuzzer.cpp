#include "addresses/address_book.h"
#include "addresses/address_record.h"
#include "addresses/address_search.h"
#include "addresses/frm_address.h"
#include "program/program.h"
#include "support/answered_by.h"
#include "support/recording_platform.h"

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include <unistd.h>

/// Arbitrary bytes as an address book: listed, opened row by row, searched, saved and deleted.

namespace {

/// Says yes to everything and looks for a blank.
class WillingQuestions : public Questions {
public:
    Answer Ask(std::string_view, Buttons buttons, std::string_view, const Manner&) override {
        return buttons == Buttons::Ok ? Answer::Ok : Answer::Yes;
    }
    std::string InputBox(std::string_view, std::string_view, std::string_view) override { return "A"; }
};

struct Machine {
    WillingQuestions willing;
    RecordingPlatform recording;
    Platform platform{AnsweredBy(willing, recording)};
    Program program{platform};
    std::filesystem::path folder =
        std::filesystem::temp_directory_path() / ("address-book-fuzzer-" + std::to_string(::getpid()));
    Machine() {
        std::filesystem::create_directories(folder);
        program.folders.InstallFolder = folder.string() + "/";
        program.folders.ProposalsFolder = folder.string() + "/";
    }
    ~Machine() {
        std::error_code ignored;
        std::filesystem::remove_all(folder, ignored);
    }
};

void Require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

std::string Read(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static Machine machine;
    Program& program = machine.program;
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    const std::filesystem::path path = machine.folder / "PerAdd.apx";
    std::ofstream(path, std::ios::binary | std::ios::trunc) << bytes;

    frmAddress window;
    window.Form_Load(program);
    static_cast<void>(modAddress::OpenBook(program, window, AddressBook::Personal));
    const std::size_t records = size / modAddress::kRecordLength;
    Require(window.lstNames.Rows.size() == records);
    Require(program.addresses.AddressRecordCount == static_cast<std::int32_t>(records));

    // Looking changes nothing, and a row always leads to its own record.
    const int rows = static_cast<int>(records < 8 ? records : 8);
    for (int row = 0; row < rows; ++row) {
        const std::int32_t record = window.lstNames.Rows[static_cast<std::size_t>(row)].Record;
        window.lstNames_Click(program, row);
        Require(program.addresses.CurrentAddressRecord == record);
        Require(!program.addresses.AddressRecordChanged);
    }
    modAddress::FindInAddressBook(program, window, modAddress::Search::New);
    modAddress::FindInAddressBook(program, window, modAddress::Search::Again);
    Require(Read(path) == bytes);

    if (records > 0) {
        window.lstNames_Click(program, 0);
        const std::int32_t record = program.addresses.CurrentAddressRecord;
        window.txt_Change(program, 10, "typed", 5);
        window.cmdSave_Click(program);
        Require(Read(path).size() == size || !program.addresses.AddressSaveCancelled);
        if (!program.addresses.AddressSaveCancelled) {
            std::string changed = Read(path);
            const auto at = static_cast<std::size_t>(record - 1) * modAddress::kRecordLength;
            changed.replace(at, modAddress::kRecordLength, bytes, at, modAddress::kRecordLength);
            Require(changed == bytes); // no other record was touched
        }
        modAddress::ShowAddressRecord(program, window);
        modAddress::DeleteAddressRecord(program, window);
        Require(Read(path).size() == size - modAddress::kRecordLength);
    }
    window.Form_Unload(program);
    return 0;
}
