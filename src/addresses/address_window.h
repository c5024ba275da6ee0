#pragma once

#include "addresses/address_menu.h"
#include "addresses/address_rows.h"
#include "program/address_records.h"
#include "program/controls.h"
#include "program/window.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

/// A field of the address window. Its tag is its limit in characters.
struct AddressField {
    std::string Text;
    std::string Tag;
    std::string ToolTipText;
    Color BackColor = colors::kWhite;
    int SelStart = 0;
    int SelLength = 0;
    bool Enabled = true;
    bool Visible = true;
    bool operator==(const AddressField&) const = default;
};

/// The list of names. The front end reads the rows where they stand; it looks at them anew when `Filled` has
/// moved on.
struct NameList {
    std::vector<modAddress::AddressRow> Rows;
    int ListIndex = -1; ///< -1 is no selection
    unsigned Filled = 0;
    bool Enabled = true;
    bool Visible = true;
};

/// The controls of the address window, which is also the company information window and the place of the
/// import.
class AddressWindow : public Window {
public:
    static constexpr int kHeading = 11; ///< index of lblInfo above the list
    static constexpr int kListTypeCount = 4;

    NameList lstNames;
    std::array<AddressField, kAddressFieldCount> txt;
    std::array<StripLabel, kAddressFieldCount + 1> lblInfo;
    StripLabel lblMain;
    CommandButton cmdSave{.Caption = "Save", .ToolTipText = ""};
    CommandButton cmdExit{.Caption = "Exit without Saving", .ToolTipText = ""};
    address_menu::States Menu = address_menu::DesignStates();

    /// The import panel: what kind of list, which categories.
    bool picImport = false;
    std::array<StripLabel, kBatchCategoryCount> lblFormat;
    std::array<OptionButton, kListTypeCount> optList;
    std::array<std::string, kListTypeCount> optListTip;
    StripLabel framList{.Caption = "Select Type of List Below", .ToolTipText = ""};
    StripLabel lblCat{.Caption =
                          "Select/De-select categories below that apply. Selected categories appear as "
                          "cyan (blue) in color. \"Name\" is mandatory.",
                      .ToolTipText = ""};
    StripLabel lblSample{.Caption = "Sample List Type Shown Below", .ToolTipText = ""};
    TextBox txtSample;
    CommandButton cmdOK{.Caption = "Begin Batch Process Now", .ToolTipText = ""};
    CommandButton cmdRefresh{.Caption = "Refresh", .ToolTipText = ""};
    CommandButton cmdCancel{.Caption = "Cancel/Exit", .ToolTipText = ""};
    CommandButton cmdHelp{.Caption = "Need Help?", .ToolTipText = ""};
    ImageButton imgExit{.ToolTipText = "Click to Exit"};

    /// The run panel: one record after the other.
    bool picBatchProcess = false;
    StripLabel lblBatch; ///< how far the run has come
    CommandButton cmdSaveBatchRecord{.Caption = "Save This Record", .ToolTipText = ""};
    CommandButton cmdSkipBatchRecord{.Caption = "Skip This Record", .ToolTipText = ""};
    CommandButton cmdEndBatch{.Caption = "End Batch Process", .ToolTipText = ""};

    /// The field that is to have the keyboard; the front end takes it out when it has seen to it.
    std::optional<int> FocusWanted;

    [[nodiscard]] address_menu::State& operator[](address_menu::Id id) {
        return Menu[static_cast<std::size_t>(id)];
    }
    [[nodiscard]] const address_menu::State& operator[](address_menu::Id id) const {
        return Menu[static_cast<std::size_t>(id)];
    }
};
