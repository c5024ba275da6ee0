#include "base/files.h"
#include "calendar/frm_dates.h"
#include "contract/frm_editor.h"
#include "desktop/frm_main_view.h"
#include "desktop/qt_platform.h"
#include "program/program.h"
#include "program/windows.h"
#include "shell/main_load.h"
#include "shell/wiring.h"
#include "support/recording_platform.h"
#include "support/scratch_folder.h"

#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QTest>
#include <QWidget>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <limits>
#include <memory>
#include <string>
#include <vector>

#include <fcntl.h>
#include <unistd.h>

/// The calendar over a folder of proposals beside the plainest program that reads the same bytes, in one run;
/// and a key in a long contract, up to the painted frame.

namespace {

using Clock = std::chrono::steady_clock;

double Milliseconds(Clock::duration span) {
    return std::chrono::duration<double, std::milli>(span).count();
}

class Agreeing : public Questions {
public:
    std::string InputBox(std::string_view, std::string_view, std::string_view) override { return {}; }

protected:
    Answer Ask(std::string_view, Buttons buttons, std::string_view, const Manner&) override {
        return buttons == Buttons::Ok ? Answer::Ok : Answer::No;
    }
};

/// Lets events run, and keeps in mind how long nobody did.
class WatchedEvents : public QtEventLoop {
public:
    void LetEventsRun() override {
        Longest = std::max(Longest, Milliseconds(Clock::now() - Last));
        QtEventLoop::LetEventsRun();
        Last = Clock::now();
    }
    Clock::time_point Last = Clock::now();
    double Longest = 0;
};

struct Desktop {
    ScratchFolder folder;
    Agreeing agreeing;
    QtPlatform qt;
    WatchedEvents events;
    Platform platform{.questions = agreeing,
                      .measure = qt.measure,
                      .printers = qt.printers,
                      .screen = qt.screen,
                      .clipboard = qt.clipboard,
                      .shell = qt.shell,
                      .clock = qt.clock,
                      .instance = qt.instance,
                      .pictures = qt.pictures,
                      .events = events,
                      .words = qt.words,
                      .dictionaries = qt.dictionaries};
    Program program{platform};
    std::unique_ptr<FrmMainView> window;

    Desktop() {
        for (const char* name : {"UserPreferences.txt", "Proposals/SalesTax.txt"}) {
            QFile file(QStringLiteral(QUILLBROOK_SHIPPED_DATA "/") + QLatin1String(name));
            file.open(QIODevice::ReadOnly);
            folder.Write(name, file.readAll().toStdString());
        }
        folder.MakeFolder("Proposals/Backup");
        program.folders.InstallFolder = folder.Path();
        Wire(program);
        window = std::make_unique<FrmMainView>(program, qt.measure);
        events.Follow = [this] { window->Follow(); };
        modMain::MDIForm_Load(program);
        program.main.State = WindowState::Normal;
        window->ShowFirst();
        static_cast<void>(QTest::qWaitForWindowExposed(window.get()));
        window->AfterEvent();
    }

    void Fill(int proposals, int others) const {
        const std::string rest(20605, ' ');
        for (int at = 0; at < proposals; ++at) {
            std::string date = std::to_string(1 + at % 12) + "/" + std::to_string(1 + at % 28) + "/" +
                               std::to_string(2000 + at % 29);
            date.resize(25, ' ');
            // In another order than that of the list.
            folder.Write("Proposals/Client " + std::to_string(at * 7919 % proposals) + ".hef", date + rest);
        }
        for (int at = 0; at < others; ++at) {
            folder.Write("Proposals/Other " + std::to_string(at) + ".txt", "");
        }
    }
};

/// The names, as the folder lists them.
std::vector<std::string> Names(const std::string& folder) {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        if (entry.path().extension() == ".hef") {
            names.push_back(entry.path().string());
        }
    }
    return names;
}

void RawRead(const std::vector<std::string>& names) {
    char bytes[25];
    for (const std::string& name : names) {
        const int file = ::open(name.c_str(), O_RDONLY);
        benchmark::DoNotOptimize(::read(file, bytes, sizeof bytes));
        ::close(file);
    }
}

void CalendarBesideARawRead(benchmark::State& state) {
    Desktop desktop;
    desktop.Fill(10000, static_cast<int>(state.range(0)));
    const std::string folder = desktop.folder / "Proposals";
    modCalendar::mnuViewEventDates_Click(desktop.program);
    desktop.window->AfterEvent();
    desktop.events.Longest = 0; // filling the folder was nobody's wait
    // Of each the quickest round: what else the machine has to do only adds to it.
    constexpr double kNever = std::numeric_limits<double>::max();
    double raw = kNever;
    double listing = kNever;
    double calendar = kNever;
    for (auto _ : state) {
        const auto start = Clock::now();
        const std::vector<std::string> names = Names(folder);
        const auto listed = Clock::now();
        RawRead(names);
        const auto read = Clock::now();
        desktop.events.Last = read;
        modCalendar::mnuViewEventDates_Click(desktop.program);
        desktop.window->AfterEvent();
        QCoreApplication::processEvents(); // the list is on the screen
        const auto shown = Clock::now();
        calendar = std::min(calendar, Milliseconds(shown - read));
        // Nobody was answered either while the list was sorted and painted.
        desktop.events.Longest = std::max(desktop.events.Longest, Milliseconds(shown - desktop.events.Last));
        listing = std::min(listing, Milliseconds(listed - start));
        raw = std::min(raw, Milliseconds(read - listed));
    }
    state.counters["raw_ms"] = raw;
    state.counters["listing_ms"] = listing;
    state.counters["calendar_ms"] = calendar;
    state.counters["times_raw"] = calendar / raw;
    state.counters["times_raw_and_listing"] = calendar / (raw + listing);
    state.counters["longest_silence_ms"] = desktop.events.Longest;
}
BENCHMARK(CalendarBesideARawRead)->Arg(0)->Arg(90000)->Iterations(20)->Unit(benchmark::kMillisecond);

/// A text of 20,000 characters: in paragraphs, and as one.
void KeyInALongContract(benchmark::State& state) {
    Desktop desktop;
    modContract::mnuManageEditor_Click(desktop.program);
    desktop.window->AfterEvent();
    auto& editor = dynamic_cast<frmEditor&>(*modWindows::Find(desktop.program, "frmEditor"));
    std::string text;
    while (text.size() < 20000) {
        text += "The client agrees to pay the balance in full. ";
        if (state.range(0) > 0 && text.size() % static_cast<std::size_t>(state.range(0)) < 46) {
            text += "\r\n";
        }
    }
    editor.Edited(0, editor.txtCharCount.Text().size(), text, 0, ContractText::Kind::Whole);
    ++editor.Revision;
    desktop.window->AfterEvent();
    auto* view = desktop.window->findChild<QWidget*>(QStringLiteral("txtCharCount"));
    std::vector<double> spans;
    for (auto _ : state) {
        const auto start = Clock::now();
        QTest::keyClick(view, Qt::Key_X);
        QCoreApplication::processEvents(); // paints what the key has changed
        spans.push_back(Milliseconds(Clock::now() - start));
    }
    std::sort(spans.begin(), spans.end());
    state.counters["p99_ms"] = spans[spans.size() * 99 / 100];
}
BENCHMARK(KeyInALongContract)->Arg(800)->Arg(0)->Iterations(500)->Unit(benchmark::kMillisecond);

} // namespace
