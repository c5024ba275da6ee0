#include "desktop/desktop_run.h"
#include "desktop/frm_file_view.h"
#include "desktop/mnemonics.h"
#include "support/running_program.h"

#include <QClipboard>
#include <QFile>
#include <QMenu>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

FieldRef Text(PageId page, int index) {
    return {page, FieldKind::txt, index};
}

void Fill(DesktopRun& run, PageId page, int index, const char* text) {
    run.Click(page, index);
    run.Type(QLatin1String(text));
}

void TypeJaneRoe(DesktopRun& run) {
    run.Type(QStringLiteral("January 21, 2008"));
    run.Press(Qt::Key_Tab);
    run.Type(QStringLiteral("6:00 PM"));
    run.Press(Qt::Key_Return);
    run.Type(QStringLiteral("Jane Roe"));
    run.Press(Qt::Key_Down);
    run.Type(QStringLiteral("12 Elm Street"));
    run.Press(Qt::Key_Return);
    run.Type(QStringLiteral("Springfield, IL 62701"));
    run.Press(Qt::Key_Return);
    run.Type(QStringLiteral("(217) 555-0100"));
    Fill(run, PageId::frmP1, 8, "Garden Hall");
    Fill(run, PageId::frmP1, 10, "Ceremony arch");
    run.Press(Qt::Key_Return);
    run.Type(QStringLiteral("1250"));
    run.Press(Qt::Key_Return);
    run.Type(QStringLiteral("Aisle runner"));
    run.Press(Qt::Key_Return);
    run.Type(QStringLiteral("75.5"));
    QAction* exempt = run.window->MenuTree().Action(CommandId::mnuEditTextTaxExempt);
    emit run.window->MenuTree().Menu(CommandId::mnuEditTextBox)->aboutToShow();
    ASSERT_TRUE(exempt->isEnabled());
    exempt->trigger();
    run.ChoosePage(1);
    run.Click(PageId::frmP2, 0);
    run.Press(Qt::Key_F8);
    run.Type(QStringLiteral("3"));
    run.Press(Qt::Key_Return);
    run.Type(QStringLiteral("Chair covers"));
    run.Press(Qt::Key_Return);
    run.Type(QStringLiteral("19.99"));
    run.Press(Qt::Key_Return);
    run.ExpectWindowFollows();
    run.ChoosePage(4);
    run.Press(Qt::Key_PageDown);
    Fill(run, PageId::frmP5, 32, "Last line");
    Fill(run, PageId::frmP5, 65, "10");
    run.ChoosePage(5);
    run.Click(PageId::frmP6, 4);
    run.Press(Qt::Key_A, Qt::ControlModifier);
    run.Type(QStringLiteral("500"));
    run.Click(PageId::frmP6, 1);
}

TEST(Journey, AProposalIsTypedSavedOpenedAndPrintedInTheWindow) {
    DesktopRun run;
    TypeJaneRoe(run);
    run.ExpectWindowFollows();
    const char* totals[] = {"1,395.47", "1,319.97", "108.90", "1,504.37", "500.00", "1,004.37"};
    for (int index = 0; index < 6; ++index) {
        EXPECT_EQ(run.Field(Text(PageId::frmP6, index)).text(), QLatin1String(totals[index]));
    }
    run.recording.questions.Expect("File was saved as Jane Roe.hef");
    run.Press(Qt::Key_S, Qt::ControlModifier);
    run.recording.questions.Done();
    EXPECT_EQ(run.folder.Read("Proposals/Jane Roe.hef"), ReadTestData("jane_roe/Jane Roe.hef"));

    run.Press(Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(run.Field(Text(PageId::frmP1, 2)).text(), QString());
    run.Press(Qt::Key_O, Qt::ControlModifier);
    auto* chooser = run.window->findChild<FrmFileView*>(QStringLiteral("frmFile"));
    ASSERT_NE(chooser, nullptr);
    EXPECT_EQ(chooser->windowTitle(), QStringLiteral("Opening Proposal File"));
    auto* list = chooser->findChild<FileTable*>(QStringLiteral("FileList1"));
    ASSERT_EQ(list->topLevelItemCount(), 1);
    list->setCurrentItem(list->topLevelItem(0));
    EXPECT_EQ(chooser->findChild<QLabel*>(QStringLiteral("lblOpenFileName"))->text(),
              QStringLiteral("Jane Roe.hef"));
    QTest::mouseClick(chooser->findChild<QPushButton*>(QStringLiteral("cmdOpenOK")), Qt::LeftButton);
    EXPECT_EQ(run.Field(Text(PageId::frmP1, 2)).text(), QStringLiteral("Jane Roe"));
    run.ChoosePage(1);
    EXPECT_EQ(run.Field({PageId::frmP2, FieldKind::txtQty, 0}).text(), QStringLiteral("3"));
    run.ExpectWindowFollows();
    run.ChoosePage(5);
    for (int index = 0; index < 6; ++index) {
        EXPECT_EQ(run.Field(Text(PageId::frmP6, index)).text(), QLatin1String(totals[index]));
    }

    const QString pdf = QString::fromStdString(run.folder / "out.pdf");
    QString suggested;
    run.printers.AskForFile = [&](const QString& file) {
        suggested = file;
        return pdf;
    };
    run.window->MenuTree().Action(CommandId::mnuFilePrintAll)->trigger();
    EXPECT_TRUE(suggested.endsWith(QStringLiteral("Proposals/Jane Roe.pdf")));
    EXPECT_TRUE(PdfText(pdf, 1).contains(QStringLiteral("Ceremony arch")));
    EXPECT_TRUE(PdfText(pdf, 1).contains(QStringLiteral("Page 1 of 6")));
    EXPECT_TRUE(PdfText(pdf, 2).contains(QStringLiteral("Chair covers")));
    EXPECT_TRUE(PdfText(pdf, 5).contains(QStringLiteral("Last line")));
    EXPECT_TRUE(PdfText(pdf, 6).contains(QStringLiteral("Our Copy")));
    EXPECT_TRUE(PdfText(pdf, 7).contains(QStringLiteral("Client's Copy")));
    for (const char* figure : totals) {
        EXPECT_TRUE(PdfText(pdf, 6).contains(QLatin1String(figure))) << figure;
        EXPECT_TRUE(PdfText(pdf, 7).contains(QLatin1String(figure))) << figure;
    }
    EXPECT_FALSE(PdfText(pdf, 2).contains(QStringLiteral("Qty."))) << "hidden row fields stay off the paper";
    EXPECT_EQ(run.Find<QLabel>("lblHighestPage")->text(), QStringLiteral("Utilizing 6 of 6 Available Pages"));
}

TEST(Paper, EveryFieldStandsAtItsLeftAndTop) {
    DesktopRun run;
    TypeJaneRoe(run);
    const QString pdf = QString::fromStdString(run.folder / "out.pdf");
    run.printers.AskForFile = [&](const QString&) { return pdf; };
    run.window->MenuTree().Action(CommandId::mnuFilePrintAll)->trigger();
    const auto words = PdfWords(pdf, 1);
    const auto find = [&](const char* text) {
        for (const PdfWord& word : words) {
            if (word.Text == QLatin1String(text)) {
                return word;
            }
        }
        ADD_FAILURE() << "not on paper: " << text;
        return PdfWord();
    };
    // Twips are twentieths of a point.
    EXPECT_NEAR(find("Ceremony").XMin, 900 / 20.0, 0.1);
    EXPECT_NEAR(find("Ceremony").YMin, 10260 / 20.0, 0.25);
    EXPECT_NEAR(find("Aisle").YMin, 10620 / 20.0, 0.25);
    EXPECT_NEAR(find("1,250.00").XMax, (10080 + 1260) / 20.0, 0.1) << "amounts end at the right edge";
    EXPECT_NEAR(find("75.50").XMax, 11340 / 20.0, 0.1);
    EXPECT_NEAR(find("6:00").YMin, 4500 / 20.0, 0.25);
    EXPECT_NEAR(find("PM").XMax, (9000 + 2160) / 20.0, 0.1);
    EXPECT_NEAR(find("Venue").XMin, 5760 / 20.0, 0.1);
    EXPECT_NEAR(find("Jane").XMin, 3780 / 20.0, 0.1);
    EXPECT_NEAR(find("$").XMin, 9900 / 20.0, 0.1);
}

TEST(Paper, ALineIsAsLongOnTheScreenAsInThePdf) {
    DesktopRun run;
    const char* lines[] = {
        "WAVE To Ty AV fi ffl office affair 0123456789 ,.;:'\"",
        "The client is responsible for costs incurred as a result of any damage or breakage",
        "iiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiii", "MMMMMMMMMMMMMMMMMMMMMMMM",
        "Caf\xE9 na\xEFve \x80 100 \x99"};
    struct Cut {
        float Size;
        bool Bold;
        bool Italic;
    };
    for (const Cut cut : {Cut{10, false, false}, Cut{9, false, false}, Cut{12, true, false},
                          Cut{9.75F, true, true}, Cut{15.75F, false, true}, Cut{6, false, false}}) {
        PaperRecord record;
        double y = 400;
        for (const char* line : lines) {
            PaperRecord::Text text;
            text.Corner = QPointF(600, y);
            text.Words = line;
            text.Font = {"Times New Roman", cut.Size, cut.Bold, cut.Italic};
            record.Texts.push_back(text);
            y += 600;
        }
        const QString file = QString::fromStdString(run.folder / "width.pdf");
        QFile out(file);
        ASSERT_TRUE(out.open(QIODevice::WriteOnly | QIODevice::Truncate));
        out.write(QtPrinters::MakePdf({&record}, QStringLiteral("Width")));
        out.close();
        const auto words = PdfWords(file, 1);
        for (std::size_t index = 0; index < std::size(lines); ++index) {
            const double top = (400 + 600 * static_cast<double>(index)) / 20;
            double right = 0;
            for (const PdfWord& word : words) {
                if (qAbs(word.YMin - top) < 6) {
                    right = qMax(right, word.XMax);
                }
            }
            // What the field on screen draws from, and what wraps and aligns in the model.
            const double screen =
                static_cast<double>(run.measure.Width(lines[index], record.Texts[index].Font)) / 20;
            EXPECT_NEAR(right - 30, screen, 0.1) << lines[index] << " at " << cut.Size;
        }
    }
}

/// First and last column with ink in a picture of a line.
std::pair<int, int> InkOf(const QImage& image) {
    int first = image.width();
    int last = -1;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qGray(image.pixel(x, y)) < 96) {
                first = qMin(first, x);
                last = qMax(last, x);
            }
        }
    }
    return {first, last};
}

TEST(Paper, TheInkOfAFieldOnTheScreenIsAsWideAsItsMeasure) {
    DesktopRun run;
    run.Click(PageId::frmP1, 10);
    run.Type(QStringLiteral("H office chairs and tables for the ceremony, delivered and set up H"));
    run.Click(PageId::frmP1, 11);
    TextAreaView& field = run.Field(Text(PageId::frmP1, 10));
    constexpr int kFine = 8;
    QImage picture(field.size() * kFine, QImage::Format_RGB32);
    picture.setDevicePixelRatio(kFine);
    field.render(&picture);
    const auto [first, last] = InkOf(picture);
    const double scale = kFine * run.window->PixelsPerTwip();
    // An H has side bearings of under half a point.
    EXPECT_NEAR((last - first + 1) / scale, field.TextWidth(), 12);
    EXPECT_NEAR(first / scale, 0, 8);
}

TEST(Typing, ACharacterWithoutAByteIsRefusedAndTold) {
    DesktopRun run;
    run.Click(PageId::frmP1, 3);
    QKeyEvent press(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, QString(QChar(0x0416)));
    QApplication::sendEvent(QApplication::focusWidget(), &press);
    EXPECT_EQ(run.Field(Text(PageId::frmP1, 3)).text(), QString());
    EXPECT_EQ(run.Find<QLabel>("lblNotice")->text(),
              QStringLiteral("One character was not taken: it cannot be kept in a proposal."));
    run.Type(QStringLiteral("a"));
    EXPECT_NE(run.Find<QLabel>("lblNotice")->text(), QString()) << "who types on has not read it yet";
}

TEST(Typing, AMegabytePastedIsTakenAsFarAsALineGoes) {
    DesktopRun run;
    run.Click(PageId::frmP1, 3);
    QString text(1 << 20, QLatin1Char('x'));
    text[3] = QLatin1Char('\n');
    text[5] = QChar(0x0416);
    text[7] = QChar(0);
    QGuiApplication::clipboard()->setText(text);
    run.Press(Qt::Key_V, Qt::ControlModifier);
    const QString taken = run.Field(Text(PageId::frmP1, 3)).text();
    EXPECT_TRUE(taken.startsWith(QStringLiteral("xxx xxxx")));
    EXPECT_EQ(taken.size(), 4096);
    EXPECT_EQ(run.program.pages[PageId::frmP1].txt[3].BackColor, colors::kOverLimit);
}

TEST(Typing, AnInputMethodPassesTheSameFilter) {
    DesktopRun run;
    run.Click(PageId::frmP1, 20);
    QInputMethodEvent commit;
    commit.setCommitString(QStringLiteral("1a2"));
    QApplication::sendEvent(QApplication::focusWidget(), &commit);
    EXPECT_EQ(run.Field(Text(PageId::frmP1, 20)).text(), QStringLiteral("12"));
    EXPECT_EQ(run.program.totals.AmountTable[20][PageId::frmP1], 12.0F);
}

TEST(Typing, BackspaceSelectionAndUndoReachTheModel) {
    DesktopRun run;
    run.Click(PageId::frmP1, 3);
    run.Type(QStringLiteral("Elm Street"));
    run.Press(Qt::Key_Backspace);
    EXPECT_EQ(run.program.pages[PageId::frmP1].txt[3].Text, "Elm Stree");
    run.Press(Qt::Key_Left, Qt::ShiftModifier);
    run.Press(Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_EQ(run.program.pages[PageId::frmP1].txt[3].SelLength, 2);
    run.Press(Qt::Key_Delete);
    EXPECT_EQ(run.program.pages[PageId::frmP1].txt[3].Text, "Elm Str");
    run.Press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(run.program.pages[PageId::frmP1].txt[3].Text, "Elm Stree");
}

TEST(Typing, ClickingPutsTheCaretBetweenTheNearestCharacters) {
    DesktopRun run;
    run.Click(PageId::frmP1, 10);
    run.Type(QStringLiteral("MMMM"));
    TextAreaView& field = run.Field(Text(PageId::frmP1, 10));
    const double one = static_cast<double>(run.measure.Width("M", {"Times New Roman", 10, false, false}));
    const int x = qRound(one * 2.1 * run.window->PixelsPerTwip());
    QTest::mouseClick(&field, Qt::LeftButton, Qt::NoModifier, QPoint(x, 5));
    EXPECT_EQ(run.program.pages[PageId::frmP1].txt[10].SelStart, 2);
    run.Type(QStringLiteral("x"));
    EXPECT_EQ(field.text(), QStringLiteral("MMxMM"));
}

TEST(Menus, HoldEveryEntryOfTheTable) {
    DesktopRun run;
    EXPECT_EQ(run.window->MenuTree().Action(CommandId::mnuFileSaveEvent)->text(),
              QStringLiteral("&Save Proposal File")); // a second mnemonic would be read out
    EXPECT_EQ(run.window->MenuTree().Action(CommandId::mnuFileSaveEvent)->shortcut(),
              QKeySequence(QStringLiteral("Ctrl+S")));
    EXPECT_FALSE(run.window->MenuTree().Action(CommandId::mnuFileConvertRTF)->isVisible());
    EXPECT_TRUE(run.window->MenuTree().Action(CommandId::mnuOptEnableOverwriteFmtTextBoxes)->isChecked());
}

TEST(ScrollBar, AndPageKeysMoveThePaper) {
    DesktopRun run;
    run.window->resize(1024, 560); // two windows' heights do not reach the foot of the page
    run.Press(Qt::Key_PageDown);
    const int half = static_cast<int>(run.program.main.ClientHeight) / 2;
    EXPECT_EQ(run.program.main.VScroll1.Value, half);
    EXPECT_NEAR(run.window->PageOf(PageId::frmP1).y(), -half * run.window->PixelsPerTwip(), 1);
    run.Press(Qt::Key_PageUp);
    EXPECT_EQ(run.program.main.VScroll1.Value, 0);
    run.Find<QScrollBar>("VScroll1")->triggerAction(QAbstractSlider::SliderToMaximum);
    EXPECT_EQ(run.program.main.VScroll1.Value, run.program.main.VScroll1.Max);
    EXPECT_EQ(run.program.pages[PageId::frmP1].Top, -static_cast<float>(run.program.main.VScroll1.Max));
    run.ChoosePage(2);
    EXPECT_EQ(run.program.main.VScroll1.Value, 0);
}

TEST(Preview, ShowsInkAndResumesWithEverythingInItsPlace) {
    DesktopRun run;
    run.Type(QStringLiteral("January 21, 2008"));
    run.Press(Qt::Key_R, Qt::ControlModifier);
    EXPECT_EQ(mnemonics::Plain(run.Find<QPushButton>("cmdPreview")->text()),
              QStringLiteral("Resume Editing"));
    EXPECT_FALSE(run.Field(Text(PageId::frmP1, 0)).isVisible());
    EXPECT_TRUE(run.program.pages[PageId::frmP1].txt[0].Visible);
    run.window->MenuTree().Action(CommandId::mnuFileResume)->trigger();
    EXPECT_TRUE(run.Field(Text(PageId::frmP1, 0)).isVisible());
    EXPECT_EQ(mnemonics::Plain(run.Find<QPushButton>("cmdPreview")->text()), QStringLiteral("Print Preview"));
}

TEST(Closing, AsksAboutUnsavedTextAndYesKeepsTheProgramOpen) {
    DesktopRun run;
    run.Click(PageId::frmP1, 2);
    run.Type(QStringLiteral("Ann"));
    run.recording.questions.ExpectBox(
        {"The file has been changed. Do you want to save it?", Buttons::YesNoCancel, "Text has been Changed"},
        Answer::Cancel);
    EXPECT_FALSE(run.window->close());
    run.recording.questions.Expect("The file has been changed.", Answer::Yes);
    run.recording.questions.Expect("File was saved as Ann.hef");
    EXPECT_FALSE(run.window->close());
    EXPECT_TRUE(run.folder.Has("Proposals/Ann.hef"));
    EXPECT_TRUE(run.window->isVisible());
}

} // namespace
