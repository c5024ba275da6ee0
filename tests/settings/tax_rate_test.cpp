#include "program/windows.h"
#include "settings/frm_tax.h"
#include "settings/tax_rate.h"
#include "support/failing_disk.h"
#include "support/settled.h"

#include <gtest/gtest.h>

#include <cerrno>

#include <string>

namespace {

struct Taxed : Settled {
    Taxed() {
        folder.MakeFolder("Proposals");
        program.folders.ProposalsFolder = folder / "Proposals/";
    }
    [[nodiscard]] std::string File() const { return folder.Read("Proposals/SalesTax.txt"); }
};

const ScriptedQuestions::Box kZeroQuestion{"The current sales tax rate is 0%. Do you want to change it now?",
                                           Buttons::YesNo, "Sales Tax Rate is 0.0%"};

TEST(TaxRate, IsTheLeadingNumberOfFiveCharacters) {
    for (const auto& [bytes, rate] : {std::pair<std::string, float>{"8.25 ", 8.25F},
                                      {".50  ", 0.5F},
                                      {"7", 7.0F},
                                      {"1.2.3", 1.2F},
                                      {"100.0", 100.0F},
                                      {"6%   ", 6.0F},
                                      {"12345678", 12345.0F}}) {
        Taxed run;
        run.folder.Write("Proposals/SalesTax.txt", bytes);
        modTax::GetTaxRate(run.program);
        EXPECT_EQ(run.program.totals.TaxRate, rate) << bytes;
    }
}

TEST(TaxRate, AMissingFileIsMadeEmptyAndZeroAsksEveryTime) {
    Taxed run;
    run.surroundings.questions.ExpectBox(kZeroQuestion, Answer::No);
    modTax::GetTaxRate(run.program);
    EXPECT_EQ(run.File(), "");
    EXPECT_TRUE(run.program.windows.Open.empty());
    run.surroundings.questions.ExpectBox(kZeroQuestion, Answer::No);
    modTax::GetTaxRate(run.program);
}

TEST(TaxRate, YesToTheQuestionShowsTheWindow) {
    Taxed run;
    run.folder.Write("Proposals/SalesTax.txt", std::string(5, '\0'));
    run.surroundings.questions.ExpectBox(kZeroQuestion, Answer::Yes);
    modTax::GetTaxRate(run.program);
    EXPECT_EQ(run.program.totals.TaxRate, 0.0F);
    EXPECT_NE(modWindows::Find(run.program, "frmTax"), nullptr);
}

TEST(TaxRate, AFolderInTheFilesPlaceIsTold) {
    Taxed run;
    run.folder.MakeFolder("Proposals/SalesTax.txt");
    run.ExpectReport("GetTaxRate");
    run.surroundings.questions.ExpectBox(kZeroQuestion, Answer::No);
    modTax::GetTaxRate(run.program);
}

TEST(TaxRate, WithoutSettingsTheProgramsOwnFolderHoldsIt) {
    Taxed run;
    run.program.folders.ProposalsFolder.clear();
    run.folder.Write("Proposals/SalesTax.txt", "5.00 ");
    modTax::GetTaxRate(run.program);
    EXPECT_EQ(run.program.totals.TaxRate, 5.0F);
}

TEST(TaxRate, IsWrittenInFiveCharactersAndTold) {
    Taxed run;
    run.folder.Write("Proposals/SalesTax.txt", "8.25 and more");
    modTax::GetTaxRate(run.program);
    run.surroundings.questions.ExpectBox({"New Sales Tax Rate is 9.50 %", Buttons::Ok, ""}, Answer::Ok);
    modTax::SaveTaxRate(run.program, "9.50");
    EXPECT_EQ(run.File(), "9.50 ");
    EXPECT_EQ(run.program.totals.TaxRate, 9.5F);
    EXPECT_EQ(run.program.main.cmdReCalc.BackColor, colors::kButtonFace);
}

TEST(TaxRate, ANewOneIsInTheOpenProposalsFiguresAtOnce) {
    Taxed run;
    int fresh = 0;
    run.program.hooks.TakeFreshFigures = [&](Program& program) {
        ++fresh;
        EXPECT_EQ(program.totals.TaxRate, fresh == 1 ? 8.25F : 0.0F);
    };
    run.surroundings.questions.Expect("New Sales Tax Rate is 7.00 %");
    modTax::SaveTaxRate(run.program, "7.00");
    EXPECT_EQ(fresh, 0) << "nothing to tax";
    run.program.totals.AmountTable[38][PageId::frmP2] = -5;
    run.surroundings.questions.Expect("New Sales Tax Rate is 8.25 %");
    modTax::SaveTaxRate(run.program, "8.25");
    EXPECT_EQ(fresh, 1);
    run.surroundings.questions.Expect("New Sales Tax Rate is .00 %");
    modTax::SaveTaxRate(run.program, ".00");
    EXPECT_EQ(fresh, 2);
    EXPECT_EQ(run.program.main.cmdTaxRate.BackColor, colors::kButtonFace);
}

TEST(TaxRate, AFileThatCannotBeWrittenIsToldAndNoNewRateIsClaimed) {
    Taxed run;
    run.folder.MakeFolder("Proposals/SalesTax.txt");
    run.ExpectReport("SaveTaxRate");
    modTax::SaveTaxRate(run.program, "8.25");
    EXPECT_EQ(run.surroundings.questions.Shown.size(), 1U);
}

TEST(FrmTax, ShowsTheRateInForce) {
    Taxed run;
    run.program.totals.TaxRate = 0.5F;
    const auto& window = dynamic_cast<frmTax&>(modWindows::Show(run.program, std::make_unique<frmTax>()));
    EXPECT_EQ(window.Caption, "Sales Tax Rate");
    EXPECT_EQ(window.lblTaxRate.Caption, "The Current Tax Rate is .50%. You can change it by entering a new "
                                         "value in the text area below.");
    EXPECT_EQ(window.Mode(), Modality::Modal);
}

TEST(FrmTax, LetsDigitsPointCommaBackspaceAndTabPass) {
    for (int key = 0; key < 256; ++key) {
        const bool passes = (key >= 48 && key <= 57) || key == 46 || key == 44 || key == 8 || key == 9;
        EXPECT_EQ(frmTax::txtTaxRate_KeyPress(key), passes ? key : 0) << key;
    }
}

TEST(FrmTax, OkStoresTwoDecimalsInFiveCharacters) {
    for (const auto& [typed, stored] : {std::pair<std::string, std::string>{"8.25", "8.25 "},
                                        {"7.125", "7.13 "},
                                        {"0.5", ".50  "},
                                        {"0", ".00  "},
                                        {"100", "100.0"}}) {
        Taxed run;
        run.program.totals.TaxRate = 5;
        auto& window = dynamic_cast<frmTax&>(modWindows::Show(run.program, std::make_unique<frmTax>()));
        window.txtTaxRate.Text = typed;
        run.surroundings.questions.Expect("New Sales Tax Rate is ");
        window.cmdOK_Click(run.program);
        EXPECT_EQ(run.File(), stored) << typed;
        EXPECT_TRUE(window.Closing);
    }
}

TEST(FrmTax, OpensWithTheRateInForceAllSelected) {
    Taxed run;
    run.program.totals.TaxRate = 8.875F;
    const auto& window = dynamic_cast<frmTax&>(modWindows::Show(run.program, std::make_unique<frmTax>()));
    EXPECT_EQ(window.txtTaxRate.Text, "8.875");
    EXPECT_EQ(window.txtTaxRate.SelStart, 0);
    EXPECT_EQ(window.txtTaxRate.SelLength, 5);
}

TEST(FrmTax, ALookAndOkChangeNothing) {
    for (const char* left : {"8.875", "", "  "}) {
        Taxed run;
        run.folder.Write("Proposals/SalesTax.txt", "8.875");
        run.program.totals.TaxRate = 8.875F;
        auto& window = dynamic_cast<frmTax&>(modWindows::Show(run.program, std::make_unique<frmTax>()));
        window.txtTaxRate.Text = left;
        window.cmdOK_Click(run.program);
        EXPECT_TRUE(window.Closing);
        EXPECT_EQ(run.program.totals.TaxRate, 8.875F);
        EXPECT_EQ(run.File(), "8.875");
    }
}

TEST(FrmTax, WhatIsNoNumberIsToldAndTheWindowStays) {
    for (const char* typed : {"8,25", ".", "1.2.3"}) {
        Taxed run;
        run.program.totals.TaxRate = 8.25F;
        auto& window = dynamic_cast<frmTax&>(modWindows::Show(run.program, std::make_unique<frmTax>()));
        window.txtTaxRate.Text = typed;
        run.surroundings.questions.Expect(std::string(typed) + " is not a number and was not taken.");
        window.cmdOK_Click(run.program);
        EXPECT_FALSE(window.Closing);
        EXPECT_EQ(run.program.totals.TaxRate, 8.25F);
    }
}

TEST(FrmTax, CancelAndEscapeChangeNothing) {
    Taxed run;
    run.program.totals.TaxRate = 8.25F;
    auto& first = dynamic_cast<frmTax&>(modWindows::Show(run.program, std::make_unique<frmTax>()));
    first.txtTaxRate.Text = "9";
    first.cmdCancel_Click(run.program);
    auto& second = modWindows::Show(run.program, std::make_unique<frmTax>());
    second.Form_Cancel(run.program);
    modWindows::Sweep(run.program);
    EXPECT_TRUE(run.program.windows.Open.empty());
    EXPECT_EQ(run.program.totals.TaxRate, 8.25F);
    EXPECT_FALSE(run.folder.Has("Proposals/SalesTax.txt"));
}

TEST(TaxRate, AnotherProgramsRateIsAskedAboutAndKeptByNo) {
    Taxed run;
    run.folder.Write("Proposals/SalesTax.txt", "8.25 ");
    modTax::GetTaxRate(run.program);
    run.folder.Write("Proposals/SalesTax.txt", "7.00 ");
    run.surroundings.questions.Expect("This tax rate was changed by another program", Answer::No);
    modTax::SaveTaxRate(run.program, "9.50");
    EXPECT_EQ(run.File(), "7.00 ");
    EXPECT_EQ(run.program.totals.TaxRate, 8.25F);
}

TEST(TaxRate, AFileThatCouldNotBeReadIsKept) {
    Taxed run;
    run.folder.Write("Proposals/SalesTax.txt", "8.25 ");
    {
        const FailingDisk disk{{FailingDisk::Call::Read, 1, EIO, FailingDisk::kForever}};
        run.surroundings.questions.Expect("An error occurred in GetTaxRate.");
        run.surroundings.questions.Expect("The current sales tax rate is 0%.", Answer::No);
        modTax::GetTaxRate(run.program);
    }
    run.surroundings.questions.Expect("New Sales Tax Rate is 9.50 %");
    modTax::SaveTaxRate(run.program, "9.50");
    EXPECT_EQ(run.File(), "9.50 ");
    EXPECT_EQ(run.folder.Read("Proposals/SalesTax.txt.unread"), "8.25 ");
}

} // namespace
