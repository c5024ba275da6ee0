#include "desktop/desktop_run.h"
#include "desktop/font_list_view.h"
#include "desktop/paper_surface.h"
#include "format/frm_label_props.h"
#include "format/label_designer.h"
#include "format/label_selection.h"
#include "program/windows.h"
#include "shell/command_run.h"

#include <QApplication>
#include <QImage>
#include <QKeyEvent>
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
    void Choose(CommandId id) { window->MenuTree().Action(id)->trigger(); }
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

TEST(DesignerOnScreen, ThousandsOfFamiliesOpenAtOnceAndAreFoundByTyping) {
    std::vector<std::string> families;
    for (int index = 0; index < 2000; ++index) {
        families.push_back("Family " + std::to_string(index));
    }
    families.emplace_back("Zebra");
    FontListView list(nullptr, families);
    int chosen = -1;
    list.Chosen = [&](int index) { chosen = index; };
    QElapsedTimer timer;
    timer.start();
    list.show();
    QCoreApplication::processEvents();
    EXPECT_LT(timer.elapsed(), 2000);
    QTest::keyClicks(&list, QStringLiteral("Zeb"));
    EXPECT_EQ(chosen, 2000);
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
