#include "base/text.h"
#include "desktop/convert.h"
#include "desktop/desktop_run.h"
#include "desktop/paper_surface.h"
#include "output/print_page.h"
#include "pages/logo.h"
#include "pages/page_geometry.h"
#include "pages/row_fields.h"

#include <QDateTime>
#include <QFile>
#include <QPainter>
#include <QProcess>
#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace {

constexpr int kDpi = 192; // twice the screen's
constexpr double kTwipsPerInch = 1440;
constexpr double kTwipsPerPoint = 20;
constexpr double kPoint = kDpi / 72.0; // in pixels

enum class Letterhead { Own, Alternate };

/// A proposal in which every kind of field shows: categories, rows with columns, exempt marks, the logo,
/// labels that were moved and set in other type, long titles.
struct FullProposal : DesktopRun {
    explicit FullProposal(Letterhead letterhead) {
        if (letterhead == Letterhead::Alternate) {
            folder.Write("Proposals/SNF Settings.txt", "");
            Press(Qt::Key_N, Qt::ControlModifier); // the letterhead changes with the next proposal
        }
        FillClient();
        FillLines();
        FillTotals();
        Restyle();
        HangLogo();
        window->AfterEvent();
    }

    Page& On(PageId page) { return program.pages[page]; }
    void Put(PageId page, int index, std::string text) {
        TextArea& area = On(page).txt[static_cast<std::size_t>(index)];
        area.Text = text;
        program.document.CurrentTextBuf
            .Each[static_cast<std::size_t>(std::min(IndexOf(page), 5))][static_cast<std::size_t>(index)] =
            std::move(text);
        if (IsLinePage(page) && geometry::IsAmount(page, index)) {
            modPages::SetCurrencySign(program, page, index, modPages::Mark::Shown);
        }
    }
    void PutRow(PageId page, int row, std::string quantity, std::string text, std::string each,
                std::string amount) {
        modPages::EnsureRowFields(program, page);
        modPages::PlaceColumns(program, page, row, modPages::Columns::On);
        On(page).txtQty[static_cast<std::size_t>(row)].Text = std::move(quantity);
        On(page).txtAmt[static_cast<std::size_t>(row)].Text = std::move(each);
        Put(page, row, std::move(text));
        Put(page, geometry::AmountOf(page, row), std::move(amount));
    }
    void PutCategory(PageId page, int row, std::string text) {
        Put(page, row, std::move(text));
        On(page).txt[static_cast<std::size_t>(row)].FontBold = true;
    }

    /// The whole print command into a file, as a person runs it.
    QString Print() {
        const QString pdf = QString::fromStdString(folder / "out.pdf");
        QFile::remove(pdf);
        printers.AskForFile = [pdf](const QString&) { return pdf; };
        window->MenuTree().Action(CommandId::mnuFilePrintAll)->trigger();
        EXPECT_TRUE(QFile::exists(pdf));
        return pdf;
    }

    /// Fields without their grey, so that only what is written shows.
    void WhitenFields() {
        for (const PageId page : kAllPages) {
            for (auto* areas : {&On(page).txt, &On(page).txtQty, &On(page).txtAmt}) {
                for (TextArea& area : *areas) {
                    area.BackColor = 0xFFFFFF;
                }
            }
            for (auto* labels : {&On(page).lblAt, &On(page).lblEach}) {
                for (PageLabel& label : *labels) {
                    label.BackStyle = 0;
                }
            }
        }
        window->Follow();
    }

    /// A page as the screen shows it, at twice the screen's resolution.
    QImage Screen(PageId page) {
        PageView& view = window->PageOf(page);
        if (QWidget* keyboard = QApplication::focusWidget()) {
            keyboard->clearFocus(); // no caret and no frame round a field
        }
        const double fine = kDpi / (window->PixelsPerTwip() * kTwipsPerInch);
        QImage picture(kDpi * 17 / 2, kDpi * 11, QImage::Format_RGB32);
        picture.setDevicePixelRatio(fine);
        picture.fill(Qt::white);
        view.render(&picture);
        return picture;
    }

private:
    void FillClient() {
        const char* lines[] = {"Saturday, January 21, 2008",
                               "6:00 PM",
                               "Jane Q. Roe-Farnsworth",
                               "12 Elm Street, Apt. 4",
                               "Springfield, IL 62701",
                               "(217) 555-0100",
                               "(217) 555-0101",
                               "(217) 555-0102",
                               "Garden Hall & Terrace",
                               "900 Lake Shore Drive, Springfield"};
        for (int index = 0; index < 10; ++index) {
            Put(PageId::frmP1, index, lines[index]);
        }
        PutCategory(PageId::frmP1, 10, "Ceremony");
        Put(PageId::frmP1, 11, "White arch with roses, eucalyptus and 40 yards of hand-dyed silk ribbon");
        Put(PageId::frmP1, 21, "1,250.00");
        Put(PageId::frmP1, 12, "Aisle runner");
        Put(PageId::frmP1, 22, "75.50");
        modPages::SetNoTaxMark(program, PageId::frmP1, 22, modPages::Mark::Shown);
        PutRow(PageId::frmP1, 14, "120", "White folding chairs", "2.75", "330.00");
    }
    void FillLines() {
        PutCategory(PageId::frmP2, 0, "Reception");
        PutRow(PageId::frmP2, 1, "3", "Chair covers with sash", "19.99", "59.97");
        PutRow(PageId::frmP2, 2, "15", "Round tables, 60 inch", "11.00", "165.00");
        modPages::SetNoTaxMark(program, PageId::frmP2, 35, modPages::Mark::Shown);
        PutCategory(PageId::frmP2, 4, "");
        PutCategory(PageId::frmP2, 5, "Linens");
        Put(PageId::frmP2, 6,
            "Floor-length ivory damask for the head table, with overlays, napkins and runners");
        Put(PageId::frmP2, 39, "10,240.00");
        Put(PageId::frmP2, 7, "Delivery, set-up and teardown (two trips) @ no charge - Caf\xE9 \x80");
        Put(PageId::frmP5, 32, "Last line");
        Put(PageId::frmP5, 65, "10.00");
    }
    void FillTotals() {
        const char* figures[] = {"12,130.47", "12,054.97", "994.54", "13,125.01", "500.00", "12,625.01"};
        for (const PageId page : {PageId::frmP6, PageId::frmP6_1}) {
            for (int index = 0; index < 6; ++index) {
                Put(page, index, figures[index]);
            }
        }
    }
    void Restyle() {
        PageLabel& venue = On(PageId::frmP1).lbl[18];
        venue.Caption = "Place of the Ceremony and the Reception";
        venue.Left = 3600;
        venue.Top = 8190;
        venue.FontName = "Arial";
        venue.FontSize = 14.25F;
        venue.FontItalic = false;
        PageLabel& client = On(PageId::frmP1).lbl[11];
        client.ForeColor = 0x800000; // dark blue
        client.FontUnderline = true;
        client.Left = 4321;
        program.document.PageHeading =
            "Acme Events of Greater Springfield and the Lakes - Wedding Proposal - ";
        PageLabel& sentence = On(PageId::frmP6).lbl[14];
        sentence.Caption = "A deposit of half of the total is required to reserve your date.";
        sentence.FontBold = true;
        sentence.ForeColor = 0x000080; // dark red
        sentence.Left = 1080;
        On(PageId::frmP6_1).lbl[14] = sentence;
    }
    void HangLogo() {
        QImage logo(96, 64, QImage::Format_RGB32);
        logo.fill(QColor(0x20, 0x40, 0x60));
        for (int x = 24; x < 72; ++x) {
            for (int y = 16; y < 48; ++y) {
                logo.setPixelColor(x, y, Qt::white);
            }
        }
        const std::string file = folder / "logo.bmp";
        ASSERT_TRUE(logo.save(QString::fromStdString(file)));
        PagePicture& pic = On(PageId::frmP1).pic;
        pic.Picture = {PictureRef::Source::File, file};
        pic.Size = {96 * 15, 64 * 15};
        pic.Left = 9500;
        pic.Top = 905;
        pic.Tag.clear();
        pic.Visible = true;
        program.settings.LogoVisible = true;
        program.run.LogoChecked = true;
        On(PageId::frmP1).HasLogo = true;
    }
};

/// A sheet of the PDF as an independent reader draws it, at the same resolution.
QImage Paper(DesktopRun& run, const QString& pdf, int sheet) {
    const QString stem = QString::fromStdString(run.folder / "sheet");
    const QString number = QString::number(sheet);
    QProcess process;
    process.start(QStringLiteral("pdftoppm"),
                  {QStringLiteral("-r"), QString::number(kDpi), QStringLiteral("-f"), number,
                   QStringLiteral("-l"), number, QStringLiteral("-singlefile"), pdf, stem});
    EXPECT_TRUE(process.waitForFinished(20000));
    EXPECT_EQ(process.exitCode(), 0);
    return QImage(stem + QStringLiteral(".ppm")).convertToFormat(QImage::Format_RGB32);
}

/// How much ink stands in each cell of a grid over a page, from 0 to 1.
struct InkGrid {
    static constexpr int kCell = 16; // 6 points
    int Columns = 0;
    int Rows = 0;
    std::vector<double> Ink;

    explicit InkGrid(const QImage& picture)
        : Columns((picture.width() + kCell - 1) / kCell), Rows((picture.height() + kCell - 1) / kCell),
          Ink(static_cast<std::size_t>(Columns) * static_cast<std::size_t>(Rows)) {
        for (int y = 0; y < picture.height(); ++y) {
            const auto* line = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
            for (int x = 0; x < picture.width(); ++x) {
                const auto cell = static_cast<std::size_t>(y / kCell) * static_cast<std::size_t>(Columns) +
                                  static_cast<std::size_t>(x / kCell);
                Ink[cell] += (255.0 - qGray(line[x])) / 255 / (kCell * kCell);
            }
        }
    }
    [[nodiscard]] double Sum() const { return std::accumulate(Ink.begin(), Ink.end(), 0.0); }
};

/// The share of the ink that does not stand in the same cell in both pictures, and the cell where most is
/// missing.
struct Difference {
    double Share = 0;
    double Worst = 0;
    QPoint Where;
};

Difference Compare(const QImage& onePicture, const QImage& otherPicture) {
    EXPECT_EQ(onePicture.size(), otherPicture.size());
    const InkGrid one(onePicture);
    const InkGrid other(otherPicture);
    Difference difference;
    for (std::size_t cell = 0; cell < std::min(one.Ink.size(), other.Ink.size()); ++cell) {
        const double apart = std::abs(one.Ink[cell] - other.Ink[cell]);
        difference.Share += apart;
        if (apart > difference.Worst) {
            const int number = static_cast<int>(cell);
            difference.Worst = apart;
            difference.Where = QPoint(number % one.Columns, number / one.Columns) * InkGrid::kCell;
        }
    }
    difference.Share /= std::max(one.Sum(), other.Sum());
    return difference;
}

/// Two rasterisers smooth edges differently and move a rule or a picture by up to half a pixel; that is a few
/// hundredths of the ink. A page moved by one point is far beyond this, and so is a cell of a missing word.
constexpr double kShare = 0.08;
constexpr double kWorst = 0.08;

void ExpectSame(const QImage& screen, const QImage& paper, const char* what, PageId page) {
    const Difference difference = Compare(screen, paper);
    EXPECT_LE(difference.Share, kShare) << what << " of page " << IndexOf(page);
    EXPECT_LE(difference.Worst, kWorst) << what << " of page " << IndexOf(page) << " at "
                                        << difference.Where.x() << ", " << difference.Where.y();
    // For a person who wants to look.
    const QString folder = qEnvironmentVariable("QUILLBROOK_PICTURES");
    if (!folder.isEmpty()) {
        const QString stem = QStringLiteral("%1/page%2-").arg(folder).arg(IndexOf(page));
        EXPECT_TRUE(screen.save(stem + QLatin1String(what) + QLatin1String(".png")));
        EXPECT_TRUE(paper.save(stem + QLatin1String(what) + QLatin1String("-paper.png")));
    }
}

QImage Moved(const QImage& picture, QPoint by) {
    QImage moved(picture.size(), QImage::Format_RGB32);
    moved.fill(Qt::white);
    QPainter(&moved).drawImage(by, picture);
    return moved;
}

class PaperAndScreen : public testing::TestWithParam<Letterhead> {};

TEST_P(PaperAndScreen, ThePrintedPageIsThePageOnTheScreen) {
    FullProposal run(GetParam());
    const QString pdf = run.Print();
    for (const PageId page : kAllPages) {
        run.ChoosePage(IndexOf(page));
        run.WhitenFields();
        ExpectSame(run.Screen(page), Paper(run, pdf, IndexOf(page) + 1), "live", page);
    }
}

TEST_P(PaperAndScreen, ThePrintedPageIsThePreview) {
    FullProposal run(GetParam());
    run.program.printing.UnderlineCategories = true;
    const QString pdf = run.Print();
    // The copy cannot be previewed by itself: while it is in front, the page before it is.
    for (const PageId page : kEditedPages) {
        run.ChoosePage(IndexOf(page));
        run.window->MenuTree().Action(CommandId::mnuFilePrintPreview)->trigger();
        const QImage paper = Paper(run, pdf, IndexOf(page) + 1);
        const QImage ink = run.Screen(page);
        ExpectSame(ink, paper, "ink", page);
        EXPECT_GT(Compare(Moved(ink, {qRound(kPoint), 0}), paper).Share, 2 * kShare)
            << "the comparison sees a point to the right";
        EXPECT_GT(Compare(Moved(ink, {0, qRound(kPoint)}), paper).Share, 2 * kShare)
            << "the comparison sees a point down";
        run.window->MenuTree().Action(CommandId::mnuFileResume)->trigger();
    }
}

INSTANTIATE_TEST_SUITE_P(BothLetterheads, PaperAndScreen,
                         testing::Values(Letterhead::Own, Letterhead::Alternate), [](const auto& letterhead) {
                             return letterhead.param == Letterhead::Own ? "Own" : "Alternate";
                         });

/// One text of the model with the place where paper must have it, in points.
struct Expected {
    std::string Text;
    double X = 0; ///< left edge of the first word, or right edge of the last
    double Top = 0;
    bool Right = false;
};

void Add(std::vector<Expected>& all, const std::string& text, float x, float top, bool right) {
    if (!text::Trim(text).empty()) {
        all.push_back({std::string(text::Trim(text)), static_cast<double>(x) / kTwipsPerPoint,
                       static_cast<double>(top) / kTwipsPerPoint, right});
    }
}

/// Every text that the page must have, with Left and Top as the records have them.
std::vector<Expected> TextsOf(const DesktopRun& run, PageId id) {
    const Page& page = run.program.pages[id];
    std::vector<Expected> all;
    for (std::size_t index = 0; index < page.txt.size(); ++index) {
        const TextArea& area = page.txt[index];
        const bool right = geometry::RightAligned(id, static_cast<int>(index));
        Add(all, area.Text, right ? area.Left + area.Width : area.Left, area.Top, right);
    }
    for (const auto* boxes : {&page.txtQty, &page.txtAmt}) {
        for (const TextArea& box : *boxes) {
            if (box.Tag != kHide) {
                Add(all, box.Text, box.Left, box.Top, false);
            }
        }
    }
    for (const auto* labels : {&page.lbl, &page.lblAt, &page.lblEach}) {
        for (const PageLabel& label : *labels) {
            // A caption that begins with blanks begins its words further right.
            if (label.Tag != kHide && !label.Caption.starts_with(' ')) {
                Add(all, label.Caption, label.Left, label.Top, false);
            }
        }
    }
    return all;
}

/// How far the nearest word like it stands from where it must, in points.
double Apart(const Expected& expected, const std::vector<PdfWord>& words) {
    const QStringList parts = convert::ToQString(expected.Text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    const QString wanted = expected.Right ? parts.last() : parts.first();
    double nearest = 1e9;
    for (const PdfWord& word : words) {
        if (word.Text == wanted) {
            const double x = std::abs((expected.Right ? word.XMax : word.XMin) - expected.X);
            const double y = std::abs(word.YMin - expected.Top);
            nearest = std::min(nearest, std::max(x, y));
        }
    }
    return nearest;
}

TEST(PaperPositions, EveryTextStandsWithinATenthOfAPointOfItsLeftAndTop) {
    FullProposal run(Letterhead::Own);
    const QString pdf = run.Print();
    for (const PageId page : kAllPages) {
        const auto words = PdfWords(pdf, IndexOf(page) + 1);
        const auto texts = TextsOf(run, page);
        EXPECT_GT(texts.size(), 3U);
        for (const Expected& expected : texts) {
            EXPECT_LE(Apart(expected, words), 0.1) << expected.Text << " on page " << IndexOf(page)
                                                   << ", to stand at " << expected.X << ", " << expected.Top;
        }
    }
}

/// 360 twips are 18 points, 144 are 7.2; an offset moves the print against its sign.
TEST(PaperPositions, MoveWithThePrintersOffsetsAndTheLogoDoesNot) {
    FullProposal run(Letterhead::Own);
    const QString straight = run.Print();
    const auto before = PdfWords(straight, 1);
    const QImage paperBefore = Paper(run, straight, 1);
    run.program.printing.PrinterOffsetX = 360;
    run.program.printing.PrinterOffsetY = -144;
    const QString moved = run.Print();
    const auto after = PdfWords(moved, 1);
    const QImage paperAfter = Paper(run, moved, 1);
    ASSERT_EQ(before.size(), after.size());
    for (std::size_t index = 0; index < before.size(); ++index) {
        EXPECT_EQ(before[index].Text, after[index].Text);
        EXPECT_NEAR(after[index].XMin, before[index].XMin - 18, 0.05);
        EXPECT_NEAR(after[index].YMin, before[index].YMin + 7.2, 0.05);
    }
    const QRect logo(QPoint(9500, 905) * kDpi / 1440, QSize(1440, 960) * kDpi / 1440);
    EXPECT_LE(Compare(paperBefore.copy(logo), paperAfter.copy(logo)).Share, 0.01);

    run.program.printing.PrinterOffsetX = 0;
    run.program.printing.PrinterOffsetY = 0;
    EXPECT_NEAR(PdfWords(run.Print(), 1).at(0).XMin, before.at(0).XMin, 0.001);
}

TEST(LiveLogo, LiesOverTheLabelsAsOnPaper) {
    FullProposal run(Letterhead::Own);
    PagePicture& pic = run.On(PageId::frmP1).pic;
    pic.Left = 3240; // over the company's name
    pic.Top = 720;
    const QString pdf = run.Print();
    run.WhitenFields();
    const QImage live = run.Screen(PageId::frmP1);
    ExpectSame(live, Paper(run, pdf, 1), "logo", PageId::frmP1);
    // The corner of the name lies under the logo's blue frame.
    const QRect corner(QPoint(3300, 740) * kDpi / 1440, QSize(200, 150) * kDpi / 1440);
    for (int x = corner.left(); x < corner.right(); ++x) {
        EXPECT_EQ(live.pixelColor(x, corner.center().y()), QColor(0x20, 0x40, 0x60));
    }
}

/// A white picture with a dark core, so that a border round it shows; `wide` by `high` points.
std::string CoreInWhite(const ScratchFolder& folder, int wide, int high) {
    QImage picture(wide, high, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter(&picture).fillRect(wide / 4, high / 4, wide / 2, high / 2, QColor(0x20, 0x40, 0x60));
    const std::string file = folder / "core.png";
    EXPECT_TRUE(picture.save(QString::fromStdString(file)));
    return file;
}

/// The same in lines, which have no points of their own.
std::string CoreInLines(const ScratchFolder& folder) {
    folder.Write("core.svg", "<svg xmlns='http://www.w3.org/2000/svg' width='96' height='64'>"
                             "<rect x='24' y='16' width='48' height='32' fill='#204060'/></svg>");
    return folder / "core.svg";
}

enum class Border { Without, With };
struct LogoCase {
    const char* Name;
    std::string (*Make)(const ScratchFolder&);
    Border Edge;
    PictureSize Shown; ///< twips
};

class LogoOnPaper : public testing::TestWithParam<LogoCase> {};

TEST_P(LogoOnPaper, IsTheLogoOnTheScreenAndOfThePreview) {
    FullProposal run(Letterhead::Own);
    PagePicture& pic = run.On(PageId::frmP1).pic;
    const std::string file = GetParam().Make(run.folder);
    run.recording.pictures.Known[file] = QtPictures().Load(file).value_or(PictureSize{});
    ASSERT_TRUE(modLogo::ShowLogo(run.program, file));
    EXPECT_FLOAT_EQ(pic.Size.Width, GetParam().Shown.Width);
    EXPECT_FLOAT_EQ(pic.Size.Height, GetParam().Shown.Height);
    pic.Left = 720;
    pic.Top = 9700; // between the venue's box and the first row
    pic.BorderStyle = GetParam().Edge == Border::With ? 1 : 0;
    run.window->AfterEvent();
    const QImage paper = Paper(run, run.Print(), 1);
    run.WhitenFields();
    const std::string live = std::string(GetParam().Name) + "Live";
    ExpectSame(run.Screen(PageId::frmP1), paper, live.c_str(), PageId::frmP1);
    run.window->MenuTree().Action(CommandId::mnuFilePrintPreview)->trigger();
    ExpectSame(run.Screen(PageId::frmP1), paper, GetParam().Name, PageId::frmP1);
    // Its border lies within the picture's place; nothing else of the page stands along its upper edge.
    const auto pixel = [](float twips) {
        return static_cast<int>(std::lround(static_cast<double>(twips) * kDpi / kTwipsPerInch));
    };
    int dark = 0;
    for (int x = pixel(pic.Left) + 4; x < pixel(pic.Left + pic.Size.Width) - 4; ++x) {
        dark += qGray(paper.pixel(x, pixel(pic.Top))) < 128 || qGray(paper.pixel(x, pixel(pic.Top) + 1)) < 128
                    ? 1
                    : 0;
    }
    const int wide = pixel(pic.Size.Width) - 8;
    EXPECT_EQ(dark > wide * 9 / 10, GetParam().Edge == Border::With) << dark << " of " << wide;
    // The core reaches from a quarter to three quarters of it, in one colour.
    EXPECT_EQ(
        paper.pixelColor(pixel(pic.Left + pic.Size.Width * 0.27F), pixel(pic.Top + pic.Size.Height / 2)),
        QColor(0x20, 0x40, 0x60));
    EXPECT_NE(
        paper.pixelColor(pixel(pic.Left + pic.Size.Width * 0.23F), pixel(pic.Top + pic.Size.Height / 2)),
        QColor(0x20, 0x40, 0x60));
}

INSTANTIATE_TEST_SUITE_P(
    AllKinds, LogoOnPaper,
    testing::Values(LogoCase{"Points",
                             [](const ScratchFolder& f) { return CoreInWhite(f, 96, 64); },
                             Border::Without,
                             {1440, 960}},
                    LogoCase{"PointsWithBorder",
                             [](const ScratchFolder& f) { return CoreInWhite(f, 96, 64); },
                             Border::With,
                             {1440, 960}},
                    LogoCase{"Lines", CoreInLines, Border::Without, {1440, 960}},
                    LogoCase{"LinesWithBorder", CoreInLines, Border::With, {1440, 960}},
                    LogoCase{"ScaledIntoItsBox",
                             [](const ScratchFolder& f) { return CoreInWhite(f, 1440, 1152); },
                             Border::With,
                             {5400, 4320}}),
    [](const auto& logo) { return logo.param.Name; });

TEST(Logo, OnceReadItStaysThoughItsFileGoesAndANewOneIsSeen) {
    const ScratchFolder folder;
    const std::string file = folder / "kept.bmp";
    const QString path = QString::fromStdString(file);
    EXPECT_TRUE(paper::LogoPicture(file).isNull());
    QImage picture(8, 8, QImage::Format_RGB32);
    picture.fill(Qt::darkGreen);
    ASSERT_TRUE(picture.save(path));
    EXPECT_EQ(paper::LogoPicture(file).pixelColor(4, 4), QColor(Qt::darkGreen));
    ASSERT_TRUE(QFile::remove(path));
    EXPECT_EQ(paper::LogoPicture(file).pixelColor(4, 4), QColor(Qt::darkGreen));
    picture.fill(Qt::darkRed);
    ASSERT_TRUE(picture.save(path));
    QFile stamped(path);
    ASSERT_TRUE(stamped.open(QIODevice::ReadWrite));
    ASSERT_TRUE(
        stamped.setFileTime(QDateTime::currentDateTime().addSecs(60), QFileDevice::FileModificationTime));
    stamped.close();
    EXPECT_EQ(paper::LogoPicture(file).pixelColor(4, 4), QColor(Qt::darkRed));
}

} // namespace
