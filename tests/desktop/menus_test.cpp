#include "desktop/desktop_run.h"
#include "program/windows.h"
#include "proposal/frm_file.h"
#include "shell/command_run.h"
#include "shell/command_table.h"
#include "shell/page_switch.h"
#include "support/running_program.h"

#include <QAction>
#include <QDialog>
#include <QMenu>
#include <QMenuBar>
#include <QTest>

#include <gtest/gtest.h>

#include <set>

namespace {

QString Name(const commands::Entry& entry) {
    return QString::fromLatin1(entry.Name.data(), static_cast<qsizetype>(entry.Name.size()));
}

QString Caption(const commands::Entry& entry) {
    return QString::fromLatin1(entry.Caption.data(), static_cast<qsizetype>(entry.Caption.size()));
}

struct MenuRun : DesktopRun {
    [[nodiscard]] QAction* Action(const commands::Entry& entry) const {
        const auto found = window->findChildren<QAction*>(Name(entry));
        return found.size() == 1 ? found.front() : nullptr;
    }
    [[nodiscard]] QAction* Action(CommandId id) const { return Action(commands::Find(id)); }
    /// Every entry of the table stands in the window as its state is now.
    void ExpectMenusFollow(const char* state) {
        for (const commands::Entry& entry : commands::Table()) {
            QAction* action = Action(entry);
            ASSERT_NE(action, nullptr) << entry.Name;
            const CommandState& record = program.main[entry.Id];
            EXPECT_EQ(action->isVisible(), record.Visible) << state << ' ' << entry.Name;
            if (entry.What == commands::Kind::Separator) {
                EXPECT_TRUE(action->isSeparator()) << entry.Name;
                continue;
            }
            // What is not to be seen cannot be chosen either.
            EXPECT_EQ(action->isEnabled(), record.Visible && commands::IsAvailable(program, entry.Id))
                << state << ' ' << entry.Name;
            EXPECT_EQ(action->isCheckable(), entry.Checkable) << entry.Name;
            EXPECT_EQ(action->isChecked(), entry.Checkable && record.Checked) << state << ' ' << entry.Name;
        }
    }
    void ExpectEnabled(const char* state, CommandId id, bool enabled) {
        EXPECT_EQ(Action(id)->isEnabled(), enabled) << state << ' ' << commands::Find(id).Name;
    }
    void OpenJaneRoe() {
        folder.Write("Proposals/Jane Roe.hef", ReadTestData("jane_roe/Jane Roe.hef"));
        commands::Run(program, CommandId::mnuFileOpenEvent);
        auto& chooser = dynamic_cast<frmFile&>(*modWindows::Find(program, "frmFile"));
        chooser.FileList1_Click(program, 0);
        chooser.cmdOpenOK_Click(program);
        window->AfterEvent();
    }
};

TEST(Menus, EveryEntryOfTheTableStandsInTheWindow) {
    MenuRun run;
    for (const commands::Entry& entry : commands::Table()) {
        QAction* action = run.Action(entry);
        ASSERT_NE(action, nullptr) << entry.Name;
        if (entry.What != commands::Kind::Separator) {
            const QString shown = action->text().section(QLatin1Char('\t'), 0, 0);
            QString wanted = QString::fromStdString(run.program.main[entry.Id].Caption);
            EXPECT_LE(shown.count(u'&'), 1) << entry.Name;
            EXPECT_EQ(QString(shown).remove(u'&'), wanted.remove(u'&')) << entry.Name;
        }
        EXPECT_EQ(action->menu() != nullptr, entry.What == commands::Kind::Menu) << entry.Name;
    }
    run.ExpectMenusFollow("start");
}

TEST(Menus, CaptionsAreTheTablesUnlessAStateHasAnother) {
    MenuRun run;
    for (const commands::Entry& entry : commands::Table()) {
        // "Add Columns" turns into its opposite on a line that has them; everything else keeps its words.
        if (entry.What != commands::Kind::Separator && entry.Id != CommandId::mnuEditTextColumns) {
            EXPECT_EQ(run.Action(entry)->text().remove(u'&'), Caption(entry).remove(u'&')) << entry.Name;
        }
    }
}

TEST(Menus, EntriesStandInTheOrderOfTheTable) {
    MenuRun run;
    for (const commands::Entry& menu : commands::Table()) {
        if (menu.What != commands::Kind::Menu) {
            continue;
        }
        QStringList wanted;
        for (const commands::Entry& entry : commands::Table()) {
            if (entry.Parent == menu.Id) {
                wanted.push_back(Name(entry));
            }
        }
        QStringList shown;
        for (const QAction* action : run.Action(menu)->menu()->actions()) {
            shown.push_back(action->objectName());
        }
        EXPECT_EQ(shown, wanted) << menu.Name;
    }
    QStringList tops;
    for (const QAction* action : run.window->menuBar()->actions()) {
        tops.push_back(action->objectName());
    }
    EXPECT_EQ(tops.join(QLatin1Char(' ')),
              QStringLiteral("mnuFile mnuFileFormat mnuEdit mnuEditCtrl mnuView mnuManage mnuOpt mnuTools "
                             "mnuSupport mnuFeedback mnuHelp"));
}

TEST(Menus, ShortcutsAreTheTablesAndF8OnlyShows) {
    MenuRun run;
    std::set<QString> live;
    for (const commands::Entry& entry : commands::Table()) {
        const QAction* action = run.Action(entry);
        if (entry.Shortcut == "F8") {
            EXPECT_TRUE(action->shortcut().isEmpty());
            EXPECT_TRUE(action->text().endsWith(QStringLiteral("\tF8")));
            continue;
        }
        EXPECT_EQ(action->shortcut(),
                  QKeySequence(QString::fromLatin1(entry.Shortcut.data(),
                                                   static_cast<qsizetype>(entry.Shortcut.size()))))
            << entry.Name;
        if (!entry.Shortcut.empty()) {
            EXPECT_TRUE(run.window->actions().contains(const_cast<QAction*>(action)))
                << "a shortcut works without its menu: " << entry.Name;
            EXPECT_TRUE(live.insert(action->shortcut().toString()).second) << entry.Name;
        }
    }
}

TEST(Menus, AtTheTopShareNoMnemonic) {
    MenuRun run;
    std::set<QChar> letters;
    for (const QAction* top : run.window->menuBar()->actions()) {
        const qsizetype mark = top->text().indexOf(u'&');
        ASSERT_GE(mark, 0) << top->text().toStdString();
        EXPECT_TRUE(letters.insert(top->text().at(mark + 1).toLower()).second) << top->text().toStdString();
    }
    EXPECT_EQ(run.Action(CommandId::mnuFile)->text(), QStringLiteral("&File"));
    EXPECT_EQ(run.Action(CommandId::mnuEdit)->text(), QStringLiteral("&Edit"));
    EXPECT_EQ(run.Action(CommandId::mnuFileFormat)->text(), QStringLiteral("F&ile Format"));
    EXPECT_EQ(run.Action(CommandId::mnuEditCtrl)->text(), QStringLiteral("E&dit Control"));
    EXPECT_EQ(run.Action(CommandId::mnuManage)->text(), QStringLiteral("&Manage"));
}

TEST(Menus, ACommandThatIsNotBuiltSaysSoAndNothingElseDoes) {
    MenuRun run;
    const QLabel* line = run.Find<QLabel>("lblNotice");
    for (const commands::Entry& entry : commands::Table()) {
        const bool pending = entry.Pending();
        const QString tip = run.Action(entry)->statusTip();
        EXPECT_EQ(tip, pending ? QStringLiteral("This command is not available in this version.") : QString())
            << entry.Name;
        if (pending) {
            EXPECT_FALSE(run.Action(entry)->isEnabled()) << entry.Name;
        }
    }
    for (const commands::Entry& entry : commands::Table()) {
        if (entry.What == commands::Kind::Item) {
            run.Action(entry)->showStatusText(run.window.get());
            EXPECT_EQ(line->text(), run.Action(entry)->statusTip()) << entry.Name;
        }
    }
}

TEST(Menus, StandAsTheirStatesSayThroughALife) {
    MenuRun run;
    const auto expect = [&](const char* state, bool remove, bool preview, bool restore) {
        run.ExpectMenusFollow(state);
        run.ExpectEnabled(state, CommandId::mnuFileDelete, remove);
        run.ExpectEnabled(state, CommandId::mnuFilePrintPreview, !preview);
        run.ExpectEnabled(state, CommandId::mnuFileResume, preview);
        run.ExpectEnabled(state, CommandId::mnuFileRestoreFromBackup, restore);
        run.ExpectWindowFollows();
    };
    expect("start", false, false, false);
    run.OpenJaneRoe();
    expect("opened", true, false, false);
    EXPECT_TRUE(run.program.main[CommandId::mnuOptCopyToPersonalAddressBook].Enabled);
    EXPECT_TRUE(run.program.main[CommandId::mnuOptCopyToBusinessAddressBook].Enabled);
    run.Press(Qt::Key_R, Qt::ControlModifier);
    expect("preview", true, true, false);
    run.Press(Qt::Key_E, Qt::ControlModifier);
    expect("resumed", true, false, false);
    run.ChoosePage(6);
    expect("client's copy", true, false, false);
    EXPECT_FALSE(run.program.main[CommandId::mnuEditLabelProps].Enabled);
    run.ChoosePage(1);
    expect("page 2", true, false, false);
    EXPECT_TRUE(run.program.main[CommandId::mnuEditLabelProps].Enabled);
    run.Action(CommandId::mnuOptHideTotals)->trigger();
    EXPECT_TRUE(run.Action(CommandId::mnuOptHideTotals)->isChecked());
    expect("totals hidden", true, false, false);
    run.Action(CommandId::mnuOptHideTotals)->trigger();
    run.Action(CommandId::mnuOptUnderline)->trigger();
    EXPECT_TRUE(run.program.printing.UnderlineCategories);
    run.Action(CommandId::mnuOptEnableOverwriteFmtTextBoxes)->trigger();
    EXPECT_FALSE(run.program.format.OverwriteFormatText);
    expect("toggled", true, false, false);
    run.recording.questions.Expect("Some text has been changed.", Answer::No);
    run.Press(Qt::Key_N, Qt::ControlModifier);
    expect("new", false, false, false);
    EXPECT_FALSE(run.program.main[CommandId::mnuOptCopyToPersonalAddressBook].Enabled);
}

TEST(Menus, ABackupCanBeRestoredUntilAnotherProposalStands) {
    MenuRun run;
    run.folder.Write("Proposals/Backup/Ann.hef", ReadTestData("jane_roe/Jane Roe.hef"));
    run.Press(Qt::Key_O, Qt::ControlModifier);
    auto& chooser = dynamic_cast<frmFile&>(*modWindows::Find(run.program, "frmFile"));
    const auto& folders = chooser.Dir1.Items;
    chooser.Dir1_Change(
        run.program, static_cast<int>(std::find(folders.begin(), folders.end(), "Backup") - folders.begin()));
    chooser.FileList1_Click(run.program, 0);
    chooser.cmdOpenOK_Click(run.program);
    run.window->AfterEvent();
    run.ExpectEnabled("backup", CommandId::mnuFileRestoreFromBackup, true);
    run.Action(CommandId::mnuFileRestoreFromBackup)->trigger();
    run.ExpectEnabled("restored", CommandId::mnuFileRestoreFromBackup, false);
    EXPECT_TRUE(run.folder.Has("Proposals/Ann.hef"));
}

TEST(Menus, TheTextMenusEntriesFollowTheFieldThatHasTheKeyboard) {
    MenuRun run;
    QMenu* menu = run.Action(CommandId::mnuEditTextBox)->menu();
    const auto state = [&](PageId page, int index) {
        run.Click(page, index);
        emit menu->aboutToShow();
        run.ExpectMenusFollow("text menu");
    };
    state(PageId::frmP1, 12); // a line's description
    run.ExpectEnabled("description", CommandId::mnuEditTextColumns, true);
    run.ExpectEnabled("description", CommandId::mnuEditTextTaxExempt, false);
    state(PageId::frmP1, 22); // its amount
    run.ExpectEnabled("amount", CommandId::mnuEditTextColumns, false);
    run.ExpectEnabled("amount", CommandId::mnuEditTextTaxExempt, true);
    state(PageId::frmP1, 3); // the client's street
    run.ExpectEnabled("client", CommandId::mnuEditTextColumns, false);
    run.ExpectEnabled("client", CommandId::mnuEditTextTaxExempt, false);
}

/// The commands that open a small window, by menu.
TEST(Menus, WindowsOpenFromTheirEntriesAndTakeTheInput) {
    struct Case {
        CommandId Id;
        const char* Window;
    };
    MenuRun run;
    for (const Case& one :
         {Case{CommandId::mnuFileOpenEvent, "frmFile"}, Case{CommandId::mnuOptPrinter, "frmPrinters"},
          Case{CommandId::mnuOptACStart, "frmACStart"}, Case{CommandId::mnuOptSalesTax, "frmTax"},
          Case{CommandId::mnuOptUserPref, "frmPref"},
          Case{CommandId::mnuToolsPrinterOffsets, "frmPOffsets"}}) {
        run.Action(one.Id)->trigger();
        auto* view = run.window->findChild<QDialog*>(QLatin1String(one.Window));
        ASSERT_NE(view, nullptr) << one.Window;
        EXPECT_TRUE(view->isVisible());
        EXPECT_TRUE(view->isModal());
        QTest::keyClick(view, Qt::Key_Escape);
        EXPECT_EQ(modWindows::Find(run.program, one.Window), nullptr) << one.Window;
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

TEST(Menus, SmallCommandsAnswerFromTheMenu) {
    MenuRun run;
    ScriptedQuestions& questions = run.recording.questions;
    questions.Expect("Quillbrook Version 1.0.0");
    run.Action(CommandId::mnuHelpAbout)->trigger();
    questions.Expect("Version: 1.0.0");
    run.Action(CommandId::mnuHelpVersion)->trigger();
    EXPECT_TRUE(run.folder.Has("Home/QBPVersion.txt"));
    run.Action(CommandId::mnuHelpContents)->trigger();
    run.Action(CommandId::mnuHelpTutorial)->trigger();
    EXPECT_EQ(run.recording.shell.Opened,
              (std::vector<std::string>{run.folder / "Help/index.htm", run.folder / "Help/tutorial.htm"}));
    questions.ExpectInput("Changing Currency Designator", "EUR");
    questions.Expect("Changes will be applied in the next \"New\" or \"Open\" session.");
    run.Action(CommandId::mnuOptCurrencySymbol)->trigger();
    EXPECT_EQ(run.program.settings.CurrencySymbol, "EUR");
    questions.Expect("Are you sure you want to delete all the Backup files?", Answer::Yes);
    questions.Expect("No Backup Files Found");
    run.Action(CommandId::mnuOptEmptyBackup)->trigger();
    questions.Expect("A Shortcut has been successfully added to your Desktop.");
    run.Action(CommandId::mnuToolsCreateShorcut)->trigger();
    EXPECT_EQ(run.recording.shell.Links.size(), 2U);
    questions.ExpectInput("Proposal Directory Setup", "");
    run.Action(CommandId::mnuOptNetwork)->trigger();
    run.Action(CommandId::mnuToolsDrawCenterLines)->trigger();
    EXPECT_FALSE(run.program.pages[PageId::frmP1].GridPoints.empty());
    run.Action(CommandId::mnuToolsClearCenterLines)->trigger();
    EXPECT_TRUE(run.program.pages[PageId::frmP1].GridPoints.empty());
}

} // namespace
