#include "editing/selection.h"

#include "editing/area_contents.h"
#include "editing/settle_field.h"
#include "editing/standing_completion.h"
#include "editing/text_menu.h"
#include "editing/typing.h"
#include "pages/page_geometry.h"
#include "program/errors.h"
#include "program/program.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <exception>
#include <optional>
#include <utility>

namespace modBlocks {

namespace {

constexpr RowRange kFinalPageRows{0, 7};

/// A clicking hand is never quite still; below this a moved mouse draws no band.
constexpr float kSlack = 60;

constexpr std::array<std::string_view, 3> kSelectableKinds{"Push", "Stop", "Amou"};

bool TakesBand(const Program& program, PageId page) {
    return page != PageId::frmP6_1 && !program.pages[page].InkShown;
}

bool Contains(const PageShape& band, const TextArea& area) {
    return area.Left >= band.Left && area.Top >= band.Top &&
           area.Left + area.Width <= band.Left + band.Width &&
           area.Top + area.Height <= band.Top + band.Height;
}

bool Selectable(const TextArea& area) {
    const std::string_view kind = geometry::KindOf(area.Tag);
    return std::find(kSelectableKinds.begin(), kSelectableKinds.end(), kind) != kSelectableKinds.end();
}

/// A band whose button was let go elsewhere, as after a change of the page in mid-drag.
void DropBand(Program& program) {
    program.editing.Block.BandDragging = false;
    for (const PageId page : kAllPages) {
        program.pages[page].shpSelect.Visible = false;
    }
}

void Take(Program& program, PageId page, int index) {
    PaintArea(program, page, index, Selected::Yes);
    program.editing.BlockMode = true;
    ShowModeSign(program, ModeSign::Shown);
    BlockState& block = program.editing.Block;
    ++block.SelectedCount;
    block.ManySelected = block.SelectedCount > 1;
}

void ForgetRuns(BlockState& block) {
    block.RunStart = {-1, -1};
    block.RunEnd = {-1, -1};
    block.HasRightRun = false;
    block.AtTop = false;
    block.AtBottom = false;
}

/// The first run of selected areas within a range; false when there is none.
bool ReadRun(Program& program, PageId page, RowRange range, std::size_t run) {
    BlockState& block = program.editing.Block;
    int start = range.First;
    while (start <= range.Last && !IsSelected(program, page, start)) {
        ++start;
    }
    if (start > range.Last) {
        return false;
    }
    int end = start;
    while (end < range.Last && IsSelected(program, page, end + 1)) {
        ++end;
    }
    block.RunStart[run] = start;
    block.RunEnd[run] = end;
    return true;
}

std::vector<AreaContents> ContentsOfRun(const Program& program, PageId page, std::size_t run) {
    const BlockState& block = program.editing.Block;
    std::vector<AreaContents> contents;
    for (int index = block.RunStart[run]; index <= block.RunEnd[run] && index >= 0; ++index) {
        contents.push_back(ReadContents(program, page, index));
    }
    return contents;
}

void TakeRuns(Program& program) {
    if (ReadOrRefuseSelection(program) == Selection::Runs) {
        CopyBlockToMemory(program);
    }
    modTextMenu::UpdateTextMenu(program);
}

void RefuseAmountsAlone(Program& program) {
    program.platform.questions.MsgBox("Cannot select Amount Areas only. Please copy Description Areas also.",
                                      Buttons::Ok, "");
    DeSelectAllControls(program);
}

} // namespace

RowRange RowsOf(PageId page) {
    return IsLinePage(page) ? RowRange{geometry::FirstRow(page), geometry::LastRow(page)} : kFinalPageRows;
}

void Form_MouseDown(Program& program, int button, float x, float y) {
    if (button == kLeftButton) {
        DropBand(program);
        program.editing.Block.BandStartX = x;
        program.editing.Block.BandStartY = y;
    }
}

void Form_MouseMove(Program& program, PageId page, int button, float x, float y) {
    BlockState& block = program.editing.Block;
    if (button != kLeftButton || !TakesBand(program, page)) {
        return;
    }
    const float width = std::abs(x - block.BandStartX);
    const float height = std::abs(y - block.BandStartY);
    if (!block.BandDragging) {
        if (width < kSlack && height < kSlack) {
            return;
        }
        FinishMove(program);
        modText::SettleCompletion(program, page);
        modFigures::SettleFocused(program); // leaving it later is silent while areas are selected
        block.BandDragging = true;
    }
    program.pages[page].shpSelect = {std::min(x, block.BandStartX), std::min(y, block.BandStartY), width,
                                     height, true};
}

void Form_MouseUp(Program& program, PageId page, int button, float x, float y) {
    BlockState& block = program.editing.Block;
    if (button != kLeftButton || !block.BandDragging) {
        return;
    }
    block.BandDragging = false;
    block.BandEndX = x;
    block.BandEndY = y;
    SelectBandedAreas(program, page);
}

void SelectBandedAreas(Program& program, PageId page) {
    PageShape& band = program.pages[page].shpSelect;
    if (!band.Visible || page == PageId::frmP6_1) {
        return;
    }
    ClearSelectionColors(program);
    const auto& areas = program.pages[page].txt;
    for (std::size_t index = 0; index < areas.size(); ++index) {
        if (Selectable(areas[index]) && Contains(band, areas[index])) {
            Take(program, page, static_cast<int>(index));
        }
    }
    band.Visible = false;
    program.editing.Block.KeyAnchor = -1;
    if (program.editing.Block.SelectedCount == 0) {
        DeSelectAllControls(program);
        return;
    }
    TakeRuns(program);
}

Taken ExtendByKey(Program& program, const FieldRef& field, Toward toward) {
    if (!IsLinePage(field.Page)) {
        return Taken::No;
    }
    const bool amount = field.Kind == FieldKind::txt && geometry::IsAmount(field.Page, field.Index);
    const int row = amount ? geometry::DescriptionOf(field.Page, field.Index) : field.Index;
    if (!geometry::IsDescription(field.Page, row)) {
        return Taken::No;
    }
    BlockState& block = program.editing.Block;
    int last = row;
    if (!program.editing.BlockMode) {
        FinishMove(program);
        modText::SettleCompletion(program, field.Page);
        modFigures::SettleFocused(program);
        block.KeyAnchor = row;
    } else {
        if (ReadOrRefuseSelection(program) != Selection::Runs) {
            return Taken::Yes;
        }
        // A block that was moved, and one that a band made, grows from its top.
        if (block.KeyAnchor != block.RunStart[0] && block.KeyAnchor != block.RunEnd[0]) {
            block.KeyAnchor = block.RunStart[0];
        }
        last = block.KeyAnchor == block.RunStart[0] ? block.RunEnd[0] : block.RunStart[0];
    }
    const RowRange rows = RowsOf(field.Page);
    last = std::clamp(last + (toward == Toward::Up ? -1 : 1), rows.First, rows.Last);
    ClearSelectionColors(program);
    for (int each = std::min(block.KeyAnchor, last); each <= std::max(block.KeyAnchor, last); ++each) {
        Take(program, field.Page, each);
        Take(program, field.Page, geometry::AmountOf(field.Page, each));
    }
    TakeRuns(program);
    return Taken::Yes;
}

Selection ReadOrRefuseSelection(Program& program) {
    const PageId page = program.main.ActivePage;
    BlockState& block = program.editing.Block;
    const RowRange rows = RowsOf(page);
    ForgetRuns(block);
    block.FirstRow = rows.First;
    block.LastRow = rows.Last;
    if (!IsLinePage(page)) {
        return Selection::None;
    }
    const bool left = ReadRun(program, page, rows, 0);
    block.HasRightRun = ReadRun(program, page, {rows.Last + 1, geometry::LastText(page)}, 1);
    if (!left && block.HasRightRun) {
        RefuseAmountsAlone(program);
        return Selection::Refused;
    }
    if (!left) {
        return Selection::None;
    }
    block.AtTop = IsSelected(program, page, rows.First);
    block.AtBottom = IsSelected(program, page, rows.Last);
    return Selection::Runs;
}

void CopyBlockToMemory(Program& program) {
    BlockState& block = program.editing.Block;
    if (block.RunEnd[0] < 0) {
        return;
    }
    const PageId page = program.main.ActivePage;
    block.MemoryLeft = ContentsOfRun(program, page, 0);
    block.MemoryRight = ContentsOfRun(program, page, 1);
}

void ClearSelectionColors(Program& program) {
    for (const PageId page : kLinePages) {
        for (std::size_t index = 0; index < program.pages[page].txt.size(); ++index) {
            const int area = static_cast<int>(index);
            if (IsSelected(program, page, area)) {
                PaintArea(program, page, area, Selected::No);
            }
        }
    }
    program.editing.Block.SelectedCount = 0;
    program.editing.Block.ManySelected = false;
}

void ShowModeSign(Program& program, ModeSign sign) {
    const Color color = sign == ModeSign::Shown ? colors::kBlockSelected : colors::kButtonFace;
    MainWindow& main = program.main;
    for (StripLabel* label :
         {&main.lblEvent, &main.lblCurPos, &main.lblTextNum, &main.lblDir, &main.lblTotal}) {
        label->BackColor = color;
    }
    main.cmdClearMem.BackColor = color;
}

void DeSelectAllControls(Program& program) {
    Guarded(program, "DeSelectAllControls", [&] {
        ClearSelectionColors(program);
        EditingState& editing = program.editing;
        ForgetRuns(editing.Block);
        editing.Block.MemoryLeft.clear();
        editing.Block.MemoryRight.clear();
        editing.BlockMode = false;
        editing.BlockCopyHeld = false;
        editing.RefireMode = false;
        ShowModeSign(program, ModeSign::Hidden);
        FinishMove(program);
        modTextMenu::UpdateTextMenu(program);
    });
}

void FinishMove(Program& program) {
    EditingState& editing = program.editing;
    editing.Block.Moving.reset();
    const std::optional<PageId> page = std::exchange(editing.Block.MovedPage, std::nullopt);
    if (!page) {
        return;
    }
    try {
        modText::RefireTextChanges(program, *page);
    } catch (const std::exception&) {
        TellMoveFailed(program);
    }
}

void TellMoveFailed(const Program& program) {
    program.platform.questions.MsgBox("Error encountered during Move Process.", Buttons::Ok, "");
}

} // namespace modBlocks
