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
constexpr float kFirstTop = 300,
                kApart = 430; ///< places of the lines on the sheet, so that none touches another

/// How much ink stands in each column of a strip, from a place on.
using Profile = std::vector<double>;

Profile ProfileOf(const QImage& picture, double left, double top, double bottom) {
    Profile columns;
    const int first = static_cast<int>(std::lround(left));
    for (int x = first; x < picture.width(); ++x) {
        double ink = 0;
        for (int y = std::max(0, static_cast<int>(top));
             y < std::min<int>(picture.height(), static_cast<int>(bottom)); ++y) {
            ink += (255.0 - qGray(picture.pixel(x, y))) / 255;
        }
        columns.push_back(ink);
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
        if (QFontDatabase::isSmoothlyScalable(family) && !QFontDatabase::isPrivateFamily(family)) {
            fonts.push_back(family.toLatin1().toStdString());
        }
    }
    return fonts;
}

struct PictureRun : WindowRun {
    frmEditor& OpenEditor() {
        frmEditor& editor = Open<frmEditor>(CommandId::mnuManageEditor, "frmEditor");
        text = Part<ContractEdit>("txtCharCount");
        view->resize(1500, 1500);
        QApplication::processEvents();
        return editor;
    }
    void Fill(const QString& words) {
        Press(Qt::Key_A, Qt::ControlModifier);
        clipboard.SetText(words.toLatin1().toStdString());
        Press(Qt::Key_V, Qt::ControlModifier);
    }
    /// The text's part of the window as the person sees it at a scaling.
    [[nodiscard]] QImage Screen(double scaling) const {
        text->clearFocus(); // no caret
        const QSize size = text->viewport()->size();
        QImage picture(size * scaling, QImage::Format_RGB32);
        picture.setDevicePixelRatio(scaling);
        picture.fill(Qt::white);
        text->viewport()->render(&picture);
        return picture;
    }
    /// One profile for each line that the editor shows.
    [[nodiscard]] std::vector<Profile> ScreenLines(double scaling) const {
        const QImage picture = Screen(scaling);
        std::vector<Profile> lines;
        const QAbstractTextDocumentLayout& layout = *text->document()->documentLayout();
        for (QTextBlock block = text->document()->begin(); block.isValid(); block = block.next()) {
            const QPointF corner = layout.blockBoundingRect(block).topLeft();
            const double height = layout.blockBoundingRect(block).height() / block.lineCount();
            for (int line = 0; line < block.layout()->lineCount(); ++line) {
                const double top = corner.y() + line * height;
                EXPECT_LE((top + height) * scaling, picture.height());
                lines.push_back(
                    ProfileOf(picture, corner.x() * scaling, top * scaling, (top + height) * scaling));
            }
        }
        return lines;
    }
    /// The contract alone on its sheet, each of its lines with room around it.
    void ClearSheet() {
        Page& page = program.pages[PageId::frmP6];
        for (std::size_t index = 0; index < page.lbl.size(); ++index) {
            PageLabel& label = page.lbl[index];
            if (index >= 13 && index <= 47) {
                label.Top = kFirstTop + kApart * static_cast<float>(index - 13);
            } else {
                label.Visible = false;
            }
        }
        for (TextArea& area : page.txt) {
            area.Visible = false;
        }
        for (auto& line : page.lne) {
            line.Visible = false;
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
    for (int font = 0; font < fonts; ++font) {
        frmEditor& editor = run.OpenEditor();
        run.Fill(kTerms);
        // Sizes go round, so that every font is met in some and every size in many.
        emit run.Part<QComboBox>("cmbFont")->activated(font);
        emit run.Part<QComboBox>("cmbFontSize")->activated((font + static_cast<int>(scaling * 4)) % 6);
        if ((font % 2 == 1) != editor.chkItalic.Value) {
            run.Part<QCheckBox>("chkItalic")->click();
        }
        QApplication::processEvents();
        const TextFont face = editor.txtCharCount.Font();
        const std::vector<Profile> screen = run.ScreenLines(scaling);
        ASSERT_LE(screen.size(), 34U);
        run.Choose("mnuFileExportAndExit");
        ASSERT_FALSE(run.Stands("frmEditor"));
        run.ClearSheet();
        const std::vector<Profile> paper = run.PaperLines(run.Print(), kScreenDpi * scaling, screen.size());
        const double points = kScreenDpi * scaling / 72;
        for (std::size_t line = 0; line < screen.size(); ++line) {
            const std::string where =
                face.Name + " " + std::to_string(face.Size) + " line " + std::to_string(line + 1);
            // A pixel and a half of the last letter's edge, whatever the resolution.
            EXPECT_NEAR(EndOf(screen[line]), EndOf(paper[line]), 1.5 + points) << where;
            EXPECT_LE(Apart(screen[line], paper[line], static_cast<int>(12 * points)), 0.12) << where;
            compared += Sum(screen[line]) > 0 ? 1 : 0;
        }
        // The comparison sees when two lines were changed for each other.
        EXPECT_GT(Apart(screen[0], paper[1], static_cast<int>(12 * points)), 0.24);
    }
    EXPECT_GE(compared, 4 * fonts);
}

INSTANTIATE_TEST_SUITE_P(AtEveryScaling, ContractPictures, testing::Values(1.0, 1.25, 1.5, 2.0, 3.0),
                         [](const auto& scaling) {
                             return "Percent" + std::to_string(static_cast<int>(scaling.param * 100));
                         });

} // namespace
