#include "desktop/desktop_run.h"
#include "format/label_designer.h"
#include "format/label_selection.h"
#include "pages/logo.h"
#include "program/windows.h"
#include "proposal/frm_file.h"
#include "shell/command_table.h"

#include <QApplication>
#include <QDialog>
#include <QImage>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

#include <string>
#include <vector>

// Each command of formats, labels, texts, logo, snap and grid from the window's own menus, by either hand.

namespace {

enum class By { Keys, Mouse };

class MenuHand : public DesktopRun {
public:
    explicit MenuHand(By by) : by_(by) {
        QImage logo(64, 48, QImage::Format_RGB32);
        logo.fill(Qt::darkGreen);
        LogoFile = folder / "logo.png";
        EXPECT_TRUE(logo.save(QString::fromStdString(LogoFile)));
        recording.pictures.Known[LogoFile] = {960, 720};
    }

    /// From the bar down to the entry, as a person goes.
    void Choose(CommandId id) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // of windows closed before
        std::vector<CommandId> way{id};
        while (commands::Find(way.front()).Parent != CommandId::Count) {
            way.insert(way.begin(), commands::Find(way.front()).Parent);
        }
        OpenFromTheBar(way.front());
        for (std::size_t step = 1; step < way.size(); ++step) {
            auto* menu = window->MenuTree().Menu(way[step - 1]);
            ASSERT_TRUE(menu->isVisible()) << commands::Find(way[step - 1]).Name;
            QAction* entry = window->MenuTree().Action(way[step]);
            ASSERT_TRUE(entry->isEnabled() && entry->isVisible()) << commands::Find(way[step]).Name;
            Take(*menu, *entry, step + 1 == way.size());
        }
        EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << commands::Find(id).Name;
    }

    /// A window of that name, closed again by Escape.
    void ExpectWindow(const char* name, const char* caption) {
        auto* dialog = Find<QDialog>(name);
        ASSERT_NE(dialog, nullptr) << name;
        EXPECT_TRUE(dialog->isVisible()) << name;
        EXPECT_EQ(dialog->windowTitle(), QLatin1String(caption));
        QTest::keyClick(dialog, Qt::Key_Escape);
        window->AfterEvent();
        EXPECT_FALSE(dialog->isVisible()) << name;
    }
    [[nodiscard]] Page& First() { return program.pages[PageId::frmP1]; }
    [[nodiscard]] bool HasSetting(const std::string& line) const {
        return ("\n" + folder.Read("UserPreferences.txt")).find("\n" + line + "\r\n") != std::string::npos;
    }
    void PressLabel(int index) {
        auto* view = window->PageOf(PageId::frmP1).findChild<QWidget*>(QStringLiteral("lbl(%1)").arg(index));
        QTest::mouseClick(view, Qt::LeftButton);
    }

    std::string LogoFile;

private:
    void OpenFromTheBar(CommandId top) {
        QAction* action = window->MenuTree().Action(top);
        QMenuBar& bar = *window->menuBar();
        if (by_ == By::Mouse) {
            QTest::mouseClick(&bar, Qt::LeftButton, Qt::NoModifier, bar.actionGeometry(action).center());
            return;
        }
        const qsizetype mark = action->text().indexOf(u'&');
        ASSERT_GE(mark, 0) << action->text().toStdString();
        const int letter = action->text().at(mark + 1).toUpper().unicode();
        QTest::keyClick(window.get(), static_cast<Qt::Key>(letter), Qt::AltModifier);
    }
    void Take(QMenu& menu, QAction& entry, bool last) {
        if (by_ == By::Mouse) {
            QTest::mouseMove(&menu, menu.actionGeometry(&entry).center());
            QTest::mouseClick(&menu, Qt::LeftButton, Qt::NoModifier, menu.actionGeometry(&entry).center());
            return;
        }
        for (qsizetype step = 0; step <= menu.actions().size() && menu.activeAction() != &entry; ++step) {
            QTest::keyClick(&menu, Qt::Key_Down);
        }
        ASSERT_EQ(menu.activeAction(), &entry) << entry.text().toStdString();
        QTest::keyClick(&menu, last ? Qt::Key_Return : Qt::Key_Right);
    }

    By by_;
};

class MenusOfFormats : public testing::TestWithParam<By> {};
INSTANTIATE_TEST_SUITE_P(ByKeysAndByMouse, MenusOfFormats, testing::Values(By::Keys, By::Mouse),
                         [](const auto& chosen) { return chosen.param == By::Keys ? "ByKeys" : "ByMouse"; });

TEST_P(MenusOfFormats, SaveOpenMakeDefaultDeleteAndClearAFormat) {
    MenuHand hand(GetParam());
    auto& questions = hand.recording.questions;
    const auto saved = [&] { return hand.folder.Read("Proposals/Barn.fmt"); };
    hand.PressLabel(9);
    hand.First().lbl[9].Left += 180;
    modDesigner::lbl_MouseUp(hand.program, PageId::frmP1, 9);
    questions.ExpectInput("Saving File As...", "Barn");
    hand.Choose(CommandId::mnuFileFormatSaveAs);
    ASSERT_NE(saved().find("frmP1.lbl(9).Left="), std::string::npos);
    EXPECT_EQ(hand.window->windowTitle(), QStringLiteral("Quillbrook - Format File = Barn.fmt"));
    const std::string before = saved();
    modDesigner::lbl_MouseDown(hand.program, PageId::frmP1, 10, modDesigner::kLeftButton, 0, 0);
    hand.First().lbl[10].Left -= 180;
    modDesigner::lbl_MouseUp(hand.program, PageId::frmP1, 10);
    hand.Choose(CommandId::mnuFileFormatSave);
    EXPECT_NE(saved().find("frmP1.lbl(10).Left="), std::string::npos);
    EXPECT_NE(saved(), before);
    hand.Choose(CommandId::mnuFileFormatDefault);
    EXPECT_TRUE(hand.HasSetting("Load Default Format:True"));
    questions.Expect("Some text has been changed.", Answer::No);
    hand.Choose(CommandId::mnuFileFormatOpen);
    hand.ExpectWindow("frmFile", "Opening Format File");
    questions.Expect("Some text has been changed.", Answer::No);
    questions.Expect("Are you sure you want to delete", Answer::Yes);
    questions.Expect("This was the default format.");
    hand.Choose(CommandId::mnuFileFormatDelete);
    EXPECT_FALSE(hand.folder.Has("Proposals/Barn.fmt"));
    EXPECT_FALSE(hand.program.format.FormatOpen);
    hand.PressLabel(9);
    questions.Expect("This action will clear all current data if", Answer::Yes);
    hand.Choose(CommandId::mnuFileFormatNew);
    EXPECT_FALSE(hand.program.format.FormatLabelChanges[PageId::frmP1][9].Changed);
}

TEST_P(MenusOfFormats, WorkOnLabelsSnapAndGrid) {
    MenuHand hand(GetParam());
    hand.Choose(CommandId::mnuToolsSnap);
    auto* snap = hand.Find<QDialog>("frmSnap");
    ASSERT_NE(snap, nullptr);
    QTest::mouseClick(snap->findChild<QPushButton*>(QStringLiteral("cmdSnap(0)")), Qt::LeftButton);
    EXPECT_EQ(hand.program.format.SnapTwips, 360);
    hand.Choose(CommandId::mnuToolsDrawCenterLines);
    EXPECT_FALSE(hand.First().GridPoints.empty());
    hand.Choose(CommandId::mnuToolsClearCenterLines);
    EXPECT_TRUE(hand.First().GridPoints.empty());
    hand.First().Top = -500;
    hand.Choose(CommandId::mnuToolsAlignWithSnap);
    EXPECT_EQ(hand.First().Top, -360);
    hand.First().Top = 0;
    hand.Choose(CommandId::mnuEditLabelMode);
    EXPECT_TRUE(hand.program.designer.LabelMode);
    hand.Choose(CommandId::mnuEditLabelMode);
    EXPECT_FALSE(hand.program.designer.LabelMode);
    hand.PressLabel(9);
    hand.Choose(CommandId::mnuEditLabelProps);
    hand.ExpectWindow("frmLabelProps", "Label Properties");
    hand.Choose(CommandId::mnuEditLabelSelectAll);
    EXPECT_TRUE(modDesigner::MultipleLabelsSelected(hand.program));
    hand.ExpectWindow("frmLabelProps", "Label Properties");
    hand.Choose(CommandId::mnuEditLabelDeselectAll);
    EXPECT_FALSE(modDesigner::MultipleLabelsSelected(hand.program));
}

TEST_P(MenusOfFormats, WorkOnTextsTitlesAndTheCompany) {
    MenuHand hand(GetParam());
    hand.Click(PageId::frmP1, 10);
    hand.Choose(CommandId::mnuEditTextBold);
    EXPECT_TRUE(hand.First().txt[10].FontBold);
    hand.Choose(CommandId::mnuEditTextNormal);
    EXPECT_FALSE(hand.First().txt[10].FontBold);
    hand.Choose(CommandId::mnuEditAllTextFonts);
    hand.ExpectWindow("frmTextProps", "Common Text Properties");
    hand.program.run.DefaultFontSize = 8;
    hand.Choose(CommandId::mnuOptSetDefaultFonts);
    EXPECT_TRUE(hand.HasSetting("Font Size:8"));
    const bool overwrites = hand.program.format.OverwriteFormatText;
    hand.Choose(CommandId::mnuOptEnableOverwriteFmtTextBoxes);
    EXPECT_NE(hand.program.format.OverwriteFormatText, overwrites);
    hand.Choose(CommandId::mnuEditTitles);
    hand.ExpectWindow("frmTitle", "Proposal Page Titles");
    hand.Choose(CommandId::mnuEditCompInfo);
    hand.ExpectWindow("frmAddress", "Company Information");
}

TEST_P(MenusOfFormats, ShowBorderSaveAndChooseTheLogo) {
    MenuHand hand(GetParam());
    ASSERT_TRUE(modLogo::ShowLogo(hand.program, hand.LogoFile));
    hand.program.settings.LogoFile.clear();
    hand.program.format.LogoPath = hand.LogoFile;
    hand.window->AfterEvent();
    hand.Choose(CommandId::mnuEditLogoSave);
    EXPECT_TRUE(hand.HasSetting("Logo File:" + hand.LogoFile));
    const bool shown = hand.First().pic.Visible;
    hand.Choose(CommandId::mnuEditLogoVisible);
    EXPECT_NE(hand.First().pic.Visible, shown);
    EXPECT_TRUE(hand.HasSetting(std::string("Logo Visible:") + (shown ? "False" : "True")));
    hand.Choose(CommandId::mnuEditLogoBorder);
    EXPECT_EQ(hand.First().pic.BorderStyle, 1);
    EXPECT_TRUE(hand.First().pic.Visible);
    hand.Choose(CommandId::mnuEditLogoOpen);
    hand.ExpectWindow("frmFile", "Opening Graphic File");
}

} // namespace
