#include "addresses/address_rows.h"

#include "addresses/address_record.h"
#include "base/ansi.h"
#include "base/text.h"

#include <algorithm>
#include <array>
#include <utility>

namespace modAddress {

namespace {

// The forms with a comma come after those with a blank, which find the suffix first; the comma stays on the
// name. A form is looked for anywhere: " II" is in "Mary Iiams", too.
constexpr std::array<std::string_view, 8> kSuffixes{" JR.", ", JR.", " SR.", ", SR.",
                                                    " II",  " III",  ", II", ", III"};

/// The first characters of an upper-cased text as one number that sorts as they do.
std::uint64_t Leading(std::string_view upper) {
    std::uint64_t value = 0;
    for (std::size_t at = 0; at < sizeof(value); ++at) {
        value = (value << 8U) | (at < upper.size() ? static_cast<unsigned char>(upper[at]) : 0U);
    }
    return value;
}

struct SortKey {
    std::uint64_t Lead;
    std::uint32_t Row;
};

} // namespace

void RowMaker::TakeSuffix(std::string& name) {
    for (const std::string_view form : kSuffixes) {
        const std::size_t at = text::Upper(name).find(form);
        if (at == std::string::npos) {
            continue;
        }
        HasSuffix = true;
        Suffix = name.substr(at);
        name = text::Trim(std::string_view(name).substr(0, at + 1));
    }
}

std::string RowMaker::PersonalRow(std::string name) {
    TakeSuffix(name);
    if (name.empty()) {
        name = " ";
    }
    const std::size_t blank = name.rfind(' ');
    if (blank == std::string::npos || blank == 0) {
        return name;
    }
    std::string last = name.substr(blank + 1);
    if (HasSuffix) {
        HasSuffix = false;
        last += Suffix;
    }
    return last + ", " + name.substr(0, blank);
}

std::string RowMaker::RowOf(std::string_view name) {
    return book_ == AddressBook::Business ? std::string(name) : PersonalRow(std::string(text::Trim(name)));
}

std::vector<AddressRow> FillNameList(AddressBook book, std::string_view names) {
    const std::size_t count = names.size() / kNameWidth;
    std::vector<AddressRow> inFile;
    inFile.reserve(count);
    RowMaker maker(book);
    for (std::size_t index = 0; index < count; ++index) {
        inFile.push_back({maker.RowOf(names.substr(index * kNameWidth, kNameWidth)),
                          static_cast<std::int32_t>(index + 1)});
    }
    // Sorting moves small keys, and mostly the first letters decide.
    std::vector<SortKey> keys;
    keys.reserve(count);
    for (std::size_t index = 0; index < inFile.size(); ++index) {
        keys.push_back({Leading(text::Upper(std::string_view(inFile[index].Text).substr(0, 8))),
                        static_cast<std::uint32_t>(index)});
    }
    std::sort(keys.begin(), keys.end(), [&](const SortKey& one, const SortKey& other) {
        if (one.Lead != other.Lead) {
            return one.Lead < other.Lead;
        }
        const std::string& left = inFile[one.Row].Text;
        const std::string& right = inFile[other.Row].Text;
        if (const int order = text::CompareNoCase(left, right); order != 0) {
            return order < 0;
        }
        if (const int order = left.compare(right); order != 0) {
            return order < 0;
        }
        return one.Row < other.Row;
    });
    std::vector<AddressRow> rows;
    rows.reserve(count);
    for (const SortKey& key : keys) {
        rows.push_back(std::move(inFile[key.Row]));
    }
    return rows;
}

std::string StoredName(AddressBook book, std::string_view row) {
    if (book == AddressBook::Business) {
        return ToWidth(row, kNameWidth);
    }
    std::size_t comma = row.find(',');
    if (comma == std::string_view::npos) {
        return ToWidth(row, kNameWidth);
    }
    if (const std::size_t second = row.find(',', comma + 1); second != std::string_view::npos) {
        comma = second;
    }
    const std::string_view behind = row.substr(comma + 1);
    const std::string_view first = behind.starts_with(' ') ? behind.substr(1) : behind;
    return ToWidth(std::string(first) + " " + std::string(row.substr(0, comma)), kNameWidth);
}

int DuplicateNumber(const std::vector<AddressRow>& rows, int row) {
    int number = 1;
    for (auto at = static_cast<std::size_t>(row); at > 0 && rows[at - 1].Text == rows[at].Text; --at) {
        ++number;
    }
    return number;
}

int RowBeginningWith(const std::vector<AddressRow>& rows, std::string_view typed) {
    const auto found =
        std::lower_bound(rows.begin(), rows.end(), typed, [](const AddressRow& row, std::string_view wanted) {
            return text::CompareNoCase(row.Text, wanted) < 0;
        });
    const bool begins = found != rows.end() && !typed.empty() &&
                        text::EqualNoCase(std::string_view(found->Text).substr(0, typed.size()), typed);
    return begins ? static_cast<int>(found - rows.begin()) : -1;
}

int RowOfRecord(const std::vector<AddressRow>& rows, std::int32_t record) {
    const auto found = std::find_if(rows.begin(), rows.end(),
                                    [record](const AddressRow& row) { return row.Record == record; });
    return found == rows.end() ? -1 : static_cast<int>(found - rows.begin());
}

} // namespace modAddress
