#include "addresses/address_commands.h"

#include "addresses/address_book.h"
#include "addresses/address_merge.h"
#include "addresses/ask.h"
#include "addresses/frm_address.h"
#include "program/program.h"
#include "program/windows.h"

#include <memory>

namespace modAddress {

namespace {

frmAddress* Open(Program& program) {
    return static_cast<frmAddress*>(modWindows::Find(program, "frmAddress"));
}

bool RefusedByCompanyInfo(Program& program) {
    if (Open(program) == nullptr || !program.addresses.CompanyInfoMode) {
        return false;
    }
    Tell(program, "The Company Information Window must be closed before you open the Address Book.");
    return true;
}

frmAddress& ShowWindow(Program& program) {
    return static_cast<frmAddress&>(modWindows::Show(program, std::make_unique<frmAddress>()));
}

void CopyTo(Program& program, AddressBook book) {
    if (RefusedByCompanyInfo(program)) {
        return;
    }
    frmAddress* window = Open(program);
    if (window == nullptr) {
        window = &ShowWindow(program);
    }
    modWindows::BringToFront(*window);
    // An import goes on with its own records first.
    if (window->picImport || program.addresses.Batch.BatchRunning ||
        OpenBook(program, *window, book) == Outcome::Stopped) {
        return;
    }
    if (NewAddressRecord(program, *window) == Outcome::Done) {
        FillFromProposal(program, *window);
    }
}

} // namespace

void mnuFileOpenAddressBook_Click(Program& program) {
    if (RefusedByCompanyInfo(program)) {
        return;
    }
    if (frmAddress* window = Open(program)) {
        modWindows::BringToFront(*window); // with its record and its book
        return;
    }
    frmAddress& window = ShowWindow(program);
    if (OpenBook(program, window, AddressBook::Personal) == Outcome::Done) {
        static_cast<void>(NewAddressRecord(program, window));
    }
}

void mnuEditCompInfo_Click(Program& program) {
    if (frmAddress* window = Open(program)) {
        if (!program.addresses.CompanyInfoMode) {
            Tell(program, "Address Book must be closed before you can edit Company Info.");
        } else {
            modWindows::BringToFront(*window);
        }
        return;
    }
    program.addresses.CompanyInfoMode = true;
    ShowWindow(program);
}

void mnuOptCopyToPersonalAddressBook_Click(Program& program) {
    CopyTo(program, AddressBook::Personal);
}

void mnuOptCopyToBusinessAddressBook_Click(Program& program) {
    CopyTo(program, AddressBook::Business);
}

} // namespace modAddress
