#include "terms/area_terms.h"

#include "base/text.h"
#include "pages/fields.h"
#include "program/program.h"
#include "program/windows.h"
#include "terms/frm_edit_fut.h"
#include "terms/frm_fut.h"
#include "terms/term_list.h"

#include <algorithm>
#include <memory>
#include <string>

namespace modTerms {

namespace {

std::string Selection(const Program& program) {
    const FieldRef field{program.main.ActivePage, FieldKind::txt, program.editing.CurrentArea};
    if (!modFields::Exists(program, field)) {
        return {};
    }
    const TextArea& area = modFields::Area(program, field);
    return std::string(text::Mid(area.Text, area.SelStart + 1, area.SelLength));
}

void FollowWindow(Program& program) {
    if (Window* window = modWindows::Find(program, "frmFUT")) {
        static_cast<frmFUT*>(window)->FollowList(program);
    }
}

} // namespace

void AddTermFromArea(Program& program) {
    static_cast<void>(AddTerm(program, text::Lower(Selection(program)))); // what came of it has been told
    FollowWindow(program);
}

void mnuEditTextEditFUT_Click(Program& program) {
    const std::string selection = Selection(program);
    if (!selection.empty()) {
        modWindows::Show(program, std::make_unique<frmEditFUT>(TermLine{std::string(text::Trim(selection))}));
    }
}

void mnuEditTextDeleteFUT_Click(Program& program) {
    const std::string line(text::Trim(Selection(program)));
    EnsureRead(program);
    const auto& lines = program.terms.Lines;
    const bool there = std::find(lines.begin(), lines.end(), line) != lines.end();
    if (line.empty() || (!there && program.terms.ReadWhole)) {
        return;
    }
    static_cast<void>(RemoveTerm(program, {line})); // what came of it has been told
    FollowWindow(program);
}

} // namespace modTerms
