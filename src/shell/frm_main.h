#pragma once

struct Program;

/// The main window's own handlers; its controls are the MainWindow record.
class frmMain {
public:
    explicit frmMain(Program& program) : program_(program) {}

    void cmdClearMem_Click();
    void cmdPreview_Click();
    void cmdReCalc_Click();
    void cmdTaxRate_Click();
    void imgNew_MouseDown();
    void imgOpen_MouseDown();
    void imgFootNotes_MouseDown();
    void imgPrint_Click();
    void imgSave_Click();
    void imgSaveAs_Click();
    void imgSearch_Click();
    void imgSpellCheck_Click();
    void imgPage_Click(int index);
    /// A long folder stays readable in the tip.
    void lblDir_MouseMove();
    /// A positioning aid: where the calculator stands, in twips.
    void lblTextNum_DblClick();

private:
    Program& program_;
};
