#include "support/reference_flow.h"

#include "base/ansi.h"
#include "base/dates.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cmath>
#include <cstdlib>

namespace {

constexpr Color kGrey = 0xC0C0C0;
constexpr Color kLightGrey = 0xE0E0E0;
constexpr Color kCyan = 0xFFFF00;
constexpr Color kRed = 0x0000FF;

constexpr int kTabKey = 9, kEnterKey = 13, kEndKey = 35, kHomeKey = 36, kLeftKey = 37, kUpKey = 38,
              kRightKey = 39, kDownKey = 40, kInsertKey = 45, kF8Key = 119;

int Len(const std::string& text) {
    return static_cast<int>(text.size());
}

std::string Trimmed(std::string_view text) {
    const std::size_t from = text.find_first_not_of(' ');
    if (from == std::string_view::npos) {
        return {};
    }
    return std::string(text.substr(from, text.find_last_not_of(' ') - from + 1));
}

/// Between commas stand three digits, before the first one to three.
bool GroupedByThree(std::string_view whole) {
    std::size_t comma = whole.find(',');
    if (comma == std::string_view::npos) {
        return true;
    }
    if (comma < 1 || comma > 3) {
        return false;
    }
    for (; comma < whole.size(); comma += 4) {
        if (whole[comma] != ',' || whole.substr(comma + 1, 3).find(',') != std::string_view::npos ||
            whole.size() < comma + 4) {
            return false;
        }
    }
    return true;
}

/// The number a text stands for, nothing when it is none or greater than a single holds.
std::optional<double> Number(std::string_view whole) {
    std::string text = Trimmed(whole);
    bool negative = false;
    bool signedOnce = false;
    bool currency = false;
    for (bool taken = true; taken && !text.empty();) {
        taken = false;
        const char first = text.front();
        if (!signedOnce && (first == '-' || first == '+')) {
            signedOnce = true;
            negative = first == '-';
            taken = true;
        } else if (!currency && first == '$') {
            currency = true;
            taken = true;
        }
        if (taken) {
            text = Trimmed(text.substr(1));
        }
    }
    for (bool taken = true; taken && !text.empty();) {
        taken = false;
        const char last = text.back();
        if (!signedOnce && (last == '-' || last == '+')) {
            signedOnce = true;
            negative = last == '-';
            taken = true;
        } else if (!currency && last == '$') {
            currency = true;
            taken = true;
        }
        if (taken) {
            text.pop_back();
            text = Trimmed(text);
        }
    }
    std::string plain;
    bool digits = false;
    bool point = false;
    std::size_t at = 0;
    for (; at < text.size(); ++at) {
        const char c = text[at];
        if (c >= '0' && c <= '9') {
            digits = true;
            plain += c;
        } else if (c == '.' && !point) {
            point = true;
            plain += c;
        } else if (c != ',' || point || !digits) {
            break;
        }
    }
    if (!digits || !GroupedByThree(text.substr(0, text.find_first_not_of("0123456789,")))) {
        return std::nullopt;
    }
    if (at < text.size() && (text[at] == 'e' || text[at] == 'E')) {
        plain += text[at++];
        if (at < text.size() && (text[at] == '+' || text[at] == '-')) {
            plain += text[at++];
        }
        const std::size_t from = at;
        while (at < text.size() && text[at] >= '0' && text[at] <= '9') {
            plain += text[at++];
        }
        if (at == from) {
            return std::nullopt;
        }
    }
    if (at != text.size()) {
        return std::nullopt;
    }
    const double value = std::strtod(plain.c_str(), nullptr);
    if (!std::isfinite(static_cast<float>(value))) {
        return std::nullopt;
    }
    return negative ? -value : value;
}

bool EmptyOrNumber(const std::string& text) {
    return Trimmed(text).empty() || Number(text).has_value();
}

enum class Zero { Written, Left };

/// Two decimals, thousands commas; the shortest decimal text of the number rounded half away from zero.
template <typename Float> std::string Money(Float value, Zero leading) {
    std::array<char, 64> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::abs(value),
                                   std::chars_format::scientific);
    const std::string shortest(buffer.data(), end.ptr);
    const std::size_t letter = shortest.find('e');
    std::string text = shortest.substr(0, letter);
    std::erase(text, '.');
    int place = std::stoi(shortest.substr(letter + 1)) + 1; // digits before the point
    if (place < 1) {
        text.insert(0, static_cast<std::size_t>(1 - place), '0');
        place = 1;
    }
    const std::size_t point = static_cast<std::size_t>(place);
    text.resize(std::max(text.size(), point), '0');
    text.insert(point, ".");
    text.resize(std::max(text.size(), point + 4), '0');
    const bool up = text[point + 3] >= '5';
    std::string digits = text.substr(0, point) + text.substr(point + 1, 2);
    if (up) {
        std::size_t at = digits.size();
        while (at > 0 && digits[at - 1] == '9') {
            digits[--at] = '0';
        }
        if (at == 0) {
            digits.insert(digits.begin(), '1');
        } else {
            ++digits[at - 1];
        }
    }
    std::string whole = digits.substr(0, digits.size() - 2);
    whole.erase(0, std::min(whole.find_first_not_of('0'), whole.size()));
    for (int at = Len(whole) - 3; at > 0; at -= 3) {
        whole.insert(static_cast<std::size_t>(at), ",");
    }
    if (whole.empty() && leading == Zero::Written) {
        whole = "0";
    }
    const bool nothing = digits.find_first_not_of('0') == std::string::npos;
    return (value < 0 && !nothing ? "-" : "") + whole + "." + digits.substr(digits.size() - 2);
}

/// A shown figure in hundredths; nothing above nine million millions.
std::optional<long long> Hundredths(std::string text) {
    std::erase(text, ',');
    std::erase(text, '.');
    constexpr std::size_t kDigits = 16;
    constexpr long long kMost = 900'000'000'000'000;
    if (text.size() > kDigits || std::abs(std::stoll(text)) > kMost) {
        return std::nullopt;
    }
    return std::stoll(text);
}

/// Two shown figures, one added to the other or taken from it.
std::optional<std::string> Added(const std::string& one, const std::string& other, long long sign) {
    const std::optional<long long> first = Hundredths(one);
    const std::optional<long long> second = Hundredths(other);
    constexpr long long kMost = 900'000'000'000'000;
    if (!first || !second || std::abs(*first) + std::abs(*second) > kMost) {
        return std::nullopt;
    }
    return Money(static_cast<double>(*first + sign * *second) / 100, Zero::Written);
}

std::string Upper(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(), [](unsigned char c) { return std::toupper(c); });
    return text;
}

std::string Proper(std::string text) {
    bool begins = true;
    for (char& c : text) {
        const unsigned char byte = static_cast<unsigned char>(c);
        c = static_cast<char>(begins ? std::toupper(byte) : std::tolower(byte));
        begins = c == ' ' || c == '\t';
    }
    return text;
}

bool IsBox(const FieldRef& field) {
    return field.Kind != FieldKind::txt;
}
bool IsFinal(const FieldRef& field) {
    return field.Page == PageId::frmP6;
}
int FirstLine(PageId page) {
    return page == PageId::frmP1 ? 10 : 0;
}
int LastLine(PageId page) {
    return page == PageId::frmP1 ? 19 : 32;
}
int ToAmount(PageId page) {
    return page == PageId::frmP1 ? 10 : 33;
}
bool IsLine(PageId page, int index) {
    return page != PageId::frmP6 && index >= FirstLine(page) && index <= LastLine(page);
}
FieldRef Txt(PageId page, int index) {
    return {page, FieldKind::txt, index};
}

} // namespace

ReferenceFlow::ReferenceFlow(const TextMeasure& measure, float taxRate, int thisYear)
    : measure_(measure), taxRate_(taxRate), thisYear_(thisYear) {
    for (int page = 0; page < 6; ++page) {
        Sheet& sheet = Sheets[static_cast<std::size_t>(page)];
        const int count = page == 0 ? 30 : page == 5 ? 6 : 66;
        for (int i = 0; i < count; ++i) {
            Field field;
            field.Back = kGrey;
            if (page == 5) {
                static constexpr std::array<const char*, 6> kKinds{"SubT", "AllT", "Tax.",
                                                                   "Tota", "Depo", "Bala"};
                field.Kind = kKinds[static_cast<std::size_t>(i)];
                field.Limit = "020";
                field.Width = 1260;
                field.Locked = i == 0 || i == 3 || i == 5;
            } else if (page == 0 && i < 10) {
                field.Kind = i < 2 ? "Date" : "Name";
                field.Limit = i < 2 ? "025" : "060";
                field.Width = i < 2 ? 2160 : 6120;
            } else if (IsLine(PageAt(page), i)) {
                field.Kind = i == LastLine(PageAt(page)) ? "Stop" : "Push";
                field.Limit = "120";
                field.Width = 8640;
                field.Left = 900;
            } else {
                field.Kind = "Amou";
                field.Limit = "020";
                field.Width = 1260;
            }
            sheet.txt.push_back(field);
            sheet.Rows.emplace_back();
        }
        const int boxes = page == 0 ? 20 : page == 5 ? 0 : 33;
        for (int i = 0; i < boxes; ++i) {
            Field box;
            box.Visible = false;
            box.Back = kLightGrey;
            box.Text = page == 0 ? "" : "Qty.";
            sheet.qty.push_back(box);
            box.Text = page == 0 ? "" : "Amt.";
            sheet.amt.push_back(box);
        }
    }
}

ReferenceFlow::Field& ReferenceFlow::At(const FieldRef& field) {
    Sheet& sheet = Sheets[static_cast<std::size_t>(IndexOf(field.Page))];
    std::vector<Field>& array = field.Kind == FieldKind::txtQty   ? sheet.qty
                                : field.Kind == FieldKind::txtAmt ? sheet.amt
                                                                  : sheet.txt;
    return array[static_cast<std::size_t>(field.Index)];
}

bool ReferenceFlow::Over(const Field& field, int limit) const {
    const bool noNumber = (field.Kind == "Amou" || field.Kind == "Depo") && !EmptyOrNumber(field.Text);
    return measure_.Width(field.Text, {}) >= field.Width || Len(field.Text) > limit || noNumber;
}

bool ReferenceFlow::HasBoxes(const FieldRef& field) const {
    const Sheet& sheet = Sheets[static_cast<std::size_t>(IndexOf(field.Page))];
    return field.Index < static_cast<int>(sheet.qty.size()) &&
           sheet.qty[static_cast<std::size_t>(field.Index)].Visible;
}

// ---- what a person does
// -------------------------------------------------------------------------------------

namespace {

int CodeOf(char character) {
    const unsigned char byte = static_cast<unsigned char>(character);
    return std::isalnum(byte) != 0 || byte == ' ' ? std::toupper(byte) : 190;
}

} // namespace

void ReferenceFlow::Character(char character) {
    if (Focus) {
        KeyUp(Press(CodeOf(character), character));
    }
}

void ReferenceFlow::Roll(char first, char second) {
    if (!Focus) {
        return;
    }
    const Pressed early = Press(CodeOf(first), first);
    const Pressed late = Press(CodeOf(second), second);
    KeyUp(early);
    KeyUp(late);
}

ReferenceFlow::Pressed ReferenceFlow::Press(int code, char character, Held held) {
    KeyDown(code, held);
    Pressed key{.Code = code, .Into = {}, .Behind = 0};
    if (KeyPress(character)) {
        key.Into = Focus;
        key.Behind = At(*Focus).Start + 1;
        Replace(std::string(1, character));
    }
    return key;
}

void ReferenceFlow::Backspace() {
    if (!Focus) {
        return;
    }
    KeyDown(8);
    if (KeyPress(8)) {
        Field& field = At(*Focus);
        if (field.Length > 0) {
            Replace("");
        } else if (field.Start > 0) {
            --field.Start;
            field.Length = 1;
            Replace("");
        }
    }
    KeyUp(8);
}

void ReferenceFlow::Delete() {
    if (!Focus) {
        return;
    }
    KeyDown(46);
    Field& field = At(*Focus);
    if (!field.Locked) {
        if (field.Length == 0 && field.Start < Len(field.Text)) {
            field.Length = 1;
        }
        if (field.Length > 0) {
            Replace("");
        }
    }
    KeyUp(46);
}

void ReferenceFlow::Key(int keyCode) {
    if (!Focus) {
        return;
    }
    KeyDown(keyCode);
    Field& field = At(*Focus);
    const int length = Len(field.Text);
    if (keyCode == kLeftKey) {
        field.Start = std::max(0, field.Start - 1);
    } else if (keyCode == kRightKey) {
        field.Start = std::min(length, field.Start + 1);
    } else if (keyCode == kHomeKey) {
        field.Start = 0;
    } else if (keyCode == kEndKey) {
        field.Start = length;
    }
    if (keyCode >= kEndKey && keyCode <= kRightKey && keyCode != kUpKey) {
        field.Length = 0;
    }
    if ((keyCode == kEnterKey || keyCode == kTabKey) && IsFinal(*Focus)) {
        static_cast<void>(KeyPress(static_cast<char>(keyCode)));
    }
    KeyUp(keyCode);
}

void ReferenceFlow::Commit(std::string_view text) {
    if (!Focus) {
        return;
    }
    std::string taken;
    for (const char character : text) {
        if (KeyPress(character)) {
            taken += character;
        }
    }
    if (taken.empty()) {
        return;
    }
    if (!IsBox(*Focus)) {
        CursorPos = At(*Focus).Start;
        lastKey_.clear();
    }
    Replace(taken);
}

void ReferenceFlow::PasteByKey(std::string_view clipboard) {
    if (!Focus) {
        return;
    }
    KeyDown('V');
    const Field& field = At(*Focus);
    if (!field.Locked) {
        const bool filtered = IsBox(*Focus) || field.Limit == "020";
        if (!filtered) {
            Replace(clipboard);
        } else if (Number(clipboard)) {
            ClearPlaceholder();
            Replace(Trimmed(clipboard));
        }
    }
    KeyUp('V');
}

void ReferenceFlow::PasteByMouse(const FieldRef& target, int at, std::string_view text) {
    Drag(target, at, at);
    const Field& field = At(*Focus);
    if (field.Locked) {
        return;
    }
    const bool filtered = IsBox(*Focus) || field.Limit == "020";
    if (filtered && !Number(text)) {
        return;
    }
    if (!IsBox(*Focus)) {
        CursorPos = field.Start;
        lastKey_.clear();
    }
    ClearPlaceholder();
    Replace(filtered ? Trimmed(text) : std::string(text));
}

void ReferenceFlow::Drag(const FieldRef& target, int from, int to) {
    ToPage(target.Page);
    GiveFocus(target);
    if (Focus != target) {
        return;
    }
    Field& field = At(target);
    if (!IsBox(target)) {
        Settle(target.Page);
    }
    const int first = std::clamp(std::min(from, to), 0, Len(field.Text));
    const int second = std::clamp(std::max(from, to), 0, Len(field.Text));
    field.Start = first;
    field.Length = second - first;
    if (!IsBox(target)) {
        CursorPos = field.Start;
    }
}

void ReferenceFlow::DoubleClick(const FieldRef& target) {
    Drag(target, 0, 0);
    if (Focus != target) {
        return;
    }
    if (IsBox(target) || IsFinal(target)) {
        MarkFirstWord(At(target));
        return;
    }
    CurrentArea = target.Index;
    if (IsLine(target.Page, target.Index)) {
        ToggleColumns(target.Page, target.Index);
        return;
    }
    if (target.Page != PageId::frmP1 || target.Index > 9) {
        MarkFirstWord(At(target));
        return;
    }
    Field& field = At(target);
    const std::string before = field.Text;
    if (target.Index == 1) {
        Assign(target, Upper(before));
    } else if (target.Index != 0 && (target.Index < 5 || target.Index > 7)) {
        Assign(target, Proper(before));
    }
    if (field.Text != before) {
        field.Start = Len(field.Text);
    } else {
        MarkFirstWord(field);
    }
}

void ReferenceFlow::MarkFirstWord(Field& field) {
    const auto end = std::find_if(field.Text.begin(), field.Text.end(), [](char byte) {
        return !ansi::IsLetter(byte) && !ansi::IsDigit(byte) && byte != '\'';
    });
    field.Start = 0;
    field.Length = static_cast<int>(end - field.Text.begin());
}

void ReferenceFlow::MakeExempt(const FieldRef& target) {
    Drag(target, 0, 0);
    for (int page = 0; page < 5; ++page) {
        Sheet& sheet = Sheets[static_cast<std::size_t>(page)];
        for (Field& field : sheet.txt) {
            field.Back = Over(field, std::stoi(field.Limit)) ? kRed : kGrey;
        }
        for (std::size_t i = 0; i < sheet.qty.size(); ++i) {
            sheet.qty[i].Back =
                measure_.Width(sheet.qty[i].Text, {}) >= 540 || sheet.qty[i].NoNumber ? kRed : kLightGrey;
            sheet.amt[i].Back =
                measure_.Width(sheet.amt[i].Text, {}) >= 1020 || sheet.amt[i].NoNumber ? kRed : kLightGrey;
        }
    }
    rightClick_ = true;
    CurrentArea = target.Index;
    // The area is shut while the menu opens and so is left; the command gives it the focus back.
    LostFocus(target);
    Row& row =
        Sheets[static_cast<std::size_t>(IndexOf(target.Page))].Rows[static_cast<std::size_t>(target.Index)];
    row.Exempt = true;
    row.Taxable = 0;
    SumPage(target.Page);
    RunningTotals();
    Stale = true;
    GotFocus(target);
}

void ReferenceFlow::ClickMark(PageId page, int index) {
    Row& row = Sheets[static_cast<std::size_t>(IndexOf(page))].Rows[static_cast<std::size_t>(index)];
    if (!row.Exempt) {
        return;
    }
    ToPage(page);
    row.Exempt = false;
    row.Taxable = row.Amount;
    SumPage(page);
    RunningTotals();
    Stale = true;
    GiveFocus(Txt(page, index));
}

// ---- keys
// ---------------------------------------------------------------------------------------------------

bool ReferenceFlow::CompletionStands() const {
    return Focus && words_[static_cast<std::size_t>(IndexOf(Focus->Page))].Active;
}

void ReferenceFlow::TakeWithShift(int keyCode) {
    if (keyCode == ' ') {
        KeyUp(Press(keyCode, ' ', Held::Shift));
        return;
    }
    KeyDown(keyCode, Held::Shift);
    KeyUp(keyCode);
}

void ReferenceFlow::KeyDown(int keyCode, Held held) {
    const FieldRef field = *Focus;
    if (keyCode == 33 || keyCode == 34 || IsFinal(field)) {
        return; // page keys never reach a field; the final page hears no others
    }
    ++KeyCounter;
    if (KeyCounter >= 20 && !(field.Page == PageId::frmP1 && field.Index == 2)) {
        KeyCounter = 0;
    }
    if (IsBox(field)) {
        BoxKeyDown(keyCode);
        return;
    }
    if (keyCode == kF8Key && IsLine(field.Page, field.Index)) {
        ToggleColumns(field.Page, field.Index);
        return;
    }
    if (At(field).Length == 0) {
        Settle(field.Page);
    }
    const bool stands = WordOf(field.Page).Active;
    if (((keyCode == kEnterKey || keyCode == kTabKey) && !stands) || keyCode == kUpKey ||
        keyCode == kDownKey) {
        Walk(keyCode);
        return;
    }
    CursorPos = At(field).Start;
    lastKey_ = std::string(1, static_cast<char>(keyCode));
    const bool shifted = held == Held::Shift;
    if (stands && (keyCode == kRightKey || keyCode == kInsertKey || keyCode == kEnterKey ||
                   (keyCode == ' ' && shifted))) {
        TakeWord(field.Page);
        if (keyCode == kEnterKey || (keyCode == kRightKey && shifted)) {
            PlacePrice(field, WordOf(field.Page).Amount);
        }
    }
}

void ReferenceFlow::Walk(int keyCode) {
    const FieldRef from = *Focus;
    const PageId page = from.Page;
    const int i = from.Index;
    const int last = page == PageId::frmP1 ? 29 : 65;
    if (keyCode == kUpKey) {
        if (i == 0) {
            return;
        }
        Arrive(Txt(page, page == PageId::frmP1 && i == 20 ? 10 : i - 1));
    } else if (i == last) {
        const PageId next = PageAt(IndexOf(page) + 1);
        ToPage(next);
        Arrive(Txt(next, 0));
    } else if (keyCode == kDownKey) {
        Arrive(Txt(page, i + 1));
    } else if (page == PageId::frmP1 && i < 10) {
        Arrive(Txt(page, i + 1));
    } else if (IsLine(page, i)) {
        Arrive(HasBoxes(from) ? FieldRef{page, FieldKind::txtAmt, i} : Txt(page, i + ToAmount(page)));
    } else {
        const int next = i - ToAmount(page) + 1;
        Arrive(HasBoxes(Txt(page, next)) ? FieldRef{page, FieldKind::txtQty, next} : Txt(page, next));
    }
}

void ReferenceFlow::BoxKeyDown(int keyCode) {
    const FieldRef box = *Focus;
    const Sheet& sheet = Sheets[static_cast<std::size_t>(IndexOf(box.Page))];
    if (keyCode == kEnterKey || keyCode == kTabKey) {
        if (box.Kind == FieldKind::txtAmt) {
            Arrive(Txt(box.Page, box.Index + ToAmount(box.Page)));
            return;
        }
        GiveFocus(Txt(box.Page, box.Index));
        Field& line = At(Txt(box.Page, box.Index));
        line.Start = 0;
        line.Length = 0;
        return;
    }
    if (keyCode == kF8Key) {
        // The second F8 finds the focus in the quantity, where the first has put it.
        CurrentArea = box.Index;
        ToggleColumns(box.Page, box.Index);
        return;
    }
    const int step = keyCode == kUpKey ? -1 : keyCode == kDownKey ? 1 : 0;
    const int next = box.Index + step;
    if (step == 0 || next < 0 || next >= static_cast<int>(sheet.qty.size())) {
        return;
    }
    Arrive(HasBoxes(Txt(box.Page, next)) ? FieldRef{box.Page, box.Kind, next} : Txt(box.Page, next));
}

void ReferenceFlow::ClearPlaceholder() {
    const std::string& text = At(*Focus).Text;
    if (IsBox(*Focus) && (text == "Qty." || text == "Amt.")) {
        Assign(*Focus, "");
    }
}

bool ReferenceFlow::KeyPress(char character) {
    const FieldRef field = *Focus;
    const bool figure = character >= '0' && character <= '9';
    if (IsBox(field)) {
        if (character > 13) {
            ClearPlaceholder();
        }
        return figure || character == '.' || character == ',' || character == 8;
    }
    const Field& area = At(field);
    if (area.Locked) {
        return false;
    }
    if (IsFinal(field) && field.Index == 4 && (character == 13 || character == 9)) {
        if (EmptyOrNumber(area.Text)) {
            Assign(field, DepositAsTyped());
        }
        RunningTotals();
        return false;
    }
    if (area.Limit == "020" && !figure && character != 8 && character != ',' && character != '-' &&
        character != '.') {
        return false;
    }
    return character != 13 && character != 9;
}

void ReferenceFlow::KeyUp(const Pressed& key) {
    if (!Focus || IsBox(*Focus)) {
        return;
    }
    Field& field = At(*Focus);
    CursorPos = field.Start;
    if (IsFinal(*Focus)) {
        return;
    }
    currentWidth_ = field.Width;
    field.Back = Over(field, std::stoi(field.Limit)) ? kRed : kCyan;
    CompletionKeyUp(key);
}

// ---- text
// ---------------------------------------------------------------------------------------------------

void ReferenceFlow::Replace(std::string_view with) {
    const Field& field = At(*Focus);
    std::string text = field.Text;
    text.replace(static_cast<std::size_t>(field.Start), static_cast<std::size_t>(field.Length), with);
    Edit(text, field.Start + static_cast<int>(with.size()));
}

void ReferenceFlow::Edit(std::string_view text, int start) {
    const FieldRef ref = *Focus;
    Field& field = At(ref);
    const bool differs = field.Text != text;
    field.Text = text;
    field.Start = start;
    field.Length = 0;
    if (differs) {
        Changed(ref);
    }
}

void ReferenceFlow::Assign(const FieldRef& ref, const std::string& text) {
    Field& field = At(ref);
    if (field.Text == text) {
        return;
    }
    field.Text = text;
    field.Start = 0;
    field.Length = 0;
    Changed(ref);
}

void ReferenceFlow::Changed(const FieldRef& field) {
    if (IsBox(field)) {
        BoxChanged(field);
    } else if (IsFinal(field)) {
        FinalChanged(field.Index);
    } else if (!WordOf(field.Page).Active) {
        LineChanged(field.Page, field.Index);
    }
}

void ReferenceFlow::StoreLine(PageId page, int index) {
    Sheet& sheet = Sheets[static_cast<std::size_t>(IndexOf(page))];
    const std::size_t i = static_cast<std::size_t>(index);
    Row& row = sheet.Rows[i];
    row.Store = Trimmed(sheet.txt[i].Text);
    if (!IsLine(page, index)) {
        return;
    }
    row.QtyBox = sheet.qty[i].Visible;
    row.QtyValue = row.QtyBox ? sheet.qty[i].Text : "";
    row.AmtValue = row.QtyBox ? sheet.amt[i].Text : "";
    if (row.QtyBox) {
        row.Store = "\xA5" + sheet.qty[i].Text + "\xA5" + row.Store + "\xA7" + sheet.amt[i].Text;
    }
}

void ReferenceFlow::LineChanged(PageId page, int index) {
    const FieldRef ref = Txt(page, index);
    Field& field = At(ref);
    StoreLine(page, index);
    currentText_ = field.Text;
    currentKind_ = field.Kind;
    currentLimit_ = field.Limit;
    Row& row = Sheets[static_cast<std::size_t>(IndexOf(page))].Rows[static_cast<std::size_t>(index)];
    if (currentLimit_ != "020") {
        row.PropText = field.Text;
    }
    currentWidth_ = field.Width;
    if (currentLimit_ == "020") {
        TakeAmount(page, index);
        if (!refire_) {
            row.Emptied = Trimmed(field.Text).empty() && Focus == ref;
        }
        Stale = true;
        if (refire_) {
            SumPage(page);
        }
    }
    if (measure_.Width(currentText_, {}) >= currentWidth_ && currentKind_ == "Push") {
        CheckForPush();
        if (pushNeeded_) {
            PushTheText(page, index);
        }
    }
    if (Over(field, std::stoi(currentLimit_))) {
        field.Back = kRed;
    }
}

void ReferenceFlow::TakeAmount(PageId page, int index) {
    Row& row = Sheets[static_cast<std::size_t>(IndexOf(page))].Rows[static_cast<std::size_t>(index)];
    const std::string& text = At(Txt(page, index)).Text;
    if (!Number(text)) {
        row.Amount = 0;
        row.Taxable = 0;
        row.Sign = false;
        return;
    }
    row.Amount = static_cast<float>(*Number(text));
    row.Taxable = row.Exempt ? 0 : row.Amount;
    row.Sign = true;
}

void ReferenceFlow::CheckForPush() {
    const int length = Len(currentText_);
    if (CursorPos == length - 1) {
        follows_ = true;
        steps_ = false;
        pushNeeded_ = currentText_.back() == ' ';
    } else if (CursorPos < length) {
        follows_ = false;
        if (lastKey_ == " ") {
            steps_ = true;
            pushNeeded_ = true;
        } else {
            pushNeeded_ = false;
        }
    }
}

void ReferenceFlow::PushTheText(PageId page, int index) {
    const bool steps = steps_;
    const bool follows = follows_;
    const std::string text = currentText_;
    const float width = currentWidth_;

    std::vector<int> blanks{0};
    for (int at = 1; at <= Len(text); ++at) {
        if (text[static_cast<std::size_t>(at - 1)] == ' ') {
            blanks.push_back(at);
            if (measure_.Width(std::string_view(text).substr(0, static_cast<std::size_t>(at)), {}) >= width) {
                break;
            }
        }
    }
    if (blanks.size() < 2) {
        pushNeeded_ = false; // no blank at all
        return;
    }
    const int split = blanks[blanks.size() - 2];
    if (split == 0) {
        pushNeeded_ = false;
        return;
    }
    const std::string head = text.substr(0, static_cast<std::size_t>(split - 1));
    const std::string tail = text.substr(static_cast<std::size_t>(split));
    ++Pushes;
    DeepestPush = std::max(DeepestPush, ++pushing_);
    Assign(Txt(page, index), head);
    if (steps) {
        ++CursorPos;
        Field& field = At(Txt(page, index));
        field.Start = std::min(CursorPos, Len(field.Text));
        field.Length = 0;
    }
    const FieldRef next = Txt(page, index + 1);
    Assign(next, tail + At(next).Text);
    if (follows) {
        GiveFocus(next);
        CursorPos = Len(tail);
        Field& field = At(next);
        field.Start = std::min(CursorPos, Len(field.Text));
        field.Length = 0;
    }
    --pushing_;
    pushNeeded_ = false;
}

// ---- columns
// ------------------------------------------------------------------------------------------------

void ReferenceFlow::BoxChanged(const FieldRef& box) {
    ColourBox(box);
    const FieldRef amount = Txt(box.Page, box.Index + ToAmount(box.Page));
    // What is no number leaves the amount that stood there before the box was touched.
    if (At(box).NoNumber && visited_ == box && At(amount).Text != amountBefore_) {
        const bool before = refire_;
        refire_ = true;
        Assign(amount, amountBefore_);
        refire_ = before;
    }
    StoreLine(box.Page, box.Index);
    Product(box.Page, box.Index);
}

void ReferenceFlow::Product(PageId page, int index) {
    const Sheet& sheet = Sheets[static_cast<std::size_t>(IndexOf(page))];
    const std::optional<double> qty = Number(sheet.qty[static_cast<std::size_t>(index)].Text);
    const std::optional<double> amt = Number(sheet.amt[static_cast<std::size_t>(index)].Text);
    if (!qty || !amt) {
        return;
    }
    ++Products;
    const double product =
        static_cast<double>(static_cast<float>(*qty)) * static_cast<double>(static_cast<float>(*amt));
    const bool before = refire_;
    refire_ = true;
    Assign(Txt(page, index + ToAmount(page)), Money(product, Zero::Left));
    refire_ = before;
}

void ReferenceFlow::ToggleColumns(PageId page, int index) {
    const FieldRef qty{page, FieldKind::txtQty, index};
    const FieldRef amt{page, FieldKind::txtAmt, index};
    Field& line = At(Txt(page, index));
    if (!At(qty).Visible) {
        line.Left = 1440;
        line.Width = 6270;
        At(qty).Visible = true;
        Assign(qty, "Qty.");
        At(amt).Visible = true;
        Assign(amt, "Amt.");
        StoreLine(page, index);
        GiveFocus(qty);
        At(qty).Start = Len(At(qty).Text);
        At(qty).Length = 0;
        return;
    }
    line.Left = 900;
    line.Width = 8640;
    At(qty).Visible = false;
    Assign(qty, "");
    At(amt).Visible = false;
    Assign(amt, "");
    StoreLine(page, index);
    if (Focus == qty || Focus == amt) {
        GiveFocus(Txt(page, index));
    }
}

// ---- focus
// --------------------------------------------------------------------------------------------------

void ReferenceFlow::ToPage(PageId page) {
    CurrentPage = IndexOf(page);
}

void ReferenceFlow::GiveFocus(const FieldRef& field) {
    if (Focus == field || !At(field).Visible) {
        return;
    }
    if (Focus) {
        LostFocus(*Focus);
    }
    Focus = field;
    GotFocus(field);
}

void ReferenceFlow::Arrive(const FieldRef& field) {
    const bool figure = IsBox(field) || At(field).Limit == "020";
    GiveFocus(field);
    if (Focus == field && figure && !(IsFinal(field) && field.Index != 4)) {
        At(field).Start = 0;
        At(field).Length = Len(At(field).Text);
    }
}

void ReferenceFlow::ColourBox(const FieldRef& box) {
    Field& field = At(box);
    const bool placeholder = field.Text == (box.Kind == FieldKind::txtQty ? "Qty." : "Amt.");
    const bool was = field.NoNumber;
    field.NoNumber = !placeholder && !EmptyOrNumber(field.Text);
    if (field.NoNumber) {
        field.Back = kRed;
    } else if (was) {
        field.Back = Focus == box ? kCyan : kLightGrey;
    }
}

void ReferenceFlow::GotFocus(const FieldRef& ref) {
    Field& field = At(ref);
    if (IsBox(ref)) {
        field.Back = kCyan;
        ColourBox(ref);
        visited_ = ref;
        amountBefore_ = At(Txt(ref.Page, ref.Index + ToAmount(ref.Page))).Text;
        return;
    }
    CurrentPage = IndexOf(ref.Page);
    CurrentArea = ref.Index;
    if (!IsFinal(ref)) {
        WordOf(ref.Page).Under = false;
        WordOf(ref.Page).Active = false;
        currentLimit_ = field.Limit;
        currentWidth_ = field.Width;
        field.Back = Over(field, std::stoi(field.Limit)) ? kRed : kCyan;
    }
    if (rightClick_) {
        rightClick_ = false;
    } else {
        TextNum =
            "Page " + std::to_string(IndexOf(ref.Page) + 1) + ", Text Area " + std::to_string(ref.Index + 1);
    }
}

void ReferenceFlow::LostFocus(const FieldRef& ref) {
    Field& field = At(ref);
    if (IsBox(ref)) {
        field.Back = kLightGrey;
        ColourBox(ref);
        if (ref.Kind == FieldKind::txtAmt) {
            if (const std::optional<double> value = Number(field.Text)) {
                Assign(ref, Money(*value, Zero::Written));
            }
        }
        Product(ref.Page, ref.Index);
        return;
    }
    LastArea = ref.Index;
    if (IsFinal(ref)) {
        if (Deposit + SubTotal + SalesTax + TaxableTotal != 0) {
            if (EmptyOrNumber(At(Txt(PageId::frmP6, 4)).Text)) {
                Assign(Txt(PageId::frmP6, 4), DepositAsTyped());
            }
            RunningTotals();
        }
        return;
    }
    if (WordOf(ref.Page).Active) {
        WordOf(ref.Page).Active = false;
        CursorPos = Len(field.Text);
        Changed(ref);
    }
    field.Back = kGrey;
    if (field.Limit == "020") {
        LeaveAmount(ref.Page, ref.Index);
        if (!EmptyOrNumber(field.Text)) {
            field.Back = kRed;
        }
    }
    if (ref == Txt(PageId::frmP1, 0) && !field.Text.empty() && !warned_ &&
        !dates::IsDate(field.Text, thisYear_)) {
        ++Warnings;
        warned_ = true;
    }
}

void ReferenceFlow::LeaveAmount(PageId page, int index) {
    const FieldRef ref = Txt(page, index);
    TakeAmount(page, index);
    if (const std::optional<double> value = Number(At(ref).Text)) {
        Assign(ref, Money(*value, Zero::Written));
    }
    Row& row = Sheets[static_cast<std::size_t>(IndexOf(page))].Rows[static_cast<std::size_t>(index)];
    if (row.Emptied) {
        row.Exempt = false;
        row.Emptied = false;
    }
    SumPage(page);
    RunningTotals();
}

// ---- totals
// -------------------------------------------------------------------------------------------------

void ReferenceFlow::SumPage(PageId page) {
    Sheet& sheet = Sheets[static_cast<std::size_t>(IndexOf(page))];
    sheet.Sum = 0;
    sheet.TaxableSum = 0;
    for (const Row& row : sheet.Rows) {
        sheet.Sum += row.Amount;
        if (!row.Exempt) {
            sheet.TaxableSum += row.Amount;
        }
    }
}

/// The digits that stand in the field, as long as they are the figure that counts.
std::string ReferenceFlow::DepositAsTyped() {
    const std::optional<double> typed = Number(At(Txt(PageId::frmP6, 4)).Text);
    return typed && static_cast<float>(*typed) == Deposit ? Money(*typed, Zero::Written)
                                                          : Money(Deposit, Zero::Written);
}

void ReferenceFlow::RunningTotals() {
    const bool before = running_;
    running_ = true;
    SubTotal = 0;
    TaxableTotal = 0;
    for (std::size_t page = 0; page < 5; ++page) {
        SubTotal += Sheets[page].Sum;
        TaxableTotal += Sheets[page].TaxableSum;
    }
    SalesTax = static_cast<float>(static_cast<double>(TaxableTotal) * (static_cast<double>(taxRate_) * 0.01));
    Total = SubTotal + SalesTax;
    Balance = Total - Deposit;
    // What is shown below the line is what a reader adds up from above it.
    const std::string sum = Money(SubTotal, Zero::Written);
    const std::string tax = Money(SalesTax, Zero::Written);
    constexpr float kSevenDigits = 131072; // beyond it a single has no hundredths
    const bool exact = std::abs(Total) < kSevenDigits;
    const std::string plain = Money(Total, Zero::Written);
    const std::string total = exact ? Added(sum, tax, 1).value_or(plain) : plain;
    const std::string left = Money(Balance, Zero::Written);
    const std::string balance =
        exact && std::abs(Deposit) < kSevenDigits ? Added(total, DepositAsTyped(), -1).value_or(left) : left;
    const std::array<std::string, 4> figures{sum, Money(TaxableTotal, Zero::Written), tax, total};
    for (int i = 0; i < 4; ++i) {
        Assign(Txt(PageId::frmP6, i), figures[static_cast<std::size_t>(i)]);
    }
    Assign(Txt(PageId::frmP6, 5), balance);
    running_ = before;
    Stale = false;
}

void ReferenceFlow::FinalChanged(int index) {
    Field& field = At(Txt(PageId::frmP6, index));
    Sheets[5].Rows[static_cast<std::size_t>(index)].Store = field.Text;
    field.Back = Over(field, std::stoi(field.Limit)) ? kRed : kGrey;
    if (running_ || (field.Kind != "Depo" && field.Kind != "AllT" && field.Kind != "Tax.") ||
        (field.Kind != "Depo" && !EmptyOrNumber(field.Text))) {
        return;
    }
    const float value = static_cast<float>(Number(field.Text).value_or(0));
    if (field.Kind == "Depo") {
        Deposit = value;
    } else if (field.Kind == "AllT") {
        TaxableTotal = value;
    } else {
        SalesTax = value;
    }
    RunningTotals();
    Stale = true;
}

// ---- terms
// --------------------------------------------------------------------------------------------------

namespace {

std::string LowerCase(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(), [](unsigned char c) { return std::tolower(c); });
    return text;
}

} // namespace

void ReferenceFlow::Settle(PageId page) {
    if (!WordOf(page).Active) {
        return;
    }
    WordOf(page).Active = false;
    if (!Focus || Focus->Page != page || IsBox(*Focus)) {
        return;
    }
    Field& field = At(*Focus);
    CursorPos = Len(field.Text);
    if (field.Length > 0) {
        field.Start = Len(field.Text);
        field.Length = 0;
    }
    Changed(*Focus);
}

void ReferenceFlow::TakeWord(PageId page) {
    Settle(page);
    Field& field = At(*Focus);
    field.Start = Len(field.Text);
    field.Length = 0;
    CursorPos = field.Start;
}

void ReferenceFlow::CompletionKeyUp(const Pressed& key) {
    const int keyCode = key.Code;
    const bool typed = key.Into && key.Into == Focus;
    const FieldRef here = *Focus;
    Field& field = At(here);
    const bool atEnd = field.Start == Len(field.Text);
    if (Terms.empty() || keyCode == 46 || keyCode == 8 || keyCode == 37 || keyCode == 16 || keyCode == 38 ||
        (!atEnd && field.Length == 0)) {
        return;
    }
    Word& word = WordOf(here.Page);
    // A key let go late begins the word that its own character began, unless a later one is under way.
    const int behind = typed && key.Behind < CursorPos ? key.Behind : CursorPos;
    const bool overtaken = word.Under && behind < word.Start && word.Start <= CursorPos;
    if (CursorPos == 1 || (behind == 1 && !overtaken)) {
        word.Under = true;
        word.Start = 0;
    } else if (keyCode == ' ' && !overtaken) {
        word.Under = true;
        word.Start = behind;
    }
    if (!typed || !atEnd || field.Length != 0 || !word.Under || !IsLine(here.Page, here.Index)) {
        return;
    }
    const int length = CursorPos - word.Start;
    if (length < 1 || length <= StartLength) {
        return;
    }
    const std::string head = field.Text.substr(0, static_cast<std::size_t>(word.Start));
    const std::string stem = field.Text.substr(static_cast<std::size_t>(word.Start));
    word.Amount.clear();
    for (const std::string& line : Terms) {
        const std::string term = line.substr(0, line.find('['));
        const std::string begin = term.substr(0, stem.size());
        if (LowerCase(begin) != LowerCase(stem)) {
            continue;
        }
        const std::size_t open = line.find('[');
        const std::size_t close = line.find(']', std::min(open, line.size()));
        word.Amount = close == std::string::npos ? "" : line.substr(open + 1, close - open - 1);
        word.Active = true;
        ++Completions;
        if (begin == stem) {
            field.Text = head + term;
        } else if (stem == LowerCase(stem)) {
            field.Text = head + LowerCase(term);
        } else if (stem == Proper(stem)) {
            field.Text = head + Proper(term);
        } else if (stem == Upper(stem)) {
            field.Text = head + Upper(term);
        }
        field.Start = CursorPos;
        field.Length = Len(field.Text) - CursorPos;
        return;
    }
}

void ReferenceFlow::TypedAndLeft(const FieldRef& field, const std::string& figure) {
    Assign(field, figure);
    if (IsBox(field)) {
        if (field.Kind == FieldKind::txtAmt) {
            Assign(field, Money(*Number(figure), Zero::Written));
        }
        Product(field.Page, field.Index);
    } else if (IsFinal(field)) {
        Assign(field, DepositAsTyped());
        RunningTotals();
        return;
    } else {
        Assign(field, Money(*Number(figure), Zero::Written));
    }
    SumPage(field.Page);
    RunningTotals();
}

void ReferenceFlow::PlacePrice(const FieldRef& line, const std::string& amount) {
    if (!Number(amount)) {
        return;
    }
    const FieldRef target = HasBoxes(line) ? FieldRef{line.Page, FieldKind::txtAmt, line.Index}
                                           : Txt(line.Page, line.Index + ToAmount(line.Page));
    const std::string stands = Trimmed(At(target).Text);
    if (stands.empty() || (IsBox(target) && At(target).Text == "Amt.")) {
        ++PricesPlaced;
        TypedAndLeft(target, Trimmed(amount));
    }
}

void ReferenceFlow::DropTerm(const FieldRef& target, std::string_view line) {
    if (CurrentPage != IndexOf(target.Page)) {
        return; // its page is not in front
    }
    const Field& field = At(target);
    const std::string text(line.substr(0, line.find('[')));
    const bool figures = IsBox(target) || field.Limit == "020";
    const bool computed = IsFinal(target) && target.Index != 4;
    if (!field.Visible || field.Locked || computed || (figures ? !Number(text) : Trimmed(text).empty())) {
        return;
    }
    Settle(target.Page);
    if (figures) {
        TypedAndLeft(target, Trimmed(text));
    } else {
        const std::string value = Trimmed(field.Text).empty() ? text : field.Text + " " + text;
        CursorPos = Len(value);
        lastKey_.clear();
        Assign(target, value);
        const std::size_t open = line.find('[');
        const std::size_t close = line.find(']', std::min(open, line.size()));
        if (IsLine(target.Page, target.Index) && close != std::string_view::npos) {
            PlacePrice(target, std::string(line.substr(open + 1, close - open - 1)));
        }
    }
    GiveFocus(target);
    Field& dropped = At(target);
    dropped.Start = Len(dropped.Text);
    dropped.Length = 0;
    CursorPos = dropped.Start;
}
