#include "shell/admin_commands.h"

#include "base/numbers.h"
#include "program/program.h"
#include "program/windows.h"
#include "proposal/frm_file.h"

#include <memory>
#include <string>

namespace modAdmin {

namespace {

template <typename Field> std::string FontOf(std::string_view what, const Field& field) {
    return std::string(what) + " Font = " + field.FontName +
           ": Fontsize = " + numbers::PlainNumber(field.FontSize);
}

} // namespace

void mnuAdminDelete_Click(Program& program) {
    program.document.DeleteMode = true;
    modWindows::Show(program, std::make_unique<frmFile>()).Caption = "Selecting Files to Delete";
}

void mnuAdminDebug_Click(Program& program) {
    Questions& questions = program.platform.questions;
    questions.MsgBox("Please inform the software manufacturer as to the message that follows.", Buttons::Ok,
                     "");
    const Page& page = program.pages[PageId::frmP1];
    questions.MsgBox(FontOf("Form", page) + " | " + FontOf("Text", page.txt[0]) + " | " +
                         FontOf("Label", page.lbl[0]),
                     Buttons::Ok, "");
}

void mnuAdminLogon_Click(Program& program) {
    const std::string password =
        program.platform.questions.InputBox("Please enter password.", "Password Required", "");
    if (password != program.main.AdminPassword) {
        return;
    }
    for (const CommandId id :
         {CommandId::mnuAdminConvert, CommandId::mnuAdminPrintAll, CommandId::mnuAdminRecalc}) {
        program.main[id].Enabled = true;
    }
}

void mnuToolsAdminShowAllLabels_Click(Program& program) {
    for (const PageId page : kEditedPages) {
        for (PageLabel& label : program.pages[page].lbl) {
            label.Visible = true;
        }
    }
}

void mnuAdminConvert_Click(Program& program) {
    program.main.ConversionAsked = true;
}

} // namespace modAdmin
