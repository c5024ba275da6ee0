#include "desktop/qt_printers.h"

#include "base/ansi.h"
#include "base/files.h"
#include "base/paths.h"
#include "desktop/convert.h"
#include "desktop/message_box.h"

#include <QApplication>
#include <QBuffer>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPageLayout>
#include <QPdfWriter>
#include <QPrinter>
#include <QPrinterInfo>

#include <cups/cups.h>

#include <algorithm>
#include <optional>

namespace {

constexpr std::string_view kToPdf = "Print to PDF";

QPageLayout Letter() {
    return QPageLayout(QPageSize(QPageSize::Letter), QPageLayout::Portrait, QMarginsF(), QPageLayout::Inch);
}

QString WithEnding(const QString& file) {
    const QLatin1String ending(".pdf");
    return file.isEmpty() || file.endsWith(ending, Qt::CaseInsensitive) ? file : file + ending;
}

/// Asks whether a file may be replaced by the name that is really written. The toolkit asks by the name as it
/// was typed, and takes the point of "St. Mary" for the beginning of an ending.
class PdfDialog : public QFileDialog {
public:
    PdfDialog(QWidget* parent, const QString& folder)
        : QFileDialog(parent, QObject::tr("Print to PDF"), folder, QObject::tr("PDF (*.pdf)")) {
        setAcceptMode(QFileDialog::AcceptSave);
        setOption(QFileDialog::DontConfirmOverwrite);
        // Whoever wants a file on paper does not want the Delete key to take another one, or a whole folder,
        // away.
        setOption(QFileDialog::ReadOnly);
    }

    [[nodiscard]] QString File() const { return selectedFiles().value(0); }

    void accept() override {
        const QFileInfo typed(File());
        const QFileInfo written(WithEnding(File()));
        if (!typed.isDir() && written.exists() && !MayBeReplaced(written.fileName())) {
            return;
        }
        QFileDialog::accept();
    }

private:
    [[nodiscard]] bool MayBeReplaced(const QString& name) {
        const QString question = QObject::tr("%1 already exists.\nDo you want to replace it?").arg(name);
        MessageBox box(QMessageBox::Warning, windowTitle(), question, QMessageBox::Yes | QMessageBox::No,
                       this, MessageBox::Came::OnRequest);
        box.setDefaultButton(QMessageBox::No);
        box.setEscapeButton(QMessageBox::No);
        return box.exec() == QMessageBox::Yes;
    }
};

QString AskPerson(const QString& suggested) {
    PdfDialog dialog(QApplication::activeWindow(), QFileInfo(suggested).path());
    // In the dialog double quotes part several names from each other.
    dialog.selectFile(QFileInfo(suggested).fileName().replace(QLatin1Char('"'), QLatin1Char('\'')));
    return dialog.exec() == QDialog::Accepted ? dialog.File() : QString();
}

[[noreturn]] void FailPrinting(const std::string& printer, const std::string& why) {
    throw files::FileError(files::kDeviceError, "Printer error: " + printer + ". " + why);
}

/// Why the print system did not take the job that was just sent. The toolkit hands it over and does not look
/// at the answer; the system's own library keeps it.
std::optional<std::string> Refusal() {
    if (cupsLastError() < IPP_STATUS_ERROR_BAD_REQUEST) {
        return std::nullopt;
    }
    return ansi::FromUtf8(cupsLastErrorString()).value_or("The document was not taken.");
}

} // namespace

QtPrinters::QtPrinters(const TextMeasure& measure) : current_(kToPdf), device_(measure, *this) {
    AskForFile = AskPerson;
    const QString system = QPrinterInfo::defaultPrinterName();
    if (const auto name = ansi::FromUtf8(system.toStdString()); name && !name->empty()) {
        current_ = *name;
    }
}

std::vector<std::string> QtPrinters::Names() const {
    std::vector<std::string> names;
    for (const QString& printer : QPrinterInfo::availablePrinterNames()) {
        if (auto name = ansi::FromUtf8(printer.toStdString())) {
            names.push_back(std::move(*name));
        }
    }
    names.emplace_back(kToPdf);
    return names;
}

bool QtPrinters::MakeCurrent(std::string_view name) {
    const std::vector<std::string> names = Names();
    if (std::find(names.begin(), names.end(), name) == names.end()) {
        return false;
    }
    current_ = name;
    return true;
}

bool QtPrinters::BeginCommand(const PrintCommand& command) {
    gathered_.clear();
    file_.clear();
    if (current_ != kToPdf) {
        return true;
    }
    if (BeforeAsking) {
        BeforeAsking();
    }
    file_ = WithEnding(AskForFile(QString::fromStdString(ansi::ToUtf8(command.SuggestedFile))));
    return !file_.isEmpty();
}

void QtPrinters::NameDocument(std::string_view name, int readingOrder) {
    documentName_ = name;
    order_ = readingOrder;
}

void QtPrinters::Finish(std::vector<PaperRecord> pages) {
    if (current_ != kToPdf) {
        SendToPrinter(pages);
        return;
    }
    gathered_.push_back({order_, std::move(pages)});
}

void QtPrinters::SendToPrinter(const std::vector<PaperRecord>& pages) const {
    const QPrinterInfo info = QPrinterInfo::printerInfo(QString::fromStdString(ansi::ToUtf8(current_)));
    if (info.isNull()) {
        FailPrinting(current_, "The printer was not found.");
    }
    QPrinter printer(info, QPrinter::HighResolution);
    printer.setDocName(QStringLiteral("Quillbrook ") + convert::ToQString(documentName_));
    // Not in one layout: a printer that cannot print to the edge would keep its own paper.
    printer.setPageSize(QPageSize(QPageSize::Letter));
    printer.setPageOrientation(QPageLayout::Portrait);
    printer.setFullPage(true);
    QPainter painter;
    if (!painter.begin(&printer)) {
        FailPrinting(current_, "The printer takes no document.");
    }
    bool first = true;
    for (const PaperRecord& page : pages) {
        if (!first) {
            printer.newPage();
        }
        first = false;
        painter.save();
        const double scale = static_cast<double>(printer.resolution()) / paper::kTwipsPerInch;
        painter.scale(scale, scale);
        page.Replay(painter);
        painter.restore();
    }
    if (!painter.end() || printer.printerState() == QPrinter::Error) {
        FailPrinting(current_, "The document was not taken.");
    }
    if (const std::optional<std::string> why = Refusal()) {
        FailPrinting(current_, *why);
    }
}

QByteArray QtPrinters::MakePdf(const std::vector<const PaperRecord*>& pages, const QString& title) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setResolution(paper::kTwipsPerInch);
    writer.setPageLayout(Letter());
    writer.setTitle(title);
    writer.setCreator(QStringLiteral("Quillbrook"));
    QPainter painter(&writer);
    bool first = true;
    for (const PaperRecord* page : pages) {
        if (!first) {
            writer.newPage();
        }
        first = false;
        page->Replay(painter);
    }
    painter.end();
    return bytes;
}

void QtPrinters::EndCommand() {
    if (gathered_.empty() || file_.isEmpty()) {
        return;
    }
    std::stable_sort(gathered_.begin(), gathered_.end(),
                     [](const Document& one, const Document& other) { return one.Order < other.Order; });
    std::vector<const PaperRecord*> pages;
    for (const Document& document : gathered_) {
        for (const PaperRecord& page : document.Pages) {
            pages.push_back(&page);
        }
    }
    const QByteArray bytes = MakePdf(pages, QFileInfo(file_).completeBaseName());
    gathered_.clear();
    const auto path = ansi::FromUtf8(file_.toStdString());
    if (!path) {
        throw files::FileError(files::kBadName, "Bad file name or number");
    }
    files::RemoveLeftOvers(paths::Folder(*path)); // it may be any folder, which no start looks into
    // Whole or not at all: half a PDF looks like a proposal and cannot be opened, and an older one stays.
    files::WriteWhole(*path, std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())));
    if (Written) {
        Written(*path);
    }
}

/// The surface works with the printer's own settings as they stand at each call.
void QtPrinters::Paper::Lend() const {
    static_cast<DrawingSurface&>(surface_) = static_cast<const DrawingSurface&>(*this);
}

float QtPrinters::Paper::TextWidth(std::string_view text) const {
    Lend();
    return surface_.TextWidth(text);
}

float QtPrinters::Paper::TextHeight() const {
    Lend();
    return surface_.TextHeight();
}

void QtPrinters::Paper::Print(std::string_view text) {
    Lend();
    surface_.Print(text);
    CurrentX = surface_.CurrentX;
    CurrentY = surface_.CurrentY;
}

void QtPrinters::Paper::Line(float x1, float y1, float x2, float y2) {
    Lend();
    surface_.Line(x1, y1, x2, y2);
}

void QtPrinters::Paper::PaintPicture(const PictureRef& picture, float x, float y,
                                     std::optional<PictureSize> size) {
    Lend();
    surface_.PaintPicture(picture, x, y, size);
}

void QtPrinters::Paper::NewPage() {
    finished_.push_back(std::move(surface_.Record));
    surface_.Record = {};
    CurrentX = 0;
    CurrentY = 0;
}

void QtPrinters::Paper::EndDoc() {
    if (!surface_.Record.Empty()) {
        NewPage();
    }
    if (finished_.empty()) {
        return;
    }
    // A new document begins with the paper's own corner, also after one that could not be sent.
    ScaleLeft = 0;
    ScaleTop = 0;
    std::vector<PaperRecord> pages = std::move(finished_);
    finished_.clear();
    owner_.Finish(std::move(pages));
}
