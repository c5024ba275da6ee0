#include "calendar/event_dates.h"

#include "base/dates.h"
#include "base/numbers.h"
#include "base/text.h"

#include <cmath>

namespace modCalendar {

std::optional<int> DayOf(std::string_view text) {
    const std::string_view words = text::Trim(text);
    if (words.empty()) {
        return std::nullopt;
    }
    // Two years of which both have a 29 February: what differs between them has no year of its own.
    constexpr int kOneYear = 2000, kOther = 2004;
    const std::optional<double> serial = dates::Recognise(words, kOneYear);
    if (!serial) {
        return std::nullopt;
    }
    const double day = std::floor(*serial);
    if (day == 0 && words.find("1899") == std::string_view::npos) {
        return std::nullopt; // a time of day, not the day from which days are counted
    }
    if (dates::ToCalendar(day).Year == kOneYear && dates::Recognise(words, kOther) != serial) {
        return std::nullopt;
    }
    return static_cast<int>(day);
}

std::optional<int> DayReader::Read(const std::string& text) {
    const auto found = known_.find(text);
    if (found != known_.end()) {
        return found->second;
    }
    return known_.emplace(text, DayOf(text)).first->second;
}

std::string SortKey(int day) {
    constexpr int kKeyLength = 5;
    return std::string(text::Left(numbers::PlainNumber(static_cast<float>(day)), kKeyLength));
}

bool IsListed(View view, int day, float today) {
    constexpr float kAhead = 10;
    const auto serial = static_cast<float>(day);
    switch (view) {
    case View::Expired:
        return today > serial;
    case View::New:
        return serial > today - 1 && serial < today + kAhead;
    case View::All:
        break;
    }
    return true;
}

} // namespace modCalendar
