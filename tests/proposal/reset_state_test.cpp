#include "base/colors.h"
#include "money/totals.h"
#include "pages/row_fields.h"
#include "proposal/reset.h"
#include "support/running_program.h"

#include <gtest/gtest.h>

namespace {

void SpoilNames(DocumentState& document) {
    for (std::string* name :
         {&document.BaseName, &document.FileName, &document.TextFileName, &document.FootnoteFile,
          &document.DepositFile, &document.ClientCaption, &document.PageHeading, &document.WindowTitle,
          &document.BackupTrouble, &document.OwnBackup}) {
        *name = "spoilt";
    }
    document.TitleGiven = true;
    document.FromBackup = true;
    document.PagesInUse = 2;
    document.PagesNumbered = 2;
    document.HasNotes = true;
    document.HasClient = true;
    document.PropertiesIgnored = true;
    document.SavedFile = {files::Seen::What::Bytes, 3, 4};
    document.SavedStateStale = true;
}

void SpoilTotals(TotalsRecords& totals) {
    totals.AmountTable[20][PageId::frmP1] = 5;
    totals.TaxableTable[33][PageId::frmP5] = 5;
    totals.PageSum[PageId::frmP2] = 5;
    totals.PageTaxable[PageId::frmP3] = 5;
    for (float* figure : {&totals.SubTotal, &totals.TaxableTotal, &totals.SalesTax, &totals.Total,
                          &totals.Deposit, &totals.Balance, &totals.FullTotal, &totals.RunningTotal,
                          &totals.FullSubTotal, &totals.FullTaxableTotal}) {
        *figure = 5;
    }
    totals.RunningSubTotal = "5";
    totals.TotalsStale = true;
}

void SpoilTables(FormatRecords& format) {
    for (TextChangeTable* table : {&format.PropTextChanges, &format.FormatTextChanges}) {
        TextChangeRecord& area = (*table)[PageId::frmP2][3];
        area.Dirty = true;
        area.FontBold = true;
        area.TaxExempt = true;
        area.QtyBox = true;
        area.Text = "spoilt";
    }
    for (LabelChangeTable* table :
         {&format.PropLabelChanges, &format.FormatLabelChanges, &format.LabelSavedState}) {
        (*table)[PageId::frmP2][3].Changed = true;
        (*table)[PageId::frmP2][3].Caption = "spoilt";
    }
    format.InFile[PageId::frmP2][3].FontBold = true;
    format.BuiltIn[PageId::frmP2][3].emplace();
    format.PropertyLines = {"spoilt"};
    format.LogoChanged = true;
    format.LogoPending = true;
    format.Touched = true;
}

void SpoilFields(Page& page) {
    for (auto* fields : {&page.txt, &page.txtQty, &page.txtAmt}) {
        for (TextArea& field : *fields) {
            field.Text = "9,9";
            field.SelStart = 1;
            field.SelLength = 1;
            field.FontBold = true;
            field.BackColor = colors::kOverLimit;
            field.ToolTipText = modTotals::kNoNumberTip;
        }
    }
    for (PageImage& mark : page.imgNoTax) {
        mark.Visible = true;
        mark.Tag.clear();
    }
    page.Visible = true;
}

/// A proposal in which everything that a reset takes back was changed.
struct Spoilt : RunningProgram {
    Spoilt() {
        SpoilNames(program.document);
        SpoilTotals(program.totals);
        SpoilTables(program.format);
        for (const PageId page : kAllPages) {
            SpoilFields(program.pages[page]);
        }
        for (auto* buffers : {&program.document.CurrentTextBuf, &program.document.SavedTextBuf}) {
            for (const PageId page : kEditedPages) {
                for (std::string& text : (*buffers)[page]) {
                    text = "spoilt";
                }
            }
        }
        program.run.DefaultFontName = "Courier New";
        program.run.DefaultFontSize = 20;
        program.run.DefaultFontColor = 255;
        program.run.DefaultFontItalic = !program.run.DefaultFontItalic;
        program.editing.ACActive[PageId::frmP2] = true;
        program.editing.UndoAvailable = true;
        program.editing.Block.UndoMemory.emplace_back();
        program.designer.LabelMode = true;
        program.main[CommandId::mnuEditLabelMode].Checked = true;
        EXPECT_EQ(modReset::StartNewFile(program), modReset::ResetResult::Done);
    }
};

TEST(AfterAReset, TheDocumentIsThatOfAStart) {
    const Spoilt run;
    const RunningProgram started;
    const DocumentState& now = run.program.document;
    const DocumentState& then = started.program.document;
    EXPECT_EQ(now.BaseName, "");
    EXPECT_EQ(now.FileName, "");
    EXPECT_EQ(now.TextFileName, "");
    EXPECT_EQ(now.FootnoteFile, "");
    EXPECT_EQ(now.DepositFile, "");
    EXPECT_EQ(now.ClientCaption, "Proposal for (Client's Name)");
    EXPECT_EQ(now.PageHeading, then.PageHeading);
    EXPECT_EQ(now.WindowTitle, "Quillbrook");
    EXPECT_EQ(now.BackupTrouble, "");
    EXPECT_EQ(now.OwnBackup, "");
    EXPECT_FALSE(now.TitleGiven);
    EXPECT_FALSE(now.FileExists);
    EXPECT_FALSE(now.FromBackup);
    EXPECT_EQ(now.PagesInUse, 6);
    EXPECT_EQ(now.PagesNumbered, 0);
    EXPECT_FALSE(now.HasNotes);
    EXPECT_FALSE(now.HasClient);
    EXPECT_FALSE(now.PropertiesIgnored);
    EXPECT_EQ(now.SavedFile, files::Seen{});
    EXPECT_FALSE(now.SavedStateStale);
    for (const PageId page : kEditedPages) {
        EXPECT_EQ(now.CurrentTextBuf[page], then.CurrentTextBuf[page]) << IndexOf(page);
        EXPECT_EQ(now.SavedTextBuf[page], then.SavedTextBuf[page]) << IndexOf(page);
    }
}

TEST(AfterAReset, EveryFigureIsNothingAndTheRateStays) {
    const Spoilt run;
    const TotalsRecords& totals = run.program.totals;
    EXPECT_FALSE(totals.HasAmounts());
    EXPECT_EQ(totals.TaxableTable[33][PageId::frmP5], 0);
    EXPECT_EQ(totals.PageSum[PageId::frmP2], 0);
    EXPECT_EQ(totals.PageTaxable[PageId::frmP3], 0);
    for (const float figure :
         {totals.SubTotal, totals.TaxableTotal, totals.SalesTax, totals.Total, totals.Deposit, totals.Balance,
          totals.FullTotal, totals.RunningTotal, totals.FullSubTotal, totals.FullTaxableTotal}) {
        EXPECT_EQ(figure, 0);
    }
    EXPECT_EQ(totals.RunningSubTotal, "$ 0.00");
    EXPECT_FALSE(totals.TotalsStale);
    EXPECT_EQ(totals.TaxRate, 8.25F);
}

TEST(AfterAReset, NoTableHoldsAChange) {
    const Spoilt run;
    const FormatRecords& format = run.program.format;
    for (const TextChangeTable* table : {&format.PropTextChanges, &format.FormatTextChanges}) {
        const TextChangeRecord& area = (*table)[PageId::frmP2][3];
        EXPECT_FALSE(area.Dirty || area.FontBold || area.TaxExempt || area.QtyBox);
        EXPECT_EQ(area.Text, "");
    }
    for (const LabelChangeTable* table :
         {&format.PropLabelChanges, &format.FormatLabelChanges, &format.LabelSavedState}) {
        EXPECT_FALSE((*table)[PageId::frmP2][3].Changed);
    }
    EXPECT_FALSE(format.InFile[PageId::frmP2][3].FontBold);
    EXPECT_FALSE(format.BuiltIn[PageId::frmP2][3].has_value());
    EXPECT_TRUE(format.PropertyLines.empty());
    EXPECT_FALSE(format.LogoChanged);
    EXPECT_FALSE(format.LogoPending);
    EXPECT_FALSE(format.Touched);
    EXPECT_FALSE(run.program.editing.ACActive[PageId::frmP2]);
    EXPECT_FALSE(run.program.editing.UndoAvailable);
    EXPECT_TRUE(run.program.editing.Block.UndoMemory.empty());
    EXPECT_FALSE(run.program.designer.LabelMode) << "the keyboard goes to the fields";
    EXPECT_FALSE(run.program.main[CommandId::mnuEditLabelMode].Checked);
}

TEST(AfterAReset, EveryFieldIsEmptyAndAtRestInTheSettingsFont) {
    const Spoilt run;
    for (const PageId id : kAllPages) {
        const Page& page = run.program.pages[id];
        for (const TextArea& area : page.txt) {
            EXPECT_EQ(area.Text, "") << page.Name;
            EXPECT_EQ(area.ToolTipText.find(modTotals::kNoNumberTip), std::string::npos) << page.Name;
            EXPECT_EQ(area.BackColor, colors::kResting) << page.Name;
            EXPECT_FALSE(area.FontBold) << page.Name;
            EXPECT_EQ(area.FontName, "Times New Roman") << page.Name;
            EXPECT_EQ(area.FontSize, 10) << page.Name;
            EXPECT_EQ(area.ForeColor, 0U) << page.Name;
            EXPECT_EQ(area.FontItalic, run.program.settings.SavedFontItalic) << page.Name;
        }
        for (const auto* boxes : {&page.txtQty, &page.txtAmt}) {
            for (const TextArea& box : *boxes) {
                EXPECT_EQ(box.ToolTipText, "") << page.Name;
                EXPECT_EQ(box.Tag, kHide) << page.Name;
            }
        }
        for (const auto& mark : page.imgNoTax) {
            EXPECT_FALSE(mark.Visible) << page.Name;
            EXPECT_EQ(mark.Tag, kHide) << page.Name;
        }
        EXPECT_EQ(page.Visible, id == PageId::frmP1) << page.Name;
    }
    for (const PageId id : kLinePages) {
        for (const TextArea& area : run.program.pages[id].txt) {
            EXPECT_EQ(area.SelStart, 0);
            EXPECT_EQ(area.SelLength, 0);
        }
    }
}

} // namespace
