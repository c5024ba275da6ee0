#include "address_books.h"
#include "addresses/address_book.h"
#include "addresses/address_search.h"
#include "addresses/batch_text.h"
#include "addresses/frm_address.h"
#include "base/ansi.h"
#include "base/files.h"
#include "base/record_file.h"
#include "base/text.h"
#include "support/running_program.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <fstream>
#include <string>
#include <vector>

namespace {

constexpr std::string_view kNeedle = "Allergic to nuts";

/// A program with its address window on a book of that many records.
struct OpenBookRun : RunningProgram {
    explicit OpenBookRun(int records) {
        program.addresses = {};
        folder.Write(BookName(), address_books::BookOf(records, kNeedle));
        window.Form_Load(program);
        static_cast<void>(modAddress::OpenBook(program, window, AddressBook::Personal));
    }
    [[nodiscard]] std::string BookName() const {
        return program.folders.ProposalsFolder.substr(folder.Path().size()) + "PerAdd.apx";
    }
    frmAddress window;
};

/// The raw read of the measures: one opening, one buffer.
std::string ReadRaw(const std::string& path) {
    std::ifstream file(path, std::ios::binary | std::ios::ate);
    std::string bytes(static_cast<std::size_t>(file.tellg()), '\0');
    file.seekg(0);
    file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return bytes;
}

void ListOfABook(benchmark::State& state) {
    OpenBookRun run(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        modAddress::ReadAddressList(run.program, run.window);
    }
}
BENCHMARK(ListOfABook)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);

/// What the list may take three times: one raw read and the sort of the names.
void RawReadAndSortOfTheNames(benchmark::State& state) {
    const OpenBookRun run(static_cast<int>(state.range(0)));
    const std::string path = run.folder / run.BookName();
    for (auto _ : state) {
        const std::string bytes = ReadRaw(path);
        std::vector<std::string> names;
        names.reserve(bytes.size() / modAddress::kRecordLength);
        for (std::size_t at = 0; at + modAddress::kRecordLength <= bytes.size();
             at += modAddress::kRecordLength) {
            names.push_back(bytes.substr(at, modAddress::kNameWidth));
        }
        std::sort(names.begin(), names.end(), [](const std::string& one, const std::string& other) {
            return text::CompareNoCase(one, other) < 0;
        });
        benchmark::DoNotOptimize(names);
    }
}
BENCHMARK(RawReadAndSortOfTheNames)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);

void FirstHitOfASearch(benchmark::State& state) {
    OpenBookRun run(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        state.PauseTiming();
        run.surroundings.questions.ExpectInput("Search", std::string(kNeedle));
        state.ResumeTiming();
        modAddress::FindInAddressBook(run.program, run.window, modAddress::Search::New);
    }
}
BENCHMARK(FirstHitOfASearch)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);

/// What the first hit may take twice.
void RawReadInCapitals(benchmark::State& state) {
    const OpenBookRun run(static_cast<int>(state.range(0)));
    const std::string path = run.folder / run.BookName();
    for (auto _ : state) {
        benchmark::DoNotOptimize(text::Upper(ReadRaw(path)));
    }
}
BENCHMARK(RawReadInCapitals)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);

void NextHitOfASearch(benchmark::State& state) {
    OpenBookRun run(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        if (run.program.addresses.Search.Text.empty()) {
            state.PauseTiming();
            run.surroundings.questions.ExpectInput("Search", std::string(kNeedle));
            modAddress::FindInAddressBook(run.program, run.window, modAddress::Search::New);
            state.ResumeTiming();
        }
        if (run.program.addresses.Search.NextRecord > static_cast<int>(state.range(0)) - 20) {
            run.program.addresses.Search.NextRecord = 0; // round the book again, without the message
        }
        modAddress::FindInAddressBook(run.program, run.window, modAddress::Search::Again);
    }
}
BENCHMARK(NextHitOfASearch)->Arg(10000)->Arg(100000)->Unit(benchmark::kMicrosecond);

std::string CopiedList(std::size_t length, bool quoted) {
    std::string list = "First Name,Last Name,Home Street,Home City,Home Phone,E-mail Address\r\n";
    while (list.size() < length) {
        list += quoted ? "\"Ann\",\"Ash\",\"1 Elm St, Rear\",\"Springfield\",\"(217) "
                         "555-0100\",\"ann@example.com\"\r\n"
                       : "Ann,Ash,1 Elm Street,Springfield,(217) 555-0100,ann@example.com\r\n";
    }
    return list;
}

constexpr std::size_t kTenMegabytes = 10U << 20U;

void RecordsOfACopiedList(benchmark::State& state) {
    const std::string list = CopiedList(kTenMegabytes, state.range(0) == 1);
    for (auto _ : state) {
        benchmark::DoNotOptimize(batch_text::FindRecords(list, 0, batch_text::Between::Lines));
    }
}
BENCHMARK(RecordsOfACopiedList)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

/// What it may take three times: one pass that counts the separators.
void SeparatorsOfACopiedList(benchmark::State& state) {
    const std::string list = CopiedList(kTenMegabytes, state.range(0) == 1);
    for (auto _ : state) {
        std::size_t separators = 0;
        for (const char character : list) {
            separators +=
                character == ',' || character == '\r' || character == '\n' || character == '"' ? 1U : 0U;
        }
        benchmark::DoNotOptimize(separators);
    }
}
BENCHMARK(SeparatorsOfACopiedList)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

} // namespace
