#include "addresses/address_merge.h"

#include "addresses/address_fields.h"
#include "addresses/address_record.h"
#include "addresses/address_window.h"
#include "addresses/ask.h"
#include "base/paths.h"
#include "base/text.h"
#include "editing/area_colours.h"
#include "editing/selection.h"
#include "pages/fields.h"
#include "program/data_folders.h"
#include "program/errors.h"
#include "program/program.h"
#include "proposal/file_names.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>
#include <vector>

namespace modAddress {

namespace {

constexpr int kDateArea = 0, kNameArea = 2;

struct AreaText {
    int Area;
    std::string Text;
};

FieldRef Client(int area) {
    return {PageId::frmP1, FieldKind::txt, area};
}

/// For the printed record; a name may hold what no file's name can.
std::string SuggestedFile(const Program& program, const AddressWindow& window) {
    std::string name(text::Trim(window.txt[kNameField].Text));
    std::ranges::replace_if(
        name,
        [](char letter) {
            return modNames::HasIllegalCharacter({&letter, 1});
        },
        '-');
    return paths::Join(modFolders::DataFolder(program),
                       name.empty() ? "Address.pdf" : name + ", Address.pdf");
}

std::string AreaOf(const Program& program, int area) {
    return modFields::Area(program, Client(area)).Text;
}

/// The pages take no change while they are drawn or shown as they print.
bool PagesBusy(const Program& program) {
    if (program.printing.CommandRunning) {
        return true;
    }
    if (program.main.cmdPreview.Caption == "Resume Editing") {
        Tell(program, "Please click \"Resume Editing\" first.");
        return true;
    }
    return false;
}

void Write(Program& program, const AreaText& value) {
    const FieldRef field = Client(value.Area);
    program.editing.LastKeyChar.clear(); // a stale key must not move the text on into another row
    modFields::SetText(program, field, value.Text);
    modAreaColours::ColourAfterCommand(program, field);
}

Consent AskToReplace(const Program& program, const std::vector<AreaText>& values) {
    std::string words = "Replace what stands on page 1?";
    bool replaces = false;
    for (const AreaText& value : values) {
        const std::string now = AreaOf(program, value.Area);
        if (!text::Trim(now).empty() && now != value.Text) {
            words += text::kCrLf;
            words += now;
            replaces = true;
        }
    }
    return replaces ? AskOrNo(program, words, "") : Consent::Given;
}

Merged Merge(Program& program, const AddressWindow& window, const std::vector<AreaText>& values) {
    if (text::Trim(window.txt[kNameField].Text).empty()) {
        Tell(program, "No Record Selected");
        return Merged::No;
    }
    if (PagesBusy(program)) {
        return Merged::No;
    }
    modBlocks::FinishMove(program);
    modBlocks::DeSelectAllControls(program);
    if (AskToReplace(program, values) == Consent::Refused) {
        return Merged::No;
    }
    for (const AreaText& value : values) {
        Write(program, value);
    }
    return Merged::Yes;
}

void MergeDate(Program& program, const std::string& date) {
    const std::string now = AreaOf(program, kDateArea);
    if (text::Trim(date).empty() || date == now) {
        return;
    }
    if (!now.empty() && AskOrNo(program, "Overwrite Event Date with this one?",
                                "Event Date Already Exists") == Consent::Refused) {
        return;
    }
    Write(program, {kDateArea, date});
}

/// A proposal that has a file keeps it, also when it becomes another client's. As a person types that, they
/// see the name above the page stay; here they look at another window.
void TellThatTheFileKeepsItsName(Program& program, const std::string& before) {
    const DocumentState& document = program.document;
    const std::string now = AreaOf(program, kNameArea);
    if (document.FileExists && now != before) {
        program.main.Notice = "The client is now " + now + "; the file is still " + document.FileName +
                              ". Save As gives the proposal another.";
    }
}

} // namespace

Merged MergeClient(Program& program, AddressWindow& window) {
    const AddressFields fields = TextsOf(window);
    const bool business = program.addresses.Book == AddressBook::Business;
    const std::string street = fields[2].empty() ? fields[1] : fields[1] + " - " + fields[2];
    // A company's first telephone stands where a person's second one does.
    const std::vector<AreaText> values{{kNameArea, fields[0]},
                                       {3, street},
                                       {4, fields[3]},
                                       {5, business ? std::string() : fields[4]},
                                       {6, business ? fields[4] : fields[5]},
                                       {7, fields[6]}};
    const std::string before = AreaOf(program, kNameArea);
    if (Merge(program, window, values) == Merged::No) {
        return Merged::No;
    }
    MergeDate(program, fields[kDateField]);
    TellThatTheFileKeepsItsName(program, before);
    return Merged::Yes;
}

Merged MergeVenue(Program& program, AddressWindow& window) {
    return Merge(program, window, {{8, window.txt[0].Text}, {9, window.txt[1].Text}});
}

void FillFromProposal(Program& program, AddressWindow& window) {
    constexpr std::array<std::pair<int, int>, 7> kFrom{
        {{0, 2}, {1, 3}, {3, 4}, {4, 5}, {5, 6}, {6, 7}, {kDateField, kDateArea}}};
    PutText(program, window, 2, "");
    for (const auto& [field, area] : kFrom) {
        PutText(program, window, field, AreaOf(program, area));
    }
}

void CopyRecord(const Program& program, const AddressWindow& window, CopyWhat what) {
    constexpr std::size_t kNameAndAddress = 4;
    const std::size_t count = what == CopyWhat::All ? window.txt.size() : kNameAndAddress;
    std::string lines;
    for (std::size_t index = 0; index < count; ++index) {
        lines += index == 0 ? "" : text::kCrLf;
        lines += window.txt[index].Text;
    }
    program.platform.clipboard.SetText(lines);
}

void PrintRecord(const Program& program, const AddressWindow& window) {
    constexpr float kLeft = 720;
    constexpr float kTop = 720;
    constexpr float kTextLeft = 2700;
    constexpr float kStep = 300;
    Printers& printers = program.platform.printers;
    if (printers.Current().empty() || program.run.NoPrinter) {
        Tell(program, "Could not find Printer.");
        return;
    }
    if (program.printing.CommandRunning) {
        return;
    }
    if (!printers.BeginCommand({SuggestedFile(program, window)})) {
        return;
    }
    Guarded(program, "mnuFilePrint", [&] {
        printers.NameDocument("frmAddress", 0);
        Printer& paper = printers.Device();
        float top = kTop;
        const auto line = [&](std::string_view left, std::string_view right) {
            paper.CurrentX = kLeft;
            paper.CurrentY = top;
            paper.Print(left);
            float lineTop = top;
            // The notes are one text with line ends of their own.
            for (const std::string& part : text::SplitLines(right)) {
                paper.CurrentX = kTextLeft;
                paper.CurrentY = lineTop;
                paper.Print(part);
                lineTop = paper.CurrentY;
            }
            top += kStep;
        };
        line("Printing From:", NamesOf(program.addresses.Book).OnPaper);
        for (int index = 0; index < kAddressFieldCount; ++index) {
            const auto at = static_cast<std::size_t>(index);
            const std::string& caption = window.lblInfo[at].Caption;
            line((caption == "Name (First Name First)" ? "Name" : caption) + ":", window.txt[at].Text);
        }
        paper.EndDoc();
    });
    Guarded(program, "mnuFilePrint", [&] { printers.EndCommand(); });
}

} // namespace modAddress
