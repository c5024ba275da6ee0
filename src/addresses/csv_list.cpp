#include "addresses/csv_list.h"

#include "base/text.h"

#include <algorithm>

namespace modCSV {

namespace {

enum Column : std::size_t {
    FirstName,
    LastName,
    MiddleName,
    Name,
    Nickname,
    Email,
    HomeStreet,
    HomeCity,
    HomePostalCode,
    HomeState,
    HomeCountry,
    HomePhone,
    HomeFax,
    MobilePhone,
    PersonalWebPage,
    BusinessStreet,
    BusinessCity,
    BusinessPostalCode,
    BusinessState,
    BusinessCountry,
    BusinessWebPage,
    BusinessPhone,
    BusinessFax,
    Pager,
    Company,
    JobTitle,
    Department,
    OfficeLocation,
    Notes
};

constexpr std::array<std::string_view, kCsvColumnCount> kNames{"First Name",
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
                                                               "Notes"};

std::string Unquoted(std::string_view field) {
    field = text::Trim(field);
    const bool enclosed = field.size() >= 2 && field.front() == '"' && field.back() == '"';
    if (!enclosed) {
        return std::string(field);
    }
    field = field.substr(1, field.size() - 2);
    std::string value;
    for (std::size_t at = 0; at < field.size(); ++at) {
        value += field[at];
        if (field.substr(at, 2) == "\"\"") {
            ++at;
        }
    }
    return std::string(text::Trim(value));
}

std::string CityLine(const std::string& city, const std::string& state, const std::string& postalCode) {
    const std::string behind =
        state.empty() || postalCode.empty() ? state + postalCode : state + " " + postalCode;
    return city.empty() || behind.empty() ? city + behind : city + ", " + behind;
}

std::string PersonName(const Columns& columns, const Row& row) {
    if (columns.CsvColumnPresent[FirstName] || columns.CsvColumnPresent[LastName]) {
        return std::string(text::Trim(row[FirstName] + " " + row[LastName]));
    }
    return row[Name];
}

} // namespace

std::span<const std::string_view, kCsvColumnCount> ColumnNames() {
    return kNames;
}

std::vector<std::string> CutRow(std::string_view row) {
    std::vector<std::string> fields;
    bool quoted = false;
    std::size_t begin = 0;
    for (std::size_t at = 0; at < row.size(); ++at) {
        if (row[at] == '"') {
            quoted = !quoted;
        } else if (row[at] == ',' && !quoted) {
            fields.push_back(Unquoted(row.substr(begin, at - begin)));
            begin = at + 1;
        }
    }
    fields.push_back(Unquoted(row.substr(begin)));
    return fields;
}

bool Columns::Any() const {
    return std::find(CsvColumnPresent.begin(), CsvColumnPresent.end(), true) != CsvColumnPresent.end();
}

Columns ReadHeading(std::string_view heading) {
    const std::vector<std::string> names = CutRow(heading);
    Columns columns;
    for (std::size_t column = 0; column < kNames.size(); ++column) {
        const auto found = std::find_if(names.begin(), names.end(), [column](const std::string& name) {
            return text::EqualNoCase(name, kNames[column]);
        });
        columns.CsvColumnPresent[column] = found != names.end();
        columns.CsvColumnAt[column] = static_cast<int>(found - names.begin());
    }
    return columns;
}

Row ArrangeRow(const Columns& columns, const std::vector<std::string>& fields) {
    Row row;
    for (std::size_t column = 0; column < row.size(); ++column) {
        const auto at = static_cast<std::size_t>(columns.CsvColumnAt[column]);
        if (columns.CsvColumnPresent[column] && at < fields.size()) {
            row[column] = fields[at];
        }
    }
    return row;
}

Categories CategoriesOf(AddressBook book, const Columns& columns, const Row& row) {
    if (book == AddressBook::Personal) {
        return {PersonName(columns, row),
                row[HomeStreet],
                "",
                CityLine(row[HomeCity], row[HomeState], row[HomePostalCode]),
                row[HomePhone],
                row[BusinessPhone],
                row[MobilePhone],
                "",
                row[Email]};
    }
    return {columns.CsvColumnPresent[Company] ? row[Company] : "No Company Name Given",
            row[BusinessStreet],
            "",
            CityLine(row[BusinessCity], row[BusinessState], row[BusinessPostalCode]),
            row[BusinessPhone],
            row[BusinessFax],
            row[MobilePhone],
            row[Name],
            row[Email]};
}

} // namespace modCSV
