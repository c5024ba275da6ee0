#include "terms/frm_edit_fut.h"

#include "program/program.h"
#include "program/windows.h"

void frmEditFUT::Form_Load(Program&) {
    Caption = "Edit Selected Term";
    txtEditFUT.Text = term_.Text;
    txtEditFUT.SelLength = static_cast<int>(term_.Text.size());
}

void frmEditFUT::Form_Cancel(Program& program) {
    modWindows::Close(program, *this);
}

void frmEditFUT::cmdSave_Click(Program& program) {
    if (modTerms::ReplaceTerm(program, term_, txtEditFUT.Text)) {
        modWindows::Close(program, *this);
    }
}

void frmEditFUT::cmdExit_Click(Program& program) {
    modWindows::Close(program, *this);
}
