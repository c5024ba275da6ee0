#include "contract/frm_editor.h"

#include "contract/contract_lines.h"
#include "contract/contract_text.h"
#include "program/windows.h"
#include "support/running_program.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace {

struct Contracted : RunningProgram {
    frmEditor& Open() {
        modContract::mnuManageEditor_Click(program);
        auto* window = dynamic_cast<frmEditor*>(modWindows::Find(program, "frmEditor"));
        EXPECT_NE(window, nullptr);
        return *window;
    }
    void Caption(int line, const std::string& caption) {
        for (const PageId page : {PageId::frmP6, PageId::frmP6_1}) {
            Label(page, 12 + line).Caption = caption;
        }
    }
    /// The labels as they stand when lines of a contract fill the first of them.
    void Fill(int lines) {
        for (int line = 1; line <= 35; ++line) {
            Caption(line, line <= lines ? "Term " + std::to_string(line) : "");
        }
    }
    void Replace(frmEditor& window, const std::string& text) {
        window.Edited(0, window.txtCharCount.Text().size(), text, 0, ContractText::Kind::Whole);
    }
    [[nodiscard]] static std::string Lines(int count) {
        std::string text;
        for (int line = 1; line <= count; ++line) {
            text += (line > 1 ? "\r\n" : "") + std::string("Line ") + std::to_string(line);
        }
        return text;
    }
    ScriptedQuestions& Boxes() { return surroundings.questions; }
};

const ScriptedQuestions::Box kTooMany{
    "You have developed more than 35 lines for the contract language.\r\nEliminate "
    "unnecessary line feeds or choose a smaller font. Use\r\n\"Show Line Count\" to "
    "keep track of the number of lines.",
    Buttons::Ok, ""};
const ScriptedQuestions::Box kResume{"Please click \"Resume Editing\" first.", Buttons::Ok, ""};
const ScriptedQuestions::Box kLeave{
    "The Contract Language has not been exported to the proposal. Exit anyway?", Buttons::YesNo,
    "Contract Language has been Changed"};

TEST(Contract, EachLabelHasItsTextAsCaptionAndAsTip) {
    Contracted run;
    for (const PageId page : {PageId::frmP6, PageId::frmP6_1}) {
        const PageLabel& label = run.Label(page, 15);
        EXPECT_EQ(label.Caption,
                  " Contract Language Line 3 - Edit this Label by right-clicking or by opening the "
                  "Contract Language Editor under Manage.");
        EXPECT_EQ(label.ToolTipText, label.Caption);
    }
}

TEST(Contract, OpensWithTheLabelsAsOneTextInTheirFont) {
    Contracted run;
    run.Fill(2);
    run.Label(PageId::frmP6, 13).FontItalic = true;
    run.Label(PageId::frmP6, 13).FontName = "Arial";
    frmEditor& window = run.Open();
    std::string expected = "Term 1\r\nTerm 2";
    for (int line = 3; line <= 35; ++line) {
        expected += "\r\n";
    }
    EXPECT_EQ(window.txtCharCount.Text(), expected);
    EXPECT_EQ(window.txtCharCount.LineCount(), 35); // each empty label is an empty line
    EXPECT_EQ(window.lblCharCount.Caption,
              "Current Position = 0. Text contains " + std::to_string(expected.size()) + " characters.");
    EXPECT_EQ(window.framTop.Caption, "Manage Fonts Below - Current Font = Arial, Font Size = 9.75");
    EXPECT_EQ(window.cmbFontSize.ListIndex, -1); // 9.75 is no entry
    EXPECT_EQ(window.cmbFont.Items[static_cast<std::size_t>(window.cmbFont.ListIndex)], "Arial");
    EXPECT_TRUE(window.chkItalic.Value);
    EXPECT_FALSE(window.EditorDirty);
    EXPECT_EQ(window.Mode(), Modality::Modal);
}

TEST(Contract, ThirtyFourLinesGoIntoTheLabelsAndTheShorterTextClearsTheRest) {
    Contracted run;
    run.Fill(35);
    frmEditor& window = run.Open();
    run.Replace(window, Contracted::Lines(34));
    window.Choose(run.program, "mnuFileExportAndExit");
    EXPECT_TRUE(window.Closing);
    for (const PageId page : {PageId::frmP6, PageId::frmP6_1}) {
        EXPECT_EQ(run.Label(page, 13).Caption, "Line 1");
        EXPECT_EQ(run.Label(page, 46).Caption, "Line 34");
        EXPECT_EQ(run.Label(page, 47).Caption, "");
    }
    EXPECT_FALSE(window.EditorDirty) << "nothing is left that only the window has";
}

TEST(Contract, ThirtyFiveLinesAreRefusedAndTheWindowStays) {
    Contracted run;
    run.Fill(2);
    frmEditor& window = run.Open();
    run.Replace(window, Contracted::Lines(35));
    run.Boxes().ExpectBox(kTooMany, Answer::Ok);
    window.Choose(run.program, "mnuFileExportAndExit");
    EXPECT_FALSE(window.Closing);
    EXPECT_TRUE(window.EditorDirty);
    EXPECT_EQ(window.FocusCalls, 1);
    EXPECT_EQ(run.Label(PageId::frmP6, 13).Caption, "Term 1");
    EXPECT_EQ(window.ContractLineCount, 35);
    EXPECT_EQ(window.ContractLines.back(), "Line 35");
}

TEST(Contract, EmptyLinesAtTheEndDoNotCount) {
    Contracted run;
    frmEditor& window = run.Open();
    run.Replace(window, Contracted::Lines(34) + "\r\n\r\n   \r\n"); // blanks are no words either
    window.cmdLines_Click(run.program);
    EXPECT_EQ(window.BackColor, colors::kWhite);
    window.cmdLines_Click(run.program);
    window.Choose(run.program, "mnuFileExportAndExit");
    EXPECT_TRUE(window.Closing);
    EXPECT_EQ(run.Label(PageId::frmP6, 47).Caption, "");
}

TEST(Contract, AnUnchangedContractComesBackAsItWas) {
    Contracted run;
    run.Fill(20);
    run.Caption(7, "");
    frmEditor& window = run.Open();
    window.Choose(run.program, "mnuFileExportAndExit");
    EXPECT_EQ(run.Label(PageId::frmP6, 19).Caption, "");
    EXPECT_EQ(run.Label(PageId::frmP6, 32).Caption, "Term 20");
    EXPECT_EQ(run.Label(PageId::frmP6, 33).Caption, "");
}

TEST(Contract, ExportRecordsAllLabelsForTheProposalAndForAFormat) {
    Contracted run;
    run.Fill(35);
    run.Label(PageId::frmP6, 13).FontBold = true;
    run.program.format.FormatLabelChanges[PageId::frmP6][20].Saved = true; // by a save of the format before
    frmEditor& window = run.Open();
    window.cmbFontSize_Click(run.program, 2);
    run.Replace(window, "Only line");
    window.Choose(run.program, "mnuFileExportAndExit");
    const FormatRecords& format = run.program.format;
    for (std::size_t label = 13; label <= 47; ++label) {
        const LabelChangeRecord& kept = format.PropLabelChanges[PageId::frmP6][label];
        EXPECT_TRUE(kept.Changed);
        EXPECT_EQ(kept.Caption, label == 13 ? "Only line" : "");
        EXPECT_EQ(kept.FontSize, 8);
        EXPECT_TRUE(kept.FontBold);
        EXPECT_EQ(kept.Top, run.Label(PageId::frmP6, static_cast<int>(label)).Top);
        EXPECT_TRUE(format.FormatLabelChanges[PageId::frmP6][label].Changed);
        EXPECT_FALSE(format.FormatLabelChanges[PageId::frmP6][label].Saved);
        EXPECT_TRUE(format.LabelSavedState[PageId::frmP6][label].Changed);
        EXPECT_EQ(format.LabelSavedState[PageId::frmP6][label].Caption, kept.Caption);
        EXPECT_TRUE(run.Label(PageId::frmP6_1, static_cast<int>(label)).FontBold);
    }
    EXPECT_FALSE(format.PropLabelChanges[PageId::frmP6][48].Changed);
}

TEST(Contract, ALargerFontCanPassTheLimitWithoutAWordBeingChanged) {
    Contracted run;
    run.surroundings.measure.UnitSize = 10;
    frmEditor& window = run.Open();
    window.cmbFontSize_Click(run.program, 4); // 10 points: 111 characters to the line
    run.Replace(window, Contracted::Lines(33) + "\r\n" + std::string(100, 'a'));
    EXPECT_EQ(window.txtCharCount.FilledCount(), 34);
    window.cmbFontSize_Click(run.program, 5); // 12 points: 93 characters
    EXPECT_EQ(window.txtCharCount.FilledCount(), 35);
    window.cmdLines_Click(run.program);
    EXPECT_EQ(window.BackColor, 255U);
}

TEST(Contract, LineCountsShowTheLinesWithTheirNumbersAndGoAgain) {
    Contracted run;
    frmEditor& window = run.Open();
    run.Replace(window, "one\r\n\r\nthree");
    window.cmdLines_Click(run.program);
    EXPECT_EQ(window.cmdLines.Caption, "Resume Editing");
    EXPECT_EQ(window.Shown().Text(), "1 one\r\n2 \r\n3 three\r\n");
    EXPECT_TRUE(window.Locked);
    EXPECT_EQ(window.SavedEditorText, "one\r\n\r\nthree");
    window.Edited(0, 1, "x", 1, ContractText::Kind::Typing);
    window.cmdLines_Click(run.program);
    EXPECT_EQ(window.cmdLines.Caption, "Show Line Count");
    EXPECT_EQ(window.Shown().Text(), "one\r\n\r\nthree");
    EXPECT_EQ(window.BackColor, 0xFFFFFFU);
    EXPECT_FALSE(window.Locked);
    window.Undo();
    EXPECT_NE(window.txtCharCount.Text(), "one\r\n\r\nthree"); // the history stands
}

TEST(Contract, WhileLineCountsShowNothingElseIsDone) {
    Contracted run;
    frmEditor& window = run.Open();
    run.Replace(window, "one");
    window.cmdLines_Click(run.program);
    run.surroundings.clipboard.Text = "clip";
    for (int refusal = 0; refusal < 8; ++refusal) {
        run.Boxes().ExpectBox(kResume, Answer::Ok);
    }
    window.cmbFont_Click(run.program, 0);
    window.cmbFontSize_Click(run.program, 0);
    window.chkItalic_Click(run.program);
    window.cmdImport_Click(run.program);
    for (const char* command :
         {"mnuFileImport", "mnuFileExportAndExit", "mnuEditRemoveCRLF", "mnuEditCopy"}) {
        window.Choose(run.program, command);
    }
    EXPECT_EQ(window.txtCharCount.Text(), "one");
    EXPECT_EQ(run.surroundings.clipboard.Text, "clip");
    EXPECT_FALSE(window.Closing);
}

TEST(Contract, ImportTakesTheClipboardAsOneStep) {
    Contracted run;
    frmEditor& window = run.Open();
    run.Replace(window, "before");
    run.surroundings.clipboard.Text = "Payment is\ndue.\n\n\nNo refunds\tat all.";
    window.cmdImport_Click(run.program);
    EXPECT_EQ(window.txtCharCount.Text(), "Payment is due.\r\n\r\nNo refunds at all.");
    EXPECT_EQ(window.ContractLineCount, 3);
    EXPECT_TRUE(window.EditorDirty);
    window.Undo();
    EXPECT_EQ(window.txtCharCount.Text(), "before");
    run.surroundings.clipboard.Text.clear();
    window.Choose(run.program, "mnuFileImport");
    EXPECT_EQ(window.txtCharCount.Text(), "");
}

TEST(Contract, RemovingLineFeedsWaitsForARefusedExportOrAnImport) {
    Contracted run;
    run.Fill(2);
    frmEditor& window = run.Open();
    const std::string before = window.txtCharCount.Text();
    window.Choose(run.program, "mnuEditRemoveCRLF");
    EXPECT_EQ(window.txtCharCount.Text(), before);
    EXPECT_FALSE(window.EditorDirty);
    run.Replace(window, Contracted::Lines(34) + "\r\n\r\nlast");
    run.Boxes().ExpectBox(kTooMany, Answer::Ok);
    window.Choose(run.program, "mnuFileExportAndExit");
    run.Replace(window, "present\r\n\r\n\r\ntext\r\nhere"); // what stands now, not what was refused
    window.Choose(run.program, "mnuEditRemoveCRLF");
    EXPECT_EQ(window.txtCharCount.Text(), "present\r\ntext\r\nhere");
    window.Undo();
    EXPECT_EQ(window.txtCharCount.Text(), "present\r\n\r\n\r\ntext\r\nhere");
}

TEST(Contract, CopyTakesTheWholeText) {
    Contracted run;
    frmEditor& window = run.Open();
    run.Replace(window, "one\r\ntwo");
    window.Choose(run.program, "mnuEditCopy");
    EXPECT_EQ(run.surroundings.clipboard.Text, "one\r\ntwo");
}

TEST(Contract, LeavingWithoutExportAsks) {
    Contracted run;
    frmEditor& window = run.Open();
    window.Edited(0, 0, "x", 1, ContractText::Kind::Typing);
    run.Boxes().ExpectBox(kLeave, Answer::No);
    window.Choose(run.program, "mnuFileExit");
    EXPECT_FALSE(window.Closing);
    run.Boxes().ExpectBox(kLeave, Answer::Yes);
    window.Form_Cancel(run.program);
    EXPECT_TRUE(window.Closing);
    modWindows::Sweep(run.program);
    frmEditor& fresh = run.Open();
    fresh.cmdLines_Click(run.program);
    fresh.Form_Cancel(run.program); // line counts are no change
    EXPECT_TRUE(fresh.Closing);
}

TEST(Contract, AChangedFontIsAChange) {
    Contracted run;
    run.Label(PageId::frmP6, 13).FontItalic = false;
    frmEditor& window = run.Open();
    window.chkItalic_Click(run.program);
    EXPECT_TRUE(window.txtCharCount.Font().Italic);
    EXPECT_TRUE(window.EditorDirty);
    EXPECT_FALSE(run.Label(PageId::frmP6, 13).FontItalic); // the labels change at export
    run.Boxes().ExpectBox(kLeave, Answer::Yes);
    window.Choose(run.program, "mnuFileExit");
}

TEST(Contract, ThePositionFollowsTheCaret) {
    Contracted run;
    frmEditor& window = run.Open();
    run.Replace(window, "one\r\ntwo");
    window.Moved(5, 2);
    EXPECT_EQ(window.lblCharCount.Caption, "Current Position = 5. Text contains 8 characters.");
}

TEST(Contract, FindGoesFromPlaceToPlaceAndRound) {
    Contracted run;
    frmEditor& window = run.Open();
    run.Replace(window, "Deposit, deposit and DEPOSIT");
    for (const int place : {0, 9, 21, 0}) {
        window.Find("deposit", frmEditor::Way::Forward);
        EXPECT_EQ(window.SelStart, place);
        EXPECT_EQ(window.SelLength, 7);
    }
    window.Find("deposit", frmEditor::Way::Back);
    EXPECT_EQ(window.SelStart, 21);
    window.Find("refund", frmEditor::Way::Forward);
    EXPECT_EQ(window.lblNotice.Caption, "The words do not stand in the contract.");
    EXPECT_EQ(window.SelStart, 21);
}

TEST(Contract, HelpOpensItsTopic) {
    Contracted run;
    run.Open().Choose(run.program, "mnuHelpContents");
    EXPECT_EQ(run.surroundings.shell.Opened.back(), run.program.folders.InstallFolder + "Help/editor.htm");
}

TEST(Contract, TheCaretIsWhereItWasWhenTheLineNumbersGo) {
    Contracted run;
    frmEditor& window = run.Open();
    run.Replace(window, "one\r\ntwo");
    window.Moved(7, 0);
    window.cmdLines_Click(run.program);
    EXPECT_EQ(window.SelStart, 0);
    window.Moved(3, 0);
    window.cmdLines_Click(run.program);
    EXPECT_EQ(window.SelStart, 7);
    EXPECT_EQ(window.lblCharCount.Caption, "Current Position = 7. Text contains 8 characters.");
}

TEST(Contract, WhenTheRunIsEndedFromOutsideAChangedWordingIsKeptInBackup) {
    Contracted run;
    frmEditor& window = run.Open();
    modWindows::KeepUnsaved(run.program);
    EXPECT_FALSE(run.folder.Has("Proposals/Backup/Unnamed.contract.txt")); // nothing was changed
    run.Replace(window, "Half is due now.\r\nThe rest later.");
    window.cmdLines_Click(run.program); // the numbers are no part of it
    modWindows::KeepUnsaved(run.program);
    EXPECT_EQ(run.folder.Read("Proposals/Backup/Unnamed.contract.txt"),
              "Half is due now.\r\nThe rest later.");
}

TEST(Contract, UndoAndRedoPutTheCaretWhereTheChangeWas) {
    Contracted run;
    frmEditor& window = run.Open();
    run.Replace(window, "Alpha");
    window.Edited(5, 0, " Beta", 10, ContractText::Kind::Whole);
    window.Moved(1, 2);
    const int before = window.Revision;
    window.Undo();
    EXPECT_EQ(window.txtCharCount.Text(), "Alpha");
    EXPECT_EQ(window.SelStart, 5);
    EXPECT_EQ(window.SelLength, 0);
    EXPECT_EQ(window.lblCharCount.Caption, "Current Position = 5. Text contains 5 characters.");
    EXPECT_EQ(window.Revision, before + 1);
    window.Moved(0, 0);
    window.Redo();
    EXPECT_EQ(window.txtCharCount.Text(), "Alpha Beta");
    EXPECT_EQ(window.SelStart, 10);
    EXPECT_EQ(window.Revision, before + 2);
    window.SelectAll();
    EXPECT_EQ(window.SelStart, 0);
    EXPECT_EQ(window.SelLength, 10);
    EXPECT_EQ(window.Revision, before + 3);
    EXPECT_TRUE(window.EditorDirty);
}

TEST(Contract, TheFontAndTheSizeThatWereChosenAreMarked) {
    Contracted run;
    frmEditor& window = run.Open();
    window.cmbFont_Click(run.program, 0);
    window.cmbFontSize_Click(run.program, 2);
    EXPECT_EQ(window.cmbFont.ListIndex, 0);
    EXPECT_EQ(window.cmbFontSize.ListIndex, 2);
    EXPECT_EQ(window.txtCharCount.Font().Name, "Arial");
    EXPECT_EQ(window.framTop.Caption, "Manage Fonts Below - Current Font = Arial, Font Size = 8");
    for (const int nothing : {-1, 1000}) {
        window.cmbFont_Click(run.program, nothing);
        window.cmbFontSize_Click(run.program, nothing);
    }
    EXPECT_EQ(window.cmbFont.ListIndex, 0);
    EXPECT_EQ(window.cmbFontSize.ListIndex, 2);
}

TEST(Contract, EveryKindOfLineEndComesInAsTheLabelsHaveIt) {
    EXPECT_EQ(modContract::Incoming("a\r\nb\rc\nd\te\r"), "a\r\nb\r\nc\r\nd e\r\n");
    EXPECT_EQ(modContract::Incoming("\r\r\n\n"), "\r\n\r\n\r\n");
}

TEST(Contract, AnUndoOrRedoAfterAnExportIsAChangeToBeAskedAbout) {
    for (const bool redo : {false, true}) {
        Contracted run;
        frmEditor& window = run.Open();
        run.Replace(window, "Half now.");
        if (redo) {
            window.Undo();
        }
        window.EditorDirty = false;
        if (redo) {
            window.Redo();
        } else {
            window.Undo();
        }
        EXPECT_TRUE(window.EditorDirty);
        run.Boxes().ExpectBox(kLeave, Answer::No);
        window.Form_Cancel(run.program);
        EXPECT_FALSE(window.Closing);
    }
}

TEST(Contract, AnEditPutsTheCaretBehindIt) {
    Contracted run;
    frmEditor& window = run.Open();
    run.Replace(window, "Alpha");
    window.Moved(1, 3);
    window.Edited(5, 0, " Beta", 10, ContractText::Kind::Whole);
    EXPECT_EQ(window.SelStart, 10);
    EXPECT_EQ(window.SelLength, 0);
    EXPECT_EQ(window.lblCharCount.Caption, "Current Position = 10. Text contains 10 characters.");
}

TEST(Contract, TheChosenFontGoesIntoTheLabelsOfBothFinalPagesAndIntoWhatIsKept) {
    Contracted run;
    frmEditor& window = run.Open();
    const auto other =
        std::find_if(window.cmbFont.Items.begin(), window.cmbFont.Items.end(),
                     [&](const std::string& name) { return name != run.Label(PageId::frmP6, 13).FontName; });
    ASSERT_NE(other, window.cmbFont.Items.end());
    const std::string font = *other;
    const bool italic = !run.Label(PageId::frmP6, 13).FontItalic;
    window.cmbFont_Click(run.program, static_cast<int>(other - window.cmbFont.Items.begin()));
    window.chkItalic_Click(run.program);
    run.Replace(window, "Half now.");
    window.Choose(run.program, "mnuFileExportAndExit");
    const FormatRecords& format = run.program.format;
    for (std::size_t index = 13; index <= 47; ++index) {
        const PageLabel& label = run.program.pages[PageId::frmP6].lbl[index];
        for (const PageLabel& each : {label, run.program.pages[PageId::frmP6_1].lbl[index]}) {
            EXPECT_EQ(each.FontName, font) << index;
            EXPECT_EQ(each.FontItalic, italic) << index;
        }
        for (const auto* table :
             {&format.PropLabelChanges, &format.FormatLabelChanges, &format.LabelSavedState}) {
            const LabelChangeRecord& kept = (*table)[PageId::frmP6][index];
            EXPECT_EQ(kept.FontName, font) << index;
            EXPECT_EQ(kept.FontItalic, italic) << index;
            EXPECT_EQ(kept.Left, label.Left) << index;
            EXPECT_EQ(kept.Top, label.Top) << index;
        }
    }
}

TEST(Contract, SelectAllMarksTheWholeText) {
    Contracted run;
    frmEditor& window = run.Open();
    run.Replace(window, "one\r\ntwo");
    window.Choose(run.program, "mnuEditSelectAll");
    EXPECT_EQ(window.SelStart, 0);
    EXPECT_EQ(window.SelLength, 8);
}

TEST(Contract, TheCommandBringsTheOpenWindowToTheFront) {
    Contracted run;
    const frmEditor& window = run.Open();
    const int before = window.FrontCalls;
    EXPECT_EQ(&run.Open(), &window);
    EXPECT_EQ(window.FrontCalls, before + 1);
}

TEST(Contract, WhatIsKeptOfALabelHasItsColourSlantAndLine) {
    Contracted run;
    run.Fill(2);
    frmEditor& window = run.Open();
    for (int index = 13; index <= 47; ++index) {
        PageLabel& label = run.Label(PageId::frmP6, index);
        label.ForeColor = static_cast<Color>(index);
        label.FontUnderline = true;
    }
    if (!window.chkItalic.Value) {
        window.chkItalic_Click(run.program);
    }
    window.Choose(run.program, "mnuFileExportAndExit");
    const FormatRecords& format = run.program.format;
    for (std::size_t index = 13; index <= 47; ++index) {
        for (const auto* table :
             {&format.PropLabelChanges, &format.FormatLabelChanges, &format.LabelSavedState}) {
            const LabelChangeRecord& kept = (*table)[PageId::frmP6][index];
            EXPECT_EQ(kept.ForeColor, static_cast<Color>(index));
            EXPECT_TRUE(kept.FontUnderline) << index;
            EXPECT_TRUE(kept.FontItalic) << index;
        }
    }
}

TEST(Contract, AFontThatIsNotInstalledIsNamedAllTheSame) {
    Contracted run;
    run.Label(PageId::frmP6, 13).FontName = "Garamond";
    const frmEditor& window = run.Open();
    EXPECT_EQ(window.cmbFont.ListIndex, -1);
    EXPECT_EQ(window.cmbFont.Placeholder, "Garamond");
}

TEST(Contract, TheNumberedLinesStandInTheFontOfTheText) {
    Contracted run;
    frmEditor& window = run.Open();
    window.cmbFontSize_Click(run.program, 2);
    window.cmdLines_Click(run.program);
    EXPECT_EQ(window.Shown().Font(), window.txtCharCount.Font());
    EXPECT_EQ(window.Shown().Font().Size, 8);
}

TEST(Contract, AnImportIsWrappedAsItWillPrintAndTellsWhereTheCaretIs) {
    Contracted run;
    frmEditor& window = run.Open();
    window.Moved(3, 0);
    // 111 characters go into a line.
    run.surroundings.clipboard.Text = std::string(100, 'a') + " " + std::string(20, 'b');
    window.cmdImport_Click(run.program);
    EXPECT_EQ(window.ContractLineCount, 2);
    EXPECT_EQ(window.txtCharCount.Text(), run.surroundings.clipboard.Text);
    EXPECT_EQ(window.lblCharCount.Caption, "Current Position = 0. Text contains 121 characters.");
}

TEST(Contract, WhatASearchHasToldGoesWithTheNextEditOrSearch) {
    Contracted run;
    frmEditor& window = run.Open();
    run.Replace(window, "Half now.");
    window.Find("refund", frmEditor::Way::Forward);
    ASSERT_NE(window.lblNotice.Caption, "");
    window.Find("", frmEditor::Way::Forward);
    EXPECT_EQ(window.lblNotice.Caption, "");
    window.Find("refund", frmEditor::Way::Forward);
    ASSERT_NE(window.lblNotice.Caption, "");
    window.Edited(9, 0, "!", 10, ContractText::Kind::Typing);
    EXPECT_EQ(window.lblNotice.Caption, "");
}

TEST(Contract, AnEditAtTheVeryBeginningIsUndoneAndRedoneAsAnyOther) {
    Contracted run;
    frmEditor& window = run.Open();
    run.Replace(window, "Half now.");
    window.Edited(0, 0, "x", 1, ContractText::Kind::Whole);
    window.Edited(0, 1, "", 0, ContractText::Kind::Whole);
    window.Undo();
    window.Undo();
    EXPECT_EQ(window.txtCharCount.Text(), "Half now.");
    EXPECT_EQ(window.SelStart, 0) << "in front of what was typed";
    window.Redo();
    EXPECT_EQ(window.SelStart, 1);
    const int before = window.Revision;
    window.EditorDirty = false;
    window.Redo();
    EXPECT_EQ(window.txtCharCount.Text(), "Half now.");
    EXPECT_EQ(window.SelStart, 0);
    EXPECT_EQ(window.Revision, before + 1) << "the window shows it";
    EXPECT_TRUE(window.EditorDirty);
}

TEST(Contract, ASearchBackFindsThePlaceJustBeforeTheCaret) {
    Contracted run;
    frmEditor& window = run.Open();
    run.Replace(window, "xxx");
    window.Moved(2, 0);
    for (const int place : {1, 0, 2}) {
        window.Find("x", frmEditor::Way::Back);
        EXPECT_EQ(window.SelStart, place);
    }
}

TEST(Contract, UndoAndRedoAreInItsMenu) {
    Contracted run;
    frmEditor& window = run.Open();
    const std::string before = window.txtCharCount.Text();
    run.Replace(window, "Half now.");
    window.Choose(run.program, "mnuEditUndo");
    EXPECT_EQ(window.txtCharCount.Text(), before);
    window.Choose(run.program, "mnuEditRedo");
    EXPECT_EQ(window.txtCharCount.Text(), "Half now.");
}

} // namespace
