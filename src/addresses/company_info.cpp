#include "addresses/company_info.h"

#include "addresses/address_fields.h"
#include "addresses/address_window.h"
#include "addresses/ask.h"
#include "pages/company_block.h"
#include "program/program.h"
#include "settings/settings.h"

#include <algorithm>
#include <array>
#include <string>

namespace modAddress {

namespace {

using modSettings::Key;

struct CompanyLine {
    int Field;
    Key Line;
    std::string SettingsRecords::*Value;
    std::string_view Caption;
};

constexpr std::array<CompanyLine, 8> kLines{
    {{0, Key::CompanyName, &SettingsRecords::CompanyName, "Company Name"},
     {1, Key::CompanyAddress1, &SettingsRecords::CompanyAddress1, "Address 1"},
     {2, Key::CompanyAddress2, &SettingsRecords::CompanyAddress2, "Address 2"},
     {3, Key::CompanyCityStateZip, &SettingsRecords::CompanyCityStateZip, "City, State Zip"},
     {4, Key::CompanyPhone, &SettingsRecords::CompanyPhone, "Phone"},
     {5, Key::CompanyFax, &SettingsRecords::CompanyFax, "Fax"},
     {6, Key::CompanyWebsite, &SettingsRecords::CompanyWebsite, "Website"},
     {9, Key::CompanyEmail, &SettingsRecords::CompanyEmail, "Email"}}};

/// A line of the settings holds one line of text.
std::string OneLine(std::string value) {
    std::replace_if(
        value.begin(), value.end(),
        [](char character) { return character == '\r' || character == '\n' || character == '\0'; }, ' ');
    return value;
}

} // namespace

void LoadCompanyInfo(Program& program, AddressWindow& window) {
    window.Caption = "Company Information";
    window.lstNames.Visible = false;
    for (std::size_t index = 0; index < window.txt.size(); ++index) {
        window.txt[index].Visible = false;
        window.lblInfo[index].Visible = false;
    }
    window.lblInfo[AddressWindow::kHeading].Visible = false;
    AddressFields texts;
    for (const CompanyLine& line : kLines) {
        const auto at = static_cast<std::size_t>(line.Field);
        window.txt[at].Visible = true;
        window.lblInfo[at].Visible = true;
        window.lblInfo[at].Caption = line.Caption;
        // The settings hold lines of any length.
        window.txt[at].Tag.clear();
        texts[at] = program.settings.*line.Value;
    }
    FillFields(program, window, texts);
    ForgetChanges(program, window);
    window.FocusWanted = kNameField;
}

Outcome SaveCompanyInfo(Program& program, AddressWindow& window) {
    SettingsRecords& settings = program.settings;
    const SettingsRecords before = settings;
    for (const CompanyLine& line : kLines) {
        const std::string value = OneLine(window.txt[static_cast<std::size_t>(line.Field)].Text);
        settings.*line.Value = value;
        modSettings::SetLine(program, line.Line, value);
    }
    if (!modSettings::SaveUserPreferences(program)) {
        settings = before;
        return Outcome::Stopped;
    }
    ForgetChanges(program, window);
    modPages::CompanyInfoChanged(program, before);
    return Outcome::Done;
}

Outcome MayLeaveCompanyInfo(Program& program, AddressWindow& window) {
    if (!program.addresses.AddressRecordChanged) {
        return Outcome::Done;
    }
    switch (program.platform.questions.MsgBox(
        "The current Record has been changed. Do you want to save the changes?", Buttons::YesNoCancel,
        "Record Has Changed",
        {.Default = Answer::Yes, .Lost = "The changes to this record will be lost unless they are saved."})) {
    case Answer::Yes:
        return SaveCompanyInfo(program, window);
    case Answer::No:
        return Outcome::Done;
    default:
        return Outcome::Stopped;
    }
}

} // namespace modAddress
