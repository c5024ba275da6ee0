#include "terms/frm_fut.h"

#include "base/numbers.h"
#include "base/rows.h"
#include "pages/fields.h"
#include "program/keys.h"
#include "program/program.h"
#include "program/windows.h"
#include "settings/settings.h"
#include "terms/frm_add_fut.h"
#include "terms/frm_edit_fut.h"
#include "terms/list_files.h"
#include "terms/placing.h"
#include "terms/term_list.h"

#include <memory>

namespace {

void Tell(const Program& program, std::string_view message) {
    program.platform.questions.MsgBox(message, Buttons::Ok, "");
}

/// Place and size as the settings file has them.
std::string PlaceText(const Window& window) {
    return "Left=" + numbers::PlainNumber(window.Left) + ":Top=" + numbers::PlainNumber(window.Top) +
           ":Width=" + numbers::PlainNumber(window.Width) + ":Height=" + numbers::PlainNumber(window.Height);
}

std::string CompletionCaption(const Program& program) {
    return program.run.ACEnabled ? "Disable Auto Complete" : "Enable Auto Complete";
}

frmFUT* OpenWindow(Program& program) {
    return static_cast<frmFUT*>(modWindows::Find(program, "frmFUT"));
}

frmFUT& ShownWindow(Program& program) {
    if (frmFUT* window = OpenWindow(program)) {
        return *window;
    }
    return static_cast<frmFUT&>(modWindows::Show(program, std::make_unique<frmFUT>()));
}

} // namespace

void frmFUT::Form_Load(Program& program) {
    const FutPosition& place = program.settings.FUTPosition;
    Left = place.Left;
    Top = place.Top;
    Width = place.Width;
    Height = place.Height;
    program.run.FUTShown = true;
    cmdOpt[0].Caption = CompletionCaption(program);
    modTerms::ReadFrequentlyUsedTerms(program);
    FollowList(program);
}

void frmFUT::Form_Unload(Program& program) {
    program.run.FUTShown = false;
}

void frmFUT::Form_Cancel(Program& program) {
    modWindows::Close(program, *this);
}

void frmFUT::Form_Escape(Program& program) {
    if (lstMoreFUT.Visible) {
        ShowTerms();
    } else {
        program.main.BringUp = true;
    }
}

void frmFUT::Form_DblClick(Program& program) {
    Tell(program, PlaceText(*this));
}

void frmFUT::FollowList(const Program& program) {
    Caption = modTerms::ListName(program.run.FUTFileName);
    if (lstFUT.ListIndex >= program.terms.TermCount()) {
        lstFUT.ListIndex = program.terms.TermCount() - 1;
    }
}

std::optional<std::string> frmFUT::Selected(const Program& program) const {
    if (lstFUT.ListIndex < 0 || lstFUT.ListIndex >= program.terms.TermCount()) {
        return std::nullopt;
    }
    return std::string(program.terms.Lines[static_cast<std::size_t>(lstFUT.ListIndex)]);
}

void frmFUT::cmdOpt_Click(Program& program, int index) {
    enum { kToggle, kAdd, kEdit, kRemove };
    if (index == kToggle) {
        program.run.ACEnabled = !program.run.ACEnabled;
        cmdOpt[kToggle].Caption = CompletionCaption(program);
    } else if (index == kAdd) {
        modWindows::Show(program, std::make_unique<frmAddFUT>());
    } else if (index == kRemove) {
        Remove(program);
    } else if (const std::optional<std::string> term = Selected(program)) {
        modWindows::Show(program, std::make_unique<frmEditFUT>(modTerms::TermLine{*term, lstFUT.ListIndex}));
    } else {
        Tell(program, "Nothing selected to edit.");
    }
}

void frmFUT::Remove(Program& program) {
    const std::optional<std::string> term = Selected(program);
    if (!term) {
        Tell(program, "Nothing selected to remove.");
        return;
    }
    // What came of it has been told.
    static_cast<void>(modTerms::RemoveTerm(program, {*term, lstFUT.ListIndex}));
    FollowList(program);
}

void frmFUT::cmdCase_Click(Program& program, int index) {
    constexpr std::array kCases{modTerms::LetterCase::Lower, modTerms::LetterCase::Proper,
                                modTerms::LetterCase::Upper};
    modTerms::ChangeCase(program, kCases[static_cast<std::size_t>(index)]);
    FollowList(program);
}

void frmFUT::lstFUT_Select(const Program& program, int line) {
    lstFUT.ListIndex = line < program.terms.TermCount() ? line : -1;
}

void frmFUT::lstFUT_Enter(Program& program) {
    if (const std::optional<std::string> term = Selected(program)) {
        modTerms::PutIntoLastField(program, *term);
    }
}

void frmFUT::lstFUT_MouseMove(Program& program) {
    program.terms.DraggedTerm = Selected(program).value_or(std::string());
}

void frmFUT::mnuFileShowAll_Click(Program& program) {
    lstMoreFUT.Items = modTerms::ListFiles(program);
    lstMoreFUT.ListIndex = -1;
    lstMoreFUT.Visible = true;
    lstFUT.Visible = false;
    for (std::size_t index = 1; index < cmdOpt.size(); ++index) {
        cmdOpt[index].Enabled = false;
    }
    for (CommandButton& button : cmdCase) {
        button.Enabled = false;
    }
    mnuFileDefaultFUT.Enabled = false;
}

void frmFUT::ShowTerms() {
    lstMoreFUT.Visible = false;
    lstFUT.Visible = true;
    for (CommandButton& button : cmdOpt) {
        button.Enabled = true;
    }
    for (CommandButton& button : cmdCase) {
        button.Enabled = true;
    }
    mnuFileDefaultFUT.Enabled = true;
}

void frmFUT::mnuFileNewFUT_Click(Program& program) {
    const std::string before = program.run.FUTFileName;
    modTerms::CreateNewFUTFile(program);
    if (program.run.FUTFileName != before) {
        lstFUT.ListIndex = -1;
        ShowTerms();
    }
    FollowList(program);
}

void frmFUT::mnuFileDelete_Click(Program& program) {
    const int row = lstMoreFUT.ListIndex;
    if (!lstMoreFUT.Visible || !HasRow(lstMoreFUT.Items, row)) {
        Tell(program, "No file to delete.");
        return;
    }
    if (modTerms::DeleteList(program, lstMoreFUT.Items[static_cast<std::size_t>(row)])) {
        lstFUT.ListIndex = -1;
        ShowTerms();
        FollowList(program);
    }
}

void frmFUT::mnuFileDefaultFUT_Click(Program& program) {
    program.settings.FrequentTermsFile = program.run.FUTFileName;
    modSettings::SetLine(program, modSettings::Key::FrequentTermsFile, program.run.FUTFileName);
    static_cast<void>(modSettings::SaveUserPreferences(program)); // a failure has been told
}

void frmFUT::mnuWindowSavePosition_Click(Program& program) {
    program.settings.FUTPosition = {Left, Top, Width, Height};
    modSettings::SetLine(program, modSettings::Key::FUTPosition, PlaceText(*this));
    static_cast<void>(modSettings::SaveUserPreferences(program)); // a failure has been told
}

void frmFUT::lstMoreFUT_Move(int row) {
    lstMoreFUT.ListIndex = HasRow(lstMoreFUT.Items, row) ? row : -1;
}

void frmFUT::lstMoreFUT_Click(Program& program) {
    const int row = lstMoreFUT.ListIndex;
    if (!HasRow(lstMoreFUT.Items, row)) {
        Tell(program, "No list selected.");
        return;
    }
    modTerms::OpenList(program, lstMoreFUT.Items[static_cast<std::size_t>(row)]);
    lstFUT.ListIndex = -1;
    ShowTerms();
    FollowList(program);
    modFields::GiveFocus(program, modTerms::LastField(program));
    program.main.BringUp = true;
}

namespace modTerms {

void mnuOptFUT_Click(Program& program) {
    modWindows::BringToFront(ShownWindow(program));
}

void ShowTermsWindow(Program& program) {
    if (OpenWindow(program) == nullptr) {
        frmFUT& window = ShownWindow(program);
        window.Minimised = program.settings.MinimizeFUT;
        window.StartedMinimised = window.Minimised;
    }
}

void TermsKey(Program& program, int keyCode) {
    if (keyCode == keys::kF5) {
        mnuOptFUT_Click(program);
        ShownWindow(program).mnuFileShowAll_Click(program);
        return;
    }
    OpenNextList(program);
    if (frmFUT* window = OpenWindow(program)) {
        window->lstFUT.ListIndex = -1;
        window->FollowList(program);
        if (window->lstMoreFUT.Visible) {
            window->Form_Escape(program);
        }
    }
}

void ListInUseChanged(Program& program) {
    const std::string before = program.terms.Path;
    TakeListInUse(program);
    if (frmFUT* window = OpenWindow(program)) {
        if (program.terms.Path != before) {
            window->lstFUT.ListIndex = -1; // a line of the other list was chosen
        }
        window->FollowList(program);
    }
}

} // namespace modTerms
