#pragma once

#include "base/colors.h"

#include <string>
#include <vector>

/// The controls of the small windows and of the main window's strips, as plain records. The front end shows
/// them and never holds anything about them that is not here.

struct StripLabel {
    std::string Caption;
    std::string ToolTipText;
    Color BackColor = colors::kButtonFace;
    Color ForeColor = colors::kBlack;
    bool Visible = true;
    bool operator==(const StripLabel&) const = default;
};

struct CommandButton {
    std::string Caption;
    std::string ToolTipText;
    Color BackColor = colors::kButtonFace;
    bool Enabled = true;
    bool Visible = true;
    bool operator==(const CommandButton&) const = default;
};

enum class MousePointer { Arrow, Hand };

/// An image button has up to two pictures; `Picture` is the index of the one that shows.
struct ImageButton {
    std::string ToolTipText;
    int Picture = 0;
    MousePointer Pointer = MousePointer::Arrow;
    bool Enabled = true;
    bool Visible = true;
    /// Place in its strip, twips; the front end keeps it true.
    float Left = 0;
    float Top = 0;
    float Width = 0;
    float Height = 0;
    bool operator==(const ImageButton&) const = default;
};

struct TextBox {
    std::string Text;
    int SelStart = 0;
    int SelLength = 0;
    bool Enabled = true;
    bool Visible = true;
    bool operator==(const TextBox&) const = default;
};

struct CheckBox {
    std::string Caption;
    bool Value = false;
    bool Enabled = true;
    bool Visible = true;
    bool operator==(const CheckBox&) const = default;
};

struct OptionButton {
    std::string Caption;
    bool Value = false;
    bool operator==(const OptionButton&) const = default;
};

/// A list or combo box; `ListIndex` -1 is no selection.
struct ListBox {
    std::vector<std::string> Items;
    int ListIndex = -1;
    std::string Placeholder; ///< what a combo box shows while nothing is selected
    bool Enabled = true;
    bool Visible = true;
    bool operator==(const ListBox&) const = default;
};
