#pragma once

#include <array>
#include <span>
#include <string_view>

/// The menus of the address window.
namespace address_menu {

enum class Id {
    mnuFile,
    mnuFileOpen,
    mnuFileOpenClientele,
    mnuFileOpenBusiness,
    mnuFileNew,
    mnuFileDelete,
    mnuFileSave,
    mnuFilePrint,
    mnuEdit,
    mnuEditFind,
    mnuEditFindAgain,
    mnuOptions,
    mnuOptMerge,
    mnuOptMergeExit,
    mnuOptMergeGroom,
    mnuOptMergeGroomExit,
    mnuOptMergeCeremony,
    mnuOptMergeReception,
    mnuOptCopyNameAddress,
    mnuOptCopyAll,
    mnuTools,
    mnuToolsImportBatch,
    Count
};

inline constexpr std::size_t kCount = static_cast<std::size_t>(Id::Count);

struct Entry {
    Id What;
    std::string_view Name;
    std::string_view Caption;
    std::string_view Shortcut; ///< "Ctrl+N", empty for none
    Id Parent;                 ///< Id::Count for a menu of the bar
    bool Visible = true;
    bool Enabled = true;
    bool Menu = false;
};

/// Every entry in menu order.
[[nodiscard]] std::span<const Entry> Table();
[[nodiscard]] const Entry& Find(Id id);

/// The changing side of an entry.
struct State {
    bool Enabled = true;
    bool Visible = true;
    bool operator==(const State&) const = default;
};
using States = std::array<State, kCount>;
[[nodiscard]] States DesignStates();

} // namespace address_menu
