#include "editing/number_keys.h"

#include "base/numbers.h"
#include "editing/area_facts.h"
#include "pages/fields.h"
#include "program/keys.h"
#include "program/program.h"

#include <string>
#include <string_view>

namespace modNumberKeys {

namespace {

/// A copied cell or line often brings its line end along.
std::string_view WithoutLineEnds(std::string_view value) {
    constexpr std::string_view kAround = " \t\r\n";
    const std::size_t from = value.find_first_not_of(kAround);
    return from == std::string_view::npos ? std::string_view()
                                          : value.substr(from, value.find_last_not_of(kAround) - from + 1);
}

} // namespace

bool Passes(int keyAscii) {
    const bool editing = keyAscii == keys::kBackspace || keyAscii == keys::kTab || keyAscii == keys::kEnter;
    const bool figure =
        (keyAscii >= '0' && keyAscii <= '9') || keyAscii == ',' || keyAscii == '-' || keyAscii == '.';
    return editing || figure;
}

bool IsPaste(int keyCode, int shift) {
    return keyCode == keys::kV && shift == keys::kCtrlState;
}

void TellNoNumber(Program& program, std::string_view value) {
    constexpr std::size_t kShown = 30;
    std::string shown(value.substr(0, value.find_first_of("\r\n")));
    if (shown.size() > kShown || shown.size() < value.size()) {
        shown = shown.substr(0, kShown) + "...";
    }
    program.main.Notice = "\"" + shown + "\" was not taken: it is no number.";
}

void PasteNumber(Program& program, PageId page, int index) {
    const std::string clipboard = program.platform.clipboard.GetText();
    const std::string_view line = WithoutLineEnds(clipboard);
    TextArea& area = modText::Area(program, page, index);
    if (area.Locked || line.empty()) {
        return;
    }
    if (!numbers::IsNumeric(line, program.settings.CurrencySymbol)) {
        TellNoNumber(program, line);
        return;
    }
    std::string value = area.Text;
    modFields::SetCursor(area, area.SelStart, area.SelLength);
    const int start = area.SelStart;
    value.replace(static_cast<std::size_t>(start), static_cast<std::size_t>(area.SelLength), line);
    modFields::TypeText(program, modText::Field(page, index), value, start + static_cast<int>(line.size()),
                        0);
}

} // namespace modNumberKeys
