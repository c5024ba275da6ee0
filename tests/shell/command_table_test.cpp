#include "shell/command_table.h"

#include "base/text.h"
#include "program/program.h"
#include "shell/menu_captions.h"
#include "support/running_program.h"

#include <gtest/gtest.h>

#include <sstream>

namespace {

std::vector<std::vector<std::string>> Rows() {
    std::vector<std::vector<std::string>> rows;
    std::istringstream lines(ReadTestData("commands/commands.csv"));
    for (std::string line; std::getline(lines, line);) {
        std::vector<std::string> row(1);
        for (const char character : line) {
            if (character == '|') {
                row.emplace_back();
            } else {
                row.back() += character;
            }
        }
        rows.push_back(std::move(row));
    }
    return rows;
}

TEST(CommandTable, HoldsEveryEntryInMenuOrder) {
    const auto rows = Rows();
    const auto table = commands::Table();
    ASSERT_EQ(rows.size(), table.size());
    for (std::size_t at = 0; at < rows.size(); ++at) {
        const commands::Entry& entry = table[at];
        const auto& row = rows[at];
        ASSERT_EQ(row.size(), 7U) << row[0];
        EXPECT_EQ(static_cast<std::size_t>(entry.Id), at);
        EXPECT_EQ(entry.Name, row[0]);
        EXPECT_EQ(entry.Caption, row[1]) << row[0];
        EXPECT_EQ(entry.Shortcut, row[2]) << row[0];
        const std::string_view parent =
            entry.Parent == CommandId::Count ? std::string_view() : commands::Find(entry.Parent).Name;
        EXPECT_EQ(parent, row[3]) << row[0];
        EXPECT_EQ(entry.Visible, row[4] == "1") << row[0];
        EXPECT_EQ(entry.Enabled, row[5] == "1") << row[0];
        EXPECT_EQ(entry.Checked, row[6] == "1") << row[0];
        EXPECT_EQ(entry.What == commands::Kind::Separator, row[1] == "-") << row[0];
    }
}

TEST(CommandTable, EntriesWithEntriesBelowThemAreMenus) {
    for (const commands::Entry& entry : commands::Table()) {
        if (entry.Parent != CommandId::Count) {
            EXPECT_EQ(commands::Find(entry.Parent).What, commands::Kind::Menu) << entry.Name;
        } else {
            EXPECT_EQ(entry.What, commands::Kind::Menu) << entry.Name;
        }
    }
}

TEST(CommandTable, NoShortcutIsGivenTwice) {
    std::set<std::string_view> seen;
    for (const commands::Entry& entry : commands::Table()) {
        if (!entry.Shortcut.empty()) {
            EXPECT_TRUE(seen.insert(entry.Shortcut).second) << entry.Name;
        }
    }
}

TEST(CommandTable, TogglesAreTheSixThatShowACheckMark) {
    std::set<std::string_view> checkable;
    for (const commands::Entry& entry : commands::Table()) {
        if (entry.Checkable) {
            checkable.insert(entry.Name);
        }
    }
    EXPECT_EQ(checkable, (std::set<std::string_view>{
                             "mnuEditLabelMode", "mnuEditLogoBorder", "mnuEditLogoVisible",
                             "mnuOptEnableOverwriteFmtTextBoxes", "mnuOptHideTotals", "mnuOptUnderline"}));
}

TEST(CommandStates, AtTheStartSomeEntriesWait) {
    RunningProgram run;
    for (const CommandId id :
         {CommandId::mnuOptCopyToBusinessAddressBook, CommandId::mnuOptCopyToPersonalAddressBook,
          CommandId::mnuAdminConvert, CommandId::mnuAdminPrintAll, CommandId::mnuAdminRecalc,
          CommandId::mnuEditTextDeselect, CommandId::mnuEditTextMoveDown, CommandId::mnuEditTextMoveUp,
          CommandId::mnuEditTextPaste, CommandId::mnuEditTextUndo, CommandId::mnuFileRestoreFromBackup,
          CommandId::mnuFileDelete, CommandId::mnuFileResume}) {
        EXPECT_FALSE(run.program.main[id].Enabled) << commands::Find(id).Name;
    }
    EXPECT_TRUE(run.program.main[CommandId::mnuOptEnableOverwriteFmtTextBoxes].Checked);
    EXPECT_TRUE(run.program.format.OverwriteFormatText);
    EXPECT_TRUE(run.program.main[CommandId::mnuFilePrintPreview].Enabled);
}

TEST(CommandStates, AnEntryWhoseRoomIsNotBuiltIsNeverAvailable) {
    RunningProgram run;
    for (const commands::Entry& entry : commands::Table()) {
        if (entry.Pending()) {
            run.program.main[entry.Id].Enabled = true;
            EXPECT_FALSE(commands::IsAvailable(run.program, entry.Id)) << entry.Name;
        }
    }
}

TEST(TopMenus, TakeTheirOwnLetterUnlessOneBeforeHasIt) {
    std::string taken = "fe"; // File and Edit choose first
    for (const commands::Entry& entry : commands::Table()) {
        if (entry.Parent != CommandId::Count || entry.What != commands::Kind::Menu) {
            continue;
        }
        const std::string caption = commands::TopMenuCaption(entry.Id);
        const std::size_t mark = caption.find('&');
        ASSERT_NE(mark, std::string::npos) << caption;
        const char letter = text::Lower(caption.substr(mark + 1, 1)).front();
        const bool first = entry.Id == CommandId::mnuFile || entry.Id == CommandId::mnuEdit;
        EXPECT_EQ(taken.find(letter) != std::string::npos, first) << caption;
        const std::size_t own = entry.Caption.find('&');
        const char wanted =
            own == std::string_view::npos ? '\0' : text::Lower(entry.Caption.substr(own + 1, 1)).front();
        if (wanted != '\0' && taken.find(wanted) == std::string::npos) {
            EXPECT_EQ(letter, wanted) << caption;
        }
        taken += letter;
    }
}

} // namespace
