#pragma once

#include "program/command_ids.h"
#include "program/controls.h"
#include "program/page_records.h"

#include <array>
#include <optional>
#include <string>

/// The changing side of a menu entry; caption and place at design stand in the command table.
struct CommandState {
    std::string Caption;
    bool Enabled = true;
    bool Visible = true;
    bool Checked = false;
    bool operator==(const CommandState&) const = default;
};

/// A scroll bar in twips of the page.
struct ScrollBarRecord {
    float Left = 0;
    float Top = 0;
    float Width = 255;
    float Height = 0;
    int Value = 0;
    int Min = 0;
    int Max = 0;
    int SmallChange = 1;
    int LargeChange = 1;
    bool operator==(const ScrollBarRecord&) const = default;
};

/// One of the four lines of a tool button's frame.
struct FrameLine {
    float X1 = 0;
    float Y1 = 0;
    float X2 = 0;
    float Y2 = 0;
    bool Visible = false;
    bool operator==(const FrameLine&) const = default;
};

enum class WindowState { Normal, Minimised, Maximised };

/// frmMain: its controls and what the run knows of it. Its handlers are in class frmMain.
struct MainWindow {
    std::string Caption = "Quillbrook";
    WindowState State = WindowState::Maximised;
    bool Loaded = false;
    bool Closing = false;
    /// Place and size of the whole window on the screen, twips; the front end keeps them true.
    float Left = 0;
    float Top = 0;
    float Width = 0;
    float Height = 0;
    float ClientWidth = 0;  ///< of the page area, twips; the front end keeps it true
    float ClientHeight = 0; ///< of the page area, twips; the front end keeps it true

    int CurrentPage = 0;                    ///< page in front, 0 to 5; the client's copy never enters it
    PageId ActivePage = PageId::frmP1;      ///< what block and search commands act on
    PageId ActivePageTyped = PageId::frmP1; ///< follows the client's copy too
    std::string ActivePageName = "frmP1";
    int LastTextIndex = 29;
    int LastLabelIndex = 33;
    PageId PageInFront = PageId::frmP1; ///< what the person sees, the client's copy included
    bool ScrollChangeSuppressed = false;
    bool ToolButtonPressed = false;
    bool Busy = false;     ///< the pointer says that something takes its time
    bool Resizing = false; ///< events run within a resize
    float WindowHeightRatio = 0;
    int ScrollClientHeight = 0;
    std::string AdminPassword;    ///< nothing assigns it
    bool ConversionAsked = false; ///< of the final page's texts; nothing reads it

    /// The field that has the keyboard; none when it is elsewhere in the main window.
    std::optional<FieldRef> Focus;
    /// A floating window has handed the keyboard back to the page; the front end gives it and clears this.
    bool BringUp = false;

    CommandButton cmdClearMem{.Caption = "Clear Selected", .ToolTipText = "Shortcut = CTRL + D"};
    CommandButton cmdPreview{
        .Caption = "Print Preview", .ToolTipText = "Shortcut = CTRL + R", .Enabled = false};
    CommandButton cmdReCalc{.Caption = "Recalculate", .ToolTipText = "Shortcut = F11", .Enabled = false};
    CommandButton cmdTaxRate{.Caption = "Sales Tax Rate", .ToolTipText = "", .Enabled = false};
    ImageButton imgNew{.ToolTipText = "Create New File"};
    ImageButton imgOpen{.ToolTipText = "Open existing file"};
    ImageButton imgSave{.ToolTipText = "Save Current File"};
    ImageButton imgSaveAs{.ToolTipText = "Save File as..."};
    ImageButton imgPrint{.ToolTipText = "Print All Pages"};
    ImageButton imgSearch{.ToolTipText = "Search for..."};
    ImageButton imgSpellCheck{.ToolTipText = "Check Spelling"};
    ImageButton imgFootNotes{.ToolTipText = "Show Footnotes"};
    ImageButton imgTime;
    StripLabel lblPage{.Caption = "PAGE", .ToolTipText = ""};
    std::array<ImageButton, kPageCount> imgPage; ///< Picture 1 is the selected look
    /// Index 0 the raised frame of a hovered tool button, 1 the sunken one of a pressed one.
    std::array<FrameLine, 2> lneLeft;
    std::array<FrameLine, 2> lneRight;
    std::array<FrameLine, 2> lneTop;
    std::array<FrameLine, 2> lneBottom;

    float picInfoWidth = 0; ///< of the information strip, twips
    StripLabel lblDir{.Caption = "Loading Fonts...", .ToolTipText = ""};
    StripLabel lblEvent{.Caption = "Proposal for:", .ToolTipText = ""};
    StripLabel lblTextPos{.Caption = "Text Position =", .ToolTipText = ""};
    StripLabel lblHighestPage{.Caption = "Highest Page", .ToolTipText = ""};
    StripLabel lblCurPos{.Caption = "Cursor Location =", .ToolTipText = ""};
    StripLabel lblTextNum{.Caption = "Text Area =", .ToolTipText = ""};
    StripLabel lblTotal{.Caption = "Running Total =", .ToolTipText = ""};
    ScrollBarRecord VScroll1;
    /// A message of the front end for the person, shown in the status strip until the next key: a character
    /// without a byte was refused, for instance.
    std::string Notice;
    /// Goes up with every key, command and save: the same words after another one are news.
    int NoticeRound = 0;

    std::array<CommandState, kCommandCount> Commands;
    [[nodiscard]] CommandState& operator[](CommandId id) { return Commands[static_cast<std::size_t>(id)]; }
    [[nodiscard]] const CommandState& operator[](CommandId id) const {
        return Commands[static_cast<std::size_t>(id)];
    }
};
