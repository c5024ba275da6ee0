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
    /// Starts the closing of the window, with its question.
    void mnuFileExit_Click();

    /// The close box or Exit: asks about unsaved changes. True when the window may close.
    [[nodiscard]] bool MDIForm_QueryUnload();
    void MDIForm_Unload();

private:
    Program& program_;
};
