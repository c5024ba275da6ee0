#include "output/text_print.h"

#include "base/guard.h"
#include "base/paths.h"
#include "program/data_folders.h"
#include "program/errors.h"
#include "program/program.h"

#include <algorithm>
#include <string>

namespace modPrint {

namespace {

constexpr float kMargin = 720, kPaperWidth = 12240, kPaperHeight = 15840;

/// How much of a line fits: up to the last blank run that does, else as many characters as do.
std::size_t Fitting(const Printer& printer, std::string_view line) {
    const float room = kPaperWidth - 2 * kMargin;
    float width = 0;
    std::size_t brk = 0;
    for (std::size_t at = 0; at < line.size(); ++at) {
        width += printer.TextWidth(line.substr(at, 1));
        if (line[at] == ' ') {
            brk = at + 1;
        } else if (width > room) {
            return brk > 0 ? brk : std::max<std::size_t>(at, 1);
        }
    }
    return line.size();
}

class Sheets {
public:
    explicit Sheets(Printer& printer) : printer_(printer), height_(printer.TextHeight()) {}

    void Line(std::string_view line) {
        if (y_ + height_ > kPaperHeight - kMargin) {
            printer_.NewPage();
            y_ = kMargin;
        }
        printer_.CurrentX = kMargin;
        printer_.CurrentY = y_;
        printer_.Print(line);
        y_ += height_;
    }

private:
    Printer& printer_;
    float height_;
    float y_ = kMargin;
};

void Draw(Printer& printer, std::string_view text) {
    printer.Font = "Times New Roman";
    printer.FontSize = 10;
    printer.FontBold = false;
    printer.FontItalic = false;
    printer.FontUnderline = false;
    printer.ForeColor = colors::kBlack;
    Sheets sheets(printer);
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        std::string_view line = text.substr(0, end);
        do {
            const std::size_t part = Fitting(printer, line);
            sheets.Line(line.substr(0, part));
            line.remove_prefix(part);
        } while (!line.empty());
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    }
    printer.EndDoc();
}

} // namespace

void PrintText(Program& program, std::string_view name, std::string_view text) {
    if (program.run.NoPrinter) {
        program.platform.questions.MsgBox("Printer Error 482. Printer not found.", Buttons::Ok, "");
        return;
    }
    if (program.printing.CommandRunning) {
        return;
    }
    const ScopedFlag running(program.printing.CommandRunning);
    Guarded(program, "PrintTextFile", [&] {
        Printers& printers = program.platform.printers;
        if (!printers.BeginCommand(
                {paths::Join(modFolders::DataFolder(program), std::string(name) + ".pdf")})) {
            return;
        }
        printers.NameDocument(name, 0);
        Draw(printers.Device(), text);
        printers.EndCommand();
    });
}

} // namespace modPrint
