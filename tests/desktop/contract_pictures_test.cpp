#include "contract/frm_editor.h"
#include "desktop/contract_edit.h"
#include "desktop/window_run.h"
#include "output/print.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFontDatabase>
#include <QImage>
#include <QPainter>
#include <QProcess>
#include <QTextBlock>
#include <QTextLayout>

#include <algorithm>
#include <cmath>
#include <numeric>

/// The editor on screen and the final page on paper, line by line as pictures.

namespace {

constexpr double kScreenDpi = 96;
constexpr double kTwipsPerInch = 1440;
/// Places of the lines on the sheet: below the totals, above the signatures, and none touches another.
constexpr float kFirstTop = 3000, kApart = 430;

/// How much ink stands in each column of a strip, from a place on.
using Profile = std::vector<double>;

Profile ProfileOf(const QImage& picture, double left, double top, double bottom) {
    const int first = static_cast<int>(std::lround(left));
    Profile columns(static_cast<std::size_t>(std::max(0, picture.width() - first)));
    const int end = std::min<int>(picture.height(), static_cast<int>(bottom));
    for (int y = std::max(0, static_cast<int>(top)); y < end; ++y) {
        const auto* pixels = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        for (std::size_t x = 0; x < columns.size(); ++x) {
            columns[x] += (255.0 - qGray(pixels[static_cast<std::size_t>(first) + x])) / 255;
        }
    }
    return columns;
}

double Sum(const Profile& profile) {
    return std::accumulate(profile.begin(), profile.end(), 0.0);
}

/// The column behind the last with ink.
int EndOf(const Profile& profile) {
    const auto last = std::find_if(profile.rbegin(), profile.rend(), [](double ink) { return ink > 0.3; });
    return static_cast<int>(profile.rend() - last);
}

/// The share of the ink that stands elsewhere, in steps of so many pixels.
double Apart(const Profile& one, const Profile& other, int step) {
    double apart = 0;
    const std::size_t most = std::max(one.size(), other.size());
    for (std::size_t from = 0; from < most; from += static_cast<std::size_t>(step)) {
        double difference = 0;
        for (std::size_t x = from; x < from + static_cast<std::size_t>(step); ++x) {
            difference += (x < one.size() ? one[x] : 0) - (x < other.size() ? other[x] : 0);
        }
        apart += std::abs(difference);
    }
    return apart / std::max({1.0, Sum(one), Sum(other)});
}

/// Families that can write a contract.
std::vector<std::string> LatinFonts() {
    std::vector<std::string> fonts;
    for (const QString& family : QFontDatabase::families(QFontDatabase::Latin)) {
        // One maker's cut of a family is enough.
        if (QFontDatabase::isSmoothlyScalable(family) && !family.contains(u'[')) {
            fonts.push_back(family.toLatin1().toStdString());
        }
    }
    return fonts;
}

struct PictureRun : WindowRun {
    frmEditor& OpenEditor() {
        frmEditor& editor = Open<frmEditor>(CommandId::mnuManageEditor, "frmEditor");
        text = Part<ContractEdit>("txtCharCount");
        return editor;
    }
    void Fill(const QString& words) {
        Press(Qt::Key_A, Qt::ControlModifier);
        clipboard.SetText(words.toLatin1().toStdString());
        Press(Qt::Key_V, Qt::ControlModifier);
    }
    /// One profile for each line that the editor shows, each drawn by itself at a scaling.
    [[nodiscard]] std::vector<Profile> ScreenLines(double scaling) const {
        std::vector<Profile> lines;
        const QAbstractTextDocumentLayout& layout = *text->document()->documentLayout();
        for (QTextBlock block = text->document()->begin(); block.isValid(); block = block.next()) {
            const QRectF place = layout.blockBoundingRect(block);
            const double height = place.height() / block.lineCount();
            const QSizeF size(layout.documentSize().width(), 3 * height);
            for (int line = 0; line < block.layout()->lineCount(); ++line) {
                QImage picture((size * scaling).toSize(), QImage::Format_RGB32);
                picture.setDevicePixelRatio(scaling);
                picture.fill(Qt::white);
                QPainter painter(&picture);
                painter.setPen(Qt::black);
                const QTextLine shown = block.layout()->lineAt(line);
                shown.draw(&painter, QPointF(place.left(), height - shown.y()));
                painter.end();
                lines.push_back(ProfileOf(picture, place.left() * scaling, 0, picture.height()));
            }
        }
        return lines;
    }
    /// Each line of the contract with room around it.
    void SpreadLines() {
        Page& page = program.pages[PageId::frmP6];
        for (std::size_t line = 0; line < 21; ++line) {
            page.lbl[13 + line].Top = kFirstTop + kApart * static_cast<float>(line);
        }
    }
    [[nodiscard]] QString Print() {
        const QString pdf = QString::fromStdString(folder / "contract.pdf");
        QFile::remove(pdf);
        printers.AskForFile = [pdf](const QString&) { return pdf; };
        modPrint::mnuFilePrintPage_Click(program, PageId::frmP6);
        return pdf;
    }
    [[nodiscard]] std::vector<Profile> PaperLines(const QString& pdf, double dpi, std::size_t count) {
        const QString stem = QString::fromStdString(folder / "sheet");
        QProcess process;
        process.start(QStringLiteral("pdftoppm"),
                      {QStringLiteral("-r"), QString::number(dpi), QStringLiteral("-f"), QStringLiteral("1"),
                       QStringLiteral("-l"), QStringLiteral("1"), QStringLiteral("-singlefile"), pdf, stem});
        EXPECT_TRUE(process.waitForFinished(60000));
        const QImage sheet = QImage(stem + QStringLiteral(".ppm")).convertToFormat(QImage::Format_RGB32);
        // For a person who wants to look.
        const QString pictures = qEnvironmentVariable("QUILLBROOK_PICTURES");
        EXPECT_TRUE(pictures.isEmpty() || sheet.save(pictures + QStringLiteral("/contract-paper.png")));
        std::vector<Profile> lines;
        for (std::size_t line = 0; line < count; ++line) {
            const PageLabel& label = program.pages[PageId::frmP6].lbl[13 + line];
            const double pixels = dpi / kTwipsPerInch;
            const double top = static_cast<double>(label.Top) - 40;
            lines.push_back(ProfileOf(sheet, static_cast<double>(label.Left) * pixels, top * pixels,
                                      (top + static_cast<double>(kApart)) * pixels));
        }
        return lines;
    }
    ContractEdit* text = nullptr;
};

const QString kTerms = QStringLiteral(
    "The client agrees to pay the balance in full no later than ten (10) days before the event; WAVE, To, "
    "AVATAR. "
    "Deposits are not refundable (see below) unless the hall cannot be used: \"force majeure\" - fire, flood "
    "- excepted, "
    "and iillii lines are as narrow as they are.   Three blanks stand in front of this one, MMWW are as wide "
    "as they are.\n"
    "Breakage is charged at cost plus 12.5% (see the list of 31 January 2008, lines 1 to 47).\n\n"
    "Signed copies are kept by both parties; fees of $1,250.00 & more are due @ signing, caf\u00e9 and "
    "d\u00e9cor included.");

class ContractPictures : public testing::TestWithParam<double> {};

TEST_P(ContractPictures, ALineOnScreenIsTheLineOnPaperInEveryFontAndSize) {
    const double scaling = GetParam();
    PictureRun run;
    run.program.run.FontList = LatinFonts();
    ASSERT_GE(run.program.run.FontList.size(), 2U);
    const int fonts = static_cast<int>(run.program.run.FontList.size());
    int compared = 0;
    // Fonts and sizes go round: every font is met at more than one scaling, every size in several fonts.
    const int turn = static_cast<int>(scaling * 4);
    for (int font = turn % 3; font < fonts; font += 3) {
        frmEditor& editor = run.OpenEditor();
        run.Fill(kTerms);
        emit run.Part<QComboBox>("cmbFont")->activated(font);
        emit run.Part<QComboBox>("cmbFontSize")->activated((font / 3 + turn) % 6);
        if ((font % 2 == 1) != editor.chkItalic.Value) {
            run.Part<QCheckBox>("chkItalic")->click();
        }
        QApplication::processEvents();
        const TextFont face = editor.txtCharCount.Font();
        if (run.measure.Height(face) > kApart) {
            run.Choose("mnuFileExportAndExit"); // some letters are too tall for the places on the sheet
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            continue;
        }
        const std::vector<Profile> screen = run.ScreenLines(scaling);
        ASSERT_LE(screen.size(), 21U); // above the signatures
        run.Choose("mnuFileExportAndExit");
        ASSERT_FALSE(run.Stands("frmEditor"));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        run.SpreadLines();
        const std::vector<Profile> paper = run.PaperLines(run.Print(), kScreenDpi * scaling, screen.size());
        const double points = kScreenDpi * scaling / 72;
        for (std::size_t line = 0; line < screen.size(); ++line) {
            const std::string where =
                face.Name + " " + std::to_string(face.Size) + " line " + std::to_string(line + 1);
            EXPECT_NEAR(EndOf(screen[line]), EndOf(paper[line]), 1.5 * scaling + 1) << where;
            EXPECT_LE(Apart(screen[line], paper[line], static_cast<int>(6 * points)), 0.15) << where;
            compared += Sum(screen[line]) > 0 ? 1 : 0;
        }
        // The comparison sees when two lines were changed for each other.
        EXPECT_GT(Apart(screen[0], paper[1], static_cast<int>(6 * points)), 0.24);
    }
    EXPECT_GE(compared, fonts);
}

INSTANTIATE_TEST_SUITE_P(AtEveryScaling, ContractPictures, testing::Values(1.0, 1.25, 1.5, 2.0, 3.0),
                         [](const auto& scaling) {
                             return "Percent" + std::to_string(static_cast<int>(scaling.param * 100));
                         });

} // namespace
