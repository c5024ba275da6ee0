#include "terms/frm_add_fut.h"

#include "program/program.h"
#include "program/windows.h"
#include "terms/term_list.h"

void frmAddFUT::Form_Load(Program&) {
    Caption = "Add New Term to List";
}

void frmAddFUT::Form_Cancel(Program& program) {
    modWindows::Close(program, *this);
}

void frmAddFUT::cmdSave_Click(Program& program) {
    if (modTerms::AddTerm(program, txtAddFUT.Text)) {
        cmdClear_Click();
    }
}

void frmAddFUT::cmdClear_Click() {
    txtAddFUT.Text.clear();
}

void frmAddFUT::cmdExit_Click(Program& program) {
    modWindows::Close(program, *this);
}
