#include "desktop/font_list_view.h"
#include "desktop/frm_main_view.h"
#include "desktop/page_view.h"
#include "desktop/qt_platform.h"
#include "format/assignment_lines.h"
#include "format/label_commit.h"
#include "format/label_designer.h"
#include "format/label_looks.h"
#include "output/preview.h"
#include "output/print.h"
#include "output/print_page.h"
#include "pages/fields.h"
#include "pages/page_geometry.h"
#include "pages/row_fields.h"
#include "pages/text_width.h"
#include "program/program.h"
#include "proposal/reset.h"
#include "shell/main_load.h"
#include "shell/page_switch.h"
#include "shell/wiring.h"
#include "support/recording_platform.h"
#include "support/scratch_folder.h"
#include "terms/frm_fut.h"
#include "terms/term_list.h"

#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QMouseEvent>
#include <QTest>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <ctime>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

double Milliseconds(Clock::duration span) {
    return std::chrono::duration<double, std::milli>(span).count();
}

double ProcessorMilliseconds() {
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

class Agreeing : public Questions {
public:
    Answer Ask(std::string_view, Buttons buttons, std::string_view, const Manner&) override {
        return buttons == Buttons::Ok ? Answer::Ok : Answer::No;
    }
    std::string InputBox(std::string_view, std::string_view, std::string_view) override { return {}; }
};

/// The program in its window, in a folder of its own.
struct Desktop {
    ScratchFolder folder;
    Agreeing agreeing;
    QtPlatform qt;
    Platform platform{.questions = agreeing,
                      .measure = qt.measure,
                      .printers = qt.printers,
                      .screen = qt.screen,
                      .clipboard = qt.clipboard,
                      .shell = qt.shell,
                      .clock = qt.clock,
                      .instance = qt.instance,
                      .pictures = qt.pictures,
                      .events = qt.events,
                      .words = qt.words,
                      .dictionaries = qt.dictionaries};
    Program program{platform};
    std::unique_ptr<FrmMainView> window;

    Desktop() {
        folder.Write("UserPreferences.txt", Shipped("UserPreferences.txt"));
        folder.Write("Proposals/SalesTax.txt", Shipped("Proposals/SalesTax.txt"));
        program.folders.InstallFolder = folder.Path();
        Wire(program);
        window = std::make_unique<FrmMainView>(program, qt.measure);
        qt.events.Follow = [this] { window->Follow(); };
        modMain::MDIForm_Load(program); // without the splash, which waits for a person
        program.main.State = WindowState::Normal;
        window->ShowFirst();
        static_cast<void>(QTest::qWaitForWindowExposed(window.get()));
        window->AfterEvent();
    }

    static std::string Shipped(const char* name) {
        QFile file(QStringLiteral(QUILLBROOK_SHIPPED_DATA "/") + QLatin1String(name));
        file.open(QIODevice::ReadOnly);
        return file.readAll().toStdString();
    }
};

/// Without what the process itself costs; bench/start_to_window measures that.
void ProgramToFirstPaint(benchmark::State& state) {
    for (auto _ : state) {
        const Desktop desktop;
        desktop.window->grab();
    }
}
BENCHMARK(ProgramToFirstPaint)->Unit(benchmark::kMillisecond);

/// From the key to a frame in which everything that it changes stands, totals included.
void KeyToPaintedFrame(benchmark::State& state) {
    Desktop desktop;
    QWidget* keyboard = QApplication::focusWidget();
    desktop.program.main.Focus = FieldRef{PageId::frmP1, FieldKind::txt, 20};
    desktop.window->AfterEvent();
    keyboard = desktop.window->PageOf(PageId::frmP1).findChild<QWidget*>(QStringLiteral("txt(20)"));
    std::vector<double> spans;
    int count = 0;
    for (auto _ : state) {
        desktop.program.editing.KeyCounter = 0;
        const auto start = Clock::now();
        if (++count % 8 == 0) {
            QTest::keyClick(keyboard, Qt::Key_A, Qt::ControlModifier);
            QTest::keyClick(keyboard, Qt::Key_Delete);
        } else {
            QTest::keyClick(keyboard, Qt::Key_7);
        }
        QCoreApplication::processEvents(); // paints what the key has changed
        spans.push_back(Milliseconds(Clock::now() - start));
    }
    std::sort(spans.begin(), spans.end());
    state.counters["p50_ms"] = spans[spans.size() / 2];
    state.counters["p99_ms"] = spans[spans.size() * 99 / 100];
}
BENCHMARK(KeyToPaintedFrame)->Unit(benchmark::kMillisecond);

/// A list as long as lists may be, in use and on screen; no two terms begin alike.
void UseLongList(Desktop& desktop) {
    constexpr int kLetters = 23;
    std::string bytes;
    for (int line = 0; line < modTerms::kMostTerms; ++line) {
        std::string word;
        for (int rest = line + kLetters * kLetters * kLetters; rest > 0; rest /= kLetters) {
            word.insert(word.begin(), static_cast<char>('a' + rest % kLetters));
        }
        bytes += (line == 0 ? "" : "\r\n") + word + " chairs, number " + std::to_string(line) + " [3.50]";
    }
    desktop.folder.Write("Proposals/" + desktop.program.run.FUTFileName, bytes);
    desktop.program.run.ACEnabled = true;
    desktop.program.run.ACStartLen = 2;
    modTerms::mnuOptFUT_Click(desktop.program);
    modTerms::ListInUseChanged(desktop.program);
    desktop.window->AfterEvent();
    QCoreApplication::processEvents();
}

/// From a key in a description to the painted frame, press and release, while words are completed: every
/// third and fourth letter brings a term, the next one types over it.
void KeyWithCompletionToPaintedFrame(benchmark::State& state) {
    Desktop desktop;
    UseLongList(desktop);
    modScroll::UpdatePageButtons(desktop.program, 1);
    modFields::GiveFocus(desktop.program, {PageId::frmP2, FieldKind::txt, 0});
    desktop.program.main.BringUp = true;
    desktop.window->AfterEvent();
    QCoreApplication::processEvents();
    QWidget* line = desktop.window->PageOf(PageId::frmP2).findChild<QWidget*>(QStringLiteral("txt(0)"));
    std::vector<double> spans;
    std::vector<double> work; // without what other programs took meanwhile
    int completed = 0;
    int count = 0;
    std::string word;
    for (auto _ : state) {
        const int letter = count % 6;
        if (letter == 0) {
            const auto& lines = desktop.program.terms.Lines;
            word = lines[static_cast<std::size_t>(count) * 37 % lines.size()].substr(0, 4);
            word += "q ";
            if (count % 48 == 0) {
                modFields::SetText(desktop.program, {PageId::frmP2, FieldKind::txt, 0}, "");
                desktop.window->AfterEvent();
                QCoreApplication::processEvents();
            }
        }
        ++count;
        desktop.program.editing.KeyCounter = 0;
        const double worked = ProcessorMilliseconds();
        const auto start = Clock::now();
        QTest::keyClick(line, word[static_cast<std::size_t>(letter)]);
        QCoreApplication::processEvents();
        const double span = Milliseconds(Clock::now() - start);
        state.SetIterationTime(span / 1000);
        spans.push_back(span);
        work.push_back(ProcessorMilliseconds() - worked);
        completed += desktop.program.pages[PageId::frmP2].txt[0].SelLength > 0 ? 1 : 0;
    }
    std::sort(spans.begin(), spans.end());
    state.counters["p50_ms"] = spans[spans.size() / 2];
    state.counters["p99_ms"] = spans[spans.size() * 99 / 100];
    std::sort(work.begin(), work.end());
    state.counters["work_p50_ms"] = work[work.size() / 2];
    state.counters["work_p99_ms"] = work[work.size() * 99 / 100];
    if (count > 100 && completed < count / 5) {
        state.SkipWithError("words were not completed");
    }
}
BENCHMARK(KeyWithCompletionToPaintedFrame)->UseManualTime()->Unit(benchmark::kMillisecond);

/// A list of 32,000 terms that was read comes to the screen, to the painted frame.
void LongListToPaintedFrame(benchmark::State& state) {
    Desktop desktop;
    UseLongList(desktop);
    for (auto _ : state) {
        state.PauseTiming();
        modTerms::ReadFrequentlyUsedTerms(desktop.program);
        state.ResumeTiming();
        desktop.window->AfterEvent();
        QCoreApplication::processEvents();
    }
}
BENCHMARK(LongListToPaintedFrame)->Unit(benchmark::kMicrosecond);

/// One step of a label in the hand, from the pointer's move to the painted frame.
void DragStepToPaintedFrame(benchmark::State& state) {
    Desktop desktop;
    auto* label = desktop.window->PageOf(PageId::frmP1).findChild<QWidget*>(QStringLiteral("lbl(9)"));
    QTest::mousePress(label, Qt::LeftButton, Qt::NoModifier, QPoint(4, 4));
    std::vector<double> spans;
    bool right = false;
    constexpr int kStep = 14; // more than the snap
    for (auto _ : state) {
        right = !right;
        const QPointF at(4 + (right ? kStep : -kStep), 4);
        const auto start = Clock::now();
        QMouseEvent move(QEvent::MouseMove, at, label->mapToGlobal(at), Qt::NoButton, Qt::LeftButton,
                         Qt::NoModifier);
        QCoreApplication::sendEvent(label, &move);
        QCoreApplication::processEvents();
        spans.push_back(Milliseconds(Clock::now() - start));
    }
    std::sort(spans.begin(), spans.end());
    state.counters["p50_ms"] = spans[spans.size() / 2];
    state.counters["p99_ms"] = spans[spans.size() * 99 / 100];
}
BENCHMARK(DragStepToPaintedFrame)->Unit(benchmark::kMillisecond);

/// A format with every label of every page, 150 texts and a logo, from its choice in the chooser to the
/// painted frame. The picture has been shown before.
void LayAFormatToPaintedFrame(benchmark::State& state) {
    Desktop desktop;
    Program& program = desktop.program;
    QImage picture(600, 240, QImage::Format_RGB32);
    picture.fill(Qt::darkBlue);
    const std::string logo = desktop.folder / "logo.png";
    picture.save(QString::fromStdString(logo));
    program.settings.LogoVisible = true;
    std::string file;
    std::size_t lines = 0;
    const auto add = [&](const std::string& line) {
        file += line + "\r\n";
        ++lines;
    };
    int texts = 0;
    for (const PageId page : kLinePages) {
        const auto& areas = program.pages[page].txt;
        for (std::size_t index = 0; index < areas.size() && texts < 150; ++index) {
            if (areas[index].Tag != "Amount.020") {
                add(assignment::TextLine(IndexOf(page), static_cast<int>(index), "White folding chairs"));
                ++texts;
            }
        }
    }
    for (const PageId page : kEditedPages) {
        for (int index = 0; index <= geometry::LastLabel(page); ++index) {
            LabelLook look = modDesigner::LookOf(modDesigner::LabelAt(program, page, index));
            look.Left += 180;
            look.FontSize = 9;
            add(assignment::LabelLine(IndexOf(page), index, look));
        }
    }
    add(assignment::PictureLine(logo, 360, 360));
    add(assignment::FontLine({"Times New Roman", 10, 0, false}));
    desktop.folder.Write("Proposals/House.fmt", file);
    const auto lay = [&] {
        program.format.FormatFolder = desktop.folder / "Proposals/";
        program.format.FormatName = "House.fmt";
        program.format.FormatOpen = true;
        static_cast<void>(modReset::StartNewFile(program));
        desktop.window->AfterEvent();
        QCoreApplication::processEvents();
    };
    lay();
    if (!program.pages[PageId::frmP1].pic.Visible || program.pages[PageId::frmP5].lbl[34].FontSize != 9) {
        state.SkipWithError("the format was not laid");
        return;
    }
    std::vector<double> spans;
    for (auto _ : state) {
        state.PauseTiming();
        program.format.FormatOpen = false;
        static_cast<void>(modReset::StartNewFile(program));
        desktop.window->AfterEvent();
        QCoreApplication::processEvents();
        state.ResumeTiming();
        const auto start = Clock::now();
        lay();
        spans.push_back(Milliseconds(Clock::now() - start));
    }
    std::sort(spans.begin(), spans.end());
    state.counters["lines"] = static_cast<double>(lines);
    state.counters["p50_ms"] = spans[spans.size() / 2];
    state.counters["p99_ms"] = spans[spans.size() * 99 / 100];
}
BENCHMARK(LayAFormatToPaintedFrame)->Unit(benchmark::kMillisecond);

/// The list of 2,000 families, from its making to the painted frame.
void TwoThousandFamiliesToPaintedFrame(benchmark::State& state) {
    std::vector<std::string> families;
    constexpr int kFamilies = 2000;
    families.reserve(kFamilies);
    for (int family = 0; family < kFamilies; ++family) {
        families.push_back("Family " + std::to_string(family));
    }
    for (auto _ : state) {
        FontListView list(nullptr, families);
        list.resize(240, 200);
        list.show();
        benchmark::DoNotOptimize(list.grab());
    }
}
BENCHMARK(TwoThousandFamiliesToPaintedFrame)->Unit(benchmark::kMillisecond);

/// A change of the size of all labels of the final page, to the painted frame.
void GroupChangeToPaintedFrame(benchmark::State& state) {
    Desktop desktop;
    modScroll::UpdatePageButtons(desktop.program, 5);
    modDesigner::LoadSelectedLabels(desktop.program);
    desktop.window->AfterEvent();
    QCoreApplication::processEvents();
    float size = 10;
    for (auto _ : state) {
        size = size == 10 ? 12 : 10;
        modDesigner::ApplyToLabels(desktop.program, &GroupChanges::FontSize,
                                   [&](LabelLook& look) { look.FontSize = size; });
        desktop.window->AfterEvent();
        QCoreApplication::processEvents();
    }
}
BENCHMARK(GroupChangeToPaintedFrame)->Unit(benchmark::kMillisecond);

/// The same for a key held down in a description of a full page, and for the blanks among them that push
/// words on through all its rows.
void HeldKeyWithPushesToPaintedFrame(benchmark::State& state) {
    Desktop desktop;
    modScroll::UpdatePageButtons(desktop.program, 1);
    std::string line;
    while (modPages::MeasureTextWidth(desktop.program, PageId::frmP2, line + "abcdefghi ") < 8640) {
        line += "abcdefghi ";
    }
    auto& rows = desktop.program.pages[PageId::frmP2].txt;
    modFields::GiveFocus(desktop.program, {PageId::frmP2, FieldKind::txt, 0});
    const auto fill = [&] {
        for (int row = 0; row <= 32; ++row) {
            rows[static_cast<std::size_t>(row)].Text = line;
        }
        rows[0].SelStart = 3;
        desktop.program.editing.KeyCounter = 0;
        desktop.window->AfterEvent();
        QCoreApplication::processEvents();
    };
    std::vector<double> spans;
    std::vector<double> pushes;
    int count = 0;
    for (auto _ : state) {
        const bool push = ++count % 6 == 0;
        if (count % 6 == 1) {
            fill();
        }
        QWidget* keyboard = QApplication::focusWidget();
        const auto start = Clock::now();
        QTest::keyPress(keyboard, push ? Qt::Key_Space : Qt::Key_M);
        QCoreApplication::processEvents();
        const double span = Milliseconds(Clock::now() - start);
        state.SetIterationTime(span / 1000);
        (push ? pushes : spans).push_back(span);
    }
    for (const auto& [name, all] : {std::pair{"key", &spans}, std::pair{"push", &pushes}}) {
        std::sort(all->begin(), all->end());
        if (!all->empty()) {
            state.counters[std::string(name) + "_p50_ms"] = (*all)[all->size() / 2];
            state.counters[std::string(name) + "_p99_ms"] = (*all)[all->size() * 99 / 100];
        }
    }
}
BENCHMARK(HeldKeyWithPushesToPaintedFrame)->UseManualTime()->Unit(benchmark::kMillisecond);

/// Text in every row of every page, so that no page is cheap.
void FillEveryRow(Program& program) {
    for (const PageId page : kAllPages) {
        for (std::size_t index = 0; index < program.pages[page].txt.size(); ++index) {
            TextArea& area = program.pages[page].txt[index];
            const bool amount = geometry::RightAligned(page, static_cast<int>(index));
            area.Text = amount ? "1,250.00" : "White folding chairs with ivory sashes, delivered and set up";
            if (IsLinePage(page)) {
                program.document.CurrentTextBuf[page][index] = area.Text;
                if (amount && geometry::IsAmount(page, static_cast<int>(index))) {
                    modPages::SetCurrencySign(program, page, static_cast<int>(index), modPages::Mark::Shown);
                }
            }
        }
    }
}

QByteArray PagesToPdf(const Desktop& desktop, std::span<const PageId> ids) {
    std::vector<PaperRecord> records;
    for (const PageId page : ids) {
        PaperSurface surface(desktop.qt.measure);
        modPrint::DrawPage(desktop.program, surface, page);
        records.push_back(std::move(surface.Record));
    }
    std::vector<const PaperRecord*> pages;
    pages.reserve(records.size());
    for (const PaperRecord& record : records) {
        pages.push_back(&record);
    }
    return QtPrinters::MakePdf(pages, QStringLiteral("Proposal"));
}

double Median(std::vector<double>& spans) {
    std::sort(spans.begin(), spans.end());
    return spans[spans.size() / 2];
}

/// A document of one page, whose fonts are embedded with it, and one of seven: what each further page adds.
void SevenPagesToPdf(benchmark::State& state) {
    Desktop desktop;
    FillEveryRow(desktop.program);
    std::vector<double> first;
    std::vector<double> further;
    for (auto _ : state) {
        const auto start = Clock::now();
        benchmark::DoNotOptimize(PagesToPdf(desktop, std::span(kAllPages).first(1)));
        const auto one = Clock::now();
        benchmark::DoNotOptimize(PagesToPdf(desktop, kAllPages));
        const auto seven = Clock::now();
        first.push_back(Milliseconds(one - start));
        further.push_back((Milliseconds(seven - one) - first.back()) / (kPageCount - 1));
        state.SetIterationTime(std::chrono::duration<double>(seven - one).count());
    }
    state.counters["first_ms"] = Median(first);
    state.counters["further_ms"] = Median(further);
}
BENCHMARK(SevenPagesToPdf)->Unit(benchmark::kMillisecond)->UseManualTime();

/// The command as a person gives it, from its choice to the written file.
void PrintAllPagesIntoAFile(benchmark::State& state) {
    Desktop desktop;
    FillEveryRow(desktop.program);
    static_cast<void>(desktop.qt.printers.MakeCurrent("Print to PDF"));
    QString file = QString::fromStdString(desktop.folder / "out.pdf");
    desktop.qt.printers.AskForFile = [file](const QString&) { return file; };
    for (auto _ : state) {
        modPrint::mnuFilePrintAll_Click(desktop.program);
        desktop.window->AfterEvent();
    }
}
BENCHMARK(PrintAllPagesIntoAFile)->Unit(benchmark::kMillisecond);

/// From the choice of the preview, or of its end, to the painted frame.
void PreviewToggle(benchmark::State& state) {
    Desktop desktop;
    FillEveryRow(desktop.program);
    desktop.window->AfterEvent();
    QCoreApplication::processEvents();
    std::vector<double> begin;
    std::vector<double> end;
    for (auto _ : state) {
        for (auto* spans : {&begin, &end}) {
            const auto start = Clock::now();
            modPreview::TogglePreview(desktop.program);
            desktop.window->AfterEvent();
            QCoreApplication::processEvents();
            spans->push_back(Milliseconds(Clock::now() - start));
        }
    }
    state.counters["preview_ms"] = Median(begin);
    state.counters["resume_ms"] = Median(end);
}
BENCHMARK(PreviewToggle)->Unit(benchmark::kMillisecond);

void MemoryOfTheIdleProgram(benchmark::State& state) {
    const Desktop desktop;
    double megabytes = 0;
    for (auto _ : state) {
        QFile status(QStringLiteral("/proc/self/status"));
        status.open(QIODevice::ReadOnly);
        for (const QByteArray& line : status.readAll().split('\n')) {
            if (line.startsWith("VmRSS:")) {
                megabytes = line.mid(6).trimmed().split(' ').first().toDouble() / 1024;
            }
        }
    }
    state.counters["RSS_MiB"] = megabytes;
}
BENCHMARK(MemoryOfTheIdleProgram)->Iterations(1);

} // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));
    // For bench/start_to_window: what any program on Qt pays.
    if (argc > 1 && std::string_view(argv[1]) == "--bare-window") {
        QWidget bare;
        bare.setWindowTitle(QStringLiteral("Bare"));
        bare.resize(1024, 740);
        bare.show();
        return QApplication::exec();
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
