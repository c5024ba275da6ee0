#include "format/format_commands.h"
#include "format/frm_label_props.h"
#include "format/label_designer.h"
#include "format/label_looks.h"
#include "pages/page_geometry.h"
#include "pages/row_fields.h"
#include "program/windows.h"
#include "proposal/lifecycle.h"
#include "proposal/reset.h"
#include "support/person.h"
#include "support/running_program.h"
#include "support/sequences.h"
#include "support/typist.h"

#include <gtest/gtest.h>
#include <random>

namespace {

/// A person who designs at random: types, drags, rewords, makes bold, marks amounts and turns columns on.
class Designing : public RunningProgram {
public:
    explicit Designing(unsigned seed) : random_(seed), typist_(program) {
        static_cast<void>(modReset::StartNewFile(program));
    }

    std::string Story;

    void Act() {
        switch (Below(7)) {
        case 0:
            TypeIntoAnArea();
            break;
        case 1:
            TypeAnAmount();
            break;
        case 2:
            TurnColumnsOn();
            break;
        case 3:
            ChooseForAnArea(Below(3) == 0 ? CommandId::mnuEditTextNormal : CommandId::mnuEditTextBold);
            break;
        case 4:
            DragALabel();
            break;
        case 5:
            ChangeALabel();
            break;
        default:
            MarkAnAmount();
        }
    }

    /// The format as a save leaves it on the disk, all texts of the pages in it.
    std::string SaveTheFormat() {
        program.format.LogoChanged = true; // so that there is something to save, whatever was done
        surroundings.questions.ExpectInput("Saving File As...", "House");
        const bool asks = HoldsClientData();
        if (asks) {
            surroundings.questions.Expect("Shall the texts of this proposal", Answer::No);
        }
        modFormat::mnuFileFormatSaveAs_Click(program);
        return folder.Read("Proposals/House.fmt");
    }

private:
    int Below(int bound) { return static_cast<int>(random_() % static_cast<unsigned>(bound)); }
    PageId AnyPage() { return PageAt(Below(kLinePageCount)); }
    PageId To(PageId page) {
        person::TurnTo(program, IndexOf(page));
        return page;
    }
    int ADescription(PageId page) {
        return geometry::FirstRow(page) + Below(geometry::LastRow(page) - geometry::FirstRow(page) + 1);
    }
    int AnAmount(PageId page) { return geometry::AmountOf(page, ADescription(page)); }
    void Tell(std::string_view what, PageId page, int index) {
        Story += std::string(what) + " " + std::string(geometry::PageName(page)) + "(" +
                 std::to_string(index) + "); ";
    }

    void TypeIntoAnArea() {
        const PageId page = To(AnyPage());
        const int index = page == PageId::frmP1 && Below(2) == 0 ? 1 + Below(9) : ADescription(page);
        Tell("type", page, index);
        typist_.Click(page, index);
        typist_.Type(Below(2) == 0 ? "Hall" : "two words");
    }
    void TypeAnAmount() {
        const PageId page = To(AnyPage());
        const int index = AnAmount(page);
        Tell("amount", page, index);
        typist_.Click(page, index);
        typist_.Type("12.5");
        typist_.Press(keys::kEnter);
    }
    void TurnColumnsOn() {
        const PageId page = To(AnyPage());
        const int row = ADescription(page);
        Tell("columns", page, row);
        typist_.Click(page, row);
        person::Choose(program, CommandId::mnuEditTextColumns);
        if (modPages::ColumnsOn(program, page, row) && Below(2) == 0) {
            typist_.Click({page, FieldKind::txtQty, row});
            typist_.Type("3");
            typist_.Click({page, FieldKind::txtAmt, row});
            typist_.Type("1.25");
            typist_.Press(keys::kEnter);
        }
    }
    void ChooseForAnArea(CommandId command) {
        const PageId page = To(AnyPage());
        const int index = ADescription(page);
        Tell(command == CommandId::mnuEditTextBold ? "bold" : "normal", page, index);
        typist_.Click(page, index);
        person::Choose(program, command);
    }
    void MarkAnAmount() {
        const PageId page = To(AnyPage());
        const int index = AnAmount(page);
        Tell("mark", page, index);
        typist_.Click(page, index);
        typist_.Type("7");
        person::Choose(program, CommandId::mnuEditTextTaxExempt);
    }
    int Press(PageId page) {
        const int label = Below(geometry::LastLabel(page) + 1);
        modDesigner::lbl_MouseDown(program, page, label, modDesigner::kLeftButton, 0, 0);
        return label;
    }
    void DragALabel() {
        const PageId page = To(PageAt(Below(kEditedPageCount)));
        const int label = Press(page);
        Tell("drag", page, label);
        const float down = static_cast<float>(Below(3) - 1) * 200;
        if (modDesigner::lbl_MouseMove(program, page, label, 200, down)) {
            Tell("moved", page, label);
        }
        modDesigner::lbl_MouseUp(program, page, label);
    }
    void ChangeALabel() {
        const PageId page = To(PageAt(Below(kEditedPageCount)));
        const int label = Press(page);
        Tell("change", page, label);
        modDesigner::lbl_MouseUp(program, page, label);
        person::Choose(program, CommandId::mnuEditLabelProps);
        auto* window = dynamic_cast<frmLabelProps*>(modWindows::Find(program, "frmLabelProps"));
        ASSERT_NE(window, nullptr);
        // A currency sign has the areas' font, whatever its line says.
        if (!modDesigner::IsSignLabel(page, label)) {
            if (window->txtCaption.Enabled) {
                window->txtCaption_Change(program, Below(3) == 0 ? "" : "Other words. Yes");
            }
            window->cmdSize_Click(program, Below(9));
            window->cmdColor_Click(program, Below(9));
            if (Below(2) == 0) {
                window->chkItalic_Click(program);
            }
        }
        if (Below(4) == 0) {
            window->cmdCancel_Click(program);
        } else {
            window->cmdOK_Click(program);
        }
        modWindows::Sweep(program);
    }
    bool HoldsClientData() {
        for (int line = 2; line <= 7; ++line) {
            if (!Area(PageId::frmP1, line).Text.empty()) {
                return true;
            }
        }
        for (const PageId page : kLinePages) {
            for (int row = geometry::FirstRow(page); row <= geometry::LastRow(page); ++row) {
                const auto at = static_cast<std::size_t>(row);
                const Page& record = program.pages[page];
                if (!record.txt[at].Text.empty()) {
                    return true;
                }
                for (const auto* boxes : {&record.txtQty, &record.txtAmt}) {
                    const std::string& text = (*boxes)[at].Text;
                    if (modPages::ColumnsOn(program, page, row) && !text.empty() && text != "Qty." &&
                        text != "Amt.") {
                        return true;
                    }
                }
            }
        }
        return false;
    }

    std::mt19937 random_;
    Typist typist_;
};

/// What a person sees of a layout: everything but figures, which are each proposal's own.
std::vector<std::string> Seen(const Program& program) {
    std::vector<std::string> all;
    for (const PageId id : kAllPages) {
        const Page& page = program.pages[id];
        const std::string name(geometry::PageName(id));
        for (std::size_t index = 0; index < page.lbl.size(); ++index) {
            const PageLabel& label = page.lbl[index];
            const bool number = static_cast<int>(index) == geometry::PageNumberLabel(id);
            all.push_back(name + ".lbl " + std::to_string(index) + " " + std::to_string(label.Left) + " " +
                          std::to_string(label.Top) + " " + (number ? "" : label.Caption) + " " +
                          label.FontName + " " + std::to_string(label.FontSize) + " " +
                          std::to_string(label.ForeColor) + (label.FontBold ? "b" : "") +
                          (label.FontItalic ? "i" : "") + (label.FontUnderline ? "u" : ""));
        }
        for (std::size_t index = 0; IsLinePage(id) && index < page.txt.size(); ++index) {
            const int at = static_cast<int>(index);
            const bool figure = geometry::IsAmount(id, at);
            const bool columns = geometry::IsDescription(id, at) && modPages::ColumnsOn(program, id, at);
            all.push_back(name + ".txt " + std::to_string(index) + " " +
                          (figure ? page.imgNoTax[index].Tag : page.txt[index].Text) +
                          (page.txt[index].FontBold ? " bold" : "") + (columns ? " columns " : "") +
                          (columns ? page.txtQty[index].Text + "," + page.txtAmt[index].Text : ""));
        }
    }
    return all;
}

TEST(FormatOnScreen, WhatASaveWritesIsWhatTheNextProposalShows) {
    constexpr int kMostActs = 12;
    const unsigned sequences = SequencesAsked(60, 2000);
    for (unsigned seed = 1; seed <= sequences; ++seed) {
        Designing person(seed);
        for (int act = 0; act < 1 + static_cast<int>(seed % kMostActs); ++act) {
            person.Act();
        }
        const std::vector<std::string> before = Seen(person.program);
        const std::string file = person.SaveTheFormat();
        ASSERT_EQ(Seen(person.program), before) << "a save changes nothing on the pages";
        RunningProgram next;
        next.folder.Write("Proposals/House.fmt", file);
        next.program.format.FormatFolder = next.folder / "Proposals/";
        next.program.format.FormatName = "House.fmt";
        next.program.format.FormatOpen = true;
        static_cast<void>(modReset::StartNewFile(next.program));
        const std::vector<std::string> after = Seen(next.program);
        ASSERT_EQ(before.size(), after.size());
        for (std::size_t at = 0; at < before.size(); ++at) {
            ASSERT_EQ(before[at], after[at]) << "seed " << seed << ": " << person.Story << "\n" << file;
        }
        ASSERT_FALSE(modProposal::SomethingChanged(next.program)) << "seed " << seed;
    }
}

} // namespace
