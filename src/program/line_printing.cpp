#include "program/line_printing.h"

#include "base/guard.h"
#include "base/paths.h"
#include "program/data_folders.h"
#include "program/program.h"
#include "program/text_wrap.h"

#include <cmath>

namespace modLines {

namespace {

class Paper {
public:
    Paper(Printer& printer, const TextMeasure& measure, const Sheet& sheet)
        : printer_(printer), sheet_(sheet), advances_(measure, sheet.Font) {
        printer_.Font = sheet_.Font.Name;
        printer_.FontSize = sheet_.Font.Size;
        printer_.FontBold = sheet_.Font.Bold;
        printer_.FontItalic = sheet_.Font.Italic;
        printer_.FontUnderline = false;
        printer_.ForeColor = colors::kBlack;
        printer_.CurrentY = sheet_.Top;
    }

    void Put(std::string_view line) {
        const float room = printer_.ScaleWidth - sheet_.Left - sheet_.Right;
        if (line.find('\t') != std::string_view::npos) {
            PutColumns(line);
            return;
        }
        for (const modWrap::Piece& piece : modWrap::WrapParagraph(line, advances_, room)) {
            PutAt(sheet_.Left, line.substr(piece.Start, piece.Length));
            printer_.CurrentY += printer_.TextHeight();
        }
    }

private:
    /// Draws on the present line, which stays the present one.
    void PutAt(float x, std::string_view text) {
        if (printer_.CurrentY + printer_.TextHeight() > printer_.ScaleHeight - sheet_.Bottom) {
            printer_.NewPage();
            printer_.CurrentY = sheet_.Top;
        }
        const float y = printer_.CurrentY;
        printer_.CurrentX = x;
        printer_.Print(text);
        printer_.CurrentY = y;
    }

    /// Each tab goes to the next stop, on the next line where none is left on this one; what stands behind
    /// the last is wrapped within its own column.
    void PutColumns(std::string_view line) {
        float x = sheet_.Left;
        std::size_t at = 0;
        for (std::size_t tab = line.find('\t'); tab != std::string_view::npos; tab = line.find('\t', at)) {
            x = PutWords(x, line.substr(at, tab - at));
            x = sheet_.Left + (std::floor((x - sheet_.Left) / sheet_.TabStop) + 1) * sheet_.TabStop;
            if (x + sheet_.TabStop > printer_.ScaleWidth - sheet_.Right) {
                printer_.CurrentY += printer_.TextHeight();
                x = sheet_.Left;
            }
            at = tab + 1;
        }
        const std::string_view rest = line.substr(at);
        for (const modWrap::Piece& piece : modWrap::WrapParagraph(rest, advances_, RoomFrom(x))) {
            PutAt(x, rest.substr(piece.Start, piece.Length));
            printer_.CurrentY += printer_.TextHeight();
        }
    }

    [[nodiscard]] float RoomFrom(float x) const { return printer_.ScaleWidth - sheet_.Right - x; }

    /// Words in front of a tab, over as many lines as they take; the place behind them.
    float PutWords(float x, std::string_view words) {
        if (words.empty()) {
            return x;
        }
        if (x > sheet_.Left && printer_.TextWidth(words) > RoomFrom(x)) {
            printer_.CurrentY += printer_.TextHeight();
            x = sheet_.Left;
        }
        const std::vector<modWrap::Piece> pieces = modWrap::WrapParagraph(words, advances_, RoomFrom(x));
        for (const modWrap::Piece& piece : pieces) {
            if (piece.Start > 0) {
                printer_.CurrentY += printer_.TextHeight();
            }
            PutAt(x, words.substr(piece.Start, piece.Length));
        }
        return x + printer_.TextWidth(words.substr(pieces.back().Start));
    }

    Printer& printer_;
    const Sheet& sheet_;
    modWrap::Advances advances_;
};

} // namespace

Printed PrintLines(Program& program, const Document& document, const std::vector<std::string>& lines,
                   const Sheet& sheet) {
    if (program.printing.CommandRunning) {
        return Printed::Refused;
    }
    Printers& printers = program.platform.printers;
    if (program.run.NoPrinter || printers.Current().empty()) {
        return Printed::NoPrinter;
    }
    const ScopedFlag running(program.printing.CommandRunning);
    const std::string& path = program.document.FilePath;
    const std::string folder = path.empty() ? modFolders::DataFolder(program) : path;
    const std::string whose = document.Whose.empty() ? "" : std::string(document.Whose) + ", ";
    if (!printers.BeginCommand({paths::Join(folder, whose + std::string(document.Name) + ".pdf")})) {
        return Printed::Refused;
    }
    printers.NameDocument(document.Name, 0);
    Printer& printer = printers.Device();
    Paper paper(printer, program.platform.measure, sheet);
    for (const std::string& line : lines) {
        paper.Put(line);
    }
    printer.EndDoc();
    printers.EndCommand();
    return Printed::Done;
}

} // namespace modLines
