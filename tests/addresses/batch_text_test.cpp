#include "addresses/batch_text.h"
#include "addresses/csv_list.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace {

using batch_text::Between;
using Texts = std::vector<std::string>;

Texts RecordsOf(std::string_view list, Between between) {
    const batch_text::Records found = batch_text::FindRecords(list, 0, between);
    Texts records;
    for (std::int32_t index = 0; index + 1 < static_cast<std::int32_t>(found.At.size()); ++index) {
        records.emplace_back(batch_text::RecordAt(list, found.At, index, between));
    }
    return records;
}

TEST(BatchText, TakesEveryKindOfLineEndForOne) {
    EXPECT_EQ(RecordsOf("a\r\nb\nc\rd", Between::Lines), (Texts{"a", "b", "c", "d"}));
    EXPECT_EQ(RecordsOf("a\n\r\nb", Between::Lines), (Texts{"a", "", "b"}));
}

TEST(BatchText, DropsOneSeparatorAtTheEnd) {
    EXPECT_EQ(RecordsOf("a\r\n", Between::Lines), Texts{"a"});
    EXPECT_EQ(RecordsOf("a\r\n\r\n", Between::Lines), (Texts{"a", ""}));
    EXPECT_EQ(RecordsOf("a\r\n\r\n\r\n", Between::EmptyLines), Texts{"a"});
    EXPECT_EQ(RecordsOf("", Between::Lines), Texts{});
}

TEST(BatchText, TakesARunOfLineEndsForOneSeparatorBetweenEmptyLines) {
    EXPECT_EQ(RecordsOf("a\nb\n\nc\r\n\r\n\r\nd", Between::EmptyLines), (Texts{"a\nb", "c", "d"}));
    EXPECT_EQ(RecordsOf("a\r\nb", Between::EmptyLines), Texts{"a\r\nb"});
    EXPECT_EQ(RecordsOf("a\r\rb", Between::EmptyLines), (Texts{"a", "b"}));
}

TEST(BatchText, CutsNoMoreFieldsThanAreWanted) {
    EXPECT_EQ(batch_text::Cut("a,b,,c", ',', 9), (std::vector<std::string_view>{"a", "b", "", "c"}));
    EXPECT_EQ(batch_text::Cut("a,b,,c", ',', 2), (std::vector<std::string_view>{"a", "b"}));
    EXPECT_EQ(batch_text::Cut("a\r\nb\rc\nd", '\n', 9), (std::vector<std::string_view>{"a", "b", "c", "d"}));
}

/// Records by looking at one character after the other.
struct SlowReading {
    Texts Records;
    std::vector<std::int32_t> Odd;

    SlowReading(const std::string& list, Between between) {
        // Every kind of line end becomes one character first.
        std::string lines;
        for (std::size_t at = 0; at < list.size(); ++at) {
            if (list[at] == '\r' && at + 1 < list.size() && list[at + 1] == '\n') {
                continue;
            }
            lines += list[at] == '\r' ? '\n' : list[at];
        }
        if (between == Between::EmptyLines) {
            std::string runs;
            for (std::size_t at = 0; at < lines.size();) {
                std::size_t end = at;
                while (end < lines.size() && lines[end] == '\n') {
                    ++end;
                }
                if (end - at >= 2) {
                    runs += '\x01';
                } else {
                    runs += lines[at];
                    end = at + 1;
                }
                at = end;
            }
            Split(runs, '\x01');
            for (std::string& record : Records) {
                while (!record.empty() && record.back() == '\n') {
                    record.pop_back();
                }
            }
            return;
        }
        Split(lines, '\n');
        for (std::size_t row = 0; row < Records.size(); ++row) {
            int marks = 0;
            for (const char character : Records[row]) {
                marks += character == '"' ? 1 : 0;
            }
            if (marks % 2 == 1) {
                Odd.push_back(static_cast<std::int32_t>(row));
            }
        }
    }

private:
    void Split(const std::string& text, char separator) {
        std::string record;
        for (const char character : text) {
            if (character == separator) {
                Records.push_back(record);
                record.clear();
            } else {
                record += character;
            }
        }
        if (!text.empty() && text.back() != separator) {
            Records.push_back(record);
        }
    }
};

TEST(BatchText, OfRandomTextsFindsWhatASlowReadingFinds) {
    const unsigned seed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    const std::string characters = "ab,\t\"\r\n\r\n\"x \n";
    for (int round = 0; round < 20000; ++round) {
        std::string list;
        const std::size_t length = random() % 60;
        for (std::size_t at = 0; at < length; ++at) {
            list += characters[random() % characters.size()];
        }
        const SlowReading lines(list, Between::Lines);
        ASSERT_EQ(RecordsOf(list, Between::Lines), lines.Records) << testing::PrintToString(list);
        ASSERT_EQ(batch_text::FindRecords(list, 0, Between::Lines).OddQuotes, lines.Odd)
            << testing::PrintToString(list);
        Texts records = RecordsOf(list, Between::EmptyLines);
        for (std::string& record : records) {
            std::string plain;
            for (std::size_t at = 0; at < record.size(); ++at) {
                if (record[at] == '\r' && at + 1 < record.size() && record[at + 1] == '\n') {
                    continue;
                }
                plain += record[at] == '\r' ? '\n' : record[at];
            }
            record = plain;
        }
        ASSERT_EQ(records, SlowReading(list, Between::EmptyLines).Records) << testing::PrintToString(list);
    }
}

/// A second writer and reader of rows: a state for each character.
std::string Quoted(const std::string& value, bool always) {
    if (!always && value.find_first_of(",\"") == std::string::npos) {
        return value;
    }
    std::string quoted = "\"";
    for (const char character : value) {
        quoted += character == '"' ? std::string("\"\"") : std::string(1, character);
    }
    return quoted + "\"";
}

TEST(HeadingList, ReadsBackRandomTablesAsTheyWereWritten) {
    const unsigned seed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    const std::string characters = "abc, \"x;\t'";
    for (int round = 0; round < 5000; ++round) {
        Texts fields;
        std::string row;
        const std::size_t count = 1 + random() % 8;
        for (std::size_t field = 0; field < count; ++field) {
            std::string value;
            const std::size_t length = random() % 8;
            for (std::size_t at = 0; at < length; ++at) {
                value += characters[random() % characters.size()];
            }
            row += field == 0 ? "" : ",";
            row += Quoted(value, random() % 2 == 0);
            const std::size_t first = value.find_first_not_of(' ');
            fields.push_back(first == std::string::npos
                                 ? std::string()
                                 : value.substr(first, value.find_last_not_of(' ') - first + 1));
        }
        ASSERT_EQ(modCSV::CutRow(row), fields) << row;
    }
}

TEST(HeadingList, KnowsItsColumnsByNameAndTakesTheFirstOfTwo) {
    const modCSV::Columns columns = modCSV::ReadHeading("x, HOME city ,\"Notes\",home CITY");
    int present = 0;
    for (const bool there : columns.CsvColumnPresent) {
        present += there ? 1 : 0;
    }
    EXPECT_EQ(present, 2);
    const modCSV::Row row = modCSV::ArrangeRow(columns, {"1", "Peoria", "n", "Joliet"});
    EXPECT_EQ(row[7], "Peoria");
    EXPECT_EQ(row[28], "n");
    EXPECT_FALSE(modCSV::ReadHeading("x,y").Any());
    EXPECT_EQ(modCSV::ColumnNames().size(), 29U);
    EXPECT_EQ(modCSV::ColumnNames()[7], "Home City");
}

} // namespace
