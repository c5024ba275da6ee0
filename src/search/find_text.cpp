#include "search/find_text.h"

#include "base/ansi.h"
#include "base/text.h"
#include "pages/fields.h"
#include "pages/page_geometry.h"
#include "program/keys.h"
#include "program/program.h"

#include <algorithm>
#include <charconv>

namespace modSearch {

std::optional<std::size_t> FindPhrase(std::string_view text, std::string_view phrase) {
    if (phrase.empty()) {
        return std::nullopt;
    }
    const auto found =
        std::search(text.begin(), text.end(), phrase.begin(), phrase.end(),
                    [](char one, char other) { return ansi::Upper(one) == ansi::Upper(other); });
    return found == text.end() ? std::nullopt : std::optional(static_cast<std::size_t>(found - text.begin()));
}

std::string Context(std::string_view text, std::size_t hit) {
    constexpr std::size_t kWidth = 40;
    const std::size_t blank = text.substr(0, hit).rfind(' ');
    return std::string(text.substr(blank == std::string_view::npos ? 0 : blank + 1, kWidth));
}

std::string HitKey(PageId page, int index) {
    return std::string(geometry::PageName(page)) + ":" + std::to_string(index);
}

std::optional<FieldRef> FieldOfKey(std::string_view key) {
    const std::size_t colon = key.find(':');
    const std::string_view name = key.substr(0, colon);
    const auto page = std::find_if(kEditedPages.begin(), kEditedPages.end(),
                                   [&](PageId each) { return geometry::PageName(each) == name; });
    if (colon == std::string_view::npos || page == kEditedPages.end()) {
        return std::nullopt;
    }
    const std::string_view digits = key.substr(colon + 1);
    int index = -1;
    const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), index);
    if (read.ec != std::errc() || index < 0 || index > geometry::LastText(*page)) {
        return std::nullopt;
    }
    return FieldRef{*page, FieldKind::txt, index};
}

void GoToSearchHit(Program& program, std::string_view key) {
    const std::optional<FieldRef> field = FieldOfKey(key);
    if (!field) {
        return;
    }
    if (program.hooks.UpdatePageButtons) {
        program.hooks.UpdatePageButtons(program, IndexOf(field->Page));
    }
    program.platform.events.LetEventsRun();
    modFields::GiveFocus(program, *field);
    program.main.BringUp = true;
    TextArea& area = modFields::Area(program, *field);
    const std::string& phrase = program.search.SearchPhrase;
    const std::optional<std::size_t> hit = FindPhrase(area.Text, phrase);
    if (hit) {
        modFields::SetCursor(area, static_cast<int>(*hit), static_cast<int>(phrase.size()));
        program.editing.CursorPos = area.SelStart;
    }
    if (area.Top > program.main.ClientHeight - program.pages[field->Page].Top && program.hooks.PageKey) {
        program.hooks.PageKey(program, keys::kPageDown);
    }
    if (!hit) {
        program.platform.questions.MsgBox("Error encountered while highlighting search phrase.", Buttons::Ok,
                                          "");
    }
}

} // namespace modSearch
