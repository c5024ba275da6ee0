#include "output/text_file.h"

#include "output/frm_text_file.h"
#include "output/text_print.h"
#include "program/windows.h"
#include "support/running_program.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <memory>

namespace {

TEST(TextFile, TellsUtf8FromTheProgramsOwnCharacters) {
    EXPECT_EQ(modExport::DecodeTextFile("caf\xC3\xA9"), "caf\xC3\xA9");
    EXPECT_EQ(modExport::DecodeTextFile("caf\xE9"), "caf\xC3\xA9");
    EXPECT_EQ(modExport::DecodeTextFile("\xEF\xBB\xBFtext"), "text") << "the mark is no text";
    EXPECT_EQ(modExport::DecodeTextFile("\xE2\x82\xAC 5"), "\xE2\x82\xAC 5");
    EXPECT_EQ(modExport::DecodeTextFile("\x80 5"), "\xE2\x82\xAC 5");
    EXPECT_EQ(modExport::DecodeTextFile("\xC0\x80"), "\xC3\x80\xE2\x82\xAC")
        << "an overlong sequence is none";
    EXPECT_EQ(modExport::DecodeTextFile("\xED\xA0\x80"), "\xC3\xAD\xC2\xA0\xE2\x82\xAC")
        << "nor is half a pair";
    EXPECT_EQ(modExport::DecodeTextFile("\xC3\xA9\xFF"), "\xC3\x83\xC2\xA9\xC3\xBF")
        << "one byte that is none makes all of it the program's own";
    EXPECT_EQ(modExport::DecodeTextFile("\xF0\x9F\x98\x80 a"), "\xF0\x9F\x98\x80 a");
    EXPECT_EQ(modExport::DecodeTextFile("\xF0\x9F\x98 a").substr(0, 2), "\xC3\xB0") << "nor is this";
    EXPECT_EQ(modExport::DecodeTextFile("ab\xE2\x82"), "ab\xC3\xA2\xE2\x80\x9A") << "nor is one cut short";
}

TEST(TextFile, TakesTheFirstSequenceOfEveryLengthAndNoLongerFormOfIt) {
    EXPECT_EQ(modExport::DecodeTextFile("\xC2\xA9 2008"), "\xC2\xA9 2008");
    EXPECT_EQ(modExport::DecodeTextFile("\xF0\x90\x80\x80"), "\xF0\x90\x80\x80");
    EXPECT_EQ(modExport::DecodeTextFile("\xF1\x80\x80\x80"), "\xF1\x80\x80\x80");
    EXPECT_EQ(modExport::DecodeTextFile("\xF0\x8F\x80\x80"), "\xC3\xB0\xC2\x8F\xE2\x82\xAC\xE2\x82\xAC")
        << "too long for what it says: four characters of the program's own";
}

TEST(TextFile, TakesTheLastCharacterThatThereIsAndNoneBeyondIt) {
    EXPECT_EQ(modExport::DecodeTextFile("\xF4\x8F\xBF\xBF"), "\xF4\x8F\xBF\xBF");
    EXPECT_EQ(modExport::DecodeTextFile("\xF4\x90\x80\x80"), "\xC3\xB4\xC2\x90\xE2\x82\xAC\xE2\x82\xAC");
}

TEST(TextFile, LooksAtTheCharacterRightBehindALongOneToo) {
    const std::string face = "\xF0\x9F\x98\x80";
    const std::string facesFourCharacters = "\xC3\xB0\xC5\xB8\xCB\x9C\xE2\x82\xAC";
    EXPECT_EQ(modExport::DecodeTextFile(face + "a"), face + "a");
    EXPECT_EQ(modExport::DecodeTextFile(face + "\xE9"), facesFourCharacters + "\xC3\xA9")
        << "the accented letter alone says that the file is the program's own";
    EXPECT_EQ(modExport::DecodeTextFile("\xE2\x82\xAC\xE9"), "\xC3\xA2\xE2\x80\x9A\xC2\xAC\xC3\xA9");
}

TEST(TextFile, TakesEveryKindOfLineEnd) {
    EXPECT_EQ(modExport::DecodeTextFile("a\r\nb\rc\nd\r"), "a\nb\nc\nd\n");
    EXPECT_EQ(modExport::DecodeTextFile("a\r\n"), "a\n") << "one line, not two";
}

TEST(TextFile, ShowsInAWindowOfItsOwnAndLeavesTheProposalAlone) {
    RunningProgram run;
    run.folder.Write("Proposals/Notes.txt", "one\r\ntwo");
    run.program.document.TextFileName = "Jane Roe.txt";
    modExport::ReadTextFile(run.program, run.folder / "Proposals/Notes.txt");
    auto* window = dynamic_cast<frmTextFile*>(modWindows::Find(run.program, "frmTextFile"));
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(window->Caption, "Notes.txt");
    EXPECT_EQ(window->Text, "one\ntwo");
    EXPECT_EQ(run.program.document.TextFileName, "Jane Roe.txt");
    window->cmdCopy_Click(run.program, "");
    EXPECT_EQ(run.surroundings.clipboard.Unicode, "one\ntwo");
    window->cmdCopy_Click(run.program, "two");
    EXPECT_EQ(run.surroundings.clipboard.Unicode, "two");
}

TEST(TextFile, ItsWindowClosesByItsButtonAndByEscape) {
    RunningProgram run;
    const auto open = [&]() -> frmTextFile& {
        return dynamic_cast<frmTextFile&>(
            modWindows::Show(run.program, std::make_unique<frmTextFile>("Notes.txt", "one")));
    };
    open().cmdClose_Click(run.program);
    modWindows::Sweep(run.program);
    EXPECT_EQ(modWindows::Find(run.program, "frmTextFile"), nullptr);
    open().Form_Cancel(run.program);
    modWindows::Sweep(run.program);
    EXPECT_EQ(modWindows::Find(run.program, "frmTextFile"), nullptr);
}

TEST(TextFile, AFileThatIsGoneIsReported) {
    RunningProgram run;
    run.surroundings.questions.Expect("ReadTextFile");
    modExport::ReadTextFile(run.program, run.folder / "Proposals/Gone.txt");
    EXPECT_EQ(modWindows::Find(run.program, "frmTextFile"), nullptr);
}

/// The printed lines of a text.
std::vector<std::string> Printed(RunningProgram& run, const std::string& text) {
    frmTextFile window("Notes.txt", text);
    window.cmdPrint_Click(run.program);
    std::vector<std::string> lines;
    for (const DrawCall& call : run.surroundings.printers.Paper.Documents.back()) {
        if (call.Op == DrawCall::What::Print) {
            lines.push_back(call.Text);
        }
    }
    return lines;
}

TEST(TextFile, PrintsWrappedAtBlanks) {
    RunningProgram run; // 108 characters of 100 twips between margins of half an inch
    const std::string word(60, 'x');
    EXPECT_EQ(Printed(run, word + " " + word + "\nend"), (std::vector<std::string>{word + " ", word, "end"}));
    EXPECT_EQ(Printed(run, std::string(109, 'y')), (std::vector<std::string>{std::string(108, 'y'), "y"}));
    EXPECT_EQ(Printed(run, "a\n\nb"), (std::vector<std::string>{"a", "", "b"}));
}

TEST(TextFile, CharactersWiderThanThePaperPrintOneALine) {
    RunningProgram run;
    run.surroundings.measure.Advance['W'] = 12000; // between the margins are 10800
    EXPECT_EQ(Printed(run, "WWa"), (std::vector<std::string>{"W", "W", "a"}));
}

TEST(TextFile, ALongTextTakesMorePages) {
    RunningProgram run; // 72 lines of 200 twips between the margins
    std::string text;
    for (int line = 0; line < 72; ++line) {
        text += "line\n";
    }
    const auto isNewPage = [](const DrawCall& call) { return call.Op == DrawCall::What::NewPage; };
    Printed(run, text);
    const auto& whole = run.surroundings.printers.Paper.Documents.back();
    EXPECT_TRUE(std::none_of(whole.begin(), whole.end(), isNewPage));
    Printed(run, text + "last");
    const auto& calls = run.surroundings.printers.Paper.Documents.back();
    EXPECT_EQ(std::count_if(calls.begin(), calls.end(), isNewPage), 1);
    const auto last =
        std::find_if(calls.begin(), calls.end(), [](const DrawCall& call) { return call.Text == "last"; });
    ASSERT_NE(last, calls.end());
    EXPECT_TRUE(isNewPage(*std::prev(last)));
    EXPECT_EQ(last->X, 720);
    EXPECT_EQ(last->Y, 720) << "at the top of the next page";
}

TEST(TextFile, WhatThePageCannotHaveIsToldBeforeItPrints) {
    RunningProgram run;
    run.surroundings.questions.Expect("1 characters of this text cannot be printed", Answer::Cancel);
    frmTextFile window("Notes.txt", "\xE4\xB8\xAD");
    window.cmdPrint_Click(run.program);
    EXPECT_TRUE(run.surroundings.printers.Paper.Documents.empty());
    run.surroundings.questions.Expect("2 characters of this text cannot be printed", Answer::Ok);
    EXPECT_EQ(Printed(run, "a\xE4\xB8\xAD"
                           "b\xE2\x82\xAC\xE4\xB8\xAD"),
              std::vector<std::string>{"a?b\x80?"});
}

TEST(TextPrint, SetsItsOwnFontWhateverThePrinterWasLeftWith) {
    RunningProgram run;
    RecordingPrinter& paper = run.surroundings.printers.Paper;
    paper.Font = "Arial";
    paper.FontSize = 30;
    paper.FontBold = paper.FontItalic = paper.FontUnderline = true;
    paper.ForeColor = 0xFF;
    modPrint::PrintText(run.program, "Notes", "one\ntwo");
    ASSERT_EQ(paper.Documents.size(), 1U);
    int printed = 0;
    for (const DrawCall& call : paper.Documents[0]) {
        if (call.Op == DrawCall::What::Print) {
            ++printed;
            EXPECT_EQ(call.Font, "Times New Roman");
            EXPECT_EQ(call.FontSize, 10);
            EXPECT_FALSE(call.Bold);
            EXPECT_FALSE(call.Italic);
            EXPECT_FALSE(call.Underline);
            EXPECT_EQ(call.ForeColor, colors::kBlack);
        }
    }
    EXPECT_EQ(printed, 2);
}

TEST(TextPrint, EveryLineStandsAtItsOwnPlaceWhereverThePrinterWasLeft) {
    RunningProgram run;
    RecordingPrinter& paper = run.surroundings.printers.Paper;
    paper.CurrentX = 5000;
    paper.CurrentY = 9000;
    modPrint::PrintText(run.program, "Notes", "one\ntwo\nthree");
    ASSERT_EQ(paper.Documents.size(), 1U);
    float top = 720; // half an inch, and 200 twips a line
    for (const DrawCall& call : paper.Documents[0]) {
        if (call.Op == DrawCall::What::Print) {
            EXPECT_EQ(call.X, 720) << call.Text;
            EXPECT_EQ(call.Y, top) << call.Text;
            top += 200;
        }
    }
    EXPECT_EQ(top, 720 + 3 * 200);
}

TEST(TextPrint, IsOneCommandThatBearsTheTextsName) {
    RunningProgram run;
    modPrint::PrintText(run.program, "Notes.txt", "one");
    const RecordingPrinters& printers = run.surroundings.printers;
    ASSERT_EQ(printers.Commands.size(), 1U);
    EXPECT_EQ(printers.Commands[0].SuggestedFile, run.folder / "Proposals/Notes.txt.pdf");
    EXPECT_EQ(printers.Named, (std::vector<std::pair<std::string, int>>{{"Notes.txt", 0}}));
    EXPECT_EQ(printers.Ended, 1);
    modPrint::PrintText(run.program, "Notes.txt", "one");
    EXPECT_EQ(printers.Ended, 2) << "the next one goes through";
}

TEST(TextPrint, WithoutAPrinterItIsSaid) {
    RunningProgram run;
    run.program.run.NoPrinter = true;
    run.surroundings.questions.ExpectBox({"Printer Error 482. Printer not found.", Buttons::Ok, ""},
                                         Answer::Ok);
    modPrint::PrintText(run.program, "Notes", "one");
    EXPECT_TRUE(run.surroundings.printers.Commands.empty());
}

} // namespace
