#include "shell/command_table.h"

#include "program/program.h"
#include "shell/edit_menus.h"
#include "shell/file_menus.h"
#include "shell/help_menus.h"
#include "shell/tool_menus.h"

#include <array>
#include <cstddef>
#include <string>

namespace commands {

namespace {

/// Every entry in menu order.
constexpr auto kTable = [] {
    std::array<Entry, kCommandCount> table{};
    std::size_t next = 0;
    const auto add = [&](const auto& menus) {
        for (const Entry& entry : menus) {
            table.at(next++) = entry;
        }
    };
    add(menus::kFileMenus);
    add(menus::kEditMenus);
    add(menus::kToolMenus);
    add(menus::kHelpMenus);
    return table;
}();

constexpr bool EachAtItsOwnPlace() {
    for (std::size_t at = 0; at < kTable.size(); ++at) {
        if (kTable[at].Id != static_cast<CommandId>(at)) {
            return false;
        }
    }
    return true;
}
static_assert(EachAtItsOwnPlace(), "an entry is found by its id as an index");

} // namespace

std::span<const Entry> Table() {
    return kTable;
}

const Entry& Find(CommandId id) {
    return kTable[static_cast<std::size_t>(id)];
}

void LoadDesignState(Program& program) {
    for (const Entry& entry : kTable) {
        program.main[entry.Id] = {std::string(entry.Caption), entry.Enabled, entry.Visible, entry.Checked};
    }
}

bool IsAvailable(const Program& program, CommandId id) {
    return program.main[id].Enabled && !Find(id).Pending();
}

} // namespace commands
