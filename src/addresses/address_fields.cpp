#include "addresses/address_fields.h"

#include "addresses/address_window.h"
#include "base/dates.h"
#include "base/guard.h"
#include "base/numbers.h"
#include "base/telephone.h"
#include "base/text.h"
#include "program/program.h"

#include <algorithm>

namespace modAddress {

namespace {

enum class Conversion { None, ProperCase, Telephone, Date };

Conversion ConversionOf(int field) {
    constexpr int kFirstPhone = 4;
    if (field < kFirstPhone) {
        return Conversion::ProperCase;
    }
    if (field < kDateField) {
        return Conversion::Telephone;
    }
    return field == kDateField ? Conversion::Date : Conversion::None;
}

std::size_t LimitOf(const AddressField& field) {
    return static_cast<std::size_t>(numbers::Val(field.Tag));
}

bool OverLimit(const AddressField& field) {
    return !field.Tag.empty() && field.Text.size() > LimitOf(field);
}

/// The front end writes the line ends of the notes in one way, whatever stood in the book.
bool SameText(std::string_view one, std::string_view other) {
    return one == other || (one.find_first_of("\r\n") != std::string_view::npos &&
                            text::SplitLines(one) == text::SplitLines(other));
}

void ColourField(AddressField& field, std::string_view tip, bool changed) {
    field.BackColor = changed ? colors::kFocused : colors::kWhite;
    field.ToolTipText = changed ? "Text in this field has been Changed" : tip;
    if (OverLimit(field)) {
        field.BackColor = colors::kOverLimit;
        field.ToolTipText = "Maximum characters for this field = " + field.Tag + ". Please adjust.";
    }
}

} // namespace

void SetUpFields(const Program& program, AddressWindow& window) {
    for (int index = 0; index < kAddressFieldCount; ++index) {
        AddressField& field = window.txt[static_cast<std::size_t>(index)];
        field.Tag = std::to_string(PlaceOf(index).Width);
        field.ToolTipText = ConversionTip(index);
    }
    window.lblInfo[AddressWindow::kHeading].Caption = "Click to Open Record";
    SetCaptions(program, window);
}

void SetCaptions(const Program& program, AddressWindow& window) {
    for (int index = 0; index < kAddressFieldCount; ++index) {
        window.lblInfo[static_cast<std::size_t>(index)].Caption = CaptionOf(program.addresses.Book, index);
    }
}

AddressFields TextsOf(const AddressWindow& window) {
    AddressFields texts;
    std::transform(window.txt.begin(), window.txt.end(), texts.begin(),
                   [](const AddressField& field) { return field.Text; });
    return texts;
}

void PutText(Program& program, AddressWindow& window, int field, std::string_view value) {
    AddressField& record = window.txt[static_cast<std::size_t>(field)];
    if (record.Text == value) {
        return;
    }
    record.Text = value;
    record.SelStart = 0;
    record.SelLength = 0;
    txt_Change(program, window, field);
}

void FillFields(Program& program, AddressWindow& window, const AddressFields& texts) {
    const ScopedFlag filling(program.addresses.FillingFields);
    for (int index = 0; index < kAddressFieldCount; ++index) {
        PutText(program, window, index, texts[static_cast<std::size_t>(index)]);
    }
}

void txt_Change(Program& program, AddressWindow& window, int field) {
    AddressRecords& book = program.addresses;
    if (book.FillingFields || book.ReadingRecord) {
        return;
    }
    const auto at = static_cast<std::size_t>(field);
    const std::string& now = window.txt[at].Text;
    book.AddressFieldChanged[at] = !SameText(now, book.UnchangedText[at]);
    if (!book.CompanyInfoMode && book.AddressFieldChanged[at] && book.AddressRecordNew) {
        // What was typed where no record stands must not be without a way to keep it.
        window.cmdSave.Enabled = true;
        window[address_menu::Id::mnuFileSave].Enabled = true;
    }
    CheckAddressField(program, window);
}

void CheckAddressField(Program& program, AddressWindow& window) {
    AddressRecords& book = program.addresses;
    const auto& changed = book.AddressFieldChanged;
    book.AddressRecordChanged = std::find(changed.begin(), changed.end(), true) != changed.end();
    book.AddressNameChanged = changed[kNameField];
    window.cmdSave.BackColor = book.AddressRecordChanged ? colors::kFocused : colors::kButtonFace;
    for (std::size_t index = 0; index < window.txt.size(); ++index) {
        AddressField& field = window.txt[index];
        if (!book.AddressRecordChanged) {
            book.UnchangedText[index] = field.Text;
        }
        const std::string_view tip =
            book.CompanyInfoMode ? std::string_view() : ConversionTip(static_cast<int>(index));
        ColourField(field, tip, changed[index]);
    }
}

void ForgetChanges(Program& program, AddressWindow& window) {
    program.addresses.AddressFieldChanged.fill(false);
    CheckAddressField(program, window);
}

std::vector<std::string> TooLong(const AddressWindow& window) {
    std::vector<std::string> captions;
    for (std::size_t index = 0; index < window.txt.size(); ++index) {
        if (OverLimit(window.txt[index])) {
            captions.push_back(window.lblInfo[index].Caption);
        }
    }
    return captions;
}

std::optional<int> NextField(const AddressWindow& window, int field, FieldKey key) {
    if (field == kNotesField) {
        return std::nullopt; // lines of its own
    }
    const int step = key == FieldKey::Up ? -1 : 1;
    for (int next = field + step; next >= 0 && next < kAddressFieldCount; next += step) {
        const AddressField& record = window.txt[static_cast<std::size_t>(next)];
        if (record.Visible && record.Enabled) {
            return next;
        }
    }
    return field;
}

std::optional<std::string> Converted(const Program& program, int field, std::string_view value) {
    std::optional<std::string> result;
    switch (ConversionOf(field)) {
    case Conversion::ProperCase:
        result = text::Proper(value);
        break;
    case Conversion::Telephone:
        result = telephone::Formatted(value);
        break;
    case Conversion::Date: {
        const int year = dates::ToCalendar(program.platform.clock.Now()).Year;
        const std::optional<double> serial = dates::Recognise(value, year);
        if (serial && (*serial >= 1 || *serial < 0)) { // a time alone names no day
            result = dates::FormatDate(*serial, "mmm dd,yyyy");
        }
        break;
    }
    case Conversion::None:
        break;
    }
    return result && *result != value ? result : std::nullopt;
}

std::string_view ConversionTip(int field) {
    switch (ConversionOf(field)) {
    case Conversion::ProperCase:
        return "Double-click to change format: i.e., john doe becomes John Doe";
    case Conversion::Telephone:
        return "Double-click to change format: i.e., 1234567890 becomes (123) 456-7890";
    case Conversion::Date:
        return "Double-click to change format: i.e., 12/17/08 becomes Dec 17, 2008";
    case Conversion::None:
        break;
    }
    return {};
}

} // namespace modAddress
