#include "base/numbers.h"
#include "base/text.h"
#include "editing/block_actions.h"
#include "pages/page_geometry.h"
#include "pages/row_fields.h"
#include "support/person.h"

#include <cstdlib>
#include <iostream>
#include <random>
#include <sstream>

// A person who bands, copies, moves, deletes, undoes and types in any order: whatever was done, what stands
// on the pages is what is stored and counted.

namespace {

class Wanderer {
public:
    Wanderer(BlockRun& run, unsigned seed) : run_(run), typist_(run.program), random_(seed) {}

    void Step() {
        switch (Below(16)) {
        case 0:
        case 1:
            typist_.Click(AField());
            break;
        case 2:
        case 3:
            Fill();
            break;
        case 4:
        case 5:
            Band();
            break;
        case 6:
        case 7:
            Command();
            break;
        case 8: {
            const int key = Below(2) == 0 ? keys::kDown : keys::kUp;
            Log << "arrows " << key << "\n";
            for (int i = Below(4); i >= 0; --i) {
                typist_.Hold(key);
            }
            typist_.Press(key);
            break;
        }
        case 9:
            Log << "F8\n";
            typist_.Press(keys::kF8);
            break;
        case 10:
            Log << "enter\n";
            typist_.Press(keys::kEnter);
            break;
        case 11:
            Undo();
            break;
        case 12:
            Log << "page\n";
            person::ClickPageButton(run_.program, Below(6));
            break;
        case 13:
            Right();
            break;
        case 14:
            Log << "dblclick\n";
            typist_.DoubleClick(AField());
            break;
        default:
            Exempt();
            break;
        }
    }

    std::ostringstream Log;

private:
    int Below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }
    PageId Front() const {
        const PageId page = run_.program.main.PageInFront;
        return IsLinePage(page) ? page : PageId::frmP2;
    }
    FieldRef AField() {
        const PageId page = Front();
        const int row = geometry::FirstRow(page) + Below(7);
        const int kind = Below(10);
        FieldRef field{page, FieldKind::txt, kind < 5 ? row : geometry::AmountOf(page, row)};
        if (kind >= 8 && modPages::ColumnsOn(run_.program, page, row)) {
            field = {page, kind == 8 ? FieldKind::txtQty : FieldKind::txtAmt, row};
        }
        Log << "field " << IndexOf(page) << " kind " << static_cast<int>(field.Kind) << " " << field.Index
            << "\n";
        return field;
    }
    void Fill() {
        typist_.Click(AField());
        const std::string text =
            std::array{
                "chairs", "12.5", "3", "2,000", "long words and more ", "7", ""}[static_cast<std::size_t>(
                Below(7))];
        Log << "type " << text << "\n";
        typist_.Type(text);
    }
    void Band() {
        const PageId page = Front();
        const int first = geometry::FirstRow(page) + Below(6);
        const int last = first + Below(4);
        Log << "band " << IndexOf(page) << " " << first << ".." << last << "\n";
        run_.Band(page, first, last, Below(2) == 0 ? BlockRun::Amounts::With : BlockRun::Amounts::Without);
    }
    void Command() {
        constexpr std::array kIds{
            CommandId::mnuEditTextCopy,      CommandId::mnuEditTextCut,      CommandId::mnuEditTextPaste,
            CommandId::mnuEditTextPaste,     CommandId::mnuEditTextDelete,   CommandId::mnuEditTextMoveDown,
            CommandId::mnuEditTextMoveUp,    CommandId::mnuEditTextDeselect, CommandId::mnuEditTextBold,
            CommandId::mnuEditTextNormal,    CommandId::mnuEditTextColumns,  CommandId::mnuEditTextTaxable,
            CommandId::mnuEditTextTaxExempt, CommandId::mnuEditTextDeselect};
        const auto at = static_cast<std::size_t>(Below(static_cast<int>(kIds.size())));
        Log << "command " << at << "\n";
        run_.Choose(kIds[at]);
    }
    void Undo() {
        Log << "undo\n";
        run_.Choose(CommandId::mnuEditTextUndo);
    }
    void Right() {
        const FieldRef field = AField();
        Log << "right\n";
        person::FieldMouseDown(run_.program, field, 2, 0, 0);
        if (Below(2) == 0) {
            Command();
        }
        person::TextMenuClosed(run_.program);
    }
    void Exempt() {
        const PageId page = Front();
        const int row = geometry::AmountOf(page, geometry::FirstRow(page) + Below(6));
        if (run_.program.pages[page].imgNoTax[static_cast<std::size_t>(row)].Visible) {
            Log << "mark " << row << "\n";
            person::NoTaxMarkClick(run_.program, page, row);
        }
    }

    BlockRun& run_;
    Typist typist_;
    std::mt19937 random_;
};

void ExpectAmountCounted(BlockRun& run, PageId page, std::size_t index) {
    const Program& program = run.program;
    const Page& record = program.pages[page];
    const std::string_view value = text::Trim(record.txt[index].Text);
    EXPECT_EQ(program.format.PropTextChanges[page][index].TaxExempt, record.imgNoTax[index].Visible);
    if (value.empty() || numbers::IsNumeric(value, "$")) {
        EXPECT_EQ(program.totals.AmountTable[index][page], numbers::ToSingle(value, "$").value_or(0));
        const std::size_t sign = page == PageId::frmP1 ? index + 1 : index - 32;
        EXPECT_EQ(record.lbl[sign].Visible, !value.empty());
    }
}

void ExpectColumnsWhole(BlockRun& run, PageId page, std::size_t row) {
    const Page& record = run.program.pages[page];
    const bool on = modPages::ColumnsOn(run.program, page, static_cast<int>(row));
    EXPECT_EQ(run.program.format.PropTextChanges[page][row].QtyBox, on);
    EXPECT_EQ(record.txt[row].Width, on ? 6270 : 8640);
    const bool selected = record.txt[row].BackColor == colors::kBlockSelected;
    for (const auto* boxes : {&record.txtQty, &record.txtAmt}) {
        if (row < boxes->size()) {
            EXPECT_EQ((*boxes)[row].BackColor == colors::kBlockSelected, on && selected);
        }
    }
}

void ExpectInStep(BlockRun& run) {
    Program& program = run.program;
    EXPECT_FALSE(program.editing.RefireMode);
    EXPECT_FALSE(program.editing.MoveInProgress);
    int blue = 0;
    for (const PageId page : kLinePages) {
        const Page& record = program.pages[page];
        for (std::size_t index = 0; index < record.txt.size(); ++index) {
            const int i = static_cast<int>(index);
            const TextArea& area = record.txt[index];
            SCOPED_TRACE(testing::Message()
                         << "page " << IndexOf(page) + 1 << " area " << i << " \"" << area.Text << "\"");
            blue += run.Blue(page, i) ? 1 : 0;
            EXPECT_EQ(program.document.CurrentTextBuf[page][index], modPages::ComposeLine(program, page, i));
            EXPECT_EQ(program.format.PropTextChanges[page][index].FontBold, area.FontBold);
            if (geometry::IsAmount(page, i)) {
                ExpectAmountCounted(run, page, index);
            } else if (geometry::IsDescription(page, i)) {
                ExpectColumnsWhole(run, page, index);
            }
        }
    }
    EXPECT_TRUE(program.editing.BlockMode || blue == 0) << blue;
    EXPECT_TRUE(program.main.Focus.has_value() || !IsLinePage(program.main.PageInFront));
}

constexpr unsigned kSeeds = 40;
constexpr int kSteps = 150;

TEST(Blocks, InAnyOrderLeaveStoreTablesAndScreenInStep) {
    unsigned first = 1;
    unsigned last = kSeeds;
    if (const char* chosen = std::getenv("QUILLBROOK_SEED")) {
        first = last = static_cast<unsigned>(std::atoi(chosen));
    }
    for (unsigned seed = first; seed <= last && !testing::Test::HasFailure(); ++seed) {
        BlockRun run;
        run.surroundings.questions.TakeAll(seed % 2 == 0 ? Answer::Ok : Answer::Yes);
        run.Front(PageId::frmP2);
        Wanderer wanderer(run, seed);
        for (int step = 0; step < kSteps && !testing::Test::HasFailure(); ++step) {
            wanderer.Log << "-- " << step << "\n";
            wanderer.Step();
            ExpectInStep(run);
        }
        if (testing::Test::HasFailure()) {
            std::cout << "seed " << seed << "\n" << wanderer.Log.str();
        }
    }
}

} // namespace
