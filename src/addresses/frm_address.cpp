#include "addresses/frm_address.h"

#include "addresses/address_book.h"
#include "addresses/address_fields.h"
#include "addresses/address_merge.h"
#include "addresses/address_record.h"
#include "addresses/address_search.h"
#include "addresses/ask.h"
#include "addresses/batch_import.h"
#include "addresses/company_info.h"
#include "program/program.h"
#include "program/windows.h"
#include "proposal/rescued.h"

#include <algorithm>
#include <array>

using address_menu::Id;

namespace {

/// What would take the record of a running import off the window.
constexpr std::array kNotWhileImporting{
    Id::mnuFileOpenClientele, Id::mnuFileOpenBusiness, Id::mnuFileNew,  Id::mnuFileDelete,
    Id::mnuEditFind,          Id::mnuEditFindAgain,    Id::mnuOptMerge, Id::mnuOptMergeExit,
    Id::mnuOptMergeCeremony,  Id::mnuToolsImportBatch};

/// The other book opens with a record of its own to be typed; none of the first one stays in the fields.
void OpenOther(Program& program, AddressWindow& window, AddressBook book) {
    if (modAddress::OpenBook(program, window, book) == modAddress::Outcome::Done) {
        static_cast<void>(modAddress::NewAddressRecord(program, window));
    }
}

} // namespace

void frmAddress::Form_Load(Program& program) {
    const bool company = program.addresses.CompanyInfoMode;
    program.addresses = {};
    program.addresses.CompanyInfoMode = company;
    Caption = "Address Book";
    modAddress::SetUpFields(program, *this);
    if (company) {
        modAddress::LoadCompanyInfo(program, *this);
    }
}

void frmAddress::Form_Unload(Program& program) {
    program.addresses = {};
}

void frmAddress::Form_Cancel(Program& program) {
    if (MayLeave(program, Leaving::Run) && !Closing) {
        modWindows::Close(program, *this);
    }
}

void frmAddress::Escape_Pressed(Program& program) {
    if (picImport) {
        cmdCancel_Click(program);
    } else if (!program.addresses.Batch.BatchRunning) {
        Form_Cancel(program);
    }
}

bool frmAddress::MayLeave(Program& program, Leaving) {
    return program.addresses.CompanyInfoMode
               ? modAddress::MayLeaveCompanyInfo(program, *this) == modAddress::Outcome::Done
               : modAddress::MayReplaceFields(program, *this) == modAddress::Outcome::Done;
}

void frmAddress::KeepUnsaved(Program& program) {
    if (!program.addresses.AddressRecordChanged) {
        return;
    }
    std::string lines;
    for (std::size_t index = 0; index < txt.size(); ++index) {
        if (txt[index].Visible) {
            lines += lblInfo[index].Caption + ": " + txt[index].Text + "\r\n";
        }
    }
    modRescue::Keep(program, "Unsaved Address.txt", lines);
}

bool frmAddress::IsAvailable(const Program& program, Id id) const {
    if (program.addresses.CompanyInfoMode && id != Id::mnuFile && id != Id::mnuFileSave) {
        return false;
    }
    if (program.addresses.Batch.BatchRunning &&
        std::find(kNotWhileImporting.begin(), kNotWhileImporting.end(), id) != kNotWhileImporting.end()) {
        return false;
    }
    for (; id != Id::Count; id = address_menu::Find(id).Parent) {
        if (!(*this)[id].Enabled || !(*this)[id].Visible) {
            return false;
        }
    }
    return true;
}

void frmAddress::Run(Program& program, Id id) {
    if (!IsAvailable(program, id)) {
        return;
    }
    switch (id) {
    case Id::mnuFileOpenClientele:
        OpenOther(program, *this, AddressBook::Personal);
        break;
    case Id::mnuFileOpenBusiness:
        OpenOther(program, *this, AddressBook::Business);
        break;
    case Id::mnuFileNew:
        static_cast<void>(modAddress::NewAddressRecord(program, *this));
        break;
    case Id::mnuFileDelete:
        if (lstNames.ListIndex < 0) {
            modAddress::Tell(program, "No Record Selected");
        } else {
            modAddress::DeleteAddressRecord(program, *this);
        }
        break;
    case Id::mnuFileSave:
        cmdSave_Click(program);
        break;
    case Id::mnuFilePrint:
        modAddress::PrintRecord(program, *this);
        break;
    case Id::mnuEditFind:
        modAddress::FindInAddressBook(program, *this, modAddress::Search::New);
        break;
    case Id::mnuEditFindAgain:
        modAddress::FindInAddressBook(program, *this, modAddress::Search::Again);
        break;
    case Id::mnuOptMerge:
        static_cast<void>(modAddress::MergeClient(program, *this)); // what came of it has been told
        break;
    case Id::mnuOptMergeExit:
        if (modAddress::MergeClient(program, *this) == modAddress::Merged::Yes) {
            Form_Cancel(program);
        }
        break;
    case Id::mnuOptMergeCeremony:
        static_cast<void>(modAddress::MergeVenue(program, *this)); // what came of it has been told
        break;
    case Id::mnuOptCopyNameAddress:
        modAddress::CopyRecord(program, *this, modAddress::CopyWhat::NameAndAddress);
        break;
    case Id::mnuOptCopyAll:
        modAddress::CopyRecord(program, *this, modAddress::CopyWhat::All);
        break;
    case Id::mnuToolsImportBatch:
        modAddress::mnuToolsImportBatch_Click(program, *this);
        break;
    default:
        break; // menus, and the entries that stay hidden
    }
}

void frmAddress::lstNames_Click(Program& program, int row) {
    if (lstNames.Enabled) {
        modAddress::SelectRow(program, *this, row);
    }
}

void frmAddress::lstNames_Typed(Program& program, std::string_view typed) {
    const int row = modAddress::RowBeginningWith(lstNames.Rows, typed);
    if (row >= 0 && row != lstNames.ListIndex) {
        lstNames_Click(program, row);
    }
}

void frmAddress::txt_Change(Program& program, int index, std::string_view text, int selStart) {
    AddressField& field = txt[static_cast<std::size_t>(index)];
    const bool differs = field.Text != text;
    field.Text = text;
    field.SelStart = std::clamp(selStart, 0, static_cast<int>(text.size()));
    field.SelLength = 0;
    if (differs) {
        modAddress::txt_Change(program, *this, index);
    }
}

void frmAddress::txt_GotFocus(Program& program, int index) {
    program.addresses.LastFocusField = index;
}

void frmAddress::txt_KeyUp(Program& program, int index, int selStart) {
    txt[static_cast<std::size_t>(index)].SelStart = selStart;
    program.addresses.LastFocusStart = selStart;
}

bool frmAddress::Converts(const Program& program, int index) const {
    return !program.addresses.CompanyInfoMode && !modAddress::ConversionTip(index).empty();
}

void frmAddress::txt_DblClick(Program& program, int index) {
    AddressField& field = txt[static_cast<std::size_t>(index)];
    if (!Converts(program, index) || !field.Enabled) {
        return;
    }
    if (const std::optional<std::string> value = modAddress::Converted(program, index, field.Text)) {
        modAddress::PutText(program, *this, index, *value);
        field.SelStart = static_cast<int>(field.Text.size());
    }
}

void frmAddress::cmdSave_Click(Program& program) {
    if (!cmdSave.Enabled) {
        return;
    }
    if (program.addresses.CompanyInfoMode) {
        if (modAddress::SaveCompanyInfo(program, *this) == modAddress::Outcome::Done) {
            modWindows::Close(program, *this);
        }
    } else if (program.addresses.Batch.BatchRunning) {
        modAddress::SaveBatchRecord(program, *this);
    } else {
        static_cast<void>(modAddress::SaveAddressRecord(program, *this)); // what came of it has been told
    }
}

void frmAddress::cmdExit_Click(Program& program) {
    if (cmdExit.Enabled) {
        modWindows::Close(program, *this);
    }
}

void frmAddress::lblFormat_Click(Program& program, int index) {
    modAddress::lblFormat_Click(program, *this, index);
}

void frmAddress::optList_Click(Program& program, int index) {
    modAddress::optList_Click(program, *this, index);
}

void frmAddress::cmdOK_Click(Program& program) {
    modAddress::BeginBatch(program, *this);
}

void frmAddress::cmdRefresh_Click(Program& program) {
    modAddress::RefreshFormatListTypes(program, *this);
}

void frmAddress::cmdCancel_Click(Program& program) {
    modAddress::CancelImport(program, *this);
}

void frmAddress::imgExit_Click(Program& program) {
    modAddress::CancelImport(program, *this);
}

void frmAddress::cmdHelp_Click(Program& program) {
    modAddress::ShowBatchHelp(program);
}

void frmAddress::cmdSaveBatchRecord_Click(Program& program) {
    modAddress::SaveBatchRecord(program, *this);
}

void frmAddress::cmdSkipBatchRecord_Click(Program& program) {
    modAddress::SkipBatchRecord(program, *this);
}

void frmAddress::cmdEndBatch_Click(Program& program) {
    modAddress::EndBatch(program, *this);
}
