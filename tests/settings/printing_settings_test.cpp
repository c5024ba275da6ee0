#include "program/windows.h"
#include "settings/frm_poffsets.h"
#include "settings/frm_printers.h"
#include "settings/printer_offsets.h"
#include "settings/settings.h"
#include "support/failing_disk.h"
#include "support/settled.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>
#include <string>

namespace {

struct Offset : Settled {
    Offset() {
        folder.MakeFolder("Proposals");
        program.folders.ProposalsFolder = folder / "Proposals/";
    }
    void Read(std::string_view bytes) {
        folder.Write("Proposals/PrinterOffsets.txt", bytes);
        modOffsets::ReadPrinterOffsets(program);
    }
    [[nodiscard]] float X() const { return program.printing.PrinterOffsetX; }
    [[nodiscard]] float Y() const { return program.printing.PrinterOffsetY; }
};

TEST(PrinterOffsets, AreInchesInTheFileAndTwipsInTheProgram) {
    Offset run;
    run.Read("Printer X Offset:-0.25Printer Y Offset:.5");
    EXPECT_EQ(run.X(), -360.0F);
    EXPECT_EQ(run.Y(), 720.0F);
}

TEST(PrinterOffsets, AMissingFileMeansNoneAndIsNotTold) {
    Offset run;
    run.program.printing.PrinterOffsetX = 5;
    run.program.printing.PrinterOffsetY = 7;
    modOffsets::ReadPrinterOffsets(run.program);
    EXPECT_EQ(run.X(), 0.0F);
    EXPECT_EQ(run.Y(), 0.0F);
}

TEST(PrinterOffsets, WhatIsNoOffsetCountsAsNone) {
    Offset run;
    run.Read("");
    EXPECT_EQ(run.X(), 0.0F);
    run.Read(std::string("Printer X Offset:\0\0Printer Y Offset:abc", 39));
    EXPECT_EQ(run.X(), 0.0F);
    EXPECT_EQ(run.Y(), 0.0F);
    run.Read("Printer Y Offset:1");
    EXPECT_EQ(run.X(), 0.0F);
    EXPECT_EQ(run.Y(), 1440.0F);
    run.Read("Printer X Offset:" + std::string(400, '9') + "Printer Y Offset:" + std::string(38, '9'));
    EXPECT_EQ(run.X(), 0.0F);
    EXPECT_EQ(run.Y(), 0.0F); // a single holds the inches, but not the twips
}

TEST(PrinterOffsets, AreWrittenBackToBack) {
    Offset run;
    run.program.printing.PrinterOffsetX = -360;
    run.program.printing.PrinterOffsetY = 0;
    modOffsets::SavePrinterOffsets(run.program);
    EXPECT_EQ(run.folder.Read("Proposals/PrinterOffsets.txt"), "Printer X Offset:-0.25Printer Y Offset:0");
}

TEST(PrinterOffsets, FailuresAreToldUnderTheRoutinesNames) {
    Offset run;
    run.folder.MakeFolder("Proposals/PrinterOffsets.txt");
    run.ExpectReport("SavePrinterOffsets");
    modOffsets::SavePrinterOffsets(run.program);
}

TEST(PrinterOffsets, OfATwipAreHalfAtTheLeastAndAMillionAtTheMost) {
    EXPECT_EQ(modOffsets::TwipsOf("0.00034722222"), 0.5F); // of 1440 twips an inch
    EXPECT_EQ(modOffsets::TwipsOf("-0.00034722222"), -0.5F);
    EXPECT_EQ(modOffsets::TwipsOf("0.000347"), 0.0F);
    EXPECT_EQ(modOffsets::TwipsOf("694.4444"), 1'000'000 - 0.064F);
    EXPECT_EQ(modOffsets::TwipsOf("694.44446"), 1'000'000.0F); // the nearest there is to a 1440th
    EXPECT_EQ(modOffsets::TwipsOf("694.4445"), 0.0F);
}

TEST(PrinterOffsets, AnotherProgramsAreAskedAboutAndKeptByNo) {
    const std::string question = "This printer offsets file was changed by another program";
    const std::string others = "Printer X Offset:1Printer Y Offset:1";
    Offset run;
    run.Read("Printer X Offset:2Printer Y Offset:2");
    modOffsets::SavePrinterOffsets(run.program); // nobody else wrote: nothing to ask, and nothing to keep
    EXPECT_FALSE(run.folder.Has("Proposals/PrinterOffsets.txt.unread"));
    run.folder.Write("Proposals/PrinterOffsets.txt", others);
    run.surroundings.questions.Expect(question, Answer::No);
    modOffsets::SavePrinterOffsets(run.program);
    EXPECT_EQ(run.folder.Read("Proposals/PrinterOffsets.txt"), others);
}

TEST(PrinterOffsets, AFileThatHasComeSinceNoneWasReadIsAskedAbout) {
    const std::string others = "Printer X Offset:1Printer Y Offset:1";
    Offset run;
    run.Read(others);
    std::filesystem::remove(run.folder / "Proposals/PrinterOffsets.txt");
    modOffsets::ReadPrinterOffsets(run.program);
    run.folder.Write("Proposals/PrinterOffsets.txt", others);
    run.surroundings.questions.Expect("This printer offsets file was changed by another program", Answer::No);
    modOffsets::SavePrinterOffsets(run.program);
    EXPECT_EQ(run.folder.Read("Proposals/PrinterOffsets.txt"), others);
}

TEST(PrinterOffsets, AFileThatCouldNotBeReadIsKept) {
    Offset run;
    {
        const FailingDisk disk{{FailingDisk::Call::Read, 1, EIO, FailingDisk::kForever}};
        run.ExpectReport("ReadPrinterOffsets");
        run.Read("Printer X Offset:1Printer Y Offset:1");
    }
    modOffsets::SavePrinterOffsets(run.program);
    EXPECT_EQ(run.folder.Read("Proposals/PrinterOffsets.txt"), "Printer X Offset:0Printer Y Offset:0");
    EXPECT_EQ(run.folder.Read("Proposals/PrinterOffsets.txt.unread"), "Printer X Offset:1Printer Y Offset:1");
}

TEST(PrinterOffsets, AreReadWithTheSettings) {
    Settled run;
    run.folder.Write("UserPreferences.txt", SettingsFile({}));
    run.folder.Write("Proposals/PrinterOffsets.txt", "Printer X Offset:1Printer Y Offset:-1");
    modSettings::GetUserPreferences(run.program);
    EXPECT_EQ(run.program.printing.PrinterOffsetX, 1440.0F);
    EXPECT_EQ(run.program.printing.PrinterOffsetY, -1440.0F);
}

frmPOffsets& OpenOffsets(Program& program) {
    return dynamic_cast<frmPOffsets&>(modWindows::Show(program, std::make_unique<frmPOffsets>()));
}

TEST(FrmPOffsets, ShowsBothOffsetsAndCallsBothHorizontal) {
    Offset run;
    run.program.printing.PrinterOffsetX = -360;
    run.program.printing.PrinterOffsetY = 1440;
    const frmPOffsets& window = OpenOffsets(run.program);
    EXPECT_EQ(window.Caption, "Printer Offsets");
    EXPECT_EQ(window.lblX.Caption, "Printer X Offset (Horizontal) - Current Value = -0.25\"");
    EXPECT_EQ(window.lblY.Caption, "Printer Y Offset (Horizontal) - Current Value = 1.00\"");
    EXPECT_EQ(window.txtX.Text, "-0.25");
    EXPECT_EQ(window.txtY.Text, "1");
    EXPECT_EQ(window.cmdOK.Caption, "Apply");
}

TEST(FrmPOffsets, LetsDigitsCommaMinusPointAndBackspacePass) {
    for (int key = 0; key < 256; ++key) {
        const bool passes = (key >= 48 && key <= 57) || key == 44 || key == 45 || key == 46 || key == 8;
        EXPECT_EQ(frmPOffsets::txt_KeyPress(key), passes ? key : 0) << key;
    }
}

TEST(FrmPOffsets, ApplyPutsTheBoxesInForceAndWritesNothing) {
    Offset run;
    run.program.printing.PrinterOffsetY = 1440;
    frmPOffsets& window = OpenOffsets(run.program);
    window.txtX.Text = "-0.25";
    window.txtY.Text = "";
    window.cmdOK_Click(run.program);
    EXPECT_EQ(run.X(), -360.0F);
    EXPECT_EQ(run.Y(), 0.0F);
    EXPECT_EQ(window.lblX.Caption, "Printer X Offset (Horizontal) - Current Value = -0.25\"");
    EXPECT_FALSE(window.Closing);
    EXPECT_FALSE(run.folder.Has("Proposals/PrinterOffsets.txt"));
}

TEST(FrmPOffsets, WhatIsNoNumberIsToldAndChangesNothing) {
    for (const char* typed : {"1,5", "--", "1.2.3"}) {
        Offset run;
        frmPOffsets& window = OpenOffsets(run.program);
        run.program.printing.PrinterOffsetX = 720;
        window.txtX.Text = "0.25";
        window.txtY.Text = typed;
        run.surroundings.questions.Expect(std::string(typed) + " is not a number and was not taken.");
        window.cmdOK_Click(run.program);
        EXPECT_EQ(run.X(), 720.0F) << typed;
        run.surroundings.questions.Expect(std::string(typed) + " is not a number and was not taken.");
        window.cmdSavePrinterOffsets_Click(run.program);
        EXPECT_FALSE(window.Closing);
        EXPECT_FALSE(run.folder.Has("Proposals/PrinterOffsets.txt"));
    }
}

TEST(FrmPOffsets, SavingWritesTheFileAndCloses) {
    Offset run;
    frmPOffsets& window = OpenOffsets(run.program);
    window.txtX.Text = "0.125";
    window.cmdSavePrinterOffsets_Click(run.program);
    EXPECT_EQ(run.folder.Read("Proposals/PrinterOffsets.txt"), "Printer X Offset:0.125Printer Y Offset:0");
    EXPECT_TRUE(window.Closing);
}

TEST(FrmPOffsets, EscapeChangesNothing) {
    Offset run;
    frmPOffsets& window = OpenOffsets(run.program);
    window.txtX.Text = "1";
    window.Form_Cancel(run.program);
    EXPECT_EQ(run.X(), 0.0F);
    EXPECT_TRUE(window.Closing);
}

TEST(FrmPOffsets, ExplainsItself) {
    Offset run;
    run.surroundings.questions.ExpectBox(
        {"If your documents are not printing on center, you need to adjust your offsets.\r\n"
         "The X offset controls the left to right centering and the Y offset controls\r\n"
         "the up and down centering. Enter all values in inches. Negative values are permitted.",
         Buttons::Ok, ""},
        Answer::Ok);
    frmPOffsets::mnuHelpPrinterOffsets_Click(run.program);
}

frmPrinters& OpenPrinters(Program& program) {
    return dynamic_cast<frmPrinters&>(modWindows::Show(program, std::make_unique<frmPrinters>()));
}

TEST(FrmPrinters, ListsThePrintersWithTheCurrentOneSelected) {
    Settled run;
    run.surroundings.printers.CurrentDevice = "Print to PDF";
    const frmPrinters& window = OpenPrinters(run.program);
    EXPECT_EQ(window.Caption, "Available Printers");
    EXPECT_EQ(window.cmbPrinters.Items, (std::vector<std::string>{"Office Laser", "Print to PDF"}));
    EXPECT_EQ(window.cmbPrinters.ListIndex, 1);
    EXPECT_EQ(window.cmdPrinter.Caption, "Make This My Default Printer");
}

TEST(FrmPrinters, SaysWhenNoneIsCurrent) {
    Settled run;
    run.surroundings.printers.CurrentDevice.clear();
    frmPrinters& window = OpenPrinters(run.program);
    EXPECT_EQ(window.cmbPrinters.ListIndex, -1);
    EXPECT_EQ(window.cmbPrinters.Placeholder, "No Default Printer Found");
    window.cmdPrinter_Click(run.program);
    EXPECT_FALSE(run.folder.Has("UserPreferences.txt"));
}

TEST(FrmPrinters, TheChosenOneIsCurrentAndKept) {
    Settled run;
    run.folder.Write("UserPreferences.txt", SettingsFile({{2, "Acme"}}));
    modSettings::GetUserPreferences(run.program);
    frmPrinters& window = OpenPrinters(run.program);
    window.cmbPrinters_Click(run.program, 1);
    window.cmbPrinters_Click(run.program, 7);
    window.cmdPrinter_Click(run.program);
    EXPECT_EQ(run.surroundings.printers.Current(), "Print to PDF");
    EXPECT_EQ(run.program.settings.DefaultPrinter, "Print to PDF");
    EXPECT_EQ(run.folder.Read("UserPreferences.txt"), SettingsFile({{2, "Acme"}, {21, "Print to PDF"}}));
    EXPECT_EQ(window.cmbPrinters.ListIndex, 1);
}

TEST(FrmPrinters, TheFirstOfTheListIsChosenAsAnyOther) {
    Settled run;
    run.folder.Write("UserPreferences.txt", SettingsFile({}));
    run.surroundings.printers.CurrentDevice = "Print to PDF";
    modSettings::GetUserPreferences(run.program);
    frmPrinters& window = OpenPrinters(run.program);
    window.cmbPrinters_Click(run.program, 0);
    window.cmdPrinter_Click(run.program);
    EXPECT_EQ(run.surroundings.printers.Current(), "Office Laser");
    window.Form_Cancel(run.program);
    EXPECT_TRUE(window.Closing);
}

TEST(FrmPrinters, APrinterThatHasGoneLeavesTheListAndTheSettings) {
    Settled run;
    run.folder.Write("UserPreferences.txt", SettingsFile({}));
    modSettings::GetUserPreferences(run.program);
    frmPrinters& window = OpenPrinters(run.program);
    window.cmbPrinters_Click(run.program, 1);
    run.surroundings.printers.Devices = {"Office Laser"};
    window.cmdPrinter_Click(run.program);
    EXPECT_EQ(run.surroundings.printers.Current(), "Office Laser");
    EXPECT_EQ(window.cmbPrinters.Items, std::vector<std::string>{"Office Laser"});
    EXPECT_EQ(run.folder.Read("UserPreferences.txt"), SettingsFile({}));
}

TEST(FrmPrinters, DoNotOpenWhilePagesAreBeingPrinted) {
    Settled run;
    run.program.printing.CommandRunning = true;
    modPrinters::mnuOptPrinter_Click(run.program);
    EXPECT_EQ(modWindows::Find(run.program, "frmPrinters"), nullptr);
    run.program.printing.CommandRunning = false;
    modPrinters::mnuOptPrinter_Click(run.program);
    EXPECT_NE(modWindows::Find(run.program, "frmPrinters"), nullptr);
}

TEST(FrmPrinters, WithoutAnyPrinterTheCommandSaysSo) {
    Settled run;
    run.surroundings.printers.Devices.clear();
    run.surroundings.questions.ExpectBox({"Printer Error 482. No printers found.", Buttons::Ok, ""},
                                         Answer::Ok);
    modPrinters::mnuOptPrinter_Click(run.program);
    EXPECT_TRUE(run.program.windows.Open.empty());
    run.surroundings.printers.Devices = {"Office Laser"};
    modPrinters::mnuOptPrinter_Click(run.program);
    EXPECT_NE(modWindows::Find(run.program, "frmPrinters"), nullptr);
}

TEST(PrinterOffsets, MayStandInAnyOrder) {
    Offset run;
    run.Read("Printer Y Offset:1Printer X Offset:2");
    EXPECT_EQ(run.X(), 2880.0F);
    EXPECT_EQ(run.Y(), 1440.0F);
    run.Read("Printer X Offset:Printer Y Offset:1");
    EXPECT_EQ(run.X(), 0.0F);
    EXPECT_EQ(run.Y(), 1440.0F);
}

} // namespace
