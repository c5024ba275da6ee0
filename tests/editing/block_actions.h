#pragma once

#include "editing/area_contents.h"
#include "editing/selection.h"
#include "pages/fields.h"
#include "pages/row_fields.h"
#include "support/person.h"
#include "support/running_program.h"
#include "support/typist.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

// Every character is 100 twips wide here. Areas are 255 twips high and 360 apart; descriptions without
// columns reach from 900 to 9540, with columns from 1440 to 7710, amounts from 10080 to 11340.

/// A started program in which a person bands, copies and moves blocks.
class BlockRun : public RunningProgram {
public:
    static constexpr PageId kFirst = PageId::frmP1;
    static constexpr PageId kSecond = PageId::frmP2;

    static FieldRef Text(PageId page, int index) { return {page, FieldKind::txt, index}; }

    void Front(PageId page) { person::TurnTo(program, IndexOf(page)); }

    void Drag(PageId page, float x1, float y1, float x2, float y2) {
        modBlocks::Form_MouseDown(program, 1, x1, y1);
        modBlocks::Form_MouseMove(program, page, 1, (x1 + x2) / 2, (y1 + y2) / 2);
        modBlocks::Form_MouseMove(program, page, 1, x2, y2);
        modBlocks::Form_MouseUp(program, page, 1, x2, y2);
    }

    /// A band around description rows, with or without their amounts.
    enum class Amounts { Without, With };
    void Band(PageId page, int first, int last, Amounts amounts = Amounts::Without) {
        if (program.main.PageInFront != page) {
            Front(page);
        }
        const float right = amounts == Amounts::With ? 11400.0F : 9600.0F;
        Drag(page, 800, Area(page, first).Top - 20, right, Area(page, last).Top + 275);
    }

    void Choose(CommandId id) { person::Choose(program, id); }

    void Put(PageId page, int index, const std::string& text) {
        modFields::SetText(program, Text(page, index), text);
    }
    /// A row with columns; the product goes to its amount.
    void PutRow(PageId page, int row, const std::string& quantity, const std::string& text,
                const std::string& price) {
        modPages::PlaceColumns(program, page, row, modPages::Columns::On);
        modFields::SetText(program, {page, FieldKind::txtQty, row}, quantity);
        modFields::SetText(program, {page, FieldKind::txtAmt, row}, price);
        Put(page, row, text);
    }
    [[nodiscard]] AreaContents Contents(PageId page, int index) {
        return modBlocks::ReadContents(program, page, index);
    }
    [[nodiscard]] bool Blue(PageId page, int index) {
        const TextArea& area = Area(page, index);
        EXPECT_EQ(area.BackColor == colors::kBlockSelected, area.ForeColor == colors::kWhite) << index;
        return area.BackColor == colors::kBlockSelected;
    }
    [[nodiscard]] std::vector<int> BlueAreas(PageId page) {
        std::vector<int> blue;
        for (std::size_t index = 0; index < program.pages[page].txt.size(); ++index) {
            if (Blue(page, static_cast<int>(index))) {
                blue.push_back(static_cast<int>(index));
            }
        }
        return blue;
    }
    [[nodiscard]] const std::string& Stored(PageId page, int index) {
        return program.document.CurrentTextBuf[page][static_cast<std::size_t>(index)];
    }
    [[nodiscard]] bool Enabled(CommandId id) { return program.main[id].Enabled; }
    void ExpectTold(std::string words) {
        surroundings.questions.ExpectBox({std::move(words), Buttons::Ok, ""}, Answer::Ok);
    }
    [[nodiscard]] BlockState& Block() { return program.editing.Block; }
};
