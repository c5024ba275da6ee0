#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

/// The event dates of proposals, as their files hold them in the first 25 bytes.
namespace modCalendar {

inline constexpr std::size_t kDateBytes = 25;

/// The whole day of a text that is a date; days since 30 December 1899. A text without a year, or a time
/// alone, is none here: it would be this year's, and another's a year later.
[[nodiscard]] std::optional<int> DayOf(std::string_view text);

/// Many proposals share a date; each text is recognised once.
class DayReader {
public:
    [[nodiscard]] std::optional<int> Read(const std::string& text);

private:
    std::unordered_map<std::string, std::optional<int>> known_;
};

/// What the list is sorted by: the first five characters of the day's number, in single precision.
[[nodiscard]] std::string SortKey(int day);

enum class View { All, Expired, New };
/// Whether a day is listed; `today` holds the time of day.
[[nodiscard]] bool IsListed(View view, int day, float today);

} // namespace modCalendar
