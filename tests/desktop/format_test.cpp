#include "desktop/desktop_run.h"
#include "desktop/font_list_view.h"
#include "desktop/paper_surface.h"
#include "format/frm_label_props.h"
#include "format/label_designer.h"
#include "format/label_selection.h"
#include "pages/logo.h"
#include "program/windows.h"
#include "shell/command_run.h"

#include <QApplication>
#include <QImage>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSlider>
#include <QTest>
#include <QToolButton>

#include <fstream>
#include <gtest/gtest.h>

namespace {

/// The program with page 1 in front and a person who designs it.
class Designer : public DesktopRun {
public:
    PageLabel& Label(int index) { return program.pages[PageId::frmP1].lbl[static_cast<std::size_t>(index)]; }
    QWidget& View(int index) {
        return *window->PageOf(PageId::frmP1).findChild<QWidget*>(QStringLiteral("lbl(%1)").arg(index));
    }
    /// Drags a label by so many pixels in a few moves.
    void Drag(int index, QPoint by) {
        QWidget& view = View(index);
        const QPoint from = view.rect().center();
        QTest::mousePress(&view, Qt::LeftButton, Qt::NoModifier, from);
        // The widget moves with the label: what the pointer does is told in the window's own place.
        const QPoint start = view.mapToParent(from);
        for (const int part : {1, 2, 3, 4}) {
            QTest::mouseMove(&view, view.mapFromParent(start + by * part / 4));
            QMouseEvent move(QEvent::MouseMove, view.mapFromParent(QPointF(start + by * part / 4)),
                             view.mapToGlobal(QPointF(view.mapFromParent(start + by * part / 4))),
                             Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(&view, &move);
        }
        QTest::mouseRelease(&view, Qt::LeftButton, Qt::NoModifier, view.mapFromParent(start + by));
    }
    void Choose(CommandId id) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // of windows closed before
        window->MenuTree().Action(id)->trigger();
    }
    template <typename Kind> Kind& In(const char* dialog, const char* name) {
        auto* form = Find<QDialog>(dialog);
        return *form->findChild<Kind*>(QLatin1String(name));
    }
};

/// Characters that no key of the test's own has.
void TypeInto(QWidget& widget, const QString& text) {
    for (const QChar character : text) {
        QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(character));
        QCoreApplication::sendEvent(&widget, &press);
    }
}

TEST(DesignerOnScreen, ALabelIsUnderThePointerAfterEveryMove) {
    Designer run;
    const float left = run.Label(9).Left;
    const float top = run.Label(9).Top;
    const double twips = 1 / run.window->PixelsPerTwip();
    run.Drag(9, QPoint(120, -60));
    const float across = run.Label(9).Left - left;
    const float down = run.Label(9).Top - top;
    EXPECT_EQ(static_cast<int>(across) % 180, 0) << "it stays on its own lattice";
    EXPECT_NEAR(across, 120 * twips, 180);
    EXPECT_NEAR(down, -60 * twips, 180);
    EXPECT_FALSE(run.Label(9).ToolTipText.empty());
    EXPECT_EQ(run.View(9).toolTip().toStdString(), run.Label(9).ToolTipText);
    EXPECT_EQ(run.View(9).cursor().shape(), Qt::ArrowCursor);
    run.ExpectWindowFollows();
}

TEST(DesignerOnScreen, ARightPressOffersTheLabelsCommands) {
    Designer run;
    QTest::mousePress(&run.View(9), Qt::RightButton);
    QMenu* menu = run.window->MenuTree().Menu(CommandId::mnuEditLabel);
    ASSERT_TRUE(menu->isVisible());
    menu->hide();
    QTest::mouseRelease(&run.View(9), Qt::RightButton);
    EXPECT_EQ(run.program.designer.CurrentLabel, 9);
}

TEST(DesignerOnScreen, ADoubleClickSelectsALabelAndTheWindowChangesTheGroup) {
    Designer run;
    for (const int index : {9, 10}) {
        QTest::mouseClick(&run.View(index), Qt::LeftButton);
        QTest::mouseDClick(&run.View(index), Qt::LeftButton);
        EXPECT_TRUE(modDesigner::IsSelected(run.Label(index)));
    }
    run.Choose(CommandId::mnuEditLabelProps);
    QTest::mouseClick(&run.In<QToolButton>("frmLabelProps", "cmdSize(4)"), Qt::LeftButton);
    EXPECT_EQ(run.Label(9).FontSize, 14);
    EXPECT_EQ(run.Label(10).FontSize, 14);
    QTest::mouseClick(&run.In<QPushButton>("frmLabelProps", "cmdOK"), Qt::LeftButton);
    EXPECT_FALSE(modDesigner::IsSelected(run.Label(9)));
    EXPECT_FALSE(run.program.designer.LabelPropsOpen);
    run.ExpectWindowFollows();
}

TEST(DesignerOnScreen, WordsAreTypedOnToThePageAndEnterGoesToTheSizes) {
    Designer run;
    QTest::mouseClick(&run.View(9), Qt::LeftButton);
    run.Choose(CommandId::mnuEditLabelProps);
    auto& caption = run.In<QLineEdit>("frmLabelProps", "txtCaption");
    caption.setFocus();
    caption.selectAll();
    TypeInto(caption, QStringLiteral("D\u00E9jeuner"));
    EXPECT_EQ(run.Label(9).Caption, "D\xE9jeuner");
    TypeInto(caption, QString(QChar(0x4E2D)));
    EXPECT_EQ(run.Label(9).Caption, "D\xE9jeuner") << "a character that cannot be kept is refused";
    QTest::keyClick(&caption, Qt::Key_Return);
    EXPECT_EQ(run.Find<QDialog>("frmLabelProps")->focusWidget(),
              &run.In<QToolButton>("frmLabelProps", "cmdSize(0)"));
    QTest::keyClick(run.Find<QDialog>("frmLabelProps"), Qt::Key_Escape);
    EXPECT_EQ(run.Label(9).Caption, "Event Date");
}

TEST(DesignerOnScreen, TheLabelModeNeedsNoMouse) {
    Designer run;
    run.Press(Qt::Key_L, Qt::ControlModifier);
    run.Choose(CommandId::mnuEditLabelMode);
    if (!run.program.designer.LabelMode) {
        run.Choose(CommandId::mnuEditLabelMode);
    }
    PageView& page = run.window->PageOf(PageId::frmP1);
    ASSERT_TRUE(page.hasFocus());
    auto* frame = page.findChild<QWidget*>(QStringLiteral("LabelFrame"));
    EXPECT_TRUE(frame->isVisible());
    for (int label = 0; label < 9; ++label) {
        QTest::keyClick(&page, Qt::Key_Tab);
    }
    EXPECT_EQ(run.program.designer.Framed, 9);
    EXPECT_TRUE(frame->geometry().contains(run.View(9).geometry().center()));
    const float left = run.Label(9).Left;
    QTest::keyClick(&page, Qt::Key_Right);
    EXPECT_EQ(run.Label(9).Left, left + 180);
    QTest::keyClick(&page, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(run.program.designer.Framed, 8);
    QTest::keyClick(&page, Qt::Key_Escape);
    EXPECT_FALSE(frame->isVisible());
    EXPECT_TRUE(run.program.main.Focus);
    run.ExpectWindowFollows();
}

TEST(DesignerOnScreen, TheMenuKeyOpensTheMenuOfTheFramedLabelAndReturnItsWindow) {
    Designer run;
    run.Choose(CommandId::mnuEditLabelMode);
    PageView& page = run.window->PageOf(PageId::frmP1);
    for (int label = 0; label < 9; ++label) {
        QTest::keyClick(&page, Qt::Key_Tab);
    }
    const float left = run.Label(9).Left;
    QMenu* menu = run.window->MenuTree().Menu(CommandId::mnuEditLabel);
    QTest::keyClick(&page, Qt::Key_Menu);
    ASSERT_TRUE(menu->isVisible());
    const auto* frame = page.findChild<QWidget*>(QStringLiteral("LabelFrame"));
    EXPECT_EQ(menu->pos(), page.mapToGlobal(frame->geometry().bottomLeft()));
    QTest::keyClick(menu, Qt::Key_Escape);
    EXPECT_FALSE(menu->isVisible());
    EXPECT_EQ(run.program.designer.Framed, 9);
    EXPECT_EQ(run.Label(9).Left, left);
    QTest::keyClick(&page, Qt::Key_Return);
    EXPECT_TRUE(run.Find<QDialog>("frmLabelProps")->isVisible());
}

TEST(DesignerOnScreen, ThousandsOfFamiliesOpenAtOnceAndAreFoundByTyping) {
    std::vector<std::string> families;
    families.reserve(2001);
    for (int index = 0; index < 2000; ++index) {
        families.push_back("Family " + std::to_string(index));
    }
    families.emplace_back("Zebra");
    FontListView list(nullptr, families);
    int chosen = -1;
    list.Chosen = [&](int index) { chosen = index; };
    list.resize(240, 200);
    list.show();
    QCoreApplication::processEvents();
    QTest::keyClicks(&list, QStringLiteral("Zeb"));
    EXPECT_EQ(chosen, 2000);
}

TEST(DesignerOnScreen, AFontThatTheListHasNotStaysUntilAnotherIsChosen) {
    Designer run;
    run.program.run.DefaultFontName = "Nowhere Sans";
    run.Choose(CommandId::mnuEditAllTextFonts);
    auto* texts = run.Find<QDialog>("frmTextProps");
    auto* fonts = texts->findChild<FontListView*>();
    EXPECT_TRUE(QTest::qWaitFor([&] { return fonts->hasFocus(); }));
    EXPECT_EQ(run.In<QLabel>("frmTextProps", "lblFontName").text(),
              QStringLiteral("Current Font Name = Nowhere Sans"));
    QTest::keyClick(texts, Qt::Key_Return);
    EXPECT_EQ(run.program.pages[PageId::frmP2].txt[3].FontName, "Nowhere Sans");
    run.Label(9).FontName = "Nowhere Sans";
    QTest::mouseClick(&run.View(9), Qt::LeftButton);
    run.Choose(CommandId::mnuEditLabelProps);
    fonts = run.Find<QDialog>("frmLabelProps")->findChild<FontListView*>();
    fonts->setFocus(Qt::TabFocusReason);
    EXPECT_TRUE(QTest::qWaitFor([&] { return fonts->hasFocus(); }));
    EXPECT_EQ(run.Label(9).FontName, "Nowhere Sans");
    QTest::keyClick(fonts, Qt::Key_Down);
    EXPECT_EQ(run.Label(9).FontName, run.program.run.FontList.front());
    run.ExpectWindowFollows();
}

TEST(DesignerOnScreen, TabGoesAlongTheButtonsAsTheyStand) {
    Designer run;
    const auto along = [&](const char* window, std::initializer_list<const char*> buttons) {
        auto* dialog = run.Find<QDialog>(window);
        run.In<QPushButton>(window, *buttons.begin()).setFocus();
        for (const char* button : buttons) {
            EXPECT_EQ(dialog->focusWidget()->objectName().toStdString(), button) << window;
            QTest::keyClick(dialog->focusWidget(), Qt::Key_Tab);
        }
    };
    QTest::mouseClick(&run.View(9), Qt::LeftButton);
    run.Choose(CommandId::mnuEditLabelProps);
    along("frmLabelProps", {"cmdOK", "cmdCancel", "cmdColors"});
    QTest::mouseClick(&run.In<QPushButton>("frmLabelProps", "cmdColors"), Qt::LeftButton);
    along("frmRGB", {"cmdOK", "cmdCancel", "cmdNormInc", "cmdSmInc"});
    QTest::keyClick(run.Find<QDialog>("frmRGB"), Qt::Key_Escape);
    QTest::keyClick(run.Find<QDialog>("frmLabelProps"), Qt::Key_Escape);
    run.Choose(CommandId::mnuEditAllTextFonts);
    along("frmTextProps", {"cmdColors", "cmdOK", "cmdCancel", "cmdDefault"});
}

TEST(DesignerOnScreen, AGridIsOnePixelAPointAndTwoLinesAtEveryScale) {
    Designer run;
    run.program.format.SnapTwips = 720;
    run.Choose(CommandId::mnuToolsDrawCenterLines);
    PageView& page = run.window->PageOf(PageId::frmP1);
    const auto grey = [](const QImage& picture, int x, int y) {
        return picture.valid(x, y) && picture.pixelColor(x, y) == QColor(0xC8, 0xC8, 0xC8);
    };
    const double pixels = run.window->PixelsPerTwip();
    const QImage picture = page.grab().toImage();
    // In the left margin nothing else stands: the points of the first column, one pixel each.
    int points = 0;
    for (int row = 1; row <= 20; ++row) {
        const int x = static_cast<int>(std::floor(720 * pixels));
        const int y = static_cast<int>(std::floor(row * 720 * pixels));
        EXPECT_TRUE(grey(picture, x, y)) << row;
        if (row == 11) {
            continue; // the line through the centre
        }
        for (const QPoint beside : {QPoint(-1, 0), QPoint(1, 0), QPoint(0, -1), QPoint(0, 1)}) {
            points += grey(picture, x + beside.x(), y + beside.y()) ? 1 : 0;
        }
    }
    EXPECT_EQ(points, 0) << "no point is smeared over two pixels";
    run.Choose(CommandId::mnuToolsClearCenterLines);
    const QImage cleared = page.grab().toImage();
    EXPECT_FALSE(grey(cleared, static_cast<int>(720 * pixels), static_cast<int>(720 * pixels)));
    run.ExpectWindowFollows();
}

TEST(DesignerOnScreen, MoreColorsGivesTheKeyboardBackToTheWindowItWasOpenedFrom) {
    Designer run;
    QTest::mouseClick(&run.View(9), Qt::LeftButton);
    run.Choose(CommandId::mnuEditLabelProps);
    auto* labels = run.Find<QDialog>("frmLabelProps");
    EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == labels; }));
    QTest::mouseClick(&run.In<QPushButton>("frmLabelProps", "cmdColors"), Qt::LeftButton);
    auto* colours = run.Find<QDialog>("frmRGB");
    EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == colours; }));
    QTest::keyClick(colours, Qt::Key_Escape);
    EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == labels; }));
    QTest::keyClick(labels, Qt::Key_Escape);
    EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == run.window.get(); }));
}

/// The window's own controls by the keyboard, from its menu to its end.
TEST(DesignerOnScreen, TheSnapWindowWorksByKeysAndByMouse) {
    Designer run;
    run.Choose(CommandId::mnuToolsSnap);
    QTest::mouseClick(&run.In<QPushButton>("frmSnap", "cmdSnap(0)"), Qt::LeftButton);
    EXPECT_EQ(run.program.format.SnapTwips, 360);
    run.Choose(CommandId::mnuToolsSnap);
    auto& value = run.In<QLineEdit>("frmSnap", "txtSnap");
    EXPECT_EQ(value.selectedText(), QStringLiteral("0.25"));
    QTest::keyClicks(&value, QStringLiteral("0.0625"));
    QTest::keyClick(&value, Qt::Key_Return);
    EXPECT_EQ(run.program.format.SnapTwips, 90);
    run.Choose(CommandId::mnuToolsSnap);
    QTest::keyClicks(&run.In<QLineEdit>("frmSnap", "txtSnap"), QStringLiteral("2"));
    QTest::keyClick(run.Find<QDialog>("frmSnap"), Qt::Key_Escape);
    EXPECT_EQ(run.program.format.SnapTwips, 90);
}

TEST(DesignerOnScreen, TheLogoIsDraggedAndHasItsMenu) {
    Designer run;
    QImage logo(64, 48, QImage::Format_RGB32);
    logo.fill(Qt::darkGreen);
    const std::string file = run.folder / "logo.png";
    ASSERT_TRUE(logo.save(QString::fromStdString(file)));
    run.recording.pictures.Known[file] = {960, 720};
    ASSERT_TRUE(modLogo::ShowLogo(run.program, file));
    run.program.settings.LogoFile = file;
    run.window->AfterEvent();
    auto& view = *run.window->PageOf(PageId::frmP1).findChild<QWidget*>(QStringLiteral("pic"));
    ASSERT_TRUE(view.isVisible());
    const PagePicture& pic = run.program.pages[PageId::frmP1].pic;
    const float left = pic.Left;
    const QPoint from = view.rect().center();
    const QPoint start = view.mapToParent(from);
    QTest::mousePress(&view, Qt::LeftButton, Qt::NoModifier, from);
    const QPointF to = view.mapFromParent(QPointF(start) + QPointF(60, 0));
    QMouseEvent move(QEvent::MouseMove, to, view.mapToGlobal(to), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(&view, &move);
    EXPECT_EQ(static_cast<int>(pic.Left - left) % 180, 0);
    EXPECT_NEAR(pic.Left - left, 60 / run.window->PixelsPerTwip(), 180);
    QTest::mouseRelease(&view, Qt::LeftButton, Qt::NoModifier, view.mapFromParent(start + QPoint(60, 0)));
    EXPECT_EQ(run.program.format.LogoLeft, pic.Left);
    EXPECT_EQ(run.program.format.LogoPath, file);
    QTest::mouseDClick(&view, Qt::LeftButton);
    EXPECT_EQ(view.toolTip().toStdString().substr(0, 8), " Left = ");
    QTest::mousePress(&view, Qt::RightButton);
    QMenu* menu = run.window->MenuTree().Menu(CommandId::mnuEditLogo);
    ASSERT_TRUE(menu->isVisible());
    menu->hide();
    QTest::mouseRelease(&view, Qt::RightButton);
    run.Choose(CommandId::mnuEditLogoBorder);
    EXPECT_EQ(pic.BorderStyle, 1);
    run.Choose(CommandId::mnuEditLogoVisible);
    EXPECT_FALSE(view.isVisible());
    run.ExpectWindowFollows();
}

TEST(DesignerOnScreen, ColoursAndTitlesWork) {
    Designer run;
    run.Choose(CommandId::mnuEditAllTextFonts);
    QTest::mouseClick(&run.In<QPushButton>("frmTextProps", "cmdColors"), Qt::LeftButton);
    run.In<QSlider>("frmRGB", "Red").setValue(256);
    EXPECT_EQ(run.In<QLineEdit>("frmRGB", "txtHttpValue").text(), QStringLiteral("#FF0000"));
    QTest::mouseClick(&run.In<QPushButton>("frmRGB", "cmdOK"), Qt::LeftButton);
    QTest::mouseClick(&run.In<QPushButton>("frmTextProps", "cmdOK"), Qt::LeftButton);
    EXPECT_EQ(run.program.pages[PageId::frmP2].txt[3].ForeColor, 0x0000FFU);
    run.Choose(CommandId::mnuEditTitles);
    auto& title = run.In<QLineEdit>("frmTitle", "txtSubTitle");
    title.selectAll();
    QTest::keyClicks(&title, QStringLiteral("The Day"));
    QTest::mouseClick(&run.In<QPushButton>("frmTitle", "cmdOK"), Qt::LeftButton);
    EXPECT_EQ(run.Label(33).Caption, "The Day");
    run.ExpectWindowFollows();
}

/// A picture file of that many points.
std::string Picture(const ScratchFolder& folder, const char* name, QSize size) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::darkGreen);
    const std::string path = folder / name;
    EXPECT_TRUE(image.save(QString::fromStdString(path)));
    return path;
}

TEST(Pictures, TellTheirSizeAndWhatIsNoneIsRefused) {
    ScratchFolder folder;
    QtPictures pictures;
    const std::string good = Picture(folder, "good.png", {100, 40});
    EXPECT_EQ(pictures.Load(good), (PictureSize{1500, 600}));
    std::string bytes = folder.Read("good.png");
    folder.Write("renamed.jpg", bytes);
    EXPECT_EQ(pictures.Load(folder / "renamed.jpg"), (PictureSize{1500, 600}))
        << "its content says what it is";
    folder.Write("text.png", "no picture at all");
    EXPECT_FALSE(pictures.Load(folder / "text.png"));
    for (const std::string kind : {"bmp", "png", "jpg"}) {
        const std::string whole = "whole." + kind;
        const std::string cut = "cut." + kind;
        static_cast<void>(Picture(folder, whole.c_str(), {200, 200}));
        EXPECT_TRUE(pictures.Load(folder / whole)) << kind;
        const std::string all = folder.Read(whole);
        folder.Write(cut, all.substr(0, all.size() - all.size() / 4));
        EXPECT_FALSE(pictures.Load(folder / cut)) << kind;
    }
    EXPECT_FALSE(pictures.Load(folder / "gone.png"));
    folder.Write("lines.svg", "<svg xmlns='http://www.w3.org/2000/svg' width='120' height='60'>"
                              "<rect width='120' height='60' fill='red'/></svg>");
    EXPECT_EQ(pictures.Load(folder / "lines.svg"), (PictureSize{1800, 900}));
}

TEST(Pictures, OneThatWouldFillTheMemoryIsRefusedByItsHeader) {
    ScratchFolder folder;
    // A bitmap that says it is 20,000 by 20,000 points, and has none of them.
    std::string header("BM\x36\x00\x00\x00\x00\x00\x00\x00\x36\x00\x00\x00\x28\x00\x00\x00", 18);
    header += std::string("\x20\x4E\x00\x00\x20\x4E\x00\x00\x01\x00\x18\x00", 12) + std::string(24, '\0');
    folder.Write("huge.bmp", header);
    EXPECT_FALSE(QtPictures().Load(folder / "huge.bmp"));
}

TEST(Pictures, LinesAreDrawnAsSharpAsTheDeviceCan) {
    ScratchFolder folder;
    folder.Write("half.svg", "<svg xmlns='http://www.w3.org/2000/svg' width='10' height='10'>"
                             "<rect width='5' height='10' fill='black'/></svg>");
    QImage paper(1000, 1000, QImage::Format_RGB32);
    paper.fill(Qt::white);
    QPainter painter(&paper);
    paper::DrawLogo(painter, folder / "half.svg", QRectF(0, 0, 1000, 1000));
    painter.end();
    EXPECT_EQ(qGray(paper.pixel(490, 500)), 0);
    EXPECT_EQ(qGray(paper.pixel(510, 500)), 255) << "no soft edge of a picture that was blown up";
}

} // namespace
