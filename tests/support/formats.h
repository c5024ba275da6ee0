#pragma once

#include "format/format_commands.h"
#include "format/label_designer.h"
#include "program/windows.h"
#include "proposal/frm_file.h"
#include "proposal/lifecycle.h"
#include "support/running_program.h"
#include "support/typist.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <string_view>

inline constexpr std::string_view kHouse =
    "frmP1.lbl(9).Left=1200 .Top=4140 .Caption=Day .FontName=Arial .FontBold=True .FontSize=12 "
    ".ForeColor=255 .FontItalic=False .FontUnderline=False\r\n"
    "UDP.FontName=Times New Roman .FontSize=10 .FontColor=0 .FontItalic=False\r\n";

/// A person with a format of the house and a proposal of Jane Roe in the folder.
struct Formats : RunningProgram {
    Formats() {
        folder.Write("Proposals/House.fmt", kHouse);
        folder.Write("Proposals/Jane Roe.hef", ReadTestData("jane_roe/Jane Roe.hef"));
    }
    /// By the menu and the chooser, as a person does.
    void Open(std::string_view name = "House.fmt") {
        modFormat::mnuFileFormatOpen_Click(program);
        Choose(name);
    }
    void Choose(std::string_view name) {
        const auto& items = Chooser().FileList1.Items;
        const auto at = std::find(items.begin(), items.end(), name);
        ASSERT_NE(at, items.end());
        Chooser().FileList1_Click(program, static_cast<int>(at - items.begin()));
        Chooser().cmdOpenOK_Click(program);
        modWindows::Sweep(program);
    }
    void OpenProposal(std::string_view name) {
        modProposal::mnuFileOpenEvent_Click(program);
        Choose(name);
    }
    void ExpectNoFormat() {
        EXPECT_FALSE(program.format.FormatOpen);
        EXPECT_EQ(program.format.FormatName, "");
        EXPECT_FALSE(program.format.FormatLabelChanges[PageId::frmP1][9].Changed);
        EXPECT_FALSE(program.settings.LoadDefaultFormat);
        EXPECT_EQ(Main().Caption, "Quillbrook");
        EXPECT_EQ(Label(PageId::frmP1, 9).Caption, "Event Date");
    }
    void Type() {
        Typist typist(program);
        typist.Click(PageId::frmP1, 8);
        typist.Type("Hall");
    }
    /// Drags a label one step to the right.
    void Drag(int label) {
        modDesigner::lbl_MouseDown(program, PageId::frmP1, label, modDesigner::kLeftButton, 0, 0);
        static_cast<void>(modDesigner::lbl_MouseMove(program, PageId::frmP1, label, 180, 0));
        modDesigner::lbl_MouseUp(program, PageId::frmP1, label);
    }
    [[nodiscard]] std::string Settings() const { return folder.Read("UserPreferences.txt"); }
    [[nodiscard]] bool HasSetting(std::string_view line) const {
        return Settings().find(std::string(line) + "\r\n") != std::string::npos;
    }
    ScriptedQuestions& Questions() { return surroundings.questions; }
    frmFile& Chooser() { return dynamic_cast<frmFile&>(*modWindows::Find(program, "frmFile")); }
};
