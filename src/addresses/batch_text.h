#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

/// A copied list as text. CR LF, LF and CR alone are one kind of line end.
namespace batch_text {

enum class Between { Lines, EmptyLines }; ///< what parts one record from the next

struct Records {
    /// Where each record begins, and the end of the list behind the last.
    std::vector<std::uint32_t> At;
    /// Indexes of the records with an odd number of quotation marks, ascending.
    std::vector<std::int32_t> OddQuotes;
};

/// Finds the records of a list from a place on, in one walk. A line end at the very end begins no further
/// record; nothing behind `from` is no record. Quotation marks are counted a line.
[[nodiscard]] Records FindRecords(std::string_view list, std::size_t from, Between between);

/// A record without the line ends behind it.
[[nodiscard]] std::string_view RecordAt(std::string_view list, const std::vector<std::uint32_t>& at,
                                        std::int32_t index, Between between);

/// The first pieces of a record, at most so many; what follows them is left out. A separator of '\n' stands
/// for every line end.
[[nodiscard]] std::vector<std::string_view> Cut(std::string_view record, char separator, std::size_t most);

/// The first line and where the next begins; the whole text and its end when there is no line end.
struct FirstLine {
    std::string_view Line;
    std::size_t Next = 0;
    bool Ended = false;
};
[[nodiscard]] FirstLine FirstLineOf(std::string_view list);

} // namespace batch_text
