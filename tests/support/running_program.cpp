#include "support/running_program.h"
#include "program/keys.h"
#include "program/windows.h"
#include "shell/command_run.h"
#include "shell/frm_main.h"
#include "shell/frm_splash.h"
#include "shell/main_controls.h"
#include "shell/start_up.h"
#include "shell/wiring.h"
#include "support/typist.h"

#include <fstream>
#include <iterator>
#include <stdexcept>

std::string ReadTestData(std::string_view name) {
    std::ifstream in(std::string(QUILLBROOK_TEST_DATA) + "/" + std::string(name), std::ios::binary);
    if (!in) {
        throw std::runtime_error("no test data " + std::string(name));
    }
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

RunningProgram::RunningProgram(Begin begin) {
    folder.Write("UserPreferences.txt", ReadTestData("jane_roe/UserPreferences.txt"));
    folder.Write("Proposals/SalesTax.txt", ReadTestData("jane_roe/SalesTax.txt"));
    folder.MakeFolder("Home");
    program.folders.InstallFolder = folder.Path();
    program.folders.Drives.Home = folder / "Home/";
    program.main.ClientHeight = 9000;
    program.main.ClientWidth = 14000;
    Wire(program);
    surroundings.questions.Allow(kNoEvents); // its folder has no proposals
    if (begin == Begin::Started) {
        Start();
    }
}

void RunningProgram::Start() {
    if (modStart::Main(program) != modStart::StartResult::Running) {
        throw std::runtime_error("the program did not start");
    }
    PassSplash(program);
    surroundings.questions.Allow({});
}

MainWindow& RunningProgram::Main() {
    modMain::WorkOutControls(program);
    return program.main;
}

void RunningProgram::Setting(std::string_view key, std::string_view value) const {
    std::string lines = folder.Read("UserPreferences.txt");
    const std::size_t at = lines.find(key);
    if (at == std::string::npos) {
        throw std::runtime_error("no such setting: " + std::string(key));
    }
    const std::size_t from = at + key.size();
    lines.replace(from, lines.find("\r\n", from) - from, value);
    folder.Write("UserPreferences.txt", lines);
}

void PassSplash(Program& program) {
    auto* splash = dynamic_cast<frmSplash*>(modWindows::Find(program, "frmSplash"));
    if (splash == nullptr) {
        throw std::runtime_error("no splash to click on");
    }
    splash->Form_Click(program);
    modWindows::Sweep(program);
}

void TypeJaneRoe(RunningProgram& run) {
    Typist typist(run.program);
    const auto fill = [&](PageId page, int index, std::string_view text) {
        typist.Click(page, index);
        typist.Type(text);
    };
    frmMain window(run.program);
    fill(PageId::frmP1, 0, "January 21, 2008");
    fill(PageId::frmP1, 1, "6:00 PM");
    fill(PageId::frmP1, 2, "Jane Roe");
    fill(PageId::frmP1, 3, "12 Elm Street");
    fill(PageId::frmP1, 4, "Springfield, IL 62701");
    fill(PageId::frmP1, 5, "(217) 555-0100");
    fill(PageId::frmP1, 8, "Garden Hall");
    fill(PageId::frmP1, 10, "Ceremony arch");
    typist.Press(keys::kEnter);
    typist.Type("1250");
    typist.Press(keys::kEnter);
    typist.Type("Aisle runner");
    typist.Press(keys::kEnter);
    typist.Type("75.5");
    commands::Run(run.program, CommandId::mnuEditTextTaxExempt);
    window.imgPage_Click(1);
    typist.Click(PageId::frmP2, 0);
    typist.Press(keys::kF8);
    typist.Type("3");
    typist.Press(keys::kEnter);
    typist.Type("Chair covers");
    typist.Press(keys::kEnter);
    typist.Type("19.99");
    typist.Press(keys::kEnter);
    window.imgPage_Click(4);
    fill(PageId::frmP5, 32, "Last line");
    fill(PageId::frmP5, 65, "10");
    window.imgPage_Click(5);
    // The automatic backup has put 0.00 there meanwhile; a person marks it and types over it.
    typist.Click(PageId::frmP6, 4);
    typist.PutCursor(0, static_cast<int>(run.TextOf(PageId::frmP6, 4).size()));
    typist.Type("500");
    typist.Click(PageId::frmP6, 1);
}
