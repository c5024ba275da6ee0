#include "shell/page_switch.h"

#include "core/errors.h"
#include "core/program.h"
#include "document/page_geometry.h"
#include "document/page_setup.h"

#include <algorithm>
#include <cmath>

namespace modScroll {

namespace {

constexpr int kPageHeight = 15840;
constexpr int kPageUp = 33;
constexpr int kPageDown = 34;

void RefreshButtons(Program& program, int pageIndex) {
    MainWindow& main = program.main;
    for (ImageButton& button : main.imgPage) {
        button.Picture = 0;
    }
    main.imgPage[static_cast<std::size_t>(pageIndex)].Picture = 1;
}

void TakePage(Program& program, PageId page) {
    MainWindow& main = program.main;
    main.ActivePageTyped = page;
    if (page != PageId::frmP6_1) {
        main.ActivePage = page;
        main.CurrentPage = IndexOf(page);
    }
    modPages::ShowPage(program, page);
    main.ActivePageName = geometry::PageName(page);
    main.LastTextIndex = geometry::LastText(page);
    main.LastLabelIndex = geometry::LastLabel(page);
}

} // namespace

void UpdatePageButtons(Program& program, int pageIndex) {
    MainWindow& main = program.main;
    if (!program.guards.StartingUp && main.cmdPreview.Caption == "Resume Editing") {
        main.cmdPreview.Caption = "Print Preview";
        ResumeEditing(program, main.ActivePage);
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
    // A page that fails to refresh still comes to the front.
    Guarded(program, "UpdatePageButtons", [&] {
        RefreshButtons(program, pageIndex);
        ReAdjustScrollBar(program, page);
        TakePage(program, page);
        for (const CommandId id : {CommandId::mnuEditLabelProps, CommandId::mnuEditLabelSelectAll,
                                   CommandId::mnuEditLabelDeselectAll}) {
            main[id].Enabled = false; // their room is not built yet
        }
    });
    program.pages[page].Visible = true;
    main.PageInFront = page;
}

void ResumeEditing(Program& program, PageId page) {
    Guarded(program, "ResumeEditing", [&] {
        program.pages[page].InkShown = false;
        modPages::ShowPage(program, page);
    });
}

void ReAdjustScrollBar(Program& program, PageId page) {
    Guarded(program, "ReAdjustScrollBar", [&] {
        MainWindow& main = program.main;
        Page& record = program.pages[page];
        record.Width = 12240;
        record.Height = kPageHeight;
        record.Top = 0;
        record.InkShown = false;
        main.ScrollClientHeight = static_cast<int>(main.ClientHeight);
        ScrollBarRecord& bar = main.VScroll1;
        bar.Width = 255;
        bar.Height = main.ClientHeight;
        bar.Left = 0;
        bar.Top = 0;
        bar.Min = 0;
        bar.Max = std::max(0, kPageHeight - main.ScrollClientHeight + 30);
        bar.LargeChange = std::max(1, main.ScrollClientHeight);
        bar.SmallChange = std::max(1, main.ScrollClientHeight / 2);
        bar.Value = std::clamp(bar.Value, bar.Min, bar.Max);
        record.Top = -static_cast<float>(bar.Value);
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

void PageKey(Program& program, int keyCode) {
    ScrollBarRecord& bar = program.main.VScroll1;
    const int window = static_cast<int>(program.main.ClientHeight);
    bar.LargeChange = std::max(1, window);
    const int position = bar.Value;
    constexpr int kBottom = kPageHeight + 30;
    // A whole window up, half a window down.
    if (keyCode == kPageUp) {
        SetScroll(program, position <= window ? 0 : position - window);
    } else if (keyCode == kPageDown) {
        SetScroll(program, 2 * window + position >= kBottom ? kBottom - window : position + window / 2);
    }
}

void MDIForm_Resize(Program& program) {
    MainWindow& main = program.main;
    if (main.State == WindowState::Minimised) {
        return;
    }
    main.WindowHeightRatio = main.ClientHeight / static_cast<float>(kPageHeight);
    const int before = main.VScroll1.Value;
    ReAdjustScrollBar(program, PageId::frmP1);
    // The bar was fitted for the first page; the page in front stays where the person had it.
    main.VScroll1.Value = std::clamp(before, main.VScroll1.Min, main.VScroll1.Max);
    program.pages[main.PageInFront].Top = -static_cast<float>(main.VScroll1.Value);
}

} // namespace modScroll
