#pragma once

#include "base/colors.h"
#include "program/window.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// Parts of the larger small windows: a menu of their own, lists in which many rows can be selected, boxes
/// that can turn red, texts of many lines.

/// An entry of a window's menu bar. An entry without a parent is a menu.
struct MenuEntry {
    std::string_view Name;
    std::string_view Parent;
    std::string Caption;
    std::string_view Shortcut;
    bool Enabled = true;
    bool Visible = true;
    bool operator==(const MenuEntry&) const = default;
};

/// A window with a menu bar.
class MenuWindow : public Window {
public:
    std::vector<MenuEntry> Menu;

    /// The entry of that name, which is in the table.
    [[nodiscard]] MenuEntry& Entry(std::string_view name) {
        return *std::find_if(Menu.begin(), Menu.end(),
                             [&](const MenuEntry& entry) { return entry.Name == name; });
    }
    /// A person chose the entry: runs its handler, if it is enabled.
    void Choose(Program& program, std::string_view name) {
        if (Entry(name).Enabled) {
            Run(program, name);
        }
    }

protected:
    virtual void Run(Program& program, std::string_view name) = 0;
};

/// A list in which any number of rows can be selected; `ListIndex` is the current row, -1 for none.
struct SelectList {
    std::vector<std::string> Items;
    std::vector<bool> Selected; ///< as long as `Items`
    int ListIndex = -1;
    bool Enabled = true;

    [[nodiscard]] int SelCount() const {
        return static_cast<int>(std::count(Selected.begin(), Selected.end(), true));
    }
    /// The first selected row, -1 for none.
    [[nodiscard]] int FirstSelected() const {
        const auto found = std::find(Selected.begin(), Selected.end(), true);
        return found == Selected.end() ? -1 : static_cast<int>(found - Selected.begin());
    }
    void Add(std::string row) {
        Items.push_back(std::move(row));
        Selected.push_back(false);
    }
    void Clear() {
        Items.clear();
        Selected.clear();
        ListIndex = -1;
    }
    bool operator==(const SelectList&) const = default;
};

/// A line to be typed into, which turns red and says why when it is at fault.
struct EntryBox {
    std::string Text;
    int SelStart = 0;
    int SelLength = 0;
    Color BackColor = colors::kWhite;
    std::string ToolTipText;
    bool Enabled = true;

    void SelectAll() {
        SelStart = 0;
        SelLength = static_cast<int>(Text.size());
    }
    bool operator==(const EntryBox&) const = default;
};
