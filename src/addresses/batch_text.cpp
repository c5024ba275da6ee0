#include "addresses/batch_text.h"

#include <bit>
#include <cstring>
#include <utility>

namespace batch_text {

namespace {

constexpr std::uint64_t kOnes = 0x0101010101010101U;
constexpr std::uint64_t kLows = 0x7F7F7F7F7F7F7F7FU;

/// A high bit for each of eight bytes that is that character.
std::uint64_t Matches(std::uint64_t bytes, char wanted) {
    const std::uint64_t zeroed = bytes ^ (kOnes * static_cast<unsigned char>(wanted));
    return ~(((zeroed & kLows) + kLows) | zeroed | kLows);
}

std::size_t LineEndLength(std::string_view list, std::size_t at) {
    return list[at] == '\r' && at + 1 < list.size() && list[at + 1] == '\n' ? 2 : 1;
}

bool IsLineEnd(char character) {
    return character == '\r' || character == '\n';
}

/// Takes what the walk comes across, in order.
class Finder {
public:
    Finder(std::string_view list, std::size_t from, Between between)
        : list_(list), next_(from), between_(between) {
        if (from < list.size()) {
            found_.At.push_back(static_cast<std::uint32_t>(from));
        }
    }

    void Take(std::size_t at) {
        if (list_[at] == '"') {
            ++quotes_;
        } else if (at >= next_) { // not the LF of a CR LF
            LineEnd(at);
        }
    }

    Records Finish() {
        EndLine();
        found_.At.push_back(static_cast<std::uint32_t>(list_.size()));
        return std::move(found_);
    }

private:
    void LineEnd(std::size_t at) {
        const bool run = at == next_ && ends_ > 0;
        ends_ = run ? ends_ + 1 : 1;
        const std::size_t behind = at + LineEndLength(list_, at);
        next_ = behind;
        EndLine();
        if (between_ == Between::EmptyLines && ends_ > 2) {
            found_.At.pop_back(); // the run goes on: the record begins behind it
        }
        if (between_ == Between::Lines || ends_ > 1) {
            Begin(behind);
        }
    }

    void Begin(std::size_t at) {
        if (at < list_.size()) {
            found_.At.push_back(static_cast<std::uint32_t>(at));
        }
    }

    void EndLine() {
        if ((quotes_ & 1U) != 0 && !found_.At.empty()) {
            found_.OddQuotes.push_back(static_cast<std::int32_t>(found_.At.size()) - 1);
        }
        quotes_ = 0;
    }

    std::string_view list_;
    std::size_t next_; ///< behind the last line end
    Between between_;
    std::size_t ends_ = 0; ///< line ends of the run that has come to `next_`
    unsigned quotes_ = 0;
    Records found_;
};

} // namespace

Records FindRecords(std::string_view list, std::size_t from, Between between) {
    Finder finder(list, from, between);
    std::size_t at = from;
    // Most bytes are letters: eight at a time.
    for (; at + sizeof(std::uint64_t) <= list.size(); at += sizeof(std::uint64_t)) {
        std::uint64_t bytes = 0;
        std::memcpy(&bytes, list.data() + at, sizeof(bytes));
        std::uint64_t marks = Matches(bytes, '\n') | Matches(bytes, '\r') | Matches(bytes, '"');
        if constexpr (std::endian::native == std::endian::little) {
            for (; marks != 0; marks &= marks - 1) {
                finder.Take(at + static_cast<std::size_t>(std::countr_zero(marks)) / 8);
            }
        } else {
            for (; marks != 0; marks &= ~(std::uint64_t{1} << (63 - std::countl_zero(marks)))) {
                finder.Take(at + static_cast<std::size_t>(std::countl_zero(marks)) / 8);
            }
        }
    }
    for (; at < list.size(); ++at) {
        if (IsLineEnd(list[at]) || list[at] == '"') {
            finder.Take(at);
        }
    }
    return finder.Finish();
}

std::string_view RecordAt(std::string_view list, const std::vector<std::uint32_t>& at, std::int32_t index,
                          Between between) {
    const auto row = static_cast<std::size_t>(index);
    std::string_view record = list.substr(at[row], at[row + 1] - at[row]);
    if (between == Between::Lines) {
        const std::size_t end = record.find_first_of("\r\n");
        return record.substr(0, end);
    }
    while (!record.empty() && IsLineEnd(record.back())) {
        record.remove_suffix(1);
    }
    return record;
}

std::vector<std::string_view> Cut(std::string_view record, char separator, std::size_t most) {
    std::vector<std::string_view> pieces;
    while (pieces.size() < most) {
        const std::size_t end = separator == '\n' ? record.find_first_of("\r\n") : record.find(separator);
        pieces.push_back(record.substr(0, end));
        if (end == std::string_view::npos) {
            break;
        }
        record.remove_prefix(end + (separator == '\n' ? LineEndLength(record, end) : 1));
    }
    return pieces;
}

FirstLine FirstLineOf(std::string_view list) {
    const std::size_t end = list.find_first_of("\r\n");
    if (end == std::string_view::npos) {
        return {list, list.size(), false};
    }
    return {list.substr(0, end), end + LineEndLength(list, end), true};
}

} // namespace batch_text
