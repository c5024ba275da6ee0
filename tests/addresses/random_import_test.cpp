#include "addresses/address_run.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <map>
#include <random>

namespace {

using address_menu::Id;

/// The names of the columns, and one that no book takes.
const std::array<std::string, 30> kColumns{"First Name",
                                           "Last Name",
                                           "Middle Name",
                                           "Name",
                                           "Nickname",
                                           "E-mail Address",
                                           "Home Street",
                                           "Home City",
                                           "Home Postal Code",
                                           "Home State",
                                           "Home Country",
                                           "Home Phone",
                                           "Home Fax",
                                           "Mobile Phone",
                                           "Personal Web Page",
                                           "Business Street",
                                           "Business City",
                                           "Business Postal Code",
                                           "Business State",
                                           "Business Country",
                                           "Business Web Page",
                                           "Business Phone",
                                           "Business Fax",
                                           "Pager",
                                           "Company",
                                           "Job Title",
                                           "Department",
                                           "Office Location",
                                           "Notes",
                                           "Anniversary"};

using Row = std::map<std::string, std::string>;

std::string Trimmed(const std::string& text) {
    const std::size_t first = text.find_first_not_of(' ');
    return first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

/// What the window is to show for a row, field by field, read off the table of columns a second time.
std::map<int, std::string> Wanted(bool personal, const std::vector<std::string>& columns, Row row) {
    const auto there = [&](const char* name) {
        return std::find(columns.begin(), columns.end(), name) != columns.end();
    };
    const std::string place = personal ? "Home " : "Business ";
    std::map<int, std::string> fields;
    if (!personal) {
        fields[0] = there("Company") ? row["Company"] : "No Company Name Given";
        fields[8] = row["Name"];
    } else if (there("First Name") && there("Last Name")) {
        fields[0] = Trimmed(row["First Name"] + " " + row["Last Name"]);
    } else {
        fields[0] = there("First Name")  ? row["First Name"]
                    : there("Last Name") ? row["Last Name"]
                                         : row["Name"];
    }
    fields[1] = row[place + "Street"];
    std::string region = row[place + "State"];
    region += !region.empty() && !row[place + "Postal Code"].empty() ? " " : "";
    region += row[place + "Postal Code"];
    fields[3] = row[place + "City"];
    fields[3] += !fields[3].empty() && !region.empty() ? ", " : "";
    fields[3] += region;
    fields[4] = personal ? row["Home Phone"] : row["Business Phone"];
    fields[5] = personal ? row["Business Phone"] : row["Business Fax"];
    fields[6] = row["Mobile Phone"];
    fields[9] = row["E-mail Address"];
    for (const int field : {2, 7, 8, 10}) {
        fields.try_emplace(field, "");
    }
    return fields;
}

class Tables {
public:
    explicit Tables(unsigned seed) : random_(seed) {}

    [[nodiscard]] std::size_t Below(std::size_t most) { return random_() % most; }
    std::vector<std::string> SomeColumns() {
        std::vector<std::string> columns(kColumns.begin(), kColumns.end());
        std::shuffle(columns.begin(), columns.end(), random_);
        columns.resize(2 + Below(columns.size() - 1));
        if (columns.size() == 2 && columns[1] == "Anniversary") {
            columns[1] = columns[0] == "Name" ? "Company" : "Name";
        } else if (columns.size() == 2 && columns[0] == "Anniversary") {
            columns[0] = columns[1] == "Name" ? "Company" : "Name";
        }
        return columns;
    }
    std::string Value() {
        static const std::string kCharacters = "ab \xE9,\"';x";
        std::string value;
        for (std::size_t left = Below(9); left > 0; --left) {
            value += kCharacters[Below(kCharacters.size())];
        }
        return value;
    }
    /// As a spreadsheet writes it.
    std::string Written(const std::string& value) {
        if (Below(2) == 0 && value.find_first_of(",\"") == std::string::npos) {
            return value;
        }
        std::string quoted = "\"";
        for (const char character : value) {
            quoted += character == '"' ? "\"\"" : std::string(1, character);
        }
        return quoted + "\"";
    }
    std::string AnyCase(std::string name) {
        for (char& letter : name) {
            letter = Below(4) == 0 ? static_cast<char>(std::toupper(letter)) : letter;
        }
        return name;
    }
    std::string LineEnd() { return std::array<std::string, 3>{"\r\n", "\n", "\r"}[Below(3)]; }

private:
    std::mt19937 random_;
};

TEST(HeadingImport, OfRandomTablesShowsWhatASecondReadingMakesOfThem) {
    const unsigned seed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(seed));
    Tables tables(seed);
    AddressRun run;
    run.Open();
    for (int round = 0; round < 150; ++round) {
        const bool personal = tables.Below(2) == 0;
        const std::vector<std::string> columns = tables.SomeColumns();
        std::string list;
        for (const std::string& column : columns) {
            list += (list.empty() ? "" : ",") + tables.Written(tables.AnyCase(column));
        }
        list += tables.LineEnd();
        std::vector<Row> rows(1 + tables.Below(4));
        const std::string end = tables.LineEnd();
        for (Row& row : rows) {
            const std::size_t given =
                2 + tables.Below(columns.size() - 1); // what is missing at the end is empty
            for (std::size_t at = 0; at < given; ++at) {
                const std::string value = tables.Value();
                row[columns[at]] = Trimmed(value);
                list += (at == 0 ? "" : ",") + tables.Written(value);
            }
            list += end;
        }
        SCOPED_TRACE(testing::PrintToString(list));
        run.surroundings.clipboard.Text = list;
        run.Run(personal ? Id::mnuFileOpenClientele : Id::mnuFileOpenBusiness);
        run.Questions().Expect("Continue?", Answer::Yes);
        run.Run(Id::mnuToolsImportBatch);
        run.Window().optList_Click(run.program, 3);
        run.Window().cmdOK_Click(run.program);
        for (const Row& row : rows) {
            for (const auto& [field, text] : Wanted(personal, columns, row)) {
                ASSERT_EQ(run.Text(field), text) << "field " << field;
            }
            if (&row == &rows.back()) {
                run.Questions().Expect("Batch Process Finished.");
            }
            run.Window().cmdSkipBatchRecord_Click(run.program);
        }
        run.Questions().Done();
    }
}

} // namespace
