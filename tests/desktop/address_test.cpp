#include "addresses/frm_address.h"
#include "desktop/address_field_view.h"
#include "desktop/desktop_run.h"
#include "desktop/frm_address_view.h"
#include "desktop/name_list_view.h"
#include "program/windows.h"
#include "shell/command_run.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <set>

namespace {

constexpr const char* kBook = "Proposals/PerAdd.apx";

std::string Record(std::initializer_list<std::string> values) {
    constexpr std::array<std::size_t, 11> kWidths{40, 40, 40, 40, 20, 20, 20, 20, 40, 40, 200};
    std::string record;
    auto value = values.begin();
    for (const std::size_t width : kWidths) {
        std::string field = value == values.end() ? std::string() : *value++;
        field.resize(width, ' ');
        record += field;
    }
    return record;
}

/// The program with its address window open.
struct AddressDesktop : DesktopRun {
    explicit AddressDesktop(const std::string& book = "",
                            CommandId command = CommandId::mnuFileOpenAddressBook) {
        folder.Write(kBook, book);
        commands::Run(program, command);
        window->AfterEvent();
        address = dynamic_cast<frmAddress*>(modWindows::Find(program, "frmAddress"));
        view = window->findChild<FrmAddressView*>(QStringLiteral("frmAddress"));
        EXPECT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == view; }));
    }
    template <typename Kind> [[nodiscard]] Kind* Part(const char* name) const {
        Kind* part = view->findChild<Kind*>(QLatin1String(name));
        EXPECT_NE(part, nullptr) << name;
        return part;
    }
    [[nodiscard]] AddressLineView* Line(int index) const {
        return Part<AddressLineView>(qPrintable(QStringLiteral("txt(%1)").arg(index)));
    }
    [[nodiscard]] std::string Focused() const {
        return QApplication::focusWidget() == nullptr
                   ? std::string()
                   : QApplication::focusWidget()->objectName().toStdString();
    }
    /// A click on a row of the list.
    void ClickRow(int row) {
        auto* list = Part<NameListView>("lstNames");
        const QPoint at = list->visualRect(list->model()->index(row, 0)).center();
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, at);
    }
    void ExpectFollows() const {
        for (int index = 0; index < 10; ++index) {
            EXPECT_EQ(Line(index)->text().toStdString(), address->txt[static_cast<std::size_t>(index)].Text);
        }
        EXPECT_EQ(view->windowTitle().toStdString(), address->Caption);
        EXPECT_EQ(Part<NameListView>("lstNames")->model()->rowCount(),
                  static_cast<int>(address->lstNames.Rows.size()));
    }
    frmAddress* address = nullptr;
    FrmAddressView* view = nullptr;
};

TEST(AddressWindow, TakesANewRecordFromTheKeyboardAlone) {
    AddressDesktop run;
    EXPECT_EQ(run.Focused(), "txt(0)");
    run.Type("Ann Ash");
    run.Press(Qt::Key_Return);
    EXPECT_EQ(run.Focused(), "txt(1)");
    run.Type("1 Elm St");
    run.Press(Qt::Key_Down);
    run.Press(Qt::Key_Up);
    EXPECT_EQ(run.Focused(), "txt(1)");
    EXPECT_EQ(run.Line(1)->palette().color(QPalette::Base), QColor(0, 255, 255));
    for (int step = 0; step < 9; ++step) {
        run.Press(Qt::Key_Return);
    }
    EXPECT_EQ(run.Focused(), "txt(10)");
    run.Type("one");
    run.Press(Qt::Key_Return);
    run.Type("two");
    run.Press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(run.folder.Read(kBook),
              Record({"Ann Ash", "1 Elm St", "", "", "", "", "", "", "", "", "one\r\ntwo"}));
    EXPECT_EQ(run.view->windowTitle(), " Personal Address Book/Ann Ash/Record 1 of 1 Displayed");
    run.ExpectFollows();
}

TEST(AddressWindow, OpensTheRecordOfTheRowThatIsClicked) {
    AddressDesktop run(Record({"Zoe Young", "z"}) + Record({"Ann Ash", "a"}));
    run.ClickRow(1);
    EXPECT_EQ(run.Line(1)->text(), "z");
    run.ClickRow(0);
    EXPECT_EQ(run.Line(1)->text(), "a");
    run.Press(Qt::Key_Down);
    EXPECT_EQ(run.Line(1)->text(), "z");
    run.ExpectFollows();
}

TEST(AddressWindow, HasTheLettersOfItsOwnMenus) {
    const AddressDesktop run;
    QStringList menus;
    for (const QAction* menu : run.view->findChild<QMenuBar*>()->actions()) {
        menus += menu->text();
    }
    EXPECT_EQ(menus.mid(0, 3),
              (QStringList{QStringLiteral("&File"), QStringLiteral("&Edit"), QStringLiteral("&Options")}));
}

TEST(AddressWindow, LettersInTheListJumpToTheName) {
    AddressDesktop run(Record({"Zoe Young"}) + Record({"Ann Ash"}) + Record({"Ben Birch"}) +
                       Record({"Bea Brown"}));
    auto* list = run.Part<NameListView>("lstNames");
    list->setFocus();
    EXPECT_EQ(run.address->lstNames.ListIndex, -1) << "the keyboard's coming opens nothing";
    QTest::keyClicks(list, QStringLiteral("brown, b"));
    EXPECT_EQ(run.Line(0)->text(), "Bea Brown");
    EXPECT_EQ(list->currentIndex().row(), 2);
    run.ExpectFollows();
}

TEST(AddressWindow, ShowsALargeBookWithoutAnObjectForEachRow) {
    std::string book;
    for (int index = 0; index < 3000; ++index) {
        book += Record({"Guest Number" + std::to_string(index)});
    }
    AddressDesktop run(book);
    auto* list = run.Part<NameListView>("lstNames");
    EXPECT_EQ(list->model()->rowCount(), 3000);
    EXPECT_LT(run.view->findChildren<QObject*>().size(), 400);
    run.ClickRow(0);
    QTest::keyClick(list, Qt::Key_End);
    EXPECT_EQ(run.address->lstNames.ListIndex, 2999);
}

TEST(AddressWindow, ARefusedRowLeavesTheSelectionWhereItWas) {
    AddressDesktop run(Record({"Ann Ash"}) + Record({"Ben Birch"}));
    run.ClickRow(0);
    run.Line(1)->setFocus();
    run.Type("typed");
    run.recording.questions.Expect("The current Record has been changed.", Answer::Cancel);
    run.ClickRow(1);
    EXPECT_EQ(run.Part<NameListView>("lstNames")->currentIndex().row(), 0);
    EXPECT_EQ(run.Focused(), "txt(1)");
    EXPECT_EQ(run.Line(1)->text(), "typed");
}

TEST(AddressWindow, ADoubleClickConvertsInOneStepOfUndo) {
    AddressDesktop run;
    AddressLineView* phone = run.Line(4);
    phone->setFocus();
    run.Type("2175550100");
    QTest::mouseDClick(phone, Qt::LeftButton, Qt::NoModifier, QPoint(20, phone->height() / 2));
    EXPECT_EQ(phone->text(), "(217) 555-0100");
    run.Press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(phone->text(), "2175550100");
    EXPECT_EQ(run.address->txt[4].Text, "2175550100");
}

TEST(AddressWindow, TheFieldsMenuConvertsForTheKeyboard) {
    AddressDesktop run;
    AddressLineView* name = run.Line(0);
    name->setFocus();
    run.Type("ann ash");
    bool offered = false;
    QTimer::singleShot(0, name, [&] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        auto* entry = menu->findChild<QAction*>(QStringLiteral("ChangeFormat"));
        offered = entry != nullptr;
        menu->setActiveAction(entry);
        QTest::keyClick(menu, Qt::Key_Return);
    });
    QContextMenuEvent asked(QContextMenuEvent::Keyboard, QPoint(4, 4), name->mapToGlobal(QPoint(4, 4)));
    QApplication::sendEvent(name, &asked);
    EXPECT_TRUE(offered);
    EXPECT_EQ(name->text(), "Ann Ash");
}

TEST(AddressWindow, ATextOverItsLimitIsRedAndItsTipSaysSo) {
    AddressDesktop run;
    run.Line(4)->setFocus();
    run.Type("123456789012345678901");
    EXPECT_EQ(run.Line(4)->palette().color(QPalette::Base), QColor(255, 0, 0));
    EXPECT_EQ(run.Line(4)->toolTip(), "Maximum characters for this field = 20. Please adjust.");
    EXPECT_EQ(run.Part<QPushButton>("cmdSave")->palette().color(QPalette::Button), QColor(0, 255, 255));
}

TEST(AddressWindow, ACharacterThatCannotBeKeptIsNotTaken) {
    AddressDesktop run;
    AddressLineView* name = run.Line(0);
    name->setFocus();
    run.Type("Ann");
    QApplication::clipboard()->setText(QString::fromUtf8("\xE2\x84\xAB Ash"));
    name->paste();
    EXPECT_EQ(name->text(), "Ann Ash");
    EXPECT_EQ(run.address->txt[0].Text, "Ann Ash");
}

TEST(AddressWindow, ImportsACopiedListRecordByRecord) {
    AddressDesktop run;
    QApplication::clipboard()->setText(QStringLiteral("Ann Ash,1 Elm St\nBen Birch,2 Oak Rd\n"));
    run.recording.questions.Expect("This will save the Batch Records into the Personal", Answer::Yes);
    run.Press(Qt::Key_I, Qt::ControlModifier);
    EXPECT_TRUE(run.Part<QWidget>("picImport")->isVisible());
    EXPECT_EQ(run.Focused(), "optList(0)");
    EXPECT_FALSE(run.Line(0)->isVisible());
    run.Press(Qt::Key_Down);
    EXPECT_TRUE(run.address->optList[1].Value);
    QTest::mouseClick(run.Part<QPushButton>("lblFormat(2)"), Qt::LeftButton);
    EXPECT_EQ(run.address->lblFormat[2].BackColor, colors::kResting);
    run.Press(Qt::Key_Return);
    EXPECT_TRUE(run.Part<QWidget>("picBatchProcess")->isVisible());
    EXPECT_FALSE(run.Part<NameListView>("lstNames")->isEnabled());
    EXPECT_EQ(run.Line(1)->text(), "1 Elm St");
    EXPECT_EQ(run.Part<QLabel>("lblBatch")->text(), "Record 1 of 2");
    run.Press(Qt::Key_S, Qt::ControlModifier);
    run.Press(Qt::Key_Escape);
    EXPECT_EQ(run.Line(0)->text(), "Ben Birch") << "Escape leaves a run alone";
    run.recording.questions.Expect("Batch Process Finished.");
    QTest::mouseClick(run.Part<QPushButton>("cmdSkipBatchRecord"), Qt::LeftButton);
    EXPECT_FALSE(run.Part<QWidget>("picBatchProcess")->isVisible());
    EXPECT_EQ(run.folder.Read(kBook), Record({"Ann Ash", "1 Elm St"}));
    run.ExpectFollows();
}

TEST(AddressWindow, EscapeLeavesTheChoiceOfAListAndThenTheWindow) {
    AddressDesktop run;
    run.recording.questions.Expect("This will save the Batch Records", Answer::Yes);
    run.Press(Qt::Key_I, Qt::ControlModifier);
    run.Press(Qt::Key_Escape);
    EXPECT_FALSE(run.Part<QWidget>("picImport")->isVisible());
    QTest::keyClick(run.view, Qt::Key_Escape);
    EXPECT_EQ(modWindows::Find(run.program, "frmAddress"), nullptr);
}

TEST(AddressWindow, ShowsTheCompanysLinesAlone) {
    AddressDesktop run("", CommandId::mnuEditCompInfo);
    EXPECT_EQ(run.view->windowTitle(), "Company Information");
    EXPECT_FALSE(run.Part<NameListView>("lstNames")->isVisible());
    EXPECT_TRUE(run.Line(9)->isVisible());
    EXPECT_FALSE(run.Line(7)->isVisible());
    EXPECT_EQ(run.Line(6)->accessibleName(), "Website");
    run.Line(6)->setFocus();
    run.Press(Qt::Key_Return);
    EXPECT_EQ(run.Focused(), "txt(9)");
    run.Type("x");
    run.Press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(modWindows::Find(run.program, "frmAddress"), nullptr);
    EXPECT_NE(run.folder.Read("UserPreferences.txt").find("Company Email:"), std::string::npos);
}

TEST(AddressWindow, CanBeUsedWithoutAMouseAndBeSpoken) {
    AddressDesktop run(Record({"Ann Ash"}));
    std::set<QWidget*> wanted;
    for (QWidget* child : run.view->findChildren<QWidget*>()) {
        if (!child->objectName().startsWith(QLatin1String("qt_")) && child->isVisible() &&
            child->isEnabled() && (child->focusPolicy() & Qt::TabFocus) != 0) {
            wanted.insert(child);
            QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(child);
            EXPECT_FALSE(spoken->text(QAccessible::Name).isEmpty()) << child->objectName().toStdString();
        }
    }
    EXPECT_GE(wanted.size(), 14U);
    const std::size_t presses = 2 * wanted.size();
    for (std::size_t step = 0; step < presses; ++step) {
        wanted.erase(QApplication::focusWidget());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    for (const QWidget* child : wanted) {
        ADD_FAILURE() << "Tab does not come to " << child->objectName().toStdString();
    }
    EXPECT_LE(run.view->frameGeometry().width(), 1024);
    EXPECT_LE(run.view->frameGeometry().height(), 768);
}

TEST(AddressWindow, ComesToTheFrontWithItsRecordWhenItIsCalledAgain) {
    AddressDesktop run(Record({"Ann Ash"}));
    run.ClickRow(0);
    run.window->activateWindow();
    EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == run.window.get(); }));
    commands::Run(run.program, CommandId::mnuFileOpenAddressBook);
    run.window->AfterEvent();
    EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == run.view; }));
    EXPECT_EQ(run.Line(0)->text(), "Ann Ash");
}

} // namespace
