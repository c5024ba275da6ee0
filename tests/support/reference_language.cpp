#include "support/reference_language.h"

#include "base/numbers.h"

#include <cmath>
#include <cstdio>
#include <optional>

namespace {

std::string Trimmed(std::string value) {
    while (!value.empty() && value.back() == ' ') {
        value.pop_back();
    }
    while (!value.empty() && value.front() == ' ') {
        value.erase(0, 1);
    }
    return value;
}

std::string Shown(double number) {
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "%.9g", static_cast<double>(static_cast<float>(number)));
    return text.data();
}

std::optional<std::string> Converted(const std::string& value, int type) {
    if (type == 4) {
        return value;
    }
    if (type == 3) {
        std::string word;
        for (const char character : Trimmed(value)) {
            word += static_cast<char>(character >= 'A' && character <= 'Z' ? character + 32 : character);
        }
        if (word == "true" || word == "false") {
            return word == "true" ? "1" : "0";
        }
    }
    const std::optional<double> number = numbers::ToDouble(value, "");
    if (!number) {
        return std::nullopt;
    }
    switch (type) {
    case 0:
        return std::fabs(*number) <= 1000000 ? std::optional(Shown(*number)) : std::nullopt;
    case 1:
        return *number == 0 || (*number >= 1 && *number <= 200) ? std::optional(Shown(*number))
                                                                : std::nullopt;
    case 2:
        return *number >= -2147483648.0 && *number <= 2147483647.0
                   ? std::optional(std::to_string(std::lrint(*number)))
                   : std::nullopt;
    default:
        return *number != 0 ? "1" : "0";
    }
}

} // namespace

ReferenceLanguage::Found ReferenceLanguage::Between(const std::string& line, const std::string& keyword,
                                                    const std::string& mark, bool orEnd) {
    const std::size_t at = line.find(keyword);
    if (at == std::string::npos) {
        return {};
    }
    const std::string rest = line.substr(at + keyword.size());
    if (mark.empty()) {
        return {true, rest};
    }
    const std::size_t end = rest.find(mark);
    if (end == std::string::npos) {
        return orEnd ? Found{true, rest} : Found{};
    }
    return {true, rest.substr(0, end)};
}

bool ReferenceLanguage::Take(const Found& found, Type type, std::string& left, const std::string& own,
                             std::string& value) {
    if (!found.There) {
        value = own;
        return true;
    }
    if (const auto converted = Converted(found.Value, static_cast<int>(type))) {
        left = *converted;
    } else if (file_ == File::Property) {
        return false;
    }
    value = left;
    return true;
}

std::string ReferenceLanguage::Text(const std::string& line, const std::string& place) {
    const Found bold = Between(line, ".FontBold=", "", true);
    const Found text = bold.There ? Found{} : Between(line, ".Text=", "", true);
    const Found exempt = bold.There || text.There ? Found{} : Between(line, ".TaxExempt=", "", true);
    std::string ignored;
    if (!Take(bold, Type::Flag, txtBold_, txtBold_, ignored)) {
        return "fault";
    }
    txtExempt_ = "0";
    std::string marked;
    if (!Take(exempt, Type::Flag, txtExempt_, "0", marked)) {
        return "fault";
    }
    return place + (bold.There ? " weight" : "") + " bold=" + txtBold_ +
           (text.There ? " text=[" + text.Value + "]" : "") + " exempt=" + marked;
}

std::string ReferenceLanguage::Row(const std::string& line, const std::string& place) {
    std::string box;
    if (!Take(Between(line, ".QtyBox=", " ", true), Type::Flag, txqBox_, "0", box)) {
        return "fault";
    }
    Found quantity = Between(line, ".QtyValue=", ".AmtValue=", false);
    if (!quantity.Value.empty()) {
        quantity.Value.pop_back();
    }
    return place + " box=" + box + " qty=[" + quantity.Value + "] amt=[" +
           Between(line, ".AmtValue=", "", true).Value + "]";
}

std::string ReferenceLanguage::Label(const std::string& line, const std::string& place, const Own& own) {
    Found caption = Between(line, ".Caption=", ".FontName=", false);
    if (!caption.Value.empty()) {
        caption.Value.pop_back();
    }
    Found font = Between(line, ".FontName=", "", true);
    if (const std::size_t stop = font.Value.find('.'); stop != std::string::npos) {
        font.Value.resize(stop);
        if (!font.Value.empty()) {
            font.Value.pop_back();
        }
    }
    const Found colour = Between(line, ".ForeColor=", "", true);
    const bool old = colour.There && colour.Value.find(' ') == std::string::npos;
    const Found italic = old ? Found{} : Between(line, ".FontItalic=", " ", true);
    const Found underline = old ? Found{} : Between(line, ".FontUnderline=", "", true);
    std::array<std::string, 9> v;
    if (!Take(Between(line, ".Left=", " ", true), Type::Place, lbl_[0], own.Left, v[0]) ||
        !Take(Between(line, ".Top=", " ", true), Type::Place, lbl_[1], own.Top, v[1]) ||
        !Take(caption, Type::Words, lbl_[2], own.Caption, v[2]) ||
        !Take(font, Type::Words, lbl_[3], own.FontName, v[3]) ||
        !Take(Between(line, ".FontBold=", " ", true), Type::Flag, lbl_[4], own.FontBold, v[4]) ||
        !Take(Between(line, ".FontSize=", " ", true), Type::Size, lbl_[5], own.FontSize, v[5]) ||
        !Take(Between(line, ".ForeColor=", " ", true), Type::Colour, lbl_[6], own.ForeColor, v[6]) ||
        !Take(italic, Type::Flag, lbl_[7], old ? lbl_[7] : own.FontItalic, v[7]) ||
        !Take(underline, Type::Flag, lbl_[8], old ? lbl_[8] : own.FontUnderline, v[8])) {
        return "fault";
    }
    return place + " " + v[0] + "," + v[1] + " [" + v[2] + "] [" + v[3] + "] " + v[4] + " " + v[5] + " " +
           v[6] + " " + v[7] + v[8];
}

std::string ReferenceLanguage::Logo(const std::string& line, const Own& own) {
    const Found path = Between(line, ".Picture=", ".Left=", false);
    std::string left;
    std::string top;
    if (!path.There || !Take(Between(line, ".Left=", " ", true), Type::Place, pic_[0], own.Left, left) ||
        !Take(Between(line, ".Top=", "", true), Type::Place, pic_[1], own.Top, top)) {
        return "fault";
    }
    return "pic [" + Trimmed(path.Value) + "] " + left + "," + top;
}

std::string ReferenceLanguage::Font(const std::string& line, const Own& own) {
    Found name = Between(line, ".FontName=", ".FontSize=", false);
    if (!name.Value.empty()) {
        name.Value.pop_back();
    }
    std::array<std::string, 4> v;
    if (!Take(name, Type::Words, udp_[0], own.FontName, v[0]) ||
        !Take(Between(line, ".FontSize=", " ", true), Type::Size, udp_[1], own.FontSize, v[1]) ||
        !Take(Between(line, ".FontColor=", " ", true), Type::Colour, udp_[2], own.ForeColor, v[2]) ||
        !Take(Between(line, ".FontItalic=", "", true), Type::Flag, udp_[3], own.FontItalic, v[3])) {
        return "fault";
    }
    return "UDP [" + v[0] + "] " + v[1] + " " + v[2] + " " + v[3];
}

std::string ReferenceLanguage::Line(const std::string& line, const Own& own) {
    if (line.substr(0, 3) == "UDP") {
        return Font(line, own);
    }
    if (line.substr(0, 3) != "frm") {
        return "nothing";
    }
    const std::string name = line.substr(0, 5);
    if (name.size() != 5 || name.substr(0, 4) != "frmP" || name[4] < '1' || name[4] > '6') {
        return "fault";
    }
    const int page = name[4] - '1';
    const std::string kind = line.size() > 6 ? line.substr(6, 3) : "";
    if (kind == "pic") {
        return page == 0 ? Logo(line, own) : "fault";
    }
    const std::size_t open = line.find('(');
    const std::size_t close = line.find(')');
    if (open == std::string::npos || close == std::string::npos || close < open + 2 || close > open + 4) {
        return "fault";
    }
    int index = 0;
    for (const char digit : line.substr(open + 1, close - open - 1)) {
        if (digit < '0' || digit > '9') {
            return "fault";
        }
        index = index * 10 + (digit - '0');
    }
    const std::string place = kind + " " + std::to_string(page) + " " + std::to_string(index);
    if (kind == "txt") {
        return index <= (page == 0 ? 29 : page == 5 ? 5 : 65) ? Text(line, place) : "fault";
    }
    if (kind == "txq") {
        const bool row = page == 0 ? index >= 10 && index <= 19 : page < 5 && index <= 32;
        return row ? Row(line, place) : "fault";
    }
    if (kind == "lbl") {
        return index <= (page == 0 ? 33 : page == 5 ? 64 : 36) ? Label(line, place, own) : "fault";
    }
    return "fault";
}
