#pragma once

#include "addresses/address_commands.h"
#include "addresses/address_record.h"
#include "addresses/frm_address.h"
#include "program/program.h"
#include "program/windows.h"
#include "support/running_program.h"

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

/// A program with its address window open.
struct AddressRun : RunningProgram {
    static constexpr std::string_view kPersonal = "PerAdd.apx";
    static constexpr std::string_view kBusiness = "ComAdd.acx";

    /// A record with a name and, where given, further fields in their order.
    [[nodiscard]] static std::string Record(std::initializer_list<std::string_view> values) {
        modAddress::AddressFields fields;
        std::size_t index = 0;
        for (const std::string_view value : values) {
            fields[index++] = value;
        }
        std::string record;
        constexpr std::array<std::size_t, 11> kWidths{40, 40, 40, 40, 20, 20, 20, 20, 40, 40, 200};
        for (std::size_t at = 0; at < kWidths.size(); ++at) {
            std::string padded = fields[at];
            padded.resize(kWidths[at], ' ');
            record += padded;
        }
        return record;
    }
    /// A book of records that have a name only.
    [[nodiscard]] static std::string Book(std::initializer_list<std::string_view> names) {
        std::string book;
        for (const std::string_view name : names) {
            book += Record({name});
        }
        return book;
    }

    /// Where the program keeps its books.
    [[nodiscard]] std::string DataName(std::string_view name) const {
        return program.folders.ProposalsFolder.substr(folder.Path().size()) + std::string(name);
    }
    void WriteBook(std::string_view name, std::string_view bytes) const {
        folder.Write(DataName(name), bytes);
    }
    [[nodiscard]] std::string ReadBook(std::string_view name = kPersonal) const {
        return folder.Read(DataName(name));
    }

    frmAddress& Open() {
        modAddress::mnuFileOpenAddressBook_Click(program);
        return Window();
    }
    frmAddress& OpenWith(std::string_view bytes) {
        WriteBook(kPersonal, bytes);
        return Open();
    }
    frmAddress& OpenBusinessWith(std::string_view bytes) {
        WriteBook(kBusiness, bytes);
        frmAddress& window = Open();
        window.Run(program, address_menu::Id::mnuFileOpenBusiness);
        return window;
    }
    [[nodiscard]] frmAddress& Window() {
        return dynamic_cast<frmAddress&>(*modWindows::Find(program, "frmAddress"));
    }
    [[nodiscard]] bool IsOpen() { return modWindows::Find(program, "frmAddress") != nullptr; }
    void Type(int field, std::string_view text) {
        Window().txt_Change(program, field, text, static_cast<int>(text.size()));
    }
    [[nodiscard]] std::vector<std::string> Rows() {
        std::vector<std::string> rows;
        for (const modAddress::AddressRow& row : Window().lstNames.Rows) {
            rows.push_back(row.Text);
        }
        return rows;
    }
    [[nodiscard]] const std::string& Text(int field) {
        return Window().txt[static_cast<std::size_t>(field)].Text;
    }
    [[nodiscard]] ScriptedQuestions& Questions() { return surroundings.questions; }
    void Run(address_menu::Id id) { Window().Run(program, id); }
};
