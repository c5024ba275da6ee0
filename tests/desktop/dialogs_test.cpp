#include "desktop/desktop_run.h"
#include "desktop/frm_file_view.h"
#include "desktop/frm_splash_view.h"
#include "program/windows.h"
#include "settings/frm_acstart.h"
#include "settings/frm_poffsets.h"
#include "settings/frm_pref.h"
#include "settings/frm_printers.h"
#include "settings/frm_tax.h"
#include "shell/command_run.h"
#include "shell/frm_splash.h"
#include "shell/start_up.h"
#include "shell/wiring.h"
#include "support/running_program.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <filesystem>
#include <set>

namespace {

/// Waits until the window has the keyboard. A window counts as active already when the one below it is.
bool Stands(const QWidget* view) {
    return QTest::qWaitFor([view] { return QApplication::activeWindow() == view; });
}

/// A window opened by its command.
struct DialogRun : DesktopRun {
    explicit DialogRun(CommandId id) {
        commands::Run(program, id);
        window->AfterEvent();
        Window* open = modWindows::TopModal(program);
        EXPECT_NE(open, nullptr);
        view = window->findChild<QDialog*>(
            QString::fromLatin1(open->Name().data(), static_cast<qsizetype>(open->Name().size())));
        EXPECT_TRUE(::Stands(view));
    }
    template <typename Kind> [[nodiscard]] Kind* Part(const char* name) const {
        Kind* part = view->findChild<Kind*>(QLatin1String(name));
        EXPECT_NE(part, nullptr) << name;
        return part;
    }
    void Push(const char* name) const { QTest::mouseClick(Part<QPushButton>(name), Qt::LeftButton); }
    [[nodiscard]] bool Stands(const char* name) { return modWindows::Find(program, name) != nullptr; }
    [[nodiscard]] bool SettingsHold(const std::string& line) const {
        return folder.Read("UserPreferences.txt").find(line + "\r\n") != std::string::npos;
    }
    QDialog* view = nullptr;
};

std::string Spoken(QWidget* widget) {
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(widget);
    return spoken == nullptr ? std::string() : spoken->text(QAccessible::Name).toStdString();
}

/// What a person needs of every window: Tab comes to every control, each has a name that can be spoken,
/// nothing is wider than a small screen, and one button answers Return.
void ExpectUsable(QDialog& dialog) {
    std::set<const QWidget*> wanted;
    for (QWidget* child : dialog.findChildren<QWidget*>()) {
        const bool own = !child->objectName().startsWith(QLatin1String("qt_"));
        if (own && child->isVisible() && child->isEnabled() && (child->focusPolicy() & Qt::TabFocus) != 0) {
            // Of one group of options Tab comes to one; arrows go on from there.
            wanted.insert(child);
            EXPECT_NE(Spoken(child), "") << child->objectName().toStdString();
        }
    }
    std::set<const QWidget*> reached;
    for (std::size_t step = 0; step < 3 * wanted.size() + 3; ++step) {
        ASSERT_NE(QApplication::focusWidget(), nullptr);
        reached.insert(QApplication::focusWidget());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    for (const QWidget* child : wanted) {
        EXPECT_TRUE(reached.contains(child)) << child->objectName().toStdString();
    }
    EXPECT_LE(dialog.frameGeometry().width(), 1024);
    EXPECT_LE(dialog.frameGeometry().height(), 768);
    const auto buttons = dialog.findChildren<QPushButton*>();
    EXPECT_EQ(std::count_if(buttons.begin(), buttons.end(),
                            [](const QPushButton* button) { return button->isDefault(); }),
              1);
    EXPECT_NE(dialog.windowTitle(), QString());
}

TEST(Windows, CanBeUsedWithoutAMouseAndBeSpoken) {
    for (const CommandId id :
         {CommandId::mnuFileOpenEvent, CommandId::mnuOptPrinter, CommandId::mnuOptACStart,
          CommandId::mnuOptSalesTax, CommandId::mnuOptUserPref, CommandId::mnuToolsPrinterOffsets}) {
        DialogRun run(id);
        ExpectUsable(*run.view);
    }
}

TEST(Windows, EscapeClosesEachAndChangesNothing) {
    for (const CommandId id :
         {CommandId::mnuFileOpenEvent, CommandId::mnuOptPrinter, CommandId::mnuOptACStart,
          CommandId::mnuOptSalesTax, CommandId::mnuOptUserPref, CommandId::mnuToolsPrinterOffsets}) {
        DialogRun run(id);
        const std::string before = run.folder.Read("UserPreferences.txt");
        QTest::keyClick(run.view, Qt::Key_Escape);
        EXPECT_EQ(modWindows::TopModal(run.program), nullptr);
        EXPECT_FALSE(run.view->isVisible());
        EXPECT_EQ(run.folder.Read("UserPreferences.txt"), before);
    }
}

TEST(TaxWindow, TakesDigitsAndThePointAloneAndReturnKeepsTheRate) {
    DialogRun run(CommandId::mnuOptSalesTax);
    EXPECT_EQ(
        run.Part<QLabel>("lblTaxRate")->text(),
        QStringLiteral("The Current Tax Rate is 8.25%. You can change it by entering a new value in the text "
                       "area below."));
    auto* rate = run.Part<QLineEdit>("txtTaxRate");
    EXPECT_EQ(QApplication::focusWidget(), rate);
    QTest::keyClicks(rate, QStringLiteral("a6-.%x5"));
    EXPECT_EQ(rate->text(), QStringLiteral("6.5"));
    run.recording.questions.Expect("New Sales Tax Rate is 6.50 %");
    QTest::keyClick(rate, Qt::Key_Return);
    EXPECT_FALSE(run.Stands("frmTax"));
    EXPECT_EQ(run.folder.Read("Proposals/SalesTax.txt"), "6.50 ");
    EXPECT_EQ(run.program.totals.TaxRate, 6.5F);
}

TEST(TaxWindow, APasteKeepsWhatCouldHaveBeenTyped) {
    DialogRun run(CommandId::mnuOptSalesTax);
    auto* rate = run.Part<QLineEdit>("txtTaxRate");
    run.clipboard.SetText("rate: 7.125 %");
    QTest::keyClick(rate, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(rate->text(), QStringLiteral("7.125"));
    run.Push("cmdCancel");
    EXPECT_EQ(run.program.totals.TaxRate, 8.25F);
}

TEST(PreferencesWindow, ShowsTheSettingsAndSavesTheBoxes) {
    DialogRun run(CommandId::mnuOptUserPref);
    const auto checked = [&](const char* name) { return run.Part<QCheckBox>(name)->isChecked(); };
    EXPECT_EQ(checked("chkShowFUT"), !run.program.settings.ShowFUT);
    EXPECT_EQ(checked("chkShowCalc"), !run.program.settings.ShowCalc);
    EXPECT_EQ(checked("chkMinimizeFUT"), run.program.settings.MinimizeFUT);
    EXPECT_EQ(checked("chkACEnable"), !run.program.settings.AutoCompleteWord);
    EXPECT_EQ(checked("chkLoadFUT"), run.program.settings.LoadFUT);
    const bool calculator = run.program.settings.ShowCalc;
    auto* box = run.Part<QCheckBox>("chkShowCalc");
    box->setFocus();
    QTest::keyClick(box, Qt::Key_Space);
    run.recording.questions.Expect("These changes will take effect on your next start.");
    run.Push("cmdSave");
    EXPECT_FALSE(run.Stands("frmPref"));
    EXPECT_TRUE(run.SettingsHold(std::string("Show Calc:") + (calculator ? "False" : "True")));
}

TEST(PreferencesWindow, ExitWithoutSavingKeepsTheSettings) {
    DialogRun run(CommandId::mnuOptUserPref);
    const std::string before = run.folder.Read("UserPreferences.txt");
    QTest::mouseClick(run.Part<QCheckBox>("chkLoadFUT"), Qt::LeftButton, Qt::NoModifier, QPoint(8, 8));
    EXPECT_TRUE(run.Part<QCheckBox>("chkLoadFUT")->isChecked());
    run.Push("cmdExit");
    EXPECT_EQ(run.folder.Read("UserPreferences.txt"), before);
    EXPECT_FALSE(run.program.settings.LoadFUT);
}

TEST(CompletionStartWindow, AnOptionOrAnotherValueIsThePosition) {
    DialogRun run(CommandId::mnuOptACStart);
    EXPECT_EQ(run.program.run.ACStartLen, 2);
    EXPECT_TRUE(run.Part<QRadioButton>("optACStart(2)")->isChecked());
    QTest::mouseClick(run.Part<QRadioButton>("optACStart(4)"), Qt::LeftButton, Qt::NoModifier, QPoint(8, 8));
    EXPECT_FALSE(run.Part<QRadioButton>("optACStart(2)")->isChecked());
    run.Push("cmdOK");
    EXPECT_EQ(run.program.run.ACStartLen, 4);
    commands::Run(run.program, CommandId::mnuOptACStart);
    run.window->AfterEvent();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    run.view = run.window->findChild<QDialog*>(QStringLiteral("frmACStart"));
    auto* other = run.Part<QLineEdit>("txtACStart");
    QTest::keyClicks(other, QStringLiteral("1x2."));
    EXPECT_EQ(other->text(), QStringLiteral("12"));
    QTest::keyClick(other, Qt::Key_Return);
    EXPECT_EQ(run.program.run.ACStartLen, 12);
}

TEST(CompletionStartWindow, APositionBeyondTheOptionsStandsInTheBox) {
    DesktopRun run;
    run.program.run.ACStartLen = 9;
    commands::Run(run.program, CommandId::mnuOptACStart);
    run.window->AfterEvent();
    auto* view = run.window->findChild<QDialog*>(QStringLiteral("frmACStart"));
    ASSERT_NE(view, nullptr);
    EXPECT_EQ(view->findChild<QLineEdit*>(QStringLiteral("txtACStart"))->text(), QStringLiteral("9"));
    for (const QRadioButton* option : view->findChildren<QRadioButton*>()) {
        EXPECT_FALSE(option->isChecked());
    }
    QTest::keyClick(view, Qt::Key_Escape);
}

TEST(OffsetsWindow, ApplyPutsInchesInForceAndSaveWritesThem) {
    DialogRun run(CommandId::mnuToolsPrinterOffsets);
    EXPECT_EQ(run.Part<QLabel>("lblX")->text(),
              QStringLiteral("Printer X Offset (Horizontal) - Current Value = 0.00\""));
    EXPECT_EQ(run.Part<QLabel>("lblY")->text(),
              QStringLiteral("Printer Y Offset (Horizontal) - Current Value = 0.00\""));
    auto* x = run.Part<QLineEdit>("txtX");
    x->selectAll();
    QTest::keyClicks(x, QStringLiteral("-a.2 5b"));
    EXPECT_EQ(x->text(), QStringLiteral("-.25"));
    run.Push("cmdOK");
    EXPECT_EQ(run.program.printing.PrinterOffsetX, -360);
    EXPECT_TRUE(run.Stands("frmPOffsets"));
    EXPECT_EQ(run.Part<QLabel>("lblX")->text(),
              QStringLiteral("Printer X Offset (Horizontal) - Current Value = -0.25\""));
    EXPECT_FALSE(run.folder.Has("Proposals/PrinterOffsets.txt"));
    auto* y = run.Part<QLineEdit>("txtY");
    y->selectAll();
    QTest::keyClicks(y, QStringLiteral("1.5"));
    run.Push("cmdSavePrinterOffsets");
    EXPECT_FALSE(run.Stands("frmPOffsets"));
    EXPECT_EQ(run.folder.Read("Proposals/PrinterOffsets.txt"), "Printer X Offset:-0.25Printer Y Offset:1.5");
}

TEST(OffsetsWindow, HelpExplainsThem) {
    DialogRun run(CommandId::mnuToolsPrinterOffsets);
    run.recording.questions.Expect(
        "If your documents are not printing on center, you need to adjust your offsets.");
    run.Push("mnuHelpPrinterOffsets");
    run.recording.questions.Expect("Enter all values in inches. Negative values are permitted.");
    QTest::keyClick(run.view, Qt::Key_F1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return run.recording.questions.Shown.size() == 2; }));
    EXPECT_TRUE(run.Stands("frmPOffsets"));
}

TEST(PrintersWindow, ListsThePrintersAndKeepsTheChosenOne) {
    DialogRun run(CommandId::mnuOptPrinter);
    auto* list = run.Part<QComboBox>("cmbPrinters");
    EXPECT_EQ(list->count(), static_cast<int>(run.printers.Names().size()));
    EXPECT_EQ(list->currentText(), QStringLiteral("Print to PDF"));
    EXPECT_EQ(list->itemText(list->count() - 1), QStringLiteral("Print to PDF"));
    run.Push("cmdPrinter");
    EXPECT_TRUE(run.SettingsHold("Default Printer:Print to PDF"));
    run.Push("cmdClose");
    EXPECT_FALSE(run.Stands("frmPrinters"));
}

struct ChooserRun : DesktopRun {
    ChooserRun() {
        for (const char* name : {"Ann.hef", "Bob.hef", "Carl.hef"}) {
            folder.Write("Proposals/" + std::string(name), ReadTestData("jane_roe/Jane Roe.hef"));
        }
        folder.MakeFolder("Proposals/2008");
        Press(Qt::Key_O, Qt::ControlModifier);
        view = window->findChild<FrmFileView*>(QStringLiteral("frmFile"));
        EXPECT_TRUE(Stands(view));
        files = view->findChild<FileTable*>(QStringLiteral("FileList1"));
        folders = view->findChild<QListWidget*>(QStringLiteral("Dir1"));
    }
    [[nodiscard]] QLabel* Label(const char* name) const {
        return view->findChild<QLabel*>(QLatin1String(name));
    }
    FrmFileView* view = nullptr;
    FileTable* files = nullptr;
    QListWidget* folders = nullptr;
};

TEST(ChooserWindow, NothingIsChosenUntilThePersonChooses) {
    ChooserRun run;
    EXPECT_EQ(QApplication::focusWidget(), run.files);
    EXPECT_EQ(run.files->topLevelItemCount(), 3);
    EXPECT_EQ(run.files->CurrentRow(), -1);
    EXPECT_FALSE(run.Label("lblOpenFileName")->isVisible());
    EXPECT_FALSE(run.view->findChild<QPushButton*>(QStringLiteral("cmdOpenOK"))->isEnabled());
    QTest::keyClick(run.view, Qt::Key_Escape);
}

TEST(ChooserWindow, TheFirstDownChoosesTheFirstFileAndReturnOpensIt) {
    ChooserRun run;
    QTest::keyClick(run.files, Qt::Key_Down);
    EXPECT_EQ(run.Label("lblOpenFileName")->text(), QStringLiteral("Ann.hef"));
    EXPECT_EQ(run.view->windowTitle(), QStringLiteral("Opening Proposal File - Event File"));
    QTest::keyClick(run.files, Qt::Key_Down);
    EXPECT_EQ(run.Label("lblOpenFileName")->text(), QStringLiteral("Bob.hef"));
    QTest::keyClick(run.files, Qt::Key_Return);
    EXPECT_EQ(modWindows::Find(run.program, "frmFile"), nullptr);
    EXPECT_EQ(run.program.document.FileName, "Bob.hef");
    EXPECT_EQ(run.window->windowTitle(), QStringLiteral("Quillbrook - File Name = Bob.hef"));
}

TEST(ChooserWindow, HandsTheKeyboardToTheFieldOfAnotherPageThanTheOneItWasOpenedOn) {
    for (const int page : {1, 5}) {
        DesktopRun run;
        run.folder.Write("Proposals/Ann.hef", ReadTestData("jane_roe/Jane Roe.hef"));
        run.ChoosePage(page);
        run.Press(Qt::Key_O, Qt::ControlModifier);
        auto* files = run.window->findChild<FileTable*>(QStringLiteral("FileList1"));
        ASSERT_NE(files, nullptr);
        QTest::keyClick(files, Qt::Key_Down);
        QTest::keyClick(files, Qt::Key_Return);
        ASSERT_EQ(run.program.document.FileName, "Ann.hef");
        const FieldRef date{PageId::frmP1, FieldKind::txt, 0};
        EXPECT_EQ(run.program.main.Focus, date);
        EXPECT_EQ(run.window->focusWidget(), &run.Field(date)) << page;
    }
}

TEST(ChooserWindow, AClickShowsThePanelAndReturnToListTakesItBack) {
    ChooserRun run;
    const QRect second = run.files->visualItemRect(run.files->topLevelItem(1));
    QTest::mouseClick(run.files->viewport(), Qt::LeftButton, Qt::NoModifier, second.center());
    EXPECT_EQ(run.Label("lblOpenFileName")->text(), QStringLiteral("Bob.hef"));
    EXPECT_EQ(run.Label("lblPointOpen")->text(), QStringLiteral("Open"));
    QTest::mouseClick(run.view->findChild<QPushButton*>(QStringLiteral("cmdOpenBack")), Qt::LeftButton);
    EXPECT_FALSE(run.Label("lblOpenFileName")->isVisible());
    EXPECT_EQ(run.files->CurrentRow(), -1);
    QTest::mouseClick(run.view->findChild<QPushButton*>(QStringLiteral("cmdOpenCancel")), Qt::LeftButton);
    EXPECT_EQ(run.program.document.FileName, "");
}

TEST(ChooserWindow, FoldersOpenWithReturnOrADoubleClick) {
    ChooserRun run;
    run.folders->setFocus();
    for (int row = 0; row < run.folders->count(); ++row) {
        if (run.folders->item(row)->text() == QStringLiteral("2008")) {
            run.folders->setCurrentRow(row);
        }
    }
    QTest::keyClick(run.folders, Qt::Key_Return);
    EXPECT_EQ(run.Label("lblFolder")->text().toStdString(), run.folder / "Proposals/2008/");
    EXPECT_EQ(run.files->topLevelItemCount(), 0);
    const QRect up = run.folders->visualItemRect(run.folders->item(0));
    QTest::mouseClick(run.folders->viewport(), Qt::LeftButton, Qt::NoModifier, up.center());
    QTest::mouseDClick(run.folders->viewport(), Qt::LeftButton, Qt::NoModifier, up.center());
    EXPECT_EQ(run.Label("lblFolder")->text().toStdString(), run.folder / "Proposals/");
    EXPECT_EQ(run.files->topLevelItemCount(), 3);
    QTest::keyClick(run.view, Qt::Key_Escape);
}

TEST(ChooserWindow, FoldersThatCameMeanwhileShowWhereTheyOpen) {
    ChooserRun run;
    const QRect first = run.files->visualItemRect(run.files->topLevelItem(0));
    QTest::mouseClick(run.files->viewport(), Qt::LeftButton, Qt::NoModifier, first.center());
    std::filesystem::remove(run.folder / "Proposals/Ann.hef");
    run.folder.MakeFolder("Proposals/1999");
    run.recording.questions.Expect("OpenEventFile");
    QTest::mouseClick(run.view->findChild<QPushButton*>(QStringLiteral("cmdOpenOK")), Qt::LeftButton);
    ASSERT_EQ(run.folders->count(), 4);
    EXPECT_EQ(run.folders->item(1)->text(), QStringLiteral("1999"));
    EXPECT_EQ(run.folders->item(2)->text(), QStringLiteral("2008"));
    QTest::keyClick(run.view, Qt::Key_Escape);
}

TEST(ChooserWindow, IgnoringThePropertiesIsABox) {
    ChooserRun run;
    auto* ignore = run.view->findChild<QCheckBox*>(QStringLiteral("chkProp"));
    ASSERT_TRUE(ignore->isVisible());
    ignore->setFocus();
    QTest::keyClick(ignore, Qt::Key_Space);
    EXPECT_TRUE(run.program.document.IgnoreProperties);
    EXPECT_TRUE(ignore->isChecked());
    QTest::keyClick(run.view, Qt::Key_Escape);
}

TEST(ChooserWindow, DeletesInDeleteModeAndSaysSo) {
    DesktopRun run;
    run.folder.Write("Proposals/Ann.hef", "x");
    run.folder.Write("Proposals/Ann.dep", "x");
    run.folder.Write("Proposals/Bob.hef", "x");
    commands::Run(run.program, CommandId::mnuAdminDelete);
    run.window->AfterEvent();
    auto* view = run.window->findChild<FrmFileView*>(QStringLiteral("frmFile"));
    ASSERT_NE(view, nullptr);
    EXPECT_EQ(view->windowTitle(), QStringLiteral("Selecting Files to Delete"));
    auto* files = view->findChild<FileTable*>(QStringLiteral("FileList1"));
    ASSERT_TRUE(Stands(view));
    QTest::keyClick(files, Qt::Key_Down);
    EXPECT_EQ(view->findChild<QLabel*>(QStringLiteral("lblPointOpen"))->text(), QStringLiteral("Delete"));
    run.recording.questions.Expect("Are you sure you want to delete this file?", Answer::Yes);
    QTest::mouseClick(view->findChild<QPushButton*>(QStringLiteral("cmdOpenOK")), Qt::LeftButton);
    EXPECT_FALSE(run.folder.Has("Proposals/Ann.hef"));
    EXPECT_FALSE(run.folder.Has("Proposals/Ann.dep"));
    EXPECT_EQ(files->topLevelItemCount(), 1);
    EXPECT_EQ(view->windowTitle(), QStringLiteral("Delete File..."));
    QTest::keyClick(view, Qt::Key_Escape);
}

TEST(SplashWindow, FillsItsSheetAndAClickBringsTheMainWindow) {
    ScratchFolder folder;
    folder.Write("UserPreferences.txt", ReadTestData("jane_roe/UserPreferences.txt"));
    folder.Write("Proposals/SalesTax.txt", ReadTestData("jane_roe/SalesTax.txt"));
    RecordingPlatform recording;
    QtTextMeasure measure;
    HastyEvents events;
    Platform platform = recording.platform;
    Platform surroundings{.questions = recording.questions,
                          .measure = measure,
                          .printers = platform.printers,
                          .screen = platform.screen,
                          .clipboard = platform.clipboard,
                          .shell = platform.shell,
                          .clock = platform.clock,
                          .instance = platform.instance,
                          .pictures = platform.pictures,
                          .events = events,
                          .words = platform.words,
                          .dictionaries = platform.dictionaries};
    Program program(surroundings);
    program.folders.InstallFolder = folder.Path();
    Wire(program);
    FrmMainView window(program, measure);
    events.Follow = [&] { window.Follow(); };
    ASSERT_EQ(modStart::Main(program), modStart::StartResult::Running);
    FrmSplashView* splash = nullptr;
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (auto* found = qobject_cast<FrmSplashView*>(widget)) {
            splash = found;
        }
    }
    ASSERT_NE(splash, nullptr);
    EXPECT_TRUE(splash->isVisible());
    EXPECT_FALSE(window.isVisible());
    EXPECT_FALSE(splash->isModal());
    EXPECT_EQ(splash->windowTitle(), QStringLiteral("Splash Screen"));
    EXPECT_TRUE(
        splash->accessibleDescription().contains(QStringLiteral("Click anywhere to exit this screen.")));
    // Every text lies on the sheet.
    const auto& model = dynamic_cast<frmSplash&>(*modWindows::Find(program, "frmSplash"));
    for (const SplashText& text : model.Picture.Texts) {
        const TextFont font{model.Picture.FontName, text.FontSize, text.Bold, false};
        EXPECT_GE(text.X, 0) << text.Text;
        EXPECT_LE(text.X + measure.Width(text.Text, font), model.Picture.Width) << text.Text;
        EXPECT_LE(text.Y + measure.Height(font), model.Picture.Height) << text.Text;
    }
    recording.questions.Expect("No Events Found"); // the folder has no proposals
    QTest::mouseClick(splash, Qt::LeftButton);
    EXPECT_TRUE(window.isVisible());
    EXPECT_FALSE(splash->isVisible());
    EXPECT_TRUE(program.main.Loaded);
}

/// Answers the box that stands with a key, once it stands.
template <typename Look> void AtTheBox(Look look) {
    QTimer::singleShot(0, [look] {
        QWidget* box = QApplication::activeModalWidget();
        ASSERT_NE(box, nullptr);
        look(box);
    });
}

TEST(Boxes, ShowTheirWordsAndAnswerKeys) {
    QtQuestions questions;
    AtTheBox([](QWidget* widget) {
        auto* box = qobject_cast<QMessageBox*>(widget);
        ASSERT_NE(box, nullptr);
        EXPECT_EQ(box->windowTitle(), QStringLiteral("Preparing to Delete File."));
        EXPECT_EQ(box->text(), QStringLiteral("One\nTwo"));
        EXPECT_EQ(box->standardButtons(), QMessageBox::Yes | QMessageBox::No);
        QTest::keyClick(box, Qt::Key_Escape);
    });
    EXPECT_EQ(questions.MsgBox("One\r\nTwo", Buttons::YesNo, "Preparing to Delete File."), Answer::No);
    AtTheBox([](QWidget* widget) {
        EXPECT_EQ(widget->windowTitle(), QStringLiteral("Quillbrook"));
        QTest::keyClick(widget, Qt::Key_Return);
    });
    EXPECT_EQ(questions.MsgBox("Saved", Buttons::Ok, ""), Answer::Ok);
    AtTheBox([](QWidget* widget) { QTest::keyClick(widget, Qt::Key_Escape); });
    EXPECT_EQ(questions.MsgBox("Save?", Buttons::YesNoCancel, ""), Answer::Cancel);
    AtTheBox([](QWidget* widget) {
        QTest::mouseClick(qobject_cast<QMessageBox*>(widget)->button(QMessageBox::No), Qt::LeftButton);
    });
    EXPECT_EQ(questions.MsgBox("Save?", Buttons::YesNoCancel, ""), Answer::No);
}

TEST(Boxes, PlainLettersPressNoButtonAndMnemonicsNeedAlt) {
    QtQuestions questions;
    AtTheBox([](QWidget* widget) {
        QTest::keyClicks(widget->focusWidget() != nullptr ? widget->focusWidget() : widget,
                         QStringLiteral("yYnN"));
        QTest::qWait(300); // a press by letter would come with an animation
        EXPECT_TRUE(widget->isVisible());
        QTest::keyClick(widget, Qt::Key_N, Qt::AltModifier);
    });
    EXPECT_EQ(questions.MsgBox("Save?", Buttons::YesNoCancel, ""), Answer::No);
}

TEST(Boxes, TheGivenDefaultIsPressedByReturnAndWhatIsLostIsNamed) {
    QtQuestions questions;
    AtTheBox([](QWidget* widget) {
        auto* box = qobject_cast<QMessageBox*>(widget);
        EXPECT_EQ(box->informativeText(), QStringLiteral("Ann.hef, Ann.dep"));
        EXPECT_EQ(box->defaultButton(), box->button(QMessageBox::No));
        QTest::keyClick(widget, Qt::Key_Return);
    });
    EXPECT_EQ(
        questions.MsgBox("Delete?", Buttons::YesNo, "", {.Default = Answer::No, .Lost = "Ann.hef, Ann.dep"}),
        Answer::No);
}

TEST(Boxes, OneThatComesUnaskedTakesNoKeyInItsFirstHalfSecond) {
    QtQuestions questions;
    AtTheBox([](QWidget* widget) {
        QWidget* button = widget->focusWidget() != nullptr ? widget->focusWidget() : widget;
        QTest::keyClick(button, Qt::Key_Space);
        QTest::keyClick(button, Qt::Key_Return);
        QTest::keyClick(widget, Qt::Key_Escape);
        QTest::keyClick(widget, Qt::Key_Y, Qt::AltModifier);
        QTest::qWait(200);
        QTest::keyClick(button, Qt::Key_Return);
        EXPECT_TRUE(widget->isVisible());
        QTest::qWait(400);
        QTest::keyClick(button, Qt::Key_Return);
        EXPECT_TRUE(widget->isVisible()) << "whoever goes on typing does not answer it";
        QTest::qWait(600);
        EXPECT_TRUE(widget->isVisible());
        QTest::keyClick(button, Qt::Key_Return);
    });
    EXPECT_EQ(questions.MsgBox("Bring them back?", Buttons::YesNo, "", {.How = Manner::Came::Unasked}),
              Answer::Yes);
}

TEST(Boxes, HaveTheButtonsOfTheOtherWindows) {
    EXPECT_EQ(QApplication::style()->styleHint(QStyle::SH_DialogButtonBox_ButtonsHaveIcons), 0);
    QtQuestions questions;
    const auto look = [](QWidget* widget) {
        const auto buttons = widget->findChildren<QPushButton*>();
        EXPECT_GE(buttons.size(), 2);
        for (const QPushButton* button : buttons) {
            EXPECT_TRUE(button->icon().isNull()) << button->text().toStdString() << " has words alone";
            EXPECT_FALSE(button->shortcut().isEmpty()) << button->text().toStdString() << " has a letter";
        }
        QTest::keyClick(widget, Qt::Key_Escape);
    };
    AtTheBox(look);
    static_cast<void>(questions.MsgBox("Save?", Buttons::YesNoCancel, ""));
    AtTheBox(look);
    static_cast<void>(questions.MsgBox("Go on?", Buttons::OkCancel, ""));
    AtTheBox(look);
    static_cast<void>(questions.InputBox("Please input the File Name below.", "Saving File As...", "Jane"));
}

TEST(Boxes, AnInputBoxGivesWhatWasTypedAndNothingOnEscape) {
    QtQuestions questions;
    AtTheBox([](QWidget* widget) {
        auto* box = qobject_cast<QInputDialog*>(widget);
        ASSERT_NE(box, nullptr);
        EXPECT_EQ(box->windowTitle(), QStringLiteral("Saving File As..."));
        EXPECT_EQ(box->textValue(), QStringLiteral("Jane"));
        QTest::keyClicks(box->findChild<QLineEdit*>(), QStringLiteral("Ann"));
        QTest::keyClick(box, Qt::Key_Return);
    });
    EXPECT_EQ(questions.InputBox("Please input the File Name below.", "Saving File As...", "Jane"), "Ann");
    AtTheBox([](QWidget* widget) { QTest::keyClick(widget, Qt::Key_Escape); });
    EXPECT_EQ(questions.InputBox("Please input the File Name below.", "Saving File As...", "Jane"), "");
}

TEST(Boxes, AnInputBoxRefusesWhatCannotBeKeptWhereItIsTyped) {
    QtQuestions questions;
    AtTheBox([](QWidget* widget) {
        auto* box = qobject_cast<QInputDialog*>(widget);
        ASSERT_NE(box, nullptr);
        box->findChild<QLineEdit*>()->insert(QStringLiteral("Zo\u00EB"));
        EXPECT_EQ(box->labelText(), QStringLiteral("The symbol is <b>."));
        EXPECT_EQ(box->findChild<QLabel*>()->textFormat(), Qt::PlainText);
        box->findChild<QLineEdit*>()->insert(QStringLiteral("\u041E"));
        EXPECT_EQ(box->textValue(), QStringLiteral("Zo\u00EB"));
        EXPECT_TRUE(box->labelText().contains(QStringLiteral("was not taken")));
        QTest::keyClick(box, Qt::Key_Return);
    });
    EXPECT_EQ(questions.InputBox("The symbol is <b>.", "", ""), "Zo\xEB");
}

TEST(MainWindow, EverythingOnTheStripsHasANameToSpeak) {
    DesktopRun run;
    for (const QWidget* part : run.Child("picTop")->findChildren<QWidget*>()) {
        EXPECT_NE(Spoken(const_cast<QWidget*>(part)), "") << part->objectName().toStdString();
    }
    EXPECT_EQ(Spoken(run.Child("VScroll1")), "Scroll the page");
    EXPECT_EQ(Spoken(&run.Field({PageId::frmP1, FieldKind::txt, 2})), "Client's Name");
    EXPECT_EQ(run.Child("imgTime")->toolTip(), QString());
    for (const char* name : {"imgNew", "imgOpen", "imgSave", "imgSaveAs", "imgPrint", "imgSearch",
                             "imgSpellCheck", "imgFootNotes"}) {
        EXPECT_NE(run.Child(name)->toolTip(), QString()) << name;
    }
}

TEST(MainWindow, ANarrowWindowShowsEveryButtonWithItsWholeCaption) {
    DesktopRun run;
    constexpr int kNarrow = 780;
    constexpr int kHeight = 560;
    for (const int width : {kNarrow, 1200, kNarrow}) {
        run.program.totals.RunningSubTotal = "$ 1,234,567.89";
        run.window->showNormal();
        run.window->resize(width, kHeight);
        run.window->AfterEvent();
        ASSERT_TRUE(QTest::qWaitFor([&] { return run.window->width() == width; }));
        QCoreApplication::sendPostedEvents();
        for (const char* name : {"cmdPreview", "cmdReCalc", "cmdTaxRate", "cmdClearMem"}) {
            const auto* button = run.Find<QPushButton>(name);
            EXPECT_GE(button->width(), button->minimumSizeHint().width()) << name << " at " << width;
        }
        const auto* total = run.Find<QLabel>("lblTotal");
        EXPECT_GE(total->width(), total->sizeHint().width()) << "at " << width;
        for (const char* name : {"imgPage(6)", "cmdClearMem", "VScroll1"}) {
            const QWidget* part = run.Child(name);
            const QPoint end = part->mapTo(run.window.get(), part->rect().bottomRight());
            EXPECT_TRUE(run.window->rect().contains(end)) << name << " at " << width;
        }
    }
}

TEST(MainWindow, ADeskNarrowerThanThePaperShowsTheFieldThatHasTheKeyboard) {
    DesktopRun run;
    constexpr int kNarrow = 640;
    run.window->showNormal();
    run.window->resize(kNarrow, 480);
    ASSERT_TRUE(QTest::qWaitFor([&] { return run.window->width() == kNarrow; }));
    run.ChoosePage(1);
    const QWidget* desk = run.Child("desk");
    const auto inSight = [&](const FieldRef& field) {
        const QWidget& shown = run.Field(field);
        const int left = shown.mapTo(run.window.get(), QPoint(0, 0)).x();
        return left >= 0 && left + shown.width() <= desk->width();
    };
    const FieldRef description{PageId::frmP2, FieldKind::txt, 0};
    const FieldRef amount{PageId::frmP2, FieldKind::txt, 33};
    EXPECT_TRUE(inSight(description));
    EXPECT_FALSE(inSight(amount));
    run.Press(Qt::Key_Tab);
    ASSERT_EQ(run.program.main.Focus->Index, 33);
    EXPECT_TRUE(inSight(amount));
    run.Click(description);
    EXPECT_TRUE(inSight(description));
    run.ExpectWindowFollows();
}

TEST(MainWindow, EveryPageComesByKey) {
    DesktopRun run;
    run.Click(PageId::frmP1, 2);
    for (const int index : {6, 4, 0, 5}) {
        run.Press(static_cast<Qt::Key>(Qt::Key_1 + index), Qt::AltModifier);
        EXPECT_TRUE(QTest::qWaitFor([&] { return IndexOf(run.program.main.PageInFront) == index; })) << index;
    }
    EXPECT_EQ(run.program.pages[PageId::frmP1].txt[2].Text, "");
    EXPECT_EQ(run.program.pages[PageId::frmP6].txt[4].Text, "");
}

TEST(MainWindow, TheFoldersTipShowsUnderThePointerAndADoubleClickTellsTheCalculatorsPlace) {
    DesktopRun run;
    QEnterEvent enter({5, 5}, {5, 5}, {5, 5});
    QApplication::sendEvent(run.Child("lblDir"), &enter);
    EXPECT_EQ(run.Child("lblDir")->toolTip(), run.Find<QLabel>("lblDir")->text());
    QTest::mouseDClick(run.Child("lblTextNum"), Qt::LeftButton);
    EXPECT_EQ(run.Find<QLabel>("lblTextNum")->text(), QStringLiteral("X= 0 Y= 0"));
}

TEST(MainWindow, AToolButtonRisesSinksAndWorksWhenItIsLetGo) {
    DesktopRun run;
    QWidget* open = run.Child("imgOpen");
    const FrameLine& raised = run.program.main.lneLeft[0];
    const FrameLine& sunken = run.program.main.lneLeft[1];
    QEnterEvent enter({5, 5}, {5, 5}, {5, 5});
    QApplication::sendEvent(open, &enter);
    EXPECT_TRUE(raised.Visible);
    QTest::mousePress(open, Qt::LeftButton);
    EXPECT_FALSE(raised.Visible);
    EXPECT_TRUE(sunken.Visible);
    EXPECT_EQ(modWindows::Find(run.program, "frmFile"), nullptr);
    QTest::mouseRelease(open, Qt::LeftButton);
    EXPECT_FALSE(sunken.Visible);
    EXPECT_NE(modWindows::Find(run.program, "frmFile"), nullptr);
    QTest::keyClick(run.window->findChild<QDialog*>(QStringLiteral("frmFile")), Qt::Key_Escape);
    QTest::mouseClick(run.Child("imgNew"), Qt::LeftButton);
    EXPECT_TRUE(run.recording.questions.Shown.empty());
}

} // namespace
