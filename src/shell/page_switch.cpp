#include "shell/page_switch.h"

#include "base/guard.h"
#include "format/frm_label_props.h"
#include "format/label_keys.h"
#include "output/preview.h"
#include "pages/fields.h"
#include "pages/page_geometry.h"
#include "pages/page_show.h"
#include "program/errors.h"
#include "program/keys.h"
#include "program/program.h"
#include "program/windows.h"
#include "terms/frm_fut.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <string_view>

namespace modScroll {

namespace {

constexpr int kPageHeight = 15840;
constexpr int kWideScreen = 1024;

/// The floating windows go with the main window, and come back with a large one.
void FollowMainWindow(Program& program) {
    for (const std::string_view name : {"frmFUT", "frmCalc"}) {
        Window* window = modWindows::Find(program, name);
        if (window == nullptr) {
            continue;
        }
        auto* terms = dynamic_cast<frmFUT*>(window);
        if (terms != nullptr && !terms->Minimised) {
            terms->StartedMinimised = false;
        }
        if (program.main.State == WindowState::Minimised) {
            window->Minimised = true;
        } else if (program.main.State == WindowState::Maximised) {
            // The main window is made large at the start, too: what the settings keep small stays so.
            window->Minimised = terms != nullptr && terms->StartedMinimised;
        }
    }
}

void CentreOnScreen(Program& program) {
    const Screen& screen = program.platform.screen;
    MainWindow& main = program.main;
    const float twips = screen.TwipsPerPixel();
    main.Left = (static_cast<float>(screen.WidthInPixels()) * twips - main.Width) / 2;
    main.Top = (static_cast<float>(screen.HeightInPixels()) * twips - main.Height) / 2;
}

/// From one line of a page to the next; the final page, which has none, goes by the pages of lines.
float RowPitch(const Program& program) {
    const PageId front = program.main.PageInFront;
    const PageId page = IsLinePage(front) ? front : PageId::frmP2;
    const auto first = static_cast<std::size_t>(geometry::FirstRow(page));
    const auto& areas = program.pages[page].txt;
    return areas[first + 1].Top - areas[first].Top;
}

/// The strip is made as wide as the window, and repaints before the page below it moves. A size that comes
/// meanwhile is fitted within, without another round of events.
void WidenInformation(Program& program) {
    MainWindow& main = program.main;
    main.picInfoWidth = main.Width;
    if (!main.Resizing) {
        const ScopedFlag resizing(main.Resizing);
        program.platform.events.LetEventsRun();
    }
}

/// The page at its own size at the top, the scroll bar for it.
void FitPage(Program& program, PageId page) {
    MainWindow& main = program.main;
    Page& record = program.pages[page];
    record.Width = 12240;
    record.Height = kPageHeight;
    record.Top = 0;
    main.ScrollClientHeight = static_cast<int>(main.ClientHeight);
    ScrollBarRecord& bar = main.VScroll1;
    bar.Height = main.ClientHeight;
    bar.Max = std::max(0, kPageHeight - main.ScrollClientHeight + 30);
    bar.LargeChange = std::max(1, main.ScrollClientHeight);
    bar.SmallChange = std::max(1, main.ScrollClientHeight / 2);
    bar.Value = std::clamp(bar.Value, bar.Min, bar.Max);
}

void TakePage(Program& program, PageId page) {
    MainWindow& main = program.main;
    main.ActivePageTyped = page;
    if (page != PageId::frmP6_1) {
        main.ActivePage = page;
        main.CurrentPage = IndexOf(page);
    }
    // A page that fails to refresh still comes to the front.
    Guarded(program, "UpdatePageButtons", [&] { modPages::ShowPage(program, page); });
    main.ActivePageName = geometry::PageName(page);
    main.LastTextIndex = geometry::LastText(page);
    main.LastLabelIndex = geometry::LastLabel(page);
}

/// Whether the page in front shows the field, with room for more than the field itself.
bool CanScrollTo(const Program& program, const FieldRef& field) {
    const MainWindow& main = program.main;
    const Page& page = program.pages[field.Page];
    const float height = page.txt[static_cast<std::size_t>(field.Index)].Height;
    return field.Page == main.PageInFront && !page.InkShown && main.ClientHeight >= 2 * height;
}

float RoomBeside(const Program& program, float height) {
    return std::min(RowPitch(program), (program.main.ClientHeight - height) / 2);
}

void BringIntoView(Program& program, float top, float height) {
    const MainWindow& main = program.main;
    const float beside = RoomBeside(program, height);
    const auto shown = static_cast<float>(main.VScroll1.Value);
    if (top < shown) {
        SetScroll(program, static_cast<int>(top - beside));
    } else if (top + height > shown + main.ClientHeight) {
        SetScroll(program, static_cast<int>(top + height + beside - main.ClientHeight));
    }
}

} // namespace

void UpdatePageButtons(Program& program, int pageIndex) {
    MainWindow& main = program.main;
    modDesigner::CloseLabelWindow(program);
    if (!program.guards.StartingUp && main.cmdPreview.Caption == "Resume Editing") {
        main.cmdPreview.Caption = "Print Preview";
        modPreview::ResumeEditing(program, main.PageInFront);
    }
    for (ImageButton& button : main.imgPage) {
        button.Picture = 0;
    }
    main[CommandId::mnuFilePrintPreview].Enabled = true;
    main[CommandId::mnuFileResume].Enabled = false;
    if (main.VScroll1.Value != 0) {
        main.ScrollChangeSuppressed = true;
        main.VScroll1.Value = 0;
        VScroll1_Change(program);
    }
    if (pageIndex < 0 || pageIndex >= kPageCount) {
        return;
    }
    const PageId page = PageAt(pageIndex);
    main.imgPage[static_cast<std::size_t>(pageIndex)].Picture = 1;
    ReAdjustScrollBar(program, page);
    TakePage(program, page);
    for (const CommandId id : {CommandId::mnuEditLabelProps, CommandId::mnuEditLabelSelectAll,
                               CommandId::mnuEditLabelDeselectAll, CommandId::mnuEditLabelMode}) {
        main[id].Enabled = page != PageId::frmP6_1;
    }
    program.pages[page].Visible = true;
    main.PageInFront = page;
    modLabelKeys::PageChanged(program);
}

void ReAdjustScrollBar(Program& program, PageId page) {
    Guarded(program, "ReAdjustScrollBar", [&] {
        ClearDrawing(program.pages[page]);
        FitPage(program, page);
    });
}

void SetScroll(Program& program, int value) {
    ScrollBarRecord& bar = program.main.VScroll1;
    const int wanted = std::clamp(value, bar.Min, bar.Max);
    if (wanted != bar.Value) {
        bar.Value = wanted;
        VScroll1_Change(program);
    }
}

void VScroll1_Change(Program& program) {
    MainWindow& main = program.main;
    if (main.ScrollChangeSuppressed) {
        main.ScrollChangeSuppressed = false;
        return;
    }
    program.pages[main.PageInFront].Top = -static_cast<float>(main.VScroll1.Value);
}

void BringIntoView(Program& program, const FieldRef& field) {
    if (CanScrollTo(program, field)) {
        const TextArea& area = modFields::Area(program, field);
        BringIntoView(program, area.Top, area.Height);
    }
}

void BringFrameIntoView(Program& program) {
    const std::optional<int> framed = program.designer.Framed;
    const Page& page = program.pages[program.main.PageInFront];
    if (!program.designer.LabelMode || !framed) {
        return;
    }
    if (*framed == kLogoInFrame) {
        BringIntoView(program, page.pic.Top, page.pic.Size.Height);
        return;
    }
    const PageLabel& label = page.lbl[static_cast<std::size_t>(*framed)];
    const TextFont font{label.FontName, label.FontSize, label.FontBold, label.FontItalic};
    BringIntoView(program, label.Top, program.platform.measure.Height(font));
}

void BringToEdge(Program& program, const FieldRef& field) {
    if (!CanScrollTo(program, field)) {
        return;
    }
    const MainWindow& main = program.main;
    const TextArea& area = modFields::Area(program, field);
    const float beside = RoomBeside(program, area.Height);
    const int atFoot = static_cast<int>(area.Top + area.Height + beside - main.ClientHeight);
    SetScroll(program, atFoot >= main.VScroll1.Min ? atFoot : static_cast<int>(area.Top - beside));
}

void Wheel(Program& program, int eighths) {
    constexpr float kNotch = 120;
    constexpr float kRows = 3;
    const float rows = static_cast<float>(eighths) / kNotch * kRows;
    SetScroll(program, program.main.VScroll1.Value - static_cast<int>(std::lround(rows * RowPitch(program))));
}

void PageKey(Program& program, int keyCode) {
    ScrollBarRecord& bar = program.main.VScroll1;
    const int window = static_cast<int>(program.main.ClientHeight);
    bar.LargeChange = std::max(1, window);
    const int position = bar.Value;
    constexpr int kBottom = kPageHeight + 30;
    // A whole window up, half a window down.
    if (keyCode == keys::kPageUp) {
        SetScroll(program, position - window);
    } else if (keyCode == keys::kPageDown) {
        SetScroll(program, 2 * window + position >= kBottom ? kBottom - window : position + window / 2);
    }
}

void MDIForm_Resize(Program& program) {
    MainWindow& main = program.main;
    if (main.State == WindowState::Normal) {
        CentreOnScreen(program);
    }
    if (main.State != WindowState::Minimised) {
        WidenInformation(program);
        main.WindowHeightRatio = main.ClientHeight / static_cast<float>(kPageHeight);
        FitPage(program, PageId::frmP1); // what is drawn on it stays: the person did not ask for its end
        program.pages[main.PageInFront].Top = -static_cast<float>(main.VScroll1.Value);
    }
    if (program.platform.screen.WidthInPixels() >= kWideScreen) {
        FollowMainWindow(program);
    }
}

} // namespace modScroll
