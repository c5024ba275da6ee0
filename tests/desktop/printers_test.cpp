#include "base/files.h"
#include "desktop/desktop_run.h"
#include "desktop/mnemonics.h"
#include "output/print.h"
#include "program/windows.h"
#include "support/failing_disk.h"
#include "support/small_disk.h"

#include <QDialog>
#include <QFile>
#include <QFileDialog>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <cerrno>
#include <chrono>
#include <filesystem>

namespace {

QByteArray Facts(const QString& pdf) {
    QProcess process;
    process.start(QStringLiteral("pdfinfo"), {pdf});
    EXPECT_TRUE(process.waitForFinished(20000));
    return process.readAllStandardOutput();
}

QString IntoFile(DesktopRun& run, const char* name) {
    const QString pdf = QString::fromStdString(run.folder / name);
    run.printers.AskForFile = [pdf](const QString&) { return pdf; };
    return pdf;
}

/// The printer on its own, drawing into a file.
struct Press {
    ScratchFolder folder;
    QtTextMeasure measure;
    QtPrinters printers{measure};
    QString pdf = QString::fromStdString(folder / "out.pdf");

    Press() {
        EXPECT_TRUE(printers.MakeCurrent("Print to PDF"));
        printers.AskForFile = [this](const QString&) { return pdf; };
        EXPECT_TRUE(printers.BeginCommand({folder / "suggested.pdf"}));
    }
    Printer& Paper() { return printers.Device(); }
};

TEST(PrinterNames, EndWithTheOneThatIsAlwaysThere) {
    Press press;
    const auto names = press.printers.Names();
    ASSERT_FALSE(names.empty());
    EXPECT_EQ(names.back(), "Print to PDF");
    EXPECT_EQ(press.printers.Current(), "Print to PDF");
}

TEST(PrinterNames, AreTakenToTheLetter) {
    Press press;
    EXPECT_FALSE(press.printers.MakeCurrent("print to pdf"));
    EXPECT_FALSE(press.printers.MakeCurrent("No Such Printer"));
    EXPECT_FALSE(press.printers.MakeCurrent(""));
    EXPECT_EQ(press.printers.Current(), "Print to PDF");
}

TEST(Paper, IsLetterInPortraitOnePageADocument) {
    Press press;
    for (const int order : {2, 1}) {
        press.printers.NameDocument("frmP" + std::to_string(order), order);
        press.Paper().CurrentX = 1440;
        press.Paper().CurrentY = 720;
        press.Paper().Print("document " + std::to_string(order));
        press.Paper().EndDoc();
    }
    press.printers.EndCommand();
    const QByteArray facts = Facts(press.pdf);
    EXPECT_TRUE(facts.contains("Page size:       612 x 792 pts (letter)")) << facts.toStdString();
    EXPECT_TRUE(facts.contains("Pages:           2"));
    EXPECT_TRUE(PdfText(press.pdf, 1).contains(QStringLiteral("document 1"))) << "in reading order";
    EXPECT_TRUE(PdfText(press.pdf, 2).contains(QStringLiteral("document 2")));
    EXPECT_NEAR(PdfWords(press.pdf, 1).at(0).XMin, 72, 0.1) << "from the paper's own corner";
    EXPECT_NEAR(PdfWords(press.pdf, 1).at(0).YMin, 36, 0.1);
}

TEST(Paper, IsNotStretchedToThePrintersScale) {
    Press press;
    press.Paper().ScaleWidth = 6120;
    press.Paper().ScaleHeight = 7920;
    press.Paper().CurrentX = 1440;
    press.Paper().Print("here");
    press.Paper().EndDoc();
    press.printers.EndCommand();
    EXPECT_NEAR(PdfWords(press.pdf, 1).at(0).XMin, 72, 0.1);
}

TEST(Paper, APrintedLineIsFollowedByTheNextAtTheLeftEdge) {
    Press press;
    Printer& paper = press.Paper();
    paper.FontSize = 10;
    paper.CurrentX = 2000;
    paper.CurrentY = 1000;
    const float height = paper.TextHeight();
    EXPECT_GE(height, 200);
    paper.Print("first");
    EXPECT_EQ(paper.CurrentX, 0);
    EXPECT_EQ(paper.CurrentY, 1000 + height);
    paper.Print("");
    EXPECT_EQ(paper.CurrentY, 1000 + 2 * height) << "an empty text is a line too";
}

TEST(Paper, ANewPageBeginsInTheCornerOfTheSameDocument) {
    Press press;
    Printer& paper = press.Paper();
    paper.ScaleLeft = 360;
    paper.CurrentX = 720;
    paper.Print("one");
    paper.NewPage();
    EXPECT_EQ(paper.CurrentX, 0);
    EXPECT_EQ(paper.CurrentY, 0);
    EXPECT_EQ(paper.ScaleLeft, 360) << "the offset holds to the end of the document";
    paper.CurrentX = 720;
    paper.Print("two");
    paper.EndDoc();
    EXPECT_EQ(paper.ScaleLeft, 0) << "and a new one begins without";
    press.printers.EndCommand();
    EXPECT_NEAR(PdfWords(press.pdf, 1).at(0).XMin, 18, 0.1);
    EXPECT_NEAR(PdfWords(press.pdf, 2).at(0).XMin, 18, 0.1);
}

TEST(Paper, EndingADocumentInWhichNothingStandsDoesNothing) {
    Press press;
    press.Paper().ScaleLeft = 360;
    press.Paper().EndDoc();
    EXPECT_EQ(press.Paper().ScaleLeft, 360);
    press.printers.EndCommand();
    EXPECT_FALSE(QFile::exists(press.pdf));
}

/// A pasted text may hold soft hyphens (0xAD), which are not drawn.
TEST(Paper, HasATextWithSoftHyphensAsWideAsItIsMeasured) {
    Press press;
    const std::string text = "re\xAD"
                             "cep\xAD"
                             "tion";
    Printer& paper = press.Paper();
    paper.CurrentX = 1440;
    paper.Print(text);
    paper.EndDoc();
    press.printers.EndCommand();
    const auto words = PdfWords(press.pdf, 1);
    ASSERT_EQ(words.size(), 1U);
    const TextFont font{paper.Font, paper.FontSize, false, false};
    EXPECT_NEAR((words[0].XMax - words[0].XMin) * 20, press.measure.Width(text, font), 2);
}

TEST(Paper, LeavesOutWhatAnOffsetCarriesFarBeyondItsEdges) {
    Press press;
    Printer& paper = press.Paper();
    for (const float offset : {1e37F, -1e37F, 0.0F}) {
        paper.ScaleLeft = offset;
        paper.CurrentX = 1440;
        paper.CurrentY = 1440;
        paper.FontUnderline = true;
        paper.Line(0, 0, 1440, 1440);
        paper.PaintPicture({PictureRef::Source::NoTaxMark, ""}, 720, 720);
        paper.Print(offset == 0 ? "near" : "far");
    }
    paper.EndDoc();
    press.printers.EndCommand();
    QProcess reader;
    reader.start(QStringLiteral("pdftotext"), {press.pdf, QStringLiteral("-")});
    ASSERT_TRUE(reader.waitForFinished(20000));
    EXPECT_EQ(reader.readAllStandardOutput().trimmed(), "near");
    EXPECT_EQ(reader.readAllStandardError(), "") << "a reader finds nothing to complain of";
}

TEST(Paper, AFileThatCannotBeWrittenIsAFailure) {
    Press press;
    press.pdf = QString::fromStdString(press.folder / "no such folder/out.pdf");
    ASSERT_TRUE(press.printers.BeginCommand({"x.pdf"}));
    press.Paper().Print("lost");
    press.Paper().EndDoc();
    EXPECT_THROW(press.printers.EndCommand(), files::FileError);
    // What could not be written does not come back with the next command.
    press.pdf = QString::fromStdString(press.folder / "out.pdf");
    ASSERT_TRUE(press.printers.BeginCommand({"x.pdf"}));
    press.Paper().Print("kept");
    press.Paper().EndDoc();
    press.printers.EndCommand();
    EXPECT_FALSE(PdfText(press.pdf, 1).contains(QStringLiteral("lost")));
    EXPECT_TRUE(PdfText(press.pdf, 1).contains(QStringLiteral("kept")));
}

TEST(Paper, KeepsEveryPointOfALogo) {
    Press press;
    QImage noise(64, 64, QImage::Format_RGB32);
    for (int y = 0; y < noise.height(); ++y) {
        for (int x = 0; x < noise.width(); ++x) {
            noise.setPixel(x, y, qRgb(x * 37 % 256, y * 61 % 256, (x * y) % 256));
        }
    }
    const QString logo = QString::fromStdString(press.folder / "noise.png");
    ASSERT_TRUE(noise.save(logo));
    std::string told;
    press.printers.Written = [&](const std::string& path) { told = path; };
    press.Paper().PaintPicture({PictureRef::Source::File, logo.toStdString()}, 1440, 1440,
                               PictureSize{2880, 2880});
    press.Paper().EndDoc();
    press.printers.EndCommand();
    EXPECT_EQ(told, press.pdf.toStdString());
    QFile file(press.pdf);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    EXPECT_TRUE(bytes.contains("/Subtype /Image"));
    EXPECT_FALSE(bytes.contains("DCTDecode")) << "a lossy picture";
}

TEST(Paper, LeavesNoHalfAFileOnAFullDisk) {
    Press press;
    press.Paper().Print("lost");
    press.Paper().EndDoc();
    {
        const SmallDisk disk(1000);
        EXPECT_THROW(press.printers.EndCommand(), files::FileError);
    }
    EXPECT_FALSE(QFile::exists(press.pdf));
}

TEST(Paper, AnOlderPdfOutlivesAFullDisk) {
    Press press;
    QFile older(press.pdf);
    ASSERT_TRUE(older.open(QIODevice::WriteOnly));
    older.write("last year's");
    older.close();
    press.Paper().Print("lost");
    press.Paper().EndDoc();
    {
        const SmallDisk disk(1000);
        EXPECT_THROW(press.printers.EndCommand(), files::FileError);
    }
    ASSERT_TRUE(older.open(QIODevice::ReadOnly));
    EXPECT_EQ(older.readAll(), "last year's");
}

TEST(Paper, IsOldOrNewAndWholeWhateverErrorStopsIt) {
    using Call = FailingDisk::Call;
    Press press;
    const std::string path = press.folder / "out.pdf";
    int failures = 0;
    for (const Call call : {Call::Open, Call::Read, Call::Write, Call::SetLength, Call::GiveMode, Call::Flush,
                            Call::Close, Call::Rename}) {
        bool met = true;
        for (int nth = 1; met; ++nth) {
            for (const int error : {ENOSPC, EIO, EACCES, EROFS, EDQUOT, EINTR}) {
                SCOPED_TRACE("call " + std::to_string(static_cast<int>(call)) + ", the " +
                             std::to_string(nth) + "th, error " + std::to_string(error));
                press.folder.Write("out.pdf", "last year's");
                EXPECT_TRUE(press.printers.BeginCommand({path}));
                press.Paper().Print("new");
                press.Paper().EndDoc();
                bool told = false;
                {
                    const FailingDisk disk{{call, nth, error, 1}};
                    try {
                        press.printers.EndCommand();
                    } catch (const files::FileError&) {
                        told = true;
                    }
                    met = disk.Failed() > 0;
                }
                const std::string now = press.folder.Read("out.pdf");
                const bool whole = now.starts_with("%PDF") && now.find("%%EOF") != std::string::npos;
                ASSERT_TRUE(told ? now == "last year's" : whole) << now.substr(0, 20);
                if (!met) {
                    break;
                }
                ++failures;
            }
        }
    }
    EXPECT_GE(failures, 6 * 5);
}

TEST(Paper, WhatABrokenWriteLeftBesideAFileGoesWithTheNextOne) {
    Press press;
    const std::string leftOver = ".quillbrook.another-machine.1.0.tmp";
    press.folder.Write(leftOver, "half of it");
    std::filesystem::last_write_time(press.folder / leftOver,
                                     std::filesystem::file_time_type::clock::now() - std::chrono::hours(48));
    ASSERT_TRUE(press.printers.BeginCommand({press.folder / "out.pdf"}));
    press.Paper().Print("text");
    press.Paper().EndDoc();
    press.printers.EndCommand();
    EXPECT_TRUE(press.folder.Has("out.pdf"));
    EXPECT_FALSE(press.folder.Has(leftOver));
}

TEST(Paper, AFileGetsTheEndingOfAPdf) {
    Press press;
    press.pdf = QString::fromStdString(press.folder / "mine");
    ASSERT_TRUE(press.printers.BeginCommand({"x.pdf"}));
    press.Paper().Print("text");
    press.Paper().EndDoc();
    press.printers.EndCommand();
    EXPECT_TRUE(press.folder.Has("mine.pdf"));
}

/// A person in front of the window that asks for the file.
struct PdfQuestion {
    ScratchFolder folder;
    QtTextMeasure measure;
    QtPrinters printers{measure};
    QString name;     ///< as it stands in the window when it opens
    QString question; ///< whether a file may be replaced; empty when nobody asked

    PdfQuestion() { EXPECT_TRUE(printers.MakeCurrent("Print to PDF")); }
    /// Types a name unless it is empty, presses Enter, and says yes or no when asked.
    bool Answer(const std::string& suggested, const QString& typed, QMessageBox::StandardButton answer) {
        QTimer::singleShot(0, [&] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            auto* edit = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
            ASSERT_NE(edit, nullptr);
            name = edit->text();
            if (!typed.isEmpty()) {
                edit->setText(typed);
            }
            QTimer::singleShot(0, [&] {
                auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
                if (box != nullptr) {
                    question = box->text();
                    box->button(answer)->click();
                }
            });
            QTest::keyClick(edit, Qt::Key_Return);
            if (dialog->isVisible()) {
                dialog->reject();
            }
        });
        return printers.BeginCommand({suggested});
    }
    void Print() {
        printers.Device().Print("text");
        printers.Device().EndDoc();
        printers.EndCommand();
    }
};

TEST(PdfFile, IsNotReplacedUnaskedWhenItsNameHoldsAPoint) {
    PdfQuestion person;
    person.folder.Write("St. Mary.pdf", "an older proposal");
    EXPECT_FALSE(person.Answer(person.folder / "x.pdf", QStringLiteral("St. Mary"), QMessageBox::No));
    EXPECT_EQ(person.question, QStringLiteral("St. Mary.pdf already exists.\nDo you want to replace it?"));
    EXPECT_EQ(person.folder.Read("St. Mary.pdf"), "an older proposal");
    EXPECT_TRUE(person.Answer(person.folder / "x.pdf", QStringLiteral("St. Mary"), QMessageBox::Yes));
    person.Print();
    EXPECT_EQ(person.folder.Read("St. Mary.pdf").substr(0, 5), "%PDF-");
}

TEST(PdfFile, IsWrittenWithoutAQuestionWhereThereIsNone) {
    PdfQuestion person;
    EXPECT_TRUE(person.Answer(person.folder / "John Doe.pdf", QString(), QMessageBox::No));
    EXPECT_EQ(person.name, QStringLiteral("John Doe.pdf"));
    EXPECT_TRUE(person.question.isEmpty()) << person.question.toStdString();
    person.Print();
    EXPECT_TRUE(person.folder.Has("John Doe.pdf"));
}

TEST(PdfFile, KeepsTheWholeNameOfAClientWithANickname) {
    PdfQuestion person;
    EXPECT_TRUE(person.Answer(person.folder / "Robert \"Bob\" Smith.pdf", QString(), QMessageBox::No));
    person.Print();
    EXPECT_TRUE(person.folder.Has("Robert 'Bob' Smith.pdf"));
}

TEST(PdfFile, NothingIsDeletedInTheWindowThatAsksForIt) {
    PdfQuestion person;
    person.folder.Write("Jane Roe.pdf", "an older proposal");
    QTimer::singleShot(0, [] {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        auto* list = dialog->findChild<QListView*>(QStringLiteral("listView"));
        ASSERT_NE(list, nullptr);
        EXPECT_TRUE(QTest::qWaitFor([&] { return list->model()->rowCount(list->rootIndex()) == 1; }));
        list->setCurrentIndex(list->model()->index(0, 0, list->rootIndex()));
        QTimer::singleShot(0, [] {
            if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()); box != nullptr) {
                box->button(QMessageBox::Yes)->click();
            }
        });
        QTest::keyClick(list, Qt::Key_Delete);
        QCoreApplication::processEvents();
        dialog->reject();
    });
    EXPECT_FALSE(person.printers.BeginCommand({person.folder / "x.pdf"}));
    EXPECT_EQ(person.folder.Read("Jane Roe.pdf"), "an older proposal");
}

TEST(Printing, TellsOfAFileThatCannotBeWritten) {
    DesktopRun run;
    IntoFile(run, "no such folder/out.pdf");
    run.recording.questions.Expect("An error occurred in PrintTheForm.");
    run.window->MenuTree().Action(CommandId::mnuFilePrintPage1)->trigger();
    EXPECT_NE(run.folder.Read("Error.log").find("PrintTheForm"), std::string::npos);
}

TEST(Printing, GivesTheKeyboardBackToTheMainWindow) {
    DesktopRun run;
    IntoFile(run, "out.pdf");
    run.Click(PageId::frmP1, 3);
    QWidget* field = QApplication::focusWidget();
    run.Press(Qt::Key_P, Qt::ControlModifier);
    EXPECT_TRUE(run.folder.Has("out.pdf"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::focusWidget() == field; }));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(run.window->findChild<QDialog*>(QStringLiteral("frmDialog")), nullptr);
}

TEST(Printing, ShowsWhichPageIsPrintedAndCanBeCancelled) {
    DesktopRun run;
    const QString pdf = IntoFile(run, "out.pdf");
    QString message;
    QString title;
    QTimer::singleShot(0, run.window.get(), [&] {
        auto* dialog = run.window->findChild<QDialog*>(QStringLiteral("frmDialog"));
        ASSERT_NE(dialog, nullptr);
        EXPECT_TRUE(dialog->isVisible());
        EXPECT_FALSE(dialog->isModal());
        title = dialog->windowTitle();
        message = dialog->findChild<QLabel*>(QStringLiteral("lblMessage"))->text();
        QTest::mouseClick(dialog->findChild<QPushButton*>(QStringLiteral("cmdCancelPrint")), Qt::LeftButton);
    });
    run.window->MenuTree().Action(CommandId::mnuFilePrintAll)->trigger();
    EXPECT_EQ(title, QStringLiteral("Printing"));
    EXPECT_EQ(message, QStringLiteral("Printing Page 6 of 6 Copy"));
    EXPECT_TRUE(Facts(pdf).contains("Pages:           7")) << "the run goes on";
    EXPECT_TRUE(run.program.printing.PrintCancelled);
}

TEST(Printing, IsDrawnIntoAPreviewThatIsUp) {
    DesktopRun run;
    IntoFile(run, "out.pdf");
    run.Type(QStringLiteral("January 21, 2008"));
    run.Press(Qt::Key_R, Qt::ControlModifier);
    PageView& page = run.window->PageOf(PageId::frmP1);
    const QImage before = page.grab().toImage();
    run.window->MenuTree().Action(CommandId::mnuFilePrintPage1)->trigger();
    const QImage after = page.grab().toImage();
    EXPECT_EQ(before, after) << "the preview has shown what came to paper, the number of pages, too";
    EXPECT_EQ(run.program.pages[PageId::frmP1].lbl[31].Caption, "Page 1 of 2");
    EXPECT_EQ(mnemonics::Plain(run.Find<QPushButton>("cmdPreview")->text()),
              QStringLiteral("Resume Editing"));
    EXPECT_FALSE(run.Field({PageId::frmP1, FieldKind::txt, 0}).isVisible());
}

} // namespace
