#include "desktop/desktop_run.h"
#include "desktop/convert.h"
#include "desktop/tool_strip.h"
#include "pages/fields.h"
#include "shell/start_up.h"
#include "shell/wiring.h"
#include "support/running_program.h"

#include <QProcess>
#include <QRegularExpression>
#include <QTest>

#include <gtest/gtest.h>

DesktopRun::DesktopRun() {
    folder.Write("UserPreferences.txt", ReadTestData("jane_roe/UserPreferences.txt"));
    folder.Write("Proposals/SalesTax.txt", ReadTestData("jane_roe/SalesTax.txt"));
    program.folders.InstallFolder = folder.Path();
    folder.MakeFolder("Home");
    program.folders.Drives.Home = folder / "Home/";
    static_cast<void>(printers.MakeCurrent("Print to PDF"));
    Wire(program);
    recording.questions.Allow(kNoEvents); // its folder has no proposals
    window = std::make_unique<FrmMainView>(program, measure);
    events.Follow = [this] { window->Follow(); };
    EXPECT_EQ(modStart::Main(program), modStart::StartResult::Running);
    PassSplash(program);
    recording.questions.Allow({});
    window->AfterEvent();
    window->showNormal();
    window->resize(1024, 768);
    window->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
    window->AfterEvent();
}

DesktopRun::~DesktopRun() {
    ExpectWindowFollows();
    recording.questions.Done();
}

TextAreaView& DesktopRun::Field(const FieldRef& field) {
    TextAreaView* view = window->PageOf(field.Page).Field(field);
    EXPECT_NE(view, nullptr);
    return *view;
}

void DesktopRun::Click(const FieldRef& field) {
    TextAreaView& view = Field(field);
    QTest::mouseClick(&view, Qt::LeftButton, Qt::NoModifier, QPoint(view.width() - 3, view.height() / 2));
}

void DesktopRun::Type(const QString& text) {
    for (const QChar character : text) {
        ASSERT_NE(QApplication::focusWidget(), nullptr);
        QTest::keyClick(QApplication::focusWidget(), character.toLatin1());
    }
}

void DesktopRun::Press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
}

void DesktopRun::ChoosePage(int index) {
    auto* button = window->findChild<QAbstractButton*>(QStringLiteral("imgPage(%1)").arg(index));
    ASSERT_NE(button, nullptr);
    QTest::mouseClick(button, Qt::LeftButton);
}

QWidget* DesktopRun::Child(const char* name) const {
    return window->findChild<QWidget*>(QLatin1String(name));
}

void DesktopRun::ExpectWindowFollows() {
    const PageId front = program.main.PageInFront;
    PageView& page = window->PageOf(front);
    EXPECT_TRUE(page.isVisible());
    const Page& record = program.pages[front];
    for (std::size_t index = 0; index < record.txt.size(); ++index) {
        const TextAreaView* view = page.Field({front, FieldKind::txt, static_cast<int>(index)});
        ASSERT_NE(view, nullptr);
        EXPECT_EQ(convert::ToModel(view->text()), record.txt[index].Text) << index;
        EXPECT_EQ(view->isVisible(), record.txt[index].Visible && !record.InkShown) << index;
        EXPECT_EQ(view->isReadOnly(), record.txt[index].Locked) << index;
    }
    for (std::size_t index = 0; index < record.lbl.size(); ++index) {
        const auto* label = page.findChild<QLabel*>(QStringLiteral("lbl(%1)").arg(index));
        EXPECT_EQ(label != nullptr && label->isVisible(), record.lbl[index].Visible && !record.InkShown)
            << index;
        if (label != nullptr) {
            EXPECT_EQ(label->text(), convert::ToQString(record.lbl[index].Caption));
        }
    }
    for (std::size_t index = 0; index < record.txtQty.size(); ++index) {
        const TextAreaView* view = page.Field({front, FieldKind::txtQty, static_cast<int>(index)});
        EXPECT_EQ(view != nullptr && view->isVisible(), record.txtQty[index].Visible && !record.InkShown);
    }
    EXPECT_EQ(window->windowTitle(), convert::ToQString(program.main.Caption));
    EXPECT_EQ(Find<QLabel>("lblTotal")->text(), convert::ToQString(program.main.lblTotal.Caption));
    EXPECT_EQ(Find<QScrollBar>("VScroll1")->value(), program.main.VScroll1.Value);
    if (program.main.Focus && program.main.Focus->Page == front && window->isActiveWindow() &&
        !record.InkShown) {
        EXPECT_EQ(QApplication::focusWidget(), page.Field(*program.main.Focus));
    }
}

namespace {

QByteArray Output(const QString& tool, const QStringList& arguments) {
    QProcess process;
    process.start(tool, arguments);
    EXPECT_TRUE(process.waitForFinished(20000));
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    return process.readAllStandardOutput();
}

} // namespace

std::vector<PdfWord> PdfWords(const QString& file, int page) {
    const QString number = QString::number(page);
    const QString html = QString::fromUtf8(
        Output(QStringLiteral("pdftotext"), {QStringLiteral("-bbox"), QStringLiteral("-f"), number,
                                             QStringLiteral("-l"), number, file, QStringLiteral("-")}));
    static const QRegularExpression word(QStringLiteral(
        "<word xMin=\"([^\"]+)\" yMin=\"([^\"]+)\" xMax=\"([^\"]+)\" yMax=\"([^\"]+)\">(.*?)</word>"));
    std::vector<PdfWord> words;
    auto matches = word.globalMatch(html);
    while (matches.hasNext()) {
        const auto match = matches.next();
        QString text = match.captured(5);
        text.replace(QLatin1String("&apos;"), QLatin1String("'"))
            .replace(QLatin1String("&amp;"), QLatin1String("&"));
        words.push_back({match.captured(1).toDouble(), match.captured(2).toDouble(),
                         match.captured(3).toDouble(), match.captured(4).toDouble(), text});
    }
    return words;
}

QString PdfText(const QString& file, int page) {
    const QString number = QString::number(page);
    return QString::fromUtf8(
        Output(QStringLiteral("pdftotext"), {QStringLiteral("-layout"), QStringLiteral("-f"), number,
                                             QStringLiteral("-l"), number, file, QStringLiteral("-")}));
}
