#include "address_books.h"
#include "addresses/address_book.h"
#include "addresses/address_commands.h"
#include "addresses/frm_address.h"
#include "desktop/frm_address_view.h"
#include "desktop/name_list_view.h"
#include "desktop/qt_surroundings.h"
#include "program/windows.h"
#include "support/running_program.h"

#include <QApplication>
#include <QClipboard>
#include <QTest>

#include <benchmark/benchmark.h>

#include <filesystem>
#include <functional>
#include <memory>
#include <string>

namespace {

/// The address window on a book of 10,000 records.
struct BookOnScreen : RunningProgram {
    BookOnScreen() {
        const std::string folderName = program.folders.ProposalsFolder.substr(folder.Path().size());
        folder.Write(folderName + "PerAdd.apx", address_books::BookOf(10000, "needle"));
        modAddress::mnuFileOpenAddressBook_Click(program);
        surroundings.questions.TakeAll(Answer::Yes);
        address = dynamic_cast<frmAddress*>(modWindows::Find(program, "frmAddress"));
        view = std::make_unique<FrmAddressView>(program, *address, nullptr, [this] { view->Follow(); });
        view->show();
        static_cast<void>(QTest::qWaitForWindowExposed(view.get()));
        SelectRow();
    }
    void SelectRow() {
        address->lstNames_Click(program, 5000);
        Paint();
    }
    void Paint() {
        view->Follow();
        QApplication::processEvents();
        view->repaint();
    }
    frmAddress* address = nullptr;
    std::unique_ptr<FrmAddressView> view;
};

void SaveToTheListOnScreen(benchmark::State& state) {
    BookOnScreen run;
    bool other = false;
    for (auto _ : state) {
        other = !other;
        run.address->txt_Change(run.program, 1, other ? "1 Elm" : "2 Oak", 5);
        run.address->cmdSave_Click(run.program);
        run.Paint();
    }
}
BENCHMARK(SaveToTheListOnScreen)->Unit(benchmark::kMillisecond);

void DeleteToTheListOnScreen(benchmark::State& state) {
    BookOnScreen run;
    for (auto _ : state) {
        run.address->Run(run.program, address_menu::Id::mnuFileDelete);
        run.Paint();
    }
}
BENCHMARK(DeleteToTheListOnScreen)->Unit(benchmark::kMillisecond)->Iterations(100);

std::string CopiedList() {
    constexpr std::size_t kTenMegabytes = 10U << 20U;
    std::string list = "First Name,Last Name,Home Street,Home City,Home Phone,E-mail Address\r\n";
    while (list.size() < kTenMegabytes) {
        list +=
            "\"Ann\",\"Ash\",\"1 Elm St, Rear\",\"Springfield\",\"(217) 555-0100\",\"ann@example.com\"\r\n";
    }
    return list;
}

/// From "Begin Batch Process Now" to the first record of ten megabytes on screen, the clipboard included. The
/// window answers nothing meanwhile.
void TenCopiedMegabytesToTheFirstRecord(benchmark::State& state) {
    BookOnScreen run;
    const QtClipboard clipboard;
    QGuiApplication::clipboard()->setText(QString::fromStdString(CopiedList()));
    constexpr int kHeadingList = 3;
    for (auto _ : state) {
        state.PauseTiming();
        run.address->Run(run.program, address_menu::Id::mnuToolsImportBatch);
        run.address->optList_Click(run.program, kHeadingList);
        run.Paint();
        state.ResumeTiming();
        run.surroundings.clipboard.Text = clipboard.GetText();
        run.address->cmdOK_Click(run.program);
        run.Paint();
        state.PauseTiming();
        run.address->cmdEndBatch_Click(run.program);
        state.ResumeTiming();
    }
}
BENCHMARK(TenCopiedMegabytesToTheFirstRecord)->Unit(benchmark::kMillisecond);

} // namespace
