#include "spelling/spelling_walk.h"

#include "base/guard.h"
#include "base/text.h"
#include "editing/area_colours.h"
#include "editing/area_contents.h"
#include "editing/fresh_figures.h"
#include "money/totals.h"
#include "pages/fields.h"
#include "pages/page_geometry.h"
#include "program/program.h"

namespace modSpelling {

namespace {

constexpr std::size_t kShortestText = 2;

std::vector<FieldRef> AreasToCheck(const Program& program) {
    std::vector<FieldRef> areas;
    for (const PageId page : kLinePages) {
        const auto& texts = program.pages[page].txt;
        for (std::size_t index = 0; index < texts.size(); ++index) {
            if (texts[index].Text.size() >= kShortestText && !texts[index].Locked) {
                areas.push_back({page, FieldKind::txt, static_cast<int>(index)});
            }
        }
    }
    return areas;
}

const FieldRef& Current(const Program& program) {
    return program.spelling.Areas[program.spelling.Position];
}

SpelledArea Snapshot(const Program& program, const FieldRef& field) {
    SpelledArea area{program.spelling.Position, field.Page, {}};
    const auto keep = [&](int index) {
        area.Before.push_back({index, modBlocks::ReadContents(program, field.Page, index)});
    };
    keep(field.Index);
    if (geometry::IsDescription(field.Page, field.Index)) {
        keep(geometry::AmountOf(field.Page, field.Index));
    }
    return area;
}

void FiguresFollow(Program& program, PageId page) {
    modTotals::CalculateMyTotals(program, page);
    modTotals::UpdateRunningTotals(program);
}

void PutBack(Program& program, const SpelledArea& area) {
    for (const SpelledArea::Half& half : area.Before) {
        modBlocks::PlaceContents(program, area.Page, half.Index, half.Contents);
        modBlocks::RunChange(program, area.Page, half.Index);
        modAreaColours::ColourAfterCommand(program, {area.Page, FieldKind::txt, half.Index});
    }
    FiguresFollow(program, area.Page);
}

void Assign(Program& program, const FieldRef& field, const std::string& text) {
    SpellingState& state = program.spelling;
    state.Changed.push_back(Snapshot(program, field));
    // As if nothing had been typed: a text that became longer shows its length, it pushes nothing.
    program.editing.LastKeyChar.clear();
    modFields::SetText(program, field, text);
    modAreaColours::ColourAfterCommand(program, field);
    FiguresFollow(program, field.Page);
    if (modFields::Area(program, field).BackColor == colors::kOverLimit) {
        state.TooLong += state.TooLong.empty() ? "" : text::kCrLf;
        state.TooLong += AreaInWords(program) + " is now longer than its place.";
    }
}

/// What the service made of the text, less the paragraph mark of its document.
std::string TextFrom(WordService& service) {
    service.EditSelectAll();
    std::string text = service.Selection();
    if (!text.empty()) {
        text.pop_back();
    }
    return text;
}

void BringToView(Program& program, const FieldRef& field) {
    if (program.hooks.ShowField) {
        program.hooks.ShowField(program, field);
    }
}

void Walk(Program& program);

void AreaDone(Program& program, SpellingEnd end) {
    SpellingState& state = program.spelling;
    const FieldRef field = Current(program);
    const std::string text = TextFrom(*state.Service);
    if (text != modFields::Area(program, field).Text) {
        Assign(program, field, text);
    }
    state.Answered = true;
    state.Cancelled = end == SpellingEnd::Cancelled;
    ++state.Position;
    if (!state.Walking) {
        Walk(program);
    }
}

void End(Program& program) {
    SpellingState& state = program.spelling;
    const bool complete = !state.Cancelled;
    state.Service->FileClose(2);
    state.Service->AppClose();
    state.Service.reset();
    if (!state.TooLong.empty()) {
        program.main.Notice = state.TooLong; // no further word came up to tell it beside
        state.TooLong.clear();
    }
    if (complete) {
        program.platform.questions.MsgBox("SpellCheck Complete", Buttons::Ok, "");
    }
}

void Walk(Program& program) {
    SpellingState& state = program.spelling;
    {
        const ScopedFlag walking(state.Walking);
        while (state.Position < state.Areas.size() && !state.Cancelled) {
            const FieldRef field = Current(program);
            state.Answered = false;
            state.Service->Insert({{LineKind::Row, modFields::Area(program, field).Text}});
            state.Service->ToolsSpelling([&program](SpellingEnd end) { AreaDone(program, end); });
            if (!state.Answered) {
                BringToView(program, field);
                return; // goes on when the person has seen to this area
            }
        }
    }
    End(program);
}

} // namespace

void mnuEditSpellCheck_Click(Program& program) {
    SpellingState& state = program.spelling;
    if (state.Service != nullptr) {
        return;
    }
    modFigures::TakeFresh(program);
    state.Service = program.platform.words.ForSpelling();
    if (state.Service == nullptr) {
        program.platform.questions.MsgBox(
            text::Lines({"Cannot find Microsoft Word which is necessary to perform SpellCheck.",
                         "Please install a dictionary, for instance the package hunspell-en-us."}),
            Buttons::Ok, "");
        return;
    }
    state.Areas = AreasToCheck(program);
    state.Position = 0;
    state.Changed.clear();
    state.Cancelled = false;
    state.Service->AppShow();
    state.Service->FileNew();
    Walk(program);
}

void GoBackTo(Program& program, std::size_t position) {
    SpellingState& state = program.spelling;
    while (!state.Changed.empty() && state.Changed.back().Position >= position) {
        PutBack(program, state.Changed.back());
        state.Changed.pop_back();
    }
    state.Position = position;
    state.TooLong.clear();
    BringToView(program, Current(program));
}

std::string AreaInWords(const Program& program) {
    const FieldRef& field = Current(program);
    return std::string(geometry::PageCaption(field.Page)) + ", text area " +
           std::to_string(field.Index + 1); // as the strip of the main window counts them
}

} // namespace modSpelling
