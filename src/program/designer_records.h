#pragma once

#include "program/change_records.h"
#include "program/per_page.h"

#include <array>
#include <optional>
#include <string>

/// A label or the logo in the hand.
struct DragState {
    bool Dragging = false;
    float GrabX = 0; ///< where it was taken hold of, twips from its own corner
    float GrabY = 0;
    bool Moved = false; ///< since the press
};

/// Fields that the label window has changed for the whole group.
struct GroupChanges {
    bool FontName = false;
    bool FontSize = false;
    bool FontBold = false;
    bool ForeColor = false;
    bool FontItalic = false;
    bool FontUnderline = false;
    bool operator==(const GroupChanges&) const = default;
};

/// What the arrow keys go over in the label mode: a label by its index, or the logo.
inline constexpr int kLogoInFrame = -1;

/// What the designing of labels works with. Which labels are selected is told by their colours alone.
struct DesignerRecords {
    int CurrentLabel = 0;            ///< the label last pressed
    std::optional<PageId> LabelPage; ///< the page it was pressed on; none before the first press
    LabelLook LabelEdit;             ///< its look, as the windows change it
    LabelLook LabelEditPrevious;
    GroupChanges Changed;
    bool LabelPropsOpen = false;
    bool LabelPropsCancelled = false;
    PerEditedPage<DragState> Drags;
    DragState LogoDrag;
    /// Per page and label: whether the proposal's record was changed when the label was pressed.
    PerEditedPage<std::array<bool, 65>> ChangedAtPress;
    std::string ColorOwner; ///< who opened the colour window: "Label" or "Text"

    bool LabelMode = false;              ///< keys go to the labels of the page in front
    std::optional<int> Framed;           ///< the label with the frame round it, or kLogoInFrame
    std::optional<FieldRef> FocusBefore; ///< the field that has the keyboard again when the mode is left
};
