#include "desktop/desktop_run.h"
#include "desktop/elided_label.h"
#include "desktop/mnemonics.h"
#include "desktop/window_run.h"
#include "program/windows.h"
#include "shell/command_run.h"
#include "support/running_program.h"
#include "terms/frm_fut.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDialog>
#include <QImage>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QScreen>
#include <QStyle>
#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <memory>
#include <string>
#include <utility>

namespace {

/// A desktop with light letters on dark ground, for as long as it stands.
class DarkDesktop {
public:
    DarkDesktop() {
        const QColor ground(0x2B, 0x2B, 0x2E);
        const QColor field(0x1E, 0x1E, 0x20);
        const QColor letters(0xEE, 0xEE, 0xEE);
        QPalette dark(ground, ground); // buttons and windows; the rest is worked out from them
        dark.setColor(QPalette::WindowText, letters);
        dark.setColor(QPalette::ButtonText, letters);
        dark.setColor(QPalette::Base, field);
        dark.setColor(QPalette::Text, letters);
        dark.setColor(QPalette::Highlight, QColor(0x3D, 0x8E, 0xD0));
        dark.setColor(QPalette::HighlightedText, Qt::white);
        for (const QPalette::ColorRole role : {QPalette::Text, QPalette::ButtonText, QPalette::WindowText}) {
            dark.setColor(QPalette::Disabled, role, QColor(0x88, 0x88, 0x88));
        }
        QApplication::setPalette(dark);
    }
    ~DarkDesktop() { QApplication::setPalette(QApplication::style()->standardPalette()); }
    DarkDesktop(const DarkDesktop&) = delete;
    DarkDesktop& operator=(const DarkDesktop&) = delete;
};

/// The window as it looks; kept as a file when somebody wants to see it.
QImage Look(QWidget& widget, const char* name) {
    const QImage image = widget.grab().toImage();
    const QString folder = qEnvironmentVariable("QUILLBROOK_LOOKS");
    if (!folder.isEmpty()) {
        image.save(folder + QLatin1Char('/') + QLatin1String(name) + QStringLiteral(".png"));
    }
    return image;
}

QColor At(const QImage& image, const QPoint& point) {
    return image.pixelColor(
        QPoint(qRound(point.x() * image.devicePixelRatio()), qRound(point.y() * image.devicePixelRatio())));
}

double Luminance(const QColor& color) {
    const auto part = [](float value) {
        const double share = static_cast<double>(value);
        return share <= 0.03928 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(color.redF()) + 0.7152 * part(color.greenF()) + 0.0722 * part(color.blueF());
}

/// From 1 (no difference) to 21 (black on white); 4.5 is what letters need.
double Contrast(const QColor& one, const QColor& other) {
    const double first = Luminance(one);
    const double second = Luminance(other);
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

/// The strongest contrast that a widget's picture holds to the colour that fills most of it: its letters'.
double InkContrast(QWidget& widget) {
    const QImage image = widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
    std::map<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            ++counts[image.pixel(x, y)];
        }
    }
    const auto most = std::max_element(counts.begin(), counts.end(), [](const auto& one, const auto& other) {
        return one.second < other.second;
    });
    double strongest = 1;
    for (const auto& [color, count] : counts) {
        strongest = std::max(strongest, Contrast(QColor(color), QColor(most->first)));
    }
    return strongest;
}

/// Words on labels and buttons.
void ExpectReadable(const QWidget& view, const std::string& name) {
    for (QLabel* label : view.findChildren<QLabel*>()) {
        if (label->isVisible() && !label->text().isEmpty()) {
            EXPECT_GE(InkContrast(*label), 4.5) << name << ' ' << label->objectName().toStdString();
        }
    }
    for (QAbstractButton* button : view.findChildren<QAbstractButton*>()) {
        // One without words is a colour to choose.
        if (button->isVisible() && button->isEnabled() && !button->text().isEmpty()) {
            EXPECT_GE(InkContrast(*button), 4.5) << name << ' ' << button->objectName().toStdString();
        }
    }
}

TEST(DarkTheme, PaperStaysPaper) {
    const DarkDesktop dark;
    DesktopRun run;
    const QImage image = Look(*run.window, "dark_main");
    PageView& page = run.window->PageOf(PageId::frmP1);
    const auto place = [&](const QWidget& widget, QPoint inside) {
        return widget.mapTo(run.window.get(), inside);
    };
    EXPECT_EQ(At(image, place(page, {20, 20})), QColor(Qt::white));
    const TextAreaView& resting = run.Field({PageId::frmP1, FieldKind::txt, 3});
    EXPECT_EQ(At(image, place(resting, {resting.width() / 2, resting.height() / 2})),
              QColor(0xC0, 0xC0, 0xC0));
    const TextAreaView& focused = run.Field({PageId::frmP1, FieldKind::txt, 0});
    EXPECT_EQ(At(image, place(focused, {focused.width() / 2, focused.height() / 2})), QColor(0, 0xFF, 0xFF));
    auto* label = page.findChild<QLabel*>(QStringLiteral("lbl(9)"));
    EXPECT_GT(InkContrast(*label), 10);
}

TEST(DarkTheme, StripsAndButtonsCanBeRead) {
    const DarkDesktop dark;
    DesktopRun run;
    run.folder.Write("Proposals/Jane Roe.hef", ReadTestData("jane_roe/Jane Roe.hef"));
    for (const char* name : {"lblDir", "lblEvent", "lblTotal", "lblHighestPage", "lblTextNum", "lblPage",
                             "imgOpen", "imgSearch", "imgPage(1)", "cmdPreview", "cmdReCalc"}) {
        EXPECT_GE(InkContrast(*run.Child(name)), 4.5) << name;
    }
    EXPECT_LT(Luminance(At(Look(*run.Child("picTop"), "dark_strip"), {2, 2})), 0.1);
}

TEST(DarkTheme, ARedRecalculateButtonCanBeRead) {
    for (const bool darkly : {false, true}) {
        const std::unique_ptr<DarkDesktop> dark = darkly ? std::make_unique<DarkDesktop>() : nullptr;
        DesktopRun run;
        run.program.totals.TotalsStale = true;
        run.window->AfterEvent();
        QWidget& button = *run.Child("cmdReCalc");
        const QImage image = Look(button, darkly ? "dark_red" : "light_red");
        const QColor face = At(image, {button.width() / 2, button.height() - 5}); // below the letters
        EXPECT_GT(face.red(), face.blue() + 60);
        EXPECT_GT(face.red(), face.green() + 60);
        EXPECT_GE(Contrast(face, button.palette().color(QPalette::ButtonText)), 4.5);
    }
}

TEST(DarkTheme, SmallWindowsCanBeRead) {
    const DarkDesktop dark;
    for (const CommandId id :
         {CommandId::mnuFileOpenEvent, CommandId::mnuOptPrinter, CommandId::mnuOptACStart,
          CommandId::mnuOptSalesTax, CommandId::mnuOptUserPref, CommandId::mnuToolsPrinterOffsets,
          CommandId::mnuToolsSnap, CommandId::mnuEditAllTextFonts, CommandId::mnuEditTitles,
          CommandId::mnuEditLabelSelectAll}) {
        DesktopRun run;
        commands::Run(run.program, id);
        run.window->AfterEvent();
        ASSERT_FALSE(run.program.windows.Open.empty());
        const std::string name(run.program.windows.Open.back()->Name());
        auto* view = run.window->findChild<QDialog*>(QString::fromStdString(name));
        EXPECT_TRUE(QTest::qWaitFor([view] { return QApplication::activeWindow() == view; }));
        Look(*view, ("dark_" + name).c_str());
        ExpectReadable(*view, name);
        QTest::keyClick(view, Qt::Key_Escape);
    }
}

TEST(DarkTheme, WindowsBesideTheProposalCanBeRead) {
    const DarkDesktop dark;
    for (const CommandId id : {CommandId::mnuFileOpenFootnotes, CommandId::mnuManageDeposits,
                               CommandId::mnuManageEditor, CommandId::mnuViewEventDates}) {
        DesktopRun run;
        run.folder.Write("Proposals/Jane Roe.hef", ReadTestData("jane_roe/Jane Roe.hef"));
        commands::Run(run.program, id);
        run.window->AfterEvent();
        ASSERT_FALSE(run.program.windows.Open.empty());
        const std::string name(run.program.windows.Open.back()->Name());
        auto* view = run.window->findChild<QDialog*>(QString::fromStdString(name));
        ASSERT_NE(view, nullptr) << name;
        EXPECT_TRUE(QTest::qWaitFor([view] { return QApplication::activeWindow() == view; }));
        if (auto* lines = view->findChild<QPushButton*>(QStringLiteral("cmdLines"))) {
            lines->click(); // 35 lines: the text stands on red
            Look(*view, "dark_frmEditor_lines");
            EXPECT_GE(InkContrast(*view->findChild<QWidget*>(QStringLiteral("txtCharCount"))), 4.5);
            lines->click();
        }
        Look(*view, ("dark_" + name).c_str());
        ExpectReadable(*view, name);
        for (const char* text : {"txtCharCount", "lstDates", "month"}) {
            if (auto* area = view->findChild<QWidget*>(QLatin1String(text))) {
                EXPECT_GE(InkContrast(*area), 4.5) << text;
            }
        }
        QTest::keyClick(view, Qt::Key_Escape);
    }
}

TEST(DarkTheme, AidsBesideThePageCanBeRead) {
    const DarkDesktop dark;
    DesktopRun run;
    run.folder.Write("Proposals/Default Terms.fut", "Chair Covers[3.50]\r\nTable");
    modTerms::ListInUseChanged(run.program);
    run.window->AfterEvent();
    const auto look = [&](const char* name) {
        auto* view = run.Find<QWidget>(name);
        ASSERT_NE(view, nullptr) << name;
        EXPECT_TRUE(QTest::qWaitFor([view] { return view->isVisible(); })) << name;
        Look(*view, (std::string("dark_") + name).c_str());
        ExpectReadable(*view, name);
    };
    const auto opens = [&](CommandId id, const char* name) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        commands::Run(run.program, id);
        run.window->AfterEvent();
        look(name);
    };
    opens(CommandId::mnuOptFUT, "frmFUT");
    auto* terms = run.Find<QListView>("lstFUT");
    terms->setCurrentIndex(terms->model()->index(0, 0));
    EXPECT_GE(InkContrast(*terms), 4.5);
    for (const auto& [button, name] : {std::pair{"cmdOpt(1)", "frmAddFUT"}, {"cmdOpt(2)", "frmEditFUT"}}) {
        run.Find<QPushButton>(button)->click();
        look(name);
        QTest::keyClick(run.Find<QWidget>(name), Qt::Key_Escape);
    }
    opens(CommandId::mnuOptCalc, "frmCalc");
    auto* equation = run.Find<QLineEdit>("txtE");
    QTest::keyClicks(equation, QStringLiteral("25="));
    look("frmCalc");
    EXPECT_GE(InkContrast(*run.Find<QWidget>("lblE")), 4.5) << "a refused line is red";
    run.ChoosePage(1);
    run.Click(PageId::frmP2, 0);
    run.Type(QStringLiteral("Arch one"));
    run.Click(PageId::frmP2, 1);
    run.Type(QStringLiteral("Arch two"));
    opens(CommandId::mnuEditFind, "frmSearch");
    run.Find<QComboBox>("cmbSearch")->setCurrentText(QStringLiteral("arch"));
    run.Find<QDialog>("frmSearch")->findChild<QPushButton*>(QStringLiteral("cmdOK"))->click();
    run.window->AfterEvent();
    look("frmSR");
    QTest::keyClick(run.Find<QWidget>("frmSR"), Qt::Key_Escape);
    opens(CommandId::mnuEditAllTextFonts, "frmTextProps");
    run.Find<QDialog>("frmTextProps")->findChild<QPushButton*>(QStringLiteral("cmdColors"))->click();
    look("frmRGB");
    QTest::keyClick(run.Find<QWidget>("frmRGB"), Qt::Key_Escape);
    QTest::keyClick(run.Find<QWidget>("frmTextProps"), Qt::Key_Escape);
    opens(CommandId::mnuEditCompInfo, "frmAddress");
    const auto* company = run.Find<QWidget>("frmAddress");
    const QRect save = company->findChild<QWidget*>(QStringLiteral("cmdSave"))->geometry();
    const QRect email = company->findChild<QWidget*>(QStringLiteral("txt(9)"))->geometry();
    EXPECT_LT(save.top() - email.bottom(), 40) << "no gap where the address book has more fields";
    QTest::keyClick(run.Find<QWidget>("frmAddress"), Qt::Key_Escape);
}

/// Nothing is cut off: every label and button has the room that its words need.
void ExpectWordsWhole(const QWidget& view, const std::string& name) {
    for (const QWidget* part : view.findChildren<QWidget*>()) {
        const auto* label = qobject_cast<const QLabel*>(part);
        const bool elided = qobject_cast<const ElidedLabel*>(part) != nullptr;
        const bool words =
            (label != nullptr && !label->wordWrap()) || qobject_cast<const QAbstractButton*>(part) != nullptr;
        if (words && !elided && part->isVisible()) {
            EXPECT_GE(part->width(), part->minimumSizeHint().width())
                << name << ' ' << part->objectName().toStdString();
        }
    }
}

TEST(LightTheme, SmallWindowsAsTheyLook) {
    for (const CommandId id :
         {CommandId::mnuFileOpenEvent, CommandId::mnuOptPrinter, CommandId::mnuOptACStart,
          CommandId::mnuOptSalesTax, CommandId::mnuOptUserPref, CommandId::mnuToolsPrinterOffsets,
          CommandId::mnuEditAllTextFonts, CommandId::mnuEditTitles, CommandId::mnuToolsSnap,
          CommandId::mnuEditFind, CommandId::mnuManageEditor, CommandId::mnuManageDeposits,
          CommandId::mnuFileOpenFootnotes, CommandId::mnuFileOpenAddressBook}) {
        WindowRun run;
        const std::size_t before = run.program.windows.Open.size();
        run.Command(id);
        ASSERT_GT(run.program.windows.Open.size(), before) << static_cast<int>(id);
        const std::string name(run.program.windows.Open.back()->Name());
        auto* view = run.window->findChild<QDialog*>(QString::fromStdString(name));
        ASSERT_NE(view, nullptr) << name;
        EXPECT_TRUE(QTest::qWaitFor([view] { return QApplication::activeWindow() == view; })) << name;
        Look(*view, ("light_" + name).c_str());
        ExpectWordsWhole(*view, name);
        const QSize screen = view->screen()->availableSize();
        EXPECT_LE(view->width(), screen.width()) << name;
        EXPECT_LE(view->height(), screen.height()) << name;
        QTest::keyClick(view, Qt::Key_Escape);
    }
}

TEST(SmallScreen, TheToolStripFitsEightHundredPixelsWithAllItsWords) {
    DesktopRun run;
    run.window->resize(800, 560);
    QCoreApplication::processEvents();
    EXPECT_EQ(run.window->width(), 800);
    for (const char* caption : {"Print Preview", "Resume Editing"}) {
        run.program.main.cmdPreview.Caption = caption;
        run.window->AfterEvent();
        QCoreApplication::processEvents();
        Look(*run.window, "small");
        const QWidget& strip = *run.Child("picTop");
        for (const QWidget* part : strip.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
            if (part->isVisible()) {
                EXPECT_TRUE(strip.rect().contains(part->geometry())) << part->objectName().toStdString();
            }
        }
        for (const char* name : {"cmdPreview", "cmdReCalc", "cmdTaxRate", "cmdClearMem"}) {
            const auto* button = run.Find<QPushButton>(name);
            const int words = button->fontMetrics().horizontalAdvance(mnemonics::Plain(button->text()));
            EXPECT_TRUE(QTest::qWaitFor([&] { return button->width() >= words + 4; })) << name;
        }
    }
    run.program.main.cmdPreview.Caption = "Print Preview";
    run.window->resize(1024, 700);
    QCoreApplication::processEvents();
    EXPECT_TRUE(run.Child("lblPage")->isVisible());
}

} // namespace
