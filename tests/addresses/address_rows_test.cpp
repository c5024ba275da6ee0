#include "addresses/address_fields.h"
#include "addresses/address_record.h"
#include "addresses/address_rows.h"
#include "support/running_program.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <optional>
#include <random>
#include <string>
#include <vector>

namespace {

using modAddress::AddressRow;

std::string Padded(std::string name) {
    name.resize(40, ' ');
    return name;
}

std::string PersonalRow(const std::string& name) {
    return modAddress::RowMaker(AddressBook::Personal).RowOf(Padded(name));
}

TEST(AddressRows, PutTheLastNameFirst) {
    EXPECT_EQ(PersonalRow("John Smith"), "Smith, John");
    EXPECT_EQ(PersonalRow("Mary Ann Smith"), "Smith, Mary Ann");
    EXPECT_EQ(PersonalRow("Cher"), "Cher");
    EXPECT_EQ(PersonalRow(""), " ");
    EXPECT_EQ(PersonalRow("  John   Smith  "), "Smith, John  ");
}

TEST(AddressRows, KeepASuffixWithTheLastName) {
    EXPECT_EQ(PersonalRow("John Smith JR."), "Smith JR., John");
    EXPECT_EQ(PersonalRow("John Smith, JR."), "Smith, JR., John");
    EXPECT_EQ(PersonalRow("John Smith sr."), "Smith sr., John");
    EXPECT_EQ(PersonalRow("Jane Doe III"), "Doe III, Jane");
    EXPECT_EQ(PersonalRow("Jane Doe II"), "Doe II, Jane");
}

TEST(AddressRows, TakeASuffixWithoutAFullStopForAName) {
    EXPECT_EQ(PersonalRow("John Smith JR"), "JR, John Smith");
    EXPECT_EQ(PersonalRow("John Smith SR"), "SR, John Smith");
}

TEST(AddressRows, FindASuffixAnywhereInTheName) {
    EXPECT_EQ(PersonalRow("Mary Iiams Smith"), "Mary");
}

TEST(AddressRows, PassTheSuffixOfAOneWordNameToTheNextThatHasAFirstName) {
    modAddress::RowMaker maker(AddressBook::Personal);
    EXPECT_EQ(maker.RowOf(Padded("Cher II")), "Cher");
    EXPECT_EQ(maker.RowOf(Padded("Sting")), "Sting");
    EXPECT_EQ(maker.RowOf(Padded("Ann Ash")), "Ash II, Ann");
    EXPECT_EQ(maker.RowOf(Padded("Ben Birch")), "Birch, Ben");
}

TEST(AddressRows, BeginEachFillingWithoutASuffix) {
    EXPECT_EQ(modAddress::FillNameList(AddressBook::Personal, Padded("Cher II")).front().Text, "Cher");
    EXPECT_EQ(modAddress::FillNameList(AddressBook::Personal, Padded("Ann Ash")).front().Text, "Ash, Ann");
}

TEST(AddressRows, StandInTheBusinessBookAsTheyAre) {
    const auto rows = modAddress::FillNameList(AddressBook::Business, Padded("zeta, Inc.") + Padded("Alpha"));
    EXPECT_EQ(rows, (std::vector<AddressRow>{{Padded("Alpha"), 2}, {Padded("zeta, Inc."), 1}}));
}

TEST(AddressRows, SortWithoutRegardToCaseAndEqualOnesInFileOrder) {
    const std::string names = Padded("b c") + Padded("A C") + Padded("a c") + Padded("A C") +
                              Padded("Long Longlonga") + Padded("Long Longlong");
    std::vector<std::string> texts;
    std::vector<int> records;
    for (const AddressRow& row : modAddress::FillNameList(AddressBook::Personal, names)) {
        texts.push_back(row.Text);
        records.push_back(row.Record);
    }
    EXPECT_EQ(texts, (std::vector<std::string>{"C, A", "C, A", "c, a", "c, b", "Longlong, Long",
                                               "Longlonga, Long"}));
    EXPECT_EQ(records, (std::vector<int>{2, 4, 3, 1, 6, 5}));
}

TEST(AddressRows, LeadBackToTheNameInTheBook) {
    EXPECT_EQ(modAddress::StoredName(AddressBook::Personal, "Smith, John"), Padded("John Smith"));
    EXPECT_EQ(modAddress::StoredName(AddressBook::Personal, "Smith, JR., John"), Padded("John Smith, JR."));
    EXPECT_EQ(modAddress::StoredName(AddressBook::Personal, "Doe III, Jane"), Padded("Jane Doe III"));
    EXPECT_EQ(modAddress::StoredName(AddressBook::Personal, "Cher"), Padded("Cher"));
    EXPECT_EQ(modAddress::StoredName(AddressBook::Business, Padded("Smith, Inc.")), Padded("Smith, Inc."));
    EXPECT_EQ(modAddress::StoredName(AddressBook::Personal, std::string(50, 'x')).size(), 40U);
}

TEST(AddressRows, CountTheEqualRowsAbove) {
    const std::vector<AddressRow> rows{{"A", 1}, {"B", 2}, {"B", 4}, {"b", 5}, {"B", 6}};
    EXPECT_EQ(modAddress::DuplicateNumber(rows, 0), 1);
    EXPECT_EQ(modAddress::DuplicateNumber(rows, 2), 2);
    EXPECT_EQ(modAddress::DuplicateNumber(rows, 4), 1);
}

/// The rules read a second time, with positions counted from 1 and characters looked at one by one.
class SecondReading {
public:
    std::string Row(std::string name) {
        name = Strip(name);
        const char* const forms[] = {" JR.", ", JR.", " SR.", ", SR.", " II", " III", ", II", ", III"};
        for (const char* form : forms) {
            const int at = Position(Capitals(name), form);
            if (at > 0) {
                has_ = true;
                suffix_ = name.substr(static_cast<std::size_t>(at - 1));
                name = Strip(name.substr(0, static_cast<std::size_t>(at)));
            }
        }
        if (name.empty()) {
            name = " ";
        }
        int last = 0;
        for (int at = 1; at <= static_cast<int>(name.size()); ++at) {
            if (name[static_cast<std::size_t>(at - 1)] == ' ') {
                last = at;
            }
        }
        if (last <= 1) {
            return name;
        }
        std::string family;
        for (int at = last + 1; at <= static_cast<int>(name.size()); ++at) {
            family += name[static_cast<std::size_t>(at - 1)];
        }
        if (has_) {
            family += suffix_;
            has_ = false;
        }
        std::string row = family + ", ";
        for (int at = 1; at < last; ++at) {
            row += name[static_cast<std::size_t>(at - 1)];
        }
        return row;
    }

    static std::string Back(const std::string& row) {
        int first = 0;
        int second = 0;
        for (int at = 1; at <= static_cast<int>(row.size()); ++at) {
            if (row[static_cast<std::size_t>(at - 1)] == ',') {
                (first == 0 ? first : second == 0 ? second : dummy_) = at;
            }
        }
        std::string name = row;
        if (const int comma = second != 0 ? second : first; comma != 0) {
            std::string given = row.substr(static_cast<std::size_t>(comma));
            if (!given.empty() && given.front() == ' ') {
                given.erase(0, 1);
            }
            name = given + " " + row.substr(0, static_cast<std::size_t>(comma - 1));
        }
        while (name.size() < 40) {
            name += ' ';
        }
        return name.substr(0, 40);
    }

private:
    static std::string Strip(std::string value) {
        while (!value.empty() && value.front() == ' ') {
            value.erase(0, 1);
        }
        while (!value.empty() && value.back() == ' ') {
            value.pop_back();
        }
        return value;
    }
    static std::string Capitals(std::string value) {
        for (char& character : value) {
            character = character >= 'a' && character <= 'z' ? static_cast<char>(character - 32) : character;
        }
        return value;
    }
    static int Position(const std::string& text, const std::string& wanted) {
        for (std::size_t at = 0; at + wanted.size() <= text.size(); ++at) {
            if (text.compare(at, wanted.size(), wanted) == 0) {
                return static_cast<int>(at) + 1;
            }
        }
        return 0;
    }
    bool has_ = false;
    std::string suffix_;
    inline static int dummy_ = 0;
};

TEST(AddressRows, OfRandomNamesAreWhatASecondReadingOfTheRulesMakesOfThem) {
    const unsigned seed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    const std::vector<std::string> parts{"John",    "mary",
                                         "O'Brien", "Smith",
                                         "II",      "Iiams",
                                         "III",     "JR.",
                                         "jr",      "SR.",
                                         ",",       ", ",
                                         ", JR.",   ", II",
                                         " ",       "  ",
                                         "Ann",     "",
                                         "x",       "Sr.",
                                         ",III",    "Longlonglonglonglonglonglonglonglong"};
    modAddress::RowMaker maker(AddressBook::Personal);
    SecondReading second;
    for (int round = 0; round < 20000; ++round) {
        std::string name;
        const int count = static_cast<int>(random() % 6);
        for (int part = 0; part < count; ++part) {
            name += parts[random() % parts.size()];
            name += random() % 3 != 0 ? " " : "";
        }
        const std::string field = modAddress::ToWidth(name, 40);
        const std::string row = maker.RowOf(field);
        ASSERT_EQ(row, second.Row(field)) << '[' << field << ']';
        ASSERT_EQ(modAddress::StoredName(AddressBook::Personal, row), SecondReading::Back(row)) << row;
    }
}

TEST(AddressRecords, KeepTheirPlacesAndCutWhatIsLonger) {
    modAddress::AddressFields fields;
    fields[0] = "  Ann Ash  ";
    fields[4] = std::string(25, '5');
    fields[10] = std::string(200, 'n');
    const std::string record = modAddress::RecordOf(fields);
    ASSERT_EQ(record.size(), 520U);
    EXPECT_EQ(record.substr(0, 40), Padded("Ann Ash"));
    EXPECT_EQ(record.substr(160, 40), std::string(20, '5') + std::string(20, ' '));
    EXPECT_EQ(record.substr(320), std::string(200, 'n'));
    EXPECT_EQ(modAddress::FieldsOf(record)[4], std::string(20, '5'));
}

TEST(AddressFields, WhatIsWrittenAsItShouldBeIsNotConverted) {
    RunningProgram run;
    EXPECT_EQ(modAddress::Converted(run.program, 0, "ann ash"), "Ann Ash");
    EXPECT_EQ(modAddress::Converted(run.program, 0, "Ann Ash"), std::nullopt);
    EXPECT_EQ(modAddress::Converted(run.program, 4, "not a number at all"), std::nullopt);
}

} // namespace
