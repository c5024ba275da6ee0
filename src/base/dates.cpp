#include "base/dates.h"

#include "base/ansi.h"
#include "base/text.h"

#include <array>
#include <charconv>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <vector>

namespace {

using std::chrono::day;
using std::chrono::month;
using std::chrono::sys_days;
using std::chrono::year;
using std::chrono::year_month_day;

constexpr sys_days kDayZero = sys_days(year(1899) / month(12) / day(30));
constexpr int kSecondsADay = 86400;

constexpr std::array<std::string_view, 12> kMonths{"JANUARY",   "FEBRUARY", "MARCH",    "APRIL",
                                                   "MAY",       "JUNE",     "JULY",     "AUGUST",
                                                   "SEPTEMBER", "OCTOBER",  "NOVEMBER", "DECEMBER"};
constexpr std::array<std::string_view, 12> kMonthNames{"January",   "February", "March",    "April",
                                                       "May",       "June",     "July",     "August",
                                                       "September", "October",  "November", "December"};
constexpr std::array<std::string_view, 7> kDays{"SUNDAY",   "MONDAY", "TUESDAY", "WEDNESDAY",
                                                "THURSDAY", "FRIDAY", "SATURDAY"};

struct Token {
    enum class What { Number, Word, Sign };
    What Kind = What::Sign;
    std::string Text;
    int Value = 0;
};

/// Takes a text apart; nothing when it holds what no date holds.
std::optional<std::vector<Token>> Tokens(std::string_view value) {
    std::vector<Token> tokens;
    std::size_t at = 0;
    while (at < value.size()) {
        const char character = value[at];
        Token token;
        std::size_t end = at + 1;
        if (character == ' ' || character == '\t') {
            at = end;
            continue;
        }
        if (ansi::IsDigit(character)) {
            while (end < value.size() && ansi::IsDigit(value[end])) {
                ++end;
            }
            if (end - at > 4 ||
                (end < value.size() && ansi::IsLetter(value[end]) &&
                 text::Upper(value.substr(end, 1)) != "A" && text::Upper(value.substr(end, 1)) != "P")) {
                return std::nullopt; // "1rst" and its like
            }
            token.Kind = Token::What::Number;
            std::from_chars(value.data() + at, value.data() + end, token.Value);
        } else if (ansi::IsLetter(character)) {
            while (end < value.size() && ansi::IsLetter(value[end])) {
                ++end;
            }
            token.Kind = Token::What::Word;
        } else if (character != '/' && character != '-' && character != ',' && character != ':' &&
                   character != '.') {
            return std::nullopt;
        }
        token.Text = text::Upper(value.substr(at, end - at));
        tokens.push_back(std::move(token));
        at = end;
    }
    return tokens;
}

/// 0 for a word that names none; no date has that month.
int MonthOf(std::string_view word) {
    for (std::size_t index = 0; index < kMonths.size(); ++index) {
        const bool september = index == 8 && word == "SEPT";
        if (word == kMonths[index] || word == kMonths[index].substr(0, 3) || september) {
            return static_cast<int>(index) + 1;
        }
    }
    return 0;
}

bool IsDayName(std::string_view word) {
    for (const std::string_view name : kDays) {
        if (word == name || word == name.substr(0, 3)) {
            return true;
        }
    }
    return false;
}

class Reader {
public:
    Reader(std::vector<Token> tokens, int currentYear)
        : tokens_(std::move(tokens)), currentYear_(currentYear) {}

    std::optional<double> Read() {
        if (!tokens_.empty() && tokens_.back().Text == ".") {
            tokens_.pop_back();
        }
        if (tokens_.empty()) {
            return std::nullopt;
        }
        dates::Calendar found; // the day of a time alone
        TakeTime(found);
        const bool timeFirst = at_ > 0;
        if (at_ < tokens_.size() && !TakeDate(found)) {
            return std::nullopt;
        }
        if (!timeFirst) {
            Skip(",");
            TakeTime(found);
        }
        if (at_ != tokens_.size()) {
            return std::nullopt;
        }
        return dates::ToSerial(found);
    }

private:
    [[nodiscard]] const Token* Ahead(std::size_t steps = 0) const {
        return at_ + steps < tokens_.size() ? &tokens_[at_ + steps] : nullptr;
    }
    [[nodiscard]] bool IsNumber(std::size_t steps = 0) const {
        return Ahead(steps) != nullptr && Ahead(steps)->Kind == Token::What::Number;
    }
    [[nodiscard]] bool IsWord(std::size_t steps = 0) const {
        return Ahead(steps) != nullptr && Ahead(steps)->Kind == Token::What::Word;
    }
    [[nodiscard]] bool Is(std::string_view sign, std::size_t steps = 0) const {
        return Ahead(steps) != nullptr && Ahead(steps)->Text == sign;
    }
    bool Skip(std::string_view sign) {
        if (!Is(sign)) {
            return false;
        }
        ++at_;
        return true;
    }

    /// 0 none, 1 morning, 2 afternoon.
    int TakeHalf() {
        if (!IsWord()) {
            return 0;
        }
        const std::string& word = Ahead()->Text;
        const int half = word == "AM" || word == "A" ? 1 : word == "PM" || word == "P" ? 2 : 0;
        if (half != 0) {
            ++at_;
        }
        return half;
    }

    /// Takes no token where no time stands.
    void TakeTime(dates::Calendar& found) {
        const std::size_t start = at_;
        const bool clock = IsNumber() && Is(":", 1) && IsNumber(2);
        const bool bare = IsNumber() && IsWord(1) && (Is("AM", 1) || Is("PM", 1) || Is("A", 1) || Is("P", 1));
        if (!clock && !bare) {
            return;
        }
        found.Hour = Ahead()->Value;
        ++at_;
        if (clock) {
            found.Minute = Ahead(1)->Value;
            at_ += 2;
            if (Is(":") && IsNumber(1)) {
                found.Second = Ahead(1)->Value;
                at_ += 2;
            }
        }
        const int half = TakeHalf();
        if (found.Minute > 59 || found.Second > 59 || found.Hour > 23 ||
            (half != 0 && (found.Hour > 12 || found.Hour < 1))) {
            at_ = start;
            return;
        }
        if (half == 2 && found.Hour < 12) {
            found.Hour += 12;
        } else if (half == 1 && found.Hour == 12) {
            found.Hour = 0;
        }
    }

    [[nodiscard]] static int FullYear(const Token& token) {
        if (token.Text.size() > 2) {
            return token.Value;
        }
        return token.Value < 30 ? 2000 + token.Value : 1900 + token.Value;
    }

    bool TakeYear(dates::Calendar& found) {
        if (!IsNumber() || Is(":", 1)) {
            return false;
        }
        found.Year = FullYear(*Ahead());
        ++at_;
        return true;
    }

    bool TakeDate(dates::Calendar& found) {
        if (IsWord() && IsDayName(Ahead()->Text) && MonthOf(Ahead()->Text) == 0) {
            ++at_;
            Skip(",");
        }
        found.Year = currentYear_;
        if (IsWord()) {
            return TakeNamed(found);
        }
        if (!IsNumber()) {
            return false;
        }
        if ((Is("/", 1) || Is("-", 1)) && IsNumber(2)) {
            return TakeNumbers(found);
        }
        return TakeDayFirst(found);
    }

    bool TakeNamed(dates::Calendar& found) {
        found.Month = MonthOf(Ahead()->Text);
        ++at_;
        Skip(".");
        Skip("-");
        if (!IsNumber()) {
            return false;
        }
        if (Ahead()->Text.size() > 2) { // "January 2008"
            found.Day = 1;
            return TakeYear(found);
        }
        found.Day = Ahead()->Value;
        ++at_;
        const bool mark = Skip(",") || Skip("-");
        return TakeYear(found) || !mark || Ahead() != nullptr;
    }

    bool TakeDayFirst(dates::Calendar& found) {
        found.Day = Ahead()->Value;
        ++at_;
        Skip("-");
        if (!IsWord()) {
            return false;
        }
        found.Month = MonthOf(Ahead()->Text);
        ++at_;
        Skip(".");
        Skip(",");
        Skip("-");
        TakeYear(found);
        return true;
    }

    bool TakeNumbers(dates::Calendar& found) {
        const std::string sign = Ahead(1)->Text;
        const Token first = *Ahead();
        const Token second = *Ahead(2);
        at_ += 3;
        if (first.Text.size() > 2) { // year first
            if (!Skip(sign) || !IsNumber()) {
                return false;
            }
            found.Year = first.Value;
            found.Month = second.Value;
            found.Day = Ahead()->Value;
            ++at_;
            return true;
        }
        found.Month = first.Value;
        found.Day = second.Value;
        if (second.Text.size() > 2) { // month and year
            found.Day = 1;
            found.Year = second.Value;
            return true;
        }
        if (Skip(sign) && !TakeYear(found)) {
            return false;
        }
        if (found.Month > 12 && found.Day <= 12) {
            std::swap(found.Month, found.Day);
        }
        return true;
    }

    std::vector<Token> tokens_;
    std::size_t at_ = 0;
    int currentYear_;
};

} // namespace

namespace dates {

std::optional<double> ToSerial(const Calendar& calendar) {
    if (calendar.Year < 100 || calendar.Year > 9999 || calendar.Month < 1 || calendar.Day < 1) {
        return std::nullopt;
    }
    const year_month_day date = year(calendar.Year) / month(static_cast<unsigned>(calendar.Month)) /
                                day(static_cast<unsigned>(calendar.Day));
    if (!date.ok()) {
        return std::nullopt;
    }
    const double days = static_cast<double>((sys_days(date) - kDayZero).count());
    const int seconds = (calendar.Hour * 60 + calendar.Minute) * 60 + calendar.Second;
    return days + static_cast<double>(seconds) / kSecondsADay;
}

Calendar ToCalendar(double serial) {
    double days = std::floor(serial);
    auto seconds = static_cast<int>(std::lround((serial - days) * kSecondsADay));
    if (seconds == kSecondsADay) {
        days += 1;
        seconds = 0;
    }
    const year_month_day date(kDayZero + std::chrono::days(static_cast<int>(days)));
    Calendar calendar;
    calendar.Year = static_cast<int>(date.year());
    calendar.Month = static_cast<int>(static_cast<unsigned>(date.month()));
    calendar.Day = static_cast<int>(static_cast<unsigned>(date.day()));
    calendar.Hour = seconds / 3600;
    calendar.Minute = seconds / 60 % 60;
    calendar.Second = seconds % 60;
    return calendar;
}

std::optional<double> Recognise(std::string_view value, int currentYear) {
    std::optional<std::vector<Token>> tokens = Tokens(value);
    return tokens ? Reader(std::move(*tokens), currentYear).Read() : std::nullopt;
}

bool IsDate(std::string_view value, int currentYear) {
    return Recognise(value, currentYear).has_value();
}

std::string FormatDate(double serial, std::string_view pattern) {
    const Calendar calendar = ToCalendar(serial);
    std::string result;
    const auto padded = [](int value, std::size_t width) {
        std::string digits = std::to_string(value);
        return digits.size() < width ? std::string(width - digits.size(), '0') + digits : digits;
    };
    for (std::size_t at = 0; at < pattern.size();) {
        const char token = pattern[at];
        std::size_t count = 1;
        while (at + count < pattern.size() && pattern[at + count] == token) {
            ++count;
        }
        const std::string_view name = kMonthNames[static_cast<std::size_t>(calendar.Month - 1)];
        if (token == 'm') {
            result += count >= 4   ? std::string(name)
                      : count == 3 ? std::string(name.substr(0, 3))
                                   : padded(calendar.Month, count);
        } else if (token == 'd') {
            result += padded(calendar.Day, count);
        } else if (token == 'y') {
            result += count > 2 ? padded(calendar.Year, 4) : padded(calendar.Year % 100, 2);
        } else {
            result.append(count, token);
        }
        at += count;
    }
    return result;
}

std::string GeneralDate(double serial) {
    const Calendar calendar = ToCalendar(serial);
    std::array<char, 64> buffer{};
    std::string result;
    if (std::floor(serial) != 0) {
        std::snprintf(buffer.data(), buffer.size(), "%d/%d/%d", calendar.Month, calendar.Day, calendar.Year);
        result = buffer.data();
    }
    const bool midnight = calendar.Hour == 0 && calendar.Minute == 0 && calendar.Second == 0;
    if (!midnight || result.empty()) {
        const int hour = calendar.Hour % 12 == 0 ? 12 : calendar.Hour % 12;
        std::snprintf(buffer.data(), buffer.size(), "%s%d:%02d:%02d %s", result.empty() ? "" : " ", hour,
                      calendar.Minute, calendar.Second, calendar.Hour < 12 ? "AM" : "PM");
        result += buffer.data();
    }
    return result;
}

} // namespace dates
